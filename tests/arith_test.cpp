#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "frame/arith.h"

namespace vorel {
namespace {

int errorOf(const std::function<void()>& f) {
  try {
    f();
  } catch (const RuntimeError& e) {
    return e.number();
  }
  return 0;
}

TEST(Str, SingleShortestFormAtSevenDigits) {
  struct Case { float x; const char* text; } cases[] = {
      {158.1139f, " 158.1139"}, {0.5f, " .5"},       {-0.25f, "-.25"},
      {1.5e8f, " 1.5E+08"},     {0.0f, " 0"},        {-0.0f, " 0"},
      {40.0f, " 40"},           {2632.456f, " 2632.456"}, {1234567.0f, " 1234567"},
      {12345678.0f, " 1.234568E+07"}, {0.0001f, " .0001"}, {0.00001f, " 1E-05"},
      {-3.0f, "-3"},            {9999999.5f, " 1E+07"}, {1.0f / 3.0f, " .3333333"},
      {6.324555f, " 6.324555"}, {1e-20f, " 1E-20"},   {3.4e38f, " 3.4E+38"},
  };
  for (const auto& c : cases) EXPECT_EQ(Str(c.x), c.text) << c.x;
}

TEST(Str, DoubleShortestFormAtFifteenDigits) {
  EXPECT_EQ(Str(1.0 / 3.0), " .333333333333333");
  EXPECT_EQ(Str(2.0 / 3.0), " .666666666666667");
  EXPECT_EQ(Str(0.5), " .5");
  EXPECT_EQ(Str(-0.25), "-.25");
  EXPECT_EQ(Str(0.0), " 0");
  EXPECT_EQ(Str(1e15), " 1E+15");
  EXPECT_EQ(Str(123456789012345.0), " 123456789012345");
  EXPECT_EQ(Str(0.1 + 0.2), " .3");
  EXPECT_EQ(Str(1e100), " 1E+100");
  EXPECT_EQ(Str(-1.5e-7), "-1.5E-07");
}

TEST(Str, PrintedDirectlyHasTrailingBlank) {
  EXPECT_EQ(printed(2.5f), " 2.5 ");
  EXPECT_EQ(printed(-1.0), "-1 ");
}

TEST(Val, ReadsLongestLeadingNumberWithPointOnly) {
  struct Case { const char* text; double value; } cases[] = {
      {"12abc", 12},   {" 1 2", 12},  {"1,5", 1},     {"1e3", 1000},   {"", 0},
      {"abc", 0},      {"-", 0},      {".5", 0.5},    {"-2.5", -2.5},  {"+7", 7},
      {"1.2.3", 1.2},  {"1e", 1},     {"1e+", 1},     {"2D2", 200},    {"1.5E-1x", 0.15},
      {"\t3\n4", 34},  {"e5", 0},     {"1e5e3", 1e5}, {"  -  4", -4},  {"1e-400", 0},
  };
  for (const auto& c : cases) EXPECT_DOUBLE_EQ(Val(c.text), c.value) << c.text;
}

TEST(Val, BeyondDoubleRangeIsOverflow) {
  EXPECT_EQ(errorOf([] { Val("1e400"); }), err::Overflow);
}

// The nearest Double, ties to even, up to the last digit typed; the largest
// Double is still read, the next representable step beyond it is not.
TEST(Val, RoundsCorrectlyUpToTheEdgesOfDoubleRange) {
  EXPECT_EQ(Val("9007199254740993"), 9007199254740992.0);
  EXPECT_EQ(Val("9007199254740993.000000000000000000001"), 9007199254740994.0);
  EXPECT_EQ(Val("0.1"), 0.1);
  EXPECT_EQ(Val("1.797693134862315807e308"), std::numeric_limits<double>::max());
  EXPECT_EQ(errorOf([] { Val("1.797693134862315808e308"); }), err::Overflow);
  EXPECT_EQ(errorOf([] { Val("-1e309"); }), err::Overflow);
}

// Below the normal range a value keeps its subnormal form; only what rounds
// to nothing underflows, to a plain zero, whether or not an exponent was typed.
TEST(Val, UnderflowGivesSubnormalOrPlainZero) {
  EXPECT_EQ(Val("1e-310"), 1e-310);
  EXPECT_EQ(Val("-2.2250738585072011e-308"), -2.2250738585072011e-308);
  EXPECT_EQ(Val("4.9e-324"), std::numeric_limits<double>::denorm_min());
  EXPECT_EQ(Val("2.4703282292062328e-324"), std::numeric_limits<double>::denorm_min());
  EXPECT_EQ(Val("2.4703282292062327e-324"), 0);
  EXPECT_FALSE(std::signbit(Val("-1e-400")));
  EXPECT_TRUE(std::signbit(Val("-0")));
  const std::string tiny = "0." + std::string(400, '0') + "1";
  EXPECT_EQ(errorOf([&] { EXPECT_EQ(Val(tiny), 0); }), 0);
  EXPECT_EQ(errorOf([&] { EXPECT_EQ(Val(tiny + "e5"), 0); }), 0);
}

TEST(IsNumeric, FollowsTheLocaleDecimalMark) {
  struct Case { const char* text; bool spanish, english; } cases[] = {
      {"1e3", true, true},     {"2,5", true, true},      {"2.5", true, true},
      {"", false, false},      {"   ", false, false},     {"abc", false, false},
      {"12abc", false, false}, {" 42 ", true, true},     {"-3", true, true},
      {"1.234,5", true, false}, {"1,234.5", false, true}, {"2,5,1", false, true},
      {".", false, false},     {"1e", false, false},     {"+.5", true, true},
      {"1e400", false, false}, {"1 2", false, false},    {"-1.5E-3", true, true},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(IsNumeric(c.text, ','), c.spanish) << "es: " << c.text;
    EXPECT_EQ(IsNumeric(c.text, '.'), c.english) << "en: " << c.text;
  }
  setLocaleDecimalMark(',');
  EXPECT_TRUE(IsNumeric("3,25"));
  setLocaleDecimalMark('.');
  EXPECT_FALSE(IsNumeric("1.234,5"));
}

TEST(CDbl, ConvertsInTheLocaleOrFailsWithTypeMismatch) {
  setLocaleDecimalMark(',');
  EXPECT_DOUBLE_EQ(CDbl("2,5"), 2.5);
  EXPECT_DOUBLE_EQ(CDbl("1.234,5"), 1234.5);
  EXPECT_EQ(errorOf([] { CDbl(""); }), err::TypeMismatch);
  setLocaleDecimalMark('.');
  EXPECT_DOUBLE_EQ(CDbl(" 7 "), 7);
  EXPECT_DOUBLE_EQ(CDbl("1,234.5"), 1234.5);
  EXPECT_EQ(errorOf([] { CDbl("siete"); }), err::TypeMismatch);
  EXPECT_EQ(selectorText(0, 7), "1");
  EXPECT_EQ(selectorText(6, 7), "7");
  EXPECT_EQ(selectorText(-1, 7), "");
  EXPECT_EQ(selectorText(7, 7), "");
}

TEST(Integer, SixteenBitArithmeticOverflows) {
  Integer i = 32767;
  EXPECT_EQ(errorOf([&] { i + 1; }), err::Overflow);
  EXPECT_EQ(errorOf([&] { ++i; }), err::Overflow);
  Integer low = -32768;
  EXPECT_EQ(errorOf([&] { low - 1; }), err::Overflow);
  EXPECT_EQ(errorOf([] { Integer(200) * 200; }), err::Overflow);
  EXPECT_EQ(errorOf([] { Integer x = 40000; (void)x; }), err::Overflow);
  Integer k = 7;
  k += 3;
  EXPECT_EQ(int(k * 2 - 1), 19);
}

TEST(Integer, ConversionRoundsHalfToEven) {
  struct Case { double x; int value; } cases[] = {
      {2.5, 2}, {3.5, 4}, {-2.5, -2}, {0.5, 0}, {1.5, 2}, {2.4999, 2}, {-32768.4, -32768},
      {32767.4, 32767}};
  for (const auto& c : cases) EXPECT_EQ(int(CInt(c.x)), c.value) << c.x;
  EXPECT_EQ(errorOf([] { CInt(32767.5); }), err::Overflow);
  EXPECT_EQ(errorOf([] { CInt(-32769); }), err::Overflow);
}

TEST(CheckedArithmetic, RaisesThePlatformErrors) {
  EXPECT_EQ(errorOf([] { divide(1, 0); }), err::DivisionByZero);
  EXPECT_EQ(errorOf([] { divide(-3, 0); }), err::DivisionByZero);
  EXPECT_EQ(errorOf([] { divide(0, 0); }), err::Overflow);
  EXPECT_EQ(errorOf([] { divide(1e308, 1e-10); }), err::Overflow);
  EXPECT_EQ(errorOf([] { Sqr(-1); }), err::InvalidCall);
  EXPECT_EQ(errorOf([] { Log(0); }), err::InvalidCall);
  EXPECT_EQ(errorOf([] { power(-8, 1.0 / 3); }), err::InvalidCall);
  EXPECT_EQ(errorOf([] { Sng(1e39); }), err::Overflow);
  EXPECT_EQ(errorOf([] { Exp(1000); }), err::Overflow);
  EXPECT_DOUBLE_EQ(power(-2, 3), -8);
  EXPECT_DOUBLE_EQ(Sqr(2.25), 1.5);
  EXPECT_EQ(Sng(1.0 / 3.0), 1.0f / 3.0f);
  int a[3] = {1, 2, 3};
  EXPECT_EQ(errorOf([&] { item(a, 3); }), err::Subscript);
  EXPECT_EQ(errorOf([&] { item(a, -1); }), err::Subscript);
  EXPECT_EQ(item(a, 2), 3);
}

TEST(RuntimeError, CarriesNumberAndSpanishText) {
  struct Case { int number; const char* text; } cases[] = {
      {5, "Argumento o llamada a procedimiento no válida"},
      {6, "Desbordamiento"},
      {9, "El subíndice está fuera del intervalo"},
      {11, "División por cero"},
      {13, "No coinciden los tipos"},
  };
  for (const auto& c : cases) {
    RuntimeError e(c.number);
    EXPECT_EQ(e.number(), c.number);
    EXPECT_STREQ(e.what(), c.text);
  }
}

}  // namespace
}  // namespace vorel
