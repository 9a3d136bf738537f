// Works windows by commands in the driver's language, in the real toolkit.
#pragma once

#include <deque>
#include <exception>
#include <iosfwd>
#include <string>
#include <vector>

#include "frame/session.h"

class QEventLoop;

namespace korvane {

class Player {
 public:
  explicit Player(Session& session) : session_(session) {}

  /// Ends when all commands are done. While a modal window is open they go to that window, and one
  /// that is left open is closed.
  /// Throws std::runtime_error where a command can't be done.
  void Play(Window& window, const std::vector<std::string>& commands);

 private:
  void Wait();
  void Step();
  void Perform();
  Control& Take(std::istream& words) const;

  Session& session_;
  Window* window_ = nullptr;
  std::deque<std::string> commands_;
  std::exception_ptr failure_;
  QEventLoop* loop_ = nullptr;
  int depth_ = 0;  ///< of commands that have not come back
};

}  // namespace korvane
