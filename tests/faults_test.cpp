// Whatever fails in the middle of a gesture: the state is the one before it, and the same gesture then goes on.
#include <gtest/gtest.h>

#include <cerrno>
#include <map>

#include "world.h"

namespace bogenwerker {
namespace {

std::map<std::string, std::string> allFiles() {
  std::map<std::string, std::string> files;
  for (const std::string& name : fileNames()) files[name] = fileBytes(name);
  return files;
}

const std::string character = SOURCE_DIR "/examples/zauberin/gestures.txt";

class Faults : public testing::TestWithParam<int> {};

// Each gesture is tried again and again, one system call later each time, until it goes through undisturbed.
TEST_P(Faults, LeaveTheGestureUndoneAndTheNextOneGoesOn) {
  std::map<std::string, std::string> undisturbed;
  {
    World world;
    ASSERT_TRUE(world.wizard.start());
    world.play(fileBytes(character));
    ASSERT_TRUE(world.wizard.runtime().isOver());
    undisturbed = allFiles();
  }
  World world;
  ASSERT_TRUE(world.wizard.start());
  int failed = 0;
  for (const std::string& gesture : splitLines(fileBytes(character))) {
    for (int call = 0;; ++call, ++failed) {
      const std::string before = world.dump();
      world.files.failAt(call, GetParam());
      const auto replies = world.play(gesture);
      if (world.faults.empty()) {
        ASSERT_GE(call, world.files.calls()) << "a failed call went unnoticed: " << gesture;
        break;
      }
      ASSERT_EQ(replies.back(), "ok");
      ASSERT_EQ(std::exchange(world.faults, {}).size(), 1U);
      ASSERT_EQ(world.dump(), before) << gesture << call;
      ASSERT_TRUE(world.messages.empty());
      for (const std::string& name : fileNames()) ASSERT_FALSE(name.ends_with(".neu")) << name;
    }
  }
  EXPECT_GT(failed, 15);
  EXPECT_EQ(allFiles(), undisturbed);
}
INSTANTIATE_TEST_SUITE_P(Errors, Faults, testing::Values(ENOENT, EACCES, ENOSPC, EIO, EMFILE));

TEST(FaultTexts, TellWhatWhereAndWhatToDo) {
  World world;
  ASSERT_TRUE(world.wizard.start());
  world.playOk(
      "1 x click optRasseElf; click optVollzauberer; click optAttribute18; click optFertigkeiten40; click optRessD");
  const std::vector<std::pair<int, std::string>> rows = {
      {ENOSPC, "Der Datenträger ist voll. Schaffen Sie Platz auf dem Datenträger."},
      {EACCES, "Der Zugriff ist nicht erlaubt. Prüfen Sie die Rechte der Datei und des Ordners."},
      {EISDIR, "Unter diesem Namen gibt es schon einen Ordner."}};
  for (const auto& [error, text] : rows) {
    world.files.failAt(0, error);
    world.play("click cmdWeiter1");
    const std::string& fault = world.faults.back();
    EXPECT_TRUE(fault.starts_with("Prioritäten.txt kann nicht geschrieben werden: " + text)) << fault;
    EXPECT_NE(fault.find("drücken Sie einfach noch einmal"), std::string::npos);
  }
}

}  // namespace
}  // namespace bogenwerker
