#include "frame/gui/screen.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>

#include "frame/gui/clipboard.h"
#include "frame/gui/help_window.h"
#include "frame/gui/picture_button.h"
#include "frame/gui/platform.h"

namespace vorel::gui {

Screen::Screen(const std::string& name)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint),
      name_(name),
      info_(nav::findScreen(name)),
      accent_(0x3B, 0x6F, 0xD8) {
  setObjectName(QString::fromStdString(name));
  setAttribute(Qt::WA_DeleteOnClose, false);
  installClipboard();
  if (info_) setWindowTitle(QString::fromStdString(info_->caption));
  auto* outer = new QVBoxLayout(this);
  outer->setContentsMargins(0, 0, 0, 0);
  outer->setSpacing(0);
  auto* band = new QWidget(this);
  band->setObjectName(QStringLiteral("band"));
  band->setFixedHeight(48);
  chrome_ = new QHBoxLayout(band);
  chrome_->setContentsMargins(16, 6, 10, 6);
  heading_ = new QLabel(band);
  heading_->setObjectName(QStringLiteral("heading"));
  heading_->setStyleSheet(
      QStringLiteral("color: white; font-size: 12.5pt; font-weight: 600; letter-spacing: 0.3px;"));
  chrome_->addWidget(heading_);
  chrome_->addStretch();
  outer->addWidget(band);
  body_ = new QVBoxLayout();
  body_->setContentsMargins(24, 16, 24, 20);
  body_->setSpacing(10);
  outer->addLayout(body_);
  if (info_) {
    setHeading(QString::fromStdString(info_->caption).trimmed());
    buildChrome();
  }
}

void Screen::setHeading(const QString& text) { heading_->setText(text); }

void Screen::setAccent(const QColor& color) {
  accent_ = color;
  update();
}

void Screen::buildChrome() {
  Screens& screens = Screens::instance();
  for (const ui::Command& c : ui::chrome(*info_))
    chrome_->addWidget(command(c, [this, &screens, action = c.action] {
      switch (action) {
        case ui::Action::Ayuda:
          return platform().startHelp(helpFolder() + '/' +
                                      QString::fromStdString(nav::helpPage(name_)));
        case ui::Action::Gohome:
          return screens.gohome(*this);
        case ui::Action::Volver:
          return screens.volver(*this);
        case ui::Action::Minimizar:
          return setWindowState(Qt::WindowMinimized);
        case ui::Action::Cerrar:
          return screens.cerrar(*this);
        default:
          return;
      }
    }));
}

void Screen::run(const std::function<void()>& handler) {
  try {
    handler();
  } catch (const std::exception& e) {  // run-time errors, and no memory as the platform's
    platform().runtimeError(platformError(e));
  }
}

PictureButton* Screen::command(const QString& objectName, const QString& picture,
                               const QString& toolTip, std::function<void()> handler, int size) {
  auto* button = new PictureButton(picture, size, this);
  button->setObjectName(objectName);
  button->setToolTip(toolTip);
  connect(button, &QAbstractButton::clicked, this,
          [handler = std::move(handler)] { run(handler); });
  return button;
}

PictureButton* Screen::command(const ui::Command& c, std::function<void()> handler) {
  PictureButton* button = command(QString::fromStdString(c.name), QString::fromStdString(c.picture),
                                  QString::fromStdString(c.toolTip), std::move(handler), c.size);
  button->setEnabled(c.enabled);
  return button;
}

void Screen::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton)
    dragFrom_ = event->globalPosition().toPoint() - frameGeometry().topLeft();
}

void Screen::mouseMoveEvent(QMouseEvent* event) {
  if (event->buttons() & Qt::LeftButton) move(event->globalPosition().toPoint() - dragFrom_);
}

void Screen::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.fillRect(rect(), QColor(0xF6, 0xF7, 0xFB));
  QLinearGradient band(0, 0, width(), 0);
  band.setColorAt(0, accent_);
  band.setColorAt(1, accent_.lighter(130));
  p.fillRect(QRect(0, 0, width(), 48), band);
  p.setPen(QColor(0xC9, 0xCE, 0xD8));
  p.drawRect(rect().adjusted(0, 0, -1, -1));
}

Screens& Screens::instance() {
  static Screens screens;
  return screens;
}

void Screens::add(const std::string& name, ScreenFactory factory) {
  factories_[name] = std::move(factory);
}

Screen* Screens::load(const std::string& name) {
  if (Screen* s = loaded(name)) return s;
  auto f = factories_.find(name);
  if (f == factories_.end()) return nullptr;
  Screen* screen = f->second();
  loaded_[name] = screen;
  screen->formLoad();
  return screen;
}

Screen* Screens::show(const std::string& name) {
  const bool firstShow = !loaded(name);
  Screen* screen = load(name);
  if (!screen) return nullptr;
  if (firstShow) {
    // A new window opens in the middle of the screen.
    screen->adjustSize();
    if (QScreen* display = QGuiApplication::primaryScreen()) {
      const QRect area = display->availableGeometry();
      screen->move(area.center() - QPoint(screen->width() / 2, screen->height() / 2));
    }
  }
  screen->show();
  screen->raise();
  screen->activateWindow();
  screen->formActivate();
  return screen;
}

void Screens::hide(const std::string& name) {
  if (Screen* s = loaded(name)) s->hide();
}

void Screens::unload(const std::string& name) {
  auto it = loaded_.find(name);
  if (it == loaded_.end()) return;
  Screen* screen = it->second;
  loaded_.erase(it);
  screen->hide();
  screen->deleteLater();
  if (loaded_.empty() && onNoScreenLoaded) onNoScreenLoaded();
}

Screen* Screens::loaded(const std::string& name) const {
  auto it = loaded_.find(name);
  return it == loaded_.end() ? nullptr : it->second;
}

void Screens::volver(Screen& from) {
  const std::string self = from.name();
  show(from.info()->volver);
  hide(self);
}

void Screens::gohome(Screen& from) {
  const std::string self = from.name();
  show("APrincipal");
  hide(self);
}

void Screens::cerrar(Screen& from) {
  if (from.info()->cerrar == nav::Cerrar::EndProcess) {
    platform().endProcess();
    return;
  }
  unload(from.name());
}

void Screens::reset() {
  for (auto& [name, screen] : loaded_) delete screen;
  loaded_.clear();
}

}  // namespace vorel::gui
