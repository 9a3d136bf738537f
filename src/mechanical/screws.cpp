#include "mechanical/screws.h"

#include <algorithm>
#include <iterator>

#include "frame/names.h"
#include "frame/session.h"

namespace korvane {
namespace {

constexpr double kMillimeters = 25.4;  // in an inch
constexpr const char* kNone = "none";

struct Series {
  const char* label;
  bool metric;
  const char* name;
};

constexpr Series kSeries[] = {
    {"Unified Coarse, UNC", false, "UNC"},
    {"Unified Fine, UNF", false, "UNF"},
    {"Unified Extra Fine, UNEF", false, "UNEF"},
    {"Metric Coarse", true, "coarse"},
    {"Metric Fine", true, "fine"},
};
constexpr const char* kAllSeries = "All Series";

constexpr ThreadClass kClasses[] = {ThreadClass::Loose, ThreadClass::Usual, ThreadClass::Close};

/// The series of one standard, then those of the other.
std::vector<std::string> SeriesLabels(bool metricFirst) {
  std::vector<std::string> labels{kAllSeries};
  for (const bool metric : {metricFirst, !metricFirst})
    for (const Series& series : kSeries)
      if (series.metric == metric) labels.emplace_back(series.label);
  return labels;
}

/// With three digits that count at least, from the smallest size on.
std::string AreaText(Double area, bool squareMillimeters) {
  if (squareMillimeters) return Format(area, area < 10 ? Mask("0.00") : Mask("0.0"));
  return Format(area, area < 0.1 ? Mask("0.00000") : Mask("0.0000"));
}

UnitText CaptionOf(const std::string& what, int percent) {
  return what + ", " + std::to_string(percent) + " % Thread";
}

}  // namespace

screws::TapDrill::TapDrill(Window& window, int part)
    : percent(part),
      heading(window, "", std::to_string(part) + " % Thread"),
      hole(window, "txt_hole_" + std::to_string(part), CaptionOf("Hole", part)),
      drill(window, "txt_drill_" + std::to_string(part), CaptionOf("Nearest Drill", part)),
      diameter(window, "txt_drill_diameter_" + std::to_string(part),
               CaptionOf("Diameter of Drill", part)),
      actual(window, "txt_percent_" + std::to_string(part),
             CaptionOf("Thread by Drill (%)", part)) {}

screws::screws(Session& session)
    : CalculatorWindow(session, {.name = "screws",
                                 .title = "Screw Threads",
                                 .helpPage = "mechanical_screw_threads.html"}),
      picture_(*this, "",
               "The form of the thread, 60 degrees: pitch P, major diameter D, pitch diameter D2, "
               "minor diameter D1",
               ThreadForm()) {
  cmb_series.SetItems(SeriesLabels(IsMetric()));
  lbl_thread.MakeHeading();
  for (Label* heading : {&external_, &internal_, &full_.heading, &light_.heading})
    heading->MakeHeading();
  txt_search.MakeFreeText();

  cmb_series.onSelect = [this] { ListThreads(); };
  txt_search.onChange = [this] { FindThread(); };
  txt_search.onEnter = [] {};
  SelectsOnFocus({&txt_search});
  lst_threads.onSelect = [this] { ChooseThread(); };
  cmb_class.onSelect = [this] { ChooseClass(); };
  opt_inches.onClick = opt_millimeters.onClick = [this] { ShowThread(); };
  const auto results = Results();
  PassesFocusOn(results);
  CopiesWith(btn_copy, {results.begin(), results.end()}, &lbl_thread);

  PrintsWith(btn_print);
  HelpsWith(btn_help);
  ExitsWith(btn_exit);
}

Layout screws::Arrangement() {
  const auto tapRow = [this](Label& caption, TextField TapDrill::*field) {
    return Row({caption, full_.*field, light_.*field});
  };
  return Column(
      {Row({Column({Form({cmb_series, txt_search}), lst_threads, Form({cmb_class}),
                    Box(units_, {Row({opt_inches, opt_millimeters, Stretch()})})}),
            Column(
                {lbl_thread,
                 Form({txt_pitch, txt_threads_per_inch, txt_stress_area, txt_allowance}),
                 Box(limits_, {Cells({Row({Stretch(), external_, Stretch(), internal_, Stretch()}),
                                      Row({Stretch(), external_max_, external_min_, internal_min_,
                                           internal_max_}),
                                      Row({major_, txt_external_major_max, txt_external_major_min,
                                           txt_internal_major_min, Stretch()}),
                                      Row({pitch_, txt_external_pitch_max, txt_external_pitch_min,
                                           txt_internal_pitch_min, txt_internal_pitch_max}),
                                      Row({minor_, txt_external_minor_max, Stretch(),
                                           txt_internal_minor_min, txt_internal_minor_max})})}),
                 Box(tap_, {Cells({Row({Stretch(), full_.heading, light_.heading}),
                                   tapRow(hole_, &TapDrill::hole), tapRow(drill_, &TapDrill::drill),
                                   tapRow(diameter_, &TapDrill::diameter),
                                   tapRow(actual_, &TapDrill::actual)})}),
                 Stretch()}),
            Column({picture_,
                    Box(clearance_, {Form({txt_close_hole, txt_normal_hole, txt_loose_hole})}),
                    Box(hex_,
                        {Form({txt_head, txt_head_height, txt_nut, txt_nut_thickness, txt_key})}),
                    Stretch()})}),
       Row({btn_copy, Stretch(), btn_print, btn_help, btn_exit})});
}

std::vector<TextField*> screws::Results() {
  return {&txt_pitch,
          &txt_threads_per_inch,
          &txt_stress_area,
          &txt_allowance,
          &txt_external_major_max,
          &txt_external_major_min,
          &txt_internal_major_min,
          &txt_external_pitch_max,
          &txt_external_pitch_min,
          &txt_internal_pitch_min,
          &txt_internal_pitch_max,
          &txt_external_minor_max,
          &txt_internal_minor_min,
          &txt_internal_minor_max,
          &full_.hole,
          &light_.hole,
          &full_.drill,
          &light_.drill,
          &full_.diameter,
          &light_.diameter,
          &full_.actual,
          &light_.actual,
          &txt_close_hole,
          &txt_normal_hole,
          &txt_loose_hole,
          &txt_head,
          &txt_head_height,
          &txt_nut,
          &txt_nut_thickness,
          &txt_key};
}

void screws::Load() {
  CalculatorWindow::Load();
  Session& session = GetSession();
  drills_ = ParseDrills(session.ReadTable(kDrillFile));
  session.DataFileName = kThreadFile;
  threads_ = ParseThreads(session.ReadTable(kThreadFile));
  std::stable_partition(
      threads_.begin(), threads_.end(),
      [metric = IsMetric()](const Thread& thread) { return thread.metric == metric; });
  const auto usual = std::ranges::find(threads_, IsMetric() ? "M10 x 1.5" : "1/4-20 UNC",
                                       [](const Thread& thread) { return thread.Name(); });
  chosen_ = usual == threads_.end() ? &threads_.front() : &*usual;
  (IsMetric() ? opt_millimeters : opt_inches).TurnOn();
  cmb_series.Select(0);
}

// ---- Choices ----

/// Those of the series. The thread that was chosen stays if it is among them.
void screws::ListThreads() {
  const auto* const series = std::ranges::find_if(
      kSeries, [this](const Series& one) { return one.label == cmb_series.Text(); });
  listed_.clear();
  std::vector<std::string> items;
  for (const Thread& thread : threads_) {
    if (series != std::end(kSeries) &&
        (thread.metric != series->metric || thread.series != series->name))
      continue;
    listed_.push_back(&thread);
    items.push_back(thread.Name());
  }
  const Thread* const chosen = chosen_;
  lst_threads.SetItems(std::move(items));
  const auto found = std::ranges::find(listed_, chosen);
  lst_threads.Select(found == listed_.end() ? 0 : static_cast<int>(found - listed_.begin()));
}

void screws::ChooseThread() {
  if (lst_threads.Index() < 0) return;
  const bool metric = chosen_->metric;
  chosen_ = listed_[static_cast<std::size_t>(lst_threads.Index())];
  ListClasses();
  // A thread of the other standard is shown in its own unit, until the person wants another.
  if (chosen_->metric != metric) (chosen_->metric ? opt_millimeters : opt_inches).TurnOn();
}

/// The first thread whose name begins so; one whose number ends there goes first, so that 4-4 is
/// not 4-40.
void screws::FindThread() {
  const std::string start = Folded(txt_search.Text());
  if (start.empty()) return;
  int found = -1;
  for (int i = 0; i < static_cast<int>(listed_.size()); ++i) {
    const std::string name = Folded(listed_[static_cast<std::size_t>(i)]->Name());
    if (!name.starts_with(start)) continue;
    const char next = name.size() > start.size() ? name[start.size()] : ' ';
    const bool goesOn = next == '.' || (next >= '0' && next <= '9');
    if (found < 0 || !goesOn) found = i;
    if (!goesOn) break;
  }
  if (found >= 0) lst_threads.Select(found);
}

void screws::ListClasses() {
  classes_.clear();
  std::vector<std::string> items;
  for (const ThreadClass one : kClasses) {
    if (!Chosen().Has(one)) continue;
    classes_.push_back(one);
    items.emplace_back(NameOf(one, Chosen().metric));
  }
  cmb_class.SetItems(std::move(items));
  const ThreadClass wanted = class_;  // outlives what is taken in its place
  auto found = std::ranges::find(classes_, wanted);
  if (found == classes_.end()) found = std::ranges::find(classes_, ThreadClass::Usual);
  cmb_class.Select(static_cast<int>(found - classes_.begin()));
  class_ = wanted;
}

void screws::ChooseClass() {
  class_ = classes_[static_cast<std::size_t>(cmb_class.Index())];
  ShowThread();
}

// ---- Results ----

bool screws::ConvertsUnits() const { return Chosen().metric != opt_millimeters.IsOn(); }

/// In the unit of the standard, shown in the one that is chosen.
void screws::ShowLength(TextField& field, Double length) {
  if (ConvertsUnits()) length = Chosen().metric ? length / kMillimeters : length * kMillimeters;
  opt_millimeters.IsOn() ? field.Show(length, "0.000") : field.Show(length, "0.0000");
}

/// Fractions and drills with their size beside them.
void screws::ShowSize(TextField& field, const NamedSize& size) {
  if (!size.Exists()) {
    field.SetText(kNone);
  } else if (ConvertsUnits()) {
    ShowLength(field, size.size);
  } else if (Recognise(size.name)) {
    field.SetText(size.name);
  } else {
    field.SetText(size.name + " (" + Format(size.size, "0.0000") + ')');
  }
}

void screws::ShowThread() {
  if (chosen_ == nullptr || classes_.empty()) return;
  const Thread& thread = Chosen();
  const bool millimeters = opt_millimeters.IsOn();
  const std::string unit = millimeters ? " (mm)" : " (in)";
  const std::string classes = cmb_class.Text().substr(0, cmb_class.Text().find(','));
  lbl_thread.SetCaption(thread.Name() + ", Class " + classes);
  txt_pitch.CaptionBeside().SetCaption("Pitch, P" + unit);
  txt_stress_area.CaptionBeside().SetCaption(millimeters ? "Tensile Stress Area (mm2)"
                                                         : "Tensile Stress Area (in2)");
  txt_allowance.CaptionBeside().SetCaption("Allowance, External" + unit);
  limits_.SetCaption("Limits of Size" + unit);
  tap_.SetCaption("Tap Drills" + unit);
  clearance_.SetCaption("Clearance Holes" + unit);
  hex_.SetCaption("Hex Sizes" + unit);

  ShowLength(txt_pitch, thread.pitch);
  if (thread.metric)
    txt_threads_per_inch.Show(thread.ThreadsPerInch(), "0.00");
  else
    txt_threads_per_inch.Show(thread.ThreadsPerInch());
  Double area = thread.StressArea();
  constexpr double squareInch = kMillimeters * kMillimeters;
  if (ConvertsUnits()) area = thread.metric ? area / squareInch : area * squareInch;
  txt_stress_area.SetText(AreaText(area, millimeters));
  ShowLimits();
  ShowTapDrill(full_);
  ShowTapDrill(light_);
  struct Hole {
    TextField& field;
    const char* unified;
    const char* metric;
  };
  const Hole holes[] = {{txt_close_hole, "Close", "Fine"},
                        {txt_normal_hole, "Normal", "Medium"},
                        {txt_loose_hole, "Loose", "Coarse"}};
  for (std::size_t i = 0; i < std::size(holes); ++i) {
    holes[i].field.CaptionBeside().SetCaption(thread.metric ? holes[i].metric : holes[i].unified);
    ShowSize(holes[i].field, thread.holes[i]);
  }
  ShowSize(txt_head, thread.head);
  ShowSize(txt_head_height, thread.headHeight);
  ShowSize(txt_nut, thread.nut);
  ShowSize(txt_nut_thickness, thread.nutThickness);
  ShowSize(txt_key, thread.key);
}

void screws::ShowLimits() {
  const ThreadLimits limits =
      Chosen().Limits(classes_[static_cast<std::size_t>(cmb_class.Index())]);
  ShowLength(txt_allowance, limits.allowance);
  ShowLength(txt_external_major_max, limits.externalMajorMax);
  ShowLength(txt_external_major_min, limits.externalMajorMin);
  ShowLength(txt_internal_major_min, limits.internalMajorMin);
  ShowLength(txt_external_pitch_max, limits.externalPitchMax);
  ShowLength(txt_external_pitch_min, limits.externalPitchMin);
  ShowLength(txt_internal_pitch_min, limits.internalPitchMin);
  ShowLength(txt_internal_pitch_max, limits.internalPitchMax);
  ShowLength(txt_external_minor_max, limits.externalMinorMax);
  ShowLength(txt_internal_minor_min, limits.internalMinorMin);
  ShowLength(txt_internal_minor_max, limits.internalMinorMax);
}

void screws::ShowTapDrill(TapDrill& tap) {
  const Thread& thread = Chosen();
  const Double hole = thread.TapHole(tap.percent);
  ShowLength(tap.hole, hole);
  const std::optional<Drill> drill = NearestDrill(drills_, thread.metric, hole);
  if (!drill) {
    tap.drill.SetText(kNone);
    tap.diameter.Clear();
    tap.actual.Clear();
    return;
  }
  const Double diameter = drill->Size(thread.metric);
  tap.drill.SetText(drill->name);
  ShowLength(tap.diameter, diameter);
  tap.actual.Show(thread.PercentOfThread(diameter), "0");
}

}  // namespace korvane
