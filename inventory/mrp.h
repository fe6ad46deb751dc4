// Material requirements planning: a product structure of up to ten articles
// (the end article X and A to I), each with up to two parents, exploded week
// by week from the master production schedule of X into one record per
// article: gross requirements, scheduled receipts, available inventory, net
// requirements and planned order releases.
//
// Every value of a record lives as the text of its cell, as on the screen:
// each step reads the cells with Val and writes the number back as its text,
// so the records here are the screen's cells themselves.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "frame/model.h"

namespace vorel::inventory {

inline constexpr int kMrpArticles = 10;  // rows 0..9: X, A..I
inline constexpr int kMrpWeeks = 10;     // columns 0..9: weeks 1..10

template <class T>
using MrpRow = std::array<T, kMrpArticles>;
template <class T>
using MrpGrid = std::array<std::array<T, kMrpWeeks>, kMrpArticles>;  // [article][week]

// The letter of an article row: "X", "A" .. "I".
std::string mrpLetter(int row);

// A dependency selector (D, D1): a list box of letters, kept by its list index.
struct MrpDependency {
  int listIndex = -1;
  bool visible = false;
};

// The lists of the dependency selectors of a row. D of row k lists "X" and the
// letters of the rows above it; D1 lists "-" and every letter A..I but its
// own. Row 0 has the only item "-" in both.
std::vector<std::string> mrpParentList(int row);
std::vector<std::string> mrpSecondParentList(int row);

class MrpLoadedSolution;  // see inventory/mrp_form.h

// The entry screen GI_MRP (Form_Load: two articles, two weeks).
struct MrpFields {
  MrpFields();

  std::string Titulo1 = "Problema1";
  // The selectors' texts: items "2".."10", "2".."9", "ArticuloX".."ArticuloI".
  std::string NArt = "2", NSem = "2", NoArticulo;
  MrpRow<Cell> Art, NEle, NEle1, ID, Stock, Sc, TS, TamañoLote, UniPA;
  MrpRow<MrpDependency> D, D1;
  MrpRow<bool> SemPA{};   // the week labels of the schedule
  MrpGrid<bool> SemRP{};  // SemRPX(j).. SemRPI(j): the week labels of the receipts
  MrpGrid<Cell> Unid;     // UnidX(j).. UnidI(j): the scheduled receipts
  // FrmArticulo(x): the frame of receipts on view (X's at first), kept by
  // no file.
  MrpRow<bool> FrmArticulo{};
  // The solution screen as it was loaded: it loads once per run and computes
  // then, so every later Resolver shows it again, whatever was retyped.
  std::shared_ptr<const MrpLoadedSolution> solutionLoaded;

  // The texts the dependency selectors of a row show (empty when none chosen).
  std::string parent1(int row) const;
  std::string parent2(int row) const;
};

// The selectors' items.
std::vector<std::string> mrpArticleCounts();   // "2".."10"
std::vector<std::string> mrpWeekCounts();      // "2".."9"
std::vector<std::string> mrpArticleChoices();  // "ArticuloX".."ArticuloI"

// Texts of the entry screen.
inline constexpr const char* kMrpIntro =
    "En este caso los artículos dependen de otros artículos, existirá un articulo padre a partir "
    "del cual se irán calculando las demandas de los artículos hijos. Este tipo de problemas nos "
    "permitirá conocer las necesidades de materiales para poder lanzar el pedido de los mismos.";

// Rediseñar: hides the table and the weeks, and shows the rows and weeks the
// selectors ask for; a count outside "2".."10" leaves everything hidden.
Messages rediseñar(MrpFields& f);
// Mostrar: the receipt frame of the article chosen (0..9), or none.
std::optional<int> mostrar(const std::string& NoArticulo);
// Mostrar on the fields: every frame hidden, then the chosen one shown.
Messages mostrar(MrpFields& f);
// Resolver: the one message of the first failed check, in the screen's order;
// an empty dependency cell, or a numeric one, is a type mismatch (error 13).
Messages check(const MrpFields& f);

// The solution screen GI_MRP_Solucion1: its cells, all text.
struct MrpRecords {
  MrpRecords();
  MrpRow<std::string> ArtS, Stock, StockSeg, TSS;
  MrpGrid<std::string> NB, RP, ID, NN, LP;
  int articles = 0;  // record blocks shown (rows 0..articles-1)
  int weeks = 0;     // week cells shown in each of them
};

// Form_Load of the solution screen: the records laid out and computed by
// Principal, Secundario and Terciario.
MrpRecords solve(const MrpFields& f);

// The scroll bar of the records: its maximum and whether it shows, for the
// article count; and the top of the records for a scroll value (in twips),
// a 16-bit product that overflows beyond it.
struct MrpScroll {
  std::optional<int> maximum;  // none: as the form has it
  bool visible = false;
};
MrpScroll mrpScroll(double articles);
int mrpPictureTop(int scrollValue);

// The records as text: what the cells show, and the printed form.
Report report(const MrpFields& f, const MrpRecords& r);
Report printout(const MrpFields& f, const MrpRecords& r);
Pages solveAndReport(MrpFields& f);

void exchange(ProblemFile& file, MrpFields& f);  // guardar and abrir

}  // namespace vorel::inventory
