#pragma once
// The command line's own texts: its help and what it says of a wrong command
// line. The command words, the kinds and the options stay as they are typed.

#include <QString>

namespace veroxia::cli_texts {

using namespace Qt::StringLiterals;

inline const char* const kHelp =
    "Χρήση: veroxia-cli [--store ΑΡΧΕΙΟ] ΕΝΤΟΛΗ\n"
    "\n"
    "Εντολές:\n"
    "  list                              οι αποθηκευμένες δηλώσεις, μία σε κάθε\n"
    "                                    γραμμή: είδος, αριθμός, περίοδος, τύπος,\n"
    "                                    πλήθος γραμμών\n"
    "  volumes common|construction ΑΡ ΦΑΚΕΛΟΣ\n"
    "                                    γράφει το αρχείο υποβολής της δήλωσης\n"
    "                                    με αριθμό ΑΡ στο φάκελο ΦΑΚΕΛΟΣ\n"
    "  check common|construction ΑΡ      τα σύνολα της επικεφαλίδας απέναντι στα\n"
    "                                    αθροίσματα των γραμμών. Κατάσταση εξόδου\n"
    "                                    0 όταν όλα συμφωνούν, 1 όταν όχι, 2 σε\n"
    "                                    λάθος\n"
    "  print summary|declaration common|construction ΑΡ --pdf ΑΡΧΕΙΟ|--text\n"
    "                                    οι σελίδες του συγκεντρωτικού (summary)\n"
    "                                    ή όλης της δήλωσης (declaration): σε\n"
    "                                    αρχείο PDF, ή ως κείμενο στην τυπική\n"
    "                                    έξοδο με αλλαγή σελίδας (form feed)\n"
    "                                    ανάμεσα στις σελίδες\n"
    "  verify ΦΑΚΕΛΟΣ [--against common|construction ΑΡ]\n"
    "                                    διαβάζει ξανά τους τόμους του φακέλου\n"
    "                                    και ελέγχει κάθε εγγραφή, με --against\n"
    "                                    και απέναντι στα πλήθη, στην περίοδο,\n"
    "                                    στους αριθμούς και στα σύνολα της\n"
    "                                    αποθηκευμένης δήλωσης. Κατάσταση εξόδου\n"
    "                                    0 όταν όλα ισχύουν, 1 όταν όχι, 2 σε\n"
    "                                    λάθος\n"
    "  import common|construction ΑΡ ΑΡΧΕΙΟ [--append|--replace] [--keep-duplicates]\n"
    "                                    φέρνει στη δήλωση τις γραμμές\n"
    "                                    εργαζομένων ενός αρχείου CSV, καθεμία\n"
    "                                    ελεγμένη όπως στην οθόνη εργαζομένων:\n"
    "                                    αποθηκεύονται όλες ή καμία. Κάθε γραμμή\n"
    "                                    με λάθος αναφέρεται στην τυπική έξοδο\n"
    "                                    λαθών. Κατάσταση εξόδου 0 όταν\n"
    "                                    αποθηκεύτηκαν, 1 όταν όχι. Σε δήλωση που\n"
    "                                    έχει ήδη γραμμές χρειάζεται --append\n"
    "                                    (μετά την τελευταία γραμμή) ή --replace\n"
    "                                    (στη θέση όλων των γραμμών). Γραμμές που\n"
    "                                    επαναλαμβάνουν γραμμή (ίδιος Α.Μ., μήνας\n"
    "                                    και τύπος αποδοχών) αναφέρονται στην\n"
    "                                    τυπική έξοδο λαθών και αποθηκεύονται\n"
    "                                    μόνο με --keep-duplicates\n"
    "  export-lines common|construction ΑΡ ΑΡΧΕΙΟ\n"
    "                                    γράφει τις γραμμές της δήλωσης σε αρχείο\n"
    "                                    CSV που διαβάζει ξανά η import\n"
    "  backup                            αντίγραφο του αρχείου δηλώσεων τώρα, στο\n"
    "                                    φάκελο backups/ δίπλα του. Τυπώνει τη\n"
    "                                    διαδρομή του αντιγράφου\n"
    "  restore ΑΡΧΕΙΟ                    βάζει το ΑΡΧΕΙΟ, αντίγραφο του αρχείου\n"
    "                                    δηλώσεων, στη θέση του, αφού ελεγχθούν ο\n"
    "                                    κωδικός, οι πίνακες και η ακεραιότητά\n"
    "                                    του. Το αρχείο που αντικαθίσταται\n"
    "                                    φυλάγεται στο backups/. Δεν γίνεται όσο\n"
    "                                    το πρόγραμμα κρατά το αρχείο δηλώσεων\n"
    "\n"
    "Επιλογές:\n"
    "  --store ΑΡΧΕΙΟ       το αρχείο δηλώσεων (αλλιώς: το QorDb.mdb δίπλα στο\n"
    "                       πρόγραμμα)\n"
    "  --append             import: οι γραμμές μπαίνουν μετά τις υπάρχουσες\n"
    "  --replace            import: οι γραμμές μπαίνουν στη θέση των υπαρχουσών\n"
    "  --keep-duplicates    import: αποθηκεύονται και οι γραμμές που\n"
    "                       επαναλαμβάνουν γραμμή\n"
    "  --pdf ΑΡΧΕΙΟ, --text print: σε αρχείο PDF ή ως κείμενο\n"
    "  --against            verify: και απέναντι στην αποθηκευμένη δήλωση\n"
    "  --help               αυτό το κείμενο\n"
    "\n"
    "Κατάσταση εξόδου: 0 όταν ολοκληρώθηκε. 1 όταν απέτυχε το αρχείο δηλώσεων,\n"
    "ένα αρχείο ή η εκτύπωση, όταν η δήλωση δεν έχει ημερομηνία υποβολής ή όταν\n"
    "η επαναφορά απορρίφθηκε. 2 για λάθος γραμμή εντολής.\n";

// A wrong command line; "%1" stands for the command.
inline const QString kStoreNeedsFile = u"Η επιλογή --store θέλει ένα αρχείο."_s;
inline const QString kUnknownCommand = u"Άγνωστη εντολή: "_s;
inline const QString kKindWords = u"Το είδος είναι common ή construction."_s;
inline const QString kIdRange = u"Ο αριθμός της δήλωσης είναι αριθμός από 1 έως 32767."_s;
inline const QString kPrintoutWords = u"Η εκτύπωση είναι summary ή declaration."_s;
inline const QString kNeedsKindAndId = u"Η εντολή %1 θέλει είδος και αριθμό δήλωσης."_s;
inline const QString kNeedsKindIdAndDirectory =
    u"Η εντολή %1 θέλει είδος, αριθμό δήλωσης και φάκελο."_s;
inline const QString kNeedsKindIdAndFile = u"Η εντολή %1 θέλει είδος, αριθμό δήλωσης και αρχείο."_s;
inline const QString kPrintNeeds =
    u"Η εντολή print θέλει εκτύπωση, είδος, αριθμό δήλωσης και --pdf ΑΡΧΕΙΟ ή --text."_s;
inline const QString kVerifyNeeds =
    u"Η εντολή verify θέλει φάκελο και, με --against, είδος και αριθμό δήλωσης."_s;
inline const QString kNoMoreWords = u"Η εντολή %1 δεν παίρνει άλλες λέξεις."_s;
inline const QString kNeedsOneFile = u"Η εντολή %1 θέλει ένα αρχείο."_s;
inline const QString kAppendOrReplace = u"Το --append και το --replace δεν δίνονται μαζί."_s;
inline const QString kImportOptionsOnly =
    u"Τα --append, --replace και --keep-duplicates δίνονται μόνο στην εντολή import."_s;
// What the command names is not there.
inline const QString kNoDeclaration = u"Δεν υπάρχει δήλωση %1 αυτού του είδους."_s;
inline const QString kNoDirectory = u"Ο φάκελος '%1' δεν υπάρχει."_s;

}  // namespace veroxia::cli_texts
