// The state of the wizard as one line of JSON.
#pragma once

#include <string>

#include "wizard/wizard.h"

namespace bogenwerker {

// An array of the loaded forms in the order of the wizard, each with all its controls. UTF-8, without a line end.
std::string dumpOf(Wizard& wizard);

}  // namespace bogenwerker
