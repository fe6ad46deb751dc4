#include "games/juegos_n.h"

#include "frame/arith.h"
#include "frame/catalogue.h"
#include "frame/checks.h"
#include "games/juegos_n_form.h"

namespace vorel::games {

namespace {

const std::string kIncompleta = "Debe completar la tabla de resultados";
const std::string kFueraDeRango =
    "Los valores de los resultados no son correctos, deben estar comprendidos entre -9999999 y "
    "9999999";

// A combo's text taken as a number: an empty combo is a type mismatch.
int numeroCombo(int listIndex) { return static_cast<int>(CDbl(textoCombo(listIndex))); }

double& celda(Tabla& t, int a, int b) { return item(item(t, a), b); }

// The read loop of Resolver: element i from 0 to n2-1 of every array A1 to A8,
// visible cells only; a good cell goes to Tabla(k-1, i). Stops at the first bad cell.
Messages leer(const JuegosNFields& f, Tabla& tabla) {
  const int n1 = numeroCombo(f.NDecA), n2 = numeroCombo(f.NDecB);
  if (n1 < 1 || n2 < 1) raise(err::Subscript);  // the table has no shape
  tabla.assign(static_cast<std::size_t>(n1), std::vector<double>(static_cast<std::size_t>(n2), 0));
  for (int i = 0; i < n2; ++i) {
    for (int k = 1; k <= kMaxEstrategias; ++k) {
      const Cell& c = item(f.array(k), i);
      if (!c.visible) continue;
      const std::string focus = element("A" + std::to_string(k), i);
      if (!IsNumeric(c.text)) return {{kIncompleta, focus}};
      const double value = Val(c.text);
      if (value < -9999999 || value > 9999999) return {{kFueraDeRango, focus}};
      celda(tabla, k - 1, i) = value;
    }
  }
  return {};
}

void solucion(Report& out, const JuegosNResults& r, std::pair<int, int> punto) {
  out.line(Z, "J1 juega A", printed(double(punto.first + 1)), "y J2 juega B",
           printed(double(punto.second + 1)));
  out.line(Z, "obteniendo un resultado: ( " + r.maximin + " , " + Str(-Val(r.maximin)) + " )");
}

// The report from its second line on; the page differs in its rule and in the
// wording of three lines.
void cuerpo(Report& out, const JuegosNFields& f, const JuegosNResults& r, bool pagina) {
  const std::string regla = std::string(pagina ? 64 : 74, '_') + " ";
  out.line(Z, "Solución al problema: " + f.Título);
  out.line(Z, regla);
  out.line(Z, " ");
  out.line(Z, "Número de estrategias del J1:", Z, Z, textoCombo(f.NDecA));
  out.line(Z, pagina ? "número de estrategias del J1:" : "Número de estrategias del J2:", Z, Z,
           textoCombo(f.NDecB));
  out.line(Z, regla);
  out.line(Z, " ");
  const double soluciones = Val(r.soluciones);
  if (soluciones != 0) {
    out.line(Z, soluciones == 1 ? "SOLUCIÓN" : "SOLUCIÓN 1");
    out.line(Z, " ");
    solucion(out, r, r.Solucion[0]);
    if (soluciones >= 2) {
      out.line(Z, " ");
      out.line(Z, "SOLUCIÓN 2");
      out.line(Z, " ");
      solucion(out, r, r.Solucion[1]);
    }
    if (soluciones == 3) {  // the third saddle point is kept but the second is shown again
      out.line(Z, " ");
      out.line(Z, "SOLUCIÓN 3");
      out.line(Z, " ");
      solucion(out, r, r.Solucion[1]);
    }
    return;
  }
  out.line(Z, "Maximin:", Z, Z, Str(Val(r.maximin)));
  out.line(Z, "Minimax:", Z, Z, Str(Val(r.minimax)));
  out.line(Z, " ");
  out.line(Z, pagina ? "No existen equilibrios en estrategias puras"
                     : "No existen equilibrios en estrategias puras.");
  out.line(Z, pagina ? "se debe comprobar si existen equilibrios en "
                     : "Se debe comprobar si existen equilibrios en ");
  out.line(Z, "estrategias mixtas mediante programación lineal ");
}

}  // namespace

JuegosNFields::JuegosNFields() { rediseñar(*this); }

JuegosNFields::Celdas& JuegosNFields::array(int k) {
  return const_cast<Celdas&>(static_cast<const JuegosNFields&>(*this).array(k));
}

const JuegosNFields::Celdas& JuegosNFields::array(int k) const {
  const std::array<const Celdas*, kMaxEstrategias> arrays = {&A1, &A2, &A3, &A4,
                                                             &A5, &A6, &A7, &A8};
  return *item(arrays, k - 1);
}

std::string textoCombo(int listIndex) { return selectorText(listIndex, kMaxEstrategias); }

void rediseñar(JuegosNFields& f) {
  const int n1 = numeroCombo(f.NDecA), n2 = numeroCombo(f.NDecB);
  for (int i = 0; i < kMaxEstrategias; ++i) {
    item(f.A, i) = i < n1;
    item(f.B, i) = i < n2;
    for (int k = 1; k <= kMaxEstrategias; ++k) item(f.array(k), i).visible = k <= n2 && i < n1;
  }
}

void nuevo(JuegosNFields&) {}

Messages check(const JuegosNFields& f) {
  Tabla tabla;
  return leer(f, tabla);
}

Tabla leerTabla(const JuegosNFields& f) {
  Tabla tabla;
  leer(f, tabla);
  return tabla;
}

Reduccion reducir(const Tabla& tabla) {
  Reduccion r{tabla, static_cast<int>(tabla.size()) - 1,
              tabla.empty() ? -1 : static_cast<int>(tabla[0].size()) - 1};
  Tabla& R = r.Reducida;
  int& uf = r.UltimaFila;
  int& uc = r.UltimaColumna;

  // A column whose next neighbour (cyclically) is strictly greater in as many
  // rows as the last column's index.
  int hallada = -1;
  for (int b = 0; b <= uc && hallada < 0; ++b) {
    Integer cuenta = 0;
    const int vecina = b == uc ? 0 : b + 1;
    for (int a = 0; a <= uf; ++a)
      if (celda(R, a, b) < celda(R, a, vecina)) ++cuenta;
    if (cuenta == uc) hallada = b;
  }
  if (hallada >= 0) {
    for (int c = hallada; c <= uc; ++c)
      for (int a = 0; a <= uf; ++a) {
        if (c == 0) {
          celda(R, a, 0) = celda(R, a, 1);
        } else {
          celda(R, a, c - 1) = celda(R, a, c);
        }
      }
    for (int a = 0; a <= uf; ++a) celda(R, a, uc) = 0;
    --uc;
  }

  // A row below which the next row is strictly greater in as many columns as
  // the last row's index; the last row meets row 0 in the last column only.
  hallada = -1;
  for (int a = 0; a <= uf && hallada < 0; ++a) {
    Integer cuenta = 0;
    for (int b = 0; b <= uc; ++b) {
      if (a < uf) {
        if (celda(R, a, b) < celda(R, a + 1, b)) ++cuenta;
      } else if (b == uc) {
        if (celda(R, a, b) < celda(R, 0, b)) ++cuenta;
      }
    }
    if (cuenta == uf) hallada = a;
  }
  if (hallada >= 0) {
    for (int c = hallada; c <= uf; ++c)
      for (int b = 0; b <= uc; ++b) {
        if (c == 0) {
          celda(R, 0, b) = celda(R, 1, b);
        } else {
          celda(R, c - 1, b) = celda(R, c, b);
        }
      }
    for (int b = 0; b <= uc; ++b) celda(R, uf, b) = 0;
    --uf;
  }
  return r;
}

JuegosNResults solve(const JuegosNFields& f) {
  Tabla tabla;
  leer(f, tabla);
  const int n1 = static_cast<int>(tabla.size()), n2 = static_cast<int>(tabla[0].size());
  Reduccion red = reducir(tabla);
  JuegosNResults r;
  r.MaxColumna.assign(static_cast<std::size_t>(n2), 0);
  r.MinFila.assign(static_cast<std::size_t>(n1), 0);
  for (int b = 0; b <= red.UltimaColumna; ++b) {
    double mayor = celda(red.Reducida, 0, b);
    for (int a = 1; a <= red.UltimaFila; ++a)
      if (celda(red.Reducida, a, b) > mayor) mayor = celda(red.Reducida, a, b);
    item(r.MaxColumna, b) = Sng(mayor);
  }
  for (int a = 0; a <= red.UltimaFila; ++a) {
    double menor = celda(red.Reducida, a, 0);
    for (int b = 1; b <= red.UltimaColumna; ++b)
      if (celda(red.Reducida, a, b) < menor) menor = celda(red.Reducida, a, b);
    item(r.MinFila, a) = Sng(menor);
  }

  // Both texts are read back at each step, so they keep Str's seven digits.
  r.minimax = Str(item(r.MaxColumna, 0));
  for (int b = 1; b <= red.UltimaColumna; ++b)
    if (double(item(r.MaxColumna, b)) < Val(r.minimax)) r.minimax = Str(item(r.MaxColumna, b));
  r.maximin = Str(item(r.MinFila, 0));
  for (int a = 1; a <= red.UltimaFila; ++a)
    if (double(item(r.MinFila, a)) > Val(r.maximin)) r.maximin = Str(item(r.MinFila, a));

  r.soluciones = "0";
  if (Val(r.minimax) != Val(r.maximin)) return r;
  // Saddle points over the table as typed: the cell against the text as a
  // double, its row's minimum and column's maximum in single precision.
  const double valor = Val(r.maximin);
  const float valorSencillo = Sng(valor);
  int halladas = 0;
  for (int a = 0; a < n1; ++a)
    for (int b = 0; b < n2; ++b) {
      if (celda(tabla, a, b) != valor || item(r.MinFila, a) != valorSencillo ||
          item(r.MaxColumna, b) != valorSencillo)
        continue;
      if (halladas == 3) continue;
      r.Solucion[static_cast<std::size_t>(halladas)] = {a, b};
      r.soluciones = std::to_string(++halladas);
    }
  return r;
}

Report report(const JuegosNFields& f, const JuegosNResults& r) {
  Report out;
  out.blankLines(4);
  cuerpo(out, f, r, false);
  return out;
}

Report printout(const JuegosNFields& f, const JuegosNResults& r) {
  Report out = pageHead("JUEGOS CON N JUGADORES", 4);
  cuerpo(out, f, r, true);
  return out;
}

Pages solveAndReport(JuegosNFields& f) {
  return solvedPages(f);
}

void exchange(ProblemFile& file, JuegosNFields& f) {
  file.text(f.Título);
  file.listIndex(f.NDecA, kMaxEstrategias);
  file.listIndex(f.NDecB, kMaxEstrategias);
  for (int i = 0; i < kMaxEstrategias; ++i) {
    file.flag(item(f.A, i));
    file.flag(item(f.B, i));
    for (int k = 1; k <= kMaxEstrategias; ++k) {
      Cell& c = item(f.array(k), i);
      file.flag(c.visible);
      file.text(c.text);
    }
  }
}

CatalogueEntry catalogueJuegosN() {
  return catalogued("juegosn", juegosNForm());
}

}  // namespace vorel::games
