#include "frame/arith.h"

#include <locale.h>
#include <stdlib.h>

#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <new>

namespace vorel {

std::string errorText(int number) {
  switch (number) {
    case err::InvalidCall:
      return "Argumento o llamada a procedimiento no válida";
    case err::Overflow:
      return "Desbordamiento";
    case err::Subscript:
      return "El subíndice está fuera del intervalo";
    case err::DivisionByZero:
      return "División por cero";
    case err::OutOfMemory:
      return "Memoria insuficiente";
    case err::TypeMismatch:
      return "No coinciden los tipos";
    case err::Internal:
      return "Error interno";
    case err::ObjectNotSet:
      return "Variable de tipo Object o la variable de bloque With no está establecida";
    case err::PrinterError:
      return "Error de impresora";
    default:
      return "Error definido por la aplicación o por el objeto";
  }
}

RuntimeError::RuntimeError(int number) : std::runtime_error(errorText(number)), number_(number) {}

void raise(int number) { throw RuntimeError(number); }

RuntimeError platformError(const std::exception& e) {
  if (auto* own = dynamic_cast<const RuntimeError*>(&e)) return *own;
  if (dynamic_cast<const std::bad_alloc*>(&e)) return RuntimeError(err::OutOfMemory);
  return RuntimeError(err::Internal);
}

namespace {

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }
bool isDigit(char c) { return c >= '0' && c <= '9'; }

// Parses a canonical number text (sign, digits, ".", digits, "e", sign,
// digits) that the callers have already assembled. strtod_l under the "C"
// locale: correctly rounded, and "." whatever locale the process runs in (the
// desktop program's toolkit sets the user's, where "," may be the mark).
double parseCanonical(const std::string& s) {
  if (s.empty()) return 0;
  static const locale_t classic = newlocale(LC_ALL_MASK, "C", locale_t{});
  errno = 0;
  char* end = nullptr;
  const double value = strtod_l(s.c_str(), &end, classic);
  if (end == s.c_str()) return 0;
  // Overflow is an error; underflow quietly gives zero, as the platform did.
  // A tiny value that still has a subnormal form keeps it.
  if (std::isinf(value)) raise(err::Overflow);
  if (errno == ERANGE && value == 0) return 0;
  return value;
}

}  // namespace

double Val(std::string_view text) {
  // Gather the characters of the leading number, skipping blanks anywhere.
  std::string number;
  enum class At { Sign, Whole, Fraction, ExpSign, ExpDigits } at = At::Sign;
  bool anyDigit = false;
  std::string exponent;
  for (char c : text) {
    if (isBlank(c)) continue;
    if (at == At::Sign) {
      at = At::Whole;
      if (c == '+' || c == '-') {
        number += c;
        continue;
      }
    }
    if (at == At::Whole) {
      if (isDigit(c)) {
        number += c;
        anyDigit = true;
        continue;
      }
      if (c == '.') {
        number += c;
        at = At::Fraction;
        continue;
      }
    } else if (at == At::Fraction) {
      if (isDigit(c)) {
        number += c;
        anyDigit = true;
        continue;
      }
    } else if (at == At::ExpSign) {
      at = At::ExpDigits;
      if (c == '+' || c == '-') {
        exponent += c;
        continue;
      }
    }
    if (at == At::ExpDigits) {
      if (isDigit(c)) {
        exponent += c;
        continue;
      }
      break;
    }
    if ((c == 'e' || c == 'E' || c == 'd' || c == 'D') && anyDigit) {
      at = At::ExpSign;
      continue;
    }
    break;
  }
  if (!anyDigit) return 0;
  bool exponentDigits = exponent.find_first_of("0123456789") != std::string::npos;
  if (exponentDigits) number += "e" + exponent;
  return parseCanonical(number);
}

namespace {
char decimalMarkFromEnvironment() {
  for (const char* name : {"LC_ALL", "LC_NUMERIC", "LANG"}) {
    const char* value = std::getenv(name);
    if (!value || !*value) continue;
    std::string_view lang(value);
    static constexpr std::string_view commaLanguages[] = {
        "es", "ca", "gl", "eu", "fr", "de", "it", "pt", "nl", "da", "sv",
        "nb", "nn", "fi", "pl", "cs", "sk", "sl", "hr", "hu", "ro", "ru",
        "uk", "tr", "el", "bg", "sr", "lt", "lv", "et", "id", "vi"};
    for (auto l : commaLanguages)
      if (lang.substr(0, 2) == l && (lang.size() == 2 || lang[2] == '_' || lang[2] == '.'))
        return ',';
    return '.';
  }
  return '.';
}

char& decimalMarkSetting() {
  static char mark = decimalMarkFromEnvironment();
  return mark;
}
}  // namespace

char localeDecimalMark() { return decimalMarkSetting(); }
void setLocaleDecimalMark(char mark) { decimalMarkSetting() = mark; }

bool IsNumeric(std::string_view text) { return IsNumeric(text, localeDecimalMark()); }

bool IsNumeric(std::string_view text, char decimalMark) {
  const char groupMark = decimalMark == ',' ? '.' : ',';
  std::size_t i = 0, n = text.size();
  while (i < n && isBlank(text[i])) ++i;
  while (n > i && isBlank(text[n - 1])) --n;
  std::string number;
  if (i < n && (text[i] == '+' || text[i] == '-')) number += text[i++];
  bool digits = false;
  while (i < n && (isDigit(text[i]) || text[i] == groupMark)) {
    if (text[i] != groupMark) {
      number += text[i];
      digits = true;
    }
    ++i;
  }
  if (i < n && text[i] == decimalMark) {
    number += '.';
    ++i;
    while (i < n && isDigit(text[i])) {
      number += text[i++];
      digits = true;
    }
  }
  if (!digits) return false;
  if (i < n && (text[i] == 'e' || text[i] == 'E' || text[i] == 'd' || text[i] == 'D')) {
    number += 'e';
    ++i;
    if (i < n && (text[i] == '+' || text[i] == '-')) number += text[i++];
    bool expDigits = false;
    while (i < n && isDigit(text[i])) {
      number += text[i++];
      expDigits = true;
    }
    if (!expDigits) return false;
  }
  if (i != n) return false;
  try {
    parseCanonical(number);  // a number beyond Double's range is not numeric
  } catch (const RuntimeError&) {
    return false;
  }
  return true;
}

double CDbl(std::string_view text) {
  if (!IsNumeric(text)) raise(err::TypeMismatch);
  // The locale's decimal mark counts here, unlike in Val; group marks are dropped.
  const char mark = localeDecimalMark(), group = mark == ',' ? '.' : ',';
  std::string canonical;
  for (char c : text) {
    if (c == group) continue;
    canonical += c == mark ? '.' : c;
  }
  return Val(canonical);
}

std::string selectorText(int listIndex, int count) {
  return listIndex >= 0 && listIndex < count ? std::to_string(listIndex + 1) : std::string();
}

namespace {
std::string format(double x, int precision) {
  if (x == 0) return " 0";
  char buffer[64];
  std::snprintf(buffer, sizeof buffer, "%.*e", precision - 1, std::fabs(x));
  std::string text(buffer);
  std::size_t e = text.find('e');
  std::string digits;
  for (std::size_t k = 0; k < e; ++k)
    if (isDigit(text[k])) digits += text[k];
  int exponent = std::atoi(text.c_str() + e + 1);
  while (digits.size() > 1 && digits.back() == '0') digits.pop_back();

  std::string out = x < 0 ? "-" : " ";
  if (exponent < -4 || exponent >= precision) {
    out += digits[0];
    if (digits.size() > 1) out += "." + digits.substr(1);
    char expText[16];
    std::snprintf(expText, sizeof expText, "E%c%02d", exponent < 0 ? '-' : '+', std::abs(exponent));
    out += expText;
  } else if (exponent >= 0) {
    std::size_t whole = static_cast<std::size_t>(exponent) + 1;
    if (digits.size() <= whole) {
      out += digits + std::string(whole - digits.size(), '0');
    } else {
      out += digits.substr(0, whole) + "." + digits.substr(whole);
    }
  } else {
    out += "." + std::string(static_cast<std::size_t>(-exponent - 1), '0') + digits;
  }
  return out;
}
}  // namespace

std::string Str(float x) { return format(x, 7); }
std::string Str(double x) { return format(x, 15); }
std::string printed(float x) { return Str(x) + " "; }
std::string printed(double x) { return Str(x) + " "; }

float Sng(double x) {
  checked(x);
  float f = static_cast<float>(x);
  if (std::isinf(f)) raise(err::Overflow);
  return f;
}

double checked(double x) {
  if (!std::isfinite(x)) raise(err::Overflow);
  return x;
}

double divide(double a, double b) {
  if (b == 0) raise(a == 0 ? err::Overflow : err::DivisionByZero);
  return checked(a / b);
}

double Sqr(double x) {
  if (x < 0) raise(err::InvalidCall);
  return std::sqrt(x);
}

double Log(double x) {
  if (x <= 0) raise(err::InvalidCall);
  return std::log(x);
}

double Exp(double x) { return checked(std::exp(x)); }

double power(double base, double exponent) {
  if (base < 0 && exponent != std::floor(exponent)) raise(err::InvalidCall);
  if (base == 0 && exponent < 0) raise(err::InvalidCall);
  return checked(std::pow(base, exponent));
}

namespace {
std::int16_t narrow(long value) {
  if (value < std::numeric_limits<std::int16_t>::min() ||
      value > std::numeric_limits<std::int16_t>::max())
    raise(err::Overflow);
  return static_cast<std::int16_t>(value);
}
}  // namespace

Integer::Integer(int value) : value_(narrow(value)) {}
Integer& Integer::operator+=(Integer o) {
  value_ = narrow(long(value_) + o.value_);
  return *this;
}
Integer& Integer::operator-=(Integer o) {
  value_ = narrow(long(value_) - o.value_);
  return *this;
}
Integer& Integer::operator*=(Integer o) {
  value_ = narrow(long(value_) * o.value_);
  return *this;
}
Integer& Integer::operator++() { return *this += 1; }
Integer& Integer::operator--() { return *this -= 1; }

Integer CInt(double x) {
  if (!std::isfinite(x) || x < -32768.5 || x >= 32767.5) raise(err::Overflow);
  return Integer(static_cast<int>(std::nearbyint(x)));  // default rounding: half to even
}

}  // namespace vorel
