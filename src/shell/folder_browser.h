// Set Data Path: where the tables and data files are.
#pragma once

#include "frame/window.h"

namespace korvane {

class Folder_Browser final : public Window {
 public:
  explicit Folder_Browser(Session& session);

  void Load() override;
  bool KeyPreview(Key key) override;

 private:
  Layout Arrangement() override;

  void Browse();
  void Accept();

  Label Label2{*this, "Label2", "Specify the location of the Korvane data files:"};
  Label Label1{*this, "Label1"};
  Label Label3{*this, "Label3",
               "WARNING:  This option is intended for system administrators.  Changing the data "
               "path can interfere with proper operation of the program.  If the program is "
               "working correctly, changing the data path is not recommended.  Select ''Cancel'' "
               "to keep the existing data path."};
  Command btn_browse{*this, "btn_browse", "Browse"};
  Command btn_reset{*this, "btn_reset", "Reset  to  Default  Data  Path"};
  Command btn_ok{*this, "btn_ok", "OK"};
  Command btn_cancel{*this, "btn_cancel", "Cancel"};
};

}  // namespace korvane
