// A table file as a plain value.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace korvane {

/// Texts in rows and columns, of which the first may be fixed.
struct Table {
  std::string title;
  int rows = 0;
  int columns = 0;
  int fixedRows = 0;
  int fixedColumns = 0;
  std::vector<double> widths;   ///< twips, one a column
  std::vector<int> alignments;  ///< one a column: left, centre, right (0, 3, 6) with top, centre,
                                ///< bottom (0, 1, 2) added; 9 is general
  std::vector<std::string> texts;  ///< row by row, fixed ones included

  /// Fails with "Subscript out of range".
  const std::string& At(int row, int column) const;
};

/// Reads a table from the bytes of its file, front to back:
///   a line that is ignored, a line with the title, then delimited fields: rows, columns, fixed
///   rows, fixed columns; the widths; the alignments; the cells row by row. What follows is not
///   read.
/// Fails with "Input past end of file" if it ends too soon, "Type mismatch" for what should be a
/// number, and "Invalid procedure call or argument" for fewer rows or columns than fixed ones.
Table ParseTable(std::string_view bytes);

}  // namespace korvane
