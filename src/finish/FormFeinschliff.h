// Step 6: the final values.
#pragma once

#include <string>
#include <vector>

#include "finish/final_values.h"
#include "forms/controls.h"
#include "outside/environment.h"

namespace bogenwerker {

class FormNamenGeben;

// Reads what the earlier steps left in their files, works out everything once while it loads, still hidden behind the
// personal data, and writes the sheet. What a value is worth is told beside it in this room; how the sheet looks is up
// to the template.
class FormFeinschliff final : public FormWith<FinalValues> {
 public:
  FormFeinschliff(FormsRuntime& runtime, const Environment& environment, FormNamenGeben& namenGeben);

  // clang-format off
  Frame Frame1          {*this,  "Frame1",           {.caption = "Attribute", .tab = 0, .at = {0, 0}, .stretch = {.columns = {0, 0, 0, 0, 0, 1}}}};
  Label Label1          {Frame1, "Label1",           {.caption = "Konstitution",  .tab = 1, .at = {0, 0}}};
  Label Label2          {Frame1, "Label2",           {.caption = "Schnelligkeit", .tab = 2, .at = {1, 0}}};
  Label Label3          {Frame1, "Label3",           {.caption = "Stärke",        .tab = 3, .at = {2, 0}}};
  Label Label4          {Frame1, "Label4",           {.caption = "Charisma",      .tab = 4, .at = {3, 0}}};
  Label Label5          {Frame1, "Label5",           {.caption = "Intelligenz",   .tab = 5, .at = {4, 0}}};
  Label Label6          {Frame1, "Label6",           {.caption = "Willenskraft",  .tab = 6, .at = {5, 0}}};
  Label Label7          {Frame1, "Label7",           {.caption = "Essenz",        .tab = 7, .at = {6, 0}}};
  Label Label8          {Frame1, "Label8",           {.caption = "Magie",         .tab = 8, .at = {7, 0}}};
  Label lblKonstitution {Frame1, "lblKonstitution",  {.tab = 9,  .at = {0, 1}, .spoken = "Konstitution"}};
  Label lblSchnelligkeit{Frame1, "lblSchnelligkeit", {.tab = 10, .at = {1, 1}, .spoken = "Schnelligkeit"}};
  Label lblStärke       {Frame1, "lblStärke",        {.tab = 11, .at = {2, 1}, .spoken = "Stärke"}};
  Label lblCharisma     {Frame1, "lblCharisma",      {.tab = 12, .at = {3, 1}, .spoken = "Charisma"}};
  Label lblIntelligenz  {Frame1, "lblIntelligenz",   {.tab = 13, .at = {4, 1}, .spoken = "Intelligenz"}};
  Label lblWillenskraft {Frame1, "lblWillenskraft",  {.tab = 14, .at = {5, 1}, .spoken = "Willenskraft"}};
  Label lblEssenz       {Frame1, "lblEssenz",        {.tab = 15, .at = {6, 1}, .spoken = "Essenz"}};
  Label lblMagie        {Frame1, "lblMagie",         {.tab = 16, .at = {7, 1}, .spoken = "Magie"}};
  Label lblReaktion     {Frame1, "lblReaktion",      {.centred = true, .tab = 17, .at = {2, 5, 2}, .spoken = "Reaktion"}};
  Label lblInitiative   {Frame1, "lblInitiative",    {.centred = true, .tab = 18, .at = {7, 5}, .spoken = "Initiative"}};
  Label Label19         {Frame1, "Label19",          {.caption = "Reaktion",   .centred = true, .tab = 19, .at = {1, 5}}};
  Label Label20         {Frame1, "Label20",          {.caption = "Initiative", .tab = 20, .at = {.row = 7, .column = 2, .columns = 3, .align = Place::Align::right}}};
  // From the rows Schnelligkeit and Intelligenz into Reaktion, and from there down to Initiative.
  Line Line1            {Frame1, "Line1", {.at = {.row = 1, .column = 2, .columns = 2}, .to = LineDesign::End::middle}};
  Line Line2            {Frame1, "Line2", {.at = {.row = 4, .column = 2, .columns = 2}, .to = LineDesign::End::middle}};
  Line Line3            {Frame1, "Line3", {.at = {1, 3, 4}, .stroke = LineDesign::Stroke::vertical, .from = LineDesign::End::middle, .to = LineDesign::End::middle}};
  Line Line4            {Frame1, "Line4", {.at = {2, 3, 2, 2}, .from = LineDesign::End::middle}};
  Line Line5            {Frame1, "Line5", {.at = {4, 5, 3}, .stroke = LineDesign::Stroke::vertical}};

  Frame   Frame2         {*this,  "Frame2",          {.caption = "Pools", .tab = 21, .at = {1, 0}, .stretch = {.rows = {0, 0, 0, 0, 0, 0, 1}, .columns = {0, 0, 1}}}};
  Label   Label21        {Frame2, "Label21",         {.caption = "Kampfpool",    .tab = 22, .at = {0, 0}}};
  Label   Label22        {Frame2, "Label22",         {.caption = "Steuerpool",   .tab = 23, .at = {1, 0}}};
  Label   Label23        {Frame2, "Label23",         {.caption = "Zauberpool",   .tab = 24, .at = {2, 0}}};
  Label   Label24        {Frame2, "Label24",         {.caption = "Astralkampf",  .tab = 25, .at = {3, 0}}};
  Label   Label25        {Frame2, "Label25",         {.caption = "Hackingpool",  .tab = 26, .at = {4, 0}}};
  Label   Label26        {Frame2, "Label26",         {.caption = "Aufgabenpool", .tab = 27, .at = {5, 0}}};
  TextBox txtKampfpool   {Frame2, "txtKampfpool",    {.characters = 6, .tab = 28, .at = {0, 1}, .spoken = "Kampfpool"}};
  TextBox txtSteuerpool  {Frame2, "txtSteuerpool",   {.characters = 6, .tab = 29, .at = {1, 1}, .spoken = "Steuerpool"}};
  TextBox txtZauberpool  {Frame2, "txtZauberpool",   {.characters = 6, .tab = 30, .at = {2, 1}, .spoken = "Zauberpool"}};
  TextBox txtAstralkampf {Frame2, "txtAstralkampf",  {.characters = 6, .tab = 31, .at = {3, 1}, .spoken = "Astralkampf"}};
  TextBox txtHackingpool {Frame2, "txtHackingpool",  {.characters = 6, .tab = 32, .at = {4, 1}, .spoken = "Hackingpool"}};
  TextBox txtAufgabenpool{Frame2, "txtAufgabenpool", {.characters = 6, .tab = 33, .at = {5, 1}, .spoken = "Aufgabenpool"}};

  Frame         Frame3        {*this,  "Frame3",         {.caption = "Ausrüstung", .tab = 34, .at = {0, 1, 2}}};
  ListBox       lstAusrüstung {Frame3, "lstAusrüstung",  {.characters = 48, .lines = 20, .tab = 35, .spoken = "Ausrüstung und Fertigkeiten"}};
  CommandButton cmdErzeugeHTML{*this,  "cmdErzeugeHTML", {.caption = "Erzeuge HTML Datenblatt!", .characters = 44, .tab = 36, .at = {.row = 2, .column = 0, .columns = 2, .align = Place::Align::centre}, .click = [this] { cmdErzeugeHTML_Click(); }}};
  // clang-format on

 private:
  void Form_Load() override;
  void cmdErzeugeHTML_Click();

  void readAttributes();
  void readEssenz();
  [[nodiscard]] std::vector<std::string> readEquipment();
  void checkCyberdeck(const std::vector<std::string>& lines);
  void ZeigeWerte();
  void ZeigeFertigkeiten();

  const Environment& environment_;
  FormNamenGeben& formNamenGeben;
};

}  // namespace bogenwerker
