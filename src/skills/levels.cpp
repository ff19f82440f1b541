#include "skills/levels.h"

namespace bogenwerker {

Integer numberOfLine(std::string_view line) { return integerOf(line.substr(0, line.at(1) == '.' ? 1 : 2)); }

}  // namespace bogenwerker
