// Roller chain sprockets: dimensions of a sprocket, the hub of its stock type, the keyseat of its
// bore, and scripts that draw it in AutoCAD.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "frame/calculator_window.h"
#include "mechanical/sprocket_form.h"

namespace korvane {

/// Sizes of a hub, as texts.
struct SprocketHub {
  std::string diameter, maxBore, length;
};

/// The first record of the chain and the teeth: chain, teeth, largest bore, overall length and hub
/// diameter in inches.
std::optional<SprocketHub> FindHub(std::string_view bytes, Single chain, Single teeth);

/// A width of 0 is no keyseat.
struct Keyseat {
  Double width;
  Double depth;  ///< in the hub
};

Keyseat InchKeyseat(Single bore);
Keyseat MetricKeyseat(Single bore);

class SPROCKET final : public CalculatorWindow {
 public:
  explicit SPROCKET(Session& session);

  void Load() override;

 private:
  Layout Arrangement() override;

  void Calculate();
  void ReadChainAndTeeth();
  void ShowLength(TextField& field, Double inches);
  void ShowMainDimensions();
  void ShowHub();
  void ShowKeyseat();
  void Clear();
  Double Inches(const TextField& field) const;
  SprocketType Type() const { return static_cast<SprocketType>(CMB_SPROCKET_TYPE.Index()); }
  using Script = std::vector<std::string> (*)(const SprocketDrawing&);
  void WriteScript(const char* name, Label& progress, Script script);

  // As the last calculation left them: what the scripts draw.
  Single R, N;  // chain size and teeth
  RollerChain chain_{};
  ToothForm tooth_;
  Single B0;  // bore, as typed
  Keyseat keyseat_;

  Combo CMB_RC{*this, "CMB_RC", "ANSI Chain Size", ChainSizes(), Combo::Style::Editable};
  TextField txt_teeth{*this, "txt_teeth", "Number of Teeth", "9"};
  Combo CMB_SPROCKET_TYPE{*this,
                          "CMB_SPROCKET_TYPE",
                          "Sprocket Type",
                          {"FINISHED BORE", "TYPE A PLATE", "TYPE B MIN BORE", "G BUSHING",
                           "H BUSHING", "P1 BUSHING", "Q1 BUSHING"}};
  TextField TXT_BORE{*this, "TXT_BORE", UnitText{"Bore Diameter (in)", "Bore Diameter (mm)"}, "0"};
  TextField TXT_PITCH{*this, "TXT_PITCH", UnitText{"Chain Pitch (in)", "Chain Pitch (mm)"}};
  TextField TXT_ROLLER{*this, "TXT_ROLLER",
                       UnitText{"Roller Diameter (in)", "Roller Diameter (mm)"}};
  TextField txt_plate_thickness{*this, "txt_plate_thickness",
                                UnitText{"Plate Thickness (in)", "Plate Thickness (mm)"}};
  TextField TXT_PITCHDIA{*this, "TXT_PITCHDIA",
                         UnitText{"Pitch Diameter (in)", "Pitch Diameter (mm)"}};
  TextField TXT_OUTDIA{*this, "TXT_OUTDIA",
                       UnitText{"Outside Diameter (in)", "Outside Diameter (mm)"}};
  TextField TXT_HUBDIA{*this, "TXT_HUBDIA", UnitText{"Hub Diameter (in)", "Hub Diameter (mm)"}};
  TextField TXT_MAXBORE{*this, "TXT_MAXBORE",
                        UnitText{"Max. Bore Diameter (in)", "Max. Bore Diameter (mm)"}};
  TextField TXT_OALENGTH{*this, "TXT_OALENGTH",
                         UnitText{"Overall Length (in)", "Overall Length (mm)"}};
  TextField TXT_KEYSEAT{*this, "TXT_KEYSEAT", UnitText{"Keyseat (in)", "Keyseat (mm)"}};

  Picture picture_{*this, "", "The sprocket with its chain"};
  Frame scripts_{*this, "", "Generate Autocad Script Files"};
  Command BTN_END_VIEW{*this, "BTN_END_VIEW", "End View"};
  Command BTN_SIDE_VIEW{*this, "BTN_SIDE_VIEW", "Side View"};
  Label END_VIEW_COMPLETED{*this, "END_VIEW_COMPLETED"};
  Label SIDE_VIEW_COMPLETED{*this, "SIDE_VIEW_COMPLETED"};
  ListBox List1{*this, "List1", "Script"};
  Timer Timer1{*this, "Timer1", 500, Timer::Starts::Disabled};

  Command btn_calc{*this, "btn_calc", "Calculate"};
  Command btn_clear{*this, "btn_clear", "Clear"};
  Command Command1{*this, "Command1", "Print"};
  Command Command2{*this, "Command2", "Help"};
  Command BTN_QUIT{*this, "BTN_QUIT", "Exit"};
};

}  // namespace korvane
