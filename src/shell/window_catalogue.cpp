#include "shell/window_catalogue.h"

#include "electrical/ohms_law.h"
#include "frame/conversion_factors.h"
#include "frame/display.h"
#include "frame/page_setup.h"
#include "hvac/flow_2.h"
#include "hvac/flowcalc.h"
#include "hvac/psychro.h"
#include "math/triangle.h"
#include "mechanical/v_belt.h"
#include "shell/check_for_updates.h"
#include "shell/folder_browser.h"
#include "shell/help.h"
#include "shell/mainform.h"
#include "shell/splash.h"
#include "stress/beam_calc.h"
#include "stress/beam_selector.h"
#include "stress/beams.h"

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
    {"Check_for_Updates", Make<Check_for_Updates>, /*modal=*/true},
    // Frame
    {"DISPLAY", Make<DISPLAY>},
    {"DISPLAY2", Make<DISPLAY2>},
    {"Conversion_Factors", Make<Conversion_Factors>},
    {"Page_Setup", Make<Page_Setup>},
    // Electrical
    {"OHMS_LAW", Make<OHMS_LAW>},
    // HVAC
    {"FlowCalc", Make<FlowCalc>},
    {"flow_2", Make<flow_2>},
    {"Psychro", Make<Psychro>},
    // Math
    {"TRIANGLE", Make<TRIANGLE>},
    // Mechanical
    {"V_BELT", Make<V_BELT>},
    // Stress
    {"beams", Make<beams>},
    {"Beam_Calc", Make<Beam_Calc>},
    {"Beam_Selector", Make<Beam_Selector>, /*modal=*/true},
};

}  // namespace

std::span<const WindowUnit> WindowCatalogue() { return kUnits; }

}  // namespace korvane
