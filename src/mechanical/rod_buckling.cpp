#include "mechanical/rod_buckling.h"

#include <array>
#include <cstdint>
#include <optional>

namespace korvane {
namespace {

constexpr double kPi = 3.14159265359;

/// Where a cylinder is held, and what holds the end of its rod.
enum class Held : std::uint8_t { AtFront, AtRear, FrontTrunnion, MiddleTrunnion, RearClevis };
enum class RodEnd : std::uint8_t { Rigid, Pivoted, Free };

struct Mounting {
  const char* factor;
  Held held;
  RodEnd rodEnd;
  const char* description;
};

constexpr std::array<Mounting, 9> kMountings = {{
    {"0.5", Held::AtFront, RodEnd::Rigid, "Fixed at the front; rod end fixed and guided"},
    {"0.7", Held::AtFront, RodEnd::Pivoted, "Fixed at the front; rod end pivoted and guided"},
    {"1.0", Held::AtRear, RodEnd::Rigid, "Fixed at the rear; rod end fixed and guided"},
    {"1.0", Held::FrontTrunnion, RodEnd::Pivoted, "Front trunnion; rod end pivoted and guided"},
    {"1.5", Held::AtRear, RodEnd::Pivoted, "Fixed at the rear; rod end pivoted and guided"},
    {"1.5", Held::MiddleTrunnion, RodEnd::Pivoted, "Middle trunnion; rod end pivoted and guided"},
    {"2.0", Held::AtFront, RodEnd::Free, "Fixed at the front; rod end free"},
    {"2.0", Held::RearClevis, RodEnd::Pivoted, "Rear clevis; rod end pivoted and guided"},
    {"3.0", Held::AtRear, RodEnd::Free, "Fixed at the rear; rod end free"},
}};

constexpr int kCount = static_cast<int>(kMountings.size());
/// The first of those whose factor the window opens with.
constexpr int kFirstChosen = 2;

/// A cylinder upright with its rod out, in a frame.
class MountingSketch {
 public:
  MountingSketch(const Mounting& mounting, Ink frame) {
    constexpr double edge = 2;
    Add({{edge, edge},
         {kWidth - edge, edge},
         {kWidth - edge, kHeight - edge},
         {edge, kHeight - edge},
         {edge, edge}},
        {}, 3, frame);
    Box(kCenter - 2.5, kLoad, kCenter + 2.5, kFront);
    Box(kCenter - 10, kFront, kCenter + 10, kRear);
    End(mounting.rodEnd);
    Hold(mounting.held);
    drawing_.shapes.emplace_back(Letters{{kCenter, kHeight - 14}, mounting.factor, 9, Ink::Line});
  }

  Drawing Take() { return std::move(drawing_); }

 private:
  static constexpr double kWidth = 68, kHeight = 178, kCenter = kWidth / 2;
  static constexpr double kLoad = 40, kFront = 84, kRear = 136;  // along the rod and the barrel

  void Add(std::vector<Point> points, std::optional<Ink> fill, double width = 1,
           Ink ink = Ink::Line) {
    drawing_.shapes.emplace_back(Path{std::move(points), ink, fill, width});
  }
  void Box(double left, double top, double right, double bottom) {
    AddBox(drawing_, {left, top}, {right, bottom});
  }
  void Pin(double y) { Add(Arc({kCenter, y}, 4, 0, 360), Ink::Paper); }

  /// The ground that holds it, hatched below its edge.
  void Ground(double left, double right, double y) {
    Add({{left, y}, {right, y}}, {}, 1.5);
    for (double x = left + 4; x <= right; x += 4) Add({{x, y}, {x - 4, y + 5}}, {}, 0.75);
  }

  void End(RodEnd end) {
    if (end == RodEnd::Free) {
      AddArrow(drawing_, {kCenter, 12}, {kCenter, kLoad - 2});
      return;
    }
    AddArrow(drawing_, {kCenter, 8}, {kCenter, 22});
    Box(kCenter - 9, 23, kCenter + 9, kLoad);
    for (const double side : {-1.0, 1.0}) {  // guides
      const double x = kCenter + 11 * side;
      Add({{x, 18}, {x, kLoad + 5}}, {}, 1.5);
      for (double y = 22; y <= kLoad + 5; y += 4) Add({{x, y}, {x + 5 * side, y - 4}}, {}, 0.75);
    }
    if (end == RodEnd::Pivoted) Pin(kLoad + 3);
  }

  void Hold(Held held) {
    switch (held) {
      case Held::AtFront: Flange(kFront); break;
      case Held::AtRear:
        Box(kCenter - 20, kRear - 4, kCenter + 20, kRear);
        Ground(kCenter - 24, kCenter + 24, kRear);
        break;
      case Held::FrontTrunnion: Trunnion(kFront + 6); break;
      case Held::MiddleTrunnion: Trunnion((kFront + kRear) / 2); break;
      case Held::RearClevis:
        Pin(kRear + 4);
        Ground(kCenter - 14, kCenter + 14, kRear + 9);
        break;
    }
  }
  void Flange(double y) {
    Box(kCenter - 20, y, kCenter + 20, y + 4);
    Ground(kCenter - 26, kCenter - 11, y + 4);
    Ground(kCenter + 11, kCenter + 26, y + 4);
  }
  void Trunnion(double y) {
    for (const double side : {-1.0, 1.0}) {
      const double x = kCenter + 15 * side;
      Add(Arc({x, y}, 4, 0, 360), Ink::Paper);
      Ground(x - 7, x + 7, y + 5);
    }
  }

  Drawing drawing_{kWidth, kHeight, {}};
};

const Mounting& MountingOf(int index) { return kMountings[static_cast<std::size_t>(index)]; }

}  // namespace

Rod_Buckling_Calc::Rod_Buckling_Calc(Session& session)
    : CalculatorWindow(session, {.name = "Rod_Buckling_Calc",
                                 .title = " Rod Buckling Calculation",
                                 .helpPage = "mechanical_rod_buckling_calculation.html"}),
      btn_geometry(*this, "btn_geometry", 0, kCount - 1, ""),
      file{"ROD BUCKLING",
           "rod_buckling.dta",
           "Load data...",
           {{"Button", [this] { return SignedText(chosen_) + ' '; },
             [this](const std::string& text) { Highlight(ToInteger16(Strict(text))); }},
            TextRecord("Geometry Factor", txt_GF),
            TextRecord("Rod Diameter", txt_dia),
            TextRecord("Stroke Length", txt_length),
            TextRecord("Elastic Modulus", txt_E),
            TextRecord("Safety Factor", txt_SF)},
           [this] { Calculate(); }} {
  for (int i = 0; i < kCount; ++i) {
    btn_geometry(i).SetCaption(std::string(MountingOf(i).description) + " (" +
                               MountingOf(i).factor + ')');
    btn_geometry(i).onClick = [this, i] { Choose(i); };
  }
  btn_calculate.onClick = [this] { Calculate(); };
  PassesFocusOn({&txt_buckling_load, &txt_safe_load});

  SetDefault(btn_calculate);
  LoadsWith(btn_load, file);
  SavesWith(btn_save, file);
  PrintsWith(btn_print);
  HelpsWith(btn_help);
  ExitsWith(btn_exit);
}

Layout Rod_Buckling_Calc::Arrangement() {
  std::vector<Layout> buttons;
  buttons.reserve(kCount);
  for (int i = 0; i < kCount; ++i) buttons.emplace_back(btn_geometry(i));
  return Column(
      {Row({Column({Form({txt_dia, txt_length, txt_E, txt_SF, txt_GF}), Rule(),
                    Form({txt_buckling_load, txt_safe_load}), Stretch()}),
            Column({Box(geometry_, {Row(std::move(buttons))}), Stretch()})}),
       Row({btn_calculate, Stretch(), btn_load, btn_save, btn_print, btn_help, btn_exit})});
}

void Rod_Buckling_Calc::Load() {
  CalculatorWindow::Load();
  Highlight(kFirstChosen);
  Calculate();
}

void Rod_Buckling_Calc::Choose(int mounting) {
  Highlight(mounting);
  txt_GF.SetText(MountingOf(mounting).factor);
  Calculate();
}

void Rod_Buckling_Calc::Highlight(int mounting) {
  btn_geometry(mounting);  // fails out of bounds
  chosen_ = mounting;
  for (int i = 0; i < kCount; ++i)
    btn_geometry(i).ShowFace(
        MountingSketch(MountingOf(i), i == mounting ? Ink::Red : Ink::Line).Take());
}

// psi and in give lbf, MPa and mm give N: the formula needs no factor.
void Rod_Buckling_Calc::Calculate() {
  const Single d = ToNumber(txt_dia), L = ToNumber(txt_length), E = ToNumber(txt_E);
  const Single GF = ToNumber(txt_GF);
  if (GF * L == 0) return;
  const Double I = kPi * Power(d, 4) / 64;
  const Double critical = Power(kPi, 2) * E * I / Power(GF * L, 2);
  txt_buckling_load.Show(critical, "0.000");
  txt_safe_load.Show(critical / ToNumber(txt_SF), "0.000");
}

}  // namespace korvane
