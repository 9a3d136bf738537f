// korvane-driver: the windows of Korvane without a screen, scripted on standard input.

#include <filesystem>
#include <iostream>
#include <string>

#include "driver/interpreter.h"

int main() {
  std::ios::sync_with_stdio(false);
  std::cin.tie(nullptr);
  const auto input = []() -> std::optional<std::string> {
    std::string line;
    if (!std::getline(std::cin, line)) return std::nullopt;
    return line;
  };
  const auto output = [](const std::string& line) {
    std::cout << line << '\n';
    std::cout.flush();
  };
  const auto program = std::filesystem::read_symlink("/proc/self/exe");
  korvane::Interpreter(input, output, program.parent_path().string()).Run();
  return 0;
}
