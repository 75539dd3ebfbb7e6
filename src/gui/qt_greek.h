#pragma once
// Qt's own dialogs in Greek: print preview, printing, page set-up and the file
// chooser. Qt ships no Greek catalogue of its texts, so the program carries its
// own, built into it.

class QTranslator;

namespace veroxia {

// Installs the catalogue into the running application, whatever the machine's
// language, and leaves it there for as long as the application lives. Returns
// the installed translator, owned by the application (deleting it uninstalls
// it), or nullptr without an application or when the catalogue cannot be read.
QTranslator* UseGreekQtTexts();

}  // namespace veroxia
