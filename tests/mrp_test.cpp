// Material requirements: the checks of Resolver, and the records exploded by
// hand for a single-level and a three-level structure, the lot rule's cases
// and the inputs that stop on the platform's errors.
#include "inventory/mrp.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "frame/arith.h"

namespace vorel::inventory {
namespace {

// The number of the run-time error `f` raises, or 0.
template <class F>
int errorOf(F f) {
  try {
    f();
  } catch (const RuntimeError& e) {
    return e.number();
  }
  return 0;
}

// An article row: parents by letter, then on-hand, safety, committed, lead
// time and lot.
struct Article {
  std::string d, q1, d1, q2, oh, ss, sc, ts, lot;
};

int indexIn(const std::vector<std::string>& list, const std::string& s) {
  auto it = std::find(list.begin(), list.end(), s);
  return it == list.end() ? -1 : static_cast<int>(it - list.begin());
}

MrpFields problem(const std::vector<Article>& rows, const std::vector<std::string>& mps) {
  MrpFields f;
  f.NArt = std::to_string(rows.size());
  f.NSem = std::to_string(mps.size());
  for (std::size_t k = 0; k < rows.size(); ++k) {
    const Article& a = rows[k];
    const int r = static_cast<int>(k);
    if (k > 0) {
      f.D[k].listIndex = indexIn(mrpParentList(r), a.d);
      f.D1[k].listIndex = indexIn(mrpSecondParentList(r), a.d1);
      f.NEle[k].text = a.q1;
      f.NEle1[k].text = a.q2;
    }
    f.ID[k].text = a.oh;
    f.Stock[k].text = a.ss;
    f.Sc[k].text = a.sc;
    f.TS[k].text = a.ts;
    f.TamañoLote[k].text = a.lot;
  }
  for (std::size_t j = 0; j < mps.size(); ++j) f.UniPA[j].text = mps[j];
  return f;
}

// The cells of one row of a record over N weeks, joined by "|".
std::string cells(const MrpGrid<std::string>& g, int k, int N) {
  std::string out;
  for (int j = 0; j < N; ++j) out += (j ? "|" : "") + g[std::size_t(k)][std::size_t(j)];
  return out;
}

struct Expected {
  int k;
  const char *NB, *RP, *ID, *NN, *LP;
};

void expectRecords(const MrpRecords& r, int N, const std::vector<Expected>& rows) {
  for (const Expected& e : rows) {
    SCOPED_TRACE(mrpLetter(e.k));
    EXPECT_EQ(cells(r.NB, e.k, N), e.NB);
    EXPECT_EQ(cells(r.RP, e.k, N), e.RP);
    EXPECT_EQ(cells(r.ID, e.k, N), e.ID);
    EXPECT_EQ(cells(r.NN, e.k, N), e.NN);
    EXPECT_EQ(cells(r.LP, e.k, N), e.LP);
  }
}

// X (lot for lot, one week) over A (two per X, lot 100, two weeks, 40 due in
// week 2): A's first need of 60 takes a whole lot, and the 40 left over in
// week 4 is dropped by the lot pass when the next week has no net need.
TEST(Mrp, SingleLevelByHand) {
  MrpFields f = problem({{"-", "1", "-", "1", "20", "0", "0", "1", "L"},
                         {"X", "2", "-", "0", "50", "10", "0", "2", "100"}},
                        {"0", "30", "20", "40", "10"});
  f.Unid[1][1].text = "40";
  const MrpRecords r = solve(f);
  expectRecords(r, 5,
                {{0, "0|30|20|40|10", " 0| 0| 0| 0| 0", " 20| 20| 0| 0| 0", " 0| 10| 20| 40| 10",
                  " 10| 20| 40| 10| 0"},
                 {1, " 20| 40| 80| 20| 0", " 0|40| 0| 0| 0", " 40| 60| 20| 40| 0",
                  " 0| 0| 60| 0| 0", "100| 0| 0| 0| 0"}});
  EXPECT_EQ(r.Stock[1] + r.StockSeg[1] + r.TSS[1], "50102");
  EXPECT_EQ(r.articles, 2);
  EXPECT_EQ(r.weeks, 5);
}

// X over A over B; C goes into A (one) and into B (three). X's flat tail
// carries the first week's stock; B's lot of 25 covers its need of 5, its
// last projection skipped; C's demand from B in week 1 comes too late for a
// lead time of one week and vanishes.
TEST(Mrp, ThreeLevelsWithTwoParentsByHand) {
  const MrpRecords r = solve(problem({{"-", "1", "-", "1", "5", "0", "0", "0", "L"},
                                      {"X", "1", "-", "0", "0", "0", "0", "1", "L"},
                                      {"A", "2", "-", "0", "30", "5", "0", "1", "25"},
                                      {"A", "1", "B", "3", "0", "0", "0", "1", "L"}},
                                     {"0", "10", "10", "10"}));
  expectRecords(
      r, 4,
      {{0, "0|10|10|10", " 0| 0| 0| 0", " 5| 5| 5| 5", " 0| 5| 10| 10", " 0| 5| 10| 10"},
       {1, " 0| 5| 10| 10", " 0| 0| 0| 0", " 0| 0| 0| 0", " 0| 5| 10| 10", " 5| 10| 10| 0"},
       {2, " 10| 20| 20| 0", " 0| 0| 0| 0", " 25| 15| 20| 0", " 0| 5| 0| 0", "25| 0| 0| 0"},
       {3, " 80| 10| 10| 0", " 0| 0| 0| 0", " 0| 0| 0| 0", " 80| 10| 10| 0", " 10| 10| 0| 0"}});
}

// One week's need against a lot, with 7 due the next week: the release, and
// the next week's inventory it leaves.
TEST(Mrp, LotRoundsUpToOneHundredLots) {
  struct Case {
    const char *need, *lot, *release, *next;
  } cases[] = {{"30", "50", "50", " 27"}, {"120", "50", " 150", " 37"},
               {"50", "50", " 50", " 7"}, {"5001", "50", " 5001", " 7"},
               {"30", "L", " 30", " 7"},  {"12.5", "2.5", " 12.5", " 7"},
               {"30", "0.1", " 30", " 7"}};
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.need) + " / " + c.lot);
    MrpFields f = problem({{"-", "1", "-", "1", "0", "0", "0", "0", c.lot},
                           {"X", "1", "-", "0", "0", "0", "0", "0", "L"}},
                          {c.need, "0"});
    f.Unid[0][1].text = "7";
    const MrpRecords r = solve(f);
    EXPECT_EQ(r.LP[0][0], c.release);
    EXPECT_EQ(r.ID[0][1], c.next);
  }
}

TEST(Mrp, LeadTimesAtTheEdgesOfTheHorizon) {
  // As long as the horizon: nothing is released.
  MrpFields f = problem({{"-", "1", "-", "1", "0", "0", "0", "3", "L"},
                         {"X", "1", "-", "0", "0", "0", "0", "0", "L"}},
                        {"5", "5", "5"});
  EXPECT_EQ(cells(solve(f).LP, 0, 3), " 0| 0| 0");
  // Negative: the offset reads a week before the first.
  f.TS[0].text = "-1";
  EXPECT_EQ(errorOf([&] { solve(f); }), err::Subscript);
}

// A second parent among the rows not in use has no releases: nothing is added.
TEST(Mrp, SecondParentOutsideTheTableAddsNothing) {
  MrpFields f = problem({{"-", "1", "-", "1", "0", "0", "0", "0", "L"},
                         {"X", "2", "H", "5", "0", "0", "0", "0", "L"}},
                        {"3", "4"});
  ASSERT_TRUE(check(f).empty());
  EXPECT_EQ(cells(solve(f).NB, 1, 2), " 6| 8");
}

TEST(Mrp, ChecksGiveOneMessageInTheirOrder) {
  const MrpFields valid = problem({{"-", "1", "-", "1", "0", "0", "0", "0", "L"},
                                   {"X", "1", "B", "1", "0", "0", "0", "0", "10"},
                                   {"A", "1", "-", "1", "0", "0", "0", "0", "L"}},
                                  {"1", "1"});
  auto with = [&](auto change) {
    MrpFields f = valid;
    change(f);
    const Messages m = check(f);
    return m.empty() ? std::string() : m[0].text;
  };
  EXPECT_EQ(with([](MrpFields&) {}),
            "Un artículo no puede depender de otro que ya dependa del primero");
  auto noCycle = [](MrpFields& f) { f.D1[1].listIndex = 0; };
  EXPECT_EQ(with(noCycle), "");
  EXPECT_EQ(with([&](MrpFields& f) {
              noCycle(f);
              f.D[2].listIndex = 1, f.D1[2].listIndex = 1;  // A twice
              f.TamañoLote[1].text = "l";
            }),
            "Un artículo no puede depender de otro articulo dos veces al mismo tiempo");
  EXPECT_EQ(with([&](MrpFields& f) {
              noCycle(f);
              f.TamañoLote[1].text = "l";
              f.UniPA[1].text = "";
            }),
            "Las casillas correspondientes al plan maestro de la producción deben contener un "
            "valor numérico");
  EXPECT_EQ(
      with([&](MrpFields& f) {
        noCycle(f);
        f.TamañoLote[1].text = "l";
      }),
      "El tamaño de lote debe ser un valor numérico o la letra L si el pedido es lote a lote");
  // A cycle through three articles passes.
  MrpFields cycle = problem({{"-", "1", "-", "1", "0", "0", "0", "0", "L"},
                             {"X", "1", "C", "1", "0", "0", "0", "0", "L"},
                             {"A", "1", "-", "1", "0", "0", "0", "0", "L"},
                             {"B", "1", "-", "1", "0", "0", "0", "0", "L"}},
                            {"1", "1"});
  EXPECT_TRUE(check(cycle).empty());
  // An empty dependency is told by no message: a type mismatch ends the run.
  EXPECT_EQ(errorOf([] { check(MrpFields{}); }), err::TypeMismatch);
  cycle.NArt = "11";  // a row beyond the table
  EXPECT_EQ(errorOf([&] { check(cycle); }), err::Subscript);
}

TEST(Mrp, RediseñarAndTheScrollBar) {
  MrpFields f;
  f.NArt = "4";
  f.NSem = "3";
  rediseñar(f);
  EXPECT_TRUE(f.TamañoLote[3].visible && f.Unid[9][2].visible && !f.UniPA[3].visible);
  f.NArt = "11";
  rediseñar(f);
  EXPECT_FALSE(f.Art[0].visible || f.UniPA[0].visible || f.SemRP[0][0]);
  EXPECT_EQ(mostrar("ArticuloI"), 9);
  EXPECT_EQ(mostrar("articuloI"), std::nullopt);

  EXPECT_EQ(mrpScroll(10).maximum, 380);
  EXPECT_EQ(mrpScroll(5).maximum, 70);
  EXPECT_EQ(mrpScroll(4).maximum, std::nullopt);
  EXPECT_TRUE(mrpScroll(4).visible);
  EXPECT_FALSE(mrpScroll(3).visible);
  EXPECT_EQ(mrpPictureTop(380), -7600);
  EXPECT_EQ(errorOf([] { mrpPictureTop(1639); }), err::Overflow);
}

TEST(Mrp, FileWithAnIndexOutsideItsListIsNotRead) {
  MrpFields f;
  ProblemFile out = ProblemFile::forWriting();
  exchange(out, f);
  std::string bytes = out.bytes();
  // Row A's first parent names a third item of a list of one.
  const std::size_t at = bytes.find("-1\r\n#TRUE#\r\n\"\"");
  ASSERT_NE(at, std::string::npos);
  bytes.replace(at, 2, "2");
  ProblemFile in = ProblemFile::forReading(bytes);
  MrpFields g;
  EXPECT_THROW(exchange(in, g), ReadFailed);
  EXPECT_EQ(g.D[1].listIndex, -1);
}

}  // namespace
}  // namespace vorel::inventory
