#include "inventory/mrp_form.h"

#include <functional>
#include <memory>
#include <string>

#include "frame/solution_cells.h"

namespace vorel::inventory {

namespace {

using F = MrpFields;
using ui::ControlKind;

std::size_t at(int k) { return static_cast<std::size_t>(k); }

std::string element(const std::string& array, int i) {
  return array + "(" + std::to_string(i) + ")";
}

void nada(F&) {}  // nuevo: the picture is there, but does nothing on this screen

// A selector whose text is typed or chosen, with its caption before it.
void selector(Form<F>& form, int row, const char* name, const char* caption,
              std::vector<std::string> items, std::string F::*member, int width,
              const char* toolTip = "") {
  ui::Control label = control(ControlKind::Label, "", caption, 0, row, 0);
  label.buddy = name;
  form.entry.controls.push_back(label);
  ui::Control list = control(ControlKind::Selector, name, "", 0, row, 1, width);
  list.items = std::move(items);
  list.toolTip = toolTip;
  form.entry.controls.push_back(list);
  form.bindings.push_back(textOf(name, member));
}

ui::Command command(const char* name, const char* toolTip) {
  ui::Command c;
  c.name = c.caption = c.target = name;
  c.toolTip = toolTip;
  c.action = ui::Action::Edit;
  return c;
}

// A column of cells of the article table: its head, one cell a row.
void cellColumn(Form<F>& form, int column, const char* name, const char* head,
                MrpRow<Cell> F::*member, const char* toolTip = "", const char* headTip = "") {
  ui::Control h = control(ControlKind::Label, "", head, 1, 0, column, 70);
  h.toolTip = headTip;
  form.entry.controls.push_back(h);
  for (int k = 0; k < kMrpArticles; ++k) {
    const std::string cell = element(name, k);
    ui::Control c = control(ControlKind::Cell, cell, "", 1, k + 1, column, 70);
    c.toolTip = toolTip;
    form.entry.controls.push_back(c);
    form.bindings.push_back({cell, [member, k](F& f) { return &(f.*member)[at(k)].text; },
                             [member, k](F& f) { return &(f.*member)[at(k)].visible; }});
  }
}

// A column of dependency selectors, each row with its own list.
void parentColumn(Form<F>& form, int column, const char* name, MrpRow<MrpDependency> F::*member,
                  std::vector<std::string> (*list)(int)) {
  form.entry.controls.push_back(control(ControlKind::Label, "", "Dep", 1, 0, column, 52));
  for (int k = 0; k < kMrpArticles; ++k) {
    const std::string selector = element(name, k);
    ui::Control c = control(ControlKind::Selector, selector, "", 1, k + 1, column, 52);
    c.items = list(k);
    form.entry.controls.push_back(c);
    form.bindings.push_back({selector, {}, [member, k](F& f) { return &(f.*member)[at(k)].visible; },
                             [member, k](F& f) { return &(f.*member)[at(k)].listIndex; }});
  }
}

// A row of weeks and a row of units under it, each with its caption: a
// label "1".."10" a week (the array `weekNames`, its visibility reached by
// `week`) over a cell a week (the array `unitNames`, reached by `units`).
void weekRows(Form<F>& form, int group, const std::string& weekCaption,
              const std::string& weekNames, std::function<bool*(F&, int)> week,
              const std::string& unitsCaption, const std::string& unitNames,
              std::function<Cell*(F&, int)> units, const char* toolTip = "") {
  auto& controls = form.entry.controls;
  controls.push_back(control(ControlKind::Label, "", weekCaption, group, 0, 0));
  controls.push_back(control(ControlKind::Label, "", unitsCaption, group, 1, 0));
  for (int j = 0; j < kMrpWeeks; ++j) {
    const std::string label = element(weekNames, j);
    controls.push_back(control(ControlKind::Label, label, std::to_string(j + 1), group, 0, j + 1, 58));
    form.bindings.push_back({label, {}, [week, j](F& f) { return week(f, j); }});
    const std::string cell = element(unitNames, j);
    ui::Control c = control(ControlKind::Cell, cell, "", group, 1, j + 1, 58);
    c.toolTip = toolTip;
    controls.push_back(c);
    form.bindings.push_back({cell, [units, j](F& f) { return &units(f, j)->text; },
                             [units, j](F& f) { return &units(f, j)->visible; }});
  }
}

void entrada(Form<F>& form) {
  form.entry = ui::fieldEntry("GI_MRP", "Inventarios con demanda dependiente: MRP", kMrpIntro,
                              "Titulo1", "Problema1", {});
  form.bindings.push_back(textOf("Titulo1", &F::Titulo1));
  selector(form, 0, "NArt", "Número de Artículos", mrpArticleCounts(), &F::NArt, 64);
  selector(form, 1, "NSem", "Número de Semanas", mrpWeekCounts(), &F::NSem, 64,
           "Duración en Años");
  selector(form, 2, "NoArticulo", "Recepciones Programadas", mrpArticleChoices(),
           &F::NoArticulo, 110);
  auto& commands = form.entry.commands;
  commands.insert(commands.begin(),
                  {command("Rediseñar", "Ajusta la tabla al número de años deseados"),
                   command("Mostrar", "")});
  form.edits.push_back({"Rediseñar", rediseñar});
  form.edits.push_back({"Mostrar", mostrar});

  cellColumn(form, 0, "Art", "Artículo", &F::Art);
  parentColumn(form, 1, "D", &F::D, mrpParentList);
  cellColumn(form, 2, "NEle", "Nº E", &F::NEle);
  parentColumn(form, 3, "D1", &F::D1, mrpSecondParentList);
  cellColumn(form, 4, "NEle1", "Nº E", &F::NEle1);
  cellColumn(form, 5, "ID", "Inventario", &F::ID);
  cellColumn(form, 6, "Stock", "S.S.", &F::Stock);
  cellColumn(form, 7, "Sc", "S.C.", &F::Sc);
  cellColumn(form, 8, "TS", "T.S.", &F::TS, "", "Tiempo de Suministro");
  cellColumn(form, 9, "TamañoLote", "Tamaño", &F::TamañoLote,
             "Tamaño del lote, introduzca L si es lote a lote");

  form.entry.controls.push_back(
      control(ControlKind::Label, "", "Plan Maestro de Producción", 2, -1, 0));
  weekRows(
      form, 2, "Semana", "SemPA", [](F& f, int j) { return &f.SemPA[at(j)]; }, "Unidades",
      "UniPA", [](F& f, int j) { return &f.UniPA[at(j)]; },
      "Unidades del Plan Maestro de Producción");

  // The scheduled receipts: a frame an article, one on view at a time.
  for (int x = 0; x < kMrpArticles; ++x) {
    const int group = 3 + x;
    const std::string letter = mrpLetter(x);
    const std::string frame = element("FrmArticulo", x);
    form.entry.frames.push_back({group, frame});
    form.bindings.push_back({frame, {}, [x](F& f) { return &f.FrmArticulo[at(x)]; }});
    weekRows(
        form, group, "Semana " + letter, "SemRP" + letter,
        [x](F& f, int j) { return &f.SemRP[at(x)][at(j)]; }, "Unidades " + letter,
        "Unid" + letter, [x](F& f, int j) { return &f.Unid[at(x)][at(j)]; });
  }
}

// The records on the solution screen: the heads, the weeks over them, and
// for each article its head cells and five rows of weeks.
ui::Description solucion() {
  ui::Description d = ui::reportSolution("GI_MRP_Solucion1", "MRP", 10, 1);
  auto& controls = d.controls;
  const struct {
    const char *name, *text;
    int width;
  } heads[4] = {{"Articulo", "Artículo", 52}, {"Inventario", "Stock", 46}, {"SS", "S.S.", 36},
                {"Tiempo", "T.S.", 36}};
  for (int h = 0; h < 4; ++h)
    controls.push_back(control(ControlKind::Label, heads[h].name, heads[h].text, 1, 0, h,
                               heads[h].width));
  controls.back().toolTip = "Tiempo de Suministro";
  ui::Control semanas = control(ControlKind::Label, "Label1", "Semanas", 1, 0, 4);
  semanas.columnSpan = kMrpWeeks;
  controls.push_back(semanas);
  for (int j = 0; j < kMrpWeeks; ++j)
    controls.push_back(
        control(ControlKind::Label, element("Semana", j), std::to_string(j + 1), 1, 1, 4 + j));
  const struct {
    const char* name;
    int width;
  } cells[4] = {{"ArtS", 52}, {"Stock", 46}, {"StockSeg", 36}, {"TSS", 36}};
  for (int k = 0; k < kMrpArticles; ++k) {
    const int top = 2 + 6 * k;
    for (int h = 0; h < 4; ++h)
      controls.push_back(
          control(ControlKind::Cell, element(cells[h].name, k), "", 1, top, h, cells[h].width));
    controls.back().toolTip = "Tiempo de Suministro";
    for (int r = 0; r < 5; ++r) {
      ui::Control label = control(ControlKind::Label, element(kMrpRowNames[r], k),
                                  kMrpRowCaptions[r], 1, top + 1 + r, 0);
      label.columnSpan = 4;
      controls.push_back(label);
      for (int j = 0; j < kMrpWeeks; ++j)
        controls.push_back(control(ControlKind::Cell,
                                   element(kMrpCellPrefixes[r] + mrpLetter(k), j), "", 1,
                                   top + 1 + r, 4 + j, 58));
    }
  }
  return d;
}

// The records as the screen loaded them, in their cells.
class RecordsShown : public Solution, public SolutionCells {
 public:
  explicit RecordsShown(std::shared_ptr<const MrpLoadedSolution> loaded)
      : Solution(loaded->pages), loaded_(std::move(loaded)) {}

  void eachCell(const std::function<void(const std::string&, const std::string&, bool)>& visit)
      const override {
    eachRecordCell(loaded_->records, visit);
  }

 private:
  std::shared_ptr<const MrpLoadedSolution> loaded_;
};

Form<F> construir() {
  Form<F> form;
  entrada(form);
  form.solution = solucion();
  form.model = {nada, exchange, check, solveAndReport};
  // The screen computes when it is loaded, once: later it shows the same.
  form.solver = [](F& f, long) -> std::unique_ptr<Solution> {
    if (!f.solutionLoaded) f.solutionLoaded = std::make_shared<const MrpLoadedSolution>(f);
    return std::make_unique<RecordsShown>(f.solutionLoaded);
  };
  return form;
}

}  // namespace

void eachRecordCell(const MrpRecords& r,
                    const std::function<void(const std::string&, const std::string&, bool)>& visit) {
  const MrpGrid<std::string>* rows[5] = {&r.NB, &r.RP, &r.ID, &r.NN, &r.LP};
  for (int k = 0; k < kMrpArticles; ++k) {
    const std::size_t c = at(k);
    const bool shown = k < r.articles;
    visit(element("ArtS", k), r.ArtS[c], shown);
    visit(element("Stock", k), r.Stock[c], shown);
    visit(element("StockSeg", k), r.StockSeg[c], shown);
    visit(element("TSS", k), r.TSS[c], shown);
    for (int row = 0; row < 5; ++row) {
      visit(element(kMrpRowNames[row], k), kMrpRowCaptions[row], shown);
      for (int j = 0; j < kMrpWeeks; ++j)
        visit(element(kMrpCellPrefixes[row] + mrpLetter(k), j), (*rows[row])[c][at(j)],
              shown && j < r.weeks);
    }
  }
}

const Form<F>& mrpForm() {
  static const Form<F> form = construir();
  return form;
}

}  // namespace vorel::inventory
