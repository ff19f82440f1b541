// The check of all six catalogues, separated by the file separator of ASCII. What passes it has to load.
#include <array>

#include "equipment/FormAusruestung.h"
#include "finish/FormFeinschliff.h"
#include "finish/FormNamenGeben.h"
#include "fuzz.h"
#include "wizard/fault.h"
#include "wizard/text.h"

namespace bogenwerker {
namespace {

constexpr std::array<const char*, 6> catalogueNames = {"Lebensstil.txt", "Connection.txt", "MagicStuff.txt",
                                                       "Cyberware.txt",  "Bioware.txt",    "Cyberdecks.txt"};

// The quick search for a name has to find what reading every row finds.
template <class Row>
void compareSearches(Files& files, std::string_view file) {
  std::vector<std::string> names;
  forEachRow<Row>(files, file, mostCyberware, [&names](const Row& row) { names.push_back(row.name); });
  if (names.empty()) return;
  for (const std::string& name : {names.front(), names.back(), names[names.size() / 2], std::string("1")}) {
    std::vector<Currency> slow;
    forEachRow<Row>(files, file, mostCyberware, [&](const Row& row) {
      if (row.name == name) slow.push_back(row.kosten);
    });
    std::vector<Currency> quick;
    std::string buffer;
    forEachRowNamed<Row>(files, file, cp1252FromUtf8(name), buffer,
                         [&](const Row& row) { quick.push_back(row.kosten); });
    promise(quick == slow, "both searches find the same rows");
  }
}

}  // namespace
}  // namespace bogenwerker

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  using namespace bogenwerker;
  static FolderFiles files;
  std::string_view input = viewOf(data, size);
  for (const char* file : catalogueNames) files.replace(file, takePiece(input, '\x1C'), Durability::untilPowerLoss);
  files.replace("Prioritäten.txt", "\"Ork\",\"Aspekt\",1000000\r\n", Durability::untilPowerLoss);

  std::vector<std::string> faults;
  checkCatalogues(files, faults);
  std::string fault;
  FormsRuntime runtime(quiet(files, fault));
  FormNamenGeben namenGeben(runtime);
  FormFeinschliff feinschliff(runtime, namenGeben);
  FormAusrüstung form(runtime, feinschliff, namenGeben);
  runtime.perform(form, [&form] { form.setVisible(true); });
  promise(fault.empty() == form.isVisible() && form.isVisible() == form.isLoaded(), "loaded or not, never half");
  if (!faults.empty()) return 0;

  promise(fault.empty(), "what passes the check loads: " + fault);
  for (ComboBox* box : {&form.cmbCyberware, &form.cmbMagic, &form.cmbCyberdecks, &form.cmbLebensstil}) {
    if (!box->entries().empty()) box->pick(box->entries().size() - 1);
  }
  for (CommandButton* button : {&form.cmdAddCyberware, &form.cmdAddMagicStuff, &form.cmdAddDeckerWare,
                                &form.cmdAddLebensstil, &form.cmdAddSpruchPunkt}) {
    button->press();
    button->press();
  }
  compareSearches<WareRow>(files, "Cyberware.txt");
  compareSearches<WareRow>(files, "Bioware.txt");
  compareSearches<DeckRow>(files, "Cyberdecks.txt");
  return 0;
}
