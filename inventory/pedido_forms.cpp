#include "inventory/pedido_forms.h"

#include <initializer_list>

namespace vorel::inventory {

namespace {

// The labels of the fields that the order-quantity models have in common.
namespace etiquetas {
constexpr char D[] = "Demanda Anual (D)";
constexpr char E[] = "Coste de Emisión de cada pedido (E)";
constexpr char A[] = "Coste de Almacenamiento por unidad y año (A)";
constexpr char TS[] = "Tiempo de suministro (en días)";
constexpr char dias[] = "Período de Gestión (días laborables al año)";
constexpr char P[] = "Coste unitario del artículo";
}  // namespace etiquetas

// A text box: the member it holds, its control name and its label.
template <class F>
struct Campo {
  std::string F::*member;
  const char* name;
  const char* label;
};

// The entry screen's title field, then its labelled boxes; the solution
// screen's label repeats the entry's title, and its report box is `columns`
// by `lines`.
template <class F>
Form<F> pedidoForm(std::string_view screen, const std::string& heading, std::string intro,
                   std::initializer_list<Campo<F>> campos, int columns, int lines) {
  Form<F> form;
  form.bindings.push_back(textOf("Titulo1", &F::Titulo1));
  std::vector<ui::FieldLabel> labels;
  for (const Campo<F>& c : campos) {
    labels.push_back({c.name, c.label});
    form.bindings.push_back(textOf(c.name, c.member));
  }
  form.entry = ui::fieldEntry(screen, heading, std::move(intro), "Titulo1", "Problema1", labels);
  form.solution =
      ui::reportSolution(nav::findScreen(screen)->solutions.front(), heading, columns, lines);
  form.model = {nuevo, exchange, check, solveAndReport};
  return form;
}

}  // namespace

const Form<EoqFields>& eoqForm() {
  using F = EoqFields;
  static const Form<F> form = pedidoForm<F>(
      "GI_CantidadEconómicaPedido", "Cantidad Económica de Pedido",
      "El modelo de cantidad económica de pedido simple se basa en el cálculo de la demanda que "
      "minimiza el coste total de inventario",
      {{&F::D, "D", etiquetas::D},
       {&F::E, "E", etiquetas::E},
       {&F::A, "A", etiquetas::A},
       {&F::TS, "TS", etiquetas::TS},
       {&F::dias, "dias", etiquetas::dias},
       {&F::P, "P", etiquetas::P}},
      96, 24);
  return form;
}

const Form<GradualFields>& gradualForm() {
  using F = GradualFields;
  static const Form<F> form = pedidoForm<F>(
      "GI_CEPGradual", "Cantidad Económica de Pedido con Suministro Gradual",
      "El modelo de cantidad económica de pedido con suministro gradual responde al modelo de "
      "inventario en el que el suministro de artículos no se realiza en un momento determinado, "
      "sino que se va realizando en un periodo de tiempo dado.",
      {{&F::D, "D", etiquetas::D},
       {&F::E, "E", etiquetas::E},
       {&F::A, "A", etiquetas::A},
       {&F::TS, "TS", etiquetas::TS},
       {&F::P, "P", etiquetas::P},
       {&F::Pdia, "Pdia", "Número de artículos suministrados al dia (p)"},
       {&F::Ddia, "Ddia", "Número de artículos consumidos al dia (d)"}},
      122, 32);
  return form;
}

const Form<RupturaFields>& rupturaForm() {
  using F = RupturaFields;
  static const Form<F> form = pedidoForm<F>(
      "GI_CEPRuptura", "Cantidad Económica de Pedido con Ruptura",
      "El modelo de cantidad económica de pedido con posibilidades de ruptura trata aquellos "
      "problemas de administración y gestión de inventarios en los que se puede dar el caso de "
      "que el inventario quede si existencias",
      {{&F::D, "D", etiquetas::D},
       {&F::E, "E", etiquetas::E},
       {&F::A, "A", etiquetas::A},
       {&F::CR, "CR", "Coste de Ruptura por unidad y año (CR)"},
       {&F::TS, "TS", etiquetas::TS},
       {&F::dias, "dias", etiquetas::dias},
       {&F::P, "P", etiquetas::P}},
      126, 34);
  return form;
}

namespace {

Messages intervalosClick(DescuentoFields& f) {
  cmbIntervalosClick(f);
  return {};
}

// Below the fields, the selector of how many intervals there are and the
// table of intervals: a row each, its lower limit, upper limit and cost.
Form<DescuentoFields> withIntervalos(Form<DescuentoFields> form) {
  using ui::ControlKind;
  using F = DescuentoFields;
  auto& controls = form.entry.controls;
  const int row = controls.back().row + 1;
  ui::Control pregunta = control(ControlKind::Label, "",
                                 "¿Cuántos costes de adquisición diferentes existen?", 0, row, 0);
  pregunta.buddy = "cmbIntervalos";
  controls.push_back(pregunta);
  ui::Control selector = control(ControlKind::Selector, "cmbIntervalos", "", 0, row, 1);
  selector.items = {"2", "3", "4"};
  selector.width = 64;
  selector.edit = "cmbIntervalos";
  controls.push_back(selector);
  form.bindings.push_back({"cmbIntervalos", {}, {}, [](F& f) { return &f.cmbIntervalos; }});
  form.edits.push_back({"cmbIntervalos", intervalosClick});
  controls.push_back(control(
      ControlKind::Label, "Label2",
      "Introducir el límite inferior y superior para cada intervalo de coste y el coste de "
      "adquisición correspondiente (Nota: Si no existe límite superior introducir una cantidad lo "
      "suficientemente grande)",
      1, -1, 0));
  const char* cabeceras[] = {"Límite  Inferior", "Límite superior", "Coste"};
  for (int c = 0; c < 3; ++c) {
    ui::Control head = control(ControlKind::Label, "", cabeceras[c], 1, 0, c + 1);
    head.width = 110;
    controls.push_back(head);
  }
  const char filas[] = {'A', 'B', 'C', 'D'};
  for (int r = 0; r < kMaxIntervalos; ++r) {
    const std::string intervalo = "Intervalo" + std::to_string(r + 1);
    controls.push_back(
        control(ControlKind::Label, intervalo, "Intervalo " + std::to_string(r + 1), 1, r + 1, 0));
    form.bindings.push_back({intervalo, {}, [r](F& f) { return &f.Intervalo[r]; }});
    for (int c = 0; c < 3; ++c) {
      const std::string name = filas[r] + std::to_string(c + 1);
      ui::Control cell = control(ControlKind::Cell, name, "", 1, r + 1, c + 1);
      cell.width = 110;
      controls.push_back(cell);
      form.bindings.push_back({name, [r, c](F& f) { return &f.Tabla[r][c].text; },
                               [r, c](F& f) { return &f.Tabla[r][c].visible; }});
    }
  }
  return form;
}

}  // namespace

const Form<DescuentoFields>& descuentoForm() {
  using F = DescuentoFields;
  static const Form<F> form = withIntervalos(pedidoForm<F>(
      "GI_CEPDescuento", "Cantidad Económica de Pedido con Descuento",
      "El modelo de cantidad económica de pedido con descuentos responde al tipo de "
      "inventarios en el cual el coste unitario del producto varía en función del "
      "volumen de pedido",
      {{&F::D, "D", etiquetas::D},
       {&F::E, "E", etiquetas::E},
       {&F::A, "A", "Coste de almacenamiento (A)"},
       {&F::ipor, "ipor", "Coste de Almacenamiento como % del coste de adquisición(i)"},
       {&F::TS, "TS", etiquetas::TS},
       {&F::dias, "dias", etiquetas::dias}},
      80, 30));
  return form;
}

}  // namespace vorel::inventory
