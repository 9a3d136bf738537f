// The menu bar of the main window as one table: the catalogue of all that the suite offers.
#pragma once

#include <functional>
#include <map>
#include <string>

#include "frame/menu.h"
#include "frame/session.h"

namespace korvane {

struct MenuOwner {
  Session& session;
  /// What the main window itself does for entries of these names.
  std::map<std::string, std::function<void()>> own;
};

MenuBar BuildMenu(const MenuOwner& owner);

/// Shows the entries of one unit system and hides those of the other.
void ShowUnitEntries(MenuBar& menu, bool metric);

}  // namespace korvane
