#pragma once
// Our own words for what failed in the store's files, for the user: the
// descriptions of the errors that our code raises. "%1" and "%2" stand for
// files and folders.

#include <QString>

namespace veroxia::store_file_texts {

using namespace Qt::StringLiterals;

inline const QString kExistsAlready = u"Το αρχείο '%1' υπάρχει ήδη."_s;
inline const QString kFolderNotMade = u"Ο φάκελος '%1' δεν μπορεί να δημιουργηθεί."_s;
inline const QString kNotRenamed = u"Το αρχείο '%1' δεν μπορεί να μετονομαστεί σε '%2'."_s;
inline const QString kNotRemoved = u"Το αρχείο '%1' δεν μπορεί να διαγραφεί."_s;
inline const QString kNotRead = u"Το αρχείο '%1' δεν μπορεί να διαβαστεί."_s;
inline const QString kNotWritten = u"Το αρχείο '%1' δεν μπορεί να γραφτεί."_s;
inline const QString kNotFlushed = u"Το αρχείο '%1' δεν μπορεί να γραφτεί οριστικά στο δίσκο."_s;
inline const QString kDiskFull = u"Δεν υπάρχει ελεύθερος χώρος στο δίσκο για το αρχείο '%1'."_s;
inline const QString kNoWritingBeside = u"Δεν μπορεί να γραφτεί αρχείο δίπλα στο '%1'."_s;
inline const QString kTableNotOurs =
    u"Ο πίνακας %1 λείπει ή δεν έχει όλες τις στήλες του αρχείου δηλώσεων."_s;

}  // namespace veroxia::store_file_texts
