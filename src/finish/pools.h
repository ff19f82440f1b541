// The dice pools, each from the modified attributes. Magie has to be final by then.
#pragma once

#include "finish/final_values.h"

namespace bogenwerker {

void BerechneKampfPool(FinalValues& values);
// Only for those who work magic.
void BerechneZauberPool(FinalValues& values);
void BerechneAstralKampfPool(FinalValues& values);
// Only with a deck.
void BerechneHackingPool(FinalValues& values);

}  // namespace bogenwerker
