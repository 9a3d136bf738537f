#include "shell/menu_catalogue.h"

namespace korvane {
namespace {

/// One row of the catalogue. An entry opens the window that it names; without one the main window
/// acts itself, or the entry is a submenu of the deeper rows that follow.
struct CatalogueRow {
  int depth;
  const char* caption;
  const char* name;
  const char* window = nullptr;
};

constexpr CatalogueRow kRows[] = {
    {0, "File", "File"},
    {1, "Select Units", "Select_Units"},
    {2, "Metric", "SI_Metric"},
    {2, "U.S.", "Imperial"},
    {1, "Set Data Path", "Set_Path", "Folder_Browser"},
    {1, "Exit", "Exit"},

    {0, "HVAC", "HVAC"},
    {1, "Orifice Flow", "OrificeFlow", "FlowCalc"},

    {0, "Help", "Help"},
    {1, "Help Contents", "Index"},
    {1, "About...", "About"},
};

}  // namespace

MenuBar BuildMenu(const MenuOwner& owner) {
  MenuBar menu;
  for (const CatalogueRow& row : kRows) {
    MenuEntry entry;
    entry.depth = row.depth;
    entry.caption = row.caption;
    entry.name = row.name;
    if (row.window != nullptr) {
      entry.onClick = [&session = owner.session, window = row.window] {
        if (session.IsModalUnit(window))
          session.ShowModal(window);
        else
          session.Show(window);
      };
      entry.enabled = owner.session.IsKnown(row.window);
    } else if (const auto own = owner.own.find(row.name); own != owner.own.end()) {
      entry.onClick = own->second;
    }
    menu.Entries().push_back(std::move(entry));
  }
  return menu;
}

void ShowUnitEntries(MenuBar& menu, bool metric) {
  struct UnitEntry {
    const char* name;
    bool metric;
  };
  constexpr UnitEntry kUnitEntries[] = {
      {"AlumChannels", false}, {"AlumAssocBeams", false}, {"AlumStandardBeams", true}};
  for (const UnitEntry& unit : kUnitEntries)
    if (MenuEntry* entry = menu.Find(unit.name)) entry->visible = unit.metric == metric;
}

}  // namespace korvane
