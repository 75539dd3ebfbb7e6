#include "filing/create_file.h"

#include "filing/texts.h"
#include "filing/totals.h"
#include "filing/volume_files.h"
#include "filing/volume_writer.h"
#include "shell/errors.h"

namespace veroxia {

namespace {

using namespace Qt::StringLiterals;

QString UnencodableMessage(const Unencodable& fault) {
  const QString first = fault.row_num.isEmpty() && fault.insured_id.isEmpty()
                            ? filing_texts::kUnencodableHeader.arg(fault.field, fault.character)
                            : filing_texts::kUnencodableLine.arg(fault.row_num, fault.insured_id,
                                                                 fault.field, fault.character);
  return first + u"\r\n"_s + filing_texts::kNothingWritten;
}

// The volumes of an earlier run in the directory: those of the kind, which
// the new set replaces or takes away, then those of the other kind, which
// would leave two files on one medium and go too.
QStringList OldVolumes(const QString& directory, Kind kind, QString& question) {
  const FoundVolumes found = FindVolumes(directory);
  const int own = kind == Kind::Common ? 0 : 1;
  QStringList names[2];
  for (const int k : {own, 1 - own}) {
    for (const auto& [number, name] : found.named[k]) names[k] << name;
  }
  question = filing_texts::kOldVolumes.arg(directory);
  if (!names[own].isEmpty()) {
    question += u"\r\n"_s + filing_texts::kOldVolumesReplaced.arg(names[own].join(u", "_s));
  }
  if (!names[1 - own].isEmpty()) {
    question += u"\r\n"_s + filing_texts::kOldVolumesOtherKind.arg(names[1 - own].join(u", "_s));
  }
  question += u"\r\n"_s + filing_texts::kOldVolumesQuestion;
  return names[own] + names[1 - own];
}

}  // namespace

FileOutcome CreateFile(Vars& vars, Dialogs& dialogs, Kind kind) {
  const QString& title = filing_texts::kFileTitle;
  std::optional<BusyPointer> busy(dialogs);
  Database& db = *vars.StoreConnection;
  std::optional<VolumeWriter> writer;
  try {
    writer.emplace(db, kind, vars.DeclarationId);
  } catch (const StoreError& error) {
    busy.reset();
    dialogs.Message(ErrorMessage(filing_texts::kWriteFailed, error), title);
    return FileOutcome::kFailed;
  }
  if (!writer->HasHeader()) {
    busy.reset();
    dialogs.Message(ErrorMessage(filing_texts::kWriteFailed, 0, {}), title);
    return FileOutcome::kFailed;
  }
  if (writer->SubmissionDate().isEmpty()) {
    busy.reset();
    dialogs.Message(filing_texts::kNoDateLine1 + u"\r\n"_s + filing_texts::kNoDateLine2, title);
    return FileOutcome::kNoDate;
  }

  // Totals that do not add up are a question, not a refusal.
  std::optional<TotalsReport> totals;
  try {
    totals = CompareTotals(db, kind, vars.DeclarationId);
  } catch (const StoreError& error) {
    busy.reset();
    dialogs.Message(ErrorMessage(filing_texts::kWriteFailed, error), title);
    return FileOutcome::kFailed;
  }
  busy.reset();  // the dialogs show the normal pointer
  if (totals && !totals->AllAgree() &&
      !dialogs.Ask(filing_texts::kTotalsQuestion, title, AskStyle::Question)) {
    return FileOutcome::kCancelled;
  }
  vars.DialogResult.clear();
  vars.DialogResult = dialogs.AskDirectory(DirPurpose::kWriteVolumes);
  if (vars.DialogResult.trimmed().isEmpty()) return FileOutcome::kCancelled;
  const QString directory = vars.DialogResult;

  // A write into the directory cut short before is finished first; the
  // volumes then found are named before any of them goes.
  busy.emplace(dialogs);
  QStringList old;
  QString question;
  try {
    FinishUnfinishedWrites(directory);
    old = OldVolumes(directory, kind, question);
  } catch (const FileError& error) {
    busy.reset();
    dialogs.Message(ErrorMessage(filing_texts::kWriteFailed, error.code, error.description), title);
    return FileOutcome::kFailed;
  }
  busy.reset();
  if (!old.isEmpty() && !dialogs.Ask(question, title, AskStyle::Question)) {
    return FileOutcome::kCancelled;
  }

  busy.emplace(dialogs);
  VolumeFiles files(directory, old);
  try {
    writer->Write(files);
  } catch (const Unencodable& fault) {
    files.Abandon();
    busy.reset();
    dialogs.Message(UnencodableMessage(fault), title);
    return FileOutcome::kUnencodable;
  } catch (const StoreError& error) {
    files.Abandon();
    busy.reset();
    dialogs.Message(ErrorMessage(filing_texts::kWriteFailed, error), title);
    return FileOutcome::kFailed;
  } catch (const FileError& error) {
    files.Abandon();
    busy.reset();
    dialogs.Message(ErrorMessage(filing_texts::kWriteFailed, error.code, error.description), title);
    return FileOutcome::kFailed;
  }
  busy.reset();
  dialogs.Message(filing_texts::kWrittenIn + directory + u"'."_s, title);
  return FileOutcome::kWritten;
}

}  // namespace veroxia
