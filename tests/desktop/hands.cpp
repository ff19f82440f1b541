#include "hands.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QListView>
#include <QRadioButton>
#include <QTest>
#include <sstream>

#include "desktop/text.h"
#include "headless/gestures.h"

namespace bogenwerker {

Look& look(double systemPoints) {
  static const QFont system = QApplication::font();
  static Look* shared = nullptr;
  if (shared == nullptr || systemPoints > 0) {
    QFont font = system;
    if (systemPoints > 0) font.setPointSizeF(systemPoints);
    QApplication::setFont(font);
    shared = &Look::dress();
  }
  return *shared;
}

Screen::Screen(std::string_view form, const std::string& script) {
  EXPECT_TRUE(world.wizard.start());
  std::istringstream lines(script);
  for (std::string line; world.wizard.runtime().visibleForm()->name() != form && std::getline(lines, line);) {
    carryOut(world.wizard, line);
  }
  desktop.show(world.wizard.runtime());
  QApplication::processEvents();
}

Screen::~Screen() {
  desktop.zoomTo(100);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

FormWindow& Screen::window() const {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    auto* shown = dynamic_cast<FormWindow*>(window);
    if (shown != nullptr && shown->isVisible()) return *shown;
  }
  throw std::logic_error("no window is visible");
}

QWidget& Screen::widget(std::string_view control) const {
  auto* found = window().findChild<QWidget*>(toQt(control));
  if (found == nullptr) throw std::logic_error("no such control: " + std::string(control));
  return *found;
}

std::string Screen::scriptOf(const std::string& example) {
  return fileBytes(SOURCE_DIR "/examples/" + example + "/gestures.txt");
}

void Hands::play(const Screen& screen, const std::string& script) {
  std::istringstream lines(script);
  for (std::string line; std::getline(lines, line);) {
    if (line.empty() || line.starts_with('#')) continue;
    std::istringstream words(line);
    std::string verb, name, rest;
    words >> verb >> name;
    if (words.get() == ' ') std::getline(words, rest);
    QWidget& control = screen.widget(name);
    ASSERT_TRUE(control.isEnabled()) << line;
    if (verb == "click") click(control);
    else if (verb == "type") type(control, toQt(rest));
    else if (verb == "pick") pick(control, toQt(rest));
    else if (verb == "select") select(control, std::stoi(rest));
    QApplication::processEvents();
    if (testing::Test::HasFatalFailure()) return;
  }
}

void key(int key, Qt::KeyboardModifiers modifiers) {
  QWidget* target = QApplication::activePopupWidget();
  if (target == nullptr) target = QApplication::focusWidget();
  ASSERT_NE(target, nullptr);
  QTest::keyClick(target, static_cast<Qt::Key>(key), modifiers);
}

void typeKeys(const QString& text) {
  for (const QChar character : text) {
    QWidget* target = QApplication::activePopupWidget();
    if (target == nullptr) target = QApplication::focusWidget();
    QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(character));
    QApplication::sendEvent(target, &press);
  }
}

void whenBoxOpens(std::function<void(QMessageBox&)> answer) {
  QMetaObject::invokeMethod(
      qApp,
      [answer = std::move(answer)] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr) ADD_FAILURE() << "no message box";
        else answer(*box);
      },
      Qt::QueuedConnection);
}

// ---------------------------------------------------------------------------------------------------------------------

void MouseHands::click(QWidget& control) {
  // An option takes clicks only where it shows something.
  const bool option = qobject_cast<QRadioButton*>(&control) != nullptr;
  QTest::mouseClick(&control, Qt::LeftButton, {}, option ? QPoint(8, control.height() / 2) : control.rect().center());
}

void MouseHands::type(QWidget& field, const QString& text) {
  QTest::mouseClick(&field, Qt::LeftButton);
  key(Qt::Key_A, Qt::ControlModifier);
  key(Qt::Key_Delete);
  typeKeys(text);
}

void MouseHands::pick(QWidget& box, const QString& entry) {
  auto& combo = dynamic_cast<QComboBox&>(box);
  QTest::mouseClick(&combo, Qt::LeftButton, {}, {combo.width() - 8, combo.height() / 2});
  QApplication::processEvents();
  ASSERT_TRUE(combo.view()->isVisible());
  const QModelIndex line = combo.model()->index(combo.findText(entry), 0);
  combo.view()->scrollTo(line);
  const QPoint point = combo.view()->visualRect(line).center();
  QTest::mouseMove(combo.view()->viewport(), point);
  QTest::mouseClick(combo.view()->viewport(), Qt::LeftButton, {}, point);
}

void MouseHands::select(QWidget& list, int line) {
  auto& view = dynamic_cast<QListView&>(list);
  const QModelIndex index = view.model()->index(line, 0);
  view.scrollTo(index);
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(index).center());
}

// ---------------------------------------------------------------------------------------------------------------------

void KeyboardHands::tabTo(QWidget& control) {
  const auto there = [&control] {
    const QWidget* focus = QApplication::focusWidget();
    const bool sameGroup = qobject_cast<const QRadioButton*>(focus) != nullptr &&
                           qobject_cast<const QRadioButton*>(&control) != nullptr &&
                           focus->parent() == control.parent();
    return focus == &control || sameGroup;
  };
  for (int presses = 0; !there(); ++presses) {
    ASSERT_LT(presses, 60) << "Tab does not reach " << fromQt(control.objectName()) << " but "
                           << fromQt(QApplication::focusWidget()->objectName());
    key(Qt::Key_Tab);
  }
}

void KeyboardHands::click(QWidget& control) {
  tabTo(control);
  for (int presses = 0; QApplication::focusWidget() != &control; ++presses) {
    ASSERT_LT(presses, 20) << "no arrow reaches " << fromQt(control.objectName());
    const QPoint from = QApplication::focusWidget()->geometry().center();
    const QPoint to = control.geometry().center();
    if (from.y() != to.y()) key(from.y() < to.y() ? Qt::Key_Down : Qt::Key_Up);
    else key(from.x() < to.x() ? Qt::Key_Right : Qt::Key_Left);
  }
  key(Qt::Key_Space);
}

void KeyboardHands::type(QWidget& field, const QString& text) {
  tabTo(field);
  key(Qt::Key_A, Qt::ControlModifier);
  key(Qt::Key_Delete);
  typeKeys(text);
}

// Out of the completions, by a part of the name in other letters.
void KeyboardHands::pick(QWidget& box, const QString& entry) {
  tabTo(box);
  key(Qt::Key_A, Qt::ControlModifier);
  typeKeys(entry.mid(1).toLower());
  const auto* completions = qobject_cast<QListView*>(QApplication::activePopupWidget());
  ASSERT_NE(completions, nullptr) << fromQt(entry);
  do key(Qt::Key_Down);
  while (completions->currentIndex().data().toString() != entry && completions->currentIndex().isValid());
  key(Qt::Key_Return);
  // The offscreen platform does not hand the activation back when a popup closes.
  box.window()->activateWindow();
  QApplication::processEvents();
}

void KeyboardHands::select(QWidget& list, int line) {
  auto& view = dynamic_cast<QListView&>(list);
  tabTo(view);
  while (view.currentIndex().row() != line) key(view.currentIndex().row() < line ? Qt::Key_Down : Qt::Key_Up);
  key(Qt::Key_Space);
}

}  // namespace bogenwerker
