#include "shell/folder_browser.h"

#include "frame/files.h"
#include "frame/session.h"

namespace korvane {

Folder_Browser::Folder_Browser(Session& session)
    : Window(session, {.name = "Folder_Browser", .title = " Set Data Path"}) {
  Label1.SetBack(Color::Window());
  btn_browse.onClick = [this] { Browse(); };
  btn_reset.onClick = [this] { Label1.SetCaption(GetSession().ProgramFolder()); };
  btn_ok.onClick = [this] { Accept(); };
  btn_cancel.onClick = [this] { GetSession().Unload(*this); };
  SetCancel(btn_cancel);
}

Layout Folder_Browser::Arrangement() {
  return Column({Label2, Label1, Row({btn_browse, btn_reset, Stretch()}), Rule(), Label3,
                 Row({Stretch(), btn_ok, btn_cancel})});
}

void Folder_Browser::Load() {
  std::string path = GetSession().DataPath;
  if (path.ends_with(kSeparator)) path.pop_back();
  if (!path.empty()) Label1.SetCaption(path);
  GetSession().HelpTopic = "contents.html";
}

// Help would open behind this modal window.
bool Folder_Browser::KeyPreview(Key key) { return key == Key::F1; }

void Folder_Browser::Browse() {
  GetSession().Refresh();
  if (const auto folder =
          GetSession().GetPlatform().ChooseFolder("Select the Korvane data folder:"))
    Label1.SetCaption(*folder);
}

void Folder_Browser::Accept() {
  Session& session = GetSession();
  session.DataPath = Label1.Caption() + kSeparator;
  session.GetPlatform().SaveSetting("Data Path", session.DataPath);
  session.Unload(*this);
}

}  // namespace korvane
