// Each kind of widget against a control of the model, on a form made for the purpose.
#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QCompleter>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

#include "desktop/desktop.h"
#include "desktop/fields.h"
#include "desktop/text.h"
#include "hands.h"

namespace bogenwerker {
namespace {

struct SampleVariables {
  int picks = 0;
  int clicks = 0;
  int changes = 0;
};

class Sample final : public FormWith<SampleVariables> {
 public:
  explicit Sample(FormsRuntime& runtime) : FormWith(runtime, "sample", {.caption = "Probe"}) {}

  // clang-format off
  ComboBox      box   {*this, "box",    {.text = "Wähle & staune", .tab = 0, .at = {.row = 0}, .spoken = "Auswahl", .click = [this] { ++picks; }}};
  TextBox       text  {*this, "text",   {.text = "Anfang", .tab = 1, .at = {.row = 1}, .spoken = "Text", .change = [this] { ++changes; }}};
  ListBox       list  {*this, "list",   {.tab = 2, .at = {.row = 2}, .spoken = "Liste", .click = [this] { ++clicks; }}};
  Frame         group {*this, "group",  {.caption = "Gruppe", .at = {.row = 3}}};
  OptionButton  one   {group, "one",    {.caption = "Salz & Pfeffer", .tab = 3, .at = {.row = 0}, .click = [this] { ++clicks; }}};
  OptionButton  two   {group, "two",    {.caption = "Zwei", .tab = 4, .at = {.row = 1}, .click = [this] { ++clicks; }}};
  Label         label {*this, "label",  {.caption = "<b>1</b>", .at = {.row = 4}, .spoken = "Zähler"}};
  CommandButton button{*this, "button", {.caption = "Neu", .tab = 5, .at = {.row = 5}, .click = [this] { renew(); }}};
  // clang-format on

 private:
  void Form_Load() override {
    for (int i = 0; i < 998; ++i) box.addItem("Eintrag " + std::to_string(i));
    box.addItem("Zwilling");
    box.addItem("Zwilling");
    text.setSelLength(6);
    renew();
  }
  void renew() {
    list.clear();
    for (int i = 1; i <= 50; ++i) list.addItem("Zeile " + std::to_string(i));
    label.setCaption(label.caption() + "+");
    one.setValue(false);
    two.setValue(false);
  }
};

class Fields : public testing::Test {
 protected:
  void SetUp() override {
    form.setVisible(true);
    desktop.show(runtime);
    QApplication::processEvents();
  }
  template <class Widget>
  Widget& widget(const char* name) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (auto* found = window->findChild<Widget*>(QString::fromLatin1(name));
          found != nullptr && window->isVisible()) {
        return *found;
      }
    }
    throw std::logic_error(name);
  }

  Files files;
  FormsRuntime runtime{{.files = files, .numbers = {}, .showMessage = {}, .throwDie = {}}};
  Sample form{runtime};
  Desktop desktop{look(), [] {}};
};

TEST_F(Fields, typingIntoAComboBoxNeverPicks) {
  auto& box = widget<QComboBox>("box");
  EXPECT_EQ(box.currentText(), QStringLiteral("Wähle & staune"));
  box.setFocus();
  key(Qt::Key_A, Qt::ControlModifier);
  typeKeys(QStringLiteral("Eintrag 7"));  // an entry, letter for letter
  EXPECT_EQ(form.box.text(), "Eintrag 7");
  key(Qt::Key_Escape);
  key(Qt::Key_Return);
  key(Qt::Key_Tab);
  EXPECT_NE(QApplication::focusWidget(), &box);
  EXPECT_EQ(form.picks, 0);
  EXPECT_EQ(form.box.text(), "Eintrag 7");
  EXPECT_EQ(box.count(), 1000);
}

TEST_F(Fields, everyPickIsOneClick) {
  auto& box = widget<QComboBox>("box");
  MouseHands mouse;
  mouse.pick(box, QStringLiteral("Eintrag 500"));
  EXPECT_EQ(form.picks, 1);
  EXPECT_EQ(form.box.text(), "Eintrag 500");
  mouse.pick(box, QStringLiteral("Eintrag 500"));
  EXPECT_EQ(form.picks, 2);
  box.setFocus();
  key(Qt::Key_Down);
  EXPECT_EQ(form.picks, 3);
  EXPECT_EQ(form.box.text(), "Eintrag 501");

  // Through two entries of one name, and no further than the last.
  mouse.pick(box, QStringLiteral("Eintrag 997"));
  for (int i = 0; i < 4; ++i) key(Qt::Key_Down);
  EXPECT_EQ(form.picks, 6);
  EXPECT_EQ(box.currentIndex(), 999);
}

TEST_F(Fields, completionsMatchInsideAndShowNothingBeforeThePick) {
  auto& box = widget<QComboBox>("box");
  // A click and the first letters: what stood there is no part of what is looked for.
  widget<QLineEdit>("text").setFocus();
  QTest::mouseClick(box.lineEdit(), Qt::LeftButton);
  QCoreApplication::processEvents();
  typeKeys(QStringLiteral("TRAG 99"));
  auto* list = qobject_cast<QListView*>(QApplication::activePopupWidget());
  ASSERT_NE(list, nullptr);
  EXPECT_EQ(list->model()->rowCount(), 9);  // 99 and 990 to 997
  key(Qt::Key_Down);
  key(Qt::Key_Down);
  EXPECT_EQ(box.currentText(), QStringLiteral("TRAG 99"));
  EXPECT_EQ(form.picks, 0);
  key(Qt::Key_Return);
  EXPECT_EQ(form.picks, 1);
  EXPECT_EQ(form.box.text(), "Eintrag 990");
  EXPECT_EQ(box.currentText(), QStringLiteral("Eintrag 990"));
}

TEST_F(Fields, theWheelLeavesAClosedComboBoxAlone) {
  auto& box = widget<QComboBox>("box");
  MouseHands().pick(box, QStringLiteral("Eintrag 5"));
  box.setFocus();
  QWheelEvent wheel(QPointF(5, 5), box.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, {}, Qt::NoScrollPhase,
                    false);
  QApplication::sendEvent(&box, &wheel);
  EXPECT_EQ(form.box.text(), "Eintrag 5");
  EXPECT_EQ(form.picks, 1);
}

TEST_F(Fields, typedTextPassesTheGateAndKeepsTheCursor) {
  auto& field = widget<QLineEdit>("text");
  EXPECT_EQ(field.selectedText(), QStringLiteral("Anfang"));
  field.setFocus();
  typeKeys(QStringLiteral("ab"));  // replaces the selection
  EXPECT_EQ(form.text.text(), "ab");
  field.setCursorPosition(1);
  typeKeys(QStringLiteral("\""));
  EXPECT_EQ(form.text.text(), "a'b");
  EXPECT_EQ(field.text(), QStringLiteral("a'b"));
  EXPECT_EQ(field.cursorPosition(), 2);
  const int changes = form.changes;
  typeKeys(QStringLiteral("語"));  // nothing that a file could hold
  EXPECT_EQ(field.text(), QStringLiteral("a'b"));
  EXPECT_EQ(field.cursorPosition(), 2);
  EXPECT_EQ(form.changes, changes);
  QApplication::clipboard()->setText(QStringLiteral("u\u0308"));  // an umlaut in two pieces
  key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(form.text.text(), "a'üb");
  EXPECT_EQ(field.cursorPosition(), 3);
}

TEST_F(Fields, everyClickOnALineIsAClick) {
  auto& list = widget<QListView>("list");
  MouseHands mouse;
  mouse.select(list, 3);
  mouse.select(list, 3);
  EXPECT_EQ(form.clicks, 2);
  key(Qt::Key_Down);
  EXPECT_EQ(form.clicks, 3);
  EXPECT_EQ(form.list.selected(), 4U);
  EXPECT_TRUE(list.selectionModel()->isSelected(list.model()->index(4, 0)));
  key(Qt::Key_Space);
  EXPECT_EQ(form.clicks, 4);

  // Dragging over lines is one click, on the line where it began.
  QTest::mousePress(list.viewport(), Qt::LeftButton, {}, list.visualRect(list.model()->index(1, 0)).center());
  QTest::mouseMove(list.viewport(), list.visualRect(list.model()->index(3, 0)).center());
  QTest::mouseRelease(list.viewport(), Qt::LeftButton, {}, list.visualRect(list.model()->index(3, 0)).center());
  EXPECT_EQ(form.clicks, 5);
  EXPECT_EQ(form.list.selected(), 1U);
}

TEST_F(Fields, aListWrittenAnewStaysWhereItWasScrolledTo) {
  auto& list = widget<QListView>("list");
  MouseHands mouse;
  mouse.select(list, 30);
  list.verticalScrollBar()->setValue(7);  // away from the selected line
  const QModelIndex first = list.indexAt({2, 2});
  mouse.click(widget<QWidget>("button"));
  QApplication::processEvents();
  EXPECT_FALSE(list.selectionModel()->hasSelection());
  EXPECT_EQ(list.indexAt({2, 2}).row(), first.row());
  // Back by keyboard, the next line is at hand.
  list.setFocus();
  key(Qt::Key_Down);
  EXPECT_EQ(form.list.selected(), 30U);
}

TEST_F(Fields, optionsFollowTheModelBothWays) {
  auto& one = widget<QRadioButton>("one");
  auto& two = widget<QRadioButton>("two");
  EXPECT_EQ(one.text(), QStringLiteral("Salz && Pfeffer"));
  MouseHands mouse;
  mouse.click(one);
  EXPECT_TRUE(form.one.value());
  key(Qt::Key_Down);
  EXPECT_TRUE(two.isChecked());
  EXPECT_TRUE(form.two.value());
  EXPECT_FALSE(form.one.value());
  EXPECT_EQ(form.clicks, 2);
  mouse.click(widget<QWidget>("button"));
  EXPECT_FALSE(one.isChecked() || two.isChecked());
  EXPECT_EQ(form.clicks, 2);
  mouse.click(two);
  EXPECT_TRUE(form.two.value());
}

// A widget reports a new accessible name to screen readers by itself.
TEST_F(Fields, captionsArePlainTextAndSpokenWithTheirMeaning) {
  const auto& label = widget<QLabel>("label");
  EXPECT_EQ(label.textFormat(), Qt::PlainText);
  EXPECT_EQ(label.accessibleName(), QStringLiteral("Zähler: <b>1</b>+"));
  MouseHands().click(widget<QWidget>("button"));
  EXPECT_EQ(label.accessibleName(), QStringLiteral("Zähler: <b>1</b>++"));
}

TEST_F(Fields, aCaptionThatGrowsTakesTheWindowAlong) {
  const auto& label = widget<QLabel>("label");
  const int before = label.window()->width();
  runtime.perform(form, [this] { form.label.setCaption(std::string(50, 'W')); });
  QApplication::processEvents();
  EXPECT_GT(label.window()->width(), before);
  EXPECT_GE(label.width(), label.fontMetrics().horizontalAdvance(label.text()));
  EXPECT_TRUE(label.window()->rect().contains(label.mapTo(label.window(), label.rect().bottomRight())));
}

}  // namespace
}  // namespace bogenwerker
