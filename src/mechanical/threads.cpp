#include "mechanical/threads.h"

#include <algorithm>
#include <iterator>
#include <numbers>

#include "frame/delimited.h"
#include "frame/mask.h"
#include "frame/number_text.h"
#include "frame/table.h"

namespace korvane {
namespace {

constexpr double kPi = std::numbers::pi;

// Parts of the basic profile in pitches; H, the height of the sharp V, is 0.866025 of them.
constexpr double kPitchDepth = 0.64951905;    // 3/4 H, from the major to the pitch diameter
constexpr double kMinorDepth = 1.08253175;    // 5/4 H, from the major to the minor diameter
constexpr double kThreadHeight = 1.29903811;  // 3/2 H, twice the height that percentages count by

/// Rounded as a person does, on the decimal text.
Double Rounded(Double value, Mask places) { return Strict(Format(value, places)); }
Double Thousandths(Double value) { return Rounded(value, "0.000"); }
Double TenThousandths(Double value) { return Rounded(value, "0.0000"); }

// ---- Unified threads, ASME B1.1; inches ----

constexpr double kNumbered = 0.25;      // smaller sizes go by numbers
constexpr double kThreePlaces = 0.138;  // from here on minor diameters of 1B, 2B have three places
constexpr int kEngagedPitches = 9;      // of extra fine threads; others are engaged by a diameter
constexpr double kUnifiedRoot = 0.541266;  // 5/8 H, from the pitch diameter to the UNR root

/// The allowance from the pitch tolerance of class 2A: a fifth place that is 5 goes to the even
/// one.
Double UnifiedAllowance(Double tolerance) {
  constexpr double unit = 0.0001;
  return ToInteger32(Rounded(0.3 * tolerance / unit, "0.0")) * Double(unit);
}

/// Of the pitch diameter, class 2A.
Double UnifiedPitchTolerance(const Thread& thread) {
  const Double engaged = thread.series == "UNEF" ? kEngagedPitches * thread.pitch : thread.major;
  return Rounded(0.0015 * Power(thread.major, 1.0 / 3) + 0.0015 * Sqrt(engaged) +
                     0.015 * Power(thread.pitch, 2.0 / 3),
                 "0.000000");
}

/// Of the internal minor diameter.
Double UnifiedMinorTolerance(const Thread& thread, ThreadClass threadClass) {
  const Double P = thread.pitch;
  const Double most = 0.394 * P;
  const Double fitted = 0.05 * Power(P, 2.0 / 3) + 0.03 * P / thread.major - 0.002;
  const auto between = [&](Double least) { return std::max(std::min(fitted, most), least); };
  if (threadClass == ThreadClass::Close) {
    constexpr int fine = 13;  // threads per inch
    return between(thread.ThreadsPerInch() >= fine ? 0.23 * P - 1.5 * P * P : 0.12 * P);
  }
  const Double usual = 0.25 * P - 0.4 * P * P;
  return thread.major < kNumbered ? between(usual) : usual;
}

/// What each class takes of the pitch tolerance of class 2A, and of 0.06 P^(2/3) for the major
/// diameter.
struct UnifiedShares {
  double external, internal, major;
  bool allowance;
};

constexpr UnifiedShares kUnified[] = {
    {1.5, 1.95, 1.5, true}, {1, 1.3, 1, true}, {0.75, 0.975, 1, false}};

// Each allowance and tolerance is rounded before it is taken off or added.
ThreadLimits UnifiedLimits(const Thread& thread, ThreadClass threadClass) {
  const UnifiedShares& shares = kUnified[static_cast<std::size_t>(threadClass)];
  const Double tolerance = UnifiedPitchTolerance(thread);
  const Double pitch = TenThousandths(thread.BasicPitchDiameter());
  const Double minor = TenThousandths(thread.BasicMinorDiameter());
  const Double minorTolerance = TenThousandths(UnifiedMinorTolerance(thread, threadClass));

  ThreadLimits limits;
  limits.allowance = shares.allowance ? UnifiedAllowance(tolerance) : Double(0);
  limits.externalMajorMax = thread.major - limits.allowance;
  limits.externalMajorMin =
      limits.externalMajorMax - TenThousandths(shares.major * 0.06 * Power(thread.pitch, 2.0 / 3));
  limits.externalPitchMax = pitch - limits.allowance;
  limits.externalPitchMin = limits.externalPitchMax - TenThousandths(shares.external * tolerance);
  limits.externalMinorMax = limits.externalPitchMax - kUnifiedRoot * thread.pitch;
  limits.internalPitchMin = pitch;
  limits.internalPitchMax = pitch + TenThousandths(shares.internal * tolerance);
  limits.internalMajorMin = thread.major;
  limits.internalMinorMin = minor;
  limits.internalMinorMax = minor + minorTolerance;
  if (thread.major >= kThreePlaces) {
    limits.internalMinorMin = Thousandths(minor);
    if (threadClass != ThreadClass::Close)
      limits.internalMinorMax = Thousandths(limits.internalMinorMax);
  }
  return limits;
}

// ---- Metric threads, ISO 965-1; millimeters ----

constexpr double kMetricRoot = 0.57735027;  // 2/3 H, from the pitch diameter to the root
constexpr double kMicrometers = 1000;       // in a millimeter
constexpr double kLeastCoarse = 0.8;        // pitch that has grade 8

/// Tolerances follow the series R40 of preferred numbers; the next grade is four steps away.
constexpr int kPreferred[] = {100, 106, 112, 118, 125, 132, 140, 150, 160, 170, 180, 190, 200, 212,
                              224, 236, 250, 265, 280, 300, 315, 335, 355, 375, 400, 425, 450, 475,
                              500, 530, 560, 600, 630, 670, 710, 750, 800, 850, 900, 950};
constexpr int kStepsPerGrade = 4;

Double InGrade(Double tolerance, int grade) {
  constexpr int basic = 6;  // the grade of the file
  const int count = static_cast<int>(std::size(kPreferred));
  // Brought into the series' decade and back.
  Double decade = 1;
  while (tolerance * decade < kPreferred[0]) decade *= 10;
  const int value = ToInteger32(tolerance * decade);
  int at = static_cast<int>(std::ranges::find(kPreferred, value) - std::begin(kPreferred));
  if (at == count) failures::InvalidCall();
  at += (grade - basic) * kStepsPerGrade;
  if (at < 0) {
    at += count;
    decade *= 10;
  } else if (at >= count) {
    at -= count;
    decade /= 10;
  }
  // Below 100 the standard has whole micrometers: 42 for 42.5, 48 for 47.5.
  return ToInteger32(kPreferred[at] / decade);
}

struct MetricGrades {
  int major, pitch, internalMinor, internalPitch;
  bool allowance;  ///< position g, or else h
};

constexpr MetricGrades kMetric[] = {{8, 8, 7, 7, true}, {6, 6, 6, 6, true}, {4, 4, 5, 5, false}};

ThreadLimits MetricLimits(const Thread& thread, ThreadClass threadClass) {
  const MetricGrades& grades = kMetric[static_cast<std::size_t>(threadClass)];
  const auto in = [](Double tolerance, int grade) {
    return InGrade(tolerance, grade) / kMicrometers;
  };
  const Double pitch = Thousandths(thread.BasicPitchDiameter());

  ThreadLimits limits;
  limits.allowance = grades.allowance ? thread.positionG / kMicrometers : Double(0);
  limits.externalMajorMax = thread.major - limits.allowance;
  limits.externalMajorMin = limits.externalMajorMax - in(thread.majorTolerance, grades.major);
  limits.externalPitchMax = pitch - limits.allowance;
  limits.externalPitchMin = limits.externalPitchMax - in(thread.pitchTolerance, grades.pitch);
  limits.externalMinorMax = limits.externalPitchMax - kMetricRoot * thread.pitch;
  limits.internalMinorMin = Thousandths(thread.BasicMinorDiameter());
  limits.internalMinorMax =
      limits.internalMinorMin + in(thread.internalMinorTolerance, grades.internalMinor);
  limits.internalPitchMin = pitch;
  limits.internalPitchMax = pitch + in(thread.internalPitchTolerance, grades.internalPitch);
  limits.internalMajorMin = thread.major;
  return limits;
}

// ---- The files ----

Thread ReadThread(DelimitedReader& reader) {
  Thread thread;
  const std::string standard = reader.Text();
  if (standard != "unified" && standard != "metric") failures::InvalidCall();
  thread.metric = standard == "metric";
  thread.size = reader.Text();
  thread.series = reader.Text();
  thread.major = reader.Number();
  const Double number = reader.Number();
  if (!(number > 0)) failures::InvalidCall();
  thread.pitch = thread.metric ? number : 1 / number;
  if (!(thread.BasicMinorDiameter() > 0)) failures::InvalidCall();
  const auto read = [&reader](NamedSize& size) {
    size.name = reader.Text();
    size.size = reader.Number();
  };
  for (NamedSize& hole : thread.holes) read(hole);
  for (NamedSize* size :
       {&thread.head, &thread.headHeight, &thread.nut, &thread.nutThickness, &thread.key})
    read(*size);
  if (thread.metric)
    for (Double* tolerance : {&thread.positionG, &thread.majorTolerance, &thread.pitchTolerance,
                              &thread.internalMinorTolerance, &thread.internalPitchTolerance}) {
      *tolerance = reader.Number();
      if (!(*tolerance > 0)) failures::InvalidCall();
    }
  return thread;
}

}  // namespace

std::string Thread::Name() const {
  if (metric) return size + " x " + PlainText(pitch);
  return size + '-' + PlainText(ThreadsPerInch()) + ' ' + series;
}

Double Thread::ThreadsPerInch() const {
  constexpr double inch = 25.4;
  return metric ? inch / pitch : Rounded(1 / pitch, "0.#");
}

Double Thread::BasicPitchDiameter() const { return major - kPitchDepth * pitch; }

Double Thread::BasicMinorDiameter() const { return major - kMinorDepth * pitch; }

// ASME B1.1; ISO 898-1, by the mean of the pitch diameter and the root, H/6 below the minor one.
Double Thread::StressArea() const {
  if (!metric) return 0.7854 * Power(major - 0.9743 * pitch, 2);
  const Double root = BasicPitchDiameter() - kMetricRoot * pitch;
  return kPi / 4 * Power((BasicPitchDiameter() + root) / 2, 2);
}

// ASME B1.1 has class 1 for coarse and fine threads from 1/4 in; ISO 965-1 grade 8 from 0.8 mm.
bool Thread::Has(ThreadClass threadClass) const {
  if (threadClass != ThreadClass::Loose) return true;
  return metric ? pitch >= kLeastCoarse : series != "UNEF" && major >= kNumbered;
}

ThreadLimits Thread::Limits(ThreadClass threadClass) const {
  return metric ? MetricLimits(*this, threadClass) : UnifiedLimits(*this, threadClass);
}

Double Thread::TapHole(Double percent) const {
  return major - percent / 100 * kThreadHeight * pitch;
}

Double Thread::PercentOfThread(Double hole) const {
  return (major - hole) / (kThreadHeight * pitch) * 100;
}

const char* NameOf(ThreadClass threadClass, bool metric) {
  constexpr const char* unified[] = {"1A / 1B, Loose", "2A / 2B, Usual", "3A / 3B, Close"};
  constexpr const char* iso[] = {"8g / 7H, Coarse", "6g / 6H, Medium", "4h / 5H, Fine"};
  return (metric ? iso : unified)[static_cast<std::size_t>(threadClass)];
}

std::vector<Thread> ParseThreads(std::string_view bytes) {
  DelimitedReader reader(bytes);
  reader.Line();
  std::vector<Thread> threads;
  while (!reader.AtEnd()) threads.push_back(ReadThread(reader));
  for (const bool metric : {false, true})
    if (std::ranges::find(threads, metric, &Thread::metric) == threads.end())
      failures::InputPastEnd();
  return threads;
}

std::vector<Drill> ParseDrills(std::string_view bytes) {
  enum Columns : std::uint8_t { Name, Kind, Inches, Millimeters };
  const Table table = ParseTable(bytes);
  std::vector<Drill> drills;
  for (int row = table.fixedRows; row < table.rows; ++row) {
    const std::string& kind = table.At(row, Kind);
    drills.push_back({(kind == "number" ? "No. " : "") + table.At(row, Name), kind == "metric",
                      Strict(table.At(row, Inches)), Strict(table.At(row, Millimeters))});
  }
  return drills;
}

std::optional<Drill> NearestDrill(const std::vector<Drill>& drills, bool metric, Double hole) {
  constexpr double beyond = 1.02;
  std::optional<Drill> nearest;
  for (const Drill& drill : drills) {
    if (drill.metric != metric) continue;
    if (!nearest || Abs(drill.Size(metric) - hole) < Abs(nearest->Size(metric) - hole))
      nearest = drill;
  }
  if (nearest && hole > beyond * nearest->Size(metric)) nearest.reset();
  return nearest;
}

// ---- The picture ----

Drawing ThreadForm() {
  constexpr int crests = 3;
  constexpr double P = 84, left = 14, right = left + crests * P, middle = left + crests * P / 2;
  constexpr double major = 72, minor = major + kMinorDepth / 2 * P;
  constexpr double pitch = major + kPitchDepth / 2 * P, axis = 196, play = 4, top = 40;
  Drawing drawing{388, 212, {}};
  const auto thin = [&drawing](Point from, Point to) {
    drawing.shapes.emplace_back(Path{{from, to}, Ink::Line, {}, 0.5});
  };

  // Flats are an eighth of the pitch at the major diameter, a quarter at the minor one.
  std::vector<Point> screw{{left, axis}, {left, minor}}, nut{{left, top}, {left, minor - play}};
  for (int i = 0; i < crests; ++i) {
    const double crest = left + (i + 0.5) * P;
    for (const Point& point : {Point{crest - 3 * P / 8, minor},
                               {crest - P / 16, major},
                               {crest + P / 16, major},
                               {crest + 3 * P / 8, minor}}) {
      screw.push_back(point);
      nut.push_back({point.x, point.y - play});
    }
  }
  screw.insert(screw.end(), {{right, minor}, {right, axis}});
  nut.insert(nut.end(), {{right, minor - play}, {right, top}, {left, top}});
  drawing.shapes.emplace_back(Path{std::move(nut), Ink::Line, Ink::Body, 1});
  drawing.shapes.emplace_back(Path{std::move(screw), Ink::Line, Ink::Body, 1.5});
  for (double x = left - 8; x < right + 110; x += 26) {  // the axis
    thin({x, axis}, {x + 16, axis});
    thin({x + 20, axis}, {x + 22, axis});
  }

  // The flanks meet at 60 degrees below the root.
  constexpr double root = middle + P / 2, half = P / 8;
  const Point apex{root, minor + half * std::numbers::sqrt3};
  for (const double side : {-1.0, 1.0}) thin({root + side * half, minor}, apex);
  constexpr double radius = 70;
  drawing.shapes.emplace_back(Path{Arc(apex, radius, -120, -60), Ink::Accent, {}, 1.5});
  drawing.shapes.emplace_back(Letters{{root, apex.y - radius + 19}, "60\u00B0", 9, Ink::Accent});

  constexpr double over = 20;
  for (const double crest : {middle - P, middle}) thin({crest, major}, {crest, over - 6});
  AddMeasure(drawing, middle - P, middle, over, "P");

  // Half of each diameter, from the axis.
  struct Level {
    double y;
    const char* letters;
  };
  double x = right + 24;
  for (const Level& level : {Level{minor, "D1"}, {pitch, "D2"}, {major, "D"}}) {
    thin({level.y == pitch   ? left
          : level.y == minor ? right
                             : middle + P,
          level.y},
         {x + 8, level.y});
    const double y = (axis + minor) / 2;
    AddArrow(drawing, {x, y - 10}, {x, level.y}, Ink::Line);
    AddArrow(drawing, {x, y + 10}, {x, axis}, Ink::Line);
    drawing.shapes.emplace_back(Letters{{x, y}, level.letters, 9, Ink::Line});
    x += 34;
  }
  return drawing;
}

}  // namespace korvane
