#pragma once
// The texts of the printouts, exactly as they are printed: every blank counts.
// "Α.Μ.K.A.:" of the common block holds a Latin K and a Latin A.

#include <QString>

namespace veroxia::printing_texts {

using namespace Qt::StringLiterals;

// clang-format off
inline const QString kFontName = u"Courier New Greek"_s;
inline const QString kProblem = u"ΠΡΟΣΟΧΗ!! Παρουσιάστηκε πρόβλημα στην εκτύπωση!"_s;
inline const QString kSumTitle = u"                                   ΣΥΝΟΔΕΥΤΙΚΟ ΕΝΤΥΠΟ Ξ.Ρ.Φ. "_s;
inline const QString kSumSubtitle = u"                         ΥΠΟΒΑΛΛΟΜΕΝΗΣ ΣΕ ΗΛΕΚΤΡΟΝΙΚΗ ΜΟΡΦΗ (Δισκέτα ή CD)"_s;
inline const QString kType = u"ΤΥΠΟΣ ΔΗΛΩΣΗΣ:             "_s;
inline const QString kBranch1 = u"ΥΠΟΚΑΤΑΣΤΗΜΑ ΟΒΤ "_s;
inline const QString kBranch2 = u"ΥΠΟΒΟΛΗΣ:                  "_s;
inline const QString kEmployer = u"ΕΠΩΝΥΜΙΑ ΕΡΓΟΔΟΤΗ:         "_s;
inline const QString kSumAme = u"Α.Μ.Ε.:  "_s;
inline const QString kSumAfm = u"Α.Φ.Μ.:  "_s;
inline const QString kAddress = u"ΔΙΕΥΘΥΝΣΗ:                 "_s;
inline const QString kFrom = u"ΑΠΟ ΜΗΝΑ/ΕΤΟΣ: "_s;
inline const QString kTo = u"ΕΩΣ ΜΗΝΑ/ΕΤΟΣ: "_s;
inline const QString kSumColumns1 = u"                             ΗΜΕΡΩΝ                ΑΠΟΔΟΧΩΝ        ΚΑΤΑΒΛΗΘΕΙΣΩΝ"_s;
inline const QString kSumColumns2 = u"                             ΑΣΦΑΛΙΣΗΣ                             ΕΙΣΦΟΡΩΝ"_s;
inline const QString kStatement1 = u"Δηλώνω υπεύθυνα, ότι τα αναγραφόμενα συγκεντρωτικά στοιχεία του παρόντος εντύπου,"_s;
inline const QString kStatement2 = u"περιέχονται στο υποβαλλόμενο ηλεκτρονικό μέσο."_s;
inline const QString kSigners = u"Ο ΔΗΛΩΝ ΕΡΓΟΔΟΤΗΣ                                                     Ο ΠΑΡΑΛΑΒΩΝ"_s;
inline const QString kSubmitted = u"Ημερομηνία Υποβολής"_s;
inline const QString kPerMonth = u"ΣΥΝΟΛΑ ΑΝΑ ΜΗΝΑ:  "_s;
inline const QString kTotals = u"ΣΥΝΟΛΑ:"_s;
inline const QString kConSumTitle = u"                        ΣΥΝΟΔΕΥΤΙΚΟ ΕΝΤΥΠΟ Ξ.Ρ.Φ. ΟΙΚΟΔΟΜΟΤΕΧΝΙΚΟΥ ΕΡΓΟΥ"_s;
inline const QString kConSumSubtitle = u"                       ΥΠΟΒΑΛΛΟΜΕΝΗΣ ΣΕ ΗΛΕΚΤΡΟΝΙΚΗ ΜΟΡΦΗ  (Δισκέτα ή CD)"_s;
inline const QString kExtraordinary = u"ΕΚΤΑΚΤΗ"_s;
inline const QString kResubmission = u"ΕΠΑΝΥΠΟΒΟΛΗ"_s;
inline const QString kRegular = u"ΚΑΝΟΝΙΚΗ"_s;
inline const QString kSeat = u"Δ/ΝΣΗ ΕΔΡΑΣ                "_s;
inline const QString kSeatEmployer = u"ΕΡΓΟΔΟΤΗ:                  "_s;
inline const QString kWorks = u"ΕΙΔΟΣ ΕΡΓΟΥ:               "_s;
inline const QString kSumAmoe = u"        Α.Μ.Ο.Ε.: "_s;
inline const QString kSumAfmAfterAmoe = u"      Α.Φ.Μ.:  "_s;
inline const QString kSite = u"ΔΙΕΥΘΥΝΣΗ ΕΡΓΟΥ:           "_s;
inline const QString kSumMonth = u"ΜΗΝΑΣ/ΕΤΟΣ:        "_s;
inline const QString kSumDays1 = u"ΣΥΝΟΛΟ ΗΜΕΡΩΝ      "_s;
inline const QString kSumDays2 = u"ΑΠΑΣΧΟΛΗΣΗΣ:       "_s;
inline const QString kSumTotal = u"ΣΥΝΟΛΟ             "_s;
inline const QString kSalaries = u"ΑΠΟΔΟΧΩΝ:          "_s;
inline const QString kContributions = u"ΕΙΣΦΟΡΩΝ:          "_s;
inline const QString kPage1 = u"                    ΒΕΡΟΞΙΑ     Σελίδα: "_s;
inline const QString kOf = u" από "_s;
inline const QString kBranch = u"ΥΠΟΚΑΤΑΣΤΗΜΑ ΟΒΤ ΥΠΟΒΟΛΗΣ: "_s;
inline const QString kAddressHeading = u"                           ΔΙΕΥΘΥΝΣΗ"_s;
inline const QString kFromPage1 = u"                     ΑΠΟ ΜΗΝΑ/ΕΤΟΣ: "_s;
inline const QString kToPage1 = u" ΕΩΣ ΜΗΝΑ/ΕΤΟΣ: "_s;
inline const QString kPerMonthPage1 = u"ΣΥΝΟΛΑ ΑΝΑ ΜΗΝΑ:            "_s;
inline const QString kTotalsHeading = u"           ΣΥΝΟΛΑ"_s;
inline const QString kDaysPage1 = u"ΗΜΕΡΩΝ ΑΣΦΑΛΙΣΗΣ:          "_s;
inline const QString kPaid = u"ΚΑΤΑΒΛ. ΕΙΣΦΟΡΩΝ:  "_s;
inline const QString kTotalsWord = u"ΣΥΝΟΛΑ"_s;
inline const QString kBranchKad = u"ΑΡ. ΠΑΡΑΡΤ./ΚΑΔ:        "_s;
inline const QString kInsuredId = u"ΑΡΙΘΜ. ΜΗΤΡΩΟΥ ΑΣΦ:     "_s;
inline const QString kAmka = u"Α.Μ.K.A.:               "_s;
inline const QString kSurname = u"ΕΠΩΝΥΜΟ:                "_s;
inline const QString kName = u"ΟΝΟΜΑ:                  "_s;
inline const QString kFather = u"ΟΝΟΜΑ ΠΑΤΡΟΣ:           "_s;
inline const QString kMother = u"ΟΝΟΜΑ ΜΗΤΡΟΣ:           "_s;
inline const QString kBirth = u"ΗΜ/ΝΙΑ ΓΕΝΝΗΣΕΩΣ:       "_s;
inline const QString kAfm = u"Α.Φ.Μ.:                 "_s;
inline const QString kFullDay = u"ΠΛΗΡΕΣ ΩΡΑΡΙΟ:          "_s;
inline const QString kYes = u"ΝΑΙ"_s;
inline const QString kNo = u"ΟΧΙ"_s;
inline const QString kAllDays = u"ΟΛΕΣ ΕΡΓΑΣΙΜΕΣ:         "_s;
inline const QString kSundays = u"ΚΥΡΙΑΚΕΣ:               "_s;
inline const QString kCategory = u"ΚΩΔΙΚΟΣ ΕΙΔΙΚΟΤΗΤΑΣ:    "_s;
inline const QString kSpecial = u"ΕΙΔ. ΠΕΡΙΠΤ. ΑΣΦΑΛ.:    "_s;
inline const QString kCover = u"ΠΑΚΕΤΟ ΚΑΛΥΨΗΣ:         "_s;
inline const QString kPayPeriod = u"ΜΙΣΘΟΛΟΓΙΚΗ ΠΕΡΙΟΔΟΣ:   "_s;
inline const QString kSalFrom = u"ΑΠΟ ΗΜ/ΝΙΑ ΑΠΑΣΧΟΛ.:    "_s;
inline const QString kSalTo = u"ΕΩΣ ΗΜ/ΝΙΑ ΑΠΑΣΧΟΛ.:    "_s;
inline const QString kWageCode = u"ΤΥΠΟΣ ΑΠΟΔΟΧΩΝ:         "_s;
inline const QString kInsuranceDays = u"ΗΜΕΡΕΣ ΑΣΦΑΛΙΣΗΣ:       "_s;
inline const QString kDailyWage = u"ΗΜΕΡΟΜΙΣΘΙΟ:            "_s;
inline const QString kSalary = u"ΑΠΟΔΟΧΕΣ:               "_s;
inline const QString kInsuredContr = u"ΕΙΣΦΟΡΕΣ ΑΣΦΑΛΙΣΜ.:     "_s;
inline const QString kEmployerContr = u"ΕΙΣΦΟΡΕΣ ΕΡΓΟΔΟΤΗ:      "_s;
inline const QString kTotalContr = u"ΣΥΝΟΛΙΚΕΣ ΕΙΣΦΟΡΕΣ:     "_s;
inline const QString kSubsidy = u"ΕΠΙΔΟΤ. ΑΣΦΑΛ. (ΠΟΣΟ):  "_s;
inline const QString kSubsidyPercent = u"ΕΠΙΔΟΤ. ΕΡΓΟΔ. (%):     "_s;
inline const QString kSubsidyAmount = u"ΕΠΙΔΟΤ. ΕΡΓΟΔ. (ΠΟΣΟ):  "_s;
inline const QString kPayedContr = u"ΚΑΤΑΒΛ. ΕΙΣΦΟΡΕΣ:       "_s;
inline const QString kPageN = u"                                                       Σελίδα: "_s;
inline const QString kPageAme = u"Α.Μ.Ε.:        "_s;
inline const QString kPageAfm = u"      Α.Φ.Μ.:        "_s;
inline const QString kPageTo = u"       ΕΩΣ ΜΗΝΑ/ΕΤΟΣ: "_s;
inline const QString kLastPage = u"                                                               Σελίδα: "_s;
inline const QString kLastAfm = u"    Α.Φ.Μ.:        "_s;
inline const QString kCessation = u"ΠΑΥΣΗ ΑΠΑΣΧΟΛΗΣΗΣ ΠΡΟΣΩΠΙΚΟΥ(Συμπληρώνεται μόνο όταν ο τύπος δήλωσης είναι 02:"_s;
inline const QString kCessation2 = u"Έκτακτη)"_s;
inline const QString kStopStatement1 = u"Δηλώνω υπεύθυνα και με γνώση των συνεπειών του Ν.1599/86 ότι από "_s;
inline const QString kStopStatement2 = u"δεν απασχολείται προσωπικό στην επιχείρηση μας και ότι σε περίπτωση εκ νέου"_s;
inline const QString kStopStatement3 = u"απασχόλησης αυτή θα γνωστοποιηθεί στο ΟΒΤ με υποβολή Βεροξικής"_s;
inline const QString kStopStatement4 = u"Δήλωσης."_s;
inline const QString kDates1 = u"ΗΜΕΡΟΜΗΝΙΑ                                        ΗΜΕΡΟΜΗΝΙΑ"_s;
inline const QString kDates2 = u"ΥΠΟΒΟΛΗΣ ΞΡΦ:   /   /                             ΠΑΡΑΛΑΒΗΣ ΞΡΦ:   /   /"_s;
inline const QString kSigners2 = u"      Ο ΔΗΛΩΝ                                           Ο ΠΑΡΑΛΑΒΩΝ"_s;
inline const QString kStamps = u"(Σφραγίδα-Υπογραφή)                               (Σφραγίδα-Υπογραφή)"_s;
inline const QString kAskAll = u"θέλετε να γίνει εκτύπωση των στοιχείων όλων των εργαζομένων;"_s;
inline const QString kConPage1 = u"         ΒΕΡΟΞΙΑ ΟΙΚΟΔΟΜΟΤΕΧΝΙΚΟΥ ΕΡΓΟΥ     Σελίδα: "_s;
inline const QString kConSeat = u"Δ/ΝΣΗ ΕΔΡΑΣ      "_s;
inline const QString kConSeatEmployer = u"ΕΡΓΟΔΟΤΗ:        "_s;
inline const QString kConWorks = u"ΕΙΔΟΣ ΕΡΓΟΥ:     "_s;
inline const QString kConAme = u"Α.Μ.Ε:   "_s;
inline const QString kConSiteHeading = u"                      ΔΙΕΥΘΥΝΣΗ ΕΡΓΟΥ"_s;
inline const QString kConAmoe = u"Α.Μ.Ο.Ε: "_s;
inline const QString kConMonth = u"                          ΜΗΝΑΣ/ΕΤΟΣ: "_s;
inline const QString kConTotals = u"                                 ΣΥΝΟΛΑ ΞΡΦ"_s;
inline const QString kConDays = u"        ΗΜΕΡΩΝ ΑΠΑΣΧΟΛΗΣΗΣ:       "_s;
inline const QString kConBranch1 = u"ΥΠΟΚΑΤΑΣΤΗΜΑ ΟΒΤ        "_s;
inline const QString kConBranch2 = u"ΕΚΤΕΛΕΣΗΣ ΕΡΓΟΥ:        "_s;
inline const QString kConAmka = u"Α.Μ.Κ.Α.:               "_s;
inline const QString kMarital = u"ΑΓΑΜΟΣ / ΕΓΓΑΜΟΣ:       "_s;
inline const QString kMarried = u"ΕΓΓΑΜΟΣ"_s;
inline const QString kUnmarried = u"ΑΓΑΜΟΣ"_s;
inline const QString kTriennia = u"ΑΡΙΘΜΟΣ ΤΡΙΕΤΙΩΝ:       "_s;
inline const QString kWorkDays = u"ΗΜΕΡΕΣ ΑΠΑΣΧΟΛΗΣΗΣ:     "_s;
inline const QString kPhase1 = u"ΚΑΤΑΣΚ. ΦΑΣΗ ή          "_s;
inline const QString kPhase2 = u"ΕΡΓΑΣ. ΔΗΜΟΣΙΟΥ:        "_s;
inline const QString kCostingDays = u"ΗΜ. ΑΠΟΛΟΓΙΣΤΙΚΩΝ:      "_s;
inline const QString kConPageN = u"                                                                     Σελίδα: "_s;
inline const QString kConPageAme = u"Α.Μ.Ε.: "_s;
inline const QString kConPageAmoe = u"          Α.Μ.Ο.Ε.: "_s;
inline const QString kConPageAfm = u"          Α.Φ.Μ.: "_s;
inline const QString kConPageMonth = u"                                                          ΜΗΝΑΣ/ΕΤΟΣ: "_s;
inline const QString kConCessation = u"ΠΑΥΣΗ ΟΙΚΟΔΟΜΙΚΩΝ ΕΡΓΑΣΙΩΝ (Συμπληρώνεται μόνο όταν ο τύπος δήλωσης είναι 02:"_s;

// Our own texts, for the faults a printout can meet in the stored values.
inline const QString kNoHeader = u"Η δήλωση δεν έχει αποθηκευμένη επικεφαλίδα."_s;
inline const QString kNoValue = u"Το στοιχείο «%1» της επικεφαλίδας δεν έχει τιμή."_s;
inline const QString kNotANumber = u"Η τιμή '%1' του στοιχείου «%2» στη γραμμή %3 δεν είναι αριθμός."_s;

// The print preview: its window, the progress of its pages and the PDF file.
inline const QString kComposing = u"Σύνθεση των σελίδων της εκτύπωσης..."_s;
inline const QString kSendingToPrinter = u"Αποστολή των σελίδων στον εκτυπωτή..."_s;
inline const QString kSavingPdf = u"Αποθήκευση των σελίδων σε αρχείο PDF..."_s;
inline const QString kPreviewTitle = u"Προεπισκόπηση εκτύπωσης"_s;
inline const QString kPrintCmd = u"Εκτύπωση..."_s;
inline const QString kSavePdfCmd = u"Αποθήκευση ως PDF..."_s;
inline const QString kCloseCmd = u"Κλείσιμο"_s;
inline const QString kPageLabel = u"Σελίδα"_s;
inline const QString kOfPages = u"από %1"_s;
inline const QString kFirstPage = u"Πρώτη σελίδα"_s;
inline const QString kPreviousPage = u"Προηγούμενη σελίδα"_s;
inline const QString kNextPage = u"Επόμενη σελίδα"_s;
inline const QString kLastPageCmd = u"Τελευταία σελίδα"_s;
inline const QString kZoomOut = u"Σμίκρυνση"_s;
inline const QString kZoomIn = u"Μεγέθυνση"_s;
inline const QString kFitWidth = u"Πλάτος σελίδας"_s;
inline const QString kFitPage = u"Ολόκληρη σελίδα"_s;
inline const QString kSavePdfTitle = u"Αποθήκευση της εκτύπωσης ως PDF"_s;
inline const QString kPdfFilter = u"Αρχεία PDF (*.pdf)"_s;
// clang-format on

}  // namespace veroxia::printing_texts
