#include <gtest/gtest.h>

#include "frame/arith.h"
#include "inventory/eoq.h"
#include "tests/test_support.h"

namespace vorel::inventory {
namespace {

EoqFields textbook() {
  EoqFields f;
  f.D = "1000";
  f.E = "50";
  f.A = "4";
  f.TS = "10";
  f.dias = "250";
  f.P = "2";
  return f;
}

TEST(Eoq, TextbookProblemGivesSingleResults) {
  const EoqResults r = solve(textbook());
  EXPECT_EQ(Str(r.Q), " 158.1139");
  EXPECT_EQ(Str(r.n), " 6.324555");
  EXPECT_EQ(Str(r.TR), " 39.52847");
  EXPECT_EQ(Str(r.Pp), " 40");
  EXPECT_EQ(Str(r.CT), " 2632.456");
  // Later formulas use the rounded Single: n is D over the stored Q.
  EXPECT_EQ(r.n, Sng(1000.0 / double(r.Q)));
}

TEST(Eoq, ChecksRunInOrderAndTheFirstFailureEnds) {
  struct Case { void (*edit)(EoqFields&); const char* message; } cases[] = {
      {[](EoqFields& f) { f.D = ""; f.E = "x"; },
       "Valor de la demanda (D) no válido. Introduce un nuevo valor"},
      {[](EoqFields& f) { f.D = "0"; },
       "Valor de la demanda (D) no válido. Introduce un nuevo valor entre 0 y 999.999.999"},
      {[](EoqFields& f) { f.E = "abc"; f.A = "0"; },
       "Valor del coste de emisión (E) no válido. Introduce un nuevo valor"},
      {[](EoqFields& f) { f.E = "-1"; },
       "Valor del coste de emisión (E) no válido. Introduce un nuevo valor entre 0 y 999.999.999"},
      {[](EoqFields& f) { f.A = "1000000000"; },
       "Valor del coste de almacenamiento (A) no válido. Introduce un nuevo valor entre 0 y "
       "999.999.999"},
      {[](EoqFields& f) { f.TS = "1000"; },
       "Valor del Tiempo de Suministro (Ts) no válido. Introduce un nuevo valor entre 0 y 999"},
      {[](EoqFields& f) { f.dias = "366"; },
       "Valor del Período de Gestión no válido. Introduce un nuevo valor entre 0 y 365"},
      {[](EoqFields& f) { f.dias = "0"; f.P = ""; },
       "Valor del Período de Gestión no válido. Introduce un nuevo valor entre 0 y 365"},
      {[](EoqFields& f) { f.P = "12abc"; },
       "Valor del Coste unitario no válido. Introduce un nuevo valor"},
      {[](EoqFields& f) { f.P = "0"; },
       "Valor del Coste unitario no válido. Introduce un nuevo valor entre 0 y 999.999.999"},
  };
  for (const auto& c : cases) {
    EoqFields f = textbook();
    c.edit(f);
    const Messages m = check(f);
    ASSERT_EQ(m.size(), 1u) << c.message;
    EXPECT_EQ(m[0].text, c.message);
    EXPECT_EQ(m[0].focus, "");
  }
}

TEST(Eoq, UpperBoundsAndExponentFormAreAccepted) {
  EoqFields f = textbook();
  f.D = "999999999";
  f.E = "999999999";
  f.A = "999999999";
  f.TS = "999";
  f.dias = "365";
  f.P = "999999999";
  EXPECT_TRUE(check(f).empty());
  f.D = "1e3";
  EXPECT_TRUE(check(f).empty());
  EXPECT_EQ(Str(solve(f).Pp), Str(Sng(999.0 * 1000 / 365)));
}

// A tiny holding cost passes the checks, but Q no longer fits a Single.
TEST(Eoq, AQuantityBeyondSingleIsAnOverflow) {
  EoqFields f = textbook();
  f.A = "1e-300";
  ASSERT_TRUE(check(f).empty());
  try {
    solve(f);
    ADD_FAILURE() << "no overflow";
  } catch (const RuntimeError& e) {
    EXPECT_EQ(e.number(), err::Overflow);
  }
}

TEST(Eoq, DecimalCommaIsNumericButValReadsTheWholePart) {
  setLocaleDecimalMark(',');
  EoqFields f = textbook();
  f.A = "4,9";
  EXPECT_TRUE(check(f).empty());
  EXPECT_EQ(Str(solve(f).Q), " 158.1139");
  setLocaleDecimalMark('.');
}

TEST(Eoq, FileHasSevenTextItemsInOrder) {
  EoqFields f = textbook();
  f.Titulo1 = "Almacén";
  ProblemFile out = ProblemFile::forWriting();
  exchange(out, f);
  EXPECT_EQ(out.bytes(),
            "\"Almac\xE9n\"\r\n\"1000\"\r\n\"50\"\r\n\"4\"\r\n\"10\"\r\n\"250\"\r\n\"2\"\r\n");
  EoqFields back;
  ProblemFile in = ProblemFile::forReading(out.bytes());
  exchange(in, back);
  EXPECT_EQ(back.Titulo1, "Almacén");
  EXPECT_EQ(back.P, "2");
}

TEST(Eoq, NuevoBlanksTheNumbersAndKeepsTheTitle) {
  EoqFields f = textbook();
  f.Titulo1 = "Mío";
  nuevo(f);
  EXPECT_EQ(f.Titulo1, "Mío");
  for (const std::string* s : {&f.D, &f.E, &f.A, &f.TS, &f.dias, &f.P}) EXPECT_EQ(*s, "");
}

}  // namespace
}  // namespace vorel::inventory
