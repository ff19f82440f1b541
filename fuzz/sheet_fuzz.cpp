// The template engine. The first lines of the input are what a player has typed, the rest is the template.
#include <algorithm>

#include "finish/FormFeinschliff.h"
#include "finish/FormNamenGeben.h"
#include "finish/sheet.h"
#include "fuzz.h"
#include "wizard/fault.h"
#include "wizard/text.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  using namespace bogenwerker;
  static FolderFiles files;
  std::string_view input = viewOf(data, size);
  std::string fault;
  FormsRuntime runtime(quiet(files, fault));
  FormNamenGeben person(runtime);
  FormFeinschliff values(runtime, person);
  const auto typed = [&input] { return gateTyped(takePiece(input, '\n')); };
  person.Namen = typed();
  person.aussehen = typed();
  values.FertigkeitName[1] = typed();
  values.FertigkeitZaehler = 2;
  values.WissensName[1] = typed();
  values.WissensZaehler = 2;
  values.SprachName[1] = values.SpeziName[1] = typed();
  values.SprachZaehler = 2;
  values.AusruestungsZeile[1] = typed();
  values.AusruestungsZaehler = 2;
  values.Essenz = static_cast<Single>(size) / 7;
  files.replace("Prioritäten.txt", "\"Ork\",\"Aspekt\",1000000\r\n", Durability::untilPowerLoss);
  files.replace("template.htm", input, Durability::untilPowerLoss);

  const std::string sheet = sheetFileName(person.Namen);
  promise(sheet.find('/') == sheet.npos && sheet.size() < 256 && lowerAscii(sheet) != "template.htm", "a plain name");
  writeSheet(files, values, person);
  promise(files.read("template.htm") == input, "the template stays as it is");
  const std::string page = files.read(sheet);
  const auto lines = std::count(page.begin(), page.end(), '\n');
  promise(input.empty() == page.empty() && (page.empty() || page.ends_with("\r\n")), "a line for every unit");
  promise(lines >= std::count(input.begin(), input.end(), '\n') || input.find('"') != input.npos, "no unit is lost");
  files.remove(sheet);
  promise(files.names().size() == 2, "one file, and in this folder");
  return 0;
}
