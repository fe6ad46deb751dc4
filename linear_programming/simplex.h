// The simplex method: a linear programme of up to seven variables and seven
// constraints, solved on one tableau with the big-M method. Only the final
// solution is reported; when the optimum has an alternative, one more pivot
// gives a second solution, and the screen can browse between the two.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "frame/model.h"

namespace vorel::linear_programming {

inline constexpr int kSimplexMax = 7;   // variables, constraints
inline constexpr int kSimplexRows = 8;  // X1..X7 have cells 0 (objective) to 7

struct SimplexRelation {
  int ListIndex = 0;  // "<=", ">=", "="; -1 when nothing is chosen
  bool visible = true;
};

// The entry screen PL_Simplex. X[j][i] is the cell X<j+1>(i): row 0 is the
// objective, row r the constraint r. existencias[r] is the right-hand side of
// constraint r (1..7; element 0 has no control and is never used).
struct SimplexFields {
  SimplexFields();  // Form_Load: two variables, two constraints

  std::string Título = "Problema 1";
  int funcionObjetivo = 0;   // list index: 0 "Maximización", 1 "Minimización"
  int NumFactores = 1;       // list index of "1".."7": the number of variables
  int Numrestricciones = 1;  // list index of "1".."7": the number of constraints
  std::array<std::array<Cell, kSimplexRows>, kSimplexMax> X;
  std::array<SimplexRelation, kSimplexMax> restriccion;
  std::array<Cell, kSimplexRows> existencias;
  std::array<bool, kSimplexMax> LblFactores{};     // Visible of the variable headings
  std::array<bool, kSimplexMax> Lblrestriccion{};  // Visible of the row headings
};

inline constexpr const char* kSimplexCaption = "Simplex";
inline constexpr const char* kSimplexIntro =
    "Es un algoritmo matemático para la resolución de problemas de programación lineal "
    "desarrollado por George Dantzig en 1947";
// The selectors keep the tool-tips of the transport screen.
inline constexpr const char* kNumFactoresToolTip = "Número de Destinos";
inline constexpr const char* kNumrestriccionesToolTip = "Número de Orígenes";
inline constexpr std::array<const char*, 6> kSimplexLabels = {
    "Variables", "Restricciones", "Objetivo", "Tipo", "Existencias", "TÍTULO DEL PROBLEMA"};
// The caption of Lblrestriccion(i) is "Restricción " followed by i + 1, that
// of LblFactores(j) "X" followed by j + 1.
inline constexpr const char* kFuncionObjetivoCaption = "Función objetivo";
inline constexpr const char* kSimplexSolucionCaption = "Form1";  // label "Simplex"
inline constexpr std::array<const char*, 2> kFuncionObjetivoItems = {"Maximización",
                                                                     "Minimización"};
inline constexpr std::array<const char*, 3> kRestriccionItems = {"<=", ">=", "="};

// The number a "1".."7" selector stands for: Val of its text, 0 when nothing is chosen.
int selectorValue(int listIndex);
// The text of a relation selector: "<=", ">=", "=", or "" when nothing is chosen.
std::string relationText(int listIndex);

// RediseñarTabla: shows the cells of the chosen n by m table and its
// headings, hides the rest, and sets focus on X1(0) (a hidden X1(0) cannot
// take focus: error 5).
void rediseñarTabla(SimplexFields& f);
void nuevo(SimplexFields& f);  // blanks the table and puts back the 2 by 2 shape
// Resolver: every bad objective cell told; constraint rows are not checked.
Messages check(const SimplexFields& f);

// What the solution screen keeps between activation, browsing and Imprimir.
struct SimplexResults {
  int n = 0, m = 0;                  // the dimensions solved
  std::vector<float> cost;           // objective coefficient of each column
  std::vector<std::string> columna;  // name of each column
  std::vector<std::string> base;     // basic variable of each row, the last solution reached
  std::vector<float> bB;             // its value
  std::vector<std::string> base2;    // the solution saved at the first optimum
  std::vector<float> bB2;
  float Z = 0;  // kept from an earlier activation when this one ends unbounded or infeasible
  bool volverAvailable = true;
  bool forwardAvailable = false;  // "Solución 2"
  bool backAvailable = false;     // "Solución 1"
};

// How one solving ended. These live only during the activation: the browsing
// pages and the printed page are not told.
struct SimplexEnd {
  bool ilimitado = false;
  bool infactible = false;
  bool alternativa = false;
};

// The solution screen's activation: solves into the screen's results. The
// method has no guard against cycling; `stepBudget` bounds its passes and
// throws DoesNotEnd once spent (0: no bound).
SimplexEnd solve(const SimplexFields& f, SimplexResults& screen, long stepBudget = 0);
Report report(const SimplexFields& f, const SimplexResults& s, const SimplexEnd& end);
Report forward(const SimplexFields& f, SimplexResults& s);         // "Solución 2"
Report back(const SimplexFields& f, SimplexResults& s);            // "Solución 1"
Report printout(const SimplexFields& f, const SimplexResults& s);  // Imprimir
// A fresh solution screen's activation and its printed page.
Pages solveAndReport(SimplexFields& f, long stepBudget);

void exchange(ProblemFile& file, SimplexFields& f);  // guardar and abrir

}  // namespace vorel::linear_programming
