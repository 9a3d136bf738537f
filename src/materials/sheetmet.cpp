#include "materials/sheetmet.h"

#include <algorithm>

#include "frame/session.h"

namespace korvane {
namespace {

std::vector<std::string> Labels() {
  std::vector<std::string> labels;
  for (const SheetMaterial& material : SheetMaterials()) labels.emplace_back(material.label);
  return labels;
}

/// A sheet seen from above its corner.
Drawing Sheet() {
  constexpr Point near{60, 170}, right{210, 170}, far{270, 70}, left{120, 70};
  constexpr double thick = 9;
  const auto below = [](Point point) { return Point{point.x, point.y + thick}; };
  Drawing drawing{320, 230, {}};
  drawing.shapes.emplace_back(Path{{near, right, far, left, near}, Ink::Line, Ink::Body});
  drawing.shapes.emplace_back(
      Path{{near, right, below(right), below(near), near}, Ink::Line, Ink::Body});
  drawing.shapes.emplace_back(
      Path{{right, far, below(far), below(right), right}, Ink::Line, Ink::Body});
  const auto measure = [&drawing](Point from, Point to, const char* letters, Point at) {
    const Point middle{(from.x + to.x) / 2, (from.y + to.y) / 2};
    AddArrow(drawing, middle, from, Ink::Line);
    AddArrow(drawing, middle, to, Ink::Line);
    drawing.shapes.emplace_back(Letters{at, letters, 10, Ink::Line});
  };
  measure({near.x, 196}, {right.x, 196}, "width", {135, 212});
  measure({right.x + 18, right.y + thick + 4}, {far.x + 18, far.y + thick + 4}, "length",
          {290, 138});
  AddArrow(drawing, {38, near.y - 22}, {38, near.y});
  AddArrow(drawing, {38, near.y + thick + 22}, {38, near.y + thick});
  for (const double y : {near.y, near.y + thick})
    drawing.shapes.emplace_back(Path{{{30, y}, {near.x - 4, y}}, Ink::Line, {}, 0.5});
  drawing.shapes.emplace_back(Letters{{24, near.y + thick / 2}, "t", 10, Ink::Accent});
  return drawing;
}

}  // namespace

SheetMet::SheetMet(Session& session)
    : CalculatorWindow(session, {.name = "SheetMet",
                                 .title = "Sheet Metal Gauge and Weight",
                                 .helpPage = "materials_sheet_metal.html"}),
      picture_(*this, "", "A sheet with its width, its length and its thickness t", Sheet()) {
  cmb_material.SetItems(Labels());
  cmb_material.onSelect = [this] { ListGauges(); };
  cmb_gauge.onSelect = [this] {
    gauge_ = cmb_gauge.Text();
    Calculate();
  };
  opt_gauge.onClick = [this] { SelectBasis(); };
  opt_thickness.onClick = [this] { SelectBasis(); };
  ComputesAndMovesOn({&txt_thickness, &txt_width, &txt_length, &txt_quantity},
                     [this] { Calculate(); });
  txt_weight_per_piece.onEnter = [this] { SolveLength(txt_weight_per_piece); };
  txt_total_weight.onEnter = [this] { SolveLength(txt_total_weight); };
  PassesFocusOn({&txt_weight_by_area, &txt_area});
  ShowsResultsIn({&txt_weight_per_piece, &txt_total_weight});
  SelectsOnFocus({&txt_width, &txt_length, &txt_quantity, &txt_thickness, &txt_weight_per_piece,
                  &txt_total_weight});

  btn_calculate.onClick = [this] { Calculate(); };
  SetDefault(btn_calculate);
  PrintsWith(btn_print);
  HelpsWith(btn_help);
  ExitsWith(btn_exit);
}

Layout SheetMet::Arrangement() {
  return Column(
      {Row({Column({Form({cmb_material}), Box(Frame1, {Row({opt_gauge, opt_thickness, Stretch()})}),
                    Form({cmb_gauge, txt_thickness, txt_width, txt_length, txt_quantity}), Rule(),
                    Form({txt_weight_by_area, txt_area, txt_weight_per_piece, txt_total_weight}),
                    lbl_back}),
            Column({Stretch(), picture_, Stretch()})}),
       Row({btn_calculate, Stretch(), btn_print, btn_help, btn_exit})});
}

void SheetMet::Load() {
  CalculatorWindow::Load();
  GetSession().DataFileName = IsMetric() ? kSheetGaugesMetric : kSheetGauges;
  table_ = GetSession().ReadTable(kSheetGauges);
  metricTable_ = GetSession().ReadTable(kSheetGaugesMetric);
  cmb_material.Select(0);
  SelectBasis();
}

const SheetMaterial& SheetMet::Material() const {
  return SheetMaterials()[static_cast<std::size_t>(cmb_material.Index())];
}

void SheetMet::ListGauges() {
  gauges_ = SheetGaugesOf(Material(), IsMetric() ? metricTable_ : table_, IsMetric());
  std::vector<std::string> numbers;
  for (const SheetGauge& gauge : gauges_) numbers.push_back(gauge.number);
  cmb_gauge.SetItems(std::move(numbers));
  const std::string wanted = gauge_;  // outlives what is taken in its place
  const auto chosen = std::ranges::find_if(gauges_, [&wanted](const SheetGauge& gauge) {
    return ToNumber(gauge.number) >= ToNumber(wanted);
  });
  const auto last = static_cast<int>(gauges_.size()) - 1;
  cmb_gauge.Select(std::min(static_cast<int>(chosen - gauges_.begin()), last));
  gauge_ = wanted;
}

void SheetMet::SelectBasis() {
  cmb_gauge.SetEnabled(opt_gauge.IsOn());
  txt_thickness.SetLocked(opt_gauge.IsOn());
  txt_thickness.ShadeAsResult(opt_gauge.IsOn());
  Calculate();
}

void SheetMet::ShowSheet() {
  if (opt_gauge.IsOn()) {
    const SheetGauge& gauge = gauges_[static_cast<std::size_t>(cmb_gauge.Index())];
    txt_thickness.SetText(gauge.thickness);
    weightByArea_ = gauge.weight;
  } else {
    weightByArea_ = SheetWeight(Material(), ToNumber(txt_thickness), IsMetric());
  }
  txt_weight_by_area.Show(weightByArea_, "0.000");
}

void SheetMet::Calculate() {
  ShowSheet();
  ShowWeights(nullptr);
}

// Leaves a given weight as it was typed.
void SheetMet::ShowWeights(const TextField* given) {
  const Double area = SheetArea(ToNumber(txt_width), ToNumber(txt_length), IsMetric());
  txt_area.Show(area, "0.000");
  if (given != &txt_weight_per_piece) txt_weight_per_piece.Show(area * weightByArea_, "0.000");
  if (given != &txt_total_weight)
    txt_total_weight.Show(area * weightByArea_ * ToNumber(txt_quantity), "0.000");
}

void SheetMet::SolveLength(const TextField& weight) {
  ShowSheet();
  const Single pieces = &weight == &txt_total_weight ? ToNumber(txt_quantity) : Single(1);
  const Double byLength = weightByArea_ * SheetArea(ToNumber(txt_width), 1, IsMetric()) * pieces;
  if (byLength <= 0 || ToNumber(weight) <= 0) {
    GetSession().Message("A length takes a weight, a thickness, a width and a quantity above 0.",
                         Icon::Exclamation);
    return;
  }
  txt_length.Show(ToNumber(weight) / byLength, "0.0##");
  ShowWeights(&weight);
}

}  // namespace korvane
