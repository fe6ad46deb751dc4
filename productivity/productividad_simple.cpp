#include "productivity/productividad_simple.h"

#include "frame/arith.h"
#include "frame/catalogue.h"
#include "productivity/productividad_simple_form.h"

namespace vorel::productivity {

namespace {

struct Comprobacion {
  const std::string& text;
  const char* focus;
  const char* vacio;
  const char* noValido;
};

void cuerpo(Report& out, const ProductividadSimpleFields& f, const ProductividadSimpleResults& r) {
  out.heading(f.Titulo1);
  out.line(Z, "Año: " + f.Anio0);
  out.line(Z, " ");
  out.line(Z, "Factores Productivos:", Z, Z, f.Factores0 + " unidades");
  out.line(Z, "Producción:", Z, Z, Z, f.Produccion0 + " unidades");
  out.line(Z, " ");
  out.line(Z, "Año: " + f.Anio1);
  out.line(Z, " ");
  out.line(Z, "Factores Productivos:", Z, Z, f.Factores1 + " unidades");
  out.line(Z, "Producción:", Z, Z, Z, f.Produccion1 + " unidades");
  out.rule();
  out.line(Z, "Productividad " + f.Anio0 + ":", Z, Z, Str(r.P0));
  out.line(Z, "Productividad " + f.Anio1 + ":", Z, Z, Str(r.P1));
  out.line(Z, " ");
  out.line(Z, "Tasa de variación de la productividad: ", Z, Str(r.Tasa) + " %");
}

}  // namespace

Messages check(const ProductividadSimpleFields& f) {
  // The texts as they are stored, typing slips included.
  const Comprobacion campos[] = {
      {f.Factores0, "Factores0",
       "El valor correspondiente a los factores productivos del año 0 no ha sido introducido. "
       "Introduzca un valor comprendido entre 0 y 999999999",
       "El valor correspondiente a los factores productivos del año 0 no es válido. Introduzca "
       "un nuevo valorcomprendido entre 0 y 999999999"},
      {f.Produccion0, "Produccion0",
       "El valor de la producción del año 0 no ha sido introducido. Introduzca un valor "
       "comprendido entre 0 y 999999999",
       "El valor de la producción del año 0 no es válido. Introduzca un nuevo valor comprendido "
       "entre 0 y 999999999"},
      {f.Factores1, "Factores1",
       "El valor correspondiente a los factores productivos del año 1 no ha sido intoroducido. "
       "Introduce un nuevo valor comprendido entre 0 y 999999999",
       "El valor correspondiente a los factores productivos del año 1 no es válido. Introduce "
       "un nuevo valor comprendido entre 0 y 999999999"},
      {f.Produccion1, "Produccion1",
       "El valor de la producción del año 1 no ha sido introducido. Introduce un nuevo valor "
       "comprendido entre 0 y 999999999",
       "El valor de la producción del año 1 no es válido. Introduce un nuevo valor comprendido "
       "entre 0 y 999999999"},
  };
  for (const Comprobacion& c : campos) {
    if (c.text.empty()) return {{c.vacio, c.focus}};
    if (!IsNumeric(c.text)) return {{c.noValido, c.focus}};
    const double v = Val(c.text);
    if (v <= 0 || v > 999999999) return {{c.noValido, c.focus}};
  }
  return {};
}

ProductividadSimpleResults solve(const ProductividadSimpleFields& f) {
  ProductividadSimpleResults r;
  r.P0 = Sng(divide(Val(f.Produccion0), Val(f.Factores0)));
  r.P1 = Sng(divide(Val(f.Produccion1), Val(f.Factores1)));
  r.Tasa = Sng(divide(checked((double(r.P1) - r.P0) * 100), r.P0));
  return r;
}

Report report(const ProductividadSimpleFields& f, const ProductividadSimpleResults& r) {
  Report out;
  out.blankLines(6);
  cuerpo(out, f, r);
  return out;
}

Report printout(const ProductividadSimpleFields& f, const ProductividadSimpleResults& r) {
  Report out = pageHead("PRODUCTIVIDAD PARCIAL");
  cuerpo(out, f, r);
  return out;
}

Pages solveAndReport(ProductividadSimpleFields& f) {
  return solvedPages(f);
}

void exchange(ProblemFile& file, ProductividadSimpleFields& f) {
  for (std::string* item :
       {&f.Titulo1, &f.Anio0, &f.Anio1, &f.Factores0, &f.Factores1, &f.Produccion0, &f.Produccion1})
    file.text(*item);
}

void nuevo(ProductividadSimpleFields& f) {
  for (std::string* field :
       {&f.Anio0, &f.Anio1, &f.Factores0, &f.Factores1, &f.Produccion0, &f.Produccion1})
    field->clear();
}

CatalogueEntry catalogueProductividadSimple() {
  return catalogued("productividad-parcial", productividadSimpleForm());
}

}  // namespace vorel::productivity
