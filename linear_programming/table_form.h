// Pieces of the linear-programming entry screens as data: a number selector
// with its caption, the table's headings and cells, and Rediseñar Tabla. Each
// places a control on the grid of fields (group 0) or on the table (group 1).
#pragma once

#include <string>
#include <utility>

#include "frame/form.h"
#include "frame/screen_description.h"

namespace vorel::linear_programming::tabla {

// The list "1".."count".
inline std::vector<std::string> numbers(int count) {
  std::vector<std::string> items;
  for (int k = 1; k <= count; ++k) items.push_back(std::to_string(k));
  return items;
}

// A selector on the grid of fields, after its caption in the column before it.
inline void addSelector(ui::Description& d, int row, int column, std::string name,
                        std::string caption, std::vector<std::string> items,
                        std::string toolTip = {}, int width = 64) {
  ui::Control label = control(ui::ControlKind::Label, "", std::move(caption), 0, row, column);
  label.buddy = name;
  d.controls.push_back(std::move(label));
  ui::Control list = control(ui::ControlKind::Selector, std::move(name), "", 0, row, column + 1, width);
  list.items = std::move(items);
  list.toolTip = std::move(toolTip);
  d.controls.push_back(std::move(list));
}

// The button beside the fields that runs the edit of the same name.
inline ui::Command rediseñarTabla() {
  ui::Command c;
  c.name = "RediseñarTabla";
  c.caption = "Rediseñar Tabla";
  c.action = ui::Action::Edit;
  c.target = c.name;
  return c;
}

// A list index bound to a member.
template <class Fields>
Binding<Fields> indexOf(std::string control, int Fields::*member) {
  return {std::move(control), {}, {}, [member](Fields& f) { return &(f.*member); }};
}

// A cell: its text and whether it shows.
template <class Fields, class At>
Binding<Fields> cellOf(std::string control, At at) {
  return {std::move(control), [at](Fields& f) { return &at(f).text; },
          [at](Fields& f) { return &at(f).visible; }};
}

// A heading whose only bound property is whether it shows.
template <class Fields, class At>
Binding<Fields> shownOf(std::string control, At at) {
  return {std::move(control), {}, [at](Fields& f) { return &at(f); }};
}

}  // namespace vorel::linear_programming::tabla
