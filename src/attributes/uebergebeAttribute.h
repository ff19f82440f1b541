// What step 2 hands over to step 3.
#pragma once

#include "values/numbers.h"

namespace bogenwerker {

class FormAktionFertigkeit;

// Fills the eight attribute labels of step 3, Reaktion worked out on the way.
void uebergebeAttribute(const Variant& NatKonst, const Variant& NatSchnell, const Variant& NatStark,
                        const Variant& NatCharisma, const Variant& NatIntell, const Variant& NatWill,
                        const Variant& NatMagie, FormAktionFertigkeit& formAktionFertigkeit);

}  // namespace bogenwerker
