#include "materials/sched40.h"

#include <algorithm>
#include <iterator>

#include "frame/mask.h"
#include "frame/session.h"
#include "materials/digits.h"

namespace korvane {
namespace {

constexpr const char* kSchedule = "40";
constexpr int kLargest = 24;         // NPS in the chart
constexpr const char* kDrawn = "4";  // the size in the picture

struct Head {
  const char* name;
  const char* us;
  const char* metric;
};

constexpr Head kHeads[] = {
    {"NPS", "", ""},         {"DN", "", ""},
    {"OD", "in", "mm"},      {"ID", "in", "mm"},
    {"Wall, t", "in", "mm"}, {"Flow Area", "in2", "mm2"},
    {"Metal", "in2", "mm2"}, {"Weight", "lb/ft", "kg/m"},
    {"I", "in4", "mm4"},     {"S", "in3", "mm3"},
};

constexpr const char* kNotes[] = {
    "Steel pipe, ASME B36.10M",  "Metal: area of the metal in section",
    "Weight: plain ends, empty", "I: moment of inertia",
    "S: section modulus",
};

/// Pipe of the schedule, up to the largest size.
std::vector<Pipe> SizesOf(const std::vector<Pipe>& all) {
  const PipeStandard* steel = &PipeStandards().front();
  std::vector<Pipe> sizes;
  std::ranges::copy_if(all, std::back_inserter(sizes), [steel](const Pipe& pipe) {
    return pipe.standard == steel && pipe.HasWall(kSchedule) && pipe.inches.od <= kLargest;
  });
  return sizes;
}

}  // namespace

// The file is read here, since the arrangement follows from it.
Sched40::Sched40(Session& session)
    : CalculatorWindow(session, {.name = "Sched40",
                                 .title = "Schedule 40 Pipe Data",
                                 .helpPage = "materials_schedule_40_pipe_data.html"}),
      pipes_(SizesOf(ParsePipes(session.ReadTable(kPipeFile)))),
      picture_(*this, "",
               "The section of a pipe: outside diameter OD, inside diameter ID, wall t") {
  const auto drawn = std::ranges::find(pipes_, kDrawn, &Pipe::size);
  if (drawn != pipes_.end()) picture_.Draw(DrawnToScale(drawn->inches));
  SetDefault(btn_exit);
  PrintsWith(btn_print);
  HelpsWith(btn_help);
  ExitsWith(btn_exit);
}

Layout Sched40::Arrangement() {
  std::vector<Layout> rows = Heads();
  for (const Pipe& pipe : pipes_) rows.push_back(RowOf(pipe));
  std::vector<Layout> beside = {picture_};
  for (const char* note : kNotes) beside.emplace_back(Text(note));
  beside.push_back(Stretch());
  return Column({Row({Cells(std::move(rows)), Column(std::move(beside))}),
                 Row({Stretch(), btn_print, btn_help, btn_exit})});
}

Label& Sched40::Text(const UnitText& text) {
  return *texts_.emplace_back(std::make_unique<Label>(*this, "", text));
}

/// Numbers stand at the right of their column, the columns well apart.
Layout Sched40::Cell(const UnitText& text, bool heading) {
  constexpr const char* gap = "    ";
  Label& label = Text({gap + text.us, gap + text.metric});
  if (heading) label.MakeHeading();
  return Row({Stretch(), label});
}

std::vector<Layout> Sched40::Heads() {
  std::vector<Layout> names, units;
  for (const Head& head : kHeads) {
    names.push_back(Cell(head.name, true));
    units.push_back(*head.us == 0 ? Stretch() : Cell({head.us, head.metric}));
  }
  return {Row(std::move(names)), Row(std::move(units))};
}

Layout Sched40::RowOf(const Pipe& pipe) {
  const bool metric = IsMetric();
  const PipeSection& section = pipe.Section(metric);
  const auto length = [metric](Double value, Mask millimeters) {
    return Format(value, metric ? millimeters : Mask("0.000"));
  };
  const std::string texts[] = {
      pipe.size,
      pipe.dn,
      length(section.od, "0.0"),
      length(section.Id(), "0.00"),
      length(section.wall, "0.00"),
      FourDigits(section.FlowArea()),
      FourDigits(section.MetalArea()),
      FourDigits(pipe.Weight(metric)),
      FourDigits(section.MomentOfInertia()),
      FourDigits(section.SectionModulus()),
  };
  std::vector<Layout> cells;
  for (const std::string& text : texts) cells.push_back(Cell(text));
  return Row(std::move(cells));
}

}  // namespace korvane
