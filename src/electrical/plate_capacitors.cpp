#include "electrical/plate_capacitors.h"

#include <algorithm>
#include <utility>

#include "frame/codepage.h"
#include "frame/delimited.h"
#include "frame/session.h"

namespace korvane {
namespace {

constexpr double kPermittivity = 0.224;  // of vacuum, pF/in
constexpr double kMillimeters = 25.4;    // in an inch
constexpr int kPicofarads = 1000000;     // in a microfarad
constexpr int kLeastPlates = 2;
constexpr std::size_t kConstantWidth = 6;  // of an entry's text, at its end

/// Plates that belong to either terminal in turn.
Drawing Plates() {
  Drawing drawing{250, 104, {}};
  const auto line = [&drawing](std::vector<Point> points) {
    drawing.shapes.emplace_back(Path{std::move(points), Ink::Line, {}, 1.2});
  };
  constexpr double left = 50, right = 190, top = 14, pitch = 24, thickness = 5;
  constexpr int plates = 4;
  for (int i = 0; i < plates; ++i) {
    const double y = top + i * pitch;
    AddBox(drawing, {left, y}, {right, y + thickness});
    const double middle = y + thickness / 2;
    if (i % 2 == 0)
      line({{left, middle}, {left - 16, middle}});
    else
      line({{right, middle}, {right + 16, middle}});
    if (i + 1 < plates)
      drawing.shapes.emplace_back(
          Letters{{(left + right) / 2, y + (pitch + thickness) / 2}, "K", 8, Ink::Accent});
  }
  constexpr double first = top + thickness / 2;
  line({{left - 16, first}, {left - 16, first + 2 * pitch}});
  line({{left - 16, first + pitch}, {left - 34, first + pitch}});
  line({{right + 16, first + pitch}, {right + 16, first + 3 * pitch}});
  line({{right + 16, first + 2 * pitch}, {right + 34, first + 2 * pitch}});
  AddArrow(drawing, {right - 22, top - 12}, {right - 22, top}, Ink::Line);
  AddArrow(drawing, {right - 22, top + pitch + 17}, {right - 22, top + pitch}, Ink::Line);
  drawing.shapes.emplace_back(
      Letters{{right - 10, top + (pitch + thickness) / 2}, "d", 8, Ink::Line});
  return drawing;
}

}  // namespace

Double PlateCapacitance(Single plates, Single dielectric, Single area, Single separation) {
  return (plates - 1) * (kPermittivity * dielectric * area / separation);
}

Plate_Capacitors::Plate_Capacitors(Session& session)
    : CalculatorWindow(session, {.name = "Plate_Capacitors",
                                 .title = " Parallel Plate Capacitors",
                                 .helpPage = "electrical_parallel_plate_capacitors.html"}),
      picture_(*this, "", "Four plates at the distance d, with a dielectric K between them",
               Plates()) {
  Pair(txt_plate_area, txt_plate_area_mm, kMillimeters * kMillimeters);
  Pair(txt_plate_separation, txt_plate_separation_mm, kMillimeters);
  Combo1.MakeFixedPitch();
  Combo1.onSelect = [this] { TakeDielectric(); };
  opt_pF.onClick = [this] { ShowIn("Capacitance (pF)"); };
  opt_uF.onClick = [this] { ShowIn("Capacitance (uF)"); };
  btn_Solve.onClick = [this] { Solve(); };
  lbl_capacitance.SetCaption("Capacitance (pF)");
  PassesFocusOn({&txt_capacitance});

  SetDefault(btn_Solve);
  PrintsWith(btn_print);
  HelpsWith(btn_help);
  ExitsWith(btn_exit);
}

Layout Plate_Capacitors::Arrangement() {
  const auto pair = [](TextField& inches, TextField& millimeters) {
    return Row({inches.CaptionBeside(), inches, millimeters.CaptionBeside(), millimeters});
  };
  const auto single = [](TextField& field) { return Row({field.CaptionBeside(), field}); };
  return Column({Row({Stretch(), picture_, Stretch()}),
                 Cells({pair(txt_plate_area, txt_plate_area_mm),
                        pair(txt_plate_separation, txt_plate_separation_mm),
                        single(txt_number_of_plates), single(txt_dielectric_constant)}),
                 Box(material_, {Combo1}), Rule(),
                 Row({Column({Stretch(), Form({txt_capacitance}), Stretch()}),
                      Box(unit_, {Row({opt_pF, opt_uF, Stretch()})})}),
                 Row({btn_Solve, Stretch(), btn_print, btn_help, btn_exit})});
}

void Plate_Capacitors::Load() {
  CalculatorWindow::Load();
  ReadDielectrics();
}

/// A change of the field in focus is carried over to the other one.
void Plate_Capacitors::Pair(TextField& inches, TextField& millimeters, double factor) {
  FollowsTyping(inches, [&inches, &millimeters, factor] {
    millimeters.Show(ToNumber(inches) * factor, "0.0000");
  });
  FollowsTyping(millimeters, [&inches, &millimeters, factor] {
    inches.Show(ToNumber(millimeters) / factor, "0.0000");
  });
}

void Plate_Capacitors::ReadDielectrics() {
  const std::string text = FromCodePage(GetSession().ReadTable("dielect.dat"));
  DelimitedReader reader(text);
  reader.Line();
  std::vector<std::pair<std::string, std::string>> rows;
  std::size_t longest = 0;
  while (!reader.AtEnd()) {
    std::string name = reader.Text();
    longest = std::max(longest, name.size());
    rows.emplace_back(std::move(name), reader.Text());
  }
  for (auto& [item, K] : rows) {
    const std::size_t blanks = kConstantWidth - std::min(K.size(), kConstantWidth);
    item.resize(longest + 2 + blanks, ' ');
    Combo1.AddItem(item.append(K));
  }
}

void Plate_Capacitors::TakeDielectric() {
  const std::string& item = Combo1.Text();
  if (item.size() >= kConstantWidth)
    txt_dielectric_constant.SetText(item.substr(item.size() - kConstantWidth));
  Solve();
}

void Plate_Capacitors::ShowIn(const char* caption) {
  lbl_capacitance.SetCaption(caption);
  Solve();
}

void Plate_Capacitors::Solve() {
  const Single d = ToNumber(txt_plate_separation), A = ToNumber(txt_plate_area);
  const Single K = ToNumber(txt_dielectric_constant);
  Single N = ToNumber(txt_number_of_plates);
  if (d == 0) return;
  if (N < kLeastPlates) {
    GetSession().Message("There must be at least 2 plates.");
    txt_number_of_plates.SetText("2");
    N = kLeastPlates;
  }
  Double C = PlateCapacitance(N, K, A, d);
  if (opt_uF.IsOn()) C = C / kPicofarads;
  txt_capacitance.Show(C, "0.######");
}

}  // namespace korvane
