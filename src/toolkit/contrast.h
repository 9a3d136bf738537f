// Whether a text can be read on its ground, by the rule of the Web Content Accessibility
// Guidelines.
#pragma once

#include <QColor>

namespace korvane {

/// From which on a text of usual size counts as readable.
inline constexpr double kReadableContrast = 4.5;

/// Whether light text stands on it.
bool IsDark(const QColor& ground);

/// 1 (the same) to 21 (black on white).
double ContrastOf(const QColor& one, const QColor& other);

/// The colour in its hue, lighter or darker as far as reading it on the ground needs.
QColor Readable(const QColor& fore, const QColor& ground);

}  // namespace korvane
