// What the levels of all kinds of skills have in common: the price of a level, the number at the head of a list line.
#pragma once

#include <string_view>

#include "wizard/numbers.h"

namespace bogenwerker {

constexpr int highestLevel = 6;

// A level above the value of the skill's attribute costs 2 points, any other 1. What raising to a level costs is what
// lowering from it gives back.
constexpr Integer priceOfLevel(Integer level, Integer attribute) { return level > attribute ? 2 : 1; }

// The number that stands ahead of the first point of a list line, of one or two digits.
Integer numberOfLine(std::string_view line);

}  // namespace bogenwerker
