// Reading and writing whole files, and finding them without regard to case.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace korvane {

inline constexpr char kSeparator = '/';

/// The path as it stands if it exists, else the path whose parts differ only in case; nothing if
/// there is none. Tables and the INI file come with names in both cases.
std::optional<std::string> FindPath(const std::string& path);

/// The bytes of a regular file, found as FindPath does. Fails with "File not found", "Path/File
/// access error" for what is no regular file or may not be read, "Out of memory" beyond 16 MiB
/// (no file of ours comes near), "Device I/O error".
std::string ReadFile(const std::string& path);

/// Puts the bytes in the file's place once they are wholly and verifiably on the disk: they are
/// written beside it, flushed, read back and compared, and renamed. Whatever fails, the old file
/// stays whole, the failure is thrown and nothing is left behind. A file that may not be written,
/// or that is no regular file, counts as a failure. A link is followed.
void WriteFile(const std::string& path, std::string_view bytes);

}  // namespace korvane
