// The product's web server.
#pragma once

#include <string>

namespace korvane {

/// The address of a page on the server, such as "/download.html".
std::string WebAddress(const std::string& page);

}  // namespace korvane
