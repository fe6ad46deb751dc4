// The transportation problem: unit costs from up to seven origins to up to
// seven destinations, with supplies and demands. The problem is balanced with
// a fictitious origin or destination, started at the north-west corner and
// improved by exchanges over rectangles of four cells only, so the result may
// stop short of the optimum: that is how the method is taught here.
#pragma once

#include <array>
#include <string>

#include "frame/model.h"

namespace vorel::linear_programming {

inline constexpr int kTransportesMax = 7;     // origins, destinations
inline constexpr int kTransportesArrays = 8;  // C1..C8, and rows 0..7 of each

struct TransportesLabel {
  std::string caption;
  bool visible = false;
};

// The entry screen PL_Transportes. C[j][i] is the cell C<j+1>(i): the unit
// cost from origin i+1 to destination j+1; the column after the last
// destination holds the supplies, the row after the last origin the demands.
struct TransportesFields {
  TransportesFields();  // Form_Load: two origins, two destinations

  std::string Título = "Problema 1";
  int NumOrigen = 1;  // list index of "1".."7"; -1 when nothing is chosen
  int NumDestino = 1;
  std::array<std::array<Cell, kTransportesArrays>, kTransportesArrays> C;
  std::array<TransportesLabel, kTransportesArrays> LblOrigen, LblDestino;
};

// Texts of the entry screen.
inline constexpr const char* kTransportesCaption = "Problema del Transporte";
inline constexpr const char* kTransportesIntro =
    "El Problema del Trasporte consiste en determinar la cantidades que se transportarán desde "
    "cada origen a cada destino de manera que se cumplan las especificaciones en cua";
inline constexpr const char* kTransportesDegenerada = "la solución es degenerada";

// RediseñarTabla: refuses an empty selector, else shows the chosen table and
// captions the headings, "Demandas" and "Existencias" after the last ones.
Messages rediseñar(TransportesFields& f);
// Whether the cell C<column+1>(row) holds a supply or a demand: its column's
// head says "Existencias" or its row's "Demandas".
bool celdaDeTotal(const TransportesFields& f, int column, int row);
void nuevo(TransportesFields& f);  // Form_Load's presets again, all cells blank; the title stays
Messages check(const TransportesFields& f);  // Resolver: every bad cell told

// What the solution screen keeps. N by M is the balanced table.
struct TransportesResults {
  bool degenerada = false;  // refused: the screen goes back to the entry
  int m = 0, n = 0;         // the origins and destinations as given
  int N = 0, M = 0;
  bool origenFicticio = false, destinoFicticio = false;
  double S = 0, D = 0, Coste = 0;
  std::array<std::array<double, kTransportesArrays>, kTransportesArrays> X{};  // X[row][column]
};

// The solution screen's activation. The improvement may never come to rest
// (negative supplies or demands): `stepBudget` bounds its steps, each one
// corner set against all the others, and throws DoesNotEnd once spent; 0 is
// no bound, as on the desktop.
TransportesResults solve(const TransportesFields& f, long stepBudget = 0);
Report report(const TransportesFields& f, const TransportesResults& r);    // Solucion1
Report printout(const TransportesFields& f, const TransportesResults& r);  // Imprimir

// Resolver followed by the solution screen's activation, as the command line
// runs it: the cell messages, or the degenerate refusal, or the two pages.
RunOutcome resolver(const TransportesFields& f, long stepBudget = kCommandLineStepBudget);

void exchange(ProblemFile& file, TransportesFields& f);  // guardar and abrir

}  // namespace vorel::linear_programming
