// Step 1 and what it hands over.
#include <gtest/gtest.h>

#include <array>

#include "world.h"

namespace bogenwerker {
namespace {

class Priorities : public testing::Test, public World {
 protected:
  void SetUp() override { ASSERT_TRUE(wizard.start()); }
};

// All ways to choose one option a column: legal exactly where the five rows are all covered.
TEST_F(Priorities, AreCompleteExactlyWhereAllRowsAreCovered) {
  struct Option {
    OptionButton& button;
    char row;
  };
  FormPrioritäten& f = wizard.formPrioritäten;
  const std::vector<Option> races = {{f.optRasseTroll, 'C'}, {f.optRasseElf, 'C'}, {f.optRasseZwerg, 'D'}, {f.optRasseOrk, 'D'}, {f.optRasseMensch, 'E'}};
  const std::vector<Option> magics = {{f.optVollzauberer, 'A'}, {f.optAdept, 'B'}, {f.optAspekt, 'B'}, {f.optMagieC, 'C'}, {f.optMagieD, 'D'}, {f.optMagieE, 'E'}};
  const std::vector<Option> attributes = {{f.optAttribute30, 'A'}, {f.optAttribute27, 'B'}, {f.optAttribute24, 'C'}, {f.optAttribute21, 'D'}, {f.optAttribute18, 'E'}};
  const std::vector<Option> skills = {{f.optFertigkeiten50, 'A'}, {f.optFertigkeiten40, 'B'}, {f.optFertigkeiten34, 'C'}, {f.optFertigkeiten30, 'D'}, {f.optFertigkeiten27, 'E'}};
  const std::vector<Option> resources = {{f.optRessA, 'A'}, {f.optRessB, 'B'}, {f.optRessC, 'C'}, {f.optRessD, 'D'}, {f.optRessE, 'E'}};
  int legal = 0;
  for (const Option& race : races) {
    for (const Option& magic : magics) {
      for (const Option& attribute : attributes) {
        for (const Option& skill : skills) {
          for (const Option& money : resources) {
            std::string rows;
            for (const Option* option : {&race, &magic, &attribute, &skill, &money}) {
              option->button.choose();
              if (rows.find(option->row) == rows.npos) rows += option->row;
            }
            ASSERT_EQ(f.cmdWeiter1.isEnabled(), rows.size() == 5) << rows;
            legal += f.cmdWeiter1.isEnabled() ? 1 : 0;
          }
        }
      }
    }
  }
  EXPECT_EQ(legal, 150);  // 72 ways to lay the rows, some with two races or two kinds of magic
}

TEST_F(Priorities, FourColumnsAreNotEnoughAndRacesHaveNoTopRows) {
  EXPECT_EQ(play("click optRasseA\nclick optRasseB\nclick cmdWeiter1\nclick optVollzauberer\nclick optAttribute27\n"
                 "click optFertigkeiten34\nclick optRessD\nclick cmdWeiter1"),
            (std::vector<std::string>{"disabled", "disabled", "disabled", "ok", "ok", "ok", "ok", "disabled"}));
}

struct HandOverRow {
  const char* name;
  std::string race, magic, attributes, skills, resources;
  std::array<const char*, 6> modifiers;
  const char *raceName, *magicValue, *attributePoints, *skillPoints, *record;
};
class HandOver : public testing::TestWithParam<HandOverRow>, public World {};
TEST_P(HandOver, FillsTheLaterForms) {
  ASSERT_TRUE(wizard.start());
  const HandOverRow& row = GetParam();
  playOk(road::priorities(row.race, row.magic, row.attributes, row.skills, row.resources));
  FormAttributmonitor& f = wizard.formAttributmonitor;
  const std::array<const Label*, 6> labels = {&f.lblRasseKonst,    &f.lblRasseSchnell, &f.lblRasseStark,
                                              &f.lblRasseCharisma, &f.lblRasseIntell,  &f.lblRasseWill};
  for (std::size_t i = 0; i < labels.size(); ++i) EXPECT_EQ(labels[i]->caption(), row.modifiers[i]) << i;
  EXPECT_EQ(f.lblWelcheRasse.caption(), row.raceName);
  EXPECT_EQ(f.lblMagieWert.caption(), row.magicValue);
  EXPECT_EQ(f.lblTotalAttributPunkte.caption(), row.attributePoints);
  EXPECT_EQ(wizard.formAktionFertigkeit.state(), Form::State::hidden);
  EXPECT_EQ(wizard.formAktionFertigkeit.lblTotalFertigkeitenPunkte.caption(), row.skillPoints);
  EXPECT_EQ(wizard.formPrioritäten.state(), Form::State::unloaded);
  EXPECT_EQ(fileBytes("Prioritäten.txt"), row.record);
}
INSTANTIATE_TEST_SUITE_P(
    Priorities, HandOver,
    testing::Values(
        HandOverRow{"troll", "optRasseTroll", "optMagieE", "optAttribute30", "optFertigkeiten40", "optRessD",
                    {"5", "-1", "4", "-2", "-2", "0"}, "Troll", "0", "30", "40", "\"Troll\",\"E\",20000\r\n"},
        HandOverRow{"elf", "optRasseElf", "optVollzauberer", "optAttribute27", "optFertigkeiten30", "optRessE",
                    {"0", "1", "0", "2", "0", "0"}, "Elf", "6", "27", "30", "\"Elf\",\"Vollzauberer\",5000\r\n"},
        HandOverRow{"dwarf", "optRasseZwerg", "optAdept", "optAttribute24", "optFertigkeiten27", "optRessA",
                    {"1", "0", "2", "0", "0", "1"}, "Zwerg", "6", "24", "27", "\"Zwerg\",\"Adept\",1000000\r\n"},
        HandOverRow{"ork", "optRasseOrk", "optAspekt", "optAttribute18", "optFertigkeiten50", "optRessC",
                    {"3", "0", "2", "-1", "-1", "0"}, "Ork", "6", "18", "50", "\"Ork\",\"Aspekt\",90000\r\n"},
        HandOverRow{"human", "optRasseMensch", "optMagieC", "optAttribute21", "optFertigkeiten50", "optRessB",
                    {"0", "0", "0", "0", "0", "0"}, "Mensch", "0", "21", "50", "\"Mensch\",\"C\",400000\r\n"}),
    rowName);

}  // namespace
}  // namespace bogenwerker
