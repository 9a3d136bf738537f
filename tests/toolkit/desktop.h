// A session on the desktop's own platform, a person at it, and the widgets that stand for controls.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <string>

#include "frame/person.h"
#include "shell/window_catalogue.h"
#include "toolkit/qt_platform.h"
#include "toolkit/text.h"

namespace korvane::testing {

/// Lets the events that are waiting be handled.
inline void Settle() {
  for (int round = 0; round < 10; ++round) {
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}

class Desktop {
 public:
  explicit Desktop(const std::string& programFolder)
      : session(platform, WindowCatalogue(), programFolder) {
    platform.Serve(session);
  }
  ~Desktop() { session.DropWindows(); }

  Window& Shows(const std::string& name) {
    session.Handle([&] { session.Show(name); });
    Settle();
    return *session.Find(name);
  }

  WindowView& View(const std::string& window) { return *platform.View(*session.Find(window)); }

  /// The widget of a control; it must be there and of that kind.
  template <class Widget>
  Widget& Get(const std::string& window, const char* control) {
    auto* widget = View(window).findChild<Widget*>(control);
    if (widget == nullptr) throw std::runtime_error(std::string("no widget for ") + control);
    return *widget;
  }

  QtPlatform platform;
  Session session;
  Person person{session};
};

/// A key, as the widget in focus gets it.
inline void Press(QWidget& widget, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, key, modifiers);
    QApplication::sendEvent(&widget, &event);
  }
  Settle();
}

}  // namespace korvane::testing
