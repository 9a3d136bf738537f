// The port through which windows reach the machine: answered by the desktop's toolkit, or by
// script.
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

/// Sizes of the screen and of windows on it, in twips.
struct Metrics {
  double screenWidth = 0;
  double screenHeight = 0;
  double frameWidth = 0;     ///< of a window's frame, on one side
  double captionHeight = 0;  ///< of the caption and the frame together
  double gridRowHeight = 0;
};

enum class Orientation : std::uint8_t { Portrait = 1, Landscape = 2 };

/// The current printer and its paper, whose size follows the orientation; in twips.
struct Printer {
  std::string name;
  Orientation orientation = Orientation::Portrait;
  double paperWidth = 0;
  double paperHeight = 0;
};

/// One page: a line of text at its top, if any, and the captured image in the given place, in
/// twips.
struct PrintedPage {
  std::optional<std::string> header;
  double x = 0;
  double y = 0;
  double width = 0;
  double height = 0;
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
  virtual void Refresh(Window& window, const std::vector<Control*>& changed,
                       bool windowChanged) = 0;
  /// Handles events until the window is hidden or unloaded.
  virtual void RunModal(Window& window) = 0;
  virtual void RunPendingMessages() = 0;
  virtual void SetHourglass(bool on) = 0;

  // Boxes and dialogs.
  virtual void Show(const Message& message) = 0;
  virtual Answer Ask(const Question& question) = 0;
  virtual std::optional<std::string> ChooseFile(const FileDialog& dialog) = 0;
  virtual std::optional<std::string> ChooseFolder(const std::string& title) = 0;

  // Printing.
  /// Takes a picture of the whole window, its frame included, for pictures and printed pages to
  /// come, and puts it on the clipboard.
  virtual void Capture(Window& window) = 0;
  virtual std::vector<std::string> PrinterNames() = 0;
  /// Nothing where no printer is installed.
  virtual std::optional<Printer> CurrentPrinter() = 0;
  virtual void ChoosePrinter(const std::string& name) = 0;
  virtual void SetOrientation(Orientation orientation) = 0;
  /// The system's printer dialog, which may change the current printer.
  virtual void SetUpPrinter(const std::string& title) = 0;
  /// Fails with "Printer error".
  virtual void Print(const PrintedPage& page) = 0;

  // Services.
  virtual Metrics GetMetrics() = 0;
  virtual void Beep() = 0;
  virtual void SetClipboard(const std::string& text) = 0;
  /// Opens another program, a document or an address by the system. Its outcome is not told.
  virtual void Launch(const std::string& what) = 0;
  /// The body of a text file on a web server; empty on any failure or after a time-out.
  virtual std::string Get(const std::string& address) = 0;
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

/// Shows the hourglass pointer as long as it lives.
class Hourglass {
 public:
  explicit Hourglass(Platform& platform) : platform_(platform) { platform_.SetHourglass(true); }
  Hourglass(const Hourglass&) = delete;
  Hourglass& operator=(const Hourglass&) = delete;
  ~Hourglass() { platform_.SetHourglass(false); }

 private:
  Platform& platform_;
};

}  // namespace korvane
