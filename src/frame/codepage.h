// Text inside the program is UTF-8; data files are in the 8-bit code page 1252.
#pragma once

#include <string>
#include <string_view>

namespace korvane {

/// Every byte gives a character; the five that the code page leaves open give control characters.
std::string FromCodePage(std::string_view bytes);

/// Characters that the code page lacks, and bytes that are not UTF-8, become "?".
std::string ToCodePage(std::string_view utf8);

bool IsUtf8(std::string_view bytes);

}  // namespace korvane
