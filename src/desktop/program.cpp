#include "desktop/program.h"

#include "outside/locale.h"
#include "outside/wuerfelomat.h"

namespace bogenwerker {

Program::Program(Look& look, std::function<void(std::string_view)> sheetFinished, std::function<void()> whenOver)
    : desktop_(look, std::move(whenOver)),
      wizard_(journal_.around(
          {.files = files_,
           .numbers = systemNumberLocale(),
           .showMessage = [this](Message kind, std::string_view text) { desktop_.showMessage(kind, text); },
           .throwDie = wuerfeln,
           .sheetFinished = std::move(sheetFinished)})) {}

Program::Beginning Program::begin() {
  if (!wizard_.start()) return Beginning::impossible;
  if (const std::string slips = wizard_.slips(); !slips.empty() && !desktop_.askToBegin(slips))
    return Beginning::unwanted;
  journal_.resume(wizard_, Desktop::wantsToGoOn);
  if (wizard_.runtime().isOver()) return Beginning::unwanted;
  journal_.record(wizard_.runtime(), [this](std::string_view text) { desktop_.tellOnNextForm(text); });
  desktop_.show(wizard_.runtime(), &journal_);
  return Beginning::shown;
}

}  // namespace bogenwerker
