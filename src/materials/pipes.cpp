#include "materials/pipes.h"

#include <algorithm>
#include <numbers>

#include "frame/delimited.h"

namespace korvane {
namespace {

constexpr double kPi = std::numbers::pi;

// ASME B36.10M and B36.19M print the weight as a factor times (D - t) t: of steel of 0.2833 lb/in3,
// 7850 kg/m3.
constexpr double kSteelPounds = 10.69;
constexpr double kSteelKilograms = 0.0246615;
// Copper C12200: 0.323 lb/in3, 8.94 g/cm3.
constexpr double kCopperPounds = 12 * kPi * 0.323;
constexpr double kCopperKilograms = kPi * 0.00894;

// Water at 60 F (15.6 C).
constexpr double kWaterPounds = 62.37 / 144;  // a foot of 1 in2
constexpr double kWaterKilograms = 0.000999;  // a meter of 1 mm2

constexpr PipeStandard kStandards[] = {
    {"steel", "Steel Pipe, ASME B36.10M", "Nominal Size (NPS)", "Schedule", "4", "STD",
     kSteelPounds, kSteelKilograms},
    {"stainless", "Stainless Steel Pipe, ASME B36.19M", "Nominal Size (NPS)", "Schedule", "4",
     "40S", kSteelPounds, kSteelKilograms},
    {"copper", "Copper Tube, ASTM B88 and B306", "Standard Size (in)", "Type", "1", "L",
     kCopperPounds, kCopperKilograms},
    {"tube", "Steel Tube by Wall Gauge", "Outside Diameter (in)", "Wall Gauge (BWG)", "1", "14",
     kSteelPounds, kSteelKilograms},
};

const PipeStandard& StandardOf(std::string_view key) {
  const auto* found = std::ranges::find_if(
      kStandards, [key](const PipeStandard& standard) { return standard.key == key; });
  if (found == std::end(kStandards)) failures::InvalidCall();
  return *found;
}

PipeSection ReadSection(DelimitedReader& reader) {
  PipeSection section;
  section.od = reader.Number();
  section.wall = reader.Number();
  if (!(section.wall > 0) || !(section.Id() > 0)) failures::InvalidCall();
  return section;
}

Pipe ReadPipe(DelimitedReader& reader) {
  Pipe pipe;
  pipe.standard = &StandardOf(reader.Text());
  pipe.size = reader.Text();
  pipe.dn = reader.Text();
  pipe.wall = reader.Text();
  pipe.inches = ReadSection(reader);
  pipe.millimeters = ReadSection(reader);
  return pipe;
}

}  // namespace

std::span<const PipeStandard> PipeStandards() { return kStandards; }

Double PipeSection::FlowArea() const { return kPi / 4 * Power(Id(), 2); }

Double PipeSection::MetalArea() const { return kPi * (od - wall) * wall; }

Double PipeSection::Girth() const { return kPi * od; }

Double PipeSection::MomentOfInertia() const { return kPi / 64 * (Power(od, 4) - Power(Id(), 4)); }

Double PipeSection::SectionModulus() const { return 2 * MomentOfInertia() / od; }

Double PipeSection::RadiusOfGyration() const { return Sqrt(Power(od, 2) + Power(Id(), 2)) / 4; }

bool Pipe::HasWall(std::string_view name) const {
  constexpr std::string_view comma = ", ";
  for (std::string_view names = wall; !names.empty();) {
    const auto end = std::min(names.find(comma), names.size());
    if (names.substr(0, end) == name) return true;
    names.remove_prefix(std::min(end + comma.size(), names.size()));
  }
  return false;
}

Double Pipe::Weight(bool metric) const {
  const PipeSection& section = Section(metric);
  return (metric ? standard->kilogramsPerMeter : standard->poundsPerFoot) *
         (section.od - section.wall) * section.wall;
}

Double Pipe::FullWeight(bool metric) const {
  return Weight(metric) + (metric ? kWaterKilograms : kWaterPounds) * Section(metric).FlowArea();
}

Double Pipe::OutsideSurface(bool metric) const {
  return Section(metric).Girth() / (metric ? 1000 : 12);
}

std::vector<Pipe> ParsePipes(std::string_view bytes) {
  DelimitedReader reader(bytes);
  reader.Line();
  std::vector<Pipe> pipes;
  while (!reader.AtEnd()) pipes.push_back(ReadPipe(reader));
  for (const PipeStandard& standard : kStandards)
    if (std::ranges::find(pipes, &standard, &Pipe::standard) == pipes.end())
      failures::InputPastEnd();
  return pipes;
}

Drawing DrawnToScale(const PipeSection& section) {
  constexpr double outer = 110;
  const Point middle{142, 130};
  Drawing drawing{284, 272, {}};
  const double inner = outer * section.Id().Value() / section.od.Value();
  const std::vector<Point> outside = Arc(middle, outer, 0, 360), bore = Arc(middle, inner, 0, 360);
  std::vector<Point> metal = outside;
  metal.insert(metal.end(), bore.rbegin(), bore.rend());
  drawing.shapes.emplace_back(Path{std::move(metal), Ink::Body, Ink::Body, 0.1});
  drawing.shapes.emplace_back(Path{outside, Ink::Line, {}, 1});
  drawing.shapes.emplace_back(Path{bore, Ink::Line, {}, 1});

  const auto measure = [&drawing, middle](double half, double y, const char* letters) {
    constexpr double gap = 14;
    AddArrow(drawing, {middle.x - gap, y}, {middle.x - half, y}, Ink::Line);
    AddArrow(drawing, {middle.x + gap, y}, {middle.x + half, y}, Ink::Line);
    drawing.shapes.emplace_back(Letters{{middle.x, y}, letters, 11, Ink::Line});
  };
  measure(inner, middle.y, "ID");
  const double below = middle.y + outer + 20;
  for (const double x : {middle.x - outer, middle.x + outer})
    drawing.shapes.emplace_back(Path{{{x, middle.y}, {x, below + 6}}, Ink::Line, {}, 0.5});
  measure(outer, below, "OD");

  // The wall may be thinner than an arrow: both point at it from beside it.
  const auto along = [middle](double radius) {
    constexpr double slant = std::numbers::sqrt2 / 2;
    return Point{middle.x + radius * slant, middle.y - radius * slant};
  };
  AddArrow(drawing, along(outer + 26), along(outer));
  AddArrow(drawing, along(std::max(inner - 22, 0.0)), along(inner));
  drawing.shapes.emplace_back(Letters{along(outer + 37), "t", 11, Ink::Accent});
  return drawing;
}

}  // namespace korvane
