// What a person does to windows. The toolkit and the driver both speak through this, so that the
// same handlers run in the same order on the screen, in scripts and in tests.
#pragma once

#include <string>
#include <string_view>

#include "frame/session.h"

namespace korvane {

class Person {
 public:
  explicit Person(Session& session) : session_(session) {}

  // In windows.
  /// Whether the control can be used now: leaving the field that had the focus may fail, close the
  /// window, or hide or disable this control.
  bool Focuses(FocusControl& control) const;
  /// Changes the text of the field in focus, as by one paste or key; nothing if it is locked.
  void Edits(TextField& field, std::string text) const;
  void Edits(Combo& combo, std::string text) const;
  /// Focus, then the whole text is replaced; in a grid that of the current cell, or what a paste
  /// brings from there on.
  void Types(FocusControl& control, std::string text) const;
  void Presses(Window& window, Key key) const;
  /// Commands, options and check boxes take the focus first; labels and pictures take none.
  void Clicks(Control& control) const;
  void Selects(Choice& choice, int index) const;
  void Spins(SpinButton& spin, bool up) const;
  void Scrolls(ScrollBar& bar, int value) const;
  void Points(Grid& grid, int row, int column) const;
  void RightClicks(Grid& grid) const;
  void RightClicks(Picture& picture) const;
  void RightClicks(Window& window) const;
  void Follows(PageView& view, std::string address) const;

  // To windows.
  void Activates(Window& window) const;
  void Closes(Window& window) const;
  void Places(Window& window, const Geometry& geometry, Window::State state) const;
  void DoubleClicks(Window& window) const;
  void Picks(MenuEntry& entry) const;

  // Not the person's doing, but the clock's and the page view's.
  void Waits(Timer& timer) const;
  void Arrives(PageView& view) const;

 private:
  bool Handle(const Handler& event) const { return session_.Handle(event); }

  Session& session_;
};

/// A text as a paste should bring it: blanks around and line ends removed, no-break and thin spaces
/// as blanks, U+2212 as a minus sign. Typed text is never touched.
std::string CleanPaste(std::string_view text);

}  // namespace korvane
