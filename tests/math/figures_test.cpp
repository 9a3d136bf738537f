// Areas of plane figures and volumes of solids: what each figure's dimensions give. The values were
// worked out apart from the program, in 32 bits up to the first power or constant.
#include <gtest/gtest.h>

#include <filesystem>

#include "../support/scripted_session.h"
#include "../support/temporary_folder.h"

namespace korvane::testing {
namespace {

/// What is typed, by captions; Enter in the last one; then all fields, from the first on.
struct Case {
  const char* figure;
  std::vector<std::pair<const char*, const char*>> typed;
  const char* shown;
};

class Figures : public ::testing::Test {
 protected:
  void Shows(const char* window) {
    suite.Shows(window);
    suite.Told();
  }

  std::vector<TextField*> Fields() const {
    std::vector<TextField*> fields;
    for (Control* control : suite.session.Active()->Controls())
      if (auto* field = dynamic_cast<TextField*>(control); field != nullptr && field->IsVisible())
        fields.push_back(field);
    return fields;
  }

  void Chooses(const std::string& figure) {
    for (Control* control : suite.session.Active()->Controls())
      if (control->GetKind() == Control::Kind::Option && control->Caption() == figure)
        return suite.person.Clicks(*control);
    FAIL() << figure;
  }

  std::string Solves(const Case& given) {
    Chooses(given.figure);
    for (const auto& [caption, text] : given.typed) {
      for (TextField* field : Fields())
        if (field->Caption() == caption) suite.person.Types(*field, text);
    }
    suite.person.Presses(*suite.session.Active(), Key::Enter);
    std::string shown;
    for (const TextField* field : Fields())
      shown += (field == Fields().front() ? "" : " | ") + field->Text();
    return shown;
  }

  ScriptedSession suite{WindowCatalogue(),
                        std::filesystem::read_symlink("/proc/self/exe").parent_path().string()};
};

const Case kAreas[] = {
    {"Square", {{"s", "2"}}, "2 | 2.82842712474619 | 4"},
    {"Square", {{"d", "3"}}, "2.12132034355964 | 3 | 4.5"},
    {"Square", {{"Area", "7"}}, "2.64575131106459 | 3.74165738677394 | 7"},
    {"Rectangle", {{"b", "4"}, {"a", "3"}}, "3 | 4 | 5 | 12"},
    {"Rectangle", {{"d", "13"}, {"a", "5"}}, "5 | 12 | 13 | 60"},
    {"Rectangle", {{"Area", "7"}, {"a", "3"}}, "3 | 2.333333 | 3.80058470153884 | 7"},
    {"Rectangle", {{"a", "8"}, {"d", "10"}}, "8 | 6 | 10 | 48"},
    {"Rectangle", {{"d", "13"}, {"b", "12"}}, "5 | 12 | 13 | 60"},
    {"Rectangle", {{"b", "4"}, {"Area", "10"}}, "2.5 | 4 | 4.7169905660283 | 10"},
    {"Parallelogram", {{"a", "3"}, {"b", "2.5"}}, "3 | 2.5 | 7.5"},
    {"Parallelogram", {{"Area", "10"}, {"b", "4"}}, "2.5 | 4 | 10"},
    {"Parallelogram", {{"a", "4"}, {"Area", "10"}}, "4 | 2.5 | 10"},
    {"Parallelogram", {{"Area", "9"}, {"a", "4"}}, "4 | 2.25 | 9"},
    {"Right Triangle", {{"b", "4"}, {"a", "5"}}, "5 | 4 | 3 | 6"},
    {"Right Triangle", {{"Area", "1"}, {"a", "2"}}, "2 | 1.4142135623731 | 1.4142135623731 | 1"},
    {"Right Triangle", {{"Area", "6"}, {"b", "3"}}, "5 | 3 | 4 | 6"},
    {"Right Triangle", {{"c", "4"}, {"b", "3"}}, "5 | 3 | 4 | "},
    {"Right Triangle", {{"a", "5"}, {"b", "3"}}, "5 | 3 | 4 | 6"},
    {"Right Triangle", {{"a", "13"}, {"c", "5"}}, "13 | 12 | 5 | "},
    {"Right Triangle", {{"Area", "6"}, {"c", "4"}}, "5 | 3 | 4 | 6"},
    {"Right Triangle", {{"b", "3"}, {"c", "4"}}, "4 |  | 4 | "},
    {"Right Triangle", {{"c", "4"}, {"Area", "6"}}, "5 | 3 | 4 | 6"},
    {"Acute Triangle",
     {{"a", "5"}, {"b", "5"}, {"c", "4"}},
     "5 | 5 | 4 | 3.66606055596467 | 9.16515138991168"},
    {"Acute Triangle", {{"b", "4"}, {"h", "3"}}, " | 4 |  | 3 | 6"},
    {"Obtuse Triangle", {{"a", "9"}, {"c", "9"}, {"h", "3"}, {"b", "4"}}, " | 4 |  | 3 | 6"},
    {"Obtuse Triangle", {{"a", "1"}, {"b", "2"}, {"c", "4"}}, "1 | 2 | 4 |  | "},
    {"Obtuse Triangle", {{"Area", "5"}, {"b", "2"}, {"c", "4"}, {"a", "1"}}, "1 | 2 | 4 |  | 5"},
    {"Trapezoid", {{"b", "5"}, {"h", "3"}}, " | 5 | 3 | 7.5"},
    {"Trapezoid", {{"h", "3"}, {"b", "5"}, {"a", "2"}}, "2 | 5 | 3 | 10.5"},
    {"Trapezium",
     {{"b", "2"}, {"c", "3"}, {"h", "4"}, {"H", "6"}, {"a", "5"}},
     "5 | 2 | 3 | 4 | 6 | 38"},
    {"Regular Polygon",
     {{"s", "2"}, {"R", "4"}, {"Number of sides", "6"}},
     "6 |  |  | 4 | 3.87298334620742 | 60 | 120 | 2 | 23.2379000772445"},
    {"Regular Polygon",
     {{"Number of sides", "7"}, {"s", "2"}, {"r", "3"}},
     "7 |  | 6 | 3.16227766016838 | 3 | 51.42857 | 128.5714 | 2 | 21"},
    {"Regular Polygon",
     {{"Number of sides", "4"}, {"R", "5"}, {"d", "8"}},
     "4 |  | 8 | 5 | 4 | 90 | 90 | 6 | 48"},
    {"Regular Polygon",
     {{"Number of sides", "6"}, {"D", "4"}},
     "6 | 4 |  | 2 | 1 | 60 | 120 | 2.00000000000012 | 10.3923048454137"},
    {"Regular Polygon", {{"Number of sides", "2"}, {"R", "4"}}, "2 | 8 |  | 4 |  |  |  |  | "},
    {"Circle", {{"r", "1"}}, "2 | 1 | 6.28318530718 | 3.14159265359"},
    {"Circle", {{"D", "3"}}, "3 | 1.5 | 9.42477796077 | 7.0685834705775"},
    {"Circle",
     {{"Circumference", "10"}},
     "3.1830988618377 | 1.59154943091885 | 10 | 7.95774715459424"},
    {"Circle", {{"Area", "10"}}, "3.56824823230542 | 1.78412411615271 | 11.2099824327962 | 10"},
    {"Circular Sector", {{"a", "60"}, {"L", "3"}}, "3 | 60 | 2.86478901834261 | 4.29718352751391"},
    {"Circular Sector", {{"r", "4"}, {"L", "3"}}, "3 | 42.9718346348089 | 4 | 6"},
    {"Circular Sector", {{"Area", "6"}, {"L", "3"}}, "3 | 42.9718346348089 | 4 | 6"},
    {"Circular Sector", {{"r", "4"}, {"a", "60"}}, "4.18879020478667 | 60 | 4 | 8.37758040957333"},
    {"Circular Sector",
     {{"Area", "6"}, {"a", "60"}},
     "3.54490770181115 | 60 | 3.38513750128643 | 6"},
    {"Circular Sector", {{"Area", "6"}, {"r", "4"}}, "3 | 42.9718346348089 | 4 | 6"},
    {"Circular Sector", {{"L", "3"}, {"a", "60"}}, "3 | 60 | 2.86478901834261 | 4.29718352751391"},
    {"Circular Sector", {{"L", "3"}, {"r", "4"}}, "3 | 42.9718346348089 | 4 | 6"},
    {"Circular Sector", {{"a", "60"}, {"r", "4"}}, "4.18879020478667 | 60 | 4 | 8.37758040957333"},
    {"Circular Segment",
     {{"a", "60"}, {"L", "3"}},
     "3 | 60 | 2.86478901834261 | 2.86478901834212 | 0.383808951975084 | 0.74344130308622"},
    {"Circular Segment",
     {{"r", "4"}, {"L", "3"}},
     "3 | 42.9718346348089 | 4 | 2.93018023268767 | 0.277969512350603 | 0.546889919814444"},
    {"Circular Segment",
     {{"a", "60"}, {"r", "4"}},
     "4.18879020478667 | 60 | 4 | 3.99999999999931 | 0.535898384862048 | 1.44937717929862"},
    {"Circular Segment",
     {{"r", "5"}, {"c", "8"}},
     "9.27298891206739 | 106.260625626607 | 5 | 8 | 2 | 11.1824722801685"},
    {"Circular Segment",
     {{"c", "8"}, {"h", "2"}},
     "9.27298891206739 | 106.260625626607 | 5 | 8 | 2 | 11.1824722801685"},
    {"Circular Segment",
     {{"h", "5"}, {"c", "4"}},
     "13.8073847209073 | 272.794782972881 | 2.9 | 4 | 5 | 24.2207078453156"},
    {"Circular Segment",
     {{"L", "10"}, {"c", "9"}},
     "10 | 90.1472367893478 | 6.35579986183768 | 9 | 1.86734894826499 | 11.5809701981113"},
    {"Circular Segment",
     {{"c", "6"}, {"L", "10"}},
     "10 | 186.4490749561 | 3.0729988618377 | 6 | 3.24585225717936 | 15.8835544952135"},
    {"Circular Ring", {{"I.D.", "4"}, {"O.D.", "6"}}, "6 | 4 | 15.70796326795"},
    {"Circular Ring", {{"O.D.", "6"}}, "6 |  | 28.27433388231"},
    {"Circular Ring", {{"Area", "10"}, {"O.D.", "6"}}, "6 | 4.82365054213603 | 10"},
    {"Circular Ring", {{"Area", "10"}, {"I.D.", "4"}}, "5.36026076299939 | 4 | 10"},
    {"Circular Ring", {{"I.D.", "4"}, {"Area", "10"}}, "5.36026076299939 | 4 | 10"},
    {"Circular Ring", {{"O.D.", "6"}, {"Area", "10"}}, "6 | 4.82365054213603 | 10"},
    {"Ring Segment",
     {{"O.D.", "6"}, {"Radius r", "2"}, {"Angle a (deg)", "90"}},
     "6 | 3 | 4 | 2 | 90 | 4.712388980385 | 3.9269908169875"},
    {"Ring Segment",
     {{"Length L", "3"}, {"I.D.", "4"}, {"Radius R", "3"}},
     "6 | 3 | 4 | 2 | 57.2957795130785 | 3 | 2.5"},
    {"Circular Fillet", {{"Fillet Radius r", "2"}}, "2 | 2.82842712474619 | 0.85840734641"},
    {"Circular Fillet", {{"c", "2"}}, "1.41421356237309 | 2 | 0.429203673205"},
    {"Circular Fillet", {{"Area", "1"}}, "2.15865522173566 | 3.05279949106606 | 1"},
    {"Square", {{"s", "0.1"}}, "0.1 | 0.141421358344652 | 0.0100000002980232"},
    {"Trapezoid", {{"h", "1"}, {"b", "1234567.89"}}, " | 1234568 | 1 | 617283.9"},
};

TEST_F(Figures, Areas) {
  Shows("Areas");
  for (const Case& given : kAreas) EXPECT_EQ(Solves(given), given.shown) << given.figure;
  EXPECT_EQ(suite.Told(), Lines{});
}

const Case kVolumes[] = {
    {"Cube", {{"s", "2"}}, "2 | 24 | 8"},
    {"Cube", {{"Area", "10"}}, "1.29099443334595 | 9.99999976158142 | 2.15165733761041"},
    {"Cube", {{"Volume", "10"}}, "2.15443469003188 | 27.8495330016767 | 10"},
    {"Prism  ( Rectangular )", {{"a", "2"}, {"b", "3"}, {"c", "4"}}, "2 | 3 | 4 | 52 | 24"},
    {"Prism  ( Rectangular )", {{"a", "2"}, {"b", "3"}}, "2 | 3 |  | 12 | "},
    {"Prism  ( Regular Polygon )",
     {{"Number of polygon sides ", "6"}, {"s", "2"}, {"h", "10"}},
     "6 | 2 | 10 | 1.99999999999988 | 1.73205080756874 | 10.3923048454124 | 140.784609690825 | "
     "103.923048454124"},
    {"Prism  ( Regular Polygon )",
     {{"s", "2"}, {"r", "3"}, {"h", "10"}, {"Number of polygon sides ", "6"}},
     "6 | 2 | 10 | 3.16227766016838 | 3 | 18 | 156 | 180"},
    {"Prism  ( Regular Polygon )",
     {{"Number of polygon sides ", "4"}, {"R", "5"}, {"r", "4"}},
     "4 | 6 |  | 5 | 4 | 48 | 96 | "},
    {"Pyramid  (Rectangular Base)",
     {{"a", "3"}, {"b", "4"}, {"h", "6"}},
     "3 | 4 | 6 | 12 | 57.5 | 24"},
    {"Pyramid  (Regular Polygon)",
     {{"Number of polygon sides", "6"}, {"s", "2"}, {"h", "10"}},
     "6 | 2 | 10 | 1.99999999999988 | 1.73205080756874 | 10.3923048454124 | 71.5805390085257 | "
     "34.6410161513748"},
    {"Pyramid Frustrum",
     {{"Area of Top (A1)", "4"}, {"Area of Base (A2)", "9"}, {"Height (h)", "5"}},
     "4 | 9 | 5 | 31.6666666666667"},
    {"Wedge", {{"a", "5"}, {"b", "3"}, {"c", "2"}, {"h", "4"}}, "5 | 3 | 2 | 4 | 24"},
    {"Cylinder",
     {{"d", "4"}, {"h", "3"}},
     "2 | 4 | 3 | 37.69911184308 | 12.56637061436 | 62.8318530718 | 37.69911184308"},
    {"Cylinder Portion 1",
     {{"r", "2"}, {"h1", "3"}, {"h2", "5"}},
     "2 | 4 | 3 | 5 | 50.26548245744 | 50.26548245744"},
    {"Cylinder Portion 2",
     {{"d", "10"}, {"h", "10"}, {"b", "3"}},
     "5 | 10 | 3.99999992668629 | 3 | 10 | 56.3174365143425 | 9.27295193563708 | 84.7735688422176 "
     "| 264.523717329569"},
    {"Cylinder Portion 2",
     {{"r", "5"}, {"b", "-3"}, {"h", "10"}},
     "5 | 10 | 3.99999992668629 |  | 10 | 22.2223798254127 | 22.1429746002608 |  | "},
    {"Cylinder Portion 2",
     {{"r", "5"}, {"h", "10"}, {"b", "5"}},
     "5 | 10 | 5 | 5 | 10 | 39.2699081698748 | 15.70796326795 | 128.53981633975 | "
     "279.682874182707"},
    {"Cylinder Hollow",
     {{"D", "10"}, {"d", "8"}, {"Length  (h)", "6"}},
     "4 | 5 | 8 | 10 | 1 | 6 | 395.84067435234 | 169.64600329386"},
    {"Cylinder Hollow",
     {{"r", "4"}, {"Length  (h)", "6"}, {"Wall Thickness  (t)", "1"}},
     "4 | 5 | 8 | 10 | 1 | 6 | 395.84067435234 | 169.64600329386"},
    {"Cylinder Hollow", {{"D", "10"}, {"Wall Thickness  (t)", "1"}}, "4 | 5 | 8 | 10 | 1 |  |  | "},
    {"Cone", {{"D", "6"}, {"H", "4"}}, "3 | 6 | 4 | 5 | 47.12388980385 | 37.69911184308"},
    {"Cone Frustrum",
     {{"D", "8"}, {"r", "1"}, {"h", "4"}},
     "4 | 8 | 1 | 2 | 4 | 5 | 78.53981633975 | 87.96459430052"},
    {"Sphere", {{"D", "2"}}, "2 | 1 | 12.56637061436 | 4.18879020478667"},
    {"Sphere", {{"Area", "10"}}, "1.78412411615271 | 0.892062058076356 | 10 | 2.97354019358785"},
    {"Sphere", {{"Volume", "10"}}, "2.67300923514389 | 1.33650461757195 | 22.44661156091 | 10"},
    {"Sphere", {{"r", "1"}, {"D", "6"}}, "6 | 3 | 113.09733552924 | 113.09733552924"},
    {"Spherical Sector", {{"r", "5"}, {"h", "2"}}, "5 | 2 | 8 | 125.6637061436 | 104.719755119667"},
    {"Spherical Segment", {{"c", "8"}, {"h", "2"}}, "5 | 2 | 8 | 62.8318530718 | 54.4542724125553"},
    {"Spherical Segment", {{"r", "5"}, {"h", "2"}}, "5 | 2 | 8 | 62.8318530718 | 54.4542746595975"},
    {"Spherical Zone",
     {{"C1", "6"}, {"C2", "8"}, {"h", "1"}},
     "6 | 8 | 1 | 5 | 31.4159265359 | 39.7935069454733"},
    {"Spherical Wedge",
     {{"Wedge Angle in Degrees (a)", "90"}, {"Radius of Sphere (r)", "3"}},
     "90 | 3 | 28.27433388231 | 28.27433388231"},
    {"Hollow Sphere",
     {{"Inside Diameter (d)", "4"}, {"Wall Thickness (R - r)", "1"}},
     "2 | 3 | 4 | 6 | 1 | 79.5870138909467"},
    {"Hollow Sphere",
     {{"Outside Radius (R)", "3"}, {"Wall Thickness (R - r)", "1"}},
     "2 | 3 | 4 | 6 | 1 | 79.5870138909467"},
    {"Hollow Sphere",
     {{"Inside Radius (r)", "2"}, {"Outside Diameter (D)", "6"}},
     "2 | 3 | 4 | 6 | 1 | 79.5870138909467"},
    {"Torus",
     {{"Outside Diameter (O.D.)", "10"}, {"Inside Diameter (I.D.)", "6"}},
     "10 | 6 | 4 | 2 | 1 | 157.913670417451 | 78.9568352087253"},
    {"Torus",
     {{"Centerline Radius (R)", "4"}, {"Radius of Section (r)", "1"}},
     "10 | 6 | 4 | 2 | 1 | 157.913670417451 | 78.9568352087253"},
    {"Torus",
     {{"Outside Diameter (O.D.)", "10"}, {"Ring Thickness (d)", "2"}},
     "10 | 6 |  | 2 | 1 |  | "},
    {"Torus",
     {{"Inside Diameter (I.D.)", "6"}, {"Ring Thickness (d)", "2"}},
     "10 | 6 |  | 2 | 1 |  | "},
};

TEST_F(Figures, Volumes) {
  Shows("Volumes_of_Solids");
  for (const Case& given : kVolumes) EXPECT_EQ(Solves(given), given.shown) << given.figure;
  EXPECT_EQ(suite.Told(), Lines{});
}

// A chord that no arc of this length has: the search goes on to its limit.
TEST_F(Figures, TheSearchOfASegmentEnds) {
  Shows("Areas");
  Solves({"Circular Segment", {{"L", "3000000"}, {"c", "3000001"}}, ""});
  EXPECT_NEAR(ToNumber(*Fields()[2]).Value(), 1e6, 0.1);
}

TEST(FigureSketches, AreLookedForInBothFolders) {
  const TemporaryFolder data, program;
  ScriptedSession suite(WindowCatalogue(), program.Path());
  suite.session.DataPath = data.Path() + "/";
  const auto opens = [&](const char* window) {
    suite.session.Unload(window);
    suite.Told();
    try {
      suite.Shows(window);
    } catch (const ScriptedPlatform::ProgramEnded&) {
    }
    return suite.Told();
  };
  EXPECT_EQ(opens("Areas"), (Lines{"! failure 53 File not found"}));
  EXPECT_EQ(opens("Volumes_of_Solids"), (Lines{"! failure 53 File not found"}));

  program.Write("main.plt", "[SQUARE]\r\nPD;PA10,10;\r\n");
  EXPECT_EQ(opens("Areas"), (Lines{"! shown Areas"}));
  EXPECT_EQ(suite.Get<Picture>("PIC").Shown().shapes.size(), 1U);
  data.Write("MAIN.PLT", "[SQUARES]\r\nPD;PA10,10;\r\n");
  EXPECT_EQ(opens("Areas"), (Lines{"! failure 62 Input past end of file"}));

  program.Write("volumes.plt", "[cube]\r\nPD;PA10,10;\r\n");
  EXPECT_EQ(opens("Volumes_of_Solids"),
            (Lines{"! message Korvane | Data for figure not found in file ----->  Volumes.plt",
                   "! shown Volumes_of_Solids"}));
  EXPECT_EQ(suite.Get<Picture>("Picture1").Shown().shapes.size(), 0U);
}

}  // namespace
}  // namespace korvane::testing
