// The catalogues and the template as players get them.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <set>

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
    forEachRow<Row>(files, file, mostCyberware, [&](const Row& row) { result.push_back(row); });
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

TEST_F(Data, FilesAreInTheirEncodingAndNamesAreUniqueEverywhereAndFitTheirBox) {
  std::map<std::string, std::string> fileOfName;
  for (const char* file : {"Lebensstil.txt", "Connection.txt", "MagicStuff.txt", "Cyberware.txt", "Bioware.txt",
                           "Cyberdecks.txt", "template.htm"}) {
    const std::string bytes = fileBytes(file);
    EXPECT_FALSE(looksLikeUnicode(bytes)) << file;
    ASSERT_TRUE(bytes.ends_with("\r\n")) << file;
    for (const std::string& line : splitLines(utf8FromCp1252(bytes))) {
      ASSERT_TRUE(line.ends_with('\r')) << file << ": " << line;
      EXPECT_EQ(line.find('\r'), line.size() - 1) << file << ": " << line;
      if (std::string_view(file) == "template.htm") continue;
      ASSERT_TRUE(line.starts_with('"') && std::count(line.begin(), line.end(), '"') == 2) << file << ": " << line;
      const std::string name = line.substr(1, line.find('"', 1) - 1);
      EXPECT_TRUE(!name.empty() && name.front() != ' ' && name.back() != ' ') << file << ": " << name;
      EXPECT_LE(cp1252FromUtf8(name).size(), longestName) << file << ": " << name;
      EXPECT_EQ(gateTyped(name), name) << file;
      const auto [earlier, isNew] = fileOfName.emplace(name, file);
      EXPECT_TRUE(isNew) << name << " stands in " << earlier->second << " and " << file;
    }
  }
}

TEST_F(Data, NamesTellThePriceOrTheEffects) {
  const auto expectEnd = [](const std::string& name, const std::string& end) {
    EXPECT_TRUE(name.ends_with(end)) << name << " for" << end;
  };
  for (const PriceRow& row : rows<PriceRow>("Lebensstil.txt")) expectEnd(row.name, " / " + price(row.kosten));
  for (const PriceRow& row : rows<PriceRow>("Connection.txt")) expectEnd(row.name, " / " + price(row.kosten));
  for (const MagicRow& row : rows<MagicRow>("MagicStuff.txt")) expectEnd(row.name, costs(row));
  for (const DeckRow& row : rows<DeckRow>("Cyberdecks.txt")) {
    const std::string values = " MPCP " + textOf(row.MPCP) + " RV " + textOf(row.Reaktionsverstärkung);
    expectEnd(row.name, values + " / " + price(row.kosten));
  }
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

TEST_F(Data, TemplateKeepsItsCommasAndOffersEveryPlaceholder) {
  std::map<std::string, int> units;
  for (const std::string& line : splitLines(utf8FromCp1252(fileBytes("template.htm")))) {
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
