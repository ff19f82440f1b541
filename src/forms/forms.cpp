#include "forms/forms.h"

#include <algorithm>
#include <cassert>
#include <new>

#include "values/fault.h"

namespace bogenwerker {

Form::Form(FormsRuntime& runtime, std::string_view name, FormDesign design)
    : runtime_(runtime), name_(name), design_(std::move(design)) {
  runtime.forms_.push_back(this);
}

Control* Form::find(std::string_view control) const {
  const auto found =
      std::find_if(controls_.begin(), controls_.end(), [control](const Control* c) { return c->name() == control; });
  return found == controls_.end() ? nullptr : *found;
}

void Form::setState(State state) {
  if (state == state_) return;
  runtime_.remember([this, before = state_] { state_ = before; });
  state_ = state;
}

void Form::ensureLoaded() {
  assert(state_ != State::unloaded && "a step that was left is gone");
  if (state_ != State::notLoaded) return;
  runtime_.remember([this] {
    resetControls();
    clearVariables();
    isFresh_ = false;
  });
  isFresh_ = runtime_.performing_;
  setState(State::hidden);
  Form_Load();
}

void Form::setVisible(bool visible) {
  ensureLoaded();
  setState(visible ? State::visible : State::hidden);
}

// The controls keep what they hold, since nobody can look at them any more: whoever touches one would load the form.
void Form::unload() { setState(State::unloaded); }

void Form::resetControls() {
  for (Control* control : controls_) control->reset();
}

Form* FormsRuntime::visibleForm() const {
  const auto found = std::find_if(forms_.begin(), forms_.end(), [](const Form* form) { return form->isVisible(); });
  return found == forms_.end() ? nullptr : *found;
}

bool FormsRuntime::isOver() const {
  const auto is = [this](auto test) { return std::any_of(forms_.begin(), forms_.end(), test); };
  return is([](const Form* form) { return form->state() == Form::State::unloaded; }) &&
         !is([](const Form* form) { return form->isLoaded(); });
}

void FormsRuntime::attach(Observer& observer) {
  publish();
  observers_.push_back(&observer);
  for (Form* form : forms_) {
    if (!form->isLoaded()) continue;
    observer.formLoaded(*form);
    observer.formChanged(*form);
  }
}

void FormsRuntime::detach(Observer& observer) { std::erase(observers_, &observer); }

Outcome FormsRuntime::play(const Gesture& gesture) {
  const Form* form = visibleForm();
  if (form == nullptr) return Outcome::unknown;
  if (gesture.verb == Gesture::Verb::close) {
    close();
    return Outcome::through;
  }
  Control* control = form->find(gesture.control);
  return control == nullptr ? Outcome::unknown : control->play(gesture);
}

Outcome FormsRuntime::perform(const Gesture& gesture, const Handler& handler) {
  if (performing_) return Outcome::refused;
  performing_ = true;
  std::vector<std::function<void()>> variables;
  for (Form* form : forms_) {
    if (form->isLoaded()) variables.push_back(form->rememberVariables());
  }
  std::string fault;
  bool canPressAgain = true;
  try {
    if (handler) handler();
    untouched_ = false;
  } catch (const Fault& caught) {
    fault = caught.what();
    canPressAgain = caught.remedy() == Fault::Remedy::pressAgain;
  } catch (const std::bad_alloc&) {
    fault = "Der Arbeitsspeicher reicht dafür nicht. Schließen Sie andere Programme.";
  }
  if (!fault.empty()) {
    undoAll();
    for (const auto& restore : variables) restore();
  }
  undo_.clear();
  for (Form* form : forms_) form->isFresh_ = false;
  const Outcome outcome = fault.empty() ? Outcome::through : Outcome::takenBack;
  tellEnded(gesture, outcome);
  publish();
  if (canPressAgain && !fault.empty()) {
    fault +=
        "\n\nEs ist nichts verloren: Alles steht wie vor dem letzten Druck. Ist die Ursache behoben, drücken Sie "
        "einfach noch einmal.";
  }
  if (!fault.empty()) showFault_(fault);
  performing_ = false;
  return outcome;
}

void FormsRuntime::close() {
  for (Form* form : forms_) {
    if (form->isLoaded()) form->unload();
  }
  undo_.clear();
  tellEnded({.verb = Gesture::Verb::close}, Outcome::through);
  if (!performing_) publish();
}

void FormsRuntime::remember(std::function<void()> undo) {
  if (performing_) undo_.push_back(std::move(undo));
}

void FormsRuntime::markChanged(Control& control) {
  if (observers_.empty() || control.isMarked_) return;
  control.isMarked_ = true;
  changed_.push_back(&control);
}

void FormsRuntime::undoAll() {
  while (!undo_.empty()) {
    undo_.back()();
    undo_.pop_back();
  }
}

void FormsRuntime::tellEnded(const Gesture& gesture, Outcome outcome) {
  for (Observer* observer : observers_) observer->gestureEnded(gesture, outcome);
}

// Windows that appear come before windows that go, so that the screen is never empty in between.
void FormsRuntime::publish() {
  const auto tell = [this](auto what, auto& whom) {
    for (Observer* observer : observers_) (observer->*what)(whom);
  };
  std::vector<Form*> gone;
  for (Form* form : forms_) {
    const bool known = form->published_ == Form::State::hidden || form->published_ == Form::State::visible;
    if (!known && form->isLoaded()) tell(&Observer::formLoaded, *form);
    if (known && !form->isLoaded()) gone.push_back(form);
  }
  for (Control* control : std::exchange(changed_, {})) {
    control->isMarked_ = false;
    if (control->form().isLoaded()) tell(&Observer::controlChanged, *control);
  }
  for (const Form::State now : {Form::State::visible, Form::State::hidden}) {
    for (Form* form : forms_) {
      if (form->state_ == now && form->published_ != now) tell(&Observer::formChanged, *form);
    }
  }
  for (Form* form : gone) tell(&Observer::formUnloaded, *form);
  for (Form* form : forms_) form->published_ = form->state_;
}

// ---------------------------------------------------------------------------------------------------------------------

Control::Control(Container& in, std::string_view name, Basics basics)
    : in_(in),
      form_(in.form()),
      name_(name),
      spoken_(basics.spoken),
      place_(basics.place),
      tab_(basics.tab),
      designedEnabled_(basics.enabled),
      enabled_(basics.enabled) {
  form_.controls_.push_back(this);
}

bool Control::isEnabled() const {
  touch();
  return enabled_;
}

void Control::setEnabled(bool enabled) { change(enabled_, enabled); }

bool Control::isUsable() const { return isEnabled() && in_.isUsable(); }

Outcome Control::perform(Gesture gesture, const Handler& action) {
  if (!isWithinReach()) return Outcome::refused;
  gesture.control = name_;
  return form_.runtime_.perform(gesture, action);
}

}  // namespace bogenwerker
