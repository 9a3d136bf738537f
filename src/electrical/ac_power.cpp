#include "electrical/ac_power.h"

#include <optional>

#include "frame/session.h"

namespace korvane {
namespace {

constexpr int kWattsPerHorsepower = 746;
constexpr int kKilo = 1000;
constexpr int kPercent = 100;

using Values = std::array<Single, 4>;  // of txt_1 to txt_4

// Each takes the factor of the phases and what its fields hold; nothing where it would divide by 0.

std::optional<Double> AmperesFromHorsepower(Double k, const Values& v) {
  const auto [V, PF, HP, percent] = v;
  const Single Eff = percent / kPercent;
  if (V * Eff * PF == 0) return {};
  return HP * kWattsPerHorsepower / (k * V * Eff * PF);
}

std::optional<Double> AmperesFromKilowatts(Double k, const Values& v) {
  const auto [V, kW, PF, unused] = v;
  if (V * PF == 0) return {};
  return kW * kKilo / (k * V * PF);
}

std::optional<Double> AmperesFromKva(Double k, const Values& v) {
  const auto [V, kVA, unused, unused2] = v;
  if (V == 0) return {};
  return kVA * kKilo / (k * V);
}

std::optional<Double> OutputKilowatts(Double k, const Values& v) {
  const auto [V, PF, percent, I] = v;
  const Single Eff = percent / kPercent;
  return I * V * k * Eff * PF / kKilo;
}

std::optional<Double> Kilowatts(Double k, const Values& v) {
  const auto [V, PF, I, unused] = v;
  return I * V * k * PF / kKilo;
}

std::optional<Double> Kva(Double k, const Values& v) {
  const auto [V, I, unused, unused2] = v;
  return I * V * k / kKilo;
}

struct Input {
  const char* caption = "";
  const char* text = "";
};

}  // namespace

/// What is solved, from which fields.
struct AC_Power::Quantity {
  const char* choice;
  std::array<Input, 6> inputs;  // those without a caption are hidden
  const char* result;
  std::optional<Double> (*solve)(Double k, const Values& v);
};

const std::array<AC_Power::Quantity, 6> AC_Power::kQuantities = {{
    {"Amperes - given Volts, HP, Efficiency, PF",
     {{{"Voltage"}, {"Power Factor", "1"}, {"Power (HP)"}, {"Efficiency (%)", "100"}}},
     "Current (Amperes)",
     AmperesFromHorsepower},
    {"Amperes - given Volts, kW, PF",
     {{{"Voltage"}, {"Power (kW)"}, {"Power Factor", "1"}}},
     "Current (Amperes)",
     AmperesFromKilowatts},
    {"Amperes - given Volts, kVA", {{{"Voltage"}, {"kVA"}}}, "Current (Amperes)", AmperesFromKva},
    {"kW (Output) - given Volts, Current, Efficiency, PF",
     {{{"Voltage"}, {"Power Factor", "1"}, {"Efficiency (%)", "100"}, {"Current (Amperes)"}}},
     "Output Power (kW)",
     OutputKilowatts},
    {"kW - given Volts, Current, PF",
     {{{"Voltage"}, {"Power Factor", "1"}, {"Current (Amperes)"}}},
     "Power (kW)",
     Kilowatts},
    {"kVA - given Volts, Current", {{{"Voltage"}, {"Current (Amperes)"}}}, "Power (kVA)", Kva},
}};

AC_Power::AC_Power(Session& session)
    : CalculatorWindow(session, {.name = "AC_Power",
                                 .title = "AC Power Calculations",
                                 .helpPage = "electrical_ac_power-calculations.html"}),
      Option1(Frame1, "Option1", kQuantities[0].choice),
      Option2(Frame1, "Option2", kQuantities[1].choice),
      Option3(Frame1, "Option3", kQuantities[2].choice),
      Option4(Frame1, "Option4", kQuantities[3].choice),
      Option5(Frame1, "Option5", kQuantities[4].choice),
      Option6(Frame1, "Option6", kQuantities[5].choice) {
  for (Option* option : Frame1.Options()) option->onClick = [this] { LayoutPower(); };
  for (Option* option : Frame2.Options()) option->onClick = [this] { SolvePower(); };
  for (TextField* field : inputs_) field->onEnter = [this] { SolvePower(); };
  btn_Solve.onClick = txt_7.onEnter = [this] { SolvePower(); };
  ShowsResultsIn({&txt_7});
  SetDefault(btn_Solve);
  ShowsHelp(Command4, "contents.html");
  ShowsHelp(Command5, "mechanical.html");
  PrintsWith(Command2);
  HelpsWith(Command3);
  ExitsWith(Command1);
}

Layout AC_Power::Arrangement() {
  return Column(
      {Row({Column({Box(Frame1, {Option1, Option2, Option3, Option4, Option5, Option6}),
                    Box(Frame2, {Row({opt_single_phase, opt_three_phase, Stretch()})}), Stretch()}),
            Column({Form({txt_1, txt_2, txt_3, txt_4}), Rule(), Form({txt_7}), Stretch()})}),
       Row({btn_Solve, Stretch(), Command4, Command5, Command2, Command3, Command1})});
}

void AC_Power::Load() {
  CalculatorWindow::Load();
  LayoutPower();
}

const AC_Power::Quantity& AC_Power::Chosen() const {
  std::size_t i = 0;
  while (!Frame1.Options()[i]->IsOn()) ++i;
  return kQuantities[i];
}

void AC_Power::LayoutPower() {
  const Quantity& quantity = Chosen();
  for (std::size_t i = 0; i < inputs_.size(); ++i) {
    const auto& [caption, text] = quantity.inputs[i];
    TextField& field = *inputs_[i];
    const bool shows = *caption != '\0';
    field.SetVisible(shows);
    field.CaptionBeside().SetVisible(shows);
    field.CaptionBeside().SetCaption(caption);
    field.SetText(text);
  }
  L7.SetCaption(quantity.result);
  txt_7.Clear();
}

void AC_Power::SolvePower() {
  const Double k = opt_three_phase.IsOn() ? Power(3, 0.5) : Double(1);
  const Values values = {ToNumber(txt_1), ToNumber(txt_2), ToNumber(txt_3), ToNumber(txt_4)};
  if (const auto result = Chosen().solve(k, values)) txt_7.Show(*result, "0.0#####");
}

void AC_Power::ShowsHelp(Command& command, const char* page) {
  command.onClick = [this, page] {
    GetSession().HelpTopic = page;
    GetSession().ShowHelp();
  };
}

}  // namespace korvane
