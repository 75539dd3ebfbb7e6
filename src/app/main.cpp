// The program: the start screen opens the store and hands over to the other
// screens. A store that cannot be opened ends the program with status 1
// before any window is shown.

#include <QApplication>

#include "gui/app_font.h"
#include "gui/app_screens.h"
#include "gui/qt_dialogs.h"
#include "gui/qt_greek.h"
#include "shell/vars.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  veroxia::UseGreekQtTexts();
  veroxia::UseProgramFont();
  veroxia::UseReadableDisabledText();

  veroxia::Vars vars;
  vars.AppDir = QCoreApplication::applicationDirPath();
  veroxia::QtDialogs dialogs;
  veroxia::AppScreens screens(vars, dialogs);

  screens.ShowStart();
  if (const auto status = screens.QuitStatus()) return *status;
  return QApplication::exec();
}
