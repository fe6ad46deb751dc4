#include "inventory/mrp.h"

#include <cmath>

#include "frame/arith.h"
#include "frame/catalogue.h"
#include "inventory/mrp_form.h"

namespace vorel::inventory {

std::string mrpLetter(int row) {
  static constexpr std::string_view kLetters = "XABCDEFGHI";
  return std::string(1, item(kLetters, row));
}

std::vector<std::string> mrpParentList(int row) {
  if (row == 0) return {"-"};
  std::vector<std::string> list{"X"};
  for (int k = 1; k < row; ++k) list.push_back(mrpLetter(k));
  return list;
}

std::vector<std::string> mrpSecondParentList(int row) {
  if (row == 0) return {"-"};
  std::vector<std::string> list{"-"};
  for (int k = 1; k < kMrpArticles; ++k)
    if (k != row) list.push_back(mrpLetter(k));
  return list;
}

namespace {

std::string listText(const std::vector<std::string>& list, int index) {
  return index >= 0 && index < static_cast<int>(list.size()) ? list[std::size_t(index)] : "";
}

std::vector<std::string> numbered(int from, int to) {
  std::vector<std::string> items;
  for (int k = from; k <= to; ++k) items.push_back(std::to_string(k));
  return items;
}

// The list index a selector shows for its text: -1 when the text is no item.
int indexOf(const std::vector<std::string>& items, const std::string& text) {
  for (std::size_t k = 0; k < items.size(); ++k)
    if (items[k] == text) return static_cast<int>(k);
  return -1;
}

std::size_t at(int k) { return static_cast<std::size_t>(k); }

}  // namespace

std::vector<std::string> mrpArticleCounts() { return numbered(2, 10); }
std::vector<std::string> mrpWeekCounts() { return numbered(2, 9); }
std::vector<std::string> mrpArticleChoices() {
  std::vector<std::string> items;
  for (int k = 0; k < kMrpArticles; ++k) items.push_back("Articulo" + mrpLetter(k));
  return items;
}

MrpFields::MrpFields() {
  for (int k = 0; k < kMrpArticles; ++k) Art[at(k)].text = mrpLetter(k);
  D[0].listIndex = D1[0].listIndex = 0;
  FrmArticulo[0] = true;
  NEle[0].text = NEle1[0].text = "1";
  for (int k = 0; k < 2; ++k) {
    for (MrpRow<Cell>* column : {&Art, &NEle, &NEle1, &ID, &Stock, &Sc, &TS, &TamañoLote, &UniPA})
      (*column)[at(k)].visible = true;
    D[at(k)].visible = D1[at(k)].visible = SemPA[at(k)] = true;
    for (int x = 0; x < kMrpArticles; ++x) SemRP[at(x)][at(k)] = Unid[at(x)][at(k)].visible = true;
  }
}

std::string MrpFields::parent1(int row) const {
  return listText(mrpParentList(row), item(D, row).listIndex);
}
std::string MrpFields::parent2(int row) const {
  return listText(mrpSecondParentList(row), item(D1, row).listIndex);
}

Messages rediseñar(MrpFields& f) {
  for (int r = 0; r < kMrpArticles; ++r) {
    for (MrpRow<Cell>* column :
         {&f.Art, &f.NEle, &f.NEle1, &f.ID, &f.Stock, &f.Sc, &f.TS, &f.TamañoLote, &f.UniPA})
      (*column)[at(r)].visible = false;
    f.D[at(r)].visible = f.D1[at(r)].visible = f.SemPA[at(r)] = false;
    for (int x = 0; x < kMrpArticles; ++x)
      f.SemRP[at(x)][at(r)] = f.Unid[at(x)][at(r)].visible = false;
  }
  if (indexOf(mrpArticleCounts(), f.NArt) < 0) return {};
  const double n = Val(f.NArt), N = Val(f.NSem);
  for (int i = 0; i <= n - 1; ++i) {
    for (MrpRow<Cell>* column :
         {&f.Art, &f.NEle, &f.NEle1, &f.ID, &f.Stock, &f.Sc, &f.TS, &f.TamañoLote})
      item(*column, i).visible = true;
    item(f.D, i).visible = item(f.D1, i).visible = true;
  }
  for (int j = 0; j <= N - 1; ++j) {
    item(f.UniPA, j).visible = item(f.SemPA, j) = true;
    for (int x = 0; x < kMrpArticles; ++x)
      f.SemRP[at(x)][at(j)] = f.Unid[at(x)][at(j)].visible = true;
  }
  return {};
}

std::optional<int> mostrar(const std::string& NoArticulo) {
  const int k = indexOf(mrpArticleChoices(), NoArticulo);
  if (k < 0) return std::nullopt;
  return k;
}

Messages mostrar(MrpFields& f) {
  f.FrmArticulo.fill(false);
  if (auto k = mostrar(f.NoArticulo)) f.FrmArticulo[at(*k)] = true;
  return {};
}

Messages check(const MrpFields& f) {
  enum Flag {
    Mutual,
    Double,
    DependencyEmpty,
    DependencyNumeric,
    Elements,
    Inventory,
    Safety,
    Committed,
    LeadTime,
    Schedule,
    Lot,
    Flags
  };
  bool pass[Flags];
  for (bool& p : pass) p = true;
  const double n = Val(f.NArt), N = Val(f.NSem);
  auto bad = [](const Cell& c) { return !IsNumeric(c.text); };
  for (int i = 0; i <= n - 1; ++i) {
    const std::string d = f.parent1(i), d1 = f.parent2(i);
    if (d.empty() || d1.empty())
      pass[DependencyEmpty] = false;
    else if (IsNumeric(d) || IsNumeric(d1))
      pass[DependencyNumeric] = false;
    else if (bad(item(f.NEle, i)) || bad(item(f.NEle1, i)))
      pass[Elements] = false;
    else if (bad(item(f.ID, i)))
      pass[Inventory] = false;
    else if (bad(item(f.Stock, i)))
      pass[Safety] = false;
    else if (bad(item(f.Sc, i)))
      pass[Committed] = false;
    else if (bad(item(f.TS, i)))
      pass[LeadTime] = false;
    else if (bad(item(f.TamañoLote, i)) && item(f.TamañoLote, i).text != "L")
      pass[Lot] = false;
  }
  for (int j = 0; j <= N - 1; ++j)
    if (bad(item(f.UniPA, j))) pass[Schedule] = false;
  for (int p = 1; p < kMrpArticles; ++p)
    for (int q = p + 1; q < kMrpArticles; ++q) {
      const std::string P = mrpLetter(p), Q = mrpLetter(q);
      if ((f.parent1(q) == P || f.parent2(q) == P) && (f.parent1(p) == Q || f.parent2(p) == Q))
        pass[Mutual] = false;
    }
  for (int i = 1; i <= n - 1; ++i)
    for (int x = 1; x < kMrpArticles; ++x)
      if (f.parent1(i) == mrpLetter(x) && f.parent2(i) == mrpLetter(x)) pass[Double] = false;

  static const char* const messages[Flags] = {
      "Un artículo no puede depender de otro que ya dependa del primero",
      "Un artículo no puede depender de otro articulo dos veces al mismo tiempo",
      nullptr,
      nullptr,
      "Las casillas correspondientes al número de elementos de los artículos deben contener un "
      "valor numérico",
      "Las casillas correspondientes al inventario disponible deben contener un valor numérico",
      "Las casillas correspondientes al stock de seguridad deben contener un valor numérico",
      "Las casillas correspondientes al stock comprometido deben contener un valor numérico",
      "Las casillas correspondientes al tiempo de suministro deben contener un valor numérico",
      "Las casillas correspondientes al plan maestro de la producción deben contener un valor "
      "numérico",
      "El tamaño de lote debe ser un valor numérico o la letra L si el pedido es lote a lote",
  };
  for (int k = 0; k < Flags; ++k) {
    if (pass[k]) continue;
    // The two dependency messages are a text minus an empty text: a type mismatch.
    if (!messages[k]) raise(err::TypeMismatch);
    return {{messages[k], ""}};
  }
  return {};
}

MrpRecords::MrpRecords() {
  for (int k = 0; k < kMrpArticles; ++k) ArtS[at(k)] = mrpLetter(k);
}

namespace {

// An index of a control array given as a number: rounded as the platform
// rounds it, and outside 0..9 the platform's error on a control array.
std::size_t cellIndex(double index) {
  const double r = std::nearbyint(index);  // half to even
  if (!(r >= 0 && r < kMrpWeeks)) raise(err::Subscript);
  return static_cast<std::size_t>(r);
}

// The scan of the lot rule: the first and last weeks with a release, kept
// from one article to the next while one procedure runs.
struct Scan {
  std::optional<double> first, last;  // Empty until a release is found
};

// Principal, Secundario and Terciario over the cells of the records.
class Explosion {
 public:
  Explosion(const MrpFields& f, MrpRecords& r) : f_(f), r_(r), N_(Val(f.NSem)) {}

  void principal() {
    const double n = Val(f_.NArt);
    for (int k = 0; k <= n - 1; ++k) {
      item(r_.Stock, k) = item(f_.ID, k).text;
      item(r_.StockSeg, k) = item(f_.Stock, k).text;
      item(r_.TSS, k) = item(f_.TS, k).text;
    }
    forWeeks([&](std::size_t j) { r_.NB[0][j] = f_.UniPA[j].text; });
    forWeeks([&](std::size_t j) {
      for (std::size_t x = 0; x < kMrpArticles; ++x) r_.RP[x][j] = f_.Unid[x][j].text;
    });
    forWeeks([&](std::size_t j) {
      for (std::size_t x = 0; x < kMrpArticles; ++x)
        put(r_.ID[x][j],
            Val(f_.ID[x].text) - Val(f_.Stock[x].text) + Val(r_.RP[x][j]) - Val(f_.Sc[x].text));
    });

    Scan scan;
    record(0, scan, false, false, true);
    explodeTo(0);
    for (int x = 1; x < kMrpArticles; ++x) {
      record(x, scan, false, x == 2, !f_.parent1(x).empty());
      explodeTo(x);
    }
    secondParents(1, 5);
    secondParents(6, 9);
    forWeeks([&](std::size_t j) {
      for (std::size_t x = 0; x < kMrpArticles; ++x)
        if (f_.Unid[x][j].text.empty()) put(r_.RP[x][j], 0);
    });
  }

 private:
  template <class F>
  void forWeeks(F body) {
    for (int j = 0; j <= N_ - 1; ++j) body(cellIndex(j));
  }
  static void put(std::string& cell, double value) { cell = Str(checked(value)); }
  static double val(const std::string& cell) { return Val(cell); }

  // The gross requirements of the later rows whose first parent is `x`.
  void explodeTo(int x) {
    const std::string letter = mrpLetter(x);
    const std::size_t p = at(x);
    forWeeks([&](std::size_t j) {
      for (int m = x + 1; m < kMrpArticles; ++m)
        if (f_.parent1(m) == letter)
          put(r_.NB[at(m)][j], checked(val(r_.LP[p][j]) * Val(f_.NEle[at(m)].text)));
    });
  }

  // Secundario (rows 1..5) and Terciario (rows 6..9): the second parent's
  // demand added, and the record worked again. Each has its own scan.
  void secondParents(int from, int to) {
    Scan scan;
    for (int x = from; x <= to; ++x) {
      const std::string second = f_.parent2(x);
      if (second == "-") continue;
      const std::size_t c = at(x);
      forWeeks([&](std::size_t j) {
        for (int y = 1; y < kMrpArticles; ++y)
          if (y != x && second == mrpLetter(y))
            put(r_.NB[c][j],
                checked(val(r_.LP[at(y)][j]) * Val(f_.NEle1[c].text)) + val(r_.NB[c][j]));
      });
      record(x, scan, true, false, !second.empty() && !f_.parent1(x).empty());
    }
  }

  // The record of article row x: projection, net requirements, lead-time
  // offset, and, when `lots`, the lot rule and the tail.
  void record(int x, Scan& scan, bool second, bool shortProjection, bool lots) {
    const std::size_t c = at(x);
    auto& NB = r_.NB[c];
    auto& RP = r_.RP[c];
    auto& ID = r_.ID[c];
    auto& NN = r_.NN[c];
    auto& LP = r_.LP[c];
    const double T = Val(f_.TS[c].text), N = N_;
    const std::string lot = f_.TamañoLote[c].text;

    for (int j = 1; j <= N - 1; ++j) {
      const std::size_t w = cellIndex(j);
      const double P = val(ID[w - 1]), G = val(NB[w - 1]);
      if (G == 0)
        put(ID[w], P + val(RP[w]));
      else if (P >= G)
        put(ID[w], P - G + val(RP[w]));
      else
        put(ID[w], val(RP[w]));
    }
    forWeeks([&](std::size_t j) { put(NN[j], std::max(0.0, val(NB[j]) - val(ID[j]))); });
    for (int j = 0; j <= (second ? N - T : N - 1); ++j)
      if (j + T <= N - 1) LP[cellIndex(j)] = NN[cellIndex(j + T)];
    forWeeks([&](std::size_t j) {
      if (LP[j].empty()) put(LP[j], 0);
    });
    if (!lots) return;

    if (lot != "L") {
      // A scan that finds nothing keeps the earlier article's weeks.
      std::optional<double> first, last;
      for (int j = 0; j <= N - 1; ++j)
        if (val(LP[cellIndex(j)]) != 0) {
          if (!first) first = j;
          last = j;
        }
      if (first) scan = {first, last};
    }
    const double Q = Val(lot);
    const double first = scan.first.value_or(0), last = scan.last.value_or(0);
    const double limit = shortProjection ? N - 1 : N;
    for (double j = first + T; j <= last + T + 1; j += 1) {
      if (!(j <= N - 1)) break;  // the later weeks lie beyond the horizon too
      const std::size_t w = cellIndex(j), release = cellIndex(j - T);
      const double need = std::max(0.0, val(NB[w]) - val(ID[w]));
      put(NN[w], need);
      if (Q > need) {
        if (need == 0)
          put(LP[release], 0);
        else
          LP[release] = lot;
      }
      if (Q < need) {
        for (int m = 2; m <= 100; ++m) {
          const float S = Sng(checked(Q * m));
          if (Sng(need) <= S) {
            LP[release] = Str(S);
            break;
          }
        }
      }
      if (j + 1 < limit && scan.first) {
        const std::size_t next = cellIndex(j + 1);
        put(ID[next], val(LP[release]) - val(NN[w]) + val(RP[next]));
        if (val(NB[w]) == 0) put(ID[next], val(ID[w]) + val(RP[next]));
      }
    }
    if (N - 1 >= last + T + 2)
      for (double j = last + T + 1; j <= N - 2; j += 1) ID[cellIndex(j + 1)] = ID[cellIndex(j)];
  }

  const MrpFields& f_;
  MrpRecords& r_;
  double N_;
};

}  // namespace

MrpRecords solve(const MrpFields& f) {
  MrpRecords r;
  const double n = Val(f.NArt), N = Val(f.NSem);
  for (int k = 0; k <= n - 1; ++k) item(r.ArtS, k);  // the rows of the records shown
  r.articles = std::max(0, std::min(kMrpArticles, static_cast<int>(std::floor(n - 1)) + 1));
  if (n == std::floor(n) && n >= 2 && n <= 10) {
    for (int j = 0; j <= N - 1; ++j) cellIndex(j);
    r.weeks = std::max(0, std::min(kMrpWeeks, static_cast<int>(std::floor(N - 1)) + 1));
  }
  Explosion(f, r).principal();
  return r;
}

MrpScroll mrpScroll(double articles) {
  static const std::array<int, 6> maxima{70, 122, 200, 255, 320, 380};
  MrpScroll s;
  if (articles >= 5 && articles <= 10 && articles == std::floor(articles))
    s.maximum = maxima[at(static_cast<int>(articles) - 5)];
  s.visible = articles >= 4;
  return s;
}

int mrpPictureTop(int scrollValue) { return -(Integer(20) * Integer(scrollValue)); }

namespace {

const char* const kRowLabels[5] = {"Necesidades Brutas", "R. Programadas", "Inventario Disp.",
                                   "Necesidades Netas", "Lanzamiento Pedido"};

// An article's head cells, then its five rows over the weeks from..to-1, each
// row label followed by `steps` zone steps before the first week.
void article(Report& out, const MrpRecords& r, int k, int steps, int from, int to) {
  const std::size_t c = at(k);
  out.line(Z, r.ArtS[c], Z, r.Stock[c], Z, r.StockSeg[c], Z, r.TSS[c]);
  const MrpGrid<std::string>* rows[5] = {&r.NB, &r.RP, &r.ID, &r.NN, &r.LP};
  for (int row = 0; row < 5; ++row) {
    out.cont(Z, kRowLabels[row]);
    for (int step = 0; step < steps; ++step) out.cont(Z);
    for (int j = from; j < to; ++j) out.cont((*rows[row])[c][at(j)], Z);
    out.line();
  }
}

// The record blocks over the weeks from..to-1.
void records(Report& out, const MrpRecords& r, int from, int to) {
  out.line(Z, "Artículo", Z, "Stock", Z, "S.S.", Z, "T.S.");
  out.cont(Z, "Semanas", Z, Z);
  for (int j = from; j < to; ++j) out.cont(std::to_string(j + 1), Z);
  out.line();
  for (int k = 0; k < r.articles; ++k) article(out, r, k, 1, from, to);
}

}  // namespace

Report report(const MrpFields& f, const MrpRecords& r) {
  Report out;
  out.blankLines(3);
  out.heading(f.Titulo1);
  records(out, r, 0, r.weeks);
  return out;
}

// The page is the solution form as Imprimir prints it: the heading "MRP",
// the heads of the article columns and, right of them, "Semanas" over every
// week; then each article's head cells and its five rows, each row label on
// the left and the weeks in the same columns as their numbers. As on the
// form, the weeks start right of the T.S. column, clear of every row label.
Report printout(const MrpFields&, const MrpRecords& r) {
  Report out = pageHead("MRP");
  out.line(Z, "Artículo", Z, "Stock", Z, "S.S.", Z, "T.S.", Z, "Semanas");
  out.cont(Z, Z, Z, Z, Z);
  for (int j = 0; j < r.weeks; ++j) out.cont(std::to_string(j + 1), Z);
  out.line();
  for (int k = 0; k < r.articles; ++k) article(out, r, k, 3, 0, r.weeks);
  return out;
}

Pages solveAndReport(MrpFields& f) { return solvedPages(f); }

void exchange(ProblemFile& file, MrpFields& f) {
  file.text(f.Titulo1);
  auto selector = [&](std::string& text, const std::vector<std::string>& items) {
    int index = indexOf(items, text);
    file.listIndex(index, static_cast<int>(items.size()));
    if (file.reading()) text = listText(items, index);
  };
  selector(f.NArt, mrpArticleCounts());
  selector(f.NSem, mrpWeekCounts());
  selector(f.NoArticulo, mrpArticleChoices());
  auto cell = [&](Cell& c) {
    file.text(c.text);
    file.flag(c.visible);
  };
  for (int r = 0; r < kMrpArticles; ++r) {
    const std::size_t k = at(r);
    file.flag(f.Art[k].visible);
    file.flag(f.SemPA[k]);
    for (int x = 0; x < kMrpArticles; ++x) file.flag(f.SemRP[at(x)][k]);
    file.listIndex(f.D[k].listIndex, static_cast<int>(mrpParentList(r).size()));
    file.flag(f.D[k].visible);
    cell(f.NEle[k]);
    file.listIndex(f.D1[k].listIndex, static_cast<int>(mrpSecondParentList(r).size()));
    file.flag(f.D1[k].visible);
    cell(f.NEle1[k]);
    for (MrpRow<Cell>* column : {&f.ID, &f.Stock, &f.Sc, &f.TS, &f.TamañoLote}) cell((*column)[k]);
    for (int x = 0; x < kMrpArticles; ++x) cell(f.Unid[at(x)][k]);
    cell(f.UniPA[k]);
  }
}

CatalogueEntry catalogueMrp() {
  return catalogued("mrp", mrpForm());
}

}  // namespace vorel::inventory
