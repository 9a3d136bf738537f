// Pipe and tubing data: the section of a size of pipe or tubing.
#pragma once

#include <string>
#include <vector>

#include "frame/calculator_window.h"
#include "materials/pipes.h"

namespace korvane {

class pipedata final : public CalculatorWindow {
 public:
  explicit pipedata(Session& session);

  void Load() override;

 private:
  Layout Arrangement() override;

  const PipeStandard& Standard() const;
  std::vector<TextField*> Results();

  void ListSizes();
  void ListWalls();
  void ShowPipe();

  Combo cmb_standard{*this, "cmb_standard", "Standard"};
  Combo cmb_size{*this, "cmb_size", "Nominal Size (NPS)"};
  Combo cmb_wall{*this, "cmb_wall", "Schedule"};

  Picture picture_;
  TextField txt_od{*this, "txt_od",
                   UnitText{"Outside Diameter, OD (in)", "Outside Diameter, OD (mm)"}};
  TextField txt_id{*this, "txt_id",
                   UnitText{"Inside Diameter, ID (in)", "Inside Diameter, ID (mm)"}};
  TextField txt_wall{*this, "txt_wall",
                     UnitText{"Wall Thickness, t (in)", "Wall Thickness, t (mm)"}};
  TextField txt_flow_area{*this, "txt_flow_area", UnitText{"Flow Area (in2)", "Flow Area (mm2)"}};
  TextField txt_metal_area{*this, "txt_metal_area",
                           UnitText{"Metal Area (in2)", "Metal Area (mm2)"}};
  TextField txt_surface{*this, "txt_surface",
                        UnitText{"Outside Surface (ft2/ft)", "Outside Surface (m2/m)"}};
  TextField txt_weight{*this, "txt_weight",
                       UnitText{"Weight, Empty (lb/ft)", "Weight, Empty (kg/m)"}};
  TextField txt_full_weight{
      *this, "txt_full_weight",
      UnitText{"Weight, Full of Water (lb/ft)", "Weight, Full of Water (kg/m)"}};
  TextField txt_inertia{*this, "txt_inertia",
                        UnitText{"Moment of Inertia (in4)", "Moment of Inertia (mm4)"}};
  TextField txt_modulus{*this, "txt_modulus",
                        UnitText{"Section Modulus (in3)", "Section Modulus (mm3)"}};
  TextField txt_gyration{*this, "txt_gyration",
                         UnitText{"Radius of Gyration (in)", "Radius of Gyration (mm)"}};

  Command btn_copy{*this, "btn_copy", "Copy"};
  Command btn_print{*this, "btn_print", "Print"};
  Command btn_help{*this, "btn_help", "Help"};
  Command btn_exit{*this, "btn_exit", "Exit"};

  std::vector<Pipe> pipes_;
  std::vector<const Pipe*> walls_;  // of the size that is chosen, as listed
  std::vector<std::string> sizes_;  // of the standard that is chosen, as listed
  // What the person chose last: taken again in lists that have it.
  std::string size_;
  std::string wall_;
};

}  // namespace korvane
