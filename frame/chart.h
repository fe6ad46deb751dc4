// Chart data: what a charted solution screen draws beside its report, and what
// Imprimir paints under the printed text. One row per point, one column per
// series; the screen, the printer and the command-line program all draw from
// the same matrix.
#pragma once

#include <string>
#include <vector>

namespace vorel {

// The value axis: automatic, or a fixed minimum, maximum and major division.
struct ValueAxis {
  bool automatic = true;
  double minimum = 0, maximum = 0, majorDivision = 0;
  bool operator==(const ValueAxis&) const = default;
};

struct Chart {
  std::vector<std::string> series;          // one name per column
  std::vector<std::string> rows;            // one label per point (category axis)
  std::vector<std::vector<double>> matrix;  // matrix[row][column]
  ValueAxis axis;
  // Where Imprimir paints the chart: fractions of the page's width and height.
  double pageLeft = 0, pageTop = 0;
  bool operator==(const Chart&) const = default;
  bool empty() const { return matrix.empty(); }
};

}  // namespace vorel
