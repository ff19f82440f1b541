#include "zusatzmodul/berechneReaktion.h"

#include <cmath>

namespace bogenwerker {

Integer berechneReaktion(double a, double b) { return roundToInteger(std::floor((a + b) / 2)); }

Integer berechneReaktion(Integer a, Integer b) { return berechneReaktion(double(a.value()), double(b.value())); }

}  // namespace bogenwerker
