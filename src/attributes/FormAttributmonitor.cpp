#include "attributes/FormAttributmonitor.h"

#include "attributes/uebergebeAttribute.h"
#include "skills/FormAktionFertigkeit.h"

namespace bogenwerker {

FormAttributmonitor::FormAttributmonitor(FormsRuntime& runtime, FormAktionFertigkeit& aktionFertigkeit)
    : FormWith(runtime, "formAttributmonitor", {.caption = "Attributmonitor - Schritt 2", .help = "schritt2"}),
      formAktionFertigkeit(aktionFertigkeit) {}

// clang-format off
void FormAttributmonitor::cmdKonstPlus_Click()     { KonstPunkte = KonstPunkte + 1;       aktualAttrib(); }
void FormAttributmonitor::cmdKonstMinus_Click()    { KonstPunkte = KonstPunkte - 1;       aktualAttrib(); }
void FormAttributmonitor::cmdSchnellPlus_Click()   { SchnellPunkte = SchnellPunkte + 1;   aktualAttrib(); }
void FormAttributmonitor::cmdSchnellMinus_Click()  { SchnellPunkte = SchnellPunkte - 1;   aktualAttrib(); }
void FormAttributmonitor::cmdStarkPlus_Click()     { StarkPunkte = StarkPunkte + 1;       aktualAttrib(); }
void FormAttributmonitor::cmdStarkMinus_Click()    { StarkPunkte = StarkPunkte - 1;       aktualAttrib(); }
void FormAttributmonitor::cmdCharismaPlus_Click()  { CharismaPunkte = CharismaPunkte + 1; aktualAttrib(); }
void FormAttributmonitor::cmdCharismaMinus_Click() { CharismaPunkte = CharismaPunkte - 1; aktualAttrib(); }
void FormAttributmonitor::cmdIntellPlus_Click()    { IntellPunkte = IntellPunkte + 1;     aktualAttrib(); }
void FormAttributmonitor::cmdIntellMinus_Click()   { IntellPunkte = IntellPunkte - 1;     aktualAttrib(); }
void FormAttributmonitor::cmdWillPlus_Click()      { WillPunkte = WillPunkte + 1;         aktualAttrib(); }
void FormAttributmonitor::cmdWillMinus_Click()     { WillPunkte = WillPunkte - 1;         aktualAttrib(); }
// clang-format on

void FormAttributmonitor::cmdWeiter2_Click() {
  setVisible(false);
  formAktionFertigkeit.setVisible(true);
  NatMagie = lblMagieWert.caption();
  if (NatMagie != 6) NatMagie = 0;
  uebergebeAttribute(NatKonst, NatSchnell, NatStark, NatCharisma, NatIntell, NatWill, NatMagie, formAktionFertigkeit);
  unload();
}

void FormAttributmonitor::aktualAttrib() {
  lblKonstWert.setCaption(KonstPunkte.text());
  lblSchnellWert.setCaption(SchnellPunkte.text());
  lblStarkWert.setCaption(StarkPunkte.text());
  lblCharismaWert.setCaption(CharismaPunkte.text());
  lblIntellWert.setCaption(IntellPunkte.text());
  lblWillWert.setCaption(WillPunkte.text());
  vergleicheWert();
  berechneSumme();
  checkREGEL();
}

// In spite of its name it compares nothing: it shows the points spent.
void FormAttributmonitor::vergleicheWert() {
  const Variant total = KonstPunkte + SchnellPunkte + StarkPunkte + CharismaPunkte + IntellPunkte + WillPunkte;
  lblVerbrAttributPunkte.setCaption(total.text());
}

void FormAttributmonitor::berechneSumme() {
  NatKonst = integerOf(lblRasseKonst.caption()) + KonstPunkte;
  NatSchnell = integerOf(lblRasseSchnell.caption()) + SchnellPunkte;
  NatStark = integerOf(lblRasseStark.caption()) + StarkPunkte;
  NatCharisma = integerOf(lblRasseCharisma.caption()) + CharismaPunkte;
  NatIntell = integerOf(lblRasseIntell.caption()) + IntellPunkte;
  NatWill = integerOf(lblRasseWill.caption()) + WillPunkte;
  lblNatKonst.setCaption(NatKonst.text());
  lblNatSchnell.setCaption(NatSchnell.text());
  lblNatStark.setCaption(NatStark.text());
  lblNatCharisma.setCaption(NatCharisma.text());
  lblNatIntell.setCaption(NatIntell.text());
  lblNatWill.setCaption(NatWill.text());
}

void FormAttributmonitor::checkREGEL() { cmdWeiter2.setEnabled(whyNotWeiter2().empty()); }

std::string FormAttributmonitor::whyNotWeiter2() const {
  const std::string& spent = lblVerbrAttributPunkte.caption();
  const std::string& total = lblTotalAttributPunkte.caption();
  if (spent != total) {
    const int left = integerOf(total).value() - integerOf(spent).value();
    if (left > 0) return "Noch " + std::to_string(left) + " von " + total + " Punkten frei.";
    return spent + " von " + total + " Punkten ausgegeben: " + std::to_string(-left) + " zu viel.";
  }

  struct Row {
    const Label& name;
    const Variant& Nat;
    const Variant& Punkte;
  };
  for (const Row& row : {Row{lblKonst, NatKonst, KonstPunkte}, Row{lblSchnell, NatSchnell, SchnellPunkte},
                         Row{lblStark, NatStark, StarkPunkte}, Row{lblCharisma, NatCharisma, CharismaPunkte},
                         Row{lblIntelligenz, NatIntell, IntellPunkte}, Row{lblWill, NatWill, WillPunkte}}) {
    if (!(row.Nat > 0)) return row.name.caption() + " muss mindestens 1 sein.";
    if (!(row.Punkte > 0)) return row.name.caption() + " braucht mindestens 1 Punkt.";
    if (!(row.Punkte < 7)) return row.name.caption() + " darf höchstens 6 Punkte haben.";
  }
  return {};
}

}  // namespace bogenwerker
