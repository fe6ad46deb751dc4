#include "frame/gui/picture_button.h"

#include <QPainter>
#include <QPen>
#include <QSvgRenderer>

namespace vorel::gui {

QString picturePath(const QString& name) { return QStringLiteral(":/pictures/%1.svg").arg(name); }

PictureButton::PictureButton(const QString& picture, int size, QWidget* parent)
    : QAbstractButton(parent), picture_(picture), size_(size) {
  setCursor(Qt::PointingHandCursor);
  setFixedSize(sizeHint());
  // Tab reaches it and Space or Enter presses it; a click leaves the focus
  // where the student was typing.
  setFocusPolicy(Qt::TabFocus);
}

QSize PictureButton::sizeHint() const { return {size_, size_}; }

void PictureButton::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  if (!isEnabled()) p.setOpacity(0.3);
  const double inset = hover_ && isEnabled() ? 0 : size_ * 0.04;
  QSvgRenderer renderer(picturePath(picture_));
  renderer.render(&p, QRectF(rect()).adjusted(inset, inset, -inset, -inset));
  if (isDown()) p.fillRect(rect(), QColor(0, 0, 0, 30));
  if (hasFocus()) {  // the focus ring, white-edged to show on the coloured band too
    p.setOpacity(1);
    p.setBrush(Qt::NoBrush);
    const QRectF ring = QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5);
    p.setPen(QPen(Qt::white, 3));
    p.drawRoundedRect(ring, 4, 4);
    p.setPen(QPen(QColor(0x1E, 0x5A, 0xD6), 1.5));
    p.drawRoundedRect(ring, 4, 4);
  }
}

void PictureButton::enterEvent(QEnterEvent*) {
  hover_ = true;
  update();
}

void PictureButton::leaveEvent(QEvent*) {
  hover_ = false;
  update();
}

}  // namespace vorel::gui
