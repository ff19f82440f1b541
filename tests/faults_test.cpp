// Whatever fails in the middle of a passage: the state is the one before the press, and the same press then goes on.
#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <map>

#include "world.h"

namespace bogenwerker {
namespace {

using Snapshot = std::map<std::string, std::string>;

Snapshot allFiles() {
  Snapshot files;
  for (const std::string& name : fileNames()) files[name] = fileBytes(name);
  return files;
}

// The presses that pass from form to form, each with what comes ahead of it.
struct Passage {
  std::string ahead;
  std::string press;
};
std::vector<Passage> passages() {
  const auto split = [](std::string script) {
    const std::size_t last = script.rfind("click ");
    return Passage{script.substr(0, last), script.substr(last)};
  };
  return {split(road::priorities("optRasseElf", "optVollzauberer", "optAttribute18", "optFertigkeiten40", "optRessD")),
          split(road::attributes({3, 3, 3, 3, 3, 3})),
          split(road::skills(40, 3)),
          split(road::knowledge(3)),
          {"type txtEquipment Seil\ntype txtEquipmentKosten 20,5\nclick cmdAddEquipment\n"
           "pick cmbCyberware Nackenstecker\nclick cmdAddCyberware\n",
           "click cmdGoAhead\n"},
          {"type txtName Fehlerfrei\n", "click cmdOkay\n"},
          {"", "click cmdErzeugeHTML\n"}};
}

class Faults : public testing::TestWithParam<int> {};

// One whole character for each system call of each passage, which fails once with the errno of the test.
TEST_P(Faults, LeaveThePassageUndoneAndTheNextPressGoesOn) {
  Snapshot undisturbed;
  {
    World world;
    ASSERT_TRUE(world.wizard.start());
    for (const Passage& passage : passages()) world.play(passage.ahead + passage.press);
    undisturbed = allFiles();
    ASSERT_TRUE(undisturbed.contains("Fehlerfrei.htm"));
  }
  World world;
  int failed = 0;
  // Each passage is tried again and again, one call later each time, until it goes through undisturbed.
  ASSERT_TRUE(world.wizard.start());
  for (const Passage& passage : passages()) {
    world.play(passage.ahead);
    for (int call = 0;; ++call) {
      const std::string before = world.dump();
      world.faults.clear();
      world.files.failAt(call, GetParam());
      const auto replies = world.play(passage.press);
      if (world.faults.empty()) {
        ASSERT_GE(call, world.files.calls()) << "a failed call went unnoticed: " << passage.press;
        break;
      }
      ASSERT_EQ(replies.back(), "ok");
      ASSERT_EQ(world.faults.size(), 1U);
      ASSERT_EQ(world.dump(), before) << passage.press << call;
      ASSERT_TRUE(world.messages.empty());
      for (const std::string& name : fileNames()) ASSERT_FALSE(name.ends_with(".neu")) << name;
      ++failed;
    }
  }
  EXPECT_GT(failed, 15);
  EXPECT_EQ(allFiles(), undisturbed);
}
INSTANTIATE_TEST_SUITE_P(Errors, Faults, testing::Values(ENOENT, EACCES, ENOSPC, EIO, EMFILE));

TEST(FaultTexts, TellWhatWhereAndWhatToDo) {
  World world;
  ASSERT_TRUE(world.wizard.start());
  world.playOk(passages()[0].ahead);
  const std::vector<std::pair<int, const char*>> rows = {
      {ENOSPC, "Der Datenträger ist voll. Schaffen Sie Platz auf dem Datenträger."},
      {EACCES, "Der Zugriff ist nicht erlaubt. Prüfen Sie die Rechte der Datei und des Ordners."},
      {EISDIR, "Unter diesem Namen gibt es schon einen Ordner."}};
  for (const auto& [error, text] : rows) {
    world.files.failAt(0, error);
    world.play(passages()[0].press);
    EXPECT_TRUE(world.faults.back().starts_with("Prioritäten.txt kann nicht geschrieben werden: " + std::string(text)))
        << world.faults.back();
    EXPECT_NE(world.faults.back().find("drücken Sie einfach noch einmal"), std::string::npos);
  }
}

// Files that change between the steps: what the player has done stays, and a mended file lets the same press go on.
TEST(Faults, AStepKeepsItsOwnChecks) {
  World world;
  ASSERT_TRUE(world.wizard.start());
  for (int i = 0; i < 3; ++i) world.playOk(passages()[static_cast<std::size_t>(i)].ahead + passages()[static_cast<std::size_t>(i)].press);
  world.playOk(passages()[3].ahead);
  const std::string good = fileBytes("Cyberware.txt");
  const std::string before = world.dump();
  for (const std::string& bad : {good + "\"Halb\",1,2\r\n", std::string("\"A\",ja,1\r\n"), std::string(1, ',')}) {
    writeBytes("Cyberware.txt", bad);
    world.play(passages()[3].press);
    EXPECT_EQ(world.dump(), before);
  }
  std::filesystem::remove("Bioware.txt");
  std::filesystem::create_directory("Bioware.txt");
  writeBytes("Cyberware.txt", good);
  world.play(passages()[3].press);
  EXPECT_EQ(world.faults.size(), 4U);
  EXPECT_EQ(world.dump(), before);
  std::filesystem::remove("Bioware.txt");
  copyShippedData();
  world.playOk(passages()[3].press);
  EXPECT_TRUE(world.wizard.formAusrüstung.isVisible());
  EXPECT_EQ(world.faults.size(), 4U);
}

}  // namespace
}  // namespace bogenwerker
