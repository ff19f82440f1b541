#include "priorities/FormPrioritaeten.h"

#include <array>

#include "attributes/FormAttributmonitor.h"
#include "priorities/uebergebePrioritaeten.h"

namespace bogenwerker {

FormPrioritäten::FormPrioritäten(FormsRuntime& runtime, const Environment& environment,
                                 FormAttributmonitor& attributmonitor, FormAktionFertigkeit& aktionFertigkeit)
    : FormWith(runtime, "formPrioritäten", {.caption = "Bogenwerker - Schritt 1", .help = "schritt1"}),
      environment_(environment),
      formAttributmonitor(attributmonitor),
      formAktionFertigkeit(aktionFertigkeit) {}

// clang-format off
void FormPrioritäten::optRasseTroll_Click()     { Rasse = "Troll";          checkPrioritaeten(); }
void FormPrioritäten::optRasseElf_Click()       { Rasse = "Elf";            checkPrioritaeten(); }
void FormPrioritäten::optRasseZwerg_Click()     { Rasse = "Zwerg";          checkPrioritaeten(); }
void FormPrioritäten::optRasseOrk_Click()       { Rasse = "Ork";            checkPrioritaeten(); }
void FormPrioritäten::optRasseMensch_Click()    { Rasse = "Mensch";         checkPrioritaeten(); }

void FormPrioritäten::optVollzauberer_Click()   { Magie = "Vollzauberer";   checkPrioritaeten(); }
void FormPrioritäten::optAdept_Click()          { Magie = "Adept";          checkPrioritaeten(); }
void FormPrioritäten::optAspekt_Click()         { Magie = "Aspekt";         checkPrioritaeten(); }
void FormPrioritäten::optMagieC_Click()         { Magie = "C";              checkPrioritaeten(); }
void FormPrioritäten::optMagieD_Click()         { Magie = "D";              checkPrioritaeten(); }
void FormPrioritäten::optMagieE_Click()         { Magie = "E";              checkPrioritaeten(); }

void FormPrioritäten::optAttribute30_Click()    { AttributPunkte = 30;      checkPrioritaeten(); }
void FormPrioritäten::optAttribute27_Click()    { AttributPunkte = 27;      checkPrioritaeten(); }
void FormPrioritäten::optAttribute24_Click()    { AttributPunkte = 24;      checkPrioritaeten(); }
void FormPrioritäten::optAttribute21_Click()    { AttributPunkte = 21;      checkPrioritaeten(); }
void FormPrioritäten::optAttribute18_Click()    { AttributPunkte = 18;      checkPrioritaeten(); }

void FormPrioritäten::optFertigkeiten50_Click() { FertigkeitenPunkte = 50;  checkPrioritaeten(); }
void FormPrioritäten::optFertigkeiten40_Click() { FertigkeitenPunkte = 40;  checkPrioritaeten(); }
void FormPrioritäten::optFertigkeiten34_Click() { FertigkeitenPunkte = 34;  checkPrioritaeten(); }
void FormPrioritäten::optFertigkeiten30_Click() { FertigkeitenPunkte = 30;  checkPrioritaeten(); }
void FormPrioritäten::optFertigkeiten27_Click() { FertigkeitenPunkte = 27;  checkPrioritaeten(); }

void FormPrioritäten::optRessA_Click()          { Ressourcen = 1000000;     checkPrioritaeten(); }
void FormPrioritäten::optRessB_Click()          { Ressourcen = 400000;      checkPrioritaeten(); }
void FormPrioritäten::optRessC_Click()          { Ressourcen = 90000;       checkPrioritaeten(); }
void FormPrioritäten::optRessD_Click()          { Ressourcen = 20000;       checkPrioritaeten(); }
void FormPrioritäten::optRessE_Click()          { Ressourcen = 5000;        checkPrioritaeten(); }
// clang-format on

void FormPrioritäten::cmdWeiter1_Click() {
  setVisible(false);
  formAttributmonitor.setVisible(true);
  uebergebePrioritaeten(Rasse, Magie, AttributPunkte, FertigkeitenPunkte, Ressourcen, formAttributmonitor,
                        formAktionFertigkeit, environment_.files);
  unload();
}

// Every row has to be covered; with five columns that leaves none of them without a choice and no two in one row.
std::string FormPrioritäten::whyNotWeiter1() const {
  if (PrioA && PrioB && PrioC && PrioD && PrioE) return {};

  std::string missing;
  std::string doubled;
  std::array<int, 5> choicesInRow{};
  for (const Frame* column : {&frmRasse, &frmMagie, &frmAttribute, &frmFertigkeiten, &frmRessouren}) {
    const OptionButton* choice = column->chosen();
    if (choice == nullptr) {
      missing.append(missing.empty() ? "Es fehlt noch: " : ", ").append(column->caption());
    } else if (const int row = choice->place().row; ++choicesInRow.at(static_cast<std::size_t>(row)) == 2) {
      doubled.append(" Priorität ").append(1, static_cast<char>('A' + row)).append(" ist doppelt vergeben.");
    }
  }
  return missing.empty() ? doubled.substr(1) : missing + "." + doubled;
}

void FormPrioritäten::checkPrioritaeten() {
  checkPrioA();
  checkPrioB();
  checkPrioC();
  checkPrioD();
  checkPrioE();
  cmdWeiter1.setEnabled(whyNotWeiter1().empty());
}

void FormPrioritäten::checkPrioA() {
  PrioA = Magie == "Vollzauberer" || AttributPunkte == 30 || FertigkeitenPunkte == 50 || Ressourcen == 1000000;
}

void FormPrioritäten::checkPrioB() {
  PrioB =
      Magie == "Aspekt" || Magie == "Adept" || AttributPunkte == 27 || FertigkeitenPunkte == 40 || Ressourcen == 400000;
}

void FormPrioritäten::checkPrioC() {
  PrioC = Rasse == "Elf" || Rasse == "Troll" || Magie == "C" || AttributPunkte == 24 || FertigkeitenPunkte == 34 ||
          Ressourcen == 90000;
}

void FormPrioritäten::checkPrioD() {
  PrioD = Rasse == "Ork" || Rasse == "Zwerg" || Magie == "D" || AttributPunkte == 21 || FertigkeitenPunkte == 30 ||
          Ressourcen == 20000;
}

void FormPrioritäten::checkPrioE() {
  PrioE = Rasse == "Mensch" || Magie == "E" || AttributPunkte == 18 || FertigkeitenPunkte == 27 || Ressourcen == 5000;
}

}  // namespace bogenwerker
