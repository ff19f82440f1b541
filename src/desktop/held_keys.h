// Keys that are held down.
#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QWidget>

namespace bogenwerker {

// A key that is held repeats, and goes on in whatever window comes next. What it does for good counts once: its repeats
// press no button and dismiss no message, and neither does a key that went down in another window. Watches the whole
// application as long as it lives.
class HeldKeys final : public QObject {
 public:
  HeldKeys();

 private:
  bool eventFilter(QObject* watched, QEvent* event) override;

  struct Down {
    QPointer<QWidget> window;
    quint64 lastSeen = 0;  // milliseconds, of the system's own clock for events
  };
  QHash<int, Down> down_;
};

}  // namespace bogenwerker
