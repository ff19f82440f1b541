// From a press to the painted window, where a frame of a screen lasts 16.7 ms. Painted by the raster engine into
// memory, as on a screen, but never shown.
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
#include "wizard/journal.h"
#include "wizard/wizard.h"

namespace bogenwerker {
namespace {

// Goes to a folder with the shipped data.
struct Folder {
  Folder() {
    for (const QFileInfo& file : QDir(QStringLiteral(SOURCE_DIR "/data")).entryInfoList(QDir::Files)) {
      QFile::copy(file.absoluteFilePath(), path.filePath(file.fileName()));
    }
    QDir::setCurrent(path.path());
  }
  QTemporaryDir path;
};

// The gestures of an example.
std::vector<Gesture> gesturesOf(const std::string& example) {
  std::ifstream script(SOURCE_DIR "/examples/" + example + "/gestures.txt");
  std::vector<Gesture> gestures;
  for (std::string line; std::getline(script, line);) {
    if (auto gesture = parseGesture(line)) gestures.push_back(std::move(*gesture));
  }
  return gestures;
}

Environment quiet(Files& files) {
  return {.files = files, .numbers = {}, .showMessage = [](Message, std::string_view) {}, .throwDie = [] { return 3; }};
}

Look& look() {
  static Look& shared = Look::dress();
  return shared;
}

double millisecondsOf(const std::function<void()>& action) {
  const auto start = std::chrono::steady_clock::now();
  action();
  QApplication::processEvents();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

// ---------------------------------------------------------------------------------------------------------------------

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

// A press in step 5, with catalogues as full as they may be.
void purchaseIsPainted(benchmark::State& state) {
  const Folder folder;
  fillCatalogues();
  Files files;
  Wizard wizard(quiet(files));
  Desktop desktop(look(), [] {});
  if (!wizard.start()) return state.SkipWithError("catalogues refused");
  auto& form = wizard.formAusrüstung;
  for (const Gesture& gesture : gesturesOf("zauberin")) {
    if (!form.isVisible()) wizard.runtime().play(gesture);
  }
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
  for (auto _ : state) longest = std::max(longest, millisecondsOf([button] { button->click(); }));
  if (form.lstAusrüstung.listCount() <= before) state.SkipWithError("nothing was bought");
  state.counters["longest_ms"] = longest;
}
BENCHMARK(purchaseIsPainted)->ArgName("lines")->Arg(2)->Arg(850)->Iterations(100)->Unit(benchmark::kMillisecond);

// ---------------------------------------------------------------------------------------------------------------------

// Every passage of a whole character: the best of each, by the form that it leads to, in milliseconds.
void passagesArePainted(benchmark::State& state) {
  const auto gestures = gesturesOf("sammlerin");
  std::map<std::string, double> best;
  for (auto _ : state) {
    const Folder folder;
    Files files;
    Wizard wizard(quiet(files));
    Desktop desktop(look(), [] {});
    wizard.start();
    desktop.show(wizard.runtime());
    for (const Gesture& gesture : gestures) {
      const Form* const before = wizard.runtime().visibleForm();
      const double spent = millisecondsOf([&] { wizard.runtime().play(gesture); });
      const Form* const after = wizard.runtime().visibleForm();
      if (after == before || after == nullptr) continue;
      double& shortest = best.try_emplace(std::string(after->name()), spent).first->second;
      shortest = std::min(shortest, spent);
    }
    if (!wizard.runtime().isOver()) state.SkipWithError("the character was not finished");
  }
  for (const auto& [form, milliseconds] : best) state.counters[form] = milliseconds;
}
BENCHMARK(passagesArePainted)->Iterations(10)->Unit(benchmark::kMillisecond);

// An interrupted character, from the check of the folder to the form where it stood: to stay below 100 ms.
void goingOnIsPainted(benchmark::State& state) {
  const auto gestures = gesturesOf("sammlerin");
  double longest = 0;
  for (auto _ : state) {
    const Folder folder;
    {
      Files files;
      Journal journal(files);
      Wizard wizard(journal.around(quiet(files)));
      wizard.start();
      journal.record(wizard.runtime(), [](std::string_view) {});
      for (std::size_t i = 0; i + 1 < gestures.size(); ++i) wizard.runtime().play(gestures[i]);
    }
    Files files;
    Journal journal(files);
    Wizard wizard(journal.around(quiet(files)));
    Desktop desktop(look(), [] {});
    const double spent = millisecondsOf([&] {
      wizard.start();
      journal.resume(wizard, [] { return true; });
      desktop.show(wizard.runtime(), &journal);
    });
    longest = std::max(longest, spent);
    state.SetIterationTime(spent / 1000);
    if (wizard.runtime().visibleForm() != &wizard.formFeinschliff) state.SkipWithError("it did not go on");
  }
  state.counters["longest_ms"] = longest;
}
BENCHMARK(goingOnIsPainted)->Iterations(10)->UseManualTime()->Unit(benchmark::kMillisecond);

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
