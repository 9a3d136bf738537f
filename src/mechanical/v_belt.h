// V-belt drives: a pair of stock sheaves whose driven speed comes closest to the one wanted, its
// belt, and the power that one belt carries. Inches, rpm and horsepower in both unit systems.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "frame/calculator_window.h"

namespace korvane {

/// One row of the sheave catalogue.
struct Sheave {
  std::string type;     ///< "FIXED", "VARIABLE" or "BUSHING"
  std::string section;  ///< of the belt
  Single pdMin;
  Single pdMax;
  Single outside;    ///< diameter
  std::string bore;  ///< "H" for a sheave bored for a bushing
  std::string bushing;
  std::string partNumber;
  Single pd;  ///< the mean pitch diameter
};

/// Rows from 1; the one at 0 is empty. The first two lines of the file are skipped. More than 250
/// rows fail with "Subscript out of range".
std::vector<Sheave> ParseSheaves(std::string_view bytes);

/// A driver row and a driven row of the catalogue, the driven speed that they give, and how far it
/// is off the wanted one, both in rpm.
struct SheavePair {
  short driver = 0;
  short driven = 0;
  Single rpm;
  Single diff;
};

constexpr int kNothingFound = 1000;  // rpm off the wanted speed

/// Shows every pair to `see`, and whether it is the closest so far; on a tie it is. How far the
/// closest is off: kNothingFound or more if none came closer than that.
template <class See>
Single WalkPairs(const std::vector<Sheave>& rows, const std::vector<short>& drivers,
                 const std::vector<short>& drivens, Single driverRpm, Single targetRpm, See see) {
  const auto pd = [&rows](short row) { return rows[static_cast<std::size_t>(row)].pd; };
  std::vector<Single> drivenPds;
  drivenPds.reserve(drivens.size());
  for (const short driven : drivens) drivenPds.push_back(pd(driven));
  Single best = kNothingFound;
  for (const short driver : drivers) {
    const Single speed = pd(driver) * driverRpm;  // of the belt, but for a factor
    for (std::size_t i = 0; i < drivens.size(); ++i) {
      const Single rpm = speed / drivenPds[i];
      const Single diff = Abs(rpm - targetRpm);
      const bool closest = diff <= best;
      if (closest) best = diff;
      see(SheavePair{driver, drivens[i], rpm, diff}, closest);
    }
  }
  return best;
}

/// Coefficients of the rating formula for a belt section.
struct BeltData {
  Double c1, c2, c3, c4;
  Double k4, k3, k2, k1, k0;
};

/// The line of the section, or the last line if none is.
BeltData ParseBeltData(std::string_view bytes, std::string_view section);

/// Power of one belt in hp: pitch diameters and centre distance in inches, the faster speed in rpm.
Double BeltPower(const BeltData& belt, std::string_view section, Single larger, Single smaller,
                 Single centerDistance, Single rpm);

class V_BELT final : public CalculatorWindow {
 public:
  explicit V_BELT(Session& session);

  void Load() override;

 private:
  Layout Arrangement() override;

  bool Passes(const Sheave& row, const std::string& type) const;
  short FindRow(Single pd, const std::string& type) const;
  void RefreshSheaveLists();
  void ChooseDriverType(const char* type, bool variable);
  void ChooseSection();
  void LockDriver();
  void LockDriven();
  void AutoSelect();
  void TakeCombination();
  void ShowLockState();

  // The search.
  void SelectSheaves();
  bool TakeLockedPair();
  bool FindPair();
  std::vector<short> RowsFor(const std::string& type, short locked) const;
  const Sheave& At(short row) const { return sheaves_[static_cast<std::size_t>(row)]; }
  Single RpmOf(short driver, short driven) const;
  std::string ListRow(short driver, short driven) const;
  void SelectChosenRow();
  void ShowSpeeds();
  void FillSides();
  void ShowSide(short row, Combo& pd, TextField& outside, TextField& part, TextField& bushing);
  void EmptySides();
  void PlaceShafts();
  void MeasureBelt();
  void NumberBelt();
  void RateBelt();

  std::vector<Sheave> sheaves_;
  short SheaveCount = 0;
  short DriverLock = 0;  // catalogue row of a locked sheave; 0: unlocked
  short DrivenLock = 0;
  bool KeepList = false;   // the candidates stay as they are
  bool Refilling = false;  // selections start no search
  bool walking_ = false;   // code moves the selection among the candidates
  std::string DriverType = "FIXED";
  std::string Section = "A";
  short DriverRow = 0;  // the chosen pair
  short DrivenRow = 0;
  Single BestRpm, DriverRpm, TargetRpm;

  Combo CMB_SECTION{*this, "CMB_SECTION", "V-Belt Selection", {"A", "B"}};
  Frame driver_{*this, "", "DRIVER"};
  OptionGroup type_{*this, ""};
  Option OPT_DRIVER_FIXED{type_, "OPT_DRIVER_FIXED", "Fixed Pitch"};
  Option OPT_DRIVER_VARIABLE{type_, "OPT_DRIVER_VARIABLE", "Variable Pitch"};
  Picture Line1;
  TextField TXT_DRIVER_RPM{*this, "TXT_DRIVER_RPM", "RPM", "1725"};
  Combo CMB_DRIVER_PD{*this, "CMB_DRIVER_PD", "Pitch Dia"};
  TextField TXT_DRIVER_OD{*this, "TXT_DRIVER_OD", "Outside Dia"};
  TextField TXT_DRIVER_PART_NUMBER{*this, "TXT_DRIVER_PART_NUMBER", "Sheave P/N"};
  TextField TXT_DRIVER_BUSHING_PN{*this, "TXT_DRIVER_BUSHING_PN", "Bushing P/N"};
  Label LBL_MAX_RPM{*this, "LBL_MAX_RPM", "Max RPM"};
  TextField txt_max_rpm{*this, "txt_max_rpm", LBL_MAX_RPM};
  Label LBL_MIN_RPM{*this, "LBL_MIN_RPM", "Min RPM"};
  TextField TXT_MIN_RPM{*this, "TXT_MIN_RPM", LBL_MIN_RPM};
  Frame driven_{*this, "", "DRIVEN"};
  TextField TXT_DRIVEN_RPM{*this, "TXT_DRIVEN_RPM", "RPM"};
  Combo CMB_DRIVEN_PD{*this, "CMB_DRIVEN_PD", "Pitch Dia"};
  TextField TXT_DRIVEN_OD{*this, "TXT_DRIVEN_OD", "Outside Dia"};
  TextField TXT_DRIVEN_PART_NUMBER{*this, "TXT_DRIVEN_PART_NUMBER", "Sheave P/N"};
  TextField TXT_DRIVEN_BUSHING_PN{*this, "TXT_DRIVEN_BUSHING_PN", "Bushing P/N"};
  Label lock_hint_{*this, "", "Click to lock / unlock selection:"};
  Label lock_driver_{*this, "", "Driver"}, lock_driven_{*this, "", "Driven"};
  Picture pic_driver_locked, pic_driver_unlocked, pic_driven_locked, pic_driven_unlocked;

  Frame drive_{*this, "", "DRIVE"};
  TextField TXT_BEST_MATCH_RPM{*this, "TXT_BEST_MATCH_RPM", "Closest Match RPM"};
  TextField TXT_SPEED_RATIO{*this, "TXT_SPEED_RATIO", "Speed Ratio"};
  Combo CMB_MOTOR_FRAME_SIZE{*this,
                             "CMB_MOTOR_FRAME_SIZE",
                             "Motor Frame Size",
                             {"48", "56", "143T", "145T", "182T", "184T", "213T", "215T"}};
  TextField TXT_CENTER_DIST{*this, "TXT_CENTER_DIST", "Center Distance", "8.84"};
  TextField txt_belt_length{*this, "txt_belt_length", "Belt Length"};
  TextField txt_clearance{*this, "txt_clearance", "Sheave Clearance"};
  TextField TXT_BELT_NUMBER{*this, "TXT_BELT_NUMBER", "Belt Number", " A 30"};
  TextField TXT_BELT_PART_NUMBER{*this, "TXT_BELT_PART_NUMBER", "BELT PART #"};
  TextField TXT_HP_CORR{*this, "TXT_HP_CORR", "Max HP / Belt"};
  TextField txt_loading{*this, "txt_loading", "Progress", "CHECKING COMBINATIONS"};
  TextField Text1{*this, "Text1", "Candidates", " RPM    Driver PD    Driven PD"};
  ListBox List1{*this, "List1", "Combinations"};

  Command BTN_SELECT_SHEAVES{*this, "BTN_SELECT_SHEAVES", "Force  Recalculation"};
  Command Command1{*this, "Command1", "Auto Select"};
  Command BTN_CALCULATE{*this, "BTN_CALCULATE", "HP_CALCULATE"};
  Command BTN_SHOW{*this, "BTN_SHOW", "Show Combinations"};
  Command Command4{*this, "Command4", "NEMA Standard Frames"};
  Command Command5{*this, "Command5", "Load"};
  Command Command6{*this, "Command6", "Save"};
  Command BTN_PRINT_FORM{*this, "BTN_PRINT_FORM", "Print"};
  Command Command2{*this, "Command2", "Help"};
  Command BTN_QUIT{*this, "BTN_QUIT", "Exit"};

  DataFile file;
};

}  // namespace korvane
