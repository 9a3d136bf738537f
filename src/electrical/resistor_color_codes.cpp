#include "electrical/resistor_color_codes.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace korvane {
namespace {

constexpr double kNone = -1;  // a colour that has no such meaning

struct Band {
  const char* name;
  std::uint32_t rgb;
  const char* digit;      // none: ""
  double multiplier;      // none: kNone
  const char* tolerance;  // none: ""
};

constexpr std::array<Band, 13> kBands = {{
    {"Black", 0x101010, "0", 1, ""},
    {"Brown", 0x7B3F00, "1", 10, "1%"},
    {"Red", 0xD81E1E, "2", 100, "2%"},
    {"Orange", 0xFF8000, "3", 1000, "3%"},
    {"Yellow", 0xFFE500, "4", 10000, "4%"},
    {"Green", 0x1A9641, "5", 100000, ""},
    {"Blue", 0x1E50D2, "6", 1000000, ""},
    {"Violet", 0x8F2BD0, "7", 10000000, ""},
    {"Gray", 0x7F7F7F, "8", 100000000, ""},
    {"White", 0xFFFFFF, "9", kNone, ""},
    {"Gold", 0xB8860B, "", 0.1, "5%"},
    {"Silver", 0xC4C8CC, "", 0.01, "10%"},
    {"None", 0, "", kNone, "20%"},
}};

bool HasDigit(const Band& band) { return *band.digit != '\0'; }
bool HasMultiplier(const Band& band) { return band.multiplier != kNone; }
bool HasTolerance(const Band& band) { return *band.tolerance != '\0'; }

std::vector<std::string> BandsThat(bool (*has)(const Band&)) {
  std::vector<std::string> names;
  for (const Band& band : kBands)
    if (has(band)) names.emplace_back(band.name);
  return names;
}

const Band& BandOf(const Combo& combo) {
  for (const Band& band : kBands)
    if (combo.Text() == band.name) return band;
  return kBands.back();
}

std::string Left(std::string text, std::size_t width) {
  text.resize(std::max(width, text.size()), ' ');
  return text;
}

std::string Right(const std::string& text, std::size_t width) {
  return std::string(width - std::min(width, text.size()), ' ') + text;
}

/// The multiplier with all its places.
std::string MultiplierOf(const Band& band) {
  if (!HasMultiplier(band)) return "---   ";
  return band.multiplier < 1 ? PlainText(Double(band.multiplier))
                             : Format(band.multiplier, "#,###,###,###");
}

std::string ChartLine(const Band& band) {
  const std::string digit = HasDigit(band) ? std::string("     ") + band.digit : "    ---";
  const std::string tolerance = HasTolerance(band) ? std::string("\u00B1") + band.tolerance : "---";
  // The plus-minus sign takes two bytes.
  const std::size_t toleranceWidth = HasTolerance(band) ? 7 : 6;
  return ' ' + Left(band.name, 7) + '|' + Left(digit, 11) + '|' + Left(digit, 11) + '|' +
         Right(MultiplierOf(band), 13) + "  |   " + Left(tolerance, toleranceWidth);
}

/// A resistor with its bands; "None" leaves its place bare.
Drawing Resistor(const std::array<const Band*, 4>& bands) {
  constexpr std::uint32_t ceramic = 0xE3CFA4;
  constexpr double top = 20, bottom = 70, left = 70, right = 250, bulge = 7, cap = 34;
  Drawing drawing{320, 90, {}};
  for (const double x : {left, right}) {
    const double out = x == left ? 10 : 310;
    drawing.shapes.emplace_back(
        Path{{{x, (top + bottom) / 2}, {out, (top + bottom) / 2}}, Ink::Gray, {}, 3});
  }
  drawing.shapes.emplace_back(Path{{{left + 8, top - bulge},
                                    {left + cap - 8, top - bulge},
                                    {left + cap, top},
                                    {right - cap, top},
                                    {right - cap + 8, top - bulge},
                                    {right - 8, top - bulge},
                                    {right, top + 2},
                                    {right, bottom - 2},
                                    {right - 8, bottom + bulge},
                                    {right - cap + 8, bottom + bulge},
                                    {right - cap, bottom},
                                    {left + cap, bottom},
                                    {left + cap - 8, bottom + bulge},
                                    {left + 8, bottom + bulge},
                                    {left, bottom - 2},
                                    {left, top + 2},
                                    {left + 8, top - bulge}},
                                   Ink::Line,
                                   {},
                                   1,
                                   Color::Rgb(ceramic)});
  constexpr std::array<double, 4> places = {left + 10, left + 44, left + 74, right - 24};
  constexpr double width = 14;
  for (std::size_t i = 0; i < places.size(); ++i) {
    if (bands[i] == &kBands.back()) continue;
    const bool onCap = i == 0 || i + 1 == places.size();
    const double above = onCap ? top - bulge : top, below = onCap ? bottom + bulge : bottom;
    const double x = places[i];
    drawing.shapes.emplace_back(
        Path{{{x, above}, {x + width, above}, {x + width, below}, {x, below}, {x, above}},
             Ink::Line,
             {},
             0.5,
             Color::Rgb(bands[i]->rgb)});
  }
  return drawing;
}

}  // namespace

Resistor_Color_Codes::Resistor_Color_Codes(Session& session)
    : CalculatorWindow(session, {.name = "Resistor_Color_Codes",
                                 .title = " Resistor Color Codes",
                                 .helpPage = "electrical_resistor_color_codes.html"}),
      picture_(*this, "", "Resistor") {
  List1.MakeFixedPitch();
  List1.ShowAll();
  PassesFocusOn({&txt_first, &txt_second, &txt_multiplier, &txt_tolerance, &txt_resistance});

  PrintsWith(btn_print);
  HelpsWith(btn_help);
  ExitsWith(btn_exit);
}

Layout Resistor_Color_Codes::Arrangement() {
  return Column(
      {Row({Column({picture_, Form({Combo1, Combo2, Combo3, Combo4}), Rule(),
                    Form({txt_first, txt_second, txt_multiplier, txt_tolerance, txt_resistance}),
                    Stretch()}),
            Column({Box(chart_, {List1}), Stretch()})}),
       Row({Stretch(), btn_print, btn_help, btn_exit})});
}

void Resistor_Color_Codes::Load() {
  CalculatorWindow::Load();
  Combo1.SetItems(BandsThat(HasDigit));
  Combo2.SetItems(BandsThat(HasDigit));
  Combo3.SetItems(BandsThat(HasMultiplier));
  Combo4.SetItems(BandsThat(HasTolerance));
  for (const Band& band : kBands) List1.AddItem(ChartLine(band));
  Combo1.SetText("Yellow");
  Combo2.SetText("Violet");
  Combo3.SetText("Red");
  Combo4.SetText("Gold");
  Decode();
  for (Combo* combo : {&Combo1, &Combo2, &Combo3, &Combo4}) combo->onSelect = [this] { Decode(); };
}

void Resistor_Color_Codes::Decode() {
  const Band &first = BandOf(Combo1), &second = BandOf(Combo2), &third = BandOf(Combo3),
             &fourth = BandOf(Combo4);
  const Double multiplier = third.multiplier;
  txt_first.SetText(first.digit);
  txt_second.SetText(second.digit);
  txt_multiplier.Show(multiplier, "#,###,###,###");
  txt_tolerance.SetText(fourth.tolerance);
  const Double resistance = (ToNumber(first.digit) * 10 + ToNumber(second.digit)) * multiplier;
  txt_resistance.Show(resistance,
                      multiplier <= 0.1 ? Mask("#,###,###,###.0") : Mask("#,###,###,###"));
  picture_.SetCaption(std::string("Resistor with the bands ") + first.name + ", " + second.name +
                      ", " + third.name + " and " + fourth.name);
  picture_.Draw(Resistor({&first, &second, &third, &fourth}));
}

}  // namespace korvane
