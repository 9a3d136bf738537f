// Paints a drawing as vectors in the palette's colours.
#pragma once

#include <QWidget>

#include "frame/drawing.h"

class QPainter;

namespace korvane {

/// Drawing units are points at the usual text size, so that pictures grow with the font.
QSizeF SizeOf(const Drawing& drawing, const QFontMetrics& metrics);

/// As large as its place lets it be, in the middle of it.
void Paint(QPainter& painter, const QRectF& place, const Drawing& drawing, const QPalette& palette);

class PictureWidget final : public QWidget {
 public:
  using QWidget::QWidget;

  void Draw(const Drawing& drawing);
  /// Takes the space that there is, instead of the drawing's own size.
  void FillSpace();
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Drawing drawing_;
  bool fillsSpace_ = false;
};

}  // namespace korvane
