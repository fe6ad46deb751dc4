// The frame driven offscreen: start-up, the menu tree, the chrome, the
// process-alive rule, the kept quirks, and printing to PDF.
#include <gtest/gtest.h>

#include <QFile>
#include <QLabel>
#include <QMouseEvent>
#include <QTest>

#include "frame/gui/menus.h"
#include "frame/gui/model_screens.h"
#include "frame/gui/printing.h"
#include "frame/navigation.h"
#include "frame/gui/help_window.h"
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
  for (const char* label : {"Vorel", "Aula de Gestión Productiva", "Versión 1.1 (2004)",
                            "Elaborado por:"})
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

TEST_F(FrameTest, EveryMenuChoiceOpensItsTargetAndHidesTheMenu) {
  for (const nav::MenuInfo& menu : nav::menus()) {
    for (const nav::MenuChoice& choice : menu.choices) {
      if (choice.target.empty() || !screens().available(choice.target)) continue;
      SCOPED_TRACE(menu.name + " " + choice.picture + " -> " + choice.target);
      screens().reset();
      screens().show(menu.name);
      gui::Screen* m = screen(menu.name);
      EXPECT_TRUE(hasLabel(m, QString::fromStdString(choice.label)));
      press(menu.name, QString::fromStdString(choice.picture));
      EXPECT_TRUE(visible(choice.target));
      EXPECT_EQ(visible(menu.name), choice.hides != menu.name);
      EXPECT_FALSE(visible(choice.hides));
    }
  }
}

TEST_F(FrameTest, MenusShowTheirCaptionsIntroAndLabels) {
  for (const nav::MenuInfo& menu : nav::menus()) {
    SCOPED_TRACE(menu.name);
    screens().show(menu.name);
    gui::Screen* m = screen(menu.name);
    EXPECT_EQ(m->windowTitle().toStdString(), nav::findScreen(menu.name)->caption);
    if (!menu.intro.empty()) {
      EXPECT_TRUE(hasLabel(m, QString::fromStdString(menu.intro)));
    }
  }
}

TEST_F(FrameTest, ChoicesOfModelsNotBuiltStayDisabled) {
  screens().show("ProgramaciónLineal");
  for (const nav::MenuChoice& c : nav::findMenu("ProgramaciónLineal")->choices) {
    auto* picture = screen("ProgramaciónLineal")->findChild<QAbstractButton*>(
        QString::fromStdString(c.picture));
    ASSERT_NE(picture, nullptr);
    EXPECT_EQ(picture->isEnabled(), screens().available(c.target)) << c.target;
  }
  screens().show("GI_DemandaIndependiente");
  EXPECT_TRUE(screen("GI_DemandaIndependiente")->findChild<QAbstractButton*>("Image3")->isEnabled());
}

TEST_F(FrameTest, KeptMenuQuirks) {
  // The multi-criteria menu keeps its odd caption.
  screens().show("DecisionMulticriterio");
  EXPECT_EQ(screen("DecisionMulticriterio")->windowTitle(),
            "Teoría de Colas. Este tipo de problemas proporcionan información crucial ");
  // The strip of the games menu hides the menu and shows nothing.
  screens().reset();
  screens().show("Juegos");
  press("Juegos", "Image7");
  EXPECT_FALSE(visible("Juegos"));
  int shown = 0;
  for (QWidget* w : QApplication::topLevelWidgets()) shown += w->isVisible();
  EXPECT_EQ(shown, 0);
}

TEST_F(FrameTest, RupturaChoiceHidesTheInventoryMenuInsteadOfItself) {
  const nav::MenuChoice* ruptura = nullptr;
  for (const auto& c : nav::findMenu("GI_DemandaIndependiente")->choices)
    if (c.picture == "Image8") ruptura = &c;
  ASSERT_NE(ruptura, nullptr);
  EXPECT_EQ(ruptura->target, "GI_CEPRuptura");
  EXPECT_EQ(ruptura->hides, "GestiónDeInventarios");
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

TEST_F(FrameTest, CerrarEndsTheProcessOnTheEndGroup) {
  for (const nav::ScreenInfo& s : nav::screens()) {
    if (s.cerrar != nav::Cerrar::EndProcess || !screens().available(s.name)) continue;
    platform.ended = false;
    screens().show(s.name);
    press(s.name, "cerrar");
    EXPECT_TRUE(platform.ended) << s.name;
  }
  platform.ended = false;
  screens().show("ControlCal");
  press("ControlCal", "cerrar");
  EXPECT_TRUE(platform.ended);
}

TEST_F(FrameTest, ChromeCarriesItsToolTips) {
  screens().show("GI_CantidadEconómicaPedido");
  struct Case { const char* control; const char* tip; } cases[] = {
      {"minimizar", "Minimizar"}, {"cerrar", "Cerrar"}, {"gohome", "Pantalla de Inicio"},
      {"ayuda", "Ayuda"},         {"volver", "Volver"}, {"nuevo", "Nuevo"},
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

}  // namespace
}  // namespace vorel::testing
