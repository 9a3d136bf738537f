#include "materials/elements.h"

#include <algorithm>
#include <array>

#include "frame/delimited.h"
#include "frame/names.h"
#include "frame/number_text.h"

namespace korvane {
namespace {

constexpr const char* kNone = "-";  // no melting point at 1 atm
constexpr double kRoom = 20;        // C

// The last element of each period.
constexpr std::array<int, 8> kPeriodEnds = {0, 2, 10, 18, 36, 54, 86, 118};

const ElementSeries& SeriesOf(std::string_view key) {
  const auto found = std::ranges::find_if(
      AllSeries(), [key](const ElementSeries& series) { return series.key == key; });
  if (found == AllSeries().end()) failures::InvalidCall();
  return *found;
}

/// A field that is empty or a number.
std::string Quantity(DelimitedReader& reader) {
  std::string text = reader.Text();
  if (!text.empty()) Strict(text);
  return text;
}

Element ReadElement(DelimitedReader& reader, int number) {
  Element element;
  if (!(reader.Number() == number)) failures::InvalidCall();
  element.number = number;
  element.symbol = reader.Text();
  element.name = reader.Text();
  element.weight = reader.Text();
  element.series = &SeriesOf(reader.Text());
  element.density = Quantity(reader);
  element.melting = reader.Text();
  if (!element.melting.empty() && element.Melts()) Strict(element.melting);
  element.boiling = Quantity(reader);
  element.configuration = reader.Text();
  element.electronegativity = Quantity(reader);
  element.crystal = reader.Text();
  return element;
}

}  // namespace

const std::vector<ElementSeries>& AllSeries() {
  static const std::vector<ElementSeries> series = {
      {"alkali", "Alkali metal", "Alkali metals", 0xFFB4A8},
      {"alkaline earth", "Alkaline earth metal", "Alkaline earth metals", 0xFFD6A0},
      {"transition", "Transition metal", "Transition metals", 0xF6E7A4},
      {"post-transition", "Post-transition metal", "Post-transition metals", 0xC9D5DE},
      {"metalloid", "Metalloid", "Metalloids", 0xCFDDA0},
      {"nonmetal", "Nonmetal", "Other nonmetals", 0xA8E3A4},
      {"halogen", "Halogen", "Halogens", 0x9FE0DC},
      {"noble gas", "Noble gas", "Noble gases", 0xA9CCF7},
      {"lanthanide", "Lanthanide", "Lanthanides", 0xF5C2DF},
      {"actinide", "Actinide", "Actinides", 0xD9C0F2},
      {"unknown", "Not known", "Not known", 0xDADADA},
  };
  return series;
}

bool Element::IsGas() const { return !boiling.empty() && Strict(boiling) < kRoom; }

bool Element::Melts() const { return melting != kNone; }

std::vector<Element> ParseElements(std::string_view bytes) {
  DelimitedReader reader(bytes);
  reader.Line();
  std::vector<Element> elements;
  for (int number = 1; number <= kPeriodEnds.back(); ++number)
    elements.push_back(ReadElement(reader, number));
  return elements;
}

int PeriodOf(int number) {
  const auto* end = std::ranges::lower_bound(kPeriodEnds, number);
  return static_cast<int>(end - kPeriodEnds.begin());
}

ChartPlace PlaceOf(int number) {
  constexpr int groups = 18, firstLong = 6, lastInner = 17;
  const int period = PeriodOf(number);
  const auto at = static_cast<std::size_t>(period);
  const int into = number - kPeriodEnds[at - 1], toEnd = kPeriodEnds[at] - number;
  // The first two of a period stand at its left, what follows the gap counts from the noble gas.
  if (into <= 2 && toEnd > 0) return {period, into};
  if (period >= firstLong && into <= lastInner) return {period + 2, into};
  return {period, groups - toEnd};
}

const Element* FindElement(const std::vector<Element>& elements, std::string_view text) {
  const std::size_t from = std::min(text.find_first_not_of(' '), text.size());
  text = text.substr(from, text.find_last_not_of(' ') + 1 - from);
  if (text.empty()) return nullptr;
  const auto find = [&elements](auto&& fits) {
    const auto found = std::ranges::find_if(elements, fits);
    return found == elements.end() ? nullptr : &*found;
  };
  const auto* exact = find([text](const Element& element) {
    return SameName(element.symbol, text) || std::to_string(element.number) == text;
  });
  if (exact != nullptr) return exact;
  return find([text](const Element& element) {
    return SameName(std::string_view(element.name).substr(0, text.size()), text);
  });
}

}  // namespace korvane
