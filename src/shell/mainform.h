// The main window: a title bar and the menu bar. Its load handler is the start of the program.
#pragma once

#include "frame/window.h"

namespace korvane {

class MAINFORM final : public Window {
 public:
  explicit MAINFORM(Session& session);

  void Load() override;
  void Activated() override;
  void Resized() override;
  void DoubleClicked() override;
  void Unloaded() override;
  bool KeyPreview(Key key) override;
  MenuBar* Menu() override { return &menu_; }

 private:
  Layout Arrangement() override;

  void MakeMenu();
  void ReadGeometry();
  void FindDataPath();
  void ReadUnits();
  void SelectUnits(const std::string& name);
  void ApplyUnits();
  void ShowAbout();
  void CheckForUpdates();

  MenuBar menu_;
  Timer Timer1{*this, "Timer1", 3000, Timer::Starts::Enabled};
};

/// The path of the first line "DATA PATH = " of an INI file's bytes, in upper case; empty if none.
std::string DataPathOfIni(std::string_view bytes);

}  // namespace korvane
