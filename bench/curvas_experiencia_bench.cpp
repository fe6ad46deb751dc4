// Check, solve, report and chart data of the experience curve at its largest
// (15 units, the economic side), and the plain text of its chart.
#include <benchmark/benchmark.h>

#include "productivity/curvas_experiencia.h"

namespace {

vorel::productivity::ExperienciaFields largest() {
  vorel::productivity::ExperienciaFields f;
  f.L = "85";
  f.T1unid = "120";
  f.N = "15";
  f.NAcumulado = "15";
  f.Check1 = true;
  f.MgB = "20";
  f.CMdeO = "30";
  return f;
}

void ExperienciaCheckSolveReportChart(benchmark::State& state) {
  auto f = largest();
  for (auto _ : state) {
    auto messages = vorel::productivity::check(f);
    auto pages = vorel::productivity::solveAndReport(f);
    benchmark::DoNotOptimize(messages);
    benchmark::DoNotOptimize(pages);
  }
}
BENCHMARK(ExperienciaCheckSolveReportChart);

void ExperienciaChartText(benchmark::State& state) {
  auto f = largest();
  auto pages = vorel::productivity::solveAndReport(f);
  for (auto _ : state) benchmark::DoNotOptimize(vorel::renderText(pages.chart));
}
BENCHMARK(ExperienciaChartText);

}  // namespace
