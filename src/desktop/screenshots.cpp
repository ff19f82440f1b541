// Pictures of all seven windows, each as a player leaves it:
//   bogenwerker-screenshots DATA GESTURES FOLDER [PERCENT]
// plays the script of gestures on the catalogues of DATA, in a folder of its own.
#include <QApplication>
#include <QDir>
#include <QPixmap>
#include <QScrollArea>
#include <QTemporaryDir>
#include <fstream>
#include <iostream>
#include <string>

#include "desktop/desktop.h"
#include "desktop/text.h"
#include "headless/gestures.h"
#include "sequence/wizard.h"

namespace {

// Of the window that is shown, in whole, however small the screen.
QPixmap picture() {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    auto* area = qobject_cast<QScrollArea*>(window);
    if (area == nullptr || !area->isVisible()) continue;
    area->resize(area->widget()->sizeHint());
    return area->grab();
  }
  return {};
}

}  // namespace

int main(int argc, char** argv) {
  using namespace bogenwerker;
  QApplication application(argc, argv);
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() < 4) return 2;
  const QDir pictures(QDir(arguments[3]).absolutePath());
  std::ifstream script(QDir(arguments[2]).absolutePath().toStdString());
  const QTemporaryDir folder;
  for (const QFileInfo& file : QDir(arguments[1]).entryInfoList(QDir::Files)) {
    QFile::copy(file.absoluteFilePath(), folder.filePath(file.fileName()));
  }
  QDir::setCurrent(folder.path());

  Files files;
  Wizard wizard({.files = files,
                 .numbers = {.decimalSeparator = ",", .groupSeparator = "."},
                 .showMessage = [](Message, std::string_view text) { std::cout << text << '\n'; },
                 .throwDie = [] { return 4; }});
  Desktop desktop(Look::dress(), [] {});
  if (arguments.size() > 4) desktop.zoomTo(arguments[4].toInt());
  if (!wizard.start()) return 1;
  desktop.show(wizard.runtime());

  int number = 1;
  for (std::string gesture; std::getline(script, gesture);) {
    QApplication::processEvents();
    const Form* form = wizard.runtime().visibleForm();
    const QPixmap last = picture();
    carryOut(wizard, gesture);
    if (wizard.runtime().visibleForm() == form) continue;
    const QString name = form->isDialog() ? QStringLiteral("daten") : QStringLiteral("schritt%1").arg(number++);
    last.save(pictures.filePath(name + QStringLiteral(".png")));
  }
  return wizard.runtime().isOver() ? 0 : 1;
}
