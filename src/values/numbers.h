// The kinds of values the wizard counts with, and the way between them and text.
#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

namespace bogenwerker {

// A signed 16-bit whole number, -32768 to 32767. A result beyond that throws Fault; it never wraps.
class Integer {
 public:
  constexpr Integer() = default;
  constexpr Integer(int value) : value_(static_cast<std::int16_t>(value)) {  // NOLINT: meant to be implicit
    if (value != value_) throwOverflow(value);
  }
  [[nodiscard]] constexpr int value() const { return value_; }

  friend constexpr Integer operator+(Integer a, Integer b) { return a.value_ + b.value_; }
  friend constexpr Integer operator-(Integer a, Integer b) { return a.value_ - b.value_; }
  friend constexpr Integer operator*(Integer a, Integer b) { return a.value_ * b.value_; }
  constexpr Integer& operator+=(Integer b) { return *this = *this + b; }
  constexpr Integer& operator-=(Integer b) { return *this = *this - b; }
  constexpr Integer& operator++() { return *this += 1; }
  friend constexpr auto operator<=>(Integer, Integer) = default;

 private:
  [[noreturn]] static void throwOverflow(int value);
  std::int16_t value_ = 0;
};

// A 4-byte floating-point value. Catalogue costs leave their usual residue in it, and the rules see that residue.
using Single = float;

// Money: a 64-bit count of ten-thousandths, exact in sums and differences. A result beyond 64 bits throws Fault.
class Currency {
 public:
  constexpr Currency() = default;
  constexpr Currency(int whole) : count_(std::int64_t{whole} * perUnit) {}  // NOLINT: meant to be implicit
  constexpr explicit Currency(Integer whole) : Currency(whole.value()) {}
  static constexpr Currency ofTenThousandths(std::int64_t count) {
    Currency result;
    result.count_ = count;
    return result;
  }
  [[nodiscard]] constexpr std::int64_t tenThousandths() const { return count_; }

  friend Currency operator+(Currency a, Currency b);
  friend Currency operator-(Currency a, Currency b);
  // Divides in double precision; a fifth decimal is rounded away, ties to the even digit.
  friend Currency operator/(Currency a, int divisor);
  friend constexpr auto operator<=>(Currency, Currency) = default;

  static constexpr int decimals = 4;
  static constexpr std::int64_t perUnit = 10'000;

 private:
  std::int64_t count_ = 0;
};

// No value, a whole number or a text. Without a value it counts as 0 and reads as the empty string.
class Variant {
 public:
  Variant() = default;
  Variant(Integer number) : value_(number) {}             // NOLINT: meant to be implicit
  Variant(int number) : Variant(Integer(number)) {}       // NOLINT: meant to be implicit
  Variant(std::string text) : value_(std::move(text)) {}  // NOLINT: meant to be implicit
  // Throws Fault for a text that is no whole number.
  [[nodiscard]] Integer number() const;
  [[nodiscard]] std::string text() const;

  friend Variant operator+(const Variant& a, const Variant& b) { return a.number() + b.number(); }
  friend Variant operator-(const Variant& a, const Variant& b) { return a.number() - b.number(); }
  friend bool operator==(const Variant& a, const Variant& b) { return a.number() == b.number(); }
  friend auto operator<=>(const Variant& a, const Variant& b) { return a.number() <=> b.number(); }

 private:
  std::variant<std::monostate, Integer, std::string> value_;
};

// How numbers are written. An empty group separator means that none is accepted.
struct NumberLocale {
  std::string decimalSeparator = ".";
  std::string groupSeparator;
};

// Plain decimal text: a minus sign if negative, no group separators, no trailing zeros, never an exponent. A Single
// shows at most seven significant digits; one that is no finite number throws Fault.
std::string textOf(Integer value);
std::string textOf(Currency value, const NumberLocale& locale);
std::string textOf(Single value, const NumberLocale& locale);

// For messages to the player: with the group separators of the locale.
std::string groupedTextOf(Currency value, const NumberLocale& locale);

// A whole number in plain digits, as captions hold it. Throws Fault for any other text.
Integer integerOf(std::string_view caption);

// An amount as a player types it: blanks around it, a sign, group separators where they stand right, more than four
// decimals rounded half to even. For a group separator that is a blank or an apostrophe every blank or apostrophe goes.
// Nothing for any other text and beyond the range of Currency.
std::optional<Currency> currencyOf(std::string_view typed, const NumberLocale& locale);

// The field readers of the record format: a plain decimal with the point, blanks behind it aside. An empty text is 0.
// Nothing for any other text and for a number out of range.
std::optional<Integer> parseInteger(std::string_view field);
std::optional<Single> parseSingle(std::string_view field);
std::optional<Currency> parseCurrency(std::string_view field);

// To the nearest whole number or hundredth, ties to the even digit. Throws Fault beyond 16 bits.
Integer roundToInteger(double value);
Single roundToHundredths(Single value);

}  // namespace bogenwerker
