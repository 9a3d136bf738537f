#include "shell/check_for_updates.h"

#include "frame/calculator_window.h"
#include "frame/session.h"
#include "shell/web.h"

namespace korvane {
namespace {

constexpr Color kRed = Color::Bgr(0x0000FF);
constexpr Color kBlue = Color::Bgr(0xFF0000);

}  // namespace

Check_for_Updates::Check_for_Updates(Session& session)
    : Window(session, {.name = "Check_for_Updates", .title = "Check for Updates"}) {
  txt_this_version.SetLocked(true);
  txt_latest_version.SetLocked(true);
  btn_ok.onClick = [this] { GetSession().Unload(*this); };
  btn_download.onClick = [this] {
    GetSession().GetPlatform().Launch(WebAddress("/download.html"));
  };
}

Layout Check_for_Updates::Arrangement() {
  return Column({Form({txt_this_version, txt_latest_version}), lbl_message,
                 Row({btn_ok, Stretch(), btn_download})});
}

// A plain comparison of texts: any difference counts as a newer version.
void Check_for_Updates::Load() {
  Session& session = GetSession();
  session.HelpTopic = "contents.html";
  ApplyFormColors(*this);
  const std::string& latest = session.RemoteVersionText;
  txt_this_version.SetText(session.VersionText);
  txt_latest_version.SetText(latest);
  const auto tell = [this](const char* message, Color color) {
    lbl_message.SetCaption(message);
    lbl_message.SetFore(color);
  };
  if (latest.empty()) {
    txt_latest_version.SetText("???");
    tell("Could not read version from web site!", kRed);
  } else if (latest != session.VersionText) {
    tell("A newer version is available.", kRed);
  } else {
    tell("You already have the latest version.", kBlue);
  }
}

}  // namespace korvane
