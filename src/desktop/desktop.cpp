#include "desktop/desktop.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <algorithm>

#include "desktop/text.h"

namespace bogenwerker {
namespace {

constexpr int zoomStep = 25;

const QString title = QStringLiteral("Bogenwerker");

}  // namespace

void Desktop::show(FormsRuntime& runtime) {
  runtime_ = &runtime;
  runtime.attach(this);
}

void Desktop::formLoaded(Form& form) {
  auto window = std::make_unique<FormWindow>(form, look_);
  window->installEventFilter(this);
  windows_[&form] = std::move(window);
}

void Desktop::formChanged(Form& form) {
  FormWindow& window = *windows_.at(&form);
  if (!form.isVisible()) return window.hide();
  window.fit();
  place(window, form.isDialog());
  window.show();
  window.focusFirst();
  window.activateWindow();
}

// A form unloads within the click of its own button, which therefore has to live a little longer.
void Desktop::formUnloaded(Form& form) {
  FormWindow* window = windows_.at(&form).release();
  windows_.erase(&form);
  window->hide();
  window->deleteLater();
  if (runtime_->isOver()) whenOver_();
}

void Desktop::controlChanged(Control& control) { windows_.at(&control.form())->sync(control); }

// A step appears where the one before it stood; where the first one appears is up to the system. Told
// by the content, since frames are added around a window only once it is seen, and not by every system alike.
void Desktop::place(FormWindow& window, bool inTheMiddle) {
  for (const auto& [form, other] : windows_) {
    if (other->isVisible() && !form->isDialog()) stand_ = other->geometry().topLeft();
  }
  const QRect room = window.screen()->availableGeometry();
  QRect content(stand_.value_or(room.topLeft()), window.size());
  if (inTheMiddle) {
    content.moveCenter(room.center());
  } else {
    if (!stand_) return;
    content.moveRight(std::min(content.right(), room.right()));
    content.moveBottom(std::min(content.bottom(), room.bottom()));
    content.moveLeft(std::max(content.left(), room.left()));
    content.moveTop(std::max(content.top(), room.top()));
  }
  window.setGeometry(content);
}

void Desktop::showMessage(Message kind, std::string_view text) {
  QMessageBox box(kind == Message::fault ? QMessageBox::Warning : QMessageBox::Information, title, toQt(text),
                  QMessageBox::Ok, QApplication::activeWindow());
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

bool Desktop::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Close) {
    event->ignore();
    askToClose(*static_cast<QWidget*>(watched));
    return true;
  }
  if (event->type() == QEvent::KeyPress) {
    const auto* press = static_cast<QKeyEvent*>(event);
    if ((press->modifiers() & Qt::ControlModifier) != 0 && zoomByKey(press->key())) return true;
  }
  return QObject::eventFilter(watched, event);
}

bool Desktop::zoomByKey(int key) {
  switch (key) {
    case Qt::Key_Plus:
    case Qt::Key_Equal: zoomTo(look_.zoom() + zoomStep); return true;
    case Qt::Key_Minus: zoomTo(look_.zoom() - zoomStep); return true;
    case Qt::Key_0: zoomTo(100); return true;
    default: return false;
  }
}

void Desktop::zoomTo(int percent) {
  look_.setZoom(percent);
  for (const auto& [form, window] : windows_) {
    if (form->isVisible()) window->fit();
  }
}

void Desktop::askToClose(QWidget& window) {
  if (!runtime_->isUntouched()) {
    QMessageBox box(QMessageBox::Question, title, QStringLiteral("Charakter verwerfen?"), QMessageBox::NoButton,
                    &window);
    const auto* discard = box.addButton(QStringLiteral("Verwerfen"), QMessageBox::DestructiveRole);
    auto* goOn = box.addButton(QStringLiteral("Weiterspielen"), QMessageBox::RejectRole);
    box.setDefaultButton(goOn);
    box.setEscapeButton(goOn);
    box.exec();
    if (box.clickedButton() != discard) return;
  }
  runtime_->close();
}

}  // namespace bogenwerker
