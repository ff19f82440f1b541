// The catalogues and the template as players get them.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <sstream>

#include "catalogues/catalogues.h"
#include "wizard/text.h"
#include "world.h"

namespace bogenwerker {
namespace {

// A box of the equipment form shows about 45 characters; the widest names stay clear of its edge.
constexpr std::size_t longestName = 40;

class Data : public testing::Test {
 protected:
  void SetUp() override { copyShippedData(); }

  template <class Row>
  std::vector<Row> rows(const std::string& file) {
    std::vector<Row> result;
    forEachRow<Row>(files, file, [&](const Row& row) { result.push_back(row); });
    return result;
  }
  std::vector<WareRow> allWare() {
    std::vector<WareRow> result = rows<WareRow>("Cyberware.txt");
    for (const WareRow& row : rows<WareRow>("Bioware.txt")) result.push_back(row);
    return result;
  }

  TemporaryFolder folder;
  Files files;
};

std::vector<std::string> linesOf(const std::string& bytes) {
  std::vector<std::string> lines;
  std::istringstream stream(bytes);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

std::size_t charactersOf(const std::string& text) { return cp1252FromUtf8(text).size(); }

// "12500" as "12.500".
std::string grouped(std::int64_t amount) {
  std::string digits = std::to_string(amount);
  for (int at = static_cast<int>(digits.size()) - 3; at > 0; at -= 3)
    digits.insert(static_cast<std::size_t>(at), 1, '.');
  return digits;
}

std::string price(Currency kosten) {
  EXPECT_EQ(kosten.tenThousandths() % Currency::perUnit, 0);
  return grouped(kosten.tenThousandths() / Currency::perUnit) + " Y";
}

std::string costs(const MagicRow& row) {
  std::string text;
  const auto add = [&](bool any, const std::string& part) {
    if (any) text += (text.empty() ? "" : " / ") + part;
  };
  add(row.kosten > Currency(), price(row.kosten));
  add(row.spruchpunkte > 0, textOf(row.spruchpunkte) + " SP");
  add(row.kraftpunkte > 0, textOf(row.kraftpunkte, NumberLocale{",", "."}) + " KP");
  return " (" + text + ")";
}

std::string changes(const WareEffects& effects) {
  std::string text;
  const auto add = [&](Integer value, const std::string& word, const std::string& unit = "") {
    if (value != 0) text += (text.empty() ? "" : " ") + word + (value > 0 ? "+" : "") + textOf(value) + unit;
  };
  add(effects.kon, "Kon");
  add(effects.Schnell, "Sch");
  add(effects.Stark, "Stä");
  add(effects.Char, "Cha");
  add(effects.Intell, "Int");
  add(effects.Will, "Wil");
  add(effects.reak, "Rea");
  add(effects.ini, "Ini", "W6");
  const auto addFor = [&](const std::string& who, Integer reaction, Integer initiative) {
    if (reaction == 0 && initiative == 0) return;
    text += (text.empty() ? "" : " ") + who;
    add(reaction, "Rea");
    add(initiative, "Ini", "W6");
  };
  if (effects.reakRIGGER == effects.reakDECKER && effects.iniRIGGER == effects.iniDECKER) {
    addFor("Rigger/Decker", effects.reakRIGGER, effects.iniRIGGER);
  } else {
    addFor("Rigger", effects.reakRIGGER, effects.iniRIGGER);
    addFor("Decker", effects.reakDECKER, effects.iniDECKER);
  }
  if (!effects.AnwendaufReak) text += " oR";
  if (!effects.AnwendaufPools) text += " oP";
  return text.empty() ? "" : " (" + text + ")";
}

// Rows are read by the record rules, which would run on across line ends: here each row has to be one line.
template <class Row>
void expectOneRowALine(const std::string& file, int most) {
  const std::string bytes = fileBytes(file);
  RecordReader reader(file, bytes);
  Row row;
  int count = 0;
  while (!reader.atEnd()) {
    ++count;
    ASSERT_EQ(lineOf(bytes, reader.position()), count) << file;
    ASSERT_NO_THROW(readRow(reader, row)) << file << " " << count;
    ASSERT_TRUE(reader.atLineStart()) << file << " " << count << ": too many fields";
  }
  EXPECT_GT(count, 0) << file;
  EXPECT_LE(count, most) << file;
}

TEST_F(Data, EveryRowIsOneLineWithFieldsOfTheirTypes) {
  expectOneRowALine<PriceRow>("Lebensstil.txt", mostLebensstile);
  expectOneRowALine<PriceRow>("Connection.txt", mostConnections);
  expectOneRowALine<MagicRow>("MagicStuff.txt", mostMagicStuff);
  expectOneRowALine<WareRow>("Cyberware.txt", mostCyberware);
  expectOneRowALine<WareRow>("Bioware.txt", mostBioware);
  expectOneRowALine<DeckRow>("Cyberdecks.txt", mostCyberdecks);
}

TEST_F(Data, FilesAreInTheirEncodingAndNamesAreUniqueEverywhereAndFitTheirBox) {
  std::map<std::string, std::string> fileOfName;
  for (const char* file : {"Lebensstil.txt", "Connection.txt", "MagicStuff.txt", "Cyberware.txt", "Bioware.txt",
                           "Cyberdecks.txt", "template.htm"}) {
    const std::string bytes = fileBytes(file);
    EXPECT_FALSE(looksLikeUtf8(bytes)) << file;
    EXPECT_EQ(cp1252FromUtf8(utf8FromCp1252(bytes)), bytes) << file;
    ASSERT_TRUE(bytes.ends_with("\r\n")) << file;
    for (const std::string& line : linesOf(utf8FromCp1252(bytes))) {
      ASSERT_TRUE(line.ends_with('\r')) << file << ": " << line;
      EXPECT_EQ(line.find('\r'), line.size() - 1) << file << ": " << line;
      if (std::string_view(file) == "template.htm") continue;
      ASSERT_TRUE(line.starts_with('"') && std::count(line.begin(), line.end(), '"') == 2) << file << ": " << line;
      const std::string name = line.substr(1, line.find('"', 1) - 1);
      EXPECT_TRUE(!name.empty() && name.front() != ' ' && name.back() != ' ') << file << ": " << name;
      EXPECT_LE(charactersOf(name), longestName) << file << ": " << name;
      EXPECT_EQ(gateTyped(name), name) << file;
      const auto [earlier, isNew] = fileOfName.emplace(name, file);
      EXPECT_TRUE(isNew) << name << " stands in " << earlier->second << " and " << file;
    }
  }
}

TEST_F(Data, NamesTellThePriceThatNoLabelShows) {
  for (const char* file : {"Lebensstil.txt", "Connection.txt"}) {
    for (const PriceRow& row : rows<PriceRow>(file))
      EXPECT_TRUE(row.name.ends_with(" / " + price(row.kosten))) << row.name;
  }
  for (const MagicRow& row : rows<MagicRow>("MagicStuff.txt")) EXPECT_TRUE(row.name.ends_with(costs(row))) << row.name;
  for (const DeckRow& row : rows<DeckRow>("Cyberdecks.txt")) {
    EXPECT_TRUE(row.name.ends_with(" MPCP " + textOf(row.MPCP) + " RV " + textOf(row.Reaktionsverstärkung) + " / " +
                                   price(row.kosten)))
        << row.name;
  }
}

TEST_F(Data, NamesOfWareTellItsEffects) {
  for (const WareRow& row : allWare()) {
    const std::size_t bracket = row.name.find(" (");
    EXPECT_EQ(bracket == std::string::npos ? "" : row.name.substr(bracket), changes(row.effects)) << row.name;
  }
}

// A flag without an attribute to except would only cancel the exception of an earlier purchase.
TEST_F(Data, FlagsExceptOnlyWhatIsThere) {
  for (const WareRow& row : allWare()) {
    const WareEffects& e = row.effects;
    const bool forReaction = e.Schnell != 0 || e.Intell != 0;
    EXPECT_TRUE(e.AnwendaufReak || forReaction) << row.name;
    EXPECT_TRUE(e.AnwendaufPools || forReaction || e.Char != 0 || e.Will != 0) << row.name;
  }
}

TEST_F(Data, EveryEffectIsForSaleForBetterAndForWorse) {
  constexpr std::array effects = {&WareEffects::kon,    &WareEffects::Schnell,    &WareEffects::Stark,
                                  &WareEffects::Intell, &WareEffects::Char,       &WareEffects::Will,
                                  &WareEffects::reak,   &WareEffects::reakRIGGER, &WareEffects::reakDECKER,
                                  &WareEffects::ini,    &WareEffects::iniRIGGER,  &WareEffects::iniDECKER};
  const std::vector<WareRow> ware = allWare();
  for (std::size_t i = 0; i < effects.size(); ++i) {
    const auto has = [&](auto wanted) {
      return std::any_of(ware.begin(), ware.end(), [&](const WareRow& row) { return wanted(row.effects.*effects[i]); });
    };
    EXPECT_TRUE(has([](Integer value) { return value > 0; })) << "effect " << i + 1;
    EXPECT_TRUE(has([](Integer value) { return value < 0; })) << "effect " << i + 1;
  }
}

// Costs that the purse can never cover would make a row dead stock.
TEST_F(Data, EveryRowCanBeBoughtBySomebody) {
  const Currency most = 1'000'000;
  for (const WareRow& row : rows<WareRow>("Cyberware.txt")) {
    EXPECT_TRUE(row.essenz >= 0 && row.essenz < 6 && row.kosten <= most) << row.name;
  }
  for (const WareRow& row : rows<WareRow>("Bioware.txt")) {
    EXPECT_TRUE(row.essenz >= 0 && row.essenz < 9 && row.kosten <= most) << row.name;
  }
  for (const MagicRow& row : rows<MagicRow>("MagicStuff.txt")) {
    EXPECT_TRUE(row.kosten <= most && row.spruchpunkte <= 35 && row.kraftpunkte <= 6) << row.name;
    EXPECT_TRUE(row.spruchpunkte == 0 || row.kraftpunkte == 0) << row.name;
  }
}

TEST_F(Data, LevelsFollowEachOtherInSortedBoxes) {
  std::vector<std::string> names;
  for (const WareRow& row : allWare()) names.push_back(row.name);
  for (const MagicRow& row : rows<MagicRow>("MagicStuff.txt")) names.push_back(row.name);
  std::sort(names.begin(), names.end(),
            [](const std::string& a, const std::string& b) { return germanSortKey(a) < germanSortKey(b); });
  constexpr std::string_view word = " Stufe ";
  std::string family;
  int level = 0;
  std::set<std::string> seen;
  for (const std::string& name : names) {
    const std::size_t at = name.find(word);
    if (at == std::string::npos) continue;
    if (name.substr(0, at) != family) {
      family = name.substr(0, at);
      level = 0;
      EXPECT_TRUE(seen.insert(family).second) << family << " is torn apart";
    }
    EXPECT_EQ(std::stoi(name.substr(at + word.size())), ++level) << name;
  }
  EXPECT_GT(seen.size(), 0U);
}

TEST_F(Data, TemplateKeepsItsCommasAndOffersEveryPlaceholder) {
  std::map<std::string, int> units;
  for (const std::string& line : linesOf(utf8FromCp1252(fileBytes("template.htm")))) {
    const std::string text = line.substr(0, line.size() - 1);
    ++units[text];
    if (text.starts_with('"')) {
      EXPECT_TRUE(text.size() > 1 && text.find('"', 1) == text.size() - 1) << text;
    } else {
      EXPECT_EQ(text.find(','), std::string::npos) << text;
    }
  }
  for (const char* value : {"#NAME#",  "#GSCHLCHT#", "#ALTER#",  "#LOOK#",   "#RASSE#",   "#konst#",  "#schnell#",
                            "#stark#", "#charisma#", "#intell#", "#will#",   "#magie#",   "#reak#",   "#essenz#",
                            "#ini#",   "#astral#",   "#kampf#",  "#steuer#", "#hacking#", "#zauber#", "#aufgaben#"}) {
    EXPECT_GE(units[value], 1) << value;
  }
  EXPECT_GE(units["#AFertigkeit#"], 30);
  EXPECT_EQ(units["#FStufe#"], 30);
  EXPECT_GE(units["#WFertigkeit#"], 60);
  EXPECT_EQ(units["#WStufe#"], 60);
  EXPECT_EQ(units["#AUSRÜSTUNG#"], 1000);
}

}  // namespace
}  // namespace bogenwerker
