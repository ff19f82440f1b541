#include "catalogues/catalogues.h"

#include "wizard/fault.h"
#include "wizard/text.h"

namespace bogenwerker {
namespace {

int countFields(std::string_view line) {
  RecordReader reader("", line);
  int count = 0;
  for (; !reader.atEnd(); ++count) reader.readRaw();
  return count;
}

std::string wrongCount(std::string_view line, int count, int wanted) {
  if (line.find_first_not_of(" \r\n") == line.npos) return "Die Zeile ist leer. Bitte löschen.";
  std::string text =
      std::to_string(count) + (count == 1 ? " Feld" : " Felder") + " statt " + std::to_string(wanted) + ".";
  if (count > wanted) return text + " Dezimalkomma? Hier gilt der Punkt.";
  if (line.find_first_of(";\t") != line.npos) return text + " Die Felder trennt ein Komma.";
  return text + " Fehlt ein Komma oder ein Anführungszeichen?";
}

template <class Row>
void checkCatalogue(Files& files, std::string_view file, int mostRows, std::vector<std::string>& faults) {
  std::string bytes;
  try {
    files.read(file, bytes);
  } catch (const Fault& fault) {
    faults.emplace_back(fault.what());
    return;
  }
  if (looksLikeUnicode(bytes)) {
    faults.push_back(savedAsUnicode(file));
    return;
  }

  constexpr int mostFaults = 100;  // some other file of that name would keep the player waiting
  CatalogueReader reader(file, bytes);
  int rows = 0;
  for (int found = 0; !reader.atEnd() && found < mostFaults; ++rows) {
    try {
      Row row;
      reader.read(row);
    } catch (const Fault& fault) {
      ++found;
      faults.emplace_back(fault.what());
      reader.goOn();
    }
  }
  if (!reader.atEnd()) faults.push_back(std::string(file) + ": Nach so vielen Fehlern endet hier die Prüfung.");
  else if (rows > mostRows) faults.push_back(tooManyRows(file, rows, mostRows));
}

}  // namespace

std::string tooManyRows(std::string_view file, int rows, int mostRows) {
  return std::string(file) + ": " + std::to_string(rows) + " Einträge. Platz ist für höchstens " +
         std::to_string(mostRows) + ".";
}

void CatalogueReader::refuseName(std::string_view name) const {
  const std::string_view why = name.empty()                  ? "Der Name fehlt."
                               : name.find('"') != name.npos ? "Im Namen steht ein Anführungszeichen."
                                                             : "Im Namen endet die Zeile. Fehlt ein Anführungszeichen?";
  throw Fault(std::string(file_) + ", Zeile " + std::to_string(lineOf(bytes_, start_)) +
              ", Feld 1: " + std::string(why));
}

// The first line with another number of fields than it should have, from the last row that began a line up to where
// reading failed; the row itself if there is none.
std::string CatalogueReader::blame(std::string_view fault, int fields) {
  const std::size_t failed = reader_.position();
  for (std::size_t at = lastInStep_; at < failed;) {
    const std::string_view line = lineAt(bytes_, at);
    const int count = countFields(line);
    const std::size_t number = at;
    at += line.size();
    if (count == fields) continue;
    behindBlame_ = at;
    return std::string(file_) + ", Zeile " + std::to_string(lineOf(bytes_, number)) + ": " +
           wrongCount(line, count, fields);
  }
  reader_.skipLine();
  behindBlame_ = reader_.position();
  return std::string(fault);
}

// Compares the first and the last byte of the text at many places at once, in a loop that the compiler turns into
// vector instructions.
std::size_t findText(std::string_view bytes, std::string_view text, std::size_t from) {
  if (text.empty()) return from;
  constexpr std::size_t block = 128;
  const std::size_t apart = text.size() - 1;
  const char first = text.front();
  const char last = text.back();
  for (; from + block + apart <= bytes.size(); from += block) {
    const char* const firsts = bytes.data() + from;
    const char* const lasts = firsts + apart;
    unsigned char any = 0;
    for (std::size_t i = 0; i < block; ++i) {
      any = static_cast<unsigned char>(
          any | (static_cast<unsigned char>(firsts[i] == first) & static_cast<unsigned char>(lasts[i] == last)));
    }
    if (any == 0) continue;
    const std::size_t found = bytes.substr(from, block + apart).find(text);
    if (found != std::string_view::npos) return from + found;
  }
  return bytes.find(text, from);
}

void checkCatalogues(Files& files, std::vector<std::string>& faults) {
  checkCatalogue<PriceRow>(files, "Lebensstil.txt", mostLebensstile, faults);
  checkCatalogue<PriceRow>(files, "Connection.txt", mostConnections, faults);
  checkCatalogue<MagicRow>(files, "MagicStuff.txt", mostMagicStuff, faults);
  checkCatalogue<WareRow>(files, "Cyberware.txt", mostCyberware, faults);
  checkCatalogue<WareRow>(files, "Bioware.txt", mostBioware, faults);
  checkCatalogue<DeckRow>(files, "Cyberdecks.txt", mostCyberdecks, faults);
}

}  // namespace bogenwerker
