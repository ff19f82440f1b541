// Step 6: the final values.
#pragma once

#include <string>

#include "catalogues/catalogues.h"
#include "wizard/controls.h"
#include "wizard/numbered_array.h"
#include "wizard/numbers.h"

namespace bogenwerker {

class FormNamenGeben;

// A variable that nothing has set yet holds 0. Each counter holds the next free index of its lists.
struct FeinschliffVariables {
  // As bought.
  Integer Konstitution, Schnelligkeit, Stärke, Intelligenz, Charisma, Willenskraft, Reaktion;
  Integer Initiative;
  Single Essenz = 0;
  Integer Magie;

  // With all ware.
  Integer ModKonstitution, ModSchnelligkeit, ModStärke, ModIntelligenz, ModCharisma, ModWillenskraft;
  Integer ModReaktion, ModInitiative;
  // With rigger or decker ware.
  Integer SpecReaktion, SpecInitiative;

  // What of the ware does not count for ModReaktion or for the pools. The last such row decides.
  Integer ReakBonus, ReakAbzugSchnell, ReakAbzugIntell;
  Integer PoolAbzugIntell, PoolAbzugCharisma, PoolAbzugWill, PoolAbzugSchnell;

  Integer Kampfpool, Steuerpool, Zauberpool, Astralkampf, Hackingpool, Aufgabenpool;
  Integer MPCP, Reaktionsverstärkung;

  NumberedArray<std::string, 1000> AusruestungsZeile;
  Integer AusruestungsZaehler = 1;

  NumberedArray<std::string, 30> FertigkeitName;
  NumberedArray<std::string, 30> SpeziName;
  NumberedArray<Integer, 30> FertigkeitStufe;
  NumberedArray<Integer, 30> SpeziStufe;
  Integer FertigkeitZaehler = 1;

  NumberedArray<std::string, 30> WissensName;
  NumberedArray<Integer, 30> WissensStufe;
  Integer WissensZaehler = 1;

  NumberedArray<std::string, 30> SprachName;
  NumberedArray<Integer, 30> SprachStufe;
  Integer SprachZaehler = 1;
};

// Reads what the earlier steps left in their files, works out everything once while it loads, still hidden behind the
// personal data, and writes the sheet. How the sheet looks is up to the template.
class FormFeinschliff final : public FormWith<FeinschliffVariables> {
 public:
  FormFeinschliff(FormsRuntime& runtime, FormNamenGeben& namenGeben);

  // clang-format off
  Frame Frame1          {*this,  "Frame1",           {.caption = "Attribute", .tab = 0, .at = {.row = 0, .column = 0}, .stretch = {.columns = {0, 0, 0, 0, 0, 1}}}};
  Label Label1          {Frame1, "Label1",           {.caption = "Konstitution",  .tab = 1, .at = {.row = 0, .column = 0}}};
  Label Label2          {Frame1, "Label2",           {.caption = "Schnelligkeit", .tab = 2, .at = {.row = 1, .column = 0}}};
  Label Label3          {Frame1, "Label3",           {.caption = "Stärke",        .tab = 3, .at = {.row = 2, .column = 0}}};
  Label Label4          {Frame1, "Label4",           {.caption = "Charisma",      .tab = 4, .at = {.row = 3, .column = 0}}};
  Label Label5          {Frame1, "Label5",           {.caption = "Intelligenz",   .tab = 5, .at = {.row = 4, .column = 0}}};
  Label Label6          {Frame1, "Label6",           {.caption = "Willenskraft",  .tab = 6, .at = {.row = 5, .column = 0}}};
  Label Label7          {Frame1, "Label7",           {.caption = "Essenz",        .tab = 7, .at = {.row = 6, .column = 0}}};
  Label Label8          {Frame1, "Label8",           {.caption = "Magie",         .tab = 8, .at = {.row = 7, .column = 0}}};
  Label lblKonstitution {Frame1, "lblKonstitution",  {.tab = 9,  .at = {.row = 0, .column = 1}, .spoken = "Konstitution"}};
  Label lblSchnelligkeit{Frame1, "lblSchnelligkeit", {.tab = 10, .at = {.row = 1, .column = 1}, .spoken = "Schnelligkeit"}};
  Label lblStärke       {Frame1, "lblStärke",        {.tab = 11, .at = {.row = 2, .column = 1}, .spoken = "Stärke"}};
  Label lblCharisma     {Frame1, "lblCharisma",      {.tab = 12, .at = {.row = 3, .column = 1}, .spoken = "Charisma"}};
  Label lblIntelligenz  {Frame1, "lblIntelligenz",   {.tab = 13, .at = {.row = 4, .column = 1}, .spoken = "Intelligenz"}};
  Label lblWillenskraft {Frame1, "lblWillenskraft",  {.tab = 14, .at = {.row = 5, .column = 1}, .spoken = "Willenskraft"}};
  Label lblEssenz       {Frame1, "lblEssenz",        {.tab = 15, .at = {.row = 6, .column = 1}, .spoken = "Essenz"}};
  Label lblMagie        {Frame1, "lblMagie",         {.tab = 16, .at = {.row = 7, .column = 1}, .spoken = "Magie"}};
  Label lblReaktion     {Frame1, "lblReaktion",      {.centred = true, .tab = 17, .at = {.row = 2, .column = 5, .rows = 2}, .spoken = "Reaktion"}};
  Label lblInitiative   {Frame1, "lblInitiative",    {.centred = true, .tab = 18, .at = {.row = 7, .column = 5}, .spoken = "Initiative"}};
  Label Label19         {Frame1, "Label19",          {.caption = "Reaktion",   .centred = true, .tab = 19, .at = {.row = 1, .column = 5}}};
  Label Label20         {Frame1, "Label20",          {.caption = "Initiative", .centred = true, .tab = 20, .at = {.row = 6, .column = 5}}};
  // From the rows Schnelligkeit and Intelligenz into Reaktion, and from there down to Initiative.
  Line Line1            {Frame1, "Line1", {.at = {.row = 1, .column = 2, .columns = 2}, .to = LineDesign::End::middle}};
  Line Line2            {Frame1, "Line2", {.at = {.row = 4, .column = 2, .columns = 2}, .to = LineDesign::End::middle}};
  Line Line3            {Frame1, "Line3", {.at = {.row = 1, .column = 3, .rows = 4}, .stroke = LineDesign::Stroke::vertical, .from = LineDesign::End::middle, .to = LineDesign::End::middle}};
  Line Line4            {Frame1, "Line4", {.at = {.row = 2, .column = 3, .rows = 2, .columns = 2}, .from = LineDesign::End::middle}};
  Line Line5            {Frame1, "Line5", {.at = {.row = 4, .column = 5, .rows = 2}, .stroke = LineDesign::Stroke::vertical}};

  Frame   Frame2         {*this,  "Frame2",          {.caption = "Pools", .tab = 21, .at = {.row = 1, .column = 0}, .stretch = {.rows = {0, 0, 0, 0, 0, 0, 1}, .columns = {0, 0, 1}}}};
  Label   Label21        {Frame2, "Label21",         {.caption = "Kampfpool",    .tab = 22, .at = {.row = 0, .column = 0}}};
  Label   Label22        {Frame2, "Label22",         {.caption = "Steuerpool",   .tab = 23, .at = {.row = 1, .column = 0}}};
  Label   Label23        {Frame2, "Label23",         {.caption = "Zauberpool",   .tab = 24, .at = {.row = 2, .column = 0}}};
  Label   Label24        {Frame2, "Label24",         {.caption = "Astralkampf",  .tab = 25, .at = {.row = 3, .column = 0}}};
  Label   Label25        {Frame2, "Label25",         {.caption = "Hackingpool",  .tab = 26, .at = {.row = 4, .column = 0}}};
  Label   Label26        {Frame2, "Label26",         {.caption = "Aufgabenpool", .tab = 27, .at = {.row = 5, .column = 0}}};
  TextBox txtKampfpool   {Frame2, "txtKampfpool",    {.characters = 6, .tab = 28, .at = {.row = 0, .column = 1}, .spoken = "Kampfpool"}};
  TextBox txtSteuerpool  {Frame2, "txtSteuerpool",   {.characters = 6, .tab = 29, .at = {.row = 1, .column = 1}, .spoken = "Steuerpool"}};
  TextBox txtZauberpool  {Frame2, "txtZauberpool",   {.characters = 6, .tab = 30, .at = {.row = 2, .column = 1}, .spoken = "Zauberpool"}};
  TextBox txtAstralkampf {Frame2, "txtAstralkampf",  {.characters = 6, .tab = 31, .at = {.row = 3, .column = 1}, .spoken = "Astralkampf"}};
  TextBox txtHackingpool {Frame2, "txtHackingpool",  {.characters = 6, .tab = 32, .at = {.row = 4, .column = 1}, .spoken = "Hackingpool"}};
  TextBox txtAufgabenpool{Frame2, "txtAufgabenpool", {.characters = 6, .tab = 33, .at = {.row = 5, .column = 1}, .spoken = "Aufgabenpool"}};

  Frame         Frame3        {*this,  "Frame3",         {.caption = "Ausrüstung", .tab = 34, .at = {.row = 0, .column = 1, .rows = 2}}};
  ListBox       lstAusrüstung {Frame3, "lstAusrüstung",  {.characters = 48, .lines = 20, .tab = 35, .spoken = "Ausrüstung und Fertigkeiten"}};
  CommandButton cmdErzeugeHTML{*this,  "cmdErzeugeHTML", {.caption = "Erzeuge HTML Datenblatt!", .characters = 44, .tab = 36, .at = {.row = 2, .column = 0, .columns = 2, .align = Place::Align::centre}, .click = [this] { cmdErzeugeHTML_Click(); }}};
  // clang-format on

  // The texts of Essenz and of the values in brackets, as this form and the sheet show them.
  [[nodiscard]] std::string essenzText() const;
  [[nodiscard]] std::string reaktionText() const;
  [[nodiscard]] std::string initiativeText() const;

 private:
  void Form_Load() override;
  void cmdErzeugeHTML_Click();

  void ZeigeFertigkeiten();
  void checkCyberdeck();
  void BerechneHackingPool();
  void BerechneAstralKampfPool();
  void BerechneZauberPool();
  void BerechneKampfPool();
  void ModifAttribErzeugen();
  void WendeWareAn();
  void WendeWerteAn(const WareEffects& ware);
  void ZeigeAttribute();
  void checkMagie();

  void readAttributes();
  void readEssenz();
  void readEquipment();

  FormNamenGeben& formNamenGeben;
};

// A value as bought with the modified one in brackets behind it.
std::string boughtAndModified(Integer bought, Integer modified);

}  // namespace bogenwerker
