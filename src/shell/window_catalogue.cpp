#include "shell/window_catalogue.h"

#include "hvac/flowcalc.h"
#include "shell/folder_browser.h"
#include "shell/help.h"
#include "shell/mainform.h"
#include "shell/splash.h"

namespace korvane {
namespace {

template <class W>
std::unique_ptr<Window> Make(Session& session) {
  return std::make_unique<W>(session);
}

constexpr WindowUnit kUnits[] = {
    // Shell
    {"MAINFORM", Make<MAINFORM>},
    {"Splash", Make<Splash>},
    {"Folder_Browser", Make<Folder_Browser>, /*modal=*/true},
    {"Help", Make<Help>},
    // HVAC
    {"FlowCalc", Make<FlowCalc>},
};

}  // namespace

std::span<const WindowUnit> WindowCatalogue() { return kUnits; }

}  // namespace korvane
