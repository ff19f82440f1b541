#include "skills/FormAktionFertigkeit.h"

#include "skills/FormWissensfertigkeit.h"
#include "skills/levels.h"
#include "wizard/records.h"

namespace bogenwerker {

FormAktionFertigkeit::FormAktionFertigkeit(FormsRuntime& runtime, FormWissensfertigkeit& wissensfertigkeit)
    : FormWith(runtime, "formAktionFertigkeit",
               {.caption = "Aktionsfertigkeiten - Schritt 3", .stretch = {.rows = {0, 1, 0}}}),
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
  if (hasRoom()) AttributWert[zaehler] = integerOf(attribute.caption());
}

bool FormAktionFertigkeit::hasRoom() const { return zaehler <= decltype(FertigkeitName)::mostEntries; }

void FormAktionFertigkeit::txtAFertigkeit_Change() { cmdAddFertigkeit.setEnabled(!txtAFertigkeit.text().empty()); }

void FormAktionFertigkeit::cmdAddFertigkeit_Click() {
  MaxPoints = integerOf(lblTotalFertigkeitenPunkte.caption());
  CheckDaButtons();
  if (CheckButton && hasRoom()) {
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
  if (FertigkeitStufe[merkzahl] < highestLevel && merkzahl != 0) {
    ++FertigkeitStufe[merkzahl];
    UsedPoints += priceOfLevel(FertigkeitStufe[merkzahl], AttributWert[merkzahl]);
  }
  schreibeListe();
}

void FormAktionFertigkeit::cmdFertigkeitMinus_Click() {
  if (FertigkeitStufe[merkzahl] > 0 && merkzahl != 0) {
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
  if (FertigkeitStufe[merkzahl] > 1) {
    SpeziName[merkzahl] = txtSpezi.text();
    SpeziStufe[merkzahl] = FertigkeitStufe[merkzahl] + 1;
    FertigkeitStufe[merkzahl] -= 1;
    schreibeListe();
  }
}

void FormAktionFertigkeit::cmddisformisready_Click() {
  Files& files = environment().files;
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

void FormAktionFertigkeit::CheckDaButtons() {
  CheckButton = optAFKonst.value() || optAFSchnell.value() || optAFStark.value() || optAFCharisma.value() ||
                optAFIntell.value() || optAFWill.value() || optAFReaktion.value() || optAFMagie.value();
}

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
  // Ahead of the first skill there is no budget yet, and so none that could be spent.
  const bool allSpent = MaxPoints != 0 && UsedPoints == MaxPoints;
  cmdafertcompl.setEnabled(allSpent);
  cmddisformisready.setEnabled(allSpent);
}

}  // namespace bogenwerker
