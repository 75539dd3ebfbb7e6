#include "shell/file_names.h"

#include <algorithm>

namespace veroxia {

namespace {

using namespace Qt::StringLiterals;

// "042002" as "2002-04"; anything else with the characters a file name
// cannot hold left out.
QString PeriodPart(const QString& period) {
  const bool month_year =
      period.size() == 6 &&
      std::all_of(period.begin(), period.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
  if (month_year) return period.right(4) + u'-' + period.left(2);
  QString part;
  for (const QChar c : period) {
    if (c.isLetterOrNumber() || c == u'-') part += c;
  }
  return part;
}

}  // namespace

QString DeclarationFileName(Kind kind, int id, const QString& period_from, const QString& period_to,
                            const QString& extension) {
  QString period = PeriodPart(period_from);
  const QString to = PeriodPart(period_to);
  if (!to.isEmpty() && to != period) period += u'_' + to;
  QString name = u"OVT-"_s + (kind == Kind::Common ? u"common"_s : u"construction"_s) + u'-' +
                 QString::number(id);
  if (!period.isEmpty()) name += u'-' + period;
  return name + u'.' + extension;
}

}  // namespace veroxia
