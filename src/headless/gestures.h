// The player's hands as lines of text.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "wizard/wizard.h"

namespace bogenwerker {

// Carries out one line of input on the visible form. The reply is ok, disabled, unknown, end, or a dump; nothing for an
// empty line or a comment.
std::optional<std::string> carryOut(Wizard& wizard, std::string_view line);

// A text on one line: a line break as \n, a backslash as two.
std::string escaped(std::string_view text);

}  // namespace bogenwerker
