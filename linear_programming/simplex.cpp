#include "linear_programming/simplex.h"

#include <algorithm>

#include "frame/arith.h"
#include "frame/catalogue.h"
#include "frame/checks.h"
#include "linear_programming/simplex_form.h"

namespace vorel::linear_programming {

namespace {

const std::array<std::string, kSimplexMax> nombreX = {"X1", "X2", "X3", "X4", "X5", "X6", "X7"};
const std::array<std::string, kSimplexMax> nombreH = {"h1", "h2", "h3", "h4", "h5", "h6", "h7"};
const std::array<std::string, kSimplexMax> nombreM = {"m1", "m2", "m3", "m4", "m5", "m6", "m7"};

// Big-M: the cost of an artificial variable.
constexpr double kMMinimise = 1E+14;
constexpr double kMMaximise = -99999999999999.0;
// Marks a row that cannot leave in the ratio test.
constexpr double kUnusable = 1E+14;

// What Form_Load hides of the table once every control is shown.
void formLoadShape(SimplexFields& f) {
  for (int i = 2; i < kSimplexMax; ++i) {
    f.restriccion[i].visible = false;
    f.LblFactores[i] = false;
    f.Lblrestriccion[i] = false;
  }
  for (int i = 3; i < kSimplexRows; ++i) {
    f.X[0][i].visible = false;
    f.X[1][i].visible = false;
    f.existencias[i].visible = false;
  }
  for (int j = 2; j < kSimplexMax; ++j)
    for (Cell& cell : f.X[j]) cell.visible = false;
}

const std::string& cell(const SimplexFields& f, int column, int row) {
  return item(item(f.X, column), row).text;
}

bool among(const std::string& name, const std::array<std::string, kSimplexMax>& names) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

}  // namespace

SimplexFields::SimplexFields() {
  for (auto& column : X)
    for (Cell& c : column) c.visible = true;
  for (Cell& c : existencias) c.visible = true;
  LblFactores.fill(true);
  Lblrestriccion.fill(true);
  formLoadShape(*this);
}

int selectorValue(int listIndex) {
  return listIndex >= 0 && listIndex < kSimplexMax ? listIndex + 1 : 0;
}

std::string relationText(int listIndex) {
  return listIndex >= 0 && listIndex < int(kRestriccionItems.size()) ? kRestriccionItems[listIndex]
                                                                     : "";
}

void rediseñarTabla(SimplexFields& f) {
  for (auto& column : f.X)
    for (Cell& c : column) c.visible = false;
  for (Cell& c : f.existencias) c.visible = false;
  for (int i = 0; i < kSimplexMax; ++i) {
    f.restriccion[i].visible = false;
    f.LblFactores[i] = false;
    f.Lblrestriccion[i] = false;
  }
  const int n = selectorValue(f.NumFactores), m = selectorValue(f.Numrestricciones);
  for (int i = 0; i <= m; ++i) {
    for (int j = 0; j < n; ++j) f.X[j][i].visible = true;
    if (i != 0) f.existencias[i].visible = true;
  }
  for (int i = 0; i < m; ++i) {
    f.restriccion[i].visible = true;
    f.Lblrestriccion[i] = true;
  }
  for (int j = 0; j < n; ++j) f.LblFactores[j] = true;
  // Focus goes to X1(0), which cannot take it when hidden.
  if (!f.X[0][0].visible) raise(err::InvalidCall);
}

void nuevo(SimplexFields& f) {
  for (auto& column : f.X)
    for (Cell& c : column) c = {"", true};
  for (Cell& c : f.existencias) c = {"", true};
  for (SimplexRelation& r : f.restriccion) r.ListIndex = 0;
  f.NumFactores = 1;
  f.Numrestricciones = 1;
  formLoadShape(f);
  f.funcionObjetivo = 0;
}

Messages check(const SimplexFields& f) {
  std::vector<CellCheck> cells;
  for (int j = 0; j < kSimplexMax; ++j) {
    const Cell& c = f.X[j][0];
    if (!c.visible) continue;
    const bool lowerCase = j == 4 || j == 6;  // X5 and X7
    cells.push_back({c.text, element(nombreX[j], 0),
                     lowerCase ? "debe completar la tabla" : "Debe completar la tabla",
                     "Debe introducir valores comprendidos entre -999999999 y 999999999"});
  }
  return everyBadCell(cells);
}

SimplexEnd solve(const SimplexFields& f, SimplexResults& s, long stepBudget) {
  const int n = selectorValue(f.NumFactores), m = selectorValue(f.Numrestricciones);
  // The arrays are dimensioned 0 to n-1 and 0 to m-1: an empty selector
  // leaves an upper bound of -1.
  if (n < 1 || m < 1) raise(err::Subscript);
  const bool maximise = f.funcionObjetivo == 0;
  const double M = maximise ? kMMaximise : kMMinimise;

  std::vector<double> c(n);
  for (int j = 0; j < n; ++j) c[j] = Val(cell(f, j, 0));
  std::vector<std::vector<double>> A(m, std::vector<double>(n));
  std::vector<double> b(m), S(m);  // S: the diagonal of the slack matrix
  int k = 0;
  for (int i = 0; i < m; ++i) {
    for (int j = 0; j < n; ++j) A[i][j] = Val(cell(f, j, i + 1));
    b[i] = Val(item(f.existencias, i + 1).text);
    switch (item(f.restriccion, i).ListIndex) {
      case 0:
        S[i] = 1;
        break;
      case 1:
        S[i] = -1;
        break;
      default:
        S[i] = 0;
        break;
    }
    if (S[i] != 0) ++k;
  }

  // The tableau always leaves room for seven artificial columns.
  const int columns = n + k + kSimplexMax;
  std::vector<std::vector<double>> T(m, std::vector<double>(columns, 0.0));
  s.n = n;
  s.m = m;
  s.cost.assign(columns, 0.0f);
  s.columna.assign(columns, "");
  for (int j = 0; j < n; ++j) {
    for (int i = 0; i < m; ++i) T[i][j] = A[i][j];
    s.columna[j] = nombreX[j];
    s.cost[j] = Sng(c[j]);
  }
  // Slack columns, one per inequality, named after their row.
  int next = n;
  for (int i = 0; i < m; ++i) {
    if (S[i] == 0) continue;
    T[i][next] = S[i];
    s.columna[next] = nombreH[i];
    s.cost[next] = 0;
    ++next;
  }
  // Starting basis: a slack column that is a unit column enters its row.
  std::vector<double> cB(m, 0.0);
  s.base.assign(m, "");
  std::vector<bool> marked(m, false);
  for (int j = n; j < n + k; ++j) {
    int nonzero = 0, one = -1;
    for (int i = 0; i < m; ++i) {
      if (T[i][j] != 0) ++nonzero;
      if (T[i][j] == 1) one = i;
    }
    if (nonzero == 1 && one >= 0 && !marked[one]) {
      s.base[one] = s.columna[j];
      cB[one] = s.cost[j];
      marked[one] = true;
    }
  }
  // Artificial columns for the rows left without a basic variable.
  const int a = int(std::count(marked.begin(), marked.end(), false));
  for (int j = n + k; j <= n + k + a; ++j) {
    const auto row = std::find(marked.begin(), marked.end(), false);
    if (row == marked.end()) continue;
    const int i = int(row - marked.begin());
    T[i][j] = 1;
    s.columna[j] = item(nombreM, j - n - k);
    s.base[i] = s.columna[j];
    s.cost[j] = Sng(M);
    cB[i] = M;
    marked[i] = true;
  }
  s.bB.assign(m, 0.0f);
  for (int i = 0; i < m; ++i) s.bB[i] = Sng(b[i]);
  int ultima = -1;
  for (int j = 0; j < columns; ++j)
    for (int i = 0; i < m; ++i)
      if (T[i][j] != 0) ultima = j;

  SimplexEnd end;
  bool seguir = true;
  std::vector<double> z(columns, 0.0), r(columns, 0.0), p(m, 0.0);
  int e = 0;
  long passes = 0;
  while (seguir) {
    if (stepBudget > 0 && ++passes > stepBudget) throw DoesNotEnd{};
    // An overflow anywhere in a sum leaves it infinite or NaN, so one check
    // at its end raises it as a check at every step would.
    for (int j = 0; j <= ultima; ++j) {
      double sum = 0;
      for (int i = 0; i < m; ++i) sum += T[i][j] * cB[i];
      z[j] = checked(sum);
      r[j] = checked(s.cost[j] - z[j]);
    }
    if (!end.alternativa) {
      // Entering column: the best reduced cost, the lowest column on a tie.
      seguir = false;
      for (int j = 0; j <= ultima; ++j) {
        const bool improves = maximise ? r[j] > 0 : r[j] < 0;
        if (!improves) continue;
        if (!seguir || (maximise ? r[j] > r[e] : r[j] < r[e])) e = j;
        seguir = true;
      }
    }
    int l = -1;
    if (seguir) {
      // Ratio test over the positive ratios only, the lowest row on a tie.
      double smallest = kUnusable;
      for (int i = 0; i < m; ++i) {
        const double q = T[i][e] == 0 ? kUnusable : divide(s.bB[i], T[i][e]);
        if (q > 0 && q < smallest) {
          smallest = q;
          l = i;
        }
      }
      if (l < 0) {
        seguir = false;
        end.ilimitado = true;
      }
    }
    if (seguir) {
      cB[l] = s.cost[e];
      s.base[l] = s.columna[e];
      for (int i = 0; i < m; ++i) p[i] = T[i][e];
      for (int j = 0; j <= ultima; ++j) T[l][j] = divide(T[l][j], p[l]);
      s.bB[l] = Sng(divide(s.bB[l], p[l]));
      for (int i = 0; i < m; ++i) {
        if (i == l) continue;
        for (int j = 0; j <= ultima; ++j) T[i][j] = checked(T[i][j] - p[i] * T[l][j]);
        s.bB[i] = Sng(checked(s.bB[i] - checked(double(s.bB[l]) * p[i])));
      }
    }
    if (std::any_of(s.bB.begin(), s.bB.end(), [](float v) { return v < 0; })) seguir = false;
    if (end.alternativa) seguir = false;
    if (!seguir && !end.infactible && !end.ilimitado && !end.alternativa) {
      // Optimal: a non-basic column of reduced cost exactly 0 (as computed at
      // the start of this pass) gives an alternative optimum.
      for (int j = 0; j < n + k; ++j) {
        if (std::find(s.base.begin(), s.base.end(), s.columna[j]) != s.base.end()) continue;
        if (r[j] != 0) continue;
        end.alternativa = true;
        seguir = true;
        e = j;
        s.base2 = s.base;
        s.bB2 = s.bB;
        break;
      }
    }
  }

  for (int j = n + k; j <= ultima; ++j)
    if (std::find(s.base.begin(), s.base.end(), s.columna[j]) != s.base.end())
      end.infactible = true;
  if (!end.infactible && !end.ilimitado) {
    s.Z = 0;
    for (int i = 0; i < m; ++i) s.Z = Sng(checked(s.Z + checked(double(s.bB[i]) * cB[i])));
  }
  s.volverAvailable = true;
  s.backAvailable = false;
  s.forwardAvailable = end.alternativa;
  return end;
}

namespace {

enum class Form { Activation, Browsing, Paper };

// The title, the objective, the constraints and the non-negativity line.
void statement(Report& out, const SimplexFields& f, const SimplexResults& s, Form form) {
  const int n = s.n, m = s.m;
  out.heading(f.Título);
  const std::string verb = f.funcionObjetivo == 0 ? "Maximizar" : "Minimizar";
  const std::string head = n == 1 ? verb + " Z=" : n == 7 ? verb + " Z = " : verb + " Z =";
  const std::string joiner = n == 4 ? "+" : " + ";
  out.cont(Z, head);
  for (int j = 0; j < n; ++j) {
    const std::string cost = Str(item(s.cost, j));
    if (n == 1)
      out.cont(cost, " X1");
    else if (j < n - 1)
      out.cont(cost, nombreX[j] + joiner);
    else
      out.cont(cost, nombreX[j]);
  }
  out.line();
  out.line(Z, Z, "sujeto a: ");
  for (int i = 0; i < m; ++i) {
    const std::string& rhs = item(f.existencias, i + 1).text;
    const std::string relation = relationText(item(f.restriccion, i).ListIndex);
    if (form == Form::Browsing) {
      out.cont(Z, Z, Z, rhs, relation);
      for (int j = 0; j < n; ++j) out.cont(cell(f, j, i + 1), nombreX[j], j < n - 1 ? "+" : "");
    } else {
      out.cont(Z, Z, Z);
      for (int j = 0; j < n; ++j) {
        if (j < n - 1)
          out.cont(cell(f, j, i + 1), " " + nombreX[j], " + ");
        else
          out.cont(cell(f, j, i + 1), " " + nombreX[j] + " ", relation, " ", rhs);
      }
    }
    out.line();
  }
  out.line(Z, Z, Z, "Xi >= 0");
  out.rule();
}

// The processes, the slacks and Z of one solution.
void solution(Report& out, const SimplexResults& s, const std::vector<std::string>& base,
              const std::vector<float>& bB, Form form) {
  const bool paper = form == Form::Paper;
  const std::size_t rows = std::min(base.size(), bB.size());
  const auto firstColumns = s.columna.begin() + std::min<std::size_t>(s.n, s.columna.size());
  Integer counter = 0;
  if (std::any_of(base.begin(), base.end(),
                  [](const std::string& b) { return among(b, nombreX); })) {
    out.line(Z, "Procesos");
    if (paper) out.line();
    for (std::size_t i = 0; i < rows; ++i) {
      if (std::find(s.columna.begin(), firstColumns, base[i]) == firstColumns) continue;
      if (paper)
        out.line(Z, base[i] + ": ", Z, Str(bB[i]));
      else
        out.line(Z, Z, base[i] + ": " + Str(bB[i]));
      ++counter;
    }
  }
  if (counter < s.m) {
    out.line();
    out.line(Z, "Holguras");
    if (paper) out.line();
    for (std::size_t i = 0; i < rows; ++i) {
      if (!among(base[i], nombreH)) continue;
      if (paper)
        out.line(Z, "Factor productivo" + printed(double(i + 1)), Z, Str(bB[i]));
      else
        out.line(Z, Z, base[i] + ": " + Str(bB[i]));
    }
  }
  out.line();
  if (paper) out.line();
  out.line(Z, "Z = " + Str(s.Z));
}

// The page of one of the two solutions, as the browsing commands paint it.
Report browsingPage(const SimplexFields& f, const SimplexResults& s, const char* heading,
                    const std::vector<std::string>& base, const std::vector<float>& bB) {
  Report out;
  out.blankLines(3);
  statement(out, f, s, Form::Browsing);
  if (s.m < kSimplexMax) {
    out.line(Z, heading);
    out.line();
  }
  solution(out, s, base, bB, Form::Browsing);
  return out;
}

}  // namespace

Report report(const SimplexFields& f, const SimplexResults& s, const SimplexEnd& end) {
  Report out;
  out.blankLines(3);
  statement(out, f, s, Form::Activation);
  if (!end.infactible && !end.ilimitado) {
    if (end.alternativa && s.m < kSimplexMax) {
      out.line(Z, "SOLUCIÓN 1");
      out.line();
    }
    solution(out, s, s.base, s.bB, Form::Activation);
  }
  if (end.ilimitado)
    out.line(Z, "EL PROBLEMA ES ILIMITADO");
  else if (end.infactible)
    out.line(Z, "EL PROBLEMA ES INFACTIBLE");
  return out;
}

Report forward(const SimplexFields& f, SimplexResults& s) {
  Report out = browsingPage(f, s, "SOLUCIÓN 2 ", s.base2, s.bB2);
  s.volverAvailable = false;
  s.forwardAvailable = false;
  s.backAvailable = true;
  return out;
}

Report back(const SimplexFields& f, SimplexResults& s) {
  Report out = browsingPage(f, s, "SOLUCIÓN 1 ", s.base, s.bB);
  s.forwardAvailable = true;
  s.volverAvailable = true;
  s.backAvailable = false;
  return out;
}

Report printout(const SimplexFields& f, const SimplexResults& s) {
  Report out = pageHead("SIMPLEX");
  statement(out, f, s, Form::Paper);
  solution(out, s, s.base, s.bB, Form::Paper);
  return out;
}

Pages solveAndReport(SimplexFields& f, long stepBudget) {
  SimplexResults s;
  const SimplexEnd end = solve(f, s, stepBudget);
  return {report(f, s, end), printout(f, s)};
}

void exchange(ProblemFile& file, SimplexFields& f) {
  file.text(f.Título);
  file.listIndex(f.funcionObjetivo, int(kFuncionObjetivoItems.size()));
  file.listIndex(f.Numrestricciones, kSimplexMax);
  file.listIndex(f.NumFactores, kSimplexMax);
  for (int i = 0; i < kSimplexMax; ++i) {
    file.flag(f.LblFactores[i]);
    file.flag(f.Lblrestriccion[i]);
  }
  for (int i = 0; i < kSimplexRows; ++i) {
    for (int j = 0; j < kSimplexMax; ++j) {
      file.text(f.X[j][i].text);
      file.flag(f.X[j][i].visible);
    }
  }
  for (SimplexRelation& r : f.restriccion) {
    file.listIndex(r.ListIndex, int(kRestriccionItems.size()));
    file.flag(r.visible);
  }
  for (int i = 1; i < kSimplexRows; ++i) {
    file.text(f.existencias[i].text);
    file.flag(f.existencias[i].visible);
  }
}

CatalogueEntry catalogueSimplex() {
  return catalogued("simplex", simplexForm());
}

}  // namespace vorel::linear_programming
