// The player's program, but for the toolkit's own beginning and end.
#pragma once

#include <functional>
#include <string_view>

#include "desktop/desktop.h"
#include "outside/files.h"
#include "wizard/journal.h"
#include "wizard/wizard.h"

namespace bogenwerker {

// The wizard in windows, in the current folder, with dice of its own and a journal.
class Program {
 public:
  // Hears the file of the finished sheet; calls whenOver after the last form is gone.
  Program(Look& look, std::function<void(std::string_view)> sheetFinished, std::function<void()> whenOver);

  enum class Beginning { shown, unwanted, impossible };
  // Asks what is to be asked, and shows the first form, or the one where an interrupted character stood.
  [[nodiscard]] Beginning begin();

 private:
  Files files_;
  Journal journal_{files_};
  Desktop desktop_;
  Wizard wizard_;
};

}  // namespace bogenwerker
