// A session on the scripted platform, a person at it, and all that it told.
#pragma once

#include <span>
#include <string>
#include <utility>
#include <vector>

#include "driver/scripted_platform.h"
#include "frame/person.h"
#include "frame/session.h"
#include "shell/window_catalogue.h"

namespace korvane::testing {

struct ScriptedSession {
  explicit ScriptedSession(std::span<const WindowUnit> catalogue = WindowCatalogue(),
                           std::string programFolder = "/opt/korvane")
      : session(platform, catalogue, std::move(programFolder)) {
    platform.onNotice = [this](const std::string& notice) { notices.push_back(notice); };
  }

  /// Shows a window as one event from outside.
  void Shows(const std::string& name) {
    session.Handle([&] { session.Show(name); });
  }

  /// What was told since the last time.
  std::vector<std::string> Told() { return std::exchange(notices, {}); }

  /// A control of the active window; it must be there and of that kind.
  template <class Kind = Control>
  Kind& Get(const std::string& name) const {
    return dynamic_cast<Kind&>(*session.Active()->Find(name));
  }

  ScriptedPlatform platform;
  std::vector<std::string> notices;
  Session session;
  Person person{session};
};

using Lines = std::vector<std::string>;

}  // namespace korvane::testing
