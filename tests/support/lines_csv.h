#pragma once
// Lines of either kind as the CSV text the import reads.

#include <QByteArray>
#include <QString>
#include <utility>
#include <vector>

#include "lines/csv_file.h"
#include "lines/line_kinds.h"

namespace veroxia::testing {

// A line as the fields of its screen hold it: field name, text.
using Line = std::vector<std::pair<QString, QString>>;

// The column names of the kind, then a row for each line as its fields show
// it (an empty date box is an empty value).
inline QByteArray Csv(Kind kind, const std::vector<Line>& lines) {
  QStringList names;
  for (const LineField& field : LinesLayoutOf(kind).fields) names << field.column;
  QByteArray csv = CsvLine(names, ';');
  for (const Line& line : lines) {
    QStringList values;
    for (const auto& [name, text] : line) {
      values << (text == QStringLiteral("__/__/____") ? QString() : text);
    }
    csv += CsvLine(values, ';');
  }
  return csv;
}

// The line with one field's text changed.
inline Line With(Line line, const QString& field, const QString& text) {
  for (auto& [name, value] : line) {
    if (name == field) value = text;
  }
  return line;
}

}  // namespace veroxia::testing
