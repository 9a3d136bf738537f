// The line edit of fields: pastes arrive cleaned, and the keypad's decimal key enters a point.
#pragma once

#include <QClipboard>
#include <QLineEdit>

namespace korvane {

class NumberEdit final : public QLineEdit {
 public:
  using QLineEdit::QLineEdit;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void Paste(QClipboard::Mode mode);
};

}  // namespace korvane
