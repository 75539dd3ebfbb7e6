#pragma once
// The texts of the header screens, exactly as the user sees them: blanks,
// Latin letters that look like Greek ones and the spelling are part of them.
// The stop-date messages hold a CR LF between their two lines.

#include <QString>

namespace veroxia::header_texts {

using namespace Qt::StringLiterals;

// clang-format off
// The window, its heading and the close question.
inline const QString kOvtForm1Title = u"ΒΕΡΟΞΙΑ ΚΟΙΝΩΝ ΕΠΙΧΕΙΡΗΣΕΩΝ"_s;
inline const QString kHeading = u"ΕΙΣΑΓΩΓΗ ΣΤΟΙΧΕΙΩΝ ΕΡΓΟΔΟΤΗ"_s;
inline const QString kCloseQuestion = u"Να κλείσει η εφαρμογή;"_s;
inline const QString kOvtForm1CloseTitle = u"ΕΙΣΑΓΩΓΗ ΣΤΟΙΧΕΙΩΝ ΕΡΓΟΔΟΤΩΝ"_s;

// Captions beside the fields, and the headings above groups of them.
inline const QString kKodDescrLbl = u"ΠΕΡΙΓΡΑΦΗ"_s;
inline const QString kText2Lbl = u"ΚΩΔΙΚΟΣ (2)"_s;
inline const QString kBranchHeading = u"ΥΠΟΚΑΤΑΣΤΗΜΑ ΟΒΤ ΥΠΟΒΟΛΗΣ"_s;
inline const QString kText3Lbl = u"ΟΝΟΜΑΣΙΑ (3)"_s;
inline const QString kText4Lbl = u"ΕΠΩΝΥΜΙΑ ΕΡΓΟΔΟΤΗ (4)"_s;
inline const QString kFirstNmLbl = u"ΟΝΟΜΑ"_s;
inline const QString kFatherNmLbl = u"ΟΝΟΜΑ ΠΑΤΡΟΣ"_s;
inline const QString kText5Lbl = u"Α.Μ.Ε. (5)"_s;
inline const QString kText6Lbl = u"Α.Φ.Μ.  (6)"_s;
inline const QString kText7Lbl = u"ΟΔΟΣ (7)"_s;
inline const QString kAddressHeading = u"ΔΙΕΥΘΥΝΣΗ"_s;
inline const QString kText8Lbl = u"ΑΡΙΘΜΟΣ (8)"_s;
inline const QString kText9Lbl = u"ΤΚ (9)"_s;
inline const QString kText10Lbl = u"ΠΟΛΗ (10)"_s;
inline const QString kPeriodSeparator = u"/"_s;
inline const QString kText11Lbl = u"ΑΠΟ ΜΗΝΑ/ΕΤΟΣ (11)       (MM/EEEE)"_s;
inline const QString kText12Lbl = u"ΕΩΣ ΜΗΝΑ/ΕΤΟΣ (12)          (MM/EEEE)"_s;
inline const QString kFlDateLbl = u"ΗΜ/ΝΙΑ ΥΠΟΒΟΛΗΣ ΔΗΛΩΣΗΣ"_s;
inline const QString kStopDateLbl = u"ΗΜ/ΝΙΑ ΔΙΑΚΟΠΗΣ ΕΡΓΑΣΙΩΝ"_s;
inline const QString kTotalsColumnLbl = u"ΣΥΝΟΛΑ (17)"_s;
inline const QString kMonthsRowLbl = u"ΣΥΝΟΛΑ ΑΝΑ ΜΗΝΑ (13)"_s;
inline const QString kText1Lbl = u"ΚΩΔΙΚΟΣ (1)"_s;
inline const QString kDaysRowLbl = u"ΗΜΕΡΩΝ ΑΣΦΑΛΙΣΗΣ (14)"_s;
inline const QString kSalariesRowLbl = u"ΑΠΟΔΟΧΩΝ* (15)"_s;
inline const QString kContributionsRowLbl = u"ΚΑΤΑΒΛ. ΕΙΣΦΟΡΩΝ*(16)"_s;
inline const QString kTypeHeading = u"ΤΥΠΟΣ ΔΗΛΩΣΗΣ"_s;

// The declaration types: code, description and the caption beside each option.
inline const QString kType01 = u"01"_s;
inline const QString kType01Descr = u"ΚΑΝΟΝΙΚΗ"_s;
inline const QString kType01Caption = u" 01 ΚΑΝΟΝΙΚΗ"_s;
inline const QString kType02 = u"02"_s;
inline const QString kType02Descr = u"ΕΚΤΑΚΤΗ"_s;
inline const QString kType02Caption = u"  02 ΕΚΤΑΚΤΗ"_s;
inline const QString kType03 = u"03"_s;
inline const QString kType03Descr = u"ΕΠΑΝΥΠΟΒΟΛΗ"_s;
inline const QString kType03Caption = u"  03 ΕΠΑΝΥΠΟΒΟΛΗ"_s;

// Buttons.
inline const QString kSaveCmd = u"Αποθήκευση "_s;
inline const QString kQorInsert = u"Εισαγωγή εργαζομένων"_s;
inline const QString kPrintCmd = u"Εκτύπωση στοιχείων"_s;
inline const QString kPrintSumCmd = u"Εκτύπωση συγκεντρωτικού"_s;
inline const QString kCreateFile = u"Δημιουργία αρχείου"_s;
inline const QString kExitCmd = u"Επιστροφή"_s;
inline const QString kUpDateCmd = u"Διόρθωση"_s;
inline const QString kCancelCmd = u"Ακύρωση"_s;

// The field names the shared checks build their messages from. "A.M.E." and
// "T.K." are Latin capitals, "A.Φ.Μ." starts with a Latin A.
inline const QString kNameOvtCode = u"ΚΩΔΙΚΟΣ ΟΒΤ"_s;
inline const QString kNameFirstNm = u"ΟΝΟΜΑ"_s;
inline const QString kNameFatherNm = u"ΟΝΟΜΑ ΠΑΤΡΟΣ"_s;
inline const QString kNameAme = u"A.M.E."_s;
inline const QString kNameAfm = u"A.Φ.Μ."_s;
inline const QString kNameTk = u"T.K."_s;
inline const QString kNameDays = u"ΗΜΕΡΩΝ ΑΣΦΑΛΙΣΗΣ"_s;
inline const QString kNameSalaries = u"ΑΠΟΔΟΧΩΝ"_s;
inline const QString kNameContributions = u"ΚΑΤΑΒΛ. ΕΙΣΦΟΡΩΝ"_s;
inline const QString kNameTotalDays = u"ΣΥΝΟΛΑ ΗΜΕΡΩΝ ΑΣΦΑΛΙΣΗΣ"_s;
inline const QString kNameTotalSalaries = u"ΣΥΝΟΛΑ ΑΠΟΔΟΧΩΝ"_s;
inline const QString kNameTotalContributions = u"ΣΥΝΟΛΑ ΚΑΤΑΒΛ. ΕΙΣΦΟΡΩΝ"_s;
inline const QString kNameFlDate = u"ΗΜ/ΝΙΑ ΥΠΟΒΟΛΗΣ ΔΗΛΩΣΕΩΣ"_s;
inline const QString kNameStopDate = u"ΗΜ/ΝΙΑ ΔΙΑΚΟΠΗΣ ΕΡΓΑΣΙΩΝ"_s;

// Messages of the header checks, as the user sees them (spelling included).
inline const QString kText3Blank = u"ΠΡΟΣΟΧΗ!!Το πέδιο 'ΟΝΟΜΑΣΙΑ' ΟΒΤ υποβολής πρέπει να συμπληρωθεί."_s;
inline const QString kText4Blank = u"ΠΡΟΣΟΧΗ!!Το πέδιο 'ΕΠΩΝΥΜΙΑ ΕΡΓΟΔΟΤΗ' πρέπει να συμπληρωθεί."_s;
inline const QString kStreetBlank = u"ΠΡΟΣΟΧΗ!! Το πεδίο 'ΟΔΟΣ' πρέπει να συμπληρωθεί."_s;
inline const QString kCityBlank = u"ΠΡΟΣΟΧΗ!! Το πέδιο 'ΠΟΛΗ' πρέπει να συμπληρωθεί."_s;
inline const QString kStopDateNotIn01 = u"ΠΡΟΣΟΧΗ!!Σε δηλώσης τύπου '01 ΚΑΝΟΝΙΚΗ' δεν επιτρέπεται να συμπληρώνεται\r\nτο πεδίο 'ΗΜ/ΝΙΑ ΔΙΑΚΟΠΗΣ ΕΡΓΑΣΙΩΝ'."_s;
inline const QString kStopDateNotIn03 = u"ΠΡΟΣΟΧΗ!!Σε δηλώσης τύπου '03 ΕΠΑΝΥΠΟΒΟΛΗ' δεν επιτρέπεται να συμπληρώνεται\r\nτο πεδίο 'ΗΜ/ΝΙΑ ΔΙΑΚΟΠΗΣ ΕΡΓΑΣΙΩΝ'."_s;
inline const QString kStopDateBlank = u"ΠΡΟΣΟΧΗ!!Το πέδιο 'ΗΜ/ΝΙΑ ΔΙΑΚΟΠΗΣ ΕΡΓΑΣΙΩΝ' πρέπει να συμπληρωθεί."_s;
inline const QString kUnknownFieldError = u"ΠΡΟΣΟΧΗ!! Παρουσιάστηκε άγνωστο λάθος σε κάποιο απο τα πεδία."_s;
// Ours: a character the submission file's code page cannot hold (the box's
// caption, the character, its code in hexadecimal).
inline const QString kNotInCodePage = u"ΠΡΟΣΟΧΗ!! Το πεδίο '%1' έχει τον χαρακτήρα '%2' (U+%3), που δεν μπορεί να γραφτεί στο αρχείο της δήλωσης (κωδικοσελίδα Windows-1253). Διορθώστε ή σβήστε τον χαρακτήρα."_s;

// Messages of the save.
inline const QString kSaveFailed = u"ΠΡΟΣΟΧΗ!! Η αποθήκευση των στοιχείων δεν ήταν επιτυχής.Παρακαλώ ξαναπροσπαθήστε."_s;
inline const QString kSaveDone = u"Η αποθήκευση των στοιχείων ήταν επιτυχής."_s;
inline const QString kSaveTitle = u"ΕΙΣΑΓΩΓΗ ΣΤΟΙΧΕΙΩΝ ΕΡΓΟΔΟΤΗ"_s;

// The construction-works header: what it shows and says where it differs.
inline const QString kOvtForm3Title = u"ΒΕΡΟΞΙΑ ΟΙΚΟΔΟΜΟΤΕΧΝΙΚΟΥ ΕΡΓΟΥ"_s;
inline const QString kSeatHeading = u"ΔΙΕΥΘΥΝΣΗ ΕΔΡΑΣ ΕΡΓΟΔΟΤΗ"_s;
inline const QString kConText5Lbl = u"ΟΔΟΣ (5)"_s;
inline const QString kConText6Lbl = u"ΑΡΙΘΜΟΣ (6)"_s;
inline const QString kConText7Lbl = u"ΤΚ (7)"_s;
inline const QString kConText8Lbl = u"ΠΟΛΗ (8)"_s;
inline const QString kConText9Lbl = u"ΕΙΔΟΣ ΕΡΓΟΥ(9)"_s;
inline const QString kConText10Lbl = u"Α.Μ.Ε. (10)"_s;
inline const QString kConText11Lbl = u"Α.Μ.Ο.Ε  (11)"_s;
inline const QString kConText12Lbl = u"Α.Φ.Μ.  (12)"_s;
inline const QString kSiteHeading = u"ΔΙΕΥΘΥΝΣΗ ΕΡΓΟΥ"_s;
inline const QString kConText13Lbl = u"ΟΔΟΣ (13)"_s;
inline const QString kConText14Lbl = u"ΑΡΙΘΜΟΣ (14)"_s;
inline const QString kConText15Lbl = u"ΤΚ (15)"_s;
inline const QString kConText16Lbl = u"ΠΟΛΗ (16)"_s;
inline const QString kConText17Lbl = u"ΜΗΝΑΣ/ΕΤΟΣ (17)       (MM/EEEE)"_s;
inline const QString kConTotalsHeading = u"ΣΥΝΟΛΑ ΞΡΦ"_s;
inline const QString kConText18Lbl = u"ΑΠΟΔΟΧΩΝ* (18)"_s;
inline const QString kConText19Lbl = u"ΗΜΕΡΩΝ ΑΠΑΣΧΟΛΗΣΗΣ (19)"_s;
inline const QString kConText20Lbl = u"ΕΙΣΦΟΡΩΝ  (20)"_s;
inline const QString kConType02Caption = u"02 ΕΚΤΑΚΤΗ"_s;
inline const QString kConType03Caption = u" 03 ΕΠΑΝΥΠΟΒΟΛΗ"_s;
inline const QString kConExitCmd = u"Έξοδος"_s;
inline const QString kConCloseTitle = u"ΕΙΣΑΓΩΓΗ ΣΤΟΙΧΕΙΩΝ ΕΡΓΑΔΟΤΩΝ"_s;
inline const QString kEmpCityBlank = u"ΠΡΟΣΟΧΗ!! Το πεδίο 'ΠΟΛΗ' πρέπει να συμπληρωθεί."_s;
inline const QString kConDescrBlank = u"ΠΡΟΣΟΧΗ!! Το πεδίο 'ΕΙΔΟΣ ΕΡΓΟΥ' πρέπει να συμπληρωθεί."_s;
inline const QString kNameAmoe = u"A.M.O.E."_s;
inline const QString kNameWorkDays = u"ΗΜΕΡΩΝ ΑΠΑΣΧΟΛΗΣΗΣ"_s;
inline const QString kNameConContributions = u"ΕΙΣΦΟΡΩΝ"_s;
inline const QString kConSaveErrorFirstLine = u"ΠΡΟΣΟΧΗ!! Παρουσιάστηκε πρόβλημα!"_s;

// Our own texts, for what the program must still answer clearly.
inline const QString kLoadFailed = u"Παρουσιάστηκε πρόβλημα στην ανάγνωση των στοιχείων του εργοδότη."_s;
// clang-format on

}  // namespace veroxia::header_texts
