// Queueing models: one of eight models chosen by the kind of system, the
// service distribution and the number of servers; the performance measures
// and the probabilities of 0 to 9 customers in the system.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "frame/model.h"

namespace vorel::queueing {

// The kind of system, as the option buttons write it into Estado.
enum Sistema : int { kColaIlimitada = 0, kColaLimitada = 1, kFuenteFinita = 2 };

// The entry screen TeoriaColas. The defaults are the screen as its first
// activation leaves it.
struct ColasFields {
  std::string Título = "Problema 1";
  std::string S;
  bool SEnabled = true;
  bool ColaIlimitada = true, ColaLimitada = false, FuenteFinita = false;  // option values
  std::string K;
  bool KEnabled = false, TamañoColaEnabled = false;
  std::string N;
  bool NEnabled = false, Label8Enabled = false;
  std::string Lambda, Nu;
  std::string LblNu = "Tasa de Servicios";  // the caption over Nu
  std::string NuToolTip;
  std::string VarTS;
  bool VarTSEnabled = false, LblVarEnabled = false;
  int Servicios = 0;  // list index of "M", "G", "D"; -1 when empty
  bool ServiciosEnabled = true;
  // Hidden working fields.
  std::string Tipo, Estado, Probabilidad, DistribuciónTS = "0", Ro;
};

// What each kind of system enables; the option buttons apply it.
struct Habilitacion {
  bool TamañoCola, K, Label8, N, Servicios;
};
Habilitacion habilitacion(int sistema);

// The items of Servicios and how each adapts the screen.
struct Servicio {
  const char* item;      // "M", "G", "D"
  const char* LblNu;     // caption over Nu
  bool varianza;         // LblVar and VarTS enabled
  bool unServidor;       // S set to "1" and disabled
  const char* toolTip;   // tool-tip of Nu, or nullptr to leave it
};
extern const std::array<Servicio, 3> kServicios;
inline const std::array<const char*, 1> kLLegadas = {"M"};
extern const std::array<std::string, 8> kModelos;  // "Modelo M/M/1" ... by Tipo - 1

void serviciosClick(ColasFields& f);          // a choice in Servicios
void elegir(ColasFields& f, int sistema);     // a click on one of the option buttons
void formActivate(ColasFields& f);            // each arrival on the entry screen
void nuevo(ColasFields& f);

Messages check(const ColasFields& f);  // Resolver: the first failure, or none
int tipo(const ColasFields& f);        // the model number Resolver writes, 0 for none
// Resolver after its checks passed: Ro and, when a model fits, Tipo.
void anotar(ColasFields& f);

// The solution screen's results, each rounded to Single when stored.
struct ColasResults {
  int Tipo = 0;
  float lambda = 0;    // as given
  float lambdaEf = 0;  // the effective rate in the limited and finite models
  float mu = 0, s = 0, K = 0, N = 0, V = 0, ro = 0;
  float L = 0, Lq = 0, W = 0, Wq = 0;
  std::vector<std::string> Probabilidades;  // P(0) to P(9) as text
};

ColasResults solve(const ColasFields& f);  // the solution screen's activation
Report report(const ColasFields& f, const ColasResults& r);    // TeoriaColas_Solucion
Report printout(const ColasFields& f, const ColasResults& r);  // Imprimir
Pages solveAndReport(ColasFields& f);  // anotar, then the activation
void exchange(ProblemFile& file, ColasFields& f);  // guardar and abrir

}  // namespace vorel::queueing
