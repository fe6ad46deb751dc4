// A picture that acts as a command: it shows an SVG from the resources and
// reacts to a click, or to Space (and Enter, keyboard.h) when it has the
// focus, which a ring shows.
#pragma once

#include <QAbstractButton>

namespace vorel::gui {

class PictureButton : public QAbstractButton {
  Q_OBJECT
 public:
  PictureButton(const QString& picture, int size, QWidget* parent = nullptr);
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;

 private:
  QString picture_;
  int size_;
  bool hover_ = false;
};

// The path of a picture in the resources: ":/pictures/NAME.svg".
QString picturePath(const QString& name);

}  // namespace vorel::gui
