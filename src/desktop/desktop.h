// The front end on the screen: a window for every loaded form.
#pragma once

#include <QObject>
#include <QPoint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string_view>

#include "desktop/look.h"
#include "desktop/window.h"
#include "wizard/environment.h"
#include "wizard/forms.h"

namespace bogenwerker {

// Shows what the model says and asks before a character is thrown away. It knows no form by name and decides nothing
// about the way through them.
class Desktop final : public QObject, public View {
 public:
  // Calls whenOver after the last form is gone.
  Desktop(Look& look, std::function<void()> whenOver) : look_(look), whenOver_(std::move(whenOver)) {}

  // Shows all that is loaded, and from then on whatever changes. Of the two, this must not be the first to go while
  // the runtime still carries out gestures.
  void show(FormsRuntime& runtime);
  // For Environment: a message box with a single OK button. Returns once it is dismissed.
  void showMessage(Message kind, std::string_view text);
  // In percent; every window is made to fit anew.
  void zoomTo(int percent);

 private:
  void formLoaded(Form& form) override;
  void formChanged(Form& form) override;
  void formUnloaded(Form& form) override;
  void controlChanged(Control& control) override;

  bool eventFilter(QObject* watched, QEvent* event) override;
  bool zoomByKey(int key);
  void askToClose(QWidget& window);
  void place(FormWindow& window, bool inTheMiddle);

  Look& look_;
  std::function<void()> whenOver_;
  FormsRuntime* runtime_ = nullptr;
  std::map<const Form*, std::unique_ptr<FormWindow>> windows_;
  std::optional<QPoint> stand_;  // where the player had the last step
};

}  // namespace bogenwerker
