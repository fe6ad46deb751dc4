// Control arrays: controls of one name told apart by an index, named
// "Name(i)" so that checks can send focus to them. They all exist from the
// start; Rediseñar only changes what is visible.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QString>
#include <vector>

#include "frame/arith.h"
#include "frame/checks.h"
#include "frame/model.h"

namespace vorel::gui {

template <class W>
class ControlArray {
public:
  // Indexes first..last, each made by `make(parent)` and named "Name(i)".
  template <class Make>
  void create(QWidget* parent, const QString& name, int first, int last, Make make) {
    first_ = first;
    items_.clear();
    for (int i = first; i <= last; ++i) {
      W* w = make(parent);
      w->setObjectName(QString::fromStdString(element(name.toStdString(), i)));
      items_.push_back(w);
    }
  }
  // The control of an index; outside the array is the platform's error 9.
  W* operator()(int index) const { return item(items_, long(index) - first_); }
  int first() const { return first_; }
  int last() const { return first_ + static_cast<int>(items_.size()) - 1; }
  auto begin() const { return items_.begin(); }
  auto end() const { return items_.end(); }

private:
  std::vector<W*> items_;
  int first_ = 0;
};

// A table cell read from its text box, and written back to it.
inline Cell readCell(const QLineEdit* box) { return {box->text().toStdString(), !box->isHidden()}; }
inline void writeCell(QLineEdit* box, const Cell& c) {
  box->setText(QString::fromStdString(c.text));
  box->setVisible(c.visible);
}

// A table cell: a small right-aligned text box.
inline QLineEdit* newCell(QWidget* parent) {
  auto* cell = new QLineEdit(parent);
  cell->setFixedWidth(76);
  cell->setAlignment(Qt::AlignRight);
  return cell;
}

// A heading of a row or column of a table.
inline QLabel* newHeading(QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setStyleSheet("font-weight: 600; color: #2D3748;");
  label->setAlignment(Qt::AlignCenter);
  return label;
}

// A selector filled with `items`.
inline QComboBox* newSelector(QWidget* parent, const QStringList& items) {
  auto* combo = new QComboBox(parent);
  combo->addItems(items);
  return combo;
}

}  // namespace vorel::gui
