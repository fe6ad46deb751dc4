#include "linear_programming/transportes.h"

#include "frame/arith.h"
#include "frame/catalogue.h"
#include "frame/checks.h"
#include "linear_programming/transportes_form.h"

namespace vorel::linear_programming {

namespace {

constexpr int kArrays = kTransportesArrays;

// A selector read as the handlers read it: Val of its text.
int selectorValue(int listIndex) { return CInt(Val(selectorText(listIndex, kTransportesMax))); }

// Shows the m by n table with its supply column and demand row and captions
// the headings; everything else is hidden, and no cell is blanked.
void layOut(TransportesFields& f, int m, int n) {
  for (auto& column : f.C)
    for (Cell& cell : column) cell.visible = false;
  for (TransportesLabel& l : f.LblOrigen) l.visible = false;
  for (TransportesLabel& l : f.LblDestino) l.visible = false;
  for (int i = 0; i <= m; ++i)
    for (int j = 0; j <= n; ++j)
      if (i < m || j < n) item(item(f.C, j), i).visible = true;
  for (int i = 0; i <= m; ++i) {
    TransportesLabel& l = item(f.LblOrigen, i);
    l.caption = i < m ? "Origen " + std::to_string(i + 1) : "Demandas";
    l.visible = true;
  }
  for (int j = 0; j <= n; ++j) {
    TransportesLabel& l = item(f.LblDestino, j);
    l.caption = j < n ? "Destino " + std::to_string(j + 1) : "Existencias";
    l.visible = true;
  }
}

}  // namespace

TransportesFields::TransportesFields() {
  for (int k = 0; k < kArrays; ++k) {
    LblOrigen[k].caption = k < kTransportesMax ? "Origen " + std::to_string(k + 1) : "Demandas";
    LblDestino[k].caption =
        k < kTransportesMax ? "Destino " + std::to_string(k + 1) : "Existencias";
  }
  layOut(*this, selectorValue(NumOrigen), selectorValue(NumDestino));
}

Messages rediseñar(TransportesFields& f) {
  if (selectorText(f.NumOrigen, kTransportesMax).empty())
    return {{"Introduzca el Número de Orígenes", ""}};
  if (selectorText(f.NumDestino, kTransportesMax).empty())
    return {{"Introduzca el Número de Destinos", ""}};
  layOut(f, selectorValue(f.NumOrigen), selectorValue(f.NumDestino));
  return {};
}

bool celdaDeTotal(const TransportesFields& f, int column, int row) {
  return item(f.LblDestino, column).caption == "Existencias" ||
         item(f.LblOrigen, row).caption == "Demandas";
}

void nuevo(TransportesFields& f) {
  const std::string title = f.Título;
  f = TransportesFields();
  f.Título = title;
}

Messages check(const TransportesFields& f) {
  Messages messages;
  for (int i = 0; i < kArrays; ++i)
    for (int j = 0; j < kArrays; ++j) {
      const Cell& cell = f.C[j][i];
      if (cell.visible && !IsNumeric(cell.text))
        messages.push_back({"Debe Completar la tabla de Costes Unitarios de Transporte",
                            element("C" + std::to_string(j + 1), i)});
    }
  return messages;
}

TransportesResults solve(const TransportesFields& f, long stepBudget) {
  TransportesResults r;
  const int m = selectorValue(f.NumOrigen), n = selectorValue(f.NumDestino);
  r.m = m;
  r.n = n;

  // Supplies in the column after the last destination, demands in the row
  // after the last origin; the costs of a fictitious row or column stay 0.
  std::array<double, kArrays> oferta{}, demanda{};
  std::array<std::array<double, kArrays>, kArrays> C{};
  for (int i = 0; i < m; ++i) {
    item(oferta, i) = Val(item(item(f.C, n), i).text);
    r.S = checked(r.S + oferta[i]);
  }
  for (int j = 0; j < n; ++j) {
    item(demanda, j) = Val(item(item(f.C, j), m).text);
    r.D = checked(r.D + demanda[j]);
  }
  for (int i = 0; i < m; ++i)
    for (int j = 0; j < n; ++j) C[i][j] = Val(f.C[j][i].text);

  r.N = m;
  r.M = n;
  if (r.S < r.D) {
    r.origenFicticio = true;
    item(oferta, m) = checked(r.D - r.S);
    r.N = m + 1;
  } else if (r.S > r.D) {
    r.destinoFicticio = true;
    item(demanda, n) = checked(r.S - r.D);
    r.M = n + 1;
  }
  const int N = r.N, M = r.M;
  auto& X = r.X;

  // North-west corner.
  Integer llenas = 0;
  for (int i = 0; i < N; ++i)
    for (int j = 0; j < M; ++j) {
      if (oferta[i] == 0 || demanda[j] == 0) continue;
      const double t = checked(oferta[i] - demanda[j]);
      if (!(t > 0)) {
        X[i][j] = oferta[i];
        demanda[j] = checked(demanda[j] - oferta[i]);
        oferta[i] = 0;
      } else {
        X[i][j] = demanda[j];
        oferta[i] = checked(oferta[i] - demanda[j]);
        demanda[j] = 0;
      }
      ++llenas;
    }
  if (llenas < Integer(N) + Integer(M) - 1) {
    r.degenerada = true;
    return r;
  }

  // Exchanges over rectangles: cells (p, i) and (q, j) give up t units to the
  // opposite corners (p, j) and (q, i) when that lowers the cost. The gain g
  // is worked out only from a corner (p, i) that ships something, and is
  // otherwise left as it was: a negative quantity at (p, i) meets the gain of
  // the last rectangle worked out. A step is one corner (p, i) set against
  // all the others.
  auto Y = X;
  long steps = 0;
  double g = 0;
  bool cambio = true;
  while (cambio) {
    cambio = false;
    for (int i = 0; i < M; ++i)
      for (int p = 0; p < N; ++p) {
        if (stepBudget > 0 && ++steps > stepBudget) throw DoesNotEnd{};
        for (int j = 0; j < M; ++j)
          for (int q = 0; q < N; ++q) {
            if (j == i || q == p) continue;
            // Once out of range a partial sum stays infinite: one test covers the three.
            if (X[p][i] > 0) g = checked(C[p][j] + C[q][i] - C[p][i] - C[q][j]);
            if (!(g < 0) || X[p][i] == 0 || X[q][j] == 0) continue;
            if (X[p][i] > X[q][j]) {
              const double t = X[q][j];
              X[p][j] = checked(X[p][j] + t);
              X[q][i] = checked(X[q][i] + t);
              X[p][i] = checked(X[p][i] - t);
              X[q][j] = 0;
            } else if (X[p][i] < X[q][j]) {
              const double t = X[p][i];
              X[p][j] = checked(X[p][j] + t);
              X[q][i] = checked(X[q][i] + t);
              X[q][j] = checked(X[q][j] - t);
              X[p][i] = 0;
            }
          }
      }
    if (X != Y) {
      cambio = true;
      Y = X;
    }
  }

  for (int i = 0; i < N; ++i)
    for (int j = 0; j < M; ++j)
      if (X[i][j] > 0) r.Coste = checked(r.Coste + checked(X[i][j] * C[i][j]));
  return r;
}

namespace {

// Everything after the blank lines: the same on screen and on paper.
void body(Report& out, const TransportesFields& f, const TransportesResults& r) {
  out.heading(f.Título);
  out.line(Z, "Número de orígenes:", Z, Z, selectorText(f.NumOrigen, kTransportesMax));
  out.line(Z, "Número de destinos:", Z, Z, selectorText(f.NumDestino, kTransportesMax));
  out.line(Z, "Existencias:", Z, Z, Z, Str(r.S));
  out.line(Z, "Demandas:", Z, Z, Z, Str(r.D));
  out.rule();
  out.line(Z, " ");
  out.line(Z, "CANTIDADES TRANSPORTADAS");
  out.line(Z, " ");
  for (int a = 0; a < r.m; ++a)
    for (int b = 0; b < r.n; ++b)
      if (r.X[a][b] != 0)
        out.line(Z, "Origen" + printed(double(a + 1)) + "-Destino" + printed(double(b + 1)), Z, Z,
                 Str(r.X[a][b]));
  if (r.origenFicticio) {
    out.line(Z, " ");
    out.line(Z, "DEMANDAS INSATISFECHAS");
    out.line(Z, " ");
    for (int b = 0; b < r.n; ++b)
      if (r.X[r.m][b] != 0) out.line(Z, "Destino" + printed(double(b + 1)), Z, Z, Str(r.X[r.m][b]));
  }
  if (r.destinoFicticio) {
    out.line(Z, " ");
    out.line(Z, "EXISTENCIAS");
    out.line(Z, " ");
    for (int a = 0; a < r.m; ++a)
      if (r.X[a][r.n] != 0) out.line(Z, "Origen" + printed(double(a + 1)), Z, Z, Str(r.X[a][r.n]));
  }
  out.line(Z, " ");
  out.line(Z, "Coste Total", Z, Z, Str(r.Coste), " unidades monetarias");
}

}  // namespace

Report report(const TransportesFields& f, const TransportesResults& r) {
  Report out;
  out.blankLines(3);
  body(out, f, r);
  return out;
}

Report printout(const TransportesFields& f, const TransportesResults& r) {
  Report out = pageHead("PROBLEMA DEL TRANSPORTE");
  body(out, f, r);
  return out;
}

RunOutcome resolver(const TransportesFields& f, long stepBudget) {
  Messages messages = check(f);
  if (!messages.empty()) return {RunStatus::CheckFailed, messages, {}};
  const TransportesResults r = solve(f, stepBudget);
  if (r.degenerada) return {RunStatus::CheckFailed, {{kTransportesDegenerada, ""}}, {}};
  return {RunStatus::Solved, {}, {report(f, r), printout(f, r)}};
}

void exchange(ProblemFile& file, TransportesFields& f) {
  file.text(f.Título);
  file.listIndex(f.NumOrigen, kTransportesMax);
  file.listIndex(f.NumDestino, kTransportesMax);
  for (int i = 0; i < kArrays; ++i)
    for (auto& column : f.C) {
      file.text(column[i].text);
      file.flag(column[i].visible);
    }
  for (int k = 0; k < kArrays; ++k) {
    file.text(f.LblOrigen[k].caption);
    file.flag(f.LblOrigen[k].visible);
    file.text(f.LblDestino[k].caption);
    file.flag(f.LblDestino[k].visible);
  }
}

// A degenerate first solution sends the screen back to the entry with its
// message, after the checks: a file run goes through resolver().
CatalogueEntry catalogueTransportes() {
  CatalogueEntry entry = catalogued("transporte", transportesForm());
  entry.run = [](const std::string& path) -> RunOutcome {
    TransportesFields fields;
    if (!openProblem(path, [&](ProblemFile& f) { exchange(f, fields); }))
      return {RunStatus::Unreadable, {}, {}};
    return resolver(fields, fileRunStepBudget());
  };
  return entry;
}

}  // namespace vorel::linear_programming
