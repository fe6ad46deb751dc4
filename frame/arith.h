// The platform's arithmetic: number parsing and formatting, Single and 16-bit
// Integer storage, and the run-time errors raised where the arithmetic fails.
#pragma once

#include <cstdint>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>

namespace vorel {

// A run-time error of the platform: its number and its Spanish text.
class RuntimeError : public std::runtime_error {
 public:
  explicit RuntimeError(int number);
  int number() const { return number_; }

 private:
  int number_;
};

namespace err {
inline constexpr int InvalidCall = 5;  // square root or logarithm out of domain
inline constexpr int Overflow = 6;     // overflow, 0/0
inline constexpr int OutOfMemory = 7;
inline constexpr int Subscript = 9;  // index outside an array
inline constexpr int DivisionByZero = 11;
inline constexpr int TypeMismatch = 13;  // a text where a number is needed
inline constexpr int Internal = 51;      // anything else that fails
inline constexpr int ObjectNotSet = 91;
inline constexpr int PrinterError = 482;
}  // namespace err

std::string errorText(int number);
[[noreturn]] void raise(int number);
// The platform's error for any exception: itself when it is one, error 7 when
// memory ran out, error 51 for anything else.
RuntimeError platformError(const std::exception& e);

// Reads the longest leading number of a text; "." is the only decimal mark.
double Val(std::string_view text);

// The decimal mark of the user's locale, taken from the environment at first
// use (LC_ALL, LC_NUMERIC, LANG); tests may set it.
char localeDecimalMark();
void setLocaleDecimalMark(char mark);

// Whether the text is a number in the user's locale (see localeDecimalMark).
bool IsNumeric(std::string_view text);
bool IsNumeric(std::string_view text, char decimalMark);

// A text used where a number is needed, as the platform converts it: a text
// that is not numeric is a type mismatch (error 13).
double CDbl(std::string_view text);

// The text of a selector whose items are "1", "2"... for a list index: empty
// when nothing is selected or the index is beyond its `count` items.
std::string selectorText(int listIndex, int count);

// Text of a number: a leading blank unless negative, 7 (Single) or 15
// (Double) significant digits in the shortest form.
std::string Str(float x);
std::string Str(double x);
// A number printed directly: the same text with a trailing blank.
std::string printed(float x);
std::string printed(double x);

// Storage into a Single: rounds to nearest; out of range is an overflow.
float Sng(double x);

// Double arithmetic that fails as the platform does.
double checked(double x);  // infinity or NaN raise an overflow
double divide(double a, double b);
double Sqr(double x);
double Log(double x);
double Exp(double x);
double power(double base, double exponent);

// The 16-bit Integer: arithmetic and conversion out of range raise overflow.
class Integer {
 public:
  constexpr Integer() = default;
  Integer(int value);                      // NOLINT: implicit, as integer literals are Integers
  operator int() const { return value_; }  // NOLINT

  Integer& operator+=(Integer o);
  Integer& operator-=(Integer o);
  Integer& operator*=(Integer o);
  Integer& operator++();
  Integer& operator--();

  friend Integer operator+(Integer a, Integer b) { return a += b; }
  friend Integer operator-(Integer a, Integer b) { return a -= b; }
  friend Integer operator*(Integer a, Integer b) { return a *= b; }
  friend Integer operator+(Integer a, int b) { return a += Integer(b); }
  friend Integer operator-(Integer a, int b) { return a -= Integer(b); }
  friend Integer operator*(Integer a, int b) { return a *= Integer(b); }
  friend Integer operator+(int a, Integer b) { return Integer(a) += b; }
  friend Integer operator-(int a, Integer b) { return Integer(a) -= b; }
  friend Integer operator*(int a, Integer b) { return Integer(a) *= b; }

 private:
  std::int16_t value_ = 0;
};

// Conversion of a Double to Integer: round half to even, overflow beyond 16 bits.
Integer CInt(double x);

// Checked element access: an index outside the array is error 9.
template <class Array>
auto& item(Array& a, long index) {
  if (index < 0 || static_cast<unsigned long>(index) >= std::size(a)) raise(err::Subscript);
  return a[static_cast<std::size_t>(index)];
}

}  // namespace vorel
