// What cyberware and bioware change.
#pragma once

#include <string>
#include <vector>

#include "catalogues/catalogues.h"
#include "finish/final_values.h"

namespace bogenwerker {

// The modified attributes begin as the bought ones.
void ModifAttribErzeugen(FinalValues& values);

// Applies every row of both ware files whose name equals a line of the list, line after line, and works out
// ModReaktion. The lines are in code page 1252, as the files hold them. A deck has to be known by then. Throws Fault.
void WendeWareAn(FinalValues& values, const std::vector<std::string>& lines, Files& files);

void WendeWerteAn(FinalValues& values, const WareEffects& ware);

// Magie that does not equal the Essenz falls to it, rounded down. Throws Fault beyond 16 bits, naming the line whose
// ware has done that: it is bought for good.
void checkMagie(FinalValues& values, const std::vector<std::string>& lines, Files& files);

}  // namespace bogenwerker
