#include "frame/session.h"

#include <algorithm>

#include "frame/files.h"
#include "frame/names.h"

namespace korvane {

Session::Session(Platform& platform, std::span<const WindowUnit> catalogue,
                 std::string programFolder)
    : platform_(platform), catalogue_(catalogue), programFolder_(std::move(programFolder)) {}

Session::~Session() = default;

// ---- Windows ----

const WindowUnit* Session::Unit(std::string_view name) const {
  for (const WindowUnit& unit : catalogue_)
    if (SameName(unit.name, name)) return &unit;
  return nullptr;
}

bool Session::IsModalUnit(std::string_view name) const {
  const WindowUnit* unit = Unit(name);
  return unit != nullptr && unit->modal;
}

Window* Session::Find(std::string_view name) const {
  for (const auto& window : windows_)
    if (SameName(window->Name(), name)) return window.get();
  return nullptr;
}

std::vector<Window*> Session::Windows() const {
  std::vector<Window*> shown;
  for (const auto& window : windows_)
    if (window->IsShown()) shown.push_back(window.get());
  return shown;
}

Window& Session::Load(std::string_view name) {
  const WindowUnit* unit = Unit(name);
  if (unit == nullptr) failures::InvalidCall();
  windows_.insert(windows_.begin(), unit->make(*this));
  Window& window = *windows_.front();
  window.Prepare();
  try {
    window.Load();
  } catch (...) {  // a window that fails to load is not there, and never was
    Discard(window);
    throw;
  }
  return window;
}

Window& Session::Show(std::string_view name) {
  Window* window = Find(name);
  if (window == nullptr) window = &Load(name);
  Show(*window);
  return *window;
}

void Session::Show(Window& window) {
  if (!window.shown_) {
    window.shown_ = true;
    const bool first = !std::exchange(window.wasShown_, true);
    platform_.WindowShown(window, first);
    window.Resized();
  }
  Activate(window);
  if (window.Focus() == nullptr) window.FocusNext(+1);
}

void Session::ShowModal(std::string_view name) {
  Window* window = Find(name);
  if (window == nullptr) window = &Load(name);
  modal_.push_back(window);
  Show(*window);
  RunPendingTabs();  // the first field may pass the focus on
  Refresh();
  platform_.RunModal(*window);
  std::erase(modal_, window);
}

void Session::Hide(Window& window) {
  if (!window.shown_) return;
  window.shown_ = false;
  platform_.WindowHidden(window);
  if (active_ == &window) {
    active_ = nullptr;
    ActivateFront();
  }
}

void Session::Unload(Window& window) {
  if (PlaceOf(window) == windows_.end()) return;
  window.Unloaded();
  Discard(window);
}

Session::Place Session::PlaceOf(const Window& window) {
  return std::find_if(windows_.begin(), windows_.end(),
                      [&window](const auto& w) { return w.get() == &window; });
}

void Session::Discard(Window& window) {
  const auto place = PlaceOf(window);
  if (place == windows_.end()) return;
  window.shown_ = false;
  gone_.push_back(std::move(*place));
  windows_.erase(place);
  std::erase(modal_, &window);
  if (window.wasShown_) platform_.WindowUnloaded(window);
  if (active_ == &window) {
    active_ = nullptr;
    ActivateFront();
  }
}

void Session::Unload(std::string_view name) {
  if (Window* window = Find(name)) Unload(*window);
}

void Session::Activate(Window& window) {
  if (active_ == &window || !window.IsShown()) return;
  active_ = &window;
  const auto place = PlaceOf(window);
  std::rotate(windows_.begin(), place, place + 1);
  platform_.WindowActivated(window);
  window.Activated();
}

void Session::ActivateFront() {
  if (Window* modal = Modal(); modal != nullptr && modal->IsShown()) {
    Activate(*modal);
    return;
  }
  const auto front =
      std::find_if(windows_.begin(), windows_.end(), [](const auto& w) { return w->IsShown(); });
  if (front != windows_.end()) Activate(**front);
}

void Session::DropWindows() {
  const Hold hold(*this);
  modal_.clear();
  active_ = nullptr;
  pendingTabs_ = 0;
  while (!windows_.empty()) {
    gone_.push_back(std::move(windows_.front()));
    windows_.erase(windows_.begin());
    gone_.back()->shown_ = false;
    if (gone_.back()->wasShown_) platform_.WindowUnloaded(*gone_.back());
  }
}

// ---- Services ----

void Session::Message(std::string text, Icon icon, std::string title) {
  Refresh();
  platform_.Show({std::move(text), icon, std::move(title)});
}

Answer Session::Ask(std::string text) {
  Refresh();
  return platform_.Ask({std::move(text)});
}

std::string Session::Setting(const std::string& key, const std::string& fallback) {
  return platform_.Setting(key).value_or(fallback);
}

std::optional<std::string> Session::FindTable(const std::string& name) const {
  if (auto path = FindPath(DataPath + name)) return path;
  return FindPath(programFolder_ + kSeparator + name);
}

std::string Session::ReadTable(const std::string& name) const {
  const auto path = FindTable(name);
  if (!path) failures::FileNotFound();
  return ReadFile(*path);
}

void Session::RunPendingMessages() {
  Refresh();
  platform_.RunPendingMessages();
}

void Session::ShowHelp() {
  Unload("Help");
  Show("Help");
}

// ---- Events ----

bool Session::Handle(const Handler& event) {
  const Hold hold(*this);
  bool done = true;
  try {
    event();
    RunPendingTabs();
  } catch (const RuntimeFailure& failure) {
    done = false;
    pendingTabs_ = 0;
    Refresh();
    platform_.Fail(failure);
  }
  Refresh();
  return done;
}

void Session::RunPendingTabs() {
  // Fields that pass the focus on send a Tab each; if all do, the focus stops after one round.
  std::size_t steps = 0;
  while (pendingTabs_ > 0) {
    --pendingTabs_;
    if (active_ == nullptr || ++steps > active_->TabOrder().size()) {
      pendingTabs_ = 0;
      return;
    }
    active_->FocusNext(+1);
  }
}

void Session::Refresh() {
  for (const auto& window : windows_) {
    if (!window->changed_ && window->changes_.empty()) continue;
    const bool windowChanged = window->changed_;
    const std::vector<Control*> changes = window->TakeChanges();
    if (window->IsShown()) platform_.Refresh(*window, changes, windowChanged);
  }
}

void Session::PrintWindow(Window& window) {
  CaptureWidth = ToInteger32(window.GetGeometry().width);
  CaptureHeight = ToInteger32(window.GetGeometry().height);
  CaptureX = 0;
  CaptureY = 0;
  CaptureWindow = &window;
  RunPendingMessages();
  Show("Page_Setup");
  CaptureWindow = nullptr;
}

Session::Hold::~Hold() {
  if (--session_.holds_ > 0) return;
  session_.gone_.clear();
  // A hidden window, such as a palette that waits to be shown again, keeps nothing going.
  if (session_.Windows().empty()) session_.platform_.LastWindowClosed();
}

}  // namespace korvane
