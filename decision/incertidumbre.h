// Decisions under uncertainty: the criteria of Wald, maximax, Savage, Laplace
// and Hurwicz applied to one payoff table. The screen shows them on pages
// that the user browses with arrow buttons; the printed page holds them all.
#pragma once

#include <array>
#include <string>

#include "decision/tablas.h"
#include "frame/model.h"

namespace vorel::decision {

inline constexpr int kMaxAlternativas = 7;
inline constexpr int kMaxEstados = 7;

// The entry screen DecisionIncertidumbre. Rows are alternatives, columns are
// states of nature: C[j - 1][i] is the cell Cj(i), state j for alternative i+1.
struct IncertidumbreFields {
  std::string Título = "Problema 1";
  int NumAlternativas = 3;  // list index of the combo "1" to "7"; -1 when empty
  int NumEstados = 3;       // list index of the combo "1" to "7"; -1 when empty
  std::string Alfa;         // Hurwicz coefficient, optional
  Tabla<7, 7> C;
  std::array<bool, 7> LblEstados{};       // visibility of the column heads
  std::array<bool, 7> LblAlternativas{};  // visibility of the row heads

  IncertidumbreFields();  // the shape of the first load: four by four
};

// What the activation of DecisionIncertidumbre_solucion keeps for its pages.
struct IncertidumbreResults {
  std::string NumAlt, NumEst;  // the combos' texts
  int na = 0, ne = 0;
  std::array<double, kMaxAlternativas> Peor{}, Mejor{}, MaxArrepentimiento{}, ValorMedio{},
      ValorHurwicz{};
  std::array<double, kMaxEstados> MejorEstado{};
  std::array<std::array<double, kMaxAlternativas>, kMaxEstados> Arrepentimiento{};
  double ProbLaplace = 0;
  std::array<int, kMaxAlternativas> SelWald{}, SelMaximax{}, SelSavage{}, SelLaplace{},
      SelHurwicz{};
  bool hurwicz = false;  // Alfa was numeric at activation
  std::string alfa;      // its text then; empty when it was not numeric
};

Messages rediseñar(IncertidumbreFields& f);  // RediseñarTabla
void nuevo(IncertidumbreFields& f);
Messages check(const IncertidumbreFields& f);  // Resolver: the first failure, or none
IncertidumbreResults solve(const IncertidumbreFields& f);

// The report pages and the browsing between them.
enum class Pagina { Wald, Maximax, SavageLaplace, Hurwicz };
enum class Boton { forward1, Back1, forward2, Continuar1, Continuar2, NoContinuar, NoContinuar2 };

// Where the browsing stands: the page, and for the Savage and Laplace page
// whether Alfa was numeric when the click that led there was made.
struct Navegacion {
  Pagina pagina = Pagina::Wald;  // the page of every activation
  bool alfaNumerico = false;
  bool operator==(const Navegacion&) const = default;
};

// The buttons visible in a state: the seven browsing buttons and volver.
struct Botones {
  bool forward1 = false, Back1 = false, forward2 = false, Continuar1 = false, Continuar2 = false,
       NoContinuar = false, NoContinuar2 = false, volver = false;
  bool operator==(const Botones&) const = default;
};
Botones botonesVisibles(const Navegacion& estado);
bool visible(const Botones& botones, Boton boton);

// A click on a browsing button; Alfa is tested on the entry screen at that
// moment. A button not visible in the state cannot be clicked: the state stays.
Navegacion pulsar(const Navegacion& estado, Boton boton, const IncertidumbreFields& f);

// One page as painted on Solucion1 (each click rewrites it whole).
Report pagina(const IncertidumbreFields& f, const IncertidumbreResults& r, Pagina p);
Report report(const IncertidumbreFields& f, const IncertidumbreResults& r);    // the Wald page
Report printout(const IncertidumbreFields& f, const IncertidumbreResults& r);  // Imprimir
Pages solveAndReport(IncertidumbreFields& f);
void exchange(ProblemFile& file, IncertidumbreFields& f);  // guardar and abrir

}  // namespace vorel::decision
