// The keyboard and screen readers, driven offscreen: Tab in reading order,
// arrows between cells, Space and Enter on commands, the focus after
// Rediseñar, one model done with the keyboard alone, and the accessibility
// tree of every screen.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QComboBox>
#include <QMessageBox>
#include <QTest>

#include "frame/gui/model_screens.h"
#include "frame/navigation.h"
#include "tests/gui_support.h"
#include "tests/test_support.h"

// Control names in failure messages as text.
inline void PrintTo(const QString& s, std::ostream* os) { *os << '"' << s.toStdString() << '"'; }

namespace vorel::testing {
namespace {

class Keyboard : public ScreenTest {
 protected:
  // The control that has the keyboard on a screen, which takes the keys.
  QWidget* keyTarget(const std::string& name) {
    gui::Screen* s = screen(name);
    return s->focusWidget() ? s->focusWidget() : s;
  }
  void key(const std::string& name, int k, Qt::KeyboardModifiers m = Qt::NoModifier) {
    QTest::keyClick(keyTarget(name), Qt::Key(k), m);
    QApplication::processEvents();
  }
  void keys(const std::string& name, const QString& text) {
    QTest::keyClicks(keyTarget(name), text);
  }
  // The names of the controls Tab visits from the focus, `count` presses.
  QStringList tabs(const std::string& name, int count, bool back = false) {
    QStringList visited;
    for (int k = 0; k < count; ++k) {
      key(name, back ? Qt::Key_Backtab : Qt::Key_Tab);
      visited << focused(name);
    }
    return visited;
  }
  // Presses Tab until the control named `object` (or read as `object`) has
  // the focus; false when a round of the screen never reaches it.
  bool tabTo(const std::string& name, const QString& object) {
    for (int k = 0; k < 80; ++k) {
      QWidget* w = screen(name)->focusWidget();
      if (w && (w->objectName() == object || w->accessibleName() == object)) return true;
      key(name, Qt::Key_Tab);
    }
    return false;
  }
};

const std::string kTransportes = "PL_Transportes";
const std::string kAtributos = "ControlCal_AtribP";

// Two origins and three destinations: the cells shown, row by row, are
// C1..C4 of rows 0 and 1 (the supplies last), then the demands' row.
TEST_F(Keyboard, TabTypesTheTransportationTableRowByRow) {
  screens().show(kTransportes);
  control<QComboBox>(kTransportes, "NumOrigen")->setCurrentIndex(1);
  control<QComboBox>(kTransportes, "NumDestino")->setCurrentIndex(2);
  press(kTransportes, "RediseñarTabla");
  ASSERT_EQ(focused(kTransportes), "C1(0)");
  QStringList expected;
  for (int i = 0; i < 8; ++i)
    for (int j = 1; j <= 8; ++j)
      if (shown(kTransportes, QStringLiteral("C%1(%2)").arg(j).arg(i)))
        expected << QStringLiteral("C%1(%2)").arg(j).arg(i);
  ASSERT_EQ(expected.size(), 11);  // 2 rows of 3 costs and a supply, 3 demands
  EXPECT_EQ(expected.mid(0, 5), QStringList({"C1(0)", "C2(0)", "C3(0)", "C4(0)", "C1(1)"}));
  QStringList visited{focused(kTransportes)};
  visited << tabs(kTransportes, 10);
  EXPECT_EQ(visited, expected);
  // Shift+Tab walks back the same way.
  QStringList back = tabs(kTransportes, 10, true);
  std::reverse(back.begin(), back.end());
  EXPECT_EQ(back, expected.mid(0, 10));

  // A row typed with Tab lands in its row, not down a column.
  control<QLineEdit>(kTransportes, "C1(0)")->setFocus();
  for (const char* value : {"4", "6", "9", "20"}) {
    keys(kTransportes, value);
    key(kTransportes, Qt::Key_Tab);
  }
  EXPECT_EQ(text(kTransportes, "C1(0)"), "4");
  EXPECT_EQ(text(kTransportes, "C2(0)"), "6");
  EXPECT_EQ(text(kTransportes, "C3(0)"), "9");
  EXPECT_EQ(text(kTransportes, "C4(0)"), "20");
  EXPECT_EQ(text(kTransportes, "C1(1)"), "");
  EXPECT_EQ(focused(kTransportes), "C1(1)");
}

// Up and Down always move between cells; Left and Right only at the start
// and end of the cell's text, where they no longer move within it.
TEST_F(Keyboard, ArrowsMoveBetweenCells) {
  screens().show(kTransportes);
  control<QComboBox>(kTransportes, "NumOrigen")->setCurrentIndex(1);
  control<QComboBox>(kTransportes, "NumDestino")->setCurrentIndex(2);
  press(kTransportes, "RediseñarTabla");
  type(kTransportes, "C2(1)", "12");
  key(kTransportes, Qt::Key_Down);
  EXPECT_EQ(focused(kTransportes), "C1(1)");
  key(kTransportes, Qt::Key_Right);  // an empty cell: at its end
  EXPECT_EQ(focused(kTransportes), "C2(1)");
  auto* cell = control<QLineEdit>(kTransportes, "C2(1)");
  cell->setCursorPosition(1);
  key(kTransportes, Qt::Key_Right);  // inside "12": the cursor moves
  EXPECT_EQ(focused(kTransportes), "C2(1)");
  EXPECT_EQ(cell->cursorPosition(), 2);
  key(kTransportes, Qt::Key_Left);
  key(kTransportes, Qt::Key_Left);
  EXPECT_EQ(focused(kTransportes), "C2(1)");
  key(kTransportes, Qt::Key_Left);  // at its start: the cell before
  EXPECT_EQ(focused(kTransportes), "C1(1)");
  key(kTransportes, Qt::Key_Down);  // the demands' row
  EXPECT_EQ(focused(kTransportes), "C1(2)");
  key(kTransportes, Qt::Key_Down);  // nothing below: it stays
  EXPECT_EQ(focused(kTransportes), "C1(2)");
  key(kTransportes, Qt::Key_Up);
  key(kTransportes, Qt::Key_Up);
  EXPECT_EQ(focused(kTransportes), "C1(0)");
  key(kTransportes, Qt::Key_Up);  // the table's edge: the focus stays in it
  EXPECT_EQ(focused(kTransportes), "C1(0)");
}

// Rediseñar pressed from the keyboard leaves the keyboard in the first cell,
// so the digits typed next are the first sample's; Tab then goes r, tamano of
// each sample in turn, on into the next block of fifteen.
TEST_F(Keyboard, AttributesRediseñarGoesToTheFirstCellAndTabGoesSampleBySample) {
  screens().show(kAtributos);
  type(kAtributos, "Nmuestras", "17");
  ASSERT_TRUE(tabTo(kAtributos, "Rediseñar"));
  key(kAtributos, Qt::Key_Space);
  EXPECT_EQ(focused(kAtributos), "r(0)");
  keys(kAtributos, "3");
  EXPECT_EQ(text(kAtributos, "r(0)"), "3");
  QStringList expected{"tamano(0)"};
  for (int i = 1; i < 17; ++i)
    expected << QStringLiteral("r(%1)").arg(i) << QStringLiteral("tamano(%1)").arg(i);
  EXPECT_EQ(tabs(kAtributos, int(expected.size())), expected);
}

// Space and Enter press a focused picture; Tab reaches the commands after the
// fields and the window's own commands last.
TEST_F(Keyboard, SpaceAndEnterPressAPictureCommand) {
  const std::string entry = "GI_CantidadEconómicaPedido";
  screens().show(entry);
  EXPECT_EQ(focused(entry), "Titulo1");
  const QStringList order = tabs(entry, 13);
  EXPECT_EQ(order, QStringList({"D", "E", "A", "TS", "dias", "P", "nuevo", "abrir", "guardar",
                                "Resolver", "ayuda", "gohome", "volver"}));
  type(entry, "D", "1000");
  ASSERT_TRUE(tabTo(entry, "nuevo"));
  key(entry, Qt::Key_Space);
  EXPECT_EQ(text(entry, "D"), "");
  type(entry, "D", "1000");
  key(entry, Qt::Key_Return);
  EXPECT_EQ(text(entry, "D"), "");
  ASSERT_TRUE(tabTo(entry, "Resolver"));
  key(entry, Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_EQ(platform.messages.size(), 1u);  // the first check's message
  EXPECT_TRUE(visible(entry));
}

// A message box closes with Escape, as with Enter.
TEST_F(Keyboard, EscapeClosesTheMessageBox) {
  for (int k : {Qt::Key_Escape, Qt::Key_Return}) {
    auto box = gui::errorMessageBox("Valor no válido");
    box->show();
    QApplication::processEvents();
    ASSERT_TRUE(box->isVisible());
    QTest::keyClick(box.get(), Qt::Key(k));
    EXPECT_FALSE(box->isVisible()) << k;
    EXPECT_EQ(box->standardButton(box->clickedButton()), QMessageBox::Ok);
  }
}

// Economic order quantity from the main menu with the keyboard alone: the
// choices, the fields, Resolver, Imprimir and volver; the report box reads as
// the report's text.
TEST_F(Keyboard, AModelDoneWithTheKeyboardAlone) {
  const std::string entry = "GI_CantidadEconómicaPedido";
  const std::string solution = "GI_CantidadEconómicaPedido_Solución";
  screens().show("APrincipal");
  ASSERT_TRUE(tabTo("APrincipal", "Gestión de Inventarios"));
  key("APrincipal", Qt::Key_Return);
  ASSERT_TRUE(visible("GestiónDeInventarios"));
  ASSERT_TRUE(tabTo("GestiónDeInventarios", "Inventarios con demanda independiente"));
  key("GestiónDeInventarios", Qt::Key_Space);
  ASSERT_TRUE(visible("GI_DemandaIndependiente"));
  ASSERT_TRUE(tabTo("GI_DemandaIndependiente", "Cantidad Económica de Pedido"));
  key("GI_DemandaIndependiente", Qt::Key_Return);
  ASSERT_TRUE(visible(entry));
  EXPECT_EQ(focused(entry), "Titulo1");
  for (const char* value : {"1000", "50", "4", "10", "250", "2"}) {
    key(entry, Qt::Key_Tab);
    keys(entry, value);
  }
  EXPECT_EQ(text(entry, "P"), "2");
  ASSERT_TRUE(tabTo(entry, "Resolver"));
  key(entry, Qt::Key_Return);
  EXPECT_TRUE(platform.messages.empty());
  ASSERT_TRUE(visible(solution));
  const std::string report = painted(solution);
  EXPECT_NE(report.find("Solución al problema:"), std::string::npos);
  QAccessibleInterface* box =
      QAccessible::queryAccessibleInterface(control<QWidget>(solution, "Solucion1"));
  ASSERT_NE(box, nullptr);
  EXPECT_EQ(box->text(QAccessible::Description).toStdString(), report);
  EXPECT_FALSE(box->text(QAccessible::Name).isEmpty());
  platform.printTo(QString::fromStdString(tempPath("keyboard.pdf")));
  ASSERT_TRUE(tabTo(solution, "Imprimir"));
  key(solution, Qt::Key_Return);
  EXPECT_EQ(platform.printerDialogs, 1);
  ASSERT_TRUE(tabTo(solution, "volver"));
  key(solution, Qt::Key_Space);
  EXPECT_TRUE(visible(entry));
  EXPECT_FALSE(visible(solution));
  EXPECT_EQ(text(entry, "D"), "1000");
}

// Every screen shown on its own: each control on view that takes the focus,
// and each command, is named in Qt's accessibility tree; a menu's picture by
// its choice's label.
TEST_F(Keyboard, EveryControlOfEveryScreenIsNamedForScreenReaders) {
  int checked = 0;
  for (const nav::ScreenInfo& info : nav::screens()) {
    screens().reset();
    gui::Screen* s = screens().show(info.name);
    if (!s) continue;
    std::vector<QAccessibleInterface*> pending{QAccessible::queryAccessibleInterface(s)};
    while (!pending.empty()) {
      QAccessibleInterface* a = pending.back();
      pending.pop_back();
      if (!a) continue;
      for (int i = 0; i < a->childCount(); ++i) pending.push_back(a->child(i));
      auto* w = qobject_cast<QWidget*>(a->object());
      if (!w || w == s || !w->isVisibleTo(s) || w->focusProxy()) continue;
      const bool focusable = (w->focusPolicy() & Qt::TabFocus) && w->isEnabled();
      if (!focusable &&
          !(qobject_cast<QAbstractButton*>(w) && w->isEnabled() && w->focusPolicy() != Qt::NoFocus))
        continue;
      ++checked;
      EXPECT_FALSE(a->text(QAccessible::Name).trimmed().isEmpty())
          << info.name << ": " << w->objectName().toStdString() << " ("
          << w->metaObject()->className() << ")";
    }
  }
  EXPECT_GT(checked, 1000);
  screens().reset();
  screens().show("GI_DemandaIndependiente");
  auto* choice =
      QAccessible::queryAccessibleInterface(control<QWidget>("GI_DemandaIndependiente", "Image3"));
  ASSERT_NE(choice, nullptr);
  EXPECT_EQ(choice->text(QAccessible::Name), "Cantidad Económica de Pedido");
  // A table's cell is read by its row and column.
  screens().show(kTransportes);
  auto* cell = QAccessible::queryAccessibleInterface(control<QWidget>(kTransportes, "C2(0)"));
  EXPECT_EQ(cell->text(QAccessible::Name), "Origen 1, Destino 2");
}

}  // namespace
}  // namespace vorel::testing
