#pragma once
// Our own texts for the keeping of the store: its hold on the file, its
// health, its backups and their restore. "%1" stands for a file or folder.

#include <QString>

namespace veroxia::store_texts {

using namespace Qt::StringLiterals;

// Found when the store opens, before anything is typed.
inline const QString kFileReadOnly =
    u"ΠΡΟΣΟΧΗ!! Το αρχείο δηλώσεων '%1' επιτρέπει μόνο ανάγνωση. Οι δηλώσεις δεν μπορούν να αποθηκευτούν. Το πρόγραμμα θα κλείσει."_s;
inline const QString kFolderReadOnly =
    u"ΠΡΟΣΟΧΗ!! Ο φάκελος '%1' του αρχείου δηλώσεων επιτρέπει μόνο ανάγνωση. Οι δηλώσεις δεν μπορούν να αποθηκευτούν. Το πρόγραμμα θα κλείσει."_s;
inline const QString kNoRoom =
    u"ΠΡΟΣΟΧΗ!! Δεν υπάρχει ελεύθερος χώρος στο δίσκο του φακέλου '%1' του αρχείου δηλώσεων. Οι δηλώσεις δεν μπορούν να αποθηκευτούν. Το πρόγραμμα θα κλείσει."_s;
inline const QString kHeld =
    u"ΠΡΟΣΟΧΗ!! Το αρχείο δηλώσεων '%1' χρησιμοποιείται ήδη από άλλο πρόγραμμα. Το πρόγραμμα θα κλείσει."_s;
// A file in the store's place that is no store of ours: empty, another
// program's, or a database without our tables. It is left as it lies.
inline const QString kNotOurStore =
    u"ΠΡΟΣΟΧΗ!! Το αρχείο '%1' δεν είναι αρχείο δηλώσεων αυτού του προγράμματος. Το πρόγραμμα θα κλείσει."_s;
// The description of a file that the store password does not open but that
// looks encrypted.
inline const QString kOtherPassword =
    u"Το αρχείο '%1' έχει άλλον κωδικό ή δεν είναι αρχείο δηλώσεων αυτού του προγράμματος."_s;
inline const QString kDamaged =
    u"ΠΡΟΣΟΧΗ!! Το αρχείο δηλώσεων '%1' είναι κατεστραμμένο. Το πρόγραμμα δεν θα γράψει σε αυτό και θα κλείσει."_s;
inline const QString kBackupsListed = u"Αντίγραφα ασφαλείας στο φάκελο '%1', το νεότερο πρώτο:"_s;
inline const QString kNoBackups = u"Δεν υπάρχουν αντίγραφα ασφαλείας στο φάκελο '%1'."_s;
inline const QString kRestoreHint = u"Επαναφορά ενός αντιγράφου: veroxia-cli restore ΑΡΧΕΙΟ"_s;

// The write-ahead log that could not be written back into the store when
// it was closed. "%1" stands for the store.
inline const QString kWriteBackFailed =
    u"ΠΡΟΣΟΧΗ!! Οι τελευταίες αλλαγές δεν μεταφέρθηκαν από το αρχείο καταγραφής '%1-wal' στο αρχείο δηλώσεων '%1'. Δεν χάθηκε τίποτα: το αρχείο καταγραφής μένει δίπλα στο αρχείο δηλώσεων και οι αλλαγές του περνούν σε αυτό στο επόμενο άνοιγμα. Μην το διαγράψετε και μην αντιγράψετε το αρχείο δηλώσεων χωρίς αυτό."_s;

// A backup that could not be made; the change goes ahead all the same.
inline const QString kBackupFailed =
    u"ΠΡΟΣΟΧΗ!! Δεν δημιουργήθηκε αντίγραφο ασφαλείας του αρχείου δηλώσεων στο φάκελο '%1'."_s;
inline const QString kFolderNotWritable =
    u"Ο φάκελος δεν μπορεί να δημιουργηθεί ή δεν επιτρέπει εγγραφή."_s;
inline const QString kChangesGoAhead = u"Οι αλλαγές σας αποθηκεύονται κανονικά."_s;

// The command line's restore.
inline const QString kRestoreHeld =
    u"ΠΡΟΣΟΧΗ!! Το αρχείο δηλώσεων '%1' χρησιμοποιείται από το πρόγραμμα. Κλείστε το πρόγραμμα και ξαναδοκιμάστε."_s;
inline const QString kRestoreUnreadable = u"ΠΡΟΣΟΧΗ!! Το αρχείο '%1' δεν μπορεί να διαβαστεί."_s;
inline const QString kRestoreOtherPassword =
    u"ΠΡΟΣΟΧΗ!! Το αρχείο '%1' είναι κρυπτογραφημένο με άλλον κωδικό από το αρχείο δηλώσεων."_s;
inline const QString kRestoreNotAStore = u"ΠΡΟΣΟΧΗ!! Το αρχείο '%1' δεν είναι αρχείο δηλώσεων."_s;
inline const QString kRestoreOtherSchema =
    u"ΠΡΟΣΟΧΗ!! Το αρχείο '%1' δεν έχει τους πίνακες του αρχείου δηλώσεων."_s;
inline const QString kRestoreDamaged = u"ΠΡΟΣΟΧΗ!! Το αρχείο '%1' είναι κατεστραμμένο."_s;
inline const QString kRestoreDiskFull =
    u"ΠΡΟΣΟΧΗ!! Η επαναφορά από το αρχείο '%1' απέτυχε: δεν υπάρχει ελεύθερος χώρος στο δίσκο."_s;
inline const QString kRestoreFailed = u"ΠΡΟΣΟΧΗ!! Η επαναφορά από το αρχείο '%1' απέτυχε."_s;
inline const QString kNothingChanged = u"Το αρχείο δηλώσεων δεν άλλαξε."_s;
inline const QString kRestored = u"Το αρχείο δηλώσεων '%1' επαναφέρθηκε από το '%2'."_s;
inline const QString kReplacedKept = u"Το προηγούμενο αρχείο φυλάχτηκε ως '%1'."_s;

}  // namespace veroxia::store_texts
