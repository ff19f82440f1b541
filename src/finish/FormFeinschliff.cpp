#include "finish/FormFeinschliff.h"

#include "finish/FormNamenGeben.h"
#include "finish/sheet.h"
#include "wizard/records.h"
#include "wizard/text.h"
#include "zusatzmodul/berechneReaktion.h"

namespace bogenwerker {
namespace {

// A pool is a sum divided and rounded down.
Integer poolOf(Integer sum, int divisor) {
  const double quotient = static_cast<double>(sum.value()) / divisor;
  return berechneReaktion(quotient, quotient);
}

}  // namespace

FormFeinschliff::FormFeinschliff(FormsRuntime& runtime, FormNamenGeben& namenGeben)
    : FormWith(runtime, "formFeinschliff",
               {.caption = "Endgültige Werte erzeugen - Schritt 6", .stretch = {.rows = {0, 1, 0}, .columns = {0, 1}}}),
      formNamenGeben(namenGeben) {
  formNamenGeben.whenDone([this] { setVisible(true); });
}

// The deck comes ahead of the ware, whose effects use it; Magie follows the Essenz ahead of all that shows or uses it.
void FormFeinschliff::Form_Load() {
  formNamenGeben.setVisible(true);
  setVisible(false);

  readAttributes();
  readEssenz();
  readEquipment();

  checkCyberdeck();
  ModifAttribErzeugen();
  WendeWareAn();
  checkMagie();
  ZeigeAttribute();
  BerechneKampfPool();
  BerechneZauberPool();
  BerechneAstralKampfPool();
  BerechneHackingPool();
  ZeigeFertigkeiten();
}

// By place, not by name: Charisma stands before Intelligenz.
void FormFeinschliff::readAttributes() {
  const std::string file = environment().files.read("Attribute.txt");
  RecordReader reader("Attribute.txt", file);
  NumberedArray<Integer, 10> values;
  for (Integer place = 1; !reader.atEnd(); ++place) {
    std::string name;
    reader.read(name, values[place]);
  }
  Konstitution = values[1];
  Schnelligkeit = values[2];
  Stärke = values[3];
  Charisma = values[4];
  Intelligenz = values[5];
  Willenskraft = values[6];
  Magie = values[7];
  Reaktion = values[8];
}

void FormFeinschliff::readEssenz() {
  const std::string file = environment().files.read("Essenz.txt");
  Untyped bioIndex;
  RecordReader("Essenz.txt", file).read(Essenz, bioIndex);
}

void FormFeinschliff::readEquipment() {
  const std::string file = environment().files.read("Ausrüstung.txt");
  RecordReader reader("Ausrüstung.txt", file);
  AusruestungsZaehler = 1;
  while (!reader.atEnd()) {
    reader.read(AusruestungsZeile[AusruestungsZaehler]);
    lstAusrüstung.addItem(AusruestungsZeile[AusruestungsZaehler]);
    ++AusruestungsZaehler;
  }
}

// The last deck on the list decides, but every one gets its two lines.
void FormFeinschliff::checkCyberdeck() {
  std::string buffer;
  for (Integer i = 1; i < AusruestungsZaehler; ++i) {
    forEachRowNamed<DeckRow>(environment().files, "Cyberdecks.txt", cp1252FromUtf8(AusruestungsZeile[i]), buffer,
                             [this](const DeckRow& deck) {
                               MPCP = deck.MPCP;
                               Reaktionsverstärkung = deck.Reaktionsverstärkung;
                               lstAusrüstung.addItem("MPCP: " + textOf(MPCP));
                               lstAusrüstung.addItem("Reaktionsverstärkung: " + textOf(Reaktionsverstärkung));
                             });
  }
}

void FormFeinschliff::ModifAttribErzeugen() {
  ModKonstitution = Konstitution;
  ModSchnelligkeit = Schnelligkeit;
  ModStärke = Stärke;
  ModIntelligenz = Intelligenz;
  ModCharisma = Charisma;
  ModWillenskraft = Willenskraft;
}

void FormFeinschliff::WendeWareAn() {
  Initiative = 1;
  std::string buffer;
  for (Integer i = 1; i < AusruestungsZaehler; ++i) {
    const std::string line = cp1252FromUtf8(AusruestungsZeile[i]);
    for (const char* file : {"Cyberware.txt", "Bioware.txt"}) {
      forEachRowNamed<WareRow>(environment().files, file, line, buffer,
                               [this](const WareRow& ware) { WendeWerteAn(ware.effects); });
    }
  }
  ModReaktion = berechneReaktion(ModSchnelligkeit - ReakAbzugSchnell, ModIntelligenz - ReakAbzugIntell) + ReakBonus;
}

void FormFeinschliff::WendeWerteAn(const WareEffects& ware) {
  ModKonstitution += ware.kon;
  ModSchnelligkeit += ware.Schnell;
  ModStärke += ware.Stark;
  ModIntelligenz += ware.Intell;
  ModCharisma += ware.Char;
  ModWillenskraft += ware.Will;
  ReakBonus += ware.reak;

  if (!ware.AnwendaufReak) {
    ReakAbzugSchnell = ware.Schnell;
    ReakAbzugIntell = ware.Intell;
  }
  if (ware.reakRIGGER != 0) {
    SpecReaktion = berechneReaktion(ModSchnelligkeit, ModIntelligenz) + ware.reakRIGGER;
    Steuerpool = SpecReaktion;
    txtSteuerpool.setText(textOf(Steuerpool));
  }
  if (ware.reakDECKER != 0 || Reaktionsverstärkung != 0) {
    SpecReaktion = berechneReaktion(ModSchnelligkeit, ModIntelligenz) + ware.reakDECKER + 2 * Reaktionsverstärkung;
  }

  ModInitiative = ware.ini + Initiative;
  if (ware.iniRIGGER != 0) SpecInitiative = ware.iniRIGGER + Initiative;
  if (ware.iniDECKER != 0 || Reaktionsverstärkung != 0) {
    SpecInitiative = ware.iniDECKER + Initiative + Reaktionsverstärkung;
  }
  if (!ware.AnwendaufPools) {
    PoolAbzugIntell = ware.Intell;
    PoolAbzugCharisma = ware.Char;
    PoolAbzugWill = ware.Will;
    PoolAbzugSchnell = ware.Schnell;
  }
}

void FormFeinschliff::checkMagie() {
  if (Single(Magie.value()) != Essenz && Magie != 0) Magie = berechneReaktion(double{Essenz}, double{Essenz});
}

void FormFeinschliff::ZeigeAttribute() {
  lblKonstitution.setCaption(boughtAndModified(Konstitution, ModKonstitution));
  lblSchnelligkeit.setCaption(boughtAndModified(Schnelligkeit, ModSchnelligkeit));
  lblStärke.setCaption(boughtAndModified(Stärke, ModStärke));
  lblCharisma.setCaption(boughtAndModified(Charisma, ModCharisma));
  lblIntelligenz.setCaption(boughtAndModified(Intelligenz, ModIntelligenz));
  lblWillenskraft.setCaption(boughtAndModified(Willenskraft, ModWillenskraft));
  lblMagie.setCaption(textOf(Magie));
  lblReaktion.setCaption(reaktionText());
  lblEssenz.setCaption(essenzText());
  lblInitiative.setCaption(initiativeText());
}

void FormFeinschliff::BerechneKampfPool() {
  Kampfpool = poolOf(
      ModIntelligenz + ModSchnelligkeit + ModWillenskraft - PoolAbzugIntell - PoolAbzugSchnell - PoolAbzugWill, 2);
  txtKampfpool.setText(textOf(Kampfpool));
}

void FormFeinschliff::BerechneZauberPool() {
  if (Magie == 0) return;
  Zauberpool = poolOf(ModWillenskraft + ModIntelligenz + Magie - PoolAbzugIntell - PoolAbzugWill, 3);
  txtZauberpool.setText(textOf(Zauberpool));
}

void FormFeinschliff::BerechneAstralKampfPool() {
  if (Magie == 0) return;
  Astralkampf =
      poolOf(ModIntelligenz - PoolAbzugIntell + ModCharisma - PoolAbzugCharisma + ModWillenskraft - PoolAbzugWill, 2);
  txtAstralkampf.setText(textOf(Astralkampf));
}

void FormFeinschliff::BerechneHackingPool() {
  if (MPCP == 0) return;
  Hackingpool = poolOf(ModIntelligenz - PoolAbzugIntell + MPCP, 3);
  txtHackingpool.setText(textOf(Hackingpool));
}

void FormFeinschliff::ZeigeFertigkeiten() {
  Files& files = environment().files;

  lstAusrüstung.addItem("");
  lstAusrüstung.addItem("AKTIONSFERTIGKEITEN:");
  FertigkeitZaehler = 1;
  const std::string skillFile = files.read("Fertigkeiten.txt");
  for (RecordReader reader("Fertigkeiten.txt", skillFile); !reader.atEnd(); ++FertigkeitZaehler) {
    const Integer i = FertigkeitZaehler;
    reader.read(FertigkeitName[i], SpeziName[i], FertigkeitStufe[i], SpeziStufe[i]);
    lstAusrüstung.addItem(FertigkeitName[i] + " (" + SpeziName[i] + ") " +
                          boughtAndModified(FertigkeitStufe[i], SpeziStufe[i]));
  }

  WissensZaehler = 1;
  lstAusrüstung.addItem("");
  lstAusrüstung.addItem("WISSENSFERTIGKEITEN:");
  const std::string knowledgeFile = files.read("Wissensfertigkeiten.txt");
  for (RecordReader reader("Wissensfertigkeiten.txt", knowledgeFile); !reader.atEnd(); ++WissensZaehler) {
    const Integer i = WissensZaehler;
    reader.read(WissensName[i], WissensStufe[i]);
    lstAusrüstung.addItem(WissensName[i] + " " + textOf(WissensStufe[i]));
  }

  SprachZaehler = 1;
  lstAusrüstung.addItem("");
  lstAusrüstung.addItem("SPRACHEN:");
  const std::string languageFile = files.read("Sprachen.txt");
  for (RecordReader reader("Sprachen.txt", languageFile); !reader.atEnd(); ++SprachZaehler) {
    const Integer i = SprachZaehler;
    reader.read(SprachName[i], SprachStufe[i]);
    lstAusrüstung.addItem(SprachName[i] + " " + textOf(SprachStufe[i]));
  }
}

void FormFeinschliff::cmdErzeugeHTML_Click() {
  writeSheet(environment().files, *this, formNamenGeben);
  environment().showMessage(
      Message::closing, "Fertig! Bitte überprüfen Sie den Charakter. Marvino's Bogenwerker ersetzt keine Regelwerke!");
  unload();
}

std::string FormFeinschliff::essenzText() const { return textOf(roundToHundredths(Essenz), environment().numbers); }

std::string FormFeinschliff::reaktionText() const {
  return boughtAndModified(Reaktion, ModReaktion) + " (" + textOf(SpecReaktion) + ")";
}

std::string FormFeinschliff::initiativeText() const {
  return "+1W6 (+" + textOf(ModInitiative) + "W6) (+" + textOf(SpecInitiative) + "W6)";
}

std::string boughtAndModified(Integer bought, Integer modified) {
  return textOf(bought) + " (" + textOf(modified) + ")";
}

}  // namespace bogenwerker
