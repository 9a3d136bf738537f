#include "frame/entry_grid.h"

#include <algorithm>

#include "frame/person.h"

namespace korvane {
namespace {

constexpr int kHeadings = 1;  // rows, and columns, that stand fixed
constexpr int kEmptyRows = 2;
constexpr double kNumbersWidth = 700, kCellsWidth = 1500;  // twips
constexpr int kCentre = 4, kRight = 7;                     // codes of alignment

std::string_view NextLine(std::string_view& text) {
  const auto end = std::min(text.find('\n'), text.size());
  const std::string_view line = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return line;
}

/// Tabs part cells where there are any, else semicolons, else commas and blanks.
std::vector<std::string> CellsOf(std::string_view line) {
  const bool tabs = line.find('\t') != std::string_view::npos;
  const bool semicolons = line.find(';') != std::string_view::npos;
  std::string text = tabs ? std::string(line) : CleanPaste(line);
  const std::string_view parting = tabs ? "\t" : semicolons ? ";" : ",";
  if (!tabs && !semicolons && text.find(',') == std::string::npos) {
    const auto end =
        std::unique(text.begin(), text.end(), [](char a, char b) { return a == ' ' && b == ' '; });
    text.erase(end, text.end());
    std::ranges::replace(text, ' ', ',');
  }
  std::vector<std::string> cells;
  for (std::size_t at = 0; at <= text.size();) {
    const auto end = std::min(text.find(parting, at), text.size());
    cells.push_back(CleanPaste(std::string_view(text).substr(at, end - at)));
    at = end + 1;
  }
  return cells;
}

bool IsEmpty(const std::vector<std::string>& row) {
  return std::ranges::all_of(row, &std::string::empty);
}

void DropEmptyEnd(EntryGrid::Rows& rows) {
  while (!rows.empty() && IsEmpty(rows.back())) rows.pop_back();
}

EntryGrid::Rows BlockOf(std::string_view text) {
  EntryGrid::Rows block;
  while (!text.empty()) block.push_back(CellsOf(NextLine(text)));
  DropEmptyEnd(block);
  if (block.empty()) block.push_back({""});
  return block;
}

}  // namespace

EntryGrid::EntryGrid(Window& window, std::string name, const Beside& caption,
                     std::vector<std::string> headings)
    : Grid(window, std::move(name), caption), headings_(std::move(headings)) {
  Take({}, kHeadings, kHeadings);
}

void EntryGrid::SetEntries(Rows rows) { Take(std::move(rows), kHeadings, kHeadings); }

void EntryGrid::Enter(std::string_view text) {
  // A comma within one number parts its thousands, as it does in fields.
  const std::string alone = CleanPaste(text);
  const bool one = text.find_first_of("\t\n") == std::string_view::npos && Accepts(alone);
  Rows block = one ? Rows{{alone}} : BlockOf(text);
  const auto isWord = [this](const std::string& cell) { return !Accepts(cell); };
  if (block.size() > 1 && !IsEmpty(block.front()) && std::ranges::all_of(block.front(), isWord))
    block.erase(block.begin());
  if (const std::string* fault = FaultIn(block)) {
    if (onRefuse) onRefuse(*fault);
    return;
  }
  Put(block);
}

const std::string* EntryGrid::FaultIn(const Rows& block) const {
  for (const std::vector<std::string>& row : block)
    for (std::size_t i = 0; i < row.size(); ++i)
      if (!Accepts(row[i]) || (i >= Width() && !row[i].empty())) return &row[i];
  return nullptr;
}

void EntryGrid::Put(const Rows& block) {
  const bool one = block.size() == 1 && block.front().size() == 1;
  const bool wide =
      std::ranges::any_of(block, [this](const auto& row) { return row.size() >= Width(); });
  const auto firstRow = static_cast<std::size_t>(Row() - kHeadings);
  const auto firstColumn = wide ? 0 : static_cast<std::size_t>(Column() - kHeadings);
  Rows rows = rows_;
  rows.resize(std::max(rows.size(), firstRow + block.size()));
  for (std::size_t i = 0; i < block.size(); ++i) {
    std::vector<std::string>& row = rows[firstRow + i];
    row.resize(Width());
    for (std::size_t j = 0; j < block[i].size() && firstColumn + j < Width(); ++j)
      row[firstColumn + j] = block[i][j];
    // An empty line parts what stands above and below it.
    if (!one && IsEmpty(block[i])) std::ranges::fill(row, "");
  }
  Take(std::move(rows), one ? Row() : Row() + static_cast<int>(block.size()),
       one ? Column() : kHeadings);
}

void EntryGrid::InsertRow() {
  const auto at = static_cast<std::size_t>(Row() - kHeadings);
  Rows rows = rows_;
  if (at < rows.size()) rows.emplace(rows.begin() + (Row() - kHeadings));
  Take(std::move(rows), Row(), kHeadings);
}

void EntryGrid::DeleteRow() {
  const auto at = static_cast<std::size_t>(Row() - kHeadings);
  Rows rows = rows_;
  if (at < rows.size()) rows.erase(rows.begin() + (Row() - kHeadings));
  Take(std::move(rows), Row(), Column());
}

void EntryGrid::MoveOn() {
  if (Column() + 1 < Content().columns)
    SetCurrent(Row(), Column() + 1);
  else if (Row() + 1 < Content().rows)
    SetCurrent(Row() + 1, kHeadings);
}

void EntryGrid::GoBehind(int gap) {
  SetCurrent(kHeadings + static_cast<int>(rows_.size()) + gap, kHeadings);
}

void EntryGrid::Take(Rows rows, int row, int column) {
  for (std::vector<std::string>& cells : rows) cells.resize(Width());
  DropEmptyEnd(rows);
  const bool changed = rows != rows_;
  rows_ = std::move(rows);

  Table table;
  table.title = Caption();
  table.rows = kHeadings + static_cast<int>(rows_.size()) + kEmptyRows;
  table.columns = kHeadings + static_cast<int>(Width());
  table.fixedRows = table.fixedColumns = kHeadings;
  table.widths.assign(static_cast<std::size_t>(table.columns), kCellsWidth);
  table.widths.front() = kNumbersWidth;
  table.alignments.assign(static_cast<std::size_t>(table.columns), kRight);
  table.alignments.front() = kCentre;
  table.texts.emplace_back();
  table.texts.insert(table.texts.end(), headings_.begin(), headings_.end());
  for (int i = kHeadings; i < table.rows; ++i) {
    table.texts.push_back(std::to_string(i));
    const auto at = static_cast<std::size_t>(i - kHeadings);
    if (at < rows_.size())
      table.texts.insert(table.texts.end(), rows_[at].begin(), rows_[at].end());
    else
      table.texts.resize(table.texts.size() + Width());
  }
  SetContent(std::move(table));
  SetCurrent(std::min(row, Content().rows - 1), column);
  if (changed && onChange) onChange();
}

}  // namespace korvane
