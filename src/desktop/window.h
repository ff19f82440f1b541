// The window of one form.
#pragma once

#include <QHash>
#include <QScrollArea>

#include "desktop/look.h"
#include "wizard/controls.h"

namespace bogenwerker {

// Built from the form's control table, in which everything stands that tells one form from another. A widget bears its
// control's name. It is no place for rules: whether a gesture has an effect is for the control to say.
class FormWindow final : public QScrollArea {
 public:
  // The form must be loaded, and the look must outlive the window.
  FormWindow(Form& form, const Look& look);

  void sync(Control& control);
  // Ahead of every show and at every zoom: fonts and sizes as the look has them now, and the window as large as its
  // content asks, but no larger than the screen; scroll bars come where that is too small.
  void fit();
  // The first control in the tab order that takes the focus.
  void focusFirst();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void chainTabs();
  void limitSize();

  Form& form_;
  const Look& look_;
  QHash<const Control*, QWidget*> widgets_;
};

}  // namespace bogenwerker
