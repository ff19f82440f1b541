#include "catalogues/catalogues.h"

#include "wizard/fault.h"
#include "wizard/text.h"

namespace bogenwerker {
namespace {

// The bytes of the line that begins at a position, its line end included.
std::string_view lineAt(std::string_view bytes, std::size_t position) {
  std::size_t end = bytes.find_first_of("\r\n", position);
  if (end == std::string_view::npos) return bytes.substr(position);
  if (bytes.substr(end).starts_with("\r\n")) ++end;
  return bytes.substr(position, end + 1 - position);
}

int countFields(std::string_view line) {
  RecordReader reader("", line);
  int count = 0;
  for (; !reader.atEnd(); ++count) reader.readRaw();
  return count;
}

// Rows know no lines, so a row may fail behind the line that is to blame. Looks from the last row that began a line up
// to where reading failed; empty if every line there holds as many fields as it should.
std::string blameLine(std::string_view file, std::string_view bytes, std::size_t from, std::size_t failed, int wanted) {
  while (from < failed) {
    const std::string_view line = lineAt(bytes, from);
    const int count = countFields(line);
    if (count != wanted) {
      const std::string place = std::string(file) + ", Zeile " + std::to_string(lineOf(bytes, from));
      if (line.find_first_not_of(" \r\n") == line.npos) return place + ": Die Zeile ist leer. Bitte löschen.";
      return place + ": " + std::to_string(count) + (count == 1 ? " Feld" : " Felder") + " statt " +
             std::to_string(wanted) + "." +
             (count > wanted ? " Dezimalkomma? Hier gilt der Punkt." : " Fehlt ein Komma oder ein Anführungszeichen?");
    }
    from += line.size();
  }
  return {};
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
  if (looksLikeUtf8(bytes)) {
    faults.push_back(savedAsUtf8(file));
    return;
  }

  RecordReader reader(file, bytes);
  constexpr int mostFaults = 100;  // some other file of that name would keep the player waiting
  std::size_t lastInStep = 0;
  int rows = 0;
  int found = 0;
  while (!reader.atEnd()) {
    if (reader.atLineStart()) lastInStep = reader.position();
    const std::size_t start = reader.position();
    ++rows;
    try {
      Row row;
      readRow(reader, row);
      if (!row.name.empty() && row.name.find('"') == row.name.npos) continue;
      throw Fault(std::string(file) + ", Zeile " + std::to_string(lineOf(bytes, start)) +
                  ", Feld 1: " + (row.name.empty() ? "Der Name fehlt." : "Im Namen steht ein Anführungszeichen."));
    } catch (const Fault& fault) {
      std::string blame = blameLine(file, bytes, lastInStep, reader.position(), Row::fields);
      faults.push_back(blame.empty() ? fault.what() : std::move(blame));
      if (++found == mostFaults) {
        faults.push_back(std::string(file) + ": Nach " + std::to_string(found) + " Fehlern endet hier die Prüfung.");
        return;
      }
      reader.skipLine();
    }
  }
  if (rows > mostRows) {
    faults.push_back(std::string(file) + ": " + std::to_string(rows) + " Einträge. Platz ist für höchstens " +
                     std::to_string(mostRows) + ".");
  }
}

}  // namespace

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
