#include "toolkit/number_edit.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <memory>

#include "frame/person.h"
#include "toolkit/text.h"

namespace korvane {
namespace {

QString Cleaned(const QString& text) { return ToQt(CleanPaste(FromQt(text))); }

}  // namespace

void NumberEdit::Paste(QClipboard::Mode mode) {
  if (!isReadOnly()) insert(Cleaned(QGuiApplication::clipboard()->text(mode)));
}

void NumberEdit::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Paste)) {
    Paste(QClipboard::Clipboard);
  } else if (event->modifiers().testFlag(Qt::KeypadModifier) && event->text() == "," &&
             !isReadOnly()) {
    insert(".");
  } else {
    QLineEdit::keyPressEvent(event);
  }
}

void NumberEdit::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::MiddleButton && QGuiApplication::clipboard()->supportsSelection()) {
    setCursorPosition(cursorPositionAt(event->position().toPoint()));
    Paste(QClipboard::Selection);
    return;
  }
  QLineEdit::mouseReleaseEvent(event);
}

void NumberEdit::contextMenuEvent(QContextMenuEvent* event) {
  if (isReadOnly() && !hasSelectedText()) selectAll();
  const std::unique_ptr<QMenu> menu(createStandardContextMenu());
  if (auto* paste = menu->findChild<QAction*>("edit-paste")) {
    paste->disconnect();
    connect(paste, &QAction::triggered, this, [this] { Paste(QClipboard::Clipboard); });
  }
  menu->exec(event->globalPos());
}

void NumberEdit::dropEvent(QDropEvent* event) {
  if (isReadOnly() || !event->mimeData()->hasText()) return;
  setCursorPosition(cursorPositionAt(event->position().toPoint()));
  insert(Cleaned(event->mimeData()->text()));
  event->acceptProposedAction();
}

}  // namespace korvane
