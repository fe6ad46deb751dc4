#include "web/chart_json.h"

#include "web/json.h"

namespace vorel::web {

namespace {
void writeTexts(Json& j, std::string_view key, const std::vector<std::string>& texts) {
  j.key(key).open('[');
  for (const std::string& t : texts) j.value(t);
  j.close(']');
}
}  // namespace

std::string chartJson(const Chart& chart) {
  Json j;
  j.open('{');
  j.field("kind", chart.kind == ChartKind::XY ? "xy" : "lines");
  j.field("title", chart.title);
  j.field("categoryTitle", chart.categoryTitle);
  j.field("valueTitle", chart.valueTitle);
  writeTexts(j, "series", chart.series);
  writeTexts(j, "rows", chart.rows);
  j.key("matrix").open('[');
  for (const std::vector<double>& row : chart.matrix) {
    j.open('[');
    for (double v : row) j.number(v);
    j.close(']');
  }
  j.close(']');
  j.key("axis").open('{');
  j.field("automatic", chart.axis.automatic);
  j.key("minimum").number(chart.axis.minimum);
  j.key("maximum").number(chart.axis.maximum);
  j.key("majorDivision").number(chart.axis.majorDivision);
  j.close('}');
  j.key("pageLeft").number(chart.pageLeft);
  j.key("pageTop").number(chart.pageTop);
  j.close('}');
  return j.str();
}

}  // namespace vorel::web
