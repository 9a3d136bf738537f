// The driver, one command a line: each is answered by exactly one reply before the next is read.
#include <sstream>

#include "../support/temporary_folder.h"
#include "driver/interpreter.h"
#include "fuzz.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace korvane;
  static const testing::TemporaryFolder folder;
  static const std::string saved = "answer file " + folder.File("saved.dta");
  std::istringstream lines{std::string(Bytes(data, size))};
  int owed = 0;

  const auto input = [&]() -> std::optional<std::string> {
    Require(owed == 0);
    std::string line;
    if (!std::getline(lines, line)) return std::nullopt;
    if (!line.empty() && line.front() != '#') owed = 1;
    // Whatever is saved stays in the fuzzer's own folder.
    return line.starts_with("answer file") ? saved : line;
  };
  const auto output = [&](const std::string& answer) {
    Require(answer.find_first_of("\r\n") == std::string::npos);
    Require(answer.starts_with("! ") || --owed == 0);
  };
  Interpreter(input, output, "").Run();
  return 0;
}
