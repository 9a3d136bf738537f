#include "toolkit/arranger.h"

#include <QBoxLayout>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <algorithm>
#include <vector>

#include "frame/controls.h"

namespace korvane {
namespace {

class Arranger {
 public:
  using WidgetOf = std::function<QWidget*(Control&, QWidget&)>;

  explicit Arranger(const WidgetOf& widgetOf) : widgetOf_(widgetOf) {}

  QLayout* Build(const Layout& layout, QWidget& parent) {
    switch (layout.kind) {
      case Layout::Kind::Row: return Fill(new QHBoxLayout, layout, parent);
      case Layout::Kind::Form: return FormOf(layout, parent);
      case Layout::Kind::Grid: return GridOf(layout, parent);
      case Layout::Kind::Column: {
        // The forms of a column share one caption column.
        const std::vector<QLabel*> outer = std::exchange(captions_, {});
        QLayout* column = Fill(new QVBoxLayout, layout, parent);
        AlignCaptions();
        captions_ = outer;
        return column;
      }
      case Layout::Kind::Term: {
        auto* term = new QHBoxLayout;
        term->setSpacing(0);
        return Fill(term, layout, parent);
      }
      case Layout::Kind::Fraction: {
        auto* fraction = new QVBoxLayout;
        fraction->setSpacing(1);
        AddCentered(*fraction, layout.parts[0], parent);
        auto* bar = new QFrame(&parent);
        bar->setFrameShape(QFrame::HLine);
        bar->setFrameShadow(QFrame::Plain);
        fraction->addWidget(bar);
        AddCentered(*fraction, layout.parts[1], parent);
        return fraction;
      }
      default: {
        auto* single = new QVBoxLayout;
        Add(*single, layout, parent);
        return single;
      }
    }
  }

 private:
  static bool IsBlock(const Layout& part) {
    return part.kind == Layout::Kind::Column || part.kind == Layout::Kind::Frame;
  }

  QLayout* Fill(QBoxLayout* box, const Layout& layout, QWidget& parent) {
    const bool row = layout.kind == Layout::Kind::Row;
    for (const Layout& part : layout.parts) {
      // Blocks side by side stand further apart than buttons do.
      if (row && box->count() > 0 && IsBlock(part)) box->addSpacing(parent.fontMetrics().height());
      Add(*box, part, parent);
    }
    return box;
  }

  void Add(QBoxLayout& box, const Layout& part, QWidget& parent) {
    switch (part.kind) {
      case Layout::Kind::Stretch: box.addStretch(1); break;
      case Layout::Kind::Control:
      case Layout::Kind::Frame:
      case Layout::Kind::Rule: box.addWidget(WidgetFor(part, parent)); break;
      default: box.addLayout(Build(part, parent));
    }
  }

  void AddCentered(QBoxLayout& box, const Layout& part, QWidget& parent) {
    Add(box, part, parent);
    box.itemAt(box.count() - 1)->setAlignment(Qt::AlignHCenter);
  }

  QWidget* WidgetFor(const Layout& part, QWidget& parent) {
    if (part.kind == Layout::Kind::Rule) {
      auto* rule = new QFrame(&parent);
      rule->setFrameShape(QFrame::HLine);
      rule->setFrameShadow(QFrame::Sunken);
      return rule;
    }
    QWidget* widget = widgetOf_(*part.control, parent);
    if (part.kind == Layout::Kind::Frame)
      widget->setLayout(Build(Layout(Layout::Kind::Column, part.parts), *widget));
    return widget;
  }

  /// The caption beside a field, unless it is a frame's title or stands elsewhere in the layout.
  QLabel* CaptionOf(const Layout& field, QWidget& parent) {
    const Layout& first = field.parts.empty() ? field : field.parts.front();
    auto* captioned = dynamic_cast<CaptionedControl*>(first.control);
    if (captioned == nullptr || captioned->CaptionBeside().GetKind() != Control::Kind::Label)
      return nullptr;
    auto* label = qobject_cast<QLabel*>(widgetOf_(captioned->CaptionBeside(), parent));
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label->setBuddy(widgetOf_(*captioned, parent));
    return label;
  }

  QLayout* FormOf(const Layout& layout, QWidget& parent) {
    auto* grid = new QGridLayout;
    int row = 0;
    for (const Layout& field : layout.parts) {
      if (QLabel* caption = CaptionOf(field, parent)) {
        grid->addWidget(caption, row, 0);
        captions_.push_back(caption);
      }
      AddCell(*grid, field, parent, row++, 1);
    }
    return grid;
  }

  QLayout* GridOf(const Layout& layout, QWidget& parent) {
    auto* grid = new QGridLayout;
    for (int row = 0; row < static_cast<int>(layout.parts.size()); ++row) {
      const Layout& line = layout.parts[static_cast<std::size_t>(row)];
      for (int column = 0; column < static_cast<int>(line.parts.size()); ++column)
        AddCellOrCaption(*grid, line.parts, column, parent, row);
    }
    return grid;
  }

  /// A label ahead of the field that it is the caption of stands as captions do in forms.
  void AddCellOrCaption(QGridLayout& grid, const std::vector<Layout>& line, int column,
                        QWidget& parent, int row) {
    const auto at = static_cast<std::size_t>(column);
    if (at + 1 < line.size()) {
      const auto* next = dynamic_cast<CaptionedControl*>(line[at + 1].control);
      if (next != nullptr && line[at].control == &next->CaptionBeside()) {
        grid.addWidget(CaptionOf(line[at + 1], parent), row, column);
        return;
      }
    }
    AddCell(grid, line[at], parent, row, column);
  }

  void AddCell(QGridLayout& grid, const Layout& part, QWidget& parent, int row, int column) {
    switch (part.kind) {
      case Layout::Kind::Stretch: break;
      case Layout::Kind::Control:
      case Layout::Kind::Frame:
      case Layout::Kind::Rule: grid.addWidget(WidgetFor(part, parent), row, column); break;
      default: grid.addLayout(Build(part, parent), row, column);
    }
  }

  void AlignCaptions() {
    int width = 0;
    for (const QLabel* caption : captions_) width = std::max(width, caption->sizeHint().width());
    for (QLabel* caption : captions_) caption->setMinimumWidth(width);
  }

  const WidgetOf& widgetOf_;
  std::vector<QLabel*> captions_;
};

}  // namespace

QLayout* Arrange(const Layout& layout, QWidget& parent,
                 const std::function<QWidget*(Control&, QWidget&)>& widgetOf) {
  return Arranger(widgetOf).Build(layout, parent);
}

}  // namespace korvane
