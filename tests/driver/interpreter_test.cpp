// What the transcripts cannot say of the driver: its own lines.
#include "driver/interpreter.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

std::vector<std::string> Answers(const std::vector<std::string>& lines) {
  std::vector<std::string> answers;
  auto line = lines.begin();
  Interpreter([&] { return line == lines.end() ? std::nullopt : std::optional(*line++); },
              [&](const std::string& answer) { answers.push_back(answer); }, "/opt/korvane")
      .Run();
  return answers;
}

TEST(Interpreter, SkipsBlankLinesAndComments) {
  EXPECT_EQ(Answers({"", "# title", "windows", ""}), std::vector<std::string>{"= MAINFORM"});
}

TEST(Interpreter, AnswersEveryLineThatIsNoCommandOnce) {
  for (const char* line :
       {" ", "title ", " title", "\r", "=", "\xFF\xFE", "type", "type ", "answer"}) {
    const auto answers = Answers({line});
    ASSERT_EQ(answers.size(), 1U) << '"' << line << '"';
  }
}

}  // namespace
}  // namespace korvane
