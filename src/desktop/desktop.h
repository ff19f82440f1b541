// The front end on the screen: a window for every loaded form.
#pragma once

#include <QKeyEvent>
#include <QMargins>
#include <QObject>
#include <QRect>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string_view>

#include "desktop/held_keys.h"
#include "desktop/look.h"
#include "desktop/window.h"
#include "forms/forms.h"
#include "outside/environment.h"
#include "wizard/journal.h"

namespace bogenwerker {

// Shows what the model says and asks before a character is thrown away. It knows no form by name and decides nothing
// about the way through them.
class Desktop final : public QObject, public Observer {
 public:
  // Calls whenOver after the last form is gone.
  Desktop(Look& look, std::function<void()> whenOver);

  // Shows all that is loaded, and from then on whatever changes. Of the two, this must not be the first to go while
  // the runtime still carries out gestures.
  // With a journal the player may also interrupt the character and go on another day.
  void show(FormsRuntime& runtime, Journal* journal = nullptr);
  // The question ahead of the first window: whether the interrupted character is to go on.
  [[nodiscard]] static bool wantsToGoOn();
  // A sentence for the next form that is shown.
  void tellOnNextForm(std::string_view text);
  // For Environment: a message box with a single OK button. Returns once it is dismissed.
  void showMessage(Message kind, std::string_view text);
  // Whether to begin all the same, ahead of the first form.
  [[nodiscard]] bool askToBegin(std::string_view text);
  // In percent; every window is made to fit, and placed, anew.
  void zoomTo(int percent);

 private:
  void formLoaded(Form& form) override;
  void formChanged(Form& form) override;
  void formUnloaded(Form& form) override;
  void controlChanged(Control& control) override;

  bool eventFilter(QObject* watched, QEvent* event) override;
  [[nodiscard]] bool helpByKey(const QKeyEvent& press) const;
  bool lookByKey(const QKeyEvent& press);
  void interrupt();
  void askToClose(QWidget& window);
  void place(FormWindow& window, bool inTheMiddle);
  void lookAround();

  Look& look_;
  std::function<void()> whenOver_;
  FormsRuntime* runtime_ = nullptr;
  Journal* journal_ = nullptr;
  QString notice_;
  std::map<const Form*, std::unique_ptr<FormWindow>> windows_;
  HeldKeys heldKeys_;
  // As the player had the last step, told by the content.
  std::optional<QRect> stand_;
  bool maximised_ = false;
  QMargins frame_;  // what the system puts around a window
};

}  // namespace bogenwerker
