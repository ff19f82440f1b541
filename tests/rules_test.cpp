// What holds whatever the player does, and small functions at their edges.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>

#include "catalogues/catalogues.h"
#include "equipment/wuerfelomat.h"
#include "finish/sheet.h"
#include "world.h"
#include "zusatzmodul/berechneReaktion.h"

namespace bogenwerker {
namespace {

// All ways to choose one option a column: legal exactly where the five rows are all covered.
TEST(Priorities, AreCompleteExactlyWhereAllRowsAreCovered) {
  using Column = std::vector<std::string>;  // row and option
  const std::array<Column, 5> columns = {
      Column{"C optRasseTroll", "C optRasseElf", "D optRasseZwerg", "D optRasseOrk", "E optRasseMensch"},
      Column{"A optVollzauberer", "B optAdept", "B optAspekt", "C optMagieC", "D optMagieD", "E optMagieE"},
      Column{"A optAttribute30", "B optAttribute27", "C optAttribute24", "D optAttribute21", "E optAttribute18"},
      Column{"A optFertigkeiten50", "B optFertigkeiten40", "C optFertigkeiten34", "D optFertigkeiten30",
             "E optFertigkeiten27"},
      Column{"A optRessA", "B optRessB", "C optRessC", "D optRessD", "E optRessE"}};
  World world;
  ASSERT_TRUE(world.wizard.start());
  int legal = 0;
  for (std::size_t choice = 0; choice < 5 * 6 * 5 * 5 * 5; ++choice) {
    std::size_t rest = choice;
    std::string rows;
    for (const Column& column : columns) {
      const std::string& option = column[rest % column.size()];
      rest /= column.size();
      world.playOk("click " + option.substr(2));
      if (rows.find(option[0]) == rows.npos) rows += option[0];
    }
    ASSERT_EQ(world.wizard.formPrioritäten.cmdWeiter1.isEnabled(), rows.size() == 5) << rows;
    legal += rows.size() == 5 ? 1 : 0;
  }
  EXPECT_EQ(legal, 150);  // 72 ways to lay the rows, some with two races or two kinds of magic
}

// What is spent is at all times the sum of the prices of the levels that stand in the list.
TEST(ActionSkills, GiveBackWhatTheyCost) {
  World world;
  ASSERT_TRUE(world.wizard.start());
  world.playRoad("human_at_step_3");
  for (const char* option : {"optAFKonst", "optAFSchnell", "optAFMagie"}) {
    world.playOk(std::string("1 x type txtAFertigkeit ") + option + "; click " + option + "; click cmdAddFertigkeit");
  }
  constexpr std::array<int, 3> attribute = {3, 4, 6};
  std::array<int, 3> level = {0, 0, 0};
  std::mt19937 random(3);
  for (int press = 0; press < 400; ++press) {
    const auto which = static_cast<std::size_t>(std::uniform_int_distribution(0, 2)(random));
    const bool up = std::bernoulli_distribution(0.6)(random);
    world.playOk("select lstAFertigkeiten " + std::to_string(which) + "\nclick cmdFertigkeit" +
                 (up ? "Plus" : "Minus"));
    level[which] = std::clamp(level[which] + (up ? 1 : -1), 0, 6);
    int spent = 0;
    for (std::size_t i = 0; i < 3; ++i) spent += level[i] + std::max(0, level[i] - attribute[i]);
    ASSERT_EQ(world.wizard.formAktionFertigkeit.lblAktuellFertPunkte.caption(), std::to_string(spent));
    ASSERT_EQ(world.wizard.formAktionFertigkeit.cmddisformisready.isEnabled(), spent == 34);
  }
}

// Whatever is pressed: what is free plus what the levels cost stays the sum of the two opening budgets.
class Knowledge : public testing::TestWithParam<int>, public World {};
TEST_P(Knowledge, BudgetsAreConserved) {
  ASSERT_TRUE(wizard.start());
  const int intelligenz = GetParam();
  playRoad("mind_of_" + std::to_string(intelligenz) + "_at_step_4");
  playOk("1 x type txtSprache S; click cmdAddSprache; type txtWFertigkeit W; click cmdAddWFertigkeit");
  const FormWissensfertigkeit& form = wizard.formWissensfertigkeit;
  int languageLevel = 0;
  int skillLevel = 0;
  std::mt19937 random(7);
  const auto price = [intelligenz](int level) { return level + std::max(0, level - intelligenz); };
  for (int i = 0; i < 300; ++i) {
    const bool language = std::bernoulli_distribution(0.5)(random);
    const bool up = std::bernoulli_distribution(0.55)(random);
    playOk(std::string("select ") + (language ? "lstSprachen" : "lstWFertigkeiten") + " 0\nclick cmd" +
           (up ? "Plus" : "Minus") + "WFert");
    int& level = language ? languageLevel : skillLevel;
    level = std::clamp(level + (up ? 1 : -1), 0, 6);
    const int languages = integerOf(form.lblSprachPunkte.caption()).value();
    const int free = languages + integerOf(form.lblWissensPunkte.caption()).value();
    ASSERT_EQ(free + price(languageLevel) + price(skillLevel), intelligenz * 5 + intelligenz * 3 / 2);
    ASSERT_TRUE(languages >= 0 && languages <= intelligenz * 3 / 2) << languages;
  }
}
INSTANTIATE_TEST_SUITE_P(Skills, Knowledge, testing::Values(2, 3, 6));

TEST(BerechneReaktion, RoundsTowardMinusInfinity) {
  const std::vector<std::array<int, 3>> rows = {{4, 5, 4}, {5, 6, 5}, {3, 3, 3}, {-1, 0, -1}, {-3, 0, -2}, {-2, 0, -1}};
  for (const auto& [a, b, half] : rows) EXPECT_EQ(berechneReaktion(Integer(a), Integer(b)), half) << a << " " << b;
  EXPECT_EQ(berechneReaktion(4.8, 4.8), 4);
  EXPECT_EQ(berechneReaktion(-1.0 / 3, -1.0 / 3), -1);
  EXPECT_EQ(berechneReaktion(Integer(32767), Integer(32767)), 32767);
}

TEST(Dice, AreFairAndNeverThrownTwiceFromOneSeed) {
  std::array<int, 7> count{};
  for (int i = 0; i < 6000; ++i) ++count.at(static_cast<std::size_t>(wuerfeln()));
  for (std::size_t face = 1; face <= 6; ++face) EXPECT_NEAR(count.at(face), 1000, 200) << face;
}

TEST(FindText, AgreesWithAPlainSearch) {
  std::mt19937 random(1);
  const auto upTo = [&random](std::size_t most) { return std::uniform_int_distribution<std::size_t>(0, most)(random); };
  for (int round = 0; round < 2000; ++round) {
    std::string bytes(upTo(700), ' ');
    std::string text(upTo(9), ' ');
    for (char& c : bytes) c = static_cast<char>('a' + upTo(2));
    for (char& c : text) c = static_cast<char>('a' + upTo(2));
    const std::size_t from = upTo(bytes.size());
    ASSERT_EQ(findText(bytes, text, from), bytes.find(text, from)) << text;
  }
}

TEST(SheetFileName, IsAPlainNameOfItsOwn) {
  // clang-format off
  const std::vector<std::pair<std::string, std::string>> rows = {
      {"Anna Müller", "Anna Müller.htm"}, {"", ".htm"}, {"..", "...htm"}, {"../../etc/x", ".._.._etc_x.htm"},
      {"a\\b:c*d?", "a_b_c_d_.htm"}, {"<b>|\"", "_b___.htm"}, {"template", "_template.htm"}, {"Template", "_Template.htm"},
      {"CON", "_CON.htm"}, {"nul.alt", "_nul.alt.htm"}, {"Com1", "_Com1.htm"}, {"LPT¹", "_LPT¹.htm"}, {"com", "com.htm"},
      {"Conny", "Conny.htm"}, {"Cyberware.txt", "Cyberware.txt.htm"}};
  // clang-format on
  for (const auto& [typed, file] : rows) EXPECT_EQ(sheetFileName(typed), file);
  std::string umlauts;
  for (int i = 0; i < 150; ++i) umlauts += "ä";
  EXPECT_EQ(sheetFileName("a" + umlauts).size(), 199 + 4U) << "cut between two characters";
}

}  // namespace
}  // namespace bogenwerker
