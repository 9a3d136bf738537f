// The commands of the driver's language.
#pragma once

#include <string>
#include <string_view>

#include "driver/interpreter.h"

namespace korvane {

/// Why a command was not understood; nothing has happened then.
struct NotUnderstood {
  std::string why;
};

/// One command: takes its arguments off the line one after the other.
class Verbs {
 public:
  Verbs(Interpreter& interpreter, std::string_view line);

  /// The value of the reply. Throws NotUnderstood.
  std::string Perform();

 private:
  using Verb = std::string (Verbs::*)();
  struct Entry {
    std::string_view name;
    Verb perform;
  };
  static const Entry kEntries[];

  // Arguments.
  std::string_view Word();
  std::string Rest();
  int Number(std::string_view word) const;
  Window& InUse() const;
  template <class Kind>
  Kind& Take(const char* expected);
  template <class Kind>
  Kind& TakeUsable(const char* expected);
  Window& OpenWindow(std::string_view name) const;
  void RequireNoModal() const;
  std::string Nothing() const { return ""; }

  // Session.
  std::string Reset();
  std::string Units();
  std::string Data();
  std::string Menu();
  std::string Show();
  std::string Use();
  std::string Unload();
  std::string Answer();

  // What a person does.
  std::string Focus();
  std::string Type();
  std::string Enter();
  std::string PressKey();
  std::string Click();
  std::string Select();
  std::string Pick();
  std::string PointAt();
  std::string Spin();
  std::string Scroll();
  std::string Tick();

  // Questions.
  std::string Text();
  std::string Caption();
  std::string Visible();
  std::string Enabled();
  std::string Locked();
  std::string Checked();
  std::string Items();
  std::string Index();
  std::string Back();
  std::string Cell();
  std::string Rows();
  std::string Columns();
  std::string Title();
  std::string Focused();
  std::string Controls();
  std::string Global();
  std::string Setting();
  std::string Windows();
  std::string Dump();

  Interpreter& interpreter_;
  Session& session_;
  std::string_view rest_;
};

}  // namespace korvane
