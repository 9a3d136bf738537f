#include "hvac/flowcalc.h"

#include "frame/session.h"

namespace korvane {
namespace {

constexpr double pi = 3.1415926;
constexpr double pascalsPerInchOfWater = 248.6888;
constexpr int squareInchesPerSquareMeter = 1550;
constexpr int squareInchesPerSquareFoot = 144;

// Standard air at a pressure drop of 1 in WC moves at 4005 ft/min.
constexpr int feetPerMinute = 4005;
constexpr double cubicMetersPerSecond = 1.89015975;  // the same through one square foot

/// CFM from square inches and inches of water.
Double FlowUs(Double dc, Double area, Double pressure) {
  return dc * feetPerMinute * area / squareInchesPerSquareFoot * Sqrt(pressure);
}

/// m3/s from square meters and pascals.
Double FlowMetric(Double dc, Single area, Single pressure) {
  return dc * cubicMetersPerSecond *
         (area * squareInchesPerSquareMeter / squareInchesPerSquareFoot) *
         Sqrt(pressure / pascalsPerInchOfWater);
}

/// The inverse of FlowUs.
Double AreaUs(Single flow, Double dc, Single pressure) {
  return (flow * squareInchesPerSquareFoot) / (dc * feetPerMinute * Sqrt(pressure));
}

/// The inverse of FlowMetric.
Double AreaMetric(Single flow, Double dc, Single pressure) {
  constexpr double squareFeet = 1.0 * squareInchesPerSquareFoot / squareInchesPerSquareMeter;
  return (flow * squareFeet) / (dc * cubicMetersPerSecond * Sqrt(pressure / pascalsPerInchOfWater));
}

Double DiameterOf(Double area) { return 2 * Sqrt(area / pi); }

// ---- The orifice forms, in section with the flow from left to right ----

enum class Edge { Sharp, ReEntrant, Square, Round };

constexpr double width = 76, height = 44;

/// The wall above the opening; the one below is its mirror image.
std::vector<Path> UpperWall(Edge edge) {
  const auto solid = [](std::vector<Point> outline) {
    outline.push_back(outline.front());
    return Path{std::move(outline), Ink::Line, Ink::Body};
  };
  switch (edge) {
    case Edge::Sharp: return {solid({{36, 1}, {48, 1}, {48, 16}, {36, 10}})};
    case Edge::ReEntrant:
      return {solid({{36, 1}, {48, 1}, {48, 16}, {36, 16}}),
              solid({{18, 12}, {36, 12}, {36, 16}, {18, 16}})};
    case Edge::Square: return {solid({{36, 1}, {48, 1}, {48, 16}, {36, 16}})};
    case Edge::Round: {
      std::vector<Point> outline = {{36, 1}, {48, 1}};
      for (const Point& point : Arc({48, 4}, 12, 90, 180)) outline.push_back(point);
      return {solid(std::move(outline))};
    }
  }
  return {};
}

Drawing Orifice(Edge edge) {
  Drawing drawing{width, height, {}};
  for (Path wall : UpperWall(edge)) {
    drawing.shapes.emplace_back(wall);
    for (Point& point : wall.points) point.y = height - point.y;
    drawing.shapes.emplace_back(wall);
  }
  drawing.shapes.emplace_back(Path{{{4, 22}, {72, 22}}, Ink::Accent, {}, 1.5});
  drawing.shapes.emplace_back(Path{{{66, 18}, {72, 22}, {66, 26}}, Ink::Accent, {}, 1.5});
  return drawing;
}

}  // namespace

FlowCalc::FlowCalc(Session& session)
    : CalculatorWindow(session,
                       {"FlowCalc", " Orifice Flow Calculations (Air)", "hvac_orifice_flow.html"}),
      Picture1(*this, "Picture1", "Orifice with a sharp edge", Orifice(Edge::Sharp)),
      Picture2(*this, "Picture2", "Re-entrant orifice", Orifice(Edge::ReEntrant)),
      Picture3(*this, "Picture3", "Orifice with a square edge", Orifice(Edge::Square)),
      Picture4(*this, "Picture4", "Orifice with a rounded edge", Orifice(Edge::Round)),
      file{"ORIFICE FLOW",
           "orifice.dta",
           "Load data...",
           {TextRecord("Dia", dia), TextRecord("Area", area), TextRecord("Pressure", pressure),
            TextRecord("Flow", flow),
            WordRecord("Edge Type", {{ideal, "Ideal"},
                                     {SharpEdge, "Sharp"},
                                     {ReEntrant, "Reentrant"},
                                     {SquareEdge, "Square"},
                                     {RoundEdge, "Round"}}),
            MaskRecord("Discharge Coefficient", dc, "#.###")},
           [this] { FlowAfterLoad(); }} {
  SolvesWith(btn_calc, {&dia}, [this] { ComputeAll(); });
  area.onEnter = [this] {
    DiameterFromArea();
    ComputeFlow();
  };
  pressure.onEnter = dc.onEnter = [this] { ComputeFlow(); };
  flow.onEnter = [this] { OrificeFromFlow(); };

  const auto presets = [this](Option& option, Double coefficient) {
    option.onClick = [this, coefficient] {
      dc.Show(coefficient);
      ComputeFlow();
    };
  };
  presets(ideal, 1);
  presets(SharpEdge, 0.6);
  presets(ReEntrant, 0.72);
  presets(SquareEdge, 0.82);
  presets(RoundEdge, 0.97);

  SetDefault(btn_calc);
  LoadsWith(Command4, file);
  SavesWith(Command5, file);
  PrintsWith(Command1);
  HelpsWith(Command3);
  ExitsWith(Command2);
}

Layout FlowCalc::Arrangement() {
  return Column(
      {Row({Column({Form({dia, area, pressure}), Rule(), Form({flow}), Stretch()}),
            Box(DischCoef, {Cells({Row({ideal}), Row({SharpEdge, Picture1}),
                                   Row({ReEntrant, Picture2}), Row({SquareEdge, Picture3}),
                                   Row({RoundEdge, Picture4}), Row({Stretch(), dc})})})}),
       Row({btn_calc, Stretch(), Command4, Command5, Command1, Command3, Command2})});
}

void FlowCalc::ComputeAll() {
  AreaFromDiameter();
  ComputeFlow();
}

void FlowCalc::AreaFromDiameter() {
  const Single d = ToNumber(dia);
  area.Show(Power(d / 2, 2) * pi, "#.######");
}

void FlowCalc::DiameterFromArea() { dia.Show(DiameterOf(ToNumber(area)), "#.######"); }

// The area is read back as its mask has rounded it.
void FlowCalc::ComputeFlow() {
  const Single a = ToNumber(area);
  const Single p = ToNumber(pressure);
  const Double c = Strict(dc);
  flow.Show(IsMetric() ? FlowMetric(c, a, p) : FlowUs(c, a, p), "#.######");
}

void FlowCalc::OrificeFromFlow() {
  const Single p = ToNumber(pressure);
  if (p == 0) {
    GetSession().Message("You must provide a pressure drop to back-calculate the orifice size.");
    pressure.Clear();
    pressure.SetFocus();
    return;
  }
  const Single q = ToNumber(flow);
  const Double c = Strict(dc);
  const Double found = IsMetric() ? AreaMetric(q, c, p) : AreaUs(q, c, p);
  area.Show(found, "#.######");
  dia.Show(DiameterOf(found), "#.######");
}

// Always in U.S. units, and with a coarser mask than elsewhere.
void FlowCalc::FlowAfterLoad() {
  flow.Show(FlowUs(Strict(dc), Strict(area), Strict(pressure)), "#.##");
}

}  // namespace korvane
