// The port through which windows reach the machine: answered by the desktop's toolkit, or by script.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "frame/runtime_failure.h"

namespace korvane {

class Control;
class Window;

inline constexpr const char* kProgramName = "Korvane";

enum class Icon : std::uint8_t { None, Information, Exclamation, Question };
enum class Answer : std::uint8_t { Ok, Yes, No, Cancel };

/// A box with a text and an OK button.
struct Message {
  std::string text;
  Icon icon = Icon::None;
  std::string title = kProgramName;
};

/// A box with the buttons Yes, No and Cancel.
struct Question {
  std::string text;
  std::string title = kProgramName;
};

/// The common file dialog. The filter is pairs of description and pattern, all parted by "|".
struct FileDialog {
  enum class Action : std::uint8_t { Open, Save };

  Action action = Action::Open;
  std::string title;
  std::string fileName;
  std::string folder;
  std::string filter;
};

class Platform {
 public:
  Platform() = default;
  Platform(const Platform&) = delete;
  Platform& operator=(const Platform&) = delete;
  virtual ~Platform() = default;

  // Windows. The model moves first; the platform follows.
  virtual void WindowShown(Window& window, bool loaded) = 0;  ///< loaded: for the first time
  virtual void WindowHidden(Window& window) = 0;
  virtual void WindowUnloaded(Window& window) = 0;
  virtual void WindowActivated(Window& window) = 0;  ///< comes to the front
  /// Draws what has changed since the last time; the window itself if `windowChanged`.
  virtual void Refresh(Window& window, const std::vector<Control*>& changed, bool windowChanged) = 0;
  /// Handles events until the window is hidden or unloaded.
  virtual void RunModal(Window& window) = 0;
  virtual void RunPendingMessages() = 0;
  virtual void SetHourglass(bool on) = 0;

  // Boxes and dialogs.
  virtual void Show(const Message& message) = 0;
  virtual Answer Ask(const Question& question) = 0;
  virtual std::optional<std::string> ChooseFile(const FileDialog& dialog) = 0;
  virtual std::optional<std::string> ChooseFolder(const std::string& title) = 0;

  // Services.
  virtual void Beep() = 0;
  virtual void SetClipboard(const std::string& text) = 0;
  /// Opens another program, a document or an address by the system. Its outcome is not told.
  virtual void Launch(const std::string& what) = 0;
  virtual std::optional<std::string> Setting(const std::string& key) = 0;
  virtual void SaveSetting(const std::string& key, const std::string& value) = 0;

  // Ends.
  /// The run-time error box. The desktop program ends here with status 1.
  virtual void Fail(const RuntimeFailure& failure) = 0;
  /// Ends the program whatever is open, from within any handler.
  [[noreturn]] virtual void EndProgram(int status) = 0;
  /// The last window has closed.
  virtual void LastWindowClosed() = 0;
};

}  // namespace korvane
