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
  const std::string text = renderText(report(options("1000", "2", "2000", "3", "500", "4"), n));
  EXPECT_NE(text.find("producciones negativas"), std::string::npos);
  EXPECT_EQ(text.find("entre 0 y"), std::string::npos);
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
