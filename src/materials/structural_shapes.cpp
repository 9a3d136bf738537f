#include "materials/structural_shapes.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "frame/delimited.h"
#include "frame/mask.h"
#include "frame/names.h"
#include "frame/session.h"
#include "materials/digits.h"

namespace korvane {
namespace {

/// The units of a measure, and how many of the metric one make a U.S. one.
struct Units {
  const char* us;
  const char* metric;
  double factor;
};

Units UnitsOf(Measure measure) {
  constexpr double millimeters = 25.4;
  constexpr double square = millimeters * millimeters;
  constexpr double cube = square * millimeters;
  switch (measure) {
    case Measure::Length: return {"in", "mm", millimeters};
    case Measure::Weight: return {"lb/ft", "kg/m", 0.45359237 / 0.3048};
    case Measure::Area: return {"in2", "mm2", square};
    case Measure::Modulus: return {"in3", "10^3 mm3", cube / 1e3};
    case Measure::Inertia: return {"in4", "10^6 mm4", square * square / 1e6};
    case Measure::Torsion: return {"in4", "10^3 mm4", square * square / 1e3};
    default: return {"", "", 1};
  }
}

UnitText CaptionOf(const ShapeColumn& column) {
  const Units units = UnitsOf(column.measure);
  const std::string name = column.caption;
  if (*units.us == '\0') return name;
  return {name + " (" + units.us + ')', name + " (" + units.metric + ')'};
}

}  // namespace

std::optional<std::vector<Shape>> ReadShapes(std::string_view bytes, std::string_view key,
                                             std::string_view kind,
                                             std::span<const ShapeColumn> columns) {
  DelimitedReader reader(bytes);
  const std::string head = std::string(key) + ',' + std::string(kind);
  do {
    if (reader.AtEnd()) return std::nullopt;
  } while (reader.Line() != head);

  std::vector<Shape> shapes;
  while (!reader.AtEnd()) {
    Shape shape;
    shape.us = reader.Text();
    if (shape.us.starts_with('[')) break;  // the next section
    shape.metric = reader.Text();
    for (const ShapeColumn& column : columns) {
      shape.texts.push_back(reader.Text());
      const Double value = Strict(shape.texts.back());
      if (value < 0 || (value == 0 && column.field != nullptr)) failures::InvalidCall();
      shape.values.push_back(value);
    }
    shapes.push_back(std::move(shape));
  }
  return shapes;
}

StructuralShapes::StructuralShapes(Session& session, const ShapeWindow& window, ShapeChoice choice)
    : CalculatorWindow(session, {.name = window.name,
                                 .title = choice.title,
                                 .helpPage = "materials_structural_shapes.html"}),
      kind_(window),
      choice_(std::move(choice)),
      picture_(*this, "", window.description) {
  for (const ShapeColumn& column : kind_.columns) {
    std::unique_ptr<TextField>& field = fields_.emplace_back();
    if (column.field != nullptr)
      field = std::make_unique<TextField>(*this, column.field, CaptionOf(column));
  }
  lbl_shape.MakeHeading();
  txt_search.MakeFreeText();
  PassesFocusOn({&txt_us, &txt_metric});
  for (TextField* field : {&txt_us, &txt_metric}) field->MakeFreeText();
  std::vector<const CaptionedControl*> copied = {&txt_us, &txt_metric};
  for (const auto& field : fields_) {
    if (!field) continue;
    PassesFocusOn({field.get()});
    copied.push_back(field.get());
  }
  CopiesWith(btn_copy, std::move(copied));

  FollowsTyping(txt_search, [this] { Seek(0); });
  txt_search.onEnter = [this] { SeekNext(); };
  SelectsOnFocus({&txt_search});
  lst_shapes.onSelect = [this] { ShowShape(); };
  PrintsWith(btn_print);
  HelpsWith(btn_help);
  ExitsWith(btn_exit);
}

// The dimensions, which come before the weight, stand with the drawing that bears them.
Layout StructuralShapes::Arrangement() {
  std::vector<Layout> properties = {txt_us, txt_metric}, dimensions;
  bool dimension = true;
  for (std::size_t i = 0; i < fields_.size(); ++i) {
    dimension = dimension && kind_.columns[i].measure != Measure::Weight;
    if (fields_[i]) (dimension ? dimensions : properties).emplace_back(*fields_[i]);
  }
  return Column({Row({Column({Form({txt_search}), lst_shapes}),
                      Column({Form(std::move(properties)), Stretch()}),
                      Column({Row({Stretch(), lbl_shape, Stretch()}), picture_,
                              Form(std::move(dimensions)), Stretch()})}),
                 Row({btn_copy, Stretch(), btn_print, btn_help, btn_exit})});
}

void StructuralShapes::Load() {
  CalculatorWindow::Load();
  GetSession().DataFileName = kShapesFile;
  auto shapes =
      ReadShapes(GetSession().ReadTable(kShapesFile), choice_.section, kind_.kind, kind_.columns);
  if (!shapes || shapes->empty()) {
    GetSession().Message("No section " + choice_.section + " in file " + kShapesFile + '.',
                         Icon::Exclamation);
    return;
  }
  shapes_ = std::move(*shapes);
  ListShapes();
}

void StructuralShapes::ListShapes() {
  std::vector<std::string> items;
  for (const Shape& shape : shapes_) items.push_back(shape.Designation(metric_));
  lst_shapes.SetItems(std::move(items));
  lst_shapes.Select(0);
}

/// The first shape from this place around whose designation begins with the text; if none does, one
/// that has it within. The designation that is listed counts before the one of the other units.
void StructuralShapes::Seek(int from) {
  const std::string wanted = Folded(txt_search.Text());
  if (wanted.empty()) return;
  for (const bool metric : {metric_, !metric_}) {
    for (const bool atStart : {true, false}) {
      for (std::size_t i = 0; i < shapes_.size(); ++i) {
        const std::size_t at = (static_cast<std::size_t>(from) + i) % shapes_.size();
        const auto found = Folded(shapes_[at].Designation(metric)).find(wanted);
        if (found == std::string::npos || (atStart && found > 0)) continue;
        lst_shapes.Select(static_cast<int>(at));
        return;
      }
    }
  }
}

void StructuralShapes::SeekNext() { Seek(lst_shapes.Index() + 1); }

std::string StructuralShapes::Shown(const Shape& shape, std::size_t column) const {
  const Measure measure = kind_.columns[column].measure;
  const Double value = shape.values[column];
  if (measure == Measure::Ratio) return shape.texts[column];
  if (metric_) return ThreeDigits(value * UnitsOf(measure).factor);
  return value >= 1000 ? Format(value, "#,##0") : shape.texts[column];
}

void StructuralShapes::ShowShape() {
  const Shape& shape = shapes_[static_cast<std::size_t>(lst_shapes.Index())];
  lbl_shape.SetCaption(choice_.material.empty()
                           ? shape.Designation(metric_)
                           : choice_.material + ' ' + shape.Designation(metric_));
  txt_us.SetText(shape.us);
  txt_metric.SetText(shape.metric);
  std::vector<std::string> texts;
  for (std::size_t i = 0; i < fields_.size(); ++i) {
    texts.push_back(fields_[i] ? Shown(shape, i) : "");
    if (fields_[i]) fields_[i]->SetText(texts.back());
  }
  picture_.Draw(kind_.draw({shape, texts}));
}

}  // namespace korvane
