#include "frame/window.h"

#include <algorithm>

#include "frame/names.h"

namespace korvane {

Window::Window(Session& session, WindowTraits traits)
    : session_(session), traits_(std::move(traits)) {}

void Window::SetTitle(std::string title) {
  if (title == traits_.title) return;
  traits_.title = std::move(title);
  Changed();
}

void Window::SetBack(Color back) {
  if (back == back_) return;
  back_ = back;
  Changed();
}

Control* Window::Find(std::string_view name) const {
  const auto found = std::find_if(controls_.begin(), controls_.end(), [name](const Control* c) {
    return !c->Name().empty() && SameName(c->Name(), name);
  });
  return found == controls_.end() ? nullptr : *found;
}

void Window::MoveFocus(FocusControl* target) {
  if (target == focus_ || (target != nullptr && !target->CanFocus())) return;
  FocusControl* left = std::exchange(focus_, target);
  const bool leaves = std::exchange(arrived_, false);
  Changed();
  if (leaves && left != nullptr && left->onLeave) left->onLeave();
  if (focus_ != target || arrived_) return;  // the handler has moved the focus itself
  arrived_ = true;
  if (target != nullptr && target->onFocus) target->onFocus();
}

void Window::FocusNext(int step) {
  if (tabOrder_.empty()) return;
  const auto count = static_cast<int>(tabOrder_.size());
  const auto found = std::find(tabOrder_.begin(), tabOrder_.end(), focus_);
  int at = found != tabOrder_.end() ? static_cast<int>(found - tabOrder_.begin())
           : step > 0               ? -1
                                    : count;
  for (int tried = 0; tried < count; ++tried) {
    at = (at + step + count) % count;
    if (tabOrder_[static_cast<std::size_t>(at)]->IsTabStop()) {
      MoveFocus(tabOrder_[static_cast<std::size_t>(at)]);
      return;
    }
  }
}

void Window::GiveUpFocus(const Control& control) {
  if (focus_ != &control) return;
  FocusNext(+1);
  if (focus_ == &control) MoveFocus(nullptr);
}

void Window::SetSize(Single width, Single height) {
  ownSize_ = true;
  if (width == geometry_.width && height == geometry_.height) return;
  geometry_.width = width;
  geometry_.height = height;
  Changed();
  if (shown_) Resized();
}

void Window::HoldLeastSize(Single width, Single height) {
  SetSize(std::max(width, geometry_.width), std::max(height, geometry_.height));
}

void Window::MoveTo(Single left, Single top) {
  ownPlace_ = true;
  geometry_.left = left;
  geometry_.top = top;
  Changed();
}

void Window::Prepare() {
  layout_ = Arrangement();
  AddToTabOrder(layout_);
}

void Window::AddToTabOrder(const Layout& layout) {
  if (auto* control = dynamic_cast<FocusControl*>(layout.control)) tabOrder_.push_back(control);
  for (const Layout& part : layout.parts) AddToTabOrder(part);
}

std::vector<Control*> Window::TakeChanges() {
  changed_ = false;
  for (Control* control : changes_) control->changed_ = false;
  return std::exchange(changes_, {});
}

}  // namespace korvane
