#include "electrical/hazard_class.h"

#include <algorithm>
#include <string_view>

#include "frame/codepage.h"
#include "frame/session.h"

namespace korvane {
namespace {

constexpr int kOpeningWidth = 12000;  // twips
constexpr int kOpeningHeight = 9900;
constexpr std::string_view kMargin = "  ";

/// The lines with a margin, parted by a carriage return and a line feed.
std::string WithMargin(std::string_view text) {
  std::string shown;
  while (!text.empty()) {
    const auto end = std::min(text.find_first_of("\r\n"), text.size());
    if (!shown.empty()) shown += "\r\n";
    shown.append(kMargin).append(text.substr(0, end));
    text.remove_prefix(end);
    text.remove_prefix(text.starts_with("\r\n") ? 2 : std::min<std::size_t>(text.size(), 1));
  }
  return shown;
}

}  // namespace

Hazard_Class::Hazard_Class(Session& session)
    : CalculatorWindow(session, {.name = "Hazard_Class",
                                 .title = " NEC Hazardous Location Classifications",
                                 .helpPage = "electrical_nec_hazardous_classifications.html",
                                 .sizable = true}) {
  Text1.MakeLines();
  PrintsWith(btn_print);
  HelpsWith(btn_help);
  ExitsWith(btn_exit);
}

Layout Hazard_Class::Arrangement() {
  return Column({Text1, Row({Stretch(), btn_print, btn_help, btn_exit})});
}

void Hazard_Class::Load() {
  CalculatorWindow::Load();
  Session& session = GetSession();
  const Metrics metrics = session.GetPlatform().GetMetrics();
  SetSize(std::min<double>(kOpeningWidth, metrics.screenWidth),
          std::min<double>(kOpeningHeight, metrics.screenHeight));
  session.DataFileName = "Hazard_Class.dat";
  Text1.SetText(WithMargin(FromCodePage(session.ReadTable(session.DataFileName))));
}

}  // namespace korvane
