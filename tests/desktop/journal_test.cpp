// What the windows tell and ask beside the forms, and a program that goes on.
#include <QAccessible>

#include "desktop/program.h"
#include "hands.h"

namespace bogenwerker {
namespace {

QString tip() { return QToolTip::text().replace("</p>", ";").remove(QRegularExpression("<[^>]*>")); }

TEST(Hints, ShowOverAGreyButtonAndByKeyAndAreItsDescription) {
  const Screen screen("formAktionFertigkeit");
  QWidget& add = shownWidget("cmdAddFertigkeit");
  QHelpEvent hover(QEvent::ToolTip, {}, add.mapToGlobal(QPoint(5, 5)));
  QApplication::sendEvent(&add, &hover);
  EXPECT_EQ(tip(), "Es fehlt noch der Name.;");
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&add)->text(QAccessible::Description) + ";", tip());
  key(Qt::Key_F1, Qt::ShiftModifier);  // the focus is on a field
  EXPECT_TRUE(tip().startsWith("Aktionsfertigkeit hinzufügen: Es fehlt noch der Name.;Spezi")) << fromQt(tip());
  shownWidget("cmdFertigkeitPlus").setFocus();
  key(Qt::Key_F1, Qt::ShiftModifier);
  EXPECT_EQ(tip(), "Klicken Sie erst eine Zeile der Liste an.;");
}

const std::string journal(Journal::fileName);

std::vector<std::string> gesturesIn(const std::string& script) {
  std::vector<std::string> lines = splitLines(script);
  std::erase_if(lines, [](const std::string& line) { return line.empty() || line[0] == '#'; });
  return lines;
}

void answer(const char* button) {
  whenBoxOpens([button](QMessageBox& box) {
    for (auto* each : box.buttons()) {
      if (each->text() == button) each->click();
    }
  });
}

// As players have it, in the current folder; an interrupted character goes on.
struct Session {
  Session() {
    if (!gesturesIn(fileBytes(journal)).empty()) answer("Weiterspielen");
    EXPECT_EQ(program.begin(), Program::Beginning::shown);
    QApplication::processEvents();
  }
  bool over = false;
  std::string sheet;
  Program program{look(), [this](std::string_view file) { sheet = file; }, [this] { over = true; }};
};

TEST(Program, IsInterruptedByItsClosingQuestionAndGoesOn) {
  const TemporaryFolder folder;
  copyShippedData();
  for (const char* button : {"Unterbrechen", "Verwerfen"}) {
    const Session session;
    mouse.play(std::filesystem::exists(journal) ? "click optAdept" : "click optRasseOrk");
    EXPECT_TRUE(shownWidget("optRasseOrk").property("checked").toBool());
    answer(button);
    shownWindow().close();
    EXPECT_TRUE(session.over);
    EXPECT_EQ(std::filesystem::exists(journal), std::string(button) == "Unterbrechen");
  }
}

// Begins behind as many gestures as the journal holds; what was typed may be typed again.
TEST(Program, DISABLED_PlaysToTheEnd) {
  const auto isTyped = [](const std::string& line) { return line.starts_with("type "); };
  const auto done = gesturesIn(fileBytes(journal));
  const auto script = gesturesIn(Screen::scriptOf("zauberin"));
  auto line = script.begin();
  for (auto left = std::count_if(done.begin(), done.end(), std::not_fn(isTyped)); left > 0; ++line) {
    left -= isTyped(*line) ? 0 : 1;
  }
  const Session session;
  for (; line != script.end(); ++line) {
    if (line + 1 == script.end()) whenBoxOpens([](QMessageBox& box) { box.buttons().first()->click(); });
    mouse.play(*line);
  }
  EXPECT_TRUE(session.over && std::filesystem::exists(session.sheet) && !std::filesystem::exists(journal));
}

}  // namespace
}  // namespace bogenwerker
