#include "worked_example.h"

#include <algorithm>
#include <regex>
#include <sstream>
#include <string_view>
#include <utility>

namespace korvane {
namespace {

constexpr std::pair<std::string_view, std::string_view> kEntities[] = {
    {"&minus;", "-"}, {"&nbsp;", " "},  {"&deg;", "\u00B0"}, {"&lt;", "<"},
    {"&gt;", ">"},    {"&quot;", "\""}, {"&amp;", "&"}};

void ReplaceAll(std::string& text, std::string_view what, std::string_view by) {
  for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at + by.size()))
    text.replace(at, what.size(), by);
}

std::string Plain(std::string text) {
  for (const auto& [entity, letter] : kEntities) ReplaceAll(text, entity, letter);
  return text;
}

std::vector<std::string> Commands(const std::string& list, const std::string& text) {
  std::vector<std::string> commands;
  std::istringstream stream(list);
  for (std::string command; std::getline(stream >> std::ws, command, ';');) {
    ReplaceAll(command, "%", text);
    commands.push_back(command);
  }
  return commands;
}

}  // namespace

std::vector<ExampleStep> WorkedExample(const std::string& page) {
  static const std::regex element(R"re(<\w+ data-(do|is)="([^"]*)"[^>]*>([^<]*)<)re");
  std::vector<ExampleStep> steps;
  for (std::sregex_iterator it(page.begin(), page.end(), element), end; it != end; ++it) {
    const std::string text = Plain((*it)[3]);
    if ((*it)[1] == "is")
      steps.push_back({Plain((*it)[2]), text});
    else
      for (const std::string& command : Commands(Plain((*it)[2]), text))
        steps.push_back({command, std::nullopt});
  }
  return steps;
}

std::vector<std::string> WindowsOf(const std::vector<ExampleStep>& steps) {
  constexpr std::string_view show = "show ";
  std::vector<std::string> windows;
  for (const ExampleStep& step : steps) {
    if (!step.command.starts_with(show)) continue;
    std::string window = step.command.substr(show.size());
    if (std::find(windows.begin(), windows.end(), window) == windows.end())
      windows.push_back(std::move(window));
  }
  return windows;
}

}  // namespace korvane
