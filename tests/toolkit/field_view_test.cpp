// Fields as the person sees them.
#include <QLineEdit>

#include "desktop.h"

namespace korvane::testing {
namespace {

TEST(Fields, ShowASelectionOnlyWhereTheFocusIs) {
  Desktop desktop(FromQt(QApplication::applicationDirPath()));
  const auto isSelected = [&desktop](const std::string& window, const char* name) {
    Window& shown = desktop.Shows(window);
    desktop.person.Focuses(dynamic_cast<FocusControl&>(*shown.Find(name)));
    Settle();
    return desktop.Get<QLineEdit>(window, name).hasSelectedText();
  };
  Window& columns = desktop.Shows("columns2");
  desktop.person.Types(dynamic_cast<FocusControl&>(*columns.Find("txt_length")), "60");
  desktop.person.Presses(columns, Key::Enter);
  EXPECT_FALSE(isSelected("columns2", "txt_crit_load"));  // it selects its text and passes on

  Window& sections = desktop.Shows("MOMENT_I");
  for (const char* name : {"T1", "T2"})
    desktop.person.Types(dynamic_cast<FocusControl&>(*sections.Find(name)), "2");
  desktop.person.Presses(sections, Key::Enter);
  EXPECT_TRUE(isSelected("MOMENT_I", "txt_I"));
}

}  // namespace
}  // namespace korvane::testing
