// Step 2: points, sums, and the rule that lets it be left.
#include <gtest/gtest.h>

#include <array>

#include "zusatzmodul/berechneReaktion.h"
#include "wizard/fault.h"
#include "world.h"

namespace bogenwerker {
namespace {

// "18" leaves E for the attributes; the race decides the rest.
std::string roadTo(const std::string& race, const std::string& attributes) {
  if (race == "optRasseMensch") return road::priorities(race, "optVollzauberer", attributes, "optFertigkeiten34", "optRessD");
  const bool rowC = race == "optRasseTroll" || race == "optRasseElf";
  if (attributes == "optAttribute30") return road::priorities(race, "optAdept", attributes, rowC ? "optFertigkeiten30" : "optFertigkeiten34", "optRessE");
  return road::priorities(race, "optVollzauberer", attributes, "optFertigkeiten40", rowC ? "optRessD" : "optRessC");
}

std::string spend(const std::array<int, 6>& points) {
  constexpr std::array<const char*, 6> names = {"Konst", "Schnell", "Stark", "Charisma", "Intell", "Will"};
  std::string script;
  for (std::size_t i = 0; i < names.size(); ++i) {
    script += road::press(std::string("cmd") + names[i] + (points[i] < 0 ? "Minus" : "Plus"), std::abs(points[i]));
  }
  return script;
}

struct RuleRow {
  const char* name;
  const char *race, *attributes;
  std::array<int, 6> points;
  bool legal;
};
class Rule : public testing::TestWithParam<RuleRow>, public World {};
TEST_P(Rule, DecidesWhetherTheStepCanBeLeft) {
  ASSERT_TRUE(wizard.start());
  playOk(roadTo(GetParam().race, GetParam().attributes) + spend(GetParam().points));
  EXPECT_EQ(wizard.formAttributmonitor.cmdWeiter2.isEnabled(), GetParam().legal);
}
INSTANTIATE_TEST_SUITE_P(
    Attributes, Rule,
    testing::Values(RuleRow{"elf_threes", "optRasseElf", "optAttribute18", {3, 3, 3, 3, 3, 3}, true},
                    RuleRow{"troll_threes", "optRasseTroll", "optAttribute18", {3, 3, 3, 3, 3, 3}, true},
                    RuleRow{"troll_charisma_two", "optRasseTroll", "optAttribute18", {4, 3, 3, 2, 3, 3}, false},
                    RuleRow{"troll_speed_one", "optRasseTroll", "optAttribute18", {5, 1, 3, 3, 3, 3}, false},
                    RuleRow{"troll_at_the_edge", "optRasseTroll", "optAttribute18", {6, 2, 1, 3, 3, 3}, true},
                    RuleRow{"ork_charisma_one", "optRasseOrk", "optAttribute18", {5, 3, 3, 1, 3, 3}, false},
                    RuleRow{"ork_at_the_edge", "optRasseOrk", "optAttribute18", {6, 6, 1, 2, 2, 1}, true},
                    RuleRow{"seven", "optRasseElf", "optAttribute30", {7, 5, 5, 5, 4, 4}, false},
                    RuleRow{"untouched_one", "optRasseElf", "optAttribute18", {6, 3, 3, 3, 3, 0}, false},
                    RuleRow{"one_short", "optRasseElf", "optAttribute18", {3, 3, 3, 3, 3, 2}, false},
                    RuleRow{"one_over", "optRasseElf", "optAttribute18", {3, 3, 3, 3, 3, 4}, false},
                    RuleRow{"negative_evened_out", "optRasseElf", "optAttribute18", {6, 6, 6, 3, -3, 0}, false}),
    rowName);

class Attributes : public testing::Test, public World {
 protected:
  void SetUp() override {
    ASSERT_TRUE(wizard.start());
    playOk(roadTo("optRasseTroll", "optAttribute18"));
  }
  FormAttributmonitor& f = wizard.formAttributmonitor;
};

TEST_F(Attributes, FirstPressRecomputesTheWholeForm) {
  EXPECT_EQ(f.lblNatKonst.caption(), "0");
  playOk("click cmdCharismaMinus\n");
  EXPECT_EQ(f.lblCharismaWert.caption(), "-1");
  EXPECT_EQ(f.lblKonstWert.caption(), "");
  EXPECT_EQ(f.lblVerbrAttributPunkte.caption(), "-1");
  EXPECT_EQ(f.lblNatKonst.caption(), "5");
  EXPECT_EQ(f.lblNatCharisma.caption(), "-3");
  playOk("click cmdCharismaPlus\n");
  EXPECT_EQ(f.lblCharismaWert.caption(), "0");
}

TEST_F(Attributes, GoOnWithTheRaceInThem) {
  playOk(road::attributes({1, 6, 1, 3, 6, 1}));
  const FormAktionFertigkeit& next = wizard.formAktionFertigkeit;
  const std::array<const Label*, 8> labels = {&next.lblREMkonst,    &next.lblREMschnell, &next.lblREMstark,
                                              &next.lblREMcharisma, &next.lblREMintell,  &next.lblREMwill,
                                              &next.lblREMmagie,    &next.lblREMreaktion};
  const std::array<const char*, 8> values = {"6", "5", "5", "1", "4", "1", "6", "4"};
  for (std::size_t i = 0; i < labels.size(); ++i) EXPECT_EQ(labels[i]->caption(), values[i]) << i;
}

TEST(BerechneReaktion, RoundsTowardMinusInfinity) {
  const std::vector<std::array<int, 3>> rows = {{4, 5, 4}, {5, 6, 5}, {3, 3, 3}, {-1, 0, -1}, {-3, 0, -2}, {-2, 0, -1}};
  for (const auto& [a, b, half] : rows) EXPECT_EQ(berechneReaktion(Integer(a), Integer(b)), half) << a << " " << b;
  EXPECT_EQ(berechneReaktion(4.8, 4.8), 4);
  EXPECT_EQ(berechneReaktion(-1.0 / 3, -1.0 / 3), -1);
  EXPECT_EQ(berechneReaktion(Integer(32767), Integer(32767)), 32767);
}

}  // namespace
}  // namespace bogenwerker
