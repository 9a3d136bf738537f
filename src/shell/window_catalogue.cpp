#include "shell/window_catalogue.h"

#include "electrical/ac_power.h"
#include "electrical/enclosure_charts.h"
#include "electrical/enclosure_cooling.h"
#include "electrical/hazard_class.h"
#include "electrical/inductor.h"
#include "electrical/lc_calculations.h"
#include "electrical/ohms_law.h"
#include "electrical/plate_capacitors.h"
#include "electrical/resistor_color_codes.h"
#include "electrical/time_constants.h"
#include "electrical/voltage_drop.h"
#include "frame/conversion_factors.h"
#include "frame/display.h"
#include "frame/page_setup.h"
#include "hvac/blowers.h"
#include "hvac/boiling_point.h"
#include "hvac/convectn.h"
#include "hvac/duct_size.h"
#include "hvac/fanlawcalc.h"
#include "hvac/flow_2.h"
#include "hvac/flowcalc.h"
#include "hvac/heat_index.h"
#include "hvac/insulated_pipes.h"
#include "hvac/perfloss.h"
#include "hvac/psychro.h"
#include "hvac/psychro_2.h"
#include "hvac/purge_rate.h"
#include "hvac/safevent.h"
#include "hvac/std_atmosphere.h"
#include "hvac/steamflo.h"
#include "hvac/valve_cv.h"
#include "hvac/water_hammer.h"
#include "hvac/wind_chill.h"
#include "materials/periodic.h"
#include "materials/pipedata.h"
#include "materials/sched40.h"
#include "materials/sheetmet.h"
#include "materials/steelang.h"
#include "materials/stl_chan.h"
#include "materials/structural_tubing.h"
#include "materials/wbeams.h"
#include "math/areas.h"
#include "math/decfract.h"
#include "math/free_fall.h"
#include "math/orderofmag.h"
#include "math/temp_cvt.h"
#include "math/triangle.h"
#include "math/volumes_of_solids.h"
#include "mechanical/conveyor.h"
#include "mechanical/crit_spd.h"
#include "mechanical/cylinders.h"
#include "mechanical/fastener.h"
#include "mechanical/gearcalc.h"
#include "mechanical/hp_torque.h"
#include "mechanical/linshaft.h"
#include "mechanical/pipe_bursting.h"
#include "mechanical/rod_buckling.h"
#include "mechanical/screws.h"
#include "mechanical/shear_keys.h"
#include "mechanical/sprocket.h"
#include "mechanical/torsion.h"
#include "mechanical/v_belt.h"
#include "shell/check_for_updates.h"
#include "shell/folder_browser.h"
#include "shell/help.h"
#include "shell/mainform.h"
#include "shell/splash.h"
#include "stress/beam_calc.h"
#include "stress/beam_selector.h"
#include "stress/beams.h"
#include "stress/columns2.h"
#include "stress/moment_i.h"
#include "stress/plate_deflection.h"
#include "stress/section_properties.h"
#include "stress/shape_generator.h"

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
    {"AC_Power", Make<AC_Power>},
    {"voltage_drop", Make<voltage_drop>},
    {"RC_Calculations", Make<RC_Calculations>},
    {"RL_Calculations", Make<RL_Calculations>},
    {"LC_Calculations", Make<LC_Calculations>},
    {"inductor", Make<inductor>},
    {"Plate_Capacitors", Make<Plate_Capacitors>},
    {"Enclosure_Cooling", Make<Enclosure_Cooling>},
    {"Resistor_Color_Codes", Make<Resistor_Color_Codes>},
    {"Nema_box", Make<Nema_box>},
    {"IP_Codes", Make<IP_Codes>},
    {"Hazard_Class", Make<Hazard_Class>},
    // HVAC
    {"FlowCalc", Make<FlowCalc>},
    {"flow_2", Make<flow_2>},
    {"Psychro", Make<Psychro>},
    {"Psychro_2", Make<Psychro_2>},
    {"FanLawCalc", Make<FanLawCalc>},
    {"Duct_Size", Make<Duct_Size>},
    {"BLOWERS", Make<BLOWERS>},
    {"perfloss", Make<perfloss>},
    {"convectn", Make<convectn>},
    {"Insulated_Pipes", Make<Insulated_Pipes>},
    {"Purge_Rate", Make<Purge_Rate>},
    {"steamflo", Make<steamflo>},
    {"Valve_Cv", Make<Valve_Cv>},
    {"SAFEVENT", Make<SAFEVENT>},
    {"Std_Atmosphere", Make<Std_Atmosphere>},
    {"Boiling_Point", Make<Boiling_Point>},
    {"Water_Hammer", Make<Water_Hammer>},
    {"Heat_Index", Make<Heat_Index>},
    {"Wind_Chill_Factor", Make<Wind_Chill_Factor>},
    // Math
    {"TRIANGLE", Make<TRIANGLE>},
    {"Areas", Make<Areas>},
    {"Volumes_of_Solids", Make<Volumes_of_Solids>},
    {"DecFract", Make<DecFract>},
    {"TEMP_CVT", Make<TEMP_CVT>},
    {"OrderofMag", Make<OrderofMag>},
    {"Free_Fall", Make<Free_Fall>},
    // Mechanical
    {"CONVEYOR", Make<CONVEYOR>},
    {"SPROCKET", Make<SPROCKET>},
    {"V_BELT", Make<V_BELT>},
    {"linshaft", Make<linshaft>},
    {"crit_spd", Make<crit_spd>},
    {"torsion", Make<torsion>},
    {"HP_TORQUE", Make<HP_TORQUE>},
    {"GearCalc", Make<GearCalc>},
    {"screws", Make<screws>},
    {"Shear_Keys", Make<Shear_Keys>},
    {"fastener", Make<fastener>},
    {"Hydraulic_cylinders", Make<Hydraulic_cylinders>},
    {"Pneumatic_cylinders", Make<Pneumatic_cylinders>},
    {"Rod_Buckling_Calc", Make<Rod_Buckling_Calc>},
    {"Pipe_Bursting_Pressure", Make<Pipe_Bursting_Pressure>},
    // Materials
    {"PERIODIC", Make<PERIODIC>},
    {"pipedata", Make<pipedata>},
    {"Sched40", Make<Sched40>},
    {"Wbeams", Make<Wbeams>},
    {"stl_chan", Make<stl_chan>},
    {"SteelAng", Make<SteelAng>},
    {"Structural_Tubing", Make<Structural_Tubing>},
    {"SheetMet", Make<SheetMet>},
    // Stress
    {"beams", Make<beams>},
    {"columns2", Make<columns2>},
    {"Plate_Deflection", Make<Plate_Deflection>},
    {"MOMENT_I", Make<MOMENT_I>},
    {"Beam_Calc", Make<Beam_Calc>},
    {"Beam_Selector", Make<Beam_Selector>, /*modal=*/true},
    {"Section_Properties", Make<Section_Properties>},
    {"shape_generator", Make<shape_generator>, /*modal=*/true},
};

}  // namespace

std::span<const WindowUnit> WindowCatalogue() { return kUnits; }

}  // namespace korvane
