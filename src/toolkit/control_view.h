// One widget for each control: it shows what the control holds, and reports what the person does.
#pragma once

#include <QObject>
#include <QString>
#include <memory>

#include "frame/controls.h"
#include "frame/person.h"

class QWidget;

namespace korvane {

class ControlView : public QObject {
 public:
  ControlView(Control& control, QWidget& widget, const Person& person);

  QWidget& Widget() const { return widget_; }
  /// Brings the widget to the control's state.
  void Refresh();
  /// The control is about to go: reports nothing any more.
  void Detach();

 protected:
  virtual void RefreshContent() = 0;
  /// Keys that the window sees before the widget does, and the arrival of the focus.
  bool eventFilter(QObject* object, QEvent* event) override;

  const Person& person_;

 private:
  void RefreshColors();

  Control& control_;
  QWidget& widget_;
  bool detached_ = false;
};

/// What a control is called for those who can't see it: its caption, behind the title of the frame
/// that it stands in, since two frames may have fields of one caption.
QString NameOf(const CaptionedControl& control, const QWidget& widget);

/// The view of a control in the given parent; null for a timer, which has nothing to show.
std::unique_ptr<ControlView> MakeControlView(Control& control, const Person& person,
                                             QWidget& parent);

}  // namespace korvane
