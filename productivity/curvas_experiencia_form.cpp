#include "productivity/curvas_experiencia_form.h"

#include <utility>

namespace vorel::productivity {

namespace {

using F = ExperienciaFields;

// Check1's click: the economic fields follow its tick (their bindings read it).
Messages economico(F&) { return {}; }

Form<F> construir() {
  Form<F> form;
  ui::Description& d = form.entry = ui::fieldEntry(
      "C_Experiencia", "Curvas de Experiencia",
      "Con cada unidad producida el tiempo necesario para fabricar la siguiente disminuye según "
      "la tasa de aprendizaje: calcula el tiempo de cada unidad, el tiempo acumulado y, si se "
      "desea, el coste, el precio y el beneficio del pedido.",
      "Titulo1", "Problema1",
      {{"L", "Tasa de Aprendizaje (%)"},
       {"T1unid", "Tiempo dedicado a la primera unidad (horas)"},
       {"N", "Nº de Unidades (hasta 15)"},
       {"NAcumulado", "Nº de Unidades para el Tiempo Total Acumulado"},
       {"MgB", "Margen de Beneficio (%)"},
       {"CMdeO", "Coste de la Mano de Obra por hora"}});
  form.bindings.push_back(textOf("Titulo1", &F::Titulo1));
  for (auto [name, member] : {std::pair{"L", &F::L}, std::pair{"T1unid", &F::T1unid},
                              std::pair{"N", &F::N}, std::pair{"NAcumulado", &F::NAcumulado}})
    form.bindings.push_back(textOf<F>(name, member));
  // The economic side below Check1, at hand only while it is ticked.
  const int checkRow = 4;
  for (ui::Control& c : d.controls)
    if (c.row >= checkRow) ++c.row;
  ui::Control check1 = ui::control(ui::ControlKind::Check, "Check1",
                                   "Calcular el coste, el precio y el beneficio del pedido", 0,
                                   checkRow, 0);
  check1.columnSpan = 2;
  check1.edit = "Check1";
  d.controls.insert(d.controls.begin() + 2 * checkRow, check1);
  form.edits.push_back({"Check1", economico});
  for (auto [name, member] : {std::pair{"MgB", &F::MgB}, std::pair{"CMdeO", &F::CMdeO}}) {
    Binding<F> b = textOf<F>(name, member);
    b.enabled = [](F& f) { return &f.Check1; };
    form.bindings.push_back(std::move(b));
  }
  // The tick last: what the box says outweighs the fields' availability.
  form.bindings.push_back({"Check1", {}, {}, {}, [](F& f) { return &f.Check1; }});

  form.solution = ui::reportSolution("C_Experiencia_Sol", "Curvas de Experiencia", 60, 34);
  form.solution.controls.push_back(ui::control(ui::ControlKind::Chart, "MSChart1", "", 0, 0, 1));
  form.model = {nuevo, exchange, check, solveAndReport};
  return form;
}

}  // namespace

const Form<F>& experienciaForm() {
  static const Form<F> form = construir();
  return form;
}

}  // namespace vorel::productivity
