// The menu bar of a window as a list of entries, each with its depth.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace korvane {

struct MenuEntry {
  int depth =
      0;  ///< 0 stands in the bar itself; an entry belongs to the last one that is shallower
  std::string caption;
  std::string name;
  std::function<void()> onClick;  ///< none for submenus and separators
  bool separator = false;
  bool visible = true;
  bool enabled = true;
  bool checked = false;
};

class MenuBar {
 public:
  std::vector<MenuEntry>& Entries() { return entries_; }
  const std::vector<MenuEntry>& Entries() const { return entries_; }

  /// An entry by its name in any case; null if there is none.
  MenuEntry* Find(std::string_view name);
  /// Whether a person could click it: it and all that lead to it are visible and enabled.
  bool IsReachable(const MenuEntry& entry) const;

 private:
  std::vector<MenuEntry> entries_;
};

}  // namespace korvane
