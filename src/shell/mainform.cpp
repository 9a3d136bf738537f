#include "shell/mainform.h"

#include <algorithm>

#include "frame/calculator_window.h"
#include "frame/codepage.h"
#include "frame/files.h"
#include "frame/names.h"
#include "shell/menu_catalogue.h"
#include "shell/web.h"

namespace korvane {
namespace {

constexpr const char* kNoValue = "<No Value>";
constexpr const char* kHelpPage = "contents.html";
constexpr int kDefaultHeight = 870;  // twips: a title bar and a menu bar
constexpr int kDefaultWidth = 8715;

}  // namespace

MAINFORM::MAINFORM(Session& session)
    : Window(session, {.name = "MAINFORM", .title = "", .sizable = true}) {
  Timer1.onTick = [this] { Timer1.SetEnabled(false); };
}

Layout MAINFORM::Arrangement() { return Column({}); }

void MAINFORM::Load() {
  Session& session = GetSession();
  session.VersionText = "2.0.5";
  session.HelpContextId = 0;
  session.HelpTopic = kHelpPage;
  ApplyFormColors(*this);
  SetTitle(" ");
  SetTitle("  Korvane");
  ReadGeometry();
  session.AppPath = session.ProgramFolder();
  if (session.AppPath.ends_with(kSeparator)) session.AppPath.pop_back();
  FindDataPath();
  if (session.ShowsSplash) {
    session.ShowModal("Splash");
    session.Unload("Splash");
  }
  MakeMenu();
  ReadUnits();
  session.HelpContextId = 1000;
}

void MAINFORM::MakeMenu() {
  menu_ = BuildMenu({
      .session = GetSession(),
      .own =
          {
              {"SI_Metric", [this] { SelectUnits("SI"); }},
              {"Imperial", [this] { SelectUnits("US"); }},
              {"Exit", [this] { GetSession().Unload(*this); }},
              {"calc", [this] { GetSession().GetPlatform().Launch("Calc.exe"); }},
              {"Index",
               [this] {
                 GetSession().HelpTopic = kHelpPage;
                 GetSession().ShowHelp();
               }},
              {"Korvane_Web_Site", [this] { GetSession().GetPlatform().Launch(WebAddress("/")); }},
              {"mnu_check_for_updates", [this] { CheckForUpdates(); }},
              {"About", [this] { ShowAbout(); }},
          },
  });
}

void MAINFORM::ReadGeometry() {
  const auto read = [this](const char* key, const char* fallback) {
    return Single(Strict(GetSession().Setting(key, fallback)));
  };
  const Single top = read("Top", "0");
  const Single left = read("Left", "0");
  const Single height = read("Height", "870");
  const Single width = read("Width", "8715");
  MoveTo(left, top);
  SetSize(width, height);
}

std::string DataPathOfIni(std::string_view bytes) {
  constexpr std::string_view prefix = "DATA PATH = ";
  std::string text = IsUtf8(bytes) ? std::string(bytes) : FromCodePage(bytes);
  std::transform(text.begin(), text.end(), text.begin(), ToUpper);
  for (std::string_view rest = text; !rest.empty();) {
    const std::string_view line = rest.substr(0, rest.find_first_of("\r\n"));
    if (line.starts_with(prefix) && line.size() > prefix.size())
      return std::string(line.substr(prefix.size()));
    rest.remove_prefix(std::min(line.size() + 1, rest.size()));
  }
  return "";
}

// A path in the INI file beats the settings at every start.
void MAINFORM::FindDataPath() {
  Session& session = GetSession();
  const std::string ini = session.AppPath + kSeparator + "korvane.ini";
  session.DataPath = FindPath(ini) ? DataPathOfIni(ReadFile(ini)) : "";
  if (!session.DataPath.empty()) return;
  session.DataPath = session.Setting("Data Path", kNoValue);
  if (session.DataPath != kNoValue) return;
  session.DataPath = session.AppPath + kSeparator;
  session.GetPlatform().SaveSetting("Data Path", session.DataPath);
}

void MAINFORM::ReadUnits() {
  Session& session = GetSession();
  session.UnitsName = session.Setting("Units", kNoValue);
  if (session.UnitsName == kNoValue) {
    session.UnitsName = "US";
    session.GetPlatform().SaveSetting("Units", session.UnitsName);
  }
  if (session.UnitsName != "SI") session.UnitsName = "US";
  ApplyUnits();
}

// Open windows keep the captions of their load, and compute in the new units from now on.
void MAINFORM::SelectUnits(const std::string& name) {
  GetSession().UnitsName = name;
  ApplyUnits();
  GetSession().GetPlatform().SaveSetting("Units", name);
}

void MAINFORM::ApplyUnits() {
  Session& session = GetSession();
  session.MetricUnits = session.UnitsName == "SI";
  session.ImperialUnits = !session.MetricUnits;
  menu_.Find("SI_Metric")->checked = session.MetricUnits;
  menu_.Find("Imperial")->checked = session.ImperialUnits;
  ShowUnitEntries(menu_, session.MetricUnits);
  Changed();
}

// The pieces of the name slide together, at every return to this window.
void MAINFORM::Activated() {
  GetSession().HelpContextId = 1000;
  for (std::size_t blanks = 50; blanks > 0; --blanks) {
    std::string title;
    for (const char* piece : {" Kor", "va", "ne"}) title.append(blanks, ' ').append(piece);
    SetTitle(title);
    GetSession().Refresh();
  }
  GetSession().HelpTopic = kHelpPage;
}

void MAINFORM::Resized() {
  if (GetState() != State::Normal) return;
  HoldLeastSize(kDefaultWidth, kDefaultHeight);
}

void MAINFORM::DoubleClicked() {
  if (GetState() != State::Normal) return;
  MoveTo(0, 0);
  SetSize(kDefaultWidth, kDefaultHeight);
}

bool MAINFORM::KeyPreview(Key key) {
  if (key != Key::F1) return false;
  GetSession().ShowHelp();
  return true;
}

// The window is hidden meanwhile; AboutMode stays set unless the window's own OK clears it.
void MAINFORM::ShowAbout() {
  Session& session = GetSession();
  session.AboutMode = true;
  session.Hide(*this);
  session.RunPendingMessages();
  session.ShowModal("Splash");
  session.Show(*this);
}

void MAINFORM::CheckForUpdates() {
  Session& session = GetSession();
  const std::string answer = session.GetPlatform().Get(WebAddress("/korvane_version.txt"));
  session.RemoteVersionText.clear();
  for (const char c : answer) {
    if (c == '\n') session.RemoteVersionText += '\r';
    session.RemoteVersionText += c;
  }
  session.ShowModal("Check_for_Updates");
}

void MAINFORM::Unloaded() {
  const bool normal = GetState() == State::Normal;
  const auto save = [&](const char* key, Single actual, Single otherwise) {
    GetSession().GetPlatform().SaveSetting(key, PlainText(normal ? actual : otherwise));
  };
  save("Height", GetGeometry().height, kDefaultHeight);
  save("Width", GetGeometry().width, kDefaultWidth);
  save("Top", GetGeometry().top, 0);
  save("Left", GetGeometry().left, 0);
}

}  // namespace korvane
