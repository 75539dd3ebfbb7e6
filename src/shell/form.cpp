#include "shell/form.h"

#include <stdexcept>

namespace veroxia {

Control& Form::At(const QString& name) {
  auto it = controls_.find(name);
  if (it == controls_.end()) throw std::out_of_range("no control " + name.toStdString());
  return it->second;
}

const Control& Form::At(const QString& name) const {
  auto it = controls_.find(name);
  if (it == controls_.end()) throw std::out_of_range("no control " + name.toStdString());
  return it->second;
}

void Form::Type(const QString& name, const QString& text) {
  Control& control = At(name);
  control.text = control.max_length > 0 ? text.left(control.max_length) : text;
}

std::optional<Selection> Form::SelectionOf(const QString& name) const {
  if (name != focus_) return std::nullopt;
  return selection_;
}

void Form::SetFocus(const QString& name) {
  focus_ = name;
  selection_.reset();
}

void Form::Select(const QString& name, int length) {
  focus_ = name;
  selection_ = Selection{0, std::min<int>(length, static_cast<int>(At(name).text.size()))};
}

Control& Form::Declare(const QString& name, const QString& text, int max_length) {
  order_ << name;
  Control& control = controls_[name];
  control.text = text;
  control.max_length = max_length;
  return control;
}

}  // namespace veroxia
