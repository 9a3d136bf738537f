#include "frame/files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <vector>

#include "frame/names.h"
#include "frame/runtime_failure.h"

namespace korvane {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kLargestFile = std::size_t{16} << 20;

/// Owns a file descriptor; every step of using one fails loudly.
class File {
 public:
  explicit File(int descriptor) : descriptor_(descriptor) {}
  File(const File&) = delete;
  File& operator=(const File&) = delete;
  ~File() {
    if (descriptor_ >= 0) ::close(descriptor_);
  }

  bool IsOpen() const { return descriptor_ >= 0; }
  int Descriptor() const { return descriptor_; }

  void Write(std::string_view bytes) const {
    while (!bytes.empty()) {
      const ssize_t count = ::write(descriptor_, bytes.data(), bytes.size());
      if (count < 0 && errno == EINTR) continue;
      if (count <= 0) failures::DeviceError();
      bytes.remove_prefix(static_cast<std::size_t>(count));
    }
  }

  std::string ReadAll() const {
    std::string bytes;
    std::vector<char> block(std::size_t{64} << 10);
    while (true) {
      const ssize_t count = ::read(descriptor_, block.data(), block.size());
      if (count < 0 && errno == EINTR) continue;
      if (count < 0) failures::DeviceError();
      if (count == 0) return bytes;
      bytes.append(block.data(), static_cast<std::size_t>(count));
      if (bytes.size() > kLargestFile) failures::OutOfMemory();
    }
  }

  void FlushAndClose() {
    if (::fsync(descriptor_) != 0) failures::DeviceError();
    const int descriptor = descriptor_;
    descriptor_ = -1;
    if (::close(descriptor) != 0) failures::DeviceError();
  }

 private:
  int descriptor_;
};

/// A file beside the target that goes away again unless it takes the target's place.
class Temporary {
 public:
  explicit Temporary(const fs::path& target) : path_(target.parent_path() / ".korvane-XXXXXX") {
    descriptor_ = ::mkostemp(path_.data(), O_CLOEXEC);
    if (descriptor_ < 0) failures::PathAccess();
  }
  Temporary(const Temporary&) = delete;
  Temporary& operator=(const Temporary&) = delete;
  ~Temporary() {
    if (!renamed_) ::unlink(path_.c_str());
  }

  const std::string& Path() const { return path_; }
  int Descriptor() const { return descriptor_; }

  void TakePlaceOf(const std::string& target) {
    if (::rename(path_.c_str(), target.c_str()) != 0) failures::PathAccess();
    renamed_ = true;
  }

 private:
  std::string path_;
  int descriptor_ = -1;
  bool renamed_ = false;
};

File OpenForReading(const std::string& path) {
  // Non-blocking, so that opening a pipe that nobody writes to does not wait for ever.
  return File(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
}

/// The permissions that the new file shall have: those of the old one, or the usual ones.
mode_t ModeFor(const std::string& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) == 0) {
    // The write bits are looked at too, since access() lets the system's administrator do all.
    const bool writable = (status.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) != 0;
    if (!S_ISREG(status.st_mode) || !writable || ::access(path.c_str(), W_OK) != 0)
      failures::PathAccess();
    return status.st_mode & 07777;
  }
  if (errno != ENOENT) failures::PathAccess();
  const mode_t mask = ::umask(0);
  ::umask(mask);
  return 0666 & ~mask;
}

/// Where a link leads, over further links, whether or not there is a file yet; else the path
/// itself.
fs::path Followed(fs::path path) {
  constexpr int mostLinks = 40;
  std::error_code error;
  for (int links = 0; fs::is_symlink(path, error); ++links) {
    if (links == mostLinks) failures::PathAccess();
    path = path.parent_path() / fs::read_symlink(path, error);
  }
  return path;
}

/// The entry of a folder with this name in any case.
std::optional<fs::path> FindEntry(const fs::path& folder, const std::string& name) {
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    if (SameName(entry->path().filename().native(), name)) return entry->path();
  }
  return std::nullopt;
}

}  // namespace

std::optional<std::string> FindPath(const std::string& path) {
  std::error_code error;
  if (path.empty() || path.find('\0') != std::string::npos) return std::nullopt;
  if (fs::exists(path, error)) return path;
  fs::path found = fs::path(path).is_absolute() ? "/" : ".";
  for (const fs::path& part : fs::path(path).relative_path()) {
    if (part.empty()) continue;
    if (fs::exists(found / part, error)) {
      found /= part;
    } else if (const auto entry = FindEntry(found, part.string())) {
      found = *entry;
    } else {
      return std::nullopt;
    }
  }
  return found.string();
}

std::string ReadFile(const std::string& path) {
  const auto found = FindPath(path);
  if (!found) failures::FileNotFound();
  const File file = OpenForReading(*found);
  struct stat status {};
  if (!file.IsOpen() || ::fstat(file.Descriptor(), &status) != 0 || !S_ISREG(status.st_mode))
    failures::PathAccess();
  return file.ReadAll();
}

void WriteFile(const std::string& path, std::string_view bytes) {
  if (path.empty() || path.find('\0') != std::string::npos) failures::PathAccess();
  const std::string target = Followed(path).string();
  const mode_t mode = ModeFor(target);
  Temporary temporary(target);
  File file(temporary.Descriptor());
  file.Write(bytes);
  if (::fchmod(file.Descriptor(), mode) != 0) failures::DeviceError();
  file.FlushAndClose();

  // Some file systems report a full disk only once the bytes are asked for again.
  if (OpenForReading(temporary.Path()).ReadAll() != bytes) failures::DeviceError();
  temporary.TakePlaceOf(target);
}

}  // namespace korvane
