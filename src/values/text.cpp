#include "values/text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>

namespace bogenwerker {
namespace {

// Bytes 128 to 159; the rest of code page 1252 has the numbers of Unicode.
constexpr std::array<char32_t, 32> upperControls = {0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8D,   0x017D, 0x8F,
                                                    0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

constexpr char32_t notUtf8 = 0xFFFFFFFF;

bool isAscii(std::string_view text) {
  unsigned char all = 0;
  for (const char c : text) all |= static_cast<unsigned char>(c);
  return all < 0x80;
}

// Takes the ASCII characters off the front of a text.
std::string_view takeAscii(std::string_view& text) {
  const auto end = std::find_if(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) >= 0x80; });
  const std::string_view front = text.substr(0, static_cast<std::size_t>(end - text.begin()));
  text.remove_prefix(front.size());
  return front;
}

// Takes the first character off the text, or one byte and notUtf8.
char32_t takeCharacter(std::string_view& text) {
  const auto first = static_cast<unsigned char>(text.front());
  text.remove_prefix(1);
  if (first < 0x80) return first;
  const std::size_t length = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : 1;  // bytes to follow
  if (first < 0xC2 || first > 0xF4 || text.size() < length) return notUtf8;
  char32_t character = first & (0x3FU >> length);
  for (std::size_t i = 0; i < length; ++i) {
    const auto next = static_cast<unsigned char>(text[i]);
    if ((next & 0xC0U) != 0x80) return notUtf8;
    character = character << 6U | (next & 0x3FU);
  }
  constexpr std::array<char32_t, 4> least = {0, 0x80, 0x800, 0x10000};
  if (character < least[length] || character > 0x10FFFF || (character >= 0xD800 && character < 0xE000)) return notUtf8;
  text.remove_prefix(length);
  return character;
}

void appendUtf8(std::string& text, char32_t character) {
  const auto put = [&text](char32_t byte) { text += static_cast<char>(byte); };
  if (character < 0x80) {
    put(character);
  } else if (character < 0x800) {
    put(0xC0U | character >> 6U);
    put(0x80U | (character & 0x3FU));
  } else {
    put(0xE0U | character >> 12U);
    put(0x80U | (character >> 6U & 0x3FU));
    put(0x80U | (character & 0x3FU));
  }
}

// The byte for a character, or -1.
int cp1252Byte(char32_t character) {
  if (character < 0x80 || (character >= 0xA0 && character < 0x100)) return static_cast<int>(character);
  const auto* place = std::find(upperControls.begin(), upperControls.end(), character);
  return place == upperControls.end() ? -1 : 0x80 + static_cast<int>(place - upperControls.begin());
}

bool isControl(char32_t character) { return character < 0x20 || (character >= 0x7F && character < 0xA0); }

struct Range {
  char32_t first;
  char32_t last;
};

// Line breaks and tabs, all of which become a blank.
constexpr std::array<Range, 3> breaks = {{{0x09, 0x0D}, {0x85, 0x85}, {0x2028, 0x2029}}};

// Characters of no width, marks of the order of writing, selectors of variants.
constexpr std::array<Range, 10> unseen = {{{0x034F, 0x034F},
                                           {0x061C, 0x061C},
                                           {0x180E, 0x180E},
                                           {0x200B, 0x200F},
                                           {0x202A, 0x202E},
                                           {0x2060, 0x206F},
                                           {0xFE00, 0xFE0F},
                                           {0xFEFF, 0xFEFF},
                                           {0xFFF9, 0xFFFB},
                                           {0xE0000, 0xE0FFF}}};

template <std::size_t count>
bool isIn(const std::array<Range, count>& ranges, char32_t character) {
  return std::any_of(ranges.begin(), ranges.end(),
                     [character](Range range) { return range.first <= character && character <= range.last; });
}

bool isUnseen(char32_t character) {
  if (isControl(character)) return !isIn(breaks, character);
  return isIn(unseen, character);
}

// Marks that stand behind their letter, and the letters that code page 1252 has with them.
struct CombiningMark {
  char32_t mark;
  std::u32string_view letters;
  std::u32string_view composed;
};
constexpr std::array<CombiningMark, 8> combiningMarks = {{{0x0300, U"AEIOUaeiou", U"ÀÈÌÒÙàèìòù"},
                                                          {0x0301, U"AEIOUYaeiouy", U"ÁÉÍÓÚÝáéíóúý"},
                                                          {0x0302, U"AEIOUaeiou", U"ÂÊÎÔÛâêîôû"},
                                                          {0x0303, U"ANOano", U"ÃÑÕãñõ"},
                                                          {0x0308, U"AEIOUYaeiouy", U"ÄËÏÖÜŸäëïöüÿ"},
                                                          {0x030A, U"Aa", U"Åå"},
                                                          {0x030C, U"SZsz", U"ŠŽšž"},
                                                          {0x0327, U"Cc", U"Çç"}}};

// The letter that both pieces make, or 0.
char32_t composed(char32_t letter, char32_t mark) {
  const auto* row = std::find_if(combiningMarks.begin(), combiningMarks.end(),
                                 [mark](const CombiningMark& one) { return one.mark == mark; });
  if (row == combiningMarks.end()) return 0;
  const std::size_t at = row->letters.find(letter);
  return at == std::u32string_view::npos ? 0 : row->composed[at];
}

// What code page 1252 has for characters that it does not hold.
struct LookAlike {
  std::string_view shown;
  std::u32string_view characters;
};
constexpr std::array<LookAlike, 21> lookAlikes = {
    {{" ", U"\u1680\u2000\u2001\u2002\u2003\u2004\u2005\u2006\u2008\u2009\u200A\u205F\u3000"},
     {"\u00A0", U"\u2007\u202F"},
     {"-", U"\u02D7\u2010\u2011\u2012\u2043\u2212\u2796\uFE58\uFE63\uFF0D"},
     {"—", U"\u2015"},
     {"'", U"\u02B9\u02BC\u2032\uFF07"},
     {"‘", U"\u02BB\u02BD\u201B"},
     {"\"", U"\u02BA\u2033\u201F\uFF02"},
     {"/", U"\u2044\u2215"},
     {"*", U"\u2217"},
     {"·", U"\u2219\u22C5"},
     {":", U"\u2236"},
     {"~", U"\u223C"},
     {"µ", U"\u03BC"},
     {"Å", U"\u212B"},
     {"K", U"\u212A"},
     {"SS", U"\u1E9E"},
     {"ff", U"\uFB00"},
     {"fi", U"\uFB01"},
     {"fl", U"\uFB02"},
     {"ffi", U"\uFB03"},
     {"ffl", U"\uFB04"}}};

std::string_view lookAlike(char32_t character) {
  if (isIn(breaks, character)) return " ";
  const auto* row = std::find_if(lookAlikes.begin(), lookAlikes.end(), [character](const LookAlike& one) {
    return one.characters.find(character) != std::u32string_view::npos;
  });
  return row == lookAlikes.end() ? "?" : row->shown;
}

struct SortLetter {
  std::u32string_view letters;  // with marks, small
  std::string_view base;
};
constexpr std::array<SortLetter, 12> marked = {{{U"àáâãäå", "a"},
                                                {U"æ", "ae"},
                                                {U"ç", "c"},
                                                {U"èéêë", "e"},
                                                {U"ìíîï", "i"},
                                                {U"ñ", "n"},
                                                {U"òóôõöø", "o"},
                                                {U"œ", "oe"},
                                                {U"šß", "s"},
                                                {U"ùúûü", "u"},
                                                {U"ýÿ", "y"},
                                                {U"ž", "z"}}};

char32_t smallLetter(char32_t character) {
  if ((character >= 'A' && character <= 'Z') || (character >= 0xC0 && character <= 0xDE && character != 0xD7)) {
    return character + 0x20;
  }
  switch (character) {
    case U'Œ': return U'œ';
    case U'Š': return U'š';
    case U'Ž': return U'ž';
    case U'Ÿ': return U'ÿ';
    default: return character;
  }
}

}  // namespace

std::string utf8FromCp1252(std::string_view bytes) {
  if (isAscii(bytes)) return std::string(bytes);
  std::string text;
  text.reserve(bytes.size() + bytes.size() / 4 + 4);
  while (true) {
    text.append(takeAscii(bytes));
    if (bytes.empty()) return text;
    const auto byte = static_cast<unsigned char>(bytes.front());
    appendUtf8(text, byte < 0xA0 ? upperControls[byte - 0x80U] : byte);
    bytes.remove_prefix(1);
  }
}

std::string cp1252FromUtf8(std::string_view text) {
  if (isAscii(text)) return std::string(text);
  std::string bytes;
  bytes.reserve(text.size());
  while (true) {
    bytes.append(takeAscii(text));
    if (text.empty()) return bytes;
    const int byte = cp1252Byte(takeCharacter(text));
    if (byte >= 0) bytes += static_cast<char>(byte);
  }
}

std::string gateTyped(std::string_view text) {
  std::string passed;
  passed.reserve(text.size());
  char32_t last = 0;  // of what has passed, where a mark can join it
  while (!text.empty()) {
    const char32_t character = takeCharacter(text);
    if (character == '\r' && text.starts_with('\n')) text.remove_prefix(1);
    if (isUnseen(character)) continue;
    if (const char32_t letter = composed(last, character); letter != 0) {
      passed.pop_back();
      appendUtf8(passed, letter);
      last = 0;
    } else if (cp1252Byte(character) >= 0 && !isControl(character)) {
      appendUtf8(passed, character);
      last = character;
    } else {
      passed.append(lookAlike(character));
      last = 0;
    }
  }
  return passed;
}

std::string withoutDoubleQuotes(std::string text) {
  std::replace(text.begin(), text.end(), '"', '\'');
  return text;
}

std::size_t characterCount(std::string_view text) {
  return static_cast<std::size_t>(
      std::count_if(text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80; }));
}

bool looksLikeUnicode(std::string_view bytes) {
  for (const std::string_view mark : {"\xEF\xBB\xBF", "\xFF\xFE", "\xFE\xFF"}) {
    if (bytes.starts_with(mark)) return true;
  }
  bool aboveAscii = false;
  while (true) {
    takeAscii(bytes);
    if (bytes.empty()) return aboveAscii;
    if (takeCharacter(bytes) == notUtf8) return false;
    aboveAscii = true;
  }
}

std::string_view utf8Prefix(std::string_view text, std::size_t bytes) {
  if (text.size() <= bytes) return text;
  while (bytes > 0 && (static_cast<unsigned char>(text[bytes]) & 0xC0U) == 0x80) --bytes;
  return text.substr(0, bytes);
}

std::string germanSortKey(std::string_view text) {
  std::string letters;
  std::string accents;
  std::string cases;
  letters.reserve(4 * text.size());  // for all three
  accents.reserve(2 * text.size());
  cases.reserve(text.size());
  while (!text.empty()) {
    const char32_t character = takeCharacter(text);
    const char32_t small = smallLetter(character);
    cases += small == character ? '\1' : '\2';
    if (small < 0x80) {  // ASCII letters bear no marks
      letters += static_cast<char>(small);
      accents += '\1';
      continue;
    }
    const auto* entry = std::find_if(marked.begin(), marked.end(), [small](const SortLetter& row) {
      return row.letters.find(small) != std::u32string_view::npos;
    });
    if (entry == marked.end()) {
      appendUtf8(letters, small);
    } else {
      letters += entry->base;
      if (small == U'ß') letters += 's';
    }
    appendUtf8(accents, entry == marked.end() ? char32_t{1} : small);
  }
  letters.append(1, '\0').append(accents).append(1, '\0').append(cases);
  return letters;
}

std::string quoted(std::string_view text) { return std::string("„").append(text).append("“"); }

std::string pointsLeft(int left, std::string_view point, std::string_view points) {
  if (left == 0) return {};
  const int count = std::abs(left);
  const std::string counted = std::to_string(count).append(" ").append(count == 1 ? point : points);
  return left > 0 ? "Noch " + counted + " frei." : counted + " zu viel ausgegeben.";
}

std::string filled(std::string_view text, std::initializer_list<std::string_view> values) {
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char number = text[i] == '%' && i + 1 < text.size() ? text[i + 1] : '0';
    if (number < '1' || number > '0' + static_cast<int>(values.size())) {
      result += text[i];
    } else {
      result += values.begin()[number - '1'];
      ++i;
    }
  }
  return result;
}

std::string markOf(std::string_view text) {
  std::uint32_t hash = 0x811C9DC5U;
  for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 0x01000193U;
  std::string digits;
  for (int shift = 28; shift >= 0; shift -= 4) digits += "0123456789abcdef"[hash >> shift & 0xFU];
  return digits;
}

std::string lowerAscii(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + ('a' - 'A'));
  }
  return lower;
}

}  // namespace bogenwerker
