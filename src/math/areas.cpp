#include "math/areas.h"

#include <algorithm>

#include "frame/session.h"
#include "math/plane_figures.h"

namespace korvane {
namespace {

// Of the picture, in drawing units of 15 twips.
constexpr double kPictureWidth = 400;
constexpr double kPictureHeight = 390;
constexpr double kMostScale = 1.5 / 15;  // drawing units; the sketches are made for 1.5 twips

/// In the middle of the picture, and smaller only if it would not fit.
Drawing Centred(const Sketch& sketch) {
  const double scale = std::min(
      {kMostScale, kPictureWidth / sketch.maxX.Value(), kPictureHeight / sketch.maxY.Value()});
  const auto offset = [scale](double free, Double extent) {
    return std::max(0.0, (free - scale * extent.Value()) / 2);
  };
  return Placed(
      sketch, kPictureWidth, kPictureHeight, scale,
      {offset(kPictureWidth, sketch.maxX), kPictureHeight - offset(kPictureHeight, sketch.maxY)});
}

}  // namespace

Areas::Areas(Session& session)
    : FigureWindow(session,
                   {.name = "Areas",
                    .title = " Areas of Plane Figures",
                    .helpPage = "math_area_of_plane_figures.html"},
                   {.frame = "SELECT FIGURE", .picture = "PIC", .figures = PlaneFigures()}) {
  SolvesWith(Command3);
  ClearsWith(Command1);
  CopiesFieldWith(Command2, "Area");
  PrintsWith(btn_print);
  HelpsWith(Command4);
  ExitsWith(btn_exit);
}

Layout Areas::Arrangement() {
  return Column({Row({OptionColumn(), Column({PIC, Stretch()}), FieldForm()}),
                 Row({Command3, Command1, Command2, Stretch(), btn_print, Command4, btn_exit})});
}

// A file without the figure's section is read past its end.
void Areas::DrawFigure() {
  Session& session = GetSession();
  session.DataFileName = "MAIN.PLT";
  const auto sketch = FindSketch(session.ReadTable(session.DataFileName), FigureName);
  if (!sketch) failures::InputPastEnd();
  PIC.Draw(Centred(ParseSketch(*sketch)));
}

}  // namespace korvane
