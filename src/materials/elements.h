// The chemical elements, and their places in the periodic chart.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace korvane {

inline constexpr const char* kElementsFile = "Elements.dat";

/// A family of elements that the chart gives a color of its own.
struct ElementSeries {
  const char* key;  ///< in the file
  const char* name;
  const char* plural;
  std::uint32_t rgb;
};

/// In the order of the legend.
const std::vector<ElementSeries>& AllSeries();

/// An element; its values are the file's texts, empty where they aren't known.
struct Element {
  int number = 0;
  std::string symbol;
  std::string name;
  std::string weight;  ///< a mass number in brackets where no isotope is stable
  const ElementSeries* series = nullptr;
  std::string density;  ///< g/cm3; of gases g/L
  std::string melting;  ///< C
  std::string boiling;  ///< C
  std::string configuration;
  std::string electronegativity;
  std::string crystal;

  /// At room temperature.
  bool IsGas() const;
  /// At 1 atm, as far as is known.
  bool Melts() const;
  /// No liquid at 1 atm: the boiling point is that of the solid.
  bool Sublimes() const { return !Melts() && !IsGas(); }
};

/// The records of "Elements.dat" below its first line. Fails with "Input past end of file" if it
/// ends within one, "Type mismatch" for a value that is no number, "Invalid procedure call or
/// argument" for an unknown series or a number out of order.
std::vector<Element> ParseElements(std::string_view bytes);

/// Where an element stands in the chart of 18 columns, both from 1.
struct ChartPlace {
  int row = 0;     ///< the period; lanthanides stand in row 8, actinides in row 9
  int column = 0;  ///< the group; of lanthanides and actinides only a column
};

ChartPlace PlaceOf(int number);
int PeriodOf(int number);

/// The element of the symbol, in any case, or of the number; else the first whose name begins with
/// the text. Null if there is none.
const Element* FindElement(const std::vector<Element>& elements, std::string_view text);

}  // namespace korvane
