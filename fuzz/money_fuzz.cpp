// The field for an amount of money, in the notations of several countries.
#include <array>

#include "fuzz.h"
#include "wizard/fault.h"
#include "wizard/numbers.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  using namespace bogenwerker;
  static const std::array<NumberLocale, 6> locales = {
      {{",", "."}, {".", ","}, {".", ""}, {",", ""}, {",", "\xC2\xA0"}, {".", "'"}}};
  const std::string typed(viewOf(data, size));
  for (const NumberLocale& locale : locales) {
    const auto value = currencyOf(typed, locale);
    promise(currencyOf("  " + typed + " ", locale) == value, "blanks around it do not count");
    if (!value) continue;
    const std::string shown = textOf(*value, locale);
    promise(currencyOf(shown, locale) == value, "what is shown reads back equal");
    promise(shown.find_first_not_of("-0123456789" + locale.decimalSeparator) == shown.npos, "plain decimal text");
    try {
      promise(*value + Currency(1) - Currency(1) == *value, "exact");
      (void)(*value / 10);
    } catch (const Fault&) {
    }
  }
  const auto field = parseCurrency(typed);
  const bool isBlank = typed.find_first_not_of(' ') == typed.npos;
  if (!isBlank && typed[0] != ' ') promise(field == currencyOf(typed, {".", ""}), "a field of a record is an amount");
  (void)parseInteger(typed);
  if (const auto single = parseSingle(typed)) {
    promise(textOf(*single, locales[0]).find_first_not_of("-0123456789,") == std::string::npos, "no exponent");
  }
  return 0;
}
