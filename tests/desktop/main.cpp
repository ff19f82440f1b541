#include <gtest/gtest.h>

#include "hands.h"

int main(int argc, char** argv) {
  const QTemporaryDir folder;
  const std::string configuration = folder.filePath(QStringLiteral("screens.json")).toStdString();
  std::string list;
  for (int left = 0; const auto& [width, height] : bogenwerker::screens) {
    const auto number = [](const char* name, int value) { return std::string(name) + std::to_string(value); };
    list += (list.empty() ? "" : ",") + number("{\"name\":\"", left) + number("\",\"x\":", left) +
            number(",\"width\":", width) + number(",\"height\":", height) + "}";
    left += width;
  }
  bogenwerker::writeBytes(configuration, "{\"screens\":[" + list + "]}");
  qputenv("QT_QPA_PLATFORM", ("offscreen:configfile=" + configuration).c_str());
  qputenv("QT_LOGGING_RULES", "default.warning=false");  // the offscreen platform complains of what it cannot do
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setDoubleClickInterval(0);  // a popup takes no click for that long after it has opened
  return RUN_ALL_TESTS();
}
