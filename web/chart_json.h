// A chart's data for the browser, which draws it as SVG (web/site/js/chart.mjs).
#pragma once

#include <string>

#include "frame/chart.h"

namespace vorel::web {

// The chart as one JSON object:
//   {"kind": "lines" | "xy", "title", "categoryTitle", "valueTitle",
//    "series": [names], "rows": [labels], "matrix": [[numbers], ...],
//    "axis": {"automatic", "minimum", "maximum", "majorDivision"},
//    "pageLeft", "pageTop"}
// matrix[row][column] as the core holds it (rows may be shorter than others;
// the drawing reads a missing cell as 0, as the desktop does). Numbers are
// written exactly (the shortest text that reads back as the same double); a
// NaN or an infinity, which JSON cannot hold, is written null, and the drawing
// leaves that point out.
std::string chartJson(const Chart& chart);

}  // namespace vorel::web
