#include "frame/person.h"

#include <algorithm>
#include <iterator>

#include "frame/entry_grid.h"

namespace korvane {

bool Person::Focuses(FocusControl& control) const {
  const Session::Hold hold(session_);
  const bool done = Handle([&] {
    session_.Activate(control.Owner());
    control.SetFocus();
  });
  return done && control.Owner().IsShown() && control.CanFocus();
}

void Person::Edits(TextField& field, std::string text) const {
  Handle([&] {
    if (field.HasFocus() && !field.IsLocked()) field.SetText(std::move(text));
  });
}

void Person::Edits(Combo& combo, std::string text) const {
  Handle([&] {
    if (combo.HasFocus() && combo.IsEditable()) combo.SetText(std::move(text));
  });
}

void Person::Types(FocusControl& control, std::string text) const {
  const Session::Hold hold(session_);
  if (!Focuses(control)) return;
  if (auto* field = dynamic_cast<TextField*>(&control))
    Edits(*field, std::move(text));
  else if (auto* combo = dynamic_cast<Combo*>(&control))
    Edits(*combo, std::move(text));
  else if (auto* grid = dynamic_cast<EntryGrid*>(&control))
    Handle([&] { grid->Enter(text); });
}

namespace {

/// Enter in the control in focus: its own action, else what the window's default command does.
void PressEnter(Window& window) {
  FocusControl* control = window.Focus();
  if (auto* command = dynamic_cast<Command*>(control)) {
    command->Click();
    return;
  }
  if (auto* grid = dynamic_cast<EntryGrid*>(control)) {
    grid->MoveOn();
    return;
  }
  const Handler* own = nullptr;
  if (auto* field = dynamic_cast<TextField*>(control)) own = &field->onEnter;
  if (auto* combo = dynamic_cast<Combo*>(control)) own = &combo->onEnter;
  if (own != nullptr && *own) {
    (*own)();
  } else if (window.DefaultCommand() != nullptr && window.DefaultCommand()->CanFocus()) {
    window.DefaultCommand()->Click();
  }
}

void PressInControl(Window& window, Key key) {
  switch (key) {
    case Key::Enter: PressEnter(window); break;
    case Key::Tab: window.FocusNext(+1); break;
    case Key::BackTab: window.FocusNext(-1); break;
    case Key::CtrlC:
      if (auto* grid = dynamic_cast<Grid*>(window.Focus()); grid != nullptr && grid->onCopy)
        grid->onCopy();
      break;
    case Key::Delete:
      if (auto* grid = dynamic_cast<EntryGrid*>(window.Focus())) grid->ClearCell();
      break;
    case Key::F1: break;
  }
}

}  // namespace

void Person::Presses(Window& window, Key key) const {
  Handle([&] {
    session_.Activate(window);
    if (!window.KeyPreview(key)) PressInControl(window, key);
  });
}

void Person::Clicks(Control& control) const {
  const Session::Hold hold(session_);
  if (!control.IsVisible() || !control.IsEnabled()) return;
  if (auto* target = dynamic_cast<FocusControl*>(&control)) {
    if (!Focuses(*target)) return;
  }
  Handle([&] {
    session_.Activate(control.Owner());
    if (auto* command = dynamic_cast<Command*>(&control))
      command->Click();
    else if (auto* option = dynamic_cast<Option*>(&control))
      option->Click();
    else if (auto* check = dynamic_cast<CheckBox*>(&control))
      check->Click();
    else if (auto* label = dynamic_cast<Label*>(&control); label != nullptr && label->onClick)
      label->onClick();
    else if (auto* picture = dynamic_cast<Picture*>(&control);
             picture != nullptr && picture->onClick)
      picture->onClick();
  });
}

void Person::Selects(Choice& choice, int index) const {
  const Session::Hold hold(session_);
  if (!Focuses(choice)) return;
  Handle([&] { choice.Select(index); });
}

void Person::Spins(SpinButton& spin, bool up) const {
  const Session::Hold hold(session_);
  if (!Focuses(spin)) return;
  Handle([&] {
    const Handler& handler = up ? spin.onUp : spin.onDown;
    if (handler) handler();
  });
}

void Person::Scrolls(ScrollBar& bar, int value) const {
  const Session::Hold hold(session_);
  if (!Focuses(bar)) return;
  Handle([&] { bar.SetValue(std::clamp(value, bar.Least(), bar.Most())); });
}

void Person::Points(Grid& grid, int row, int column) const {
  const Session::Hold hold(session_);
  if (!Focuses(grid)) return;
  Handle([&] { grid.SetCurrent(row, column); });
}

void Person::RightClicks(Grid& grid) const {
  const Session::Hold hold(session_);
  if (!Focuses(grid)) return;
  Handle([&] {
    if (grid.onRightClick) grid.onRightClick();
  });
}

void Person::RightClicks(Picture& picture) const {
  Handle([&] {
    if (picture.onRightClick) picture.onRightClick();
  });
}

void Person::RightClicks(Window& window) const {
  Handle([&] { window.RightClicked(); });
}

void Person::Follows(PageView& view, std::string address) const {
  Handle([&] {
    if (view.onFollow) view.onFollow(address);
  });
}

void Person::Activates(Window& window) const {
  Handle([&] { session_.Activate(window); });
}

void Person::Closes(Window& window) const {
  Handle([&] { session_.Unload(window); });
}

void Person::Places(Window& window, const Geometry& geometry, Window::State state) const {
  Handle([&] {
    const bool resized = geometry.width != window.geometry_.width ||
                         geometry.height != window.geometry_.height || state != window.state_;
    window.geometry_ = geometry;
    window.state_ = state;
    if (resized) window.Resized();
  });
}

void Person::DoubleClicks(Window& window) const {
  Handle([&] { window.DoubleClicked(); });
}

void Person::Picks(MenuEntry& entry) const {
  Handle([&] {
    if (entry.onClick) entry.onClick();
  });
}

void Person::Waits(Timer& timer) const {
  Handle([&] { timer.Tick(); });
}

void Person::Arrives(PageView& view) const {
  Handle([&] { view.Arrived(); });
}

std::string CleanPaste(std::string_view text) {
  struct Replacement {
    std::string_view from, to;
  };
  // No-break, figure, thin and narrow no-break space, minus sign, and line ends.
  constexpr Replacement replacements[] = {{"\u00A0", " "}, {"\u2007", " "}, {"\u2009", " "},
                                          {"\u202F", " "}, {"\u2212", "-"}, {"\r", ""},
                                          {"\n", ""}};
  std::string clean;
  while (!text.empty()) {
    const auto* match = std::find_if(
        std::begin(replacements), std::end(replacements),
        [text](const Replacement& replacement) { return text.starts_with(replacement.from); });
    const bool replaced = match != std::end(replacements);
    clean += replaced ? match->to : text.substr(0, 1);
    text.remove_prefix(replaced ? match->from.size() : 1);
  }
  const auto first = clean.find_first_not_of(" \t");
  if (first == std::string::npos) return "";
  return clean.substr(first, clean.find_last_not_of(" \t") - first + 1);
}

}  // namespace korvane
