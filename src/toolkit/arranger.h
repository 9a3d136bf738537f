// Turns a window's arrangement into nested layouts of widgets.
#pragma once

#include <functional>

#include "frame/layout.h"

class QBoxLayout;
class QLayout;
class QWidget;

namespace korvane {

class Control;

/// Builds the layout of the parts in the parent. `widgetOf` gives the widget of a control, made in
/// the given parent when it is asked for first.
QLayout* Arrange(const Layout& layout, QWidget& parent,
                 const std::function<QWidget*(Control&, QWidget&)>& widgetOf);

}  // namespace korvane
