#include "location_equipment/costes_totales.h"

#include <algorithm>

#include "frame/arith.h"
#include "frame/catalogue.h"
#include "location_equipment/location_forms.h"

namespace vorel::location_equipment {

namespace {

struct Costs {
  double CF[4], CV[4];  // 1-based: option 1 to 3
};

Costs costs(const CostesTotalesFields& f) {
  return {{0, Val(f.txtCF1), Val(f.txtCF2), Val(f.txtCF3)},
          {0, Val(f.txtCV1), Val(f.txtCV2), Val(f.txtCV3)}};
}

bool tres(const CostesTotalesFields& f) { return f.Option2; }

std::string opcion(int n) { return " sería recomendable la opción " + std::to_string(n); }

const char* kNegativas =
    "No se puede resolver el problema pues esta trabajando con producciones negativas";

}  // namespace

void nuevo(CostesTotalesFields& f) {
  for (std::string* field : {&f.txtCF1, &f.txtCV1, &f.txtCF2, &f.txtCV2, &f.txtCF3, &f.txtCV3})
    field->clear();
}

Messages check(const CostesTotalesFields& f) {
  std::vector<const std::string*> fields = {&f.txtCF1, &f.txtCV1, &f.txtCF2, &f.txtCV2};
  if (tres(f)) fields.insert(fields.end(), {&f.txtCF3, &f.txtCV3});
  for (const std::string* field : fields)
    if (!IsNumeric(*field)) return {{"Debe introducir un valor numérico", ""}};
  // Equal variable costs would put the crossing of two lines at no volume.
  Messages messages;
  const Costs c = costs(f);
  const int pairs[3][2] = {{1, 2}, {1, 3}, {2, 3}};
  for (int p = 0; p < (tres(f) ? 3 : 1); ++p)
    if (c.CV[pairs[p][0]] == c.CV[pairs[p][1]])
      messages.push_back({"Valores no válidos de costes variables", ""});
  if (!messages.empty()) return messages;
  for (const std::string* field : fields)
    if (Val(*field) < 0 || Val(*field) > 999999999)
      return {{"Los costes deben estar entre 0 y 999999999", ""}};
  return {};
}

std::string solutionScreen(const CostesTotalesFields& f) {
  return tres(f) ? "Select_C_Totales_Sol1" : "Select_C_Totales_Sol";
}

CostesDosResults solveDos(const CostesTotalesFields& f) {
  const Costs c = costs(f);
  CostesDosResults r;
  r.x = Sng(divide(c.CF[2] - c.CF[1], c.CV[1] - c.CV[2]));
  r.coste = Sng(checked(c.CF[1] + checked(c.CV[1] * r.x)));
  // The option with the lower fixed cost is the cheaper one below the crossing.
  r.below = c.CF[1] < c.CF[2] ? 1 : 2;
  r.above = 3 - r.below;
  // Lines that meet at volume 0 (equal fixed costs) or below it part at every
  // positive volume: the one with the lower variable cost is cheaper there.
  if (!(r.x > 0)) r.above = c.CV[1] < c.CV[2] ? 1 : 2;
  return r;
}

CostesTresResults solveTres(const CostesTotalesFields& f) {
  const Costs c = costs(f);
  CostesTresResults r;
  r.x12 = Sng(divide(c.CF[1] - c.CF[2], c.CV[2] - c.CV[1]));
  r.x13 = Sng(divide(c.CF[1] - c.CF[3], c.CV[3] - c.CV[1]));
  r.x23 = Sng(divide(c.CF[3] - c.CF[2], c.CV[2] - c.CV[3]));
  // Sorted by strict comparisons: ties fall through to the later cases, and
  // the options are compared first in the pair whose crossing is H.
  int first, second, third;
  auto order = [&r](float h, float a, float b) {
    r.H = h;
    r.M = a > b ? a : b;
    r.L = a > b ? b : a;
  };
  if (r.x12 > r.x13 && r.x12 > r.x23) {
    order(r.x12, r.x13, r.x23);
    first = 1, second = 2, third = 3;
  } else if (r.x13 > r.x12 && r.x13 > r.x23) {
    order(r.x13, r.x12, r.x23);
    first = 1, second = 3, third = 2;
  } else {
    order(r.x23, r.x12, r.x13);
    first = 2, second = 3, third = 1;
  }
  // The option of least cost at a volume, the smallest of three by two comparisons.
  auto cheapest = [&](double volume) {
    auto at = [&](int o) { return checked(c.CF[o] + checked(c.CV[o] * volume)); };
    const int w = at(first) < at(second) ? first : second;
    return at(w) < at(third) ? w : third;
  };
  r.mayor = cheapest(99999999);
  r.hasta = cheapest(0);  // the fixed costs
  r.entreLM = cheapest(double(r.L) + 2);
  r.entreMH = cheapest(double(r.M) + 1);
  return r;
}

namespace {

void body(Report& out, const CostesTotalesFields& f, const CostesDosResults& r) {
  out.line(Z, "  Solución al problema:  " + f.Titulo1);
  out.line(Z, std::string(84, '_') + "  ");
  out.line(Z, " ");
  if (r.x > 0) {
    out.line(Z, "Para un volumen de producción comprendido entre 0 y ", Str(r.x), opcion(r.below));
    out.line(Z, "Para un volumen de producción mayor a ", Str(r.x), opcion(r.above));
  } else {
    // No crossing at a positive volume: one option for every volume above 0.
    if (r.x < 0) out.line(Z, kNegativas);
    out.line(Z, "Para un volumen de producción mayor a ", Str(0.0f), opcion(r.above));
  }
  out.line(Z, " ");
  out.line(Z, "El valor para el que se igualan los costes de ambas opciones es ", Str(r.x));
}

void body(Report& out, const CostesTotalesFields& f, const CostesTresResults& r) {
  out.line(Z, " Solución al problema: " + f.Titulo1);
  out.line(Z, std::string(84, '_') + " ");
  out.line(Z, " ");
  // The intervals in volume order. With every crossing at or above 0 each
  // stands as it is. A crossing below 0 gives, once, the line of negative
  // production in place of the intervals that lie below 0; the interval
  // that reaches across 0 is told from 0, with the option of least fixed
  // cost, so that every positive volume has its recommendation.
  const std::string de = "Para un volumen de producción comprendido entre";
  const std::string mayorA = "Para un volumen de producción mayor a";
  if (r.L >= 0 && r.M >= 0 && r.H >= 0) {
    out.line(Z, de + " 0 y", printed(r.L), opcion(r.hasta));
    out.line(Z, de, printed(r.L), "y", printed(r.M), opcion(r.entreLM));
    out.line(Z, de, printed(r.M), "y", printed(r.H), opcion(r.entreMH));
    out.line(Z, mayorA, printed(r.H), opcion(r.mayor));
    return;
  }
  out.line(Z, kNegativas);
  const struct {
    float desde, hasta;
    int opcion;
  } tramos[] = {{r.L, r.M, r.entreLM}, {r.M, r.H, r.entreMH}};
  for (const auto& t : tramos) {
    if (!(t.hasta > 0)) continue;
    if (t.desde < 0)
      out.line(Z, de + " 0 y", printed(t.hasta), opcion(r.hasta));
    else
      out.line(Z, de, printed(t.desde), "y", printed(t.hasta), opcion(t.opcion));
  }
  if (r.H < 0)
    out.line(Z, mayorA, printed(0.0f), opcion(r.mayor));
  else
    out.line(Z, mayorA, printed(r.H), opcion(r.mayor));
}

template <class Results>
Report onScreen(const CostesTotalesFields& f, const Results& r) {
  Report out;
  out.blankLines(3);
  body(out, f, r);
  return out;
}

template <class Results>
Report onPaper(const CostesTotalesFields& f, const Results& r) {
  Report out = pageHead("PROBLEMA DE COSTES TOTALES");
  body(out, f, r);
  return out;
}

}  // namespace

Report report(const CostesTotalesFields& f, const CostesDosResults& r) { return onScreen(f, r); }
Report printout(const CostesTotalesFields& f, const CostesDosResults& r) { return onPaper(f, r); }
Report report(const CostesTotalesFields& f, const CostesTresResults& r) { return onScreen(f, r); }
Report printout(const CostesTotalesFields& f, const CostesTresResults& r) { return onPaper(f, r); }

namespace {

Chart costChart(int options) {
  Chart out;
  out.kind = ChartKind::XY;
  out.title = "Costes Totales";
  for (int o = 1; o <= options; ++o) out.series.push_back("Opción " + std::to_string(o));
  out.categoryTitle = "Volumen de producción";
  out.valueTitle = "Costes";
  out.pageLeft = 0.1;
  out.pageTop = 0.4;
  return out;
}

}  // namespace

Chart chart(const CostesTotalesFields& f, const CostesDosResults& r) {
  // Both lines from volume 0 through their crossing to twice its volume.
  // Lines that do not cross above 0 are drawn from 0 to twice the volume at
  // which the dearer variable cost adds the higher fixed cost again, so they
  // stand apart.
  const Costs c = costs(f);
  Chart out = costChart(2);
  double mitad = r.x;
  if (!(r.x > 0)) {
    const double fijo = std::max(c.CF[1], c.CF[2]), variable = std::max(c.CV[1], c.CV[2]);
    mitad = variable > 0 ? std::max(1.0, fijo / variable) : 1.0;
  }
  for (double v : {0.0, mitad, 2.0 * mitad}) {
    std::vector<double> row;
    for (int o = 1; o <= 2; ++o) row.insert(row.end(), {v, Sng(c.CF[o] + c.CV[o] * v)});
    out.matrix.push_back(row);
  }
  return out;
}

Chart chart(const CostesTotalesFields& f, const CostesTresResults& r) {
  // Each line from its fixed cost at volume 0 to its point at one crossing.
  const Costs c = costs(f);
  Chart out = costChart(3);
  out.matrix.push_back({0, c.CF[1], 0, c.CF[2], 0, c.CF[3]});
  out.matrix.push_back({r.x12, Sng(c.CF[1] + r.x12 * c.CV[1]), r.x13,
                        Sng(c.CF[2] + r.x13 * c.CV[2]), r.x23, Sng(c.CF[3] + r.x23 * c.CV[3])});
  return out;
}

Pages solveAndReport(CostesTotalesFields& f) {
  if (tres(f)) {
    const CostesTresResults r = solveTres(f);
    return {report(f, r), printout(f, r), chart(f, r)};
  }
  const CostesDosResults r = solveDos(f);
  return {report(f, r), printout(f, r), chart(f, r)};
}

void exchange(ProblemFile& file, CostesTotalesFields& f) {
  file.text(f.Titulo1);
  file.flag(f.Option1);
  file.flag(f.Option2);
  for (std::string* item : {&f.txtCF1, &f.txtCV1, &f.txtCF2, &f.txtCV2, &f.txtCF3, &f.txtCV3})
    file.text(*item);
}

CatalogueEntry catalogueCostesTotales() {
  return catalogued("costes-totales", costesTotalesForm());
}

}  // namespace vorel::location_equipment
