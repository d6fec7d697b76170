// Runs the tests of windows.
#include <gtest/gtest.h>

#include <QApplication>

#include "common/ui/Buttons.h"
#include "common/ui/SingleLineBoxes.h"

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("LC_ALL", "C.UTF-8");
  testing::InitGoogleTest(&argc, argv);
  const QApplication application(argc, argv);
  QApplication::setStyle("Fusion");
  QApplication::setQuitOnLastWindowClosed(false);
  logchecker::KeepBoxesToOneLine();
  logchecker::HoldButtonRules();
  return RUN_ALL_TESTS();
}
