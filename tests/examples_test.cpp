// Whole characters, played through the built program. With BOGENWERKER_REWRITE=1 in the environment a difference
// rewrites the expected files, for review with the version control.
#include <gtest/gtest.h>

#include <map>
#include <regex>

#include "world.h"

namespace bogenwerker {
namespace {

namespace fs = std::filesystem;

// The lines of all files in a folder, but for the amount of the start capital, which hangs on the dice.
std::map<fs::path, std::vector<std::string>> filesIn(const fs::path& folder) {
  static const std::regex capital("Startkapital: [0-9]+(,[0-9]{1,4})? Nuyen");
  std::map<fs::path, std::vector<std::string>> files;
  for (const auto& entry : fs::directory_iterator(folder)) {
    std::ifstream file(entry.path(), std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    files[entry.path().filename()] = splitLines(std::regex_replace(bytes, capital, "Startkapital: # Nuyen"));
  }
  return files;
}

class Examples : public testing::TestWithParam<std::string> {};

TEST_P(Examples, EndInTheExpectedFiles) {
  const fs::path example = fs::path(SOURCE_DIR "/examples") / GetParam();
  const TemporaryFolder folder;
  copyShippedData();
  const auto shipped = filesIn(".");
  fs::copy(example / "gestures.txt", ".");
  ASSERT_EQ(std::system(PLAY " < gestures.txt > replies"), 0);
  std::vector<std::string> replies = splitLines(fileBytes("replies"));
  EXPECT_EQ(std::erase(replies, "ok") > 100 ? replies : std::vector<std::string>(),
            (std::vector<std::string>{
                "message Fertig! Bitte überprüfen Sie den Charakter. Marvino's Bogenwerker ersetzt keine Regelwerke!",
                "end"}));

  auto written = filesIn(".");
  for (const auto& [name, lines] : shipped) written.erase(name);
  for (const char* ours : {"gestures.txt", "replies"}) written.erase(ours);
  const auto expected = filesIn(example / "expected");
  EXPECT_EQ(written, expected);
  const char* const rewrite = std::getenv("BOGENWERKER_REWRITE");
  if (written == expected || rewrite == nullptr || std::string_view(rewrite) != "1") return;
  fs::remove_all(example / "expected");
  fs::create_directories(example / "expected");
  for (const auto& [name, lines] : written) fs::copy(name, example / "expected");
}

std::vector<std::string> examples() {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(SOURCE_DIR "/examples")) {
    if (fs::exists(entry.path() / "gestures.txt")) names.push_back(entry.path().filename().string());
  }
  return names;
}
INSTANTIATE_TEST_SUITE_P(Played, Examples, testing::ValuesIn(examples()), [](const auto& row) { return row.param; });

}  // namespace
}  // namespace bogenwerker
