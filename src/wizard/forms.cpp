#include "wizard/forms.h"

#include <algorithm>
#include <cassert>

#include "wizard/controls.h"
#include "wizard/fault.h"

namespace bogenwerker {

Form::Form(FormsRuntime& runtime, std::string_view name, FormDesign design)
    : runtime_(runtime), name_(name), design_(std::move(design)) {
  runtime.forms_.push_back(this);
}

Environment& Form::environment() const { return runtime_.environment(); }

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

void FormsRuntime::attach(View* view) {
  view_ = view;
  for (Form* form : forms_) form->published_ = Form::State::notLoaded;
  publish();
}

void FormsRuntime::perform(Form& acting, const std::function<void()>& handler) {
  if (performing_) return;
  performing_ = true;
  const std::function<void()> restoreVariables = acting.rememberVariables();
  std::string fault;
  try {
    handler();
    untouched_ = false;
  } catch (const Fault& caught) {
    fault = caught.what();
    undoAll();
    restoreVariables();
  }
  undo_.clear();
  for (Form* form : forms_) form->isFresh_ = false;
  publish();
  if (!fault.empty()) {
    environment_.showMessage(Message::fault,
                             fault +
                                 "\n\nEs ist nichts verloren: Alles steht wie vor dem letzten Druck. Ist die Ursache "
                                 "behoben, drücken Sie einfach noch einmal.");
  }
  performing_ = false;
}

void FormsRuntime::close() {
  for (Form* form : forms_) {
    if (form->isLoaded()) form->unload();
  }
  undo_.clear();
  if (!performing_) publish();
}

void FormsRuntime::remember(std::function<void()> undo) {
  if (performing_) undo_.push_back(std::move(undo));
}

void FormsRuntime::markChanged(Control& control) {
  if (view_ != nullptr && !control.isMarked_) {
    control.isMarked_ = true;
    changed_.push_back(&control);
  }
}

void FormsRuntime::undoAll() {
  while (!undo_.empty()) {
    undo_.back()();
    undo_.pop_back();
  }
}

// Windows that appear come before windows that go, so that the screen is never empty in between.
void FormsRuntime::publish() {
  if (view_ == nullptr) return;
  std::vector<Form*> gone;
  for (Form* form : forms_) {
    const bool known = form->published_ == Form::State::hidden || form->published_ == Form::State::visible;
    if (!known && form->isLoaded()) view_->formLoaded(*form);
    if (known && !form->isLoaded()) gone.push_back(form);
  }
  for (Control* control : std::exchange(changed_, {})) {
    control->isMarked_ = false;
    if (control->form().isLoaded()) view_->controlChanged(*control);
  }
  for (const Form::State now : {Form::State::visible, Form::State::hidden}) {
    for (Form* form : forms_) {
      if (form->state_ == now && form->published_ != now) view_->formChanged(*form);
    }
  }
  for (Form* form : gone) view_->formUnloaded(*form);
  for (Form* form : forms_) form->published_ = form->state_;
}

}  // namespace bogenwerker
