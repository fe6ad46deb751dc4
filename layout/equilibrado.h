// Line balancing by the column method: from the immediate predecessors of
// each activity, every element is placed in a precedence column, its latest
// possible transfer column is worked out, and the columns are reported with
// their elements, durations and accumulated durations.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "frame/model.h"

namespace vorel::facility {

inline constexpr int kMaxActividades = 14;
inline constexpr int kColumnasAnteriores = 7;  // the arrays C1 to C7
inline constexpr int kFilasAnteriores = 10;    // rows 0 to 4, then 5 to 9
inline constexpr int kAnterioresPorActividad = 5;

// The entry screen Distribucion_Equlibrado. Column Ck, rows 0 to 4, holds the
// immediate predecessors of activity k; rows 5 to 9 those of activity k + 7.
struct EquilibradoFields {
  std::string Título = "Problema 1";
  int NumActividades = 4;  // list index of the combo "1" to "14"; -1 when empty
  std::array<std::array<Cell, kFilasAnteriores>, kColumnasAnteriores> C;  // C[k - 1][r] is Ck(r)
  std::array<Cell, kMaxActividades> TiempoOperacion;
  std::array<bool, kMaxActividades> LblActividades{};  // "Actividad 1" to "Actividad 14"

  EquilibradoFields();  // the shape of the first load: five activities

  // The predecessor cell p (0 to 4) of activity a (1 to 14).
  Cell& anterior(int a, int p);
  const Cell& anterior(int a, int p) const;
};

// What the solution screen keeps. Elements are the activities 1 to N, at
// index a - 1; columns are numbered from 1, at index c - 1.
struct EquilibradoResults {
  std::string N;  // the combo's text
  int NumColumnas = 0;
  std::vector<int> Columna, Transferencia;  // each element's column and maximum transfer column
  std::vector<double> Tiempo;
  std::vector<double> DuracionColumna, DuracionAcumulada;
};

// The names of the columns, "I" to "XVI".
const std::array<std::string, 16>& numerosRomanos();

void rediseñar(EquilibradoFields& f);  // RediseñarTabla
void nuevo(EquilibradoFields& f);
// Resolver: the first failure, or none. Only the predecessor cells shown are
// checked, for a number of an activity of the line or 0; a cycle, or a
// predecessor 0, passes and leaves the solution without an end.
Messages check(const EquilibradoFields& f);
// Places the elements in columns, pass by pass, each pass a step of
// `stepBudget`; throws DoesNotEnd when the passes would never end (see
// check). A predecessor in a hidden cell beyond the line is run-time error 9.
EquilibradoResults solve(const EquilibradoFields& f, long stepBudget = kCommandLineStepBudget);
Report report(const EquilibradoFields& f, const EquilibradoResults& r);    // Solucion1
Report printout(const EquilibradoFields& f, const EquilibradoResults& r);  // Imprimir
Pages solveAndReport(EquilibradoFields& f, long stepBudget);
void exchange(ProblemFile& file, EquilibradoFields& f);  // guardar and abrir

}  // namespace vorel::facility
