#include "mechanical/hp_torque.h"

namespace korvane {
namespace {

constexpr int kTorquePerPower = 63025;     // in-lb rpm / hp
constexpr double kWattsPerTorque = 0.105;  // radians per second in a revolution per minute

}  // namespace

HP_TORQUE::HP_TORQUE(Session& session)
    : CalculatorWindow(session, {.name = "HP_TORQUE",
                                 .title = " Power and Torque",
                                 .helpPage = "mechanical_power_and_torque.html"}) {
  OnEnter(FORCE, &HP_TORQUE::FromForce);
  OnEnter(RADIUS, &HP_TORQUE::FromRadius);
  OnEnter(TORQUE, &HP_TORQUE::FromTorque);
  OnEnter(RPM, &HP_TORQUE::FromSpeed);
  OnEnter(HP, &HP_TORQUE::FromPower);
  PrintsWith(Command1);
  HelpsWith(btn_help);
  ExitsWith(Command2);
}

Layout HP_TORQUE::Arrangement() {
  return Column(
      {instruction_,
       Row({Column({Form({FORCE, RADIUS, TORQUE, RPM, HP}), Stretch()}),
            Box(legend_,
                {torque_by_force_, Row({torque_is_, Fraction(power_times_, per_speed_), Stretch()}),
                 Row({power_is_, Fraction(torque_times_, divisor_), Stretch()}), Rule(), force_,
                 radius_, torque_, power_})}),
       Row({Stretch(), Command1, btn_help, Command2})});
}

void HP_TORQUE::OnEnter(TextField& field, void (HP_TORQUE::*solve)()) {
  ComputesAndMovesOn({&field}, [this, solve] {
    F = ToNumber(FORCE);
    r = ToNumber(RADIUS);
    T = ToNumber(TORQUE);
    rpm = ToNumber(RPM);
    P = ToNumber(HP);
    (this->*solve)();
  });
}

void HP_TORQUE::FromForce() {
  if (F > 0 && r > 0) ForceTimesRadius();
}

void HP_TORQUE::FromRadius() {
  if (F > 0)
    ForceTimesRadius();
  else if (T > 0)
    FORCE.Show(T / r, "#.#");
}

void HP_TORQUE::FromTorque() {
  if (rpm > 0) PowerFromTorque();
  if (r > 0) FORCE.Show(T / r, "#.##");
}

void HP_TORQUE::FromSpeed() {
  if (T > 0) PowerFromTorque();
}

void HP_TORQUE::FromPower() {
  if (rpm > 0) TorqueFromPower();
  if (r > 0) FORCE.Show(T / r, "#.##");
}

void HP_TORQUE::ForceTimesRadius() {
  T = F * r;
  TORQUE.Show(T);
  PowerFromTorque();
}

void HP_TORQUE::PowerFromTorque() {
  if (IsMetric())
    HP.Show(T * rpm * kWattsPerTorque, "#.#");
  else
    HP.Show(T * rpm / kTorquePerPower, "0.00");
}

void HP_TORQUE::TorqueFromPower() {
  T = IsMetric() ? (P / kWattsPerTorque) / rpm : Double(P * kTorquePerPower / rpm);
  TORQUE.Show(T, "0.00");
}

}  // namespace korvane
