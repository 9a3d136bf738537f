// Paints a drawing as vectors in the palette's colours.
#pragma once

#include <QWidget>

#include "frame/drawing.h"

namespace korvane {

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
