#include "driver/verbs.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <filesystem>

#include "frame/entry_grid.h"
#include "frame/files.h"
#include "frame/names.h"
#include "frame/person.h"

namespace korvane {
namespace {

std::string YesNo(bool yes) { return yes ? "1" : "0"; }

std::string Joined(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += (&line == lines.data() ? "" : "\n") + line;
  return text;
}

std::string Written(Color color) {
  switch (color.role) {
    case Color::Role::ButtonFace: return "button-face";
    case Color::Role::Window: return "window";
    case Color::Role::Text: return "text";
    case Color::Role::Fixed: break;
  }
  char text[8];
  std::snprintf(text, sizeof text, "%06X", color.rgb);
  return text;
}

/// A flag as the program keeps it: -1 or 0.
std::string Flag(bool on) { return on ? "-1" : "0"; }

struct GlobalSetting {
  std::string_view name;
  std::string (*read)(const Session&);
};

constexpr GlobalSetting kGlobals[] = {
    {"MetricUnits", [](const Session& s) { return Flag(s.MetricUnits); }},
    {"ImperialUnits", [](const Session& s) { return Flag(s.ImperialUnits); }},
    {"UnitsName", [](const Session& s) { return s.UnitsName; }},
    {"AppPath", [](const Session& s) { return s.AppPath; }},
    {"DataPath", [](const Session& s) { return s.DataPath; }},
    {"DataFileName", [](const Session& s) { return s.DataFileName; }},
    {"HelpTopic", [](const Session& s) { return s.HelpTopic; }},
    {"HelpFolder", [](const Session& s) { return s.HelpFolder; }},
    {"VersionText", [](const Session& s) { return s.VersionText; }},
    {"HelpContextId", [](const Session& s) { return std::to_string(s.HelpContextId); }},
    {"AboutMode", [](const Session& s) { return Flag(s.AboutMode); }},
    {"RemoteVersionText", [](const Session& s) { return s.RemoteVersionText; }},
    {"CaseNumber", [](const Session& s) { return std::to_string(s.CaseNumber); }},
    {"ShapeSection", [](const Session& s) { return s.ShapeSection; }},
    {"ShapeTitle", [](const Session& s) { return s.ShapeTitle; }},
    {"ShapeMaterial", [](const Session& s) { return s.ShapeMaterial; }},
    {"TubingMaterial", [](const Session& s) { return s.TubingMaterial; }},
    {"TubingShape", [](const Session& s) { return s.TubingShape; }},
    {"CaptureWidth", [](const Session& s) { return std::to_string(s.CaptureWidth); }},
    {"CaptureHeight", [](const Session& s) { return std::to_string(s.CaptureHeight); }},
    {"CaptureX", [](const Session& s) { return std::to_string(s.CaptureX); }},
    {"CaptureY", [](const Session& s) { return std::to_string(s.CaptureY); }},
};

struct KeyName {
  std::string_view name;
  Key key;
};
constexpr KeyName kKeys[] = {
    {"F1", Key::F1},       {"Tab", Key::Tab},      {"Shift+Tab", Key::BackTab},
    {"Enter", Key::Enter}, {"Ctrl+C", Key::CtrlC}, {"Delete", Key::Delete}};

}  // namespace

const Verbs::Entry Verbs::kEntries[] = {
    {"reset", &Verbs::Reset},     {"units", &Verbs::Units},     {"data", &Verbs::Data},
    {"menu", &Verbs::Menu},       {"show", &Verbs::Show},       {"use", &Verbs::Use},
    {"unload", &Verbs::Unload},   {"answer", &Verbs::Answer},   {"focus", &Verbs::Focus},
    {"type", &Verbs::Type},       {"enter", &Verbs::Enter},     {"key", &Verbs::PressKey},
    {"click", &Verbs::Click},     {"select", &Verbs::Select},   {"pick", &Verbs::Pick},
    {"spin", &Verbs::Spin},       {"scroll", &Verbs::Scroll},   {"tick", &Verbs::Tick},
    {"text", &Verbs::Text},       {"caption", &Verbs::Caption}, {"visible", &Verbs::Visible},
    {"enabled", &Verbs::Enabled}, {"locked", &Verbs::Locked},   {"checked", &Verbs::Checked},
    {"items", &Verbs::Items},     {"index", &Verbs::Index},     {"back", &Verbs::Back},
    {"cell", &Verbs::Cell},       {"rows", &Verbs::Rows},       {"columns", &Verbs::Columns},
    {"title", &Verbs::Title},     {"focused", &Verbs::Focused}, {"controls", &Verbs::Controls},
    {"global", &Verbs::Global},   {"setting", &Verbs::Setting}, {"windows", &Verbs::Windows},
    {"dump", &Verbs::Dump},       {"point", &Verbs::PointAt},
};

Verbs::Verbs(Interpreter& interpreter, std::string_view line)
    : interpreter_(interpreter), session_(*interpreter.session_), rest_(line) {}

std::string Verbs::Perform() {
  const std::string_view verb = Word();
  for (const Entry& entry : kEntries)
    if (entry.name == verb) return (this->*entry.perform)();
  throw NotUnderstood{"no such verb"};
}

// ---- Arguments ----

std::string_view Verbs::Word() {
  const auto end = std::min(rest_.find(' '), rest_.size());
  const std::string_view word = rest_.substr(0, end);
  rest_.remove_prefix(std::min(end + 1, rest_.size()));
  return word;
}

std::string Verbs::Rest() { return Unescaped(std::exchange(rest_, {})); }

int Verbs::Number(std::string_view word) const {
  int number = 0;
  const char* end = word.data() + word.size();
  const auto result = std::from_chars(word.data(), end, number);
  if (result.ec != std::errc{} || result.ptr != end) throw NotUnderstood{"not a whole number"};
  return number;
}

Window& Verbs::InUse() const {
  Window* window = interpreter_.InUse();
  if (window == nullptr) throw NotUnderstood{"no window is open"};
  return *window;
}

template <class Kind>
Kind& Verbs::Take(const char* expected) {
  Control* control = InUse().Find(Word());
  if (control == nullptr) throw NotUnderstood{"no such control"};
  auto* typed = dynamic_cast<Kind*>(control);
  if (typed == nullptr) throw NotUnderstood{std::string("not ") + expected};
  return *typed;
}

template <class Kind>
Kind& Verbs::TakeUsable(const char* expected) {
  Kind& control = Take<Kind>(expected);
  if (!control.IsVisible()) throw NotUnderstood{"hidden"};
  if (!control.IsEnabled()) throw NotUnderstood{"disabled"};
  return control;
}

Window& Verbs::OpenWindow(std::string_view name) const {
  Window* window = session_.Find(name);
  if (window == nullptr || !window->IsShown()) throw NotUnderstood{"no such window is open"};
  return *window;
}

void Verbs::RequireNoModal() const {
  if (session_.Modal() != nullptr) throw NotUnderstood{"a modal window is open"};
}

// ---- Session ----

std::string Verbs::Reset() { throw Interpreter::Restart(); }

std::string Verbs::Units() {
  const std::string_view units = Word();
  if (units != "US" && units != "SI") throw NotUnderstood{"US or SI"};
  rest_ = units == "SI" ? "SI_Metric" : "Imperial";
  const std::string before = interpreter_.inUse_;
  Menu();
  interpreter_.inUse_ = before;
  return Nothing();
}

std::string Verbs::Data() {
  if (rest_.empty()) throw NotUnderstood{"no folder"};
  std::string folder = std::filesystem::absolute(Rest()).string();
  if (!folder.ends_with(kSeparator)) folder += kSeparator;
  session_.DataPath = folder;
  return Nothing();
}

std::string Verbs::Menu() {
  RequireNoModal();
  Window* main = session_.Find("MAINFORM");
  MenuEntry* entry = main != nullptr ? main->Menu()->Find(Rest()) : nullptr;
  if (entry == nullptr) throw NotUnderstood{"no such menu entry"};
  if (!main->Menu()->IsReachable(*entry)) throw NotUnderstood{"disabled"};
  const Person person(session_);
  person.Activates(*main);  // a menu is clicked in the window in front
  person.Picks(*entry);
  if (session_.Active() != nullptr) interpreter_.inUse_ = session_.Active()->Name();
  return Nothing();
}

std::string Verbs::Show() {
  RequireNoModal();
  const std::string name = Rest();
  if (!session_.IsKnown(name)) throw NotUnderstood{"no such window"};
  session_.Handle([&] {
    if (session_.IsModalUnit(name))
      session_.ShowModal(name);
    else
      interpreter_.inUse_ = session_.Show(name).Name();
  });
  return Nothing();
}

std::string Verbs::Use() {
  Window& window = OpenWindow(Rest());
  if (&window != session_.Modal()) RequireNoModal();
  Person(session_).Activates(window);
  interpreter_.inUse_ = window.Name();
  return Nothing();
}

std::string Verbs::Unload() {
  Window& window = OpenWindow(Rest());
  if (&window != session_.Modal()) RequireNoModal();
  Person(session_).Closes(window);
  return Nothing();
}

std::string Verbs::Answer() {
  struct AnswerName {
    std::string_view name;
    korvane::Answer answer;
  };
  constexpr AnswerName kAnswers[] = {{"ok", korvane::Answer::Ok},
                                     {"yes", korvane::Answer::Yes},
                                     {"no", korvane::Answer::No},
                                     {"cancel", korvane::Answer::Cancel}};
  const std::string_view kind = Word();
  if (kind == "file") {
    interpreter_.platform_.QueueFile(Rest());
    return Nothing();
  }
  for (const AnswerName& entry : kAnswers) {
    if (entry.name == kind) {
      interpreter_.platform_.Queue(entry.answer);
      return Nothing();
    }
  }
  throw NotUnderstood{"ok, yes, no, cancel or file"};
}

// ---- What a person does ----

std::string Verbs::Focus() {
  Person(session_).Focuses(TakeUsable<FocusControl>("a control that takes the focus"));
  return Nothing();
}

std::string Verbs::Type() {
  auto& control = TakeUsable<CaptionedControl>("a field");
  const auto* combo = dynamic_cast<const Combo*>(&control);
  if (control.GetKind() != Control::Kind::Text && (combo == nullptr || !combo->IsEditable()) &&
      dynamic_cast<const EntryGrid*>(&control) == nullptr)
    throw NotUnderstood{"not a field"};
  Person(session_).Types(control, Rest());
  return Nothing();
}

std::string Verbs::Enter() {
  auto& control = TakeUsable<FocusControl>("a control that takes the focus");
  Window& window = control.Owner();
  const Session::Hold hold(session_);
  if (Person(session_).Focuses(control)) Person(session_).Presses(window, Key::Enter);
  return Nothing();
}

std::string Verbs::PressKey() {
  const std::string name = Rest();
  for (const KeyName& entry : kKeys) {
    if (entry.name == name) {
      Person(session_).Presses(InUse(), entry.key);
      return Nothing();
    }
  }
  throw NotUnderstood{"no such key"};
}

std::string Verbs::Click() {
  auto& control = TakeUsable<Control>("a control");
  const bool shows =
      control.GetKind() == Control::Kind::Label || control.GetKind() == Control::Kind::Picture;
  if (!shows && dynamic_cast<const FocusControl*>(&control) == nullptr)
    throw NotUnderstood{"not a control that can be clicked"};
  Person(session_).Clicks(control);
  return Nothing();
}

std::string Verbs::Select() {
  auto& choice = TakeUsable<Choice>("a list");
  const auto& items = choice.Items();
  const auto found = std::find(items.begin(), items.end(), Rest());
  if (found == items.end()) throw NotUnderstood{"no such entry"};
  Person(session_).Selects(choice, static_cast<int>(found - items.begin()));
  return Nothing();
}

std::string Verbs::Pick() {
  auto& choice = TakeUsable<Choice>("a list");
  const int index = Number(Word());
  if (index < 0 || index >= static_cast<int>(choice.Items().size()))
    throw NotUnderstood{"no such entry"};
  Person(session_).Selects(choice, index);
  return Nothing();
}

/// The cell of a grid that typing goes to.
std::string Verbs::PointAt() {
  auto& grid = TakeUsable<Grid>("a grid");
  const int row = Number(Word());
  const int column = Number(Word());
  const Table& table = grid.Content();
  if (row < table.fixedRows || row >= table.rows || column < table.fixedColumns ||
      column >= table.columns)
    throw NotUnderstood{"no such cell"};
  Person(session_).Points(grid, row, column);
  return Nothing();
}

std::string Verbs::Spin() {
  auto& spin = TakeUsable<SpinButton>("a spin button");
  const std::string_view direction = Word();
  if (direction != "up" && direction != "down") throw NotUnderstood{"up or down"};
  Person(session_).Spins(spin, direction == "up");
  return Nothing();
}

std::string Verbs::Scroll() {
  auto& bar = TakeUsable<ScrollBar>("a scroll bar");
  Person(session_).Scrolls(bar, Number(Word()));
  return Nothing();
}

std::string Verbs::Tick() {
  Person(session_).Waits(Take<Timer>("a timer"));
  return Nothing();
}

// ---- Questions ----

std::string Verbs::Text() {
  const std::string* text = TextOf(Take<Control>("a control"));
  if (text == nullptr) throw NotUnderstood{"not a field, list or combo"};
  return *text;
}

std::string Verbs::Caption() { return Take<Control>("a control").Caption(); }
std::string Verbs::Visible() { return YesNo(Take<Control>("a control").IsVisible()); }
std::string Verbs::Enabled() { return YesNo(Take<Control>("a control").IsEnabled()); }
std::string Verbs::Locked() { return YesNo(Take<TextField>("a field").IsLocked()); }

std::string Verbs::Checked() {
  const auto& control = Take<Control>("a control");
  if (const auto* option = dynamic_cast<const Option*>(&control)) return YesNo(option->IsOn());
  if (const auto* check = dynamic_cast<const CheckBox*>(&control)) return YesNo(check->IsOn());
  throw NotUnderstood{"not an option or check box"};
}

std::string Verbs::Items() { return Joined(Take<Choice>("a list").Items()); }
std::string Verbs::Index() { return std::to_string(Take<Choice>("a list").Index()); }
std::string Verbs::Back() { return Written(Take<Control>("a control").Back()); }

std::string Verbs::Cell() {
  const Table& table = Take<Grid>("a grid").Content();
  const int row = Number(Word());
  const int column = Number(Word());
  if (row < 0 || row >= table.rows || column < 0 || column >= table.columns)
    throw NotUnderstood{"no such cell"};
  return table.At(row, column);
}

std::string Verbs::Rows() { return std::to_string(Take<Grid>("a grid").Content().rows); }
std::string Verbs::Columns() { return std::to_string(Take<Grid>("a grid").Content().columns); }
std::string Verbs::Title() { return InUse().Title(); }

std::string Verbs::Focused() {
  const FocusControl* focus = InUse().Focus();
  return focus != nullptr ? focus->Name() : "";
}

std::string Verbs::Controls() {
  std::vector<std::string> lines;
  for (const Control* control : InUse().Controls())
    if (!control->Name().empty())
      lines.push_back(control->Name() + ' ' + std::string(KindName(control->GetKind())));
  return Joined(lines);
}

std::string Verbs::Global() {
  const std::string name = Rest();
  for (const GlobalSetting& global : kGlobals)
    if (SameName(global.name, name)) return global.read(session_);
  throw NotUnderstood{"no such setting"};
}

std::string Verbs::Setting() { return interpreter_.platform_.Setting(Rest()).value_or(""); }

std::string Verbs::Windows() {
  std::vector<std::string> names;
  for (const Window* window : session_.Windows()) names.push_back(window->Name());
  return Joined(names);
}

std::string Verbs::Dump() {
  for (const Control* control : InUse().Controls()) {
    const std::string* text = control->IsVisible() ? TextOf(*control) : nullptr;
    if (text != nullptr) interpreter_.output_("! text " + control->Name() + ' ' + Escaped(*text));
  }
  return Nothing();
}

}  // namespace korvane
