#include "decision/incertidumbre.h"

#include "frame/arith.h"
#include "decision/decision_forms.h"
#include "frame/catalogue.h"

namespace vorel::decision {

namespace {

// Shows rows 0 to na-1 and columns 1 to ne with their heads; hides the rest.
void aplicarForma(IncertidumbreFields& f, int na, int ne) {
  for (std::size_t k = 0; k < 7; ++k) {
    f.LblEstados[k] = static_cast<int>(k) < ne;
    f.LblAlternativas[k] = static_cast<int>(k) < na;
  }
  mostrarCeldas(f.C, na, ne);
}

using PorAlternativa = std::array<double, kMaxAlternativas>;
using Marcas = std::array<int, kMaxAlternativas>;

// The scan of Wald, maximax and Savage: alternative 0 starts as the best and
// flagged; a better one clears the flags before it and becomes the best, an
// equal one is flagged as well. So every tied alternative is selected.
void explorar(const PorAlternativa& valor, int na, bool menorGana, Marcas& sel) {
  int mejor = 0;
  item(sel, 0) = 1;
  for (int a = 1; a < na; ++a) {
    const double v = item(valor, a), m = item(valor, mejor);
    if (menorGana ? v < m : v > m) {
      for (int k = 0; k < a; ++k) item(sel, k) = 0;
      item(sel, a) = 1;
      mejor = a;
    } else if (v == m) {
      item(sel, a) = 1;
    }
  }
}

// Laplace and Hurwicz: the greatest value, and every alternative exactly equal to it.
void iguales(const PorAlternativa& valor, int na, Marcas& sel) {
  double maximo = item(valor, 0);
  for (int a = 1; a < na; ++a)
    if (item(valor, a) > maximo) maximo = item(valor, a);
  for (int a = 0; a < na; ++a) item(sel, a) = item(valor, a) == maximo ? 1 : 0;
}

void titulo(Report& out, const IncertidumbreFields& f, const std::string& linea) {
  out.line(Z, "Solución al problema: " + f.Título);
  out.line(Z, linea);
  out.line(Z, " ");
}

void cuentas(Report& out, const IncertidumbreResults& r, const std::string& linea) {
  out.line(Z, "Numero de alternativas:", Z, Z, r.NumAlt);
  out.line(Z, "Numero de estados de la naturaleza:", Z, r.NumEst);
  out.line(Z, linea);
  out.line(Z, " ");
}

void valores(Report& out, const IncertidumbreResults& r, const PorAlternativa& valor) {
  for (int a = 0; a < r.na; ++a)
    out.line(Z, "Alternativa", numero(a), ":", Z, Z, Str(item(valor, a)));
}

void seleccionadas(Report& out, const IncertidumbreResults& r, const Marcas& sel) {
  for (int a = 0; a < r.na; ++a)
    if (item(sel, a) == 1) out.line(Z, "Alternativa", numero(a));
}

void lineasWald(Report& out, const IncertidumbreResults& r) {
  out.line(Z, "CRITERIO DE WALD, MAXIMÍN O PESIMISTA");
  out.line(Z, "");
  out.line(Z, "RESULTADO MÁS DESFAVORABLE PARA CADA ALTERNATIVA");
  out.line(Z, "");
  valores(out, r, r.Peor);
  out.line(Z, "");
  out.line(Z, " ALTERNATIVAS SELECCIONADAS");
  out.line(Z, "");
  seleccionadas(out, r, r.SelWald);
}

void lineasMaximax(Report& out, const IncertidumbreResults& r) {
  out.line(Z, " CRITERIO MAXIMAX U OPTIMISTA");
  out.line(Z, "");
  out.line(Z, "RESULTADO MÁS FAVORABLE PARA CADA ALTERNATIVA");
  out.line(Z, "");
  valores(out, r, r.Mejor);
  out.line(Z, "");
  out.line(Z, " ALTERNATIVAS SELECCIONADAS");
  out.line(Z, "");
  seleccionadas(out, r, r.SelMaximax);
}

void lineasSavageLaplace(Report& out, const IncertidumbreResults& r, const std::string& linea) {
  out.line(Z, "CRITERIO DE SAVAGE");
  out.line(Z, "");
  out.line(Z, "ALTERNATIVAS SELECCIONADAS");
  out.line(Z, "");
  seleccionadas(out, r, r.SelSavage);
  out.line(Z, "");
  out.line(Z, linea);
  out.line(Z, "");
  out.line(Z, "CRITERIO DE LAPLACE");
  out.line(Z, "");
  out.line(Z, "Probabilidad de Laplace", Z, Z, Str(r.ProbLaplace));
  out.line(Z, "");
  out.line(Z, " VALORES MEDIOS DE LAS ALTERNATIVAS");
  out.line(Z, "");
  valores(out, r, r.ValorMedio);
  out.line(Z, "");
  out.line(Z, "ALTERNATIVAS SELECCIONADAS");
  out.line(Z, "");
  seleccionadas(out, r, r.SelLaplace);
}

void lineasHurwicz(Report& out, const IncertidumbreResults& r, const std::string& alfa) {
  out.line(Z, "CRITERIO DE HURWICZ");
  out.line(Z, "");
  out.line(Z, "ALFA:", Z, Z, alfa);
  out.line(Z, "");
  out.line(Z, "COEFICIENTE DE OPTIMISMO DE LAS ALTERNATIVAS");
  out.line(Z, "");
  for (int a = 0; a < r.na; ++a)
    out.line(Z, "Alternativa:", numero(a), ":", Z, Str(item(r.ValorHurwicz, a)));
  out.line(Z, "");
  out.line(Z, "ALTERNATIVAS SELECCIONADAS");
  out.line(Z, "");
  seleccionadas(out, r, r.SelHurwicz);
}

}  // namespace

IncertidumbreFields::IncertidumbreFields() { aplicarForma(*this, 4, 4); }

Messages rediseñar(IncertidumbreFields& f) {
  return rediseñarPagos(f, kMaxAlternativas, kMaxEstados, aplicarForma);
}

void nuevo(IncertidumbreFields& f) {
  for (auto& column : f.C)
    for (auto& cell : column) cell.text.clear();
  f.Alfa.clear();
  f.NumAlternativas = 3;
  f.NumEstados = 3;
  aplicarForma(f, 4, 4);
}

Messages check(const IncertidumbreFields& f) {
  Messages tabla = primerFallo(f.C, [](int j, int, const Cell& cell) -> Messages {
    if (!IsNumeric(cell.text)) {
      if (j == 1) return {{"Debe completar la tabla de resultados ", ""}};
      return {{"Debe completar la tabla de resultados", ""}};
    }
    const double value = Val(cell.text);
    if (value < -999999999 || value > 999999999) {
      if (j == 1)
        return {
            {"El valor de los resulatdos no es correcto, debe introducir un valor "
             "comprendido entre -999999999 y 999999999",
             ""}};
      return {
          {"El valor de los resultados no es correcto, debe introducir un valor "
           "comprendido entre -999999999 y 999999999",
           ""}};
    }
    return {};
  });
  if (!tabla.empty()) return tabla;
  if (IsNumeric(f.Alfa)) {
    const double alfa = Val(f.Alfa);
    if (alfa < 0 || alfa > 1)
      return {
          {"El valor del coeficiente de optimismo no es correcto, debe introducir un valor "
           "comprendido entre 0 y 1",
           ""}};
  }
  return {};
}

IncertidumbreResults solve(const IncertidumbreFields& f) {
  IncertidumbreResults r;
  r.NumAlt = selectorText(f.NumAlternativas, kMaxAlternativas);
  r.NumEst = selectorText(f.NumEstados, kMaxEstados);
  r.na = static_cast<int>(CDbl(r.NumAlt));
  r.ne = static_cast<int>(CDbl(r.NumEst));
  const int na = r.na, ne = r.ne;
  // Resultado(s, a): the text of the cell of state s for alternative a, read with Val.
  auto Resultado = [&](int s, int a) { return Val(item(item(f.C, s), a).text); };

  for (int a = 0; a < na; ++a) {
    double& peor = item(r.Peor, a);
    double& mejor = item(r.Mejor, a);
    peor = mejor = Resultado(0, a);
    for (int s = 1; s < ne; ++s) {
      const double v = Resultado(s, a);
      if (v < peor) peor = v;
      if (v > mejor) mejor = v;
    }
  }
  explorar(r.Peor, na, false, r.SelWald);
  explorar(r.Mejor, na, false, r.SelMaximax);

  for (int s = 0; s < ne; ++s) {
    double& mejor = item(r.MejorEstado, s);
    mejor = Resultado(s, 0);
    for (int a = 1; a < na; ++a)
      if (Resultado(s, a) > mejor) mejor = Resultado(s, a);
    for (int a = 0; a < na; ++a)
      item(item(r.Arrepentimiento, s), a) = checked(mejor - Resultado(s, a));
  }
  for (int a = 0; a < na; ++a) {
    double& maximo = item(r.MaxArrepentimiento, a);
    maximo = item(item(r.Arrepentimiento, 0), a);
    for (int s = 1; s < ne; ++s)
      if (item(item(r.Arrepentimiento, s), a) > maximo)
        maximo = item(item(r.Arrepentimiento, s), a);
  }
  explorar(r.MaxArrepentimiento, na, true, r.SelSavage);

  r.ProbLaplace = divide(1, ne);
  for (int a = 0; a < na; ++a) {
    double suma = 0;
    for (int s = 0; s < ne; ++s) suma = checked(suma + checked(r.ProbLaplace * Resultado(s, a)));
    item(r.ValorMedio, a) = suma;
  }
  iguales(r.ValorMedio, na, r.SelLaplace);

  if (IsNumeric(f.Alfa)) {
    r.hurwicz = true;
    r.alfa = f.Alfa;
    const double alfa = Val(f.Alfa);
    for (int a = 0; a < na; ++a)
      item(r.ValorHurwicz, a) =
          checked(checked(alfa * item(r.Peor, a)) + checked((1 - alfa) * item(r.Mejor, a)));
    iguales(r.ValorHurwicz, na, r.SelHurwicz);
  }
  return r;
}

Botones botonesVisibles(const Navegacion& estado) {
  Botones b;
  switch (estado.pagina) {
    case Pagina::Wald:
      b.forward1 = b.volver = true;
      break;
    case Pagina::Maximax:
      b.Back1 = b.forward2 = true;
      break;
    case Pagina::SavageLaplace:
      if (estado.alfaNumerico) {
        b.Continuar1 = b.Continuar2 = true;
      } else {
        b.NoContinuar = true;
      }
      break;
    case Pagina::Hurwicz:
      b.NoContinuar2 = true;
      break;
  }
  return b;
}

bool visible(const Botones& b, Boton boton) {
  switch (boton) {
    case Boton::forward1:
      return b.forward1;
    case Boton::Back1:
      return b.Back1;
    case Boton::forward2:
      return b.forward2;
    case Boton::Continuar1:
      return b.Continuar1;
    case Boton::Continuar2:
      return b.Continuar2;
    case Boton::NoContinuar:
      return b.NoContinuar;
    case Boton::NoContinuar2:
      return b.NoContinuar2;
  }
  return false;
}

Navegacion pulsar(const Navegacion& estado, Boton boton, const IncertidumbreFields& f) {
  if (!visible(botonesVisibles(estado), boton)) return estado;
  switch (boton) {
    case Boton::Back1:
      return {Pagina::Wald, false};
    case Boton::forward1:
    case Boton::Continuar2:
    case Boton::NoContinuar:
      return {Pagina::Maximax, false};
    case Boton::forward2:
    case Boton::NoContinuar2:
      return {Pagina::SavageLaplace, IsNumeric(f.Alfa)};
    case Boton::Continuar1:
      return {Pagina::Hurwicz, false};
  }
  return estado;
}

Report pagina(const IncertidumbreFields& f, const IncertidumbreResults& r, Pagina p) {
  const std::string linea = regla(74);
  Report out;
  out.blankLines(4);
  titulo(out, f, linea);
  switch (p) {
    case Pagina::Wald:
      cuentas(out, r, linea);
      lineasWald(out, r);
      break;
    case Pagina::Maximax:
      cuentas(out, r, linea);
      lineasMaximax(out, r);
      break;
    case Pagina::SavageLaplace:
      lineasSavageLaplace(out, r, linea);
      break;
    case Pagina::Hurwicz:
      cuentas(out, r, linea);
      lineasHurwicz(out, r, f.Alfa);
      break;
  }
  return out;
}

Report report(const IncertidumbreFields& f, const IncertidumbreResults& r) {
  return pagina(f, r, Pagina::Wald);
}

Report printout(const IncertidumbreFields& f, const IncertidumbreResults& r) {
  const std::string linea = regla(64);
  Report out;
  for (int k = 0; k < 5; ++k) out.line(Z, "");
  out.line(Z, Z, "TOMA DE DECISIONES EN AMBIENTE DE INCERTIDUMBRE");
  out.blankLines(4);
  titulo(out, f, linea);
  cuentas(out, r, linea);
  lineasWald(out, r);
  out.line(Z, " ");
  out.line(Z, linea);
  out.line(Z, " ");
  lineasMaximax(out, r);
  out.blankLines(5);
  lineasSavageLaplace(out, r, linea);
  out.line(Z, "");
  out.line(Z, linea);
  out.line(Z, "");
  lineasHurwicz(out, r, r.alfa);
  return out;
}

Pages solveAndReport(IncertidumbreFields& f) {
  return solvedPages(f);
}

void exchange(ProblemFile& file, IncertidumbreFields& f) {
  file.text(f.Título);
  file.listIndex(f.NumEstados, kMaxEstados);
  file.listIndex(f.NumAlternativas, kMaxAlternativas);
  file.text(f.Alfa);
  exchangeFilas(file, f.LblEstados, f.C, f.LblAlternativas);
}

// The screen report is the Wald page, the one painted at activation; the
// printed page has every criterion.
CatalogueEntry catalogueIncertidumbre() {
  return catalogued("incertidumbre", incertidumbreForm());
}

}  // namespace vorel::decision
