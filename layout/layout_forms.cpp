#include "layout/layout_forms.h"

#include <limits>
#include <memory>
#include <string>

#include "frame/arith.h"

namespace vorel::facility {

namespace {

// The element `i` of a control array: "C1(0)".
std::string element(const std::string& array, int i) {
  return array + "(" + std::to_string(i) + ")";
}

// A selector of "1" to `count` on the fields' grid at `row`, its caption
// before it; a click changes nothing until Rediseñar Tabla.
void numberSelector(ui::Description& d, int row, const std::string& name,
                    const std::string& caption, int count) {
  ui::Control label = control(ui::ControlKind::Label, "", caption, 0, row, 0);
  label.buddy = name;
  d.controls.push_back(label);
  ui::Control selector = control(ui::ControlKind::Selector, name, "", 0, row, 1);
  for (int k = 1; k <= count; ++k) selector.items.push_back(std::to_string(k));
  selector.width = 64;
  d.controls.push_back(selector);
}

ui::Command rediseñarTabla() { return ui::editCommand("RediseñarTabla", "Rediseñar Tabla", "rediseñar"); }

template <class F>
Messages rediseñarClick(F& f) {
  rediseñar(f);
  return {};
}

// A cell of a table bound to a Cell of the fields.
template <class F>
void cell(Form<F>& form, std::string name, int group, int row, int column, int width,
          Cell& (*of)(F&, int, int), int i, int j) {
  ui::Control c = control(ui::ControlKind::Cell, name, "", group, row, column);
  c.width = width;
  form.entry.controls.push_back(c);
  form.bindings.push_back({std::move(name), [of, i, j](F& f) { return &of(f, i, j).text; },
                           [of, i, j](F& f) { return &of(f, i, j).visible; }});
}

}  // namespace

const Form<CargaDistanciaFields>& cargaDistanciaForm() {
  using F = CargaDistanciaFields;
  using ui::ControlKind;
  static const Form<F> form = [] {
    Form<F> form;
    const std::string screen = "Distribucion_CargaDistancia";
    form.entry = ui::fieldEntry(screen, "Análisis Carga-Distancia", "", "Título", "Problema 1", {});
    form.bindings.push_back(textOf("Título", &F::Título));
    ui::Description& d = form.entry;
    numberSelector(d, 0, "NumActividades", "Número de Productos", kMaxProductos);
    numberSelector(d, 1, "NumDistancias", "Número de Distancias", kMaxFilasDistancia);
    form.bindings.push_back({"NumActividades", {}, {}, [](F& f) { return &f.NumActividades; }});
    form.bindings.push_back({"NumDistancias", {}, {}, [](F& f) { return &f.NumDistancias; }});
    d.commands.push_back(rediseñarTabla());
    form.edits.push_back({"rediseñar", rediseñarClick<F>});

    // The products: one row each, its route of five departments and its production.
    ui::Control secuencia = control(ControlKind::Label, "", "Secuencia", 1, 0, 1);
    secuencia.columnSpan = kPasosRuta;
    d.controls.push_back(secuencia);
    d.controls.push_back(control(ControlKind::Label, "", "Producción", 1, 0, kPasosRuta + 1));
    for (int k = 1; k <= kMaxProductos; ++k) {
      const std::string head = element("LblActividades", k - 1);
      d.controls.push_back(
          control(ControlKind::Label, head, "Producto " + std::to_string(k), 1, k, 0));
      form.bindings.push_back({head, {}, [k](F& f) { return &item(f.LblActividades, k - 1); }});
      for (int r = 0; r < kPasosRuta; ++r)
        cell<F>(
            form, element("C" + std::to_string(k), r), 1, k, r + 1, 44,
            [](F& f, int k, int r) -> Cell& { return item(item(f.C, k - 1), r); }, k, r);
      cell<F>(
          form, element("Produccion", k - 1), 1, k, kPasosRuta + 1, 96,
          [](F& f, int i, int) -> Cell& { return item(f.Produccion, i); }, k - 1, 0);
    }

    // The distances between pairs of departments, in two blocks of rows side
    // by side, a column apart.
    for (int b = 0; b < 2; ++b) {
      const int left = 4 * b;
      ui::Control departamentos =
          control(ControlKind::Label, element("LblDepartamentos", b), "Departamentos", 2, 0, left);
      departamentos.columnSpan = 2;
      d.controls.push_back(departamentos);
      d.controls.push_back(
          control(ControlKind::Label, element("Lbldistancias", b), "Distancia", 2, 0, left + 2));
      form.bindings.push_back(
          {element("LblDepartamentos", b), {}, [b](F& f) { return &item(f.LblDepartamentos, b); }});
      form.bindings.push_back(
          {element("Lbldistancias", b), {}, [b](F& f) { return &item(f.Lbldistancias, b); }});
    }
    for (int t = 0; t < kMaxFilasDistancia; ++t) {
      const int left = 4 * (t / kFilasPrimerBloque), row = t % kFilasPrimerBloque + 1;
      cell<F>(
          form, element("D1", t), 2, row, left, 44,
          [](F& f, int t, int) -> Cell& { return item(f.D1, t); }, t, 0);
      cell<F>(
          form, element("D2", t), 2, row, left + 1, 44,
          [](F& f, int t, int) -> Cell& { return item(f.D2, t); }, t, 0);
      cell<F>(
          form, element("Distancias", t), 2, row, left + 2, 96,
          [](F& f, int t, int) -> Cell& { return item(f.Distancias, t); }, t, 0);
    }
    d.tablesAcross = true;

    form.solution = ui::reportSolution("Distribucion_Cargadistancia_Solucion",
                                       "Análisis Carga-Distancia", 96, 34);
    form.model = {nuevo, exchange, check, solveAndReport};
    return form;
  }();
  return form;
}

const Form<EquilibradoFields>& equilibradoForm() {
  using F = EquilibradoFields;
  using ui::ControlKind;
  static const Form<F> form = [] {
    Form<F> form;
    form.entry = ui::fieldEntry(
        "Distribucion_Equlibrado", "Equilibrado de Líneas de Fabricación o Montaje",
        "El equilibrado de líneas de fabricación y montaje es una técnica para las "
        "distribuciones por productos. Consiste en realizar el diseño de los puestos de "
        "trabajo en instalaciones que siguen este tipo de distribución, de forma que el "
        "tiempo de permanencia del producto en cada uno de los puestos de trabajo sea el "
        "mismo para todos ellos.",
        "Título", "Problema 1", {});
    form.bindings.push_back(textOf("Título", &F::Título));
    ui::Description& d = form.entry;
    numberSelector(d, 0, "NumActividades", "Número de Actividades", kMaxActividades);
    form.bindings.push_back({"NumActividades", {}, {}, [](F& f) { return &f.NumActividades; }});
    d.commands.push_back(rediseñarTabla());
    form.edits.push_back({"rediseñar", rediseñarClick<F>});

    // Two tables of seven activities, one below the other: the head of each
    // activity, its time, and its five predecessors down its column. The
    // captions of the lower table go with its first activity.
    for (int bloque = 0; bloque < 2; ++bloque) {
      const int group = bloque + 1;
      ui::Control tiempos = control(ControlKind::Label, bloque ? "RotuloTiempos2" : "",
                                    "Tiempos de Operación", group, 1, 0);
      ui::Control anteriores = control(ControlKind::Label, bloque ? "RotuloAnteriores2" : "",
                                       "Actividades Inmediatamente\nAnteriores", group, 2, 0);
      anteriores.rowSpan = kAnterioresPorActividad;
      d.controls.push_back(tiempos);
      d.controls.push_back(anteriores);
      if (bloque == 1)
        for (const char* rotulo : {"RotuloTiempos2", "RotuloAnteriores2"})
          form.bindings.push_back({rotulo, {}, [](F& f) { return &item(f.LblActividades, 7); }});
      for (int k = 1; k <= kColumnasAnteriores; ++k) {
        const int a = k + bloque * kColumnasAnteriores;
        ui::Control head = control(ControlKind::Label, element("LblActividades", a - 1),
                                   "Actividad " + std::to_string(a), group, 0, k);
        head.width = 84;
        d.controls.push_back(head);
        form.bindings.push_back(
            {head.name, {}, [a](F& f) { return &item(f.LblActividades, a - 1); }});
      }
      for (int k = 1; k <= kColumnasAnteriores; ++k) {
        const int a = k + bloque * kColumnasAnteriores;
        cell<F>(
            form, element("TiempoOperacion", a - 1), group, 1, k, 76,
            [](F& f, int i, int) -> Cell& { return item(f.TiempoOperacion, i); }, a - 1, 0);
      }
      for (int p = 0; p < kAnterioresPorActividad; ++p)
        for (int k = 1; k <= kColumnasAnteriores; ++k) {
          const int r = p + bloque * kAnterioresPorActividad;
          cell<F>(
              form, element("C" + std::to_string(k), r), group, 2 + p, k, 76,
              [](F& f, int k, int r) -> Cell& { return item(item(f.C, k - 1), r); }, k, r);
        }
    }

    form.solution = ui::reportSolution("Distribucion_Equilibrado_Solucion",
                                       "Equilibrado de Líneas de Fabricación y Montaje", 128, 30);
    // A file run gives the method its own budget; the screens theirs, slice by slice.
    form.model = {nuevo, exchange, check,
                  [](F& f) { return solveAndReport(f, fileRunStepBudget()); }};
    form.solver = [](F& f, long stepBudget) {
      return std::make_unique<Solution>(
          solveAndReport(f, stepBudget > 0 ? stepBudget : std::numeric_limits<long>::max()));
    };
    return form;
  }();
  return form;
}

}  // namespace vorel::facility
