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
  // Sized for `lines` lines of `columns` columns; beyond that a scroll bar.
  ReportBox(const QString& objectName, int columns, int lines, QWidget* parent);
  void Cls();  // clears the picture
  void setReport(const Report& report);
  const Report& report() const;
  std::string plainText() const { return renderText(report()); }

private:
  ReportCanvas* canvas_;
};

}  // namespace vorel::gui
