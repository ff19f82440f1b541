// The wizard in its windows, from the first to the last, and what they tell and ask beside the forms.
#include <regex>
#include <set>

#include "desktop/program.h"
#include "hands.h"

namespace bogenwerker {
namespace {

TEST(WholeCharacter, byMouseAndByKeyboardIsThatOfTheModel) {
  for (const auto& [name, hands] : std::map<std::string, Hands>{{"zauberin", byMouse}, {"tuersteher", byKeyboard}}) {
    World alone;
    EXPECT_TRUE(alone.wizard.start());
    alone.play(scriptOf(name));
    const auto expected = filesIn();
    const Screen screen;
    play(scriptOf(name), hands);
    EXPECT_TRUE(screen.over);
    EXPECT_EQ(filesIn(), expected);
  }
}

// Whatever takes the focus has a name of its own, none a bare sign, and is reached by the key in the order of the
// table; a group of options is one stop.
void expectReached(Form& form) {
  const auto stopOf = [](QObject* widget) {
    return fromQt((widget->inherits("QRadioButton") ? widget->parent() : widget)->objectName());
  };
  std::map<int, std::string> table;
  std::set<QString> names{{}, QStringLiteral("+"), QStringLiteral("-"), QStringLiteral("Hinzufügen!")};
  for (const Control* control : form.controls()) {
    QWidget& widget = shown(control->name());
    if (widget.focusPolicy() == Qt::NoFocus) continue;
    if (control->tab() && widget.isEnabled()) table[*control->tab()] = stopOf(&widget);
    const QString name = QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name);
    EXPECT_TRUE(names.insert(name).second) << fromQt(name);
  }
  std::vector<std::string> stops, reached;
  for (const auto& [tab, stop] : table) {
    if (std::find(stops.begin(), stops.end(), stop) == stops.end()) stops.push_back(stop);
  }
  stops.push_back(stops.front());  // round to the first again
  for (; reached.size() < stops.size(); key(Qt::Key_Tab)) reached.push_back(stopOf(QApplication::focusWidget()));
  EXPECT_EQ(reached, stops);
  auto* window = QAccessible::queryAccessibleInterface(&shownWindow());
  EXPECT_TRUE(window->role() == QAccessible::Window && window->child(window->childCount()) == nullptr);
}

TEST(EveryForm, goesByTabIsNamedAndAsksBeforeItCloses) {
  const Screen untouched;
  shownWindow().close();
  EXPECT_TRUE(untouched.over);
  Screen screen;
  for (const char* form : forms) {
    SCOPED_TRACE(form);
    screen.playUntil(form);
    expectReached(screen.form());
    if (form == forms.front()) continue;
    whenBoxOpens("Weiterspielen", [](auto& box) { EXPECT_EQ(box.defaultButton()->text(), "Weiterspielen"); });
    shownWindow().close();
    EXPECT_FALSE(screen.over);
  }
  whenBoxOpens("Verwerfen");
  shownWindow().close();
  EXPECT_TRUE(screen.over);
}

TEST(Windows, aStepStandsWhereTheLastOneStoodAndLooksAsTheKeysSay) {
  const Screen screen("formAusrüstung");
  shownWindow().move(140, 130);
  const QSize before = shownWindow().size();
  key(Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_EQ(look().zoom(), 125);
  EXPECT_GT(shownWindow().height(), before.height());
  key(Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(shownWindow().size(), before);
  for (const int grey : {24, 128}) {
    key(Qt::Key_F8);
    comeToRest();
    EXPECT_EQ(shown("txtEquipment").palette().color(QPalette::Base), QColor(grey, grey, grey));
  }
  for (int i = 0; i < 20; ++i) key(Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_EQ(look().zoom(), 75);
  play("click cmdGoAhead");
  EXPECT_EQ(shown<QLineEdit>("txtName").selectedText(), "Name des Charakters");
  play("click cmdOkay");
  EXPECT_EQ(shownWindow().pos(), QPoint(140, 130));
}

// As the system tells of a key that is held, and not let go of yet; in the end, as where it missed the first repeat.
void hold(int key) {
  sendKey(QEvent::KeyPress, key);
  for (int i = 0; i < 20; ++i) {
    QApplication::processEvents();
    sendKey(QEvent::KeyRelease, key, {}, true);
    sendKey(QEvent::KeyPress, key, {}, true);
  }
  sendKey(QEvent::KeyPress, key);
}

TEST(HeldKeys, pressOneButtonOnceAndDismissNoMessage) {
  Screen screen("formNamenGeben");
  shown("cmdOkay").setFocus();
  hold(Qt::Key_Return);
  auto& button = shown("cmdErzeugeHTML");
  button.setFocus();
  hold(Qt::Key_Return);
  EXPECT_EQ(screen.heard.size(), 1U);
  screen.world.showMessage = [&](Message kind, std::string_view text) { screen.desktop.showMessage(kind, text); };
  for (const bool fails : {true, false}) {
    screen.world.files.failAt(fails ? 0 : -1, EACCES);
    whenBoxOpens({}, [&](QMessageBox& box) {
      EXPECT_EQ(box.icon(), fails ? QMessageBox::Warning : QMessageBox::Information);
      EXPECT_TRUE(box.text().contains(toQt(fails ? "Prioritäten.txt" : "Fertig!"))) << fromQt(box.text());
      EXPECT_EQ(box.textFormat(), Qt::PlainText);
      hold(Qt::Key_Return);
      EXPECT_TRUE(box.isVisible() && box.buttons().size() == 1 && !screen.over);
      sendKey(QEvent::KeyRelease, Qt::Key_Return);
      key(Qt::Key_Return);
    });
    QTest::keyRelease(&button, Qt::Key_Return);
    QTest::keyPress(&button, Qt::Key_Return);
    EXPECT_EQ(screen.over, !fails);
  }
}

TEST(Hints, showOverAGreyButtonAndByKeyAndAreItsDescription) {
  const Screen screen("formAktionFertigkeit");
  QWidget& add = shown("cmdAddFertigkeit");
  QHelpEvent hover(QEvent::ToolTip, {}, add.mapToGlobal(QPoint(5, 5)));
  QApplication::sendEvent(&add, &hover);
  EXPECT_EQ(QToolTip::text(), "<p>Es fehlt noch der Name.</p>");
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&add)->text(QAccessible::Description), "Es fehlt noch der Name.");
  key(Qt::Key_F1, Qt::ShiftModifier);  // the focus is on a field
  EXPECT_EQ(QToolTip::text().indexOf("hinzufügen: Es fehlt noch der Name.</p><p>Spezi"), 21)
      << fromQt(QToolTip::text());
  shown("cmdFertigkeitPlus").setFocus();
  key(Qt::Key_F1, Qt::ShiftModifier);
  EXPECT_EQ(QToolTip::text(), "<p>Klicken Sie erst eine Zeile der Liste an.</p>");
}

TEST(Program, isInterruptedByItsClosingQuestionAndGoesOn) {
  const World folder;
  for (const bool goesOn : {false, true}) {
    bool over = false;
    Program program(look(), {}, [&over] { over = true; });
    if (goesOn) whenBoxOpens("Weiterspielen");
    EXPECT_EQ(program.begin(), Program::Beginning::shown);
    play(goesOn ? "click optAdept" : "click optRasseOrk");
    EXPECT_TRUE(shown<QRadioButton>("optRasseOrk").isChecked());
    whenBoxOpens(goesOn ? "Verwerfen" : "Unterbrechen");
    shownWindow().close();
    EXPECT_TRUE(over);
    EXPECT_EQ(std::filesystem::exists(Journal::fileName), !goesOn);
  }
}

TEST(Fields, aBoxIsPickedByWhoeverMeansAnEntryOnce) {
  Screen screen;
  std::string rows = "Zwilling,1\r\nZwilling,1\r\n";
  for (int i = 0; i < 28; ++i) rows += "Eintrag " + std::to_string(i) + ",1\r\n";
  writeBytes("Connection.txt", rows);
  screen.playUntil("formAusrüstung");
  EXPECT_EQ(shown<QComboBox>("cmbLebensstil").lineEdit()->selectedText(), "Lebensstil / Kosten pro Monat");
  auto& box = shown<QComboBox>("cmbConnection");
  using Row = std::tuple<std::string, std::vector<int>, std::string>;
  for (const auto& [typed, keys, heard] :
       std::vector<Row>{{"Eintrag 2", {Qt::Key_Escape, Qt::Key_Tab}, "type cmbConnection Eintrag 2"},
                        {"Eintrag 2", {Qt::Key_Return}, "pick cmbConnection Eintrag 2"},
                        {"trag 27", {Qt::Key_Return}, "pick cmbConnection Eintrag 27"},
                        {"trag 2", {Qt::Key_Return}, "type cmbConnection trag 2"},
                        {"TRAG 2", {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return}, "pick cmbConnection Eintrag 20"},
                        {"TRAG 2", {Qt::Key_Down, Qt::Key_Down, Qt::Key_Escape}, "type cmbConnection TRAG 2"}}) {
    shown("txtEquipment").setFocus();
    play("type cmbConnection " + typed);
    for (const int pressed : keys) key(pressed);
    EXPECT_EQ(screen.heard.back(), heard);
    EXPECT_EQ(box.currentText(), toQt(heard).mid(19));
  }
  // Every pick is a click, that of the picked entry too; so is every step by key, through two entries of one name.
  screen.heard.clear();
  play("pick cmbConnection Zwilling\npick cmbConnection Zwilling");
  box.setFocus();
  for (const int pressed : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Up}) key(pressed);
  QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, -120}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
  QApplication::sendEvent(&box, &wheel);
  EXPECT_EQ(screen.heard.size(), 5U);
  EXPECT_EQ(box.currentIndex(), 1);
  const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&box);
  EXPECT_EQ(spoken->text(QAccessible::Name) + spoken->text(QAccessible::Value), "ConnectionZwilling");
}

TEST(Fields, typedTextPassesTheGateAndCanBeTakenBack) {
  const Screen screen("formAusrüstung");
  auto& field = shown<QLineEdit>("txtEquipment");
  play("type txtEquipment ab");  // in place of the starting text
  field.setCursorPosition(1);
  QApplication::clipboard()->setText("x\n\"u\u0308");  // an umlaut in two pieces
  key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(field.text(), "ax 'üb");
  for (const char* before : {"ax 'üb", "ab"}) {
    EXPECT_EQ(screen.heard.back(), std::string("type txtEquipment ") + before);
    key(Qt::Key_Z, Qt::ControlModifier);
  }
  QAccessible::queryAccessibleInterface(&field)->setText(QAccessible::Value, "gesagt");
  EXPECT_EQ(screen.heard.back(), "type txtEquipment gesagt");
  const QString undo = field.createStandardContextMenu()->actions().front()->text();
  EXPECT_TRUE(undo.startsWith("&Rückgängig") || QSysInfo::kernelType() == "winnt");  // there in the program alone
}

TEST(Fields, everyClickOnALineIsOneAndTheListStaysWhereItWasScrolledTo) {
  Screen screen("formAusrüstung");
  auto& list = shown<QListView>("lstAusrüstung");
  const auto fill = [&] {
    auto& lines = dynamic_cast<ListBox&>(*screen.form().find("lstAusrüstung"));
    lines.clear();
    for (int i = 0; i < 50; ++i) lines.addItem("Zeile");
    play("type txtEquipment Neues");  // with a gesture, the windows hear of it
    list.setFocus();
    screen.heard.clear();
  };
  fill();
  play("select lstAusrüstung 3\nselect lstAusrüstung 3");
  for (const int pressed : {Qt::Key_Down, Qt::Key_Space}) key(pressed);
  EXPECT_EQ(screen.heard.back(), "select lstAusrüstung 4");
  const auto middle = [&list](int line) { return list.visualRect(list.model()->index(line, 0)).center(); };
  QTest::mousePress(list.viewport(), Qt::LeftButton, {}, middle(1));
  QTest::mouseMove(list.viewport(), middle(3));
  QTest::mouseRelease(list.viewport(), Qt::LeftButton, {}, middle(3));
  EXPECT_EQ(screen.heard.size(), 5U);
  EXPECT_TRUE(list.selectionModel()->isSelected(list.model()->index(1, 0)));

  play("select lstAusrüstung 30");
  list.verticalScrollBar()->setValue(7);  // away from the selected line
  fill();
  EXPECT_FALSE(list.selectionModel()->hasSelection());
  EXPECT_EQ(list.verticalScrollBar()->value(), 7);
  key(Qt::Key_Down);  // by keyboard, the line is still at hand
  EXPECT_EQ(screen.heard.back(), "select lstAusrüstung 30");
}

TEST(Fields, optionsAreSwitchedInAnyWayAndCaptionsArePlain) {
  Screen screen;
  play("click optRessA");
  key(Qt::Key_Down);
  auto* spoken = QAccessible::queryAccessibleInterface(&shown("optRessA"))->actionInterface();
  spoken->doAction(QAccessibleActionInterface::toggleAction());
  EXPECT_EQ(screen.heard, (std::vector<std::string>{"click optRessA", "click optRessB", "click optRessA"}));
  screen.playUntil("formAusrüstung");
  const auto& label = shown<QLabel>("lblEssenz");
  const int width = shownWindow().width();
  const std::string caption = "<b>" + std::string(200, '+');
  dynamic_cast<Label&>(*screen.form().find("lblEssenz")).setCaption(caption);
  play("type txtEquipment Neues");
  EXPECT_GT(shownWindow().width(), width);  // a caption that grows takes the window along
  EXPECT_EQ(label.textFormat(), Qt::PlainText);
  EXPECT_EQ(label.accessibleName(), toQt("Essenz: " + caption));
}

// LC_ALL, LC_NUMERIC and LANG, an amount that is typed, and what is left of 400000.
// clang-format off
const std::vector<std::array<std::string, 5>> rows = {
    {"C",                "de_DE.UTF-8", "de_DE.UTF-8", "1000.5",       "398999.5"},
    {"C.UTF-8",          "",            "",            "1,000",        "400000"},
    {"de_DE.UTF-8",      "C",           "C",           "1.000,5",      "398999,5"},
    {"de_AT.ISO-8859-1", "",            "",            "1.000,5",      "398999,5"},
    {"",                 "de_CH.UTF-8", "de_DE.UTF-8", "1'000.5",      "398999.5"},
    {"fr_FR.UTF-8",      "",            "",            "1\u202F000,5", "398999,5"},
    {"fr_FR.ISO-8859-1", "",            "",            "−1 000,5",     "401000,5"},
    {"ar_EG.UTF-8",      "",            "",            "1,000.5",      "398999.5"},
    {"ps_AF.UTF-8",      "",            "",            "12٫5",         "400000"},
    {"ps_AF.UTF-8",      "",            "",            "1000.5",       "398999.5"},
    {"de.UTF-8",         "",            "",            "1.000,5",      "398999,5"},  // these three are not installed
    {"",                 "",            "de_CH.KOI8-R", "1’000.5",     "398999.5"},
    {"de_LI.UTF-8",      "de_DE.UTF-8", "",            "1'000.5",      "398999.5"}};
// clang-format on

TEST(Locales, bothFrontEndsTakeAndShowTheSameAmounts) {
  const TemporaryFolder locales;  // built here, as a machine may have none of them
  const auto build =
      "for each in de_DE.UTF-8 de_AT.ISO-8859-1 de_CH.UTF-8 fr_FR.UTF-8 fr_FR.ISO-8859-1 ar_EG.UTF-8 "
      "ps_AF.UTF-8; do localedef -i ${each%.*} -f ${each#*.} ./$each || exit; done >log 2>&1";
  if (std::system(build) != 0) GTEST_SKIP() << "this machine builds no locales: " << fileBytes("log");
  qputenv("LOCPATH", QDir::currentPath().toUtf8());
  for (const auto& [all, numeric, language, typed, left] : rows) {
    SCOPED_TRACE(all + numeric + language + " " + typed);
    qputenv("LC_ALL", all.c_str());
    qputenv("LC_NUMERIC", numeric.c_str());
    qputenv("LANG", language.c_str());
    const std::string zauberin = scriptOf("zauberin");
    const std::string buys = zauberin.substr(0, zauberin.find("# Schritt 5")) + "type txtEquipment A\n" +
                             "type txtEquipmentKosten " + typed + "\nclick cmdAddEquipment\n";
    const World world;
    writeBytes("script", buys + "dump\n");
    EXPECT_EQ(std::system("'" HEADLESS "' <script >replies"), 0);
    EXPECT_TRUE(std::regex_search(fileBytes("replies"), std::regex(R"("lblMoney"[^}]*"caption":")" + left + '"')));
    Program program(look(), {}, {});
    EXPECT_EQ(program.begin(), Program::Beginning::shown);
    play(buys);
    EXPECT_EQ(shown<QLabel>("lblMoney").text(), toQt(left));
  }
}

}  // namespace
}  // namespace bogenwerker
