#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_LOGGING_RULES", "default.warning=false");  // the offscreen platform complains of what it cannot do
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  // A popup takes no click for that long after it has opened.
  QApplication::setDoubleClickInterval(0);
  return RUN_ALL_TESTS();
}
