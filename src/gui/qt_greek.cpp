#include "gui/qt_greek.h"

#include <QCoreApplication>
#include <QTranslator>
#include <memory>

namespace veroxia {

QTranslator* UseGreekQtTexts() {
  auto* app = QCoreApplication::instance();
  if (app == nullptr) return nullptr;
  auto translator = std::make_unique<QTranslator>();
  if (!translator->load(QStringLiteral(":/translations/qtbase_el.qm"))) return nullptr;
  translator->setParent(app);
  QCoreApplication::installTranslator(translator.get());
  return translator.release();
}

}  // namespace veroxia
