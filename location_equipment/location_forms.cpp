#include "location_equipment/location_forms.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "frame/checks.h"

namespace vorel::location_equipment {

namespace {

using ui::ControlKind;

// A selector of the counts `first` to `last` on the fields' grid at `row`,
// with its caption in the column before it.
void selectorDeNumero(ui::Description& d, const std::string& name, const std::string& caption,
                      int first, int last, const std::string& toolTip, int row, int column = 0,
                      const std::string& captionName = "") {
  ui::Control label = control(ControlKind::Label, captionName, caption, 0, row, column);
  label.buddy = name;
  d.controls.push_back(label);
  ui::Control list = control(ControlKind::Selector, name, "", 0, row, column + 1, 64);
  list.toolTip = toolTip;
  for (int k = first; k <= last; ++k) list.items.push_back(std::to_string(k));
  d.controls.push_back(list);
}

// Rediseñar: the command beside the fields that runs the edit of that name.
ui::Command rediseñarCommand(std::string toolTip = "") {
  return ui::editCommand("Rediseñar", "Rediseñar", "", std::move(toolTip));
}

template <class F>
Messages rediseñarEdit(F& f) {
  rediseñar(f);
  return {};
}

// A heading of the table: row 0 heads a column, a later row another level or a row.
ui::Control cabecera(std::string name, std::string text, int row, int column, int width = 0) {
  return control(ControlKind::Label, std::move(name), std::move(text), 1, row, column, width);
}

// The control array `name`: one cell per element of `cells`, down grid
// column `column` from row `top`, each showing its element's text and visibility.
template <class F, std::size_t N>
void columnaDeCeldas(Form<F>& form, std::array<Cell, N> F::*cells, const std::string& name,
                     int column, int top, int width) {
  for (std::size_t i = 0; i < N; ++i) {
    const std::string cell = element(name, static_cast<int>(i));
    form.entry.controls.push_back(
        control(ControlKind::Cell, cell, "", 1, top + static_cast<int>(i), column, width));
    form.bindings.push_back({cell, [cells, i](F& f) { return &(f.*cells)[i].text; },
                             [cells, i](F& f) { return &(f.*cells)[i].visible; }});
  }
}

// The table's controls in reading order, row by row: the first cell shown
// is the first that Rediseñar finds.
void enOrden(ui::Description& d) {
  std::stable_sort(d.controls.begin(), d.controls.end(), [](const ui::Control& a, const ui::Control& b) {
    if (a.group != b.group) return a.group < b.group;
    if (a.group == 0) return false;
    return a.row != b.row ? a.row < b.row : a.column < b.column;
  });
}

template <class F>
Form<F> tablaForm(std::string_view screen, std::string heading, std::string intro,
                  std::string titlePreset, int columns, int lines) {
  Form<F> form;
  form.bindings.push_back(textOf("Titulo1", &F::Titulo1));
  form.entry = ui::fieldEntry(screen, heading, std::move(intro), "Titulo1", std::move(titlePreset), {});
  form.solution =
      ui::reportSolution(nav::findScreen(screen)->solutions.front(), heading, columns, lines);
  form.model = {nuevo, exchange, check, solveAndReport};
  return form;
}

}  // namespace

const Form<CentroGravedadFields>& centroGravedadForm() {
  using F = CentroGravedadFields;
  static const Form<F> form = [] {
    Form<F> form = tablaForm<F>(
        "Localizacion_CG", "Localización por Centro de Gravedad",
        "El método del centro de gravedad sitúa la instalación en el punto que equilibra las "
        "localizaciones con las que se relaciona, cada una ponderada por la cantidad que envía o "
        "recibe",
        "Problema 1", 96, 28);
    ui::Description& d = form.entry;
    selectorDeNumero(d, "NLoc", "Número de localizaciones", 2, kMaxLocalizacionesCG,
                     "Número de localizaciones", 0, 0, "lblNumLoc");
    form.bindings.push_back({"NLoc", {}, {}, [](F& f) { return &f.NLoc; }});
    d.commands.push_back(rediseñarCommand());
    form.edits.push_back({"Rediseñar", rediseñarEdit<F>});
    // One location per row: its name, its coordinates and its quantity.
    d.controls.push_back(cabecera("Localizacion", "Localización", 0, 0));
    d.controls.push_back(cabecera("Coordenadas", "Coordenadas", 0, 1));
    d.controls.push_back(cabecera("Cantidad", "Cantidad", 0, 3));
    d.controls.push_back(cabecera("CoordenadaX", "X", 1, 1));
    d.controls.push_back(cabecera("CoordenadaY", "Y", 1, 2));
    columnaDeCeldas(form, &F::localiz, "localiz", 0, 2, 150);
    columnaDeCeldas(form, &F::X, "X", 1, 2, 84);
    columnaDeCeldas(form, &F::Y, "Y", 2, 2, 84);
    columnaDeCeldas(form, &F::Q, "Q", 3, 2, 84);
    enOrden(d);
    return form;
  }();
  return form;
}

const Form<FactoresLocalizacionFields>& factoresLocalizacionForm() {
  using F = FactoresLocalizacionFields;
  static const Form<F> form = [] {
    Form<F> form = tablaForm<F>(
        "Localizacion_PF", "Localización por Ponderación de Factores",
        "Cada localización candidata recibe una puntuación en cada factor; la suma de las "
        "puntuaciones ponderadas por la importancia de cada factor señala la localización más "
        "adecuada",
        "Problema 1", 96, 38);
    ui::Description& d = form.entry;
    selectorDeNumero(d, "NFactL", "Número de factores", 2, kMaxFactoresPF,
                     "Número de factores de localización", 0);
    selectorDeNumero(d, "NLoc", "Número de localizaciones", 2, kMaxLocalizacionesPF,
                     "Número de localizaciones candidatas", 1);
    form.bindings.push_back({"NFactL", {}, {}, [](F& f) { return &f.NFactL; }});
    form.bindings.push_back({"NLoc", {}, {}, [](F& f) { return &f.NLoc; }});
    d.commands.push_back(rediseñarCommand());
    form.edits.push_back({"Rediseñar", rediseñarEdit<F>});
    // One factor per row with its name and weight, then its score at each
    // location across; the array fk is the row of factor k.
    d.controls.push_back(cabecera("FactorLocalizacion", "Factor de localización", 0, 0));
    d.controls.push_back(cabecera("Ponderacion", "Ponderación", 0, 1));
    d.controls.push_back(cabecera("Puntuaciones", "Puntuación", 0, 2));
    for (std::size_t j = 1; j < kMaxLocalizacionesPF; ++j) {
      const std::string name = "Puntuaciones" + std::to_string(j + 1);
      d.controls.push_back(cabecera(name, "Puntuación", 0, static_cast<int>(j) + 2));
      form.bindings.push_back({name, {}, [j](F& f) { return &f.Puntuaciones[j - 1]; }});
    }
    for (std::size_t j = 0; j < kMaxLocalizacionesPF; ++j) {
      const std::string name = element("L", static_cast<int>(j));
      d.controls.push_back(
          cabecera(name, nombreLocalizacion(static_cast<int>(j)), 1, static_cast<int>(j) + 2));
      form.bindings.push_back({name, {}, [j](F& f) { return &f.L[j]; }});
    }
    columnaDeCeldas(form, &F::flocaliz, "flocaliz", 0, 2, 170);
    columnaDeCeldas(form, &F::Q1, "Q1", 1, 2, 84);
    for (std::size_t k = 0; k < kMaxFactoresPF; ++k)
      for (std::size_t j = 0; j < kMaxLocalizacionesPF; ++j) {
        const std::string cell = element("f" + std::to_string(k + 1), static_cast<int>(j));
        d.controls.push_back(control(ControlKind::Cell, cell, "", 1, static_cast<int>(k) + 2,
                                     static_cast<int>(j) + 2, 76));
        form.bindings.push_back({cell, [k, j](F& f) { return &f.f[k][j].text; },
                                 [k, j](F& f) { return &f.f[k][j].visible; }});
      }
    enOrden(d);
    return form;
  }();
  return form;
}

const Form<SelecPondFields>& selecPondForm() {
  using F = SelecPondFields;
  static const Form<F> form = [] {
    Form<F> form = tablaForm<F>(
        "Selec_Pond", "Criterio de Ponderación de Factores",
        "Cada proyecto o tecnología recibe una puntuación en cada factor; las ponderaciones de "
        "los factores, que suman 1, dan la puntuación total de cada opción, y se prefiere la mayor",
        "Problema 1", 96, 30);
    ui::Description& d = form.entry;
    selectorDeNumero(d, "NFact", "Número de factores", 1, kMaxFactoresSP,
                     "Número de factores que se valoran", 0);
    // Choosing a count shows that many rows at once.
    d.controls.back().edit = "NFact";
    form.bindings.push_back({"NFact", {}, {}, [](F& f) { return &f.NFact; }});
    form.edits.push_back({"NFact", rediseñarEdit<F>});
    d.controls.push_back(cabecera("Factores", "Factor", 0, 0));
    d.controls.push_back(cabecera("Ponderacion", "Ponderación", 0, 1));
    d.controls.push_back(cabecera("ProyectoA", "Puntuación A", 0, 2));
    d.controls.push_back(cabecera("ProyectoB", "Puntuación B", 0, 3));
    columnaDeCeldas(form, &F::factor, "factor", 0, 1, 170);
    columnaDeCeldas(form, &F::Ponderaciones, "Ponderaciones", 1, 1, 84);
    columnaDeCeldas(form, &F::PuntuaA, "PuntuaA", 2, 1, 84);
    columnaDeCeldas(form, &F::PuntuaB, "PuntuaB", 3, 1, 84);
    enOrden(d);
    return form;
  }();
  return form;
}

const Form<VanFields>& vanForm() {
  using F = VanFields;
  static const Form<F> form = [] {
    Form<F> form;
    form.bindings = {textOf("Titulo1", &F::Titulo1), textOf("txtDescuento", &F::txtDescuento),
                     textOf("InicialA", &F::InicialA), textOf("InicialB", &F::InicialB)};
    ui::Description& d = form.entry = ui::fieldEntry(
        "Selec_Van", "Criterio del VAN",
        "Compara dos inversiones por su valor actual neto (VAN) y, cuando sus duraciones "
        "difieren, por el VAN corregido (VANC).",
        "Titulo1", "Problema1",
        {{"txtDescuento", "Descuento"},
         {"InicialA", "Inversión Inicial A"},
         {"InicialB", "Inversión Inicial B"}});
    for (ui::Control& c : d.controls)
      if (c.name == "txtDescuento") c.toolTip = "Tipo de descuento en %";
    // The durations beside the fields: each selector's text is the duration,
    // as chosen, typed or read from a file.
    d.controls.push_back(control(ControlKind::Label, "", "Duración en Años", 0, 0, 3));
    for (auto [row, name, caption] : {std::tuple{1, "NVarA", "Duración Inversión A"},
                                      std::tuple{2, "NVarB", "Duración Inversión B"}})
      selectorDeNumero(d, name, caption, 2, kMaxAñosVan, "", row, 3);
    form.bindings.push_back(textOf("NVarA", &F::NVarA));
    form.bindings.push_back(textOf("NVarB", &F::NVarB));
    d.commands.push_back(rediseñarCommand("Ajusta la tabla al número de años deseados"));
    form.edits.push_back({"Rediseñar", [](F& f) { return rediseñar(f); }});
    // The years down the rows, the flows of A and of B across.
    d.controls.push_back(cabecera(element("LblInversion", 0), "Inversión A", 0, 1, 110));
    d.controls.push_back(cabecera(element("LblInversion", 1), "Inversión B", 0, 2, 110));
    for (std::size_t i = 0; i < kMaxAñosVan; ++i) {
      const std::string head = element("LblAño", static_cast<int>(i));
      d.controls.push_back(
          cabecera(head, "Flujo de Caja Año " + std::to_string(i + 1), static_cast<int>(i) + 1, 0));
      form.bindings.push_back({head, {}, [i](F& f) { return &f.LblAño[i]; }});
    }
    columnaDeCeldas(form, &F::AX1, "AX1", 1, 1, 110);
    columnaDeCeldas(form, &F::AX2, "AX2", 2, 1, 110);
    enOrden(d);
    form.solution = ui::reportSolution("Selec_Van_Solucion", "Criterio del VAN", 72, 26);
    form.model = {nuevo, exchange, check, solveAndReport};
    return form;
  }();
  return form;
}

namespace {

// An option's click clears the other option, as a pair of option buttons does.
Messages dosOpciones(CostesTotalesFields& f) {
  if (f.Option1) f.Option2 = false;
  return {};
}
Messages tresOpciones(CostesTotalesFields& f) {
  if (f.Option2) f.Option1 = false;
  return {};
}

ui::Description costesSolution(std::string_view screen) {
  ui::Description d = ui::reportSolution(screen, "Costes Totales", 124, 14);
  // The chart of the total cost lines stands beside the report.
  d.controls.push_back(control(ControlKind::Chart, "MSChart1", "", 0, 0, 1));
  return d;
}

}  // namespace

const Form<CostesTotalesFields>& costesTotalesForm() {
  using F = CostesTotalesFields;
  static const Form<F> form = [] {
    Form<F> form;
    ui::Description& d = form.entry = ui::fieldEntry(
        "Select_C_Totales", "Costes Totales",
        "Compara dos o tres opciones por sus costes fijos y variables: el volumen de producción "
        "en que se igualan sus costes totales decide la opción recomendable.",
        "Titulo1", "Problema1",
        {{"txtCF1", "Costes Fijos de la opción 1"},
         {"txtCV1", "Costes Variables de la opción 1"},
         {"txtCF2", "Costes Fijos de la opción 2"},
         {"txtCV2", "Costes Variables de la opción 2"},
         {"txtCF3", "Costes Fijos de la opción 3"},
         {"txtCV3", "Costes Variables de la opción 3"}});
    form.bindings.push_back(textOf("Titulo1", &F::Titulo1));
    using Campo = std::pair<const char*, std::string F::*>;
    for (auto [name, member] : {Campo{"txtCF1", &F::txtCF1}, Campo{"txtCV1", &F::txtCV1},
                                Campo{"txtCF2", &F::txtCF2}, Campo{"txtCV2", &F::txtCV2},
                                Campo{"txtCF3", &F::txtCF3}, Campo{"txtCV3", &F::txtCV3}})
      form.bindings.push_back(textOf<F>(name, member));
    // The options above the fields; the third option's fields (the frame
    // FrmOpcion3) show with Tres opciones.
    for (ui::Control& c : d.controls) {
      ++c.row;
      const bool tercera = c.name == "txtCF3" || c.name == "txtCV3" || c.buddy == "txtCF3" ||
                           c.buddy == "txtCV3";
      if (!tercera) continue;
      c.visible = false;
      if (c.kind == ControlKind::Label) c.name = "Lbl" + c.buddy.substr(3);
      form.bindings.push_back({c.name, {}, [](F& f) { return &f.Option2; }});
    }
    for (auto [name, caption, column, edit] :
         {std::tuple{"Option1", "Dos opciones", 0, &dosOpciones},
          std::tuple{"Option2", "Tres opciones", 1, &tresOpciones}}) {
      ui::Control option = control(ControlKind::Option, name, caption, 0, 0, column);
      option.family = "opciones";
      option.edit = name;
      d.controls.insert(d.controls.begin() + column, option);
      form.edits.push_back({name, edit});
    }
    // The ticks last: what the options say outweighs the frame's visibility.
    form.bindings.push_back({"Option1", {}, {}, {}, [](F& f) { return &f.Option1; }});
    form.bindings.push_back({"Option2", {}, {}, {}, [](F& f) { return &f.Option2; }});
    form.solution = costesSolution("Select_C_Totales_Sol");
    form.otherSolutions = {costesSolution("Select_C_Totales_Sol1")};
    form.resolverShows = solutionScreen;
    form.model = {nuevo, exchange, check, solveAndReport};
    return form;
  }();
  return form;
}


}  // namespace vorel::location_equipment
