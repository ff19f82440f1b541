// Step 6: ware effects, pools, the sheet.
#include <gtest/gtest.h>

#include <sstream>

#include "finish/sheet.h"
#include "wizard/text.h"
#include "world.h"

namespace bogenwerker {
namespace {

using Texts = std::vector<std::string>;

// Bought values of an elf: Konstitution 5, Schnelligkeit 5, Stärke 4, Charisma 6, Intelligenz 5, Willenskraft 5,
// Reaktion 5. The ware catalogues are the test's; whatever stands in them is bought as free text in the order told.
class FinalValues : public testing::Test, public World {
 protected:
  void arrive(const std::string& magic, const Texts& bought, const std::string& cyberware, const std::string& bioware = "",
              const std::string& decks = "") {
    writeBytes("Cyberware.txt", cyberware);
    writeBytes("Bioware.txt", bioware);
    writeBytes("Cyberdecks.txt", decks);
    ASSERT_TRUE(wizard.start());
    const bool adept = magic == "optAdept";
    playOk(road::priorities("optRasseElf", magic, adept ? "optAttribute30" : "optAttribute27",
                            adept ? "optFertigkeiten30" : "optFertigkeiten50", adept ? "optRessE" : "optRessD") +
           road::attributes({5, 4, adept ? 6 : 4, adept ? 6 : 4, 5, adept ? 4 : 5}) +
           road::skills(adept ? 30 : 50, 5) + road::knowledge(5));
    for (const std::string& line : bought) {
      playOk("type txtEquipment " + line + "\ntype txtEquipmentKosten 0\nclick cmdAddEquipment\n");
    }
  }
  void leave() { playOk("click cmdGoAhead\n"); }
  [[nodiscard]] std::string values() const {
    return f.lblSchnelligkeit.caption() + " " + f.lblIntelligenz.caption() + " | " + f.lblReaktion.caption() + " | " +
           f.lblInitiative.caption() + " | " + f.txtKampfpool.text() + " " + f.txtSteuerpool.text() + " " +
           f.txtHackingpool.text();
  }
  const FormFeinschliff& f = wizard.formFeinschliff;
};

// name, Essenz, cost; kon Schnell Stark Intell char Will; reak rigger decker; ini rigger decker; two flags
std::string ware(const std::string& name, const std::string& effects) { return "\"" + name + "\",0,0," + effects + "\r\n"; }

struct EffectRow {
  const char* name;
  Texts bought;
  std::string cyberware, bioware, decks;
  const char* values;
};
class Effects : public FinalValues, public testing::WithParamInterface<EffectRow> {};
TEST_P(Effects, FollowTheRowsInListOrder) {
  arrive("optMagieE", GetParam().bought, GetParam().cyberware, GetParam().bioware, GetParam().decks);
  leave();
  EXPECT_EQ(values(), GetParam().values);
}
const std::string counts = ",#TRUE#,#TRUE#";
const std::string quick = ware("A", "0,2,0,0,0,0,1,0,0,2,0,0" + counts);
const std::string quickApart = ware("B", "0,1,0,0,0,0,0,0,0,0,0,0,#FALSE#,#FALSE#");
const std::string quickApart2 = ware("C", "0,2,0,2,0,0,0,0,0,3,0,0,#FALSE#,0");
const std::string rigger = ware("R", "0,0,0,0,0,0,0,2,0,0,1,0" + counts);
const std::string decker = ware("D", "0,0,0,0,0,0,0,0,1,0,0,2" + counts);
INSTANTIATE_TEST_SUITE_P(
    FinalValues, Effects,
    testing::Values(
        EffectRow{"none", {"A"}, "", "", "", "5 (5) 5 (5) | 5 (5) (0) | +1W6 (+0W6) (+0W6) | 7  "},
        EffectRow{"counting", {"A"}, quick, "", "", "5 (7) 5 (5) | 5 (7) (0) | +1W6 (+3W6) (+0W6) | 8  "},
        EffectRow{"twice_on_the_list", {"A", "A"}, quick, "", "", "5 (9) 5 (5) | 5 (9) (0) | +1W6 (+3W6) (+0W6) | 9  "},
        EffectRow{"twice_in_the_file", {"A"}, quick + quick, "", "", "5 (9) 5 (5) | 5 (9) (0) | +1W6 (+3W6) (+0W6) | 9  "},
        EffectRow{"in_both_files", {"A"}, quick, quick, "", "5 (9) 5 (5) | 5 (9) (0) | +1W6 (+3W6) (+0W6) | 9  "},
        EffectRow{"other_case", {"a", " A", "A "}, quick, "", "", "5 (5) 5 (5) | 5 (5) (0) | +1W6 (+0W6) (+0W6) | 7  "},
        EffectRow{"last_row_sets_initiative", {"A", "R"}, quick + rigger, "", "",
                  "5 (7) 5 (5) | 5 (7) (8) | +1W6 (+1W6) (+2W6) | 8 8 "},
        EffectRow{"last_deduction_replaces", {"B", "C"}, quickApart + quickApart2, "", "",
                  "5 (8) 5 (7) | 5 (5) (0) | +1W6 (+4W6) (+0W6) | 8  "},
        EffectRow{"later_zero_deduction_too", {"C", "B"}, quickApart + quickApart2, "", "",
                  "5 (8) 5 (7) | 5 (7) (0) | +1W6 (+1W6) (+0W6) | 9  "},
        EffectRow{"rigger_ahead_of_speed", {"R", "A"}, quick, rigger, "",
                  "5 (7) 5 (5) | 5 (7) (7) | +1W6 (+3W6) (+2W6) | 8 7 "},
        EffectRow{"deck_without_ware", {"Brett"}, quick, "", "\"Brett\",4,0,1\r\n",
                  "5 (5) 5 (5) | 5 (5) (0) | +1W6 (+0W6) (+0W6) | 7  3"},
        EffectRow{"decker_wins_over_rigger", {"Brett", "R"}, rigger, "", "\"Brett\",4,0,2\r\n",
                  "5 (5) 5 (5) | 5 (5) (9) | +1W6 (+1W6) (+3W6) | 7 7 3"},
        EffectRow{"last_deck_decides", {"Brett", "D", "Null"}, decker, "", "\"Null\",0,0,2\r\n\"Brett\",4,0,1\r\n",
                  "5 (5) 5 (5) | 5 (5) (10) | +1W6 (+1W6) (+5W6) | 7  "},
        EffectRow{"negative", {"N"}, ware("N", "0,-9,0,-4,0,-9,-2,0,0,-3,0,0" + counts), "", "",
                  "5 (-4) 5 (1) | 5 (-4) (0) | +1W6 (+-2W6) (+0W6) | -4  "}),
    rowName);

TEST_F(FinalValues, AnOverflowLeavesStep5AsItWas) {
  arrive("optMagieE", {"A", "A"}, ware("A", "0,32000,0,0,0,0,0,0,0,0,0,0" + counts));
  die = 1;
  leave();
  EXPECT_EQ(faults.size(), 1U);
  EXPECT_EQ(wizard.runtime().visibleForm(), &wizard.formAusrüstung);
  EXPECT_EQ(wizard.formAusrüstung.lstAusrüstung.lines().back(), "A");
  writeBytes("Cyberware.txt", ware("A", "0,1,0,0,0,0,0,0,0,0,0,0" + counts));
  die = 6;
  leave();
  EXPECT_EQ(f.lblSchnelligkeit.caption(), "5 (7)");
  EXPECT_NE(fileBytes("Ausrüstung.txt").find("Startkapital: 2300 "), std::string::npos) << "the dice lay there already";
}

TEST_F(FinalValues, MagicFollowsTheEssenz) {
  arrive("optAdept", {}, "\"Zahn\",1.3,0,0,0,0,0,0,0,0,0,0,0,0,0,#TRUE#,#TRUE#\r\n");
  playOk("pick cmbCyberware Zahn\nclick cmdAddCyberware\n");
  leave();
  EXPECT_EQ(f.lblEssenz.caption() + " " + f.lblMagie.caption(), "4,7 4");
  EXPECT_EQ(f.txtZauberpool.text() + " " + f.txtAstralkampf.text(), "4 8");
  EXPECT_EQ(f.txtAufgabenpool.text(), "");
}

TEST_F(FinalValues, ListShowsEquipmentDecksAndSkills) {
  arrive("optMagieE", {"Brett", "Seil"}, "", "", "\"Brett\",4,0,1\r\n");
  leave();
  const Texts& lines = f.lstAusrüstung.lines();
  EXPECT_EQ(Texts(lines.begin(), lines.begin() + 10),
            (Texts{"Freie Connection Stufe 1", "Freie Connection Stufe 1", "Brett", "Seil", "Startkapital: 2900 Nuyen",
                   "MPCP: 4", "Reaktionsverstärkung: 1", "", "AKTIONSFERTIGKEITEN:", "Fertigkeit 1 () 5 (0)"}));
  EXPECT_EQ(Texts(lines.end() - 4, lines.end()), (Texts{"", "SPRACHEN:", "Eintrag 1 5", "Eintrag 2 2"}));
  EXPECT_EQ(f.lblEssenz.caption() + " " + f.lblMagie.caption() + " " + f.txtZauberpool.text(), "6 0 ");
}

// ---------------------------------------------------------------------------------------------------------------------

// The same character throughout: two skills in three pairs of lines, and so on; what changes is the template.
class Sheet : public FinalValues {
 protected:
  std::string sheetOf(const std::string& page, const std::string& person = "") {
    arrive("optMagieE", {"<b>Seil & Haken"}, "");
    leave();
    playOk("type txtName Ä\n" + person + "click cmdOkay\n");
    playOk("type txtKampfpool 99\n");
    writeBytes("template.htm", cp1252FromUtf8(page));
    EXPECT_EQ(play("click cmdErzeugeHTML"), Texts{"end"});
    return utf8FromCp1252(fileBytes("Ä.htm"));
  }
};

TEST_F(Sheet, CopiesUnitsAsTheFieldReaderTakesThem) {
  EXPECT_EQ(sheetOf("  <p a=\"1\">\r\nrgb(1, 2,3)\r\n\"a, b\" lost, kept\r\n\r\n#name# #NAME#\r\nx#NAME#\r\n#NAME#"),
            "<p a=\"1\">\r\nrgb(1\r\n2\r\n3)\r\na, b\r\nkept\r\n\r\n#name# #NAME#\r\nx#NAME#\r\nÄ\r\n");
  EXPECT_EQ(messages, Texts{"Fertig! Bitte überprüfen Sie den Charakter. Marvino's Bogenwerker ersetzt keine "
                            "Regelwerke!"});
}

TEST_F(Sheet, ReplacesEveryPlaceholder) {
  EXPECT_EQ(sheetOf("#NAME#,#GSCHLCHT#,#ALTER#,#LOOK#,#RASSE#\n#konst#,#schnell#,#stark#,#charisma#,#intell#,#will#\n"
                    "#magie#,#reak#,#essenz#,#ini#\n#astral#,#kampf#,#steuer#,#hacking#,#zauber#,#aufgaben#\n",
                    "type txtAlter 30\ntype txtAussehen groß, grau\npick cmbGeschlecht weiblich\n"),
            "Ä\r\nweiblich\r\n30\r\ngroß, grau\r\nElf\r\n5 (5)\r\n5 (5)\r\n4 (4)\r\n6 (6)\r\n5 (5)\r\n5 (5)\r\n"
            "0\r\n5 (5) (0)\r\n6\r\n+1W6 (+0W6) (+0W6)\r\n0\r\n7\r\n0\r\n0\r\n0\r\n0\r\n");
}

TEST_F(Sheet, ListsMoveOnAndEndInAPoint) {
  std::string page;
  for (int i = 0; i < 5; ++i) page += "#AUSRÜSTUNG#\n";
  for (int i = 0; i < 10; ++i) page += "#AFertigkeit#,#AFertigkeit#,#FStufe#\n";
  for (int i = 0; i < 10; ++i) page += "#WFertigkeit#,#WStufe#\n";
  const std::string sheet = sheetOf(page);
  std::istringstream lines(sheet);
  Texts units;
  for (std::string line; std::getline(lines, line);) units.push_back(line.substr(0, line.size() - 1));
  EXPECT_EQ(Texts(units.begin(), units.begin() + 8),
            (Texts{"Freie Connection Stufe 1", "Freie Connection Stufe 1", "<b>Seil & Haken", "Startkapital: 2900 Nuyen",
                   ".", "Fertigkeit 1 ()", "Fertigkeit 1 ()", "5 (0)"}));
  // 25 knowledge points are five skills at 5; 7 language points one language at 5 and one at 2.
  EXPECT_EQ(Texts(units.begin() + 35 + 8, units.end()),
            (Texts{"Eintrag 5", "5", "Eintrag 1", "5", "Eintrag 2", "2", ".", ".", ".", ".", ".", "."}));
}

TEST_F(Sheet, ValuesThatArePlaceholdersGoThroughTheChain) {
  EXPECT_EQ(sheetOf("#ALTER#,#LOOK#,#GSCHLCHT#\n", "type txtAlter #LOOK#\ntype txtAussehen #AUSRÜSTUNG#\n"),
            "Freie Connection Stufe 1\r\nFreie Connection Stufe 1\r\n\r\n");
}

TEST(SheetFileName, IsAPlainNameOfItsOwn) {
  const std::vector<std::pair<std::string, std::string>> rows = {
      {"Anna Müller", "Anna Müller.htm"}, {"", ".htm"},           {"..", "...htm"},
      {"../../etc/x", ".._.._etc_x.htm"}, {"a\\b:c*d?", "a_b_c_d_.htm"}, {"<b>|\"", "_b___.htm"},
      {"template", "_template.htm"},      {"Template", "_Template.htm"}, {"CON", "_CON.htm"},
      {"nul.alt", "_nul.alt.htm"},        {"Com1", "_Com1.htm"},  {"LPT¹", "_LPT¹.htm"},
      {"Conny", "Conny.htm"},             {"com", "com.htm"},     {"Cyberware.txt", "Cyberware.txt.htm"}};
  for (const auto& [typed, file] : rows) EXPECT_EQ(sheetFileName(typed), file);
  std::string umlauts;
  for (int i = 0; i < 150; ++i) umlauts += "ä";
  EXPECT_EQ(sheetFileName("a" + umlauts).size(), 199 + 4U) << "cut between two characters";
}

}  // namespace
}  // namespace bogenwerker
