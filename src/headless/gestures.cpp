#include "headless/gestures.h"

#include "headless/dump.h"

namespace bogenwerker {
namespace {

std::string_view replyTo(Outcome outcome) {
  switch (outcome) {
    case Outcome::through:
    case Outcome::takenBack: return "ok";  // the player has been told of the fault
    case Outcome::refused: return "disabled";
    case Outcome::unknown: return "unknown";
  }
  return {};
}

}  // namespace

std::optional<std::string> carryOut(Wizard& wizard, std::string_view line) {
  if (line.empty() || line.starts_with('#')) return {};
  if (line == "dump") return dumpOf(wizard);
  const std::optional<Gesture> gesture = parseGesture(line);
  const Outcome outcome = gesture ? wizard.runtime().play(*gesture) : Outcome::unknown;
  return std::string(wizard.runtime().isOver() ? "end" : replyTo(outcome));
}

std::string escaped(std::string_view text) {
  std::string oneLine;
  for (const char c : text) {
    if (c == '\n') oneLine += "\\n";
    else if (c == '\\') oneLine += "\\\\";
    else oneLine += c;
  }
  return oneLine;
}

}  // namespace bogenwerker
