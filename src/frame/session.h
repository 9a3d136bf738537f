// One run of the program: its global settings, its open windows, and the road of every event.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "frame/platform.h"
#include "frame/window.h"

namespace korvane {

/// How a window is made, by name. The suite's list of them is the window catalogue.
struct WindowUnit {
  const char* name;
  std::unique_ptr<Window> (*make)(Session&);
  bool modal = false;  ///< its menu entry shows it modally
};

class Session {
 public:
  Session(Platform& platform, std::span<const WindowUnit> catalogue, std::string programFolder);
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  // The global settings, written only as the shell and the windows tell.
  bool MetricUnits = false;
  bool ImperialUnits = true;
  std::string UnitsName = "US";
  std::string AppPath;       ///< the program folder, with no separator at its end
  std::string DataPath;      ///< the folder of tables and data files; normally ends in a separator
  std::string DataFileName;  ///< the table that the viewer shows next
  std::string HelpTopic;     ///< the help page of the active window
  std::string HelpFolder;
  std::string VersionText;
  int HelpContextId = 0;
  bool AboutMode = false;    ///< the splash window was opened from Help > About
  bool ShowsSplash = true;   ///< off where nobody watches: the driver starts behind the splash
  short CaseNumber = 0;      ///< the beam case, 1 to 32
  std::string ShapeSection;  ///< what the structural shape windows shall show
  std::string ShapeTitle;
  std::string ShapeMaterial;
  std::string TubingMaterial;
  std::string TubingShape;
  std::string OutlinePoints;      ///< what the shape generator hands over, one "X,Y" a line
  bool AddsOutline = false;       ///< beside the outlines that are there, not in their place
  std::string RemoteVersionText;  ///< what the version file on the product's web server held

  // The capture record, from a window's Print command to the page dialog.
  int CaptureWidth = 0;  ///< of the window with its frame, twips
  int CaptureHeight = 0;
  int CaptureX = 0;
  int CaptureY = 0;
  Window* CaptureWindow = nullptr;

  Platform& GetPlatform() const { return platform_; }
  /// The folder of the executable, as the system tells it.
  const std::string& ProgramFolder() const { return programFolder_; }

  // Windows.
  /// Shows the single instance of a window, not modal: loaded if need be, else brought to the front
  /// with all its values. An unknown name is an invalid call.
  Window& Show(std::string_view name);
  /// Shows it and returns when it is hidden or unloaded again.
  void ShowModal(std::string_view name);
  void Show(Window& window);
  void Hide(Window& window);
  /// Runs the window's unload handler and ends it. It lives until the running handlers have ended.
  void Unload(Window& window);
  void Unload(std::string_view name);  ///< if it is loaded
  void Activate(Window& window);

  bool IsKnown(std::string_view name) const { return Unit(name) != nullptr; }
  bool IsModalUnit(std::string_view name) const;
  Window* Find(std::string_view name) const;
  Window* Active() const { return active_; }
  /// The modal window that all others wait for; null if there is none.
  Window* Modal() const { return modal_.empty() ? nullptr : modal_.back(); }
  /// The shown windows, front first.
  std::vector<Window*> Windows() const;

  // Services that read better with a default.
  void Message(std::string text, Icon icon = Icon::None, std::string title = kProgramName);
  Answer Ask(std::string text);
  std::string Setting(const std::string& key, const std::string& fallback);
  /// A table or data file of this name in `DataPath`, which is put ahead of it as it stands, or
  /// else in the program folder.
  std::optional<std::string> FindTable(const std::string& name) const;
  /// The bytes of that file; fails with "File not found".
  std::string ReadTable(const std::string& name) const;
  /// Lets pending messages run, with everything drawn as it stands.
  void RunPendingMessages();
  /// Unloads the help browser if it is open and shows it on `HelpTopic`.
  void ShowHelp();

  /// Keeps windows that are unloaded meanwhile alive until it goes: whoever handles an event holds
  /// one, so that no handler runs in a window that is no more.
  class Hold {
   public:
    explicit Hold(Session& session) : session_(session) { ++session_.holds_; }
    Hold(const Hold&) = delete;
    Hold& operator=(const Hold&) = delete;
    ~Hold();

   private:
    Session& session_;
  };

  /// What every Print command does: fills the capture record from the window and shows the page
  /// dialog, which takes the picture.
  void PrintWindow(Window& window);

  /// One event from outside: runs the handler, then the Tab keys that it simulated, shows the error
  /// box if it failed, and draws what changed. False if it failed.
  bool Handle(const Handler& event);
  /// A simulated Tab key, which acts when the running handler has ended.
  void SendTab() { ++pendingTabs_; }
  void Refresh();

  /// Ends every window without its handlers, as at the end of the program.
  void DropWindows();

 private:
  const WindowUnit* Unit(std::string_view name) const;
  Window& Load(std::string_view name);
  using Place = std::vector<std::unique_ptr<Window>>::iterator;
  Place PlaceOf(const Window& window);
  void Discard(Window& window);  // without its unload handler
  void ActivateFront();
  void RunPendingTabs();

  Platform& platform_;
  std::span<const WindowUnit> catalogue_;
  std::string programFolder_;
  std::vector<std::unique_ptr<Window>> windows_;  // loaded ones, front first
  std::vector<std::unique_ptr<Window>> gone_;     // unloaded while handlers ran
  std::vector<Window*> modal_;
  Window* active_ = nullptr;
  int holds_ = 0;
  int pendingTabs_ = 0;
};

}  // namespace korvane
