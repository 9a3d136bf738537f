// The lists of pages in the table of contents and in the page of each menu, made from the menu bar
// and from the pages themselves.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace korvane {

/// The pages of the entries of one menu in its order, each once, without ".html".
struct MenuPages {
  std::string menu;
  std::vector<std::string> pages;
};

/// The menus whose entries have pages, as they are with the program in that folder.
std::vector<MenuPages> PagesOfMenus(const std::string& programFolder);

/// A page with its lists made anew. A list stands between "<!-- titles of Math -->" or "<!-- lines
/// of Math -->" and "<!-- end -->": the titles in three columns, or each with its page's first
/// sentence. Throws std::runtime_error where a list has no end, or its menu no pages.
std::string WithLists(const std::string& page, const std::vector<MenuPages>& menus,
                      const std::filesystem::path& help);

}  // namespace korvane
