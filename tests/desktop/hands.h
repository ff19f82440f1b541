// A player's hands on real windows, by mouse or by keyboard alone.
#pragma once

#include <gtest/gtest.h>

#include <QTest>
#include <QtWidgets>
#include <array>

#include "desktop/desktop.h"
#include "desktop/text.h"
#include "world.h"

namespace bogenwerker {

// Side by side, in pixels. The first one is large enough for every window at any zoom.
inline constexpr std::array<std::pair<int, int>, 5> screens = {
    {{4200, 3000}, {1366, 768}, {1280, 720}, {1024, 768}, {1920, 1080}}};
inline constexpr std::array forms = {"formPrioritäten",       "formAttributmonitor", "formAktionFertigkeit",
                                     "formWissensfertigkeit", "formAusrüstung",      "formNamenGeben",
                                     "formFeinschliff"};

inline Look& look() {
  static Look& shared = Look::dress();
  return shared;
}

inline FormWindow& shownWindow() {
  const auto windows = QApplication::topLevelWidgets();
  return *dynamic_cast<FormWindow*>(*std::find_if(windows.begin(), windows.end(), [](QWidget* window) {
    return dynamic_cast<FormWindow*>(window) != nullptr && window->isVisible();
  }));
}

inline QWidget& shownWidget(std::string_view control) {
  auto* widget = shownWindow().findChild<QWidget*>(toQt(control));
  return widget != nullptr ? *widget : throw std::logic_error("no such control: " + std::string(control));
}

// A world on the screen, from the start on.
struct Screen {
  static std::string scriptOf(const std::string& name) {
    return fileBytes(SOURCE_DIR "/examples/" + name + "/gestures.txt");
  }
  explicit Screen(std::string_view until = forms.front(), std::string gestures = scriptOf("zauberin"),
                  NumberLocale numbers = {",", "."})
      : world(std::move(numbers)), script(std::move(gestures)) {
    EXPECT_TRUE(world.wizard.start());
    desktop.show(world.wizard.runtime());
    playUntil(until);
  }
  ~Screen() {
    desktop.zoomTo(100);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  // By gestures of the model, window after window.
  void playUntil(std::string_view form) {
    for (; this->form().name() != form; script.erase(0, script.find('\n') + 1)) {
      const auto gesture = parseGesture(script.substr(0, script.find('\n')));
      if (gesture) world.wizard.runtime().play(*gesture);
    }
    QApplication::processEvents();
  }
  [[nodiscard]] Form& form() { return *world.wizard.runtime().visibleForm(); }

  World world;
  std::string script;
  bool over = false;
  Desktop desktop{look(), [this] { over = true; }};
};

// Whatever has the keyboard: an open popup, else the focus.
inline QWidget& keyboardFocus() {
  QWidget* popup = QApplication::activePopupWidget();
  return popup != nullptr ? *popup : *QApplication::focusWidget();
}
inline void sendKey(QEvent::Type type, int key, const QString& text = {}, bool repeats = false) {
  QKeyEvent event(type, key, Qt::NoModifier, text, repeats);
  QApplication::sendEvent(&keyboardFocus(), &event);
}
// Written down for a session with a real keyboard.
inline void keep(const char* verb, const QString& what) {
  static QFile file(qEnvironmentVariable("BOGENWERKER_KEYS"));
  if (file.fileName().isEmpty() || (!file.isOpen() && !file.open(QFile::WriteOnly))) return;
  file.write(verb + (' ' + what + '\n').toUtf8());
}
inline void key(int key, Qt::KeyboardModifiers modifiers = {}) {
  keep("key", QKeySequence(QKeyCombination(modifiers, static_cast<Qt::Key>(key))).toString());
  QTest::keyClick(&keyboardFocus(), static_cast<Qt::Key>(key), modifiers);
}
inline void typeKeys(const QString& text) {
  keep("type", text);
  for (const QChar character : text) sendKey(QEvent::KeyPress, 0, QString(character));
}
// As the system tells of a key that is held, and not let go of yet.
inline void holdKey(int key) {
  sendKey(QEvent::KeyPress, key);
  for (int i = 0; i < 20; ++i) {
    QApplication::processEvents();
    sendKey(QEvent::KeyRelease, key, {}, true);
    sendKey(QEvent::KeyPress, key, {}, true);
  }
}

// Answers the next message box from within.
inline void whenBoxOpens(std::function<void(QMessageBox&)> answer) {
  const auto open = [answer = std::move(answer)] {
    QApplication::processEvents();  // until it has the focus
    answer(dynamic_cast<QMessageBox&>(*QApplication::activeModalWidget()));
  };
  QMetaObject::invokeMethod(qApp, open, Qt::QueuedConnection);
}

struct Hands {
  // Every line of the script, on whatever window is visible by then.
  void play(const std::string& script) const {
    for (const std::string& line : splitLines(script)) {
      const auto gesture = parseGesture(line);
      if (!gesture) continue;
      QWidget& control = shownWidget(gesture->control);
      ASSERT_TRUE(control.isEnabled()) << line;
      if (!mouse) keep("window", control.window()->windowTitle());
      if (gesture->verb == Gesture::Verb::click) click(control);
      if (gesture->verb == Gesture::Verb::type) type(control, toQt(gesture->text));
      if (gesture->verb == Gesture::Verb::pick) pick(control, toQt(gesture->text));
      if (gesture->verb == Gesture::Verb::select) select(control, static_cast<int>(gesture->index));
      QApplication::processEvents();
    }
  }
  void click(QWidget& control) const {
    const QPoint middle = control.rect().center();  // an option takes clicks only where it shows something
    const QPoint point(control.inherits("QRadioButton") ? 8 : middle.x(), middle.y());
    if (mouse) return QTest::mouseClick(&control, Qt::LeftButton, {}, point);
    if (QApplication::focusWidget() != &control) tabTo(control);
    for (int presses = 0; QApplication::focusWidget() != &control && presses < 20; ++presses) {
      const QPoint way = control.geometry().center() - QApplication::focusWidget()->geometry().center();
      if (way.y() != 0) key(way.y() > 0 ? Qt::Key_Down : Qt::Key_Up);
      else key(way.x() > 0 ? Qt::Key_Right : Qt::Key_Left);
    }
    key(Qt::Key_Space);
  }
  // In place of what stands there: a starting text gives way; the mouse marks any other by a triple click.
  void type(QWidget& field, const QString& text) const {
    if (!mouse) tabTo(field);
    else QTest::mouseClick(&field, Qt::LeftButton);
    if (mouse && !dynamic_cast<QLineEdit&>(field).hasSelectedText()) {
      QTest::mouseDClick(&field, Qt::LeftButton);
      QTest::mouseClick(&field, Qt::LeftButton);
    }
    typeKeys(text);
  }
  // By keyboard out of the completions, by a part of the name in other letters.
  void pick(QWidget& box, const QString& entry) const {
    auto& combo = dynamic_cast<QComboBox&>(box);
    if (mouse) {
      QTest::mouseClick(&combo, Qt::LeftButton, {}, {combo.width() - 8, combo.height() / 2});
      QApplication::processEvents();
      return select(*combo.view(), combo.findText(entry));
    }
    tabTo(box);
    typeKeys(entry.mid(1).toLower());
    const auto& completions = dynamic_cast<QListView&>(*QApplication::activePopupWidget());
    while (completions.model()->rowCount() > 1 && completions.currentIndex().data().toString() != entry) {
      key(Qt::Key_Down);
      ASSERT_TRUE(completions.currentIndex().isValid()) << fromQt(entry);
    }
    key(Qt::Key_Return);
    box.window()->activateWindow();  // the offscreen platform does not hand it back when a popup closes
    QApplication::processEvents();
  }
  void select(QWidget& list, int line) const {
    auto& view = dynamic_cast<QAbstractItemView&>(list);
    if (!mouse) {
      tabTo(view);
      while (view.currentIndex().row() != line) key(view.currentIndex().row() < line ? Qt::Key_Down : Qt::Key_Up);
      return key(Qt::Key_Space);
    }
    view.scrollTo(view.model()->index(line, 0));
    const QPoint middle = view.visualRect(view.model()->index(line, 0)).center();
    QTest::mouseMove(view.viewport(), middle);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, middle);
  }
  // At least once, since a text is selected on arrival. A group of options is one stop.
  static void tabTo(QWidget& control) {
    const auto isThere = [&control](const QWidget* focus) {
      const bool options = focus->inherits("QRadioButton") && control.inherits("QRadioButton");
      return focus == &control || (options && focus->parent() == control.parent());
    };
    int presses = 0;
    do key(Qt::Key_Tab);
    while (!isThere(QApplication::focusWidget()) && ++presses < 60);
    ASSERT_LT(presses, 60) << "Tab does not reach " << fromQt(control.objectName());
  }
  bool mouse;
};
inline constexpr Hands mouse{true};
inline constexpr Hands keyboard{false};

}  // namespace bogenwerker
