#include "stress/beam_calc.h"

#include "frame/session.h"
#include "frame/sketch.h"

namespace korvane {
namespace {

constexpr int kLastField = 17;

// Of the picture, in drawing units; the sketches keep a margin of 400 twips.
constexpr double kPictureWidth = 500;
constexpr double kPictureHeight = 240;
constexpr double kMargin = 400 * 96 / 1440.0;

Drawing Blank() { return {kPictureWidth, kPictureHeight, {}}; }

constexpr double kNewtonMeters = 0.001;  // in a newton millimetre

}  // namespace

/// The formulas' view of the fields.
class Beam_Calc::Fields final : public BeamFields {
 public:
  Fields(Beam_Calc& window, Beam theBeam) : BeamFields(theBeam), window_(window) {}

  Single operator()(int field) const override { return ToNumber(window_.Texts(field)); }
  int Last() const override { return window_.LastField; }
  void Derive(int field, Single distance) override { window_.Texts(field).Show(distance); }
  void ClearResults() override { window_.ClearResults(); }

  void Reject(int field, int result, const char* message) override {
    window_.GetSession().Message(message);
    window_.Texts(field).Clear();
    window_.Texts(field).SetFocus();
    window_.Texts(result).Clear();
  }

 private:
  Beam_Calc& window_;
};

Beam_Calc::Beam_Calc(Session& session)
    : CalculatorWindow(session, {.name = "Beam_Calc",
                                 .title = "Stress and Deflection of Beams",
                                 .helpPage = "mechanical_beams_2.html"}) {
  lbl_description.MakeHeading();
  Picture1.Draw(Blank());
  Texts(0).SetText("0");
  const auto movesTo = [this](TextField& from, TextField& to) {
    from.onEnter = [this, &to] {
      to.SetFocus();
      Calculate();
    };
  };
  movesTo(txt_E, txt_I);
  movesTo(txt_I, txt_Z);
  movesTo(txt_Z, Texts(0));
  for (int i = 0; i <= kLastField; ++i)
    Texts(i).onEnter = [this, i] {
      MoveOn(i);
      Calculate();
    };
  ShowsResultsIn({&txt_stress});
  for (int i = kFirstBeamResult; i <= kLastField; ++i) ShowsResultsIn({&Texts(i)});

  btn_select.onClick = [this] { SelectCase(); };
  btn_calculate.onClick = [this] { Calculate(); };
  SetDefault(btn_calculate);
  PrintsWith(Command1);
  HelpsWith(Command2);
  ExitsWith(Command3);
}

// No case has the inputs 7 and 8.
Layout Beam_Calc::Arrangement() {
  std::vector<Layout> inputs, results;
  for (int i = 0; i < kFirstBeamResult - 2; ++i) inputs.emplace_back(Texts(i));
  for (int i = kFirstBeamResult; i <= kLastField; ++i) results.emplace_back(Texts(i));
  return Column(
      {lbl_description,
       Row({Picture1,
            Column({Row({btn_select, Stretch()}),
                    Box(Frame1, {Form({txt_E, txt_I, txt_Z}), Rule(), Form({txt_stress})}),
                    Stretch()})}),
       Box(Frame2, {Row({Column({Form(std::move(inputs)), Stretch()}),
                         Column({Form(std::move(results))})})}),
       Row({btn_calculate, Stretch(), Command1, Command2, Command3})});
}

void Beam_Calc::Load() {
  CalculatorWindow::Load();
  GetSession().CaseNumber = 1;
  CaseName = BeamCaseName(1);
  SetCommonCaptions();
  DrawBeam();
  LayoutCase();
}

const BeamCase& Beam_Calc::Case() const { return BeamCaseOf(GetSession().CaseNumber); }

void Beam_Calc::SelectCase() {
  Session& session = GetSession();
  HideFields();
  txt_stress.Clear();
  Picture1.Draw(Blank());
  const Color back = lbl_description.Back();
  lbl_description.SetBack(Color::Rgb(0xFFFF00));
  lbl_description.SetCaption("I N I T I A L I Z I N G      B E A M      S E L E C T O R");
  session.RunPendingMessages();
  session.ShowModal("Beam_Selector");
  lbl_description.SetBack(back);
  lbl_description.SetCaption("");
  CaseName = BeamCaseName(session.CaseNumber);
  DrawBeam();
  LayoutCase();
}

void Beam_Calc::DrawBeam() {
  Session& session = GetSession();
  session.DataFileName = kBeamSketches;
  const auto sketch = FindSketch(session.ReadTable(kBeamSketches), CaseName);
  if (!sketch) {
    session.Message("Data for '" + CaseName + "' not found in file ----->  Beams.plt");
    return;
  }
  Picture1.Draw(Fitted(ParseSketch(*sketch), kPictureWidth, kPictureHeight, kMargin));
}

// The length in field 0 outlasts a change of the case.
void Beam_Calc::HideFields() {
  for (int i = 1; i <= kLastField; ++i) {
    Labels(i).Hide();
    Texts(i).Clear();
    Texts(i).Hide();
  }
}

void Beam_Calc::LayoutCase() {
  HideFields();
  SetCommonCaptions();
  const BeamCase& chosen = Case();
  lbl_description.SetCaption(chosen.description);
  const auto show = [this](int field, const UnitText& caption) {
    Labels(field).SetCaption(IsMetric() ? caption.metric : caption.us);
    Labels(field).Show();
    Texts(field).Control::Show();
  };
  int field = 0;
  show(field, {"Beam Length L (in)", "Beam Length L (mm)"});
  for (const UnitText& caption : chosen.inputs) show(++field, caption);
  field = kFirstBeamResult;
  for (const UnitText& caption : chosen.results) show(field++, caption);
  txt_E.SetFocus();
}

void Beam_Calc::SetCommonCaptions() {
  const bool metric = IsMetric();
  Label1.SetCaption(metric ? "Modulus of Elasticity (MPa)" : "Modulus of Elasticity (psi)");
  Label2.SetCaption(metric ? "Moment of Inertia (mm4)" : "Moment of Inertia (in4)");
  Label3.SetCaption(metric ? "Section Modulus (mm3)" : "Section Modulus (in3)");
  Label4.SetCaption(metric ? "Maximum Flexural Stress (MPa)" : "Maximum Flexural Stress (psi)");
}

void Beam_Calc::MoveOn(int field) {
  LastField = static_cast<short>(field);
  constexpr int beforeLast = 7;
  if (field < beforeLast && Texts(field + 1).IsVisible()) Texts(field + 1).SetFocus();
}

void Beam_Calc::Calculate() {
  const Beam beam{ToNumber(txt_E), ToNumber(txt_I), ToNumber(Texts(0))};
  const Single Z = ToNumber(txt_Z);
  if (beam.L <= 0) return;
  Fields fields(*this, beam);
  const BeamSolution solution = Case().solve(fields);
  if (solution.results.empty()) return;
  Show(solution);
  if (Z != 0) std::visit([&](auto Mdes) { txt_stress.Show(Mdes / Z, "0.000000"); }, solution.Mdes);
}

void Beam_Calc::Show(const BeamSolution& solution) {
  int field = kFirstBeamResult;
  for (const BeamResult& result : solution.results) {
    const bool scaled = result.isMoment && IsMetric();
    Texts(field++).Show(scaled ? kNewtonMeters * result.value : result.value, "0.000000");
  }
}

void Beam_Calc::ClearResults() {
  for (int i = kFirstBeamResult; i <= kLastField; ++i) Texts(i).Clear();
  txt_stress.Clear();
}

}  // namespace korvane
