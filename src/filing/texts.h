#pragma once
// The texts of the submission-file writer, exactly as the user sees them.
// "πρόβλημα.H" holds a Latin H; it is part of the text.

#include <QString>

namespace veroxia::filing_texts {

using namespace Qt::StringLiterals;

// clang-format off
inline const QString kFileTitle = u"Δημιουργία αρχείου Ξ.Ρ.Φ."_s;
inline const QString kNoDateLine1 = u"ΠΡΟΣΟΧΗ!! Για να γίνει η δημιουργία του αρχείου πρέπει να έχετε συμπληρώσει"_s;
inline const QString kNoDateLine2 = u"το πεδίο 'ΗΜ/ΝΙΑ ΥΠΟΒΟΛΗΣ ΔΗΛΩΣΕΩΣ' τις φόρμας."_s;
inline const QString kWrittenIn = u"Το αρχείο δημιουργήθηκε με επιτυχία στον κατάλογο '"_s;
inline const QString kWriteFailed = u"ΠΡΟΣΟΧΗ!! Παρουσιάστηκε πρόβλημα.H δημιουργεία αρχείου δεν ήταν επιτυχής!"_s;

// Our own texts, for what the program must still answer clearly.
// A character the file's code page cannot hold: the line's number, the
// insured person's register number, the box and the character.
inline const QString kUnencodableLine = u"ΠΡΟΣΟΧΗ!! Η γραμμή %1 (Α.Μ. ασφαλισμένου '%2') έχει στο πεδίο %3 τον χαρακτήρα '%4', που δεν μπορεί να γραφτεί στο αρχείο Ξ.Ρ.Φ."_s;
// The same in the declaration's header: the box and the character.
inline const QString kUnencodableHeader = u"ΠΡΟΣΟΧΗ!! Η επικεφαλίδα της δήλωσης έχει στο πεδίο %1 τον χαρακτήρα '%2', που δεν μπορεί να γραφτεί στο αρχείο Ξ.Ρ.Φ."_s;
inline const QString kNothingWritten = u"Διορθώστε το πεδίο και ξαναδοκιμάστε. Δεν γράφτηκε κανένα αρχείο."_s;
// What a failed file operation means.
inline const QString kDirectoryMissing = u"Ο κατάλογος δεν υπάρχει."_s;
inline const QString kDirectoryNotWritable = u"Δεν επιτρέπεται η εγγραφή στον κατάλογο."_s;
// The header's totals do not agree with the lines, or a value is no number or
// a check digit is wrong.
inline const QString kTotalsQuestion = u"ΠΡΟΣΟΧΗ!! Τα σύνολα της επικεφαλίδας δεν συμφωνούν με τις γραμμές των εργαζομένων, ή κάποιος αριθμός δεν είναι σωστός (δείτε τον έλεγχο συνόλων). Θέλετε να δημιουργηθεί το αρχείο;"_s;
// The volumes of an earlier run found in the chosen directory: its path,
// then a line naming those of the declaration's kind and one naming those of
// the other kind, then the question.
inline const QString kOldVolumes = u"ΠΡΟΣΟΧΗ!! Ο κατάλογος '%1' έχει ήδη τόμους αρχείου Ξ.Ρ.Φ.:"_s;
inline const QString kOldVolumesReplaced = u"%1: θα αντικατασταθούν από τους νέους τόμους ή θα διαγραφούν."_s;
inline const QString kOldVolumesOtherKind = u"%1 (του άλλου είδους δήλωσης): θα διαγραφούν, ώστε ο κατάλογος να έχει ένα μόνο αρχείο Ξ.Ρ.Φ."_s;
inline const QString kOldVolumesQuestion = u"Θέλετε να δημιουργηθεί το αρχείο;"_s;
// A directory holding a write cut short (the program ended while it wrote
// or put the volumes in place).
inline const QString kUnfinishedWrite = u"Η δημιουργία του αρχείου Ξ.Ρ.Φ. σε αυτόν τον κατάλογο διακόπηκε. Δημιουργήστε ξανά το αρχείο."_s;
// The volumes' header against the stored declaration's: a heading row, the
// fields (each followed by its box), the verdict of each and the note of a
// field that differs.
inline const QString kHeaderHeading = u"ΕΠΙΚΕΦΑΛΙΔΑ"_s;
inline const QString kInVolumes = u"ΣΤΟΥΣ ΤΟΜΟΥΣ"_s;
inline const QString kInDeclaration = u"ΣΤΗ ΔΗΛΩΣΗ"_s;
inline const QString kFieldAgrees = u"ΣΥΜΦΩΝΕΙ"_s;
inline const QString kFieldDiffers = u"ΔΙΑΦΕΡΕΙ"_s;
inline const QString kHeaderFieldDiffers = u"Η επικεφαλίδα των τόμων διαφέρει από τη δήλωση στο πεδίο %1."_s;
inline const QString kFieldType = u"ΤΥΠΟΣ ΔΗΛΩΣΗΣ"_s;
inline const QString kFieldBranch = u"ΚΩΔΙΚΟΣ ΥΠΟΚ/ΤΟΣ ΟΒΤ"_s;
inline const QString kFieldAme = u"Α.Μ.Ε."_s;
inline const QString kFieldAmoe = u"Α.Μ.Ο.Ε."_s;
inline const QString kFieldAfm = u"Α.Φ.Μ."_s;
inline const QString kFieldFromMonth = u"ΑΠΟ ΜΗΝΑ"_s;
inline const QString kFieldFromYear = u"ΑΠΟ ΕΤΟΣ"_s;
inline const QString kFieldToMonth = u"ΕΩΣ ΜΗΝΑ"_s;
inline const QString kFieldToYear = u"ΕΩΣ ΕΤΟΣ"_s;
inline const QString kFieldMonth = u"ΜΗΝΑΣ"_s;
inline const QString kFieldYear = u"ΕΤΟΣ"_s;
inline const QString kFieldDays = u"ΣΥΝΟΛΟ ΗΜΕΡΩΝ ΑΣΦΑΛΙΣΗΣ"_s;
inline const QString kFieldWorkDays = u"ΣΥΝΟΛΟ ΗΜΕΡΩΝ ΑΠΑΣΧΟΛΗΣΗΣ"_s;
inline const QString kFieldWages = u"ΣΥΝΟΛΟ ΑΠΟΔΟΧΩΝ"_s;
inline const QString kFieldPaid = u"ΣΥΝΟΛΟ ΚΑΤΑΒΛ. ΕΙΣΦΟΡΩΝ"_s;
inline const QString kFieldContributions = u"ΣΥΝΟΛΟ ΕΙΣΦΟΡΩΝ"_s;
// clang-format on

}  // namespace veroxia::filing_texts
