// The wizard in its windows, from the first to the last.
#include <cerrno>
#include <map>
#include <set>

#include "hands.h"

namespace bogenwerker {
namespace {

TEST(WholeCharacter, byMouseAndByKeyboardIsThatOfTheModel) {
  for (const Hands hands : {mouse, keyboard}) {
    const std::string script = Screen::scriptOf(hands.mouse ? "zauberin" : "tuersteher");
    World alone;
    EXPECT_TRUE(alone.wizard.start());
    alone.play(script);
    const auto expected = filesIn();
    const Screen screen;
    hands.play(script);
    EXPECT_TRUE(screen.over);
    EXPECT_EQ(filesIn(), expected);
  }
}

// Whatever takes the focus, by the key and in the order of the table; a group of options is one stop.
void expectTabOrder(Form& form) {
  std::map<int, std::string> table;
  std::set<QObject*> groups;
  for (const Control* control : form.controls()) {
    QWidget& widget = shownWidget(control->name());
    if (!control->tab() || widget.focusPolicy() == Qt::NoFocus || !widget.isEnabled()) continue;
    table[*control->tab()] = control->name();
  }
  std::vector<std::string> stops, reached;
  for (const auto& [tab, name] : table) {
    QWidget& widget = shownWidget(name);
    if (!widget.inherits("QRadioButton") || groups.insert(widget.parent()).second) stops.push_back(name);
  }
  for (std::size_t i = 0; i <= stops.size(); ++i) {
    reached.push_back(fromQt(QApplication::focusWidget()->objectName()));
    key(Qt::Key_Tab);
  }
  stops.push_back(stops.front());  // round to the first again
  EXPECT_EQ(reached, stops);
}

// A name of its own for whatever takes a gesture, none a bare sign; and a tree that can be walked to its end.
void expectAccessible(Form& form) {
  const std::function<void(QAccessibleInterface*)> walk = [&walk](QAccessibleInterface* part) {
    ASSERT_NE(part, nullptr);
    for (int i = 0; i < part->childCount(); ++i) walk(part->child(i));
  };
  QAccessibleInterface* window = QAccessible::queryAccessibleInterface(&shownWindow());
  walk(window);
  EXPECT_EQ(window->role(), QAccessible::Window);
  EXPECT_EQ(window->child(window->childCount()), nullptr);
  std::set<QString> names;
  for (const Control* control : form.controls()) {
    QWidget& widget = shownWidget(control->name());
    const QString name = QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name);
    if (widget.focusPolicy() == Qt::NoFocus) continue;
    EXPECT_TRUE(name.size() > 1 && name != QStringLiteral("Hinzufügen!") && names.insert(name).second) << fromQt(name);
  }
}

TEST(EveryForm, goesByTabIsNamedAndAsksBeforeItCloses) {
  const Screen untouched;
  shownWindow().close();
  EXPECT_TRUE(untouched.over);

  Screen screen;
  for (const char* form : forms) {
    SCOPED_TRACE(form);
    screen.playUntil(form);
    expectTabOrder(screen.form());
    expectAccessible(screen.form());
    if (form == forms.front()) continue;
    whenBoxOpens([](QMessageBox& box) {
      EXPECT_EQ(box.text(), QStringLiteral("Charakter verwerfen?"));
      EXPECT_EQ(box.defaultButton()->text(), QStringLiteral("Weiterspielen"));
      QTest::keyClick(&box, Qt::Key_Escape);
    });
    shownWindow().close();
    EXPECT_FALSE(screen.over);
  }
  whenBoxOpens([](QMessageBox& box) {
    for (QAbstractButton* button : box.buttons()) {
      if (button->text() == QStringLiteral("Verwerfen")) button->click();
    }
  });
  shownWindow().close();
  EXPECT_TRUE(screen.over);
}

TEST(Windows, aStepStandsWhereTheLastOneStoodAndLooksAsTheKeysSay) {
  Screen screen("formAusrüstung");
  shownWindow().move(140, 130);
  const QSize before = shownWindow().size();
  for (const char* control : {"cmbLebensstil", "txtEquipment", "lstAusrüstung", "cmdGoAhead"}) {
    shownWidget(control).setFocus();
    key(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(look().zoom(), 125) << control;
    EXPECT_GT(shownWindow().width(), before.width());
    key(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(shownWindow().size(), before);
    for (const int grey : {24, 128}) {
      key(Qt::Key_F8);
      QApplication::processEvents();
      EXPECT_EQ(shownWidget("txtEquipment").palette().color(QPalette::Base), QColor(grey, grey, grey));
    }
  }
  for (int i = 0; i < 20; ++i) key(Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_EQ(look().zoom(), 75);
  mouse.click(shownWidget("cmdGoAhead"));
  QApplication::processEvents();
  EXPECT_EQ(dynamic_cast<QLineEdit*>(QApplication::focusWidget())->selectedText(),
            QStringLiteral("Name des Charakters"));
  mouse.click(shownWidget("cmdOkay"));
  EXPECT_EQ(shownWindow().pos(), QPoint(140, 130));
}

TEST(Windows, comeToRest) {
  const Screen screen("formAusrüstung");
  int rounds = 0;
  while (QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents) && ++rounds < 100) {}
  EXPECT_LT(rounds, 100);
}

TEST(HeldKeys, pressOneButtonOnce) {
  const Screen screen;
  mouse.play(
      "click optRasseMensch\nclick optVollzauberer\nclick optAttribute27\nclick optFertigkeiten34\nclick optRessD");
  shownWidget("cmdWeiter1").setFocus();
  holdKey(Qt::Key_Return);
  sendKey(QEvent::KeyPress, Qt::Key_Return);  // what is left of it where the system missed the first repeat
  EXPECT_EQ(QApplication::focusWidget(), &shownWidget("cmdKonstMinus"));
  const auto& points = dynamic_cast<QLabel&>(shownWidget("lblKonstWert"));
  EXPECT_EQ(points.text(), QStringLiteral("0"));
  sendKey(QEvent::KeyRelease, Qt::Key_Return);
  key(Qt::Key_Return);
  key(Qt::Key_Space);
  EXPECT_EQ(points.text(), QStringLiteral("-2"));
}

TEST(Messages, aFaultIsOneBoxAndTheClosingOneWaitsForAKeyOfItsOwn) {
  Screen screen("formFeinschliff");
  screen.world.showMessage = [&](Message kind, std::string_view text) { screen.desktop.showMessage(kind, text); };
  QWidget& button = shownWidget("cmdErzeugeHTML");
  std::vector<QMessageBox::Icon> boxes;
  const auto dismiss = [&](QMessageBox& box) {
    boxes.push_back(box.icon());
    EXPECT_TRUE(box.text().contains(toQt(boxes.size() == 1 ? "Prioritäten.txt" : "Fertig!"))) << fromQt(box.text());
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    for (int i = 0; i < 5; ++i) sendKey(QEvent::KeyPress, Qt::Key_Return, {}, true);
    EXPECT_TRUE(box.isVisible() && box.buttons().size() == 1 && !screen.over);
    sendKey(QEvent::KeyRelease, Qt::Key_Return);
    key(Qt::Key_Return);
  };
  for (const bool fails : {true, false}) {
    if (fails) screen.world.files.failAt(0, EACCES);
    else screen.world.files.heal();
    whenBoxOpens(dismiss);
    QTest::keyPress(&button, Qt::Key_Return);
  }
  EXPECT_EQ(boxes, (std::vector{QMessageBox::Warning, QMessageBox::Information}));
  EXPECT_TRUE(screen.over);
}

}  // namespace
}  // namespace bogenwerker
