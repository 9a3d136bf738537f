// The help browser, on the page of the window used last.
#pragma once

#include "frame/window.h"

namespace korvane {

class Help final : public Window {
 public:
  explicit Help(Session& session);

  void Load() override;
  void Activated() override;
  void Resized() override;

 private:
  Layout Arrangement() override;

  void ShowTopic();
  void GoToAddress();
  void Follow(const std::string& address);

  TextField Text1{*this, "Text1", "Address"};
  Command cmdGo{*this, "cmdGo", "Go"};
  Command cmdBack{*this, "cmdBack", "Back"};
  Command cmdForward{*this, "cmdForward", "Forward"};
  Command cmdRefresh{*this, "cmdRefresh", "Refresh"};
  PageView WebBrowser1{*this, "WebBrowser1"};
  Label Label1{*this, "Label1", "To print a topic RIGHT-CLICK on a blank area of the page."};
};

}  // namespace korvane
