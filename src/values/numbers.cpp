#include "values/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <span>

#include "values/fault.h"

namespace bogenwerker {
namespace {

constexpr std::string_view beyondCounting =
    "Hier käme eine Zahl heraus, mit der sich nicht mehr rechnen lässt. Der letzte Druck ist zurückgenommen.";

const NumberLocale recordLocale;
const NumberLocale forFaults{",", "."};  // their sentences are German

// Systems and players write each blank, and each apostrophe, for any other.
constexpr std::array<std::string_view, 3> blanks = {" ", "\u00A0", "\u202F"};
constexpr std::array<std::string_view, 2> apostrophes = {"'", "’"};

bool isDigit(char c) { return c >= '0' && c <= '9'; }

std::string_view withoutBlanksBehind(std::string_view text) {
  while (text.ends_with(' ')) text.remove_suffix(1);
  return text;
}

// The one that the text begins with, or nothing.
std::string_view startOf(std::string_view text, std::span<const std::string_view> ones) {
  const auto found = std::find_if(ones.begin(), ones.end(), [text](auto one) { return text.starts_with(one); });
  return found == ones.end() ? std::string_view() : *found;
}

std::string_view withoutBlanksAround(std::string_view text) {
  const auto strip = [&text](std::string_view blank) {
    const std::size_t before = text.size();
    while (text.starts_with(blank)) text.remove_prefix(blank.size());
    while (text.ends_with(blank)) text.remove_suffix(blank.size());
    return text.size() < before;
  };
  while (std::any_of(blanks.begin(), blanks.end(), strip)) continue;
  return text;
}

// The group separator that the text begins with, or nothing.
std::string_view groupSeparatorAt(std::string_view text, std::string_view own) {
  if (own.empty()) return {};
  if (startOf(own, blanks) == own) return startOf(text, blanks);
  if (startOf(own, apostrophes) == own) return startOf(text, apostrophes);
  return startOf(text, {&own, 1});
}

// Sets the decimal separator into a row of digits: 12345 with 2 decimals is 123.45. Trailing zeros go.
std::string plainDecimal(bool negative, std::string digits, int decimals, std::string_view separator) {
  if (decimals < 0) {
    digits.append(static_cast<std::size_t>(-decimals), '0');
    decimals = 0;
  }
  const auto behind = static_cast<std::size_t>(decimals);
  if (digits.size() <= behind) digits.insert(0, behind + 1 - digits.size(), '0');
  std::string fraction = digits.substr(digits.size() - behind);
  digits.resize(digits.size() - behind);
  fraction.resize(fraction.find_last_not_of('0') + 1);
  if (!fraction.empty()) digits.append(separator).append(fraction);
  if (negative && digits != "0") digits.insert(0, 1, '-');
  return digits;
}

// Takes the digits of the whole part off the front of text, group separators included where they stand right.
// False where one stands wrong.
bool takeWholePart(std::string_view& text, std::string_view group, std::string& digits) {
  std::size_t sinceGroup = 0;
  bool grouped = false;
  while (!text.empty()) {
    if (isDigit(text.front())) {
      digits += text.front();
      ++sinceGroup;
      text.remove_prefix(1);
    } else if (const std::string_view separator = groupSeparatorAt(text, group); !separator.empty()) {
      if (grouped ? sinceGroup != 3 : sinceGroup < 1 || sinceGroup > 3) return false;
      grouped = true;
      sinceGroup = 0;
      text.remove_prefix(separator.size());
    } else {
      break;
    }
  }
  return !grouped || sinceGroup == 3;
}

// The count of ten-thousandths for the digits on both sides of a decimal separator, ties to the even digit.
std::optional<Currency> countTenThousandths(bool negative, const std::string& whole, std::string_view fraction) {
  std::string digits = whole;
  for (std::size_t i = 0; i < Currency::decimals; ++i) digits += i < fraction.size() ? fraction[i] : '0';
  std::uint64_t count = 0;
  if (std::from_chars(digits.data(), digits.data() + digits.size(), count).ec != std::errc{}) return {};

  const std::string_view rest = fraction.size() > Currency::decimals ? fraction.substr(Currency::decimals) : "";
  const bool aboveHalf =
      !rest.empty() && (rest[0] > '5' || (rest[0] == '5' && rest.find_first_not_of('0', 1) != rest.npos));
  const bool half = !rest.empty() && rest[0] == '5' && !aboveHalf;
  if (aboveHalf || (half && count % 2 == 1)) ++count;

  constexpr auto most = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
  if (count > most + (negative ? 1 : 0) || (count == 0 && digits.find_first_not_of('0') != digits.npos)) return {};
  return Currency::ofTenThousandths(static_cast<std::int64_t>(negative ? 0 - count : count));
}

std::optional<Currency> parseDecimal(std::string_view text, const NumberLocale& locale) {
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);
  std::string whole;
  if (!takeWholePart(text, locale.groupSeparator, whole)) return {};
  std::string_view fraction;
  if (text.starts_with(locale.decimalSeparator)) fraction = text.substr(locale.decimalSeparator.size());
  else if (!text.empty()) return {};
  if (whole.empty() && fraction.empty()) return {};
  if (fraction.find_first_not_of("0123456789") != fraction.npos) return {};
  return countTenThousandths(negative, whole, fraction);
}

}  // namespace

// Too many presses of a button lead here as well as a row of a catalogue: the texts blame neither.
void Integer::throwOverflow(int value) {
  throw Fault("Hier käme " + std::to_string(value) +
              " heraus. Der Bogenwerker rechnet an dieser Stelle aber nur mit ganzen Zahlen von -32768 bis 32767. "
              "Der letzte Druck ist zurückgenommen.");
}

Currency operator+(Currency a, Currency b) {
  Currency sum;
  if (!__builtin_add_overflow(a.count_, b.count_, &sum.count_)) return sum;
  throw Fault("Zu " + textOf(a, forFaults) + " Nuyen lassen sich " + textOf(b, forFaults) +
              " Nuyen nicht hinzuzählen: Der Bogenwerker rechnet mit höchstens 922337203685477,5807 Nuyen. Der letzte "
              "Druck ist zurückgenommen.");
}

Currency operator-(Currency a, Currency b) {
  Currency difference;
  if (!__builtin_sub_overflow(a.count_, b.count_, &difference.count_)) return difference;
  throw Fault("Von " + textOf(a, forFaults) + " Nuyen lassen sich " + textOf(b, forFaults) +
              " Nuyen nicht abziehen: Der Bogenwerker rechnet mit höchstens 922337203685477,5807 Nuyen. Der letzte "
              "Druck ist zurückgenommen.");
}

Currency operator/(Currency a, int divisor) {
  return Currency::ofTenThousandths(std::llrint(static_cast<double>(a.count_) / divisor));
}

Integer Variant::number() const {
  if (const auto* number = std::get_if<Integer>(&value_)) return *number;
  if (const auto* text = std::get_if<std::string>(&value_)) return integerOf(*text);
  return 0;
}

std::string Variant::text() const {
  if (const auto* number = std::get_if<Integer>(&value_)) return textOf(*number);
  if (const auto* text = std::get_if<std::string>(&value_)) return *text;
  return {};
}

std::string textOf(Integer value) { return std::to_string(value.value()); }

std::string textOf(Currency value, const NumberLocale& locale) {
  const std::int64_t count = value.tenThousandths();
  const auto magnitude = count < 0 ? 0 - static_cast<std::uint64_t>(count) : static_cast<std::uint64_t>(count);
  return plainDecimal(count < 0, std::to_string(magnitude), Currency::decimals, locale.decimalSeparator);
}

std::string groupedTextOf(Currency value, const NumberLocale& locale) {
  std::string text = textOf(value, locale);
  const std::size_t first = text.starts_with('-') ? 1 : 0;
  for (std::size_t at = std::min(text.find(locale.decimalSeparator), text.size()); at > first + 3;) {
    at -= 3;
    text.insert(at, locale.groupSeparator);
  }
  return text;
}

std::string textOf(Single value, const NumberLocale& locale) {
  if (!std::isfinite(value)) throw Fault(std::string(beyondCounting));
  std::array<char, 32> buffer{};  // d.dddddde-dd
  const auto* end =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::abs(value), std::chars_format::scientific, 6)
          .ptr;
  const std::string_view written(buffer.data(), end);
  const std::size_t e = written.find('e');
  const std::size_t sign = e + 1;
  int exponent = 0;
  std::from_chars(written.data() + sign + 1, end, exponent);
  if (written[sign] == '-') exponent = -exponent;
  std::string digits(1, written[0]);
  digits += written.substr(2, e - 2);
  return plainDecimal(value < 0, std::move(digits), 6 - exponent, locale.decimalSeparator);
}

Integer integerOf(std::string_view caption) {
  const auto number = caption.empty() ? std::nullopt : parseInteger(caption);
  if (!number) throw Fault("„" + std::string(caption) + "“ ist keine ganze Zahl.");
  return *number;
}

std::optional<Currency> currencyOf(std::string_view typed, const NumberLocale& locale) {
  return parseDecimal(withoutBlanksAround(typed), locale);
}

std::optional<Integer> parseInteger(std::string_view field) {
  if (field.size() == 1 && isDigit(field[0])) return field[0] - '0';  // most are
  field = withoutBlanksBehind(field);
  if (field.empty()) return 0;
  if (field.front() == '+' && field.size() > 1 && isDigit(field[1])) field.remove_prefix(1);
  std::int16_t number = 0;
  const auto [end, error] = std::from_chars(field.data(), field.data() + field.size(), number);
  if (error != std::errc{}) return {};
  // 2.0 is a whole number too, 2.5 is none.
  std::string_view rest(end, static_cast<std::size_t>(field.data() + field.size() - end));
  if (rest.starts_with('.')) rest.remove_prefix(1);
  if (rest.find_first_not_of('0') != rest.npos) return {};
  if (!rest.empty() && *end != '.') return {};
  return number;
}

std::optional<Single> parseSingle(std::string_view field) {
  field = withoutBlanksBehind(field);
  if (field.empty()) return 0.0F;
  if (field.front() == '+' && field.size() > 1 && field[1] != '-') field.remove_prefix(1);
  Single number = 0;
  const auto [end, error] = std::from_chars(field.data(), field.data() + field.size(), number);
  if (error != std::errc{} || end != field.data() + field.size() || !std::isfinite(number)) return {};
  return number;
}

std::optional<Currency> parseCurrency(std::string_view field) {
  field = withoutBlanksBehind(field);
  if (field.empty()) return Currency{};
  // Nearly every price is a short whole number.
  if (field.size() <= 9) {
    int whole = 0;
    const auto [end, error] = std::from_chars(field.data(), field.data() + field.size(), whole);
    if (error == std::errc{} && end == field.data() + field.size()) return Currency(whole);
  }
  return parseDecimal(field, recordLocale);
}

Integer roundToInteger(double value) {
  const double rounded = std::nearbyint(value);
  if (!(std::abs(rounded) < 1e9)) throw Fault(std::string(beyondCounting));
  return static_cast<int>(rounded);
}

Single roundToHundredths(Single value) {
  return static_cast<Single>(std::nearbyint(static_cast<double>(value) * 100) / 100);
}

}  // namespace bogenwerker
