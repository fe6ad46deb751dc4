// The assignment problem at its largest, seven by seven: the 5040
// permutations, walked four times, with the checks and both reports.
#include <benchmark/benchmark.h>

#include <string>

#include "linear_programming/asignacion.h"

namespace {

vorel::linear_programming::AsignacionFields sevenBySeven(bool allEqual) {
  vorel::linear_programming::AsignacionFields f;
  f.NumIndividuos = 6;
  f.NumTareas = 6;
  vorel::linear_programming::rediseñar(f);
  for (int i = 0; i < 7; ++i)
    for (int j = 0; j < 7; ++j)
      f.C[j][i].text = allEqual ? "5" : std::to_string((i * 7 + j * 3) % 11 + 1);
  return f;
}

void AsignacionSevenBySeven(benchmark::State& state) {
  auto f = sevenBySeven(state.range(0) != 0);
  for (auto _ : state) {
    auto messages = vorel::linear_programming::check(f);
    auto pages = vorel::linear_programming::solveAndReport(f);
    benchmark::DoNotOptimize(messages);
    benchmark::DoNotOptimize(pages);
  }
}
// 0: distinct costs; 1: all costs equal, every permutation a tie.
BENCHMARK(AsignacionSevenBySeven)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
