// What the programs answer on their command line.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace bogenwerker {

// German lines for --version or --help, whichever stands first; nothing for all other arguments, which are ignored.
// purpose completes the sentence that begins with the program's name.
[[nodiscard]] std::optional<std::string> answerTo(std::span<char* const> arguments, std::string_view program,
                                                  std::string_view purpose);

}  // namespace bogenwerker
