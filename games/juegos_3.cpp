#include "games/juegos_3.h"

#include "frame/catalogue.h"
#include "games/juegos_jugadores_form.h"

namespace vorel::games {

namespace {

double x(const Pagos<3>& celda) { return Val(celda[1]); }  // J2's payoff

// A player's expected payoff on his Decisión 1 when the other two play theirs
// with probability p: the cell where both others play Decisión 1 weighs p x p,
// where both play Decisión 2 (1 - p) x (1 - p), and the two mixed cells
// p x (1 - p) and (1 - p) x p.
float esperado(const Celdas<3>& celdas, std::size_t jugador, float p, float q) {
  std::array<std::size_t, 2> otros{};
  for (std::size_t j = 0, n = 0; j < 3; ++j)
    if (j != jugador) otros[n++] = j;
  auto pago = [&](bool primeroCambia, bool segundoCambia) {
    std::size_t celda = 0;
    if (primeroCambia) celda = cambio(celda, otros[0]);
    if (segundoCambia) celda = cambio(celda, otros[1]);
    return Val((*celdas[celda])[jugador]);
  };
  const double pp = double(p) * p, pq = double(p) * q, qp = double(q) * p, qq = double(q) * q;
  return redondeoCero(Sng(checked(pp * pago(false, false) + pq * pago(false, true) +
                                  qp * pago(true, false) + qq * pago(true, true))));
}

}  // namespace

Cuadratica cuadratica(const Juegos3Fields& f) {
  Cuadratica k;
  // The two terms in E4 of a cancel; both stay in the order they are taken.
  k.a = checked(x(f.E1) - x(f.E3) - x(f.E11) + x(f.E31) - x(f.E2) + x(f.E4) + x(f.E21) - x(f.E4));
  k.b = checked(x(f.E3) + x(f.E11) - x(f.E31) - x(f.E31) - x(f.E4) - x(f.E21) + x(f.E4) + x(f.E4));
  k.c = checked(x(f.E4) - x(f.E31));
  return k;
}

Messages estPuras(const Juegos3Fields& f, Juegos3Estado& e) { return estPuras<3>(f.celdas(), e); }

Messages estMixtas(const Juegos3Fields& f, Juegos3Estado& e) {
  if (Messages m = comprobar<3>(f.celdas(), e); !m.empty()) return m;
  e.EquilibriosMixtas = {true, {}};
  e.HayMixto = false;
  const Cuadratica k = cuadratica(f);
  const float discriminante = Sng(checked(k.b * k.b - 4 * k.a * k.c));
  if (discriminante >= 0) {
    const double raiz = Sqr(discriminante);
    const float primera = Sng(divide(-k.b - raiz, 2 * k.a));
    const float segunda = Sng(divide(-k.b + raiz, 2 * k.a));
    for (float p : {primera, segunda}) {
      if (p <= 0 || p >= 1) continue;
      e.HayMixto = true;
      e.Prob = p;
      break;
    }
  }
  Report& panel = e.EquilibriosMixtas.lineas;
  if (!e.HayMixto) {
    panel.line("No existen equilibrios en estrategias mixtas");
    return {};
  }
  e.ProbC = Sng(1 - double(e.Prob));
  for (std::size_t j = 0; j < 3; ++j) e.Pago[j] = esperado(f.celdas(), j, e.Prob, e.ProbC);
  panel.line("J1, J2 y J3 juegan:");
  panel.line("Decisión1 con p = " + Str(e.Prob));
  panel.line("Decisión2 con p = " + Str(e.ProbC));
  panel.line(" ");
  panel.line("Equilibrio:" + tupla(std::vector<float>(e.Pago.begin(), e.Pago.end())));
  return {};
}

void nuevo(Juegos3Fields& f, Juegos3Estado& e) { nuevo<3>(f.Titulo1, f.celdas(), e); }

namespace {
Report informe3(const Juegos3Fields& f, const Juegos3Estado& e, bool pagina) {
  std::vector<float> mixto;
  if (e.HayMixto) mixto.assign(e.Pago.begin(), e.Pago.end());
  return informe<3>(f.Titulo1, f.celdas(), e, mixto, pagina);
}
}  // namespace

Report report(const Juegos3Fields& f, const Juegos3Estado& e) { return informe3(f, e, false); }
Report printout(const Juegos3Fields& f, const Juegos3Estado& e) { return informe3(f, e, true); }

void exchange(ProblemFile& file, Juegos3Fields& f) {
  file.text(f.Titulo1);
  for (Pagos<3>* pagos : f.celdas())
    for (std::string& pago : *pagos) file.text(pago);
}

Messages check(const Juegos3Fields& f) {
  Juegos3Estado e;
  return estPuras(f, e);
}

Pages solveAndReport(Juegos3Fields& f) {
  Juegos3Estado e;
  estPuras(f, e);
  estMixtas(f, e);
  return {report(f, e), printout(f, e)};
}

CatalogueEntry catalogueJuegos3() {
  CatalogueEntry entry = catalogued<Juegos3Fields>("juegos3", "Juegos_3", "EstPuras, EstMixtas",
                                                     exchange, check, solveAndReport);
  entry.form = liveForm(juegos3Form());
  return entry;
}

}  // namespace vorel::games
