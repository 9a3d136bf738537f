#include "shell/splash.h"

#include <array>

#include "frame/session.h"

namespace korvane {
namespace {

constexpr int kWidth = 4395;  // twips
constexpr int kAboutHeight = 3855;
constexpr int kStartHeight = 2460;  // only the name and the version

constexpr std::array kSizes = {8, 10, 12, 14, 16, 18, 20, 24, 28};  // points
constexpr int kFirstLast = 12;  // the step at which the second piece of the name appears
constexpr int kLastStep = 21;
constexpr int kDelayRounds = 10000;

/// A disc with the flow through an orifice, in the colours of the palette.
Drawing Emblem() {
  Drawing drawing{120, 40, {}};
  drawing.shapes.emplace_back(
      Path{{{52, 2}, {66, 2}, {66, 15}, {52, 11}, {52, 2}}, Ink::Line, Ink::Body});
  drawing.shapes.emplace_back(
      Path{{{52, 38}, {66, 38}, {66, 25}, {52, 29}, {52, 38}}, Ink::Line, Ink::Body});
  drawing.shapes.emplace_back(Path{{{8, 20}, {112, 20}}, Ink::Accent, {}, 1.5});
  drawing.shapes.emplace_back(Path{{{104, 16}, {112, 20}, {104, 24}}, Ink::Accent, {}, 1.5});
  return drawing;
}

}  // namespace

Splash::Splash(Session& session)
    : Window(session, {.name = "Splash", .title = "Korvane"}),
      Picture1(*this, "Picture1", "Air flowing through an orifice", Emblem()) {
  Timer1.onTick = [this] { Animate(); };
  Timer2.onTick = [this] {
    Timer2.SetEnabled(false);
    GetSession().Unload(*this);
  };
  btn_Read_Disclaimer.onClick = [this] { ShowDisclaimer(); };
  btn_agree.onClick = [this] { GetSession().Unload(*this); };
  btn_disagree.onClick = [this] { GetSession().GetPlatform().EndProgram(0); };
  cmd_OK.onClick = [this] {
    GetSession().AboutMode = false;
    GetSession().Hide(*this);
    GetSession().Unload(*this);
  };
}

Layout Splash::Arrangement() {
  return Column({Row({Stretch(), txt_name_first(0), txt_name_last(0), Stretch()}),
                 Row({Stretch(), Label5, Stretch()}), Picture1,
                 Row({Stretch(), btn_Read_Disclaimer, Stretch()}),
                 Box(Panel3D4, {Row({Stretch(), Label3, Stretch()}),
                                Row({Stretch(), btn_agree, btn_disagree, Stretch()})}),
                 Row({Stretch(), cmd_OK, Stretch()})});
}

void Splash::Load() {
  const bool about = GetSession().AboutMode;
  SetSize(kWidth, about ? kAboutHeight : kStartHeight);
  // At start nothing is asked of the person; what the lower part holds is out of the window.
  for (Control* lower : std::initializer_list<Control*>{
           &btn_Read_Disclaimer, &Panel3D4, &Label3, &btn_agree, &btn_disagree, &Picture1, &cmd_OK})
    lower->SetVisible(about);
}

void Splash::Activated() {
  Timer1.SetEnabled(false);
  for (Label* piece : {&txt_name_first(0), &txt_name_last(0)}) {
    piece->Hide();
    piece->SetFontSize(kSizes.front());
  }
  Timer1.SetEnabled(true);
}

// The first two ticks only pass the time; the third makes the first piece appear, and each one
// after that is a step: the first piece grows, then the second, then the window rests for a second.
void Splash::Animate() {
  ++ticks_;
  for (int round = 0; round < kDelayRounds; ++round) GetSession().RunPendingMessages();
  if (!IsShown()) return;  // closed meanwhile
  const int step = ticks_ - 3;
  const auto grow = [step](Label& piece, int first) {
    if (step >= first && step < first + static_cast<int>(kSizes.size()))
      piece.SetFontSize(kSizes[static_cast<std::size_t>(step - first)]);
  };
  if (step == 0) txt_name_first(0).Show();
  grow(txt_name_first(0), 1);
  if (step == kFirstLast) txt_name_last(0).Show();
  grow(txt_name_last(0), kFirstLast + 1);
  if (step == kLastStep) {
    Timer1.SetEnabled(false);
    if (!GetSession().AboutMode) Timer2.SetEnabled(true);
  }
}

void Splash::ShowDisclaimer() {
  GetSession().Message(
      "The information and formulas in this program have been obtained from a wide variety of "
      "reputable sources."
      "  While reasonable care has been exercised in the preparation and testing of the program, "
      "the author disclaims any warranty, expressed or implied, as to the accuracy or reliability "
      "of the data or calculations contained therein."
      "  Many of the tables and formulas yield approximate or typical values, which will not be "
      "suitable for every application."
      "  It is the sole responsibility of the user to validate the data and to determine whether "
      "the results of this program are accurate and suitable for any specific purpose."
      "  No guarantee of accuracy or fitness for any purpose is expressed or implied."
      "  The author shall not be held liable for any direct, indirect, consequential or incidental "
      "damages incurred through use of the data or calculations."
      "  In no case shall the author's liability extend beyond the price paid for the software."
      "\r\r"
      "You must accept these terms if you wish to use the software.",
      Icon::Information, "Korvane  -  D I S C L A I M E R ");
}

}  // namespace korvane
