#include "frame/gui/platform.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QUrl>
#include <cstdlib>

#include "frame/gui/printing.h"

namespace vorel::gui {

namespace {
Platform* current = nullptr;
}

Platform& platform() {
  if (!current) {
    static QtPlatform fallback;
    current = &fallback;
  }
  return *current;
}

void setPlatform(Platform* p) { current = p; }

QStringList dialogFilters(const QString& filter) {
  const QStringList parts = filter.split('|');
  QStringList filters;
  for (int i = 0; i + 1 < parts.size(); i += 2) {
    if (parts[i].isEmpty()) continue;
    QString name = parts[i];
    name.remove('_');  // an accelerator mark in the original filter name
    filters << QStringLiteral("%1 (%2)").arg(name, parts[i + 1]);
  }
  return filters;
}

namespace {
// The common dialog's filter index counts from 1; one beyond the list picks
// the first filter, as the dialog did.
QString selectedFilter(const QStringList& filters, int filterIndex) {
  if (filters.isEmpty()) return {};
  int i = filterIndex - 1;
  return filters.value(i >= 0 && i < filters.size() ? i : 0);
}
}  // namespace

QtPlatform::QtPlatform() = default;
QtPlatform::~QtPlatform() { delete printer_; }

void QtPlatform::errorBox(const QString& text) {
  QMessageBox box(QMessageBox::NoIcon, QStringLiteral("Error"), text, QMessageBox::Ok,
                  QApplication::activeWindow());
  box.exec();
}

std::optional<QString> QtPlatform::openDialog(const QString& filter, int filterIndex) {
  const QStringList filters = dialogFilters(filter);
  QFileDialog dialog(QApplication::activeWindow(), QStringLiteral("Abrir"));
  dialog.setAcceptMode(QFileDialog::AcceptOpen);
  dialog.setFileMode(QFileDialog::ExistingFile);
  dialog.setNameFilters(filters);
  dialog.selectNameFilter(selectedFilter(filters, filterIndex));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  return dialog.selectedFiles().first();
}

std::optional<QString> QtPlatform::saveDialog(const QString& filter, int filterIndex,
                                              const QString& fileName) {
  const QStringList filters = dialogFilters(filter);
  QFileDialog dialog(QApplication::activeWindow(), QStringLiteral("Guardar como"));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setOption(QFileDialog::DontConfirmOverwrite, true);
  dialog.setNameFilters(filters);
  dialog.selectNameFilter(selectedFilter(filters, filterIndex));
  dialog.selectFile(fileName);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  return dialog.selectedFiles().first();
}

void QtPlatform::printerDialog() {
  QPrintDialog dialog(&printer(), QApplication::activeWindow());
  dialog.exec();
}

QPrinter& QtPlatform::printer() {
  if (!printer_) printer_ = new QPrinter(QPrinter::HighResolution);
  return *printer_;
}

void QtPlatform::runtimeError(const RuntimeError& e) {
  QMessageBox box(QMessageBox::Critical, QStringLiteral("Vorel"),
                  QStringLiteral("Error en tiempo de ejecución '%1':\n\n%2")
                      .arg(e.number())
                      .arg(QString::fromUtf8(e.what())),
                  QMessageBox::Ok, QApplication::activeWindow());
  box.exec();
  endProcess();
}

void QtPlatform::startHelp(const QString& path) {
#ifdef Q_OS_WIN
  QProcess::startDetached(QStringLiteral("rundll32.exe"),
                          {QStringLiteral("url.dll,FileProtocolHandler"),
                           QDir::toNativeSeparators(path)});
#else
  QDesktopServices::openUrl(QUrl::fromLocalFile(path));
#endif
}

void QtPlatform::endProcess() {
  finishPrinterDocument();
  std::_Exit(0);
}

}  // namespace vorel::gui
