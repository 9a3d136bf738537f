#include "toolkit/grid_view.h"

#include <QAbstractItemDelegate>
#include <QAbstractTableModel>
#include <QApplication>
#include <QClipboard>
#include <QFontMetrics>
#include <QGridLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPalette>
#include <QScrollBar>
#include <QStyle>
#include <QTableView>
#include <array>
#include <functional>
#include <utility>

#include "frame/entry_grid.h"
#include "toolkit/text.h"
#include "toolkit/twips.h"

namespace korvane {
namespace {

/// The grid's alignment code: left, centre, right by top, centre, bottom. 9 is general, as all
/// others: numbers to the right, texts to the left.
Qt::Alignment AlignmentOf(int code, const QString& text) {
  constexpr Qt::Alignment across[] = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight};
  constexpr Qt::Alignment down[] = {Qt::AlignTop, Qt::AlignVCenter, Qt::AlignBottom};
  if (code >= 0 && code <= 8) return across[code / 3] | down[code % 3];
  bool number = false;
  text.toDouble(&number);
  return (number ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
}

/// A rectangle of the grid's table: rows and columns from a first one up to a last one exclusive.
class PaneModel final : public QAbstractTableModel {
 public:
  PaneModel(const Grid& grid, bool fixedRows, bool fixedColumns)
      : grid_(grid), fixedRows_(fixedRows), fixedColumns_(fixedColumns) {}

  void Reload() {
    beginResetModel();
    rows_ = RowsNow();
    endResetModel();
  }

  /// Brings the cells up to date with their editors left open: rows come and go at the end.
  void Follow() {
    const int rows = RowsNow();
    if (rows > rows_) {
      beginInsertRows({}, rows_, rows - 1);
      rows_ = rows;
      endInsertRows();
    } else if (rows < rows_) {
      beginRemoveRows({}, rows, rows_ - 1);
      rows_ = rows;
      endRemoveRows();
    }
    if (rows > 0 && columnCount() > 0)
      emit dataChanged(index(0, 0), index(rows - 1, columnCount() - 1));
  }

  /// What a person's text in a cell does; without it, no cell can be typed in.
  std::function<void(int row, int column, const QString& text)> onEdit;

  int FirstRow() const { return fixedRows_ ? 0 : grid_.Content().fixedRows; }
  int FirstColumn() const { return fixedColumns_ ? 0 : grid_.Content().fixedColumns; }

  int rowCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : rows_;
  }

  int columnCount(const QModelIndex& parent = {}) const override {
    const Table& table = grid_.Content();
    return parent.isValid() ? 0
           : fixedColumns_  ? table.fixedColumns
                            : table.columns - table.fixedColumns;
  }

  QVariant data(const QModelIndex& index, int role) const override {
    const int row = FirstRow() + index.row();
    const int column = FirstColumn() + index.column();
    switch (role) {
      case Qt::DisplayRole:
      case Qt::EditRole: return TextAt(row, column);
      case Qt::TextAlignmentRole: {
        const int code = grid_.Content().alignments[static_cast<std::size_t>(column)];
        return QVariant(AlignmentOf(code, TextAt(row, column)));
      }
      case Qt::BackgroundRole:
        return fixedRows_ || fixedColumns_
                   ? QVariant(QApplication::palette().brush(QPalette::Button))
                   : QVariant();
      default: return {};
    }
  }

  Qt::ItemFlags flags(const QModelIndex& index) const override {
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    return onEdit ? flags | Qt::ItemIsEditable : flags;
  }

  bool setData(const QModelIndex& index, const QVariant& value, int role) override {
    if (role != Qt::EditRole || !onEdit || !index.isValid()) return false;
    onEdit(FirstRow() + index.row(), FirstColumn() + index.column(), value.toString());
    return true;
  }

  /// What stands fixed above a column or beside a row. The views hide their headers, but screen
  /// readers tell by them where a cell is.
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
    if (role != Qt::DisplayRole) return {};
    const Table& table = grid_.Content();
    QStringList texts;
    if (orientation == Qt::Horizontal)
      for (int row = 0; row < table.fixedRows; ++row) texts << TextAt(row, FirstColumn() + section);
    else
      for (int column = 0; column < table.fixedColumns; ++column)
        texts << TextAt(FirstRow() + section, column);
    return texts.join(' ');
  }

 private:
  int RowsNow() const {
    const Table& table = grid_.Content();
    return fixedRows_ ? table.fixedRows : table.rows - table.fixedRows;
  }
  QString TextAt(int row, int column) const { return ToQt(grid_.Content().At(row, column)); }

  const Grid& grid_;
  bool fixedRows_;
  bool fixedColumns_;
  int rows_ = 0;  // that the views know of
};

/// One of the four parts of a grid: the fixed ones stand still in one direction or in both.
struct Pane {
  Pane(const Grid& grid, QWidget& parent, bool fixedRows, bool fixedColumns)
      : view(&parent), model(grid, fixedRows, fixedColumns), fixed(fixedRows || fixedColumns) {
    view.horizontalHeader()->hide();  // at once: while they are seen, they measure their texts
    view.verticalHeader()->hide();
    view.setModel(&model);
    view.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    view.verticalHeader()->setDefaultSectionSize(GridRowPixels());
    view.setFrameShape(QFrame::NoFrame);
    view.setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    view.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    view.setWordWrap(false);
    view.setTabKeyNavigation(false);  // the Tab key leaves the grid
    view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    if (!fixed) return;
    view.setFocusPolicy(Qt::NoFocus);
    view.setSelectionMode(QAbstractItemView::NoSelection);
  }

  void Reload(const Table& table) {
    model.Reload();
    for (int column = 0; column < model.columnCount(); ++column)
      view.setColumnWidth(
          column,
          std::max(0,
                   PixelsOf(view,
                            table.widths[static_cast<std::size_t>(model.FirstColumn() + column)])));
  }

  int Width() const { return view.horizontalHeader()->length(); }
  int Height() const { return view.verticalHeader()->length(); }

  QTableView view;
  PaneModel model;
  bool fixed;
};

class GridView final : public ControlView {
 public:
  GridView(Grid& grid, const Person& person, QWidget& box)
      : ControlView(grid, box, person),
        grid_(grid),
        entries_(dynamic_cast<EntryGrid*>(&grid)),
        corner_(grid, box, true, true),
        top_(grid, box, true, false),
        left_(grid, box, false, true),
        body_(grid, box, false, false) {
    auto* layout = new QGridLayout(&box);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(&corner_.view, 0, 0);
    layout->addWidget(&top_.view, 0, 1);
    layout->addWidget(&left_.view, 1, 0);
    layout->addWidget(&body_.view, 1, 1);
    layout->addWidget(ScrollBarOf(*body_.view.horizontalScrollBar(), box), 2, 0, 1, 2);
    layout->addWidget(ScrollBarOf(*body_.view.verticalScrollBar(), box), 0, 2, 2, 1);
    Link(body_.view.horizontalScrollBar(), top_.view.horizontalScrollBar());
    Link(body_.view.verticalScrollBar(), left_.view.verticalScrollBar());

    box.setMinimumSize(1, 1);  // however wide the fixed columns are
    box.setFocusProxy(&body_.view);
    body_.view.setSelectionMode(QAbstractItemView::SingleSelection);
    for (Pane* pane : {&corner_, &top_, &left_, &body_}) {
      pane->view.installEventFilter(this);
      pane->view.viewport()->installEventFilter(this);
    }
    connect(body_.view.selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& index) { Point(index); });
    if (entries_ != nullptr) TakeEntries();
  }

 private:
  // Typing opens an editor in the cell; Enter in it goes on as Enter in the grid does.
  void TakeEntries() {
    body_.model.onEdit = [this](int row, int column, const QString& text) {
      if (text == ToQt(grid_.Content().At(row, column))) return;
      person_.Points(grid_, row, column);
      const int version = grid_.Version();
      person_.Types(grid_, FromQt(text));
      refused_ = grid_.Version() == version;
    };
    connect(body_.view.itemDelegate(), &QAbstractItemDelegate::closeEditor, this,
            [this](QWidget*, QAbstractItemDelegate::EndEditHint hint) {
              const bool stays = std::exchange(refused_, false);
              if (hint == QAbstractItemDelegate::SubmitModelCache && !stays)
                person_.Presses(grid_.Owner(), Key::Enter);
            });
  }

  // The cells' own keys come to the view. An editor that has taken Enter lets it pass on, too.
  bool IsEditorsEnter(const QObject* object, const QKeyEvent& key) const {
    return object == body_.view.viewport() &&
           (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter);
  }

  bool TakesKey(const QKeyEvent& key) {
    if (key.matches(QKeySequence::Paste)) {
      person_.Types(grid_, FromQt(QApplication::clipboard()->text()));
      return true;
    }
    if (key.key() == Qt::Key_Delete || key.key() == Qt::Key_Backspace) {
      person_.Presses(grid_.Owner(), Key::Delete);
      return true;
    }
    return false;
  }

  /// A bar that stands for the body's own, but outside of it, so that all panes end in one line.
  QScrollBar* ScrollBarOf(QScrollBar& inner, QWidget& box) {
    auto* bar = new QScrollBar(inner.orientation(), &box);
    const auto follow = [bar, &inner] {
      bar->setRange(inner.minimum(), inner.maximum());
      bar->setPageStep(inner.pageStep());
      bar->setSingleStep(inner.singleStep());
      bar->setVisible(inner.maximum() > inner.minimum());
    };
    connect(&inner, &QScrollBar::rangeChanged, bar, follow);
    follow();
    Link(&inner, bar);
    return bar;
  }

  // Both scroll together, whichever the person moves.
  void Link(QScrollBar* one, QScrollBar* other) {
    connect(one, &QScrollBar::valueChanged, other, &QScrollBar::setValue);
    connect(other, &QScrollBar::valueChanged, one, &QScrollBar::setValue);
  }

  void Point(const QModelIndex& index) {
    if (!index.isValid()) return;
    const int row = body_.model.FirstRow() + index.row();
    const int column = body_.model.FirstColumn() + index.column();
    if (row != grid_.Row() || column != grid_.Column()) person_.Points(grid_, row, column);
  }

  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() == QEvent::KeyPress) {
      const auto* key = static_cast<QKeyEvent*>(event);
      if (key->key() == Qt::Key_C && key->modifiers().testFlag(Qt::ControlModifier)) {
        person_.Presses(grid_.Owner(), Key::CtrlC);
        return true;
      }
      if (entries_ != nullptr && (TakesKey(*key) || IsEditorsEnter(object, *key))) return true;
    }
    if (event->type() == QEvent::ContextMenu) {
      person_.RightClicks(grid_);
      return true;
    }
    return ControlView::eventFilter(object, event);
  }

  void RefreshContent() override {
    const Table& table = grid_.Content();
    const bool fresh = grid_.Version() != shown_;
    if (fresh) {
      const bool follows = entries_ != nullptr && shown_ != 0;
      shown_ = grid_.Version();
      for (Pane* pane : {&corner_, &top_, &left_, &body_})
        follows ? pane->model.Follow() : pane->Reload(table);
      for (Pane* pane : {&corner_, &left_}) pane->view.setFixedWidth(pane->Width());
      for (Pane* pane : {&corner_, &top_}) pane->view.setFixedHeight(pane->Height());
      corner_.view.setVisible(table.fixedRows > 0 && table.fixedColumns > 0);
      top_.view.setVisible(table.fixedRows > 0);
      left_.view.setVisible(table.fixedColumns > 0);
      if (entries_ != nullptr) FitColumns();
    }
    Describe(table);
    const QModelIndex current = body_.model.index(grid_.Row() - body_.model.FirstRow(),
                                                  grid_.Column() - body_.model.FirstColumn());
    // A new table is read from its beginning, wherever its current cell is.
    body_.view.setAutoScroll(!fresh || entries_ != nullptr);
    if (current != body_.view.currentIndex()) body_.view.setCurrentIndex(current);
    body_.view.setAutoScroll(true);
  }

  // All columns are seen, beside the bar that comes with many rows.
  void FitColumns() {
    QWidget& box = Widget();
    constexpr int leastRows = 8;
    box.setFixedWidth(left_.Width() + body_.Width() +
                      box.style()->pixelMetric(QStyle::PM_ScrollBarExtent));
    box.setMinimumHeight(leastRows * GridRowPixels());
  }

  void Describe(const Table& table) {
    const QString name = Plain(grid_.Caption());
    body_.view.setAccessibleName(name);
    body_.view.setAccessibleDescription(
        tr("Table of %1 rows and %2 columns, %3 and %4 of them headings")
            .arg(table.rows)
            .arg(table.columns)
            .arg(table.fixedRows)
            .arg(table.fixedColumns));
    top_.view.setAccessibleName(tr("Column headings of %1").arg(name));
    left_.view.setAccessibleName(tr("Row headings of %1").arg(name));
    corner_.view.setAccessibleName(tr("Corner of %1").arg(name));
  }

  Grid& grid_;
  EntryGrid* entries_;  // the same, if a person fills it in
  Pane corner_, top_, left_, body_;
  int shown_ = 0;
  bool refused_ = false;  // what was typed last
};

}  // namespace

int GridRowPixels() { return QFontMetrics(QApplication::font()).height() + 4; }

std::unique_ptr<ControlView> MakeGridView(Grid& grid, const Person& person, QWidget& parent) {
  return std::make_unique<GridView>(grid, person, *new QWidget(&parent));
}

}  // namespace korvane
