#include "frame/chart.h"

#include "frame/arith.h"

namespace vorel {

namespace {
// A value kept as a Single reads at a Single's precision.
std::string number(double v) {
  const float single = static_cast<float>(v);
  return double(single) == v ? Str(single) : Str(v);
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
  out += "Punto";
  for (const std::string& s : chart.series)
    out += chart.kind == ChartKind::XY ? "\t" + s + " (x)\t" + s + " (y)" : "\t" + s;
  out += "\n";
  for (std::size_t r = 0; r < chart.matrix.size(); ++r) {
    out += r < chart.rows.size() ? chart.rows[r] : std::to_string(r + 1);
    for (double v : chart.matrix[r]) out += "\t" + number(v);
    out += "\n";
  }
  return out;
}

}  // namespace vorel
