// Step 5: spending the money.
#pragma once

#include <optional>
#include <string>

#include "catalogues/catalogues.h"
#include "forms/controls.h"
#include "outside/environment.h"
#include "values/numbered_array.h"
#include "values/numbers.h"

namespace bogenwerker {

class FormFeinschliff;
class FormNamenGeben;

// What the step begins with, where a character has any of it.
constexpr Single startEssenz = 6.0F;
constexpr Single startBioIndex = 9.0F;
constexpr Single startKraftpunkte = 6.0F;
constexpr Integer mostSpruchpunkte = 35;  // before any is bought
constexpr Currency priceOfSpellPoint = 25000;

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
  FormAusrüstung(FormsRuntime& runtime, const Environment& environment, FormFeinschliff& feinschliff,
                 FormNamenGeben& namenGeben);

  // clang-format off
  ComboBox      cmbLebensstil    {*this, "cmbLebensstil",     {.text = "Lebensstil / Kosten pro Monat", .characters = 42, .tab = 0, .at = {0, 0}, .spoken = "Lebensstil", .click = [this] { cmbLebensstil_Click(); }}};
  CommandButton cmdAddLebensstil {*this, "cmdAddLebensstil",  {.caption = "Hinzufügen!", .enabled = false, .tab = 1, .at = {0, 1}, .spoken = "Lebensstil hinzufügen", .click = [this] { cmdAddLebensstil_Click(); }, .hint = [this] { return whyNotAddLebensstil(); }}};
  ComboBox      cmbConnection    {*this, "cmbConnection",     {.text = "Connection", .characters = 42, .tab = 2, .at = {1, 0}, .spoken = "Connection", .click = [this] { cmbConnection_Click(); }}};
  CommandButton cmdAddConnection {*this, "cmdAddConnection",  {.caption = "Hinzufügen!", .enabled = false, .tab = 3, .at = {1, 1}, .spoken = "Connection hinzufügen", .click = [this] { cmdAddConnection_Click(); }, .hint = [this] { return whyNotAddConnection(); }}};
  CommandButton cmdAddSpruchPunkt{*this, "cmdAddSpruchPunkt", {.caption = "Spruchpunkt kaufen (25.000 Y)", .lines = 2, .tab = 4, .at = {.row = 2, .column = 2, .columns = 3, .align = Place::Align::centre}, .click = [this] { cmdAddSpruchPunkt_Click(); }, .hint = [this] { return whyNotAddSpruchPunkt(); }}};
  ComboBox      cmbCyberware     {*this, "cmbCyberware",      {.text = "Cyberware", .characters = 42, .sorted = true, .tab = 5, .at = {4, 0}, .spoken = "Cyberware", .click = [this] { cmbCyberware_Click(); }}};
  ComboBox      cmbBioware       {*this, "cmbBioware",        {.text = "Bioware", .characters = 42, .sorted = true, .tab = 6, .at = {5, 0}, .spoken = "Bioware", .click = [this] { cmbBioware_Click(); }}};
  CommandButton cmdAddCyberware  {*this, "cmdAddCyberware",   {.caption = "Hinzufügen!", .enabled = false, .tab = 7, .at = {4, 1}, .spoken = "Cyberware hinzufügen", .click = [this] { cmdAddCyberware_Click(); }, .hint = [this] { return whyNotAddCyberware(); }}};
  CommandButton cmdAddBioware    {*this, "cmdAddBioware",     {.caption = "Hinzufügen!", .enabled = false, .tab = 8, .at = {5, 1}, .spoken = "Bioware hinzufügen", .click = [this] { cmdAddBioware_Click(); }, .hint = [this] { return whyNotAddBioware(); }}};

  Frame frmResources{*this,        "frmResources", {.caption = "Ressourcen", .tab = 9, .at = {.row = 7, .column = 2, .columns = 3}}};
  Label lblMoney    {frmResources, "lblMoney",     {.size = 15.75, .centred = true, .characters = 10, .tab = 10, .spoken = "Ressourcen"}};

  Frame         frmMagicStuff   {*this,           "frmMagicStuff",    {.caption = "Magische Ausrüstung", .tab = 11, .at = {0, 2, 3, 3}, .stretch = {.rows = {0, 1}, .columns = {0, 1, 0}}}};
  ComboBox      cmbMagic        {frmMagicStuff,   "cmbMagic",         {.text = "Foki, Geister, Sprüche, Adeptenkräfte", .characters = 36, .sorted = true, .tab = 12, .at = {.row = 0, .column = 0, .columns = 2}, .spoken = "Foki, Geister, Sprüche, Adeptenkräfte", .click = [this] { cmbMagic_Click(); }}};
  CommandButton cmdAddMagicStuff{frmMagicStuff,   "cmdAddMagicStuff", {.caption = "Hinzufügen!", .enabled = false, .tab = 13, .at = {0, 2}, .spoken = "Magische Ausrüstung hinzufügen", .click = [this] { cmdAddMagicStuff_Click(); }, .hint = [this] { return whyNotAddMagicStuff(); }}};
  Frame         frmSpruchPunkte {frmMagicStuff,   "frmSpruchPunkte",  {.caption = "Spruchpunkte", .tab = 14, .at = {.row = 1, .column = 0, .align = Place::Align::left}}};
  Frame         frmKraftpunkte  {frmMagicStuff,   "frmKraftpunkte",   {.caption = "Kraftpunkte",  .tab = 15, .at = {.row = 1, .column = 2, .align = Place::Align::right}}};
  Label         lblSpruchPunkte {frmSpruchPunkte, "lblSpruchPunkte",  {.size = 15.75, .centred = true, .characters = 4, .tab = 16, .spoken = "Spruchpunkte"}};
  Label         lblKraftpunkte  {frmKraftpunkte,  "lblKraftpunkte",   {.size = 15.75, .centred = true, .characters = 4, .tab = 17, .spoken = "Kraftpunkte"}};

  Frame         frmEquipment      {*this,              "frmEquipment",       {.caption = "Sonstige Ausrüstung", .tab = 18, .at = {.row = 2, .column = 0, .columns = 2}, .stretch = {.columns = {1, 0, 0}}}};
  Frame         frmEquipmentText  {frmEquipment,       "frmEquipmentText",   {.caption = "Beschreibung", .tab = 19, .at = {0, 0}}};
  TextBox       txtEquipment      {frmEquipmentText,   "txtEquipment",       {.tab = 20, .spoken = "Sonstige Ausrüstung, Beschreibung"}};
  Frame         frmEquipmentKosten{frmEquipment,       "frmEquipmentKosten", {.caption = "Kosten", .tab = 21, .at = {0, 1}}};
  TextBox       txtEquipmentKosten{frmEquipmentKosten, "txtEquipmentKosten", {.characters = 10, .tab = 22, .spoken = "Sonstige Ausrüstung, Kosten", .change = [this] { txtEquipmentKosten_Change(); }}};
  CommandButton cmdAddEquipment   {frmEquipment,       "cmdAddEquipment",    {.caption = "Hinzufügen!", .enabled = false, .tab = 23, .at = {0, 2}, .spoken = "Sonstige Ausrüstung hinzufügen", .click = [this] { cmdAddEquipment_Click(); }, .hint = [this] { return whyNotAddEquipment(); }}};

  Frame frmEssenz       {*this,           "frmEssenz",        {.caption = "Essenz",    .tab = 24, .at = {3, 2, 3}, .margin = 0, .stretch = {.rows = {1, 0, 0}}}};
  Frame frmBioIndex     {*this,           "frmBioIndex",      {.caption = "Bio-Index", .tab = 25, .at = {3, 3, 3}, .margin = 0, .stretch = {.rows = {1, 0, 0}}}};
  Frame frmCybBioKosten {*this,           "frmCybBioKosten",  {.caption = "Kosten",    .tab = 26, .at = {3, 4, 3}, .margin = 0, .stretch = {.rows = {1, 0, 0}}}};
  Label lblCyberEssenz  {frmEssenz,       "lblCyberEssenz",   {.centred = true, .tab = 27, .at = {1, 0}, .spoken = "Essenzkosten der Cyberware"}};
  Label Label2          {frmEssenz,       "Label2",           {.caption = "0", .centred = true, .tab = 28, .at = {2, 0}, .spoken = "Essenzkosten der Bioware"}};
  Label Label3          {frmBioIndex,     "Label3",           {.caption = "0", .centred = true, .tab = 29, .at = {1, 0}, .spoken = "Bio-Index-Kosten der Cyberware"}};
  Label lblBiowareIndex {frmBioIndex,     "lblBiowareIndex",  {.centred = true, .tab = 30, .at = {2, 0}, .spoken = "Bio-Index-Kosten der Bioware"}};
  Label lblCyberkosten  {frmCybBioKosten, "lblCyberkosten",   {.centred = true, .tab = 31, .at = {1, 0}, .spoken = "Kosten der Cyberware"}};
  Label lblBiowareKosten{frmCybBioKosten, "lblBiowareKosten", {.centred = true, .tab = 32, .at = {2, 0}, .spoken = "Kosten der Bioware"}};

  Frame Frame1     {*this,  "Frame1",      {.caption = "Essenz / Bio-Index", .tab = 33, .at = {.row = 6, .column = 2, .columns = 3}}};
  Label lblEssenz  {Frame1, "lblEssenz",   {.centred = true, .tab = 34, .at = {0, 0}, .spoken = "Essenz"}};
  Label lblBioIndex{Frame1, "lblBioIndex", {.centred = true, .tab = 35, .at = {0, 1}, .spoken = "Bio-Index"}};

  ListBox       lstAusrüstung   {*this, "lstAusrüstung",    {.lines = 10, .tab = 36, .at = {6, 0, 4, 2}, .spoken = "Gekaufte Ausrüstung"}};
  CommandButton cmdGoAhead      {*this, "cmdGoAhead",       {.caption = "Weiter!", .tab = 37, .at = {.row = 9, .column = 4, .align = Place::Align::right}, .click = [this] { cmdGoAhead_Click(); }}};
  ComboBox      cmbCyberdecks   {*this, "cmbCyberdecks",    {.text = "Cyberdecks", .characters = 42, .tab = 38, .at = {3, 0}, .spoken = "Cyberdecks", .click = [this] { cmbCyberdecks_Click(); }}};
  CommandButton cmdAddDeckerWare{*this, "cmdAddDeckerWare", {.caption = "Hinzufügen!", .enabled = false, .tab = 39, .at = {3, 1}, .spoken = "Cyberdeck hinzufügen", .click = [this] { cmdAddDeckerWare_Click(); }, .hint = [this] { return whyNotAddDeckerWare(); }}};
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
  [[nodiscard]] std::string whyNotAddLebensstil() const;
  [[nodiscard]] std::string whyNotAddConnection() const;
  [[nodiscard]] std::string whyNotAddDeckerWare() const;
  [[nodiscard]] std::string whyNotAddEquipment() const;
  [[nodiscard]] std::string whyNotAddCyberware() const;
  [[nodiscard]] std::string whyNotAddBioware() const;
  [[nodiscard]] std::string whyNotAddMagicStuff() const;
  [[nodiscard]] std::string whyNotAddSpruchPunkt() const;
  // Why nothing would be bought at such a price, or of that row of a catalogue; empty if it would.
  [[nodiscard]] std::string whyNotPay(Currency kosten) const;
  [[nodiscard]] std::string whyNotBuy(Currency kosten) const;
  [[nodiscard]] std::string whyNotCyberware(Integer slot) const;
  [[nodiscard]] std::string whyNotBioware(Integer slot) const;
  [[nodiscard]] std::string whyNotMagic(Integer slot) const;
  template <class Names, class WhyNot>
  [[nodiscard]] std::string whyNone(const CommandButton& button, const ComboBox& box, const Names& names,
                                    Integer zaehler, WhyNot whyNot) const;
  [[nodiscard]] std::string whyNotImplant(std::string_view what, Single left) const;
  [[nodiscard]] bool hasRoom() const;
  template <class Names, class Costs>
  void buyForMoney(const ComboBox& box, const Names& names, const Costs& costs, Integer zaehler);
  Integer wirfWurfsumme();

  AusrüstungKataloge kataloge;
  // Dice that lie on the table stay there: a passage that a fault breaks off goes on with them, it does not throw anew.
  std::optional<Integer> geworfen;
  const Environment& environment_;
  FormFeinschliff& formFeinschliff;
  FormNamenGeben& formNamenGeben;
};

}  // namespace bogenwerker
