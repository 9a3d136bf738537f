// Screw threads: limits of size, tap drills, clearance holes and hex sizes of a standard thread.
#pragma once

#include <string>
#include <vector>

#include "frame/calculator_window.h"
#include "mechanical/threads.h"

namespace korvane {

class screws final : public CalculatorWindow {
 public:
  explicit screws(Session& session);

  void Load() override;

 private:
  /// The hole to tap for a part of the full thread.
  struct TapDrill {
    TapDrill(Window& window, int part);

    int percent;
    Label heading;
    TextField hole, drill, diameter, actual;
  };

  Layout Arrangement() override;

  const Thread& Chosen() const { return *chosen_; }
  std::vector<TextField*> Results();

  void ListThreads();
  void ChooseThread();
  void FindThread();
  void ListClasses();
  void ChooseClass();
  void ShowThread();
  void ShowLimits();
  void ShowTapDrill(TapDrill& tap);
  void ShowLength(TextField& field, Double length);
  void ShowSize(TextField& field, const NamedSize& size);
  bool ConvertsUnits() const;

  Combo cmb_series{*this, "cmb_series", "Series"};
  Label lbl_search{*this, "lbl_search", "Search"};
  TextField txt_search{*this, "txt_search", lbl_search};
  ListBox lst_threads{*this, "lst_threads", "Threads"};
  Combo cmb_class{*this, "cmb_class", "Class"};
  OptionGroup units_{*this, "", "Dimensions In"};
  Option opt_inches{units_, "opt_inches", "Inches"};
  Option opt_millimeters{units_, "opt_millimeters", "Millimeters"};

  Label lbl_thread{*this, "lbl_thread"};
  TextField txt_pitch{*this, "txt_pitch", "Pitch, P"};
  TextField txt_threads_per_inch{*this, "txt_threads_per_inch", "Threads per Inch"};
  TextField txt_stress_area{*this, "txt_stress_area", "Tensile Stress Area"};
  TextField txt_allowance{*this, "txt_allowance", "Allowance, External"};

  Frame limits_{*this, "", "Limits of Size"};
  Label external_{*this, "", "External"}, internal_{*this, "", "Internal"};
  Label external_max_{*this, "", "Max."}, external_min_{*this, "", "Min."};
  Label internal_min_{*this, "", "Min."}, internal_max_{*this, "", "Max."};
  Label major_{*this, "", "Major, D"}, pitch_{*this, "", "Pitch, D2"},
      minor_{*this, "", "Minor, D1"};
  TextField txt_external_major_max{*this, "txt_external_major_max",
                                   "External Major Diameter, Max."};
  TextField txt_external_major_min{*this, "txt_external_major_min",
                                   "External Major Diameter, Min."};
  TextField txt_internal_major_min{*this, "txt_internal_major_min",
                                   "Internal Major Diameter, Min."};
  TextField txt_external_pitch_max{*this, "txt_external_pitch_max",
                                   "External Pitch Diameter, Max."};
  TextField txt_external_pitch_min{*this, "txt_external_pitch_min",
                                   "External Pitch Diameter, Min."};
  TextField txt_internal_pitch_min{*this, "txt_internal_pitch_min",
                                   "Internal Pitch Diameter, Min."};
  TextField txt_internal_pitch_max{*this, "txt_internal_pitch_max",
                                   "Internal Pitch Diameter, Max."};
  TextField txt_external_minor_max{*this, "txt_external_minor_max",
                                   "External Minor Diameter, Max."};
  TextField txt_internal_minor_min{*this, "txt_internal_minor_min",
                                   "Internal Minor Diameter, Min."};
  TextField txt_internal_minor_max{*this, "txt_internal_minor_max",
                                   "Internal Minor Diameter, Max."};

  Frame tap_{*this, "", "Tap Drills"};
  Label hole_{*this, "", "Hole"}, drill_{*this, "", "Nearest Drill"};
  Label diameter_{*this, "", "Its Diameter"}, actual_{*this, "", "Its Thread (%)"};
  TapDrill full_{*this, 75}, light_{*this, 60};

  Picture picture_;
  Frame clearance_{*this, "", "Clearance Holes"};
  TextField txt_close_hole{*this, "txt_close_hole", "Close"};
  TextField txt_normal_hole{*this, "txt_normal_hole", "Normal"};
  TextField txt_loose_hole{*this, "txt_loose_hole", "Loose"};
  Frame hex_{*this, "", "Hex Sizes"};
  TextField txt_head{*this, "txt_head", "Screw Head, Across Flats"};
  TextField txt_head_height{*this, "txt_head_height", "Screw Head, Height"};
  TextField txt_nut{*this, "txt_nut", "Nut, Across Flats"};
  TextField txt_nut_thickness{*this, "txt_nut_thickness", "Nut, Thickness"};
  TextField txt_key{*this, "txt_key", "Socket Head, Hex Key"};

  Command btn_copy{*this, "btn_copy", "Copy"};
  Command btn_print{*this, "btn_print", "Print"};
  Command btn_help{*this, "btn_help", "Help"};
  Command btn_exit{*this, "btn_exit", "Exit"};

  std::vector<Thread> threads_;  // those of the unit system in use first
  std::vector<Drill> drills_;
  std::vector<const Thread*> listed_;
  const Thread* chosen_ = nullptr;
  ThreadClass class_ = ThreadClass::Usual;  // chosen last: taken again where a thread has it
  std::vector<ThreadClass> classes_;        // of the thread, as listed
};

}  // namespace korvane
