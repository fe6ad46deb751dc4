#include "frame/report.h"

#include <cmath>

namespace vorel {

Report& Report::blankLines(int count) {
  for (int i = 0; i < count; ++i) line(Z, " ");
  return *this;
}

Report& Report::heading(const std::string& title) {
  line(Z, "Solución al problema:  " + title);
  return rule();
}

Report& Report::rule() {
  line(Z, kRule + "  ");
  return line(Z, " ");
}

Report& Report::append(const Report& other) {
  statements_.insert(statements_.end(), other.statements_.begin(), other.statements_.end());
  return *this;
}

Report pageHead(const std::string& capitalTitle, int after) {
  Report r;
  r.blankLines(5);
  r.line(Z, Z, capitalTitle + " ");
  r.blankLines(after);
  return r;
}

std::vector<LaidOutLine> layout(const Report& report, double zoneWidth,
                                const std::function<double(const std::string&)>& width) {
  std::vector<LaidOutLine> lines;
  LaidOutLine current;
  double x = 0;
  double lastEnd = -1;  // where the last text ended, to join adjacent texts
  for (const Statement& statement : report.statements()) {
    for (const Piece& piece : statement.pieces) {
      if (std::holds_alternative<ZoneStep>(piece)) {
        x = (std::floor(x / zoneWidth + 1e-9) + 1) * zoneWidth;
        continue;
      }
      const std::string& text = std::get<std::string>(piece);
      if (text.empty()) continue;
      if (!current.empty() && lastEnd == x) {
        current.back().text += text;
      } else {
        current.push_back({x, text});
      }
      x += width(text);
      lastEnd = x;
    }
    if (!statement.continues) {
      lines.push_back(std::move(current));
      current.clear();
      x = 0;
      lastEnd = -1;
    }
  }
  if (!current.empty()) lines.push_back(std::move(current));
  return lines;
}

double averageCharWidth(const std::function<double(const std::string&)>& width) {
  static constexpr int kWeights[27] = {64, 14, 27, 35, 100, 20, 14, 42, 63, 3, 6,  35, 20, 56,
                                       56, 17, 4,  49, 56,  71, 31, 10, 18, 3, 18, 2,  166};
  double sum = 0;
  for (int k = 0; k < 26; ++k) sum += kWeights[k] * width(std::string(1, char('a' + k)));
  sum += kWeights[26] * width(" ");
  return sum / 1000;
}

int columns(const std::string& utf8) {
  int count = 0;
  for (unsigned char c : utf8)
    if ((c & 0xC0) != 0x80) ++count;
  return count;
}

std::string renderText(const Report& report) {
  std::string out;
  auto width = [](const std::string& s) { return double(columns(s)); };
  for (const LaidOutLine& line : layout(report, kZoneColumns, width)) {
    std::string text;
    int at = 0;
    for (const PlacedText& piece : line) {
      int x = static_cast<int>(piece.x);
      if (x > at) text.append(static_cast<std::size_t>(x - at), ' ');
      text += piece.text;
      at = x + columns(piece.text);
    }
    out += text + "\n";
  }
  return out;
}

}  // namespace vorel
