#include "player.h"

#include <QEventLoop>
#include <QTimer>
#include <algorithm>
#include <istream>
#include <sstream>
#include <stdexcept>

#include "driver/scripted_platform.h"
#include "frame/person.h"

namespace korvane {
namespace {

template <class Kind>
Kind& As(Control& control) {
  if (auto* kind = dynamic_cast<Kind*>(&control)) return *kind;
  throw std::runtime_error(control.Name() + " can't do that");
}

std::string Rest(std::istream& words) {
  std::string rest;
  if (words.peek() == ' ') words.get();
  std::getline(words, rest);
  return Unescaped(rest);
}

int IndexOf(const Choice& choice, const std::string& text) {
  const auto& items = choice.Items();
  const auto found = std::find(items.begin(), items.end(), text);
  if (found == items.end()) throw std::runtime_error(choice.Name() + " has no " + text);
  return static_cast<int>(found - items.begin());
}

}  // namespace

void Player::Play(Window& window, const std::vector<std::string>& commands) {
  window_ = &window;
  commands_ = {commands.begin(), commands.end()};
  failure_ = nullptr;
  QEventLoop loop;
  loop_ = &loop;
  Wait();
  loop.exec();
  if (failure_) std::rethrow_exception(failure_);
}

void Player::Wait() {
  QTimer::singleShot(1, loop_, [this] { Step(); });
}

// Each command is an event of its own: one that opens a modal window comes back only when a later
// one has closed it. While a search lets events pass, the next command waits.
void Player::Step() {
  const bool isBusy = depth_ > 0 && session_.Modal() == nullptr;
  if (commands_.empty() && depth_ == 0) return loop_->quit();
  Wait();
  if (isBusy) return;
  ++depth_;
  try {
    Perform();
  } catch (const std::runtime_error&) {
    failure_ = std::current_exception();
    commands_.clear();
  }
  --depth_;
}

Control& Player::Take(std::istream& words) const {
  std::string name;
  words >> name;
  const Window* modal = session_.Modal();
  Control* control = (modal != nullptr ? *modal : *window_).Find(name);
  if (control == nullptr) throw std::runtime_error("there is no " + name);
  return *control;
}

void Player::Perform() {
  const Person person(session_);
  if (commands_.empty()) return person.Closes(*session_.Modal());
  std::istringstream words(commands_.front());
  commands_.pop_front();
  std::string verb;
  words >> verb;
  Control& control = Take(words);
  if (verb == "type") {
    person.Types(As<FocusControl>(control), Rest(words));
  } else if (verb == "enter") {
    if (person.Focuses(As<FocusControl>(control))) person.Presses(control.Owner(), Key::Enter);
  } else if (verb == "click") {
    person.Clicks(control);
  } else if (verb == "select") {
    auto& choice = As<Choice>(control);
    person.Selects(choice, IndexOf(choice, Rest(words)));
  } else if (verb == "pick") {
    person.Selects(As<Choice>(control), std::stoi(Rest(words)));
  } else {
    throw std::runtime_error(verb + " is not for the gallery");
  }
}

}  // namespace korvane
