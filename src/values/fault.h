// What the outside world or a limit of the system did to the player's press.
#pragma once

#include <stdexcept>
#include <string>

namespace bogenwerker {

// Thrown in the middle of a gesture, caught in one place (FormsRuntime::perform), which then puts every form back to
// where it was. what() is a complete German text for the player, UTF-8: what happened, to which file, and what can be
// done. Never thrown for a rule of the game (those answer with bool) nor for a bug (those assert).
class Fault : public std::runtime_error {
 public:
  // What the player can do, once the cause is seen to: most faults leave everything ready for another press.
  enum class Remedy { pressAgain, beginAnew };

  explicit Fault(const std::string& text, Remedy remedy = Remedy::pressAgain)
      : std::runtime_error(text), remedy_(remedy) {}

  [[nodiscard]] Remedy remedy() const { return remedy_; }

 private:
  Remedy remedy_;
};

}  // namespace bogenwerker
