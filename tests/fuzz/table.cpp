// A table file of any bytes: a whole table or one of its failures.
#include "frame/table.h"

#include "frame/codepage.h"
#include "frame/runtime_failure.h"
#include "fuzz.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace korvane;
  try {
    const Table table = ParseTable(Bytes(data, size));
    Require(table.fixedRows >= 0 && table.fixedRows <= table.rows);
    Require(table.fixedColumns >= 0 && table.fixedColumns <= table.columns);
    const auto columns = static_cast<std::size_t>(table.columns);
    Require(table.widths.size() == columns && table.alignments.size() == columns);
    Require(table.texts.size() == static_cast<std::size_t>(table.rows) * columns);
    for (const std::string& text : table.texts) Require(IsUtf8(text));
    if (!table.texts.empty())
      Require(&table.At(table.rows - 1, table.columns - 1) == &table.texts.back());
  } catch (const RuntimeFailure& failure) {
    const int number = failure.Number();
    Require(number == 5 || number == 6 || number == 13 || number == 62);
  }
  return 0;
}
