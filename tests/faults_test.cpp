// Whatever fails in the middle of a gesture: the state is the one before it, and the same gesture then goes on.
#include <gtest/gtest.h>

#include <regex>

#include "values/fault.h"
#include "world.h"

namespace bogenwerker {
namespace {

class Faults : public testing::TestWithParam<std::pair<int, const char*>> {};

// Each gesture is tried again and again, one system call later each time, until it goes through undisturbed.
TEST_P(Faults, LeaveTheGestureUndoneAndTheNextOneGoesOn) {
  const std::string character = fileBytes(SOURCE_DIR "/examples/zauberin/gestures.txt");
  World undisturbed;
  ASSERT_TRUE(undisturbed.wizard.start());
  undisturbed.play(character);
  ASSERT_TRUE(undisturbed.wizard.runtime().isOver());
  const auto expected = filesIn();
  World world;
  ASSERT_TRUE(world.wizard.start());
  const auto& [error, text] = GetParam();
  int failed = 0;
  for (const std::string& gesture : splitLines(character)) {
    for (int call = 0;; ++call, ++failed) {
      const std::string before = world.dump();
      world.files.failAt(call, error);
      world.play(gesture);
      if (world.faults.empty()) {
        ASSERT_GE(call, world.files.calls()) << "a failed call went unnoticed: " << gesture;
        break;
      }
      ASSERT_EQ(world.faults.size(), 1U);
      const std::string fault = std::exchange(world.faults, {}).front();
      EXPECT_TRUE(fault.find("geschrieben") == fault.npos || std::regex_search(fault, std::regex(text))) << fault;
      EXPECT_NE(fault.find("drücken Sie einfach noch einmal"), fault.npos) << fault;
      ASSERT_EQ(world.dump(), before) << gesture << call;
    }
  }
  EXPECT_GT(failed, 15);
  EXPECT_EQ(world.messages.size(), 1U);
  EXPECT_EQ(filesIn(), expected);
}
INSTANTIATE_TEST_SUITE_P(Errors, Faults,
                         testing::Values(std::pair(ENOENT, ""), std::pair(EIO, ""),
                                         std::pair(EACCES, "Datei ist geschützt|dürfen Sie keine Dateien anlegen"),
                                         std::pair(ENOSPC, "ist voll. Schaffen Sie Platz auf dem Datenträger.")));

TEST(Files, AreReplacedWholeAndLeaveNoLitter) {
  const TemporaryFolder folder;
  FaultyFiles files;
  writeBytes("Bogenwerker.neu", "left by a run that was killed");
  files.mostPerWrite = 3;
  files.replace("old.txt", "old content", Durability::untilPowerLoss);
  files.failAt(1000, EIO);
  files.replace("old.txt", "new content", Durability::onDisk);
  const int calls = files.calls();
  ASSERT_GE(calls, 8);  // open, four writes, flush, close, rename
  for (int call = 0; call < calls; ++call) {
    EXPECT_EQ(filesIn(), (std::map<std::string, std::string>{{"old.txt", "new content"}})) << call;
    files.failAt(call, ENOSPC);
    EXPECT_THROW(files.replace("old.txt", "not to come", Durability::onDisk), Fault) << call;
  }
  files.failAt(3, EINTR);
  files.replace("old.txt", "whole all the same", Durability::untilPowerLoss);
  files.failAt(1, EINTR);
  EXPECT_EQ(files.read("old.txt"), "whole all the same");
}

}  // namespace
}  // namespace bogenwerker
