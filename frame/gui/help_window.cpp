#include "frame/gui/help_window.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QPushButton>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

#include "frame/screen_description.h"

namespace vorel::gui {

QString helpFolder() {
  const QString program = QCoreApplication::applicationDirPath();
  const QString beside = program + QStringLiteral("/ayuda");
  if (QFileInfo::exists(beside + QStringLiteral("/VorelAyuda.html"))) return beside;
  return QDir::cleanPath(program + QStringLiteral("/" VOREL_HELP_DIR));
}

HelpWindow& HelpWindow::instance() {
  static HelpWindow* window = new HelpWindow();  // lives as long as the process
  return *window;
}

HelpWindow::HelpWindow() : QWidget(nullptr, Qt::Window) {
  setObjectName(QStringLiteral("Ayuda"));
  setWindowTitle(QString::fromUtf8(ui::kHelpTitle));
  resize(760, 640);
  browser_ = new QTextBrowser(this);
  browser_->setObjectName(QStringLiteral("pagina"));
  browser_->setOpenExternalLinks(true);
  auto* bar = new QHBoxLayout();
  auto button = [this, bar](const QString& name, const QString& text) {
    auto* b = new QPushButton(text, this);
    b->setObjectName(name);
    bar->addWidget(b);
    return b;
  };
  QPushButton* back = button(QStringLiteral("atras"), QStringLiteral("◀ Atrás"));
  QPushButton* forward = button(QStringLiteral("adelante"), QStringLiteral("Adelante ▶"));
  QPushButton* home = button(QStringLiteral("inicio"), QStringLiteral("Índice"));
  bar->addStretch();
  back->setEnabled(false);
  forward->setEnabled(false);
  connect(back, &QPushButton::clicked, browser_, &QTextBrowser::backward);
  connect(forward, &QPushButton::clicked, browser_, &QTextBrowser::forward);
  connect(browser_, &QTextBrowser::backwardAvailable, back, &QPushButton::setEnabled);
  connect(browser_, &QTextBrowser::forwardAvailable, forward, &QPushButton::setEnabled);
  connect(home, &QPushButton::clicked, this, [this] {
    browser_->setSource(QUrl::fromLocalFile(helpFolder() + QStringLiteral("/VorelAyuda.html")));
  });
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(bar);
  layout->addWidget(browser_);
}

void HelpWindow::showPage(const QString& path) {
  browser_->setSource(QUrl::fromLocalFile(path));
  show();
  raise();
  activateWindow();
}

}  // namespace vorel::gui
