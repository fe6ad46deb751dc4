// The chart data the browser draws: every chart an example gives, written as
// JSON and read back by a strict reader, holds the core's chart exactly.
#include "web/chart_json.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <limits>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "frame/catalogue.h"

namespace vorel {
namespace {

// A JSON value as read back: only what the chart needs, and strict (no NaN,
// no trailing text, no bare words but true, false and null).
struct Value {
  enum Kind { Null, Bool, Number, String, Array, Object } kind = Null;
  bool boolean = false;
  double number = 0;
  std::string text;
  std::vector<Value> items;
  std::map<std::string, Value> members;
  const Value& operator[](const std::string& key) const {
    static const Value missing;
    auto it = members.find(key);
    return it == members.end() ? missing : it->second;
  }
};

class Reader {
 public:
  explicit Reader(const std::string& text) : s_(text) {}
  Value document() {
    Value v = value();
    blanks();
    if (i_ != s_.size()) fail("text after the value");
    return v;
  }
  std::string error;

 private:
  void fail(const std::string& why) {
    if (error.empty()) error = why + " at " + std::to_string(i_);
    i_ = s_.size();
  }
  void blanks() {
    while (i_ < s_.size() && std::strchr(" \t\r\n", s_[i_]) && s_[i_]) ++i_;
  }
  bool word(const char* w) {
    const std::size_t n = std::strlen(w);
    if (s_.compare(i_, n, w) != 0) return false;
    i_ += n;
    return true;
  }
  Value value() {
    blanks();
    Value v;
    if (i_ >= s_.size()) return fail("end of text"), v;
    const char c = s_[i_];
    if (c == '{') {
      v.kind = Value::Object;
      ++i_;
      blanks();
      if (word("}")) return v;
      do {
        blanks();
        Value key = value();
        if (key.kind != Value::String) return fail("a key that is no string"), v;
        blanks();
        if (!word(":")) return fail("no colon"), v;
        v.members[key.text] = value();
        blanks();
      } while (word(","));
      if (!word("}")) fail("an object not closed");
    } else if (c == '[') {
      v.kind = Value::Array;
      ++i_;
      blanks();
      if (word("]")) return v;
      do v.items.push_back(value());
      while ((blanks(), word(",")));
      if (!word("]")) fail("an array not closed");
    } else if (c == '"') {
      v.kind = Value::String;
      ++i_;
      while (i_ < s_.size() && s_[i_] != '"') {
        char d = s_[i_++];
        if (static_cast<unsigned char>(d) < 0x20) return fail("a control character in a string"), v;
        if (d == '\\') {
          if (i_ >= s_.size()) break;
          d = s_[i_++];
          if (d == 'n')
            d = '\n';
          else if (d == 't')
            d = '\t';
          else if (d == 'r')
            d = '\r';
          else if (d == 'u') {
            d = static_cast<char>(std::stoi(s_.substr(i_, 4), nullptr, 16));
            i_ += 4;
          } else if (d != '"' && d != '\\' && d != '/')
            return fail("a bad escape"), v;
        }
        v.text += d;
      }
      if (!word("\"")) fail("a string not closed");
    } else if (word("true") || word("false")) {
      v.kind = Value::Bool;
      v.boolean = s_[i_ - 1] == 'e' && s_[i_ - 2] == 'u';
    } else if (word("null")) {
      v.kind = Value::Null;
    } else {
      // -? digits (. digits)? ([eE] [+-]? digits)?
      const std::size_t start = i_;
      auto digits = [&] {
        const std::size_t from = i_;
        while (i_ < s_.size() && std::isdigit(static_cast<unsigned char>(s_[i_]))) ++i_;
        return i_ > from;
      };
      word("-");
      bool ok = digits();
      if (ok && word(".")) ok = digits();
      if (ok && (word("e") || word("E"))) {
        if (!word("+")) word("-");
        ok = digits();
      }
      if (!ok) return fail("not a value"), v;
      v.kind = Value::Number;
      v.number = std::strtod(s_.substr(start, i_ - start).c_str(), nullptr);
    }
    return v;
  }

  const std::string& s_;
  std::size_t i_ = 0;
};

Value read(const std::string& json) {
  Reader reader(json);
  Value v = reader.document();
  EXPECT_EQ(reader.error, "") << json;
  return v;
}

void expectTexts(const Value& v, const std::vector<std::string>& texts) {
  ASSERT_EQ(v.kind, Value::Array);
  ASSERT_EQ(v.items.size(), texts.size());
  for (std::size_t k = 0; k < texts.size(); ++k) {
    EXPECT_EQ(v.items[k].kind, Value::String);
    EXPECT_EQ(v.items[k].text, texts[k]);
  }
}

// Every field of the chart, the numbers to the last bit.
void expectHolds(const Value& v, const Chart& c) {
  ASSERT_EQ(v.kind, Value::Object);
  EXPECT_EQ(v["kind"].text, c.kind == ChartKind::XY ? "xy" : "lines");
  EXPECT_EQ(v["title"].text, c.title);
  EXPECT_EQ(v["categoryTitle"].text, c.categoryTitle);
  EXPECT_EQ(v["valueTitle"].text, c.valueTitle);
  expectTexts(v["series"], c.series);
  expectTexts(v["rows"], c.rows);
  const Value& m = v["matrix"];
  ASSERT_EQ(m.items.size(), c.matrix.size());
  for (std::size_t r = 0; r < c.matrix.size(); ++r) {
    ASSERT_EQ(m.items[r].items.size(), c.matrix[r].size()) << "row " << r;
    for (std::size_t k = 0; k < c.matrix[r].size(); ++k) {
      const Value& cell = m.items[r].items[k];
      if (std::isfinite(c.matrix[r][k])) {
        EXPECT_EQ(cell.kind, Value::Number);
        EXPECT_EQ(cell.number, c.matrix[r][k]) << "row " << r << ", column " << k;
      } else {
        EXPECT_EQ(cell.kind, Value::Null) << "row " << r << ", column " << k;
      }
    }
  }
  const Value& a = v["axis"];
  EXPECT_EQ(a["automatic"].kind, Value::Bool);
  EXPECT_EQ(a["automatic"].boolean, c.axis.automatic);
  EXPECT_EQ(a["minimum"].number, c.axis.minimum);
  EXPECT_EQ(a["maximum"].number, c.axis.maximum);
  EXPECT_EQ(a["majorDivision"].number, c.axis.majorDivision);
  EXPECT_EQ(v["pageLeft"].number, c.pageLeft);
  EXPECT_EQ(v["pageTop"].number, c.pageTop);
}

// Every chart that the examples of every model give, the other charts a model
// opens (the control charts' views) included.
TEST(ChartJson, EveryExampleChartReadsBackAsTheCoreHoldsIt) {
  const std::filesystem::path examples = std::filesystem::path(VOREL_SOURCE_DIR) / "examples";
  int charts = 0, xy = 0, fixed = 0;
  for (const CatalogueEntry& model : catalogue()) {
    if (!std::filesystem::is_directory(examples / model.id)) continue;
    for (const auto& file : std::filesystem::directory_iterator(examples / model.id)) {
      std::vector<std::function<RunOutcome(const std::string&)>> runs{model.run};
      for (const CatalogueView& view : model.views) runs.push_back(view.run);
      for (const auto& run : runs) {
        RunOutcome outcome;
        try {
          outcome = run(file.path().string());
        } catch (...) {
          continue;  // a run-time error or a view the problem does not open: no chart
        }
        const Chart& chart = outcome.pages.chart;
        if (chart.empty()) continue;
        SCOPED_TRACE(file.path().string());
        expectHolds(read(web::chartJson(chart)), chart);
        ++charts;
        xy += chart.kind == ChartKind::XY;
        fixed += !chart.axis.automatic;
      }
    }
  }
  // Both kinds and both axes were seen.
  EXPECT_GE(charts, 20);
  EXPECT_GT(xy, 0);
  EXPECT_GT(fixed, 0);
}

TEST(ChartJson, NumbersJsonCannotHoldAreNullAndTextsAreEscaped) {
  Chart c;
  c.kind = ChartKind::XY;
  c.title = "Costes \"totales\"\n\\ 2ª";
  c.series = {"Opción 1"};
  c.rows = {"1", "2", "3"};
  const double inf = std::numeric_limits<double>::infinity();
  c.matrix = {{0, std::nan("")}, {inf, -inf}, {1e-300, 0.1 + 0.2}};
  c.axis = {false, -0.5, 1e21, 5};
  const std::string json = web::chartJson(c);
  EXPECT_EQ(json.find("nan"), std::string::npos) << json;
  EXPECT_EQ(json.find("inf"), std::string::npos) << json;
  expectHolds(read(json), c);
}

TEST(ChartJson, RowsKeepTheirOwnLengths) {
  Chart c;
  c.series = {"a", "b"};
  c.matrix = {{1, 2}, {3}, {}};
  const Value v = read(web::chartJson(c));
  expectHolds(v, c);
  EXPECT_EQ(v["rows"].items.size(), 0u);
  EXPECT_EQ(v["kind"].text, "lines");
}

// The command line prints the same JSON, for the browser's tests to draw.
TEST(ChartJson, TheCommandLinePrintsItWithChartJson) {
  const std::string file =
      std::string(VOREL_SOURCE_DIR) + "/examples/costes-totales/tres-opciones.txt";
  const Chart chart = findModel("costes-totales")->run(file).pages.chart;
  ASSERT_FALSE(chart.empty());
  std::string out;
  FILE* pipe = popen(
      (std::string(VOREL_REPORT_EXE) + " costes-totales '" + file + "' --chart-json").c_str(), "r");
  ASSERT_NE(pipe, nullptr);
  char buffer[4096];
  for (std::size_t n; (n = std::fread(buffer, 1, sizeof buffer, pipe)) > 0;) out.append(buffer, n);
  EXPECT_EQ(pclose(pipe), 0);
  EXPECT_EQ(out, web::chartJson(chart) + "\n");
}

}  // namespace
}  // namespace vorel
