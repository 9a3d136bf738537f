// A window on the screen: follows its model, and reports what the person does to it.
#pragma once

#include <QTimer>
#include <QWidget>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "frame/person.h"
#include "toolkit/control_view.h"

class QAction;
class QMenuBar;

namespace korvane {

class WindowView final : public QWidget {
 public:
  WindowView(Window& window, Session& session);

  /// Brings controls, and if told the window itself, to the state of the model.
  void Refresh(const std::vector<Control*>& changed, bool windowChanged);
  void ComeToFront();
  /// Tells the model where the window is, and how large.
  void ReportGeometry();
  /// The model goes: nothing is reported any more, and the window closes.
  void Detach();

 protected:
  bool event(QEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  void keyPressEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  QWidget* WidgetOf(Control& control, QWidget& parent);
  void MakeTimers();
  void MakeMenu(MenuBar& menu);
  void RefreshMenu();
  void RefreshControl(Control& control);
  void RefreshFocus();

  void PlaceFirst();
  void ApplyGeometry();
  QSize FrameSize() const;

  Window* window_;  // null once detached
  Session& session_;
  Person person_;
  std::map<const Control*, std::unique_ptr<ControlView>> views_;
  std::map<const Control*, std::unique_ptr<QTimer>> timers_;
  std::vector<QAction*> entries_;  // one a menu entry; null for none
  QMenuBar* menuBar_ = nullptr;
  std::optional<Geometry> applied_;
  QSize frame_{0, 0};
  QTimer report_;
};

}  // namespace korvane
