#pragma once
// What veroxia-mkstore tells. "%1" stands for the store file.

#include <QString>

namespace veroxia::tools_texts {

using namespace Qt::StringLiterals;

inline const QString kMkstoreUsage = u"Χρήση: veroxia-mkstore ΦΑΚΕΛΟΣ"_s;
inline const QString kExists = u"Το αρχείο '%1' υπάρχει ήδη και μένει όπως είναι."_s;
inline const QString kNotCreated = u"Το αρχείο '%1' δεν δημιουργήθηκε."_s;
inline const QString kCreated = u"Δημιουργήθηκε άδειο αρχείο δηλώσεων: '%1'."_s;

}  // namespace veroxia::tools_texts
