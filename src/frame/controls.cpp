#include "frame/controls.h"

#include <algorithm>

#include "frame/session.h"

namespace korvane {

// ---- Control ----

Control::Control(Window& window, std::string name, Kind kind)
    : window_(window), name_(std::move(name)), kind_(kind) {
  window.controls_.push_back(this);
}

void Control::SetCaption(std::string caption) {
  if (caption == caption_) return;
  caption_ = std::move(caption);
  Changed();
}

void Control::SetVisible(bool visible) {
  if (visible == visible_) return;
  visible_ = visible;
  Changed();
  if (!visible) window_.GiveUpFocus(*this);
}

void Control::SetEnabled(bool enabled) {
  if (enabled == enabled_) return;
  enabled_ = enabled;
  Changed();
  if (!enabled) window_.GiveUpFocus(*this);
}

void Control::SetBack(Color back) {
  if (back == back_) return;
  back_ = back;
  Changed();
}

void Control::SetFore(Color fore) {
  if (fore == fore_) return;
  fore_ = fore;
  Changed();
}

void Control::Changed() {
  if (changed_) return;
  changed_ = true;
  window_.changes_.push_back(this);
}

const std::string& Control::InUnits(const UnitText& text) const {
  return window_.GetSession().MetricUnits ? text.metric : text.us;
}

std::string_view KindName(Control::Kind kind) {
  switch (kind) {
    case Control::Kind::Text: return "text";
    case Control::Kind::Combo: return "combo";
    case Control::Kind::List: return "list";
    case Control::Kind::Option: return "option";
    case Control::Kind::Check: return "check";
    case Control::Kind::Command: return "command";
    case Control::Kind::Label: return "label";
    case Control::Kind::Picture: return "picture";
    case Control::Kind::Frame: return "frame";
    case Control::Kind::Timer: return "timer";
    case Control::Kind::Spin: return "spin";
    case Control::Kind::Scroll: return "scroll";
    case Control::Kind::Grid: return "grid";
    case Control::Kind::Page: return "page";
  }
  return "";
}

// ---- Controls that take no focus ----

Label::Label(Window& window, std::string name, const UnitText& caption)
    : Control(window, std::move(name), Kind::Label) {
  caption_ = InUnits(caption);
}

void Label::SetFontSize(int points) {
  if (points == fontSize_) return;
  fontSize_ = points;
  Changed();
}

Picture::Picture(Window& window, std::string name, std::string description, Drawing drawing)
    : Control(window, std::move(name), Kind::Picture), drawing_(std::move(drawing)) {
  caption_ = std::move(description);
}

void Picture::Draw(Drawing drawing) {
  drawing_ = std::move(drawing);
  Changed();
}

Frame::Frame(Window& window, std::string name, const UnitText& caption)
    : Control(window, std::move(name), Kind::Frame) {
  caption_ = InUnits(caption);
}

Timer::Timer(Window& window, std::string name, int milliseconds, Starts starts)
    : Control(window, std::move(name), Kind::Timer), interval_(milliseconds) {
  if (starts == Starts::Disabled) SetEnabled(false);
}

void Timer::Tick() {
  if (!IsEnabled() || ticking_) return;
  ticking_ = true;
  struct Done {
    bool& ticking;
    ~Done() { ticking = false; }
  } done{ticking_};
  if (onTick) onTick();
}

// ---- Focus ----

bool FocusControl::HasFocus() const { return Owner().Focus() == this; }

void FocusControl::SetFocus() { Owner().MoveFocus(this); }

CaptionedControl::CaptionedControl(Window& window, std::string name, Kind kind,
                                   const Beside& caption)
    : FocusControl(window, std::move(name), kind), beside_(caption.control_) {
  if (beside_ == nullptr) {
    own_ = std::make_unique<Label>(window, "", caption.text_);
    beside_ = own_.get();
  }
}

// ---- Text ----

TextField::TextField(Window& window, std::string name, const Beside& caption, const UnitText& text)
    : CaptionedControl(window, std::move(name), Kind::Text, caption), text_(InUnits(text)) {
  SetBack(Color::Window());
}

void TextField::SetText(std::string text) {
  if (text == text_) return;
  text_ = std::move(text);
  Changed();
  if (onChange) onChange();
}

void TextField::SetLocked(bool locked) {
  if (locked == locked_) return;
  locked_ = locked;
  Changed();
}

void TextField::ShadeAsResult(bool shaded) {
  if (shaded == shaded_) return;
  shaded_ = shaded;
  Changed();
}

void TextField::SelectAll() {
  selectAll_ = true;
  Changed();
}

// ---- Choices ----

void Choice::SetItems(std::vector<std::string> items) {
  items_ = std::move(items);
  index_ = -1;
  Changed();
}

void Choice::AddItem(std::string item) {
  items_.push_back(std::move(item));
  Changed();
}

void Choice::Select(int index) {
  if (index < -1 || index >= static_cast<int>(items_.size())) failures::SubscriptOutOfRange();
  index_ = index;
  Chosen();
  Changed();
  if (onSelect) onSelect();
}

const std::string& Choice::Text() const {
  static const std::string none;
  return index_ < 0 ? none : items_[static_cast<std::size_t>(index_)];
}

ListBox::ListBox(Window& window, std::string name, const Beside& caption)
    : Choice(window, std::move(name), Kind::List, caption) {
  SetBack(Color::Window());
}

Combo::Combo(Window& window, std::string name, const Beside& caption,
             std::vector<std::string> items, Style style)
    : Choice(window, std::move(name), Kind::Combo, caption), style_(style) {
  Choice::SetItems(std::move(items));
  SetBack(Color::Window());
}

void Combo::SetItems(std::vector<std::string> items) {
  Choice::SetItems(std::move(items));
  text_.clear();
}

void Combo::SetText(std::string text) {
  const auto entry = std::find(items_.begin(), items_.end(), text);
  index_ = entry == items_.end() ? -1 : static_cast<int>(entry - items_.begin());
  if (text == text_) return;
  text_ = std::move(text);
  Changed();
  if (onChange) onChange();
}

void Combo::Chosen() { text_ = Choice::Text(); }

const std::string* TextOf(const Control& control) {
  if (const auto* field = dynamic_cast<const TextField*>(&control)) return &field->Text();
  if (const auto* choice = dynamic_cast<const Choice*>(&control)) return &choice->Text();
  return nullptr;
}

// ---- Commands, options, check boxes ----

Command::Command(Window& window, std::string name, const UnitText& caption)
    : FacedControl(window, std::move(name), Kind::Command) {
  caption_ = InUnits(caption);
}

void Command::Click() {
  if (onClick) onClick();
}

void FacedControl::ShowFace(Drawing face) {
  face_ = std::move(face);
  Changed();
}

Option::Option(OptionGroup& group, std::string name, const UnitText& caption)
    : FacedControl(group.Owner(), std::move(name), Kind::Option), group_(group) {
  caption_ = InUnits(caption);
  group.options_.push_back(this);
  if (group.chosen_ == nullptr) group.chosen_ = this;
}

void Option::TurnOn() {
  if (!IsOn()) Click();
}

void Option::Click() {
  if (Option* before = std::exchange(group_.chosen_, this); before != this) {
    before->Changed();
    Changed();
  }
  if (onClick) onClick();
}

bool Option::IsTabStop() const { return CanFocus() && IsOn(); }

CheckBox::CheckBox(Window& window, std::string name, const UnitText& caption)
    : FocusControl(window, std::move(name), Kind::Check) {
  caption_ = InUnits(caption);
}

void CheckBox::Set(bool on) {
  if (on == on_) return;
  on_ = on;
  Changed();
  if (onClick) onClick();
}

// ---- Steppers ----

SpinButton::SpinButton(Window& window, std::string name, TextField& field)
    : FocusControl(window, std::move(name), Kind::Spin), field_(field) {}

ScrollBar::ScrollBar(Window& window, std::string name, const Beside& caption, int least, int most,
                     int start)
    : CaptionedControl(window, std::move(name), Kind::Scroll, caption),
      least_(least),
      most_(most),
      value_(start) {}

void ScrollBar::SetValue(int value) {
  if (value < least_ || value > most_) failures::InvalidCall();
  if (value == value_) return;
  value_ = value;
  Changed();
  if (onChange) onChange();
}

// ---- Grid ----

Grid::Grid(Window& window, std::string name, const Beside& caption)
    : CaptionedControl(window, std::move(name), Kind::Grid, caption) {
  SetBack(Color::Window());
}

void Grid::SetContent(Table table) {
  table_ = std::move(table);
  ++version_;
  row_ = table_.fixedRows;
  column_ = table_.fixedColumns;
  Changed();
}

void Grid::SetCurrent(int row, int column) {
  table_.At(row, column);  // fails out of bounds
  row_ = row;
  column_ = column;
  Changed();
}

// ---- Pages ----

PageView::PageView(Window& window, std::string name)
    : FocusControl(window, std::move(name), Kind::Page) {
  SetBack(Color::Window());
}

const std::string& PageView::Address() const {
  static const std::string none;
  return history_.empty() ? none : history_[at_];
}

void PageView::Navigate(const std::string& address) {
  if (history_.empty() || history_[at_] != address) {
    if (!history_.empty()) history_.resize(at_ + 1);
    history_.push_back(address);
    at_ = history_.size() - 1;
  }
  Reload();
}

void PageView::Reload() {
  navigates_ = true;
  Changed();
}

void PageView::Back() {
  if (at_ == 0) return;
  --at_;
  Reload();
}

void PageView::Forward() {
  if (at_ + 1 >= history_.size()) return;
  ++at_;
  Reload();
}

void PageView::Arrived() {
  if (onArrived) onArrived();
}

}  // namespace korvane
