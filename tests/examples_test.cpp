// Whole characters, played through the built program. With BOGENWERKER_REWRITE=1 in the environment a difference
// rewrites the expected files, for review with the version control.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <regex>

#include "world.h"

namespace bogenwerker {
namespace {

namespace fs = std::filesystem;

const fs::path examples = SOURCE_DIR "/examples";
constexpr std::string_view closing =
    "message Fertig! Bitte überprüfen Sie den Charakter. Marvino's Bogenwerker ersetzt keine Regelwerke!";

std::vector<std::string> foldersIn(const fs::path& folder) {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder)) {
    if (fs::exists(entry.path() / "gestures.txt")) names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

// The line of the start capital, in step file and sheet alike: its amount hangs on the dice.
const std::regex capital("Startkapital: ([0-9]+(,[0-9]{1,4})?) Nuyen");

std::string masked(const std::string& bytes) { return std::regex_replace(bytes, capital, "Startkapital: # Nuyen"); }

std::string firstDifference(const std::string& expected, const std::string& actual) {
  const auto left = splitLines(expected);
  const auto right = splitLines(actual);
  const auto [l, r] = std::mismatch(left.begin(), left.end(), right.begin(), right.end());
  if (l == left.end() && r == right.end()) return "line ends differ";
  return "line " + std::to_string(l - left.begin() + 1) + "\nexpected: " + (l == left.end() ? "(end)" : *l) +
         "\nactual:   " + (r == right.end() ? "(end)" : *r);
}

class Examples : public testing::TestWithParam<std::string> {
 protected:
  // Leaves step files and sheet in the current folder. The states that it asks for ahead of each way onward tell what
  // money was left when the dice fell.
  void play() {
    copyShippedData();
    const std::vector<std::string> shipped = fileNames();
    std::string gestures;
    for (const std::string& line : splitLines(fileBytes(folder_ / "gestures.txt"))) {
      if (line == "click cmdGoAhead") gestures += "dump\n";
      gestures += line + "\n";
    }
    writeBytes("gestures", gestures);
    ASSERT_EQ(std::system("LANG=de_DE.UTF-8 LC_ALL=de_DE.UTF-8 '" HEADLESS "' < gestures > replies"), 0);

    std::vector<std::string> replies = splitLines(fileBytes("replies"));
    ASSERT_GE(replies.size(), 2U);
    EXPECT_EQ(replies.back(), "end");
    replies.pop_back();
    EXPECT_EQ(replies.back(), closing);
    replies.pop_back();
    for (std::size_t i = 0; i < replies.size(); ++i) {
      if (replies[i].starts_with("[{")) dump_ = replies[i];
      else EXPECT_EQ(replies[i], "ok") << "reply " << i + 1;
    }
    fs::remove("gestures");
    fs::remove("replies");
    const std::vector<std::string> all = fileNames();
    std::set_difference(all.begin(), all.end(), shipped.begin(), shipped.end(), std::back_inserter(written_));
    EXPECT_EQ(written_.size(), 8U) << "seven step files and the sheet";
  }

  // In ten-thousandths.
  [[nodiscard]] std::int64_t moneyLeft() const {
    const std::string before = R"("name":"lblMoney")";
    const std::string key = R"("caption":")";
    const std::size_t start = dump_.find(key, dump_.find(before)) + key.size();
    return amount(dump_.substr(start, dump_.find('"', start) - start));
  }
  static std::int64_t amount(const std::string& text) {
    const auto value = currencyOf(text, {",", ""});
    EXPECT_TRUE(value) << text;
    return value ? value->tenThousandths() : 0;
  }

  // A tenth of the money left, and three dice of a hundred each.
  void checkCapital(const std::string& bytes) const {
    std::smatch found;
    ASSERT_TRUE(std::regex_search(bytes, found, capital));
    constexpr std::int64_t hundred = 100 * Currency::perUnit;
    const std::int64_t thrown = amount(found[1]) - moneyLeft() / 10;
    EXPECT_EQ(thrown % hundred, 0) << found[1];
    EXPECT_GE(thrown / hundred, 3) << found[1];
    EXPECT_LE(thrown / hundred, 18) << found[1];
  }

  const fs::path folder_ = examples / GetParam();
  std::vector<std::string> written_;

 private:
  TemporaryFolder temporary_;
  std::string dump_;
};

TEST_P(Examples, EndInTheExpectedFiles) {
  ASSERT_NO_FATAL_FAILURE(play());
  const char* const rewrite = std::getenv("BOGENWERKER_REWRITE");
  const bool rewriting = rewrite != nullptr && std::string_view(rewrite) == "1";
  if (rewriting) fs::create_directories(folder_ / "expected");

  std::vector<std::string> expectedNames;
  for (const auto& entry : fs::directory_iterator(folder_ / "expected")) {
    expectedNames.push_back(entry.path().filename().string());
    const bool isWritten = std::count(written_.begin(), written_.end(), expectedNames.back()) == 1;
    if (rewriting && !isWritten) fs::remove(entry.path());
    else EXPECT_TRUE(isWritten) << expectedNames.back() << " was not written";
  }
  std::string difference;
  for (const std::string& name : written_) {
    const std::string actual = fileBytes(name);
    const std::string expected = fileBytes(folder_ / "expected" / name);
    if (name == "Ausrüstung.txt" || name.ends_with(".htm")) checkCapital(actual);
    if (masked(actual) != masked(expected)) difference = name + ", " + firstDifference(masked(expected), masked(actual));
  }
  if (difference.empty()) return;
  // All of them, so that step file and sheet tell of the same dice.
  for (const std::string& name : written_) {
    if (rewriting) writeBytes(folder_ / "expected" / name, fileBytes(name));
  }
  if (!rewriting) ADD_FAILURE() << difference;
}

INSTANTIATE_TEST_SUITE_P(Played, Examples, testing::ValuesIn(foldersIn(examples)),
                         [](const auto& row) { return row.param; });

}  // namespace
}  // namespace bogenwerker
