// From a press in step 5, with catalogues as full as they may be, to the painted window: a frame of a screen lasts
// 16.7 ms. Painted by the raster engine into memory, as on a screen, but never shown.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDir>
#include <QPushButton>
#include <QTemporaryDir>
#include <chrono>
#include <fstream>

#include "catalogues/catalogues.h"
#include "desktop/desktop.h"
#include "desktop/text.h"
#include "headless/gestures.h"
#include "wizard/wizard.h"

namespace bogenwerker {
namespace {

void fill(const QString& name, const char* rest, int rows) {
  std::ofstream file(name.toStdString());
  for (int i = 1; i <= rows; ++i)
    file << '"' << name.toStdString() << " von der Stange, Nummer " << i << '"' << rest << "\r\n";
}

void fillCatalogues() {
  const char* ware = ",0.01,0,0,1,0,2,0,-1,0,0,0,1,0,0,#TRUE#,#TRUE#";
  fill(QStringLiteral("Cyberware.txt"), ware, mostCyberware);
  fill(QStringLiteral("Bioware.txt"), ware, mostBioware);
  fill(QStringLiteral("MagicStuff.txt"), ",0,0,0", mostMagicStuff);
  fill(QStringLiteral("Cyberdecks.txt"), ",4,0,1", mostCyberdecks);
  fill(QStringLiteral("Connection.txt"), ",0", mostConnections);
  fill(QStringLiteral("Lebensstil.txt"), ",0", mostLebensstile);
}

void playUntilEquipment(Wizard& wizard) {
  std::ifstream script(SOURCE_DIR "/examples/zauberin/gestures.txt");
  const auto here = [&wizard] { return wizard.runtime().visibleForm() == &wizard.formAusrüstung; };
  for (std::string line; !here() && std::getline(script, line);) carryOut(wizard, line);
}

void purchaseIsPainted(benchmark::State& state) {
  QTemporaryDir folder;
  for (const QFileInfo& file : QDir(QStringLiteral(SOURCE_DIR "/data")).entryInfoList(QDir::Files)) {
    QFile::copy(file.absoluteFilePath(), folder.filePath(file.fileName()));
  }
  QDir::setCurrent(folder.path());
  fillCatalogues();
  Files files;
  Wizard wizard({.files = files, .numbers = {}, .showMessage = {}, .throwDie = [] { return 3; }});
  Desktop desktop(Look::dress(), [] {});
  if (!wizard.start()) return state.SkipWithError("catalogues refused");
  playUntilEquipment(wizard);
  auto& form = wizard.formAusrüstung;
  form.cmbLebensstil.pick(0);
  for (auto lines = state.range(0); form.lstAusrüstung.listCount() < lines;) form.cmdAddLebensstil.press();
  desktop.show(wizard.runtime());
  QApplication::processEvents();
  QPushButton* button = nullptr;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible()) button = window->findChild<QPushButton*>(toQt(form.cmdAddLebensstil.name()));
  }

  const int before = form.lstAusrüstung.listCount();
  double longest = 0;
  for (auto _ : state) {
    const auto start = std::chrono::steady_clock::now();
    button->click();
    QApplication::processEvents();
    longest = std::max(longest, std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
  }
  if (form.lstAusrüstung.listCount() <= before) state.SkipWithError("nothing was bought");
  state.counters["longest_ms"] = longest * 1000;
}

BENCHMARK(purchaseIsPainted)->ArgName("lines")->Arg(2)->Arg(850)->Iterations(100)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace bogenwerker

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_LOGGING_RULES", "default.warning=false");
  QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
