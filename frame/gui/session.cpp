#include "frame/gui/session.h"

#include <sys/socket.h>
#include <unistd.h>

#include <QApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QPrinter>
#include <QSocketNotifier>
#include <QStandardPaths>
#include <QTranslator>
#include <csignal>
#include <cstdlib>

#include "frame/gui/printing.h"
#include "frame/problem_file.h"

namespace vorel::gui {

bool loadSpanishDialogs(QApplication& app) {
  auto* translator = new QTranslator(&app);
  if (!translator->load(QLocale(QLocale::Spanish, QLocale::Spain), QStringLiteral("qtbase"),
                        QStringLiteral("_"), QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    delete translator;
    return false;
  }
  return QCoreApplication::installTranslator(translator);
}

namespace {

int signalPipe[2] = {-1, -1};

// A signal handler may only write to a pipe; the event loop reads it.
void onSignal(int number) {
  const char byte = static_cast<char>(number);
  [[maybe_unused]] auto written = ::write(signalPipe[0], &byte, 1);
}

void finishAll() {
  finishPrinterDocumentAtTheEnd();
  closeAllProblemFiles();
}

}  // namespace

void finishPrintsAtEveryEnd(QApplication& app) {
  QObject::connect(&app, &QGuiApplication::commitDataRequest, &app,
                   [](QSessionManager&) { finishPrinterDocumentAtTheEnd(); });
  QObject::connect(&app, &QCoreApplication::aboutToQuit, &app, finishAll);
  if (::socketpair(AF_UNIX, SOCK_STREAM, 0, signalPipe) != 0) return;
  auto* notifier = new QSocketNotifier(signalPipe[1], QSocketNotifier::Read, &app);
  QObject::connect(notifier, &QSocketNotifier::activated, &app, [] {
    char number = 0;
    if (::read(signalPipe[1], &number, 1) != 1) return;
    finishAll();
    std::_Exit(128 + number);
  });
  struct sigaction action = {};
  action.sa_handler = onSignal;
  sigemptyset(&action.sa_mask);
  action.sa_flags = SA_RESTART;
  for (int number : {SIGTERM, SIGINT, SIGHUP}) sigaction(number, &action, nullptr);
}

QString defaultPdfPath(const QString& model, const QDateTime& when) {
  QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  if (folder.isEmpty()) folder = QDir::homePath();
  QDir().mkpath(folder);
  const QString stem = QStringLiteral("%1/Vorel-%2-%3")
                           .arg(folder, model, when.toString(QStringLiteral("yyyy-MM-dd-HHmm")));
  QString path = stem + QStringLiteral(".pdf");
  for (int n = 2; QFile::exists(path); ++n) path = QStringLiteral("%1-%2.pdf").arg(stem).arg(n);
  return path;
}

void giveDefaultPdfFile(QPrinter& printer, const QString& model) {
  static QString lastDefault;
  if (printer.outputFormat() != QPrinter::PdfFormat || printer.printerState() == QPrinter::Active)
    return;
  const QString current = printer.outputFileName();
  if (!current.isEmpty() && current != lastDefault) return;  // chosen in the dialog
  lastDefault = defaultPdfPath(model, QDateTime::currentDateTime());
  printer.setOutputFileName(lastDefault);
}

}  // namespace vorel::gui
