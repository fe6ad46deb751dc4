#include "productivity/productividad_simple_form.h"

#include <tuple>

namespace vorel::productivity {

namespace {

using F = ProductividadSimpleFields;

ui::Control enTabla(ui::ControlKind kind, std::string name, std::string text, int row, int column) {
  ui::Control c;
  c.kind = kind;
  c.name = std::move(name);
  c.text = std::move(text);
  c.group = 1;
  c.row = row;
  c.column = column;
  return c;
}

Form<F> construir() {
  Form<F> form;
  form.entry = ui::fieldEntry(
      "Productividad_Simple", "Productividad Parcial",
      "La productividad parcial relaciona la producción de un período con la cantidad consumida "
      "de un solo factor productivo; comparando dos años se obtiene su tasa de variación",
      "Titulo1", "Problema 1", {});
  form.bindings.push_back(textOf("Titulo1", &F::Titulo1));
  // The two years side by side: a column each, a row for the year's name,
  // its factors and its output.
  auto& controls = form.entry.controls;
  for (int año = 0; año < 2; ++año) {
    ui::Control head = enTabla(ui::ControlKind::Label, "", "Año " + std::to_string(año), 0, año + 1);
    head.width = 140;
    controls.push_back(head);
  }
  const struct {
    const char* caption;
    std::string F::*año0;
    std::string F::*año1;
    const char *nombre0, *nombre1, *ayuda;
  } filas[] = {
      {"Año", &F::Anio0, &F::Anio1, "Anio0", "Anio1", "Nombre del año"},
      {"Factores productivos (unidades)", &F::Factores0, &F::Factores1, "Factores0", "Factores1",
       "Unidades del factor productivo consumidas en el año"},
      {"Producción (unidades)", &F::Produccion0, &F::Produccion1, "Produccion0", "Produccion1",
       "Unidades producidas en el año"},
  };
  int row = 1;
  for (const auto& fila : filas) {
    controls.push_back(enTabla(ui::ControlKind::Label, "", fila.caption, row, 0));
    for (auto [member, name, column] :
         {std::tuple{fila.año0, fila.nombre0, 1}, std::tuple{fila.año1, fila.nombre1, 2}}) {
      ui::Control cell = enTabla(ui::ControlKind::Cell, name, "", row, column);
      cell.toolTip = fila.ayuda;
      cell.width = 140;
      controls.push_back(cell);
      form.bindings.push_back(textOf(name, member));
    }
    ++row;
  }
  form.solution =
      ui::reportSolution("Productividad_Simple_Solucion", "Productividad Parcial", 96, 28);
  form.model = {nuevo, exchange, check, solveAndReport};
  return form;
}

}  // namespace

const Form<F>& productividadSimpleForm() {
  static const Form<F> form = construir();
  return form;
}

}  // namespace vorel::productivity
