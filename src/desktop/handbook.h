// The player's handbook.
#pragma once

#include <string_view>

namespace bogenwerker {

// Opens the handbook at a section, as its page names it, in the system's browser. Where there is none, or no handbook
// beside the program or among the installed documents, a line on standard error is all.
void openHandbook(std::string_view section);

}  // namespace bogenwerker
