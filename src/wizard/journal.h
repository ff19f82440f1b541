// A character that is being made, as the gestures that made it so far.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "forms/forms.h"
#include "outside/environment.h"
#include "outside/growing_file.h"

namespace bogenwerker {

class Wizard;

// Writes down every gesture that went through, a line each, and every throw of the dice, in a file of the player's
// folder; plays back what a run that ended in the middle has left. It keeps no state of any form: the forms come to
// stand where they stood because the same gestures come to the same. The file is gone once the character is finished or
// thrown away. One that cannot be written costs the player nothing but itself.
//
// The lines are those of the headless program; what is no gesture is a comment:
//   # Bogenwerker 1.0.0
//   # Kataloge 3a8e75c1
//   click optRasseElf
//   # Wurf 4
class Journal final : public Observer {
 public:
  static constexpr std::string_view fileName = "Bogenwerker.spiel";

  explicit Journal(Files& files) : files_(files) {}

  // The environment for the wizard: its dice are written down, or fall as they once fell; it is silent while gestures
  // are played back. This must outlive the wizard.
  [[nodiscard]] Environment around(Environment environment);

  // To be called once the wizard has started. Asks, if an earlier run has left gestures, and plays them back if the
  // player wants to go on; a message tells how far that came if it did not come to the end.
  void resume(Wizard& wizard, const std::function<bool()>& wantsToGoOn);
  // From now on every gesture is written down. Calls tellLost once at the first passage to another form after the file
  // could no longer be written, with a sentence for the player.
  void record(FormsRuntime& runtime, std::function<void(std::string_view)> tellLost);

  // True while a run that ends here could be resumed.
  [[nodiscard]] bool isKept() const { return runtime_ != nullptr && !isLost_; }
  // Stops recording and leaves the file for another run.
  void interrupt();

 private:
  void gestureEnded(const Gesture& gesture, Outcome outcome) override;
  int throwDie();
  std::string playBack(Wizard& wizard, std::string_view lines);
  bool playLine(FormsRuntime& runtime, const std::string& line);
  void write(std::string_view lines);
  template <class Action>
  void orLose(Action action);
  void forget();

  Files& files_;
  std::function<int()> die_;
  std::function<void(Message, std::string_view)> tell_;
  std::function<void(std::string_view)> tellLost_;
  FormsRuntime* runtime_ = nullptr;
  const Form* visible_ = nullptr;  // after the last gesture
  bool isPlaying_ = false;
  bool isOff_ = false;               // there is a file that cannot be read: it is left alone
  bool isLost_ = false;              // it could not be written
  std::deque<int> thrown_;           // read from the file, and not yet used by any gesture
  std::string pending_;              // throws that wait for their gesture
  std::string kept_;                 // what the file will begin with
  std::optional<GrowingFile> file_;  // from the first gesture on, and until then another run's is left as it is
};

}  // namespace bogenwerker
