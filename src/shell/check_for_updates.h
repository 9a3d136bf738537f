// Compares the program's version with the one on the product's web server.
#pragma once

#include "frame/window.h"

namespace korvane {

class Check_for_Updates final : public Window {
 public:
  explicit Check_for_Updates(Session& session);

  void Load() override;

 private:
  Layout Arrangement() override;

  Label Label1{*this, "Label1", "You are using version number"};
  TextField txt_this_version{*this, "txt_this_version", Label1};
  Label Label2{*this, "Label2", "The latest version number is"};
  TextField txt_latest_version{*this, "txt_latest_version", Label2};
  Label lbl_message{*this, "lbl_message"};
  Command btn_ok{*this, "btn_ok", "Ok"};
  Command btn_download{*this, "btn_download", "Download  Latest  Version"};
};

}  // namespace korvane
