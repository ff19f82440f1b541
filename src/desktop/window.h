// The window of one form.
#pragma once

#include <QHash>
#include <QScrollArea>
#include <functional>

#include "desktop/look.h"
#include "forms/controls.h"

namespace bogenwerker {

// A control on the screen: its widget, and what was made together with it.
struct ShownControl {
  QWidget* widget = nullptr;
  std::function<void()> sync{};            // makes the widget what the control is now
  std::function<void(const Look&)> fit{};  // what in it follows the zoom and is not the toolkit's to know, if anything
  const Container* container = nullptr;    // what the control is as a container, if it is one
};

// Built from the form's control table, in which everything stands that tells one form from another. A widget bears its
// control's name. It is no place for rules: whether a gesture has an effect is for the control to say.
class FormWindow final : public QScrollArea {
 public:
  // The form must be loaded, and the look must outlive the window.
  FormWindow(Form& form, const Look& look);
  ~FormWindow() override;

  void sync(const Control& control);
  // Ahead of every show and at every zoom: fonts and sizes as the look has them now. Gives back the size that the
  // content asks for, but no larger than the room; scroll bars come where that is too small.
  [[nodiscard]] QSize fit(QSize room);
  // The first control in the tab order that takes the focus.
  void focusFirst();
  // For the keyboard, what the pointer is told: why the button with the focus would come to nothing, or else why the
  // grey ones are grey.
  void showHints();
  // A sentence below the content, and as the status tip.
  void setNotice(const QString& text);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void chainTabs();
  void limitSize();
  [[nodiscard]] QSize inRoom(QSize content) const;
  void showFocus();

  Form& form_;
  const Look& look_;
  QWidget* content_ = new QWidget;
  QHash<const Control*, ShownControl> shown_;
  QSize room_;
};

}  // namespace bogenwerker
