// The table viewers: a table file in a grid that fills the window.
#pragma once

#include "frame/window.h"

namespace korvane {

/// Shows the table that `DataFileName` names. It is read once, at load; a file that is not there or
/// malformed fails.
class DISPLAY : public Window {
 public:
  explicit DISPLAY(Session& session) : DISPLAY(session, "DISPLAY") {}

  void Load() override;
  void Resized() override;
  void RightClicked() override;
  bool KeyPreview(Key key) override;

 protected:
  DISPLAY(Session& session, const char* name);

  /// Height above the grid, in twips.
  virtual int Headroom() const { return 0; }
  Layout Arrangement() override;

  Grid Grid1{*this, "Grid1", "Table"};

 private:
  void TakeSize(const Table& table);
};

/// The viewer with a dimensioned sketch of a motor above the grid, which bears the letters of the
/// table's columns.
class DISPLAY2 final : public DISPLAY {
 public:
  explicit DISPLAY2(Session& session);

 private:
  int Headroom() const override { return 1440; }
  Layout Arrangement() override;

  Picture AC_MTR;
};

}  // namespace korvane
