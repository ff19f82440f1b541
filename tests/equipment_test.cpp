// Step 5 and its catalogues.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <random>

#include "catalogues/catalogues.h"
#include "equipment/wuerfelomat.h"
#include "wizard/text.h"
#include "world.h"

namespace bogenwerker {
namespace {

using Texts = std::vector<std::string>;

const std::string noEffect = ",0,0,0,0,0,0,0,0,0,0,0,0,#TRUE#,#TRUE#\r\n";

// Small catalogues with round numbers; the road up to step 5 with the magic and money of the test.
class Equipment : public testing::Test, public World {
 protected:
  void SetUp() override {
    writeBytes("Lebensstil.txt", "\"Dach\",100\r\n\"Stein\",0\r\n");
    writeBytes("Connection.txt", "Wirt,5000\nSchieber,19900.5\n");
    writeBytes("MagicStuff.txt", "\"Spruch\",25,0,0\r\n\"Kraft\",0,1000,2.5\r\n\"Amulett\",0,500,0\r\n");
    writeBytes("Cyberware.txt", "\"Zahn\",1.5,1000" + noEffect + "\"Auge\",6,1000" + noEffect + "\"\xC4"
                                "der\",0.2,0" + noEffect + "\"Doppel\",1,10" + noEffect + "\"Doppel\",2,20" + noEffect +
                                "\"Spende\",0,-900000000000000" + noEffect);
    writeBytes("Bioware.txt", "\"Leber\",8.5,0" + noEffect + "\"Herz\",9,0" + noEffect + "\"Haar\",0,0" + noEffect);
    writeBytes("Cyberdecks.txt", "\"Brett\",4,20000,1\r\n");
  }
  // 20000 and spell points.
  void arriveAsMagician() {
    ASSERT_TRUE(wizard.start());
    playOk(road::priorities("optRasseElf", "optVollzauberer", "optAttribute18", "optFertigkeiten40", "optRessD") +
           road::attributes({3, 3, 3, 3, 3, 3}) + road::skills(40, 3) + road::knowledge(3));
  }
  void buy(const std::string& box, const std::string& entry, const std::string& button) {
    playOk("pick " + box + " " + entry + "\nclick " + button + "\n");
  }
  void gear(const std::string& text, const std::string& cost) {
    playOk("type txtEquipment " + text + "\ntype txtEquipmentKosten " + cost + "\nclick cmdAddEquipment\n");
  }
  [[nodiscard]] Texts bought() const {
    const Texts& lines = f.lstAusrüstung.lines();
    return {lines.begin() + 2, lines.end()};
  }
  FormAusrüstung& f = wizard.formAusrüstung;
};

TEST_F(Equipment, ArrivesWithTwoContactsAndNothingSpent) {
  arriveAsMagician();
  EXPECT_EQ(f.lstAusrüstung.lines(), (Texts{"Freie Connection Stufe 1", "Freie Connection Stufe 1"}));
  EXPECT_EQ(f.lblMoney.caption(), "20000");
  EXPECT_EQ(f.cmbConnection.entries(), (Texts{"Wirt", "Schieber"}));
  EXPECT_EQ(f.cmbCyberware.entries(), (Texts{"Äder", "Auge", "Doppel", "Doppel", "Spende", "Zahn"}));
  EXPECT_FALSE(f.cmdAddLebensstil.isEnabled());
  EXPECT_TRUE(f.cmdGoAhead.isEnabled());
}

TEST_F(Equipment, MoneyIsPaidToTheLastNuyenAndNoFurther) {
  arriveAsMagician();
  buy("cmbConnection", "Schieber", "cmdAddConnection");
  EXPECT_EQ(f.lblMoney.caption(), "99,5");
  buy("cmbLebensstil", "Dach", "cmdAddLebensstil");
  EXPECT_EQ(f.lblMoney.caption(), "99,5");
  gear("Seil, 20 m", "99,5");
  EXPECT_EQ(f.lblMoney.caption(), "0");
  buy("cmbLebensstil", "Stein", "cmdAddLebensstil");
  EXPECT_EQ(bought(), (Texts{"Schieber", "Seil, 20 m", "Stein"}));
  playOk("type cmbLebensstil stein\nclick cmdAddLebensstil\ntype cmbLebensstil Stein\nclick cmdAddLebensstil\n");
  EXPECT_EQ(bought(), (Texts{"Schieber", "Seil, 20 m", "Stein", "Stein"}));
}

TEST_F(Equipment, OtherGearTakesAnyAmountThatIsANumber) {
  arriveAsMagician();
  EXPECT_EQ(play("click cmdAddEquipment"), Texts{"disabled"});
  for (const char* noNumber : {"viel", "1.00", "20000,0001", "99999999999999999999", "1 000"}) gear("Seil", noNumber);
  playOk("type txtEquipment \ntype txtEquipmentKosten 5\nclick cmdAddEquipment\n");
  EXPECT_TRUE(bought().empty());
  gear("Fund", "-1.000,5");
  gear("Geschenk", "0");
  EXPECT_EQ(f.lblMoney.caption(), "21000,5");
  EXPECT_EQ(bought(), (Texts{"Fund", "Geschenk"}));
}

TEST_F(Equipment, WareTakesEssenzAndBioIndex) {
  arriveAsMagician();
  playOk("pick cmbCyberware Zahn\n");
  EXPECT_EQ(f.lblCyberEssenz.caption() + "/" + f.lblCyberkosten.caption(), "1,5/1000");
  EXPECT_TRUE(bought().empty());
  playOk("click cmdAddCyberware\n");
  EXPECT_EQ(f.lblEssenz.caption() + "/" + f.lblBioIndex.caption(), "4,5/7,5");
  buy("cmbBioware", "Herz", "cmdAddBioware");
  buy("cmbCyberware", "Auge", "cmdAddCyberware");
  EXPECT_EQ(bought(), Texts{"Zahn"});
  buy("cmbCyberware", "Zahn", "cmdAddCyberware");
  buy("cmbCyberware", "Zahn", "cmdAddCyberware");
  EXPECT_EQ(f.lblEssenz.caption() + "/" + f.lblBioIndex.caption(), "1,5/4,5");
  buy("cmbCyberware", "Zahn", "cmdAddCyberware");  // would leave exactly 0
  EXPECT_EQ(f.lblEssenz.caption(), "1,5");
  // 1.5 holds 0.2 seven times; the float residue of 7 x 0.2 is what the test sees.
  for (int i = 0; i < 9; ++i) buy("cmbCyberware", "Äder", "cmdAddCyberware");
  const Texts lines = bought();
  EXPECT_EQ(std::count(lines.begin(), lines.end(), "Äder"), 7);
}

TEST_F(Equipment, BioIndexMayFallBelowZeroByCyberwareOnly) {
  arriveAsMagician();
  buy("cmbBioware", "Leber", "cmdAddBioware");
  EXPECT_EQ(f.lblBioIndex.caption(), "0,5");
  buy("cmbCyberware", "Zahn", "cmdAddCyberware");
  EXPECT_EQ(f.lblBioIndex.caption() + "/" + f.lblEssenz.caption(), "-1/4,5");
  buy("cmbBioware", "Haar", "cmdAddBioware");
  EXPECT_EQ(bought(), (Texts{"Leber", "Zahn"}));
}

TEST_F(Equipment, EqualNamesAreAllActedOn) {
  arriveAsMagician();
  buy("cmbCyberware", "Doppel", "cmdAddCyberware");
  EXPECT_EQ(bought(), (Texts{"Doppel", "Doppel"}));
  EXPECT_EQ(f.lblCyberEssenz.caption() + "/" + f.lblCyberkosten.caption(), "2/20");
  EXPECT_EQ(f.lblMoney.caption() + "/" + f.lblEssenz.caption(), "19970/3");
}

TEST_F(Equipment, AnOverflowTakesTheWholePressBack) {
  arriveAsMagician();
  buy("cmbCyberware", "Spende", "cmdAddCyberware");
  EXPECT_EQ(f.lblMoney.caption(), "900000000020000");
  buy("cmbCyberware", "Spende", "cmdAddCyberware");
  EXPECT_EQ(faults.size(), 1U);
  EXPECT_EQ(f.lblMoney.caption(), "900000000020000");
  EXPECT_EQ(bought(), Texts{"Spende"});
}

TEST_F(Equipment, MagicianSpendsSpellPointsToTheLast) {
  arriveAsMagician();
  EXPECT_EQ(f.lblSpruchPunkte.caption() + "/" + f.lblKraftpunkte.caption(), "25/0");
  buy("cmbMagic", "Kraft", "cmdAddMagicStuff");
  buy("cmbMagic", "Spruch", "cmdAddMagicStuff");
  buy("cmbMagic", "Spruch", "cmdAddMagicStuff");
  buy("cmbMagic", "Amulett", "cmdAddMagicStuff");
  EXPECT_EQ(bought(), (Texts{"Spruch", "Amulett"}));
  EXPECT_EQ(f.lblSpruchPunkte.caption() + "/" + f.lblMoney.caption(), "0/19500");
  playOk("click cmdAddSpruchPunkt\n");
  EXPECT_EQ(f.lblSpruchPunkte.caption(), "0");
  gear("Fund", "-5500");
  playOk("click cmdAddSpruchPunkt\nclick cmdAddSpruchPunkt\n");
  EXPECT_EQ(f.lblSpruchPunkte.caption() + "/" + f.lblMoney.caption(), "1/0");
}

TEST_F(Equipment, AdeptsHavePowerPointsAndOthersAClosedFrame) {
  ASSERT_TRUE(wizard.start());
  playOk(road::priorities("optRasseElf", "optAdept", "optAttribute18", "optFertigkeiten50", "optRessD") +
         road::attributes({3, 3, 3, 3, 3, 3}) + road::skills(50, 3) + road::knowledge(3));
  EXPECT_EQ(play("click cmdAddSpruchPunkt"), Texts{"disabled"});
  for (int i = 0; i < 3; ++i) buy("cmbMagic", "Kraft", "cmdAddMagicStuff");
  EXPECT_EQ(f.lblKraftpunkte.caption() + "/" + f.lblMoney.caption(), "1/18000");
  buy("cmbMagic", "Spruch", "cmdAddMagicStuff");
  EXPECT_EQ(bought(), (Texts{"Kraft", "Kraft"}));
}

TEST_F(Equipment, NoMagicClosesTheFrame) {
  ASSERT_TRUE(wizard.start());
  playOk(road::priorities("optRasseElf", "optMagieE", "optAttribute27", "optFertigkeiten50", "optRessD") +
         road::attributes({5, 5, 5, 4, 4, 4}) + road::skills(50, 5) + road::knowledge(4));
  EXPECT_EQ(play("pick cmbMagic Spruch\nclick cmdAddMagicStuff\nclick cmdAddSpruchPunkt"), Texts(3, "disabled"));
  EXPECT_EQ(f.cmbMagic.entries().size(), 3U);
  EXPECT_TRUE(f.cmbMagic.isEnabled());
}

TEST_F(Equipment, NoLineBeyondThe999th) {
  arriveAsMagician();
  playOk("type txtEquipment Knopf\ntype txtEquipmentKosten 1\n" + road::press("cmdAddEquipment", 997));
  EXPECT_EQ(f.lstAusrüstung.listCount(), 999);
  EXPECT_EQ(f.lblMoney.caption(), "19003");
  playOk("click cmdAddEquipment\n");
  buy("cmbLebensstil", "Dach", "cmdAddLebensstil");
  buy("cmbCyberware", "Zahn", "cmdAddCyberware");
  buy("cmbBioware", "Haar", "cmdAddBioware");
  buy("cmbMagic", "Amulett", "cmdAddMagicStuff");
  EXPECT_EQ(f.lstAusrüstung.listCount(), 999);
  EXPECT_EQ(f.lblMoney.caption() + "/" + f.lblEssenz.caption(), "19003/6");
  playOk("click cmdGoAhead\n");
  EXPECT_TRUE(faults.empty());
  EXPECT_EQ(wizard.formFeinschliff.AusruestungsZaehler, 1001);
}

TEST_F(Equipment, LeavingTurnsTheRestIntoStartCapital) {
  arriveAsMagician();
  gear("Rest", "7654,9995");
  buy("cmbCyberware", "Äder", "cmdAddCyberware");
  die = 6;
  playOk("click cmdGoAhead\n");
  EXPECT_EQ(utf8FromCp1252(fileBytes("Ausrüstung.txt")),
            "\"Freie Connection Stufe 1\"\r\n\"Freie Connection Stufe 1\"\r\n\"Rest\"\r\n\"Äder\"\r\n"
            "\"Startkapital: 3034,5 Nuyen\"\r\n");
  EXPECT_EQ(fileBytes("Essenz.txt"), "5.8,8.8\r\n");
  EXPECT_EQ(wizard.runtime().visibleForm(), &wizard.formNamenGeben);
  EXPECT_EQ(wizard.formFeinschliff.state(), Form::State::hidden);
}

TEST(Dice, AreFairAndNeverThrownTwiceFromOneSeed) {
  std::array<int, 7> count{};
  for (int i = 0; i < 6000; ++i) ++count.at(static_cast<std::size_t>(wuerfeln()));
  for (std::size_t face = 1; face <= 6; ++face) EXPECT_NEAR(count.at(face), 1000, 200) << face;
}

// ---------------------------------------------------------------------------------------------------------------------

struct CatalogueRow {
  const char* name;
  const char* file;
  std::string bytes;
  Texts faults;
};
class CatalogueCheck : public testing::TestWithParam<CatalogueRow>, public World {};
TEST_P(CatalogueCheck, NamesTheTrueCulprit) {
  writeBytes(GetParam().file, GetParam().bytes);
  Texts found;
  checkCatalogues(files, found);
  EXPECT_EQ(found, GetParam().faults);
  EXPECT_EQ(wizard.start(), GetParam().faults.empty());
  EXPECT_EQ(faults.size(), GetParam().faults.empty() ? 0U : 1U);
}
const std::string goodWare = "\"Zahn\",1.5,1000" + noEffect;
INSTANTIATE_TEST_SUITE_P(
    Catalogues, CatalogueCheck,
    testing::Values(
        CatalogueRow{"decimal_comma", "Cyberware.txt", goodWare + "\"Auge\",0,5,1000" + noEffect + goodWare,
                     {"Cyberware.txt, Zeile 2: 18 Felder statt 17. Dezimalkomma? Hier gilt der Punkt."}},
        CatalogueRow{"two_commas_in_one_file", "Bioware.txt",
                     "\"A\",0,5,1000" + noEffect + goodWare + "\"B\",0,5,1000" + noEffect + goodWare,
                     {"Bioware.txt, Zeile 1: 18 Felder statt 17. Dezimalkomma? Hier gilt der Punkt.",
                      "Bioware.txt, Zeile 3: 18 Felder statt 17. Dezimalkomma? Hier gilt der Punkt."}},
        CatalogueRow{"price_with_comma", "Connection.txt", "\"Wirt\",5,5\r\n\"Bote\",10\r\n",
                     {"Connection.txt, Zeile 1: 3 Felder statt 2. Dezimalkomma? Hier gilt der Punkt."}},
        CatalogueRow{"field_missing", "MagicStuff.txt", "\"A\",1,2\r\n\"B\",1,2,3\r\n\"C\",1,2,3\r\n",
                     {"MagicStuff.txt, Zeile 1: 3 Felder statt 4. Fehlt ein Komma oder ein Anführungszeichen?"}},
        CatalogueRow{"blamed_past_a_spread_row", "MagicStuff.txt", "\"A\",1\r\n2,3\r\n\"B\",1,2,x\r\n",
                     {"MagicStuff.txt, Zeile 3, Feld 4: „x“ ist keine Zahl."}},
        CatalogueRow{"cut_short", "Cyberdecks.txt", "\"A\",1,2,3\r\n\"B\",1",
                     {"Cyberdecks.txt, Zeile 2: 2 Felder statt 4. Fehlt ein Komma oder ein Anführungszeichen?"}},
        CatalogueRow{"empty_line_at_the_end", "Lebensstil.txt", "\"A\",1\r\n\r\n",
                     {"Lebensstil.txt, Zeile 2: Die Zeile ist leer. Bitte löschen."}},
        CatalogueRow{"wrong_type", "Cyberdecks.txt", "\"A\",vier,2,3\r\n",
                     {"Cyberdecks.txt, Zeile 1, Feld 2: „vier“ ist keine ganze Zahl von -32768 bis 32767."}},
        CatalogueRow{"beyond_16_bits", "Cyberdecks.txt", "\"A\",40000,2,3\r\n",
                     {"Cyberdecks.txt, Zeile 1, Feld 2: „40000“ ist keine ganze Zahl von -32768 bis 32767."}},
        CatalogueRow{"empty_name", "Lebensstil.txt", "\"\",1\r\n\"B\",2\r\n",
                     {"Lebensstil.txt, Zeile 1, Feld 1: Der Name fehlt."}},
        CatalogueRow{"quote_in_name", "Lebensstil.txt", "Die \"Villa\",1\r\n",
                     {"Lebensstil.txt, Zeile 1, Feld 1: Im Namen steht ein Anführungszeichen."}},
        CatalogueRow{"saved_as_utf8", "Lebensstil.txt", "\"Häuschen\",1\r\n",
                     {"Lebensstil.txt: Die Datei ist als UTF-8 gespeichert. Bitte speichern Sie sie in der Kodierung "
                      "„ANSI“ (Windows-1252, Westeuropäisch)."}},
        CatalogueRow{"too_many_rows", "Cyberdecks.txt",
                     [] {
                       std::string rows;
                       for (int i = 0; i < 21; ++i) rows += "\"D" + std::to_string(i) + "\",1,1,1\r\n";
                       return rows;
                     }(),
                     {"Cyberdecks.txt: 21 Einträge. Platz ist für höchstens 20."}},
        CatalogueRow{"fine_spread_over_lines", "Cyberdecks.txt", "\"A\"\n1,2\n3\n\"B\",1,2,3", {}},
        CatalogueRow{"fine_doubled_name", "Cyberdecks.txt", "\"A\",1,2,3\r\n\"A\",1,2,3\r\n", {}},
        CatalogueRow{"fine_empty_file", "Cyberdecks.txt", "", {}}),
    rowName);

TEST(CatalogueCheckMessage, TellsTenFaultsAndHowManyMore) {
  World world;
  std::string rows;
  for (int i = 0; i < 14; ++i) rows += "\"L\",x\r\n";
  writeBytes("Lebensstil.txt", rows);
  std::filesystem::remove("template.htm");
  EXPECT_FALSE(world.wizard.start());
  const std::string& text = world.faults.at(0);
  EXPECT_NE(text.find("Lebensstil.txt, Zeile 10, Feld 2"), text.npos);
  EXPECT_EQ(text.find("Zeile 11"), text.npos);
  EXPECT_NE(text.find("… und 5 weitere."), text.npos);
  EXPECT_EQ(world.wizard.runtime().visibleForm(), nullptr);
}

TEST(FindText, AgreesWithAPlainSearch) {
  std::mt19937 random(1);
  const auto upTo = [&random](std::size_t most) { return std::uniform_int_distribution<std::size_t>(0, most)(random); };
  for (int round = 0; round < 2000; ++round) {
    std::string bytes;
    for (std::size_t length = upTo(700); length > 0; --length) bytes += static_cast<char>('a' + upTo(2));
    std::string text;
    for (std::size_t length = upTo(9); length > 0; --length) text += static_cast<char>('a' + upTo(2));
    const std::size_t from = upTo(bytes.size());
    ASSERT_EQ(findText(bytes, text, from), bytes.find(text, from)) << text;
  }
}

}  // namespace
}  // namespace bogenwerker
