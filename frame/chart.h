// Chart data: what a charted solution screen draws beside its report, and what
// Imprimir paints under the printed text. One row per point, one column per
// series; the screen, the printer and the command-line program all draw from
// the same matrix.
#pragma once

#include <string>
#include <vector>

namespace vorel {

// The value axis: automatic, or a fixed minimum and maximum parted into a
// number of major divisions (5: five intervals, six labels).
struct ValueAxis {
  bool automatic = true;
  double minimum = 0, maximum = 0, majorDivision = 0;
  bool operator==(const ValueAxis&) const = default;
};

// How the matrix is drawn.
enum class ChartKind {
  Lines,  // each column a line over the rows, the rows evenly spaced and labelled
  XY,     // the columns in pairs, the x then the y of each series; the rows are its points
};

struct Chart {
  std::vector<std::string> series;          // one name per column (per pair of columns in XY)
  std::vector<std::string> rows;            // one label per point (category axis)
  std::vector<std::vector<double>> matrix;  // matrix[row][column]
  ValueAxis axis;
  // Where Imprimir paints the chart: fractions of the page's width and height.
  double pageLeft = 0, pageTop = 0;
  ChartKind kind = ChartKind::Lines;
  std::string title;                      // above the chart; empty for none
  std::string categoryTitle, valueTitle;  // the axes' titles; empty for none
  bool operator==(const Chart&) const = default;
  bool empty() const { return matrix.empty(); }
};

// The chart's data as plain text: title, kind, axes, place on the page, then
// one line per row with its label and its values, tab-separated. What the
// command-line program prints and the tests compare.
std::string renderText(const Chart& chart);
// The points alone, as a spreadsheet takes them: the header "Punto" and the
// series, then one line per point, its label and its values tab-separated,
// each number without the blank a positive one is written with.
std::string renderTable(const Chart& chart);

}  // namespace vorel
