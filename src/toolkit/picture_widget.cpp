#include "toolkit/picture_widget.h"

#include <QPainter>
#include <QPainterPath>

#include "toolkit/capture.h"
#include "toolkit/text.h"

namespace korvane {
namespace {

QColor ColorOf(Ink ink, const QPalette& palette) {
  const bool dark = palette.color(QPalette::Window).lightness() < 128;
  switch (ink) {
    case Ink::Line: return palette.color(QPalette::WindowText);
    case Ink::Body: return palette.color(dark ? QPalette::Light : QPalette::Mid);
    case Ink::Paper: return Qt::white;
    case Ink::Accent: return dark ? QColor(0x6C, 0xB4, 0xEE) : QColor(0x1F, 0x77, 0xB4);
  }
  return {};
}

void Paint(QPainter& painter, const Path& path, const QPalette& palette) {
  QPolygonF points;
  for (const Point& point : path.points) points << QPointF(point.x, point.y);
  QPainterPath outline;
  outline.addPolygon(points);
  if (path.fill) painter.fillPath(outline, ColorOf(*path.fill, palette));
  painter.strokePath(outline, QPen(ColorOf(path.ink, palette), path.width, Qt::SolidLine,
                                   Qt::RoundCap, Qt::RoundJoin));
}

void Paint(QPainter& painter, const Letters& letters, const QPalette& palette) {
  QFont font = painter.font();
  font.setPixelSize(100);
  const double scale = letters.height / QFontMetricsF(font).capHeight();
  painter.save();
  painter.setFont(font);
  painter.setPen(ColorOf(letters.ink, palette));
  painter.translate(letters.at.x, letters.at.y);
  painter.scale(scale, scale);
  const QString text = ToQt(letters.text);
  const QFontMetricsF metrics(font);
  painter.drawText(QPointF(-metrics.horizontalAdvance(text) / 2, metrics.capHeight() / 2), text);
  painter.restore();
}

void Paint(QPainter& painter, const Snapshot& snapshot, const QPalette&) {
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(QRectF(snapshot.at.x, snapshot.at.y, snapshot.width, snapshot.height),
                    capture::Last());
}

}  // namespace

void PictureWidget::Draw(const Drawing& drawing) {
  drawing_ = drawing;
  if (!fillsSpace_) setMinimumSize(sizeHint());
  updateGeometry();
  update();
}

void PictureWidget::FillSpace() {
  fillsSpace_ = true;
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

/// Drawing units are points at the usual text size, so that pictures grow with the font.
QSize PictureWidget::sizeHint() const {
  if (fillsSpace_) return {fontMetrics().height() * 8, fontMetrics().height() * 8};
  const double unit = fontMetrics().height() / 18.0;
  return (QSizeF(drawing_.width, drawing_.height) * unit).toSize();
}

void PictureWidget::paintEvent(QPaintEvent*) {
  if (drawing_.width <= 0 || drawing_.height <= 0) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const double scale = std::min(width() / drawing_.width, height() / drawing_.height);
  painter.translate((width() - drawing_.width * scale) / 2,
                    (height() - drawing_.height * scale) / 2);
  painter.scale(scale, scale);
  for (const auto& shape : drawing_.shapes)
    std::visit([&](const auto& drawn) { Paint(painter, drawn, palette()); }, shape);
}

}  // namespace korvane
