// What a person would find fault with in a window, seen or heard.
#pragma once

#include <QStringList>

class QWidget;

namespace korvane {

/// Widgets with less room than they need to show what they hold; widgets that take the focus and
/// have no name for those who can't see them; inputs that share one; texts that hardly stand out.
QStringList FlawsOf(const QWidget& view);

}  // namespace korvane
