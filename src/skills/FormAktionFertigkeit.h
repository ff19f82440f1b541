// Step 3: action skills and their specialisations.
#pragma once

#include <string>

#include "forms/controls.h"
#include "outside/environment.h"
#include "skills/levels.h"
#include "values/numbered_array.h"
#include "values/numbers.h"

namespace bogenwerker {

class FormWissensfertigkeit;

struct AktionFertigkeitVariables {
 protected:
  Integer zaehler;           // the number that the next skill gets
  bool CheckButton = false;  // whether one of the eight attributes is chosen
  Integer merkzahl;          // the skill that was clicked last, 0 for none
  Integer UsedPoints;
  Integer MaxPoints;  // 0 until the first press of cmdAddFertigkeit

  NumberedArray<std::string, mostEntries> FertigkeitName;
  NumberedArray<Integer, mostEntries> FertigkeitStufe;
  NumberedArray<Integer, mostEntries> AttributWert;
  NumberedArray<std::string, mostEntries> SpeziName;
  NumberedArray<Integer, mostEntries> SpeziStufe;
};

// The linked attribute's value sets the price of each level of a skill. Once the budget is spent exactly, levels can be
// frozen and traded for specialisations. Skills are never removed.
class FormAktionFertigkeit final : public FormWith<AktionFertigkeitVariables> {
 public:
  FormAktionFertigkeit(FormsRuntime& runtime, const Environment& environment, FormWissensfertigkeit& wissensfertigkeit);

  // clang-format off
  Frame         frmAddFertigkeit{*this,            "frmAddFertigkeit", {.caption = "Aktionsfertigkeit hinzufügen", .tab = 0, .at = {0, 0}, .stretch = {.columns = {1, 0, 0}}}};
  TextBox       txtAFertigkeit  {frmAddFertigkeit, "txtAFertigkeit",   {.characters = 30, .tab = 1, .at = {.row = 1, .column = 0, .align = Place::Align::top}, .spoken = "Name der Fertigkeit", .change = [this] { txtAFertigkeit_Change(); }}};
  Label         lblNameFertigkeit{frmAddFertigkeit, "lblNameFertigkeit", {.caption = "Name der Fertigkeit", .tab = 2, .at = {.row = 0, .column = 0, .align = Place::Align::bottom}}};
  CommandButton cmdAddFertigkeit{frmAddFertigkeit, "cmdAddFertigkeit", {.caption = "Hinzufügen!", .enabled = false, .tab = 3, .at = {0, 2, 2}, .spoken = "Aktionsfertigkeit hinzufügen", .click = [this] { cmdAddFertigkeit_Click(); }, .hint = [this] { return whyNotAddFertigkeit(); }}};

  Frame         frmVerwaltungAF  {*this,           "frmVerwaltungAF",   {.caption = "Aktionsfertigkeiten verwalten", .tab = 4, .at = {1, 0}, .stretch = {.rows = {0, 0, 0, 1}, .columns = {3, 0, 0, 0, 1}}}};
  ListBox       lstAFertigkeiten {frmVerwaltungAF, "lstAFertigkeiten",  {.characters = 44, .lines = 10, .tab = 5, .at = {0, 0, 4}, .spoken = "Aktionsfertigkeiten", .click = [this] { lstAFertigkeiten_Click(); }}};
  CommandButton cmdFertigkeitPlus {frmVerwaltungAF, "cmdFertigkeitPlus",  {.caption = "+", .characters = 3, .tab = 6, .at = {.row = 0, .column = 1, .columns = 3, .align = Place::Align::bottom}, .spoken = "Stufe plus",  .click = [this] { cmdFertigkeitPlus_Click(); }, .hint = [this] { return whyNotPlus(); }}};
  CommandButton cmdFertigkeitMinus{frmVerwaltungAF, "cmdFertigkeitMinus", {.caption = "-", .characters = 3, .tab = 7, .at = {.row = 1, .column = 1, .columns = 3, .align = Place::Align::top}, .spoken = "Stufe minus", .click = [this] { cmdFertigkeitMinus_Click(); }, .hint = [this] { return whyNotMinus(); }}};

  Frame         frmZugAttr   {frmAddFertigkeit, "frmZugAttr",    {.caption = "Zugehöriges Attribut", .tab = 8, .at = {0, 1, 2}}};
  OptionButton  optAFKonst   {frmZugAttr, "optAFKonst",    {.caption = "Konstitution",  .tab = 9,  .at = {0, 0}, .click = [this] { optAFKonst_Click(); }}};
  OptionButton  optAFSchnell {frmZugAttr, "optAFSchnell",  {.caption = "Schnelligkeit", .tab = 10, .at = {1, 0}, .click = [this] { optAFSchnell_Click(); }}};
  OptionButton  optAFStark   {frmZugAttr, "optAFStark",    {.caption = "Stärke",        .tab = 11, .at = {2, 0}, .click = [this] { optAFStark_Click(); }}};
  OptionButton  optAFCharisma{frmZugAttr, "optAFCharisma", {.caption = "Charisma",      .tab = 12, .at = {0, 2}, .click = [this] { optAFCharisma_Click(); }}};
  OptionButton  optAFIntell  {frmZugAttr, "optAFIntell",   {.caption = "Intelligenz",   .tab = 13, .at = {1, 2}, .click = [this] { optAFIntell_Click(); }}};
  OptionButton  optAFWill    {frmZugAttr, "optAFWill",     {.caption = "Willenskraft",  .tab = 14, .at = {2, 2}, .click = [this] { optAFWill_Click(); }}};
  OptionButton  optAFReaktion{frmZugAttr, "optAFReaktion", {.caption = "Reaktion",      .tab = 15, .at = {0, 4}, .click = [this] { optAFReaktion_Click(); }}};

  Frame         frmSpezi   {frmVerwaltungAF, "frmSpezi",    {.caption = "Spezialisierung", .enabled = false, .tab = 16, .at = {1, 4, 2}}};
  TextBox       txtSpezi   {frmSpezi,        "txtSpezi",    {.tab = 17, .at = {.row = 0, .align = Place::Align::top}, .spoken = "Name der Spezialisierung", .change = [this] { txtSpezi_Change(); }}};
  CommandButton cmdAddSpezi{frmSpezi,        "cmdAddSpezi", {.caption = "Hinzufügen!", .enabled = false, .tab = 18, .at = {.row = 1, .align = Place::Align::top}, .spoken = "Spezialisierung hinzufügen", .click = [this] { cmdAddSpezi_Click(); }, .hint = [this] { return whyNotAddSpezi(); }}};

  Label lblAktuellFertPunkte      {frmVerwaltungAF, "lblAktuellFertPunkte",       {.caption = "0", .bold = true, .centred = true, .characters = 4, .tab = 19, .at = {2, 1}, .spoken = "Ausgegebene Fertigkeitspunkte"}};
  Label lblvon2                   {frmVerwaltungAF, "lblvon2",                    {.caption = "von", .centred = true, .tab = 20, .at = {2, 2}}};
  Label lblTotalFertigkeitenPunkte{frmVerwaltungAF, "lblTotalFertigkeitenPunkte", {.caption = "0", .bold = true, .centred = true, .characters = 4, .tab = 21, .at = {2, 3}, .spoken = "Fertigkeitspunkte insgesamt"}};

  OptionButton optAFMagie{frmZugAttr, "optAFMagie", {.caption = "Magie", .tab = 22, .at = {1, 4}, .click = [this] { optAFMagie_Click(); }}};

  Label lblREMkonst   {frmZugAttr, "lblREMkonst",    {.characters = 5, .tab = 23, .at = {0, 1}, .spoken = "Konstitution"}};
  Label lblREMcharisma{frmZugAttr, "lblREMcharisma", {.characters = 5, .tab = 24, .at = {0, 3}, .spoken = "Charisma"}};
  Label lblREMschnell {frmZugAttr, "lblREMschnell",  {.characters = 5, .tab = 25, .at = {1, 1}, .spoken = "Schnelligkeit"}};
  Label lblREMintell  {frmZugAttr, "lblREMintell",   {.characters = 5, .tab = 26, .at = {1, 3}, .spoken = "Intelligenz"}};
  Label lblREMstark   {frmZugAttr, "lblREMstark",    {.characters = 5, .tab = 27, .at = {2, 1}, .spoken = "Stärke"}};
  Label lblREMwill    {frmZugAttr, "lblREMwill",     {.characters = 5, .tab = 28, .at = {2, 3}, .spoken = "Willenskraft"}};
  Label lblREMreaktion{frmZugAttr, "lblREMreaktion", {.characters = 5, .tab = 29, .at = {0, 5}, .spoken = "Reaktion"}};
  Label lblREMmagie   {frmZugAttr, "lblREMmagie",    {.characters = 5, .tab = 30, .at = {1, 5}, .spoken = "Magie"}};

  CommandButton cmdafertcompl   {frmVerwaltungAF, "cmdafertcompl",    {.caption = "Aktionsfertigkeiten vollständig, Spezialisierung hinzufügen!", .lines = 2, .enabled = false, .tab = 31, .at = {0, 4}, .click = [this] { cmdafertcompl_Click(); }, .hint = [this] { return whyNotComplete(); }}};
  CommandButton cmddisformisready{*this,          "cmddisformisready", {.caption = "Weiter!", .enabled = false, .tab = 32, .at = {.row = 2, .align = Place::Align::right}, .click = [this] { cmddisformisready_Click(); }, .hint = [this] { return whyNotReady(); }}};
  // clang-format on

 private:
  void Form_Load() override;
  void optAFKonst_Click();
  void optAFSchnell_Click();
  void optAFStark_Click();
  void optAFCharisma_Click();
  void optAFIntell_Click();
  void optAFWill_Click();
  void optAFReaktion_Click();
  void optAFMagie_Click();
  void txtAFertigkeit_Change();
  void cmdAddFertigkeit_Click();
  void lstAFertigkeiten_Click();
  void cmdFertigkeitPlus_Click();
  void cmdFertigkeitMinus_Click();
  void cmdafertcompl_Click();
  void txtSpezi_Change();
  void cmdAddSpezi_Click();
  void cmddisformisready_Click();

  [[nodiscard]] std::string whyNotAddFertigkeit() const;
  [[nodiscard]] std::string whyNotPlus() const;
  [[nodiscard]] std::string whyNotMinus() const;
  [[nodiscard]] std::string whyNotComplete() const;
  [[nodiscard]] std::string whyNotAddSpezi() const;
  [[nodiscard]] std::string whyNotReady() const;
  [[nodiscard]] std::string whyNoLevels() const;
  [[nodiscard]] bool canSpecialise() const { return FertigkeitStufe[merkzahl] > 1; }
  void link(const Label& attribute);
  void CheckDaButtons();
  void clearButtons();
  void schreibeListe();

  const Environment& environment_;
  FormWissensfertigkeit& formWissensfertigkeit;
};

}  // namespace bogenwerker
