// Promises that hold for any bytes whatever, each a program of its own under libFuzzer.
#include <map>
#include <regex>
#include <set>
#include <stdexcept>

#include "../tests/world.h"
#include "catalogues/check.h"
#include "catalogues/slips.h"
#include "headless/gestures.h"
#include "outside/records.h"
#include "values/fault.h"
#include "values/text.h"

namespace bogenwerker {
namespace {

void promise(bool kept, const std::string& what) {
  if (!kept) throw std::logic_error("broken: " + what);
}

[[maybe_unused]] std::string takePiece(std::string_view& input, char separator) {
  const std::size_t end = input.find(separator);
  const std::string_view piece = input.substr(0, end);
  input.remove_prefix(end == std::string_view::npos ? input.size() : end + 1);
  return std::string(piece);
}

// Records, from each field on: read as every type, and passed over in one go.
[[maybe_unused]] void records(std::string_view input) {
  std::string text;
  Integer whole;
  Single single = 0;
  Currency money;
  bool truth = false;
  RecordReader reader("Datei.txt", input);
  // Where that ends, and whether in a fault.
  const auto endOf = [&reader](const auto& read) {
    RecordReader copy = reader;
    try {
      read(copy);
    } catch (const Fault& fault) {
      promise(std::string_view(fault.what()).starts_with("Datei.txt, Zeile "), "a fault says where");
      return std::pair(copy.position(), true);
    }
    return std::pair(copy.position(), false);
  };
  for (int fields = 1; !reader.atEnd(); fields = fields % 20 + 1) {
    endOf([&](RecordReader& copy) { copy.read(text, whole, single, money, truth); });
    endOf([&](RecordReader& copy) { copy.read(truth, money, single, whole, text); });
    const auto slow = endOf([fields](RecordReader& copy) {
      for (int i = 0; i < fields; ++i) copy.readRaw();
    });
    promise(slow == endOf([fields](RecordReader& copy) { copy.skip(fields); }), "skipping ends where reading does");
    reader.readRaw();
  }
}

// The quick search for a name has to find what reading every row finds.
template <class Row>
void compareSearches(Files& files, std::string_view file) {
  using Prices = std::multiset<Currency>;
  std::map<std::string, Prices> rows;
  forEachRow<Row>(files, file, mostCyberware, [&](const Row& row) { rows[row.name].insert(row.kosten); });
  for (const auto& [name, prices] : rows) {
    Prices quick;
    std::string buffer;
    forEachRowNamed<Row>(files, file, cp1252FromUtf8(name), buffer, [&](const Row& row) { quick.insert(row.kosten); });
    promise(quick == prices, "both searches find the same rows");
  }
}

// All six catalogues, set apart by the file separator of ASCII: each is played, or refused with a message that says
// where, never half loaded.
[[maybe_unused]] void catalogues(std::string_view input) {
  World world;
  writeBytes("Prioritäten.txt", "\"Ork\",\"Aspekt\",1000000\r\n");
  for (const char* file :
       {"Lebensstil.txt", "Connection.txt", "MagicStuff.txt", "Cyberware.txt", "Bioware.txt", "Cyberdecks.txt"}) {
    writeBytes(file, takePiece(input, '\x1C'));
  }
  std::vector<std::string> faults;
  checkCatalogues(world.files, faults);
  const std::regex saysWhere("[A-Za-z]+[.]txt(: |, Zeile [1-9][0-9]*[,:]).*");
  for (const std::string& fault : faults) promise(std::regex_match(fault, saysWhere), "a fault says where: " + fault);
  if (faults.empty()) {
    compareSearches<WareRow>(world.files, "Cyberware.txt");
    compareSearches<WareRow>(world.files, "Bioware.txt");
    compareSearches<DeckRow>(world.files, "Cyberdecks.txt");
  }
  findSlips(world.files, {});
  Form& form = world.wizard.formAusrüstung;
  world.wizard.runtime().perform({}, [&form] { form.setVisible(true); });
  promise(form.isVisible() || !faults.empty(), "what passes the check loads");
  promise(world.faults.empty() == form.isVisible() && form.isVisible() == form.isLoaded(), "loaded or not, never half");
}

// A whole wizard on the shipped data, fed with lines as the program without a screen gets them.
[[maybe_unused]] void gestures(std::string_view input) {
  World world;
  promise(world.wizard.start(), "the shipped data can be played");
  while (!input.empty() && !world.wizard.runtime().isOver()) {
    const std::string reply = carryOut(world.wizard, takePiece(input, '\n')).value_or("ok");
    const bool known = reply == "ok" || reply == "disabled" || reply == "unknown" || reply == "end";
    promise(known || reply.starts_with("[{"), "one of the replies");
    int visible = 0;
    for (const Form* form : world.wizard.runtime().forms()) visible += form->isVisible() ? 1 : 0;
    promise(visible == (world.wizard.runtime().isOver() ? 0 : 1), "one form at a time");
  }
  promise(world.dump().find('\n') == std::string::npos, "a state is one line");
}

}  // namespace
}  // namespace bogenwerker

extern "C" int LLVMFuzzerTestOneInput(const char* data, std::size_t size) {
  bogenwerker::FUZZ_TARGET({data, size});
  return 0;
}
