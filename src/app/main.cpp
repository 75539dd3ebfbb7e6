// The program: the start screen opens the store and hands over to the other
// screens. A store that cannot be opened ends the program with status 1
// before any window is shown. However the program ends, the store's log is
// written back into the store file last, and a failure told.

#include <QApplication>
#include <optional>

#include "gui/app_font.h"
#include "gui/app_screens.h"
#include "gui/qt_dialogs.h"
#include "gui/qt_greek.h"
#include "shell/store_open.h"
#include "shell/vars.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  veroxia::UseGreekQtTexts();
  veroxia::UseProgramFont();
  veroxia::UseReadableDisabledText();

  veroxia::Vars vars;
  vars.AppDir = QCoreApplication::applicationDirPath();
  veroxia::QtDialogs dialogs;
  int status = 0;
  {
    // The screens go first: their readings of the store end before it is
    // closed.
    veroxia::AppScreens screens(vars, dialogs);
    screens.ShowStart();
    const std::optional<int> quit = screens.QuitStatus();
    status = quit ? *quit : QApplication::exec();
  }
  veroxia::CloseStore(vars, dialogs);
  return status;
}
