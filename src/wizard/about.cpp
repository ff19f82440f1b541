#include "wizard/about.h"

namespace bogenwerker {

std::optional<std::string> answerTo(std::span<char* const> arguments, std::string_view program,
                                    std::string_view purpose) {
  const std::string name(program);
  for (const std::string_view argument : arguments) {
    if (argument == "--version") return name + ", Version " BOGENWERKER_VERSION "\n";
    if (argument == "--help") {
      return name + ' ' + std::string(purpose) + "\n\nAufruf: " + name +
             " [--help | --version]\n"
             "  --help     zeigt diese Hilfe\n"
             "  --version  zeigt die Version\n"
             "Alle anderen Argumente werden übergangen.\n";
    }
  }
  return {};
}

}  // namespace bogenwerker
