#include "skills/levels.h"

#include "values/text.h"

namespace bogenwerker {

std::string whyNotRaise(const std::string& name, Integer level) {
  return level < highestLevel ? "" : quoted(name) + " hat schon die höchste Stufe.";
}

std::string whyNotLower(const std::string& name, Integer level) {
  return level > 0 ? "" : quoted(name) + " hat schon die Stufe 0.";
}

// Adding disables the button until the name changes.
std::string whyNotAdd(const TextBox& name, const CommandButton& button, Integer number) {
  if (!hasRoom(number))
    return "Die Liste ist voll: Mehr als " + std::to_string(mostEntries) + " Einträge fasst sie nicht.";
  if (name.text().empty()) return "Es fehlt noch der Name.";
  return button.isEnabled() ? "" : quoted(name.text()) + " steht schon in der Liste.";
}

Integer numberOfLine(std::string_view line) { return integerOf(line.substr(0, line.at(1) == '.' ? 1 : 2)); }

}  // namespace bogenwerker
