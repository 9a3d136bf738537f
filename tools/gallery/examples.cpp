#include "examples.h"

#include <filesystem>
#include <set>
#include <sstream>
#include <string_view>

#include "frame/files.h"
#include "pages/worked_example.h"

namespace korvane {
namespace {

namespace fs = std::filesystem;

/// Of two examples for one window the first counts, and an example ends with its window.
class Collector {
 public:
  explicit Collector(Examples& examples) : examples_(examples) {}

  void Take(const std::string& command) {
    constexpr std::string_view show = "show ";
    if (command.starts_with(show)) {
      const auto [at, isNew] = examples_.try_emplace(command.substr(show.size()));
      example_ = isNew ? &at->second : nullptr;
    } else if (command.starts_with("unload ")) {
      example_ = nullptr;
    } else if (example_ != nullptr) {
      example_->push_back(command);
    }
  }

 private:
  Examples& examples_;
  std::vector<std::string>* example_ = nullptr;
};

void TakePage(Examples& examples, const fs::path& path) {
  Collector collector(examples);
  for (const ExampleStep& step : WorkedExample(ReadFile(path)))
    if (!step.answer) collector.Take(step.command);
}

}  // namespace

Examples ReadExamples(bool metric) {
  Examples examples;
  if (metric) {
    std::istringstream lines(ReadFile(KORVANE_SOURCE_DIR "/tools/gallery/metric_examples.txt"));
    Collector collector(examples);
    for (std::string line; std::getline(lines, line);)
      if (!line.empty()) collector.Take(line);
  } else {
    std::set<fs::path> pages;
    for (const auto& entry : fs::directory_iterator(KORVANE_SOURCE_DIR "/help"))
      if (entry.path().extension() == ".html") pages.insert(entry.path());
    for (const fs::path& page : pages) TakePage(examples, page);
  }
  return examples;
}

}  // namespace korvane
