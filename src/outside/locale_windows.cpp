// The locales of Windows. An environment that names one is as POSIX has it, but for the locale of the user.
#include <windows.h>

#include <algorithm>
#include <array>

#include "outside/locale.h"

namespace bogenwerker {
namespace {

// Empty where the system does not know the locale.
std::string separator(const wchar_t* locale, LCTYPE which) {
  std::array<wchar_t, 8> wide{};
  std::array<char, 3 * 8> text{};
  if (GetLocaleInfoEx(locale, which, wide.data(), static_cast<int>(wide.size())) == 0) return {};
  WideCharToMultiByte(CP_UTF8, 0, wide.data(), -1, text.data(), static_cast<int>(text.size()), nullptr, nullptr);
  return text.data();
}

}  // namespace

std::optional<NumberLocale> installedNumberLocale(const std::string& name) {
  const std::string place = name.substr(0, name.find_first_of(".@"));
  if (place == "C" || place == "POSIX") return NumberLocale{};
  std::wstring tag(place.begin(), place.end());  // "de_DE.UTF-8" is "de-DE" here
  std::replace(tag.begin(), tag.end(), L'_', L'-');
  const wchar_t* locale = tag.empty() ? LOCALE_NAME_USER_DEFAULT : tag.c_str();
  NumberLocale separators{separator(locale, LOCALE_SDECIMAL), separator(locale, LOCALE_STHOUSAND)};
  if (separators.decimalSeparator.empty()) return {};
  return separators;
}

}  // namespace bogenwerker
