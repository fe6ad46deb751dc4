// Captions that break into lines where their text has runs of blanks.
#pragma once

#include <QLabel>

namespace vorel::gui {

// Word-wraps `label` and makes it as wide as the widest part of its text
// between runs of two or more blanks, and at least `least` pixels, so the
// text breaks at those runs.
void wrapAtBlankRuns(QLabel* label, int least);

}  // namespace vorel::gui
