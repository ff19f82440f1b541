// Pictures of all seven windows, each as a player leaves it:
//   bogenwerker-screenshots DATA GESTURES FOLDER [PERCENT]
// plays the script of gestures on the catalogues of DATA, in a folder of its own.
//   bogenwerker-screenshots DATA GESTURES FOLDER --check
// leaves the pictures alone and says which of them no longer show the windows.
#include <QApplication>
#include <QDir>
#include <QImage>
#include <QPixmap>
#include <QScrollArea>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>

#include "desktop/desktop.h"
#include "desktop/text.h"
#include "wizard/wizard.h"

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

// The share of pixels that differ for the eye. Windows of other sizes are compared at the size of the picture.
double difference(const QImage& picture, const QImage& window) {
  const QImage now = window.scaled(picture.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  const auto apart = [](QRgb a, QRgb b) {
    constexpr int visible = 64;
    return std::abs(qRed(a) - qRed(b)) > visible || std::abs(qGreen(a) - qGreen(b)) > visible;
  };
  qint64 count = 0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) count += apart(picture.pixel(x, y), now.pixel(x, y)) ? 1 : 0;
  }
  return static_cast<double>(count) / std::max(1, picture.width() * picture.height());
}

// Keeps a picture, or compares it with the one that was kept. False where that shows another window.
bool take(const QString& file, const QPixmap& window, bool checking) {
  if (!checking) return window.save(file);
  constexpr double mostDifferent = 0.03;
  const QImage kept(file);
  if (!kept.isNull() && difference(kept, window.toImage()) < mostDifferent) return true;
  std::cerr << file.toStdString() << " is older than its window. Renew it: cmake --build BUILD --target screenshots\n";
  return false;
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
  const bool checking = arguments.last() == QStringLiteral("--check");
  if (arguments.size() > 4 && !checking) desktop.zoomTo(arguments[4].toInt());
  if (!wizard.start()) return 1;
  desktop.show(wizard.runtime());

  int number = 1;
  bool good = true;
  for (std::string gesture; std::getline(script, gesture);) {
    QApplication::processEvents();
    const Form* form = wizard.runtime().visibleForm();
    const QPixmap last = picture();
    if (const auto parsed = parseGesture(gesture)) wizard.runtime().play(*parsed);
    if (wizard.runtime().visibleForm() == form) continue;
    const QString name = form->isDialog() ? QStringLiteral("daten") : QStringLiteral("schritt%1").arg(number++);
    good &= take(pictures.filePath(name + QStringLiteral(".png")), last, checking);
  }
  return wizard.runtime().isOver() && good ? 0 : 1;
}
