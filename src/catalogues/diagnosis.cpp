#include "catalogues/diagnosis.h"

#include <algorithm>
#include <array>

#include "catalogues/sentences.h"
#include "outside/records.h"
#include "values/text.h"

namespace bogenwerker {
namespace {

constexpr std::string_view blanksAndLineEnd = " \r\n";

std::string_view withoutEnds(std::string_view line) {
  line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
  return line.substr(0, line.find_last_not_of(blanksAndLineEnd) + 1);
}

// A curly quote around the name, or one that closes what a straight one has opened.
bool hasCurlyQuotes(std::string_view line) {
  if (beginsWithCurlyQuote(line)) return true;
  return std::count(line.begin(), line.end(), '"') % 2 != 0 && line.find_first_of("\x84\x93\x94") != line.npos;
}

// A row quotes its name and no number; in a heading all fields look alike, and none like a number.
bool isHeading(std::string_view line) {
  RecordReader reader("", line);
  int quoted = 0;
  int count = 0;
  for (; !reader.atEnd(); ++count) {
    quoted += line.substr(reader.position()).starts_with('"') ? 1 : 0;
    const std::string_view field = reader.readRaw();
    if (count > 0 && (field.empty() || std::string_view("+-.#0123456789").find(field.front()) != field.npos)) {
      return false;
    }
  }
  return count > 1 && (quoted == 0 || quoted == count);
}

// What the looks of the line tell, however many fields it holds.
std::string_view looksOf(std::string_view line, int number) {
  const std::string_view text = withoutEnds(line);
  if (text.empty()) return sentences::emptyLine;
  if (text.starts_with('#')) return sentences::comment;
  if (hasCurlyQuotes(text)) return sentences::curlyQuotes;
  if (text.starts_with(R"(""")")) return sentences::tripledQuotes;
  if (number == 1 && isHeading(text)) return sentences::heading;
  return {};
}

// How many of that character stand outside quotes.
std::ptrdiff_t countUnquoted(std::string_view line, char wanted) {
  bool quoted = false;
  return std::count_if(line.begin(), line.end(), [&](char c) {
    if (c == '"') quoted = !quoted;
    return !quoted && c == wanted;
  });
}

}  // namespace

int countFields(std::string_view line) {
  RecordReader reader("", line);
  int count = 0;
  for (; !reader.atEnd(); ++count) reader.readRaw();
  return count;
}

bool beginsWithCurlyQuote(std::string_view text) {
  return !text.empty() && std::string_view("\x84\x93\x94\xAB\xBB").find(text.front()) != text.npos;
}

bool isBrokenRow(std::string_view line, std::string_view next, int fields) {
  if (withoutEnds(next).empty() || withoutEnds(next).starts_with('"')) return false;
  const std::string_view front = line.substr(0, line.find_last_not_of("\r\n") + 1);
  return countFields(front) < fields && countFields(std::string(front).append(next)) == fields;
}

std::string whyWrongCount(std::string_view line, int number, int wanted) {
  const std::string_view looks = looksOf(line, number);
  if (!looks.empty()) return std::string(looks);

  const int count = countFields(line);
  std::string text = filled(count == 1 ? sentences::oneField : sentences::otherFields,
                            {std::to_string(count), std::to_string(wanted)});
  std::string_view why = sentences::somethingMissing;
  if (count == wanted + 1 && withoutEnds(line).ends_with(',')) why = sentences::commaAtTheEnd;
  else if (count > wanted) why = sentences::decimalComma;
  else if (line.find_first_of(";\t") != line.npos) why = sentences::otherSeparator;
  return text.append(" ").append(why);
}

std::string whyUnreadable(std::string_view file, std::string_view line, int number, std::string_view fault) {
  const std::string_view looks = looksOf(line, number);
  if (looks.empty()) return std::string(fault);
  return filled(sentences::inLine, {file, std::to_string(number), looks});
}

bool hasOtherSeparator(std::string_view bytes, int fields) {
  bool any = false;
  for (std::size_t at = 0; at < bytes.size();) {
    const std::string_view line = lineAt(bytes, at);
    at += line.size();
    if (withoutEnds(line).empty()) continue;
    if (std::max(countUnquoted(line, ';'), countUnquoted(line, '\t')) != fields - 1) return false;
    any = true;
  }
  return any;
}

bool isNoText(std::string_view bytes) {
  constexpr std::array<std::string_view, 4> beginnings = {"{\\rtf", "PK\x03\x04", "\xD0\xCF\x11\xE0", "%PDF"};
  return std::any_of(beginnings.begin(), beginnings.end(), [&](auto with) { return bytes.starts_with(with); });
}

}  // namespace bogenwerker
