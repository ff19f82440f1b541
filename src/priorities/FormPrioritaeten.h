// Step 1: the priority grid.
#pragma once

#include <string>

#include "forms/controls.h"
#include "outside/environment.h"
#include "values/numbers.h"

namespace bogenwerker {

class FormAktionFertigkeit;
class FormAttributmonitor;

struct PrioritätenVariables {
  std::string Rasse;
  std::string Magie;
  Integer AttributPunkte;
  Integer FertigkeitenPunkte;
  Currency Ressourcen;

 protected:
  // True while some column's choice lies in that row.
  bool PrioA = false, PrioB = false, PrioC = false, PrioD = false, PrioE = false;
};

// Which option covers which row, and the way out. What a choice is worth is decided in uebergebePrioritaeten.
class FormPrioritäten final : public FormWith<PrioritätenVariables> {
 public:
  FormPrioritäten(FormsRuntime& runtime, const Environment& environment, FormAttributmonitor& attributmonitor,
                  FormAktionFertigkeit& aktionFertigkeit);

  // clang-format off
  Frame frmPrioritäten{*this, "frmPrioritäten", {.caption = "Prioritäten", .at = {0, 0}}};

  Frame frmPrio {frmPrioritäten, "frmPrio",  {.caption = "Priorität", .at = {0, 0}}};
  Label lblPrioA{frmPrio,        "lblPrioA", {.caption = "A", .centred = true, .at = {0, 0}}};
  Label lblPrioB{frmPrio,        "lblPrioB", {.caption = "B", .centred = true, .at = {1, 0}}};
  Label lblPrioC{frmPrio,        "lblPrioC", {.caption = "C", .centred = true, .at = {2, 0}}};
  Label lblPrioD{frmPrio,        "lblPrioD", {.caption = "D", .centred = true, .at = {3, 0}}};
  Label lblPrioE{frmPrio,        "lblPrioE", {.caption = "E", .centred = true, .at = {4, 0}}};

  Frame        frmRasse      {frmPrioritäten, "frmRasse",       {.caption = "Rasse", .at = {0, 1}}};
  OptionButton optRasseA     {frmRasse,       "optRasseA",      {.caption = "-", .enabled = false, .tab = 0, .at = {0, 0}, .spoken = "Priorität A: keine Rasse"}};
  OptionButton optRasseB     {frmRasse,       "optRasseB",      {.caption = "-", .enabled = false, .tab = 1, .at = {1, 0}, .spoken = "Priorität B: keine Rasse"}};
  OptionButton optRasseTroll {frmRasse,       "optRasseTroll",  {.caption = "Troll",  .tab = 2,  .at = {2, 0}, .spoken = "Priorität C: Troll",  .click = [this] { optRasseTroll_Click(); }}};
  OptionButton optRasseElf   {frmRasse,       "optRasseElf",    {.caption = "Elf",    .tab = 26, .at = {2, 1}, .spoken = "Priorität C: Elf",    .click = [this] { optRasseElf_Click(); }}};
  OptionButton optRasseZwerg {frmRasse,       "optRasseZwerg",  {.caption = "Zwerg",  .tab = 3,  .at = {3, 0}, .spoken = "Priorität D: Zwerg",  .click = [this] { optRasseZwerg_Click(); }}};
  OptionButton optRasseOrk   {frmRasse,       "optRasseOrk",    {.caption = "Ork",    .tab = 27, .at = {3, 1}, .spoken = "Priorität D: Ork",    .click = [this] { optRasseOrk_Click(); }}};
  OptionButton optRasseMensch{frmRasse,       "optRasseMensch", {.caption = "Mensch", .tab = 4,  .at = {4, 0}, .spoken = "Priorität E: Mensch", .click = [this] { optRasseMensch_Click(); }}};

  Frame        frmMagie       {frmPrioritäten, "frmMagie",        {.caption = "Magie", .at = {0, 2}}};
  OptionButton optVollzauberer{frmMagie,       "optVollzauberer", {.caption = "Vollzauberer", .tab = 5,  .at = {.row = 0, .column = 0, .columns = 2}, .spoken = "Priorität A: Vollzauberer",        .click = [this] { optVollzauberer_Click(); }}};
  OptionButton optAdept       {frmMagie,       "optAdept",        {.caption = "Adept",        .tab = 6,  .at = {1, 0}, .spoken = "Priorität B: Adept",               .click = [this] { optAdept_Click(); }}};
  OptionButton optAspekt      {frmMagie,       "optAspekt",       {.caption = "Aspektzaub.",  .tab = 28, .at = {1, 1}, .spoken = "Priorität B: Aspektzauberer",      .click = [this] { optAspekt_Click(); }}};
  OptionButton optMagieC      {frmMagie,       "optMagieC",       {.caption = "-",            .tab = 7,  .at = {2, 0}, .spoken = "Priorität C: keine Magie",         .click = [this] { optMagieC_Click(); }}};
  OptionButton optMagieD      {frmMagie,       "optMagieD",       {.caption = "-",            .tab = 8,  .at = {3, 0}, .spoken = "Priorität D: keine Magie",         .click = [this] { optMagieD_Click(); }}};
  OptionButton optMagieE      {frmMagie,       "optMagieE",       {.caption = "-",            .tab = 9,  .at = {4, 0}, .spoken = "Priorität E: keine Magie",         .click = [this] { optMagieE_Click(); }}};

  Frame        frmAttribute  {frmPrioritäten, "frmAttribute",   {.caption = "Attribute", .at = {0, 3}}};
  OptionButton optAttribute30{frmAttribute,   "optAttribute30", {.caption = "30", .tab = 10, .at = {0, 0}, .spoken = "Priorität A: 30 Attributpunkte", .click = [this] { optAttribute30_Click(); }}};
  OptionButton optAttribute27{frmAttribute,   "optAttribute27", {.caption = "27", .tab = 11, .at = {1, 0}, .spoken = "Priorität B: 27 Attributpunkte", .click = [this] { optAttribute27_Click(); }}};
  OptionButton optAttribute24{frmAttribute,   "optAttribute24", {.caption = "24", .tab = 12, .at = {2, 0}, .spoken = "Priorität C: 24 Attributpunkte", .click = [this] { optAttribute24_Click(); }}};
  OptionButton optAttribute21{frmAttribute,   "optAttribute21", {.caption = "21", .tab = 13, .at = {3, 0}, .spoken = "Priorität D: 21 Attributpunkte", .click = [this] { optAttribute21_Click(); }}};
  OptionButton optAttribute18{frmAttribute,   "optAttribute18", {.caption = "18", .tab = 14, .at = {4, 0}, .spoken = "Priorität E: 18 Attributpunkte", .click = [this] { optAttribute18_Click(); }}};

  Frame        frmFertigkeiten  {frmPrioritäten,  "frmFertigkeiten",   {.caption = "Fertigkeiten", .at = {0, 4}}};
  OptionButton optFertigkeiten50{frmFertigkeiten, "optFertigkeiten50", {.caption = "50", .tab = 15, .at = {0, 0}, .spoken = "Priorität A: 50 Fertigkeitspunkte", .click = [this] { optFertigkeiten50_Click(); }}};
  OptionButton optFertigkeiten40{frmFertigkeiten, "optFertigkeiten40", {.caption = "40", .tab = 16, .at = {1, 0}, .spoken = "Priorität B: 40 Fertigkeitspunkte", .click = [this] { optFertigkeiten40_Click(); }}};
  OptionButton optFertigkeiten34{frmFertigkeiten, "optFertigkeiten34", {.caption = "34", .tab = 17, .at = {2, 0}, .spoken = "Priorität C: 34 Fertigkeitspunkte", .click = [this] { optFertigkeiten34_Click(); }}};
  OptionButton optFertigkeiten30{frmFertigkeiten, "optFertigkeiten30", {.caption = "30", .tab = 18, .at = {3, 0}, .spoken = "Priorität D: 30 Fertigkeitspunkte", .click = [this] { optFertigkeiten30_Click(); }}};
  OptionButton optFertigkeiten27{frmFertigkeiten, "optFertigkeiten27", {.caption = "27", .tab = 19, .at = {4, 0}, .spoken = "Priorität E: 27 Fertigkeitspunkte", .click = [this] { optFertigkeiten27_Click(); }}};

  Frame        frmRessouren{frmPrioritäten, "frmRessouren", {.caption = "Ressourcen", .at = {0, 5}}};
  OptionButton optRessA    {frmRessouren,   "optRessA",     {.caption = "1.000.000 Y", .tab = 20, .at = {0, 0}, .spoken = "Priorität A: 1.000.000 Nuyen", .click = [this] { optRessA_Click(); }}};
  OptionButton optRessB    {frmRessouren,   "optRessB",     {.caption = "400.000 Y",   .tab = 21, .at = {1, 0}, .spoken = "Priorität B: 400.000 Nuyen",   .click = [this] { optRessB_Click(); }}};
  OptionButton optRessC    {frmRessouren,   "optRessC",     {.caption = "90.000 Y",    .tab = 22, .at = {2, 0}, .spoken = "Priorität C: 90.000 Nuyen",    .click = [this] { optRessC_Click(); }}};
  OptionButton optRessD    {frmRessouren,   "optRessD",     {.caption = "20.000 Y",    .tab = 23, .at = {3, 0}, .spoken = "Priorität D: 20.000 Nuyen",    .click = [this] { optRessD_Click(); }}};
  OptionButton optRessE    {frmRessouren,   "optRessE",     {.caption = "5.000 Y",     .tab = 24, .at = {4, 0}, .spoken = "Priorität E: 5.000 Nuyen",     .click = [this] { optRessE_Click(); }}};

  CommandButton cmdWeiter1{*this, "cmdWeiter1", {.caption = "Weiter!", .enabled = false, .tab = 25, .at = {.row = 1, .align = Place::Align::right}, .click = [this] { cmdWeiter1_Click(); }, .hint = [this] { return whyNotWeiter1(); }}};
  // clang-format on

 private:
  void optRasseTroll_Click();
  void optRasseElf_Click();
  void optRasseZwerg_Click();
  void optRasseOrk_Click();
  void optRasseMensch_Click();
  void optVollzauberer_Click();
  void optAdept_Click();
  void optAspekt_Click();
  void optMagieC_Click();
  void optMagieD_Click();
  void optMagieE_Click();
  void optAttribute30_Click();
  void optAttribute27_Click();
  void optAttribute24_Click();
  void optAttribute21_Click();
  void optAttribute18_Click();
  void optFertigkeiten50_Click();
  void optFertigkeiten40_Click();
  void optFertigkeiten34_Click();
  void optFertigkeiten30_Click();
  void optFertigkeiten27_Click();
  void optRessA_Click();
  void optRessB_Click();
  void optRessC_Click();
  void optRessD_Click();
  void optRessE_Click();
  void cmdWeiter1_Click();

  [[nodiscard]] std::string whyNotWeiter1() const;
  void checkPrioritaeten();
  void checkPrioA();
  void checkPrioB();
  void checkPrioC();
  void checkPrioD();
  void checkPrioE();

  const Environment& environment_;
  FormAttributmonitor& formAttributmonitor;
  FormAktionFertigkeit& formAktionFertigkeit;
};

}  // namespace bogenwerker
