#include "frame/page_setup.h"

#include <algorithm>

#include "frame/calculator_window.h"
#include "frame/session.h"

namespace korvane {
namespace {

constexpr int kWidth = 6420;  // twips
constexpr int kHeight = 4980;
constexpr int kTwipsPerInch = 1440;
constexpr double kHeaderSpace = 0.5;  // inches above the image for a header

short TwipsOf(Single inches) { return ToInteger16(inches * kTwipsPerInch); }

}  // namespace

Page_Setup::Page_Setup(Session& session)
    : Window(session, {.name = "Page_Setup", .title = " Page Setup", .sizable = true}),
      Picture1(*this, "Picture1", "Preview of the page"),
      Picture2(*this, "Picture2", "Picture of the window") {
  Picture1.FillSpace();
  Picture2.Hide();
  txt_header.MakeFreeText();
  txt_header.Hide();
  lbl_header.Hide();

  for (TextField* field : {&txt_percent, &txt_top_margin, &txt_left_margin})
    field->onEnter = [this] { Preview(); };
  chk_full_width.onClick = chk_center.onClick = btn_apply.onClick = [this] { Preview(); };
  UpDown_top_margin.onUp = [this] { StepMargin(txt_top_margin, true); };
  UpDown_top_margin.onDown = [this] { StepMargin(txt_top_margin, false); };
  UpDown_left_margin.onUp = [this] { StepMargin(txt_left_margin, true); };
  UpDown_left_margin.onDown = [this] { StepMargin(txt_left_margin, false); };
  chk_header.onClick = [this] { ShowHeader(); };
  Combo1.onSelect = [this] {
    GetSession().GetPlatform().ChoosePrinter(Combo1.Text());
    Preview();
  };
  optPortrait.onClick = [this] { ChooseOrientation(Orientation::Portrait); };
  optLandscape.onClick = [this] { ChooseOrientation(Orientation::Landscape); };
  btn_set_printer.onClick = [this] {
    GetSession().GetPlatform().SetUpPrinter("Printer Setup");
    Preview();
  };
  btn_print.onClick = [this] { Print(); };
  Command2.onClick = [this] { GetSession().Unload(*this); };
  SetCancel(Command2);
}

Layout Page_Setup::Arrangement() {
  return Column(
      {Row({Picture1,
            Column({Form({Row({txt_percent, lbl_percent}), Row({txt_top_margin, UpDown_top_margin}),
                          Row({txt_left_margin, UpDown_left_margin})}),
                    chk_full_width, chk_center, chk_header,
                    Box(orientation_, {Row({optPortrait, optLandscape})}), Stretch()})}),
       Form({txt_header}), Form({Combo1}),
       Row({btn_print, Stretch(), btn_apply, btn_set_printer, Command2})});
}

void Page_Setup::Load() {
  Session& session = GetSession();
  ApplyFormColors(*this);
  session.RunPendingMessages();
  SetSize(kWidth, kHeight);
  if (session.CaptureWindow != nullptr) session.GetPlatform().Capture(*session.CaptureWindow);
  TakePrinter();
  Preview();
}

/// The list of printers, with the current one chosen and its orientation taken over. Written
/// without the handlers, since nothing is to be set that isn't set already.
void Page_Setup::TakePrinter() {
  Combo1.SetItems(GetSession().GetPlatform().PrinterNames());
  const auto printer = GetSession().GetPlatform().CurrentPrinter();
  if (!printer) return;
  Combo1.SetText(printer->name);
  if (printer->orientation == Orientation::Landscape) optLandscape.TurnOn();
}

void Page_Setup::Resized() { Preview(); }

void Page_Setup::DoubleClicked() {
  if (GetState() != State::Normal) return;
  SetSize(kWidth, kHeight);
  const Metrics metrics = GetSession().GetPlatform().GetMetrics();
  MoveTo((metrics.screenWidth - kWidth) / 2, (metrics.screenHeight - kHeight) / 2);
  Preview();
}

/// Places the image by the fields as they stand, which Fit to Page and the header may change. Its
/// size is that of the window printed last, though the dialog keeps the picture that it opened
/// with.
Placement Page_Setup::Place(const Printer& printer) {
  if (ToNumber(txt_percent) <= 0) txt_percent.SetText("100");
  if (chk_header.IsOn() && ToNumber(txt_top_margin) < kHeaderSpace) txt_top_margin.SetText("0.50");
  const PageChoices choices{.percent = ToNumber(txt_percent),
                            .fitsPage = chk_full_width.IsOn(),
                            .centered = chk_center.IsOn(),
                            .topMargin = TwipsOf(ToNumber(txt_top_margin)),
                            .leftMargin = TwipsOf(ToNumber(txt_left_margin))};
  const Placement place = PlaceImage(choices, GetSession().CaptureWidth, GetSession().CaptureHeight,
                                     printer.paperWidth, printer.paperHeight);
  if (place.fittedScale) txt_percent.Show(Int(*place.fittedScale * 100));
  return place;
}

// Where no printer tells the size of its paper, the preview stays empty.
void Page_Setup::Preview() {
  try {
    const auto printer = GetSession().GetPlatform().CurrentPrinter();
    Drawing page;
    if (ToNumber(txt_percent) <= 0) txt_percent.SetText("100");
    if (printer) {
      page.width = printer->paperWidth;
      page.height = printer->paperHeight;
      page.shapes.emplace_back(
          Path{{{0, 0}, {page.width, 0}, {page.width, page.height}, {0, page.height}, {0, 0}},
               Ink::Line,
               Ink::Paper,
               page.width / 200});
      const Placement place = Place(*printer);
      page.shapes.emplace_back(
          Snapshot{{place.x.Value(), place.y.Value()}, place.width.Value(), place.height.Value()});
    }
    Picture1.Draw(std::move(page));
  } catch (const RuntimeFailure&) {
  }
}

void Page_Setup::Print() {
  const auto printer = GetSession().GetPlatform().CurrentPrinter();
  if (!printer) failures::PrinterError();
  const Placement place = Place(*printer);
  PrintedPage page{.x = place.x.Value(),
                   .y = place.y.Value(),
                   .width = place.width.Value(),
                   .height = place.height.Value()};
  if (chk_header.IsOn()) page.header = txt_header.Text();
  GetSession().GetPlatform().Print(page);
  GetSession().RunPendingMessages();
  GetSession().Unload(*this);
}

void Page_Setup::StepMargin(TextField& margin, bool up) {
  constexpr double step = 0.1;  // inches
  const Single inches = ToNumber(margin);
  if (up)
    margin.Show(inches + step, "0.00");
  else if (inches >= step)
    margin.Show(inches - step, "0.00");
  else
    margin.SetText("0");
  TwipsOf(ToNumber(margin));  // a margin beyond 16 bits of twips overflows
  Preview();
}

void Page_Setup::ShowHeader() {
  const bool on = chk_header.IsOn();
  txt_header.SetVisible(on);
  lbl_header.SetVisible(on);
  const Single top = ToNumber(txt_top_margin);
  if (on && top < kHeaderSpace) txt_top_margin.SetText("0.50");
  if (!on && top >= kHeaderSpace) txt_top_margin.Show(Single(top - kHeaderSpace));
  Resized();
}

void Page_Setup::ChooseOrientation(Orientation orientation) {
  GetSession().GetPlatform().SetOrientation(orientation);
  GetSession().RunPendingMessages();
  Preview();
}

}  // namespace korvane
