#include "desktop/held_keys.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>

namespace bogenwerker {
namespace {

// A release may get lost while one window gives way to another. A key that was not seen for longer than any keyboard
// waits ahead of its first repeat was let go.
constexpr quint64 longestSilence = 1000;

bool actsAnywhere(int key) { return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Escape; }

}  // namespace

HeldKeys::HeldKeys() { QApplication::instance()->installEventFilter(this); }

bool HeldKeys::eventFilter(QObject* watched, QEvent* event) {
  const bool press = event->type() == QEvent::KeyPress;
  if (!watched->isWidgetType() || (!press && event->type() != QEvent::KeyRelease)) return false;
  const auto& key = *static_cast<QKeyEvent*>(event);
  if (!actsAnywhere(key.key()) && key.key() != Qt::Key_Space) return false;
  if (!press) {
    if (!key.isAutoRepeat()) down_.remove(key.key());
    return false;
  }
  auto* widget = static_cast<QWidget*>(watched);
  const auto before = down_.constFind(key.key());
  const bool elsewhere = before != down_.cend() && before->window != widget->window() &&
                         key.timestamp() - before->lastSeen < longestSilence;
  down_[key.key()] = {elsewhere ? before->window.data() : widget->window(), key.timestamp()};
  if (!key.isAutoRepeat() && !elsewhere) return false;
  // A blank that is held goes on into a text.
  return actsAnywhere(key.key()) || qobject_cast<QAbstractButton*>(widget) != nullptr;
}

}  // namespace bogenwerker
