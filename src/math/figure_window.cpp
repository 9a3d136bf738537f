#include "math/figure_window.h"

#include "frame/session.h"

namespace korvane {
namespace {

constexpr int kLastField = kFigureFields - 1;
constexpr int kFewestSides = 3;

}  // namespace

void Mirror(const Given& given, Value& radius, Value& diameter) {
  if (given(diameter) || !Present(radius))
    radius = diameter / 2;
  else
    diameter = 2 * radius;
}

FigureField Result(const char* caption) {
  FigureField field(caption);
  field.isResult = true;
  return field;
}

FigureWindow::FigureWindow(Session& session, CalculatorTraits traits, const Parts& parts)
    : CalculatorWindow(session, std::move(traits)),
      PIC(*this, parts.picture, "Figure with its dimensions"),
      figures_(parts.figures),
      Frame1(*this, "Frame1", parts.frame) {
  for (const Figure& figure : figures_) {
    const std::string name = "Option" + std::to_string(options_.size() + 1);
    options_.push_back(std::make_unique<Option>(Frame1, name, figure.option));
    options_.back()->onClick = [this] { SelectFigure(); };
  }
  for (int i = 0; i <= kLastField; ++i) {
    T(i).onFocus = [this, i] {
      FocusIndex = static_cast<short>(i);
      T(i).SelectAll();
    };
    T(i).onEnter = [this, i] {
      FocusIndex = static_cast<short>(i);
      Solve();
      MoveOn(i);
    };
  }
}

void FigureWindow::SolvesWith(Command& command) {
  command.onClick = [this] { Solve(); };
  SetDefault(command);
}

void FigureWindow::ClearsWith(Command& command) {
  command.onClick = [this] { ClearFields(); };
}

void FigureWindow::CopiesFieldWith(Command& command, std::string_view caption) {
  command.onClick = [this, caption] {
    const std::vector<FigureField>& fields = Chosen().fields;
    for (std::size_t i = 0; i < fields.size(); ++i)
      if (fields[i].caption == caption)
        GetSession().GetPlatform().SetClipboard(T(static_cast<int>(i)).Text());
  };
}

void FigureWindow::Load() {
  CalculatorWindow::Load();
  SelectFigure();
}

const Figure& FigureWindow::Chosen() const {
  for (std::size_t i = 0; i < figures_.size(); ++i)
    if (options_[i]->IsOn()) return figures_[i];
  failures::ObjectNotSet();
}

void FigureWindow::SelectFigure() {
  ClearFields();
  FigureName = Chosen().section;
  LayOut();
  DrawFigure();
}

void FigureWindow::ClearFields() {
  for (int i = 0; i <= kLastField; ++i) T(i).Clear();
  T(0).SetFocus();
}

void FigureWindow::LayOut() {
  const std::vector<FigureField>& fields = Chosen().fields;
  for (std::size_t i = 0; i < kFigureFields; ++i) {
    Label& caption = L(static_cast<int>(i));
    TextField& field = T(static_cast<int>(i));
    const bool used = i < fields.size();
    if (used) caption.SetCaption(fields[i].caption);
    field.ShadeAsResult(used && fields[i].isResult);
    caption.SetVisible(used);
    field.SetVisible(used);
  }
}

void FigureWindow::Solve() {
  const Figure& figure = Chosen();
  FigureValues values;
  const int count = static_cast<int>(figure.fields.size());
  for (int i = 0; i < count; ++i) values[static_cast<std::size_t>(i)] = ToNumber(T(i));
  if (figure.tooFewSides != nullptr && !T(0).Text().empty() && values[0] < kFewestSides) {
    GetSession().Message(figure.tooFewSides);
    return;
  }
  figure.solve({GetSession(), values[static_cast<std::size_t>(FocusIndex)]}, values);
  for (int i = 0; i < count; ++i) {
    const Value& value = values[static_cast<std::size_t>(i)];
    if (Present(value))
      Visit(value, [&](auto number) { T(i).Show(number); });
    else
      T(i).Clear();
  }
}

void FigureWindow::MoveOn(int field) {
  if (field == kLastField) return;
  TextField& next = T(field + 1);
  (next.IsVisible() ? next : T(0)).SetFocus();
}

Layout FigureWindow::OptionColumn() {
  std::vector<Layout> options;
  for (const auto& option : options_) options.emplace_back(*option);
  options.push_back(Stretch());
  return Box(Frame1, std::move(options));
}

Layout FigureWindow::FieldForm() {
  std::vector<Layout> fields;
  for (int i = 0; i <= kLastField; ++i) fields.emplace_back(T(i));
  return Column({Form(std::move(fields)), Stretch()});
}

}  // namespace korvane
