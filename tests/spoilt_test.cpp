// What the fuzz targets promise holds for thousands of spoilt copies of what lies in fuzz/corpus, under every compiler.
#include <gtest/gtest.h>

#include <map>
#include <random>

#include "stage.h"

namespace bogenwerker {

extern const std::map<std::string, void (*)(std::string_view)> fuzzTargets;
namespace {

std::size_t below(std::size_t end) {
  static std::mt19937 random(20260117);
  return std::uniform_int_distribution<std::size_t>(0, end - 1)(random);
}

// One of the slips of a hand, an editor or a disk.
void slip(std::string& bytes) {
  static const std::string pieces =
      ",|\"|\r\n|\n|\r| |-|.|0|9|99999999999999999999|#TRUE#|#|\xC3\xA4|\xE4|1e30|nan|-32769|\x1A";
  static const std::vector<std::string> each = split(pieces, "|");
  const std::string& piece = each[below(each.size())];
  const std::size_t at = below(bytes.size() + 1);
  const std::size_t length = 1 + below(12);
  const std::size_t line = std::min(bytes.find('\n', at), bytes.size() - 1) + 1 - at;
  switch (below(7)) {
    case 0: bytes.insert(at, piece); break;
    case 1: bytes.replace(at, 1, piece); break;
    case 2: bytes.erase(at, length); break;
    case 3: bytes.insert(at, bytes.substr(at, 20 * length)); break;
    case 4: bytes.erase(at, line); break;
    case 5: bytes.insert(below(bytes.size() + 1), bytes.substr(at, line)); break;
    default: std::erase(bytes, '"');
  }
}

class Spoilt : public testing::TestWithParam<std::pair<const char*, std::size_t>> {};

TEST_P(Spoilt, KeepsThePromises) {
  const auto& [target, rounds] = GetParam();
  std::vector<std::string> corpus;
  for (const auto& entry : std::filesystem::directory_iterator(SOURCE_DIR "/fuzz/corpus/" + std::string(target))) {
    corpus.push_back(fileBytes(entry.path().string()));
  }
  for (std::size_t round = 0; round < rounds; ++round) {
    std::string bytes = corpus[round % corpus.size()];
    for (std::size_t slips = round < corpus.size() ? 0 : 1 + below(3); slips > 0; --slips) slip(bytes);
    SCOPED_TRACE("round " + std::to_string(round) + ":\n" + bytes);
    ASSERT_NO_THROW(fuzzTargets.at(target)(bytes));
  }
}
INSTANTIATE_TEST_SUITE_P(Corpus, Spoilt,
                         testing::Values(std::pair("money", 5000U), std::pair("records", 2000U),
                                         std::pair("catalogues", 800U), std::pair("gestures", 30U)),
                         [](const auto& row) { return std::string(row.param.first); });

}  // namespace
}  // namespace bogenwerker
