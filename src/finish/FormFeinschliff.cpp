#include "finish/FormFeinschliff.h"

#include <cassert>

#include "catalogues/catalogues.h"
#include "finish/FormNamenGeben.h"
#include "finish/pools.h"
#include "finish/sheet.h"
#include "finish/ware_effects.h"
#include "outside/records.h"
#include "values/text.h"

namespace bogenwerker {

FormFeinschliff::FormFeinschliff(FormsRuntime& runtime, const Environment& environment, FormNamenGeben& namenGeben)
    : FormWith(runtime, "formFeinschliff",
               {.caption = "Endgültige Werte erzeugen - Schritt 6",
                .help = "schritt6",
                .stretch = {.rows = {0, 1, 0}, .columns = {0, 1}}}),
      environment_(environment),
      formNamenGeben(namenGeben) {
  formNamenGeben.whenDone([this] { setVisible(true); });
}

// The deck comes ahead of the ware, whose effects use it; Magie follows the Essenz ahead of all that shows or uses it.
void FormFeinschliff::Form_Load() {
  formNamenGeben.setVisible(true);
  setVisible(false);

  readAttributes();
  readEssenz();
  const std::vector<std::string> lines = readEquipment();

  checkCyberdeck(lines);
  ModifAttribErzeugen(*this);
  WendeWareAn(*this, lines, environment_.files);
  checkMagie(*this, lines, environment_.files);
  BerechneKampfPool(*this);
  BerechneZauberPool(*this);
  BerechneAstralKampfPool(*this);
  BerechneHackingPool(*this);
  ZeigeWerte();
  ZeigeFertigkeiten();
}

// By place, not by name: Charisma stands before Intelligenz.
void FormFeinschliff::readAttributes() {
  const std::string file = environment_.files.read("Attribute.txt");
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
  const std::string file = environment_.files.read("Essenz.txt");
  Untyped bioIndex;
  RecordReader("Essenz.txt", file).read(Essenz, bioIndex);
}

// Gives back the lines as the file has them, in code page 1252, for the look-up in the catalogues.
std::vector<std::string> FormFeinschliff::readEquipment() {
  const std::string file = environment_.files.read("Ausrüstung.txt");
  std::vector<std::string> lines;
  for (RecordReader reader("Ausrüstung.txt", file); !reader.atEnd(); ++AusruestungsZaehler) {
    lines.emplace_back(reader.readRaw());
    AusruestungsZeile[AusruestungsZaehler] = utf8FromCp1252(lines.back());
    lstAusrüstung.addItem(AusruestungsZeile[AusruestungsZaehler]);
  }
  return lines;
}

// The last deck on the list decides, but every one gets its two lines.
void FormFeinschliff::checkCyberdeck(const std::vector<std::string>& lines) {
  std::string buffer;
  for (const std::string& line : lines) {
    forEachRowNamed<DeckRow>(environment_.files, "Cyberdecks.txt", line, buffer, [this](const DeckRow& deck) {
      MPCP = deck.MPCP;
      Reaktionsverstärkung = deck.Reaktionsverstärkung;
      lstAusrüstung.addItem("MPCP: " + textOf(MPCP));
      lstAusrüstung.addItem("Reaktionsverstärkung: " + textOf(Reaktionsverstärkung));
    });
  }
}

void FormFeinschliff::ZeigeWerte() {
  for (const FinalValue& value : finalValues) {
    Control* control = find(value.control);
    assert(control != nullptr && "a final value without its label");
    std::string text = value.text(*this, environment_.numbers).onForm;
    if (auto* label = dynamic_cast<Label*>(control)) label->setCaption(std::move(text));
    else dynamic_cast<TextBox&>(*control).setText(std::move(text));
  }
}

void FormFeinschliff::ZeigeFertigkeiten() {
  Files& files = environment_.files;

  lstAusrüstung.addItem("");
  lstAusrüstung.addItem("AKTIONSFERTIGKEITEN:");
  FertigkeitZaehler = 1;
  const std::string skillFile = files.read("Fertigkeiten.txt");
  for (RecordReader reader("Fertigkeiten.txt", skillFile); !reader.atEnd(); ++FertigkeitZaehler) {
    const Integer i = FertigkeitZaehler;
    reader.read(FertigkeitName[i], SpeziName[i], FertigkeitStufe[i], SpeziStufe[i]);
    lstAusrüstung.addItem(FertigkeitName[i] + " (" + SpeziName[i] + ") " +
                          withBracket(FertigkeitStufe[i], SpeziStufe[i]));
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
  const std::string sheet = writeSheet(environment_, *this, formNamenGeben);
  environment_.showMessage(
      Message::closing, "Fertig! Bitte überprüfen Sie den Charakter. Marvino's Bogenwerker ersetzt keine Regelwerke!");
  if (environment_.sheetFinished) environment_.sheetFinished(sheet);
  unload();
}

}  // namespace bogenwerker
