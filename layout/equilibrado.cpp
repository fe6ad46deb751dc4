#include "layout/equilibrado.h"

#include <algorithm>
#include <cmath>

#include "frame/arith.h"
#include "frame/catalogue.h"
#include "layout/indice.h"
#include "layout/layout_forms.h"

namespace vorel::facility {

namespace {

const std::string kRegla = std::string(81, '_') + " ";
const std::string kActividadIncorrecta = "El numero de actividades no es correcto";

using Precedencias = std::vector<std::vector<int>>;  // P(i, j) = 1: j comes right before i

int actividades(const EquilibradoFields& f) {
  return static_cast<int>(CDbl(selectorText(f.NumActividades, kMaxActividades)));
}

void aplicarForma(EquilibradoFields& f, int N) {
  for (int a = 1; a <= kMaxActividades; ++a) {
    const bool usada = a <= N;
    item(f.LblActividades, a - 1) = usada;
    item(f.TiempoOperacion, a - 1).visible = usada;
    for (int p = 0; p < kAnterioresPorActividad; ++p) f.anterior(a, p).visible = usada;
  }
}

// P for activities 1 to N, from every numeric predecessor cell of theirs.
Precedencias precedencias(const EquilibradoFields& f, int N) {
  Precedencias P(static_cast<std::size_t>(N + 1),
                 std::vector<int>(static_cast<std::size_t>(N + 1)));
  for (int a = 1; a <= N; ++a)
    for (int p = 0; p < kAnterioresPorActividad; ++p) {
      const std::string& text = f.anterior(a, p).text;
      if (IsNumeric(text)) item(item(P, a), indice(Val(text), 0, N)) = 1;
    }
  return P;
}

// The precedence column of each element (index a). An element goes one
// column after the highest of its predecessors once they all stand in a
// column, pass after pass until every element is placed. Predecessors that
// close a cycle, or name element 0, leave elements that no pass can place, so
// the passes never end: each pass is a step of the budget, and a pass that
// places nothing leaves everything as it was, so the rest of the budget would
// be spent without a change and DoesNotEnd is thrown at once.
std::vector<int> columnas(const Precedencias& P, long stepBudget) {
  const int N = static_cast<int>(P.size()) - 1;
  std::vector<int> columna(static_cast<std::size_t>(N + 1), 0);
  int sinColocar = N;
  for (long pasos = 1; sinColocar > 0; ++pasos) {
    if (pasos > stepBudget) throw DoesNotEnd{};
    bool colocado = false;
    for (int a = 1; a <= N; ++a) {
      if (columna[a] != 0) continue;
      int alta = 0;
      bool listas = true;
      for (int j = 0; j <= N && listas; ++j)
        if (P[a][j] == 1) {
          listas = columna[j] != 0;
          alta = std::max(alta, columna[j]);
        }
      if (!listas) continue;
      columna[a] = alta + 1;
      colocado = true;
      --sinColocar;
    }
    if (!colocado) throw DoesNotEnd{};
  }
  return columna;
}

void cuerpo(Report& out, const EquilibradoFields& f, const EquilibradoResults& r) {
  out.line(Z, "Solución al problema:  " + f.Título);
  out.line(Z, kRegla);
  out.line(Z, " ");
  out.line(Z, "Número de actividades", Z, r.N);
  out.line(Z, kRegla);
  out.line(Z, " ");
  out.line(Z, "COLUMNA", Z, "ELEMENTOS", Z, "        MÁXIMA", Z, Z, "DURACIÓN", Z, "DURACIÓN", Z,
           "DURACIÓN");
  out.line(Z, Z, Z, "        TRANSFERENCIA", Z, "ELEMENTO", Z, "COLUMNA", Z, "ACUMULADA");
  out.line(Z, " ");
  const int N = static_cast<int>(r.Columna.size());
  for (int c = 1; c <= r.NumColumnas; ++c) {
    std::vector<int> elementos;
    for (int a = 1; a <= N; ++a)
      if (item(r.Columna, a - 1) == c) elementos.push_back(a);
    for (std::size_t e = 0; e < elementos.size(); ++e) {
      const int a = elementos[e];
      const int transferencia = item(r.Transferencia, a - 1);
      const std::string romano = e == 0 ? item(numerosRomanos(), c - 1) : "";
      const std::string maxima =
          transferencia != c ? "        " + item(numerosRomanos(), transferencia - 1) : "";
      if (e + 1 < elementos.size()) {
        out.line(Z, romano, Z, printed(double(a)), Z, maxima, Z, Z, printed(item(r.Tiempo, a - 1)));
      } else {
        out.line(Z, romano, Z, printed(double(a)), Z, maxima, Z, Z, printed(item(r.Tiempo, a - 1)),
                 Z, printed(item(r.DuracionColumna, c - 1)), Z,
                 printed(item(r.DuracionAcumulada, c - 1)));
      }
    }
  }
}

}  // namespace

EquilibradoFields::EquilibradoFields() { aplicarForma(*this, 5); }

Cell& EquilibradoFields::anterior(int a, int p) {
  return const_cast<Cell&>(static_cast<const EquilibradoFields&>(*this).anterior(a, p));
}

const Cell& EquilibradoFields::anterior(int a, int p) const {
  if (a < 1 || a > kMaxActividades || p < 0 || p >= kAnterioresPorActividad) raise(err::Subscript);
  const int columna = (a - 1) % kColumnasAnteriores;
  const int fila = p + (a > kColumnasAnteriores ? kAnterioresPorActividad : 0);
  return C[static_cast<std::size_t>(columna)][static_cast<std::size_t>(fila)];
}

const std::array<std::string, 16>& numerosRomanos() {
  static const std::array<std::string, 16> romanos = {"I",    "II",   "III", "IV", "V",  "VI",
                                                      "VII",  "VIII", "IX",  "X",  "XI", "XII",
                                                      "XIII", "XIV",  "XV",  "XVI"};
  return romanos;
}

void rediseñar(EquilibradoFields& f) { aplicarForma(f, actividades(f)); }

void nuevo(EquilibradoFields& f) {
  for (auto& columna : f.C)
    for (Cell& cell : columna) cell.text.clear();
  for (Cell& cell : f.TiempoOperacion) cell.text.clear();
  f.NumActividades = 4;
  aplicarForma(f, 5);
}

Messages check(const EquilibradoFields& f) {
  const int N = actividades(f);
  for (const auto& columna : f.C)
    for (const Cell& cell : columna) {
      if (!cell.visible || cell.text.empty()) continue;
      if (!IsNumeric(cell.text)) return {{kActividadIncorrecta, ""}};
      const double anterior = Val(cell.text);
      if (anterior < 0 || anterior > N) return {{kActividadIncorrecta, ""}};
    }
  for (const Cell& cell : f.TiempoOperacion) {
    if (cell.text.empty()) continue;
    if (!IsNumeric(cell.text) || Val(cell.text) < 0 || Val(cell.text) > 999999999)
      return {
          {"el valor de los tiempos de operacion no es correcto, debe introducir un valor "
           "comprendido entre 0 y 999999999",
           ""}};
  }
  for (int i = 0; i < N; ++i)
    if (item(f.TiempoOperacion, i).text.empty())
      return {{"Debe introducir los tiempos de operacion", ""}};
  return {};
}

EquilibradoResults solve(const EquilibradoFields& f, long stepBudget) {
  EquilibradoResults r;
  r.N = selectorText(f.NumActividades, kMaxActividades);
  const int N = actividades(f);
  for (int a = 1; a <= N; ++a) r.Tiempo.push_back(Val(item(f.TiempoOperacion, a - 1).text));
  const Precedencias P = precedencias(f, N);
  const std::vector<int> columna = columnas(P, stepBudget);
  r.Columna.assign(columna.begin() + 1, columna.end());
  r.NumColumnas = r.Columna.empty() ? 0 : *std::max_element(r.Columna.begin(), r.Columna.end());

  r.DuracionColumna.assign(static_cast<std::size_t>(r.NumColumnas), 0);
  r.DuracionAcumulada.assign(static_cast<std::size_t>(r.NumColumnas), 0);
  for (int a = 1; a <= N; ++a) {
    const int c = item(r.Columna, a - 1);
    double& total = item(r.DuracionColumna, c - 1);
    total = checked(total + item(r.Tiempo, a - 1));
  }
  for (int c = 1; c <= r.NumColumnas; ++c)
    item(r.DuracionAcumulada, c - 1) =
        checked((c > 1 ? item(r.DuracionAcumulada, c - 2) : 0) + item(r.DuracionColumna, c - 1));

  // From the last column back, and within a column from the last element
  // back: an element may move on to one column before the earliest maximum
  // transfer of its successors, which all stand in later columns.
  r.Transferencia.assign(static_cast<std::size_t>(N), r.NumColumnas);
  for (int c = r.NumColumnas; c >= 1; --c)
    for (int a = N; a >= 1; --a) {
      if (item(r.Columna, a - 1) != c) continue;
      int& transferencia = item(r.Transferencia, a - 1);
      for (int s = 1; s <= N; ++s)
        if (item(item(P, s), a) == 1)
          transferencia = std::min(transferencia, item(r.Transferencia, s - 1) - 1);
    }
  return r;
}

Report report(const EquilibradoFields& f, const EquilibradoResults& r) {
  Report out;
  out.blankLines(4);
  cuerpo(out, f, r);
  return out;
}

Report printout(const EquilibradoFields& f, const EquilibradoResults& r) {
  Report out = pageHead("EQUILIBRADO DE LÍNEAS DE FABRICACIÓN Y MONTAJE");
  cuerpo(out, f, r);
  return out;
}

Pages solveAndReport(EquilibradoFields& f, long stepBudget) {
  const EquilibradoResults r = solve(f, stepBudget);
  return {report(f, r), printout(f, r)};
}

void exchange(ProblemFile& file, EquilibradoFields& f) {
  file.text(f.Título);
  file.listIndex(f.NumActividades, kMaxActividades);
  for (int r = 0; r < kFilasAnteriores; ++r)
    for (auto& columna : f.C) file.text(item(columna, r).text);
  for (Cell& cell : f.TiempoOperacion) file.text(cell.text);
}

CatalogueEntry catalogueEquilibrado() {
  return catalogued("equilibrado", equilibradoForm());
}

}  // namespace vorel::facility
