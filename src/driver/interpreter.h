// The language of korvane-driver: one command a line, answered by notices and exactly one reply.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "driver/scripted_platform.h"
#include "frame/session.h"
#include "shell/window_catalogue.h"

namespace korvane {

class Interpreter {
 public:
  using Input =
      std::function<std::optional<std::string>()>;         ///< a line without its end; none: over
  using Output = std::function<void(const std::string&)>;  ///< takes a line, and flushes it

  /// Starts where the desktop program stands when its main window has opened.
  Interpreter(Input input, Output output, std::string programFolder,
              std::span<const WindowUnit> catalogue = WindowCatalogue());
  ~Interpreter();

  /// Reads and answers commands until the input is over.
  void Run();

 private:
  friend class Verbs;
  struct InputOver {};
  struct Restart {};

  void Start();
  std::string ReadCommand();
  std::string Evaluate(const std::string& line);
  void WaitFor(const Window& modal);
  Window* InUse() const;

  Input input_;
  Output output_;
  std::string programFolder_;
  std::span<const WindowUnit> catalogue_;
  ScriptedPlatform platform_;
  std::unique_ptr<Session> session_;
  std::string inUse_;                        // the window that takes commands, while it is open
  std::optional<std::string> closingReply_;  // to the command that closed a modal window
};

}  // namespace korvane
