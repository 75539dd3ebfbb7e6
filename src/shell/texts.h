#pragma once
// The texts the start screen, the period checks, the registry and the
// carry-over show, exactly as the user sees them. Some hold Latin letters
// that look like Greek ones ("To", "O"); they are part of the texts.

#include <QString>

namespace veroxia::texts {

using namespace Qt::StringLiterals;

inline const QString kAppTitle = u"Ξ.Ρ.Φ."_s;
inline const QString kTitleStart = u"ΒΕΡΟΞΙΑ"_s;
inline const QString kTitleVersion = u"  (εκδ. "_s;

inline const QString kCommand1 = u"Βεροξία  Κοινών Επιχειρήσεων "_s;
inline const QString kCommand4 =
    u"Βεροξία Κοινών Επιχειρήσεων   (Με στοιχεία προηγούμενης περιόδου)"_s;
inline const QString kCommand2 = u"Βεροξία Οικοδομοτεχνικών Έργων "_s;
inline const QString kCommand5 =
    u"Βεροξία Οικοδομοτεχνικών Έργων (Με στοιχεία προηγούμενης περιόδου)"_s;
inline const QString kCommand3 = u"Έξοδος"_s;
inline const QString kLabel2 = u"Αρχή περιόδου    ΜΜ        ΕΕΕΕ"_s;
inline const QString kLabel3 = u"Τέλος περιόδου    ΜΜ        ΕΕΕΕ"_s;
inline const QString kLabel6 = u"ΗΜ/ΝΙΑ ΠΕΡΙΟΔΟΥ ΕΡΓΟΥ ΜΜ        ΕΕΕΕ"_s;
inline const QString kOkCmd = u"ΟΚ"_s;
inline const QString kCancelCmd = u"Άκυρο"_s;
// A file the user asked for (a report, an export) that could not be written.
inline const QString kFileNotWritten = u"ΠΡΟΣΟΧΗ!! Το αρχείο %1 δεν γράφτηκε."_s;

inline const QString kStartMonthBlank =
    u"ΠΡΟΣΟΧΗ!! Ο μήνας αρχής περιόδου πρέπει να συμπληρωθεί."_s;
inline const QString kStartMonthLength =
    u"ΠΡΟΣΟΧΗ!! Ο μήνας αρχής περιόδου πρέπει να έχει δύο ψηφία ."_s;
inline const QString kStartMonthWrong = u"ΠΡΟΣΟΧΗ!! Ο μήνας αρχής περιόδου δεν είναι σωστός."_s;
inline const QString kStartYearBlank = u"ΠΡΟΣΟΧΗ!! To έτος αρχής περιόδου πρέπει να συμπληρωθεί."_s;
inline const QString kStartYearNumeric =
    u"ΠΡΟΣΟΧΗ!! To έτος αρχής περιόδου πρέπει να είναι αριθμός."_s;
inline const QString kStartYearLength =
    u"ΠΡΟΣΟΧΗ!! To έτος αρχής περιόδου πρέπει να έχει τέσσερα ψηφία ."_s;
inline const QString kEndMonthBlank = u"ΠΡΟΣΟΧΗ!! Ο μήνας τέλους περιόδου πρέπει να συμπληρωθεί"_s;
inline const QString kEndMonthLength =
    u"ΠΡΟΣΟΧΗ!! Ο μήνας τέλους περιόδου πρέπει να έχει δύο ψηφία ."_s;
inline const QString kEndMonthWrong = u"ΠΡΟΣΟΧΗ!! Ο μήνας τέλους περιόδου δεν είναι σωστός."_s;
inline const QString kEndYearBlank = u"ΠΡΟΣΟΧΗ!! Το έτος τέλους περιόδου πρέπει να συμπληρωθεί."_s;
inline const QString kEndYearNumeric =
    u"ΠΡΟΣΟΧΗ!! To έτος τέλους περιόδου πρέπει να είναι αριθμός."_s;
inline const QString kEndYearLength =
    u"ΠΡΟΣΟΧΗ!! To έτος τέλους περιόδου πρέπει να έχει τέσσερα ψηφία ."_s;
inline const QString kEndYearDiffers =
    u"ΠΡΟΣΟΧΗ!! To έτος τέλους περιόδου πρέπει να είναι ίδιο με το έτος αρχής περιόδου."_s;
inline const QString kStartMonthNotQuarter =
    u"ΠΡΟΣΟΧΗ!! O μήνας αρχής περιόδου δεν είναι σωστός."_s;
inline const QString kEndMonthNotQuarter = u"ΠΡΟΣΟΧΗ!! O μήνας τέλους περιόδου δεν είναι σωστός."_s;
// The construction period reuses the start-month texts above; its year texts
// differ from the common ones in their last characters.
inline const QString kConYearBlank = u"ΠΡΟΣΟΧΗ!! To έτος αρχής περιόδου πρέπει να συμπληρωθεί"_s;
inline const QString kConYearNumeric =
    u"ΠΡΟΣΟΧΗ!! To έτος αρχής περιόδου πρέπει να είναι αριθμός ."_s;
inline const QString kConYearLength =
    u"ΠΡΟΣΟΧΗ!! To έτος αρχής περιόδου πρέπει να έχει τέσσερα ψηφία ."_s;

inline const QString kDeclarationFound =
    u"ΠΡΟΣΟΧΗ!! Βρέθηκε δήλωση για την περίοδο που δηλώσατε."_s;
inline const QString kNoPreviousDeclaration =
    u"ΠΡΟΣΟΧΗ!! Δεν βρέθηκε δήλωση προηγούμενης περιόδου."_s;
inline const QString kStoreMissing = u"ΠΡΟΣΟΧΗ!! Το αρχείο 'QorDb.mdb' δεν μπορεί να βρεθεί."_s;
inline const QString kStoreCritical =
    u"Παρουσιάστηκε κρίσιμο λάθος εφαρμογής.Το πρόγραμμα θα κλείσει,παρακαλώ ξαναδοκιμάστε!! "_s;
inline const QString kCarryOverFailed = u"Παρουσιάστηκε πρόβλημα στην μεταφόρα των εγγραφών."_s;
// After the carry-over: the copied lines' payroll months may follow the new
// period. The periods as "04/2002" or "04/2002 έως 06/2002".
inline const QString kPayrollMoveQuestion = u"Οι γραμμές των εργαζομένων αντιγράφηκαν με τη μισθολογική περίοδο της προηγούμενης δήλωσης (%1). Να μεταφερθεί η μισθολογική περίοδός τους στη νέα περίοδο (%2);"_s;
inline const QString kPayrollMoveMonth = u"%1 σε %2, γραμμές: %3"_s;
inline const QString kPayrollMoveLeft = u"Μένουν όπως αντιγράφηκαν οι γραμμές με μισθολογική περίοδο έξω από την περίοδο της προηγούμενης δήλωσης, γραμμές: %1."_s;
inline const QString kPayrollMoveFailed = u"ΠΡΟΣΟΧΗ!! Η μισθολογική περίοδος των γραμμών δεν άλλαξε. Οι γραμμές έμειναν όπως αντιγράφηκαν."_s;
inline const QString kPeriodFromTo = u"%1 έως %2"_s;
inline const QString kErrorCode = u"Κωδικός λάθους: "_s;
inline const QString kErrorDescription = u"Περιγραφή λάθους: "_s;

// The directory dialog, where the submission file is to be written. The "X"
// of the drive message is a Latin letter; the drive's name and "'." follow.
inline const QString kDirTitle = u"Δημιουργία αρχείου Ξ.Ρ.Φ"_s;
inline const QString kDirLabel1 =
    u"Επιλέξτε τον κατάλογο στον οποίο θέλετε να αποθηκευτεί το αρχείο Ξ.Ρ.Φ."_s;
inline const QString kDirDriveUnreadable =
    u"ΠΡΟΣΟXΗ!! Παρουσιάστηκε πρόβλημα στην ανάγνωση του δίσκου '"_s;
// The same dialog, where the volumes written before are to be checked.
inline const QString kDirCheckTitle = u"Έλεγχος τόμων Ξ.Ρ.Φ"_s;
inline const QString kDirCheckLabel1 =
    u"Επιλέξτε τον κατάλογο στον οποίο βρίσκονται οι τόμοι του αρχείου Ξ.Ρ.Φ. που θέλετε να ελεγχθούν."_s;
// Its path box and its button for a new folder; %1 is the path or the name
// the user typed.
inline const QString kDirPathLbl = u"Διαδρομή:"_s;
inline const QString kDirPathHint = u"γράψτε διαδρομή και πατήστε Enter"_s;
inline const QString kDirPathUnreadable =
    u"ΠΡΟΣΟΧΗ!! Ο κατάλογος '%1' δεν υπάρχει ή δεν μπορεί να διαβαστεί."_s;
inline const QString kDirNewFolder = u"Νέος φάκελος"_s;
inline const QString kDirNewFolderName = u"Όνομα του νέου φακέλου:"_s;
inline const QString kDirFolderNoName = u"ΠΡΟΣΟΧΗ!! Δεν δόθηκε όνομα για τον νέο φάκελο."_s;
inline const QString kDirFolderSeparator =
    u"ΠΡΟΣΟΧΗ!! Το όνομα '%1' δεν μπορεί να δοθεί σε φάκελο: περιέχει τον χαρακτήρα / ή \\."_s;
inline const QString kDirFolderExists = u"ΠΡΟΣΟΧΗ!! Υπάρχει ήδη φάκελος ή αρχείο με το όνομα '%1'."_s;
inline const QString kDirFolderNotMade =
    u"ΠΡΟΣΟΧΗ!! Ο φάκελος '%1' δεν μπορεί να δημιουργηθεί σε αυτόν τον κατάλογο."_s;

// Our own texts, for cases the program must still answer clearly.
inline const QString kNoIdLeft =
    u"ΠΡΟΣΟΧΗ!! Δεν μπορεί να δημιουργηθεί νέα δήλωση: έχει συμπληρωθεί ο μέγιστος αριθμός δηλώσεων (32767)."_s;
inline const QString kRegistryFailed = u"Παρουσιάστηκε πρόβλημα στην αναζήτηση της δήλωσης."_s;
// What a store error means, for the errors a user can meet; any other error
// is described in SQLite's own words.
inline const QString kStoreNotADatabase = u"Λάθος κωδικός ή το αρχείο δεν είναι αρχείο δηλώσεων."_s;
inline const QString kStoreReadOnly = u"Το αρχείο δηλώσεων επιτρέπει μόνο ανάγνωση."_s;
inline const QString kStoreInUse = u"Το αρχείο δηλώσεων χρησιμοποιείται από άλλο πρόγραμμα."_s;
inline const QString kStoreDiskFull = u"Δεν υπάρχει ελεύθερος χώρος στο δίσκο."_s;
inline const QString kStoreDamaged = u"Το αρχείο δηλώσεων είναι κατεστραμμένο."_s;
inline const QString kStoreCannotOpen = u"Το αρχείο δηλώσεων δεν μπορεί να ανοιχτεί."_s;
inline const QString kStoreIoError = u"Παρουσιάστηκε πρόβλημα ανάγνωσης ή εγγραφής στο δίσκο."_s;
inline const QString kStoreNoPermission = u"Δεν επιτρέπεται η πρόσβαση στο αρχείο δηλώσεων."_s;
inline const QString kStoreNoMemory = u"Δεν υπάρχει αρκετή μνήμη."_s;
inline const QString kStoreInterrupted = u"Η εργασία διακόπηκε."_s;
inline const QString kStoreRefused = u"Η εγγραφή δεν έγινε δεκτή από το αρχείο δηλώσεων."_s;
inline const QString kStoreTooBig = u"Η τιμή είναι πολύ μεγάλη για το αρχείο δηλώσεων."_s;
// Any other error of the store, and of a file, with its number.
inline const QString kStoreOtherError = u"Σφάλμα του αρχείου δηλώσεων με αριθμό %1."_s;
inline const QString kFileOtherError = u"Σφάλμα του συστήματος αρχείων με αριθμό %1."_s;
// The captions of the Yes and No buttons of a question.
inline const QString kYes = u"Ναι"_s;
inline const QString kNo = u"Όχι"_s;

}  // namespace veroxia::texts
