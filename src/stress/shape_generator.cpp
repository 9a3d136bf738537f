#include "stress/shape_generator.h"

#include <algorithm>
#include <cmath>

#include "frame/session.h"
#include "stress/outline_drawing.h"

namespace korvane {
namespace {

constexpr DrawingBox kPicture{420, 340};
constexpr int kFewestChords = 3;
constexpr int kMostChords = 1440;

/// To a millionth of the unit, so that the texts stay short.
double Rounded(double coordinate) {
  constexpr double parts = 1e6;
  const double rounded = std::round(coordinate * parts) / parts;
  return rounded == 0 ? 0 : rounded;  // no minus sign
}

}  // namespace

shape_generator::shape_generator(Session& session)
    : CalculatorWindow(session, {.name = "shape_generator",
                                 .title = "Shape Generator",
                                 .helpPage = "mechanical_shape_generator.html"}) {
  std::vector<std::string> names;
  for (const ShapeKind& kind : ShapeKinds()) names.emplace_back(kind.name);
  lst_shape.SetItems(std::move(names));
  lst_shape.ShowAll();
  lst_shape.onSelect = [this] { SelectShape(); };
  std::vector<TextField*> fields = {&txt_chords, &txt_x, &txt_y, &txt_angle};
  for (int i = 1; i <= kMostDimensions; ++i) fields.push_back(&txt_dimension(i));
  for (TextField* field : fields) {
    field->onChange = [this] { Draw(); };
    field->onEnter = [this] { GetSession().SendTab(); };  // the shape is not finished by that
  }
  btn_replace.onClick = [this] { HandOver(false); };
  btn_add.onClick = [this] { HandOver(true); };
  SetDefault(btn_replace);
  ExitsWith(btn_cancel);
  SetCancel(btn_cancel);
}

Layout shape_generator::Arrangement() {
  std::vector<Layout> dimensions;
  for (int i = 1; i <= kMostDimensions; ++i) dimensions.emplace_back(txt_dimension(i));
  return Column({Row({Column({lbl_shape, lst_shape, Stretch()}),
                      Column({Form(std::move(dimensions)), Form({txt_chords}), Rule(),
                              Form({txt_x, txt_y, txt_angle}), lbl_origin, Stretch()}),
                      Column({Picture1, lbl_status, Stretch()})}),
                 Row({btn_replace, btn_add, Stretch(), btn_cancel})});
}

void shape_generator::Load() {
  CalculatorWindow::Load();
  lst_shape.Select(0);
}

const ShapeKind& shape_generator::Kind() const {
  return ShapeKinds()[static_cast<std::size_t>(lst_shape.Index())];
}

void shape_generator::SelectShape() {
  const std::vector<Dimension>& dimensions = Kind().dimensions;
  const auto used = static_cast<int>(dimensions.size());
  for (int i = 1; i <= kMostDimensions; ++i) {
    lbl_dimension(i).SetVisible(i <= used);
    txt_dimension(i).SetVisible(i <= used);
    if (i > used) continue;
    const Dimension& dimension = dimensions[static_cast<std::size_t>(i - 1)];
    const char* unit = !dimension.isLength ? "" : IsMetric() ? " (mm)" : " (in)";
    lbl_dimension(i).SetCaption(std::string(dimension.caption) + unit);
    txt_dimension(i).SetText(IsMetric() ? dimension.text.metric : dimension.text.us);
  }
  lbl_origin.SetCaption(Kind().isCentered ? "It turns about its center, which X and Y place."
                                          : "It turns about its lower left corner, at X and Y.");
  Draw();
}

ShapeOutlines shape_generator::Made() {
  const auto fault = [](const std::string& caption, const char* is) {
    return ShapeOutlines{{}, caption + ' ' + is + '.'};
  };
  std::vector<double> dimensions;
  for (std::size_t i = 0; i < Kind().dimensions.size(); ++i) {
    const TextField& field = txt_dimension(static_cast<int>(i) + 1);
    const auto number = Coordinate(field.Text());
    const Dimension& dimension = Kind().dimensions[i];
    if (!number || *number < 0 || (*number == 0 && !dimension.mayBeZero))
      return fault(dimension.caption,
                   dimension.mayBeZero ? "is a number of 0 or more" : "is a number above 0");
    dimensions.push_back(*number);
  }
  const auto chords = Coordinate(txt_chords.Text());
  if (!chords || *chords < kFewestChords || *chords > kMostChords || *chords != std::floor(*chords))
    return {{}, "The number of chords is a whole one from 3 to 1440."};
  ShapePlacement placement;
  for (const auto& [field, value] :
       {std::pair(&txt_x, &placement.x), {&txt_y, &placement.y}, {&txt_angle, &placement.angle}}) {
    const auto number = Coordinate(field->Text());
    if (!number) return fault(field->Caption(), "is no number");
    *value = *number;
  }
  ShapeOutlines made = Kind().outlines(dimensions, static_cast<int>(*chords));
  Place(made.outlines, placement);
  return made;
}

void shape_generator::Draw() {
  const ShapeOutlines made = Made();
  std::vector<Outline> outlines;
  int number = 0;
  for (const Points& points : made.outlines) {
    outlines.emplace_back();
    for (const Point& point : points) outlines.back().push_back({point.x, point.y, ++number});
  }
  lbl_status.SetCaption(made.fault.empty() ? std::to_string(number) + " points" : made.fault);
  Picture1.Draw(DrawnToScale(outlines, {}, nullptr, kPicture));
}

void shape_generator::HandOver(bool adds) {
  const ShapeOutlines made = Made();
  if (!made.fault.empty()) {
    GetSession().Message(made.fault, Icon::Exclamation);
    return;
  }
  std::string text;
  for (const Points& points : made.outlines) {
    if (!text.empty()) text += '\n';
    for (const Point& point : points)
      text +=
          PlainText(Double(Rounded(point.x))) + ',' + PlainText(Double(Rounded(point.y))) + '\n';
  }
  GetSession().OutlinePoints = std::move(text);
  GetSession().AddsOutline = adds;
  GetSession().Unload(*this);
}

}  // namespace korvane
