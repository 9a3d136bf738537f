#include "stress/beam_selector.h"

#include "frame/session.h"
#include "frame/sketch.h"

namespace korvane {
namespace {

constexpr int kColumns = 8;

// Of a button's picture, in drawing units.
constexpr double kWidth = 190;
constexpr double kHeight = 88;
constexpr double kMargin = 7;

}  // namespace

Beam_Selector::Beam_Selector(Session& session)
    : CalculatorWindow(session, {.name = "Beam_Selector",
                                 .title = "Select Beam Type and Loading Geometry",
                                 .helpPage = "mechanical_beams_2.html"}) {
  for (int i = 1; i <= kBeamCases; ++i)
    Command1(i).onClick = [this, i] {
      GetSession().CaseNumber = static_cast<short>(i);
      GetSession().Hide(*this);
    };
}

Layout Beam_Selector::Arrangement() {
  std::vector<Layout> rows;
  for (int first = 1; first <= kBeamCases; first += kColumns) {
    std::vector<Layout> row;
    for (int i = first; i < first + kColumns; ++i) row.emplace_back(Command1(i));
    rows.push_back(Row(std::move(row)));
  }
  return Column({Cells(std::move(rows))});
}

void Beam_Selector::Load() {
  CalculatorWindow::Load();
  const std::string file = GetSession().ReadTable(kBeamSketches);
  for (int i = 1; i <= kBeamCases; ++i) {
    Command1(i).SetCaption(BeamCaseOf(i).description);
    if (const auto sketch = FindSketch(file, BeamCaseName(i)))
      Command1(i).ShowFace(Fitted(ParseSketch(*sketch), kWidth, kHeight, kMargin));
  }
}

}  // namespace korvane
