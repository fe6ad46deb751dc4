// Support for the screen tests: a scripted platform that records messages and
// answers dialogs, and helpers to find and press controls.
#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QPrinter>
#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "frame/gui/platform.h"
#include "frame/gui/screen.h"

namespace vorel::testing {

class ScriptedPlatform : public gui::Platform {
public:
  ScriptedPlatform();
  ~ScriptedPlatform() override;

  void errorBox(const QString& text) override { messages.push_back(text.toStdString()); }
  std::optional<QString> openDialog(const QString& filter, int filterIndex) override;
  std::optional<QString> saveDialog(const QString& filter, int filterIndex,
                                    const QString& fileName) override;
  void printerDialog() override { ++printerDialogs; }
  QPrinter& printer() override;
  void runtimeError(const RuntimeError& e) override { runtimeErrors.push_back(e.number()); }
  void startHelp(const QString& path) override { helpStarted.push_back(path); }
  void endProcess() override;

  // Prints go to this PDF file.
  void printTo(const QString& pdfPath);

  std::vector<std::string> messages;
  std::deque<std::optional<QString>> openAnswers, saveAnswers;  // nullopt: Cancel
  QString lastFilter, lastFileName;
  int lastFilterIndex = 0;
  int printerDialogs = 0;
  std::vector<int> runtimeErrors;
  std::vector<QString> helpStarted;
  bool ended = false;

private:
  QPrinter* printer_ = nullptr;
};

// A fresh process for each test: no screen loaded, no file kept open, the
// scripted platform in place.
class ScreenTest : public ::testing::Test {
protected:
  void SetUp() override;
  void TearDown() override;

  gui::Screens& screens() { return gui::Screens::instance(); }
  gui::Screen* screen(const std::string& name) { return screens().loaded(name); }
  bool visible(const std::string& name) {
    auto* s = screen(name);
    return s && s->isVisible();
  }
  // Clicks the control named `control` on the screen `name`.
  void press(const std::string& name, const QString& control);
  void type(const std::string& name, const QString& control, const QString& text);
  QString text(const std::string& name, const QString& control);
  // A control of a loaded screen, or null.
  template <class W = QWidget>
  W* control(const std::string& name, const QString& object) {
    auto* s = screen(name);
    return s ? s->findChild<W*>(object) : nullptr;
  }
  // Whether a control is shown on its screen (not hidden by the program).
  bool shown(const std::string& name, const QString& object) {
    auto* w = control(name, object);
    return w && !w->isHidden();
  }
  // The object name of the control that has the focus of a screen.
  QString focused(const std::string& name);
  // Shows the entry screen if needed and opens `path` through abrir.
  void openFile(const std::string& entry, const QString& path);
  // The report painted on a solution screen, as plain text.
  std::string painted(const std::string& solution);

  ScriptedPlatform platform;
};

// The example problems of a model and their golden texts (tests/golden_test.cpp).
QString examplePath(const std::string& id, const QString& file);
std::string golden(const std::string& id, const QString& file, const char* kind);
// Whether the model's method never ends on an example: its window would solve
// until it is closed.
bool neverEnds(const std::string& id, const QString& file);

// Runs the event loop for `ms` milliseconds.
void wait(int ms);
// Text found in a PDF file, through pdftotext.
std::string pdfText(const QString& path);
int pdfPages(const QString& path);

}  // namespace vorel::testing
