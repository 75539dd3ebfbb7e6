#pragma once
// What a header screen of one kind is made of, as data: its captions, its
// fields with the column each is stored in, the fields it locks and unlocks,
// its three declaration types and the texts that differ between the kinds.
// HeaderForm builds the screen and runs its states and its save from it.

#include <QString>
#include <QStringList>
#include <array>
#include <vector>

#include "shell/stored_values.h"
#include "store/kind.h"

namespace veroxia {

// When a field is filled from a stored header row.
enum class LoadAs {
  Always,
  NotTakenOver,  // not from the previous declaration's row (period, dates)
  Never,         // computed by the screen, never read back
};

struct HeaderField {
  QString name;    // control
  QString column;  // column of the header table it is stored in
  int max_length = 0;
  QString initial;  // text when the screen opens
  StoreAs insert_as = StoreAs::Text;
  StoreAs update_as = StoreAs::Text;
  LoadAs load = LoadAs::Always;
  int select_length = 0;  // selected when it takes the focus; 0: its whole text
  bool visible = true;
  bool enabled = true;  // when the screen opens
};

// A label, heading, frame or picture: declared so that the view shows it.
struct HeaderCaption {
  QString name;
  QString text;
  bool visible = true;
};

struct TypeOption {
  QString code;     // stored declaration type
  QString descr;    // stored description, where the kind keeps one
  QString caption;  // the label beside the option button
};

struct HeaderLayout {
  Kind kind = Kind::Common;
  QString title;  // window caption
  std::vector<HeaderCaption> captions;
  std::vector<HeaderField> fields;  // in entry order
  // The controls EnableFields unlocks or locks, in its order (option buttons
  // "Option1_0" to "Option1_2" included).
  QStringList switched;
  std::array<TypeOption, 3> types;
  QString type_field;   // the hidden box of the type code
  QString descr_field;  // the hidden box of the type description; empty: none
  // The period boxes filled from PeriodFrom and PeriodTo; empty: not shown.
  QString from_month_field;
  QString from_year_field;
  QString to_month_field;
  QString to_year_field;
  QString lines_button;  // the button that opens the employee screen
  QString exit_caption;
  QString close_title;  // title of the close question
  QString save_title;   // title of the save outcome messages
  // First line of the message of a store error during the save; empty: the
  // message is the error's own text alone.
  QString save_error_first_line;
};

}  // namespace veroxia
