#include "contents.h"

#include <algorithm>
#include <regex>
#include <sstream>
#include <stdexcept>

#include "driver/scripted_platform.h"
#include "frame/files.h"
#include "frame/person.h"
#include "frame/session.h"
#include "shell/window_catalogue.h"

namespace korvane {
namespace {

namespace fs = std::filesystem;

constexpr const char* kContents = "contents";

/// The page that a click on an entry makes current.
std::string PageOf(Session& session, MenuEntry& entry) {
  session.HelpTopic.clear();
  Person(session).Picks(entry);
  return fs::path(session.HelpTopic).stem().string();
}

void Add(std::vector<std::string>& pages, const std::string& page) {
  if (page.empty() || page == kContents) return;
  if (std::find(pages.begin(), pages.end(), page) == pages.end()) pages.push_back(page);
}

/// What the first pair of brackets in the pattern takes of the page.
std::string Taken(const std::string& text, const char* pattern) {
  std::smatch match;
  if (!std::regex_search(text, match, std::regex(pattern)))
    throw std::runtime_error(std::string("a page lacks ") + pattern);
  return match[1];
}

std::string Link(const fs::path& help, const std::string& page) {
  const std::string title = Taken(ReadFile((help / page).string() + ".html"), "<h1>(.*)</h1>");
  return "<a href=\"" + page + ".html\">" + title + "</a>";
}

std::string Titles(const std::vector<std::string>& pages, const fs::path& help) {
  constexpr std::size_t columns = 3;
  const std::size_t rows = (pages.size() + columns - 1) / columns;
  std::string list = "<table cellpadding=\"3\" width=\"100%\">\n";
  for (std::size_t row = 0; row < rows; ++row) {
    list += "<tr>";
    for (std::size_t i = row; i < rows * columns; i += rows)
      list += "<td width=\"33%\">" + (i < pages.size() ? Link(help, pages[i]) : "&nbsp;") + "</td>";
    list += "</tr>\n";
  }
  return list + "</table>\n";
}

std::string Lines(const std::vector<std::string>& pages, const fs::path& help) {
  std::string list = "<table cellpadding=\"3\">\n";
  for (const std::string& page : pages) {
    const std::string first =
        Taken(ReadFile((help / page).string() + ".html"), R"(<p>([^]*?\.)(?:\s+[A-Z<]|</p>))");
    list += "<tr><td>" + Link(help, page) + "</td><td>" + first + "</td></tr>\n";
  }
  return list + "</table>\n";
}

}  // namespace

std::vector<MenuPages> PagesOfMenus(const std::string& programFolder) {
  ScriptedPlatform platform;
  Session session(platform, WindowCatalogue(), programFolder);
  session.ShowsSplash = false;
  platform.onModal = [&session](Window& modal) { Person(session).Closes(modal); };
  session.Handle([&] { session.Show("MAINFORM"); });
  MenuBar& bar = *session.Find("MAINFORM")->Menu();
  std::vector<MenuPages> menus;
  for (MenuEntry& entry : bar.Entries()) {
    if (entry.depth == 0) menus.push_back({entry.caption, {}});
    if (entry.onClick && entry.name != "Exit" && bar.IsReachable(entry))
      Add(menus.back().pages, PageOf(session, entry));
  }
  std::erase_if(menus, [](const MenuPages& menu) { return menu.pages.empty(); });
  return menus;
}

std::string WithLists(const std::string& page, const std::vector<MenuPages>& menus,
                      const fs::path& help) {
  static const std::regex start("<!-- (titles|lines) of (\\w+) -->\n");
  constexpr std::string_view end = "<!-- end -->";
  std::string made;
  auto from = page.begin();
  for (std::smatch match; std::regex_search(from, page.end(), match, start);) {
    const auto menu = std::find_if(menus.begin(), menus.end(),
                                   [&](const MenuPages& m) { return m.menu == match[2]; });
    const auto stop = std::search(match[0].second, page.end(), end.begin(), end.end());
    if (menu == menus.end() || stop == page.end())
      throw std::runtime_error("a list of " + match[2].str() + " can't be made");
    made.append(from, match[0].second);
    made += match[1] == "titles" ? Titles(menu->pages, help) : Lines(menu->pages, help);
    from = stop;
  }
  return made.append(from, page.end());
}

}  // namespace korvane
