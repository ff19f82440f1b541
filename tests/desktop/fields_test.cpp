// Each kind of widget against its control of the model.

#include "hands.h"

namespace bogenwerker {
namespace {

TEST(Fields, aBoxIsPickedByWhoeverMeansAnEntryOnce) {
  Screen screen;
  std::string rows = "Zwilling,1\r\nZwilling,1\r\n";
  for (int i = 0; i < 28; ++i) rows += "Eintrag " + std::to_string(i) + ",1\r\n";
  writeBytes("Connection.txt", rows);
  screen.playUntil("formAusrüstung");
  auto& box = shown<QComboBox>("cmbConnection");
  using Row = std::tuple<const char*, std::vector<int>, const char*, int>;
  for (const auto& [typed, keys, text, picks] :
       std::vector<Row>{{"Eintrag 2", {Qt::Key_Escape, Qt::Key_Tab}, "Eintrag 2", 0},
                        {"Eintrag 2", {Qt::Key_Return}, "Eintrag 2", 1},
                        {"trag 27", {Qt::Key_Return}, "Eintrag 27", 1},
                        {"trag 2", {Qt::Key_Return}, "trag 2", 0},
                        {"TRAG 2", {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return}, "Eintrag 20", 1},
                        {"TRAG 2", {Qt::Key_Down, Qt::Key_Down, Qt::Key_Escape}, "TRAG 2", 0}}) {
    shown("txtEquipment").setFocus();
    play("type cmbConnection " + std::string(typed));
    for (const int pressed : keys) key(pressed);
    EXPECT_EQ(screen.model<ComboBox>("cmbConnection").text(), text);
    EXPECT_EQ(box.currentText(), toQt(text));
    EXPECT_EQ(std::exchange(screen.clicks, 0), picks) << typed;
  }
  // Every pick is a click, that of the picked entry too; so is every step by key, through two entries of one name.
  play("pick cmbConnection Zwilling\npick cmbConnection Zwilling");
  box.setFocus();
  for (const int pressed : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Up}) key(pressed);
  QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, -120}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
  QApplication::sendEvent(&box, &wheel);
  EXPECT_EQ(screen.clicks, 5);
  EXPECT_EQ(box.currentIndex(), 1);
  const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&box);
  EXPECT_EQ(spoken->text(QAccessible::Name) + spoken->text(QAccessible::Value), toQt("ConnectionZwilling"));
}

TEST(Fields, typedTextPassesTheGateAndCanBeTakenBack) {
  Screen screen("formNamenGeben");
  auto& field = shown<QLineEdit>("txtName");
  const auto& text = screen.model<TextBox>("txtName");
  play("type txtName ab");  // in place of the starting text
  field.setCursorPosition(1);
  QApplication::clipboard()->setText(toQt("x\n\"u\u0308"));  // an umlaut in two pieces
  key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(text.text(), "ax \"üb");
  EXPECT_EQ(field.text(), toQt("ax \"üb"));
  for (const char* before : {"ab", "Name des Charakters"}) {
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text.text(), before);
  }
  QAccessible::queryAccessibleInterface(&field)->setText(QAccessible::Value, toQt("gesagt"));
  EXPECT_EQ(text.text(), "gesagt");
  EXPECT_EQ(field.createStandardContextMenu()->actions().front()->text().left(11), toQt("&Rückgängig"));
}

TEST(Fields, everyClickOnALineIsOneAndTheListStaysWhereItWasScrolledTo) {
  Screen screen("formAusrüstung");
  auto& list = shown<QListView>("lstAusrüstung");
  auto& lines = screen.model<ListBox>("lstAusrüstung");
  const auto fill = [&lines] {
    lines.clear();
    for (int i = 0; i < 50; ++i) lines.addItem("Zeile");
    play("type txtEquipment Neues");  // with a gesture, the windows hear of it
  };
  fill();
  play("select lstAusrüstung 3\nselect lstAusrüstung 3");
  list.setFocus();
  key(Qt::Key_Down);
  key(Qt::Key_Space);
  EXPECT_EQ(screen.clicks, 4);
  EXPECT_EQ(lines.selected(), 4U);
  const auto middle = [&list](int line) { return list.visualRect(list.model()->index(line, 0)).center(); };
  QTest::mousePress(list.viewport(), Qt::LeftButton, {}, middle(1));
  QTest::mouseMove(list.viewport(), middle(3));
  QTest::mouseRelease(list.viewport(), Qt::LeftButton, {}, middle(3));
  EXPECT_EQ(screen.clicks, 5);
  EXPECT_TRUE(list.selectionModel()->isSelected(list.model()->index(1, 0)));

  play("select lstAusrüstung 30");
  list.verticalScrollBar()->setValue(7);  // away from the selected line
  fill();
  EXPECT_FALSE(list.selectionModel()->hasSelection());
  EXPECT_EQ(list.verticalScrollBar()->value(), 7);
  list.setFocus();
  key(Qt::Key_Down);  // by keyboard, the line is still at hand
  EXPECT_EQ(lines.selected(), 30U);
}

TEST(Fields, optionsFollowTheModelBothWaysAndCaptionsArePlain) {
  Screen screen;
  auto &first = shown<QRadioButton>("optRessA"), &second = shown<QRadioButton>("optRessB");
  play("click optRessA");
  key(Qt::Key_Down);
  EXPECT_TRUE(second.isChecked() && screen.model<OptionButton>("optRessB").value());
  QAccessible::queryAccessibleInterface(&first)->actionInterface()->doAction(
      QAccessibleActionInterface::toggleAction());
  EXPECT_TRUE(screen.model<OptionButton>("optRessA").value() && !second.isChecked());
  EXPECT_EQ(screen.clicks, 3);
  screen.model<OptionButton>("optRessA").setValue(false);
  play("click optRasseOrk");
  EXPECT_FALSE(first.isChecked());
  EXPECT_EQ(screen.clicks, 4);

  screen.playUntil("formAusrüstung");
  const auto& label = shown<QLabel>("lblEssenz");
  const int width = shownWindow().width();
  screen.model<Label>("lblEssenz").setCaption("<b>" + std::string(200, '+'));
  play("click cmdAddSpruchPunkt");
  screen.playUntil("formAusrüstung");
  EXPECT_GT(shownWindow().width(), width);  // a caption that grows takes the window along
  EXPECT_EQ(label.textFormat(), Qt::PlainText);
  EXPECT_EQ(label.accessibleName(), toQt("Essenz: <b>" + std::string(200, '+')));
}

}  // namespace
}  // namespace bogenwerker
