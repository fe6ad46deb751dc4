// Charted solution screens: the report box beside the chart control MSChart1
// and the screen-level chart data that feeds it; and the chart print screens,
// which carry the chart's picture to the printer and are never shown.
#pragma once

#include <string>

#include "frame/gui/chart_view.h"
#include "frame/gui/model_screens.h"

namespace vorel::gui {

// A solution screen that draws `Pages::chart` beside its report. Its Imprimir
// prints the page's text, then paints the chart, through the model's chart
// print screen, at the chart's fractions of the page, and ends the document:
// each chart print is a page of its own.
class ChartSolutionScreen : public SolutionScreen {
  Q_OBJECT
 public:
  // `printScreen` is the model's chart print screen ("C_Experiencia_Sol_Imprimir").
  ChartSolutionScreen(const std::string& name, const QString& label, int columns, int lines,
                      std::string printScreen,
                      const QString& reportName = QStringLiteral("Solucion1"));

  ChartView* MSChart1() const { return chart_; }
  // The screen-level data matrix: what the chart on screen and on paper draw.
  const Chart& chart() const { return data_; }
  const std::string& printScreen() const { return printScreen_; }

 protected:
  void draw(const Pages& pages) override;
  void imprimir() override;

 private:
  ChartView* chart_;
  Chart data_;
  std::string printScreen_;
};

// A chart print screen ("Form2"): a single picture, Picture1, that holds the
// chart on its way to the printer. Loaded by Imprimir, never made visible,
// unloaded once the page is out.
class ChartPrintScreen : public Screen {
  Q_OBJECT
 public:
  explicit ChartPrintScreen(const std::string& name);
  ChartView* Picture1() const { return picture_; }
  // Paints the picture onto the page at its chart's fractions of `page`.
  void paintOnPage(QPainter& painter, const QRect& page) const;

 private:
  ChartView* picture_;
};

// Registers every chart print screen of the screen tree.
void registerChartPrintScreens();

}  // namespace vorel::gui
