// The six catalogue files: what a row holds, how rows are read and looked up.
#pragma once

#include <string>
#include <string_view>

#include "outside/files.h"
#include "outside/records.h"
#include "values/fault.h"

namespace bogenwerker {

// How many rows a file may hold.
constexpr int mostLebensstile = 30;
constexpr int mostConnections = 30;
constexpr int mostMagicStuff = 1000;
constexpr int mostCyberware = 1000;
constexpr int mostBioware = 600;
constexpr int mostCyberdecks = 20;

// A row of Lebensstil.txt or Connection.txt.
struct PriceRow {
  static constexpr int fields = 2;
  static constexpr int priceField = 2;
  std::string name;
  Currency kosten;
  void readRest(RecordReader& reader) { reader.readOn(kosten); }
};

// A row of MagicStuff.txt.
struct MagicRow {
  static constexpr int fields = 4;
  static constexpr int priceField = 3;
  std::string name;
  Integer spruchpunkte;
  Currency kosten;
  Single kraftpunkte = 0;
  void readRest(RecordReader& reader) { reader.readOn(spruchpunkte, kosten, kraftpunkte); }
};

// What a ware does to its bearer.
struct WareEffects {
  Integer kon, Schnell, Stark, Intell, Char, Will;
  Integer reak, reakRIGGER, reakDECKER;
  Integer ini, iniRIGGER, iniDECKER;
  bool AnwendaufReak = false;   // whether Schnell and Intell count for Reaktion
  bool AnwendaufPools = false;  // whether Intell, Char, Will and Schnell count for the pools
};

// A row of Cyberware.txt, or of Bioware.txt with the Bio-Index cost in place of the Essenz cost.
struct WareRow {
  static constexpr int fields = 17;
  static constexpr int priceField = 3;
  std::string name;
  Single essenz = 0;
  Currency kosten;
  WareEffects effects;
  void readRest(RecordReader& reader) {
    WareEffects& e = effects;
    reader.readOn(essenz, kosten, e.kon, e.Schnell, e.Stark, e.Intell, e.Char, e.Will, e.reak, e.reakRIGGER,
                  e.reakDECKER, e.ini, e.iniRIGGER, e.iniDECKER, e.AnwendaufReak, e.AnwendaufPools);
  }
};

// A row of Cyberdecks.txt.
struct DeckRow {
  static constexpr int fields = 4;
  static constexpr int priceField = 3;
  std::string name;
  Integer MPCP;
  Currency kosten;
  Integer Reaktionsverstärkung;
  void readRest(RecordReader& reader) { reader.readOn(MPCP, kosten, Reaktionsverstärkung); }
};

// The fault of a file with too many rows, as a line of German.
std::string tooManyRows(std::string_view file, int rows, int mostRows);

// Reads the rows of one file, and tells the player which line to blame where that fails: rows know no lines, so it may
// stand ahead of the row that could not be read.
class CatalogueReader {
 public:
  // The bytes have to outlive the reader.
  CatalogueReader(std::string_view file, std::string_view bytes) : file_(file), bytes_(bytes), reader_(file, bytes) {}

  [[nodiscard]] bool atEnd() const { return reader_.atEnd(); }
  // Throws Fault for a row that is cut short, has a field of the wrong type, or a name that no purchase could find.
  template <class Row>
  void read(Row& row) {
    if (reader_.atLineStart()) lastInStep_ = reader_.position();
    start_ = reader_.position();
    try {
      reader_.read(row.name);
      row.readRest(reader_);
      if (!isPlain(row.name)) refuseName(row.name);
    } catch (const Fault& fault) {
      throw Fault(blame(fault.what(), Row::fields));
    }
  }
  // After a fault: to the line behind the one to blame.
  void goOn() { reader_.seek(behindBlame_); }

 private:
  // True for a name that a record can hold; a loop that the compiler turns into vector instructions.
  static bool isPlain(std::string_view name) {
    bool bad = name.empty();
    for (const char c : name) bad = bad | (c == '"') | (c == '\r') | (c == '\n');
    return !bad;
  }
  [[noreturn]] void refuseName(std::string_view name) const;
  std::string blame(std::string_view fault, int fields);

  std::string_view file_;
  std::string_view bytes_;
  RecordReader reader_;
  std::size_t start_ = 0;       // of the row that is being read
  std::size_t lastInStep_ = 0;  // of the last row that began a line
  std::size_t behindBlame_ = 0;
};

// Calls take for every row of a file in order. Throws Fault for a file or a row that cannot be read, and for more rows
// than there is room for.
template <class Row, class Take>
void forEachRow(Files& files, std::string_view file, int mostRows, Take take) {
  const std::string bytes = files.read(file);
  CatalogueReader reader(file, bytes);
  Row row;
  for (int rows = 1; !reader.atEnd(); ++rows) {
    reader.read(row);
    if (rows > mostRows) throw Fault(tooManyRows(file, rows, mostRows));
    take(row);
  }
}

// Where text stands in bytes at or behind a position, or npos. Made for large files that mostly do not hold the text.
std::size_t findText(std::string_view bytes, std::string_view text, std::size_t from);

// Reads the file anew into the buffer and calls take for every row whose name equals the name, in order and without
// stopping at the first. Rows behind the last place where the bytes hold the name at all are not looked at, and of the
// others only the named ones are converted. Names are in code page 1252. Throws Fault.
template <class Row, class Take>
void forEachRowNamed(Files& files, std::string_view file, std::string_view name, std::string& buffer, Take take) {
  files.read(file, buffer);
  RecordReader reader(file, buffer);
  std::size_t next = findText(buffer, name, 0);
  Row row;
  while (next != std::string_view::npos && !reader.atEnd()) {
    if (reader.readRaw() == name) {
      row.readRest(reader);
      take(row);
    } else {
      reader.skip(Row::fields - 1);
    }
    if (reader.position() > next) next = findText(buffer, name, reader.position());
  }
}

}  // namespace bogenwerker
