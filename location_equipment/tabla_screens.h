// Pieces the table screens of location and equipment share: a selector of
// counts that starts above 1, a column of cells under a heading, and the
// copy of a column between its text boxes and its fields.
#pragma once

#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <array>

#include "frame/gui/control_array.h"
#include "frame/gui/model_screens.h"

namespace vorel::location_equipment {

// A selector of the counts `first` to `last`, with its caption, on the
// fields' grid at `row`.
QComboBox* selectorDeNumero(gui::EntryScreen& screen, int row, const QString& objectName,
                            const QString& label, int first, int last, const QString& toolTip);
// A heading of the table at a grid cell, spanning `columns`.
QLabel* cabecera(QFrame* table, const QString& objectName, const QString& text, int row, int column,
                 int columns = 1);
// The control array `name`, `rows` cells down grid column `column` from row
// `top`; names are wider and left-aligned, numbers right-aligned.
void columnaDeCeldas(QFrame* table, gui::ControlArray<QLineEdit>& cells, const QString& name,
                     int rows, int column, int top, int width, bool nombres = false);

template <std::size_t N>
void leer(const gui::ControlArray<QLineEdit>& cells, std::array<Cell, N>& out) {
  for (std::size_t i = 0; i < N; ++i) out[i] = gui::readCell(cells(static_cast<int>(i)));
}
template <std::size_t N>
void escribir(const gui::ControlArray<QLineEdit>& cells, const std::array<Cell, N>& in) {
  for (std::size_t i = 0; i < N; ++i) gui::writeCell(cells(static_cast<int>(i)), in[i]);
}

}  // namespace vorel::location_equipment
