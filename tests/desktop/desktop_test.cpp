// The wizard in its windows, from the first to the last.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QSet>
#include <QTest>
#include <cerrno>
#include <map>

#include "desktop/text.h"
#include "hands.h"

namespace bogenwerker {
namespace {

// What a run has left in its folder, each file as a fingerprint of its bytes.
std::map<std::string, std::size_t> files() {
  std::map<std::string, std::size_t> prints;
  for (const std::string& name : fileNames()) prints[name] = std::hash<std::string>()(fileBytes(name));
  return prints;
}

std::map<std::string, std::size_t> filesOfTheModelAlone(const std::string& script) {
  World world;
  EXPECT_TRUE(world.wizard.start());
  world.play(script);
  EXPECT_TRUE(world.wizard.runtime().isOver());
  return files();
}

void playWhole(const std::string& example, Hands& hands) {
  const std::string script = Screen::scriptOf(example);
  const auto expected = filesOfTheModelAlone(script);
  Screen screen;
  hands.play(screen, script);
  EXPECT_TRUE(screen.over);
  EXPECT_EQ(screen.world.messages.size(), 1U);
  EXPECT_EQ(files(), expected);
}

TEST(WholeCharacter, byMouse) {
  MouseHands mouse;
  playWhole("zauberin", mouse);
}

TEST(WholeCharacter, byKeyboardAlone) {
  KeyboardHands keyboard;
  playWhole("tuersteher", keyboard);
}

class EveryForm : public testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(Forms, EveryForm,
                         testing::Values("formPrioritäten", "formAttributmonitor", "formAktionFertigkeit",
                                         "formWissensfertigkeit", "formAusrüstung", "formNamenGeben",
                                         "formFeinschliff"),
                         [](const auto& row) {
                           std::string name(row.param + 4);
                           std::erase_if(name, [](char c) { return static_cast<signed char>(c) < 0; });
                           return name;
                         });

TEST_P(EveryForm, closingAsksOnceAndEndsAll) {
  Screen screen(GetParam());
  if (screen.form().name() == "formPrioritäten") {
    MouseHands().click(screen.widget("optRasseElf"));
  }
  FormWindow& window = screen.window();
  whenBoxOpens([](QMessageBox& box) {
    EXPECT_EQ(box.text(), QStringLiteral("Charakter verwerfen?"));
    EXPECT_EQ(box.defaultButton()->text(), QStringLiteral("Weiterspielen"));
    QTest::keyClick(&box, Qt::Key_Escape);
  });
  window.close();
  EXPECT_TRUE(window.isVisible());
  EXPECT_FALSE(screen.over);

  whenBoxOpens([](QMessageBox& box) {
    for (QAbstractButton* button : box.buttons()) {
      if (button->text() == QStringLiteral("Verwerfen")) QTest::mouseClick(button, Qt::LeftButton);
    }
  });
  window.close();
  EXPECT_TRUE(screen.over);
  EXPECT_TRUE(screen.world.wizard.runtime().isOver());
}

TEST(Closing, theUntouchedFirstFormGoesAtOnce) {
  Screen screen;
  screen.window().close();
  EXPECT_TRUE(screen.over);
}

// Whatever takes the focus, in the order of the table; and by the key itself, from the first stop round to the first
// again. A group of options is one stop, and arrows go on inside.
TEST_P(EveryForm, tabGoesThroughTheTable) {
  Screen screen(GetParam());
  std::map<int, QWidget*> table;
  for (const Control* control : screen.form().controls()) {
    QWidget& widget = screen.widget(control->name());
    if (control->tab() && widget.focusPolicy() != Qt::NoFocus) table[*control->tab()] = &widget;
  }
  std::string expected;
  std::string stops;
  QSet<QObject*> groups;
  for (const auto& [tab, widget] : table) {
    expected += fromQt(widget->objectName()) + " ";
    if (!widget->isEnabled()) continue;
    if (qobject_cast<QRadioButton*>(widget) != nullptr && groups.contains(widget->parent())) continue;
    groups.insert(widget->parent());
    stops += fromQt(widget->objectName()) + " ";
  }
  std::string chained;
  QWidget* first = table.begin()->second;
  QWidget* link = first;
  do {
    for (const auto& [tab, widget] : table) {
      if (widget == link) chained += fromQt(link->objectName()) + " ";
    }
    link = link->nextInFocusChain();
  } while (link != first);
  EXPECT_EQ(chained, expected);

  std::string reached;
  const QWidget* start = QApplication::focusWidget();
  do {
    reached += fromQt(QApplication::focusWidget()->objectName()) + " ";
    key(Qt::Key_Tab);
  } while (QApplication::focusWidget() != start && reached.size() < 2000);
  EXPECT_EQ(reached, stops);
}

// A name of its own for whatever takes a gesture, and none that is a bare sign.
TEST_P(EveryForm, namesMakeSenseAlone) {
  Screen screen(GetParam());
  QSet<QString> names;
  for (Control* control : screen.form().controls()) {
    const QWidget& widget = screen.widget(control->name());
    if (widget.focusPolicy() == Qt::NoFocus) continue;
    const QString& name = widget.accessibleName();
    EXPECT_GE(name.size(), 2) << control->name();
    EXPECT_NE(name, QStringLiteral("Hinzufügen!")) << control->name();
    EXPECT_FALSE(names.contains(name)) << fromQt(name);
    names.insert(name);
  }
}

TEST(Windows, aStepAppearsWhereTheLastOneStood) {
  Screen screen("formAusrüstung");
  screen.window().move(40, 30);
  MouseHands mouse;
  mouse.click(screen.widget("cmdGoAhead"));
  QApplication::processEvents();
  const QRect room = screen.window().screen()->availableGeometry();
  EXPECT_LE((screen.window().geometry().center() - room.center()).manhattanLength(), 8);  // the window's frame aside
  EXPECT_EQ(QApplication::focusWidget()->objectName(), QStringLiteral("txtName"));
  EXPECT_EQ(qobject_cast<QLineEdit*>(QApplication::focusWidget())->selectedText(),
            QStringLiteral("Name des Charakters"));
  mouse.click(screen.widget("cmdOkay"));
  EXPECT_EQ(screen.window().pos(), QPoint(40, 30));
}

TEST(Windows, zoomGoesByKeysFromAnyControl) {
  Screen screen("formAusrüstung");
  const QSize before = screen.window().widget()->sizeHint();
  for (const char* control : {"cmbLebensstil", "txtEquipment", "lstAusrüstung", "cmdGoAhead"}) {
    screen.widget(control).setFocus();
    key(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(look().zoom(), 125) << control;
    EXPECT_GT(screen.window().widget()->sizeHint().width(), before.width());
    key(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(screen.window().widget()->sizeHint(), before) << control;
  }
  for (int i = 0; i < 20; ++i) key(Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_EQ(look().zoom(), 75);
}

TEST(Messages, aFaultIsOneBoxAndTheSamePressGoesOn) {
  Screen screen("formFeinschliff");
  World& world = screen.world;
  Desktop& desktop = screen.desktop;
  world.wizard.runtime().environment().showMessage = [&](Message kind, std::string_view text) {
    desktop.showMessage(kind, text);
  };
  QWidget& button = screen.widget("cmdErzeugeHTML");
  world.files.failAt(0, EACCES);
  int boxes = 0;
  whenBoxOpens([&boxes](QMessageBox& box) {
    ++boxes;
    EXPECT_EQ(box.icon(), QMessageBox::Warning);
    EXPECT_TRUE(box.text().contains(QStringLiteral("Prioritäten.txt"))) << fromQt(box.text());
    EXPECT_EQ(box.buttons().size(), 1);
    QTest::keyClick(&box, Qt::Key_Return);
  });
  QTest::mouseClick(&button, Qt::LeftButton);
  EXPECT_EQ(boxes, 1);
  EXPECT_FALSE(screen.over);
  EXPECT_TRUE(button.isVisible());

  world.files.heal();
  whenBoxOpens([&](QMessageBox& box) {
    ++boxes;
    EXPECT_TRUE(box.text().startsWith(QStringLiteral("Fertig!")));
    EXPECT_FALSE(screen.over);
    QTest::keyClick(&box, Qt::Key_Return);
  });
  QTest::mouseClick(&button, Qt::LeftButton);
  EXPECT_EQ(boxes, 2);
  EXPECT_TRUE(screen.over);
}

}  // namespace
}  // namespace bogenwerker
