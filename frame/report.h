// Report lines: print statements made of text pieces and zone steps.
//
// A zone step moves the print position to the next zone start strictly after
// it; zones lie 14 columns apart. A statement ends its line unless it is a
// continuation, in which case the next statement goes on on the same line.
#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <variant>
#include <vector>

namespace vorel {

struct ZoneStep {};
inline constexpr ZoneStep Z{};  // the zone step of a print statement

using Piece = std::variant<std::string, ZoneStep>;

struct Statement {
  std::vector<Piece> pieces;
  bool continues = false;  // the next statement goes on on this line
};

inline constexpr int kZoneColumns = 14;
inline const std::string kRule(74, '_');

class Report {
 public:
  // A statement ending its line: r.line(Z, "Demanda anual:", Z, Z, Z, D, " unidades").
  template <class... Items>
  Report& line(const Items&... items) {
    statements_.push_back({{Piece(toPiece(items))...}, false});
    return *this;
  }
  // A statement whose line continues with the next statement.
  template <class... Items>
  Report& cont(const Items&... items) {
    statements_.push_back({{Piece(toPiece(items))...}, true});
    return *this;
  }
  Report& blankLines(int count);  // count times Z " "
  // The frame of every report: Z "Solución al problema:  " title, the rule, Z " ".
  Report& heading(const std::string& title);
  Report& rule();  // Z rule, then Z " "
  Report& append(const Report& other);

  const std::vector<Statement>& statements() const { return statements_; }
  bool empty() const { return statements_.empty(); }

 private:
  static Piece toPiece(ZoneStep z) { return z; }
  static Piece toPiece(const std::string& s) { return s; }
  static Piece toPiece(const char* s) { return std::string(s); }

  std::vector<Statement> statements_;
};

// The printed page's head: five blank lines, the model's title in capitals,
// then `after` blank lines (five, four in some models).
Report pageHead(const std::string& capitalTitle, int after = 5);

// One placed text of a laid-out line, at x in the measuring unit.
struct PlacedText {
  double x;
  std::string text;
};
using LaidOutLine = std::vector<PlacedText>;

// Lays out a report with any measure of text width: columns for plain text,
// device units on screen and paper.
std::vector<LaidOutLine> layout(const Report& report, double zoneWidth,
                                const std::function<double(const std::string&)>& width);

// The average character width of a font as the platform measured it, from
// the widths of single characters: the weighted average of the lower-case
// letters and the blank, in the weights of English text. (A font's own
// recorded average may count every glyph.) A zone is 14 of these.
double averageCharWidth(const std::function<double(const std::string&)>& width);

// The number of characters (code points) of a UTF-8 text.
int columns(const std::string& utf8);

// Plain text, one column per character, lines joined with "\n".
std::string renderText(const Report& report);

}  // namespace vorel
