// What the fuzz targets promise holds for thousands of spoilt copies of what lies in fuzz/corpus, under every compiler.
#include <gtest/gtest.h>

#include <random>

#include "stage.h"

namespace bogenwerker {

extern const std::map<std::string, void (*)(std::string_view)> fuzzTargets;
namespace {

// What a slip of a hand, an editor or a disk leaves in the place of a few bytes.
const Texts pieces =
    split("|,|\"|\r\n|\n|\r| |-|.|0|9|99999999999999999999|#TRUE#|#|\xC3\xA4|\xE4|1e30|nan|-32769|\x1A", "|");

class Spoilt : public testing::TestWithParam<std::pair<const char*, std::size_t>> {};

TEST_P(Spoilt, KeepsThePromises) {
  const auto& [target, rounds] = GetParam();
  Texts corpus;
  for (const auto& file : std::filesystem::directory_iterator(SOURCE_DIR "/fuzz/corpus/" + std::string(target)))
    corpus.push_back(fileBytes(file.path().string()));
  std::mt19937 random(20260117);
  for (std::size_t round = 0; round < rounds; ++round) {
    std::string bytes = corpus[round % corpus.size()];
    for (std::size_t slips = round / corpus.size() % 4; slips > 0; --slips) {
      const std::string copied = bytes.substr(random() % (bytes.size() + 1), random() % 200);
      const std::string& piece = random() % 4 == 0 ? copied : pieces[random() % pieces.size()];
      bytes.replace(random() % (bytes.size() + 1), random() % 12, piece);
    }
    SCOPED_TRACE("round " + std::to_string(round) + ":\n" + bytes);
    ASSERT_NO_THROW(fuzzTargets.at(target)(bytes));
  }
}
INSTANTIATE_TEST_SUITE_P(Corpus, Spoilt,
                         testing::Values(std::pair("records", 2000U), std::pair("catalogues", 800U),
                                         std::pair("gestures", 30U)),
                         [](const auto& row) { return std::string(row.param.first); });

}  // namespace
}  // namespace bogenwerker
