// Catalogues that somebody has spoilt: each is played or refused with a message that says where, never half loaded.
#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <random>
#include <regex>

#include "catalogues/catalogues.h"
#include "equipment/FormAusruestung.h"
#include "finish/FormFeinschliff.h"
#include "finish/FormNamenGeben.h"
#include "wizard/records.h"
#include "wizard/text.h"
#include "world.h"

namespace bogenwerker {
namespace {

constexpr std::array<const char*, 6> catalogueNames = {"Lebensstil.txt", "Connection.txt", "MagicStuff.txt",
                                                       "Cyberware.txt",  "Bioware.txt",    "Cyberdecks.txt"};

class Mutator {
 public:
  explicit Mutator(unsigned seed) : random_(seed) {}
  std::size_t below(std::size_t end) { return std::uniform_int_distribution<std::size_t>(0, end - 1)(random_); }

  // One to three of the slips of a hand, an editor or a disk.
  std::string mutated(std::string bytes) {
    for (std::size_t slips = 1 + below(3); slips > 0; --slips) slip(bytes);
    return bytes;
  }

 private:
  void slip(std::string& bytes) {
    constexpr std::array<const char*, 22> pieces = {",",
                                                    "\"",
                                                    "\r\n",
                                                    "\n",
                                                    "\r",
                                                    " ",
                                                    "-",
                                                    ".",
                                                    "0",
                                                    "9",
                                                    "99999999999999999999",
                                                    "#TRUE#",
                                                    "#FALSE#",
                                                    "#",
                                                    "\xC3\xA4",
                                                    "\xE4",
                                                    "\xEF\xBB\xBF",
                                                    "1e30",
                                                    "nan",
                                                    "-32769",
                                                    ",,",
                                                    "\x1A"};
    const std::size_t at = bytes.empty() ? 0 : below(bytes.size());
    const std::size_t length = 1 + below(12);
    switch (below(11)) {
      case 0: bytes.insert(at, pieces[below(pieces.size())]); break;
      case 1: bytes.replace(at, 1, pieces[below(pieces.size())]); break;
      case 2: bytes.erase(at, length); break;
      case 3: bytes.resize(at); break;
      case 4: bytes.insert(at, bytes.substr(at, 20 * length)); break;
      case 5: bytes.erase(at, bytes.find('\n', at) - at); break;
      case 6:
        if (!bytes.empty()) bytes[at] = static_cast<char>(below(256));
        break;
      // Rows know no lines, and names without a comma need no quotes: these do no harm.
      case 7: replaceNext(bytes, at, "\r\n", ","); break;
      case 8: replaceNext(bytes, at, ",", "\r\n"); break;
      case 9: std::erase(bytes, '"'); break;
      default: swapFields(bytes, at);
    }
  }
  static void replaceNext(std::string& bytes, std::size_t at, std::string_view what, std::string_view with) {
    const std::size_t found = bytes.find(what, at);
    if (found != bytes.npos) bytes.replace(found, what.size(), with);
  }
  static void swapFields(std::string& bytes, std::size_t at) {
    const std::size_t first = bytes.find(',', at);
    const std::size_t second = first == bytes.npos ? first : bytes.find(',', first + 1);
    if (second == bytes.npos) return;
    const std::string field = bytes.substr(first, second - first);
    bytes.erase(first, field.size());
    bytes.insert(at, field);
  }

  std::mt19937 random_;
};

// Step 5 alone, with what stands behind it, opened as the step before opens it.
class StepFive {
 public:
  explicit StepFive(Files& files)
      : runtime_({.files = files,
                  .numbers = {},
                  .showMessage = [this](Message, std::string_view text) { fault = text; },
                  .throwDie = [] { return 1; }}) {}

  bool open() {
    fault.clear();
    runtime_.perform(form_, [this] { form_.setVisible(true); });
    return form_.isVisible();
  }
  [[nodiscard]] bool isLoaded() const { return form_.isLoaded(); }
  std::vector<std::vector<std::string>> contents() {
    return {form_.cmbLebensstil.entries(), form_.cmbConnection.entries(), form_.cmbMagic.entries(),
            form_.cmbCyberware.entries(),  form_.cmbBioware.entries(),    form_.cmbCyberdecks.entries(),
            form_.lstAusrüstung.lines()};
  }

  std::string fault;

 private:
  FormsRuntime runtime_;
  FormNamenGeben namenGeben_{runtime_};
  FormFeinschliff feinschliff_{runtime_, namenGeben_};
  FormAusrüstung form_{runtime_, feinschliff_, namenGeben_};
};

// The first rows are enough to spoil, and quicker to read.
std::string firstRows(const std::string& bytes, int rows) {
  std::size_t end = 0;
  while (rows-- > 0) end = bytes.find('\n', end) + 1;
  return bytes.substr(0, end);
}

// What step 6 finds of every name without looking at each row closely has to be what reading each row finds.
template <class Row>
void compareSearches(Files& files, const std::string& file) {
  std::vector<std::pair<std::string, Currency>> rows;
  forEachRow<Row>(files, file, mostCyberware, [&rows](const Row& row) { rows.emplace_back(row.name, row.kosten); });
  for (const auto& [name, first] : rows) {
    std::vector<Currency> expected;
    for (const auto& [other, kosten] : rows) {
      if (other == name) expected.push_back(kosten);
    }
    std::vector<Currency> found;
    std::string buffer;
    forEachRowNamed<Row>(files, file, cp1252FromUtf8(name), buffer,
                         [&](const Row& row) { found.push_back(row.kosten); });
    EXPECT_EQ(found, expected) << name;
  }
}

// Removing first spares the flush that some file systems give to a file that is cut and written anew.
void putBytes(const std::string& name, std::string_view bytes) {
  std::filesystem::remove(name);
  writeBytes(name, bytes);
}

TEST(Mutations, OfTenThousandCataloguesNoneIsHalfLoaded) {
  const TemporaryFolder folder;
  copyShippedData();
  Files files;
  RecordWriter priorities(files, "Prioritäten.txt");
  priorities.write("Elf", "Aspekt", Currency(90000));
  priorities.close();
  std::array<std::string, catalogueNames.size()> good;
  for (std::size_t i = 0; i < good.size(); ++i) {
    good[i] = firstRows(fileBytes(catalogueNames[i]), 6);
    writeBytes(catalogueNames[i], good[i]);
  }
  StepFive undisturbed(files);
  ASSERT_TRUE(undisturbed.open());
  const auto expected = undisturbed.contents();

  const std::regex saysWhere(".*, Zeile [1-9][0-9]*[,:] .*");
  int played = 0;
  int refused = 0;
  Mutator mutator(20260117);
  for (int round = 0; round < 10'000 && !HasFailure(); ++round) {
    const std::size_t which = mutator.below(good.size());
    const std::string file = catalogueNames[which];
    const std::string spoilt = mutator.mutated(good[which]);
    SCOPED_TRACE(file + ", round " + std::to_string(round) + ":\n" + spoilt);
    putBytes(file, spoilt);

    std::vector<std::string> faults;
    checkCatalogues(files, faults);
    for (const std::string& fault : faults) {
      const bool isUtf8 = fault.find("als Unicode (UTF-8 oder UTF-16) gespeichert") != fault.npos;
      EXPECT_TRUE(fault.starts_with(file) && (isUtf8 || std::regex_match(fault, saysWhere))) << fault;
    }
    ++(faults.empty() ? played : refused);

    StepFive step(files);
    if (step.open()) {
      EXPECT_EQ(step.fault, "");
      EXPECT_EQ(step.contents().back(), expected.back());
      if (file == "Cyberware.txt" || file == "Bioware.txt") compareSearches<WareRow>(files, file);
      if (file == "Cyberdecks.txt") compareSearches<DeckRow>(files, file);
    } else {
      EXPECT_FALSE(faults.empty()) << "passed the check, but not step 5: " << step.fault;
      EXPECT_TRUE(step.fault.starts_with(file)) << step.fault;
      EXPECT_FALSE(step.isLoaded());
    }
    putBytes(file, good[which]);
    if (step.isLoaded()) continue;
    EXPECT_TRUE(step.open()) << step.fault;
    EXPECT_EQ(step.contents(), expected) << "left over from the load that failed";
  }
  EXPECT_GT(played, 1000);
  EXPECT_GT(refused, 1000);
}

}  // namespace
}  // namespace bogenwerker
