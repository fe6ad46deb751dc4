// The program's own help window: the Spanish help pages, shown in a text
// browser, so ayuda works on every desktop without an outside handler.
#pragma once

#include <QString>
#include <QWidget>

class QTextBrowser;

namespace vorel::gui {

// The folder of the help pages: "ayuda" beside the program (the build), or
// the installed data folder.
QString helpFolder();

class HelpWindow : public QWidget {
  Q_OBJECT
 public:
  static HelpWindow& instance();
  // Shows the window at `path`, a page of the help folder.
  void showPage(const QString& path);
  QTextBrowser* browser() const { return browser_; }

 private:
  HelpWindow();
  QTextBrowser* browser_;
};

}  // namespace vorel::gui
