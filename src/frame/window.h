// A window as a model: named controls, focus, keys and life cycle, with no toolkit.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "frame/controls.h"
#include "frame/layout.h"
#include "frame/menu.h"
#include "frame/number.h"

namespace korvane {

class Session;

enum class Key : std::uint8_t { Enter, Tab, BackTab, F1, CtrlC, Delete };

struct WindowTraits {
  std::string name;
  std::string title;
  bool sizable = false;
};

/// Place and size of the whole window with its frame, in twips (1/1440 inch).
struct Geometry {
  Single left;
  Single top;
  Single width;
  Single height;

  bool operator==(const Geometry&) const = default;
};

class Window {
 public:
  enum class State : std::uint8_t { Normal, Minimized, Maximized };

  Window(Session& session, WindowTraits traits);
  virtual ~Window() = default;
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;

  Session& GetSession() const { return session_; }
  const std::string& Name() const { return traits_.name; }
  bool IsSizable() const { return traits_.sizable; }
  const std::string& Title() const { return traits_.title; }
  void SetTitle(std::string title);
  Color Back() const { return back_; }
  void SetBack(Color back);

  /// All controls in the order of their construction; those without a name included.
  const std::vector<Control*>& Controls() const { return controls_; }
  /// A control by its name in any case; null if there is none.
  Control* Find(std::string_view name) const;

  // What a window tells of itself.
  virtual Layout Arrangement() = 0;
  /// The menu bar, for the one window that has one.
  virtual MenuBar* Menu() { return nullptr; }

  // Handlers of the window.
  virtual void Load() {}       ///< runs once, after construction and before the window is shown
  virtual void Activated() {}  ///< it has come to the front
  virtual void Resized() {}    ///< its size changed, or it is shown for the first time
  virtual void DoubleClicked() {}
  virtual void RightClicked() {}  ///< on the window's own ground
  virtual void Unloaded() {}      ///< runs once, before it goes
  /// Sees every key before the controls do; true clears the key.
  virtual bool KeyPreview(Key) { return false; }

  // Focus. The model leads; the toolkit follows.
  FocusControl* Focus() const { return focus_; }
  /// Leaves the field in focus, then arrives at this one. Handlers may move the focus elsewhere.
  void MoveFocus(FocusControl* target);
  void FocusNext(int step);
  const std::vector<FocusControl*>& TabOrder() const { return tabOrder_; }
  /// The command that Enter performs in a field with no action of its own; drawn as the default.
  Command* DefaultCommand() const { return default_; }
  void SetDefault(Command& command) { default_ = &command; }

  /// The command that the Escape key performs.
  Command* CancelCommand() const { return cancel_; }
  void SetCancel(Command& command) { cancel_ = &command; }

  bool IsShown() const { return shown_; }
  State GetState() const { return state_; }
  const Geometry& GetGeometry() const { return geometry_; }
  /// A size in twips that the window is given by its design instead of by its layout; 0: by layout.
  bool HasOwnSize() const { return ownSize_; }
  void SetSize(Single width, Single height);
  /// Widens and heightens the window to the least size, where it is below.
  void HoldLeastSize(Single width, Single height);
  /// Places the window; one that is never placed opens centred on the screen.
  void MoveTo(Single left, Single top);
  bool HasOwnPlace() const { return ownPlace_; }

  /// The layout as it was made when the window was loaded.
  const Layout& GetLayout() const { return layout_; }

 protected:
  /// The window itself, not only its controls, has changed: the toolkit draws it anew.
  void Changed() { changed_ = true; }

 private:
  friend class Control;
  friend class Person;
  friend class Session;

  void Prepare();                            // after construction: layout and tab order
  void GiveUpFocus(const Control& control);  // it can't be typed in any more
  void AddToTabOrder(const Layout& layout);
  std::vector<Control*> TakeChanges();

  Session& session_;
  WindowTraits traits_;
  Layout layout_{Layout::Kind::Column};
  std::vector<Control*> controls_;
  std::vector<FocusControl*> tabOrder_;
  std::vector<Control*> changes_;
  FocusControl* focus_ = nullptr;
  bool arrived_ = false;  // a field that the focus has not come to rest in is not left
  Command* default_ = nullptr;
  Command* cancel_ = nullptr;
  Geometry geometry_;
  Color back_ = Color::ButtonFace();
  State state_ = State::Normal;
  bool ownSize_ = false;
  bool ownPlace_ = false;
  bool shown_ = false;
  bool wasShown_ = false;
  bool changed_ = false;
};

}  // namespace korvane
