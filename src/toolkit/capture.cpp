#include "toolkit/capture.h"

#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>
#include <QWidget>

namespace korvane::capture {
namespace {

QImage& Kept() {
  static QImage image;
  return image;
}

}  // namespace

void Take(QWidget& window) {
  // Only X11 lets a program see the frame that the window manager draws.
  const bool framed = QGuiApplication::platformName() == "xcb";
  const QRect place = window.frameGeometry();
  QPixmap picture;
  if (framed)
    picture = window.screen()->grabWindow(0, place.x(), place.y(), place.width(), place.height());
  if (picture.isNull()) picture = window.grab();
  Kept() = picture.toImage();
}

const QImage& Last() { return Kept(); }

}  // namespace korvane::capture
