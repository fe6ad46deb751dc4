#include "productivity/curvas_experiencia.h"

#include "frame/arith.h"
#include "frame/catalogue.h"
#include "productivity/curvas_experiencia_form.h"

namespace vorel::productivity {

void nuevo(ExperienciaFields& f) {
  for (std::string* field : {&f.L, &f.T1unid, &f.N, &f.NAcumulado, &f.MgB, &f.CMdeO})
    field->clear();
}

Messages check(const ExperienciaFields& f) {
  auto within = [](const std::string& text, double upper) {
    const double v = Val(text);
    return v > 0 && v <= upper;
  };
  if (!within(f.L, 100))
    return {{"La Tasa de Aprendizaje debe estar comprendida entre 0 y 100", ""}};
  if (!within(f.T1unid, 999999))
    return {{"El tiempo dedicado a la primera unidad debe estar comprendido entre 0 y 999999", ""}};
  if (!within(f.N, kMaxUnidades))
    return {{"El Nº de Unidades debe estar comprendido entre 0 y 15", ""}};
  if (!within(f.NAcumulado, kMaxUnidades))
    return {
        {"El Nº de Unidades para calcular el Tiempo Total Acumulado debe estar comprendido "
         "entre 0 y 15",
         ""}};
  const Message numeric{"Todas las Casillas deben contener un valor numérico", ""};
  for (const std::string* field : {&f.L, &f.T1unid, &f.N, &f.NAcumulado})
    if (!IsNumeric(*field)) return {numeric};
  if (f.Check1)
    for (const std::string* field : {&f.MgB, &f.CMdeO})
      if (!IsNumeric(*field)) return {numeric};
  return {};
}

ExperienciaResults solve(const ExperienciaFields& f) {
  const double L = Val(f.L), T1 = Val(f.T1unid), N = Val(f.N), NA = Val(f.NAcumulado);
  ExperienciaResults r;
  r.b = divide(Log(L / 100), Log(2));
  for (int k = 1; k <= N; ++k) {
    item(r.T, k) = Sng(checked(T1 * power(k, r.b)));
    r.units = k;
  }
  for (int k = 1; k <= NA; ++k) r.A = Sng(double(r.A) + item(r.T, k));
  r.Tmedio = Sng(divide(r.A, NA));
  if (f.Check1) {
    const double coste = Val(f.CMdeO), margen = Val(f.MgB);
    r.CosteTotal = Sng(checked(double(r.A) * coste));
    r.PrecioPedido = Sng(checked(checked(double(r.A) * coste) * (margen / 100 + 1)));
    r.PrecioUnitario = Sng(divide(r.PrecioPedido, NA));
    r.CosteMedio = Sng(checked(double(r.Tmedio) * coste));
    r.Beneficio = Sng(checked((double(r.PrecioUnitario) - r.CosteMedio) * NA));
  }
  return r;
}

namespace {

const std::string kRuleExperiencia = std::string(51, '_') + " ";

void rule(Report& out) {
  out.line(Z, kRuleExperiencia);
  out.line(Z, " ");
}

void body(Report& out, const ExperienciaFields& f, const ExperienciaResults& r) {
  out.line(Z, "Solución al problema:  " + f.Titulo1);
  rule(out);
  for (int k = 1; k <= r.units; ++k)
    out.line(Z, "T" + Str(double(k)) + ":", Z, Str(r.T[k]), " horas");
  rule(out);
  out.line(Z, "T" + Str(Val(f.NAcumulado)) + ":", Z, Str(r.A), " horas");
  out.line(Z, "Tmedio:", Z, Str(r.Tmedio), " h/unidad");
  rule(out);
  if (f.Check1) {
    out.line(Z, "Coste Total Pedido:", Z, Str(r.CosteTotal), " Euros");
    out.line(Z, "Coste Medio:", Z, Z, Str(r.CosteMedio), " Euros/unid");
    out.line(Z, "Precio Pedido:", Z, Str(r.PrecioPedido), " Euros");
    out.line(Z, "Precio Unitario:", Z, Str(r.PrecioUnitario), " Euros/unid");
    out.line(Z, "Beneficio Global:", Z, Str(r.Beneficio), " Euros");
  }
}

}  // namespace

Report report(const ExperienciaFields& f, const ExperienciaResults& r) {
  Report out;
  out.blankLines(3);
  body(out, f, r);
  return out;
}

Report printout(const ExperienciaFields& f, const ExperienciaResults& r) {
  Report out = pageHead("CURVAS DE EXPERIENCIA");
  body(out, f, r);
  return out;
}

Chart chart(const ExperienciaResults& r) {
  Chart out;
  out.title = "Curva de Experiencia";
  out.series = {"T(k)"};
  out.categoryTitle = "Unidad (k)";
  out.valueTitle = "Horas";
  for (int k = 1; k <= r.units; ++k) {
    out.rows.push_back(std::to_string(k));
    out.matrix.push_back({r.T[k]});
  }
  out.pageLeft = 0.25;
  out.pageTop = 0.5;
  return out;
}

Pages solveAndReport(ExperienciaFields& f) {
  const ExperienciaResults r = solve(f);
  return {report(f, r), printout(f, r), chart(r)};
}

void exchange(ProblemFile& file, ExperienciaFields& f) {
  for (std::string* item : {&f.Titulo1, &f.L, &f.T1unid, &f.N, &f.NAcumulado, &f.CMdeO, &f.MgB})
    file.text(*item);
  file.flag(f.Check1);
}

CatalogueEntry catalogueExperiencia() {
  return catalogued("curvas-experiencia", experienciaForm());
}

}  // namespace vorel::productivity
