#pragma once
// What an employee-line screen of one kind is made of, as data: its captions,
// its fields in box order with the column each is stored in, how each value
// is stored and shown, and the texts that differ between the kinds. LinesForm
// builds the screen and runs its modes, browsing and storage from it.

#include <QString>
#include <QStringList>
#include <vector>

#include "shell/stored_values.h"
#include "store/kind.h"

namespace veroxia {

struct LineField {
  QString name;    // control
  QString column;  // column of the kind's lines table
  int max_length = 0;
  QString cleared;  // text after ClearFields and when the screen opens
  StoreAs store = StoreAs::Text;
  // Characters selected when the field takes the focus; 0: the field has no
  // selection rule of its own (the choice boxes).
  int select_length = 15;
  // A choice box: its items, the first being the one stored as "1".
  QStringList choices;
};

// A label or heading: declared so that the view shows it.
struct LineCaption {
  QString name;
  QString text;
};

struct LinesLayout {
  Kind kind = Kind::Common;
  QString title;  // window caption
  std::vector<LineCaption> captions;
  std::vector<LineField> fields;  // in box order, which is the tab order
  QString close_title;            // title of the close question
  QString cannot_delete;          // a delete that found no line
  // The columns that tell a person's lines apart, the person's register
  // number first: two lines alike in all of them are one line twice. A line
  // without a register number stands for a person of its own.
  QStringList identity;
  // The kind's finer points of the same behaviour.
  bool busy_until_insert_message = true;  // the pointer is restored after the message
  bool clear_moves_focus = false;         // ClearFields puts the focus on the first field
};

}  // namespace veroxia
