#include "games/juegos_2.h"

#include "frame/catalogue.h"
#include "games/juegos_jugadores_form.h"

namespace vorel::games {

bool Juegos2Estado::hayMixto() const {
  return ProbJ1 > 0 && ProbJ1 < 1 && ProbJ2 > 0 && ProbJ2 < 1;
}

Messages estPuras(const Juegos2Fields& f, Juegos2Estado& e) { return estPuras<2>(f.celdas(), e); }

Messages estMixtas(const Juegos2Fields& f, Juegos2Estado& e) {
  if (Messages m = comprobar<2>(f.celdas(), e); !m.empty()) return m;
  e.EquilibriosMixtas = {true, {}};
  // a: J1's payoffs, b: J2's; the first index is J1's decision, the second J2's.
  const double a11 = Val(f.E1[0]), a12 = Val(f.E2[0]), a21 = Val(f.E3[0]), a22 = Val(f.E4[0]);
  const double b11 = Val(f.E1[1]), b12 = Val(f.E2[1]), b21 = Val(f.E3[1]), b22 = Val(f.E4[1]);
  // J2 mixes so that J1's two decisions pay the same, and J1 likewise for J2.
  e.ProbJ2 = Sng(divide(checked(a22 - a12), checked(a11 - a12 - a21 + a22)));
  e.ProbJ2c = Sng(1 - double(e.ProbJ2));
  e.PagoD1J1 = Sng(checked(a11 * e.ProbJ2 + a12 * e.ProbJ2c));
  e.PagoD2J1 = Sng(checked(a21 * e.ProbJ2 + a22 * e.ProbJ2c));
  e.ProbJ1 = Sng(divide(checked(b22 - b21), checked(b11 - b21 - b12 + b22)));
  e.ProbJ1c = Sng(1 - double(e.ProbJ1));
  e.PagoD1J2 = Sng(checked(b11 * e.ProbJ1 + b21 * e.ProbJ1c));
  e.PagoD2J2 = Sng(checked(b12 * e.ProbJ1 + b22 * e.ProbJ1c));
  for (float* pago : {&e.PagoD1J1, &e.PagoD2J1, &e.PagoD1J2, &e.PagoD2J2})
    *pago = redondeoCero(*pago);

  Report& panel = e.EquilibriosMixtas.lineas;
  if (!e.hayMixto()) {
    for (const char* linea : {" ", "No existen equilibrios en", "estrategias mixtas",
                              "Los jugadores juegan sus", "estrategias dominadas"})
      panel.line(linea);
    return {};
  }
  panel.line("J1 juega:");
  panel.line("Decisión1 con p = " + Str(e.ProbJ1));
  panel.line("Decisión2 con p = " + Str(e.ProbJ1c));
  panel.line("J2 juega:");
  panel.line("Decisión1 con p = " + Str(e.ProbJ2));
  panel.line("Decisión2 con p = " + Str(e.ProbJ2c));
  panel.line(" ");
  // The pair takes J1's payoff on its first decision and J2's on its second:
  // at the equilibrium each player's two decisions pay the same.
  panel.line("Equilibrio:" + tupla(std::vector<float>{e.PagoD1J1, e.PagoD2J2}));
  return {};
}

void nuevo(Juegos2Fields& f, Juegos2Estado& e) { nuevo<2>(f.Titulo1, f.celdas(), e); }

namespace {
Report informe2(const Juegos2Fields& f, const Juegos2Estado& e, bool pagina) {
  std::vector<float> mixto;
  if (e.hayMixto()) mixto = {e.PagoD1J1, e.PagoD2J2};
  return informe<2>(f.Titulo1, f.celdas(), e, mixto, pagina);
}
}  // namespace

Report report(const Juegos2Fields& f, const Juegos2Estado& e) { return informe2(f, e, false); }
Report printout(const Juegos2Fields& f, const Juegos2Estado& e) { return informe2(f, e, true); }

void exchange(ProblemFile& file, Juegos2Fields& f) {
  file.text(f.Titulo1);
  for (Pagos<2>* pagos : f.celdas())
    for (std::string& pago : *pagos) file.text(pago);
}

Messages check(const Juegos2Fields& f) {
  Juegos2Estado e;
  return estPuras(f, e);
}

Pages solveAndReport(Juegos2Fields& f) {
  Juegos2Estado e;
  estPuras(f, e);
  estMixtas(f, e);
  return {report(f, e), printout(f, e)};
}

// The report repeats what the two commands computed: a file run presses them
// in this order (a message of EstPuras ends the run).
CatalogueEntry catalogueJuegos2() {
  CatalogueEntry entry = catalogued<Juegos2Fields>("juegos2", "Juegos_2", "EstPuras, EstMixtas",
                                                     exchange, check, solveAndReport);
  entry.form = liveForm(juegos2Form());
  return entry;
}

}  // namespace vorel::games
