// What the desktop program sets up once at start: Qt's own dialogs in Spanish,
// and the gathered printer document finished however the process ends.
#pragma once

#include <QDateTime>
#include <QString>

class QApplication;
class QPrinter;

namespace vorel::gui {

// Loads Qt's Spanish catalogue, whatever the desktop's language: every text of
// the program is Spanish, so its file and printer dialogs are too. False
// where the catalogue is not installed.
bool loadSpanishDialogs(QApplication& app);

// Finishes and writes the gathered printer document whenever the process
// ends: SIGTERM, SIGINT and SIGHUP (then the process ends with 128 + the
// signal), the desktop session's end, and the event loop's end.
void finishPrintsAtEveryEnd(QApplication& app);

// Where the printer writes when it is only the PDF writer and nobody chose a
// file: the user's documents folder, named after the model and the time,
// with "-2", "-3"... where such a file is there already.
QString defaultPdfPath(const QString& model, const QDateTime& when);
// Gives such a printer that file when it has none, or when its last document
// already went to the default file; a real printer is left alone.
void giveDefaultPdfFile(QPrinter& printer, const QString& model);

}  // namespace vorel::gui
