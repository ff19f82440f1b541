// The locales of POSIX. The one that the process runs under is neither asked nor set: toolkits set it as they like.
#include <iconv.h>
#include <langinfo.h>
#include <locale.h>  // NOLINT(modernize-deprecated-headers): newlocale is no part of C++

#include <array>
#include <string_view>

#include "outside/locale.h"

namespace bogenwerker {
namespace {

// Empty for what cannot be told in UTF-8.
std::string utf8From(const char* encoding, std::string_view text) {
  iconv_t conversion = iconv_open("UTF-8", encoding);
  if (conversion == reinterpret_cast<iconv_t>(-1)) return {};  // NOLINT: as POSIX has it
  std::string from(text);
  std::array<char, 32> to{};
  char* in = from.data();
  char* out = to.data();
  std::size_t left = from.size();
  std::size_t room = to.size();
  const bool failed = iconv(conversion, &in, &left, &out, &room) == static_cast<std::size_t>(-1);
  iconv_close(conversion);
  return failed ? std::string() : std::string(to.data(), out);
}

}  // namespace

std::optional<NumberLocale> installedNumberLocale(const std::string& name) {
  const locale_t locale = newlocale(LC_NUMERIC_MASK | LC_CTYPE_MASK, name.c_str(), nullptr);
  if (locale == nullptr) return {};
  const char* encoding = nl_langinfo_l(CODESET, locale);
  NumberLocale separators{utf8From(encoding, nl_langinfo_l(RADIXCHAR, locale)),
                          utf8From(encoding, nl_langinfo_l(THOUSEP, locale))};
  freelocale(locale);
  if (separators.decimalSeparator.empty()) return NumberLocale{};
  return separators;
}

}  // namespace bogenwerker
