#include "math/orderofmag.h"

namespace korvane {
namespace {

struct Order {
  const char* exponent;
  const char* prefix;
  const char* symbol;
};

constexpr Order kOrders[] = {
    {"12", "tera", "T"},   {"9", "giga", "G"},   {"6", "mega", "M"},  {"3", "kilo", "k"},
    {"2", "hecto", "h"},   {"1", "deka", "da"},  {"-1", "deci", "d"}, {"-2", "centi", "c"},
    {"-3", "milli", "m"},  {"-6", "micro", "u"}, {"-9", "nano", "n"}, {"-12", "pico", "p"},
    {"-15", "femto", "f"}, {"-18", "atto", "a"},
};

constexpr int kRaisedSize = 7;  // points

}  // namespace

OrderofMag::OrderofMag(Session& session)
    : CalculatorWindow(session, {.name = "OrderofMag",
                                 .title = " Orders of Magnitude",
                                 .helpPage = "math_orders_of_magnitude.html"}) {
  SetDefault(Command1);
  ExitsWith(Command1);
}

Layout OrderofMag::Arrangement() {
  std::vector<Layout> heads;
  for (const char* head : {"Multiplier         ", "Prefix          ", "Symbol"}) {
    Label& label = Text(head);
    label.MakeHeading();
    heads.emplace_back(label);
  }
  std::vector<Layout> rows = {Row(std::move(heads))};
  for (const Order& order : kOrders) {
    Label& exponent = Text(order.exponent);
    exponent.SetFontSize(kRaisedSize);
    rows.push_back(Row({Row({Term({Text("10"), Column({exponent, Stretch()})}), Stretch()}),
                        Text(order.prefix), Text(order.symbol)}));
  }
  return Column({Cells(std::move(rows)), Row({Stretch(), Command1, Stretch()})});
}

Label& OrderofMag::Text(const std::string& text) {
  return *texts_.emplace_back(std::make_unique<Label>(*this, "", text));
}

}  // namespace korvane
