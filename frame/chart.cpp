#include "frame/chart.h"

#include "frame/arith.h"

namespace vorel {

namespace {
// A value kept as a Single reads at a Single's precision.
std::string number(double v) {
  const float single = static_cast<float>(v);
  return double(single) == v ? Str(single) : Str(v);
}

// The header of the points and series, then a row per point, tab-separated;
// `bare` drops the blank a positive number starts with.
std::string table(const Chart& chart, bool bare) {
  std::string out = "Punto";
  for (const std::string& s : chart.series)
    out += chart.kind == ChartKind::XY ? "\t" + s + " (x)\t" + s + " (y)" : "\t" + s;
  out += "\n";
  for (std::size_t r = 0; r < chart.matrix.size(); ++r) {
    out += r < chart.rows.size() ? chart.rows[r] : std::to_string(r + 1);
    for (double v : chart.matrix[r]) {
      const std::string n = number(v);
      out += "\t" + (bare && n.starts_with(' ') ? n.substr(1) : n);
    }
    out += "\n";
  }
  return out;
}
}  // namespace

std::string renderText(const Chart& chart) {
  std::string out = "Gráfico:" + (chart.title.empty() ? std::string() : " " + chart.title) + "\n";
  out += chart.kind == ChartKind::XY ? "Tipo: XY\n" : "Tipo: líneas\n";
  out += "Eje de categorías: " + chart.categoryTitle + "\n";
  out += "Eje de valores: " + chart.valueTitle;
  if (chart.axis.automatic)
    out += " (automático)\n";
  else
    out += " (mínimo" + Str(chart.axis.minimum) + ", máximo" + Str(chart.axis.maximum) +
           ", división" + Str(chart.axis.majorDivision) + ")\n";
  out += "Página: izquierda" + Str(chart.pageLeft) + ", arriba" + Str(chart.pageTop) + "\n";
  return out + table(chart, false);
}

std::string renderTable(const Chart& chart) { return table(chart, true); }

}  // namespace vorel
