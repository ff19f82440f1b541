#include "skills/FormAktionFertigkeit.h"

#include "outside/records.h"
#include "skills/FormWissensfertigkeit.h"
#include "values/text.h"

namespace bogenwerker {

FormAktionFertigkeit::FormAktionFertigkeit(FormsRuntime& runtime, const Environment& environment,
                                           FormWissensfertigkeit& wissensfertigkeit)
    : FormWith(runtime, "formAktionFertigkeit",
               {.caption = "Aktionsfertigkeiten - Schritt 3", .help = "schritt3", .stretch = {.rows = {0, 1, 0}}}),
      environment_(environment),
      formWissensfertigkeit(wissensfertigkeit) {}

void FormAktionFertigkeit::Form_Load() { zaehler = 1; }

void FormAktionFertigkeit::optAFKonst_Click() { link(lblREMkonst); }
void FormAktionFertigkeit::optAFSchnell_Click() { link(lblREMschnell); }
void FormAktionFertigkeit::optAFStark_Click() { link(lblREMstark); }
void FormAktionFertigkeit::optAFCharisma_Click() { link(lblREMcharisma); }
void FormAktionFertigkeit::optAFIntell_Click() { link(lblREMintell); }
void FormAktionFertigkeit::optAFWill_Click() { link(lblREMwill); }
void FormAktionFertigkeit::optAFReaktion_Click() { link(lblREMreaktion); }
void FormAktionFertigkeit::optAFMagie_Click() { link(lblREMmagie); }

// The next skill takes the value as it is now; which attribute it came from is not kept.
void FormAktionFertigkeit::link(const Label& attribute) {
  if (hasRoom(zaehler)) AttributWert[zaehler] = integerOf(attribute.caption());
}

void FormAktionFertigkeit::txtAFertigkeit_Change() { cmdAddFertigkeit.setEnabled(!txtAFertigkeit.text().empty()); }

void FormAktionFertigkeit::cmdAddFertigkeit_Click() {
  MaxPoints = integerOf(lblTotalFertigkeitenPunkte.caption());
  CheckDaButtons();
  if (CheckButton && hasRoom(zaehler)) {
    cmdAddFertigkeit.setEnabled(false);
    FertigkeitName[zaehler] = txtAFertigkeit.text();
    FertigkeitStufe[zaehler] = 0;
    lstAFertigkeiten.addItem(textOf(zaehler) + ". " + FertigkeitName[zaehler] + " [" + textOf(AttributWert[zaehler]) +
                             "]  -- Stufe: " + textOf(FertigkeitStufe[zaehler]));
    ++zaehler;
  }
  clearButtons();
}

void FormAktionFertigkeit::lstAFertigkeiten_Click() { merkzahl = numberOfLine(lstAFertigkeiten.text()); }

void FormAktionFertigkeit::cmdFertigkeitPlus_Click() {
  if (whyNotPlus().empty()) {
    ++FertigkeitStufe[merkzahl];
    UsedPoints += priceOfLevel(FertigkeitStufe[merkzahl], AttributWert[merkzahl]);
  }
  schreibeListe();
}

void FormAktionFertigkeit::cmdFertigkeitMinus_Click() {
  if (whyNotMinus().empty()) {
    UsedPoints -= priceOfLevel(FertigkeitStufe[merkzahl], AttributWert[merkzahl]);
    FertigkeitStufe[merkzahl] -= 1;
  }
  schreibeListe();
}

// From here on levels change only through specialisations.
void FormAktionFertigkeit::cmdafertcompl_Click() {
  cmdFertigkeitMinus.setEnabled(false);
  cmdFertigkeitPlus.setEnabled(false);
  frmSpezi.setEnabled(true);
}

// Never disables: a field that is emptied again leaves the button as it was.
void FormAktionFertigkeit::txtSpezi_Change() {
  if (!txtSpezi.text().empty() && merkzahl > 0) cmdAddSpezi.setEnabled(true);
}

void FormAktionFertigkeit::cmdAddSpezi_Click() {
  cmdAddSpezi.setEnabled(false);
  if (canSpecialise()) {
    SpeziName[merkzahl] = txtSpezi.text();
    SpeziStufe[merkzahl] = FertigkeitStufe[merkzahl] + 1;
    FertigkeitStufe[merkzahl] -= 1;
    schreibeListe();
  }
}

void FormAktionFertigkeit::cmddisformisready_Click() {
  Files& files = environment_.files;
  RecordWriter skills(files, "Fertigkeiten.txt");
  for (Integer i = 1; i < zaehler; ++i) {
    skills.write(FertigkeitName[i], SpeziName[i], FertigkeitStufe[i], SpeziStufe[i]);
  }
  skills.close();

  RecordWriter attributes(files, "Attribute.txt");
  attributes.write("Konstitution", integerOf(lblREMkonst.caption()));
  attributes.write("Schnelligkeit", integerOf(lblREMschnell.caption()));
  attributes.write("Stärke", integerOf(lblREMstark.caption()));
  attributes.write("Charisma", integerOf(lblREMcharisma.caption()));
  attributes.write("Intelligenz", integerOf(lblREMintell.caption()));
  attributes.write("Willenskraft", integerOf(lblREMwill.caption()));
  attributes.write("Magie", integerOf(lblREMmagie.caption()));
  attributes.write("Reaktion", integerOf(lblREMreaktion.caption()));
  attributes.close();

  formWissensfertigkeit.setVisible(true);
  setVisible(false);
  unload();
}

// Ahead of the first skill there is no budget yet, and so none that could be spent.
std::string FormAktionFertigkeit::whyNotReady() const {
  if (MaxPoints == 0) return "Fügen Sie erst eine Fertigkeit hinzu.";
  return pointsLeft(MaxPoints.value() - UsedPoints.value(), "Fertigkeitspunkt", "Fertigkeitspunkte");
}

std::string FormAktionFertigkeit::whyNotComplete() const {
  return frmSpezi.isEnabled() ? "Die Aktionsfertigkeiten sind schon vollständig." : whyNotReady();
}

std::string FormAktionFertigkeit::whyNotAddFertigkeit() const {
  if (std::string reason = whyNotAdd(txtAFertigkeit, cmdAddFertigkeit, zaehler); !reason.empty()) return reason;
  return frmZugAttr.chosen() == nullptr ? "Es fehlt noch das zugehörige Attribut." : "";
}

std::string FormAktionFertigkeit::whyNoLevels() const {
  if (frmSpezi.isEnabled()) return "Die Stufen stehen fest: Jetzt folgen die Spezialisierungen.";
  return merkzahl == 0 ? clickALine : "";
}

std::string FormAktionFertigkeit::whyNotPlus() const {
  if (std::string reason = whyNoLevels(); !reason.empty()) return reason;
  return whyNotRaise(FertigkeitName[merkzahl], FertigkeitStufe[merkzahl]);
}

std::string FormAktionFertigkeit::whyNotMinus() const {
  if (std::string reason = whyNoLevels(); !reason.empty()) return reason;
  return whyNotLower(FertigkeitName[merkzahl], FertigkeitStufe[merkzahl]);
}

// The field enables the button only as it changes, and never disables it.
std::string FormAktionFertigkeit::whyNotAddSpezi() const {
  if (!frmSpezi.isEnabled()) return "Erst müssen die Aktionsfertigkeiten vollständig sein.";
  if (merkzahl == 0) return clickALine;
  if (!canSpecialise()) return quoted(FertigkeitName[merkzahl]) + " braucht dafür mindestens Stufe 2.";
  if (cmdAddSpezi.isEnabled()) return {};
  return txtSpezi.text().empty() ? "Es fehlt noch der Name der Spezialisierung."
                                 : "Ändern Sie den Namen der Spezialisierung.";
}

void FormAktionFertigkeit::CheckDaButtons() { CheckButton = frmZugAttr.chosen() != nullptr; }

void FormAktionFertigkeit::clearButtons() {
  for (OptionButton* option : {&optAFKonst, &optAFSchnell, &optAFStark, &optAFCharisma, &optAFIntell, &optAFWill,
                               &optAFReaktion, &optAFMagie}) {
    option->setValue(false);
  }
}

void FormAktionFertigkeit::schreibeListe() {
  lstAFertigkeiten.clear();
  for (Integer i = 1; i < zaehler; ++i) {
    lstAFertigkeiten.addItem(textOf(i) + ". " + FertigkeitName[i] + " (" + SpeziName[i] +
                             ")  -- Stufe: " + textOf(FertigkeitStufe[i]) + "(" + textOf(SpeziStufe[i]) + ")");
  }
  lblAktuellFertPunkte.setCaption(textOf(UsedPoints));
  const bool allSpent = whyNotReady().empty();
  cmdafertcompl.setEnabled(allSpent);
  cmddisformisready.setEnabled(allSpent);
}

}  // namespace bogenwerker
