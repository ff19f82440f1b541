// Step 5: spending the money.
#pragma once

#include <optional>
#include <string>

#include "catalogues/catalogues.h"
#include "wizard/controls.h"
#include "wizard/numbered_array.h"
#include "wizard/numbers.h"

namespace bogenwerker {

class FormFeinschliff;
class FormNamenGeben;

struct AusrüstungVariables {
  std::string Rasse;
  std::string Magie;
  Currency Ressourcen;
  Single Essenz = 0;
  Single BioIndex = 0;
  Integer Spruchpunkte;
  Single Kraftpunkte = 0;
};

// The catalogues as they were when the form loaded. Slots count from 1 in file order; each counter holds the next free
// slot.
struct AusrüstungKataloge {
  NumberedArray<std::string, mostLebensstile> LebensstilName;
  NumberedArray<Currency, mostLebensstile> LebensstilKosten;
  Integer zaehlerLebensstil = 1;

  NumberedArray<std::string, mostConnections> ConnectionName;
  NumberedArray<Currency, mostConnections> ConnectionKosten;
  Integer zaehlerConnection = 1;

  NumberedArray<std::string, mostMagicStuff> MagicName;
  NumberedArray<Integer, mostMagicStuff> MagicSpruchpunkte;
  NumberedArray<Currency, mostMagicStuff> MagicKosten;
  NumberedArray<Single, mostMagicStuff> MagicKraftpunkte;
  Integer zaehlerMagic = 1;

  NumberedArray<std::string, mostCyberware> CyberName;
  NumberedArray<Single, mostCyberware> CyberEssenz;
  NumberedArray<Currency, mostCyberware> CyberKosten;
  Integer zaehlerCyberware = 1;

  NumberedArray<std::string, mostBioware> BioName;
  NumberedArray<Single, mostBioware> BioIndexKosten;
  NumberedArray<Currency, mostBioware> BioKosten;
  Integer zaehlerBioware = 1;

  NumberedArray<std::string, mostCyberdecks> DeckName;
  NumberedArray<Currency, mostCyberdecks> DeckKosten;
  Integer zaehlerCyberdecks = 1;
};

// Every purchase leaves one line in lstAusrüstung, and that list is all that later steps learn of it. What cannot be
// paid is refused in silence. Nothing bought can be taken back.
class FormAusrüstung final : public FormWith<AusrüstungVariables> {
 public:
  FormAusrüstung(FormsRuntime& runtime, FormFeinschliff& feinschliff, FormNamenGeben& namenGeben);

  // clang-format off
  ComboBox      cmbLebensstil    {*this, "cmbLebensstil",     {.text = "Lebensstil / Kosten pro Monat", .characters = 42, .tab = 0, .at = {.row = 0, .column = 0}, .spoken = "Lebensstil", .click = [this] { cmbLebensstil_Click(); }}};
  CommandButton cmdAddLebensstil {*this, "cmdAddLebensstil",  {.caption = "Hinzufügen!", .enabled = false, .tab = 1, .at = {.row = 0, .column = 1}, .spoken = "Lebensstil hinzufügen", .click = [this] { cmdAddLebensstil_Click(); }}};
  ComboBox      cmbConnection    {*this, "cmbConnection",     {.text = "Connection", .characters = 42, .tab = 2, .at = {.row = 1, .column = 0}, .spoken = "Connection", .click = [this] { cmbConnection_Click(); }}};
  CommandButton cmdAddConnection {*this, "cmdAddConnection",  {.caption = "Hinzufügen!", .enabled = false, .tab = 3, .at = {.row = 1, .column = 1}, .spoken = "Connection hinzufügen", .click = [this] { cmdAddConnection_Click(); }}};
  CommandButton cmdAddSpruchPunkt{*this, "cmdAddSpruchPunkt", {.caption = "Spruchpunkt kaufen (25.000 Y)", .lines = 2, .tab = 4, .at = {.row = 2, .column = 2, .columns = 3, .align = Place::Align::centre}, .click = [this] { cmdAddSpruchPunkt_Click(); }}};
  ComboBox      cmbCyberware     {*this, "cmbCyberware",      {.text = "Cyberware", .characters = 42, .sorted = true, .tab = 5, .at = {.row = 4, .column = 0}, .spoken = "Cyberware", .click = [this] { cmbCyberware_Click(); }}};
  ComboBox      cmbBioware       {*this, "cmbBioware",        {.text = "Bioware", .characters = 42, .sorted = true, .tab = 6, .at = {.row = 5, .column = 0}, .spoken = "Bioware", .click = [this] { cmbBioware_Click(); }}};
  CommandButton cmdAddCyberware  {*this, "cmdAddCyberware",   {.caption = "Hinzufügen!", .enabled = false, .tab = 7, .at = {.row = 4, .column = 1}, .spoken = "Cyberware hinzufügen", .click = [this] { cmdAddCyberware_Click(); }}};
  CommandButton cmdAddBioware    {*this, "cmdAddBioware",     {.caption = "Hinzufügen!", .enabled = false, .tab = 8, .at = {.row = 5, .column = 1}, .spoken = "Bioware hinzufügen", .click = [this] { cmdAddBioware_Click(); }}};

  Frame frmResources{*this,        "frmResources", {.caption = "Ressourcen", .tab = 9, .at = {.row = 7, .column = 2, .columns = 3}}};
  Label lblMoney    {frmResources, "lblMoney",     {.size = 15.75, .centred = true, .characters = 10, .tab = 10, .spoken = "Ressourcen"}};

  Frame         frmMagicStuff   {*this,           "frmMagicStuff",    {.caption = "Magische Ausrüstung", .tab = 11, .at = {.row = 0, .column = 2, .rows = 3, .columns = 3}, .stretch = {.rows = {0, 1}, .columns = {0, 1, 0}}}};
  ComboBox      cmbMagic        {frmMagicStuff,   "cmbMagic",         {.text = "Foki, Geister, Sprüche, Adeptenkräfte", .characters = 36, .sorted = true, .tab = 12, .at = {.row = 0, .column = 0, .columns = 2}, .spoken = "Foki, Geister, Sprüche, Adeptenkräfte", .click = [this] { cmbMagic_Click(); }}};
  CommandButton cmdAddMagicStuff{frmMagicStuff,   "cmdAddMagicStuff", {.caption = "Hinzufügen!", .enabled = false, .tab = 13, .at = {.row = 0, .column = 2}, .spoken = "Magische Ausrüstung hinzufügen", .click = [this] { cmdAddMagicStuff_Click(); }}};
  Frame         frmSpruchPunkte {frmMagicStuff,   "frmSpruchPunkte",  {.caption = "Spruchpunkte", .tab = 14, .at = {.row = 1, .column = 0, .align = Place::Align::left}}};
  Frame         frmKraftpunkte  {frmMagicStuff,   "frmKraftpunkte",   {.caption = "Kraftpunkte",  .tab = 15, .at = {.row = 1, .column = 2, .align = Place::Align::right}}};
  Label         lblSpruchPunkte {frmSpruchPunkte, "lblSpruchPunkte",  {.size = 15.75, .centred = true, .characters = 4, .tab = 16, .spoken = "Spruchpunkte"}};
  Label         lblKraftpunkte  {frmKraftpunkte,  "lblKraftpunkte",   {.size = 15.75, .centred = true, .characters = 4, .tab = 17, .spoken = "Kraftpunkte"}};

  Frame         frmEquipment      {*this,              "frmEquipment",       {.caption = "Sonstige Ausrüstung", .tab = 18, .at = {.row = 2, .column = 0, .columns = 2}, .stretch = {.columns = {1, 0, 0}}}};
  Frame         frmEquipmentText  {frmEquipment,       "frmEquipmentText",   {.caption = "Beschreibung", .tab = 19, .at = {.row = 0, .column = 0}}};
  TextBox       txtEquipment      {frmEquipmentText,   "txtEquipment",       {.tab = 20, .spoken = "Sonstige Ausrüstung, Beschreibung"}};
  Frame         frmEquipmentKosten{frmEquipment,       "frmEquipmentKosten", {.caption = "Kosten", .tab = 21, .at = {.row = 0, .column = 1}}};
  TextBox       txtEquipmentKosten{frmEquipmentKosten, "txtEquipmentKosten", {.characters = 10, .tab = 22, .spoken = "Sonstige Ausrüstung, Kosten", .change = [this] { txtEquipmentKosten_Change(); }}};
  CommandButton cmdAddEquipment   {frmEquipment,       "cmdAddEquipment",    {.caption = "Hinzufügen!", .enabled = false, .tab = 23, .at = {.row = 0, .column = 2}, .spoken = "Sonstige Ausrüstung hinzufügen", .click = [this] { cmdAddEquipment_Click(); }}};

  Frame frmEssenz       {*this,           "frmEssenz",        {.caption = "Essenz",    .tab = 24, .at = {.row = 3, .column = 2, .rows = 3}, .margin = 0, .stretch = {.rows = {1, 0, 0}}}};
  Frame frmBioIndex     {*this,           "frmBioIndex",      {.caption = "Bio-Index", .tab = 25, .at = {.row = 3, .column = 3, .rows = 3}, .margin = 0, .stretch = {.rows = {1, 0, 0}}}};
  Frame frmCybBioKosten {*this,           "frmCybBioKosten",  {.caption = "Kosten",    .tab = 26, .at = {.row = 3, .column = 4, .rows = 3}, .margin = 0, .stretch = {.rows = {1, 0, 0}}}};
  Label lblCyberEssenz  {frmEssenz,       "lblCyberEssenz",   {.centred = true, .tab = 27, .at = {.row = 1}, .spoken = "Essenzkosten der Cyberware"}};
  Label Label2          {frmEssenz,       "Label2",           {.caption = "0", .centred = true, .tab = 28, .at = {.row = 2}, .spoken = "Essenzkosten der Bioware"}};
  Label Label3          {frmBioIndex,     "Label3",           {.caption = "0", .centred = true, .tab = 29, .at = {.row = 1}, .spoken = "Bio-Index-Kosten der Cyberware"}};
  Label lblBiowareIndex {frmBioIndex,     "lblBiowareIndex",  {.centred = true, .tab = 30, .at = {.row = 2}, .spoken = "Bio-Index-Kosten der Bioware"}};
  Label lblCyberkosten  {frmCybBioKosten, "lblCyberkosten",   {.centred = true, .tab = 31, .at = {.row = 1}, .spoken = "Kosten der Cyberware"}};
  Label lblBiowareKosten{frmCybBioKosten, "lblBiowareKosten", {.centred = true, .tab = 32, .at = {.row = 2}, .spoken = "Kosten der Bioware"}};

  Frame Frame1     {*this,  "Frame1",      {.caption = "Essenz / Bio-Index", .tab = 33, .at = {.row = 6, .column = 2, .columns = 3}}};
  Label lblEssenz  {Frame1, "lblEssenz",   {.centred = true, .tab = 34, .at = {.column = 0}, .spoken = "Essenz"}};
  Label lblBioIndex{Frame1, "lblBioIndex", {.centred = true, .tab = 35, .at = {.column = 1}, .spoken = "Bio-Index"}};

  ListBox       lstAusrüstung   {*this, "lstAusrüstung",    {.lines = 10, .tab = 36, .at = {.row = 6, .column = 0, .rows = 4, .columns = 2}, .spoken = "Gekaufte Ausrüstung"}};
  CommandButton cmdGoAhead      {*this, "cmdGoAhead",       {.caption = "Weiter!", .tab = 37, .at = {.row = 9, .column = 4, .align = Place::Align::right}, .click = [this] { cmdGoAhead_Click(); }}};
  ComboBox      cmbCyberdecks   {*this, "cmbCyberdecks",    {.text = "Cyberdecks", .characters = 42, .tab = 38, .at = {.row = 3, .column = 0}, .spoken = "Cyberdecks", .click = [this] { cmbCyberdecks_Click(); }}};
  CommandButton cmdAddDeckerWare{*this, "cmdAddDeckerWare", {.caption = "Hinzufügen!", .enabled = false, .tab = 39, .at = {.row = 3, .column = 1}, .spoken = "Cyberdeck hinzufügen", .click = [this] { cmdAddDeckerWare_Click(); }}};
  // clang-format on

 private:
  void Form_Load() override;
  void cmbLebensstil_Click();
  void cmbConnection_Click();
  void cmbCyberdecks_Click();
  void cmbCyberware_Click();
  void cmbBioware_Click();
  void cmbMagic_Click();
  void txtEquipmentKosten_Change();
  void cmdAddLebensstil_Click();
  void cmdAddConnection_Click();
  void cmdAddDeckerWare_Click();
  void cmdAddEquipment_Click();
  void cmdAddCyberware_Click();
  void cmdAddBioware_Click();
  void cmdAddMagicStuff_Click();
  void cmdAddSpruchPunkt_Click();
  void cmdGoAhead_Click();

  void ZeigeRessourcen();
  void ZeigeSpruchpunkte();
  void ZeigeKraftpunkte();
  void ZeigeEssenz();
  void ZeigeBioIndex();

  template <class Row, class Names, class Store>
  void lade(std::string_view file, ComboBox& box, Integer& zaehler, Names& names, Store store);
  void ladeLebensstil();
  void ladeConnection();
  void ladeMagicStuff();
  void ladeCyberware();
  void ladeBioware();
  void ladeCyberdecks();
  void richteMagieEin();
  [[nodiscard]] bool hasRoom() const;
  [[nodiscard]] bool canPay(Currency kosten) const { return Ressourcen - kosten >= 0; }
  template <class Names, class Costs>
  void buyForMoney(const ComboBox& box, const Names& names, const Costs& costs, Integer zaehler);
  Integer wirfWurfsumme();

  AusrüstungKataloge kataloge;
  // Dice that lie on the table stay there: a passage that a fault breaks off goes on with them, it does not throw anew.
  std::optional<Integer> geworfen;
  FormFeinschliff& formFeinschliff;
  FormNamenGeben& formNamenGeben;
};

}  // namespace bogenwerker
