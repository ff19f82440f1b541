#include "finish/final_values.h"

namespace bogenwerker {

std::string withBracket(Integer value, Integer inBrackets) { return textOf(value) + " (" + textOf(inBrackets) + ")"; }

std::string reaktionText(const FinalValues& values) {
  return withBracket(values.Reaktion, values.ModReaktion) + " (" + textOf(values.SpecReaktion) + ")";
}

std::string initiativeText(const FinalValues& values) {
  return "+1W6 (+" + textOf(values.ModInitiative) + "W6) (+" + textOf(values.SpecInitiative) + "W6)";
}

std::string essenzText(Single Essenz, const NumberLocale& locale) { return textOf(roundToHundredths(Essenz), locale); }

}  // namespace bogenwerker
