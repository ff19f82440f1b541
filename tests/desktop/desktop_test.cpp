// The wizard in its windows, from the first to the last, and what they tell and ask beside the forms.
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
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&shownWindow())->role(), QAccessible::Window);
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
    whenBoxOpens([](QMessageBox& box) {
      EXPECT_EQ(box.text(), QStringLiteral("Charakter verwerfen?"));
      EXPECT_EQ(box.defaultButton()->text(), QStringLiteral("Weiterspielen"));
      QTest::keyClick(&box, Qt::Key_Escape);
    });
    shownWindow().close();
    EXPECT_FALSE(screen.over);
  }
  whenBoxOpens(pressing("Verwerfen"));
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
    QApplication::processEvents();
    EXPECT_EQ(shown("txtEquipment").palette().color(QPalette::Base), QColor(grey, grey, grey));
  }
  for (int i = 0; i < 20; ++i) key(Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_EQ(look().zoom(), 75);
  play("click cmdGoAhead");
  EXPECT_EQ(shown<QLineEdit>("txtName").selectedText(), QStringLiteral("Name des Charakters"));
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
  EXPECT_EQ(screen.clicks, 1);
  screen.world.showMessage = [&](Message kind, std::string_view text) { screen.desktop.showMessage(kind, text); };
  for (const bool fails : {true, false}) {
    screen.world.files.failAt(fails ? 0 : -1, EACCES);
    button.window()->activateWindow();
    QApplication::processEvents();
    sendKey(QEvent::KeyRelease, Qt::Key_Return);
    whenBoxOpens([&](QMessageBox& box) {
      EXPECT_EQ(box.icon(), fails ? QMessageBox::Warning : QMessageBox::Information);
      EXPECT_TRUE(box.text().contains(toQt(fails ? "Prioritäten.txt" : "Fertig!"))) << fromQt(box.text());
      EXPECT_EQ(box.textFormat(), Qt::PlainText);
      hold(Qt::Key_Return);
      EXPECT_TRUE(box.isVisible() && box.buttons().size() == 1 && !screen.over);
      sendKey(QEvent::KeyRelease, Qt::Key_Return);
      key(Qt::Key_Return);
    });
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
    if (goesOn) whenBoxOpens(pressing("Weiterspielen"));
    EXPECT_EQ(program.begin(), Program::Beginning::shown);
    play(goesOn ? "click optAdept" : "click optRasseOrk");
    EXPECT_TRUE(shown<QRadioButton>("optRasseOrk").isChecked());
    whenBoxOpens(pressing(goesOn ? "Verwerfen" : "Unterbrechen"));
    shownWindow().close();
    EXPECT_TRUE(over);
    EXPECT_EQ(std::filesystem::exists(Journal::fileName), !goesOn);
  }
}

}  // namespace
}  // namespace bogenwerker
