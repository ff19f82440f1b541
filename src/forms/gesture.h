// What a player does to a form, as a value: made by a control, written as a line of text, read back from one, played.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace bogenwerker {

struct Gesture {
  enum class Verb { click, type, pick, select, close };
  Verb verb = Verb::click;
  std::string control{};  // its name; none for close
  std::string text{};     // what is typed, or the entry that is picked
  std::size_t index = 0;  // the line that is selected, counted from 0

  static constexpr std::size_t noLine = static_cast<std::size_t>(-1);
  friend bool operator==(const Gesture&, const Gesture&) = default;
};

// How a gesture ended.
enum class Outcome {
  through,
  refused,    // the control, or a frame around it, is disabled: nothing happened
  takenBack,  // a fault came in between, and the player has been told: all is as before
  unknown,    // the form has no such control, entry or line
};

// One line, without its end: "click cmdWeiter1", "type txtName Anna Berg", "pick cmbBioware Aalnerv",
// "select lstSprachen 0", "close". Nothing for a line that is no gesture. What is no number of a line selects noLine.
std::optional<Gesture> parseGesture(std::string_view line);

// The line that reads as this gesture.
std::string lineOf(const Gesture& gesture);

}  // namespace bogenwerker
