#include "shell/errors.h"

#include <sqlcipher/sqlite3.h>

#include "shell/texts.h"

namespace veroxia {

QString ErrorDescription(const StoreError& error) {
  switch (error.code & 0xff) {  // an extended code tells its primary code in its low byte
    case SQLITE_NOTADB:
      return texts::kStoreNotADatabase;
    case SQLITE_READONLY:
      return texts::kStoreReadOnly;
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
    case SQLITE_PROTOCOL:
      return texts::kStoreInUse;
    case SQLITE_FULL:
      return texts::kStoreDiskFull;
    case SQLITE_CORRUPT:
      return texts::kStoreDamaged;
    case SQLITE_CANTOPEN:
      return texts::kStoreCannotOpen;
    case SQLITE_IOERR:
      return texts::kStoreIoError;
    case SQLITE_PERM:
    case SQLITE_AUTH:
      return texts::kStoreNoPermission;
    case SQLITE_NOMEM:
      return texts::kStoreNoMemory;
    case SQLITE_INTERRUPT:
      return texts::kStoreInterrupted;
    case SQLITE_CONSTRAINT:
      return texts::kStoreRefused;
    case SQLITE_TOOBIG:
      return texts::kStoreTooBig;
    default:  // SQLite's own words are English
      return error.sqlite_words ? texts::kStoreOtherError.arg(error.code) : error.description;
  }
}

QString ErrorMessage(const QString& first_line, const StoreError& error) {
  return ErrorMessage(first_line, error.code, ErrorDescription(error));
}

QString ErrorMessage(const QString& first_line, int code, const QString& description) {
  return first_line + QStringLiteral("\r\n") + texts::kErrorCode + QString::number(code) +
         QStringLiteral("\r\n") + texts::kErrorDescription + description;
}

}  // namespace veroxia
