#pragma once
// The messages of the shared field checks, exactly as the user sees them:
// blanks, spelling and the Latin "To" and "Tο" are part of them.

#include <QString>

namespace veroxia::check_texts {

using namespace Qt::StringLiterals;

// clang-format off
inline QString FieldStart(const QString& field) { return u"ΠΡΟΣΟΧΗ!! To πεδίο '"_s + field; }
inline QString MustBeFilled(const QString& field) { return FieldStart(field) + u"' πρέπει να συμπληρωθεί."_s; }
inline QString NumericTwoBlanks(const QString& field) { return FieldStart(field) + u"'  είναι αριθμητικό."_s; }
inline QString NumericOneBlank(const QString& field) { return FieldStart(field) + u"' είναι αριθμητικό."_s; }
inline QString MustBeNumeric(const QString& field) { return FieldStart(field) + u"' πρέπει να είναι αριθμητικό."_s; }
inline QString MustBeWhole(const QString& field) { return FieldStart(field) + u"' πρέπει να είναι ακέραιος αριθμός."_s; }
inline QString MustHaveDigits(const QString& field, int digits) {
  return FieldStart(field) + u"' πρέπει να είναι έχει "_s + QString::number(digits) + u" ψηφία."_s;
}
inline const QString kNoDots = u"ΠΡΟΣΟΧΗ!! Τα δεκαδικό μέρος χωρίζεται με ',' και δεν επιτρέπεται να βάζετε τελείες στον αριθμό."_s;
inline const QString kTwoDecimals = u"ΠΡΟΣΟΧΗ!! Δεν επιτρέπεται να βάζετε περισσότερα απο δύο δεκαδικά ψηφία."_s;
inline QString IntegerPartTooLong(int digits) {
  return u"ΠΡΟΣΟΧΗ!! Tο μήκος του ακέραιου μέρους του αριθμού δεν πρέπει να είναι μεγαλύτερο απο "_s + QString::number(digits) + u" ψηφία."_s;
}
inline QString DateWrong(const QString& field) { return u"ΛΑΘΟΣ!! H ημ/νία του πεδίου '"_s + field + u"'  δεν είναι σωστή."_s; }
inline QString HasDigits(const QString& field) {
  return u"Το πεδίο '"_s + field + u"' περιέχει μη αποδεκτούς αριθμητικούς χαρακτήρες."_s;
}
// clang-format on

}  // namespace veroxia::check_texts
