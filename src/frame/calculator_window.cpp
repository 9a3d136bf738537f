#include "frame/calculator_window.h"

#include "frame/session.h"

namespace korvane {

CalculatorWindow::CalculatorWindow(Session& session, CalculatorTraits traits)
    : Window(session, {std::move(traits.name), std::move(traits.title), traits.sizable}),
      helpPage_(std::move(traits.helpPage)) {}

void CalculatorWindow::Load() {
  GetSession().HelpTopic = helpPage_;
  ApplyFormColors(*this);
}

void CalculatorWindow::Activated() { GetSession().HelpTopic = helpPage_; }

bool CalculatorWindow::KeyPreview(Key key) {
  if (key != Key::F1) return false;
  GetSession().ShowHelp();
  return true;
}

void CalculatorWindow::HelpsWith(Command& command) {
  command.onClick = [this] { GetSession().ShowHelp(); };
}

void CalculatorWindow::ExitsWith(Command& command) {
  command.onClick = [this] { GetSession().Unload(*this); };
}

void CalculatorWindow::PrintsWith(Command& command) {
  command.onClick = [this] { GetSession().PrintWindow(*this); };
}

void CalculatorWindow::SavesWith(Command& command, const DataFile& data) {
  command.onClick = [this, &data] { SaveData(GetSession(), data); };
}

void CalculatorWindow::LoadsWith(Command& command, const DataFile& data) {
  command.onClick = [this, &data] { LoadData(GetSession(), data); };
}

void CalculatorWindow::CopiesWith(Command& command, const TextField& field) {
  command.onClick = [this, &field] { GetSession().GetPlatform().SetClipboard(field.Text()); };
}

void CalculatorWindow::CopiesWith(Command& command, std::vector<const CaptionedControl*> controls,
                                  const Label* heading) {
  command.onClick = [this, controls = std::move(controls), heading] {
    std::string text = Title() + '\n';
    if (heading != nullptr) text += heading->Caption() + '\n';
    for (const CaptionedControl* control : controls)
      text += control->Caption() + '\t' + *TextOf(*control) + '\n';
    GetSession().GetPlatform().SetClipboard(text);
  };
}

bool CalculatorWindow::IsMetric() const { return GetSession().MetricUnits; }

void CalculatorWindow::SolvesWith(Command& command, std::initializer_list<TextField*> fields,
                                  const Handler& solve) {
  command.onClick = solve;
  for (TextField* field : fields) field->onEnter = solve;
}

void CalculatorWindow::ComputesAndMovesOn(std::initializer_list<TextField*> fields,
                                          const Handler& compute) {
  for (TextField* field : fields)
    field->onEnter = [this, compute] {
      compute();
      GetSession().SendTab();
    };
}

void CalculatorWindow::FollowsTyping(TextField& field, const Handler& follow) {
  field.onChange = [&field, follow] {
    if (field.HasFocus()) follow();
  };
}

void CalculatorWindow::PassesFocusOn(const std::vector<TextField*>& fields) {
  for (TextField* field : fields) {
    field->MakeResult();
    field->onFocus = [this] { GetSession().SendTab(); };
  }
}

void CalculatorWindow::ShowsResultsIn(std::initializer_list<TextField*> fields) {
  for (TextField* field : fields) field->ShadeAsResult();
}

void CalculatorWindow::SelectsOnFocus(std::initializer_list<TextField*> fields) {
  for (TextField* field : fields) field->onFocus = [field] { field->SelectAll(); };
}

void ApplyFormColors(Window& window) {
  window.SetBack(Color::ButtonFace());
  for (Control* control : window.Controls()) {
    switch (control->GetKind()) {
      case Control::Kind::Label:
      case Control::Kind::Frame:
      case Control::Kind::Option:
      case Control::Kind::Check: control->SetBack(Color::ButtonFace()); break;
      default: break;
    }
  }
}

}  // namespace korvane
