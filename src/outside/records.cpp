#include "outside/records.h"

#include <cstring>
#include <utility>

#include "values/fault.h"
#include "values/text.h"

namespace bogenwerker {
namespace {

constexpr std::string_view lineEnds = "\r\n";
const NumberLocale pointLocale;

// %1 to %3 say where, %4 is what stands there.
constexpr std::string_view pastEnd = "%1, Zeile %2, Feld %3: Hier endet die Datei mitten in einem Eintrag.";
constexpr std::string_view openQuote = "%1, Zeile %2, Feld %3: Das Anführungszeichen am Ende fehlt.";
constexpr std::string_view notWhole = "%1, Zeile %2, Feld %3: „%4“ ist keine ganze Zahl von -32768 bis 32767.";
constexpr std::string_view notNumber = "%1, Zeile %2, Feld %3: „%4“ ist keine Zahl.";
constexpr std::string_view notTruth = "%1, Zeile %2, Feld %3: „%4“ ist weder #TRUE# noch #FALSE#.";

// Letters and digits, which most fields are made of, are told by the first comparison alone.
bool endsField(char c) { return static_cast<unsigned char>(c) <= ',' && (c == ',' || c == '\n' || c == '\r'); }

}  // namespace

// Hot: step 6 passes over whole catalogues with it, once for every line of equipment.
std::string_view RecordReader::takeField() {
  const char* const begin = bytes_.data();
  const char* const end = begin + bytes_.size();
  const char* at = begin + position_;
  ++field_;
  fieldStart_ = position_;
  if (at == end) fail(pastEnd);
  while (at != end && *at == ' ') ++at;
  fieldStart_ = static_cast<std::size_t>(at - begin);

  const char* first = at;
  const char* last = nullptr;
  if (at != end && *at == '"') {
    ++first;
    const std::size_t length = std::string_view(first, static_cast<std::size_t>(end - first)).find('"');
    at = length == std::string_view::npos ? end : first + length;
    last = at;
  }
  while (at != end && !endsField(*at)) ++at;
  if (last == nullptr) last = at;
  if (at != end) {
    if (*at == '\r' && at + 1 != end && at[1] == '\n') ++at;
    ++at;
  }
  position_ = static_cast<std::size_t>(at - begin);
  return {first, static_cast<std::size_t>(last - first)};
}

void RecordReader::skip(int fields) {
  if (fields > 0 && skipPlainLine(fields)) return;
  while (fields-- > 0) takeField();
}

// Where the rest of the line is short, without quotes, and holds just that many fields, they end where it ends. Nearly
// every row is like that, and its bytes can be counted in a loop that the compiler turns into vector instructions.
bool RecordReader::skipPlainLine(int fields) {
  constexpr std::size_t mostLooked = 255;  // so that the counts fit a byte
  std::string_view line = bytes_.substr(position_, mostLooked);
  line = line.substr(0, line.find('\n'));
  if (position_ + line.size() >= bytes_.size() || bytes_[position_ + line.size()] != '\n') return false;
  const std::size_t next = position_ + line.size() + 1;
  if (line.ends_with('\r')) line.remove_suffix(1);

  unsigned char commas = 0;
  unsigned char others = 0;
  for (const char c : line) {
    commas = static_cast<unsigned char>(commas + (c == ','));
    others = static_cast<unsigned char>(others | (c == '"') | (c == '\r'));
  }
  if (others != 0 || commas != fields - 1) return false;
  position_ = next;
  field_ += fields;
  return true;
}

void RecordReader::take(std::string& target) { target = utf8FromCp1252(takeField()); }
void RecordReader::take(Untyped& target) { take(target.text); }

void RecordReader::take(Integer& target) {
  const std::string_view field = takeField();
  target = number(parseInteger(field), field, notWhole);
}

void RecordReader::take(Single& target) {
  const std::string_view field = takeField();
  target = number(parseSingle(field), field, notNumber);
}

void RecordReader::take(Currency& target) {
  const std::string_view field = takeField();
  target = number(parseCurrency(field), field, notNumber);
}

void RecordReader::take(bool& target) {
  const std::string_view field = takeField();
  const std::string_view word = field.substr(0, field.find_last_not_of(' ') + 1);
  if (word == "#TRUE#") target = true;
  else if (word == "#FALSE#") target = false;
  else target = number(parseSingle(field), field, notTruth) != 0;
}

bool RecordReader::atLineStart() const {
  return position_ == 0 || lineEnds.find(bytes_[position_ - 1]) != lineEnds.npos;
}

void RecordReader::skipLine() {
  if (!atLineStart()) position_ += lineAt(bytes_, position_).size();
}

void RecordReader::fail(std::string_view sentence, std::string_view shown) const {
  throw Fault(filled(sentence, {file_, std::to_string(lineOf(bytes_, fieldStart_)), std::to_string(field_), shown}));
}

void RecordReader::failAt(std::string_view field, std::string_view sentence) const {
  if (field.find_first_of(lineEnds) != field.npos) fail(openQuote);
  constexpr std::size_t mostShown = 60;
  std::string shown = utf8FromCp1252(field);
  // Nobody sees a tab or a hard blank.
  for (const auto& [hidden, visible] : {std::pair("\t", "⇥"), std::pair("\u00A0", "␣")}) {
    for (std::size_t at = 0; (at = shown.find(hidden, at)) != shown.npos;)
      shown.replace(at, std::strlen(hidden), visible);
  }
  const std::string_view prefix = utf8Prefix(shown, mostShown);
  fail(sentence, std::string(prefix) + (prefix.size() < shown.size() ? "…" : ""));
}

std::string_view lineAt(std::string_view bytes, std::size_t position) {
  std::size_t end = bytes.find_first_of(lineEnds, position);
  if (end == bytes.npos) return bytes.substr(position);
  if (bytes.substr(end).starts_with("\r\n")) ++end;
  return bytes.substr(position, end + 1 - position);
}

int lineOf(std::string_view bytes, std::size_t position) {
  int line = 1;
  for (std::size_t i = 0; i < position; ++i) {
    if (bytes[i] == '\n' || (bytes[i] == '\r' && (i + 1 == bytes.size() || bytes[i + 1] != '\n'))) ++line;
  }
  return line;
}

void RecordWriter::put(std::string_view field) { bytes_.append("\"").append(cp1252FromUtf8(field)).append("\""); }
void RecordWriter::put(Integer field) { bytes_ += textOf(field); }
void RecordWriter::put(Currency field) { bytes_ += textOf(field, pointLocale); }
void RecordWriter::put(Single field) { bytes_ += textOf(field, pointLocale); }

}  // namespace bogenwerker
