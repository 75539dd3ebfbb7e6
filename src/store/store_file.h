#pragma once
// Where the store lives and how it is keyed.

#include <QString>
#include <QStringList>

namespace veroxia {

// The store file, in the program's own directory.
inline QString StoreFileName() { return QStringLiteral("QorDb.mdb"); }
inline QString StorePath(const QString& app_dir) { return app_dir + u'/' + StoreFileName(); }
// The key the store is encrypted with.
inline QString StorePassword() { return QStringLiteral("41kase41"); }
// What SQLite may keep beside a database file, after its name.
inline const QStringList& CompanionSuffixes() {
  static const QStringList suffixes{QStringLiteral("-wal"), QStringLiteral("-shm"),
                                    QStringLiteral("-journal")};
  return suffixes;
}

}  // namespace veroxia
