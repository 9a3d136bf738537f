#include "frame/menu.h"

#include "frame/names.h"

namespace korvane {

MenuEntry* MenuBar::Find(std::string_view name) {
  for (MenuEntry& entry : entries_)
    if (!entry.separator && SameName(entry.name, name)) return &entry;
  return nullptr;
}

bool MenuBar::IsReachable(const MenuEntry& entry) const {
  int depth = entry.depth + 1;
  for (const MenuEntry* at = &entry; depth > 0; --at) {
    if (at->depth < depth) {
      if (!at->visible || !at->enabled) return false;
      depth = at->depth;
    }
  }
  return true;
}

}  // namespace korvane
