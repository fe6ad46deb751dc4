// Pictures of the screens for a person to look at: run by
// scripts/screenshots.sh under a virtual display (disabled in the suite).
#include <gtest/gtest.h>

#include <QDir>
#include <QPrintDialog>
#include <QPrinter>
#include <set>

#include "frame/catalogue.h"
#include "frame/gui/help_window.h"
#include "frame/gui/model_screens.h"
#include "frame/gui/session.h"
#include "frame/navigation.h"
#include "tests/gui_support.h"
#include "tests/test_support.h"

namespace vorel::testing {
namespace {

using Screenshots = ScreenTest;

void save(gui::Screen* s, const QString& dir, const std::string& name) {
  wait(150);
  s->grab().save(QDir(dir).filePath(QString::fromStdString(name) + ".png"));
}

TEST_F(Screenshots, DISABLED_EveryMenuAndModelScreen) {
  const QString dir = qEnvironmentVariable("VOREL_SCREENSHOTS", "screenshots");
  QDir().mkpath(dir);
  // VOREL_SCREENS=name,name... pictures only those screens (and the solutions of those entries).
  const QStringList only = qEnvironmentVariable("VOREL_SCREENS").split(',', Qt::SkipEmptyParts);
  for (const nav::ScreenInfo& info : nav::screens()) {
    if (!screens().available(info.name) || info.kind == nav::Kind::Solution ||
        info.kind == nav::Kind::ChartPrint)
      continue;
    if (!only.isEmpty() && !only.contains(QString::fromStdString(info.name))) continue;
    screens().reset();
    gui::Screen* s = screens().show(info.name);
    if (info.kind != nav::Kind::Entry) {
      save(s, dir, info.name);
      continue;
    }
    // A model's entry: open its first example as a student would, then
    // picture the entry and the solution that Resolver shows.
    const CatalogueEntry* model = findModel(info.name);
    if (!model) continue;
    const QDir examples(QString(VOREL_SOURCE_DIR) + "/examples/" + QString::fromStdString(model->id));
    save(s, dir, info.name);
    std::set<std::string> pictured;  // every solution screen the examples reach
    for (const QString& file : examples.entryList(QDir::Files, QDir::Name)) {
      platform.openAnswers.push_back(examples.filePath(file));
      press(info.name, "abrir");
      platform.messages.clear();
      platform.runtimeErrors.clear();
      for (const QString& command :
           QString::fromStdString(model->presses).split(", ", Qt::SkipEmptyParts))
        press(info.name, command);
      press(info.name, "Resolver");
      if (!platform.runtimeErrors.empty()) continue;  // the process would have ended
      for (const std::string& solution : info.solutions) {
        if (!visible(solution) || pictured.count(solution)) continue;
        save(screens().loaded(info.name), dir, info.name);
        save(screen(solution), dir, solution);
        pictured.insert(solution);
      }
      if (pictured.size() == info.solutions.size()) break;
    }
  }
}

// The desktop's own windows: abrir over a folder holding a problem saved under
// its default name, the printer dialog (both in Spanish) and the help window.
TEST_F(Screenshots, DISABLED_DialogsAndHelp) {
  const QString dir = qEnvironmentVariable("VOREL_SCREENSHOTS", "screenshots");
  QDir().mkpath(dir);
  gui::loadSpanishDialogs(*qApp);
  const QString folder = QString::fromStdString(tempPath("problemas"));
  QDir().mkpath(folder);
  for (const char* name : {"Problema1", "Problema2.txt"})
    writeBytes((folder + "/" + name).toStdString(), "\"Problema1\"\r\n");
  auto open = gui::fileDialog(QFileDialog::AcceptOpen, gui::kOpenFilter, 2);
  open->setOption(QFileDialog::DontUseNativeDialog);
  open->setDirectory(folder);
  open->show();
  wait(600);
  open->grab().save(QDir(dir).filePath("dialogo-abrir.png"));
  QPrinter printer;
  QPrintDialog print(&printer);
  print.show();
  wait(300);
  print.grab().save(QDir(dir).filePath("dialogo-imprimir.png"));
  gui::HelpWindow& help = gui::HelpWindow::instance();
  help.showPage(QCoreApplication::applicationDirPath() + "/../ayuda/GI_CantidadEconomicaPedido.html");
  wait(300);
  help.grab().save(QDir(dir).filePath("ayuda.png"));
  help.hide();
}

}  // namespace
}  // namespace vorel::testing
