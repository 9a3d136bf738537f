#include "math/temp_cvt.h"

namespace korvane {
namespace {

// The suite's own zero points; those of the scales are 459.67 and 273.15.
constexpr double kRankine = 459.69;
constexpr double kKelvin = 273.16;

Double ToCelsius(Double fahrenheit) { return (fahrenheit - 32) * 5 / 9; }
Double ToFahrenheit(Double celsius) { return celsius * 9 / 5 + 32; }

Single CutToCents(Single x) { return Int(x * 100) / 100; }

}  // namespace

TEMP_CVT::TEMP_CVT(Session& session)
    : CalculatorWindow(session, {.name = "TEMP_CVT",
                                 .title = " Temperature Conversions",
                                 .helpPage = "hvac_temperature_conversions.html"}) {
  Links(F, FSlider, &TEMP_CVT::FromFahrenheit);
  Links(C, CSlider, &TEMP_CVT::FromCelsius);
  Links(R, rslider, &TEMP_CVT::FromRankine);
  Links(K, kslider, &TEMP_CVT::FromKelvin);
  HelpsWith(btn_help);
  ExitsWith(btn_exit);
}

Layout TEMP_CVT::Arrangement() {
  return Column({Form({Row({F, FSlider}), Row({C, CSlider}), Row({R, rslider}), Row({K, kslider})}),
                 Box(note_, {instruction_}), Row({Stretch(), btn_help, btn_exit})});
}

void TEMP_CVT::Load() {
  CalculatorWindow::Load();
  F.SetText("212");
  C.SetText("100");
  R.SetText("671.69");
  K.SetText("373.16");
}

// A temperature beyond its bar is not converted.
void TEMP_CVT::Links(TextField& field, ScrollBar& bar, void (TEMP_CVT::*convert)(Digits)) {
  field.onEnter = [this, &field, &bar, convert] {
    const Double value = Strict(field);
    if (value < bar.Least() || value > bar.Most()) return;
    barFollows_ = true;
    bar.SetValue(ToInteger16(value));
    barFollows_ = false;
    (this->*convert)(Digits::Cents);
  };
  bar.onChange = [this, &field, &bar, convert] {
    if (barFollows_) return;
    field.SetText(PlainText(bar.Value()));
    (this->*convert)(Digits::All);
  };
}

void TEMP_CVT::Put(TextField& field, Double value, Digits digits) {
  if (digits == Digits::Cents)
    field.Show(value, "0.00");
  else
    field.Show(value);
}

// Each step reads what the one before it has shown, rounded as that may be.

void TEMP_CVT::FromFahrenheit(Digits digits) {
  Put(C, ToCelsius(Strict(F)), digits);
  Put(R, Strict(F) + kRankine, digits);
  Put(K, Strict(C) + kKelvin, digits);
}

void TEMP_CVT::FromCelsius(Digits digits) {
  Put(F, ToFahrenheit(Strict(C)), digits);
  Put(R, Strict(F) + kRankine, digits);
  Put(K, Strict(C) + kKelvin, digits);
}

void TEMP_CVT::FromRankine(Digits digits) {
  Put(F, Strict(R) - kRankine, digits);
  Put(C, ToCelsius(Strict(F)), digits);
  Put(K, Strict(C) + kKelvin, digits);
}

void TEMP_CVT::FromKelvin(Digits digits) {
  Put(C, Strict(K) - kKelvin, digits);
  Put(F, ToFahrenheit(Strict(C)), digits);
  Put(R, Strict(F) + kRankine, digits);
  if (digits == Digits::Cents) return;
  for (TextField* field : {&C, &F, &R}) field->Show(CutToCents(Strict(*field)));
}

}  // namespace korvane
