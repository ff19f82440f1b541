// Step 4: knowledge skills and languages.
#pragma once

#include <string>

#include "wizard/controls.h"
#include "wizard/numbered_array.h"
#include "wizard/numbers.h"

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

  NumberedArray<std::string, 30> WissensName;
  NumberedArray<Integer, 30> WissensStufe;
  NumberedArray<std::string, 30> SprachName;
  NumberedArray<Integer, 30> SprachStufe;
};

// Two lists with two budgets and one pair of buttons. Languages draw on their own points first and on the knowledge
// points for the rest; both budgets have to be spent exactly.
class FormWissensfertigkeit final : public FormWith<WissensfertigkeitVariables> {
 public:
  FormWissensfertigkeit(FormsRuntime& runtime, FormAusrüstung& ausrüstung);

  // clang-format off
  Frame         frmAddWFertigkeit {*this,             "frmAddWFertigkeit",  {.caption = "Wissensfertigkeit hinzufügen", .tab = 0, .at = {.row = 0, .column = 0}}};
  CommandButton cmdAddWFertigkeit {frmAddWFertigkeit, "cmdAddWFertigkeit",  {.caption = "Hinzufügen!", .enabled = false, .tab = 1, .at = {.row = 0, .column = 1, .rows = 2}, .spoken = "Wissensfertigkeit hinzufügen", .click = [this] { cmdAddWFertigkeit_Click(); }}};
  TextBox       txtWFertigkeit    {frmAddWFertigkeit, "txtWFertigkeit",     {.tab = 2, .at = {.row = 1, .column = 0}, .spoken = "Name der Wissensfertigkeit", .change = [this] { txtWFertigkeit_Change(); }}};
  Label         lblNameWFertigkeit{frmAddWFertigkeit, "lblNameWFertigkeit", {.caption = "Name der Fertigkeit", .tab = 3, .at = {.row = 0, .column = 0}}};

  Frame         Frame1       {*this,  "Frame1",        {.caption = "Sprache hinzufügen", .tab = 4, .at = {.row = 0, .column = 1}}};
  TextBox       txtSprache   {Frame1, "txtSprache",    {.tab = 5, .at = {.row = 1, .column = 0}, .spoken = "Name der Sprache", .change = [this] { txtSprache_Change(); }}};
  CommandButton cmdAddSprache{Frame1, "cmdAddSprache", {.caption = "Hinzufügen!", .enabled = false, .tab = 6, .at = {.row = 0, .column = 1, .rows = 2}, .spoken = "Sprache hinzufügen", .click = [this] { cmdAddSprache_Click(); }}};

  Frame         frmWFertVerwalt {*this,           "frmWFertVerwalt",  {.caption = "Wissensfertigkeiten verwalten", .tab = 7, .at = {.row = 1, .column = 0, .columns = 2}, .stretch = {.rows = {0, 0, 1}, .columns = {1, 1, 0, 0}}}};
  ListBox       lstWFertigkeiten{frmWFertVerwalt, "lstWFertigkeiten", {.characters = 42, .lines = 12, .tab = 8, .at = {.row = 0, .column = 0, .rows = 3}, .spoken = "Wissensfertigkeiten", .click = [this] { lstWFertigkeiten_Click(); }}};
  CommandButton cmdPlusWFert    {frmWFertVerwalt, "cmdPlusWFert",     {.caption = "+", .characters = 3, .tab = 9,  .at = {.row = 0, .column = 2}, .spoken = "Stufe plus",  .click = [this] { cmdPlusWFert_Click(); }}};
  CommandButton cmdMinusWFert   {frmWFertVerwalt, "cmdMinusWFert",    {.caption = "-", .characters = 3, .tab = 10, .at = {.row = 1, .column = 2}, .spoken = "Stufe minus", .click = [this] { cmdMinusWFert_Click(); }}};
  Frame         frmFreeWPunkte  {frmWFertVerwalt, "frmFreeWPunkte",   {.caption = "Freie Wissenspunkte", .tab = 11, .at = {.row = 0, .column = 3}}};
  Frame         Frame2          {frmWFertVerwalt, "Frame2",           {.caption = "Freie Sprachpunkte",  .tab = 12, .at = {.row = 1, .column = 3}}};
  Label         lblWissensPunkte{frmFreeWPunkte,  "lblWissensPunkte", {.centred = true, .tab = 13, .spoken = "Freie Wissenspunkte"}};
  Label         lblSprachPunkte {Frame2,          "lblSprachPunkte",  {.centred = true, .tab = 14, .spoken = "Freie Sprachpunkte"}};

  CommandButton cmdGoAhead{*this, "cmdGoAhead", {.caption = "Weiter!", .enabled = false, .tab = 15, .at = {.row = 2, .column = 1, .align = Place::Align::right}, .click = [this] { cmdGoAhead_Click(); }}};

  ListBox lstSprachen{frmWFertVerwalt, "lstSprachen", {.characters = 42, .lines = 12, .tab = 16, .at = {.row = 0, .column = 1, .rows = 3}, .spoken = "Sprachen", .click = [this] { lstSprachen_Click(); }}};
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

  void schreibeListen();
  void ZeigeFreePoints();
  void CheckFreePoints();

  FormAusrüstung& formAusrüstung;
};

}  // namespace bogenwerker
