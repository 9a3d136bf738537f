// korvane-gallery FOLDER [--dark]: a picture of every window in both unit systems, with a worked
// example in it. Fails, and says where, if a control is cut off or has no name of its own.
// korvane-gallery FOLDER --tables: a picture of every table instead.

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <utility>
#include <vector>

#include "checks.h"
#include "frame/table.h"
#include "shell/window_catalogue.h"
#include "toolkit/qt_platform.h"
#include "toolkit/text.h"

namespace korvane {
namespace {

/// What is clicked in a window and typed into it before its picture is taken, and where Enter is
/// pressed then.
struct Example {
  const char* window;
  std::vector<std::pair<const char*, const char*>> us;
  std::vector<std::pair<const char*, const char*>> metric;
  const char* enter;
  std::vector<const char*> clicks = {};
  const char* choice = nullptr;  ///< what is clicked in the modal window that a click opens
};

const std::vector<Example>& Examples() {
  static const std::vector<Example> examples = {
      {"FlowCalc", {{"dia", "1"}, {"pressure", "1"}}, {{"dia", "0.1"}, {"pressure", "250"}}, "dia"},
      {"flow_2",
       {{"txt_diameter", "2"}, {"txt_gpm", "40"}, {"txt_elbows90", "4"}, {"txt_gvalves", "1"}},
       {{"txt_diameter", "50"}, {"txt_gpm", "2.5"}, {"txt_elbows90", "4"}, {"txt_gvalves", "1"}},
       "txt_gpm"},
      {"Psychro", {{"DryBulbF", "75"}, {"rh", "60"}}, {{"DryBulbF", "75"}, {"rh", "60"}}, "rh"},
      {"Psychro_2", {{"txt_RH", "50"}}, {{"txt_RH", "50"}}, "txt_RH", {"opt_RH"}},
      {"FanLawCalc",
       {{"txt_degf2", "150"}, {"txt_cfm2", "1200"}},
       {{"txt_degc2", "60"}, {"txt_rpm2", "2000"}},
       "txt_rpm2"},
      {"BLOWERS",
       {{"txt_pressure", "2.5"}, {"txt_temperature", "150"}, {"txt_altitude", "2000"}},
       {{"txt_flow", "10000"},
        {"txt_pressure", "900"},
        {"txt_temperature", "60"},
        {"txt_altitude", "500"}},
       "txt_altitude"},
      {"Duct_Size",
       {{"txt_width", "20"}, {"txt_depth", "10"}, {"txt_flow", "1000"}},
       {{"txt_width", "500"}, {"txt_depth", "250"}, {"txt_flow", "1700"}},
       "txt_flow",
       {"opt_rectangular"}},
      {"perfloss",
       {{"txt_temp", "70"}, {"Combo1", " 20 %"}},
       {{"txt_temp", "21"}, {"Combo1", " 20 %"}},
       "txt_fpm"},
      {"convectn",
       {{"txt_fpm", "300"}, {"txt_surf_temp", "180"}, {"txt_sq_ft", "12"}},
       {{"txt_fpm", "1.5"}, {"txt_surf_temp", "80"}, {"txt_ambient_temp", "21"}},
       "txt_fpm",
       {"opt_top"}},
      {"Insulated_Pipes",
       {{"txt_pipe_length", "100"}},
       {{"txt_od", "114.3"},
        {"txt_insul_thickness", "38"},
        {"txt_pipe_temp", "102"},
        {"txt_air_temp", "30"},
        {"txt_k_value", "0.115"},
        {"txt_pipe_length", "30"}},
       "txt_pipe_length"},
      {"Purge_Rate",
       {{"txt_initial_conc", "20.9"}},
       {{"txt_volume", "31"}, {"txt_flow_rate", "0.05"}, {"txt_initial_conc", "20.9"}},
       "txt_initial_conc"},
      {"steamflo",
       {{"txt_dia", "2.067"}, {"txt_density", ".2"}},
       {{"txt_length", "30"},
        {"txt_dia", "52.5"},
        {"txt_density", "3.2"},
        {"txt_pressure_drop", "0.007"}},
       "txt_dia"},
      {"Valve_Cv",
       {{"txt_flow", "1000"}, {"txt_P_in", "100"}, {"txt_delta_P", "10"}},
       {{"txt_flow", "500"}, {"txt_P_in", "700"}, {"txt_delta_P", "70"}},
       "txt_delta_P",
       {"opt_steam"}},
      {"SAFEVENT",
       {{"txt_gpbatch", "2"}, {"txt_temp", "350"}, {"txt_chamber_volume", "500"}},
       {{"txt_gpbatch", "8"}, {"txt_temp", "180"}, {"txt_chamber_volume", "14"}},
       "txt_chamber_volume",
       {"opt_per_batch"}},
      {"Std_Atmosphere",
       {{"txt_altitude", "30000"}, {"txt_speed", "800"}, {"txt_ref_length", "10"}},
       {{"txt_altitude", "30000"}, {"txt_speed", "800"}, {"txt_ref_length", "10"}},
       "txt_speed"},
      {"Boiling_Point", {{"txt_altitude", "5280"}}, {{"txt_altitude_m", "1500"}}, "txt_altitude"},
      {"Water_Hammer",
       {{"txt_E_pipe", "30000000"},
        {"txt_poissons", "0.3"},
        {"txt_ID", "2.067"},
        {"txt_wall", "0.154"},
        {"txt_flow", "50"},
        {"txt_line_pressure", "60"}},
       {{"txt_E_pipe", "207000000"},
        {"txt_poissons", "0.3"},
        {"txt_ID", "52.5"},
        {"txt_wall", "3.9"},
        {"txt_flow", "200"},
        {"txt_line_pressure", "400"}},
       "txt_line_pressure"},
      {"Heat_Index",
       {{"txt_temperature", "90"}, {"txt_humidity", "70"}},
       {{"txt_temperature", "32"}, {"txt_humidity", "70"}},
       "txt_humidity"},
      {"Wind_Chill_Factor",
       {{"txt_temperature", "20"}, {"txt_windspeed", "15"}},
       {{"txt_temperature", "-10"}, {"txt_windspeed", "30"}},
       "txt_windspeed"},
      {"TRIANGLE", {{"A", "3"}, {"B", "4"}, {"C", "5"}}, {{"A", "3"}, {"B", "4"}, {"C", "5"}}, "C"},
      {"Areas",
       {{"T(0)", "10"}, {"T(3)", "9"}},
       {{"T(0)", "10"}, {"T(3)", "9"}},
       "T(3)",
       {"Option12"}},
      {"Volumes_of_Solids",
       {{"T(0)", "5"}, {"T(3)", "3"}, {"T(4)", "10"}},
       {{"T(0)", "5"}, {"T(3)", "3"}, {"T(4)", "10"}},
       "T(4)",
       {"Option10"}},
      {"CONVEYOR",
       {{"txt_product_weight", "1500"}},
       {{"txt_product_weight", "600"}},
       "txt_product_weight",
       {"opt_minor", "opt_dia_solve"}},
      {"SPROCKET",
       {{"CMB_RC", "60"}, {"txt_teeth", "18"}, {"TXT_BORE", "1.25"}},
       {{"CMB_RC", "60"}, {"txt_teeth", "18"}, {"TXT_BORE", "32"}},
       "TXT_BORE"},
      {"V_BELT",
       {{"TXT_DRIVEN_RPM", "1000"}},
       {{"TXT_DRIVEN_RPM", "1000"}},
       "TXT_DRIVEN_RPM",
       {"OPT_DRIVER_VARIABLE", "BTN_SHOW"}},
      {"beams",
       {{"L", "100"}, {"W", "1000"}, {"I", "10"}, {"Z", "5"}, {"E", "29000000"}},
       {{"L", "2000"}, {"W", "5000"}, {"I", "4000000"}, {"Z", "50000"}, {"E", "200000"}},
       "E",
       {"cantilevered"}},
      {"linshaft",
       {{"txt_L", "40"},
        {"txt_d", "1.5"},
        {"txt_rpm", "300"},
        {"txt_side_load", "300"},
        {"txt_brg_dist", "30"},
        {"txt_power", "5"}},
       {{"txt_L", "1000"},
        {"txt_d", "40"},
        {"txt_G", "79300"},
        {"txt_e_tensile", "207000"},
        {"txt_rpm", "300"},
        {"txt_side_load", "1300"},
        {"txt_brg_dist", "750"},
        {"txt_power", "4"}},
       "txt_power"},
      {"crit_spd",
       {{"txt_brg_spacing", "20"},
        {"txt_overhang", "8"},
        {"txt_shaft_dia", "2"},
        {"txt_impeller_wt", "50"},
        {"txt_brg_tolerance", "0.001"}},
       {{"txt_brg_spacing", "500"},
        {"txt_overhang", "200"},
        {"txt_shaft_dia", "50"},
        {"txt_elastic_mod", "207000"},
        {"txt_impeller_wt", "25"},
        {"txt_brg_tolerance", "0.02"},
        {"txt_spring_constant", "36000000"}},
       "txt_shaft_dia"},
      {"torsion",
       {{"txt_L", "36"}, {"txt_d", "1.25"}, {"txt_RPM", "1750"}, {"txt_power", "10"}},
       {{"txt_L", "900"},
        {"txt_d", "30"},
        {"txt_g", "79300"},
        {"txt_RPM", "1450"},
        {"txt_power", "7.5"}},
       "txt_power"},
      {"HP_TORQUE",
       {{"FORCE", "50"}, {"RPM", "1750"}, {"RADIUS", "6"}},
       {{"FORCE", "200"}, {"RPM", "1450"}, {"RADIUS", "0.15"}},
       "RADIUS"},
      {"GearCalc", {{"txt_teeth", "24"}}, {{"txt_teeth", "24"}}, "txt_teeth"},
      {"columns2",
       {{"txt_length", "60"}},
       {{"txt_length", "1500"},
        {"txt_yield", "250"},
        {"txt_E", "200000"},
        {"txt_I", "36337"},
        {"txt_area", "318.6"},
        {"txt_rad_gyr", "10.68"}},
       "txt_length",
       {"opt_fixed_pinned", "opt_engineering"}},
      {"Plate_Deflection", {{"txt_long_side", "24"}}, {{"txt_long_side", "600"}}, "txt_long_side"},
      {"MOMENT_I",
       {{"T1", "4"}, {"T2", "6"}, {"T3", "0.25"}, {"T4", "0.5"}},
       {{"T1", "100"}, {"T2", "150"}, {"T3", "6"}, {"T4", "12"}},
       "T4",
       {"Option9"}},
      {"Shear_Keys",
       {{"txt_torque", "12000"}, {"txt_shaft_dia", "1.25"}, {"txt_key_width", ".25"}},
       {{"txt_torque", "500"}, {"txt_shaft_dia", "40"}, {"txt_key_width", "12"}},
       "txt_key_width"},
      {"fastener",
       {{"txt_force", "9000"}},
       {{"txt_stress", "300"}, {"txt_force", "20000"}},
       "txt_force"},
      {"screws", {{"txt_search", "3/8-16"}}, {{"txt_search", "M12"}}, "txt_search"},
      {"Hydraulic_cylinders",
       {{"cmb_bore_dia", "3.25"},
        {"cmb_rod_dia", "1.375"},
        {"txt_pressure", "1500"},
        {"txt_extend_speed", "120"},
        {"txt_retract_speed", "150"}},
       {{"cmb_bore_dia", "63"},
        {"cmb_rod_dia", "36"},
        {"txt_pressure", "160"},
        {"txt_stroke", "400"},
        {"txt_extend_speed", "3000"},
        {"txt_retract_speed", "4000"}},
       "txt_pressure"},
      {"Pneumatic_cylinders",
       {{"cmb_bore_dia", "4"},
        {"cmb_rod_dia", "1"},
        {"txt_pressure", "80"},
        {"txt_stroke", "10"},
        {"txt_extend_speed", "300"},
        {"txt_retract_speed", "400"}},
       {{"cmb_bore_dia", "50"},
        {"cmb_rod_dia", "18"},
        {"txt_pressure", "6"},
        {"txt_stroke", "250"},
        {"txt_extend_speed", "6000"},
        {"txt_retract_speed", "7000"}},
       "txt_pressure"},
      {"Rod_Buckling_Calc",
       {{"txt_dia", "1.5"}},
       {{"txt_dia", "40"}},
       "txt_dia",
       {"btn_geometry(5)"}},
      {"Pipe_Bursting_Pressure",
       {{"txt_OD", "2.375"}, {"txt_wall", ".154"}},
       {{"txt_OD", "60.3"}, {"txt_wall", "3.91"}, {"txt_strength", "345000"}},
       "txt_wall"},
      {"OHMS_LAW",
       {{"Text1", "2"}, {"Text2", "3"}},
       {{"Text1", "2"}, {"Text2", "3"}},
       "Text2",
       {"Label1"}},
      {"LC_Calculations",
       {{"cbo_cap_units", "pF"},
        {"cbo_ind_units", "uH"},
        {"txt_capacitance", "100"},
        {"txt_inductance", "10"}},
       {{"cbo_cap_units", "pF"},
        {"cbo_ind_units", "uH"},
        {"txt_capacitance", "100"},
        {"txt_inductance", "10"}},
       "txt_inductance"},
      {"inductor",
       {{"txt_coil_length", "1"}, {"txt_coil_dia", "0.5"}, {"txt_inductance", "5"}},
       {{"txt_coil_length", "25"}, {"txt_coil_dia", "12"}, {"txt_inductance", "5"}},
       "txt_inductance"},
      {"Plate_Capacitors",
       {{"txt_plate_area", "4"},
        {"txt_plate_separation", "0.005"},
        {"txt_number_of_plates", "5"},
        {"txt_dielectric_constant", "6"}},
       {{"txt_plate_area_mm", "2500"},
        {"txt_plate_separation_mm", "0.1"},
        {"txt_number_of_plates", "5"},
        {"txt_dielectric_constant", "6"}},
       "txt_dielectric_constant"},
      {"Enclosure_Cooling",
       {{"Text1(0)", "300"},
        {"Text1(1)", "80"},
        {"Text1(4)", "95"},
        {"Text2(0)", "80"},
        {"Text2(1)", "100"}},
       {{"Text1(0)", "300"},
        {"Text1(1)", "27"},
        {"Text1(4)", "35"},
        {"txt_width", "1200"},
        {"txt_height", "900"},
        {"txt_depth", "400"},
        {"Text2(0)", "27"},
        {"Text2(1)", "100"}},
       "Text1(4)",
       {"chk_painted"}},
      {"Beam_Calc",
       {{"txt_E", "29000000"},
        {"txt_I", "88.6"},
        {"txt_Z", "22.15"},
        {"Text(0)", "144"},
        {"Text(1)", "50"},
        {"Text(2)", "80"},
        {"Text(3)", "36"},
        {"Text(5)", "48"},
        {"Text(6)", "72"}},
       {{"txt_E", "200000"},
        {"txt_I", "36900000"},
        {"txt_Z", "363000"},
        {"Text(0)", "3600"},
        {"Text(1)", "9"},
        {"Text(2)", "14"},
        {"Text(3)", "900"},
        {"Text(5)", "1200"},
        {"Text(6)", "1800"}},
       "Text(6)",
       {"btn_select"},
       "Command1(11)"},
      {"DecFract", {{"dec", "1.4375"}}, {{"dec", "1.4375"}}, "dec"},
      {"TEMP_CVT", {{"F", "68"}}, {{"F", "68"}}, "F"},
      {"Free_Fall", {{"txt_height", "1000"}}, {{"txt_height", "300"}}, "txt_height"},
      {"AC_Power",
       {{"txt_1", "480"}, {"txt_2", "0.86"}, {"txt_3", "50"}, {"txt_4", "94"}},
       {{"txt_1", "400"}, {"txt_2", "0.86"}, {"txt_3", "50"}, {"txt_4", "94"}},
       "txt_4",
       {"opt_three_phase"}},
      {"voltage_drop", {{"txt_amps", "15"}}, {{"txt_amps", "15"}}, "txt_amps"},
      {"RC_Calculations",
       {{"txt_resistance", "10000"},
        {"txt_capacitance_3", "0.0001"},
        {"txt_voltage_2", "12"},
        {"txt_charging_time", "1"}},
       {{"txt_resistance", "10000"},
        {"txt_capacitance_3", "0.0001"},
        {"txt_voltage_2", "12"},
        {"txt_charging_time", "1"}},
       "txt_charging_time"},
      {"RL_Calculations",
       {{"txt_resistance", "50"},
        {"txt_inductance_3", "2"},
        {"txt_voltage", "24"},
        {"txt_charging_time", "0.04"}},
       {{"txt_resistance", "50"},
        {"txt_inductance_3", "2"},
        {"txt_voltage", "24"},
        {"txt_charging_time", "0.04"}},
       "txt_charging_time"},
      {"pipedata",
       {{"cmb_size", "6"}, {"cmb_wall", "80, XS"}},
       {{"cmb_standard", "Copper Tube, ASTM B88 and B306"}, {"cmb_size", "2"}, {"cmb_wall", "K"}},
       "cmb_wall"},
  };
  return examples;
}

/// Lets the window system answer: a window that grows with a caption does so in a few turns.
void Settle() {
  QEventLoop loop;
  constexpr int milliseconds = 50;
  QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
  loop.exec();
}

/// Clicks a control of the modal window as soon as there is one.
void ClicksInModal(Session& session, const std::string& name) {
  auto* poll = new QTimer(QApplication::instance());
  QObject::connect(poll, &QTimer::timeout, [&session, poll, name] {
    const Window* modal = session.Modal();
    if (modal == nullptr) return;
    poll->deleteLater();
    Person(session).Clicks(*modal->Find(name));
  });
  poll->start(0);
}

void Fill(const Person& person, Control& control, const char* text) {
  if (auto* combo = dynamic_cast<Combo*>(&control); combo != nullptr && !combo->IsEditable()) {
    const auto& items = combo->Items();
    person.Selects(*combo,
                   static_cast<int>(std::find(items.begin(), items.end(), text) - items.begin()));
  } else {
    person.Types(dynamic_cast<FocusControl&>(control), text);
  }
}

void Work(Session& session, Window& window) {
  const Person person(session);
  for (const Example& example : Examples()) {
    if (window.Name() != example.window) continue;
    if (example.choice != nullptr) ClicksInModal(session, example.choice);
    for (const char* name : example.clicks) person.Clicks(*window.Find(name));
    for (const auto& [name, text] : session.MetricUnits ? example.metric : example.us)
      Fill(person, *window.Find(name), text);
    person.Focuses(dynamic_cast<FocusControl&>(*window.Find(example.enter)));
    person.Presses(window, Key::Enter);
    Settle();
  }
  constexpr int longest = 50;  // ticks, after which an animation has come to its end
  for (Control* control : window.Controls())
    if (auto* timer = dynamic_cast<Timer*>(control))
      for (int tick = 0; timer->IsEnabled() && tick < longest; ++tick) person.Waits(*timer);
}

/// Which table a viewer shows; none where it is no viewer.
const char* TableOf(const Session& session, std::string_view window) {
  if (window == "DISPLAY") return session.MetricUnits ? "CoprWirM.dat" : "COPRWIRE.dat";
  if (window == "DISPLAY2") return session.MetricUnits ? "IECframe.dat" : "ACMOTORS.dat";
  return "";
}

void DarkenPalette() {
  QPalette palette(QColor(0x35, 0x35, 0x35));
  palette.setColor(QPalette::Base, QColor(0x23, 0x23, 0x23));
  palette.setColor(QPalette::Highlight, QColor(0x2A, 0x82, 0xDA));
  palette.setColor(QPalette::Link, QColor(0x6C, 0xB4, 0xEE));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, QColor(0x80, 0x80, 0x80));
  QApplication::setPalette(palette);
}

int Draw(const QDir& folder) {
  bool flawed = false;
  QtPlatform platform;
  for (const bool metric : {false, true}) {
    Session session(platform, WindowCatalogue(), FromQt(QApplication::applicationDirPath()));
    platform.Serve(session);
    session.ShowsSplash = false;
    platform.SaveSetting("Units", metric ? "SI" : "US");
    session.Handle([&] { session.Show("MAINFORM"); });
    for (const WindowUnit& unit : WindowCatalogue()) {
      session.DataFileName = TableOf(session, unit.name);
      session.AboutMode = true;  // the splash window in its larger form
      session.Handle([&] {
        if (std::string_view(unit.name) == "Page_Setup")
          session.PrintWindow(session.Show("FlowCalc"));
        else
          session.Show(unit.name);
      });
      Window* window = session.Find(unit.name);
      if (window == nullptr) continue;
      Work(session, *window);
      QApplication::processEvents();
      WindowView& view = *platform.View(*window);
      for (const QString& flaw : FlawsOf(view)) {
        std::fprintf(stderr, "%s: %s\n", unit.name, qPrintable(flaw));
        flawed = true;
      }
      const QString file = QString("%1-%2.png").arg(unit.name, metric ? "SI" : "US");
      if (!view.grab().save(folder.filePath(file))) return 1;
      if (window->Menu() == nullptr) session.Handle([&] { session.Unload(*window); });
    }
    session.DropWindows();
  }
  return flawed ? 1 : 0;
}

bool IsTable(const Session& session, const std::string& file) {
  try {
    return ParseTable(session.ReadTable(file)).fixedRows > 0;
  } catch (const RuntimeFailure&) {
    return false;  // a calculator's own records
  }
}

int DrawTables(const QDir& folder) {
  QtPlatform platform;
  Session session(platform, WindowCatalogue(), FromQt(QApplication::applicationDirPath()));
  platform.Serve(session);
  session.ShowsSplash = false;
  session.Handle([&] { session.Show("MAINFORM"); });
  for (const QString& name : QDir(ToQt(session.DataPath)).entryList(QDir::Files)) {
    session.DataFileName = FromQt(name);
    if (!IsTable(session, session.DataFileName)) continue;
    session.Handle([&] { session.Show("DISPLAY"); });
    Settle();
    Window& window = *session.Find("DISPLAY");
    if (!platform.View(window)->grab().save(folder.filePath(name + ".png"))) return 1;
    session.Handle([&] { session.Unload(window); });
  }
  session.DropWindows();
  return 0;
}

}  // namespace
}  // namespace korvane

int main(int argc, char** argv) {
  const QTemporaryDir settings;
  qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
  QApplication app(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() < 2) {
    std::fprintf(stderr, "korvane-gallery FOLDER [--dark | --tables]\n");
    return 2;
  }
  if (arguments.contains("--dark")) korvane::DarkenPalette();
  QDir().mkpath(arguments[1]);
  const QDir folder(arguments[1]);
  return arguments.contains("--tables") ? korvane::DrawTables(folder) : korvane::Draw(folder);
}
