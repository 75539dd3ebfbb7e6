#pragma once
// The texts of the employee-line screens and the search dialog, exactly as the
// user sees them. Some hold Latin letters that look like Greek ones ("To",
// "A.M.K.A", "MM/EEEE"); they are part of the texts.

#include <QString>

namespace veroxia::lines_texts {

using namespace Qt::StringLiterals;

// clang-format off
inline const QString kSearchTitle = u"ΕΥΡΕΣΗ ΑΣΦΑΛΙΣΜΕΝΟΥ"_s;
inline const QString kSearchLabel1 = u"Δώστε Επώνυμο ή Αριθμό Μητρώου Ασφαλισμένου."_s;
inline const QString kSearchLabel2 = u"Επώνυμο"_s;
inline const QString kSearchLabel3 = u"Αριθμός Μητρώου Ασφαλισμένου"_s;
inline const QString kSearchFind = u"Εύρεση"_s;
inline const QString kCancelCmd = u"Ακύρωση"_s;
inline const QString kSearchNotNumber = u"ΠΡΟΣΟΧΗ!! Ο 'ΑΡΙΘΜΟΣ ΜΗΤΡΩΟΥ ΑΣΦΑΛΙΣΜΕΝΟΥ' πρέπει να είναι αριθμός."_s;
inline const QString kSearchNotNine = u"ΠΡΟΣΟΧΗ!! Ο 'ΑΡΙΘΜΟΣ ΜΗΤΡΩΟΥ ΑΣΦΑΛΙΣΜΕΝΟΥ' πρέπει να έχει 9 ψηφία."_s;
inline const QString kLbl18 = u"ΑΡ.ΠΑΡΑΡΤ. / Κ.Α.Δ (18)"_s;
inline const QString kLbl19 = u"ΑΡΙΘΜ.ΜΗΤΡΩΟΥΜ.ΑΣΦ. (19)"_s;
inline const QString kLbl20 = u"Α.Μ.Κ.Α (20)"_s;
inline const QString kLbl21 = u"ΕΠΩΝΥΜΟ (21)"_s;
inline const QString kLbl22 = u"ΟΝΟΜΑ (22)"_s;
inline const QString kLbl23 = u"ΟΝ. ΠΑΤΡΟΣ  (23)"_s;
inline const QString kLbl24 = u"ΟΝ. ΜΗΤΡΟΣ (24)"_s;
inline const QString kLbl25 = u"ΗΜ/ΝΙΑ ΓΕΝΝΗΣΗΣ (25)        (ΗΗ/ΜΜ/ΕΕΕΕ)  "_s;
inline const QString kLbl26 = u"Α.Φ.Μ. (26)"_s;
inline const QString kLbl27 = u"ΠΛΗΡΕΣ ΩΡΑΡΙΟ (27)"_s;
inline const QString kYes = u"ΝΑΙ"_s;
inline const QString kNo = u"ΟΧΙ"_s;
inline const QString kLbl28 = u"ΟΛΕΣ ΕΡΓΑΣΙΜΕΣ (28)"_s;
inline const QString kLbl29 = u"ΚΥΡΙΑΚΕΣ (29)"_s;
inline const QString kLbl30 = u"ΚΩΔΙΚΟΣ ΕΙΔΙΚΟΤΗΤΑΣ (30)"_s;
inline const QString kLbl31 = u"ΕΙΔ. ΠΕΡΙΠΤ. ΑΣΦΑΛ. (31)"_s;
inline const QString kLbl32 = u"ΠΑΚΕΤΟ ΚΑΛΥΨΗΣ (32)"_s;
inline const QString kLbl33 = u"ΜΙΣΘΟΛ. ΠΕΡΙΟΔΟΣ (33)           MM/EEEE"_s;
inline const QString kLbl34 = u"ΑΠΟ ΗΜ/ΝΙΑ ΑΠΑΣΧ. (34)          HH/MM/EEEE"_s;
inline const QString kLbl35 = u"ΕΩΣ ΗΜ/ΝΙΑ ΑΠΑΣΧ.(35)           HH/MM/EEEE"_s;
inline const QString kLbl36 = u"ΤΥΠΟΣ ΑΠΟΔΟΧΩΝ (36)"_s;
inline const QString kLbl37 = u"ΗΜΕΡΕΣ ΑΣΦΑΛΙΣΗΣ (37)"_s;
inline const QString kLbl38 = u"ΗΜΕΡΟΜΙΣΘΙΟ (38)"_s;
inline const QString kLbl39 = u"ΑΠΟΔΟΧΕΣ (39)"_s;
inline const QString kLbl40 = u"ΕΙΣΦΟΡΕΣ ΑΣΦΑΛΙΣΜ.* (40)"_s;
inline const QString kLbl41 = u"ΕΙΣΦΟΡΕΣ ΕΡΓΟΔΟΤΗ*  (41)"_s;
inline const QString kLbl42 = u"ΣΥΝΟΛΙΚΕΣ ΕΙΣΦΟΡΕΣ  (42)"_s;
inline const QString kLbl43 = u"ΕΠΙΔΟΤ. ΑΣΦΑΛ.(ΠΟΣΟ)* (43)"_s;
inline const QString kLbl44 = u"ΕΠΙΔΟΤ. ΕΡΓΟΔ.(%) (44)"_s;
inline const QString kLbl45 = u"ΕΠΙΔΟΤ. ΕΡΓΟΔ.(ΠΟΣΟ)* (45)"_s;
inline const QString kLbl46 = u"ΚΑΤΑΒΛ. ΕΙΣΦΟΡΕΣ (46)"_s;
inline const QString kOvtForm2Title = u"ΒΕΡΟΞΙΑ ΚΟΙΝΩΝ ΕΠΙΧΕΙΡΗΣΕΩΝ"_s;
inline const QString kHeading = u"ΕΙΣΑΓΩΓΗ ΣΤΟΙΧΕΙΩΝ ΕΡΓΑΖΟΜΕΝΩΝ"_s;
inline const QString kNewCmd = u"Νέα Εγγραφή"_s;
inline const QString kUpDateCmd = u"Διόρθωση"_s;
inline const QString kOkCmd = u"Αποθήκευση"_s;
inline const QString kClearCmd = u"Καθαρισμός πεδίων"_s;
inline const QString kDeleteCmd = u"Διαγραφή"_s;
inline const QString kSeekCmd = u"Ευρετήριο"_s;
inline const QString kBackCmd = u"Επιστροφή"_s;
inline const QString kNoNext = u"Δεν υπάρχει επόμενη εγγραφή"_s;
inline const QString kNoPrevious = u"Δεν υπάρχει προηγούμενη εγγραφή"_s;
inline const QString kCloseQuestion = u"Να κλείσει η εφαρμογή;"_s;
inline const QString kNameBranch = u"ΑΡ.ΠΑΡΑΡΤ."_s;
inline const QString kNameKad = u"ΚΑΔ"_s;
inline const QString kNameInsuredId = u"ΑΡΙΘΜ. ΜΗΤΡΩΟΥ ΑΣΦ."_s;
inline const QString kSurnameBlank = u"ΠΡΟΣΟΧΗ!! Το πεδίο 'ΕΠΩΝΥΜΟ' πρέπει να συμπληρωθεί."_s;
inline const QString kNameSurname = u"ΕΠΩΝΥΜΟ"_s;
inline const QString kNameBlank = u"ΠΡΟΣΟΧΗ!! Το πεδίο 'ΟΝΟΜΑ' πρέπει να συμπληρωθεί."_s;
inline const QString kNameName = u"ΟΝΟΜΑ"_s;
inline const QString kFatherBlank = u"ΠΡΟΣΟΧΗ!! Το πεδίο 'ΟΝ.ΠΑΤΡΟΣ' πρέπει να συμπληρωθεί."_s;
inline const QString kNameFather = u"ΟΝ.ΠΑΤΡΟΣ"_s;
inline const QString kMotherBlank = u"ΠΡΟΣΟΧΗ!! Το πεδίο 'ΟΝ.ΜΗΤΡΟΣ' πρέπει να συμπληρωθεί."_s;
inline const QString kNameMother = u"ΟΝ.ΜΗΤΡΟΣ"_s;
inline const QString kBirthBlank = u"ΠΡΟΣΟΧΗ!! Το πεδίο 'ΗΜ/ΝΙΑ ΓΕΝΝΗΣΗΣ' πρέπει να συμπληρωθεί."_s;
inline const QString kNameBirth = u"ΗΜ/ΝΙΑ ΓΕΝΝΗΣΗΣ"_s;
inline const QString kNameAfm = u"Α.Φ.Μ."_s;
inline const QString kFullDayBlank = u"ΠΡΟΣΟΧΗ!! Το πεδίο 'ΠΛΗΡΕΣ ΩΡΑΡΙΟ' πρέπει να συμπληρωθεί"_s;
inline const QString kFullDayYesNo = u"ΠΡΟΣΟΧΗ!! Το πεδίο 'ΠΛΗΡΕΣ ΩΡΑΡΙΟ' πρέπει να είναι 'ΝΑΙ' ή 'ΟΧΙ'"_s;
inline const QString kAllDaysBlank = u"ΠΡΟΣΟΧΗ!! Το πεδίο 'ΟΛΕΣ ΕΡΓΑΣΙΜΕΣ' πρέπει να συμπληρωθεί"_s;
inline const QString kAllDaysYesNo = u"ΠΡΟΣΟΧΗ!! Το πεδίο 'ΟΛΕΣ ΕΡΓΑΣΙΜΕΣ' πρέπει να είναι 'ΝΑΙ' ή 'ΟΧΙ'"_s;
inline const QString kNameSundays = u"ΚΥΡΙΑΚΕΣ"_s;
inline const QString kNameCategory = u"ΚΩΔΙΚΟΣ ΕΙΔΙΚΟΤΗΤΑΣ"_s;
inline const QString kNameSpecial = u"ΕΙΔ. ΠΕΡΙΠΤ. ΑΣΦ."_s;
inline const QString kNameCover = u"ΠΑΚΕΤΟ ΚΑΛΥΨΗΣ"_s;
inline const QString kMonthBlank = u"ΠΡΟΣΟΧΗ!! Ο μήνας περιόδου πρέπει να συμπληρωθεί."_s;
inline const QString kMonthLength = u"ΠΡΟΣΟΧΗ!! Ο μήνας περιόδου πρέπει να έχει δύο ψηφία ."_s;
inline const QString kMonthWrong = u"ΠΡΟΣΟΧΗ!! Ο μήνας περιόδου δεν είναι σωστός."_s;
inline const QString kYearBlank = u"ΠΡΟΣΟΧΗ!! To έτος περιόδου πρέπει να συμπληρωθεί"_s;
inline const QString kYearNumeric = u"ΠΡΟΣΟΧΗ!! To έτος περιόδου πρέπει να είναι αριθμός."_s;
inline const QString kYearLength = u"ΠΡΟΣΟΧΗ!! To έτος περιόδου πρέπει να έχει τέσσερα ψηφία."_s;
inline const QString kPeriodWrong = u"ΠΡΟΣΟΧΗ!! Η 'ΜΙΣΘΟΛΟΓΙΚΗ ΠΕΡΙΟΔΟΣ' δεν είναι σωστή."_s;
inline const QString kNameSalFrom = u"ΑΠΟ ΗΜ/ΝΙΑ ΑΠΑΣΧΟΛΗΣΗΣ"_s;
inline const QString kNameSalTo = u"ΕΩΣ ΗΜ/ΝΙΑ ΑΠΑΣΧΟΛΗΣΗΣ"_s;
inline const QString kNameWageCode = u"ΤΥΠΟΣ ΑΠΟΔΟΧΩΝ"_s;
inline const QString kNameDays = u"ΗΜΕΡΕΣ ΑΣΦΑΛΙΣΗΣ"_s;
inline const QString kNameDailyWage = u"ΗΜΕΡΟΜΙΣΘΙΟ"_s;
inline const QString kNameSalary = u"ΑΠΟΔΟΧΕΣ"_s;
inline const QString kNameInsuredContr = u"ΕΙΣΦΟΡΕΣ ΑΣΦΑΛΙΣΜ."_s;
inline const QString kNameEmployerContr = u"ΕΙΣΦΟΡΕΣ ΕΡΓΟΔΟΤΗ."_s;
inline const QString kNameTotalContr = u"ΣΥΝΟΛΙΚΕΣ ΕΙΣΦΟΡΕΣ"_s;
inline const QString kNameSubsidy = u"ΕΠΙΔΟΤ. ΑΣΦΑΛ.(ΠΟΣΟ)"_s;
inline const QString kNameSubsidyPercent = u"ΕΠΙΔΟΤ. ΕΡΓΟΔ.(%)"_s;
inline const QString kNameEmpSubsidy = u"ΕΠΙΔΟΤ. ΕΡΓΟΔ.(ΠΟΣΟ)"_s;
inline const QString kNamePayed = u"ΚΑΤΑΒΛ. ΕΙΣΦΟΡΕΣ"_s;
inline const QString kInsertDone = u"Η εισαγωγή των στοιχείων ήταν επιτυχής."_s;
inline const QString kUpdateDone = u"Η διόρθωση των στοιχείων ήταν επιτυχής."_s;
inline const QString kDeleteQuestion = u"Να γίνει η διαγραφή ;"_s;
inline const QString kDeleteTitle = u"Επιβεβαίωση Διαγραφής"_s;
inline const QString kCannotDelete = u"ΠΡΟΣΟΧΗ!!Η έγγραφη δεν μπορεί να διαγραφεί"_s;
inline const QString kPersonNotFoundStart = u"Ο ασφαλιζόμενος '"_s;
inline const QString kPersonNotFoundEnd = u"' δέν βρέθηκε."_s;
inline const QString kInsuredIdNotFound = u"Ο ΑΡΙΘΜΟΣ ΜΗΤΡΩΟΥ ΑΣΦΑΛΙΖΟΜΕΝΟΥ δέν βρέθηκε."_s;
inline const QString kStoreProblem = u"ΠΡΟΣΟΧΗ!! Παρουσιάστηκε πρόβλημα!"_s;
inline const QString kNameAmka = u"A.M.K.A"_s;
// The construction-works worker screen: what it shows and says where it differs.
inline const QString kOvtForm4Title = u"ΒΕΡΟΞΙΑ ΟΙΚΟΔΟΜΟΤΕΧΝΙΚΩΝ ΕΡΓΟΥ"_s;
inline const QString kConLbl21 = u"ΥΠΟΚΑΤΑΣΤΗΜΑ ΟΒΤ ΕΚΤΕΛΕΣΗΣ ΕΡΓΟΥ (21)"_s;
inline const QString kConLbl22 = u"ΑΡΙΘΜ.ΜΗΤΡΩΟΥΜ.ΑΣΦ. (22)"_s;
inline const QString kConLbl23 = u"Α.Μ.Κ.Α (23)"_s;
inline const QString kConLbl24 = u"ΕΠΩΝΥΜΟ (24)"_s;
inline const QString kConLbl25 = u"ΟΝΟΜΑ (25)"_s;
inline const QString kConLbl26 = u"ΟΝ. ΠΑΤΡΟΣ  (26)"_s;
inline const QString kConLbl27 = u"ΟΝ. ΜΗΤΡΟΣ (27)"_s;
inline const QString kConLbl28 = u"ΗΜ/ΝΙΑ ΓΕΝΝΗΣΗΣ (28)        (ΗΗ/ΜΜ/ΕΕΕΕ)  "_s;
inline const QString kConLbl29 = u"Α.Φ.Μ. (29)"_s;
inline const QString kConLbl30 = u"ΑΓΓΑΜΟΣ/ΕΓΓΑΜΟΣ (30)"_s;
inline const QString kConLbl31 = u"ΑΡΙΘΜΟΣ ΤΡΙΕΤΙΩΝ (31)"_s;
inline const QString kConLbl32 = u"ΚΥΡΙΑΚΕΣ (32)"_s;
inline const QString kConLbl33 = u"ΚΩΔΙΚΟΣ ΕΙΔΙΚΟΤΗΤΑΣ (33)"_s;
inline const QString kConLbl34 = u"ΕΙΔ. ΠΕΡΙΠΤ. ΑΣΦΑΛ. (34)"_s;
inline const QString kConLbl35 = u"ΠΑΚΕΤΟ ΚΑΛΥΨΗΣ (35)"_s;
inline const QString kConLbl36 = u"ΑΠΟ ΗΜ/ΝΙΑ ΑΠΑΣΧ. (36)"_s;
inline const QString kConLbl37 = u"ΕΩΣ ΗΜ. ΑΠΑΣΧΟΛΗΣΗΣ (37)"_s;
inline const QString kConLbl38 = u"ΤΥΠΟΣ ΑΠΟΔΟΧΩΝ (38)"_s;
inline const QString kConLbl39 = u"ΗΜ. ΑΠΑΣΧΟΛΗΣΗΣ (39)"_s;
inline const QString kConLbl40 = u"ΗΜΕΡΟΜΙΣΘΙΟ*  (40)"_s;
inline const QString kConLbl41 = u"ΑΠΟΔΟΧΕΣ*  (41)"_s;
inline const QString kConLbl42 = u"ΚΑΤΑΣΚ. ΦΑΣΗ     ή  ΕΡΓΑ ΔΗΜΟΣΙΟΥ (42)"_s;
inline const QString kConLbl43 = u"ΗΜ. ΑΠΟΛΟΓΙΣΤΙΚΩΝ  (43)"_s;
inline const QString kConLbl44 = u"ΕΙΣΦΟΡΕΣ ΑΣΦΑΛΙΣΜ.*  (44)"_s;
inline const QString kConLbl45 = u"ΕΙΣΦΟΡΕΣ ΕΡΓΟΔΟΤΗ*  (45)"_s;
inline const QString kConLbl46 = u"ΣΥΝΟΛΙΚΕΣ ΕΙΣΦΟΡΕΣ*  (46)"_s;
inline const QString kMarried = u"ΕΓΓΑΜΟΣ"_s;
inline const QString kUnmarried = u"ΑΓΑΜΟΣ"_s;
inline const QString kNameConBranch = u"ΥΠΟΚΑΤΑΣΤΗΜΑ ΟΒΤ ΕΚΤΕΛΕΣΗΣ ΕΡΓΟΥ"_s;
inline const QString kNameTriennia = u"ΑΡΙΘΜΟΣ ΤΡΙΕΤΙΩΝ"_s;
inline const QString kNameWorkDays = u"ΗΜΕΡΕΣ ΑΠΑΣΧΟΛΗΣΗΣ"_s;
inline const QString kNamePhase = u"ΚΑΤΑΣΚΕΥΑΣΤΙΚΗ ΦΑΣΗ"_s;
inline const QString kNameCostingDays = u"ΗΜ. ΑΠΟΛΟΓΙΣΤΙΚΩΝ"_s;
inline const QString kConCannotDelete = u"ΠΡΟΣΟΧΗ!!Η έγγραφη δεν μπoρεί να διαγραφεί"_s;

// Our own texts, for what the program must still answer clearly.
inline const QString kLineGone = u"ΠΡΟΣΟΧΗ!! Η εγγραφή δεν βρέθηκε όπως εμφανίστηκε. Η διόρθωση δεν αποθηκεύτηκε."_s;
// Where the screen stands among the declaration's lines, and the move to a
// line by its number.
inline const QString kPosition = u"Γραμμή %1 από %2"_s;
inline const QString kPositionNew = u"Νέα γραμμή (γραμμές της δήλωσης: %1)"_s;
inline const QString kPositionUnknown = u"Γραμμή χωρίς αριθμό (γραμμές της δήλωσης: %1)"_s;
inline const QString kGotoCmd = u"Μετάβαση στη γραμμή"_s;
inline const QString kGotoRange = u"ΠΡΟΣΟΧΗ!! Δώστε αριθμό γραμμής από 1 έως %1."_s;
inline const QString kGotoMissing = u"ΠΡΟΣΟΧΗ!! Η γραμμή %1 δεν βρέθηκε."_s;
// clang-format on

}  // namespace veroxia::lines_texts
