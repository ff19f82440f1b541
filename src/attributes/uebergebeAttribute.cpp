#include "attributes/uebergebeAttribute.h"

#include "skills/FormAktionFertigkeit.h"
#include "zusatzmodul/berechneReaktion.h"

namespace bogenwerker {

void uebergebeAttribute(const Variant& NatKonst, const Variant& NatSchnell, const Variant& NatStark,
                        const Variant& NatCharisma, const Variant& NatIntell, const Variant& NatWill,
                        const Variant& NatMagie, FormAktionFertigkeit& formAktionFertigkeit) {
  formAktionFertigkeit.lblREMkonst.setCaption(NatKonst.text());
  formAktionFertigkeit.lblREMschnell.setCaption(NatSchnell.text());
  formAktionFertigkeit.lblREMstark.setCaption(NatStark.text());
  formAktionFertigkeit.lblREMcharisma.setCaption(NatCharisma.text());
  formAktionFertigkeit.lblREMintell.setCaption(NatIntell.text());
  formAktionFertigkeit.lblREMwill.setCaption(NatWill.text());
  formAktionFertigkeit.lblREMmagie.setCaption(NatMagie.text());
  formAktionFertigkeit.lblREMreaktion.setCaption(textOf(berechneReaktion(NatSchnell.number(), NatIntell.number())));
}

}  // namespace bogenwerker
