#pragma once
// The pages of the printouts, composed from the store one page at a time, so
// that a declaration of any size is printed in little memory. A page is one
// text whose lines are joined by CR LF; its columns come from counting
// characters, for a monospaced font. A value longer than its room is written
// whole.

#include <QString>
#include <memory>

#include "store/database.h"
#include "store/kind.h"

namespace veroxia {

enum class Printout {
  kSummary,      // the one-page summary form that goes with the submission file
  kDeclaration,  // the header, every employee line, the statement page of type 02
};

class Pages {
 public:
  virtual ~Pages() = default;
  // The number of pages; known before the first one is composed.
  virtual int Count() const = 0;
  // Composes the next page into `page`; false when every page has been given.
  // Throws StoreError.
  virtual bool Next(QString& page) = 0;
};

// Reads the declaration's header row (for the declaration printout also its
// number of lines) and answers its pages. Throws StoreError, also when no
// header is stored or a value the printout needs cannot be read.
std::unique_ptr<Pages> ComposePages(Database& db, Kind kind, Printout printout, int id);

// The pages of a declaration printout: one for the first line and one for
// every two more, at least one, and the statement page of an extraordinary
// declaration.
constexpr int DeclarationPageCount(int lines, bool extraordinary) {
  return lines / 2 + 1 + (extraordinary ? 1 : 0);
}

}  // namespace veroxia
