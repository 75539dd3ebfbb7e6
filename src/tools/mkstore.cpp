// Creates an empty store file: veroxia-mkstore DIRECTORY. An existing store
// is never touched.

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <cstdio>

#include "store/schema.h"
#include "store/store_file.h"

int main(int argc, char** argv) {
  QCoreApplication app(argc, argv);
  const QStringList args = QCoreApplication::arguments();
  if (args.size() != 2) {
    std::fprintf(stderr, "usage: veroxia-mkstore DIRECTORY\n");
    return 2;
  }
  const QString path = veroxia::StorePath(QDir(args[1]).absolutePath());
  if (QFileInfo::exists(path)) {
    std::printf("%s exists already; left as it is\n", qPrintable(path));
    return 0;
  }
  try {
    veroxia::CreateStore(path, veroxia::StorePassword());
  } catch (const veroxia::StoreError& error) {
    std::fprintf(stderr, "cannot create %s: %d %s\n", qPrintable(path), error.code,
                 qPrintable(error.description));
    return 1;
  }
  std::printf("created an empty store at %s\n", qPrintable(path));
  return 0;
}
