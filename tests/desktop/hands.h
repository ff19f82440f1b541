// A player's hands on real windows, by mouse or by keyboard alone.
#pragma once

#include <gtest/gtest.h>

#include <QTest>
#include <QtWidgets>
#include <array>

#include "../world.h"
#include "desktop/desktop.h"
#include "desktop/text.h"

namespace bogenwerker {

inline constexpr std::array forms = {"formPrioritäten",       "formAttributmonitor", "formAktionFertigkeit",
                                     "formWissensfertigkeit", "formAusrüstung",      "formNamenGeben",
                                     "formFeinschliff"};

inline Look& look() { return static_cast<Look&>(*QApplication::style()); }

inline FormWindow& shownWindow() {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (auto* window = dynamic_cast<FormWindow*>(widget); window != nullptr && window->isVisible()) return *window;
  }
  throw std::logic_error("no window");
}

template <class Widget = QWidget>
Widget& shown(std::string_view control) {
  auto* widget = shownWindow().findChild<Widget*>(toQt(control));
  return widget != nullptr ? *widget : throw std::logic_error("no such control: " + std::string(control));
}

inline std::string scriptOf(const std::string& name) {
  return fileBytes(SOURCE_DIR "/examples/" + name + "/gestures.txt");
}

inline void comeToRest() {
  int rounds = 0;
  while (QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents)) ASSERT_LT(++rounds, 100);
}

// A world on the screen, from the start on.
struct Screen : private Observer {
  explicit Screen(std::string_view until = forms.front(), const char* example = "zauberin")
      : script(scriptOf(example)) {
    EXPECT_TRUE(world.wizard.start());
    desktop.show(world.wizard.runtime());
    playUntil(until);
    world.wizard.runtime().attach(*this);
  }
  ~Screen() override {
    desktop.zoomTo(100);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  // By gestures of the model, window after window.
  void playUntil(std::string_view form) {
    for (; this->form().name() != form; script.erase(0, script.find('\n') + 1)) {
      world.play(script.substr(0, script.find('\n')));
    }
    comeToRest();
  }
  void gestureEnded(const Gesture& gesture, Outcome /*outcome*/) override { heard.push_back(lineOf(gesture)); }
  [[nodiscard]] Form& form() { return *world.wizard.runtime().visibleForm(); }

  World world;
  std::string script;
  std::vector<std::string> heard;  // every gesture of the windows that reached a control
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

// Looks at the next message box from within, and answers it by a button, if any.
inline void whenBoxOpens(const QString& button, const std::function<void(QMessageBox&)>& check = {}) {
  const auto open = [button, check] {
    QApplication::processEvents();  // until it has the focus
    auto& box = dynamic_cast<QMessageBox&>(*QApplication::activeModalWidget());
    if (check) check(box);
    for (auto* each : box.buttons()) {
      if (each->text() == button) each->click();
    }
  };
  QMetaObject::invokeMethod(qApp, open, Qt::QueuedConnection);
}

// At least once, since a text is selected on arrival. A group of options is one stop.
inline void tabTo(QWidget& control) {
  const QObject* group = control.inherits("QRadioButton") ? control.parent() : &control;
  for (int presses = 0; presses < 60; ++presses) {
    key(Qt::Key_Tab);
    if (const auto* focus = QApplication::focusWidget(); focus == &control || focus->parent() == group) return;
  }
  ADD_FAILURE() << "Tab does not reach " << fromQt(control.objectName());
}

using Hands = void (*)(QWidget& control, const Gesture& gesture);

// A gesture as keys alone. What is picked is typed whole.
inline void byKeyboard(QWidget& control, const Gesture& gesture) {
  keep("window", control.window()->windowTitle());
  (void)QTest::qWaitForWindowActive(control.window(), 200);  // some systems take their time
  const auto focus = [] { return QApplication::focusWidget(); };
  if (gesture.verb != Gesture::Verb::click || focus() != &control) tabTo(control);
  for (int presses = 0; control.inherits("QRadioButton") && focus() != &control && presses < 20; ++presses) {
    const QPoint way = control.geometry().center() - focus()->geometry().center();
    if (way.y() != 0) key(way.y() > 0 ? Qt::Key_Down : Qt::Key_Up);
    else key(way.x() > 0 ? Qt::Key_Right : Qt::Key_Left);
  }
  if (auto* list = qobject_cast<QListView*>(&control)) {
    const int line = static_cast<int>(gesture.index);
    while (list->currentIndex().row() != line) key(list->currentIndex().row() < line ? Qt::Key_Down : Qt::Key_Up);
  }
  if (!gesture.text.empty()) typeKeys(toQt(gesture.text));
  if (gesture.verb == Gesture::Verb::pick) key(Qt::Key_Return);
  else if (gesture.verb != Gesture::Verb::type) key(Qt::Key_Space);
  control.window()->activateWindow();  // the offscreen platform does not hand it back when a popup closes
}

inline void clickLine(QAbstractItemView& list, int line) {
  list.scrollTo(list.model()->index(line, 0));
  const QPoint middle = list.visualRect(list.model()->index(line, 0)).center();
  QTest::mouseMove(list.viewport(), middle);
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, middle);
}

// By mouse, but for what is typed: in place of what stands there; a starting text gives way by itself.
inline void byMouse(QWidget& control, const Gesture& gesture) {
  auto* list = qobject_cast<QListView*>(&control);
  if (list != nullptr) return clickLine(*list, static_cast<int>(gesture.index));
  // An option takes clicks only where it shows something, and a box opens at its arrow.
  const int x = gesture.verb == Gesture::Verb::pick ? control.width() - 8 : 8;
  QTest::mouseClick(&control, Qt::LeftButton, {}, {x, control.height() / 2});
  QApplication::processEvents();
  auto* box = qobject_cast<QComboBox*>(&control);
  if (gesture.verb == Gesture::Verb::pick) clickLine(*box->view(), box->findText(toQt(gesture.text)));
  if (gesture.verb != Gesture::Verb::type) return;
  auto* field = box != nullptr ? box->lineEdit() : qobject_cast<QLineEdit*>(&control);
  if (!field->hasSelectedText()) field->selectAll();
  typeKeys(toQt(gesture.text));
}

// Every line of a script, on whatever window is visible by then.
inline void play(const std::string& script, Hands hands = byMouse) {
  for (const std::string& line : splitLines(script)) {
    const auto gesture = parseGesture(line);
    if (!gesture) continue;
    auto& control = shown(gesture->control);
    ASSERT_TRUE(control.isEnabled()) << line;
    hands(control, *gesture);
    comeToRest();
  }
}

}  // namespace bogenwerker
