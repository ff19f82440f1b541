// Forms without a screen: when they are loaded, shown and unloaded, and what a player's gesture sets off.
#pragma once

#include <functional>
#include <string_view>
#include <utility>
#include <vector>

#include "wizard/environment.h"

namespace bogenwerker {

class Control;
class Form;
class FormsRuntime;

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
  [[nodiscard]] Form& form() override { return *this; }
  [[nodiscard]] bool isUsable() const override { return true; }
  [[nodiscard]] const Stretch& stretch() const override { return design_.stretch; }
  // In the order of the control table.
  [[nodiscard]] const std::vector<Control*>& controls() const { return controls_; }

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
  [[nodiscard]] Environment& environment() const;

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

// A front end. It hears what has changed once a gesture is through, never in the middle of one.
class View {
 public:
  virtual ~View() = default;
  virtual void formLoaded(Form& form) = 0;
  // Visibility as the form has it now.
  virtual void formChanged(Form& form) = 0;
  virtual void formUnloaded(Form& form) = 0;
  virtual void controlChanged(Control& control) = 0;
};

// Keeps the loaded forms and carries out the player's gestures: each one wholly, or, if a fault comes in between, not
// at all. It knows no form by name and decides no passage from one to the next.
class FormsRuntime {
 public:
  explicit FormsRuntime(Environment environment) : environment_(std::move(environment)) {}

  [[nodiscard]] Environment& environment() { return environment_; }
  // In the order in which they were made.
  [[nodiscard]] const std::vector<Form*>& forms() const { return forms_; }
  [[nodiscard]] Form* visibleForm() const;
  // True once every form that was loaded is unloaded again.
  [[nodiscard]] bool isOver() const;
  // True until the player has reached any control.
  [[nodiscard]] bool isUntouched() const { return untouched_; }

  // The view hears the whole state at once, and from then on every change. It must outlive the runtime or be detached.
  void attach(View* view);

  // Runs a handler of the acting form. A fault undoes whatever it did, on all forms, and is then shown in the one
  // message box for faults; nothing escapes. A gesture within a gesture is refused.
  void perform(Form& acting, const std::function<void()>& handler);
  // The player closes a window: all forms go, hidden ones too.
  void close();

  // For controls and forms: how to take back the change just made.
  void remember(std::function<void()> undo);
  void markChanged(Control& control);

 private:
  friend class Form;
  void undoAll();
  void publish();

  Environment environment_;
  std::vector<Form*> forms_;
  std::vector<std::function<void()>> undo_;
  std::vector<Control*> changed_;
  View* view_ = nullptr;
  bool performing_ = false;
  bool untouched_ = true;
};

}  // namespace bogenwerker
