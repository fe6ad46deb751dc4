#include <gtest/gtest.h>

#include "tests/gui_support.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QTest>

#include "frame/gui/model_screens.h"
#include "frame/gui/printing.h"
#include "frame/problem_file.h"
#include "tests/test_support.h"

// GCC 12 at -O2 takes a moved std::optional<QString> for uninitialised.
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"

namespace vorel::testing {

ScriptedPlatform::ScriptedPlatform() { gui::setPlatform(this); }

ScriptedPlatform::~ScriptedPlatform() {
  try {
    gui::finishPrinterDocument();
  } catch (const RuntimeError&) {  // a test that prints to a failing file has told it
  }
  gui::setPlatform(nullptr);
  delete printer_;
}

std::optional<QString> ScriptedPlatform::openDialog(const QString& filter, int filterIndex) {
  lastFilter = filter;
  lastFilterIndex = filterIndex;
  if (openAnswers.empty()) return std::nullopt;
  auto answer = openAnswers.front();
  openAnswers.pop_front();
  return answer;
}

std::optional<QString> ScriptedPlatform::saveDialog(const QString& filter, int filterIndex,
                                                    const QString& fileName) {
  lastFilter = filter;
  lastFilterIndex = filterIndex;
  lastFileName = fileName;
  if (saveAnswers.empty()) return std::nullopt;
  auto answer = saveAnswers.front();
  saveAnswers.pop_front();
  return answer;
}

QPrinter& ScriptedPlatform::printer() {
  if (!printer_) printTo(QString());
  return *printer_;
}

void ScriptedPlatform::printTo(const QString& pdfPath) {
  try {
    gui::finishPrinterDocument();  // not on a printer that is gone
  } catch (const RuntimeError&) {
  }
  delete printer_;
  printer_ = new QPrinter(QPrinter::HighResolution);
  printer_->setOutputFormat(QPrinter::PdfFormat);
  printer_->setOutputFileName(pdfPath.isEmpty() ? QString::fromStdString(tempPath("print.pdf"))
                                                : pdfPath);
}

void ScriptedPlatform::endProcess() {
  gui::finishPrinterDocumentAtTheEnd();
  ended = true;
}

void ScreenTest::SetUp() {
  screens().reset();
  closeAllProblemFiles();
}

void ScreenTest::TearDown() {
  screens().reset();
  closeAllProblemFiles();
}

void ScreenTest::press(const std::string& name, const QString& control) {
  auto* s = screen(name);
  ASSERT_NE(s, nullptr) << name << " is not loaded";
  auto* button = s->findChild<QAbstractButton*>(control);
  ASSERT_NE(button, nullptr) << name << " has no " << control.toStdString();
  ASSERT_TRUE(button->isEnabled()) << control.toStdString() << " is disabled";
  button->click();
  QApplication::processEvents();
}

void ScreenTest::type(const std::string& name, const QString& control, const QString& text) {
  auto* s = screen(name);
  ASSERT_NE(s, nullptr) << name << " is not loaded";
  auto* box = s->findChild<QLineEdit*>(control);
  ASSERT_NE(box, nullptr) << name << " has no " << control.toStdString();
  box->setText(text);
}

QString ScreenTest::text(const std::string& name, const QString& control) {
  auto* s = screen(name);
  if (!s) return "<not loaded>";
  auto* box = s->findChild<QLineEdit*>(control);
  return box ? box->text() : "<no such box>";
}

QString ScreenTest::focused(const std::string& name) {
  auto* s = screen(name);
  QWidget* w = s ? s->focusWidget() : nullptr;
  return w ? w->objectName() : QStringLiteral("<none>");
}

void ScreenTest::openFile(const std::string& entry, const QString& path) {
  if (!screen(entry)) screens().show(entry);
  platform.openAnswers.push_back(path);
  press(entry, "abrir");
}

std::string ScreenTest::painted(const std::string& solution) {
  auto* s = dynamic_cast<gui::SolutionScreen*>(screen(solution));
  return s ? s->Solucion1()->plainText() : "<no solution screen>";
}

QString examplePath(const std::string& id, const QString& file) {
  return QStringLiteral(VOREL_SOURCE_DIR "/examples/%1/%2").arg(QString::fromStdString(id), file);
}

std::string golden(const std::string& id, const QString& file, const char* kind) {
  return readBytes(std::string(VOREL_SOURCE_DIR) + "/tests/golden/" + id + "/" +
                   QFileInfo(file).completeBaseName().toStdString() + "." + kind);
}

bool neverEnds(const std::string& id, const QString& file) {
  return golden(id, file, "report").rfind("[salida 4]", 0) == 0;
}

void wait(int ms) {
  QElapsedTimer t;
  t.start();
  while (t.elapsed() < ms) {
    QApplication::processEvents(QEventLoop::AllEvents, 20);
    QTest::qSleep(5);
  }
}

std::string pdfText(const QString& path) {
  QProcess p;
  p.start("pdftotext", {"-layout", path, "-"});
  p.waitForFinished();
  return p.readAllStandardOutput().toStdString();
}

int pdfPages(const QString& path) {
  QProcess p;
  p.start("pdfinfo", {path});
  p.waitForFinished();
  for (const QString& line : QString::fromUtf8(p.readAllStandardOutput()).split('\n'))
    if (line.startsWith("Pages:")) return line.mid(6).trimmed().toInt();
  return -1;
}

}  // namespace vorel::testing
