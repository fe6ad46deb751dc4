#include "frame/gui/captions.h"

#include <QFontMetrics>
#include <QRegularExpression>
#include <algorithm>

namespace vorel::gui {

void wrapAtBlankRuns(QLabel* label, int least) {
  static const QRegularExpression runs(QStringLiteral(" {2,}"));
  label->ensurePolished();  // the font its style sheet gives it
  const QFontMetrics metrics(label->font());
  int widest = 0;
  for (const QString& part : label->text().split(runs))
    widest = std::max(widest, metrics.horizontalAdvance(part));
  label->setWordWrap(true);
  const int width = std::max(least, widest + 8);
  label->setFixedWidth(width);
  // A grid squeezed for height keeps every line of it.
  label->setMinimumHeight(label->heightForWidth(width));
}

}  // namespace vorel::gui
