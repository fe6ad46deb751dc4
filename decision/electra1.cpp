#include "decision/electra1.h"

#include "decision/decision_forms.h"
#include "frame/catalogue.h"
#include "frame/checks.h"

namespace vorel::decision {

namespace {

// Lines 2 to 17 of the report, with the rule of the screen or of the page.
void cuerpo(Report& out, const Electra1Fields& f, const Electra1Results& r,
            const std::string& regla) {
  out.line(Z, "Solución al problema: " + f.Título);
  out.line(Z, regla);
  out.line(Z, " ");
  out.line(Z, "Numero de alternativas:", Z, Z, r.NumAlt);
  out.line(Z, "Numero de criterios:", Z, Z, r.NumCrit);
  out.line(Z, " ");
  out.line(Z, "Escala de Valoración", Z, Z, f.escalaValoracion);
  out.line(Z, "Límite de concordancia", Z, Z, f.IndiceConcordancia);
  out.line(Z, "Límite de discordancia", Z, Z, f.IndiceDiscordancia);
  out.line(Z, regla);
  out.line(Z, " ");
  out.line(Z, "SOBRECLASIFICACIÓN");
  out.line(Z, "");
  if (r.NumSobreclasificadas == 0) out.line(Z, "No existen alternativas sobreclasificadas");
  for (int a = 0; a < r.na; ++a)
    for (int b = 0; b < r.na; ++b) {
      if (a == b || item(item(r.Sobreclasificacion, a), b) != 1) continue;
      out.line(Z, "La alternativa", numero(a), "domina a la alternativa", numero(b));
    }
  out.line(Z, "");
  out.line(Z, " NÚCLEO");
  out.line(Z, "");
  if (r.NumNucleo == 0) out.line(Z, "No existen alternativas no dominadas");
  for (int a = 0; a < r.na; ++a)
    if (item(r.Nucleo, a) == 1) out.line(Z, "Alternativa", numero(a));
}

}  // namespace

void nuevo(Electra1Fields& f) {
  vaciarTabla(f);
  f.IndiceConcordancia.clear();
  f.IndiceDiscordancia.clear();
}

Messages check(const Electra1Fields& f) {
  if (Messages m = checkEscala(f); !m.empty()) return m;
  if (!IsNumeric(f.IndiceConcordancia))
    return {{"Debe introducir el valor del índice de concordancia", "IndiceConcordancia"}};
  const double concordancia = Val(f.IndiceConcordancia);
  if (concordancia < 0 || concordancia > 1)
    return {
        {"el valor del índice de concordancia no es correcto, debe introducir un valor "
         "comprendido entre 0 y 1",
         ""}};
  if (!IsNumeric(f.IndiceDiscordancia))
    return {{"Debe introducir el valor del índice de discordancia", "IndiceDiscordancia"}};
  const double discordancia = Val(f.IndiceDiscordancia);
  if (discordancia < 0 || discordancia > 1)
    return {
        {"el valor del índice dediscordancia no es correcto, debe introducir un valor "
         "comprendido entre 0 y 1",
         "IndiceDiscordancia"}};

  return checkTabla(f);
}

Electra1Results solve(const Electra1Fields& f) {
  Electra1Results r;
  r.LimiteConcordancia = Val(f.IndiceConcordancia);
  r.LimiteDiscordancia = Val(f.IndiceDiscordancia);
  valorar(f, r);
  for (int a = 0; a < r.na; ++a)
    for (int b = 0; b < r.na; ++b)
      item(item(r.Sobreclasificacion, a), b) =
          item(item(r.Concordancia, a), b) >= r.LimiteConcordancia &&
                  item(item(r.Discordancia, a), b) <= r.LimiteDiscordancia
              ? 1
              : 0;

  for (int a = 0; a < r.na; ++a) {
    int& nucleo = item(r.Nucleo, a);
    nucleo = 1;
    for (int b = 0; b < r.na; ++b)
      if (b != a && item(item(r.Sobreclasificacion, b), a) == 1) nucleo = 0;
  }
  for (int a = 0; a < r.na; ++a) {
    for (int b = 0; b < r.na; ++b)
      if (a != b && item(item(r.Sobreclasificacion, a), b) == 1) ++r.NumSobreclasificadas;
    if (item(r.Nucleo, a) == 1) ++r.NumNucleo;
  }
  return r;
}

Report report(const Electra1Fields& f, const Electra1Results& r) {
  Report out;
  out.blankLines(3);
  cuerpo(out, f, r, std::string(74, '_') + " ");
  return out;
}

Report printout(const Electra1Fields& f, const Electra1Results& r) {
  Report out;
  for (int k = 0; k < 5; ++k) out.line(Z, "");
  out.line(Z, Z, "ELECTRA 1");
  out.blankLines(3);
  cuerpo(out, f, r, std::string(66, '_') + " ");
  return out;
}

Pages solveAndReport(Electra1Fields& f) {
  return solvedPages(f);
}

void exchange(ProblemFile& file, Electra1Fields& f) {
  exchangeCabecera(file, f);
  file.text(f.IndiceConcordancia);
  file.text(f.IndiceDiscordancia);
  exchangeFilas(file, f);
}

CatalogueEntry catalogueElectra1() {
  return catalogued("electra1", electra1Form());
}

}  // namespace vorel::decision
