// ELECTRE I: outranking of alternatives valued under several criteria of
// different weight, with one valuation scale and a concordance and a
// discordance limit. The report lists the outranking pairs and the kernel,
// the alternatives that no other alternative outranks.
#pragma once

#include <array>
#include <string>

#include "frame/arith.h"
#include "frame/model.h"

namespace vorel::decision {

inline constexpr int kMaxAlternativasElectra = 6;
inline constexpr int kMaxCriterios = 7;
// Back colours of the column heads, as the platform stores them (blue, green, red).
inline constexpr long kColorAlternativa = 0xC0FFC0;
inline constexpr long kColorPonderacion = 0xFFC0C0;

// The entry screen DecisionElectra1. Rows of the table are criteria, columns
// are alternatives, and the column after the last alternative holds the weights.
struct Electra1Fields {
  struct Cabecera {
    bool visible = false;
    std::string caption;
    long BackColor = kColorAlternativa;
  };

  std::string Título = "Problema 1";
  int NumAlternativas = 3;  // list index of the combo "1" to "6"; -1 when empty
  int NumCriterios = 3;     // list index of the combo "1" to "7"; -1 when empty
  std::string escalaValoracion, IndiceConcordancia, IndiceDiscordancia;
  std::array<std::array<Cell, 7>, 7> C;  // C[j - 1][i] is the cell Cj(i)
  std::array<bool, 7> LblCriterios{};     // visibility of the row heads
  std::array<Cabecera, 7> LblAlternativas;

  Electra1Fields();  // the shape of the first load: four criteria, four alternatives
};

// The solution screen DecisionElectra1_solucion: what its activation keeps.
struct Electra1Results {
  std::string NumAlt, NumCrit;  // the combos' texts
  int na = 0, nc = 0;
  std::array<std::array<double, kMaxCriterios>, kMaxAlternativasElectra> Valoracion{};
  std::array<double, kMaxCriterios> Ponderacion{};
  double LimiteConcordancia = 0, LimiteDiscordancia = 0;
  std::array<std::array<double, kMaxAlternativasElectra>, kMaxAlternativasElectra> Concordancia{},
      Discordancia{};
  std::array<std::array<int, kMaxAlternativasElectra>, kMaxAlternativasElectra>
      Sobreclasificacion{};
  std::array<int, kMaxAlternativasElectra> Nucleo{};
  Integer NumSobreclasificadas, NumNucleo;
};

Messages rediseñar(Electra1Fields& f);  // RediseñarTabla
void nuevo(Electra1Fields& f);
Messages check(const Electra1Fields& f);  // Resolver: the first failure, or none
Electra1Results solve(const Electra1Fields& f);
Report report(const Electra1Fields& f, const Electra1Results& r);    // Solucion1
Report printout(const Electra1Fields& f, const Electra1Results& r);  // Imprimir
Pages solveAndReport(Electra1Fields& f);
void exchange(ProblemFile& file, Electra1Fields& f);  // guardar and abrir

// A Long item of a problem file (a colour): bare digits written, a whole
// number read; a text that is no number, or beyond 32 bits, fails the read.
void longItem(ProblemFile& file, long& value);

}  // namespace vorel::decision
