#include "frame/gui/screen.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>

#include "frame/gui/clipboard.h"
#include "frame/gui/help_window.h"
#include "frame/gui/keyboard.h"
#include "frame/gui/picture_button.h"
#include "frame/gui/platform.h"

namespace vorel::gui {

namespace {

constexpr int kBandHeight = 48;

// The body of a window: as large as what it holds while that fits the screen,
// scrolled where it does not (a small laptop screen, a large scale factor).
class BodyArea : public QScrollArea {
 public:
  explicit BodyArea(QWidget* parent) : QScrollArea(parent) {
    setObjectName(QStringLiteral("cuerpo"));
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);  // the controls inside take the focus, not the area
    viewport()->setAutoFillBackground(false);
  }

  QSize sizeHint() const override { return fitted(widget() ? widget()->sizeHint() : QSize()); }
  QSize minimumSizeHint() const override {
    return fitted(widget() ? widget()->minimumSizeHint() : QSize());
  }

 protected:
  // Whatever changes the size of what the body holds (a part shown or hidden,
  // a table reshaped, a longer text) fits the window to it again, once the
  // layouts have done their work, however the change came about.
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched == widget() && event->type() == QEvent::LayoutRequest && !refitting_) {
      refitting_ = true;
      QMetaObject::invokeMethod(
          this,
          [this] {
            refitting_ = false;
            fitWindow(*window());
          },
          Qt::QueuedConnection);
    }
    return QScrollArea::eventFilter(watched, event);
  }

 private:
  bool refitting_ = false;

  // `content` bounded to the room below the band, with room for a scroll bar
  // across the other way when one is needed.
  QSize fitted(QSize content) const {
    const QRect area = screenArea(*this);
    const QSize room(area.width(), area.height() - kBandHeight);
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    if (content.height() > room.height()) content.rwidth() += bar;
    if (content.width() > room.width()) content.rheight() += bar;
    return content.boundedTo(room);
  }
};

}  // namespace

QRect screenArea(const QWidget& widget) {
  const QWidget* window = widget.window();
  QScreen* display =
      window && window->screen() ? window->screen() : QGuiApplication::primaryScreen();
  return display ? display->availableGeometry() : QRect(0, 0, 1024, 728);
}

void fitWindow(QWidget& window) {
  // The layouts inside the body (tables shown or hidden just now) first. The
  // body's content sits in a scroll area, whose own size hint no layout asks
  // again on its own: it is marked changed, so the window's layout reads the
  // content's new size, smaller as well as larger.
  // Style sheets take effect when a widget is polished, which a window not
  // yet shown is not: its fonts and paddings are measured as they will show.
  window.ensurePolished();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
  if (auto* body = window.findChild<QScrollArea*>(QStringLiteral("cuerpo"))) body->updateGeometry();
  if (auto* layout = window.layout()) layout->activate();
  const QRect area = screenArea(window);
  window.resize(window.sizeHint().expandedTo(window.minimumSize()).boundedTo(area.size()));
  if (auto* screen = qobject_cast<Screen*>(&window))
    Screens::instance().place(*screen);
  else
    keepOnScreen(window);
}

void keepOnScreen(QWidget& window) {
  const QRect area = screenArea(window);
  QPoint at = window.pos();
  at.setX(std::max(area.left(), std::min(at.x(), area.right() + 1 - window.width())));
  at.setY(std::max(area.top(), std::min(at.y(), area.bottom() + 1 - window.height())));
  if (at != window.pos()) window.move(at);
}

QHBoxLayout* paragraph(QLabel* label, int width) {
  label->setWordWrap(true);
  label->setMaximumWidth(width);
  auto* row = new QHBoxLayout();
  row->setContentsMargins(0, 0, 0, 0);
  // The text takes the room first, up to its width, and starts at the left
  // edge of what stands below it; what is left over goes after it.
  row->addWidget(label, 1);
  row->addStretch(0);
  return row;
}

Screen::Screen(const std::string& name)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint),
      name_(name),
      info_(nav::findScreen(name)),
      accent_(0x3B, 0x6F, 0xD8) {
  setObjectName(QString::fromStdString(name));
  setAttribute(Qt::WA_DeleteOnClose, false);
  installKeyboard();
  // Selector lists open below their box, always in the same place, not
  // lined up on the current choice.
  setStyleSheet(QStringLiteral("QComboBox { combobox-popup: 0; }"));
  installClipboard();
  if (info_) setWindowTitle(QString::fromStdString(info_->caption));
  auto* outer = new QVBoxLayout(this);
  outer->setContentsMargins(0, 0, 0, 0);
  outer->setSpacing(0);
  auto* band = new QWidget(this);
  band->setObjectName(QStringLiteral("band"));
  band->setFixedHeight(kBandHeight);
  chrome_ = new QHBoxLayout(band);
  chrome_->setContentsMargins(16, 6, 10, 6);
  heading_ = new QLabel(band);
  heading_->setObjectName(QStringLiteral("heading"));
  heading_->setStyleSheet(
      QStringLiteral("color: white; font-size: 12.5pt; font-weight: 600; letter-spacing: 0.3px;"));
  chrome_->addWidget(heading_);
  chrome_->addStretch();
  outer->addWidget(band);
  auto* scroll = new BodyArea(this);
  auto* content = new QWidget(scroll);
  content->setObjectName(QStringLiteral("contenido"));
  content->setAutoFillBackground(false);
  body_ = new QVBoxLayout(content);
  body_->setContentsMargins(24, 16, 24, 20);
  body_->setSpacing(10);
  scroll->setWidget(content);
  outer->addWidget(scroll);
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
  connect(button, &QAbstractButton::clicked, this, [this, handler = std::move(handler)] {
    QPointer<Screen> self(this);
    run(handler);
    if (self) nameControls(self);  // headings may have changed
  });
  return button;
}

PictureButton* Screen::command(const ui::Command& c, std::function<void()> handler) {
  PictureButton* button = command(QString::fromStdString(c.name), QString::fromStdString(c.picture),
                                  QString::fromStdString(c.toolTip), std::move(handler), c.size);
  button->setEnabled(c.enabled);
  // A picture that does nothing is no stop for Tab; a menu's choice is read by
  // its caption.
  if (c.action == ui::Action::None || (c.action == ui::Action::Show && c.target.empty()))
    button->setFocusPolicy(Qt::NoFocus);
  const std::string& name = c.caption.empty() ? c.toolTip : c.caption;
  if (!name.empty()) button->setAccessibleName(QString::fromStdString(name));
  if (!c.toolTip.empty() && c.toolTip != name)
    button->setAccessibleDescription(QString::fromStdString(c.toolTip));
  return button;
}

bool Screen::focusNextPrevChild(bool next) { return stepFocus(this, next); }

void Screen::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton)
    dragFrom_ = event->globalPosition().toPoint() - frameGeometry().topLeft();
}

void Screen::mouseMoveEvent(QMouseEvent* event) {
  if (!(event->buttons() & Qt::LeftButton)) return;
  move(event->globalPosition().toPoint() - dragFrom_);
  Screens::instance().moved(*this);
}

void Screen::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.fillRect(rect(), QColor(0xF6, 0xF7, 0xFB));
  QLinearGradient band(0, 0, width(), 0);
  band.setColorAt(0, accent_);
  band.setColorAt(1, accent_.lighter(130));
  p.fillRect(QRect(0, 0, width(), kBandHeight), band);
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
  Screen* screen = load(name);
  if (!screen) return nullptr;
  fitWindow(*screen);  // to what it holds now, which may have changed while it was hidden
  screen->show();
  screen->raise();
  screen->activateWindow();
  screen->formActivate();
  // The keyboard starts in the first control in reading order, unless the
  // screen keeps a focus of its own among its controls (the window's commands
  // come last, not first).
  QWidget* focus = screen->focusWidget();
  const QList<QWidget*> order = readingOrder(screen);
  if (!order.isEmpty() && (!order.contains(focus) || focus->parentWidget()->objectName() == "band"))
    order.front()->setFocus(Qt::ActiveWindowFocusReason);
  nameControls(screen);
  return screen;
}

void Screens::place(Screen& screen) {
  if (!place_) {
    const QRect area = screenArea(screen);
    place_ = area.center() - QPoint(screen.width() / 2, screen.height() / 2);
  }
  screen.move(*place_);
  keepOnScreen(screen);
}

void Screens::moved(const Screen& screen) { place_ = screen.pos(); }

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
  place_.reset();
}

}  // namespace vorel::gui
