// The tests; with --play-to-the-end, instead of them, the player that process_test.py kills over and over.
#include "desktop/program.h"
#include "hands.h"

namespace bogenwerker {
namespace {

// Goes on behind as many gestures as the journal in the current folder holds; what was typed may be typed again.
bool playToTheEnd() {
  const auto counts = [](const std::string& line) {
    return !line.empty() && line[0] != '#' && !line.starts_with("type ");
  };
  const auto done = splitLines(fileBytes(std::string(Journal::fileName)));
  std::string script = scriptOf("zauberin");
  for (auto left = std::count_if(done.begin(), done.end(), counts); left > 0; script.erase(0, script.find('\n') + 1)) {
    left -= counts(script.substr(0, script.find('\n'))) ? 1 : 0;
  }
  bool over = false;
  Program program(
      look(), [](std::string_view /*sheet*/) {}, [&over] { over = true; });
  if (std::any_of(done.begin(), done.end(), parseGesture)) whenBoxOpens("Weiterspielen");
  if (program.begin() != Program::Beginning::shown) return false;
  QApplication::processEvents();
  const auto last = script.find("click cmdErzeugeHTML");
  play(script.substr(0, last));
  whenBoxOpens("OK");
  play(script.substr(last));
  return over;
}

}  // namespace
}  // namespace bogenwerker

int main(int argc, char** argv) {
  // A static Qt for Windows has its own platform alone.
  const bool isWindows = QSysInfo::kernelType() == QStringLiteral("winnt");
  if (!isWindows) qputenv("QT_QPA_PLATFORM", "offscreen:configfile=screens.json");
  qputenv("QT_LOGGING_RULES", "default.warning=false");  // the offscreen platform complains of what it cannot do
  testing::InitGoogleTest(&argc, argv);
  const auto here = std::filesystem::current_path();  // a whole path would be read as Latin-1
  std::filesystem::current_path(bogenwerker::pathOf(SOURCE_DIR "/tests/desktop"));
  QApplication application(argc, argv);
  std::filesystem::current_path(here);
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setDoubleClickInterval(0);  // a popup takes no click for that long after it has opened
  bogenwerker::Look::dress();
  const bool plays = QApplication::arguments().contains(QStringLiteral("--play-to-the-end"));
  return plays ? !bogenwerker::playToTheEnd() : RUN_ALL_TESTS();
}
