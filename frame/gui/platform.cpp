#include "frame/gui/platform.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QHeaderView>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QTreeView>
#include <cstdlib>

#include "frame/gui/help_window.h"
#include "frame/gui/printing.h"
#include "frame/gui/screen.h"
#include "frame/gui/session.h"
#include "frame/screen_description.h"

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
    name.remove('_');  // an accelerator mark in the filter's name
    // "*.*" meant every file where it was written; here it would hide the
    // files without an extension. The pattern in the last brackets is the one
    // Qt matches, and the dialog hides it, so the label reads as given.
    QString pattern = parts[i + 1] == QStringLiteral("*.*") ? QStringLiteral("*") : parts[i + 1];
    filters << QStringLiteral("%1 (%2)").arg(name, pattern);
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

std::unique_ptr<QMessageBox> errorMessageBox(const QString& text) {
  auto box = std::make_unique<QMessageBox>(QMessageBox::NoIcon, QString::fromUtf8(ui::kErrorTitle),
                                           text, QMessageBox::Ok, QApplication::activeWindow());
  box->setDefaultButton(QMessageBox::Ok);
  box->setEscapeButton(QMessageBox::Ok);
  return box;
}

void QtPlatform::errorBox(const QString& text) { errorMessageBox(text)->exec(); }

std::unique_ptr<QFileDialog> fileDialog(QFileDialog::AcceptMode mode, const QString& filter,
                                        int filterIndex) {
  const QStringList filters = dialogFilters(filter);
  const bool opening = mode == QFileDialog::AcceptOpen;
  auto dialog = std::make_unique<QFileDialog>(
      QApplication::activeWindow(),
      opening ? QStringLiteral("Abrir") : QStringLiteral("Guardar como"));
  dialog->setAcceptMode(mode);
  dialog->setFileMode(opening ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  dialog->setOption(QFileDialog::DontConfirmOverwrite, !opening);
  dialog->setOption(QFileDialog::HideNameFilterDetails, true);
  dialog->setNameFilters(filters);
  dialog->selectNameFilter(selectedFilter(filters, filterIndex));
  // Wide enough for the size, type and date of the files beside their
  // names, never beyond the screen.
  dialog->setViewMode(QFileDialog::Detail);
  const QRect area =
      dialog->parentWidget() ? screenArea(*dialog->parentWidget()) : screenArea(*dialog);
  dialog->resize(QSize(900, 560).boundedTo(area.size() - QSize(32, 32)));
  // The size, type and date as wide as they read, whole; the names take the rest.
  if (auto* files = dialog->findChild<QTreeView*>(QStringLiteral("treeView"))) {
    QHeaderView* head = files->header();
    head->setStretchLastSection(false);
    for (int c = 1; c < head->count(); ++c)
      head->setSectionResizeMode(c, QHeaderView::ResizeToContents);
    if (head->count() > 0) head->setSectionResizeMode(0, QHeaderView::Stretch);
  }
  return dialog;
}

namespace {
std::optional<QString> chosenFile(QFileDialog& dialog) {
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  return dialog.selectedFiles().first();
}
}  // namespace

std::optional<QString> QtPlatform::openDialog(const QString& filter, int filterIndex) {
  return chosenFile(*fileDialog(QFileDialog::AcceptOpen, filter, filterIndex));
}

std::optional<QString> QtPlatform::saveDialog(const QString& filter, int filterIndex,
                                              const QString& fileName) {
  auto dialog = fileDialog(QFileDialog::AcceptSave, filter, filterIndex);
  dialog->selectFile(fileName);
  return chosenFile(*dialog);
}

void QtPlatform::printerDialog() {
  QPrintDialog dialog(&printer(), QApplication::activeWindow());
  dialog.exec();
  // Cancel still prints: where the only printer is the PDF writer, the page
  // goes to a file named after the model rather than nowhere.
  QString model = QStringLiteral("Vorel");
  if (auto* screen = qobject_cast<Screen*>(QApplication::activeWindow()); screen && screen->info())
    model = QString::fromStdString(screen->info()->entry.empty() ? screen->name()
                                                                 : screen->info()->entry);
  giveDefaultPdfFile(printer(), model);
}

QPrinter& QtPlatform::printer() {
  if (!printer_) printer_ = new QPrinter(QPrinter::HighResolution);
  return *printer_;
}

void QtPlatform::runtimeError(const RuntimeError& e) {
  QMessageBox box(QMessageBox::Critical, QString::fromUtf8(ui::kRuntimeErrorTitle),
                  QString::fromStdString(ui::runtimeErrorText(e.number(), e.what())),
                  QMessageBox::Ok, QApplication::activeWindow());
  box.setEscapeButton(QMessageBox::Ok);
  box.exec();
  endProcess();
}

void QtPlatform::startHelp(const QString& path) { HelpWindow::instance().showPage(path); }

void QtPlatform::endProcess() {
  finishPrinterDocumentAtTheEnd();
  std::_Exit(0);
}

}  // namespace vorel::gui
