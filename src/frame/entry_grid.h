// A grid that a person fills in: typed cell by cell, or pasted from a spreadsheet.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "frame/controls.h"

namespace korvane {

/// Numbered rows below one row of headings. Two empty rows follow the last that holds something:
/// one to go on in, one to leave a gap.
class EntryGrid final : public Grid {
 public:
  using Rows = std::vector<std::vector<std::string>>;

  EntryGrid(Window& window, std::string name, const Beside& caption,
            std::vector<std::string> headings);

  /// Up to the last row that holds something, each as wide as the headings.
  const Rows& Entries() const { return rows_; }
  void SetEntries(Rows rows);

  /// One that a cell may hold goes into the current cell. Of others rows are parted by line ends,
  /// cells by tabs, semicolons, commas or blanks, and go into the current cell and those behind and
  /// below it; rows as wide as the grid begin in its first column, and a heading above numbers is
  /// left out. All of it is taken, or nothing.
  void Enter(std::string_view text);
  void ClearCell() { Enter(""); }
  void InsertRow();  ///< an empty one above the current
  void DeleteRow();
  void MoveOn();           ///< to the next cell, at a row's end in the next row
  void GoBehind(int gap);  ///< below the last entry, that many rows left empty between

  /// Whether a cell may hold this text; the empty one it may always.
  std::function<bool(const std::string&)> accepts;
  /// A text was not taken; its first cell at fault.
  std::function<void(const std::string&)> onRefuse;
  Handler onChange;

 private:
  std::size_t Width() const { return headings_.size(); }
  bool Accepts(const std::string& cell) const { return cell.empty() || !accepts || accepts(cell); }
  const std::string* FaultIn(const Rows& block) const;
  void Put(const Rows& block);
  void Take(Rows rows, int row, int column);

  std::vector<std::string> headings_;
  Rows rows_;
};

}  // namespace korvane
