#include "skills/FormWissensfertigkeit.h"

#include "equipment/FormAusruestung.h"
#include "outside/records.h"
#include "values/text.h"

namespace bogenwerker {
namespace {

std::string entryLine(Integer number, const std::string& name, Integer level) {
  return textOf(number) + ". " + name + " -- Stufe: " + textOf(level);
}

}  // namespace

FormWissensfertigkeit::FormWissensfertigkeit(FormsRuntime& runtime, const Environment& environment,
                                             FormAusrüstung& ausrüstung)
    : FormWith(runtime, "formWissensfertigkeit",
               {.caption = "Wissensfertigkeiten - Schritt 4",
                .help = "schritt4",
                .stretch = {.rows = {0, 1, 0}, .columns = {1, 1}}}),
      environment_(environment),
      formAusrüstung(ausrüstung) {}

void FormWissensfertigkeit::Form_Load() {
  zaehler = 1;
  zaehler2 = 1;
  const std::string file = environment_.files.read("Attribute.txt");
  RecordReader reader("Attribute.txt", file);
  while (!reader.atEnd()) {
    std::string name;
    Integer value;
    reader.read(name, value);
    if (name == "Intelligenz") Intelligenz = value;
  }
  MaxWissensPoints = Intelligenz * 5;

  const double product = Intelligenz.value() * 1.5;
  MaxSprachPoints = roundToInteger(product);
  if (Single(MaxSprachPoints.value()) > Single(product)) MaxSprachPoints -= 1;

  SprachPunkte = MaxSprachPoints;
  WissensPunkte = MaxWissensPoints;
  ZeigeFreePoints();
}

void FormWissensfertigkeit::txtWFertigkeit_Change() { cmdAddWFertigkeit.setEnabled(!txtWFertigkeit.text().empty()); }

void FormWissensfertigkeit::txtSprache_Change() { cmdAddSprache.setEnabled(!txtSprache.text().empty()); }

void FormWissensfertigkeit::cmdAddWFertigkeit_Click() {
  if (!hasRoom(zaehler)) return;
  cmdAddWFertigkeit.setEnabled(false);
  WissensName[zaehler] = txtWFertigkeit.text();
  WissensStufe[zaehler] = 0;
  lstWFertigkeiten.addItem(entryLine(zaehler, WissensName[zaehler], WissensStufe[zaehler]));
  ++zaehler;
}

void FormWissensfertigkeit::cmdAddSprache_Click() {
  if (!hasRoom(zaehler2)) return;
  cmdAddSprache.setEnabled(false);
  SprachName[zaehler2] = txtSprache.text();
  SprachStufe[zaehler2] = 0;
  lstSprachen.addItem(entryLine(zaehler2, SprachName[zaehler2], SprachStufe[zaehler2]));
  ++zaehler2;
}

void FormWissensfertigkeit::lstWFertigkeiten_Click() {
  merkzahl = numberOfLine(lstWFertigkeiten.text());
  Zeiger = "Wissensfertigkeit";
}

void FormWissensfertigkeit::lstSprachen_Click() {
  merkzahl = numberOfLine(lstSprachen.text());
  Zeiger = "Sprache";
}

void FormWissensfertigkeit::cmdPlusWFert_Click() {
  const bool rises = whyNotPlus().empty();
  if (Zeiger == "Wissensfertigkeit" && rises) {
    ++WissensStufe[merkzahl];
    WissensPunkte -= priceOfLevel(WissensStufe[merkzahl], Intelligenz);
  }
  if (Zeiger == "Sprache" && rises) {
    ++SprachStufe[merkzahl];
    SprachPunkte -= priceOfLevel(SprachStufe[merkzahl], Intelligenz);
    if (SprachPunkte < 0) {
      WissensPunkte += SprachPunkte;
      SprachPunkte = 0;
    }
  }
  schreibeListen();
}

void FormWissensfertigkeit::cmdMinusWFert_Click() {
  const bool falls = whyNotMinus().empty();
  if (Zeiger == "Wissensfertigkeit" && falls) {
    WissensPunkte += priceOfLevel(WissensStufe[merkzahl], Intelligenz);
    WissensStufe[merkzahl] -= 1;
  }
  if (Zeiger == "Sprache" && falls) {
    const Integer refund = priceOfLevel(SprachStufe[merkzahl], Intelligenz);
    SprachStufe[merkzahl] -= 1;
    SprachPunkte += refund;
    if (SprachPunkte > MaxSprachPoints) {  // the whole refund moves, not only what is above the ceiling
      WissensPunkte += refund;
      SprachPunkte -= refund;
    }
  }
  schreibeListen();
}

void FormWissensfertigkeit::cmdGoAhead_Click() {
  Files& files = environment_.files;
  RecordWriter skills(files, "Wissensfertigkeiten.txt");
  for (Integer i = 1; i < zaehler; ++i) skills.write(WissensName[i], WissensStufe[i]);
  skills.close();

  RecordWriter languages(files, "Sprachen.txt");
  for (Integer i = 1; i < zaehler2; ++i) languages.write(SprachName[i], SprachStufe[i]);
  languages.close();

  formAusrüstung.setVisible(true);
  setVisible(false);
  unload();
}

void FormWissensfertigkeit::schreibeListen() {
  lstWFertigkeiten.clear();
  lstSprachen.clear();
  for (Integer i = 1; i < zaehler; ++i) lstWFertigkeiten.addItem(entryLine(i, WissensName[i], WissensStufe[i]));
  for (Integer i = 1; i < zaehler2; ++i) lstSprachen.addItem(entryLine(i, SprachName[i], SprachStufe[i]));
  ZeigeFreePoints();
  CheckFreePoints();
}

void FormWissensfertigkeit::ZeigeFreePoints() {
  lblSprachPunkte.setCaption(textOf(SprachPunkte));
  lblWissensPunkte.setCaption(textOf(WissensPunkte));
}

void FormWissensfertigkeit::CheckFreePoints() { cmdGoAhead.setEnabled(whyNotGoAhead().empty()); }

std::string FormWissensfertigkeit::whyNotGoAhead() const {
  const std::string skills = pointsLeft(WissensPunkte.value(), "Wissenspunkt", "Wissenspunkte");
  const std::string languages = pointsLeft(SprachPunkte.value(), "Sprachpunkt", "Sprachpunkte");
  return skills.empty() || languages.empty() ? skills + languages : skills + " " + languages;
}

std::string FormWissensfertigkeit::whyNotPlus() const {
  if (merkzahl == 0) return clickALine;
  return Zeiger == "Sprache" ? whyNotRaise(SprachName[merkzahl], SprachStufe[merkzahl])
                             : whyNotRaise(WissensName[merkzahl], WissensStufe[merkzahl]);
}

std::string FormWissensfertigkeit::whyNotMinus() const {
  if (merkzahl == 0) return clickALine;
  return Zeiger == "Sprache" ? whyNotLower(SprachName[merkzahl], SprachStufe[merkzahl])
                             : whyNotLower(WissensName[merkzahl], WissensStufe[merkzahl]);
}

}  // namespace bogenwerker
