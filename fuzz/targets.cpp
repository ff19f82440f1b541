// Promises that hold for any bytes whatever. Each is a program of its own under libFuzzer; the core tests keep all of
// them on spoilt copies of what lies in corpus.
#include <algorithm>
#include <array>
#include <map>
#include <regex>
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

std::string takePiece(std::string_view& input, char separator) {
  const std::size_t end = input.find(separator);
  const std::string_view piece = input.substr(0, end);
  input.remove_prefix(end == std::string_view::npos ? input.size() : end + 1);
  return std::string(piece);
}

// An amount of money in the notations of several countries.
void money(std::string_view input) {
  const std::array<NumberLocale, 5> locales = {{{",", "."}, {".", ","}, {".", ""}, {",", "\xC2\xA0"}, {".", "'"}}};
  const std::string typed(input);
  for (const NumberLocale& locale : locales) {
    const auto value = currencyOf(typed, locale);
    promise(currencyOf("  " + typed + " ", locale) == value, "blanks around it do not count");
    if (!value) continue;
    const std::string shown = textOf(*value, locale);
    promise(currencyOf(shown, locale) == value, "what is shown reads back equal");
    promise(shown.find_first_not_of("-0123456789" + locale.decimalSeparator) == shown.npos, "plain decimal text");
  }
  // An amount takes more kinds of blanks around it.
  const bool isBlank = typed.find_first_not_of(' ') == typed.npos || typed.find_first_of("\xC2\xE2") != typed.npos;
  promise(isBlank || typed[0] == ' ' || parseCurrency(typed) == currencyOf(typed, {".", ""}),
          "a field of a record is an amount");
  const std::string single = textOf(parseSingle(typed).value_or(0), {});
  promise(single.find_first_not_of("-0123456789.") == single.npos, "no exponent");
}

// Records, from each field on: read as every type, and passed over in one go.
void records(std::string_view input) {
  std::array<std::string, 2> texts;
  Integer whole;
  Single single = 0;
  Currency money;
  bool truth = false;
  RecordReader reader("Datei.txt", input);
  // Where that ends, and whether in a fault.
  const auto endOf = [&reader](const auto& read) {
    RecordReader copy = reader;
    bool failed = false;
    try {
      read(copy);
    } catch (const Fault& fault) {
      failed = true;
      promise(std::string_view(fault.what()).starts_with("Datei.txt, Zeile "), "a fault says where");
    }
    return std::pair(copy.position(), failed);
  };
  for (int fields = 1; !reader.atEnd(); fields = fields % 20 + 1) {
    endOf([&](RecordReader& copy) { copy.read(texts[0], whole, single, money, truth); });
    endOf([&](RecordReader& copy) { copy.read(truth, money, single, whole, texts[0]); });
    const auto slow = endOf([fields](RecordReader& copy) {
      for (int i = 0; i < fields; ++i) copy.readRaw();
    });
    promise(slow == endOf([fields](RecordReader& copy) { copy.skip(fields); }), "skipping ends where reading does");
    const std::size_t before = reader.position();
    reader.readRaw();
    promise(reader.position() > before, "reading goes on");
  }

  const std::string text = withoutDoubleQuotes(gateTyped(utf8FromCp1252(input)));
  const auto number = static_cast<std::int16_t>(input.size() * 31);
  const auto amount = Currency::ofTenThousandths(static_cast<std::int64_t>(input.size() * 0x9E3779B97F4A7C15U));
  const Single fraction = static_cast<Single>(number) / 1000.0F;
  const TemporaryFolder folder;
  Files files;
  RecordWriter writer(files, "Datei.txt");
  writer.write(text, Integer(number), amount, fraction);
  writer.write(text);
  writer.close();
  const std::string written = files.read("Datei.txt");
  RecordReader back("Datei.txt", written);
  back.read(texts[0], whole, money, single);
  back.read(texts[1]);
  promise(back.atEnd() && texts[0] == text && texts[1] == text, "a text reads back equal");
  promise(whole == number && money == amount && single == fraction, "a number reads back equal");
}

// The quick search for a name has to find what reading every row finds.
template <class Row>
void compareSearches(Files& files, std::string_view file) {
  std::multimap<std::string, std::int64_t> rows;
  forEachRow<Row>(files, file, mostCyberware,
                  [&](const Row& row) { rows.emplace(row.name, row.kosten.tenThousandths()); });
  for (auto row = rows.begin(); row != rows.end(); row = rows.upper_bound(row->first)) {
    std::multimap<std::string, std::int64_t> quick;
    std::string buffer;
    forEachRowNamed<Row>(files, file, cp1252FromUtf8(row->first), buffer,
                         [&](const Row& found) { quick.emplace(row->first, found.kosten.tenThousandths()); });
    const auto [begin, end] = rows.equal_range(row->first);
    promise(std::equal(begin, end, quick.begin(), quick.end()), "both searches find the same rows");
  }
}

// Opens step 5, and tells what it then shows.
std::string shownByStepFive(World& world) {
  Form& form = world.wizard.formAusrüstung;
  world.faults.clear();
  world.wizard.runtime().perform({}, [&form] { form.setVisible(true); });
  promise(world.faults.empty() == form.isVisible() && form.isVisible() == form.isLoaded(), "loaded or not, never half");
  return form.isLoaded() ? world.dump() : "";
}

// All six catalogues, set apart by the file separator of ASCII: each is played, or refused with a message that says
// where, never half loaded.
void catalogues(std::string_view input) {
  const std::array<const char*, 6> names = {"Lebensstil.txt", "Connection.txt", "MagicStuff.txt",
                                            "Cyberware.txt",  "Bioware.txt",    "Cyberdecks.txt"};
  World world;
  writeBytes("Prioritäten.txt", "\"Ork\",\"Aspekt\",1000000\r\n");
  for (const char* file : names) writeBytes(file, takePiece(input, '\x1C'));
  std::vector<std::string> faults;
  checkCatalogues(world.files, faults);
  const std::regex saysWhere(
      "[A-Za-z]+[.]txt(: (Die Datei ist als Unicode|Nach so|[0-9]+ Ein|In der ganzen Datei|Das ist keine Textdatei)|, "
      "Zeile [1-9][0-9]*[,:]).*");
  for (const std::string& fault : faults) promise(std::regex_match(fault, saysWhere), "a fault says where: " + fault);
  if (faults.empty()) {
    compareSearches<WareRow>(world.files, "Cyberware.txt");
    compareSearches<WareRow>(world.files, "Bioware.txt");
    compareSearches<DeckRow>(world.files, "Cyberdecks.txt");
  }
  findSlips(world.files, {});
  if (!shownByStepFive(world).empty()) return;
  promise(!faults.empty(), "what passes the check loads: " + world.faults.front());
  for (const char* file : names) writeBytes(file, "");
  const std::string mended = shownByStepFive(world);
  World fresh;
  for (const char* file : names) writeBytes(file, "");
  writeBytes("Prioritäten.txt", "\"Ork\",\"Aspekt\",1000000\r\n");
  promise(mended == shownByStepFive(fresh), "nothing is left over from a load that failed");
}

// A whole wizard on the shipped data, fed with lines as the program without a screen gets them.
void gestures(std::string_view input) {
  World world;
  const std::size_t brought = filesIn().size();
  promise(world.wizard.start(), "the shipped data can be played");
  while (!input.empty() && !world.wizard.runtime().isOver()) {
    const std::string reply = carryOut(world.wizard, takePiece(input, '\n')).value_or("ok");
    const bool known = reply == "ok" || reply == "disabled" || reply == "unknown" || reply == "end";
    promise(known || reply.starts_with("[{"), "one of the replies");
    const auto& forms = world.wizard.runtime().forms();
    const auto visible = std::count_if(forms.begin(), forms.end(), [](const Form* form) { return form->isVisible(); });
    promise(visible == (world.wizard.runtime().isOver() ? 0 : 1), "one form at a time");
  }
  promise(world.dump().find('\n') == std::string::npos, "a state is one line");
  promise(filesIn().size() <= brought + 7 + world.messages.size(), "no litter");
}

}  // namespace

extern const std::map<std::string, void (*)(std::string_view)> fuzzTargets = {
    {"money", money}, {"records", records}, {"catalogues", catalogues}, {"gestures", gestures}};

}  // namespace bogenwerker

#ifdef FUZZ_TARGET
extern "C" int LLVMFuzzerTestOneInput(const char* data, std::size_t size) {
  bogenwerker::fuzzTargets.at(FUZZ_TARGET)({data, size});
  return 0;
}
#endif
