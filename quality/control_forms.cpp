#include "quality/control_forms.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "frame/arith.h"
#include "frame/checks.h"

namespace vorel::quality {

namespace {

using ui::ControlKind;

// A chart screen's solution: the report, the page and the chart of the last
// computation on the entry's fields; the page keeps the first pass's chart.
class ControlChart : public Solution {
 public:
  bool shows(std::string_view command) const override {
    return command != "Recalcular" || state().Recalcular;
  }
  bool press(std::string_view command) override {
    if (command != "Recalcular") return false;
    show(run(true));
    return true;
  }
  const Chart& printedChart() const override { return state().chart; }

 protected:
  // The activation, or with `recalculation` Recalcular.
  virtual Painted run(bool recalculation) = 0;
  virtual Report page() const = 0;
  virtual const ControlScreen& state() const = 0;
  void show(const Painted& painted) { pages_ = {painted.report, page(), painted.chart}; }
};

class VariablesChart : public ControlChart {
 public:
  VariablesChart(VariablesFields& f, Grafico g, std::string title)
      : f_(f), g_(g), title_(std::move(title)) {
    show(run(false));
  }
  bool shows(std::string_view command) const override {
    if (command == "ControlDesviaciones") return s_.ControlDesviaciones;
    if (command == "ControlRecorridos") return s_.ControlRecorridos;
    return ControlChart::shows(command);
  }
  bool press(std::string_view command) override {
    // Redibujar of the means chart shows a screen never set; on the other
    // two it does nothing. Their Imprimir calls a printer dialog never set.
    if (command == "Redibujar") {
      if (g_ == Grafico::Medias) raise(err::ObjectNotSet);
      return false;
    }
    if (command == "Imprimir") raise(err::ObjectNotSet);
    return ControlChart::press(command);
  }

 protected:
  Painted run(bool recalculation) override {
    // The mean of the Sk that the screen keeps between its activations.
    float& kept = f_.Sbar[static_cast<std::size_t>(g_)];
    s_.Sbar = kept;
    const Painted painted = recalculation ? recalcular(g_, f_, s_, title_)
                                          : activate(g_, f_, s_, title_);
    kept = s_.Sbar;
    return painted;
  }
  Report page() const override { return printout(g_, f_, s_); }
  const ControlScreen& state() const override { return s_; }

 private:
  VariablesFields& f_;
  Grafico g_;
  std::string title_;
  VariablesScreen s_;
};

// The chart of control by attributes or by number of defects that Option1,
// or with `second` Option2, chooses.
template <class Fields>
class OptionChart : public ControlChart {
 public:
  OptionChart(Fields& f, bool second) : f_(f), second_(second) { show(run(false)); }

 protected:
  Painted run(bool recalculation) override {
    return recalculation ? modelRecalcular(second_, f_, s_) : modelActivate(second_, f_, s_);
  }
  Report page() const override { return modelPrintout(second_, f_, s_); }
  const ControlScreen& state() const override { return s_; }

 private:
  Fields& f_;
  bool second_;
  ControlScreen s_;
};

// -- the entry screens -------------------------------------------------------

using Heads = std::array<bool, 3>;
using Column = std::array<Cell, kMaxMuestras>;

template <class F>
Messages rediseñarEdit(F& f) {
  rediseñar(f);
  return {};
}
template <class F>
Messages option1(F& f) {
  optionClick(f, false);
  return {};
}
template <class F>
Messages option2(F& f) {
  optionClick(f, true);
  return {};
}

// A head of a block of the table, in the block's column `column`.
struct Cabeza {
  const char* name;
  const char* text;
  int column;
};

constexpr int kColumnasPorBloque = 4;  // k, the two columns, the second's other head
constexpr int kFilasPorBloque = 15;

// The entry: the title, the number of samples with Rediseñar beside it, the
// second field, the two options (of no family: a file may leave both
// unticked; each click runs optionClick), the table of samples in three
// blocks side by side, and the legends below it.
template <class F>
Form<F> entrada(std::string_view screen, std::string heading, const char* nombreN,
                const char* ayudaN, std::pair<const char*, const char*> segundo,
                const char* ayudaSegundo, std::pair<const char*, const char*> opciones,
                const char* pregunta) {
  Form<F> form;
  ui::Description& d = form.entry = ui::fieldEntry(
      screen, std::move(heading), "", "Titulo1", "Problema1",
      {{"Nmuestras", nombreN}, {segundo.first, segundo.second}});
  d.nuevoFocus = "Titulo1";
  for (ui::Control& c : d.controls) {
    if (c.name == "Nmuestras") c.toolTip = ayudaN;
    if (c.name == segundo.first) c.toolTip = ayudaSegundo;
  }
  form.bindings.push_back(textOf("Titulo1", &F::Titulo1));
  int row = 2;
  if (pregunta) d.controls.push_back(control(ControlKind::Label, "", pregunta, 0, row++, 0));
  for (auto [name, text, edit] : {std::tuple{"Option1", opciones.first, &option1<F>},
                                  std::tuple{"Option2", opciones.second, &option2<F>}}) {
    ui::Control option = control(ControlKind::Option, name, text, 0, row++, 0);
    option.edit = name;
    d.controls.push_back(option);
    form.edits.push_back({name, edit});
  }
  form.bindings.push_back({"Option1", {}, {}, {}, [](F& f) { return &f.Option1; }});
  form.bindings.push_back({"Option2", {}, {}, {}, [](F& f) { return &f.Option2; }});
  form.bindings.push_back(textOf("Nmuestras", &F::Nmuestras));
  ui::Command rediseñar;
  rediseñar.name = rediseñar.caption = rediseñar.toolTip = rediseñar.target = "Rediseñar";
  rediseñar.action = ui::Action::Edit;
  d.commands.push_back(rediseñar);
  form.edits.push_back({"Rediseñar", rediseñarEdit<F>});
  return form;
}

// The table: the heads of each block, then sample by sample its row number
// K(i) and its two cells, the second over `secondSpan` columns.
template <class F>
void tabla(Form<F>& form, std::initializer_list<std::pair<Heads F::*, Cabeza>> cabezas,
           Column F::*first, const char* firstName, Column F::*second, const char* secondName,
           int secondSpan) {
  ui::Description& d = form.entry;
  for (int b = 0; b < 3; ++b)
    for (const auto& [member, cabeza] : cabezas) {
      const std::string name = element(cabeza.name, b);
      d.controls.push_back(control(ControlKind::Label, name, cabeza.text, 1, 0,
                                   b * kColumnasPorBloque + cabeza.column));
      const auto at = static_cast<std::size_t>(b);
      Heads F::*heads = member;
      form.bindings.push_back({name, {}, [heads, at](F& f) { return &(f.*heads)[at]; }});
    }
  for (std::size_t i = 0; i < kMaxMuestras; ++i) {
    const int row = 1 + static_cast<int>(i) % kFilasPorBloque;
    const int base = static_cast<int>(i) / kFilasPorBloque * kColumnasPorBloque;
    const std::string k = element("K", static_cast<int>(i));
    d.controls.push_back(control(ControlKind::Label, k, std::to_string(i + 1), 1, row, base));
    form.bindings.push_back({k, {}, [i](F& f) { return &f.K[i]; }});
    for (auto [member, name, column, span] : {std::tuple{first, firstName, 1, 1},
                                              std::tuple{second, secondName, 2, secondSpan}}) {
      const std::string cell = element(name, static_cast<int>(i));
      ui::Control c = control(ControlKind::Cell, cell, "", 1, row, base + column, 64);
      c.columnSpan = span;
      d.controls.push_back(c);
      Column F::*cells = member;
      form.bindings.push_back({cell, [cells, i](F& f) { return &(f.*cells)[i].text; },
                               [cells, i](F& f) { return &(f.*cells)[i].visible; }});
    }
  }
}

// A legend below the table, shown as the option says.
template <class F>
void leyenda(Form<F>& form, const char* name, const char* text, bool F::*shown) {
  form.entry.controls.push_back(control(ControlKind::Label, name, text, 2, -1, 0));
  form.bindings.push_back({name, {}, [shown](F& f) { return &(f.*shown); }});
}

// -- the chart screens -------------------------------------------------------

ui::Command orden(const char* name, const char* caption, const char* picture, ui::Action action,
                  bool visible) {
  ui::Command c;
  c.name = name;
  c.caption = c.toolTip = caption;
  c.picture = picture;
  c.action = action;
  c.visible = visible;
  c.size = 40;
  return c;
}

// Label2 with the chart's name, the report beside the chart, the screen's
// own commands before Imprimir.
ui::Description grafico(std::string_view screen, const char* label2,
                        std::vector<ui::Command> commands, bool imprime = true) {
  ui::Description d =
      ui::reportSolution(screen, "Control Estadístico de la Calidad", 64, 22);
  d.controls.insert(d.controls.begin(), control(ControlKind::Label, "Label2", label2, 0, 0, 0));
  d.controls.push_back(control(ControlKind::Chart, "MSChart1", "", 0, 0, 1));
  commands.push_back(orden("Recalcular", "Recalcular", "cmd-resolver", ui::Action::Browse, false));
  if (!imprime) {
    // Its Imprimir calls on a printer dialog never set: a command of the
    // solution, which raises that error.
    d.commands.clear();
    ui::Command print = ui::imprimir();
    print.action = ui::Action::Browse;
    commands.push_back(print);
  }
  d.commands.insert(d.commands.begin(), commands.begin(), commands.end());
  return d;
}

const char* const kV[] = {"ControlCal_V_Sol", "ControlCal_V_Sol2", "ControlCal_V_Sol3"};
const char kP[] = "ControlCAl_AtribP_Sol", kNP[] = "ControlCal_AtribNP_Sol";
const char kC[] = "ControlCal_NDef_Sol", kU[] = "ControlCal_NDef_Sol1";

Grafico graficoDe(std::string_view screen) {
  return screen == kV[1] ? Grafico::Desviaciones
         : screen == kV[2] ? Grafico::Recorridos
                           : Grafico::Medias;
}

Pages mediasPages(VariablesFields& f) { return solveAndReport(f, Grafico::Medias); }

}  // namespace

std::unique_ptr<Solution> variablesChart(VariablesFields& f, std::string_view screen,
                                         const std::string& title) {
  return std::make_unique<VariablesChart>(f, graficoDe(screen), title);
}
std::unique_ptr<Solution> atributosChart(AtributosFields& f, std::string_view screen) {
  return std::make_unique<OptionChart<AtributosFields>>(f, screen == kNP);
}
std::unique_ptr<Solution> defectosChart(DefectosFields& f, std::string_view screen) {
  return std::make_unique<OptionChart<DefectosFields>>(f, screen == kU);
}

const Form<VariablesFields>& variablesForm() {
  using F = VariablesFields;
  static const Form<F> form = [] {
    Form<F> form = entrada<F>(
        "ControlCal_V", "Control por Variables. Control de Medias.", "Número de  muestras",
        "Numero de muestras", {"Tmuestras", "Tamaño de las muestras"}, "Tamaño de esas muestras",
        {"Gráfico de Medias junto con Desviaciones Típicas",
         "Gráfico de Medias junto con Recorridos"},
        "¿Qué desea obtener?:");
    form.bindings.push_back(textOf("Tmuestras", &F::Tmuestras));
    tabla<F>(form,
             {{&F::Lblk, {"Lblk", "k", 0}},
              {&F::LblM, {"LblM", "Mk", 1}},
              {&F::LblS, {"LblS", "Sk", 2}},
              {&F::LblR, {"LblR", "Rk", 3}}},
             &F::M, "M", &F::S, "S", 2);
    leyenda<F>(form, "LblMkSk", "Mk: Medias muestrales    Sk: Desviaciones típicas", &F::LblMkSk);
    leyenda<F>(form, "LblMkRk", "Mk: Medias muestrales    Rk: Recorridos medios muestrales",
               &F::LblMkRk);
    // Resolver shows the means chart; its two buttons open the other charts
    // in its place, and their volver comes back to it.
    form.solution = grafico(
        kV[0], "Gráfico de Medias",
        {orden("ControlDesviaciones", "Control de Desviaciones Típicas", "cmd-forward",
               ui::Action::Show, false),
         orden("ControlRecorridos", "Control de Recorridos", "cmd-forward", ui::Action::Show,
               false),
         orden("Redibujar", "Redibujar", "cmd-resolver", ui::Action::Browse, true)});
    form.solution.commands[0].target = kV[1];
    form.solution.commands[1].target = kV[2];
    form.solution.commands[0].hides = form.solution.commands[1].hides = kV[0];
    for (auto [screen, label] : {std::pair{kV[1], "Gráfico de Desviaciones Típicas"},
                                 std::pair{kV[2], "Gráfico de Recorridos"}})
      form.otherSolutions.push_back(grafico(
          screen, label, {orden("Redibujar", "Redibujar", "cmd-resolver", ui::Action::Browse, true)},
          false));
    form.model = {nuevo, exchange, check, mediasPages};
    form.solver = [](F& f, long) { return variablesChart(f, kV[0], selecVanTitulo1()); };
    form.solverOn = [](F& f, long, std::string_view screen) {
      return variablesChart(f, screen, selecVanTitulo1());
    };
    return form;
  }();
  return form;
}

const Form<AtributosFields>& atributosForm() {
  using F = AtributosFields;
  static const Form<F> form = [] {
    Form<F> form = entrada<F>("ControlCal_AtribP", "Control por Atributos", "Número de muestras",
                              "Número de muestras", {"NPTMuestra", "Tamaño de la muestra"},
                              "Tamaño de la muestra constante", {"Gráfico p", "Gráfico np"},
                              nullptr);
    auto& controls = form.entry.controls;
    for (ui::Control& c : controls)
      if (c.buddy == "NPTMuestra") c.name = "Label5";
    // Beside the constant size, in reading order after it.
    const auto box = std::find_if(controls.begin(), controls.end(),
                                  [](const ui::Control& c) { return c.name == "NPTMuestra"; });
    controls.insert(box + 1, control(ControlKind::Label, "Label6",
                                     "(constante, para el gráfico np)", 0, 1, 2));
    form.bindings.push_back({"NPTMuestra", [](F& f) { return &f.NPTMuestra.text; },
                             [](F& f) { return &f.NPTMuestra.visible; }});
    form.bindings.push_back({"Label5", {}, [](F& f) { return &f.Label5; }});
    form.bindings.push_back({"Label6", {}, [](F& f) { return &f.Label6; }});
    tabla<F>(form,
             {{&F::Lblk, {"Lblk", "k", 0}},
              {&F::Lblr, {"Lblr", "rk", 1}},
              {&F::Lbltamano, {"Lbltamano", "nk", 2}}},
             &F::r, "r", &F::tamano, "tamano", 1);
    leyenda<F>(form, "labelrn", "rk: Número de productos defectuosos   nk: Tamaño muestral",
               &F::labelrn);
    leyenda<F>(form, "Labelr", "rk: Número de productos defectuosos", &F::Labelr);
    form.solution = grafico(kP, "Gráfico p", {});
    form.otherSolutions = {grafico(kNP, "Gráfico np", {})};
    form.resolverShows = [](const F& f) { return std::string(f.Option2 ? kNP : kP); };
    form.model = {nuevo, exchange, check, solveChosenChart<F>};
    form.solver = [](F& f, long) { return atributosChart(f, f.Option2 ? kNP : kP); };
    form.solverOn = [](F& f, long, std::string_view screen) { return atributosChart(f, screen); };
    return form;
  }();
  return form;
}

const Form<DefectosFields>& defectosForm() {
  using F = DefectosFields;
  static const Form<F> form = [] {
    Form<F> form = entrada<F>(
        "ControlCal_NDef", "Control por Número de Defectos", "Número de muestras",
        "Número de muestras", {"TMuestra", "Tamaño de la muestra"}, "Tamaño de la muestra constante",
        {"Tamaño muestral constante", "Tamaño muestral variable"}, nullptr);
    form.bindings.push_back(textOf("TMuestra", &F::TMuestra));
    tabla<F>(form,
             {{&F::Lblk, {"Lblk", "k", 0}}, {&F::Lblr, {"Lblr", "rk", 1}}, {&F::Lbln, {"Lbln", "nk", 2}}},
             &F::r, "r", &F::N, "N", 1);
    leyenda<F>(form, "labelrn", "rk: Número de defectos   nk: Tamaño muestral", &F::labelrn);
    leyenda<F>(form, "Labelr", "rk: Número de defectos", &F::Labelr);
    form.solution = grafico(kC, "Gráfico c. Tamaño muestral constante", {});
    form.otherSolutions = {grafico(kU, "Gráfico u. Tamaño muestral variable", {})};
    form.resolverShows = [](const F& f) { return std::string(f.Option2 ? kU : kC); };
    form.model = {nuevo, exchange, check, solveChosenChart<F>};
    form.solver = [](F& f, long) { return defectosChart(f, f.Option2 ? kU : kC); };
    form.solverOn = [](F& f, long, std::string_view screen) { return defectosChart(f, screen); };
    return form;
  }();
  return form;
}

}  // namespace vorel::quality
