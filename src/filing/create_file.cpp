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

  busy.emplace(dialogs);
  VolumeFiles files(directory);
  try {
    writer->Write(files);
  } catch (const Unencodable& fault) {
    files.Abandon(false);
    busy.reset();
    dialogs.Message(UnencodableMessage(fault), title);
    return FileOutcome::kUnencodable;
  } catch (const StoreError& error) {
    files.Abandon(true);
    busy.reset();
    dialogs.Message(ErrorMessage(filing_texts::kWriteFailed, error), title);
    return FileOutcome::kFailed;
  } catch (const FileError& error) {
    files.Abandon(true);
    busy.reset();
    dialogs.Message(ErrorMessage(filing_texts::kWriteFailed, error.code, error.description), title);
    return FileOutcome::kFailed;
  }
  busy.reset();
  dialogs.Message(filing_texts::kWrittenIn + directory + u"'."_s, title);
  return FileOutcome::kWritten;
}

}  // namespace veroxia
