#include "shell/web.h"

namespace korvane {

std::string WebAddress(const std::string& page) { return "https://www.korvane.example" + page; }

}  // namespace korvane
