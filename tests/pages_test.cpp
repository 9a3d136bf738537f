// The help pages: that their links lead somewhere, and that the programs do what they say.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "driver/interpreter.h"
#include "frame/files.h"
#include "pages/contents.h"
#include "pages/worked_example.h"
#include "shell/window_catalogue.h"

namespace korvane::testing {
namespace {

namespace fs = std::filesystem;

const fs::path kHelp = KORVANE_SOURCE_DIR "/help";

std::vector<std::string> Pages() {
  std::vector<std::string> pages;
  for (const auto& entry : fs::directory_iterator(kHelp))
    if (entry.path().extension() == ".html") pages.push_back(entry.path().stem().string());
  std::sort(pages.begin(), pages.end());
  return pages;
}

std::string TextOf(const std::string& page) { return ReadFile((kHelp / page).string() + ".html"); }

/// What stands between the brackets of a pattern, wherever it occurs.
std::vector<std::string> Found(const std::string& text, const char* pattern) {
  const std::regex expression(pattern);
  std::vector<std::string> found;
  for (std::sregex_iterator it(text.begin(), text.end(), expression), end; it != end; ++it)
    found.push_back((*it)[1]);
  return found;
}

class PageTest : public ::testing::TestWithParam<std::string> {
 protected:
  std::string text = TextOf(GetParam());
};

TEST_P(PageTest, LinksAndPicturesAreThere) {
  for (const std::string& address : Found(text, R"re((?:href|src)="([^"]*)")re")) {
    const auto mark = address.find('#');
    const std::string file = address.substr(0, mark);
    ASSERT_TRUE(file.empty() || fs::is_regular_file(kHelp / file)) << address;
    if (mark == std::string::npos) continue;
    const std::string target = file.empty() ? text : ReadFile((kHelp / file).string());
    const std::string place = address.substr(mark + 1);
    EXPECT_NE(target.find("id=\"" + place + "\""), std::string::npos) << address;
  }
  EXPECT_EQ(Found(text, "<title>(.*)</title>"), Found(text, "<h1>(.*)</h1>"));
}

TEST_P(PageTest, ElementsEndWhereTheyShould) {
  static const std::set<std::string> empty{"meta", "link", "img", "br", "hr"};
  const std::regex tag(R"(<(/?)(\w+)[^>]*>)");
  std::vector<std::string> open;
  for (std::sregex_iterator it(text.begin(), text.end(), tag), end; it != end; ++it) {
    const std::string name = (*it)[2];
    if (empty.contains(name)) continue;
    if ((*it)[1].length() == 0) {
      open.push_back(name);
    } else {
      ASSERT_FALSE(open.empty()) << it->str();
      ASSERT_EQ(open.back(), name) << "line of " << it->position();
      open.pop_back();
    }
  }
  EXPECT_TRUE(open.empty());
}

TEST_P(PageTest, ExampleIsWhatTheWindowGives) {
  const std::vector<ExampleStep> steps = WorkedExample(text);
  std::size_t next = 0;
  std::vector<std::string> answers;
  const auto check = [&] {
    if (next == 0) return;
    const ExampleStep& step = steps[next - 1];
    for (const std::string& line : answers)
      EXPECT_FALSE(line.starts_with('?') || line.starts_with("! failure") ||
                   line.starts_with("! message"))
          << step.command << '\n'
          << line;
    EXPECT_EQ(answers.back(), step.answer ? "= " + *step.answer : "=") << step.command;
  };
  Interpreter(
      [&]() -> std::optional<std::string> {
        check();
        answers.clear();
        if (next == steps.size()) return std::nullopt;
        return steps[next++].command;
      },
      [&](const std::string& line) { answers.push_back(line); },
      fs::read_symlink("/proc/self/exe").parent_path().string())
      .Run();
}

INSTANTIATE_TEST_SUITE_P(All, PageTest, ::testing::ValuesIn(Pages()), [](const auto& test) {
  std::string name = test.param;
  std::replace_if(
      name.begin(), name.end(), [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
  return name;
});

TEST(Pages, AreThreeClicksFromTheContentsAtMost) {
  std::map<std::string, int> clicks{{"contents", 0}};
  std::vector<std::string> reached{"contents"};
  for (std::size_t i = 0; i < reached.size(); ++i)
    for (const std::string& link : Found(TextOf(reached[i]), R"re(href="([^"#]*)\.html)re"))
      if (clicks.emplace(link, clicks[reached[i]] + 1).second) reached.push_back(link);
  for (const std::string& page : Pages()) {
    ASSERT_TRUE(clicks.contains(page)) << page;
    EXPECT_LE(clicks[page], 3) << page;
  }
}

TEST(Pages, ListWhatTheMenusOffer) {
  const auto menus = PagesOfMenus(fs::read_symlink("/proc/self/exe").parent_path().string());
  for (const std::string& page : Pages())
    EXPECT_EQ(TextOf(page), WithLists(TextOf(page), menus, kHelp))
        << page << ": make the lists anew with korvane-pages";
  for (const MenuPages& menu : menus)
    EXPECT_TRUE(TextOf("contents").find("<!-- titles of " + menu.menu + " -->") !=
                std::string::npos)
        << menu.menu;
}

TEST(Pages, ShowEachWindowThatComputes) {
  std::set<std::string> shown{"MAINFORM",   "Splash",        "Folder_Browser",
                              "Help",       "DISPLAY",       "DISPLAY2",
                              "Page_Setup", "Beam_Selector", "Check_for_Updates"};
  for (const std::string& page : Pages())
    for (const std::string& window : WindowsOf(WorkedExample(TextOf(page))))
      if (TextOf(page).find("src=\"pictures/" + window + ".png\"") != std::string::npos)
        shown.insert(window);
  for (const WindowUnit& unit : WindowCatalogue())
    EXPECT_TRUE(shown.contains(unit.name)) << unit.name;
}

}  // namespace
}  // namespace korvane::testing
