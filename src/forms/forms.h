// Forms without a screen: when they are loaded, shown and unloaded, what they hold, and what a player's gesture sets
// off.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "forms/gesture.h"

namespace bogenwerker {

class Control;
class ControlVisitor;
class Form;
class FormsRuntime;

using Handler = std::function<void()>;
using Hint = std::function<std::string()>;

// How a container's grid shares out the room that is left over: a weight a row and a column, counted from 0. Those not
// named take none; where all are missing, whatever can grow does.
struct Stretch {
  std::vector<int> rows{};
  std::vector<int> columns{};
};

// What holds controls: a form, a frame, a picture box.
class Container {
 public:
  Container(const Container&) = delete;
  Container& operator=(const Container&) = delete;
  virtual ~Container() = default;

  [[nodiscard]] virtual std::string_view name() const = 0;
  [[nodiscard]] virtual Form& form() = 0;
  // False if this or anything around it is disabled.
  [[nodiscard]] virtual bool isUsable() const = 0;
  [[nodiscard]] virtual const Stretch& stretch() const = 0;

 protected:
  Container() = default;
};

struct FormDesign {
  std::string_view caption{};
  // The look of the wizard's forms is the front end's; this one keeps the toolkit's font and opens in the middle.
  bool isDialog = false;
  std::string_view help{};  // the handbook's section about it
  Stretch stretch{};
};

// A form bears its control table: one member a control. It is no window, and holds nothing that only a screen needs.
// Controls live as long as the form object, so that nothing dangles; nobody touches those of a form that is unloaded. A
// form's variables are members of its own and stay readable after the unload.
class Form : public Container {
 public:
  enum class State { notLoaded, hidden, visible, unloaded };

  [[nodiscard]] std::string_view name() const override { return name_; }
  [[nodiscard]] std::string_view caption() const { return design_.caption; }
  [[nodiscard]] bool isDialog() const { return design_.isDialog; }
  [[nodiscard]] std::string_view help() const { return design_.help; }
  [[nodiscard]] Form& form() override { return *this; }
  [[nodiscard]] bool isUsable() const override { return true; }
  [[nodiscard]] const Stretch& stretch() const override { return design_.stretch; }
  // In the order of the control table.
  [[nodiscard]] const std::vector<Control*>& controls() const { return controls_; }
  // Null if the form has none of that name.
  [[nodiscard]] Control* find(std::string_view control) const;

  [[nodiscard]] State state() const { return state_; }
  [[nodiscard]] bool isLoaded() const { return state_ == State::hidden || state_ == State::visible; }
  [[nodiscard]] bool isVisible() const { return state_ == State::visible; }

  // The first touch of the visibility or of a control loads the form and runs Form_Load to its end.
  void setVisible(bool visible);
  void ensureLoaded();
  void unload();

 protected:
  Form(FormsRuntime& runtime, std::string_view name, FormDesign design);
  virtual void Form_Load() {}
  // For the way back after a fault: an action that puts the form's variables to what they are now, and one that makes
  // them those of a form never loaded.
  [[nodiscard]] virtual std::function<void()> rememberVariables() = 0;
  virtual void clearVariables() = 0;

 private:
  friend class Control;
  friend class FormsRuntime;
  void setState(State state);
  void resetControls();

  FormsRuntime& runtime_;
  std::string_view name_;
  FormDesign design_;
  std::vector<Control*> controls_;
  State state_ = State::notLoaded;
  State published_ = State::notLoaded;
  bool isFresh_ = false;  // loaded within the gesture that is being carried out
};

// A form whose variables are the members of one struct, so that they can be remembered and put back as a whole.
template <class Variables>
class FormWith : public Form, public Variables {
 protected:
  using Form::Form;
  std::function<void()> rememberVariables() override {
    return [this, kept = static_cast<const Variables&>(*this)] { static_cast<Variables&>(*this) = kept; };
  }
  void clearVariables() override { static_cast<Variables&>(*this) = Variables{}; }
};

// Whoever wants to know what a gesture came to: a front end, a journal. It hears of it once the gesture is through,
// never in the middle of one.
class Observer {
 public:
  virtual ~Observer() = default;
  virtual void formLoaded(Form& /*form*/) {}
  // Visibility as the form has it now.
  virtual void formChanged(Form& /*form*/) {}
  virtual void formUnloaded(Form& /*form*/) {}
  virtual void controlChanged(Control& /*control*/) {}
  // Every gesture that reached a control, ahead of the changes that it brought.
  virtual void gestureEnded(const Gesture& /*gesture*/, Outcome /*outcome*/) {}
};

// Keeps the loaded forms and carries out the player's gestures: each one wholly, or, if a fault comes in between, not
// at all. It knows no form by name and decides no passage from one to the next.
class FormsRuntime {
 public:
  // Shows the player a whole text about a fault and returns once it is dismissed.
  explicit FormsRuntime(std::function<void(std::string_view)> showFault) : showFault_(std::move(showFault)) {}
  FormsRuntime(const FormsRuntime&) = delete;
  FormsRuntime& operator=(const FormsRuntime&) = delete;

  // In the order in which they were made.
  [[nodiscard]] const std::vector<Form*>& forms() const { return forms_; }
  [[nodiscard]] Form* visibleForm() const;
  // True once every form that was loaded is unloaded again.
  [[nodiscard]] bool isOver() const;
  // True until a gesture has reached any control.
  [[nodiscard]] bool isUntouched() const { return untouched_; }

  // The observer hears the whole state at once, and from then on every change. It must outlive the runtime or be
  // detached.
  void attach(Observer& observer);
  void detach(Observer& observer);

  // Plays a gesture on the visible form.
  Outcome play(const Gesture& gesture);
  // For controls: runs the handler of a gesture that reached them. A fault undoes whatever it did, on all forms, and is
  // then shown; nothing escapes. A gesture within a gesture is refused.
  Outcome perform(const Gesture& gesture, const Handler& handler);
  // Gesture: the player closes a window. All forms go, hidden ones too.
  void close();

  // For controls and forms: how to take back the change just made.
  void remember(std::function<void()> undo);
  void markChanged(Control& control);

 private:
  friend class Form;
  void undoAll();
  void publish();
  void tellEnded(const Gesture& gesture, Outcome outcome);

  std::function<void(std::string_view)> showFault_;
  std::vector<Form*> forms_;
  std::vector<std::function<void()>> undo_;
  std::vector<Control*> changed_;
  std::vector<Observer*> observers_;
  bool performing_ = false;
  bool untouched_ = true;
};

// ---------------------------------------------------------------------------------------------------------------------

// Where a control lies: a cell of its container's grid, counted from 0 at the upper left.
// Control tables write {row, column, rows, columns} without the names, or by name where some are left out.
struct Place {
  int row = 0;
  int column = 0;
  int rows = 1;
  int columns = 1;
  enum class Align { fill, left, right, centre, top, bottom } align = Align::fill;
};

// What all kinds have. Reading or setting any of it loads the form. Setting an equal value is silent.
class Control {
 public:
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  [[nodiscard]] std::string_view name() const { return name_; }
  [[nodiscard]] Container& container() { return in_; }
  [[nodiscard]] Form& form() const { return form_; }
  [[nodiscard]] const Place& place() const { return place_; }
  [[nodiscard]] std::optional<int> tab() const { return tab_; }
  // What a screen reader says where caption and frame do not make it clear; else empty.
  [[nodiscard]] std::string_view spoken() const { return spoken_; }

  // The control's own state, whatever the frames around it are.
  [[nodiscard]] bool isEnabled() const;
  void setEnabled(bool enabled);
  // False if this or a frame around it is disabled.
  [[nodiscard]] bool isUsable() const;

  virtual void accept(ControlVisitor& visitor) = 0;
  // Plays a gesture on this control; unknown for a kind that does not know its verb.
  virtual Outcome play(const Gesture& /*gesture*/) { return Outcome::unknown; }

 protected:
  struct Basics {
    bool enabled;
    std::optional<int> tab;
    Place place;
    std::string_view spoken;
  };
  Control(Container& in, std::string_view name, Basics basics);

  // Puts all state back to the design.
  virtual void reset() { enabled_ = designedEnabled_; }

  // The usual way in which state changes: it loads the form, it can be taken back, and observers hear of it.
  template <class T>
  void change(T& state, T value) {
    form_.ensureLoaded();
    if (state == value) return;
    std::swap(state, value);
    noteChange([&state, before = std::move(value)]() mutable { state = std::move(before); });
  }
  // For changes of another shape. The undo puts the state back and nothing else.
  template <class Undo>
  void noteChange(Undo undo) {
    markChanged();
    if (form_.isFresh_) return;  // its load is taken back as a whole
    form_.runtime_.remember([this, undo = std::move(undo)]() mutable {
      undo();
      markChanged();
    });
  }
  void markChanged() { form_.runtime_.markChanged(*this); }
  void touch() const { form_.ensureLoaded(); }
  // True if a gesture would reach the control.
  [[nodiscard]] bool isWithinReach() const { return form_.isVisible() && isUsable(); }
  // The gesture of that verb on this control runs the action if it reaches it.
  Outcome perform(Gesture gesture, const Handler& action);

 private:
  friend class Form;
  friend class FormsRuntime;

  Container& in_;
  Form& form_;
  std::string_view name_;
  std::string_view spoken_;
  Place place_;
  std::optional<int> tab_;
  bool designedEnabled_;
  bool enabled_;
  bool isMarked_ = false;
};

}  // namespace bogenwerker
