// Steps 3 and 4: prices, specialisations, two budgets.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>

#include "skills/levels.h"
#include "world.h"

namespace bogenwerker {
namespace {

using Texts = std::vector<std::string>;

TEST(Levels, LinesTellTheirNumberByOneOrTwoDigits) {
  EXPECT_EQ(numberOfLine("3. Pistolen [4]  -- Stufe: 0"), 3);
  EXPECT_EQ(numberOfLine("30. 1. Hilfe ()  -- Stufe: 0(0)"), 30);
  EXPECT_EQ(numberOfLine("1. 2. Wahl -- Stufe: 0"), 1);
}

// A human magician with 34 points for skills: Konstitution 3, Intelligenz 4, Magie 6.
class ActionSkills : public testing::Test, public World {
 protected:
  void SetUp() override {
    ASSERT_TRUE(wizard.start());
    playOk(road::priorities("optRasseMensch", "optVollzauberer", "optAttribute21", "optFertigkeiten34", "optRessB") +
           road::attributes({3, 4, 3, 4, 4, 3}));
  }
  void add(const std::string& name, const std::string& option) {
    playOk("type txtAFertigkeit " + name + "\nclick " + option + "\nclick cmdAddFertigkeit\n");
  }
  void raise(int number, int levels) {
    playOk("select lstAFertigkeiten " + std::to_string(number - 1) + "\n" + road::press("cmdFertigkeitPlus", levels));
  }
  // Skills of 3, 4, 3, ... levels at one point each until the budget of 34 is gone.
  void spendAll() {
    for (int i = 1; i <= 10; ++i) {
      add("F" + std::to_string(i), i % 2 == 0 ? "optAFSchnell" : "optAFKonst");
      raise(i, i == 10 ? 3 : i % 2 == 0 ? 4 : 3);
    }
  }
  FormAktionFertigkeit& f = wizard.formAktionFertigkeit;
};

TEST_F(ActionSkills, BothLineFormsStandSideBySide) {
  add("Laufen", "optAFKonst");
  raise(1, 2);
  add("Läufe, lange", "optAFMagie");
  EXPECT_EQ(f.lstAFertigkeiten.lines(), (Texts{"1. Laufen ()  -- Stufe: 2(0)", "2. Läufe, lange [6]  -- Stufe: 0"}));
  EXPECT_EQ(f.lblAktuellFertPunkte.caption(), "2");
  EXPECT_EQ(f.lstAFertigkeiten.text(), "");
  playOk("click cmdFertigkeitPlus\n");
  EXPECT_EQ(f.lstAFertigkeiten.lines()[0], "1. Laufen ()  -- Stufe: 3(0)");
}

TEST_F(ActionSkills, AddingNeedsANameAndAnAttribute) {
  EXPECT_EQ(play("click cmdAddFertigkeit"), Texts{"disabled"});
  playOk("type txtAFertigkeit Laufen\nclick cmdAddFertigkeit\n");
  EXPECT_TRUE(f.lstAFertigkeiten.lines().empty());
  EXPECT_TRUE(f.cmdAddFertigkeit.isEnabled());
  playOk("click optAFKonst\nclick optAFWill\nclick cmdAddFertigkeit\n");
  EXPECT_EQ(f.lstAFertigkeiten.lines(), Texts{"1. Laufen [3]  -- Stufe: 0"});
  EXPECT_FALSE(f.optAFWill.value());
  EXPECT_EQ(play("type txtAFertigkeit Laufen\nclick cmdAddFertigkeit\ntype txtAFertigkeit \nclick cmdAddFertigkeit"),
            (Texts{"ok", "disabled", "ok", "disabled"}));
}

// What is spent is at all times the sum of the prices of the levels that stand in the list.
TEST_F(ActionSkills, RefundEqualsPrice) {
  add("Null", "optAFKonst");
  add("Eins", "optAFSchnell");
  add("Zwei", "optAFMagie");
  constexpr std::array<int, 3> attribute = {3, 4, 6};
  std::array<int, 3> level = {0, 0, 0};
  std::mt19937 random(3);
  for (int press = 0; press < 400; ++press) {
    const auto which = static_cast<std::size_t>(std::uniform_int_distribution(0, 2)(random));
    const bool up = std::bernoulli_distribution(0.6)(random);
    playOk("select lstAFertigkeiten " + std::to_string(which) + "\nclick cmdFertigkeit" + (up ? "Plus\n" : "Minus\n"));
    level[which] = std::clamp(level[which] + (up ? 1 : -1), 0, 6);
    int spent = 0;
    for (std::size_t i = 0; i < 3; ++i) spent += level[i] + std::max(0, level[i] - attribute[i]);
    ASSERT_EQ(f.lblAktuellFertPunkte.caption(), std::to_string(spent));
    ASSERT_EQ(f.cmddisformisready.isEnabled(), spent == 34);
  }
}

TEST_F(ActionSkills, NothingOpensAheadOfTheFirstSkill) {
  playOk("click cmdFertigkeitPlus\nclick cmdFertigkeitMinus\n");
  EXPECT_FALSE(f.cmddisformisready.isEnabled() || f.cmdafertcompl.isEnabled());
}

TEST_F(ActionSkills, A31stIsRefusedInSilence) {
  for (int i = 1; i <= 30; ++i) add("F" + std::to_string(i), "optAFKonst");
  raise(30, 1);
  EXPECT_EQ(f.lstAFertigkeiten.lines().back(), "30. F30 ()  -- Stufe: 1(0)");
  add("F31", "optAFKonst");
  EXPECT_EQ(f.lstAFertigkeiten.listCount(), 30);
  EXPECT_TRUE(faults.empty());
}

TEST_F(ActionSkills, SpecialisingLowersTheBase) {
  spendAll();
  ASSERT_TRUE(f.cmddisformisready.isEnabled());
  EXPECT_EQ(play("type txtSpezi Sprint\nclick cmdAddSpezi"), (Texts{"disabled", "disabled"}));
  playOk("click cmdafertcompl\nselect lstAFertigkeiten 1\ntype txtSpezi Sprint\nclick cmdAddSpezi\n");
  EXPECT_EQ(f.lstAFertigkeiten.lines()[1], "2. F2 (Sprint)  -- Stufe: 3(5)");
  EXPECT_EQ(play("click cmdFertigkeitPlus\nclick cmdFertigkeitMinus\nclick cmdAddSpezi"),
            (Texts{"disabled", "disabled", "disabled"}));
  // A field that is emptied again leaves the button alone, and so an empty name is stored.
  playOk("type txtSpezi x\ntype txtSpezi \nclick cmdAddSpezi\ntype txtSpezi y\nclick cmdAddSpezi\n");
  EXPECT_EQ(f.lstAFertigkeiten.lines()[1], "2. F2 (y)  -- Stufe: 1(3)");
  playOk("type txtSpezi z\nclick cmdAddSpezi\n");
  EXPECT_EQ(f.lstAFertigkeiten.lines()[1], "2. F2 (y)  -- Stufe: 1(3)");
  EXPECT_TRUE(f.cmddisformisready.isEnabled());
}

TEST_F(ActionSkills, LeavingWritesBothFiles) {
  spendAll();
  playOk("click cmdafertcompl\nselect lstAFertigkeiten 0\ntype txtSpezi Kurz, \"schnell\"\nclick cmdAddSpezi\n");
  writeBytes("Fertigkeiten.txt", "of an earlier run, and longer than the new one");
  playOk("click cmddisformisready\n");
  EXPECT_EQ(fileBytes("Fertigkeiten.txt").substr(0, 54), "\"F1\",\"Kurz, 'schnell'\",2,4\r\n\"F2\",\"\",4,0\r\n\"F3\",\"\",3,0\r\n");
  EXPECT_EQ(fileBytes("Attribute.txt"),
            "\"Konstitution\",3\r\n\"Schnelligkeit\",4\r\n\"St\xE4rke\",3\r\n\"Charisma\",4\r\n\"Intelligenz\",4\r\n"
            "\"Willenskraft\",3\r\n\"Magie\",6\r\n\"Reaktion\",4\r\n");
  EXPECT_EQ(wizard.formWissensfertigkeit.lblWissensPunkte.caption(), "20");
  EXPECT_EQ(wizard.formWissensfertigkeit.lblSprachPunkte.caption(), "6");
}

// ---------------------------------------------------------------------------------------------------------------------

// Intelligenz as told; 3 gives 15 and 4 points.
class Knowledge : public testing::TestWithParam<int>, public World {
 protected:
  void SetUp() override {
    ASSERT_TRUE(wizard.start());
    const int intelligenz = GetParam();
    playOk(road::priorities("optRasseMensch", "optVollzauberer", "optAttribute21", "optFertigkeiten34", "optRessB") +
           road::attributes({6, 7 - intelligenz, 4, 3, intelligenz, 1}) + road::skills(34, 6));
    playOk("type txtSprache Latein\nclick cmdAddSprache\ntype txtWFertigkeit Recht\nclick cmdAddWFertigkeit\n");
  }
  void press(const std::string& list, const std::string& button, int times) {
    playOk("select " + list + " 0\n" + road::press(button, times));
  }
  [[nodiscard]] std::string budgets() const {
    return f.lblSprachPunkte.caption() + "/" + f.lblWissensPunkte.caption();
  }
  const FormWissensfertigkeit& f = wizard.formWissensfertigkeit;
};

class AverageMind : public Knowledge {};
TEST_P(AverageMind, LanguagesDrawOnBothBudgets) {
  EXPECT_EQ(budgets(), "4/15");
  EXPECT_EQ(f.lstSprachen.lines(), Texts{"1. Latein -- Stufe: 0"});
  press("lstSprachen", "cmdPlusWFert", 3);
  EXPECT_EQ(budgets(), "1/15");
  press("lstSprachen", "cmdPlusWFert", 1);  // a level above Intelligenz costs 2, and only 1 is left
  EXPECT_EQ(budgets(), "0/14");
  press("lstSprachen", "cmdPlusWFert", 1);
  EXPECT_EQ(budgets(), "0/12");
  press("lstSprachen", "cmdMinusWFert", 1);  // refills the language points first
  EXPECT_EQ(budgets(), "2/12");
  press("lstSprachen", "cmdMinusWFert", 1);
  EXPECT_EQ(budgets(), "4/12");
  press("lstSprachen", "cmdMinusWFert", 1);  // at the ceiling the whole refund moves
  EXPECT_EQ(budgets(), "4/13");
}
TEST_P(AverageMind, TheWholeRefundMovesAboveTheCeiling) {
  press("lstSprachen", "cmdPlusWFert", 4);
  playOk("type txtSprache Kymrisch\nclick cmdAddSprache\n");
  press("lstSprachen", "cmdMinusWFert", 2);
  EXPECT_EQ(budgets(), "3/14");
  press("lstSprachen", "cmdPlusWFert", 2);
  EXPECT_EQ(budgets(), "0/14");
}
TEST_P(AverageMind, LeavesOnlyAtZeroAndCanGoBelow) {
  playOk("click cmdPlusWFert\n");
  EXPECT_EQ(budgets(), "4/15") << "no line was clicked yet";
  press("lstWFertigkeiten", "cmdPlusWFert", 9);
  EXPECT_EQ(budgets(), "4/6");
  EXPECT_EQ(f.lstWFertigkeiten.lines(), Texts{"1. Recht -- Stufe: 6"});
  press("lstSprachen", "cmdPlusWFert", 6);
  EXPECT_EQ(budgets(), "0/1");
  EXPECT_FALSE(f.cmdGoAhead.isEnabled());
  playOk("type txtWFertigkeit Kunst\nclick cmdAddWFertigkeit\nselect lstWFertigkeiten 1\nclick cmdPlusWFert\n");
  EXPECT_TRUE(f.cmdGoAhead.isEnabled());
  playOk("click cmdPlusWFert\n");
  EXPECT_EQ(budgets(), "0/-1");
  EXPECT_FALSE(f.cmdGoAhead.isEnabled());
  playOk("click cmdMinusWFert\nclick cmdGoAhead\n");
  EXPECT_EQ(fileBytes("Wissensfertigkeiten.txt"), "\"Recht\",6\r\n\"Kunst\",1\r\n");
  EXPECT_EQ(fileBytes("Sprachen.txt"), "\"Latein\",6\r\n");
}
TEST_P(AverageMind, A31stEntryIsRefusedInSilence) {
  for (int i = 2; i <= 31; ++i) {
    playOk("type txtSprache S" + std::to_string(i) + "\nclick cmdAddSprache\ntype txtWFertigkeit W" + std::to_string(i) +
           "\nclick cmdAddWFertigkeit\n");
  }
  EXPECT_EQ(f.lstSprachen.listCount(), 30);
  EXPECT_EQ(f.lstWFertigkeiten.lines().back(), "30. W30 -- Stufe: 0");
  playOk("select lstSprachen 29\nclick cmdPlusWFert\n");
  EXPECT_EQ(f.lstSprachen.lines().back(), "30. S30 -- Stufe: 1");
}
INSTANTIATE_TEST_SUITE_P(Skills, AverageMind, testing::Values(3));

// Whatever is pressed: what is free plus what the levels cost stays the sum of the two opening budgets.
TEST_P(Knowledge, BudgetsAreConserved) {
  const int intelligenz = GetParam();
  int languageLevel = 0;
  int skillLevel = 0;
  std::mt19937 random(7);
  const auto price = [intelligenz](int level) { return level + std::max(0, level - intelligenz); };
  for (int i = 0; i < 300; ++i) {
    const bool language = std::bernoulli_distribution(0.5)(random);
    const bool up = std::bernoulli_distribution(0.55)(random);
    press(language ? "lstSprachen" : "lstWFertigkeiten", up ? "cmdPlusWFert" : "cmdMinusWFert", 1);
    int& level = language ? languageLevel : skillLevel;
    level = std::clamp(level + (up ? 1 : -1), 0, 6);
    const int free = integerOf(f.lblSprachPunkte.caption()).value() + integerOf(f.lblWissensPunkte.caption()).value();
    ASSERT_EQ(free + price(languageLevel) + price(skillLevel), intelligenz * 5 + intelligenz * 3 / 2);
    ASSERT_GE(integerOf(f.lblSprachPunkte.caption()), 0);
    ASSERT_LE(integerOf(f.lblSprachPunkte.caption()), intelligenz * 3 / 2);
  }
}
INSTANTIATE_TEST_SUITE_P(Skills, Knowledge, testing::Values(2, 3, 6));

}  // namespace
}  // namespace bogenwerker
