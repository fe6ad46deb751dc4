// The frame driven offscreen: start-up, the menu tree, the chrome, the
// process-alive rule, the kept quirks, and printing to PDF.
#include <gtest/gtest.h>

#include <QFile>
#include <QGridLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QTest>
#include <algorithm>
#include <functional>
#include <set>

#include "frame/gui/help_window.h"
#include "frame/gui/menus.h"
#include "frame/gui/model_screens.h"
#include "frame/gui/printing.h"
#include "frame/navigation.h"
#include "tests/gui_support.h"
#include "tests/test_support.h"

namespace vorel::testing {
namespace {

using FrameTest = ScreenTest;

bool hasLabel(gui::Screen* s, const QString& text) {
  for (auto* label : s->findChildren<QLabel*>())
    if (label->text() == text) return true;
  return false;
}

TEST_F(FrameTest, StartScreenGivesWayToTheMainMenuAfterTwoSeconds) {
  screens().show("AInicio");
  gui::Screen* start = screen("AInicio");
  for (const char* label :
       {"Vorel", "Aula de Gestión Productiva", "Versión 1.1 (2004)", "Elaborado por:"})
    EXPECT_TRUE(hasLabel(start, label)) << label;
  auto* timer = static_cast<gui::StartScreen*>(start)->Temporizador;
  EXPECT_EQ(timer->interval(), 2000);
  wait(1700);
  EXPECT_TRUE(visible("AInicio"));
  EXPECT_FALSE(visible("APrincipal"));
  wait(1000);
  EXPECT_FALSE(visible("AInicio"));
  EXPECT_TRUE(visible("APrincipal"));
  EXPECT_FALSE(timer->isActive());
  EXPECT_NE(screen("AInicio"), nullptr);  // hidden, still loaded
  EXPECT_EQ(screen("APrincipal")->windowTitle(), "Vorel");
}

// What the student meets on every screen, written out: the menus walked picture by picture
// from the main menu, each screen they open with its caption, heading and window commands, and
// where volver and cerrar land; then every screen no picture opens, shown on its own. The text
// is compared with tests/golden/frame/pantallas.txt (VOREL_UPDATE_GOLDEN=1 writes it anew).
class ScreenWalk : public ScreenTest {
 protected:
  using Path = std::vector<std::pair<std::string, QString>>;  // (screen, picture) pressed

  // The loaded screens on view, by name (widgets of earlier tests awaiting deletion aside).
  std::vector<std::string> shown() {
    std::vector<std::string> names;
    for (QWidget* w : QApplication::topLevelWidgets())
      if (auto* s = dynamic_cast<gui::Screen*>(w); s && s->isVisible() && screen(s->name()) == s)
        names.push_back(s->name());
    std::sort(names.begin(), names.end());
    return names;
  }
  std::string shownNames() {
    std::string out;
    for (const std::string& n : shown()) out += (out.empty() ? "" : ", ") + n;
    return out.empty() ? "(nada)" : out;
  }
  // A fresh run that reaches a screen: through the menus, or shown on its own.
  void reach(const Path& path, const std::string& alone) {
    screens().reset();
    platform.ended = false;
    if (!alone.empty()) {
      screens().show(alone);
      return;
    }
    screens().show("APrincipal");
    for (const auto& [name, picture] : path) press(name, picture);
  }
  std::string describe(const std::string& name, const Path& path, const std::string& alone) {
    reach(path, alone);
    gui::Screen* s = screen(name);
    if (s == nullptr) return "[" + name + "] no se carga\n";
    std::string out = "[" + name + "] «" + s->windowTitle().toStdString() + "»";
    if (auto* heading = s->findChild<QLabel*>("heading"); heading && !heading->text().isEmpty())
      out += " encabezado «" + heading->text().toStdString() + "»";
    out += "\n  mandos:";
    QStringList tips;
    std::vector<std::pair<QString, QString>> commands;  // (tip, control)
    for (auto* b : s->findChild<QWidget*>("band")->findChildren<QAbstractButton*>()) {
      tips << b->toolTip();
      commands.emplace_back(b->toolTip(), b->objectName());
    }
    out += " " + tips.join(", ").toStdString() + "\n";
    for (const auto& [tip, control] : commands) {
      if (tip != "Volver" && tip != "Cerrar") continue;
      reach(path, alone);
      press(name, control);
      out += "  " + tip.toLower().toStdString() + ": ";
      if (tip == "Volver")
        out += shownNames() + "\n";
      else
        out += platform.ended            ? "termina el programa\n"
               : screen(name) == nullptr ? "se descarga\n"
                                         : "sigue cargada\n";
    }
    return out;
  }
};

TEST_F(ScreenWalk, EveryScreenAsTheStudentMeetsIt) {
  std::string out;
  std::set<std::string> described;
  std::function<void(const std::string&, const Path&)> walk = [&](const std::string& name,
                                                                  const Path& path) {
    described.insert(name);
    out += describe(name, path, {});
    const nav::MenuInfo* menu = nav::findMenu(name);
    if (menu == nullptr) return;
    reach(path, {});
    if (!menu->intro.empty())
      out += "  texto: " + screen(name)->findChild<QLabel*>("Label1")->text().toStdString() + "\n";
    std::vector<std::pair<std::string, Path>> opened;
    for (const nav::MenuChoice& choice : menu->choices) {
      const QString picture = QString::fromStdString(choice.picture);
      reach(path, {});
      auto* button = control<QAbstractButton>(name, picture);
      std::string label;
      for (auto* grid : screen(name)->findChildren<QGridLayout*>())
        for (int i = 0; i < grid->count(); ++i)
          if (grid->itemAt(i)->widget() == button) {
            int row, column, rows, columns;
            grid->getItemPosition(i, &row, &column, &rows, &columns);
            if (auto* l = qobject_cast<QLabel*>(grid->itemAtPosition(row, column + 1)->widget()))
              label = l->text().toStdString();
          }
      out += "  " + choice.picture + " «" + label + "»: ";
      if (!button->isEnabled()) {
        out += "no disponible\n";
        continue;
      }
      const std::vector<std::string> before = shown();
      press(name, picture);
      out += shownNames() + "\n";
      for (const std::string& now : shown())
        if (std::find(before.begin(), before.end(), now) == before.end() &&
            !described.contains(now)) {
          Path next = path;
          next.emplace_back(name, picture);
          opened.emplace_back(now, next);
          described.insert(now);
        }
    }
    for (const auto& [next, nextPath] : opened) walk(next, nextPath);
  };
  walk("APrincipal", {});
  out += "\nSin menú que las abra:\n";
  for (const nav::ScreenInfo& s : nav::screens())
    if (!described.contains(s.name))
      out += screens().available(s.name) ? describe(s.name, {}, s.name)
                                         : "[" + s.name + "] no disponible\n";
  const std::string golden = std::string(VOREL_SOURCE_DIR) + "/tests/golden/frame/pantallas.txt";
  if (qEnvironmentVariableIsSet("VOREL_UPDATE_GOLDEN")) writeBytes(golden, out);
  EXPECT_EQ(out, readBytes(golden));
}

TEST_F(FrameTest, GohomeAndVolverOnlyHideSoNothingIsLost) {
  screens().show("GI_CantidadEconómicaPedido");
  type("GI_CantidadEconómicaPedido", "D", "1234");
  press("GI_CantidadEconómicaPedido", "gohome");
  EXPECT_TRUE(visible("APrincipal"));
  EXPECT_FALSE(visible("GI_CantidadEconómicaPedido"));
  press("APrincipal", "Image6");
  press("GestiónDeInventarios", "Image3");
  press("GI_DemandaIndependiente", "Image3");
  EXPECT_EQ(text("GI_CantidadEconómicaPedido", "D"), "1234");
  press("GI_CantidadEconómicaPedido", "volver");
  EXPECT_TRUE(visible("GI_DemandaIndependiente"));
  EXPECT_FALSE(visible("GI_CantidadEconómicaPedido"));
  press("GI_DemandaIndependiente", "Image11");  // "Volver"
  EXPECT_TRUE(visible("GestiónDeInventarios"));
}

TEST_F(FrameTest, CerrarUnloadsSoTheNextShowLoadsAfresh) {
  screens().show("GI_CantidadEconómicaPedido");
  type("GI_CantidadEconómicaPedido", "Titulo1", "Mío");
  type("GI_CantidadEconómicaPedido", "D", "5");
  press("GI_CantidadEconómicaPedido", "cerrar");
  EXPECT_EQ(screen("GI_CantidadEconómicaPedido"), nullptr);
  EXPECT_FALSE(platform.ended);
  screens().show("GI_CantidadEconómicaPedido");
  EXPECT_EQ(text("GI_CantidadEconómicaPedido", "Titulo1"), "Problema1");
  EXPECT_EQ(text("GI_CantidadEconómicaPedido", "D"), "");
}

TEST_F(FrameTest, TheProcessLivesWhileAnyScreenIsLoaded) {
  int endedWhenEmpty = 0;
  screens().onNoScreenLoaded = [&] { ++endedWhenEmpty; };
  screens().show("AInicio");
  screens().hide("AInicio");
  screens().show("APrincipal");
  press("APrincipal", "Image10");  // cerrar of the main menu: unload only
  EXPECT_EQ(screen("APrincipal"), nullptr);
  EXPECT_EQ(endedWhenEmpty, 0);  // the hidden start screen keeps the process alive
  EXPECT_FALSE(platform.ended);
  screens().unload("AInicio");
  EXPECT_EQ(endedWhenEmpty, 1);
  screens().onNoScreenLoaded = nullptr;
}

TEST_F(FrameTest, ChromeCarriesItsToolTips) {
  screens().show("GI_CantidadEconómicaPedido");
  struct Case {
    const char* control;
    const char* tip;
  } cases[] = {{"minimizar", "Minimizar"}, {"cerrar", "Cerrar"},   {"gohome", "Pantalla de Inicio"},
               {"ayuda", "Ayuda"},         {"volver", "Volver"},   {"nuevo", "Nuevo"},
               {"abrir", "Abrir"},         {"guardar", "Guardar"}, {"Resolver", "Resolver"}};
  for (const auto& c : cases) {
    auto* b = screen("GI_CantidadEconómicaPedido")->findChild<QAbstractButton*>(c.control);
    ASSERT_NE(b, nullptr) << c.control;
    EXPECT_EQ(b->toolTip(), c.tip);
  }
  screens().show("GI_CantidadEconómicaPedido_Solución");
  EXPECT_EQ(screen("GI_CantidadEconómicaPedido_Solución")->findChild<QAbstractButton*>("ayuda"),
            nullptr);
  press("GI_CantidadEconómicaPedido", "minimizar");
  EXPECT_TRUE(screen("GI_CantidadEconómicaPedido")->windowState() & Qt::WindowMinimized);
}

TEST_F(FrameTest, AyudaOpensThePageOfItsScreen) {
  screens().show("APrincipal");
  press("APrincipal", "Image7");
  screens().show("GestiónDeInventarios");
  press("GestiónDeInventarios", "ayuda");
  screens().show("GI_CantidadEconómicaPedido");
  press("GI_CantidadEconómicaPedido", "ayuda");
  ASSERT_EQ(platform.helpStarted.size(), 3u);
  EXPECT_EQ(platform.helpStarted[0], gui::helpFolder() + "/VorelAyuda.html");
  EXPECT_EQ(platform.helpStarted[1], gui::helpFolder() + "/GestionDeInventarios.html");
  EXPECT_EQ(platform.helpStarted[2], gui::helpFolder() + "/GI_CantidadEconomicaPedido.html");
}

TEST_F(FrameTest, EveryBadCellIsToldWithFocusMovingToIt) {
  auto* entry = dynamic_cast<gui::EntryScreen*>(screens().show("GI_CantidadEconómicaPedido"));
  ASSERT_NE(entry, nullptr);
  EXPECT_FALSE(entry->tell({{"primera", "D"}, {"sin foco", ""}, {"segunda", "E"}}));
  EXPECT_EQ(platform.messages, (std::vector<std::string>{"primera", "sin foco", "segunda"}));
  ASSERT_NE(entry->focusWidget(), nullptr);
  EXPECT_EQ(entry->focusWidget()->objectName(), "E");
  EXPECT_TRUE(entry->tell({}));
}

TEST_F(FrameTest, ABorderlessWindowIsDraggedByItsBackground) {
  gui::Screen* menu = screens().show("ProgramaciónLineal");
  EXPECT_TRUE(menu->windowFlags() & Qt::FramelessWindowHint);
  const QPoint before = menu->pos();
  QTest::mousePress(menu, Qt::LeftButton, {}, QPoint(200, 70));
  QMouseEvent move(QEvent::MouseMove, QPointF(260, 110), menu->mapToGlobal(QPointF(260, 110)),
                   Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(menu, &move);
  QTest::mouseRelease(menu, Qt::LeftButton, {}, QPoint(260, 110));
  EXPECT_EQ(menu->pos(), before + QPoint(60, 40));
}

Report sampleReport(const std::string& marker) {
  Report r = pageHead("INFORME DE PRUEBA");
  r.line(Z, "Marca:", Z, marker);
  return r;
}

TEST_F(FrameTest, TextPrintsGatherInOneDocumentUntilTheProcessEnds) {
  const QString pdf = QString::fromStdString(tempPath("gathered.pdf"));
  platform.printTo(pdf);
  gui::printReport(sampleReport("primera"));
  gui::printReport(sampleReport("segunda"));
  EXPECT_FALSE(QFile::exists(pdf) && pdfPages(pdf) > 0);  // nothing has gone out yet
  platform.endProcess();
  const std::string text = pdfText(pdf);
  EXPECT_NE(text.find("primera"), std::string::npos);
  EXPECT_NE(text.find("segunda"), std::string::npos);
  EXPECT_NE(text.find("INFORME DE PRUEBA"), std::string::npos);
  EXPECT_EQ(pdfPages(pdf), 1);
}

TEST_F(FrameTest, AChartPageEndsItsOwnDocument) {
  const QString first = QString::fromStdString(tempPath("chart1.pdf"));
  platform.printTo(first);
  QImage chart(200, 120, QImage::Format_RGB32);
  chart.fill(Qt::blue);
  gui::printChartPage(sampleReport("gráfico"), chart, 0.25, 0.5);
  ASSERT_EQ(pdfPages(first), 1);  // out at once
  EXPECT_NE(pdfText(first).find("gráfico"), std::string::npos);
  const QString second = QString::fromStdString(tempPath("after.pdf"));
  platform.printTo(second);
  gui::printReport(sampleReport("después"));
  platform.endProcess();
  EXPECT_EQ(pdfText(first).find("después"), std::string::npos);
  EXPECT_NE(pdfText(second).find("después"), std::string::npos);
}

// A printer document written to a file that fails is the printer's run-time
// error: at once for a chart page, whose Imprimir ends its document, and at
// the end of the process for the gathered text pages.
TEST_F(FrameTest, ADocumentThePrinterCannotFinishIsAPrinterError) {
  platform.printTo("/dev/full");
  openFile("Select_C_Totales", examplePath("costes-totales", "dos-opciones.txt"));
  press("Select_C_Totales", "Resolver");
  press("Select_C_Totales_Sol", "Imprimir");
  EXPECT_EQ(platform.runtimeErrors, std::vector<int>{482});

  platform.runtimeErrors.clear();
  platform.printTo("/dev/full");
  gui::printReport(sampleReport("primera"));
  EXPECT_TRUE(platform.runtimeErrors.empty());  // nothing has gone out yet
  platform.endProcess();
  EXPECT_EQ(platform.runtimeErrors, std::vector<int>{482});
  EXPECT_TRUE(platform.ended);
}

}  // namespace
}  // namespace vorel::testing
