#include "equipment/FormAusruestung.h"

#include "catalogues/catalogues.h"
#include "finish/FormFeinschliff.h"
#include "finish/FormNamenGeben.h"
#include "wizard/records.h"

namespace bogenwerker {
namespace {

constexpr Currency priceOfSpellPoint = 25000;
constexpr Single startEssenz = 6.0F;
constexpr Single startBioIndex = 9.0F;
// Step 6 has room for 1000 lines, and the last one is the start capital.
constexpr int mostPurchases = 999;

// Calls act with every slot whose name equals the text, without stopping at the first.
template <class Names, class Act>
void forEachSlotNamed(const Names& names, Integer zaehler, const std::string& text, Act act) {
  for (Integer slot = 1; slot < zaehler; ++slot) {
    if (names[slot] == text) act(slot);
  }
}

}  // namespace

FormAusrüstung::FormAusrüstung(FormsRuntime& runtime, FormFeinschliff& feinschliff, FormNamenGeben& namenGeben)
    : FormWith(runtime, "formAusrüstung",
               {.caption = "Ausrüstung - Schritt 5",
                .stretch = {.rows = {0, 0, 0, 0, 0, 0, 0, 0, 1, 0}, .columns = {3, 0, 1, 1, 1}}}),
      formFeinschliff(feinschliff),
      formNamenGeben(namenGeben) {}

void FormAusrüstung::Form_Load() {
  kataloge = {};
  ladeLebensstil();
  ladeConnection();

  const std::string file = environment().files.read("Prioritäten.txt");
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
  forEachRow<Row>(environment().files, file, Names::mostEntries, [&](const Row& row) {
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
    Kraftpunkte = 6.0F;
    cmdAddSpruchPunkt.setEnabled(false);
  }
  if (Magie == "Aspekt") Spruchpunkte = 35;
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
    lblCyberEssenz.setCaption(textOf(kataloge.CyberEssenz[slot], environment().numbers));
    lblCyberkosten.setCaption(textOf(kataloge.CyberKosten[slot], environment().numbers));
  });
}

void FormAusrüstung::cmbBioware_Click() {
  cmdAddBioware.setEnabled(true);
  forEachSlotNamed(kataloge.BioName, kataloge.zaehlerBioware, cmbBioware.text(), [this](Integer slot) {
    lblBiowareIndex.setCaption(textOf(kataloge.BioIndexKosten[slot], environment().numbers));
    lblBiowareKosten.setCaption(textOf(kataloge.BioKosten[slot], environment().numbers));
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
    if (!canPay(costs[slot]) || !hasRoom()) return;
    Ressourcen = Ressourcen - costs[slot];
    lstAusrüstung.addItem(box.text());
  });
  ZeigeRessourcen();
}

void FormAusrüstung::cmdAddEquipment_Click() {
  if (!txtEquipment.text().empty() && !txtEquipmentKosten.text().empty()) {
    const std::optional<Currency> kosten = currencyOf(txtEquipmentKosten.text(), environment().numbers);
    if (kosten && canPay(*kosten) && hasRoom()) {
      lstAusrüstung.addItem(txtEquipment.text());
      Ressourcen = Ressourcen - *kosten;
    }
  }
  ZeigeRessourcen();
}

// Essenz that goes takes as much of the Bio-Index with it, untested.
void FormAusrüstung::cmdAddCyberware_Click() {
  forEachSlotNamed(kataloge.CyberName, kataloge.zaehlerCyberware, cmbCyberware.text(), [this](Integer slot) {
    const Currency kosten = kataloge.CyberKosten[slot];
    const Single essenz = kataloge.CyberEssenz[slot];
    if (!canPay(kosten) || !hasRoom()) return;
    if (!(Single(Essenz - essenz) > 0)) return;
    Ressourcen = Ressourcen - kosten;
    Essenz = Essenz - essenz;
    BioIndex = BioIndex - essenz;
    lstAusrüstung.addItem(cmbCyberware.text());
  });
  ZeigeRessourcen();
  ZeigeEssenz();
}

void FormAusrüstung::cmdAddBioware_Click() {
  forEachSlotNamed(kataloge.BioName, kataloge.zaehlerBioware, cmbBioware.text(), [this](Integer slot) {
    const Currency kosten = kataloge.BioKosten[slot];
    const Single index = kataloge.BioIndexKosten[slot];
    if (!canPay(kosten) || !hasRoom()) return;
    if (!(Single(BioIndex - index) > 0)) return;
    Ressourcen = Ressourcen - kosten;
    BioIndex = BioIndex - index;
    lstAusrüstung.addItem(cmbBioware.text());
  });
  ZeigeRessourcen();
  ZeigeEssenz();
}

void FormAusrüstung::cmdAddMagicStuff_Click() {
  forEachSlotNamed(kataloge.MagicName, kataloge.zaehlerMagic, cmbMagic.text(), [this](Integer slot) {
    const Currency kosten = kataloge.MagicKosten[slot];
    const Integer spruchpunkte = kataloge.MagicSpruchpunkte[slot];
    const Single kraftpunkte = kataloge.MagicKraftpunkte[slot];
    if (!canPay(kosten) || !hasRoom()) return;
    if (Spruchpunkte - spruchpunkte < 0) return;
    if (Single(Kraftpunkte - kraftpunkte) < 0) return;
    Ressourcen = Ressourcen - kosten;
    Spruchpunkte -= spruchpunkte;
    Kraftpunkte = Kraftpunkte - kraftpunkte;
    lstAusrüstung.addItem(cmbMagic.text());
  });
  ZeigeRessourcen();
  ZeigeSpruchpunkte();
  ZeigeKraftpunkte();
}

void FormAusrüstung::cmdAddSpruchPunkt_Click() {
  if (canPay(priceOfSpellPoint)) {
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
  lstAusrüstung.addItem("Startkapital: " + textOf(Kapital, environment().numbers) + " Nuyen");

  Files& files = environment().files;
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
    for (int i = 0; i < 3; ++i) Wurfsumme += environment().throwDie();
    geworfen = Wurfsumme;
  }
  return *geworfen;
}

bool FormAusrüstung::hasRoom() const { return lstAusrüstung.listCount() < mostPurchases; }

void FormAusrüstung::ZeigeRessourcen() { lblMoney.setCaption(textOf(Ressourcen, environment().numbers)); }

void FormAusrüstung::ZeigeSpruchpunkte() { lblSpruchPunkte.setCaption(textOf(Spruchpunkte)); }

void FormAusrüstung::ZeigeKraftpunkte() { lblKraftpunkte.setCaption(textOf(Kraftpunkte, environment().numbers)); }

void FormAusrüstung::ZeigeEssenz() {
  lblEssenz.setCaption(textOf(Essenz, environment().numbers));
  ZeigeBioIndex();
}

void FormAusrüstung::ZeigeBioIndex() { lblBioIndex.setCaption(textOf(BioIndex, environment().numbers)); }

}  // namespace bogenwerker
