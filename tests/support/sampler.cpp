#include "sampler.h"

#include <utility>
#include <vector>

#include "shell/window_catalogue.h"

namespace korvane::testing {

Sampler::Sampler(Session& session)
    : CalculatorWindow(session, {"Sampler", " Sampler", "sampler.html"}) {
  for (Control* control : Controls()) {
    const auto logs = [this, name = control->Name()](const char* event) {
      return [this, told = name + '.' + event] { Log(told); };
    };
    if (auto* target = dynamic_cast<FocusControl*>(control)) {
      target->onFocus = logs("focus");
      target->onLeave = logs("leave");
    }
    if (auto* field = dynamic_cast<TextField*>(control)) {
      field->onChange = logs("change");
      field->onEnter = logs("enter");
    } else if (auto* choice = dynamic_cast<Choice*>(control)) {
      choice->onSelect = logs("select");
      if (auto* combo = dynamic_cast<Combo*>(control)) combo->onChange = logs("change");
    } else if (auto* command = dynamic_cast<Command*>(control)) {
      command->onClick = logs("click");
    } else if (auto* option = dynamic_cast<Option*>(control)) {
      option->onClick = logs("click");
    }
  }
  second.onEnter = nullptr;  // Enter there is the default command's
  SetDefault(go);
  PassesFocusOn({&result});
  locked.SetLocked(true);
  check.onClick = [this] { Log(check.IsOn() ? "check.on" : "check.off"); };
  list.SetItems({"one", "two", "three"});
  spin.onUp = [this] { Log("spin.up"); };
  spin.onDown = [this] { Log("spin.down"); };
  bar.onChange = [this] { Log("bar=" + std::to_string(bar.Value())); };
  picture.onClick = [this] { Log("picture.click"); };
  link.onClick = [this] { Log("link.click"); };
  grid.SetContent({.rows = 2, .columns = 2, .texts = {"a", "b", "c", "d\te"}});
  grid.onCopy = [this] { GetSession().GetPlatform().SetClipboard(grid.CurrentText()); };
  clock.onTick = [this] {
    Log("tick");
    if (++ticks_ == 2) clock.SetEnabled(false);
  };
  ask.onClick = [this] {
    Log("asking");
    GetSession().ShowModal("Inner");
    GetSession().Message("Inner is gone");
  };
  question.onClick = [this] {
    switch (GetSession().GetPlatform().Ask({"Go\non?"})) {
      case Answer::Ok: Log("ok"); break;
      case Answer::Yes: Log("yes"); break;
      case Answer::No: Log("no"); break;
      case Answer::Cancel: Log("cancel"); break;
    }
  };
  file.onClick = [this] {
    const auto path = GetSession().GetPlatform().ChooseFile(
        {FileDialog::Action::Open, "Pick...", "name.dta", "", ""});
    Log(path ? *path : "none");
  };
  fail.onClick = [this] {
    first.SetText("before");
    failures::DivisionByZero();
  };
  leave.onClick = [this] {
    GetSession().Unload(*this);
    Log("after");  // the window lives until the handler has ended
  };
  hidden.Hide();
  disabled.SetEnabled(false);
}

Layout Sampler::Arrangement() {
  return Column({first,    second,  result,   locked, Box(group, {alpha, beta}),
                 check,    hidden,  disabled, list,   fixed,
                 open,     spin,    bar,      grid,   picture,
                 link,     cell(1), cell(2),  go,     ask,
                 question, file,    fail,     leave,  log});
}

void Sampler::Load() {
  CalculatorWindow::Load();
  Log("load");
}

void Sampler::Activated() {
  CalculatorWindow::Activated();
  Log("activated");
}

std::string Sampler::TakeLog() {
  std::string told = log.Caption();
  log.SetCaption("");
  return told;
}

Inner::Inner(Session& session, std::string name)
    : Window(session, {.name = std::move(name), .title = "Inner"}) {
  passing.onFocus = [this] { GetSession().SendTab(); };
  done.onClick = [this] { GetSession().Unload(*this); };
  away.onClick = [this] { GetSession().Hide(*this); };
  deeper.onClick = [this] {
    GetSession().ShowModal("Innermost");
    GetSession().GetPlatform().Beep();
  };
  both.onClick = [this] {
    GetSession().Unload("Inner");
    GetSession().Unload(*this);
  };
}

void Inner::Unloaded() { GetSession().GetPlatform().Launch(Name() + " unloads"); }

std::span<const WindowUnit> TestCatalogue() {
  static const std::vector<WindowUnit> units = [] {
    const auto suite = WindowCatalogue();
    std::vector<WindowUnit> all(suite.begin(), suite.end());
    all.push_back({"Sampler", [](Session& session) -> std::unique_ptr<Window> {
                     return std::make_unique<Sampler>(session);
                   }});
    all.push_back({"Inner",
                   [](Session& session) -> std::unique_ptr<Window> {
                     return std::make_unique<Inner>(session, "Inner");
                   },
                   /*modal=*/true});
    all.push_back({"Innermost", [](Session& session) -> std::unique_ptr<Window> {
                     return std::make_unique<Inner>(session, "Innermost");
                   }});
    return all;
  }();
  return units;
}

}  // namespace korvane::testing
