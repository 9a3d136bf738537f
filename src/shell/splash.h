// The splash window: the product's name growing at start, and the About window with the disclaimer.
#pragma once

#include "frame/window.h"

namespace korvane {

class Splash final : public Window {
 public:
  explicit Splash(Session& session);

  void Load() override;
  void Activated() override;

 private:
  Layout Arrangement() override;

  void Animate();
  void ShowDisclaimer();

  ControlArray<Label> txt_name_first{*this, "txt_name_first", 0, 0, "Kor"};
  ControlArray<Label> txt_name_last{*this, "txt_name_last", 0, 0, "vane"};
  Label Label5{*this, "Label5", "Version 2.0.5"};
  Picture Picture1;
  Command btn_Read_Disclaimer{*this, "btn_Read_Disclaimer", "Read the Disclaimer"};
  Frame Panel3D4{*this, "Panel3D4"};
  Label Label3{*this, "Label3", "I have read the disclaimer and I"};
  Command btn_agree{*this, "btn_agree", "Agree"};
  Command btn_disagree{*this, "btn_disagree", "Disagree"};
  Command cmd_OK{*this, "cmd_OK", "OK"};
  Timer Timer1{*this, "Timer1", 1, Timer::Starts::Enabled};
  Timer Timer2{*this, "Timer2", 1000, Timer::Starts::Disabled};
  int ticks_ = 0;
};

}  // namespace korvane
