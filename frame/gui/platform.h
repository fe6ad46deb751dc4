// The platform seam: every service of the desktop that a screen uses goes
// through this one interface, so tests can script it without a real dialog.
#pragma once

#include <QFileDialog>
#include <QImage>
#include <QMessageBox>
#include <QString>
#include <memory>
#include <optional>

#include "frame/arith.h"
#include "frame/report.h"

class QPrinter;

namespace vorel::gui {

class Platform {
 public:
  virtual ~Platform() = default;

  // A message box titled "Error" with one OK button and no icon.
  virtual void errorBox(const QString& text) = 0;
  // The common dialog: a chosen path, or nothing on Cancel.
  virtual std::optional<QString> openDialog(const QString& filter, int filterIndex) = 0;
  virtual std::optional<QString> saveDialog(const QString& filter, int filterIndex,
                                            const QString& fileName) = 0;
  // The printer dialog; what it returns is not looked at (Cancel still prints).
  virtual void printerDialog() = 0;
  // The printer of this process: created on first use and kept.
  virtual QPrinter& printer() = 0;
  // The platform's box for a run-time error, then the end of the process.
  virtual void runtimeError(const RuntimeError& e) = 0;
  // Shows a help page (a file of the help folder) in the program's help window.
  virtual void startHelp(const QString& path) = 0;
  // Ends the process at once; the gathered printer document goes out first.
  virtual void endProcess() = 0;
};

Platform& platform();
void setPlatform(Platform* p);  // not owned

// The filters of abrir and guardar, as the common dialog takes them.
inline const QString kOpenFilter = QStringLiteral("All Files (*.*)|*.*|");
inline const QString kSaveFilter = QStringLiteral("All Files (*.*)|*.*|Text _Files (*.txt)|*");

// Turns "Name|pattern|Name|pattern" into Qt's dialog filters.
QStringList dialogFilters(const QString& filter);
// The file dialog of abrir (AcceptOpen) or guardar (AcceptSave), not yet shown.
std::unique_ptr<QFileDialog> fileDialog(QFileDialog::AcceptMode mode, const QString& filter,
                                        int filterIndex);

// The box of errorBox, not yet shown: OK answers Enter, Space and Escape.
std::unique_ptr<QMessageBox> errorMessageBox(const QString& text);

// The Qt implementation used by the desktop program.
class QtPlatform : public Platform {
 public:
  QtPlatform();
  ~QtPlatform() override;
  void errorBox(const QString& text) override;
  std::optional<QString> openDialog(const QString& filter, int filterIndex) override;
  std::optional<QString> saveDialog(const QString& filter, int filterIndex,
                                    const QString& fileName) override;
  void printerDialog() override;
  QPrinter& printer() override;
  void runtimeError(const RuntimeError& e) override;
  void startHelp(const QString& path) override;
  void endProcess() override;

 private:
  QPrinter* printer_ = nullptr;
};

}  // namespace vorel::gui
