// A text file from a web server.
#pragma once

#include <QString>

namespace korvane {

/// The body that a GET of the address brings; empty on any failure, and after ten seconds. Blocks,
/// but lets windows be painted.
QString GetText(const QString& address, int milliseconds = 10000);

}  // namespace korvane
