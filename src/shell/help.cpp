#include "shell/help.h"

#include "frame/files.h"
#include "frame/session.h"

namespace korvane {
namespace {

constexpr Geometry kSize{0, 0, 13125, 9240};  // twips

}  // namespace

Help::Help(Session& session)
    : Window(session, {.name = "Help", .title = "Browser", .sizable = true}) {
  Text1.onEnter = cmdGo.onClick = [this] { GoToAddress(); };
  Text1.MakeFreeText();
  Text1.onFocus = [this] { Text1.SelectAll(); };
  cmdBack.onClick = [this] { WebBrowser1.Go(PageView::Step::Back); };
  cmdForward.onClick = [this] { WebBrowser1.Go(PageView::Step::Forward); };
  cmdRefresh.onClick = [this] { WebBrowser1.Go(PageView::Step::Reload); };
  WebBrowser1.onArrived = [this] {
    Text1.SetText(WebBrowser1.Address());
    SetTitle("Korvane Help");
  };
}

Layout Help::Arrangement() {
  return Column({Row({cmdBack, cmdForward, cmdRefresh, Text1, cmdGo}), WebBrowser1, Label1});
}

void Help::Load() {
  Session& session = GetSession();
  session.HelpFolder = session.ProgramFolder() + kSeparator + "help" + kSeparator;
  if (session.HelpTopic.empty()) session.HelpTopic = "contents.html";
  SetGeometry(kSize);
  ShowTopic();
}

// Coming back from a calculator jumps to that calculator's page.
void Help::Activated() { ShowTopic(); }

void Help::ShowTopic() {
  Text1.SetText(GetSession().HelpFolder + GetSession().HelpTopic);
  GoToAddress();
}

void Help::GoToAddress() { WebBrowser1.Navigate(Text1.Text()); }

}  // namespace korvane
