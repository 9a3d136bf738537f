// What is typed and clicked in each window before its picture is taken.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace korvane {

/// Commands in the driver's language, by the window that takes them.
using Examples = std::map<std::string, std::vector<std::string>>;

/// In U.S. units the worked examples of the help pages, in metric units examples of our own.
Examples ReadExamples(bool metric);

}  // namespace korvane
