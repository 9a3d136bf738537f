#include "toolkit/grid_view.h"

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPalette>
#include <QTableView>

#include "toolkit/text.h"
#include "toolkit/twips.h"

namespace korvane {
namespace {

/// The grid's alignment code: column of the three by three places, 9 is general.
Qt::Alignment AlignmentOf(int code) {
  constexpr Qt::Alignment across[] = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight, Qt::AlignLeft};
  constexpr Qt::Alignment down[] = {Qt::AlignTop, Qt::AlignVCenter, Qt::AlignBottom};
  if (code < 0 || code > 9) code = 9;
  return across[code / 3] | (code == 9 ? Qt::AlignVCenter : down[code % 3]);
}

class TableModel final : public QAbstractTableModel {
 public:
  explicit TableModel(const Grid& grid) : grid_(grid) {}

  void Reload() {
    beginResetModel();
    endResetModel();
  }

  int rowCount(const QModelIndex& parent) const override {
    return parent.isValid() ? 0 : grid_.Content().rows;
  }
  int columnCount(const QModelIndex& parent) const override {
    return parent.isValid() ? 0 : grid_.Content().columns;
  }

  QVariant data(const QModelIndex& index, int role) const override {
    const Table& table = grid_.Content();
    switch (role) {
      case Qt::DisplayRole: return ToQt(table.At(index.row(), index.column()));
      case Qt::TextAlignmentRole:
        return QVariant(AlignmentOf(table.alignments[static_cast<std::size_t>(index.column())]));
      case Qt::BackgroundRole:
        if (index.row() < table.fixedRows || index.column() < table.fixedColumns)
          return QPalette().brush(QPalette::Button);
        return {};
      default: return {};
    }
  }

 private:
  const Grid& grid_;
};

class GridView final : public ControlView {
 public:
  GridView(Grid& grid, const Person& person, QTableView& table)
      : ControlView(grid, table, person), grid_(grid), table_(table), model_(grid) {
    table.setModel(&model_);
    table.horizontalHeader()->hide();
    table.verticalHeader()->hide();
    table.setSelectionMode(QAbstractItemView::SingleSelection);
    connect(table.selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& index) {
              if (index.isValid() && (index.row() != grid_.Row() || index.column() != grid_.Column()))
                person_.Points(grid_, index.row(), index.column());
            });
  }

 private:
  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() == QEvent::KeyPress) {
      const auto* key = static_cast<QKeyEvent*>(event);
      if (key->key() == Qt::Key_C && key->modifiers().testFlag(Qt::ControlModifier)) {
        person_.Presses(grid_.Owner(), Key::CtrlC);
        return true;
      }
    }
    if (event->type() == QEvent::ContextMenu) {
      person_.RightClicks(grid_);
      return true;
    }
    return ControlView::eventFilter(object, event);
  }

  void RefreshContent() override {
    if (&grid_.Content().texts != shown_ || grid_.Content().rows != rows_) {
      shown_ = &grid_.Content().texts;
      rows_ = grid_.Content().rows;
      model_.Reload();
      for (int column = 0; column < grid_.Content().columns; ++column)
        table_.setColumnWidth(
            column, PixelsOf(table_, grid_.Content().widths[static_cast<std::size_t>(column)]));
    }
    table_.setAccessibleName(Plain(grid_.Caption()));
    if (grid_.Content().rows > 0) table_.setCurrentIndex(model_.index(grid_.Row(), grid_.Column()));
  }

  Grid& grid_;
  QTableView& table_;
  TableModel model_;
  const std::vector<std::string>* shown_ = nullptr;
  int rows_ = -1;
};

}  // namespace

std::unique_ptr<ControlView> MakeGridView(Grid& grid, const Person& person, QWidget& parent) {
  return std::make_unique<GridView>(grid, person, *new QTableView(&parent));
}

}  // namespace korvane
