// Each kind of widget against a control of the model, on a form made for the purpose.

#include "hands.h"

namespace bogenwerker {
namespace {

struct SampleVariables {
  int clicks = 0;
};

class Sample final : public FormWith<SampleVariables> {
 public:
  explicit Sample(FormsRuntime& runtime) : FormWith(runtime, "sample", {.caption = "Probe"}) {}

  // clang-format off
  ComboBox      box   {*this, "box",    {.text = "Wähle & staune", .tab = 0, .at = {0}, .spoken = "Auswahl", .click = [this] { ++clicks; }}};
  TextBox       text  {*this, "text",   {.text = "Anfang", .tab = 1, .at = {1}, .spoken = "Text"}};
  ListBox       list  {*this, "list",   {.tab = 2, .at = {2}, .spoken = "Liste", .click = [this] { ++clicks; }}};
  Frame         group {*this, "group",  {.caption = "Gruppe", .at = {3}}};
  OptionButton  one   {group, "one",    {.caption = "Salz & Pfeffer", .tab = 3, .at = {0}, .click = [this] { ++clicks; }}};
  OptionButton  two   {group, "two",    {.caption = "Zwei", .tab = 4, .at = {1}, .click = [this] { ++clicks; }}};
  Label         label {*this, "label",  {.caption = "<b>1</b>", .at = {4}, .spoken = "Zähler"}};
  CommandButton button{*this, "button", {.caption = "Neu", .tab = 5, .at = {5}, .click = [this] { renew(); }}};
  // clang-format on

 private:
  void Form_Load() override {
    for (int i = 0; i < 998; ++i) box.addItem("Eintrag " + std::to_string(i));
    box.addItem("Zwilling");
    box.addItem("Zwilling");
    renew();
  }
  void renew() {
    list.clear();
    for (int i = 1; i <= 50; ++i) list.addItem("Zeile " + std::to_string(i));
    label.setCaption(label.caption() + std::string(40, '+'));
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
  int clicks() { return std::exchange(form.clicks, 0); }

  FormsRuntime runtime{{}};
  Sample form{runtime};
  Desktop desktop{look(), [] {}};
};

TEST_F(Fields, aBoxIsPickedByWhoeverMeansAnEntryOnce) {
  struct Row {
    const char* typed;
    std::vector<int> keys;
    const char* text;
    int picks;
  };
  auto& box = dynamic_cast<QComboBox&>(shownWidget("box"));
  EXPECT_EQ(box.lineEdit()->selectedText(), toQt("Wähle & staune"));
  for (const Row& row : std::vector<Row>{{"Eintrag 7", {Qt::Key_Escape, Qt::Key_Tab}, "Eintrag 7", 0},
                                         {"Eintrag 7", {Qt::Key_Return}, "Eintrag 7", 1},
                                         {"trag 997", {Qt::Key_Return}, "Eintrag 997", 1},
                                         {"trag 99", {Qt::Key_Return}, "trag 99", 0},
                                         {"TRAG 99", {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return}, "Eintrag 990", 1},
                                         {"TRAG 99", {Qt::Key_Down, Qt::Key_Down, Qt::Key_Escape}, "TRAG 99", 0},
                                         {"keiner", {Qt::Key_Return}, "keiner", 0}}) {
    SCOPED_TRACE(row.typed);
    shownWidget("text").setFocus();
    mouse.type(*box.lineEdit(), toQt(row.typed));
    for (const int pressed : row.keys) key(pressed);
    EXPECT_EQ(form.box.text(), row.text);
    EXPECT_EQ(fromQt(box.currentText()), row.text);
    EXPECT_EQ(clicks(), row.picks);
  }
  // Every pick is a click, that of the picked entry too; so is every step by key, through two entries of one name.
  for (int i = 0; i < 2; ++i) mouse.pick(box, toQt("Eintrag 997"));
  box.setFocus();
  for (int i = 0; i < 4; ++i) key(Qt::Key_Down);
  QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, 120}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
  QApplication::sendEvent(&box, &wheel);
  EXPECT_EQ(clicks(), 4);
  EXPECT_EQ(box.currentIndex(), 999);
  EXPECT_EQ(box.count(), 1000);
  const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&box);
  EXPECT_EQ(spoken->text(QAccessible::Name) + spoken->text(QAccessible::Value), toQt("AuswahlZwilling"));
}

TEST_F(Fields, typedTextPassesTheGateAndCanBeTakenBack) {
  auto& field = dynamic_cast<QLineEdit&>(shownWidget("text"));
  mouse.type(field, toQt("ab"));  // in place of the starting text
  field.setCursorPosition(1);
  QApplication::clipboard()->setText(toQt("x\n\"u\u0308"));  // an umlaut in two pieces
  key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(form.text.text(), "ax 'üb");
  EXPECT_EQ(field.text(), toQt("ax 'üb"));
  EXPECT_EQ(field.cursorPosition(), 5);
  for (const char* before : {"ab", "Anfang"}) {
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(form.text.text(), before);
  }
  QAccessible::queryAccessibleInterface(&field)->setText(QAccessible::Value, toQt("gesagt"));
  EXPECT_EQ(form.text.text(), "gesagt");
  EXPECT_EQ(field.createStandardContextMenu()->actions().front()->text().left(11), toQt("&Rückgängig"));
}

TEST_F(Fields, everyClickOnALineIsOneAndTheListStaysWhereItWasScrolledTo) {
  auto& list = dynamic_cast<QListView&>(shownWidget("list"));
  const auto middle = [&list](int line) { return list.visualRect(list.model()->index(line, 0)).center(); };
  for (int i = 0; i < 2; ++i) mouse.select(list, 3);
  key(Qt::Key_Down);
  key(Qt::Key_Space);
  EXPECT_EQ(clicks(), 4);
  EXPECT_EQ(form.list.selected(), 4U);
  QTest::mousePress(list.viewport(), Qt::LeftButton, {}, middle(1));
  QTest::mouseMove(list.viewport(), middle(3));
  QTest::mouseRelease(list.viewport(), Qt::LeftButton, {}, middle(3));
  EXPECT_EQ(clicks(), 1);
  EXPECT_TRUE(list.selectionModel()->isSelected(list.model()->index(1, 0)));

  mouse.select(list, 30);
  list.verticalScrollBar()->setValue(7);  // away from the selected line
  mouse.click(shownWidget("button"));
  EXPECT_FALSE(list.selectionModel()->hasSelection());
  EXPECT_EQ(list.verticalScrollBar()->value(), 7);
  list.setFocus();
  key(Qt::Key_Down);  // by keyboard, the line is still at hand
  EXPECT_EQ(form.list.selected(), 30U);
}

TEST_F(Fields, optionsFollowTheModelBothWaysAndCaptionsArePlain) {
  auto& one = dynamic_cast<QRadioButton&>(shownWidget("one"));
  auto& two = dynamic_cast<QRadioButton&>(shownWidget("two"));
  EXPECT_EQ(one.text(), toQt("Salz && Pfeffer"));
  mouse.click(one);
  key(Qt::Key_Down);
  EXPECT_TRUE(two.isChecked() && form.two.value() && !form.one.value());
  QAccessible::queryAccessibleInterface(&one)->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
  EXPECT_TRUE(form.one.value() && !form.two.value() && !two.isChecked());
  EXPECT_EQ(clicks(), 3);
  const auto& label = dynamic_cast<QLabel&>(shownWidget("label"));
  const int width = label.window()->width();
  mouse.click(shownWidget("button"));
  QApplication::processEvents();
  EXPECT_FALSE(one.isChecked() || two.isChecked() || clicks() > 0);
  EXPECT_GT(label.window()->width(), width);  // a caption that grows takes the window along
  EXPECT_GE(label.width(), label.fontMetrics().horizontalAdvance(label.text()));
  EXPECT_EQ(label.textFormat(), Qt::PlainText);
  EXPECT_EQ(label.accessibleName(), toQt("Zähler: <b>1</b>" + std::string(80, '+')));
}

}  // namespace
}  // namespace bogenwerker
