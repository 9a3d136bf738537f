// The window model: focus, controls, modal windows, failures.
#include <gtest/gtest.h>

#include "support/sampler.h"
#include "support/scripted_session.h"

namespace korvane::testing {
namespace {

class WindowTest : public ::testing::Test {
 protected:
  WindowTest() {
    suite.Shows("Sampler");
    window = dynamic_cast<Sampler*>(suite.session.Active());
    Fresh();
  }

  /// Forgets what has happened.
  void Fresh() {
    window->TakeLog();
    suite.Told();
  }
  std::string Log() { return window->TakeLog(); }
  std::string FocusedName() const {
    return window->Focus() != nullptr ? window->Focus()->Name() : "";
  }
  void Press(Key key) { suite.person.Presses(*window, key); }

  ScriptedSession suite{TestCatalogue()};
  Sampler* window = nullptr;
};

// ---- Focus ----

TEST_F(WindowTest, TheFieldIsLeftBeforeTheNextOneIsArrivedAt) {
  suite.person.Focuses(window->second);
  EXPECT_EQ(Log(), "first.leave second.focus ");
  suite.person.Focuses(window->second);
  EXPECT_EQ(Log(), "") << "it has the focus already";
}

TEST_F(WindowTest, ALeaveHandlerThatGoesElsewhereHasItsWay) {
  window->first.onLeave = [this] { window->cell(1).SetFocus(); };
  suite.person.Focuses(window->second);
  EXPECT_EQ(FocusedName(), "cell(1)");
  EXPECT_EQ(Log(), "cell(1).focus ") << "the second was never arrived at, and so not left";
}

TEST_F(WindowTest, AnArrivalHandlerThatGoesOnHasItsWay) {
  window->second.onFocus = [this] { window->cell(1).SetFocus(); };
  suite.person.Focuses(window->second);
  EXPECT_EQ(FocusedName(), "cell(1)");
  EXPECT_EQ(Log(), "first.leave second.leave cell(1).focus ");
}

TEST_F(WindowTest, TwoFieldsThatHoldTheFocusBackDoNotFightForEver) {
  window->first.onLeave = [this] { window->first.SetFocus(); };
  window->second.onLeave = [this] { window->second.SetFocus(); };
  suite.person.Focuses(window->second);
  EXPECT_EQ(FocusedName(), "first");
}

TEST_F(WindowTest, ALeaveHandlerMayTakeTheTargetAway) {
  window->first.onLeave = [this] { window->go.Hide(); };
  suite.person.Clicks(window->go);
  EXPECT_EQ(Log(), "ask.focus ") << "the next one gets the focus, and nothing is clicked";
  EXPECT_EQ(FocusedName(), "ask");
}

TEST_F(WindowTest, WhatIsHiddenOrDisabledTakesNoFocusAndGivesItUp) {
  window->hidden.SetFocus();
  window->disabled.SetFocus();
  EXPECT_EQ(FocusedName(), "first");
  window->first.Hide();
  EXPECT_EQ(FocusedName(), "second");
  window->second.SetEnabled(false);
  EXPECT_EQ(Log(),
            "first.leave second.focus second.leave ");  // the result passes on when events end
  for (Control* control : window->Controls()) control->Hide();
  EXPECT_EQ(window->Focus(), nullptr);
  Press(Key::Tab);
  Press(Key::Enter);
  EXPECT_EQ(window->Focus(), nullptr);
}

TEST_F(WindowTest, TabWalksWhatCanBeUsedInTheOrderOfTheLayout) {
  const Lines stops = {"second", "locked",   "alpha", "check",   "list",    "fixed",
                       "open",   "bar",      "grid",  "cell(1)", "cell(2)", "go",
                       "ask",    "question", "file",  "fail",    "leave",   "first"};
  for (const std::string& stop : stops) {
    Press(Key::Tab);
    EXPECT_EQ(FocusedName(), stop);
  }
  window->beta.TurnOn();
  for (const char* stop : {"leave", "fail"}) {
    Press(Key::BackTab);
    EXPECT_EQ(FocusedName(), stop);
  }
  suite.person.Focuses(window->check);
  Press(Key::BackTab);
  EXPECT_EQ(FocusedName(), "beta") << "of a group the option that is on";
}

TEST_F(WindowTest, TheSimulatedTabActsWhenTheHandlerHasEnded) {
  window->first.onEnter = [this] {
    suite.session.SendTab();
    suite.session.SendTab();
    window->Log("computed");
  };
  Press(Key::Enter);
  EXPECT_EQ(Log(), "computed first.leave second.focus second.leave result.leave locked.focus ");
}

TEST_F(WindowTest, FieldsThatPassTheFocusOnEndAfterOneRoundIfAllDo) {
  for (Control* control : window->Controls())
    if (dynamic_cast<FocusControl*>(control) != nullptr &&
        control->GetKind() != Control::Kind::Text)
      control->Hide();
  window->PassesFocusOn(
      {&window->first, &window->second, &window->locked, &window->cell(1), &window->cell(2)});
  suite.person.Focuses(window->second);
  suite.person.Types(window->cell(1), "5");
  EXPECT_EQ(window->cell(1).Text(), "");
  EXPECT_NE(window->Focus(), nullptr);
  window->second.Hide();
  EXPECT_NE(window->Focus(), nullptr);
}

TEST_F(WindowTest, EnterFallsBackToTheDefaultCommandIfItCanBeUsed) {
  suite.person.Focuses(window->second);
  Fresh();
  Press(Key::Enter);
  EXPECT_EQ(Log(), "go.click ");
  EXPECT_EQ(FocusedName(), "second");
  window->go.SetEnabled(false);
  Press(Key::Enter);
  EXPECT_EQ(Log(), "");
}

TEST_F(WindowTest, OnlyTheFieldInFocusIsEditedAndNoneThatIsLocked) {
  suite.person.Edits(window->second, "x");
  suite.person.Types(window->locked, "x");
  suite.person.Edits(window->open, "x");
  EXPECT_EQ(window->second.Text() + window->locked.Text() + window->open.Text(), "usfixed");
}

// ---- Controls ----

TEST_F(WindowTest, AnOptionThatCodeTurnsOnIsAClickOnlyIfItWasOff) {
  window->alpha.TurnOn();
  EXPECT_EQ(Log(), "");
  window->beta.TurnOn();
  window->beta.TurnOn();
  EXPECT_EQ(Log(), "beta.click ");
  EXPECT_EQ(window->group.Chosen(), &window->beta);
  EXPECT_FALSE(window->alpha.IsOn());
  suite.person.Clicks(window->beta);
  EXPECT_EQ(Log(), "first.leave beta.focus beta.click ");
}

TEST_F(WindowTest, ACheckBoxIsClickedByCodeIfItChanges) {
  window->check.Set(false);
  window->check.Set(true);
  window->check.Set(true);
  EXPECT_EQ(Log(), "check.on ");
}

TEST_F(WindowTest, AChangeByCodeIsHandledIfTheTextDiffers) {
  window->second.SetText("us");
  window->second.SetText("x");
  EXPECT_EQ(Log(), "second.change ");
}

TEST_F(WindowTest, ChoosingByCodeIsASelection) {
  window->list.Select(1);
  EXPECT_EQ(window->list.Text(), "two");
  window->list.Select(-1);
  EXPECT_EQ(window->list.Text(), "");
  EXPECT_THROW(window->list.Select(3), RuntimeFailure);
  EXPECT_THROW(window->list.Select(-2), RuntimeFailure);
  EXPECT_EQ(Log(), "list.select list.select ");
  window->list.Select(2);
  window->list.SetItems({"new"});
  EXPECT_EQ(window->list.Index(), -1);
  EXPECT_EQ(window->list.Text(), "");
}

TEST_F(WindowTest, AComboHoldsATextAndTheEntryOfThatText) {
  window->open.Select(1);
  EXPECT_EQ(window->open.Text(), "two");
  window->open.SetText("other");
  EXPECT_EQ(window->open.Index(), -1);
  window->open.SetText("one");
  EXPECT_EQ(window->open.Index(), 0);
  EXPECT_EQ(Log(), "open.select open.change open.change ");
  window->open.SetItems({"two"});
  EXPECT_EQ(window->open.Text(), "");
  EXPECT_EQ(window->open.Index(), -1);
}

TEST_F(WindowTest, ATimerNeverTicksInItsOwnHandler) {
  window->clock.onTick = [this] {
    window->Log("tick");
    suite.person.Waits(window->clock);
  };
  suite.person.Waits(window->clock);
  EXPECT_EQ(Log(), "tick ");
  window->clock.onTick = [] { failures::Overflow(); };
  suite.person.Waits(window->clock);
  suite.person.Waits(window->clock);
  EXPECT_EQ(suite.Told(), (Lines{"! failure 6 Overflow", "! failure 6 Overflow"}));
  window->clock.SetEnabled(false);
  suite.person.Waits(window->clock);
  EXPECT_EQ(suite.Told(), Lines{});
}

TEST_F(WindowTest, IndexesOutOfBoundsFail) {
  const Handler faults[] = {
      [this] { window->cell(0); },
      [this] { window->cell(3); },
      [this] { window->grid.SetCurrent(2, 0); },
      [this] { window->grid.SetCurrent(0, -1); },
      [this] { window->bar.SetValue(11); },
      [this] { window->bar.SetValue(-1); },
  };
  for (const Handler& fault : faults) EXPECT_FALSE(suite.session.Handle(fault));
  EXPECT_EQ(window->bar.Value(), 5);
  EXPECT_EQ(Log(), "");
}

TEST_F(WindowTest, AMovedBarIsHandledOnce) {
  suite.person.Scrolls(window->bar, -5);
  suite.person.Scrolls(window->bar, 0);
  EXPECT_EQ(Log(), "first.leave bar.focus bar=0 ");
}

// ---- Life ----

TEST_F(WindowTest, ThereIsOneInstance) {
  window->first.SetText("kept");
  suite.Shows("FlowCalc");
  suite.Shows("sampler");
  EXPECT_EQ(suite.session.Active(), window);
  EXPECT_EQ(window->first.Text(), "kept");
  EXPECT_EQ(suite.session.Windows().size(), 2U);
}

TEST_F(WindowTest, AWindowUnloadedByItsHandlerLivesUntilTheHandlerEnds) {
  suite.person.Clicks(window->leave);
  EXPECT_EQ(suite.Told(), Lines{"! unloaded Sampler"});
  EXPECT_EQ(suite.session.Find("Sampler"), nullptr);
}

TEST_F(WindowTest, ALeaveHandlerThatClosesTheWindowEndsTheClick) {
  window->first.onLeave = [this] { suite.session.Unload(*window); };
  const Session::Hold hold(suite.session);
  suite.person.Clicks(window->go);
  EXPECT_EQ(suite.Told(), Lines{"! unloaded Sampler"});
  EXPECT_EQ(Log().find("go.click"), std::string::npos);
}

TEST_F(WindowTest, AModalWindowKeepsItsOpenerWaiting) {
  suite.platform.onModal = [this](Window& modal) {
    EXPECT_EQ(suite.session.Modal(), &modal);
    EXPECT_EQ(modal.Focus()->Name(), "field") << "the first field has passed the focus on";
    suite.person.Clicks(*modal.Find("away"));
    EXPECT_FALSE(modal.IsShown());
  };
  suite.person.Clicks(window->ask);
  EXPECT_EQ(suite.session.Modal(), nullptr);
  EXPECT_EQ(suite.session.Active(), window);
  EXPECT_EQ(suite.Told(), (Lines{"! shown Inner", "! message Korvane | Inner is gone"}));
}

TEST_F(WindowTest, AModalWindowThatClosesItselfIsNotWaitedFor) {
  window->ask.onClick = [this] {
    suite.session.Show("Inner");
    auto& passing = dynamic_cast<TextField&>(*suite.session.Find("Inner")->Find("passing"));
    passing.onLeave = [this] { suite.session.Unload("Inner"); };
    suite.session.Show(*window);
    suite.session.ShowModal("Inner");
  };
  suite.platform.onModal = [](Window&) { ADD_FAILURE() << "nothing would ever close it"; };
  suite.person.Clicks(window->ask);
  EXPECT_EQ(suite.session.Active(), window);
}

// ---- Failures ----

TEST_F(WindowTest, AFailureEndsTheHandlerAndItsSimulatedTabs) {
  window->first.onEnter = [this] {
    suite.session.SendTab();
    window->second.SetText("before");
    failures::DivisionByZero();
  };
  Press(Key::Enter);
  EXPECT_EQ(suite.Told(), Lines{"! failure 11 Division by zero"});
  EXPECT_EQ(window->second.Text(), "before");
  EXPECT_EQ(FocusedName(), "first");
}

TEST_F(WindowTest, AFailureOnLeavingIsTheEndOfWhatThePersonDid) {
  const Handler acts[] = {
      [this] { suite.person.Clicks(window->go); },
      [this] { suite.person.Clicks(window->check); },
      [this] { suite.person.Types(window->second, "new"); },
      [this] { suite.person.Selects(window->list, 1); },
      [this] { suite.person.Scrolls(window->bar, 1); },
      [this] { suite.person.Spins(window->spin, true); },
  };
  for (const Handler& act : acts) {
    suite.person.Focuses(window->first);
    window->first.onLeave = [] { failures::TypeMismatch(); };
    Fresh();
    act();
    EXPECT_EQ(suite.Told(), Lines{"! failure 13 Type mismatch"});
    EXPECT_EQ(Log(), "");
    window->first.onLeave = nullptr;
  }
}

// ---- Paste ----

TEST(CleanPaste, BringsNumbersAsTheyAreMeant) {
  struct Case {
    const char* pasted;
    const char* text;
  };
  for (const Case& paste : {Case{"12.5", "12.5"},
                            {"", ""},
                            {" \t\r\n ", ""},
                            {"  12.5 \r\n", "12.5"},
                            {"1\n2\r\n3", "123"},
                            {"\u22125", "-5"},
                            {"\u00A01\u202F000\u2009", "1 000"},
                            {"\u20077", "7"},
                            {"a \xC3\xA9\xE2\x88", "a \xC3\xA9\xE2\x88"}})
    EXPECT_EQ(CleanPaste(paste.pasted), paste.text) << paste.pasted;
}

}  // namespace
}  // namespace korvane::testing
