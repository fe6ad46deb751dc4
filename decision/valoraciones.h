// What the two ELECTRE models share: the entry table of valuations (criteria
// in rows, alternatives in columns, the weights in the column after the last
// alternative) with its valuation scale, its checks and its rows in the
// problem file; and the concordance and discordance of every ordered pair.
#pragma once

#include <array>
#include <string>

#include "decision/tablas.h"
#include "frame/arith.h"
#include "frame/model.h"

namespace vorel::decision {

inline constexpr int kMaxAlternativasElectra = 6;
inline constexpr int kMaxCriterios = 7;
// Back colours of the column heads, as the platform stores them (blue, green, red).
inline constexpr long kColorAlternativa = 0xC0FFC0;
inline constexpr long kColorPonderacion = 0xFFC0C0;

// The fields both ELECTRE entry screens have.
struct TablaValoraciones {
  struct Cabecera {
    bool visible = false;
    std::string caption;
    long BackColor = kColorAlternativa;
  };

  std::string Título = "Problema 1";
  int NumAlternativas = 3;  // list index of the combo "1" to "6"; -1 when empty
  int NumCriterios = 3;     // list index of the combo "1" to "7"; -1 when empty
  std::string escalaValoracion;
  Tabla<7, 7> C;                       // C[j - 1][i] is the cell Cj(i)
  std::array<bool, 7> LblCriterios{};  // visibility of the row heads
  std::array<Cabecera, 7> LblAlternativas;

  TablaValoraciones();  // the shape of the first load: four criteria, four alternatives
};

Messages rediseñar(TablaValoraciones& f);  // RediseñarTabla
// nuevo's part on the table: the scale and the cells emptied, both combos at
// index 3 and the shape of the first load. The title stays.
void vaciarTabla(TablaValoraciones& f);
// Resolver's checks of the scale, and of the table's visible cells row by row.
Messages checkEscala(const TablaValoraciones& f);
Messages checkTabla(const TablaValoraciones& f);

// The first items of the problem file (title, the two list indexes, the
// scale) and its last ones, the seven rows of the table.
void exchangeCabecera(ProblemFile& file, TablaValoraciones& f);
void exchangeFilas(ProblemFile& file, TablaValoraciones& f);
// A Long item of a problem file (a colour): bare digits written, a whole
// number read; a text that is no number, or beyond 32 bits, fails the read.
void longItem(ProblemFile& file, long& value);

// The table as read at activation, and the two matrices of every ordered pair.
struct Valoraciones {
  std::string NumAlt, NumCrit;  // the combos' texts
  int na = 0, nc = 0;
  std::array<std::array<double, kMaxCriterios>, kMaxAlternativasElectra> Valoracion{};
  std::array<double, kMaxCriterios> Ponderacion{};
  std::array<std::array<double, kMaxAlternativasElectra>, kMaxAlternativasElectra> Concordancia{},
      Discordancia{};
};
// Concordancia(a, b): the weights of the criteria where a is at least as good
// as b, over all the weights. Discordancia(a, b): the largest shortfall of a
// against b over the one scale. Both compare the valuations as they read back
// from their texts.
void valorar(const TablaValoraciones& f, Valoraciones& r);

}  // namespace vorel::decision
