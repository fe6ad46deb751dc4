// Solucion1: the picture box a solution screen paints its report on, in
// Arial 8.25 pt with print zones of 14 average character widths.
#pragma once

#include <QScrollArea>

#include "frame/report.h"

namespace vorel::gui {

class ReportCanvas;

class ReportBox : public QScrollArea {
  Q_OBJECT
 public:
  // `columns` wide and as tall as its report, up to `lines` lines; beyond
  // that, or where the window has less room, a scroll bar.
  ReportBox(const QString& objectName, int columns, int lines, QWidget* parent);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  void Cls();  // clears the picture
  void setReport(const Report& report);
  const Report& report() const;
  std::string plainText() const { return renderText(report()); }

 private:
  static constexpr int kFewestLines = 12;
  int linesHigh(int lines) const;

  ReportCanvas* canvas_;
  double lineHeight_ = 0;
  int lines_ = 0;
};

}  // namespace vorel::gui
