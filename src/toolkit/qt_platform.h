// The desktop: windows as widgets, boxes, dialogs and the system's services.
#pragma once

#include <QEventLoop>
#include <QPointer>
#include <map>

#include "frame/platform.h"
#include "frame/session.h"
#include "toolkit/printing.h"
#include "toolkit/settings_store.h"
#include "toolkit/window_view.h"

namespace korvane {

class QtPlatform final : public Platform {
 public:
  QtPlatform() = default;
  ~QtPlatform() override;

  /// Once, before the first window.
  void Serve(Session& session) { session_ = &session; }
  /// The view of a window; null while it has none.
  WindowView* View(const Window& window) const;

  void WindowShown(Window& window, bool loaded) override;
  void WindowHidden(Window& window) override;
  void WindowUnloaded(Window& window) override;
  void WindowActivated(Window& window) override;
  void Refresh(Window& window, const std::vector<Control*>& changed, bool windowChanged) override;
  void RunModal(Window& window) override;
  void RunPendingMessages() override;
  void SetHourglass(bool on) override;
  void Show(const Message& message) override;
  Answer Ask(const Question& question) override;
  std::optional<std::string> ChooseFile(const FileDialog& dialog) override;
  std::optional<std::string> ChooseFolder(const std::string& title) override;
  void Capture(Window& window) override;
  std::vector<std::string> PrinterNames() override;
  std::optional<Printer> CurrentPrinter() override;
  void ChoosePrinter(const std::string& name) override;
  void SetOrientation(Orientation orientation) override;
  void SetUpPrinter(const std::string& title) override;
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
  void LastWindowClosed() override;

 private:
  QWidget* Front() const;
  void LeaveModal(const Window& window);

  Session* session_ = nullptr;
  SettingsStore settings_;
  Printing printing_;
  std::map<const Window*, WindowView*> views_;
  std::map<const Window*, QEventLoop*> modalLoops_;
};

}  // namespace korvane
