#include "store/rows.h"

namespace veroxia::detail {

QByteArray ColumnList(const char* table) {
  return ColumnsOf(table).join(QStringLiteral(", ")).toLatin1();
}

QByteArray Placeholders(const char* table) {
  QByteArray marks;
  for (qsizetype i = 0; i < ColumnsOf(table).size(); ++i) marks += i == 0 ? "?" : ", ?";
  return marks;
}

}  // namespace veroxia::detail
