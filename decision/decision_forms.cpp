#include "decision/decision_forms.h"

#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace vorel::decision {

namespace {

constexpr int kAnchoCelda = 96;  // the cells' and the column heads' width

std::string elemento(const std::string& array, std::size_t i) {
  return array + "(" + std::to_string(i) + ")";
}

// A text box of the entry screen: its member, control name, label and tool-tip.
template <class F>
struct Campo {
  std::string F::*member;
  const char* name;
  const char* label;
  const char* toolTip = "";
};

// The title field and the labelled boxes, one a row; the window's way back
// under the name the screen knows it by.
template <class F>
Form<F> entrada(std::string_view screen, std::string heading, std::string intro,
                const std::vector<Campo<F>>& campos, const char* volver) {
  Form<F> form;
  form.bindings.push_back(textOf<F>("Título", &F::Título));
  std::vector<ui::FieldLabel> labels;
  for (const Campo<F>& c : campos) {
    labels.push_back({c.name, c.label});
    form.bindings.push_back(textOf<F>(c.name, c.member));
  }
  form.entry = ui::fieldEntry(screen, std::move(heading), std::move(intro), "Título",
                              "Problema 1", labels);
  for (const Campo<F>& c : campos)
    for (ui::Control& box : form.entry.controls)
      if (box.kind == ui::ControlKind::TextBox && box.name == c.name) box.toolTip = c.toolTip;
  for (ui::Command& c : form.entry.chrome)
    if (c.action == ui::Action::Volver) c.name = volver;
  form.model = {nuevo, exchange, check, solveAndReport};
  return form;
}

// A selector of the numbers "1" to `count` with its caption, on the grid of
// fields at `row`: the caption in `column`, the selector beside it.
template <class F>
void selectorNumerico(Form<F>& form, std::type_identity_t<int F::*> member, const char* name, const char* caption,
                      int count, int row, int column) {
  ui::Control label = control(ui::ControlKind::Label, "", caption, 0, row, column);
  label.buddy = name;
  form.entry.controls.push_back(label);
  ui::Control list = control(ui::ControlKind::Selector, name, "", 0, row, column + 1);
  for (int k = 1; k <= count; ++k) list.items.push_back(std::to_string(k));
  list.width = 64;
  form.entry.controls.push_back(list);
  form.bindings.push_back({name, {}, {}, [member](F& f) { return &(f.*member); }});
}

// RediseñarTabla: reshapes the table to the numbers chosen in the selectors.
template <class F>
void rediseñarTabla(Form<F>& form) {
  form.entry.commands.push_back(ui::editCommand("RediseñarTabla", "Rediseñar Tabla"));
  form.edits.push_back({"RediseñarTabla", [](F& f) { return rediseñar(f); }});
}

// A column head of the table, over column `k + 1`.
ui::Control cabeceraColumna(std::string name, std::string text, std::size_t k) {
  ui::Control head =
      control(ui::ControlKind::Label, std::move(name), std::move(text), 1, 0, int(k) + 1);
  head.width = kAnchoCelda;
  return head;
}

// Row i of the table (grid row i + 1): its head, then the cells C1(i)...
template <class F>
void fila(Form<F>& form, std::size_t i, std::size_t columnas, ui::Control head) {
  form.entry.controls.push_back(std::move(head));
  for (std::size_t j = 0; j < columnas; ++j) {
    const std::string name = elemento("C" + std::to_string(j + 1), i);
    ui::Control cell = control(ui::ControlKind::Cell, name, "", 1, int(i) + 1, int(j) + 1);
    cell.width = kAnchoCelda;
    form.entry.controls.push_back(cell);
    form.bindings.push_back({name, [i, j](F& f) { return &f.C[j][i].text; },
                             [i, j](F& f) { return &f.C[j][i].visible; }});
  }
}

// The payoff table: states of nature across, under "Estados de la
// Naturaleza", alternatives down; `captions`, where given, holds the row
// heads' captions (the probabilities' "Ps").
template <class F, std::size_t N>
void tablaPagos(Form<F>& form, std::array<bool, N> F::*estados, const std::string& nombreEstados,
                std::array<bool, N> F::*alternativas, const std::string& nombreAlternativas,
                std::array<std::string, N> F::*captions = nullptr) {
  auto& controls = form.entry.controls;
  controls.push_back(control(ui::ControlKind::Label, "LblGrupoEstados",
                             "Estados de la Naturaleza", 1, -1, 0));
  controls.push_back(
      control(ui::ControlKind::Label, "LblGrupoAlternativas", "Alternativas", 1, 0, 0));
  for (std::size_t k = 0; k < N; ++k) {
    const std::string name = elemento(nombreEstados, k);
    controls.push_back(cabeceraColumna(name, "Estado " + std::to_string(k + 1), k));
    form.bindings.push_back({name, {}, [estados, k](F& f) { return &(f.*estados)[k]; }});
  }
  for (std::size_t i = 0; i < N; ++i) {
    const std::string name = elemento(nombreAlternativas, i);
    Binding<F> head{name, {}, [alternativas, i](F& f) { return &(f.*alternativas)[i]; }};
    if (captions) head.text = [captions, i](F& f) { return &(f.*captions)[i]; };
    form.bindings.push_back(head);
    fila(form, i, N,
         control(ui::ControlKind::Label, name, "Alternativa " + std::to_string(i + 1), 1,
                 int(i) + 1, 0));
  }
}

// The table of valuations: alternatives and then the weights across, under
// heads whose captions and colours the fields hold; criteria down.
template <class F>
void tablaValoraciones(Form<F>& form) {
  constexpr std::size_t n = kMaxCriterios;
  for (std::size_t k = 0; k < n; ++k) {
    const std::string name = elemento("LblAlternativas", k);
    form.entry.controls.push_back(
        cabeceraColumna(name, "Alternativa " + std::to_string(k + 1), k));
    form.bindings.push_back({name, [k](F& f) { return &f.LblAlternativas[k].caption; },
                             [k](F& f) { return &f.LblAlternativas[k].visible; },
                             {},
                             {},
                             {},
                             {},
                             [k](F& f) { return &f.LblAlternativas[k].BackColor; }});
  }
  for (std::size_t i = 0; i < n; ++i) {
    const std::string name = elemento("LblCriterios", i);
    form.bindings.push_back({name, {}, [i](F& f) { return &f.LblCriterios[i]; }});
    fila(form, i, n,
         control(ui::ControlKind::Label, name, "Criterio " + std::to_string(i + 1), 1,
                 int(i) + 1, 0));
  }
}

// An arrow of a report in pages: a browsing command with its tool-tip
// written below it.
struct Flecha {
  const char* name;
  const char* picture;  // "cmd-back" or "cmd-forward"
  const char* toolTip;
};

// The solution screen: its report box, the arrows before Imprimir, shown as
// `visible` says of the first page.
template <class Visible>
ui::Description paginas(std::string_view entry, std::string heading, int columns, int lines,
                        std::initializer_list<Flecha> flechas, Visible visible) {
  ui::Description d =
      ui::reportSolution(nav::findScreen(entry)->solutions.front(), std::move(heading), columns,
                         lines);
  std::vector<ui::Command> arrows;
  for (const Flecha& f : flechas) {
    arrows.push_back(ui::browseCommand(f.name, f.picture, f.toolTip, visible(f.name)));
  }
  d.commands.insert(d.commands.begin(), arrows.begin(), arrows.end());
  return d;
}

// -- decisions under uncertainty ------------------------------------------

constexpr std::pair<std::string_view, Boton> kBotones[] = {
    {"forward1", Boton::forward1},       {"Back1", Boton::Back1},
    {"forward2", Boton::forward2},       {"Continuar1", Boton::Continuar1},
    {"Continuar2", Boton::Continuar2},   {"NoContinuar", Boton::NoContinuar},
    {"NoContinuar2", Boton::NoContinuar2},
};

const Boton* boton(std::string_view name) {
  for (const auto& [n, b] : kBotones)
    if (n == name) return &b;
  return nullptr;
}

// Whether a command shows in a state of the browsing: the arrows, and volver.
bool mostrado(const Navegacion& estado, std::string_view command) {
  const Botones visibles = botonesVisibles(estado);
  if (command == "volver") return visibles.volver;
  const Boton* b = boton(command);
  return !b || visible(visibles, *b);
}

// The criteria page by page. An arrow looks at Alfa in the entry's fields as
// they stand at the click, and the page it leads to is written from them and
// the results of the activation.
class IncertidumbrePaginas : public Solution {
 public:
  explicit IncertidumbrePaginas(IncertidumbreFields& f) : f_(f), r_(solve(f)) {
    pages_ = {report(f_, r_), printout(f_, r_)};
  }
  bool shows(std::string_view command) const override { return mostrado(estado_, command); }
  bool press(std::string_view command) override {
    const Boton* b = boton(command);
    if (!b) return false;
    estado_ = pulsar(estado_, *b, f_);
    pages_ = {pagina(f_, r_, estado_.pagina), printout(f_, r_)};
    return true;
  }

 private:
  IncertidumbreFields& f_;
  IncertidumbreResults r_;
  Navegacion estado_;
};

// -- decisions under risk -------------------------------------------------

constexpr std::pair<std::string_view, BotonRiesgo> kFlechasRiesgo[] = {
    {"forward1", BotonRiesgo::forward1},
    {"Back1", BotonRiesgo::Back1},
    {"forward2", BotonRiesgo::forward2},
    {"back2", BotonRiesgo::back2},
};

const BotonRiesgo* flechaRiesgo(std::string_view name) {
  for (const auto& [n, b] : kFlechasRiesgo)
    if (n == name) return &b;
  return nullptr;
}

bool mostrado(PaginaRiesgo pagina, std::string_view command) {
  if (command == "volver") return volverVisible(pagina);
  const BotonRiesgo* b = flechaRiesgo(command);
  return !b || visible(pagina, *b);
}

class RiesgoPaginas : public Solution {
 public:
  explicit RiesgoPaginas(RiesgoFields& f) : f_(f), r_(solve(f)) {
    pages_ = {report(f_, r_), printout(f_, r_)};
  }
  bool shows(std::string_view command) const override { return mostrado(pagina_, command); }
  bool press(std::string_view command) override {
    const BotonRiesgo* b = flechaRiesgo(command);
    if (!b) return false;
    pagina_ = pulsar(pagina_, *b);
    pages_ = {pagina(f_, r_, pagina_), printout(f_, r_)};
    return true;
  }

 private:
  RiesgoFields& f_;
  RiesgoResults r_;
  PaginaRiesgo pagina_ = PaginaRiesgo::DominanciaSimple;
};

// -- ELECTRE ----------------------------------------------------------------

// The entry screen both ELECTRE models share: the scale and the model's own
// fields, the selectors beside them, and the table of valuations.
template <class F>
Form<F> electraForm(std::string_view screen, std::string heading, std::string intro,
                    std::initializer_list<Campo<F>> campos, std::string solutionHeading,
                    int columns, int lines) {
  std::vector<Campo<F>> todos = {
      {&F::escalaValoracion, "escalaValoracion", "Escala de Valoración", "Escala de valoración"}};
  todos.insert(todos.end(), campos.begin(), campos.end());
  Form<F> form = entrada<F>(screen, std::move(heading), std::move(intro), todos, "Image6");
  selectorNumerico(form, &F::NumAlternativas, "NumAlternativas", "Número de Alternativas",
                   kMaxAlternativasElectra, 0, 3);
  selectorNumerico(form, &F::NumCriterios, "NumCriterios", "Número de Criterios", kMaxCriterios,
                   1, 3);
  rediseñarTabla(form);
  tablaValoraciones(form);
  form.solution = ui::reportSolution(nav::findScreen(screen)->solutions.front(),
                                     std::move(solutionHeading), columns, lines);
  return form;
}

}  // namespace

const Form<IncertidumbreFields>& incertidumbreForm() {
  using F = IncertidumbreFields;
  static const Form<F> form = [] {
    Form<F> form =
        entrada<F>("DecisionIncertidumbre", "Toma de Decisiones en Ambiente de Incertidumbre", "",
                   {{&F::Alfa, "Alfa", "Coeficiente de Optimismo"}}, "Image5");
    selectorNumerico(form, &F::NumAlternativas, "NumAlternativas", "Número de Alternativas",
                     kMaxAlternativas, 0, 3);
    selectorNumerico(form, &F::NumEstados, "NumEstados", "Número de Estados de la Naturaleza",
                     kMaxEstados, 1, 3);
    rediseñarTabla(form);
    tablaPagos(form, &F::LblEstados, "LblEstados", &F::LblAlternativas, "LblAlternativas");
    // Backward steps first, then forward ones; only one or two show at a time.
    form.solution = paginas(
        "DecisionIncertidumbre", "Toma de decisiones en ambiente de incertidumbre", 86, 46,
        {{"Back1", "cmd-back", "Criterio Wald, Maximin o Pesimista"},
         {"Continuar2", "cmd-back", "Criterio Maximax u Optimista"},
         {"NoContinuar", "cmd-back", "Criterio Maximax u Optimista"},
         {"NoContinuar2", "cmd-back", "Criterio de Laplace, Criterio de savaje"},
         {"forward1", "cmd-forward", "Criterio Maximax u Optimista"},
         {"forward2", "cmd-forward", "Criterio de Laplace, Criterio de savaje"},
         {"Continuar1", "cmd-forward", "Criterio de Hurwicz"}},
        [](std::string_view c) { return mostrado(Navegacion{}, c); });
    form.solver = [](F& f, long) { return std::make_unique<IncertidumbrePaginas>(f); };
    return form;
  }();
  return form;
}

const Form<RiesgoFields>& riesgoForm() {
  using F = RiesgoFields;
  static const Form<F> form = [] {
    Form<F> form = entrada<F>(
        "DecisionRiesgoNobayesiano", "Toma de Decisiones en Ambiente de Riesgo",
        "Un ambiente de riesgo queda definido cuando suponemos que cada uno de las posibles "
        "situaciones que se pueden presentar aun siendo desconocidas quedan definidas por una "
        "distribución de probabilidad conocida",
        {}, "Image5");
    selectorNumerico(form, &F::NumAlternativas, "NumAlternativas", "Número de Alternativas",
                     kMaxAlternativasRiesgo, 0, 0);
    selectorNumerico(form, &F::NumEstados, "NumEstados", "Número de Estados de la Naturaleza",
                     kMaxEstadosRiesgo, 1, 0);
    rediseñarTabla(form);
    // The legend of the row below the alternatives, which holds the
    // probabilities of the states.
    form.entry.controls.push_back(control(
        ui::ControlKind::Label, "Label7",
        "Ps: Probalididad de ocurrencia de los diferentes estados de la naturaleza", 1, -1, 0));
    tablaPagos(form, &F::LblEstado, "LblEstado", &F::lblAlternativa, "lblAlternativa",
               &F::lblAlternativaCaption);
    form.solution = paginas(
        "DecisionRiesgoNobayesiano", "Toma de decisiones en ambiente de riesgo", 86, 50,
        {{"Back1", "cmd-back", "Criterio de la dominancia simple"},
         {"back2", "cmd-back", "Criterio de la dominancia estocástica"},
         {"forward1", "cmd-forward", "Criterio de la dominancia estocástica"},
         {"forward2", "cmd-forward", "Criterio del valor medio"}},
        [](std::string_view c) { return mostrado(PaginaRiesgo::DominanciaSimple, c); });
    form.solver = [](F& f, long) { return std::make_unique<RiesgoPaginas>(f); };
    return form;
  }();
  return form;
}

const Form<Electra1Fields>& electra1Form() {
  using F = Electra1Fields;
  static const Form<F> form = electraForm<F>(
      "DecisionElectra1", "Electra 1",
      "Permite guiar al decisor hacia la elección de una alternativa de entre un conjunto de "
      "ellas utilizando criterios de decisión no agregables.",
      {{&F::IndiceConcordancia, "IndiceConcordancia", "Límite de Concordancia",
        "Índice de concordancia en tanto por uno"},
       {&F::IndiceDiscordancia, "IndiceDiscordancia", "Límite de Discordancia",
        "Índice de Discordancia en tanto por uno"}},
      "Electra 1", 86, 52);
  return form;
}

const Form<Electra2Fields>& electra2Form() {
  using F = Electra2Fields;
  static const Form<F> form = electraForm<F>(
      "DecisionElectra2", "Electra 2", "",
      {{&F::IndicadorConcordancia1, "IndicadorConcordancia1", "Indicador de Concordancia 1",
        "Índice de concordancia en tanto por uno"},
       {&F::IndicadorConcordancia2, "IndicadorConcordancia2", "Indicador de Concordancia 2"},
       {&F::IndicadorConcordancia3, "IndicadorConcordancia3", "Indicador de Concordancia 3"},
       {&F::IndicadorDiscordancia1, "IndicadorDiscordancia1", "Indicador de Discordancia 1",
        "Índice de Discordancia en tanto por uno"},
       {&F::IndicadorDiscordancia2, "IndicadorDiscordancia2", "Indicador de Discordancia 2"}},
      "Electra 2", 124, 36);
  return form;
}

}  // namespace vorel::decision
