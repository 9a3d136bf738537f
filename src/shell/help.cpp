#include "shell/help.h"

#include "frame/files.h"
#include "frame/session.h"
#include "shell/web.h"

namespace korvane {
namespace {

constexpr int kLeastWidth = 13125;  // twips
constexpr int kLeastHeight = 9240;

}  // namespace

Help::Help(Session& session)
    : Window(session, {.name = "Help", .title = "Browser", .sizable = true}) {
  Text1.MakeFreeText();
  Text1.onFocus = [this] { Text1.SelectAll(); };
  Text1.onEnter = cmdGo.onClick = [this] { GoToAddress(); };
  cmdBack.onClick = [this] { WebBrowser1.Back(); };
  cmdForward.onClick = [this] { WebBrowser1.Forward(); };
  cmdRefresh.onClick = [this] { WebBrowser1.Reload(); };
  WebBrowser1.onFollow = [this](const std::string& address) { Follow(address); };
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
  WebBrowser1.SetFolder(session.HelpFolder);
  SetSize(kLeastWidth, kLeastHeight);
  ShowTopic();
}

// Coming back from a calculator jumps to that calculator's page.
void Help::Activated() { ShowTopic(); }

void Help::Resized() { HoldLeastSize(kLeastWidth, kLeastHeight); }

void Help::ShowTopic() {
  Text1.SetText(GetSession().HelpFolder + GetSession().HelpTopic);
  GoToAddress();
}

void Help::GoToAddress() { Follow(Text1.Text()); }

// Pages of the product's web server are opened by the system; the view shows those of the help
// folder and nothing else.
void Help::Follow(const std::string& address) {
  if (address.starts_with(WebAddress("/")))
    GetSession().GetPlatform().Launch(address);
  else
    WebBrowser1.Navigate(address);
}

}  // namespace korvane
