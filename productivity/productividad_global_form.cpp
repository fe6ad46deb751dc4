#include "productivity/productividad_global_form.h"

#include <memory>
#include <string>

namespace vorel::productivity {

namespace {

using F = ProductividadGlobalFields;
using ui::ControlKind;

// A click on a row of a list: its group goes to that row.
template <Lista F::*lista, Grupo grupo>
Messages fila(F& f) {
  seleccionar(f, grupo, (f.*lista).ListIndex);
  return {};
}

// The focus coming into a list: the group's other lists go to its row.
template <Lista F::*lista, Grupo grupo>
Messages foco(F& f) {
  enfocar(f, grupo, (f.*lista).ListIndex);
  return {};
}

Messages quitar(F& f) {
  eliminar(f);
  return {};
}

// Each list is its text, typed (the row in hand), over its rows, open below
// it: both take the focus, a click on a row picks it.
struct ListaEnPantalla {
  const char* name;
  Lista F::*member;
  Edit<F> click, focus;
};

template <Lista F::*lista, Grupo grupo>
ListaEnPantalla enPantalla(const char* name) {
  return {name, lista, fila<lista, grupo>, foco<lista, grupo>};
}

void añadirLista(Form<F>& form, const ListaEnPantalla& l, int row, int column) {
  const std::string filas = std::string(l.name) + "_filas";
  const std::string click = std::string(l.name) + ".Click";
  const std::string focus = std::string(l.name) + ".GotFocus";
  ui::Control texto = ui::control(ControlKind::Cell, l.name, "", 1, row, column, 150);
  texto.focusEdit = focus;
  ui::Control lista = ui::control(ControlKind::ListBox, filas, "", 1, row + 1, column, 150);
  lista.height = 5;
  lista.edit = click;
  lista.focusEdit = focus;
  form.entry.controls.push_back(texto);
  form.entry.controls.push_back(lista);
  Lista F::*member = l.member;
  form.bindings.push_back({l.name, [member](F& f) { return &(f.*member).text; }});
  Binding<F> rows{filas};
  rows.index = [member](F& f) { return &(f.*member).ListIndex; };
  rows.items = [member](F& f) { return &(f.*member).items; };
  form.bindings.push_back(rows);
  form.edits.push_back({click, l.click});
  form.edits.push_back({focus, l.focus});
}

// A box the program fills: a row's number, a count, a result.
ui::Control casilla(const char* name, int row, int column, int width) {
  ui::Control c = ui::control(ControlKind::Cell, name, "", 1, row, column, width);
  c.locked = true;
  return c;
}

Form<F> construir() {
  Form<F> form;
  ui::Description& d = form.entry = ui::fieldEntry(
      "Productividad_Global", "Productividad Global",
      "La productividad global relaciona el valor de todos los productos con el de todos los "
      "factores consumidos; valorando ambos años a los precios del año 0 se obtienen el índice "
      "y la tasa de productividad global",
      "Titulo1", "Problema 1", {{"TxtCasoO", "Año 0"}, {"TxtCaso1", "Año 1"}});
  for (ui::Control& c : d.controls)
    if (c.kind == ControlKind::TextBox)
      c.toolTip = c.name == "TxtCasoO" ? "Nombre del año 0" : "Nombre del año 1";
  form.bindings.push_back(textOf("Titulo1", &F::Titulo1));
  form.bindings.push_back(textOf("TxtCasoO", &F::TxtCasoO));
  form.bindings.push_back(textOf("TxtCaso1", &F::TxtCaso1));

  // One band per group: its three lists side by side, the number of the row
  // in hand and how many rows there are.
  int column = 1;
  for (const char* head : {"Unidades físicas año 0", "Precio unitario año 0",
                           "Unidades físicas año 1", "Nº", "Total"})
    d.controls.push_back(ui::control(ControlKind::Label, "", head, 1, 0, column++));
  const struct {
    const char* titulo;
    ListaEnPantalla listas[3];
    const char *numero, *total;
    std::string F::*fila;
    std::string F::*filas;
  } grupos[] = {
      {"Factores (inputs)",
       {enPantalla<&F::CmbUFI0, Grupo::Inputs>("CmbUFI0"),
        enPantalla<&F::CmbPUI0, Grupo::Inputs>("CmbPUI0"),
        enPantalla<&F::CmbUFI1, Grupo::Inputs>("CmbUFI1")},
       "TxtFact", "TxtFT", &F::TxtFact, &F::TxtFT},
      {"Productos (outputs)",
       {enPantalla<&F::CmbUFO0, Grupo::Outputs>("CmbUFO0"),
        enPantalla<&F::CmbPUO0, Grupo::Outputs>("CmbPUO0"),
        enPantalla<&F::CmbUFO1, Grupo::Outputs>("CmbUFO1")},
       "TxtProd", "TxtPT", &F::TxtProd, &F::TxtPT},
  };
  int row = 1;
  for (const auto& g : grupos) {
    ui::Control heading = ui::control(ControlKind::Label, "", g.titulo, 1, row, 0);
    heading.rowSpan = 2;
    d.controls.push_back(heading);
    for (int k = 0; k < 3; ++k) añadirLista(form, g.listas[k], row, k + 1);
    d.controls.push_back(casilla(g.numero, row, 4, 48));
    d.controls.push_back(casilla(g.total, row, 5, 48));
    form.bindings.push_back(textOf(g.numero, g.fila));
    form.bindings.push_back(textOf(g.total, g.filas));
    row += 2;
  }
  // The results that Resolver writes.
  const struct {
    const char *name, *caption;
    std::string F::*member;
  } resultados[] = {
      {"PO", "Productividad global año 0", &F::PO},
      {"P1", "Productividad global año 1", &F::P1},
      {"IPG", "Índice de productividad global", &F::IPG},
      {"TPG", "Tasa de productividad global", &F::TPG},
  };
  for (const auto& r : resultados) {
    d.controls.push_back(ui::control(ControlKind::Label, "", r.caption, 1, row, 0));
    d.controls.push_back(casilla(r.name, row++, 1, 150));
    form.bindings.push_back(textOf(r.name, r.member));
  }

  // The commands on the rows in hand, before nuevo.
  d.commands.insert(
      d.commands.begin(),
      {ui::editCommand("AÑADIR", "Añadir", "", "Añade la fila del input y la del output a sus listas"),
       ui::editCommand("Sustituir", "Sustituir", "", "Sustituye la fila en mano por los valores escritos"),
       ui::editCommand("eliminar", "Eliminar", "", "Elimina la fila en mano de sus listas")});
  form.edits.push_back({"AÑADIR", añadir});
  form.edits.push_back({"Sustituir", sustituir});
  form.edits.push_back({"eliminar", quitar});

  form.solution =
      ui::reportSolution("Productividad_Global_Solucion", "Productividad Global", 96, 28);
  // Resolver writes the results into their boxes on the entry, then reports them.
  form.solver = [](F& entry, long) {
    resolver(entry);
    return std::make_unique<Solution>(Pages{report(entry), printout(entry)});
  };
  form.model = {nuevo, exchange, check, solveAndReport};
  return form;
}

}  // namespace

const Form<F>& productividadGlobalForm() {
  static const Form<F> form = construir();
  return form;
}

}  // namespace vorel::productivity
