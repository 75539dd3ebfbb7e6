#pragma once
// The texts of bringing employee lines in from a CSV file and writing them
// out to one, in the style of the program's own messages.

#include <QString>

namespace veroxia::import_texts {

using namespace Qt::StringLiterals;

// clang-format off
inline const QString kImportCmd = u"Εισαγωγή από αρχείο CSV"_s;
inline const QString kExportCmd = u"Εξαγωγή σε αρχείο CSV"_s;
inline const QString kImportTitle = u"Εισαγωγή γραμμών εργαζομένων από αρχείο CSV"_s;
inline const QString kExportTitle = u"Εξαγωγή γραμμών εργαζομένων σε αρχείο CSV"_s;
inline const QString kCsvFilter = u"Αρχεία CSV (*.csv *.txt);;Όλα τα αρχεία (*)"_s;

// Why a file cannot be read at all.
inline const QString kNoSuchFile = u"ΠΡΟΣΟΧΗ!! Το αρχείο %1 δεν υπάρχει."_s;
inline const QString kCannotRead = u"ΠΡΟΣΟΧΗ!! Το αρχείο %1 δεν μπορεί να διαβαστεί."_s;
inline const QString kEmptyFile = u"ΠΡΟΣΟΧΗ!! Το αρχείο %1 είναι κενό."_s;
inline const QString kHeaderOnly = u"ΠΡΟΣΟΧΗ!! Το αρχείο %1 έχει μόνο τη γραμμή με τα ονόματα των στηλών: δεν υπάρχουν γραμμές εργαζομένων."_s;
inline const QString kNotText = u"ΠΡΟΣΟΧΗ!! Το αρχείο %1 δεν είναι κείμενο σε UTF-8 ή Windows-1253 (%2).\r\nΑποθηκεύστε το από το λογιστικό φύλλο ως CSV και δοκιμάστε ξανά."_s;
inline const QString kControlByte = u"γραμμή %1: χαρακτήρας ελέγχου %2"_s;
inline const QString kUtf8WithBom = u"UTF-8 με BOM"_s;
inline const QString kNoHeader = u"ΠΡΟΣΟΧΗ!! Η δήλωση %1 δεν έχει αποθηκευμένη επικεφαλίδα. Αποθηκεύστε πρώτα την επικεφαλίδα της."_s;
inline const QString kColumnsWrong = u"ΠΡΟΣΟΧΗ!! Οι στήλες της πρώτης γραμμής του αρχείου %1 δεν ταιριάζουν με τα πεδία της οθόνης."_s;
inline const QString kColumnsUnknown = u"Άγνωστες στήλες: %1"_s;
inline const QString kColumnsMissing = u"Στήλες που λείπουν: %1"_s;
inline const QString kColumnsRepeated = u"Στήλες που δίνονται δύο φορές: %1"_s;
inline const QString kColumnsHelp = u"Κάθε στήλη ονομάζεται με το όνομα της στήλης της αποθήκης (π.χ. insured_id) ή με τον αριθμό του πεδίου της οθόνης (π.χ. 19, 18_1)."_s;

// What is wrong with one record.
inline const QString kUnclosedQuote = u"Τα εισαγωγικά που ανοίγουν εδώ δεν κλείνουν."_s;
inline const QString kRecordTooLong = u"Η γραμμή ξεπερνά το 1 MiB χωρίς να τελειώσει: δεν είναι γραμμή λογιστικού φύλλου και το αρχείο δεν διαβάζεται από εδώ και πέρα. Αν εδώ ανοίγουν εισαγωγικά, ελέγξτε ότι κλείνουν."_s;
inline const QString kBomInField = u"Η τιμή έχει τον αόρατο χαρακτήρα U+FEFF (σημάδι BOM), που ανήκει μόνο στην αρχή του αρχείου και μένει συνήθως όταν ενώνονται αρχεία. Σβήστε τον."_s;
inline const QString kTextAfterQuote = u"Μετά τα εισαγωγικά που κλείνουν ακολουθεί κείμενο πριν από το διαχωριστικό."_s;
inline const QString kBadBytes = u"Μη έγκυρα bytes για %1: %2."_s;
inline const QString kDuplicateOfStored = u"Διπλή της αποθηκευμένης γραμμής %1 της δήλωσης."_s;
inline const QString kDuplicateInFile = u"Διπλή της γραμμής %1 του αρχείου."_s;
inline const QString kAnd = u" και "_s;
inline const QString kFieldCount = u"Η γραμμή έχει %1 πεδία, ενώ οι στήλες είναι %2."_s;
inline const QString kTooLong = u"Η τιμή έχει %1 χαρακτήρες, ενώ το πεδίο δέχεται έως %2."_s;
inline const QString kDateShape = u"Η ημερομηνία γράφεται ΗΗ/ΜΜ/ΕΕΕΕ."_s;
inline const QString kLineBreak = u"Η τιμή έχει αλλαγή γραμμής."_s;

// A declaration that has lines already: what becomes of them.
inline const QString kExistingLines = u"Η δήλωση %1 έχει ήδη %2 γραμμές εργαζομένων. Τι να γίνει με τις γραμμές του αρχείου;\r\n\r\n\"Προσθήκη\": καταχωρούνται μετά την τελευταία γραμμή της δήλωσης και οι αποθηκευμένες μένουν όπως είναι.\r\n\"Αντικατάσταση όλων\": οι %2 αποθηκευμένες γραμμές διαγράφονται και στη θέση τους καταχωρούνται οι γραμμές του αρχείου.\r\n\r\nΑν έστω και μία γραμμή του αρχείου έχει λάθος, δεν αλλάζει τίποτα."_s;
inline const QString kAppendAnswer = u"Προσθήκη"_s;
inline const QString kReplaceAnswer = u"Αντικατάσταση όλων"_s;
inline const QString kCancelAnswer = u"Άκυρο"_s;
inline const QString kPreviewAppend = u"Οι γραμμές του αρχείου θα προστεθούν μετά τις %1 γραμμές της δήλωσης."_s;
inline const QString kPreviewReplace = u"Οι %1 γραμμές της δήλωσης θα διαγραφούν και στη θέση τους θα καταχωρηθούν οι γραμμές του αρχείου."_s;
inline const QString kReplaced = u"Οι %1 γραμμές που υπήρχαν διαγράφηκαν."_s;
// The command line, which asks no question: the option that answers it.
inline const QString kExistingLinesOption = u"ΠΡΟΣΟΧΗ!! Η δήλωση %1 έχει ήδη %2 γραμμές εργαζομένων. Δώστε --append για να καταχωρηθούν οι γραμμές του αρχείου μετά την τελευταία ή --replace για να αντικαταστήσουν όλες τις αποθηκευμένες. Δεν καταχωρήθηκε καμία γραμμή."_s;

// The preview.
inline const QString kPreviewTitle = u"ΠΡΟΕΠΙΣΚΟΠΗΣΗ ΕΙΣΑΓΩΓΗΣ"_s;
inline const QString kPreviewFile = u"Αρχείο: %1 (%2 bytes)"_s;
inline const QString kPreviewFormat = u"Κωδικοποίηση: %1, διαχωριστικό: %2"_s;
inline const QString kPreviewRows = u"Οι πρώτες %1 γραμμές του αρχείου, κάτω από το πεδίο της οθόνης όπου πηγαίνει κάθε στήλη."_s;
inline const QString kPreviewLine = u"ΓΡΑΜΜΗ"_s;
inline const QString kPreviewVerdict = u"Οι γραμμές θα ελεγχθούν όπως στην οθόνη και θα καταχωρηθούν μόνο αν είναι όλες σωστές."_s;
inline const QString kPreviewGo = u"Εισαγωγή"_s;
inline const QString kProgress = u"Έλεγχος και καταχώρηση των γραμμών του αρχείου %1..."_s;

// The outcome.
inline const QString kReportTitle = u"ΛΑΘΗ ΣΤΟ ΑΡΧΕΙΟ ΕΙΣΑΓΩΓΗΣ"_s;
inline const QString kWarningsTitle = u"ΨΗΦΙΑ ΕΛΕΓΧΟΥ ΣΤΟ ΑΡΧΕΙΟ ΕΙΣΑΓΩΓΗΣ"_s;
inline const QString kReportLine = u"ΓΡΑΜΜΗ ΑΡΧΕΙΟΥ"_s;
inline const QString kReportColumn = u"ΣΤΗΛΗ"_s;
inline const QString kReportValue = u"ΤΙΜΗ"_s;
inline const QString kReportMessage = u"ΜΗΝΥΜΑ"_s;
inline const QString kRowsFailed = u"ΠΡΟΣΟΧΗ!! %1 από τις %2 γραμμές του αρχείου έχουν λάθη. Δεν καταχωρήθηκε καμία γραμμή."_s;
inline const QString kMoreFaults = u"Φαίνονται τα πρώτα %1 λάθη· υπάρχουν ακόμη %2."_s;
inline const QString kWarningsVerdict = u"%1 γραμμές έχουν Α.Φ.Μ. ή Α.Μ.Κ.Α. με λάθος ψηφίο ελέγχου."_s;
inline const QString kWarningsQuestion = u"%1 γραμμές έχουν Α.Φ.Μ. ή Α.Μ.Κ.Α. με λάθος ψηφίο ελέγχου. Να καταχωρηθούν όλες οι γραμμές όπως είναι;"_s;
inline const QString kRepeatsTitle = u"ΔΙΠΛΕΣ ΓΡΑΜΜΕΣ ΣΤΟ ΑΡΧΕΙΟ ΕΙΣΑΓΩΓΗΣ"_s;
inline const QString kRepeatsAbout = u"Γραμμές του αρχείου με τα ίδια πεδία %1 όπως μια γραμμή της δήλωσης ή μια προηγούμενη γραμμή του αρχείου."_s;
inline const QString kRepeatsVerdict = u"%1 από τις %2 γραμμές του αρχείου επαναλαμβάνουν γραμμές. Δεν έχει καταχωρηθεί ακόμη καμία γραμμή."_s;
inline const QString kRepeatsGo = u"Καταχώρηση και των διπλών"_s;
inline const QString kRepeatsRefused = u"%1 γραμμές του αρχείου επαναλαμβάνουν γραμμές. Δεν καταχωρήθηκε καμία γραμμή."_s;
inline const QString kNothingStored = u"Δεν καταχωρήθηκε καμία γραμμή."_s;
inline const QString kCancelled = u"Η εισαγωγή ακυρώθηκε. Δεν καταχωρήθηκε καμία γραμμή."_s;
inline const QString kImported = u"Η εισαγωγή ολοκληρώθηκε: καταχωρήθηκαν %1 γραμμές (αριθμοί %2 έως %3)."_s;
inline const QString kExported = u"Η εξαγωγή ολοκληρώθηκε: γράφτηκαν %1 γραμμές στο αρχείο %2."_s;
// clang-format on

}  // namespace veroxia::import_texts
