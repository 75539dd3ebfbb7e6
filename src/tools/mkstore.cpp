// Creates an empty store file: veroxia-mkstore DIRECTORY. An existing store
// is never touched.

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <cstdio>

#include "shell/errors.h"
#include "store/schema.h"
#include "store/store_file.h"
#include "tools/texts.h"

namespace {

void Say(std::FILE* stream, const QString& text) {
  std::fputs((text + u'\n').toUtf8().constData(), stream);
}

}  // namespace

int main(int argc, char** argv) {
  using namespace veroxia;
  using namespace Qt::StringLiterals;
  QCoreApplication app(argc, argv);
  const QStringList args = QCoreApplication::arguments();
  if (args.size() != 2) {
    Say(stderr, tools_texts::kMkstoreUsage);
    return 2;
  }
  const QString path = StorePath(QDir(args[1]).absolutePath());
  if (QFileInfo::exists(path)) {
    Say(stdout, tools_texts::kExists.arg(path));
    return 0;
  }
  try {
    CreateStore(path, StorePassword());
  } catch (const StoreError& error) {
    Say(stderr,
        ErrorMessage(tools_texts::kNotCreated.arg(path), error).replace(u"\r\n"_s, u"\n"_s));
    return 1;
  }
  Say(stdout, tools_texts::kCreated.arg(path));
  return 0;
}
