// The reader of comma-delimited text: .dta files, tables and the calculators' own data.
#pragma once

#include <string>
#include <string_view>

#include "frame/number.h"

namespace korvane {

/// Gives the fields of a text one after the other. A field ends at a comma or a line end, so that
/// only the order of fields counts, not their lines; blanks ahead of it and empty lines are
/// skipped; one that begins with a double quote runs to the next double quote. A comma with nothing
/// behind it on its line has an empty field behind it.
class DelimitedReader {
 public:
  /// The text must outlive the reader.
  explicit DelimitedReader(std::string_view text) : rest_(text) {}

  /// No field is left.
  bool AtEnd();

  /// The next field as it stands. Fails with "Input past end of file" at the end, as all do.
  std::string Text();

  /// The next field; an unquoted number comes in its standard text (1.50 as 1.5, .5 as 0.5).
  std::string Value();

  /// The next field read strictly as a number.
  Double Number();

  /// The rest of the current line, without its end; reading goes on behind it.
  std::string Line();

 private:
  struct Field {
    std::string text;
    bool quoted = false;
  };

  Field Next();
  void SkipBlanks();
  void SkipLineEnd();

  std::string_view rest_;
  bool afterComma_ = false;
};

}  // namespace korvane
