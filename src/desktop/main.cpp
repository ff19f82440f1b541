// The player's program.
#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include "desktop/desktop.h"
#include "equipment/wuerfelomat.h"
#include "sequence/wizard.h"

int main(int argc, char** argv) {
  using namespace bogenwerker;
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);  // a step hides before the next one shows
  QGuiApplication::setDesktopFileName(QStringLiteral("bogenwerker"));
  // What the toolkit says by itself, in the menus of text fields; where it is not installed, that stays English.
  QTranslator german;
  if (german.load(QStringLiteral("qtbase_de"), QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QApplication::installTranslator(&german);
  }

  Files files;
  const QLocale locale = QLocale::system();
  const bool groups = locale.language() != QLocale::C;  // there a comma is a slip, not a thousand
  Wizard wizard({.files = files,
                 .numbers = {.decimalSeparator = locale.decimalPoint().toStdString(),
                             .groupSeparator = groups ? locale.groupSeparator().toStdString() : std::string()},
                 .showMessage = {},
                 .throwDie = wuerfeln});
  Desktop desktop(Look::dress(), [] { QApplication::exit(); });
  wizard.runtime().environment().showMessage = [&desktop](Message kind, std::string_view text) {
    desktop.showMessage(kind, text);
  };
  if (!wizard.start()) return 1;
  desktop.show(wizard.runtime());
  return QApplication::exec();
}
