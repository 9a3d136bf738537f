#include "math/volumes_of_solids.h"

#include "frame/session.h"
#include "math/solids.h"

namespace korvane {
namespace {

// Of the picture, in drawing units; the sketches keep a margin of 100 twips.
constexpr double kPictureWidth = 460;
constexpr double kPictureHeight = 450;
constexpr double kMargin = 100 * 96 / 1440.0;

Drawing Blank() { return {kPictureWidth, kPictureHeight, {}}; }

}  // namespace

Volumes_of_Solids::Volumes_of_Solids(Session& session)
    : FigureWindow(session,
                   {.name = "Volumes_of_Solids",
                    .title = " Volumes of Solids",
                    .helpPage = "math_volumes_of_solids.html"},
                   {.frame = "Select Solid", .picture = "Picture1", .figures = Solids()}) {
  SolvesWith(Command4);
  ClearsWith(Command1);
  CopiesFieldWith(Command2, "Volume");
  PrintsWith(btn_print);
  HelpsWith(Command3);
  ExitsWith(btn_exit);
}

Layout Volumes_of_Solids::Arrangement() {
  return Column({Row({OptionColumn(), Column({PIC, lbl_cylinder_P2_note, Stretch()}), FieldForm()}),
                 Row({Command4, Command1, Command2, Stretch(), btn_print, Command3, btn_exit})});
}

void Volumes_of_Solids::SelectFigure() {
  FigureWindow::SelectFigure();
  lbl_cylinder_P2_note.SetVisible(FigureName == kCylinderPortion2);
}

void Volumes_of_Solids::DrawFigure() {
  Session& session = GetSession();
  session.DataFileName = "Volumes.plt";
  PIC.Draw(Blank());
  const auto sketch = FindSketch(session.ReadTable(session.DataFileName), FigureName);
  if (!sketch) {
    session.Message("Data for figure not found in file ----->  Volumes.plt");
    return;
  }
  PIC.Draw(Fitted(ParseSketch(*sketch), kPictureWidth, kPictureHeight, kMargin));
}

}  // namespace korvane
