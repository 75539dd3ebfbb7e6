#pragma once
// The state of a screen's controls as plain data: what each shows, whether it
// is enabled, shown and in the focus order, and where the focus and the
// selection are. Screen logic changes this state; a view mirrors it.

#include <QString>
#include <QStringList>
#include <unordered_map>
#include <optional>

namespace veroxia {

struct Control {
  QString text;            // the typed text of a field, the caption of a button
  bool enabled = true;
  bool visible = true;
  bool tab_stop = true;    // takes part in the focus order
  int max_length = 0;      // 0: no limit
};

struct Selection {
  int start = 0;
  int length = 0;
};

class Form {
 public:
  virtual ~Form() = default;

  // The control of that name; every control is declared when the form is made.
  Control& At(const QString& name);
  const Control& At(const QString& name) const;
  bool Has(const QString& name) const { return controls_.count(name) != 0; }
  QString Text(const QString& name) const { return At(name).text; }
  // What the user typed, cut to the field's maximum length as the field would.
  void Type(const QString& name, const QString& text);

  // Declared controls in the order they were declared (the view builds from it).
  const QStringList& Names() const { return order_; }

  QString FocusedField() const { return focus_; }
  std::optional<Selection> SelectionOf(const QString& name) const;
  // The focus goes to the field, without a selection.
  void SetFocus(const QString& name);
  // The focus goes to the field with its first `length` characters selected.
  void Select(const QString& name, int length);
  // The view reports where the user moved the focus.
  void FocusMovedTo(const QString& name) { SetFocus(name); }

  QString Title() const { return title_; }

 protected:
  Control& Declare(const QString& name, const QString& text = {}, int max_length = 0);
  void SetTitle(const QString& title) { title_ = title; }

 private:
  std::unordered_map<QString, Control> controls_;  // never moved once declared
  QStringList order_;
  QString focus_;
  std::optional<Selection> selection_;
  QString title_;
};

}  // namespace veroxia
