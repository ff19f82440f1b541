// Step 4: knowledge skills and languages.
#pragma once

#include <string>

#include "forms/controls.h"
#include "outside/environment.h"
#include "skills/levels.h"
#include "values/numbered_array.h"
#include "values/numbers.h"

namespace bogenwerker {

class FormAusrüstung;

struct WissensfertigkeitVariables {
 protected:
  Integer Intelligenz;
  Integer SprachPunkte;  // free, never below 0
  Integer MaxSprachPoints;
  Integer MaxWissensPoints;
  Integer WissensPunkte;  // free, can go below 0
  Integer zaehler;        // the number that the next knowledge skill gets
  Integer zaehler2;       // the number that the next language gets
  Integer merkzahl;       // the entry that was clicked last in either list, 0 for none
  std::string Zeiger;     // the list of that entry: "Wissensfertigkeit" or "Sprache"

  NumberedArray<std::string, mostEntries> WissensName;
  NumberedArray<Integer, mostEntries> WissensStufe;
  NumberedArray<std::string, mostEntries> SprachName;
  NumberedArray<Integer, mostEntries> SprachStufe;
};

// Two lists with two budgets and one pair of buttons. Languages draw on their own points first and on the knowledge
// points for the rest; both budgets have to be spent exactly.
class FormWissensfertigkeit final : public FormWith<WissensfertigkeitVariables> {
 public:
  FormWissensfertigkeit(FormsRuntime& runtime, const Environment& environment, FormAusrüstung& ausrüstung);

  // clang-format off
  Frame         frmAddWFertigkeit {*this,             "frmAddWFertigkeit",  {.caption = "Wissensfertigkeit hinzufügen", .tab = 0, .at = {0, 0}}};
  CommandButton cmdAddWFertigkeit {frmAddWFertigkeit, "cmdAddWFertigkeit",  {.caption = "Hinzufügen!", .enabled = false, .tab = 1, .at = {0, 1, 2}, .spoken = "Wissensfertigkeit hinzufügen", .click = [this] { cmdAddWFertigkeit_Click(); }, .hint = [this] { return whyNotAdd(txtWFertigkeit, cmdAddWFertigkeit, zaehler); }}};
  TextBox       txtWFertigkeit    {frmAddWFertigkeit, "txtWFertigkeit",     {.tab = 2, .at = {1, 0}, .spoken = "Name der Wissensfertigkeit", .change = [this] { txtWFertigkeit_Change(); }}};
  Label         lblNameWFertigkeit{frmAddWFertigkeit, "lblNameWFertigkeit", {.caption = "Name der Fertigkeit", .tab = 3, .at = {0, 0}}};

  Frame         Frame1       {*this,  "Frame1",        {.caption = "Sprache hinzufügen", .tab = 4, .at = {0, 1}}};
  TextBox       txtSprache   {Frame1, "txtSprache",    {.tab = 5, .at = {1, 0}, .spoken = "Name der Sprache", .change = [this] { txtSprache_Change(); }}};
  CommandButton cmdAddSprache{Frame1, "cmdAddSprache", {.caption = "Hinzufügen!", .enabled = false, .tab = 6, .at = {0, 1, 2}, .spoken = "Sprache hinzufügen", .click = [this] { cmdAddSprache_Click(); }, .hint = [this] { return whyNotAdd(txtSprache, cmdAddSprache, zaehler2); }}};

  Frame         frmWFertVerwalt {*this,           "frmWFertVerwalt",  {.caption = "Wissensfertigkeiten verwalten", .tab = 7, .at = {.row = 1, .column = 0, .columns = 2}, .stretch = {.rows = {0, 0, 1}, .columns = {1, 1, 0, 0}}}};
  ListBox       lstWFertigkeiten{frmWFertVerwalt, "lstWFertigkeiten", {.characters = 42, .lines = 12, .tab = 8, .at = {0, 0, 3}, .spoken = "Wissensfertigkeiten", .click = [this] { lstWFertigkeiten_Click(); }}};
  CommandButton cmdPlusWFert    {frmWFertVerwalt, "cmdPlusWFert",     {.caption = "+", .characters = 3, .tab = 9,  .at = {0, 2}, .spoken = "Stufe plus",  .click = [this] { cmdPlusWFert_Click(); }, .hint = [this] { return whyNotPlus(); }}};
  CommandButton cmdMinusWFert   {frmWFertVerwalt, "cmdMinusWFert",    {.caption = "-", .characters = 3, .tab = 10, .at = {1, 2}, .spoken = "Stufe minus", .click = [this] { cmdMinusWFert_Click(); }, .hint = [this] { return whyNotMinus(); }}};
  Frame         frmFreeWPunkte  {frmWFertVerwalt, "frmFreeWPunkte",   {.caption = "Freie Wissenspunkte", .tab = 11, .at = {0, 3}}};
  Frame         Frame2          {frmWFertVerwalt, "Frame2",           {.caption = "Freie Sprachpunkte",  .tab = 12, .at = {1, 3}}};
  Label         lblWissensPunkte{frmFreeWPunkte,  "lblWissensPunkte", {.centred = true, .tab = 13, .spoken = "Freie Wissenspunkte"}};
  Label         lblSprachPunkte {Frame2,          "lblSprachPunkte",  {.centred = true, .tab = 14, .spoken = "Freie Sprachpunkte"}};

  CommandButton cmdGoAhead{*this, "cmdGoAhead", {.caption = "Weiter!", .enabled = false, .tab = 15, .at = {.row = 2, .column = 1, .align = Place::Align::right}, .click = [this] { cmdGoAhead_Click(); }, .hint = [this] { return whyNotGoAhead(); }}};

  ListBox lstSprachen{frmWFertVerwalt, "lstSprachen", {.characters = 42, .lines = 12, .tab = 16, .at = {0, 1, 3}, .spoken = "Sprachen", .click = [this] { lstSprachen_Click(); }}};
  // clang-format on

 private:
  void Form_Load() override;
  void txtWFertigkeit_Change();
  void txtSprache_Change();
  void cmdAddWFertigkeit_Click();
  void cmdAddSprache_Click();
  void lstWFertigkeiten_Click();
  void lstSprachen_Click();
  void cmdPlusWFert_Click();
  void cmdMinusWFert_Click();
  void cmdGoAhead_Click();

  [[nodiscard]] std::string whyNotPlus() const;
  [[nodiscard]] std::string whyNotMinus() const;
  [[nodiscard]] std::string whyNotGoAhead() const;
  void schreibeListen();
  void ZeigeFreePoints();
  void CheckFreePoints();

  const Environment& environment_;
  FormAusrüstung& formAusrüstung;
};

}  // namespace bogenwerker
