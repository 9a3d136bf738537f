#include "stress/section_properties.h"

#include "frame/session.h"
#include "stress/enclosure.h"
#include "stress/outline_drawing.h"

namespace korvane {
namespace {

constexpr DrawingBox kPicture{640, 380};

constexpr int kInchesPerFoot = 12;
constexpr double kSquareMeter = 1e-6;  // of a square millimetre

// An angle of unequal legs, of nominal size and without its fillets.
const EntryGrid::Rows kInches = {{"0", "0"},     {"3", "0"},   {"3", "0.5"},
                                 {"0.5", "0.5"}, {"0.5", "4"}, {"0", "4"}};
const EntryGrid::Rows kMillimeters = {{"0", "0"},   {"75", "0"},   {"75", "10"},
                                      {"10", "10"}, {"10", "100"}, {"0", "100"}};

std::string Plural(std::size_t count, const std::string& word) {
  return std::to_string(count) + ' ' + word + (count == 1 ? "" : "s");
}

}  // namespace

Section_Properties::Section_Properties(Session& session)
    : CalculatorWindow(session, {.name = "Section_Properties",
                                 .title = "Section Properties",
                                 .helpPage = "mechanical_section_properties.html"}) {
  lbl_points.MakeHeading();
  BindRows();
  txt_density.onEnter = [this] { ShowMass(); };
  PassesFocusOn(Results());

  file_ = {"SECTION PROPERTIES", "section.dta", "Load data...", {}, [this] { Solve(); }};
  file_.rest = [this] { return Lines(); };
  file_.acceptRest = [this](DelimitedReader& reader) { AcceptLines(reader); };
  btn_Solve.onClick = [this] { Solve(); };
  SetDefault(btn_Solve);
  LoadsWith(btn_load, file_);
  SavesWith(btn_save, file_);
  // The printed page shows the results of what stands in the fields.
  btn_print.onClick = [this] {
    Solve();
    GetSession().PrintWindow(*this);
  };
  HelpsWith(btn_help);
  ExitsWith(btn_exit);
}

void Section_Properties::BindRows() {
  Grid1.accepts = [](const std::string& cell) { return Coordinate(cell).has_value(); };
  Grid1.onChange = [this] { Follow(); };
  Grid1.onRefuse = [this](const std::string& cell) {
    GetSession().GetPlatform().Beep();
    constexpr std::size_t most = 16;  // letters of it
    lbl_status.SetCaption('"' + cell.substr(0, most) +
                          "\" is not taken: a point has two numbers, X and Y.");
  };
  Grid1.onCopy = [this] { GetSession().GetPlatform().SetClipboard(Grid1.CurrentText()); };
  const auto bind = [this](Command& command, const Handler& act) {
    command.onClick = [this, act] {
      act();
      Grid1.SetFocus();
    };
  };
  bind(btn_add, [this] { Grid1.GoBehind(0); });
  bind(btn_outline, [this] { Grid1.GoBehind(Grid1.Entries().empty() ? 0 : 1); });
  bind(btn_insert, [this] { Grid1.InsertRow(); });
  bind(btn_delete, [this] { Grid1.DeleteRow(); });
  bind(btn_clear, [this] { Grid1.SetEntries({}); });
  bind(btn_shapes, [this] { TakeShape(); });
}

Layout Section_Properties::Arrangement() {
  return Column(
      {Row({Column({lbl_points, Grid1, lbl_rows, lbl_paste,
                    Cells({Row({btn_add, btn_outline}), Row({btn_insert, btn_delete}),
                           Row({btn_clear, btn_shapes})}),
                    Form({txt_density})}),
            Column({Picture1, lbl_status, Rule(),
                    Row({Column({Form({txt_area, txt_perimeter, txt_x, txt_y, txt_Ix, txt_Iy,
                                       txt_Ixy, txt_I1, txt_I2, txt_angle}),
                                 Stretch()}),
                         Column({Form({txt_polar, txt_Sx_top, txt_Sx_bottom, txt_Sy_left,
                                       txt_Sy_right, txt_rx, txt_ry, txt_r_least, txt_mass}),
                                 Stretch()})})})}),
       Row({btn_Solve, Stretch(), btn_load, btn_save, btn_print, btn_help, btn_exit})});
}

std::vector<TextField*> Section_Properties::Results() {
  return {&txt_area,  &txt_perimeter, &txt_x,         &txt_y,       &txt_Ix,
          &txt_Iy,    &txt_Ixy,       &txt_I1,        &txt_I2,      &txt_angle,
          &txt_polar, &txt_Sx_top,    &txt_Sx_bottom, &txt_Sy_left, &txt_Sy_right,
          &txt_rx,    &txt_ry,        &txt_r_least,   &txt_mass};
}

void Section_Properties::Load() {
  CalculatorWindow::Load();
  Grid1.SetEntries(IsMetric() ? kMillimeters : kInches);
}

void Section_Properties::Follow() {
  OutlineList list = ReadOutlines(Grid1.Entries());
  outlines_ = std::move(list.outlines);
  Enclosure enclosure = Enclose(outlines_);
  if (!list.fault.empty()) enclosure.fault = list.fault;
  fault_ = enclosure.fault;
  for (TextField* field : Results()) field->Clear();
  if (!fault_.empty()) {
    lbl_status.SetCaption(fault_);
    Picture1.Draw(DrawnToScale(outlines_, enclosure, nullptr, kPicture));
    return;
  }
  const PlaneSection section = SectionOf(outlines_, enclosure.holes);
  Picture1.Draw(DrawnToScale(outlines_, enclosure, &section, kPicture));
  std::size_t points = 0, holes = 0;
  for (std::size_t i = 0; i < outlines_.size(); ++i) {
    points += outlines_[i].size();
    if (enclosure.holes[i]) ++holes;
  }
  lbl_status.SetCaption(Plural(outlines_.size() - holes, "outline") + ", " +
                        (holes > 0 ? Plural(holes, "hole") + ", " : "") + Plural(points, "point"));
  Show(section);
}

void Section_Properties::Show(const PlaneSection& section) {
  const auto show = [](TextField& field, Double value) { field.SetText(SixDigits(value)); };
  show(txt_area, section.area);
  show(txt_perimeter, section.perimeter);
  show(txt_x, section.x);
  show(txt_y, section.y);
  show(txt_Ix, section.Ix);
  show(txt_Iy, section.Iy);
  show(txt_Ixy, section.Ixy);
  show(txt_I1, section.I1);
  show(txt_I2, section.I2);
  show(txt_angle, section.angle);
  show(txt_polar, section.Polar());
  show(txt_Sx_top, section.Ix / section.top);
  show(txt_Sx_bottom, section.Ix / section.bottom);
  show(txt_Sy_left, section.Iy / section.left);
  show(txt_Sy_right, section.Iy / section.right);
  show(txt_rx, section.Gyration(section.Ix));
  show(txt_ry, section.Gyration(section.Iy));
  show(txt_r_least, section.Gyration(section.I2));
  area_ = section.area;
  ShowMass();
}

void Section_Properties::ShowMass() {
  if (!fault_.empty()) return;
  const auto density = Coordinate(txt_density.Text());
  if (!density) {
    txt_mass.Clear();
    return;
  }
  txt_mass.SetText(SixDigits(area_ * *density * (IsMetric() ? kSquareMeter : kInchesPerFoot)));
}

void Section_Properties::Solve() {
  Follow();
  if (!fault_.empty()) GetSession().Message(fault_, Icon::Exclamation);
}

void Section_Properties::TakeShape() {
  Session& session = GetSession();
  session.OutlinePoints.clear();
  session.ShowModal("shape_generator");
  if (session.OutlinePoints.empty()) return;
  if (!session.AddsOutline) Grid1.SetEntries({});
  Grid1.GoBehind(Grid1.Entries().empty() ? 0 : 1);
  Grid1.Enter(session.OutlinePoints);
}

// ---- The data file ----

std::string Section_Properties::Lines() const {
  std::string lines = "X,Y\r\n";
  for (const std::vector<std::string>& row : Grid1.Entries()) {
    const auto written = [](const std::string& cell) {
      const auto number = Coordinate(cell);  // without commas that part its thousands
      return number ? PlainText(Double(*number)) : "";
    };
    lines += written(row[0]) + ',' + written(row[1]) + "\r\n";
  }
  return lines;
}

// All lines are read before any is taken, so that a spoilt file costs nothing.
void Section_Properties::AcceptLines(DelimitedReader& reader) {
  if (reader.Line() != "X,Y") failures::TypeMismatch();
  EntryGrid::Rows rows;
  while (!reader.AtEnd()) {
    const std::string line = reader.Line();
    rows.emplace_back(2);
    if (line.find_first_not_of(" \t") == std::string::npos) continue;
    DelimitedReader point(line);
    for (std::string& cell : rows.back()) {
      cell = point.Value();
      if (!cell.empty() && !Coordinate(cell)) failures::TypeMismatch();
    }
    if (!point.AtEnd()) failures::TypeMismatch();
  }
  Grid1.SetEntries(std::move(rows));
}

}  // namespace korvane
