// A character whose run ends in the middle goes on in the next one.
#include "wizard/journal.h"

#include <gtest/gtest.h>

#include "world.h"

namespace bogenwerker {
namespace {

const std::string file(Journal::fileName);
const auto gestures = [] {
  auto lines = splitLines(fileBytes(SOURCE_DIR "/examples/zauberin/gestures.txt"));
  std::erase_if(lines, [](const std::string& line) { return line.empty() || line[0] == '#'; });
  return lines;
}();

struct Folder : TemporaryFolder {
  Folder() { copyShippedData(); }
  int throws = 0;  // no two in a row fall alike
};

// A run of the program in the current folder, which may end at any moment.
struct Session {
  explicit Session(int& throws, bool goesOn = true) : fallen(throws) {
    EXPECT_TRUE(wizard.start());
    journal.resume(wizard, [this, goesOn] { return ++asked > 0 && goesOn; });
    journal.record(wizard.runtime(), [this](std::string_view text) { told += text; });
  }
  bool play(const std::string& gesture) { return carryOut(wizard, gesture).value() != "unknown"; }

  FaultyFiles files;
  int asked = 0;
  std::string told;
  int& fallen;
  Journal journal{files};
  Wizard wizard{journal.around({.files = files,
                                .numbers = {",", "."},
                                .showMessage = [this](Message, std::string_view text) { told += text; },
                                .throwDie = [this] { return ++fallen % 6 + 1; }})};
};

TEST(Journal, GoesOnWhereTheCharacterStoodWithTheDiceThatFell) {
  Folder folder;
  std::string before;
  int passages = 0;
  for (std::size_t next = 0; next < gestures.size();) {
    Session session(folder.throws);
    ASSERT_TRUE(next == 0 || dumpOf(session.wizard) == before) << gestures[next] << session.told;
    for (const std::size_t end = std::min(next + 7, gestures.size()); next < end; ++next) {
      const bool fails = gestures[next] == "click cmdGoAhead" && ++passages % 3 != 0;
      if (fails) session.files.failAt(0, ENOSPC);  // by then the dice have fallen
      ASSERT_TRUE(session.play(gestures[next]));
      if (!fails) continue;
      if (passages % 3 == 2) session.play("type txtEquipment Seil");  // begins the file anew and has to keep the dice
      break;
    }
    before = dumpOf(session.wizard);
    if (next < gestures.size()) writeBytes(file, fileBytes(file) + "type txt");  // torn by a loss of power
  }
  EXPECT_EQ(folder.throws, 3);
}

TEST(Journal, OfAnyContentIsPlayedOrToldOf) {
  std::string toStep5;
  for (auto line = gestures.begin(); !toStep5.ends_with("click cmdGoAhead\n"); ++line) toStep5 += *line + "\n";
  struct Row {
    std::string journal;
    int asked;
    std::string told;
    std::string form = "formPrioritäten";
  };
  const std::string step1 = "nur bis „Bogenwerker - Schritt 1“";
  const std::vector<Row> rows = {
      {"", 0, ""},
      {"# Bogenwerker 1.0.0\n# Wurf 3\nclick optRas", 0, ""},
      {"# Bogenwerker 9.9\r\nclick optRasseElf\r\n", 1, ""},
      {"click optRasseElf\n# Wurf", 1, "nur die letzte Eingabe ging verloren"},
      {std::string("click optRasseElf\n\0\0\n", 21), 1, step1},
      {"click optRasseElf\nclick cmdWeiter1\n", 1, step1},
      {"click optRasseElf\nclose\n", 1, step1},
      {"# Wurf 0\n" + toStep5 + "pick cmbCyberware Verrat\n", 1, "nur bis „Ausrüstung - Schritt 5“", "formAusrüstung"},
      {"# Kataloge 00000000\n" + toStep5, 1, "Die Kataloge sind seither geändert worden", "formAusrüstung"}};
  for (const Row& row : rows) {
    for (const bool goesOn : {false, true}) {
      Folder folder;
      writeBytes(file, row.journal);
      Session session(folder.throws, goesOn);
      EXPECT_EQ(session.asked, row.asked) << row.journal;
      EXPECT_TRUE(goesOn ? session.told.find(row.told) != std::string::npos : session.told.empty()) << session.told;
      EXPECT_EQ(session.wizard.runtime().visibleForm()->name(), goesOn ? row.form : "formPrioritäten") << row.journal;
      EXPECT_EQ(fileBytes(file), row.journal) << "lost too early";
    }
  }
}

TEST(Journal, CostsOneWriteAGestureAndNeverTheCharacter) {
  Folder folder;
  Session session(folder.throws);
  for (std::size_t i = 0; i < gestures.size(); ++i) {
    const Form* form = session.wizard.runtime().visibleForm();
    const int flushes = session.files.otherFlushes;
    session.files.failAt(i == 50 ? 0 : 1000, ENOSPC);
    ASSERT_TRUE(session.play(gestures[i]));
    const bool staysOnForm = i > 0 && session.wizard.runtime().visibleForm() == form;
    EXPECT_TRUE(!staysOnForm || session.files.calls() == (i <= 50 ? 1 : 0)) << gestures[i];
    EXPECT_TRUE(i == 0 || i > 50 || staysOnForm != (session.files.otherFlushes > flushes)) << gestures[i];
    EXPECT_EQ(session.told.empty(), i < 83) << gestures[i];  // where step 3 is left
  }
  EXPECT_EQ(session.told.find("nicht mehr gesichert"), session.told.rfind("nicht mehr gesichert"));
  EXPECT_EQ(fileBytes(file), "");
}

}  // namespace
}  // namespace bogenwerker
