#include "location_equipment/selec_van.h"

#include "frame/arith.h"
#include "frame/catalogue.h"
#include "location_equipment/location_forms.h"
#include "frame/checks.h"

namespace vorel::location_equipment {

namespace {

const std::string kRuleVan = std::string(45, '_') + "  ";

// The cells of a column for the years 1 to `years`; a duration beyond the
// table's rows is the platform's subscript error.
void showYears(std::array<Cell, kMaxAñosVan>& column, double years) {
  for (Cell& c : column) c.visible = false;
  for (int t = 1; t <= years; ++t) item(column, t - 1).visible = true;
}

// VAN: minus the initial investment, plus each year's flow discounted, the
// running total kept as Single year by year.
float van(const std::string& inicial, const std::array<Cell, kMaxAñosVan>& flows, double years,
          double k) {
  float total = Sng(-CDbl(inicial));
  for (int t = 1; t <= years; ++t)
    total = Sng(total + divide(CDbl(item(flows, t - 1).text), power(1 + k, t)));
  return total;
}

// VANC = ((1 + k)^n - 1) · VAN / (k · (1 + k)^n): a rate of 0 divides by zero.
float vanc(float value, double n, double k) {
  const double growth = power(1 + k, n);
  return Sng(divide(checked(checked(growth - 1) * value), checked(k * growth)));
}

void headRows(VanFields& f) {
  for (std::size_t i = 0; i < kMaxAñosVan; ++i) f.LblAño[i] = f.AX1[i].visible || f.AX2[i].visible;
}

}  // namespace

VanFields::VanFields() {
  showYears(AX1, 2);
  showYears(AX2, 2);
  headRows(*this);
}

Messages rediseñar(VanFields& f) {
  showYears(f.AX1, Val(f.NVarA));
  showYears(f.AX2, Val(f.NVarB));
  headRows(f);
  return {};
}

void nuevo(VanFields& f) {
  for (std::string* field : {&f.txtDescuento, &f.InicialA, &f.InicialB}) field->clear();
  for (auto* column : {&f.AX1, &f.AX2})
    for (Cell& c : *column) c.text.clear();
}

Messages check(const VanFields& f) {
  if (!IsNumeric(f.txtDescuento))
    return {{"La casilla de tipo de descuento debe contener un valor numérico", ""}};
  if (!IsNumeric(f.InicialA) || !IsNumeric(f.InicialB))
    return {
        {"Las casillas correspondientes al valor inicial de la inversión deben contener un "
         "valor numérico",
         ""}};
  for (auto* column : {&f.AX1, &f.AX2})
    for (const Cell& c : *column)
      if (c.visible && !IsNumeric(c.text))
        return {
            {"Todas las celdas correspondientes a los flujos de caja deben contener un valor "
             "numérico",
             ""}};
  return {};
}

VanResults solve(const VanFields& f) {
  const double k = Val(f.txtDescuento) * 0.01;
  const double nA = Val(f.NVarA), nB = Val(f.NVarB);
  VanResults r;
  r.VANA = van(f.InicialA, f.AX1, nA, k);
  r.VANB = van(f.InicialB, f.AX2, nB, k);
  r.corrected = nA != nB;
  if (r.corrected) {
    r.VANCA = vanc(van(f.InicialA, f.AX1, nA, k), nA, k);
    r.VANCB = vanc(van(f.InicialB, f.AX2, nB, k), nB, k);
  }
  return r;
}

namespace {

void body(Report& out, const VanFields& f, const VanResults& r) {
  out.line(Z, "Solución al problema:  " + f.Titulo1);
  out.line(Z, kRuleVan);
  out.line(Z, " ");
  out.line(Z, "Tipo de descuento:", Z, f.txtDescuento, " %");
  out.line(Z, "Inversión Inicial A:", Z, f.InicialA, " u.m.");
  out.line(Z, "Inversión Inicial B:", Z, f.InicialB, " u.m.");
  out.line(Z, "Duración Inversión A:", Z, f.NVarA, " años");
  out.line(Z, "Duración Inversión B:", Z, f.NVarB, " años");
  out.line(Z, kRuleVan);
  out.line(Z, " ");
  out.line(Z, "VAN proyecto A = ", Str(r.VANA));
  out.line(Z, "VAN proyecto B = ", Str(r.VANB));
  if (r.corrected) {
    out.line(Z, "VANC proyecto A = ", Str(r.VANCA));
    out.line(Z, "VANC proyecto B = ", Str(r.VANCB));
  }
  out.line(Z, " ");
  const float a = r.corrected ? r.VANCA : r.VANA, b = r.corrected ? r.VANCB : r.VANB;
  if (a != b) {
    out.line(Z, a > b ? "Según el Criterio del VAN es preferible el Proyecto A"
                      : "Según el Criterio del VAN es preferible el Proyecto B");
  } else {
    out.line(Z, "Ambos proyectos poseen el mismo valor de VAN por lo que es indiferente");
    out.line(Z, "elegir uno u otro según este criterio.");
  }
}

}  // namespace

Report report(const VanFields& f, const VanResults& r) {
  Report out;
  out.blankLines(3);
  body(out, f, r);
  return out;
}

Report printout(const VanFields& f, const VanResults& r) {
  Report out = pageHead("CRITERIO DEL VAN");
  body(out, f, r);
  return out;
}

Pages solveAndReport(VanFields& f) {
  return solvedPages(f);
}

void exchange(ProblemFile& file, VanFields& f) {
  for (std::string* item :
       {&f.Titulo1, &f.NVarA, &f.NVarB, &f.txtDescuento, &f.InicialA, &f.InicialB})
    file.text(*item);
  for (int i = 0; i < kMaxAñosVan; ++i) {
    file.text(f.AX1[i].text);
    file.flag(f.AX1[i].visible);
    file.text(f.AX2[i].text);
    file.flag(f.AX2[i].visible);
    f.LblAño[static_cast<std::size_t>(i)] = f.AX1[i].visible || f.AX2[i].visible;
  }
}

CatalogueEntry catalogueVan() {
  return catalogued("van", vanForm());
}

}  // namespace vorel::location_equipment
