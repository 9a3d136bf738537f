#include "frame/conversion_factors.h"

#include <algorithm>

#include "frame/codepage.h"
#include "frame/delimited.h"
#include "frame/names.h"
#include "frame/session.h"

namespace korvane {
namespace {

constexpr std::size_t kMostRecords = 2001;  // numbered 0 to 2000
constexpr std::size_t kNameLength = 50;

// Twips.
constexpr int kOpeningWidth = 11580;
constexpr int kOpeningHeight = 7200;
constexpr int kLeastWidth = 11660;
constexpr int kLeastHeight = 3990;

/// Cut or filled to its length in characters of the code page, which are single bytes.
std::string FixedName(const std::string& name) {
  std::string bytes = ToCodePage(name);
  bytes.resize(kNameLength, ' ');
  return FromCodePage(bytes);
}

Double Multiplied(const Conversion& c, Double x) { return x * c.factor + c.offset; }
Double Divided(const Conversion& c, Double x) { return (x - c.offset) / c.factor; }

bool StartsWith(std::string_view text, std::string_view start) {
  return text.size() >= start.size() && SameName(text.substr(0, start.size()), start);
}

}  // namespace

Double Forward(const Conversion& conversion, Double first) {
  return conversion.multiplies ? Multiplied(conversion, first) : Divided(conversion, first);
}

Double Backward(const Conversion& conversion, Double second) {
  return conversion.multiplies ? Divided(conversion, second) : Multiplied(conversion, second);
}

std::vector<Conversion> ParseConversions(std::string_view bytes) {
  const std::string text = FromCodePage(bytes);
  DelimitedReader reader(text);
  std::vector<Conversion> conversions;
  while (!reader.AtEnd()) {
    if (conversions.size() == kMostRecords) failures::SubscriptOutOfRange();
    Conversion& conversion = conversions.emplace_back();
    conversion.first = FixedName(reader.Text());
    conversion.second = FixedName(reader.Text());
    conversion.factor = reader.Number();
    conversion.offset = reader.Number();
    conversion.multiplies = ToInteger16(reader.Number()) != 0;
    reader.Text();
  }
  return conversions;
}

Conversion_Factors::Conversion_Factors(Session& session)
    : CalculatorWindow(session, {.name = "Conversion_Factors",
                                 .title = " Unit  Conversions",
                                 .helpPage = "math_conversion_factors.html",
                                 .sizable = true}) {
  List1.MakeFixedPitch();
  txt_search.MakeFreeText();
  txt_show_selected.MakeFreeText();
  txt_show_selected.SetLocked(true);

  List1.onSelect = [this] { TakeSelection(); };
  Text1.onEnter = [this] { ConvertForward(); };
  Text2.onEnter = [this] { ConvertBackward(); };
  txt_search.onChange = [this] { Search(); };
  txt_search.onEnter = [] {};
  SelectsOnFocus({&Text1, &Text2, &txt_search});
  CopiesWith(btn_copy_left, Text1);
  CopiesWith(btn_copy_right, Text2);
  HelpsWith(btn_help);
}

Layout Conversion_Factors::Arrangement() {
  return Column({Label1, List1, Row({Form({txt_search}), txt_show_selected}),
                 Row({Form({Text1}), btn_copy_left, Stretch(), Form({Text2}), btn_copy_right,
                      Stretch(), btn_help})});
}

void Conversion_Factors::Load() {
  CalculatorWindow::Load();
  Session& session = GetSession();
  const double screenWidth = session.GetPlatform().GetMetrics().screenWidth;
  const double width = std::min<double>(kOpeningWidth, screenWidth);
  SetSize(width, kOpeningHeight);

  const Hourglass hourglass(session.GetPlatform());
  conversions_ = ParseConversions(session.ReadTable("Conversion_Factors.dat"));
  std::vector<std::string> entries;
  for (const Conversion& conversion : conversions_)
    entries.push_back(" " + conversion.first + " | " + conversion.second);
  List1.SetItems(std::move(entries));
  List1.Select(0);
  Text1.SetText("100");
  ConvertForward();

  MoveTo((screenWidth - width) / 2, 0);
  session.Show(*this);
  session.RunPendingMessages();
  txt_search.SetFocus();
}

void Conversion_Factors::Resized() { HoldLeastSize(kLeastWidth, kLeastHeight); }

const Conversion& Conversion_Factors::Selected() const {
  if (List1.Index() < 0) failures::SubscriptOutOfRange();
  return conversions_[static_cast<std::size_t>(List1.Index())];
}

void Conversion_Factors::ConvertForward() { Text2.Show(Forward(Selected(), ToNumber(Text1))); }

void Conversion_Factors::ConvertBackward() { Text1.Show(Backward(Selected(), ToNumber(Text2))); }

void Conversion_Factors::TakeSelection() {
  if (List1.Index() < 0) {
    List1.Select(0);
    return;
  }
  txt_show_selected.SetText(List1.Text());
  Text1.SetText("1");
  ConvertForward();
}

void Conversion_Factors::Search() {
  const auto& items = List1.Items();
  const std::string start = " " + txt_search.Text();
  const auto found = std::find_if(items.begin(), items.end(), [&start](const std::string& item) {
    return StartsWith(item, start);
  });
  if (found != items.end()) List1.Select(static_cast<int>(found - items.begin()));
}

}  // namespace korvane
