// Check, solve and report of the economic order quantity, and the plain-text
// rendering of its report.
#include <benchmark/benchmark.h>

#include "inventory/eoq.h"

namespace {

vorel::inventory::EoqFields textbook() {
  vorel::inventory::EoqFields f;
  f.D = "1000"; f.E = "50"; f.A = "4"; f.TS = "10"; f.dias = "250"; f.P = "2";
  return f;
}

void EoqCheckSolveReport(benchmark::State& state) {
  auto f = textbook();
  for (auto _ : state) {
    auto messages = vorel::inventory::check(f);
    auto pages = vorel::inventory::solveAndReport(f);
    benchmark::DoNotOptimize(messages);
    benchmark::DoNotOptimize(pages);
  }
}
BENCHMARK(EoqCheckSolveReport);

void EoqRenderText(benchmark::State& state) {
  auto f = textbook();
  auto pages = vorel::inventory::solveAndReport(f);
  for (auto _ : state) benchmark::DoNotOptimize(vorel::renderText(pages.page));
}
BENCHMARK(EoqRenderText);

}  // namespace
