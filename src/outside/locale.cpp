#include "outside/locale.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string_view>

#include "values/text.h"

namespace bogenwerker {
namespace {

struct German {
  std::string_view where;
  std::string_view decimalSeparator;
  std::string_view groupSeparator;
};
constexpr std::array<German, 3> germans = {{{"de_CH", ".", "’"}, {"de_LI", ".", "’"}, {"de", ",", "."}}};

std::string nameInEnvironment() {
  for (const char* variable : {"LC_ALL", "LC_NUMERIC", "LANG"}) {
    const char* value = std::getenv(variable);  // NOLINT(concurrency-mt-unsafe): one thread, ahead of any other work
    if (value != nullptr && *value != '\0') return value;
  }
  return {};
}

// Of "de_AT.UTF-8@euro", language and country say enough.
NumberLocale byLanguage(std::string_view name) {
  const std::string_view place = name.substr(0, name.find_first_of(".@"));
  const std::string_view language = place.substr(0, place.find('_'));
  const auto* row = std::find_if(germans.begin(), germans.end(), [place, language](const German& german) {
    return german.where == place || german.where == language;
  });
  if (row == germans.end()) return {};
  return {std::string(row->decimalSeparator), std::string(row->groupSeparator)};
}

// What is shown has to be what a player can type.
NumberLocale throughTheGate(const NumberLocale& locale) {
  if (gateTyped(locale.decimalSeparator) != locale.decimalSeparator) return {};
  const std::string group = gateTyped(locale.groupSeparator);
  return {locale.decimalSeparator, group == "?" ? std::string() : group};
}

}  // namespace

NumberLocale systemNumberLocale() {
  const std::string name = nameInEnvironment();
  const std::optional<NumberLocale> installed = installedNumberLocale(name);
  return throughTheGate(installed ? *installed : byLanguage(name));
}

}  // namespace bogenwerker
