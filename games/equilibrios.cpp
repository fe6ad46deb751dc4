#include "games/equilibrios.h"

namespace vorel::games {

namespace {

// The bit of a cell's index (0 for E1) that is set when J1, J2 or J3 plays
// Decisión 2: J2's decision changes first down the table, then J1's, then J3's.
constexpr std::array<std::size_t, 3> kBit = {2, 1, 4};

std::string etiqueta(std::size_t celda, std::size_t jugadores) {
  std::string texto;
  for (std::size_t j = 0; j < jugadores; ++j)
    texto += (j ? ",Decisión" : "Decisión") + std::to_string(decision(celda, j));
  return texto + ":";
}

template <std::size_t J>
std::vector<std::string> textos(const Pagos<J>& pagos) {
  return {pagos.begin(), pagos.end()};
}

}  // namespace

int decision(std::size_t celda, std::size_t jugador) {
  return (celda & item(kBit, long(jugador))) ? 2 : 1;
}

std::size_t cambio(std::size_t celda, std::size_t jugador) {
  return celda ^ item(kBit, long(jugador));
}

template <std::size_t J>
Messages comprobar(const Celdas<J>& celdas, EstadoPuro<J>& estado) {
  for (const Pagos<J>* pagos : celdas)
    for (const std::string& pago : *pagos)
      if (!IsNumeric(pago)) return {{"Todas las celdas deben contener un valor numérico", ""}};
  estado.Calculado = 1;
  for (std::size_t c = 0; c < kCeldas<J>; ++c) {
    double suma = 0;
    for (const std::string& pago : *celdas[c]) suma = checked(suma + Val(pago));
    estado.Suma[c] = CInt(suma);
  }
  return {};
}

template <std::size_t J>
Messages estPuras(const Celdas<J>& celdas, EstadoPuro<J>& estado) {
  if (Messages m = comprobar(celdas, estado); !m.empty()) return m;
  estado.EquilibriosPuras = {true, {}};
  estado.SinPuras = 0;
  estado.Puro.fill(0);
  estado.NumPuros = 0;
  for (std::size_t c = 0; c < kCeldas<J>; ++c) {
    bool equilibrio = true;
    for (std::size_t j = 0; j < J; ++j)
      if (Val((*celdas[c])[j]) < Val((*celdas[cambio(c, j)])[j])) equilibrio = false;
    if (!equilibrio) continue;
    estado.Puro[c] = 1;
    ++estado.NumPuros;
  }
  if (estado.NumPuros == int(kCeldas<J>)) {
    estado.EquilibriosPuras.visible = estado.EquilibriosMixtas.visible = false;
    return {{"No se puede dar esta situación de juego", ""}};
  }
  Report& panel = estado.EquilibriosPuras.lineas;
  if (estado.NumPuros == 0) {
    estado.SinPuras = 1;
    panel.line("No existen equilibrios");
    panel.line("en Estrategias Puras");
  }
  for (std::size_t c = 0; c < kCeldas<J>; ++c)
    if (estado.Puro[c] == 1) panel.line("Equilibrio:", Z, tupla(textos<J>(*celdas[c])));
  return {};
}

Messages resolver(int Calculado) {
  if (Calculado != 1)
    return {{"Debe calcular primero los equilibrios en estrategias puras y mixtas", ""}};
  return {};
}

template <std::size_t J>
void nuevo(std::string& Titulo1, const std::array<Pagos<J>*, kCeldas<J>>& celdas,
           EstadoPuro<J>& estado) {
  Titulo1.clear();
  for (Pagos<J>* pagos : celdas)
    for (std::string& pago : *pagos) pago.clear();
  estado.EquilibriosPuras = {};
  estado.EquilibriosMixtas = {};
}

std::string tupla(const std::vector<std::string>& textos) {
  std::string texto = "(";
  for (std::size_t i = 0; i < textos.size(); ++i) texto += (i ? "," : "") + textos[i];
  return texto + ")";
}

std::string tupla(const std::vector<float>& valores) {
  std::vector<std::string> textos;
  for (float v : valores) textos.push_back(Str(v));
  return tupla(textos);
}

float redondeoCero(float pago) { return pago < 0 && pago > -0.0001F ? 0 : pago; }

template <std::size_t J>
Report informe(const std::string& Titulo1, const Celdas<J>& celdas, const EstadoPuro<J>& estado,
               const std::vector<float>& mixto, bool pagina) {
  Report out;
  if (pagina)
    out = pageHead("JUEGOS CON " + std::to_string(J) + " JUGADORES", 4);
  else
    out.blankLines(3);
  const std::string regla = std::string(pagina ? 64 : 74, '_') + " ";
  out.line(Z, "Solución al problema: " + Titulo1);
  out.line(Z, regla);
  out.line(Z, " ");
  out.line(Z, "ESTRATEGIAS:");
  out.line(Z, " ");
  for (std::size_t c = 0; c < kCeldas<J>; ++c)
    out.line(Z, etiqueta(c, J), Z, tupla(textos<J>(*celdas[c])));
  out.line(Z, regla);
  out.line(Z, " ");
  out.line(Z, "TIPO DE JUEGO:");
  out.line(Z, " ");
  bool constante = true;
  for (Integer suma : estado.Suma)
    if (suma != estado.Suma[0]) constante = false;
  out.line(Z, constante ? "Juego de Suma Constante" : "Juego de Suma Variable");
  out.line(Z, regla);
  out.line(Z, " ");
  out.line(Z, "EQUILIBRIOS EN ESTRATEGIAS PURAS:");
  out.line(Z, " ");
  if (estado.SinPuras == 1) out.line(Z, "No existen equilibrios en Estrategias Puras");
  for (std::size_t c = 0; c < kCeldas<J>; ++c)
    if (estado.Puro[c] == 1) out.line(Z, "Equilibrio:", Z, tupla(textos<J>(*celdas[c])));
  if (mixto.empty()) return out;
  out.line(Z, " ");
  out.line(Z, "EQUILIBRIOS EN ESTRATEGIAS MIXTAS:");
  out.line(Z, " ");
  out.line(Z, "Equilibrio:", Z, tupla(mixto));
  return out;
}

#define VOREL_EQUILIBRIOS(J)                                                                      \
  template Messages comprobar<J>(const Celdas<J>&, EstadoPuro<J>&);                               \
  template Messages estPuras<J>(const Celdas<J>&, EstadoPuro<J>&);                                \
  template void nuevo<J>(std::string&, const std::array<Pagos<J>*, kCeldas<J>>&, EstadoPuro<J>&); \
  template Report informe<J>(const std::string&, const Celdas<J>&, const EstadoPuro<J>&,          \
                             const std::vector<float>&, bool);
VOREL_EQUILIBRIOS(2)
VOREL_EQUILIBRIOS(3)
#undef VOREL_EQUILIBRIOS

}  // namespace vorel::games
