// What the wizard needs of the world around it. Tests hand in their own.
#pragma once

#include <functional>
#include <string_view>

#include "outside/files.h"
#include "values/numbers.h"

namespace bogenwerker {

enum class Message { closing, fault };

struct Environment {
  Files& files;
  NumberLocale numbers;
  // Shows the text with a single OK button and returns once it is dismissed.
  std::function<void(Message, std::string_view)> showMessage;
  // A throw of one six-sided die, 1 to 6.
  std::function<int()> throwDie;
  // Hears the file of the finished sheet, once the player has dismissed the closing message. May be missing.
  std::function<void(std::string_view)> sheetFinished{};
};

}  // namespace bogenwerker
