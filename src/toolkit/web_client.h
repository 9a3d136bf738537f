// A text file from a web server.
#pragma once

#include <QString>

namespace korvane {

/// The body that a GET of the address brings; empty on any failure, after ten seconds, and where it
/// is longer than 4096 bytes. Blocks, but lets windows be painted.
QString GetText(const QString& address, int milliseconds = 10000);

}  // namespace korvane
