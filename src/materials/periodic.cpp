#include "materials/periodic.h"

#include "frame/mask.h"
#include "frame/session.h"
#include "materials/digits.h"

namespace korvane {
namespace {

constexpr double kTile = 54;  // side of a tile of the chart
constexpr Color kBlack = Color::Rgb(0x000000);
constexpr int kBlinks = 6;  // marks and unmarks of an element that was found
constexpr int kBlinkTime = 200;

constexpr const char* kUnknown = "not known";

Path Square(double inset, double width, double height, std::optional<Color> tint = {}) {
  const double right = width - inset, bottom = height - inset;
  return {
      .points = {{inset, inset}, {right, inset}, {right, bottom}, {inset, bottom}, {inset, inset}},
      .width = tint ? 0.5 : 2,
      .tint = tint};
}

/// The tile of the chosen element stands in a ring.
Drawing Tile(const Element& element, bool marked) {
  constexpr double ring = 1, inner = 4;
  Drawing drawing{kTile, kTile, {}};
  if (marked) drawing.shapes.emplace_back(Square(ring, kTile, kTile));
  drawing.shapes.emplace_back(
      Square(marked ? inner : ring, kTile, kTile, Color::Rgb(element.series->rgb)));
  drawing.shapes.emplace_back(Letters{
      .at = {kTile / 2, 14}, .text = std::to_string(element.number), .height = 7, .tint = kBlack});
  drawing.shapes.emplace_back(
      Letters{.at = {kTile / 2, 35}, .text = element.symbol, .height = 15, .tint = kBlack});
  return drawing;
}

/// Where the lanthanides or actinides would stand.
Drawing Placeholder(const char* numbers) {
  Drawing drawing{kTile, kTile, {}};
  drawing.shapes.emplace_back(Letters{.at = {kTile / 2, kTile / 2}, .text = numbers, .height = 7});
  return drawing;
}

Drawing LargeTile(const Element& element) {
  constexpr double width = 140, height = 174, middle = width / 2;
  Drawing drawing{width, height, {}};
  drawing.shapes.emplace_back(Square(1, width, height, Color::Rgb(element.series->rgb)));
  const auto write = [&drawing](double y, const std::string& text, double capitals) {
    drawing.shapes.emplace_back(
        Letters{.at = {middle, y}, .text = text, .height = capitals, .tint = kBlack});
  };
  write(22, std::to_string(element.number), 13);
  write(76, element.symbol, 46);
  write(130, element.name, 10);
  write(154, element.weight, 10);
  return drawing;
}

std::string OrUnknown(const std::string& text) { return text.empty() ? kUnknown : text; }

/// Both units, those in force first.
std::string InBoth(bool metric, const std::string& us, const std::string& si) {
  return metric ? si + " (" + us + ')' : us + " (" + si + ')';
}

std::string Temperature(const std::string& celsius, bool metric) {
  if (celsius.empty()) return kUnknown;
  const bool tenths = celsius.find('.') != std::string::npos;
  const std::string fahrenheit =
      Format(Strict(celsius) * 1.8 + 32, tenths ? Mask("0.0") : Mask("0"));
  return InBoth(metric, fahrenheit + " \u00B0F", celsius + " \u00B0C");
}

std::string Melting(const Element& element, bool metric) {
  if (element.Sublimes()) return "sublimes at 1 atm";
  if (!element.Melts()) return "liquid down to 0 K at 1 atm";  // helium
  return Temperature(element.melting, metric);
}

std::string Density(const Element& element, bool metric) {
  constexpr double poundsPerInch = 0.45359237 / (2.54 * 2.54 * 2.54) * 1000;  // g/cm3 in 1 lb/in3
  constexpr double poundsPerFoot = 453.59237 / 28.316846592;                  // g/L in 1 lb/ft3
  if (element.density.empty()) return kUnknown;
  const Double density = Strict(element.density);
  if (element.IsGas())
    return InBoth(metric, FourDigits(density / poundsPerFoot) + " lb/ft3",
                  element.density + " g/L");
  return InBoth(metric, FourDigits(density / poundsPerInch) + " lb/in3",
                element.density + " g/cm3");
}

std::string Place(const Element& element) {
  const ChartPlace place = PlaceOf(element.number);
  const int period = PeriodOf(element.number);
  const std::string group =
      place.row == period ? "Group " + std::to_string(place.column) : std::string("f-block");
  return group + ", period " + std::to_string(period);
}

}  // namespace

// The file is read here, since the tiles follow from it.
PERIODIC::PERIODIC(Session& session)
    : CalculatorWindow(session, {.name = "PERIODIC",
                                 .title = "Periodic Chart of the Elements",
                                 .helpPage = "materials_periodic_chart.html"}),
      elements_(ParseElements(session.ReadTable(kElementsFile))),
      lanthanides_(*this, "", "57 to 71: the lanthanides, below", Placeholder("57-71")),
      actinides_(*this, "", "89 to 103: the actinides, below", Placeholder("89-103")),
      gap_(*this, "", "", Drawing{kTile, kTile / 8, {}}),
      picture_(*this, "", "The chosen element"),
      Timer1(*this, "Timer1", kBlinkTime, Timer::Starts::Disabled) {
  for (const Element& element : elements_) {
    Option& tile = *tiles_.emplace_back(
        std::make_unique<Option>(group_, "opt_" + element.symbol, element.name));
    tile.ShowFace(Tile(element, false));
    tile.onClick = [this, &element] { Choose(element); };
  }
  for (const ElementSeries& series : AllSeries())
    legend_.push_back(std::make_unique<Label>(*this, "", ' ' + std::string(series.plural) + ' '));
  lbl_missing.Hide();

  txt_search.MakeFreeText();
  SelectsOnFocus({&txt_search});
  FollowsTyping(txt_search, [this] { Find(); });
  txt_search.onEnter = [this] { TileOf(*chosen_).SetFocus(); };
  Timer1.onTick = [this] { Blink(); };

  for (TextField* result :
       {&txt_number, &txt_symbol, &txt_name, &txt_weight, &txt_series, &txt_place, &txt_density,
        &txt_melting, &txt_boiling, &txt_configuration, &txt_electronegativity, &txt_crystal}) {
    result->MakeFreeText();
    PassesFocusOn({result});
  }
  PrintsWith(btn_print);
  HelpsWith(btn_help);
  ExitsWith(btn_exit);
}

Layout PERIODIC::Arrangement() {
  Layout above = Row({Tiles(1, 3, 1, 2), Stretch(), Legend(), Stretch(), picture_, Stretch(),
                      Tiles(1, 3, 13, 18)});
  Layout chart = Cells({Row({std::move(above)}), Row({Tiles(4, 9, 1, 18)})});
  return Column({Row({Form({txt_search}), lbl_missing, Stretch()}),
                 Row({Stretch(), std::move(chart), Stretch()}), Rule(),
                 Row({Form({txt_number, txt_symbol, txt_name, txt_weight, txt_series, txt_place}),
                      Form({txt_density, txt_melting, txt_boiling, txt_configuration,
                            txt_electronegativity, txt_crystal})}),
                 Row({Stretch(), btn_print, btn_help, btn_exit})});
}

Option& PERIODIC::TileOf(const Element& element) const {
  return *tiles_[static_cast<std::size_t>(element.number - 1)];
}

Layout PERIODIC::CellAt(int row, int column) {
  if (row == 6 && column == 3) return lanthanides_;
  if (row == 7 && column == 3) return actinides_;
  for (const Element& element : elements_)
    if (const ChartPlace place = PlaceOf(element.number);
        place.row == row && place.column == column)
      return TileOf(element);
  return Stretch();
}

Layout PERIODIC::Tiles(int firstRow, int lastRow, int firstColumn, int lastColumn) {
  constexpr int lanthanides = 8;  // row that stands apart
  std::vector<Layout> rows;
  for (int row = firstRow; row <= lastRow; ++row) {
    if (row == lanthanides) rows.push_back(Row({gap_}));
    std::vector<Layout> cells;
    for (int column = firstColumn; column <= lastColumn; ++column)
      cells.push_back(CellAt(row, column));
    rows.push_back(Row(std::move(cells)));
  }
  return Cells(std::move(rows));
}

Layout PERIODIC::Legend() {
  constexpr std::size_t lines = 4;
  std::vector<Layout> rows;
  for (std::size_t line = 0; line < lines; ++line) {
    std::vector<Layout> cells;
    for (std::size_t at = line; at < legend_.size(); at += lines) cells.emplace_back(*legend_[at]);
    rows.push_back(Row(std::move(cells)));
  }
  return Cells(std::move(rows));
}

void PERIODIC::Load() {
  CalculatorWindow::Load();
  for (std::size_t i = 0; i < legend_.size(); ++i)
    legend_[i]->SetBack(Color::Rgb(AllSeries()[i].rgb));
  Choose(elements_.front());
}

/// Finds as the person types; what was found blinks, so that the eye does too.
void PERIODIC::Find() {
  const Element* found = FindElement(elements_, txt_search.Text());
  lbl_missing.SetVisible(found == nullptr && !txt_search.Text().empty());
  if (found == nullptr || found == chosen_) return;
  TileOf(*found).TurnOn();
  blinks_ = kBlinks;
  Timer1.SetEnabled(true);
}

void PERIODIC::Choose(const Element& element) {
  if (chosen_ != nullptr) MarkChosen(false);
  chosen_ = &element;
  blinks_ = 0;
  Timer1.SetEnabled(false);
  MarkChosen(true);
  if (FindElement(elements_, txt_search.Text()) != chosen_) {
    txt_search.Clear();
    lbl_missing.Hide();
  }
  ShowElement();
}

void PERIODIC::ShowElement() {
  const Element& element = *chosen_;
  const bool metric = IsMetric();
  picture_.SetCaption("Tile of the chosen element: " + element.name);
  picture_.Draw(LargeTile(element));
  txt_number.SetText(std::to_string(element.number));
  txt_symbol.SetText(element.symbol);
  txt_name.SetText(element.name);
  txt_weight.SetText(element.weight);
  txt_series.SetText(element.series->name);
  txt_place.SetText(Place(element));
  txt_density.SetText(Density(element, metric));
  txt_melting.SetText(Melting(element, metric));
  txt_boiling.SetText(Temperature(element.boiling, metric) +
                      (element.Sublimes() ? ", sublimes" : ""));
  txt_configuration.SetText(element.configuration);
  txt_electronegativity.SetText(OrUnknown(element.electronegativity));
  txt_crystal.SetText(OrUnknown(element.crystal));
}

void PERIODIC::Blink() {
  --blinks_;
  MarkChosen(blinks_ % 2 == 0);
  if (blinks_ <= 0) Timer1.SetEnabled(false);
}

void PERIODIC::MarkChosen(bool marked) { TileOf(*chosen_).ShowFace(Tile(*chosen_, marked)); }

}  // namespace korvane
