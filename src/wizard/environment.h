// What the wizard needs of the world around it. Tests hand in their own.
#pragma once

#include <functional>
#include <string_view>

#include "wizard/files.h"
#include "wizard/numbers.h"

namespace bogenwerker {

enum class Message { closing, fault };

struct Environment {
  Files& files;
  NumberLocale numbers;
  // Shows the text with a single OK button and returns once it is dismissed.
  std::function<void(Message, std::string_view)> showMessage;
  // A throw of one six-sided die, 1 to 6.
  std::function<int()> throwDie;
};

}  // namespace bogenwerker
