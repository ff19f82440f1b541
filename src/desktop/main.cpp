// The player's program.
#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QUrl>
#include <iostream>

#include "desktop/program.h"
#include "desktop/text.h"
#include "wizard/about.h"

int main(int argc, char** argv) {
  using namespace bogenwerker;
  if (const auto answer = answerTo(std::span(argv, static_cast<std::size_t>(argc)), "bogenwerker",
                                   "baut in sechs Schritten einen Charakter und schreibt sein Datenblatt in den\n"
                                   "aktuellen Ordner, in dem die Kataloge und die Vorlage liegen müssen.")) {
    std::cout << *answer;
    return 0;
  }
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);  // a step hides before the next one shows

  const auto openSheet = [](std::string_view file) {
    const QString path = QDir::current().absoluteFilePath(toQt(file));
    std::cout << "Das Datenblatt liegt in\n  " << fromQt(path) << std::endl;
    QDesktopServices::openUrl(QUrl::fromLocalFile(path));  // where that fails, nothing happens
  };
  Program program(Look::dress(), openSheet, [] { QApplication::exit(); });
  switch (program.begin()) {
    case Program::Beginning::shown: return QApplication::exec();
    case Program::Beginning::unwanted: return 0;
    case Program::Beginning::impossible: return 1;
  }
}
