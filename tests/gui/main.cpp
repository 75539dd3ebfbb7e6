// The view tests run real widgets, so they need an application object; the
// offscreen platform unless the caller asks for another.

#include <gtest/gtest.h>

#include <QApplication>

#include "gui/app_font.h"

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  ::testing::InitGoogleTest(&argc, argv);
  QApplication app(argc, argv);
  veroxia::UseProgramFont();
  return RUN_ALL_TESTS();
}
