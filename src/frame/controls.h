// The named controls that windows are made of.
//
// A control holds its own state; what code does to it (SetText, SetVisible, Choose) is one road,
// what the person does (Person, see person.h) the other. Both run the handlers below, and every
// change reaches the toolkit through Window::Changed.
#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "frame/color.h"
#include "frame/drawing.h"
#include "frame/mask.h"
#include "frame/number_text.h"
#include "frame/table.h"

namespace korvane {

class Window;

using Handler = std::function<void()>;

/// A text in both unit systems; given once where it is the same in both.
struct UnitText {
  std::string us;
  std::string metric;

  UnitText(const char* both = "") : us(both), metric(both) {}
  UnitText(std::string both) : us(both), metric(std::move(both)) {}
  UnitText(std::string usText, std::string metricText)
      : us(std::move(usText)), metric(std::move(metricText)) {}
};

class Control {
 public:
  enum class Kind : std::uint8_t {
    Text,
    Combo,
    List,
    Option,
    Check,
    Command,
    Label,
    Picture,
    Frame,
    Timer,
    Spin,
    Scroll,
    Grid,
    Page,
  };

  /// A control registers itself with its window, in the order of construction.
  Control(Window& window, std::string name, Kind kind);
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  const std::string& Name() const { return name_; }
  Kind GetKind() const { return kind_; }
  Window& Owner() const { return window_; }

  /// What the control says; of a field, list or combo what the caption beside it says.
  virtual const std::string& Caption() const { return caption_; }
  void SetCaption(std::string caption);

  bool IsVisible() const { return visible_; }
  void SetVisible(bool visible);
  void Show() { SetVisible(true); }
  void Hide() { SetVisible(false); }

  bool IsEnabled() const { return enabled_; }
  void SetEnabled(bool enabled);

  Color Back() const { return back_; }
  void SetBack(Color back);
  Color Fore() const { return fore_; }
  void SetFore(Color fore);

 protected:
  void Changed();
  /// The text of the unit system in which the window is loaded.
  const std::string& InUnits(const UnitText& text) const;

  std::string caption_;

 private:
  friend class Window;

  Window& window_;
  std::string name_;
  Kind kind_;
  bool visible_ = true;
  bool enabled_ = true;
  bool changed_ = false;  // awaits the toolkit's next refresh
  Color back_ = Color::ButtonFace();
  Color fore_ = Color::Text();
};

/// "text", "command" and so on, as the driver lists them.
std::string_view KindName(Control::Kind kind);

class Label : public Control {
 public:
  Label(Window& window, std::string name, const UnitText& caption = {});

  /// Points; 0 is the platform's own size.
  int FontSize() const { return fontSize_; }
  void SetFontSize(int points);
  bool IsHeading() const { return heading_; }
  /// Set apart by weight.
  void MakeHeading() { heading_ = true; }

  Handler onClick;

 private:
  int fontSize_ = 0;
  bool heading_ = false;
};

class Picture : public Control {
 public:
  Picture(Window& window, std::string name, std::string description, Drawing drawing = {});

  const Drawing& Shown() const { return drawing_; }
  void Draw(Drawing drawing);

  /// Fills the space that the window leaves, at whatever scale, instead of having a size of its
  /// own.
  bool FillsSpace() const { return fillsSpace_; }
  void FillSpace() { fillsSpace_ = true; }

  Handler onClick;
  Handler onRightClick;

 private:
  Drawing drawing_;
  bool fillsSpace_ = false;
};

class Frame : public Control {
 public:
  Frame(Window& window, std::string name, const UnitText& caption = {});
};

/// Ticks while it is enabled; never while its own handler runs.
class Timer : public Control {
 public:
  enum class Starts : bool { Disabled, Enabled };

  Timer(Window& window, std::string name, int milliseconds, Starts starts);

  int Interval() const { return interval_; }
  void Tick();

  Handler onTick;

 private:
  int interval_;
  bool ticking_ = false;
};

/// A control that can take the keyboard's focus.
class FocusControl : public Control {
 public:
  using Control::Control;

  bool CanFocus() const { return IsVisible() && IsEnabled(); }
  /// Whether the Tab key stops here.
  virtual bool IsTabStop() const { return CanFocus(); }
  bool HasFocus() const;
  /// Moves the focus here; the field that had it is left first. Nothing if it can't take it.
  void SetFocus();

  Handler onFocus;
  Handler onLeave;
};

/// What stands beside a field as its caption: a label or a frame of the window with a name of its
/// own, or a text, which then gets a label without a name.
class Beside {
 public:
  Beside(Control& caption) : control_(&caption) {}
  Beside(UnitText text) : text_(std::move(text)) {}
  Beside(const char* text) : text_(text) {}

 private:
  friend class CaptionedControl;
  Control* control_ = nullptr;
  UnitText text_;
};

class CaptionedControl : public FocusControl {
 public:
  CaptionedControl(Window& window, std::string name, Kind kind, const Beside& caption);

  const std::string& Caption() const override { return beside_->Caption(); }
  Control& CaptionBeside() const { return *beside_; }

 private:
  std::unique_ptr<Label> own_;
  Control* beside_;
};

class TextField : public CaptionedControl {
 public:
  TextField(Window& window, std::string name, const Beside& caption, const UnitText& text = {});

  const std::string& Text() const { return text_; }
  /// Code writes the text. A text that is there already is no write.
  void SetText(std::string text);
  void Show(Double value, Mask mask) { SetText(Format(value, mask)); }
  /// A value that may never have been set: see FormatUnlessUnset.
  void ShowUnlessUnset(const std::optional<Double>& value, Mask mask) {
    SetText(FormatUnlessUnset(value, mask));
  }
  void Show(Double value) { SetText(PlainText(value)); }
  void Show(Single value) { SetText(PlainText(value)); }
  using Control::Show;
  void Clear() { SetText(""); }

  bool IsLocked() const { return locked_; }
  void SetLocked(bool locked);

  /// Asks the toolkit to select the whole text.
  void SelectAll();
  bool TakeSelectAll() { return std::exchange(selectAll_, false); }

  /// Only shows a result: the focus does not stay here, and the screen sets it apart from inputs.
  /// The person may still select and copy the text.
  bool IsResult() const { return result_; }
  void MakeResult() { result_ = shaded_ = true; }
  /// Looks like a result, but the person may type in it.
  bool IsShaded() const { return shaded_; }
  void ShadeAsResult(bool shaded = true);

  /// Holds words rather than a number: an address, a heading.
  bool IsFreeText() const { return freeText_; }
  void MakeFreeText() { freeText_ = true; }

  /// A text of several lines to read, in the room that its window leaves.
  bool HasLines() const { return lines_; }
  void MakeLines() { lines_ = freeText_ = locked_ = true; }

  Handler onChange;
  Handler onEnter;

 private:
  std::string text_;
  bool freeText_ = false;
  bool lines_ = false;
  bool locked_ = false;
  bool result_ = false;
  bool shaded_ = false;
  bool selectAll_ = false;
};

/// A list or combo: entries, of which one may be chosen.
class Choice : public CaptionedControl {
 public:
  using CaptionedControl::CaptionedControl;

  const std::vector<std::string>& Items() const { return items_; }
  virtual void SetItems(std::vector<std::string> items);
  void AddItem(std::string item);
  /// The chosen entry, from 0; -1 for none.
  int Index() const { return index_; }
  /// Code chooses an entry (-1: none), which is handled as a selection. An index past the end
  /// fails.
  void Select(int index);
  virtual const std::string& Text() const;  ///< of the chosen entry

  /// Its entries are columns made of blanks.
  bool HasFixedPitch() const { return fixedPitch_; }
  void MakeFixedPitch() { fixedPitch_ = true; }

  Handler onSelect;

 protected:
  virtual void Chosen() {}

  std::vector<std::string> items_;
  int index_ = -1;

 private:
  bool fixedPitch_ = false;
};

class ListBox : public Choice {
 public:
  ListBox(Window& window, std::string name, const Beside& caption);

  /// As large as its entries, so that nothing scrolls.
  bool ShowsAll() const { return all_; }
  void ShowAll() { all_ = true; }

 private:
  bool all_ = false;
};

class Combo : public Choice {
 public:
  enum class Style : bool { Fixed, Editable };

  Combo(Window& window, std::string name, const Beside& caption,
        std::vector<std::string> items = {}, Style style = Style::Fixed);

  bool IsEditable() const { return style_ == Style::Editable; }
  void SetItems(std::vector<std::string> items) override;
  const std::string& Text() const override { return text_; }
  /// Code writes the text; the entry of that text, if there is one, becomes the chosen one. Handled
  /// as a change, not as a selection.
  void SetText(std::string text);

  Handler onChange;
  Handler onEnter;

 private:
  void Chosen() override;

  std::string text_;
  Style style_;
};

/// What a field, list or combo holds; null for other controls.
const std::string* TextOf(const Control& control);

/// Something to click, which can show a picture; its caption is then its tool tip.
class FacedControl : public FocusControl {
 public:
  using FocusControl::FocusControl;

  const Drawing& Face() const { return face_; }
  void ShowFace(Drawing face);

 private:
  Drawing face_;
};

class Command : public FacedControl {
 public:
  Command(Window& window, std::string name, const UnitText& caption);
  void Click();

  Handler onClick;
};

class Option;

/// A frame whose options exclude one another. The first one is on when the window opens.
class OptionGroup : public Frame {
 public:
  using Frame::Frame;

  const std::vector<Option*>& Options() const { return options_; }
  Option* Chosen() const { return chosen_; }

 private:
  friend class Option;
  std::vector<Option*> options_;
  Option* chosen_ = nullptr;
};

/// One that shows a picture is nothing but that, so the picture tells whether it is on.
class Option : public FacedControl {
 public:
  Option(OptionGroup& group, std::string name, const UnitText& caption);

  OptionGroup& Group() const { return group_; }
  bool IsOn() const { return group_.chosen_ == this; }
  /// Code turns the option on; its click is handled only if it was off.
  void TurnOn();
  /// The person clicks it; the click is handled always.
  void Click();
  bool IsTabStop() const override;

  Handler onClick;

 private:
  OptionGroup& group_;
};

class CheckBox : public FocusControl {
 public:
  CheckBox(Window& window, std::string name, const UnitText& caption);

  bool IsOn() const { return on_; }
  /// Code sets the mark; handled as a click if it changes.
  void Set(bool on);
  void Click() { Set(!on_); }

  Handler onClick;

 private:
  bool on_ = false;
};

class SpinButton : public FocusControl {
 public:
  /// Stands beside the field that it steps.
  SpinButton(Window& window, std::string name, TextField& field);

  TextField& Field() const { return field_; }
  /// The keyboard steps from within the field.
  bool IsTabStop() const override { return false; }

  Handler onUp;
  Handler onDown;

 private:
  TextField& field_;
};

class ScrollBar : public CaptionedControl {
 public:
  ScrollBar(Window& window, std::string name, const Beside& caption, int least, int most,
            int start);

  int Least() const { return least_; }
  int Most() const { return most_; }
  int Value() const { return value_; }
  /// A change by code or by the person; a value out of the range is an invalid call.
  void SetValue(int value);

  Handler onChange;

 private:
  int least_;
  int most_;
  int value_;
};

class Grid : public CaptionedControl {
 public:
  Grid(Window& window, std::string name, const Beside& caption);

  const Table& Content() const { return table_; }
  /// Counts the contents that the grid has had, so that a view knows when to read anew.
  int Version() const { return version_; }
  void SetContent(Table table);
  int Row() const { return row_; }
  int Column() const { return column_; }
  void SetCurrent(int row, int column);
  const std::string& CurrentText() const { return table_.At(row_, column_); }

  Handler onCopy;
  Handler onRightClick;

 private:
  Table table_;
  int version_ = 0;
  int row_ = 0;
  int column_ = 0;
};

/// A view of help pages, with its history.
class PageView : public FocusControl {
 public:
  PageView(Window& window, std::string name);

  /// The folder whose pages are shown; no other file is.
  const std::string& Folder() const { return folder_; }
  void SetFolder(std::string folder) { folder_ = std::move(folder); }

  /// The page that is shown, or about to be; empty before the first.
  const std::string& Address() const;
  void Navigate(const std::string& address);
  void Reload();
  void Back();     ///< nothing at the first page of the history
  void Forward();  ///< nothing at the last one

  /// Whether a page is to be shown that has not been asked for yet.
  bool TakeNavigation() { return std::exchange(navigates_, false); }
  /// The view has shown the page.
  void Arrived();

  Handler onArrived;
  /// A link was clicked.
  std::function<void(const std::string&)> onFollow;

 private:
  std::string folder_;
  std::vector<std::string> history_;
  std::size_t at_ = 0;
  bool navigates_ = false;
};

/// Elements T(0), T(1), ... of one name.
template <class Element>
class ControlArray {
 public:
  /// Each element is made from the window, its name and the further arguments; of an array among
  /// them, such as that of the captions, each takes the one of its own index.
  template <class... Arguments>
  ControlArray(Window& window, const std::string& name, int first, int last,
               const Arguments&... arguments)
      : first_(first) {
    for (int i = first; i <= last; ++i)
      elements_.push_back(std::make_unique<Element>(window, name + '(' + std::to_string(i) + ')',
                                                    Of(arguments, i)...));
  }

  /// An index out of bounds fails with "Subscript out of range".
  Element& operator()(int index) const {
    if (index < first_ || index >= first_ + static_cast<int>(elements_.size()))
      failures::SubscriptOutOfRange();
    return *elements_[static_cast<std::size_t>(index - first_)];
  }

 private:
  template <class Argument>
  static const Argument& Of(const Argument& argument, int) {
    return argument;
  }
  template <class Other>
  static Other& Of(const ControlArray<Other>& array, int index) {
    return array(index);
  }

  int first_;
  std::vector<std::unique_ptr<Element>> elements_;
};

inline Single ToNumber(const TextField& field) { return ToNumber(field.Text()); }
inline Single ToNumber(const Choice& choice) { return ToNumber(choice.Text()); }
inline Double Strict(const TextField& field) { return Strict(field.Text()); }

}  // namespace korvane
