// Replays every transcript of the tests: files in the driver's own language.
//
//   > command          to the driver
//   answer             notices and reply, in full; none at all means that it must only not fail
//   # why, or a blank  skipped
//
// A file begins where the driver begins. In it $TMP is a fresh folder, $APP the program's.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <vector>

#include "../support/sampler.h"
#include "../support/temporary_folder.h"
#include "driver/interpreter.h"

namespace korvane::testing {
namespace {

namespace fs = std::filesystem;

struct Step {
  int line = 0;
  std::string command;
  std::vector<std::string> expected;
};

std::vector<Step> ReadSteps(const std::string& path) {
  std::vector<Step> steps;
  std::ifstream file(path);
  std::string line;
  for (int number = 1; std::getline(file, line); ++number) {
    if (line.empty() || line.starts_with('#')) continue;
    if (line.starts_with("> "))
      steps.push_back({number, line.substr(2), {}});
    else if (!steps.empty())
      steps.back().expected.push_back(line);
    else
      ADD_FAILURE_AT(path.c_str(), number) << "an answer without a command";
  }
  return steps;
}

void Replace(std::string& text, const std::string& name, const std::string& value) {
  for (auto at = text.find(name); at != std::string::npos; at = text.find(name, at + value.size()))
    text.replace(at, name.size(), value);
}

std::string Joined(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += "  " + line + '\n';
  return text;
}

class Replay {
 public:
  explicit Replay(std::string path) : path_(std::move(path)), steps_(ReadSteps(path_)) {}

  void Run() {
    ASSERT_FALSE(steps_.empty()) << path_;
    Interpreter([this] { return NextCommand(); },
                [this](const std::string& line) { answers_.push_back(line); }, programFolder_,
                TestCatalogue())
        .Run();
    EXPECT_EQ(at_, steps_.size()) << "the driver ended early";
  }

 private:
  std::optional<std::string> NextCommand() {
    if (at_ > 0) Check(steps_[at_ - 1]);
    answers_.clear();
    if (at_ == steps_.size()) return std::nullopt;
    return Filled(steps_[at_++].command);
  }

  void Check(const Step& step) const {
    std::vector<std::string> expected;
    for (const std::string& line : step.expected) expected.push_back(Filled(line));
    if (!expected.empty()) {
      if (answers_ != expected)
        ADD_FAILURE_AT(path_.c_str(), step.line) << "> " << step.command << "\nexpected:\n"
                                                 << Joined(expected) << "got:\n"
                                                 << Joined(answers_);
      return;
    }
    for (const std::string& line : answers_)
      if (line.starts_with('?') || line.starts_with("! failure"))
        ADD_FAILURE_AT(path_.c_str(), step.line) << "> " << step.command << '\n'
                                                 << Joined(answers_);
  }

  std::string Filled(std::string line) const {
    Replace(line, "$TMP", folder_.Path());
    Replace(line, "$APP", programFolder_);
    return line;
  }

  std::string path_;
  std::vector<Step> steps_;
  TemporaryFolder folder_;
  std::string programFolder_ = fs::read_symlink("/proc/self/exe").parent_path().string();
  std::vector<std::string> answers_;
  std::size_t at_ = 0;
};

/// "hvac/FlowCalc" for tests/hvac/FlowCalc.txt.
std::vector<std::string> Transcripts() {
  std::vector<std::string> names;
  const fs::path root = fs::path(KORVANE_SOURCE_DIR) / "tests";
  for (const auto& entry : fs::recursive_directory_iterator(root))
    if (entry.path().extension() == ".txt" && entry.path().filename() != "CMakeLists.txt")
      names.push_back(fs::relative(entry.path(), root).replace_extension().string());
  std::sort(names.begin(), names.end());
  return names;
}

class TranscriptTest : public ::testing::TestWithParam<std::string> {};

TEST_P(TranscriptTest, IsAnsweredAsWritten) {
  Replay(KORVANE_SOURCE_DIR "/tests/" + GetParam() + ".txt").Run();
}

INSTANTIATE_TEST_SUITE_P(All, TranscriptTest, ::testing::ValuesIn(Transcripts()),
                         [](const auto& test) {
                           std::string name = test.param;
                           for (char& c : name)
                             if (std::isalnum(static_cast<unsigned char>(c)) == 0) c = '_';
                           return name;
                         });

}  // namespace
}  // namespace korvane::testing
