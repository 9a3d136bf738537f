#include "electrical/enclosure_charts.h"

namespace korvane {
namespace {

constexpr EnclosureType kNemaTypes[] = {
    {" NEMA Type 1",
     "(Indoor General Purpose)",
     {"Protection from accidental contact of personnel",
      "with enclosed equipment, and from falling dirt."}},
    {" NEMA Type 2", "(Indoor Dripproof)", {"Protection from falling moisture and dirt."}},
    {" NEMA Type 3",
     "(Outdoor, Rainproof, Sleet && Ice Resistant)",
     {"Protection against windblown dust and water."}},
    {" NEMA Type 4",
     "(Indoor/outdoor, Watertight && Dusttight)",
     {"Protection against splashing, falling or hose-", "directed water. (Not for submersion)."}},
    {" NEMA Type 7",
     "Class I, GRP A,B,C,D (Indoor Hazardous)",
     {"For locations where combustible gasses or", "vapors are present."}},
    {" NEMA Type 9",
     "Class II, GRP E,F,G (Indoor Hazardous)",
     {"For locations where combustible dusts are", "present."}},
    {" NEMA Type 12",
     "(Indoor Industrial, Dusttight && Driptight)",
     {"Protection against flying dust, lint and light",
      "splashing or dripping non-corrosive liquids."}},
    {" NEMA Type 13",
     "(Indoor Operator Stations && Pilot Devices)",
     {"Features of NEMA 12 plus protection against", "spraying water, oil or coolant."}},
};

constexpr const char* kSolids = "(Protection against solid objects.)";
constexpr const char* kLiquids = "(Protection against liquids.)";

constexpr EnclosureType kIpCodes[] = {
    {"1st number = 0", kSolids, {"No protection."}},
    {"1st number = 1",
     kSolids,
     {"Protection against solid objects up to 50 mm", "(e.g. accidental touch by hands)."}},
    {"1st number = 5",
     kSolids,
     {"Protection against dust - limited ingress", "permitted (no harmful deposits)."}},
    {"1st number = 6", kLiquids, {"Complete protection from dust."}},  // so the chart says
    {"2nd number = 0", kLiquids, {"No protection."}},
    {"2nd number = 1",
     kLiquids,
     {"Protection against vertically falling drops of", "water (e.g. condensation)."}},
    {"2nd number = 2",
     kLiquids,
     {"Protection against direct water sprays - up to", "15 degrees from vertical."}},
    {"2nd number = 4",
     kLiquids,
     {"Protection against direct water sprays from all", "directions - limited",
      "ingress permitted."}},
    {"2nd number = 6",
     kLiquids,
     {"Protection against strong jets of water (limited",
      "ingress permitted (e.g. use on ship decks)."}},
    {"2nd number = 7",
     kLiquids,
     {"Protection against complete immersion", "between 150 mm and 1000 mm."}},
};

}  // namespace

EnclosureChart::EnclosureChart(Session& session, const char* name, const char* title,
                               const char* heading, std::span<const EnclosureType> types)
    : CalculatorWindow(session, {.name = name,
                                 .title = title,
                                 .helpPage = "electrical_electrical_enclosure_ratings.html"}),
      heading_(heading),
      types_(types) {
  PrintsWith(btn_print);
  HelpsWith(btn_help);
  ExitsWith(btn_exit);
}

Layout EnclosureChart::Arrangement() {
  const auto heading = [this](const char* text) -> Label& {
    Label& label = Text(text);
    label.MakeHeading();
    return label;
  };
  std::vector<Layout> rows = {Row({heading(heading_), heading("Description")})};
  for (const EnclosureType& type : types_) {
    std::vector<Layout> lines;
    for (const char* line : type.description)
      if (line != nullptr) lines.emplace_back(Text(line));
    lines.push_back(Stretch());
    rows.push_back(Row({Rule(), Rule()}));
    rows.push_back(
        Row({Column({heading(type.type), Text(type.note), Stretch()}), Column(std::move(lines))}));
  }
  return Column({Cells(std::move(rows)), Rule(), Row({Stretch(), btn_print, btn_help, btn_exit})});
}

Label& EnclosureChart::Text(const std::string& text) {
  return *texts_.emplace_back(std::make_unique<Label>(*this, "", text));
}

Nema_box::Nema_box(Session& session)
    : EnclosureChart(session, "Nema_box", " NEMA  Electrical  Enclosure  Types", "Type",
                     kNemaTypes) {}

IP_Codes::IP_Codes(Session& session)
    : EnclosureChart(session, "IP_Codes", " IEC  Electrical  Enclosure  Classifications",
                     "IP Number", kIpCodes) {}

}  // namespace korvane
