// The wizard without a screen: gestures on standard input, replies on standard output.
#include <iostream>
#include <string>

#include "equipment/wuerfelomat.h"
#include "headless/gestures.h"
#include "sequence/wizard.h"

int main() {
  using namespace bogenwerker;
  std::ios::sync_with_stdio(false);

  Files files;
  Wizard wizard({.files = files,
                 .numbers = systemNumberLocale(),
                 .showMessage =
                     [](Message kind, std::string_view text) {
                       std::cout << (kind == Message::fault ? "fault " : "message ") << escaped(text) << '\n';
                     },
                 .throwDie = wuerfeln});
  if (!wizard.start()) {
    std::cout.flush();
    return 1;
  }
  for (std::string line; !wizard.runtime().isOver() && std::getline(std::cin, line);) {
    if (line.ends_with('\r')) line.pop_back();
    if (const auto reply = carryOut(wizard, line)) std::cout << *reply << '\n';
    std::cout.flush();
  }
  return 0;
}
