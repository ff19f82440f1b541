#include "equipment/FormAusruestung.h"

#include <algorithm>

#include "catalogues/catalogues.h"
#include "finish/FormFeinschliff.h"
#include "finish/FormNamenGeben.h"
#include "outside/records.h"
#include "values/text.h"

namespace bogenwerker {
namespace {

// Step 6 has room for 1000 lines, and the last one is the start capital.
constexpr int mostPurchases = 999;

// Calls act with every slot whose name equals the text, without stopping at the first.
template <class Names, class Act>
void forEachSlotNamed(const Names& names, Integer zaehler, const std::string& text, Act act) {
  for (Integer slot = 1; slot < zaehler; ++slot) {
    if (names[slot] == text) act(slot);
  }
}

// "Es fehlt 1 Spruchpunkt.", "Es fehlen 7.500 Y."
std::string missing(const std::string& amount, std::string_view unit, std::string_view endingOfMany = "") {
  const bool one = amount == "1";
  return (one ? "Es fehlt " : "Es fehlen ") + amount + std::string(unit) + std::string(one ? "" : endingOfMany) + ".";
}

// Hundredths are enough for a player, except where nothing would be left of the amount.
Single readable(Single amount) {
  const Single hundredths = roundToHundredths(amount);
  return hundredths > 0 ? hundredths : amount;
}

}  // namespace

FormAusrüstung::FormAusrüstung(FormsRuntime& runtime, const Environment& environment, FormFeinschliff& feinschliff,
                               FormNamenGeben& namenGeben)
    : FormWith(runtime, "formAusrüstung",
               {.caption = "Ausrüstung - Schritt 5",
                .help = "schritt5",
                .stretch = {.rows = {0, 0, 0, 0, 0, 0, 0, 0, 1, 0}, .columns = {3, 0, 1, 1, 1}}}),
      environment_(environment),
      formFeinschliff(feinschliff),
      formNamenGeben(namenGeben) {}

void FormAusrüstung::Form_Load() {
  kataloge = {};
  ladeLebensstil();
  ladeConnection();

  const std::string file = environment_.files.read("Prioritäten.txt");
  RecordReader("Prioritäten.txt", file).read(Rasse, Magie, Ressourcen);
  ZeigeRessourcen();

  richteMagieEin();
  ladeMagicStuff();

  Essenz = startEssenz;
  BioIndex = startBioIndex;
  ZeigeEssenz();
  ZeigeBioIndex();

  ladeCyberware();
  ladeBioware();

  lstAusrüstung.addItem("Freie Connection Stufe 1");
  lstAusrüstung.addItem("Freie Connection Stufe 1");

  ladeCyberdecks();
}

template <class Row, class Names, class Store>
void FormAusrüstung::lade(std::string_view file, ComboBox& box, Integer& zaehler, Names& names, Store store) {
  forEachRow<Row>(environment_.files, file, Names::mostEntries, [&](const Row& row) {
    names[zaehler] = row.name;
    store(zaehler, row);
    box.addItem(row.name);
    ++zaehler;
  });
}

void FormAusrüstung::ladeLebensstil() {
  lade<PriceRow>("Lebensstil.txt", cmbLebensstil, kataloge.zaehlerLebensstil, kataloge.LebensstilName,
                 [this](Integer slot, const PriceRow& row) { kataloge.LebensstilKosten[slot] = row.kosten; });
}

void FormAusrüstung::ladeConnection() {
  lade<PriceRow>("Connection.txt", cmbConnection, kataloge.zaehlerConnection, kataloge.ConnectionName,
                 [this](Integer slot, const PriceRow& row) { kataloge.ConnectionKosten[slot] = row.kosten; });
}

void FormAusrüstung::ladeMagicStuff() {
  lade<MagicRow>("MagicStuff.txt", cmbMagic, kataloge.zaehlerMagic, kataloge.MagicName,
                 [this](Integer slot, const MagicRow& row) {
                   kataloge.MagicSpruchpunkte[slot] = row.spruchpunkte;
                   kataloge.MagicKosten[slot] = row.kosten;
                   kataloge.MagicKraftpunkte[slot] = row.kraftpunkte;
                 });
}

void FormAusrüstung::ladeCyberware() {
  lade<WareRow>("Cyberware.txt", cmbCyberware, kataloge.zaehlerCyberware, kataloge.CyberName,
                [this](Integer slot, const WareRow& row) {
                  kataloge.CyberEssenz[slot] = row.essenz;
                  kataloge.CyberKosten[slot] = row.kosten;
                });
}

void FormAusrüstung::ladeBioware() {
  lade<WareRow>("Bioware.txt", cmbBioware, kataloge.zaehlerBioware, kataloge.BioName,
                [this](Integer slot, const WareRow& row) {
                  kataloge.BioIndexKosten[slot] = row.essenz;
                  kataloge.BioKosten[slot] = row.kosten;
                });
}

void FormAusrüstung::ladeCyberdecks() {
  lade<DeckRow>("Cyberdecks.txt", cmbCyberdecks, kataloge.zaehlerCyberdecks, kataloge.DeckName,
                [this](Integer slot, const DeckRow& row) { kataloge.DeckKosten[slot] = row.kosten; });
}

void FormAusrüstung::richteMagieEin() {
  if (Magie == "C" || Magie == "D" || Magie == "E") {
    frmMagicStuff.setEnabled(false);
    cmdAddSpruchPunkt.setEnabled(false);
  }
  if (Magie == "Vollzauberer") Spruchpunkte = 25;
  if (Magie == "Adept") {
    Kraftpunkte = startKraftpunkte;
    cmdAddSpruchPunkt.setEnabled(false);
  }
  if (Magie == "Aspekt") Spruchpunkte = mostSpruchpunkte;
  ZeigeSpruchpunkte();
  ZeigeKraftpunkte();
}

void FormAusrüstung::cmbLebensstil_Click() { cmdAddLebensstil.setEnabled(true); }
void FormAusrüstung::cmbConnection_Click() { cmdAddConnection.setEnabled(true); }
void FormAusrüstung::cmbCyberdecks_Click() { cmdAddDeckerWare.setEnabled(true); }
void FormAusrüstung::cmbMagic_Click() { cmdAddMagicStuff.setEnabled(true); }

void FormAusrüstung::cmbCyberware_Click() {
  cmdAddCyberware.setEnabled(true);
  forEachSlotNamed(kataloge.CyberName, kataloge.zaehlerCyberware, cmbCyberware.text(), [this](Integer slot) {
    lblCyberEssenz.setCaption(textOf(kataloge.CyberEssenz[slot], environment_.numbers));
    lblCyberkosten.setCaption(textOf(kataloge.CyberKosten[slot], environment_.numbers));
  });
}

void FormAusrüstung::cmbBioware_Click() {
  cmdAddBioware.setEnabled(true);
  forEachSlotNamed(kataloge.BioName, kataloge.zaehlerBioware, cmbBioware.text(), [this](Integer slot) {
    lblBiowareIndex.setCaption(textOf(kataloge.BioIndexKosten[slot], environment_.numbers));
    lblBiowareKosten.setCaption(textOf(kataloge.BioKosten[slot], environment_.numbers));
  });
}

void FormAusrüstung::txtEquipmentKosten_Change() { cmdAddEquipment.setEnabled(!txtEquipmentKosten.text().empty()); }

void FormAusrüstung::cmdAddLebensstil_Click() {
  buyForMoney(cmbLebensstil, kataloge.LebensstilName, kataloge.LebensstilKosten, kataloge.zaehlerLebensstil);
}

void FormAusrüstung::cmdAddConnection_Click() {
  buyForMoney(cmbConnection, kataloge.ConnectionName, kataloge.ConnectionKosten, kataloge.zaehlerConnection);
}

void FormAusrüstung::cmdAddDeckerWare_Click() {
  buyForMoney(cmbCyberdecks, kataloge.DeckName, kataloge.DeckKosten, kataloge.zaehlerCyberdecks);
}

template <class Names, class Costs>
void FormAusrüstung::buyForMoney(const ComboBox& box, const Names& names, const Costs& costs, Integer zaehler) {
  forEachSlotNamed(names, zaehler, box.text(), [&](Integer slot) {
    if (!whyNotBuy(costs[slot]).empty()) return;
    Ressourcen = Ressourcen - costs[slot];
    lstAusrüstung.addItem(box.text());
  });
  ZeigeRessourcen();
}

void FormAusrüstung::cmdAddEquipment_Click() {
  if (whyNotAddEquipment().empty()) {
    lstAusrüstung.addItem(txtEquipment.text());
    Ressourcen = Ressourcen - *currencyOf(txtEquipmentKosten.text(), environment_.numbers);
  }
  ZeigeRessourcen();
}

// Essenz that goes takes as much of the Bio-Index with it, untested.
void FormAusrüstung::cmdAddCyberware_Click() {
  forEachSlotNamed(kataloge.CyberName, kataloge.zaehlerCyberware, cmbCyberware.text(), [this](Integer slot) {
    if (!whyNotCyberware(slot).empty()) return;
    Ressourcen = Ressourcen - kataloge.CyberKosten[slot];
    Essenz = Essenz - kataloge.CyberEssenz[slot];
    BioIndex = BioIndex - kataloge.CyberEssenz[slot];
    lstAusrüstung.addItem(cmbCyberware.text());
  });
  ZeigeRessourcen();
  ZeigeEssenz();
}

void FormAusrüstung::cmdAddBioware_Click() {
  forEachSlotNamed(kataloge.BioName, kataloge.zaehlerBioware, cmbBioware.text(), [this](Integer slot) {
    if (!whyNotBioware(slot).empty()) return;
    Ressourcen = Ressourcen - kataloge.BioKosten[slot];
    BioIndex = BioIndex - kataloge.BioIndexKosten[slot];
    lstAusrüstung.addItem(cmbBioware.text());
  });
  ZeigeRessourcen();
  ZeigeEssenz();
}

void FormAusrüstung::cmdAddMagicStuff_Click() {
  forEachSlotNamed(kataloge.MagicName, kataloge.zaehlerMagic, cmbMagic.text(), [this](Integer slot) {
    if (!whyNotMagic(slot).empty()) return;
    Ressourcen = Ressourcen - kataloge.MagicKosten[slot];
    Spruchpunkte -= kataloge.MagicSpruchpunkte[slot];
    Kraftpunkte = Kraftpunkte - kataloge.MagicKraftpunkte[slot];
    lstAusrüstung.addItem(cmbMagic.text());
  });
  ZeigeRessourcen();
  ZeigeSpruchpunkte();
  ZeigeKraftpunkte();
}

void FormAusrüstung::cmdAddSpruchPunkt_Click() {
  if (whyNotAddSpruchPunkt().empty()) {
    Spruchpunkte += 1;
    Ressourcen = Ressourcen - priceOfSpellPoint;
  }
  ZeigeSpruchpunkte();
  ZeigeRessourcen();
}

void FormAusrüstung::cmdGoAhead_Click() {
  Currency Kapital = Ressourcen / 10;
  Ressourcen = 0;
  Kapital = Kapital + Currency(wirfWurfsumme() * 100);
  lstAusrüstung.addItem("Startkapital: " + textOf(Kapital, environment_.numbers) + " Nuyen");

  Files& files = environment_.files;
  RecordWriter purchases(files, "Ausrüstung.txt");
  for (const std::string& line : lstAusrüstung.lines()) purchases.write(line);
  purchases.close();

  RecordWriter essenz(files, "Essenz.txt");
  essenz.write(Essenz, BioIndex);
  essenz.close();

  formFeinschliff.setVisible(false);
  formNamenGeben.setVisible(true);
  setVisible(false);
  unload();
}

Integer FormAusrüstung::wirfWurfsumme() {
  if (!geworfen) {
    Integer Wurfsumme = 0;
    for (int i = 0; i < 3; ++i) Wurfsumme += environment_.throwDie();
    geworfen = Wurfsumme;
  }
  return *geworfen;
}

// A name that stands twice buys each of its rows that can be paid.
template <class Names, class WhyNot>
std::string FormAusrüstung::whyNone(const CommandButton& button, const ComboBox& box, const Names& names,
                                    Integer zaehler, WhyNot whyNot) const {
  if (!button.isEnabled()) return "Wählen Sie erst einen Eintrag der Liste.";
  std::vector<std::string> reasons;
  forEachSlotNamed(names, zaehler, box.text(), [&](Integer slot) { reasons.push_back(whyNot(slot)); });
  if (reasons.empty()) return quoted(box.text()) + " steht nicht in der Liste.";
  return std::find(reasons.begin(), reasons.end(), "") == reasons.end() ? reasons.front() : "";
}

std::string FormAusrüstung::whyNotAddLebensstil() const {
  return whyNone(cmdAddLebensstil, cmbLebensstil, kataloge.LebensstilName, kataloge.zaehlerLebensstil,
                 [this](Integer slot) { return whyNotBuy(kataloge.LebensstilKosten[slot]); });
}

std::string FormAusrüstung::whyNotAddConnection() const {
  return whyNone(cmdAddConnection, cmbConnection, kataloge.ConnectionName, kataloge.zaehlerConnection,
                 [this](Integer slot) { return whyNotBuy(kataloge.ConnectionKosten[slot]); });
}

std::string FormAusrüstung::whyNotAddDeckerWare() const {
  return whyNone(cmdAddDeckerWare, cmbCyberdecks, kataloge.DeckName, kataloge.zaehlerCyberdecks,
                 [this](Integer slot) { return whyNotBuy(kataloge.DeckKosten[slot]); });
}

std::string FormAusrüstung::whyNotAddCyberware() const {
  return whyNone(cmdAddCyberware, cmbCyberware, kataloge.CyberName, kataloge.zaehlerCyberware,
                 [this](Integer slot) { return whyNotCyberware(slot); });
}

std::string FormAusrüstung::whyNotAddBioware() const {
  return whyNone(cmdAddBioware, cmbBioware, kataloge.BioName, kataloge.zaehlerBioware,
                 [this](Integer slot) { return whyNotBioware(slot); });
}

std::string FormAusrüstung::whyNotAddMagicStuff() const {
  if (!frmMagicStuff.isEnabled()) return "Dieser Charakter wirkt keine Magie.";
  return whyNone(cmdAddMagicStuff, cmbMagic, kataloge.MagicName, kataloge.zaehlerMagic,
                 [this](Integer slot) { return whyNotMagic(slot); });
}

std::string FormAusrüstung::whyNotAddSpruchPunkt() const {
  if (!cmdAddSpruchPunkt.isEnabled()) return "Dieser Charakter wirkt keine Sprüche.";
  return whyNotPay(priceOfSpellPoint);
}

std::string FormAusrüstung::whyNotAddEquipment() const {
  if (txtEquipment.text().empty()) return "Es fehlt noch die Beschreibung.";
  if (txtEquipmentKosten.text().empty()) return "Es fehlen noch die Kosten.";
  const std::optional<Currency> kosten = currencyOf(txtEquipmentKosten.text(), environment_.numbers);
  return kosten ? whyNotBuy(*kosten) : quoted(txtEquipmentKosten.text()) + " ist kein Betrag.";
}

std::string FormAusrüstung::whyNotCyberware(Integer slot) const {
  if (std::string reason = whyNotBuy(kataloge.CyberKosten[slot]); !reason.empty()) return reason;
  return whyNotImplant("Essenz", Essenz - kataloge.CyberEssenz[slot]);
}

std::string FormAusrüstung::whyNotBioware(Integer slot) const {
  if (std::string reason = whyNotBuy(kataloge.BioKosten[slot]); !reason.empty()) return reason;
  return whyNotImplant("Bio-Index", BioIndex - kataloge.BioIndexKosten[slot]);
}

std::string FormAusrüstung::whyNotImplant(std::string_view what, Single left) const {
  if (left > 0) return {};
  std::string reason = std::string("Es muss ").append(what).append(" übrig bleiben");
  if (left < 0) reason += ": " + missing(textOf(readable(-left), environment_.numbers), "");
  else reason += ".";
  return reason;
}

std::string FormAusrüstung::whyNotMagic(Integer slot) const {
  if (std::string reason = whyNotBuy(kataloge.MagicKosten[slot]); !reason.empty()) return reason;
  const Integer spells = Spruchpunkte - kataloge.MagicSpruchpunkte[slot];
  if (spells < 0) return missing(std::to_string(-spells.value()), " Spruchpunkt", "e");
  const Single powers = Kraftpunkte - kataloge.MagicKraftpunkte[slot];
  if (powers < 0) return missing(textOf(readable(-powers), environment_.numbers), " Kraftpunkt", "e");
  return {};
}

std::string FormAusrüstung::whyNotBuy(Currency kosten) const {
  if (std::string reason = whyNotPay(kosten); !reason.empty()) return reason;
  return hasRoom() ? "" : "Die Liste der Ausrüstung ist voll.";
}

std::string FormAusrüstung::whyNotPay(Currency kosten) const {
  const Currency left = Ressourcen - kosten;
  if (left >= 0) return {};
  return missing(groupedTextOf(left, environment_.numbers).substr(1), " Y");  // without its sign
}

bool FormAusrüstung::hasRoom() const { return lstAusrüstung.listCount() < mostPurchases; }

void FormAusrüstung::ZeigeRessourcen() { lblMoney.setCaption(textOf(Ressourcen, environment_.numbers)); }

void FormAusrüstung::ZeigeSpruchpunkte() { lblSpruchPunkte.setCaption(textOf(Spruchpunkte)); }

void FormAusrüstung::ZeigeKraftpunkte() { lblKraftpunkte.setCaption(textOf(Kraftpunkte, environment_.numbers)); }

void FormAusrüstung::ZeigeEssenz() {
  lblEssenz.setCaption(textOf(Essenz, environment_.numbers));
  ZeigeBioIndex();
}

void FormAusrüstung::ZeigeBioIndex() { lblBioIndex.setCaption(textOf(BioIndex, environment_.numbers)); }

}  // namespace bogenwerker
