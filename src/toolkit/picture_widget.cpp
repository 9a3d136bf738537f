#include "toolkit/picture_widget.h"

#include <QPainter>
#include <QPainterPath>

#include "toolkit/capture.h"
#include "toolkit/contrast.h"
#include "toolkit/text.h"

namespace korvane {
namespace {

QColor ColorOf(Ink ink, const QPalette& palette) {
  const QColor ground = palette.color(QPalette::Window);
  const bool dark = IsDark(ground);
  switch (ink) {
    case Ink::Line: return palette.color(QPalette::WindowText);
    case Ink::Body: return palette.color(dark ? QPalette::Light : QPalette::Mid);
    case Ink::Paper: return Qt::white;
    case Ink::Accent: return dark ? QColor(0x6C, 0xB4, 0xEE) : QColor(0x1F, 0x77, 0xB4);
    case Ink::Red: return Readable(Qt::red, ground);
    case Ink::Blue: return Readable(Qt::blue, ground);
    case Ink::Gray: return Readable(QColor(0x80, 0x80, 0x80), ground);
  }
  return {};
}

void Paint(QPainter& painter, const Path& path, const QPalette& palette) {
  QPolygonF points;
  for (const Point& point : path.points) points << QPointF(point.x, point.y);
  QPainterPath outline;
  outline.addPolygon(points);
  if (path.tint)
    painter.fillPath(outline, QColor::fromRgb(path.tint->rgb));
  else if (path.fill)
    painter.fillPath(outline, ColorOf(*path.fill, palette));
  painter.strokePath(outline, QPen(ColorOf(path.ink, palette), path.width, Qt::SolidLine,
                                   Qt::RoundCap, Qt::RoundJoin));
}

void Paint(QPainter& painter, const Letters& letters, const QPalette& palette) {
  QFont font = painter.font();
  font.setPixelSize(100);
  const double scale = letters.height / QFontMetricsF(font).capHeight();
  painter.save();
  painter.setFont(font);
  painter.setPen(letters.tint ? QColor::fromRgb(letters.tint->rgb) : ColorOf(letters.ink, palette));
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

QSizeF SizeOf(const Drawing& drawing, const QFontMetrics& metrics) {
  return QSizeF(drawing.width, drawing.height) * (metrics.height() / 18.0);
}

void Paint(QPainter& painter, const QRectF& place, const Drawing& drawing,
           const QPalette& palette) {
  if (drawing.width <= 0 || drawing.height <= 0) return;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const double scale = std::min(place.width() / drawing.width, place.height() / drawing.height);
  painter.translate(place.center());
  painter.scale(scale, scale);
  painter.translate(-drawing.width / 2, -drawing.height / 2);
  for (const auto& shape : drawing.shapes)
    std::visit([&](const auto& drawn) { Paint(painter, drawn, palette); }, shape);
  painter.restore();
}

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

QSize PictureWidget::sizeHint() const {
  if (fillsSpace_) return {fontMetrics().height() * 8, fontMetrics().height() * 8};
  return SizeOf(drawing_, fontMetrics()).toSize();
}

void PictureWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  Paint(painter, rect(), drawing_, palette());
}

}  // namespace korvane
