// The material requirements screens driven offscreen: the records computed
// once per run, the scroll bar over ten articles, the receipt frames and a
// table of ten weeks reached by typing in the described entry.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPdfWriter>
#include <QProcess>
#include <QRegularExpression>
#include <QScrollBar>
#include <sstream>

#include "frame/catalogue.h"
#include "frame/gui/printing.h"
#include "tests/gui_support.h"
#include "tests/test_support.h"

namespace vorel::testing {
namespace {

const std::string kEntry = "GI_MRP";
const std::string kSolution = "GI_MRP_Solucion1";

class MrpScreens : public ScreenTest {
 protected:
  void openExample(const char* file) { openFile(kEntry, examplePath("mrp", file)); }
  void choose(const QString& selector, const QString& text) {
    control<QComboBox>(kEntry, selector)->setEditText(text);
  }
};

TEST_F(MrpScreens, RecordsAreComputedOnceAndTheEntryStays) {
  openExample("un-nivel.txt");
  press(kEntry, "Resolver");
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_TRUE(visible(kEntry));
  EXPECT_EQ(text(kSolution, "LPA(0)"), "100");
  EXPECT_EQ(control(kSolution, "volver"), nullptr);
  // Retyped data and a second Resolver show the first records unchanged.
  type(kEntry, "TamañoLote(1)", "L");
  type(kEntry, "UniPA(2)", "500");
  press(kEntry, "Resolver");
  EXPECT_EQ(text(kSolution, "LPA(0)"), "100");
  EXPECT_EQ(text(kSolution, "NBX(2)"), "20");
  // gohome hides it; coming back through Resolver still shows the same.
  press(kSolution, "gohome");
  press(kEntry, "Resolver");
  EXPECT_EQ(text(kSolution, "NBX(2)"), "20");
}

TEST_F(MrpScreens, TenArticlesByTenWeeksScrollByTwentyTwipsAStep) {
  openExample("diez-articulos.txt");  // nine weeks: the tenth is typed
  choose("NSem", "10");
  type(kEntry, "UniPA(9)", "40");
  press(kEntry, "Resolver");
  auto* bar = control<QScrollBar>(kSolution, "VScroll1");
  ASSERT_NE(bar, nullptr);
  EXPECT_TRUE(shown(kSolution, "VScroll1"));
  EXPECT_EQ(bar->maximum(), 380);
  EXPECT_EQ(bar->pageStep(), 20);
  EXPECT_EQ(bar->singleStep(), 10);
  EXPECT_TRUE(shown(kSolution, "LPI(9)"));
  EXPECT_EQ(text(kSolution, "NNX(9)"), " 40");
  bar->setValue(300);  // 6000 twips: 400 pixels up
  EXPECT_EQ(control(kSolution, "Picture1")->y(), -400);
  bar->triggerAction(QAbstractSlider::SliderPageStepAdd);
  EXPECT_EQ(control(kSolution, "Picture1")->y(), -426);
}

TEST_F(MrpScreens, ImprimirPrintsTheFormAndLeavesTheClosingLinesHidden) {
  openExample("diez-articulos.txt");
  press(kEntry, "Resolver");
  EXPECT_TRUE(shown(kSolution, "Image10"));
  const QString pdf = QString::fromStdString(tempPath("mrp.pdf"));
  platform.printTo(pdf);
  press(kSolution, "Imprimir");
  EXPECT_EQ(platform.printerDialogs, 1);
  EXPECT_EQ(pdfPages(pdf), 1);
  EXPECT_FALSE(shown(kSolution, "Image4") || shown(kSolution, "Image10"));
  EXPECT_TRUE(shown(kSolution, "VScroll1") && shown(kSolution, "Imprimir"));
  EXPECT_EQ(control(kSolution, "Picture1")->pos(), QPoint(0, 0));
}

// The words of each line of a text, blank lines left out.
std::vector<std::vector<std::string>> lineWords(const std::string& text) {
  std::vector<std::vector<std::string>> lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) {
    std::istringstream words(line);
    std::vector<std::string> w;
    for (std::string word; words >> word;) w.push_back(word);
    if (!w.empty()) lines.push_back(w);
  }
  return lines;
}

// The page of a file run (vorel-report mrp F --print, and --pdf) holds what
// Imprimir prints of the form: after the heads, each article's head cells and
// its five rows with every week shown, line for line; on paper every row
// label ends before the column of the first week.
TEST_F(MrpScreens, TheCommandLinePageIsTheFormThatImprimirPrints) {
  const QString file = examplePath("mrp", "diez-articulos.txt");
  openFile(kEntry, file);
  press(kEntry, "Resolver");
  std::vector<std::vector<std::string>> form = {{"MRP"},
                                                {"Artículo", "Stock", "S.S.", "T.S.", "Semanas"}};
  const char* const rows[5][2] = {{"NecesidadesBrutas", "NB"},
                                  {"RProgramadas", "RP"},
                                  {"InventarioDisp", "ID"},
                                  {"NecesidadesN", "NN"},
                                  {"LanzamientoP", "LP"}};
  auto cellText = [&](const QString& name) {
    QWidget* w = control(kSolution, name);
    if (auto* edit = qobject_cast<QLineEdit*>(w)) return edit->text().trimmed().toStdString();
    return qobject_cast<QLabel*>(w)->text().trimmed().toStdString();
  };
  std::vector<std::string> weeks;
  for (int j = 0; j < 10 && shown(kSolution, QString("NBX(%1)").arg(j)); ++j)
    weeks.push_back(std::to_string(j + 1));
  form.push_back(weeks);
  const std::string letters = "XABCDEFGHI";
  for (int k = 0; k < 10 && shown(kSolution, QString("ArtS(%1)").arg(k)); ++k) {
    std::vector<std::string> head;
    for (const char* name : {"ArtS", "Stock", "StockSeg", "TSS"})
      head.push_back(cellText(QString("%1(%2)").arg(name).arg(k)));
    form.push_back(head);
    for (const auto& row : rows) {
      std::vector<std::string> line = lineWords(cellText(QString("%1(%2)").arg(row[0]).arg(k)))[0];
      for (std::size_t j = 0; j < weeks.size(); ++j)
        line.push_back(
            cellText(QString("%1%2(%3)").arg(row[1]).arg(letters[std::size_t(k)]).arg(j)));
      form.push_back(line);
    }
  }
  const RunOutcome run = findModel("mrp")->run(file.toStdString());
  ASSERT_EQ(run.status, RunStatus::Solved);
  EXPECT_EQ(lineWords(renderText(run.pages.page)), form);

  // On paper, as vorel-report --pdf paints it.
  const QString pdf = QString::fromStdString(tempPath("mrp-pagina.pdf"));
  {
    QPdfWriter writer(pdf);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setResolution(300);
    gui::preparePage(writer);
    QPainter painter(&writer);
    gui::paintPage(painter, run.pages.page, 0, [&writer] { writer.newPage(); });
  }
  QProcess bbox;
  bbox.start("pdftotext", {"-f", "1", "-l", "1", "-bbox", pdf, "-"});
  bbox.waitForFinished();
  const QString words = QString::fromUtf8(bbox.readAllStandardOutput());
  // Each word with its left and right edges, in reading order.
  std::vector<std::tuple<std::string, double, double>> placed;
  static const QRegularExpression word(
      R"re(<word xMin="([\d.]+)" yMin="[\d.]+" xMax="([\d.]+)" yMax="[\d.]+">([^<]*)</word>)re");
  for (auto m = word.globalMatch(words); m.hasNext();) {
    const auto w = m.next();
    placed.emplace_back(w.captured(3).toStdString(), w.captured(1).toDouble(),
                        w.captured(2).toDouble());
  }
  double firstWeek = 0;
  for (std::size_t i = 0; i + 1 < placed.size(); ++i)
    if (std::get<0>(placed[i]) == "Semanas") firstWeek = std::get<1>(placed[i + 1]);
  ASSERT_GT(firstWeek, 0);
  int labels = 0;
  for (const auto& [w, left, right] : placed)
    if (w == "Brutas" || w == "Programadas" || w == "Disp." || w == "Netas" || w == "Pedido") {
      ++labels;
      EXPECT_LT(right, firstWeek) << w;
    }
  EXPECT_GE(labels, 5);
}

TEST_F(MrpScreens, TenWeeksAreReachedByTypingAndMostrarShowsOneFrame) {
  screens().show(kEntry);
  choose("NArt", "3");
  choose("NSem", "10");
  press(kEntry, "Rediseñar");
  EXPECT_TRUE(shown(kEntry, "UnidX(9)") && shown(kEntry, "TS(2)") && !shown(kEntry, "TS(3)"));
  EXPECT_TRUE(shown(kEntry, "FrmArticulo(0)"));
  choose("NoArticulo", "ArticuloC");  // nothing changes until Mostrar
  EXPECT_FALSE(shown(kEntry, "FrmArticulo(3)"));
  press(kEntry, "Mostrar");
  EXPECT_TRUE(shown(kEntry, "FrmArticulo(3)") && !shown(kEntry, "FrmArticulo(0)"));
  // A hidden frame's weeks follow Rediseñar too, and show with their frame.
  choose("NSem", "2");
  press(kEntry, "Rediseñar");
  EXPECT_TRUE(shown(kEntry, "UnidC(1)") && !shown(kEntry, "UnidC(2)"));
  choose("NoArticulo", "ArticuloX");
  press(kEntry, "Mostrar");
  EXPECT_TRUE(shown(kEntry, "UnidX(1)") && !shown(kEntry, "UnidX(2)"));
  choose("NoArticulo", "Articulo");
  press(kEntry, "Mostrar");
  EXPECT_FALSE(shown(kEntry, "FrmArticulo(0)") ||
               control(kEntry, "UnidX(0)")->isVisibleTo(screen(kEntry)));
  // Each row's dependencies offer their own list.
  EXPECT_EQ(control<QComboBox>(kEntry, "D(2)")->count(), 2);
  EXPECT_EQ(control<QComboBox>(kEntry, "D1(2)")->itemText(2), "C");
  // nuevo does nothing on this screen.
  type(kEntry, "ID(0)", "7");
  press(kEntry, "nuevo");
  EXPECT_EQ(text(kEntry, "ID(0)"), "7");
}

}  // namespace
}  // namespace vorel::testing
