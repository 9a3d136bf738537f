// korvane-pages FOLDER: makes the lists of pages in the help pages of the folder anew.
#include <cstdio>
#include <exception>
#include <filesystem>
#include <string>

#include "contents.h"
#include "frame/files.h"

int main(int argc, char** argv) {
  namespace fs = std::filesystem;
  if (argc != 2) {
    std::fprintf(stderr, "korvane-pages FOLDER\n");
    return 2;
  }
  try {
    const auto menus =
        korvane::PagesOfMenus(fs::read_symlink("/proc/self/exe").parent_path().string());
    for (const auto& entry : fs::directory_iterator(argv[1])) {
      if (entry.path().extension() != ".html") continue;
      const std::string page = korvane::ReadFile(entry.path().string());
      const std::string made = korvane::WithLists(page, menus, argv[1]);
      if (made != page) korvane::WriteFile(entry.path().string(), made);
    }
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "%s\n", failure.what());
    return 1;
  }
}
