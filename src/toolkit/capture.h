// The picture of a window that was taken last, for the page dialog's preview and for printing.
#pragma once

#include <QImage>

class QWidget;

namespace korvane::capture {

/// Takes the picture of the whole window as it stands on the screen, its frame included where the
/// window system lets it be seen.
void Take(QWidget& window);
const QImage& Last();

}  // namespace korvane::capture
