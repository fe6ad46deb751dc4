// The clipboard of the screens driven offscreen: a spreadsheet's block pasted
// into the control chart's samples and the transportation table, refused
// whole where it does not fit, never into hidden cells; cells, reports and
// charts copied out.
#include <gtest/gtest.h>

#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDir>
#include <QFile>
#include <QMenu>
#include <QMimeData>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>
#include <map>

#include "frame/catalogue.h"
#include "frame/gui/described_chart.h"
#include "frame/gui/clipboard.h"
#include "frame/navigation.h"
#include "tests/gui_support.h"
#include "tests/test_support.h"

namespace vorel::testing {
namespace {

const std::string kControl = "ControlCal_V", kMedias = "ControlCal_V_Sol";
const std::string kTransporte = "PL_Transportes";

QClipboard& clipboard() { return *QGuiApplication::clipboard(); }

QString fixture(const char* name) {
  QFile file(QStringLiteral(VOREL_SOURCE_DIR "/tests/clipboard/%1").arg(name));
  if (!file.open(QIODevice::ReadOnly)) return {};
  return QString::fromUtf8(file.readAll());
}

class Clipboard : public ScreenTest {
 protected:
  QLineEdit* box(const std::string& screen, const QString& name) {
    auto* b = control<QLineEdit>(screen, name);
    EXPECT_NE(b, nullptr) << name.toStdString();
    return b;
  }
  // Ctrl+V on a cell, the clipboard holding `text`.
  void paste(const std::string& screen, const QString& cell, const QString& text) {
    clipboard().setText(text);
    QLineEdit* b = box(screen, cell);
    b->setFocus();
    QTest::keyClick(b, Qt::Key_V, Qt::ControlModifier);
  }
  void copy(QWidget* w) { QTest::keyClick(w, Qt::Key_C, Qt::ControlModifier); }
  // The control chart's entry with `samples` rows of samples of four.
  void controlTable(const char* samples) {
    screens().show(kControl);
    type(kControl, "Titulo1", "Cuarenta y cinco muestras");
    press(kControl, "Option2");
    type(kControl, "Nmuestras", samples);
    type(kControl, "Tmuestras", "4");
    press(kControl, "Rediseñar");
  }
  QStringList column(const char* name, int rows) {
    QStringList out;
    for (int i = 0; i < rows; ++i) out << text(kControl, QString("%1(%2)").arg(name).arg(i));
    return out;
  }
};

// The 45 samples of an example, as a spreadsheet copies them (CR LF, a line
// end after the last row), pasted at the first cell and solved, give the
// example's own report.
TEST_F(Clipboard, FortyFiveSamplesPastedSolveAsTheExample) {
  controlTable("45");
  const QString block = fixture("cuarenta-y-cinco.tsv");
  ASSERT_EQ(block.count("\r\n"), 45);
  paste(kControl, "M(0)", block);
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(text(kControl, "M(0)"), "99.5");
  EXPECT_EQ(text(kControl, "S(44)"), block.split("\r\n")[44].split('\t')[1]);
  press(kControl, "Resolver");
  ASSERT_TRUE(visible(kMedias));
  EXPECT_EQ(painted(kMedias), golden("control-variables", "cuarenta-y-cinco.txt", "report"));
}

// Pasted lower down and one column in, a value goes exactly as it was typed,
// decimal comma included; the checks judge it afterwards.
TEST_F(Clipboard, ValuesGoAsTypedFromTheCellRightAndDown) {
  controlTable("5");
  paste(kControl, "S(3)", "2,5\n 7 \n");
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(column("S", 5), (QStringList{"", "", "", "2,5", " 7 "}));
  EXPECT_EQ(column("M", 5), (QStringList{"", "", "", "", ""}));
  // One value goes in as a text box pastes it: over the chosen text.
  type(kControl, "M(1)", "100");
  box(kControl, "M(1)")->setSelection(1, 2);
  paste(kControl, "M(1)", "9\r\n");
  EXPECT_EQ(text(kControl, "M(1)"), "19");
}

// A block beyond the table changes nothing and tells how large the table must
// be; the samples' screen has Rediseñar.
TEST_F(Clipboard, ABlockTooLargeIsRefusedWhole) {
  controlTable("20");
  type(kControl, "M(19)", "1");
  paste(kControl, "M(0)", fixture("cuarenta-y-cinco.tsv"));
  ASSERT_EQ(platform.messages.size(), 1u);
  EXPECT_EQ(platform.messages[0],
            "El bloque copiado tiene 45 filas y 2 columnas y no cabe en la tabla desde esta "
            "casilla: hacen falta 45 filas y 2 columnas de casillas, y la tabla muestra 20 filas "
            "y 2 columnas. Elija un tamaño mayor, pulse Rediseñar y pegue de nuevo. No se ha "
            "pegado nada.");
  QStringList untouched(20, "");
  untouched[19] = "1";
  EXPECT_EQ(column("M", 20), untouched);
  EXPECT_EQ(column("S", 20), QStringList(20, ""));

  platform.messages.clear();
  paste(kControl, "S(0)", "1\t2\n");  // one column too wide
  ASSERT_EQ(platform.messages.size(), 1u);
  EXPECT_NE(platform.messages[0].find("hacen falta 1 fila y 3 columnas"), std::string::npos);
  EXPECT_EQ(text(kControl, "S(0)"), "");
}

// The transportation table as it stands on screen: a 2 by 2 table with its
// supplies to the right and demands below; the corner and the columns beyond
// are hidden and keep what they hold.
TEST_F(Clipboard, HiddenCellsAreNeverWritten) {
  screens().show(kTransporte);
  for (const char* hidden : {"C3(2)", "C4(0)", "C1(3)", "C4(3)"}) {
    ASSERT_FALSE(shown(kTransporte, hidden)) << hidden;
    box(kTransporte, hidden)->setText("x");
  }
  paste(kTransporte, "C1(0)", "1\t2\t30\n3\t4\t40\n5\t6\t99\n");
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(text(kTransporte, "C1(0)"), "1");
  EXPECT_EQ(text(kTransporte, "C3(0)"), "30");
  EXPECT_EQ(text(kTransporte, "C3(1)"), "40");
  EXPECT_EQ(text(kTransporte, "C1(2)"), "5");
  EXPECT_EQ(text(kTransporte, "C2(2)"), "6");
  for (const char* hidden : {"C3(2)", "C4(0)", "C1(3)", "C4(3)"})
    EXPECT_EQ(text(kTransporte, hidden), "x") << hidden;

  // A row more than the table shows: refused, the cells as they were.
  paste(kTransporte, "C1(1)", "7\t8\n7\t8\n7\t8\n");
  ASSERT_EQ(platform.messages.size(), 1u);
  EXPECT_NE(platform.messages[0].find("hacen falta 4 filas y 2 columnas de casillas, y la tabla "
                                      "muestra 3 filas y 3 columnas"),
            std::string::npos);
  EXPECT_EQ(text(kTransporte, "C1(1)"), "3");
  EXPECT_EQ(text(kTransporte, "C1(2)"), "5");
}

// A plain text box pastes as any text box does, tabs and lines and all, and
// the table is not touched.
TEST_F(Clipboard, APlainTextBoxPastesAsATextBox) {
  screens().show(kTransporte);
  const QString block = "1\t2\n3\t4\n";
  QLineEdit reference;
  clipboard().setText(block);
  reference.paste();
  type(kTransporte, "Título", "");
  paste(kTransporte, "Título", block);
  EXPECT_EQ(text(kTransporte, "Título"), reference.text());
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(text(kTransporte, "C1(0)"), "");
}

// Ctrl+C copies the current cell, or the cells chosen with Shift+click, as
// tab-separated text; the cell's menu copies the whole table and pastes.
TEST_F(Clipboard, CellsCopyOutAsTabSeparatedText) {
  screens().show(kTransporte);
  paste(kTransporte, "C1(0)", "1\t2\t30\n3\t4\t40\n5\t6\n");
  QLineEdit* first = box(kTransporte, "C1(0)");
  first->setFocus();
  first->deselect();
  copy(first);
  EXPECT_EQ(clipboard().text(), "1");

  // Shift+click chooses from the cell that had the focus to the one clicked,
  // which takes the focus; a second one moves the far corner.
  QTest::mouseClick(box(kTransporte, "C3(0)"), Qt::LeftButton, Qt::ShiftModifier);
  QTest::mouseClick(box(kTransporte, "C2(1)"), Qt::LeftButton, Qt::ShiftModifier);
  EXPECT_EQ(focused(kTransporte), "C2(1)");
  copy(box(kTransporte, "C2(1)"));
  EXPECT_EQ(clipboard().text(), "1\t2\n3\t4\n");
  // A key typed ends the choice.
  QTest::keyClick(box(kTransporte, "C2(1)"), Qt::Key_End);
  copy(box(kTransporte, "C2(1)"));
  EXPECT_EQ(clipboard().text(), "4");

  // Down the corner: the hidden cell copies as an empty value.
  QTest::mouseClick(box(kTransporte, "C3(0)"), Qt::LeftButton);
  QTest::mouseClick(box(kTransporte, "C2(2)"), Qt::LeftButton, Qt::ShiftModifier);
  copy(box(kTransporte, "C2(2)"));
  EXPECT_EQ(clipboard().text(), "2\t30\n4\t40\n6\t\n");

  std::unique_ptr<QMenu> menu(gui::cellMenu(first));
  auto* whole = menu->findChild<QAction*>("copiar-tabla");
  ASSERT_NE(whole, nullptr);
  whole->trigger();
  EXPECT_EQ(clipboard().text(), "1\t2\t30\n3\t4\t40\n5\t6\t\n");
  // Pegar of the menu pastes the block at the cell.
  clipboard().setText("8\t9\n");
  menu.reset(gui::cellMenu(first));
  auto* pegar = menu->findChild<QAction*>("pegar");
  ASSERT_NE(pegar, nullptr);
  ASSERT_TRUE(pegar->isEnabled());
  pegar->trigger();
  EXPECT_EQ(text(kTransporte, "C1(0)"), "8");
  EXPECT_EQ(text(kTransporte, "C2(0)"), "9");
}

// A solution screen copies its report as the plain text of its zones; its
// chart copies a picture and its points.
TEST_F(Clipboard, ReportsAndChartsCopyOut) {
  openFile(kControl, examplePath("control-variables", "cuarenta-y-cinco.txt"));
  press(kControl, "Resolver");
  auto* solution = dynamic_cast<gui::DescribedChartSolutionBase*>(screen(kMedias));
  ASSERT_NE(solution, nullptr);
  const std::string report = golden("control-variables", "cuarenta-y-cinco.txt", "report");

  clipboard().clear();
  copy(solution);
  EXPECT_EQ(clipboard().text().toStdString(), report);
  EXPECT_FALSE(clipboard().mimeData()->hasImage());

  clipboard().clear();
  std::unique_ptr<QMenu> menu(gui::reportMenu(solution->Solucion1()));
  menu->findChild<QAction*>("Copiar")->trigger();
  EXPECT_EQ(clipboard().text().toStdString(), report);

  clipboard().clear();
  copy(solution->chartView());
  const QMimeData* data = clipboard().mimeData();
  ASSERT_TRUE(data->hasImage());
  const QImage picture = qvariant_cast<QImage>(data->imageData());
  EXPECT_EQ(picture.size(), gui::kChartPictureSize);
  int drawn = 0;  // pixels not white: the lines, axes and texts of the chart
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x) drawn += picture.pixel(x, y) != qRgb(255, 255, 255);
  EXPECT_GT(drawn, 2000);
  const QString points = data->text();
  const QStringList lines = points.split('\n');
  EXPECT_EQ(lines[0], "Punto\tMedias\tLSC\tLIC\tLC");
  EXPECT_EQ(lines[1], "1\t99.5\t102.6278\t96.78999\t99.70889");
  EXPECT_EQ(lines.size(), 45 + 2);

  clipboard().clear();
  std::unique_ptr<QMenu> chartMenu(gui::chartMenu(solution->chartView()));
  chartMenu->findChild<QAction*>("Copiar")->trigger();
  EXPECT_TRUE(clipboard().mimeData()->hasImage());
  EXPECT_EQ(clipboard().text(), points);
}

// A right click opens the menu of what it falls on; `act` is triggered from
// it while it is open, and the menu closed.
void rightClick(QWidget* w, const char* act) {
  QTimer::singleShot(0, [act] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!menu) return;
    if (auto* action = menu->findChild<QAction*>(act)) action->trigger();
    menu->close();
  });
  QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(2, 2), w->mapToGlobal(QPoint(2, 2)));
  QApplication::sendEvent(w, &event);
}

TEST_F(Clipboard, RightClickMenusPasteAndCopy) {
  openFile(kControl, examplePath("control-variables", "cuarenta-y-cinco.txt"));
  clipboard().setText("1\t2\n3\t4\n");
  rightClick(box(kControl, "M(43)"), "pegar");
  EXPECT_EQ(column("M", 45).mid(43), (QStringList{"1", "3"}));
  EXPECT_EQ(text(kControl, "S(44)"), "4");
  rightClick(box(kControl, "S(44)"), "copiar-tabla");
  EXPECT_TRUE(clipboard().text().endsWith("1\t2\n3\t4\n"));
  EXPECT_EQ(clipboard().text().count('\n'), 45);

  openFile(kControl, examplePath("control-variables", "cuarenta-y-cinco.txt"));
  press(kControl, "Resolver");
  auto* solution = dynamic_cast<gui::DescribedChartSolutionBase*>(screen(kMedias));
  ASSERT_NE(solution, nullptr);
  clipboard().clear();
  rightClick(solution->Solucion1()->widget(), "Copiar");
  EXPECT_EQ(clipboard().text().toStdString(),
            golden("control-variables", "cuarenta-y-cinco.txt", "report"));
  clipboard().clear();
  rightClick(solution->chartView()->viewport(), "Copiar");
  ASSERT_NE(clipboard().mimeData(), nullptr);
  EXPECT_TRUE(clipboard().mimeData()->hasImage());
  EXPECT_TRUE(clipboard().text().startsWith("Punto\tMedias"));
}

// The MRP solution keeps its records in cells of their own, not in a report:
// the screen copies them as a table, a record's heads and then its rows.
TEST_F(Clipboard, RecordsInCellsCopyAsATable) {
  openFile("GI_MRP", examplePath("mrp", "un-nivel.txt"));
  press("GI_MRP", "Resolver");
  gui::Screen* solution = screen("GI_MRP_Solucion1");
  ASSERT_TRUE(solution && solution->isVisible());
  clipboard().clear();
  copy(solution);
  const QStringList lines = clipboard().text().split('\n', Qt::SkipEmptyParts);
  ASSERT_EQ(lines.size(), 12);  // two articles, each its heads and five rows
  EXPECT_EQ(lines[0].split('\t')[0], text("GI_MRP_Solucion1", "ArtS(0)"));
  EXPECT_EQ(lines[6].split('\t')[0], text("GI_MRP_Solucion1", "ArtS(1)"));
  EXPECT_EQ(lines[1].split('\t').size(), lines[0].split('\t').size());
}

// Every entry table of every model, shaped by the model's first example: each
// shown cell has a place of its own in the table as pasted, and a block that
// fills the table from its first cell writes every shown cell it covers, in
// rows and columns, and no hidden one.
TEST_F(Clipboard, EveryEntryTableTakesABlockCellByCell) {
  for (const nav::ScreenInfo& info : nav::screens()) {
    if (info.kind != nav::Kind::Entry || !screens().available(info.name)) continue;
    const CatalogueEntry* model = findModel(info.name);
    if (!model) continue;
    screens().reset();
    const QDir examples(QString(VOREL_SOURCE_DIR) + "/examples/" +
                        QString::fromStdString(model->id));
    const QStringList files = examples.entryList(QDir::Files, QDir::Name);
    if (!files.isEmpty()) openFile(info.name, examples.filePath(files.front()));
    gui::Screen* s = screens().show(info.name);
    std::map<QWidget*, std::vector<QLineEdit*>> tables;
    std::map<QLineEdit*, QString> hidden;
    for (QLineEdit* box : s->findChildren<QLineEdit*>()) {
      if (!QRegularExpression("^.+\\(\\d+\\)$").match(box->objectName()).hasMatch()) continue;
      if (box->isVisibleTo(s))
        tables[box->parentWidget()].push_back(box);
      else if (box->isHidden())
        hidden[box] = box->text();
    }
    for (auto& [parent, cells] : tables) {
      const gui::TableGrid g = gui::tableOf(cells.front());
      const std::string where = info.name + " " + cells.front()->objectName().toStdString();
      for (QLineEdit* cell : cells)
        EXPECT_GE(g.find(cell).first, 0) << where << ": " << cell->objectName().toStdString();
      // The first cell a student types in, row by row.
      int top = -1, left = -1;
      for (int r = 0; r < g.rows && top < 0; ++r)
        for (int c = 0; c < g.columns && top < 0; ++c)
          if (auto* b = qobject_cast<QLineEdit*>(g.at(r, c)); b && !b->isReadOnly())
            top = r, left = c;
      if (top < 0) continue;
      Block block;
      for (int r = top; r < g.rows; ++r) {
        block.emplace_back();
        for (int c = left; c < g.columns; ++c)
          block.back().push_back(std::to_string(r) + "." + std::to_string(c));
      }
      platform.messages.clear();
      ASSERT_TRUE(
          gui::pasteIntoTable(static_cast<QLineEdit*>(g.at(top, left)), gui::blockText(block)))
          << where;
      EXPECT_TRUE(platform.messages.empty()) << where;
      for (int r = top; r < g.rows; ++r)
        for (int c = left; c < g.columns; ++c)
          if (auto* b = qobject_cast<QLineEdit*>(g.at(r, c)); b && !b->isReadOnly()) {
            EXPECT_EQ(b->text(), QString("%1.%2").arg(r).arg(c))
                << where << ": " << b->objectName().toStdString();
          }
    }
    for (auto& [box, before] : hidden)
      EXPECT_EQ(box->text(), before) << info.name << ": " << box->objectName().toStdString();
  }
}

}  // namespace
}  // namespace vorel::testing
