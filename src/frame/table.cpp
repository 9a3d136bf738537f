#include "frame/table.h"

#include <cstdint>

#include "frame/codepage.h"
#include "frame/delimited.h"
#include "frame/runtime_failure.h"

namespace korvane {

const std::string& Table::At(int row, int column) const {
  if (row < 0 || row >= rows || column < 0 || column >= columns) failures::SubscriptOutOfRange();
  return texts[static_cast<std::size_t>(row) * static_cast<std::size_t>(columns) +
               static_cast<std::size_t>(column)];
}

Table ParseTable(std::string_view bytes) {
  const std::string text = FromCodePage(bytes);
  DelimitedReader reader(text);
  const auto count = [&reader] { return ToInteger32(reader.Number()); };

  Table table;
  reader.Line();
  table.title = reader.Line();
  table.rows = count();
  table.columns = count();
  table.fixedRows = count();
  table.fixedColumns = count();
  if (table.fixedRows < 0 || table.fixedColumns < 0 || table.rows < table.fixedRows ||
      table.columns < table.fixedColumns)
    failures::InvalidCall();

  for (int column = 0; column < table.columns; ++column)
    table.widths.push_back(reader.Number().Value());
  for (int column = 0; column < table.columns; ++column) table.alignments.push_back(count());
  // Nothing is taken for cells before they are read: a file may declare more than it holds.
  const std::int64_t cells = std::int64_t{table.rows} * table.columns;
  for (std::int64_t cell = 0; cell < cells; ++cell) table.texts.push_back(reader.Text());
  return table;
}

}  // namespace korvane
