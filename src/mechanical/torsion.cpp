#include "mechanical/torsion.h"

#include "mechanical/shaft_sketch.h"

namespace korvane {
namespace {

/// A shaft held at its left end and turned at its right one; the line along it shows the twist.
Drawing Sketch() {
  Drawing drawing{300, 96, {}};
  AddBox(drawing, {22, 8}, {34, 78});
  AddBox(drawing, {34, 26}, {252, 60});
  drawing.shapes.emplace_back(Path{{{34, 43}, {252, 43}}, Ink::Line});
  drawing.shapes.emplace_back(Path{{{34, 43}, {252, 33}}, Ink::Accent, {}, 1.5});
  AddTurn(drawing, {254, 43}, 28, 65, -65);
  drawing.shapes.emplace_back(Letters{{292, 43}, "T", 9, Ink::Accent});
  AddMeasure(drawing, 34, 252, 84, "L");
  return drawing;
}

}  // namespace

torsion::torsion(Session& session)
    : CalculatorWindow(session, {.name = "torsion",
                                 .title = " Torsional Deflection of Shafting",
                                 .helpPage = "mechanical_torsional_deflection_of_shafting.html"}),
      picture_(*this, "", "Shaft of length L, twisted by a torque T", Sketch()),
      file{"TORSIONAL DEFLECTION",
           "torsion.dta",
           "Load data...",
           {TextRecord("Length", txt_L), TextRecord("Diameter", txt_d), TextRecord("G", txt_g),
            TextRecord("RPM", txt_RPM), TextRecord("HP", txt_power),
            TextRecord("Torque", txt_torque), TextRecord("J", txt_J), TextRecord("Z", txt_z),
            TextRecord("Deflection", txt_twist), TextRecord("Max stress", txt_max_stress)},
           [this] { SolveTorsion(); }} {
  ComputesAndMovesOn({&txt_L, &txt_d, &txt_g, &txt_J, &txt_z}, [this] { SolveTorsion(); });
  ComputesAndMovesOn({&txt_power}, [this] {
    shaft_.FromPower();
    SolveTorsion();
  });
  ComputesAndMovesOn({&txt_RPM}, [this] {
    shaft_.FromSpeed();
    SolveTorsion();
  });
  ComputesAndMovesOn({&txt_torque}, [this] {
    shaft_.FromTorque();
    SolveTorsion();
  });
  // Without a torque neither has anything to solve, and nothing changes.
  ComputesAndMovesOn({&txt_twist}, [this] {
    if (shaft_.FromTwist()) SolveTorsion();
  });
  ComputesAndMovesOn({&txt_max_stress}, [this] {
    if (shaft_.FromStress()) SolveTorsion();
  });
  ShowsResultsIn({&txt_J, &txt_z, &txt_twist, &txt_max_stress});

  Command4.onClick = [this] { Clear(); };
  LoadsWith(Command5, file);
  SavesWith(Command6, file);
  PrintsWith(Command2);
  HelpsWith(Command3);
  ExitsWith(Command1);
}

Layout torsion::Arrangement() {
  return Column({instruction_, picture_,
                 Form({txt_L, txt_d, txt_g, txt_RPM, txt_power, txt_torque}), Rule(),
                 Form({txt_J, txt_z, txt_twist, txt_max_stress}),
                 Row({Command4, Stretch(), Command5, Command6, Command2, Command3, Command1})});
}

void torsion::SolveTorsion() { shaft_.Solve(); }

void torsion::Clear() {
  for (TextField* field :
       std::initializer_list<TextField*>{&txt_L, &txt_d, &txt_J, &txt_z, &txt_RPM, &txt_power,
                                         &txt_torque, &txt_twist, &txt_max_stress})
    field->Clear();
  txt_L.SetFocus();
}

}  // namespace korvane
