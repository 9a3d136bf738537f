// The platform answered by script: no screen, boxes answered from a queue, all that happens told as
// notices. The driver and the tests share it.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "frame/platform.h"

namespace korvane {

class ScriptedPlatform final : public Platform {
 public:
  /// Takes each notice as it happens, in the driver's form ("! beep"), without a line end.
  std::function<void(const std::string&)> onNotice;
  /// Runs while a window is modal, until that window is hidden or unloaded.
  std::function<void(Window&)> onModal;

  /// The next box or dialog is answered so. With nothing queued a message is answered OK, a
  /// question and a dialog Cancel.
  void Queue(Answer answer) { answers_.push_back({answer, std::nullopt}); }
  void QueueFile(std::string path) { answers_.push_back({Answer::Cancel, std::move(path)}); }

  /// Forgets settings, clipboard and queued answers.
  void Reset();

  // What the machine has. No printer, and no web server, unless the script gives one.
  std::vector<Printer> printers;
  std::map<std::string, std::string> webPages;
  std::vector<PrintedPage> printed;

  std::map<std::string, std::string> settings;
  std::string clipboard;

  /// Thrown out of the running handler where the desktop program would end at once.
  struct ProgramEnded {
    int status;
  };

  void WindowShown(Window& window, bool loaded) override;
  void WindowHidden(Window&) override {}
  void WindowUnloaded(Window& window) override;
  void WindowActivated(Window&) override {}
  void Refresh(Window& window, const std::vector<Control*>& changed, bool) override;
  void RunModal(Window& window) override;
  void RunPendingMessages() override {}
  void SetHourglass(bool) override {}
  void Show(const Message& message) override;
  Answer Ask(const Question& question) override;
  std::optional<std::string> ChooseFile(const FileDialog& dialog) override;
  std::optional<std::string> ChooseFolder(const std::string& title) override;
  void Capture(Window& window) override;
  std::vector<std::string> PrinterNames() override;
  std::optional<Printer> CurrentPrinter() override;
  void ChoosePrinter(const std::string& name) override;
  void SetOrientation(Orientation orientation) override;
  void SetUpPrinter(const std::string&) override {}
  void Print(const PrintedPage& page) override;
  Metrics GetMetrics() override;
  std::string Get(const std::string& address) override;
  void Beep() override;
  void SetClipboard(const std::string& text) override;
  void Launch(const std::string& what) override;
  std::optional<std::string> Setting(const std::string& key) override;
  void SaveSetting(const std::string& key, const std::string& value) override;
  void Fail(const RuntimeFailure& failure) override;
  [[noreturn]] void EndProgram(int status) override;
  void LastWindowClosed() override {}

 private:
  void Notice(const std::string& notice) const;
  struct Reply {
    Answer answer = Answer::Cancel;
    std::optional<std::string> file;
  };
  Reply TakeReply();

  std::deque<Reply> answers_;
  std::size_t printer_ = 0;
};

/// The driver's one-line form of a text: backslash, line feed, carriage return and tab as \\ \n \r
/// \t.
std::string Escaped(std::string_view text);
std::string Unescaped(std::string_view text);

}  // namespace korvane
