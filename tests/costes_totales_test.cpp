#include "location_equipment/costes_totales.h"

#include <gtest/gtest.h>

namespace vorel::location_equipment {
namespace {

CostesTotalesFields options(const char* cf1, const char* cv1, const char* cf2, const char* cv2,
                            const char* cf3 = nullptr, const char* cv3 = nullptr) {
  CostesTotalesFields f;
  f.Option1 = !cf3;
  f.Option2 = cf3;
  f.txtCF1 = cf1, f.txtCV1 = cv1, f.txtCF2 = cf2, f.txtCV2 = cv2;
  if (cf3) f.txtCF3 = cf3, f.txtCV3 = cv3;
  return f;
}

TEST(CostesTotales, TwoOptionsBreakEven) {
  // 1000 + 5x = 2000 + 3x at x = 500; option 1, with the lower fixed cost, below it.
  const CostesDosResults r = solveDos(options("1000", "5", "2000", "3"));
  EXPECT_EQ(r.x, 500);
  EXPECT_EQ(r.coste, 3500);
  EXPECT_EQ(r.below, 1);
  EXPECT_EQ(r.above, 2);
}

TEST(CostesTotales, ThreeOptionsIntervalsByTheirTestVolumes) {
  // Lines 1000 + 10x, 3000 + 6x, 6000 + 3x cross at 500 (1-2), 714.2857 (1-3), 1000 (2-3).
  const CostesTresResults r = solveTres(options("1000", "10", "3000", "6", "6000", "3"));
  EXPECT_FLOAT_EQ(r.x13, 5000.0f / 7);
  EXPECT_EQ((std::vector<float>{r.L, r.M, r.H}), (std::vector<float>{500, r.x13, 1000}));
  // Option 1 to 500; at 502 and at 715.29 option 2 is cheapest; option 3 above 1000.
  EXPECT_EQ((std::vector<int>{r.hasta, r.entreLM, r.entreMH, r.mayor}),
            (std::vector<int>{1, 2, 2, 3}));
  // A crossing at negative volume (option 2 costs more in both parts).
  const CostesTresResults n = solveTres(options("1000", "2", "2000", "3", "500", "4"));
  EXPECT_EQ((std::vector<float>{n.L, n.M, n.H}), (std::vector<float>{-1000, 250, 1500}));
}

TEST(CostesTotales, TwoOptionsWithoutAPositiveCrossingRecommendTheCheaper) {
  // Equal fixed costs: the lines meet at volume 0 and option 2, with the
  // lower variable cost, is cheaper at every volume above it.
  const CostesTotalesFields iguales = options("1000", "5", "1000", "3");
  const CostesDosResults r = solveDos(iguales);
  EXPECT_EQ(r.x, 0);
  EXPECT_EQ(r.above, 2);
  const std::string text = renderText(report(iguales, r));
  EXPECT_EQ(text.find("entre 0 y"), std::string::npos);
  EXPECT_EQ(text.find("producciones negativas"), std::string::npos);
  EXPECT_NE(text.find("Para un volumen de producción mayor a  0 sería recomendable la opción 2"),
            std::string::npos);
  // The chart shows both lines apart, not one point at volume 0.
  const Chart c = chart(iguales, r);
  ASSERT_GE(c.matrix.size(), 2u);
  const std::vector<double>& last = c.matrix.back();
  EXPECT_GT(last[0], 0);
  EXPECT_GT(last[1], last[3]);  // option 1 above option 2

  // 1000 + 2x and 2000 + 3x meet at -1000: option 1 is cheaper at every
  // positive volume, told after the line of negative production.
  const CostesTotalesFields negativo = options("2000", "3", "1000", "2");
  const CostesDosResults n = solveDos(negativo);
  EXPECT_EQ(n.x, -1000);
  EXPECT_EQ(n.above, 2);
  const std::string neg = renderText(report(negativo, n));
  EXPECT_NE(neg.find("producciones negativas"), std::string::npos);
  EXPECT_EQ(neg.find("entre 0 y"), std::string::npos);
  EXPECT_NE(neg.find("Para un volumen de producción mayor a  0 sería recomendable la opción 2"),
            std::string::npos);
  for (const std::vector<double>& row : chart(negativo, n).matrix) EXPECT_GE(row[0], 0);
}

TEST(CostesTotales, ThreeOptionsWithANegativeCrossingCoverEveryPositiveVolume) {
  // 1000 + 2x, 2000 + 3x, 500 + 4x: crossings -1000, 250 and 1500. Option 3
  // is cheapest from 0 to 250, option 1 above.
  const CostesTotalesFields f = options("1000", "2", "2000", "3", "500", "4");
  const std::string text = renderText(report(f, solveTres(f)));
  const std::string de = "Para un volumen de producción comprendido entre ";
  const std::vector<std::string> lines = {
      "No se puede resolver el problema pues esta trabajando con producciones negativas",
      de + "0 y 250  sería recomendable la opción 3",
      de + "250 y 1500  sería recomendable la opción 1",
      "Para un volumen de producción mayor a 1500  sería recomendable la opción 1"};
  std::size_t at = 0;
  for (const std::string& line : lines) {
    at = text.find(line, at);
    EXPECT_NE(at, std::string::npos) << line;
    if (at == std::string::npos) break;
  }
  // Every crossing negative: the cheapest option for all positive volumes.
  const CostesTotalesFields g = options("100", "1", "200", "2", "300", "3");
  const std::string todas = renderText(report(g, solveTres(g)));
  EXPECT_NE(todas.find("producciones negativas"), std::string::npos);
  EXPECT_NE(todas.find("Para un volumen de producción mayor a 0  sería recomendable la opción 1"),
            std::string::npos);
}

TEST(CostesTotales, ChecksInOrder) {
  const std::string numeric = "Debe introducir un valor numérico",
                    equal = "Valores no válidos de costes variables",
                    range = "Los costes deben estar entre 0 y 999999999";
  struct Case {
    CostesTotalesFields f;
    std::vector<std::string> messages;
  } cases[] = {
      {options("1", "5", "2", "x"), {numeric}},
      {options("1", "5", "2", "5", "3", ""), {numeric}},
      {options("-1", "5", "2", "5"), {equal}},  // each pair with equal variable costs
      {options("1", "5", "2", "5", "3", "5"), {equal, equal, equal}},
      {options("1", "5", "2", "6", "3", "6"), {equal}},
      {options("1", "5", "2", "6", "3", "1000000000"), {range}},
      {options("0", "5", "2", "6", "-3", "7"), {range}},
      {options("0", "5", "2", "6", "-3", "6"), {}},  // the third option is hidden
  };
  for (const auto& c : cases) {
    std::vector<std::string> told;
    CostesTotalesFields f = c.f;
    if (c.messages.empty()) f.Option1 = true, f.Option2 = false;
    for (const Message& m : check(f)) told.push_back(m.text);
    EXPECT_EQ(told, c.messages) << f.txtCF1 << " " << f.txtCV3;
  }
}

}  // namespace
}  // namespace vorel::location_equipment
