#include "checks.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>

#include "toolkit/contrast.h"

namespace korvane {
namespace {

/// The room that a widget needs to show all that it holds.
QSize NeededSize(const QWidget& widget) {
  const QSize least = widget.minimumSizeHint();
  if (const auto* label = qobject_cast<const QLabel*>(&widget); label && label->wordWrap())
    return label->fontMetrics()
        .boundingRect(label->contentsRect(), Qt::TextWordWrap, label->text())
        .size();
  if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) return combo->sizeHint();
  // A number must be seen whole; addresses scroll.
  if (const auto* field = qobject_cast<const QLineEdit*>(&widget);
      field && field->alignment().testFlag(Qt::AlignRight)) {
    constexpr int margins = 4;  // pixels, within the frame
    const int frame = field->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, field);
    const int text = field->fontMetrics().horizontalAdvance(field->text());
    return least.expandedTo({text + margins + 2 * frame, 0});
  }
  return least;
}

void FindCutOff(const QWidget& widget, QStringList& flaws) {
  const auto* label = qobject_cast<const QLabel*>(&widget);
  if (widget.objectName().isEmpty() && label == nullptr) return;
  const QString name = label != nullptr ? label->text() : widget.objectName();
  const QSize needed = NeededSize(widget);
  if (widget.objectName() == "qt_menubar_ext_button") flaws << "the menu bar has no room";
  if (widget.width() < needed.width() || widget.height() < needed.height())
    flaws << QString("\"%1\" is %2 x %3, and needs %4 x %5")
                 .arg(name)
                 .arg(widget.width())
                 .arg(widget.height())
                 .arg(needed.width())
                 .arg(needed.height());
  if (!widget.parentWidget()->rect().contains(widget.geometry()))
    flaws << QString("\"%1\" goes beyond its parent's edge").arg(name);
}

bool IsInput(const QWidget& widget) {
  if (const auto* field = qobject_cast<const QLineEdit*>(&widget)) return !field->isReadOnly();
  return qobject_cast<const QComboBox*>(&widget) || qobject_cast<const QCheckBox*>(&widget) ||
         qobject_cast<const QAbstractItemView*>(&widget);
}

void FindNameless(QWidget& widget, QStringList& inputs, QStringList& flaws) {
  const QString control = widget.objectName();
  if (widget.focusPolicy() == Qt::NoFocus || control.isEmpty() || control.startsWith("qt_")) return;
  QAccessibleInterface& accessible = *QAccessible::queryAccessibleInterface(&widget);
  // Of a list Qt tells what is chosen in it.
  const QString name = qobject_cast<const QComboBox*>(&widget) ? widget.accessibleName()
                                                               : accessible.text(QAccessible::Name);
  if (name.trimmed().isEmpty()) flaws << QString("\"%1\" has no accessible name").arg(control);
  if (!IsInput(widget)) return;
  const QString role = QString::number(accessible.role());  // which is spoken with the name
  if (inputs.contains(name + role)) flaws << QString("two inputs are named \"%1\"").arg(name);
  inputs << name + role;
}

void FindPale(const QWidget& widget, QStringList& flaws) {
  const bool isField = qobject_cast<const QLineEdit*>(&widget) != nullptr;
  const bool isLabel = qobject_cast<const QLabel*>(&widget) != nullptr;
  if (!widget.isEnabled() || (!isField && !isLabel)) return;
  const QPalette& palette = widget.palette();
  const QColor letters = palette.color(isField ? QPalette::Text : QPalette::WindowText);
  const QColor ground = palette.color(isField ? QPalette::Base : QPalette::Window);
  if (ContrastOf(letters, ground) < kReadableContrast)
    flaws << QString("\"%1\" is %2 on %3").arg(widget.objectName(), letters.name(), ground.name());
}

}  // namespace

QStringList FlawsOf(const QWidget& view) {
  QStringList flaws, inputs;
  for (QWidget* child : view.findChildren<QWidget*>()) {
    if (!child->isVisible()) continue;
    FindCutOff(*child, flaws);
    FindNameless(*child, inputs, flaws);
    FindPale(*child, flaws);
  }
  return flaws;
}

}  // namespace korvane
