// The one rounding helper of steps 2 and 6.
#pragma once

#include "values/numbers.h"

namespace bogenwerker {

// Half the sum of two values, rounded down, toward minus infinity. Throws Fault beyond 16 bits.
Integer berechneReaktion(double a, double b);
Integer berechneReaktion(Integer a, Integer b);

}  // namespace bogenwerker
