// ELECTRE I: outranking of alternatives valued under several criteria of
// different weight, with one valuation scale and a concordance and a
// discordance limit. The report lists the outranking pairs and the kernel,
// the alternatives that no other alternative outranks.
#pragma once

#include <array>
#include <string>

#include "decision/valoraciones.h"
#include "frame/arith.h"
#include "frame/model.h"

namespace vorel::decision {

// The entry screen DecisionElectra1: the table of valuations and the two limits.
struct Electra1Fields : TablaValoraciones {
  std::string IndiceConcordancia, IndiceDiscordancia;
};

// The solution screen DecisionElectra1_solucion: what its activation keeps.
struct Electra1Results : Valoraciones {
  double LimiteConcordancia = 0, LimiteDiscordancia = 0;
  std::array<std::array<int, kMaxAlternativasElectra>, kMaxAlternativasElectra>
      Sobreclasificacion{};
  std::array<int, kMaxAlternativasElectra> Nucleo{};
  Integer NumSobreclasificadas, NumNucleo;
};

void nuevo(Electra1Fields& f);
Messages check(const Electra1Fields& f);  // Resolver: the first failure, or none
Electra1Results solve(const Electra1Fields& f);
Report report(const Electra1Fields& f, const Electra1Results& r);    // Solucion1
Report printout(const Electra1Fields& f, const Electra1Results& r);  // Imprimir
Pages solveAndReport(Electra1Fields& f);
void exchange(ProblemFile& file, Electra1Fields& f);  // guardar and abrir

}  // namespace vorel::decision
