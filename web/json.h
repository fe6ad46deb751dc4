// A small JSON writer for the browser module's answers.
#pragma once

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace vorel::web {

class Json {
 public:
  Json& open(char bracket) {
    comma();
    out_ += bracket;
    first_ = true;
    return *this;
  }
  Json& close(char bracket) {
    out_ += bracket;
    first_ = false;
    return *this;
  }
  Json& key(std::string_view k) {
    value(k);
    out_ += ':';
    first_ = true;
    return *this;
  }
  Json& value(std::string_view s) {
    comma();
    out_ += '"';
    for (unsigned char c : s) {
      switch (c) {
        case '"':
          out_ += "\\\"";
          break;
        case '\\':
          out_ += "\\\\";
          break;
        case '\n':
          out_ += "\\n";
          break;
        case '\r':
          out_ += "\\r";
          break;
        case '\t':
          out_ += "\\t";
          break;
        default:
          if (c < 0x20) {
            static constexpr char kHex[] = "0123456789abcdef";
            out_ += "\\u00";
            out_ += kHex[c >> 4];
            out_ += kHex[c & 15];
          } else {
            out_ += static_cast<char>(c);
          }
      }
    }
    out_ += '"';
    return *this;
  }
  Json& value(const char* s) { return value(std::string_view(s)); }
  Json& value(const std::string& s) { return value(std::string_view(s)); }
  Json& value(bool b) { return raw(b ? "true" : "false"); }
  Json& value(int n) { return raw(std::to_string(n)); }
  Json& value(double x) {
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%.6g", x);
    return raw(buffer);
  }
  // A number exactly as it is held: the fewest digits (15 to 17) that read
  // back as the same double. JSON has no word for NaN or the infinities: they
  // are null.
  Json& number(double x) {
    if (!std::isfinite(x)) return raw("null");
    char buffer[32];
    for (int digits = 15; digits <= 17; ++digits) {
      std::snprintf(buffer, sizeof buffer, "%.*g", digits, x);
      if (std::strtod(buffer, nullptr) == x) break;
    }
    return raw(buffer);
  }
  // key: value
  template <class T>
  Json& field(std::string_view k, const T& v) {
    key(k);
    return value(v);
  }

  const std::string& str() const { return out_; }
  // A value already written as JSON.
  Json& raw(std::string_view text) {
    comma();
    out_ += text;
    return *this;
  }

 private:
  void comma() {
    if (!first_) out_ += ',';
    first_ = false;
  }

  std::string out_;
  bool first_ = true;
};

}  // namespace vorel::web
