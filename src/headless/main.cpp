// The wizard without a screen: gestures on standard input, replies on standard output.
#include <filesystem>
#include <iostream>
#include <string>

#include "headless/gestures.h"
#include "outside/locale.h"
#include "outside/wuerfelomat.h"
#include "wizard/about.h"
#include "wizard/wizard.h"

int main(int argc, char** argv) {
  using namespace bogenwerker;
  if (const auto answer = answerTo(std::span(argv, static_cast<std::size_t>(argc)), "bogenwerker-headless",
                                   "spielt den Bogenwerker von der Standardeingabe, eine Geste je Zeile.")) {
    std::cout << *answer;
    return 0;
  }
  std::ios::sync_with_stdio(false);

  Files files;
  Wizard wizard({.files = files,
                 .numbers = systemNumberLocale(),
                 .showMessage =
                     [](Message kind, std::string_view text) {
                       std::cout << (kind == Message::fault ? "fault " : "message ") << escaped(text) << '\n';
                     },
                 .throwDie = wuerfeln,
                 .sheetFinished =
                     [](std::string_view file) {
                       const std::u8string name(file.begin(), file.end());
                       const std::u8string path = (std::filesystem::current_path() / name).u8string();
                       std::cerr << std::string(path.begin(), path.end()) << '\n';
                     }});
  bool goesOn = wizard.start();
  const int status = goesOn ? 0 : 1;
  for (std::string line; goesOn && !wizard.runtime().isOver() && std::getline(std::cin, line);) {
    if (line.ends_with('\r')) line.pop_back();
    if (const auto reply = carryOut(wizard, line)) std::cout << *reply << '\n';
    goesOn = static_cast<bool>(std::cout.flush());
  }
  // Whoever does not get every reply must not take the run for a good one.
  return std::cout.flush() ? status : 1;
}
