// Whole characters, played through the built program. With BOGENWERKER_REWRITE in the environment the expected files
// are rewritten, for review with the version control.
#include <gtest/gtest.h>

#include <regex>

#include "world.h"

namespace bogenwerker {
namespace {

const std::filesystem::path all(SOURCE_DIR "/examples");

// The amount of the start capital hangs on the dice.
std::string masked(const std::string& bytes) {
  static const std::regex capital("Startkapital: [0-9]+(,[0-9]{1,4})? Nuyen");
  return std::regex_replace(bytes, capital, "Startkapital");
}

class Examples : public testing::TestWithParam<std::string> {};

TEST_P(Examples, EndInTheExpectedFiles) {
  const TemporaryFolder folder;
  copyShippedData();
  std::filesystem::copy(all / GetParam() / "gestures.txt", ".");
  const auto brought = filesIn();
  ASSERT_EQ(std::system(PLAY " < gestures.txt > replies"), 0);
  auto written = filesIn();
  std::vector<std::string> replies = splitLines(written.extract("replies").mapped());
  EXPECT_GT(std::erase(replies, "ok"), 100);
  EXPECT_TRUE(replies.size() == 2 && replies[0].starts_with("message Fertig!") && replies[1] == "end");

  for (const auto& [name, bytes] : brought) written.erase(name);
  const std::filesystem::path expected = all / GetParam() / "expected";
  if (std::getenv("BOGENWERKER_REWRITE") != nullptr) {
    std::filesystem::remove_all(expected);
    std::filesystem::create_directory(expected);
    for (const auto& [name, bytes] : written) std::filesystem::copy(pathOf(name), expected);
  }
  const auto wanted = filesIn(expected);
  for (const auto& [name, bytes] : wanted) EXPECT_EQ(masked(written[name]), masked(bytes)) << name;
  EXPECT_EQ(written.size(), wanted.size());
}

std::vector<std::string> examples() {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(all)) names.push_back(entry.path().filename().string());
  return names;
}
INSTANTIATE_TEST_SUITE_P(Played, Examples, testing::ValuesIn(examples()), [](const auto& row) { return row.param; });

}  // namespace
}  // namespace bogenwerker
