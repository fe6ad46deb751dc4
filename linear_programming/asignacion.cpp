#include "linear_programming/asignacion.h"

#include "frame/arith.h"
#include "frame/catalogue.h"
#include "frame/checks.h"
#include "linear_programming/asignacion_form.h"

namespace vorel::linear_programming {

namespace {

constexpr int kArrays = kAsignacionArrays;
constexpr int kMax = kAsignacionMax;

int selectorValue(int listIndex) { return CInt(Val(selectorText(listIndex, kMax))); }

void layOut(AsignacionFields& f, int individuos, int tareas) {
  for (auto& column : f.C)
    for (Cell& cell : column) cell.visible = false;
  f.LblIndividuos.fill(false);
  f.LblTareas.fill(false);
  for (int i = 0; i < individuos; ++i)
    for (int j = 0; j < tareas; ++j) item(item(f.C, j), i).visible = true;
  for (int i = 0; i < individuos; ++i) item(f.LblIndividuos, i) = true;
  for (int j = 0; j < tareas; ++j) item(f.LblTareas, j) = true;
}

// The message of an empty or non-numeric cell: the columns do not all say it alike.
const char* notNumeric(int column) {
  switch (column) {
    case 5:
      return "Debe completar la tabla de costes de asignación";
    case 6:
    case 7:
      return "Debe completar la tabla de costes de asignación ";
    default:
      return "Debe completar la tabla de costes de Asignación";
  }
}

// Every permutation of the columns, row by row with the lowest free column
// first, so in lexical order; the cheapest are kept, up to three.
class Enumeracion {
 public:
  Enumeracion(const std::array<std::array<double, kMax>, kMax>& coste, int N, AsignacionResults& r)
      : coste_(coste), N_(N), r_(r) {}

  void run() {
    // The nests for two and for three or more rows run inside an outer loop
    // of two and four passes; the later passes meet only ties with what is
    // kept, and so change nothing. An empty table has no nest at all.
    const int passes = N_ == 0 ? 0 : N_ == 1 ? 1 : N_ == 2 ? 2 : 4;
    for (int pass = 0; pass < passes; ++pass) place(0);
  }

 private:
  void place(int row) {
    if (row == N_) {
      visit();
      return;
    }
    for (int column = 0; column < N_; ++column) {
      if (used_[column]) continue;
      used_[column] = true;
      columna_[row] = column;
      place(row + 1);
      used_[column] = false;
    }
  }

  AsignacionTabla tabla() const {
    AsignacionTabla t{};
    for (int i = 0; i < N_; ++i) t[i][columna_[i]] = 1;
    return t;
  }

  void visit() {
    double total = 0;
    for (int i = 0; i < N_; ++i) total = checked(total + coste_[i][columna_[i]]);
    if (first_) {
      first_ = false;
      r_.minimo = total;
      r_.Sol = {};
      r_.Sol[0] = tabla();
      r_.numSoluciones = 1;
    } else if (total < r_.minimo) {
      r_.minimo = total;
      r_.Sol = {};
      r_.Sol[0] = tabla();
      r_.numSoluciones = 1;
    } else if (total == r_.minimo && r_.numSoluciones < 3) {
      const AsignacionTabla t = tabla();
      for (int k = 0; k < r_.numSoluciones; ++k)
        if (r_.Sol[k] == t) return;
      r_.Sol[r_.numSoluciones] = t;
      ++r_.numSoluciones;
    }
  }

  const std::array<std::array<double, kMax>, kMax>& coste_;
  const int N_;
  AsignacionResults& r_;
  bool first_ = true;
  std::array<bool, kMax> used_{};
  std::array<int, kMax> columna_{};
};

void header(Report& out, const AsignacionFields& f, const AsignacionResults& r) {
  out.heading(f.Título);
  out.line(Z, "Número de individuos:", Z, Z, selectorText(f.NumIndividuos, kMax));
  out.line(Z, "Número de tareas:", Z, Z, selectorText(f.NumTareas, kMax));
  out.line(Z, " ");
  out.rule();
  out.line(Z, "Número de soluciones:", Z, Str(double(r.numSoluciones)));
  out.line(Z, " ");
}

// The assigned cells of one kept table, by individual.
void list(Report& out, const AsignacionResults& r, const AsignacionTabla& sol) {
  for (int i = 0; i < r.N; ++i)
    for (int j = 0; j < r.N; ++j) {
      if (sol[i][j] != 1) continue;
      const std::string a = printed(double(i + 1)), b = printed(double(j + 1));
      if (i < r.individuos && j < r.tareas)
        out.line(Z, "Individuo" + a, Z, Z, "Tarea" + b);
      else if (i >= r.individuos)
        out.line(Z, "Tarea" + b, Z, Z, "No asignada");
      else
        out.line(Z, "Individuo" + a, Z, Z, "Sin tarea");
    }
}

void total(Report& out, const AsignacionResults& r) {
  out.line(Z, "Coste Total:", Z, Z, Str(r.minimo), " unidades monetarias");
}

}  // namespace

std::string asignacionHeading(bool tarea, int index) {
  return (tarea ? "Tarea " : "Individuo ") + std::to_string(index + 1);
}

AsignacionFields::AsignacionFields() {
  layOut(*this, selectorValue(NumIndividuos), selectorValue(NumTareas));
}

void rediseñar(AsignacionFields& f) {
  layOut(f, selectorValue(f.NumIndividuos), selectorValue(f.NumTareas));
}

void nuevo(AsignacionFields& f) {
  const std::string title = f.Título;
  f = AsignacionFields();
  f.Título = title;
}

Messages check(const AsignacionFields& f) {
  std::vector<CellCheck> cells;
  for (int i = 0; i < kArrays; ++i)
    for (int j = 0; j < kArrays; ++j)
      if (f.C[j][i].visible)
        cells.push_back({f.C[j][i].text, element("C" + std::to_string(j + 1), i), notNumeric(j),
                         "El valor de los costes de asignación no es correcto, debe introducir un "
                         "valor comprendido entre 0 y 999999999"});
  return everyBadCell(cells);
}

AsignacionResults solve(const AsignacionFields& f) {
  AsignacionResults r;
  r.individuos = selectorValue(f.NumIndividuos);
  r.tareas = selectorValue(f.NumTareas);
  r.N = r.individuos > r.tareas ? r.individuos : r.tareas;
  std::array<std::array<double, kMax>, kMax> coste{};
  for (int i = 0; i < r.individuos; ++i)
    for (int j = 0; j < r.tareas; ++j) coste[i][j] = Val(f.C[j][i].text);
  Enumeracion(coste, r.N, r).run();
  return r;
}

AsignacionComandos comandos(int numSoluciones, int pagina) {
  AsignacionComandos c;
  if (pagina == 1) c.forward1 = numSoluciones > 1;
  if (pagina == 2) {
    c.Back1 = true;
    c.forward2 = numSoluciones == 3;
  }
  if (pagina == 3) c.back2 = true;
  return c;
}

Report report(const AsignacionFields& f, const AsignacionResults& r, int pagina) {
  Report out;
  out.blankLines(3);
  header(out, f, r);
  if (r.numSoluciones > 1) {
    out.line(Z, "SOLUCIÓN " + std::to_string(pagina));
    out.line(Z, " ");
  }
  if (r.numSoluciones > 0) list(out, r, item(r.Sol, pagina - 1));
  out.line(Z, " ");
  total(out, r);
  return out;
}

Report printout(const AsignacionFields& f, const AsignacionResults& r) {
  Report out = pageHead("PROBLEMA DE ASIGNACIÓN");
  header(out, f, r);
  for (int k = 0; k < r.numSoluciones; ++k) {
    out.line(Z, "SOLUCIÓN " + std::to_string(k + 1));
    out.line(Z, " ");
    list(out, r, r.Sol[k]);
    out.line(Z, " ");
  }
  total(out, r);
  return out;
}

Pages solveAndReport(AsignacionFields& f) {
  return solvedPages(f);
}

void exchange(ProblemFile& file, AsignacionFields& f) {
  file.text(f.Título);
  file.listIndex(f.NumIndividuos, kMax);
  file.listIndex(f.NumTareas, kMax);
  for (int i = 0; i < kArrays; ++i)
    for (auto& column : f.C) {
      file.text(column[i].text);
      file.flag(column[i].visible);
    }
  for (int k = 0; k < kMax; ++k) {
    file.flag(f.LblIndividuos[k]);
    file.flag(f.LblTareas[k]);
  }
}

CatalogueEntry catalogueAsignacion() {
  return catalogued("asignacion", asignacionForm());
}

}  // namespace vorel::linear_programming
