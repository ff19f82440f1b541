// A whole wizard on the shipped data, fed with lines as the program without a screen gets them.
#include <algorithm>

#include "fuzz.h"
#include "headless/dump.h"
#include "headless/gestures.h"
#include "wizard/fault.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  using namespace bogenwerker;
  static FolderFiles files;
  static const std::size_t shipped = (files.copyData(), files.names().size());
  constexpr std::size_t stepFiles = 7;

  std::string_view input = viewOf(data, size);
  std::string fault;
  Wizard wizard(quiet(files, fault));
  promise(wizard.start(), "the shipped data can be played");
  while (!input.empty() && !wizard.runtime().isOver()) {
    std::string_view line = takePiece(input, '\n');
    if (line.ends_with('\r')) line.remove_suffix(1);
    const auto reply = carryOut(wizard, line);
    promise(!reply || *reply == "ok" || *reply == "disabled" || *reply == "unknown" || *reply == "end" ||
                reply->starts_with("[{"),
            "one of the replies");
    const auto& forms = wizard.runtime().forms();
    const auto visible = std::count_if(forms.begin(), forms.end(), [](const Form* form) { return form->isVisible(); });
    promise(visible == (wizard.runtime().isOver() ? 0 : 1), "one form at a time");
  }
  promise(escaped(dumpOf(wizard)).find('\n') == std::string::npos, "a state is one line");
  for (const std::string& name : files.names()) {
    if (name.ends_with(".htm") && name != "template.htm") files.remove(name);
  }
  promise(files.names().size() <= shipped + stepFiles, "no litter");
  return 0;
}
