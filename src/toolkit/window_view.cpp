#include "toolkit/window_view.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>

#include "frame/session.h"
#include "toolkit/arranger.h"
#include "toolkit/text.h"
#include "toolkit/twips.h"

namespace korvane {
namespace {

/// A table that ends a window's layout goes up to its edges.
bool FillsWithGrid(const Layout& layout) {
  return !layout.parts.empty() && layout.parts.back().control != nullptr &&
         layout.parts.back().control->GetKind() == Control::Kind::Grid;
}

}  // namespace

WindowView::WindowView(Window& window, Session& session)
    : window_(&window), session_(session), person_(session) {
  setObjectName(ToQt(window.Name()));
  setLayout(Arrange(window.GetLayout(), *this, [this](Control& control, QWidget& parent) {
    return WidgetOf(control, parent);
  }));
  if (FillsWithGrid(window.GetLayout())) layout()->setContentsMargins(0, 0, 0, 0);
  if (MenuBar* menu = window.Menu()) MakeMenu(*menu);
  MakeTimers();
  report_.setSingleShot(true);
  report_.setInterval(0);
  connect(&report_, &QTimer::timeout, this, &WindowView::ReportGeometry);

  Refresh(window.Controls(), true);
  PlaceFirst();
}

// ---- Building ----

QWidget* WindowView::WidgetOf(Control& control, QWidget& parent) {
  std::unique_ptr<ControlView>& view = views_[&control];
  if (!view) {
    view = MakeControlView(control, person_, parent);
    view->Refresh();  // sizes follow from what it shows
    if (!window_->HasOwnSize() || control.IsVisible()) {
      // A field that hides keeps its place, so that the window does not jump under the mouse. What
      // a window of its own size hides from the start lies outside of it.
      QSizePolicy policy = view->Widget().sizePolicy();
      policy.setRetainSizeWhenHidden(true);
      view->Widget().setSizePolicy(policy);
    }
  }
  return &view->Widget();
}

void WindowView::MakeTimers() {
  for (Control* control : window_->Controls()) {
    auto* timer = dynamic_cast<Timer*>(control);
    if (timer == nullptr) continue;
    auto& clock = timers_[timer];
    clock = std::make_unique<QTimer>();
    clock->setInterval(timer->Interval());
    connect(clock.get(), &QTimer::timeout, this, [this, timer] { person_.Waits(*timer); });
  }
}

void WindowView::MakeMenu(MenuBar& menu) {
  menuBar_ = new QMenuBar(this);
  menuBar_->setNativeMenuBar(false);
  layout()->setContentsMargins(0, 0, 0, 0);  // a menu bar and nothing below it
  layout()->setMenuBar(menuBar_);
  std::vector<QMenu*> path;  // the open submenu at each depth
  std::vector<MenuEntry>& entries = menu.Entries();
  for (std::size_t i = 0; i < entries.size(); ++i) {
    MenuEntry& entry = entries[i];
    const auto depth = static_cast<std::size_t>(entry.depth);
    path.resize(depth);
    const bool submenu = i + 1 < entries.size() && entries[i + 1].depth > entry.depth;
    const QString caption = ToQt(entry.caption).replace("&", "&&");
    QAction* action = nullptr;
    if (submenu) {
      QMenu* opened = path.empty() ? menuBar_->addMenu(caption) : path.back()->addMenu(caption);
      path.push_back(opened);
      action = opened->menuAction();
    } else if (entry.separator) {
      action = path.back()->addSeparator();
    } else {
      action = path.empty() ? menuBar_->addAction(caption) : path.back()->addAction(caption);
      connect(action, &QAction::triggered, this, [this, &entry] {
        RefreshMenu();  // the model says what is checked
        person_.Picks(entry);
      });
    }
    action->setObjectName(ToQt(entry.name));
    entries_.push_back(action);
  }
}

// ---- Following the model ----

void WindowView::Refresh(const std::vector<Control*>& changed, bool windowChanged) {
  if (window_ == nullptr) return;
  for (Control* control : changed) RefreshControl(*control);
  if (!windowChanged) return;
  setWindowTitle(ToQt(window_->Title()));
  RefreshMenu();
  RefreshFocus();
  if (isVisible() && (window_->HasOwnSize() || window_->HasOwnPlace()) &&
      applied_ != window_->GetGeometry())
    ApplyGeometry();
}

void WindowView::RefreshControl(Control& control) {
  if (const auto timer = timers_.find(&control); timer != timers_.end()) {
    if (control.IsEnabled() != timer->second->isActive()) {
      if (control.IsEnabled())
        timer->second->start();
      else
        timer->second->stop();
    }
    return;
  }
  const auto view = views_.find(&control);
  if (view == views_.end()) return;
  view->second->Refresh();
  // A caption without a name of its own comes and goes with its field.
  if (auto* captioned = dynamic_cast<CaptionedControl*>(&control)) {
    Control& caption = captioned->CaptionBeside();
    const auto label = views_.find(&caption);
    if (caption.Name().empty() && label != views_.end())
      label->second->Widget().setVisible(control.IsVisible());
  }
  // What is named after this caption has a new name for those who can't see it.
  for (const auto& [other, otherView] : views_) {
    const auto* captioned = dynamic_cast<const CaptionedControl*>(other);
    if (captioned != nullptr && &captioned->CaptionBeside() == &control && otherView)
      otherView->Widget().setAccessibleName(NameOf(*captioned, otherView->Widget()));
  }
}

void WindowView::RefreshMenu() {
  if (menuBar_ == nullptr) return;
  const std::vector<MenuEntry>& entries = window_->Menu()->Entries();
  for (std::size_t i = 0; i < entries.size(); ++i) {
    entries_[i]->setVisible(entries[i].visible);
    entries_[i]->setEnabled(entries[i].enabled);
    entries_[i]->setCheckable(entries[i].checked);
    entries_[i]->setChecked(entries[i].checked);
  }
}

void WindowView::RefreshFocus() {
  const auto view = views_.find(window_->Focus());
  if (view == views_.end()) return;
  // As by the Tab key, which selects the text of a field: what is typed takes its place.
  if (QWidget& widget = view->second->Widget(); focusWidget() != &widget)
    widget.setFocus(Qt::TabFocusReason);
}

void WindowView::ComeToFront() {
  if (isActiveWindow()) return;
  raise();
  activateWindow();
}

void WindowView::Detach() {
  window_ = nullptr;
  for (const auto& [control, view] : views_) view->Detach();
  timers_.clear();
  report_.stop();
  hide();
  deleteLater();
}

// ---- Place and size ----

// Calculators open centred on the screen at the size of their layout; a window with a size of its
// own by design takes that, and the main window its stored place.
void WindowView::PlaceFirst() {
  if (window_->HasOwnSize()) {
    if (!window_->IsSizable()) layout()->setSizeConstraint(QLayout::SetNoConstraint);
    ApplyGeometry();
  } else if (!window_->IsSizable()) {
    layout()->setSizeConstraint(QLayout::SetFixedSize);
  }
  if (window_->HasOwnPlace()) return;
  if (!window_->HasOwnSize()) adjustSize();
  const QRect free = screen()->availableGeometry();
  move(free.center() - rect().center());
}

QSize WindowView::FrameSize() const { return frameGeometry().size() - size(); }

void WindowView::ApplyGeometry() {
  const Geometry& geometry = window_->GetGeometry();
  applied_ = geometry;
  const auto pixels = [this](Single twips) { return PixelsOf(*this, twips.Value()); };
  if (window_->HasOwnSize()) {
    const QSize outer(pixels(geometry.width), pixels(geometry.height));
    const QSize inner = (outer - FrameSize()).expandedTo(minimumSizeHint());
    if (window_->IsSizable())
      resize(inner);
    else
      setFixedSize(inner);
  }
  if (window_->HasOwnPlace()) move(pixels(geometry.left), pixels(geometry.top));
}

void WindowView::ReportGeometry() {
  if (window_ == nullptr || !isVisible()) return;
  const auto state = isMinimized()                     ? Window::State::Minimized
                     : isMaximized() || isFullScreen() ? Window::State::Maximized
                                                       : Window::State::Normal;
  // The window system puts its frame around the window some time after it is shown; the size told
  // is that with the frame.
  if (FrameSize() != frame_) {
    frame_ = FrameSize();
    if (state == Window::State::Normal && window_->HasOwnSize()) {
      ApplyGeometry();
      return;
    }
  }
  const QRect outer = frameGeometry();
  const auto twips = [this](int pixels) { return Single(TwipsOf(*this, pixels)); };
  const Geometry geometry{twips(outer.x()), twips(outer.y()), twips(outer.width()),
                          twips(outer.height())};
  // What was asked for and could not be had is not asked for again at once.
  applied_ = geometry;
  person_.Places(*window_, geometry, state);
}

void WindowView::moveEvent(QMoveEvent*) { report_.start(); }

void WindowView::resizeEvent(QResizeEvent*) { report_.start(); }

// ---- What the person does ----

bool WindowView::event(QEvent* event) {
  // A text that grows makes room for itself in a window of fixed size, rather than push others out.
  if (event->type() == QEvent::LayoutRequest && window_ != nullptr && window_->HasOwnSize() &&
      !window_->IsSizable())
    setFixedSize(size().expandedTo(minimumSizeHint()));
  return QWidget::event(event);
}

bool WindowView::focusNextPrevChild(bool next) {
  if (window_ == nullptr || window_->TabOrder().empty()) return QWidget::focusNextPrevChild(next);
  person_.Presses(*window_, next ? Key::Tab : Key::BackTab);
  return true;
}

void WindowView::keyPressEvent(QKeyEvent* event) {
  if (window_ != nullptr && event->key() == Qt::Key_F1)
    person_.Presses(*window_, Key::F1);
  else if (window_ != nullptr && event->key() == Qt::Key_Escape && window_->CancelCommand())
    person_.Clicks(*window_->CancelCommand());
  else
    QWidget::keyPressEvent(event);
}

void WindowView::closeEvent(QCloseEvent* event) {
  if (window_ == nullptr) return;
  event->ignore();  // the model unloads the window, and then it goes
  person_.Closes(*window_);
}

void WindowView::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (window_ == nullptr) return;
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) person_.Activates(*window_);
  if (event->type() == QEvent::WindowStateChange) report_.start();
  if (event->type() == QEvent::PaletteChange && !views_.empty() && isVisible())
    for (const auto& [control, view] : views_)
      if (view) view->Refresh();
}

void WindowView::contextMenuEvent(QContextMenuEvent*) {
  if (window_ != nullptr) person_.RightClicks(*window_);
}

void WindowView::mouseDoubleClickEvent(QMouseEvent*) {
  if (window_ != nullptr) person_.DoubleClicks(*window_);
}

}  // namespace korvane
