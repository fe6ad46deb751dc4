#include "decision/electra2.h"

#include <functional>

#include "decision/decision_forms.h"
#include "frame/catalogue.h"
#include "frame/checks.h"

namespace vorel::decision {

namespace {

using Conjunto = std::array<bool, kMaxAlternativasElectra>;

// Every circuit of the strong outranking, of two alternatives up to all of
// them, made of different alternatives: a scan for each length, from each
// first alternative along every arc. The alternatives of a circuit found join
// one group, numbered by the lowest index in it.
void buscarCircuitos(Electra2Results& r) {
  const int na = r.na;
  for (int a = 0; a < na; ++a) item(r.Circuito, a) = a;
  std::array<int, kMaxAlternativasElectra> camino{};
  auto unir = [&](int largo) {
    int menor = item(r.Circuito, item(camino, 0));
    for (int k = 1; k < largo; ++k) menor = std::min(menor, item(r.Circuito, item(camino, k)));
    Conjunto grupos{};
    for (int k = 0; k < largo; ++k) item(grupos, item(r.Circuito, item(camino, k))) = true;
    for (int x = 0; x < na; ++x)
      if (item(grupos, item(r.Circuito, x))) item(r.Circuito, x) = menor;
  };
  // Extends the path of `hecho` alternatives to `largo`, closing it back to its first.
  std::function<void(int, int)> extender = [&](int hecho, int largo) {
    const int ultimo = item(camino, hecho - 1);
    if (hecho == largo) {
      if (item(item(r.Fuerte, ultimo), item(camino, 0)) == 1) unir(largo);
      return;
    }
    for (int b = 0; b < na; ++b) {
      bool usado = false;
      for (int k = 0; k < hecho; ++k) usado = usado || item(camino, k) == b;
      if (usado || item(item(r.Fuerte, ultimo), b) != 1) continue;
      item(camino, hecho) = b;
      extender(hecho + 1, largo);
    }
  };
  for (int largo = 2; largo <= na; ++largo)
    for (int a = 0; a < na; ++a) {
      item(camino, 0) = a;
      extender(1, largo);
    }
}

// Whether group g outranks group h in the relation (some member of g outranks
// some member of h); `inversa` reads the relation reversed.
bool supera(const Electra2Results& r, const PorPar<int>& relacion, int g, int h, bool inversa) {
  for (int a = 0; a < r.na; ++a)
    for (int b = 0; b < r.na; ++b)
      if (item(r.Circuito, a) == g && item(r.Circuito, b) == h &&
          (inversa ? item(item(relacion, b), a) : item(item(relacion, a), b)) == 1)
        return true;
  return false;
}

// The classification in places from 1 upward. At each step the groups left
// that no other group left outranks strongly are taken; of those, the ones
// that none of them outranks weakly receive the place and leave (all of them
// when a weak circuit leaves none). `inversa` reverses both relations, so the
// places then count from the worst. Gives the last place handed out.
Integer clasificar(const Electra2Results& r, Puestos& puesto, bool inversa) {
  const int na = r.na;
  for (int a = 0; a < na; ++a) item(puesto, a) = kSinPuesto;
  Conjunto quedan{};  // by group number
  for (int a = 0; a < na; ++a) item(quedan, item(r.Circuito, a)) = true;
  Integer lugar = 0;
  for (;;) {
    Conjunto libres{}, elegidos{};
    bool alguno = false;
    for (int g = 0; g < na; ++g) {
      if (!item(quedan, g)) continue;
      bool superado = false;
      for (int h = 0; h < na; ++h)
        if (h != g && item(quedan, h) && supera(r, r.Fuerte, h, g, inversa)) superado = true;
      item(libres, g) = !superado;
      alguno = alguno || !superado;
    }
    if (!alguno) break;  // nothing left
    bool elegido = false;
    for (int g = 0; g < na; ++g) {
      if (!item(libres, g)) continue;
      bool superado = false;
      for (int h = 0; h < na; ++h)
        if (h != g && item(libres, h) && supera(r, r.Debil, h, g, inversa)) superado = true;
      item(elegidos, g) = !superado;
      elegido = elegido || !superado;
    }
    if (!elegido) elegidos = libres;
    ++lugar;
    for (int a = 0; a < na; ++a)
      if (item(elegidos, item(r.Circuito, a))) item(puesto, a) = float(int(lugar));
    for (int g = 0; g < na; ++g)
      if (item(elegidos, g)) item(quedan, g) = false;
  }
  return lugar;
}

// Lines 2 to 11 of the report, with the rule of the screen or of the page.
void cuerpo(Report& out, const Electra2Fields& f, const Electra2Results& r,
            const std::string& linea) {
  out.line(Z, "Solución al problema: " + f.Título);
  out.line(Z, linea);
  out.line(Z, " ");
  out.line(Z, "Número de alternativas:", Z, Z, r.NumAlt);
  out.line(Z, "Número de criterios:", Z, Z, r.NumCrit);
  out.line(Z, " ");
  out.line(Z, "Escala de valoración: ", Z, Z, f.escalaValoracion);
  out.line(Z, "Indicadores de concordancia: ", Z, "C1: ", f.IndicadorConcordancia1,
           "C2: ", f.IndicadorConcordancia2, "C3: ", f.IndicadorConcordancia3);
  out.line(Z, "Indicadores de discordancia: ", Z, "D1: ", f.IndicadorDiscordancia1,
           "D2: ", f.IndicadorDiscordancia2);
  out.line(Z, linea);
  out.line(Z, " ");
  out.line(Z, Z, Z, "CLASIFICACIÓN", Z, "CLASIFICACIÓN", Z, "CLASIFICACIÓN");
  out.line(Z, Z, Z, "DIRECTA", Z, Z, "INVERSA");
  out.line(Z, " ");
  for (int a = 0; a < r.na; ++a) {
    out.line(Z, "Alternativa " + numero(a), Z, printed(item(r.Directa, a)), Z, Z,
             printed(item(r.Inversa, a)), Z, Z, printed(item(r.Final, a)));
    out.line(Z, "");
  }
}

}  // namespace

void nuevo(Electra2Fields& f) {
  vaciarTabla(f);
  for (std::string* s :
       {&f.IndicadorConcordancia1, &f.IndicadorConcordancia2, &f.IndicadorConcordancia3,
        &f.IndicadorDiscordancia1, &f.IndicadorDiscordancia2})
    s->clear();
}

Messages check(const Electra2Fields& f) {
  if (Messages m = checkEscala(f); !m.empty()) return m;
  const std::string concordancia =
      " del indicador de concordancia no es correcto, debe introducir un valor comprendido "
      "entre 0 y 1";
  if (!IsNumeric(f.IndicadorConcordancia1))
    return {{"Debe introducir el valor del índice de concordancia número uno",
             "IndicadorConcordancia1"}};
  const double c1 = Val(f.IndicadorConcordancia1);
  if (c1 < 0 || c1 > 1) return {{"el valor" + concordancia, "IndicadorConcordancia1"}};
  if (!IsNumeric(f.IndicadorConcordancia2))
    return {{"Debe introducir el valor del indicador de concordancia número dos",
             "IndicadorConcordancia2"}};
  const double c2 = Val(f.IndicadorConcordancia2);
  if (c2 < 0 || c2 > 1) return {{"El valor" + concordancia, "IndicadorConcordancia2"}};
  if (!IsNumeric(f.IndicadorConcordancia3))
    return {{"Debe introducir el valor del indicador de concordancia número tres",
             "IndicadorConcordancia3"}};
  const double c3 = Val(f.IndicadorConcordancia3);
  if (c1 < c2 || c2 < c3)
    return {
        {"Los indicadores de concordancia deben estar ordenados de mayor a menor nivel de "
         "exigencia",
         ""}};

  // Each discordance indicator lies between 0 and the scale.
  const double escala = Val(f.escalaValoracion);
  const std::string discordancia =
      "el valor del indicador de discordancia no es correcto, debe introducir un valor "
      "comprendido entre 0 y el alcance de la escala de" +
      Str(escala);
  if (!IsNumeric(f.IndicadorDiscordancia1))
    return {{"Debe introducir el valor del indicador de discordancia número uno",
             "IndicadorDiscordancia1"}};
  const double d1 = Val(f.IndicadorDiscordancia1);
  if (d1 < 0 || d1 > escala) return {{discordancia, "IndicadorDiscordancia1"}};
  if (!IsNumeric(f.IndicadorDiscordancia2))
    return {{"Debe introducir el valor del indicador de discordancia número dos",
             "IndicadorDiscordancia2"}};
  const double d2 = Val(f.IndicadorDiscordancia2);
  if (d2 < 0 || d2 > escala) return {{discordancia, "IndicadorDiscordancia2"}};
  if (d1 > d2)
    return {
        {"Los indicadores de discordancia deben estar ordenados de menor a mayor nivel de "
         "exigencia",
         ""}};
  return checkTabla(f);
}

Electra2Results solve(const Electra2Fields& f) {
  Electra2Results r;
  r.C1 = Val(f.IndicadorConcordancia1);
  r.C2 = Val(f.IndicadorConcordancia2);
  r.C3 = Val(f.IndicadorConcordancia3);
  r.D1 = Val(f.IndicadorDiscordancia1);
  r.D2 = Val(f.IndicadorDiscordancia2);
  valorar(f, r);

  // Strong: the first concordance indicator with the second discordance one,
  // or the second with the first. Weak: the third with the second. Either
  // needs a concordance at least that of the reverse pair, and the two
  // concordances of the pair summing, as read back from their text, to 1 at least.
  for (int a = 0; a < r.na; ++a)
    for (int b = 0; b < r.na; ++b) {
      if (a == b) continue;
      const double cab = item(item(r.Concordancia, a), b), cba = item(item(r.Concordancia, b), a);
      const double dab = item(item(r.Discordancia, a), b);
      const bool par = cab >= cba && Val(Str(checked(cab + cba))) >= 1;
      item(item(r.Fuerte, a), b) =
          par && ((cab >= r.C1 && dab <= r.D2) || (cab >= r.C2 && dab <= r.D1)) ? 1 : 0;
      item(item(r.Debil, a), b) = par && cab >= r.C3 && dab <= r.D2 ? 1 : 0;
    }

  buscarCircuitos(r);
  clasificar(r, r.Directa, false);
  const Integer ultimo = clasificar(r, r.Inversa, true);
  for (int a = 0; a < r.na; ++a)  // counted from the worst: turned round
    item(r.Inversa, a) = float(int(ultimo + 1)) - item(r.Inversa, a);

  // The final places: the mean of both, taken in rising order; equal means
  // share a place, and the next mean takes the next place.
  for (int a = 0; a < r.na; ++a) {
    item(r.Media, a) = Sng((double(item(r.Directa, a)) + item(r.Inversa, a)) / 2);
    item(r.Final, a) = kSinPuesto;
  }
  Integer lugar = 0;
  for (;;) {
    int menor = -1;
    for (int a = 0; a < r.na; ++a)
      if (item(r.Final, a) == kSinPuesto && (menor < 0 || item(r.Media, a) < item(r.Media, menor)))
        menor = a;
    if (menor < 0) break;
    ++lugar;
    const float media = item(r.Media, menor);
    for (int a = 0; a < r.na; ++a)
      if (item(r.Final, a) == kSinPuesto && item(r.Media, a) == media)
        item(r.Final, a) = float(int(lugar));
  }
  return r;
}

Report report(const Electra2Fields& f, const Electra2Results& r) {
  Report out;
  out.blankLines(4);
  cuerpo(out, f, r, regla(74));
  return out;
}

Report printout(const Electra2Fields& f, const Electra2Results& r) {
  Report out;
  for (int k = 0; k < 5; ++k) out.line(Z, "");
  out.line(Z, Z, "ELECTRA 2");
  out.blankLines(3);
  cuerpo(out, f, r, regla(66));
  return out;
}

Pages solveAndReport(Electra2Fields& f) {
  return solvedPages(f);
}

void exchange(ProblemFile& file, Electra2Fields& f) {
  exchangeCabecera(file, f);
  file.text(f.IndicadorConcordancia1);
  file.text(f.IndicadorConcordancia2);
  file.text(f.IndicadorConcordancia3);
  file.text(f.IndicadorDiscordancia1);
  file.text(f.IndicadorDiscordancia2);
  exchangeFilas(file, f);
}

CatalogueEntry catalogueElectra2() {
  return catalogued("electra2", electra2Form());
}

}  // namespace vorel::decision
