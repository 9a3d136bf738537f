#include "frame/files.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <string>
#include <vector>

#include "../support/temporary_folder.h"
#include "failure_of.h"

namespace korvane {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

/// Each test works in a folder of its own.
class Files : public ::testing::Test {
 protected:
  std::string In(const std::string& name) const { return temporary_.File(name); }

  std::string Make(const std::string& name, const std::string& bytes) const {
    temporary_.Write(name, bytes);
    return In(name);
  }

  std::string Bytes(const std::string& name) const { return temporary_.Read(name); }

  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder_))
      names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
  }

  static int WriteFailure(const std::string& path) {
    return FailureOf([&] { return WriteFile(path, "new"), 0; });
  }

  static int ReadFailure(const std::string& path) {
    return FailureOf([&] { return ReadFile(path); });
  }

  const testing::TemporaryFolder temporary_;
  const fs::path folder_ = temporary_.Path();
};

TEST_F(Files, AreFoundInAnyCase) {
  fs::create_directories(folder_ / "Data" / "Sub");
  const std::string table = Make("Data/Sub/Wire.DAT", "x");
  for (const char* name : {"Data/Sub/Wire.DAT", "data/sub/wire.dat", "DATA/SUB/WIRE.DAT",
                           "DATA//Sub/wire.Dat", "data/../Data/sub/wire.dat"})
    EXPECT_TRUE(FindPath(In(name)) && fs::equivalent(*FindPath(In(name)), table)) << name;
  for (const std::string& name : {"data/sub/wire.da"s, "data/wire.dat"s, "dat/sub/wire.dat"s,
                                  "data/sub/wire.dat/x"s, "data/\0"s, std::string(5000, 'x')})
    EXPECT_FALSE(FindPath(In(name))) << name;
  EXPECT_FALSE(FindPath(""));
  EXPECT_EQ(ReadFile(In("DATA/sub/WIRE.dat")), "x");

  Make("Data/Sub/wire.dat", "exact");
  EXPECT_EQ(ReadFile(In("Data/Sub/wire.dat")), "exact");
}

TEST_F(Files, AreFoundFromTheCurrentFolder) {
  Make("Table.PLT", "x");
  const fs::path before = fs::current_path();
  fs::current_path(folder_);
  EXPECT_EQ(ReadFile("TABLE.plt"), "x");
  WriteFile("saved.dta", "y");
  fs::current_path(before);
  EXPECT_EQ(Bytes("saved.dta"), "y");
}

TEST_F(Files, ReadingRefusesWhatIsNoFileOfOurs) {
  EXPECT_EQ(ReadFailure(In("none")), kFileNotFound);
  EXPECT_EQ(ReadFailure(folder_.string()), kPathAccess);
  EXPECT_EQ(ReadFailure("/dev/zero"), kPathAccess);
  ASSERT_EQ(::mkfifo(In("pipe").c_str(), 0600), 0);
  EXPECT_EQ(ReadFailure(In("pipe")), kPathAccess);
  fs::resize_file(Make("large", ""), (16U << 20) + 1);
  EXPECT_EQ(ReadFailure(In("large")), kOutOfMemory);
  fs::resize_file(In("large"), 16U << 20);
  EXPECT_EQ(ReadFile(In("large")).size(), 16U << 20);
}

TEST_F(Files, WritingReplacesAndKeepsPermissions) {
  const std::string bytes = "a\r\n\0b"s;
  const std::string old = Make("old", "old and longer");
  fs::permissions(old, fs::perms(0640));
  WriteFile(old, bytes);
  EXPECT_EQ(Bytes("old"), bytes);
  EXPECT_EQ(fs::status(old).permissions(), fs::perms(0640));

  const mode_t mask = ::umask(027);
  WriteFile(In("fresh"), "");
  ::umask(mask);
  EXPECT_EQ(Bytes("fresh"), "");
  EXPECT_EQ(fs::status(In("fresh")).permissions(), fs::perms(0640));

  const std::string longest(255, 'n');
  WriteFile(In(longest), "x");
  EXPECT_EQ(Names(), (std::vector{"fresh"s, longest, "old"s}));
}

TEST_F(Files, WritingFollowsLinks) {
  fs::create_directory(folder_ / "there");
  Make("there/file", "old");
  fs::create_symlink("there/file", folder_ / "link");
  fs::create_symlink("link", folder_ / "second");
  fs::create_symlink("there/fresh", folder_ / "dangling");
  fs::create_symlink("loop", folder_ / "loop");
  WriteFile(In("second"), "new");
  EXPECT_EQ(Bytes("there/file"), "new");
  WriteFile(In("dangling"), "made");
  EXPECT_EQ(Bytes("there/fresh"), "made");
  EXPECT_EQ(WriteFailure(In("loop")), kPathAccess);
  for (const char* name : {"link", "second", "dangling"})
    EXPECT_TRUE(fs::is_symlink(In(name))) << name;
}

TEST_F(Files, AFailingWriteCostsNothing) {
  const std::string kept = Make("read-only", "kept");
  fs::permissions(kept, fs::perms(0444));
  fs::create_directory(folder_ / "folder");
  ASSERT_EQ(::mkfifo(In("pipe").c_str(), 0600), 0);
  fs::create_symlink("read-only", folder_ / "to-read-only");
  // A pipe stands for all that is no regular file. No real device: a fault here would replace it.
  fs::create_symlink("pipe", folder_ / "to-pipe");
  const std::vector<std::string> names = Names();

  for (const char* name : {"read-only", "to-read-only", "folder", "pipe", "to-pipe", "missing/file",
                           "read-only/file", "", "folder/"})
    EXPECT_EQ(WriteFailure(In(name)), kPathAccess) << name;
  EXPECT_EQ(WriteFailure(""), kPathAccess);
  EXPECT_EQ(WriteFailure(In("nul\0byte"s)), kPathAccess);
  EXPECT_EQ(WriteFailure(In(std::string(256, 'n'))), kPathAccess);

  EXPECT_EQ(Bytes("read-only"), "kept");
  EXPECT_EQ(Names(), names);
  EXPECT_TRUE(fs::is_empty(folder_ / "folder"));
  EXPECT_TRUE(fs::is_fifo(folder_ / "pipe"));
}

TEST_F(Files, AWriteThatBreaksOffCostsNothing) {
  const std::string kept = Make("file", "kept");
  const auto onExcess = std::signal(SIGXFSZ, SIG_IGN);
  rlimit before{};
  ::getrlimit(RLIMIT_FSIZE, &before);
  rlimit small = before;
  small.rlim_cur = 1000;
  ::setrlimit(RLIMIT_FSIZE, &small);
  const int failure = FailureOf([&] { return WriteFile(kept, std::string(2000, 'x')), 0; });
  ::setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, onExcess);

  EXPECT_EQ(failure, kDeviceError);
  EXPECT_EQ(Bytes("file"), "kept");
  EXPECT_EQ(Names(), std::vector{"file"s});
}

}  // namespace
}  // namespace korvane
