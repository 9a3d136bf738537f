#include "frame/delimited.h"

#include <algorithm>

#include "frame/number_text.h"

namespace korvane {
namespace {

constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kLineEnds = "\r\n";
constexpr std::string_view kBlanksAndLineEnds = " \t\r\n";

/// A number too large for 64 bits stays the text that it is.
std::string Normalised(const std::string& text) {
  try {
    const auto number = Recognise(text);
    return number ? PlainText(*number) : text;
  } catch (const RuntimeFailure&) {
    return text;
  }
}

}  // namespace

bool DelimitedReader::AtEnd() {
  return !afterComma_ && rest_.find_first_not_of(kBlanksAndLineEnds) == std::string_view::npos;
}

std::string DelimitedReader::Text() { return Next().text; }

std::string DelimitedReader::Value() {
  Field field = Next();
  return field.quoted ? std::move(field.text) : Normalised(field.text);
}

Double DelimitedReader::Number() { return Strict(Next().text); }

std::string DelimitedReader::Line() {
  if (rest_.empty()) failures::InputPastEnd();
  afterComma_ = false;
  const auto end = std::min(rest_.find_first_of(kLineEnds), rest_.size());
  std::string line(rest_.substr(0, end));
  rest_.remove_prefix(end);
  SkipLineEnd();
  return line;
}

DelimitedReader::Field DelimitedReader::Next() {
  if (AtEnd()) failures::InputPastEnd();
  if (afterComma_)
    SkipBlanks();
  else
    rest_.remove_prefix(rest_.find_first_not_of(kBlanksAndLineEnds));
  Field field;
  if (rest_.starts_with('"')) {
    rest_.remove_prefix(1);
    const auto end = std::min(rest_.find('"'), rest_.size());
    field = {std::string(rest_.substr(0, end)), true};
    rest_.remove_prefix(std::min(end + 1, rest_.size()));
    SkipBlanks();
  } else {
    const auto end = std::min(rest_.find_first_of(",\r\n"), rest_.size());
    field.text = rest_.substr(0, end);
    rest_.remove_prefix(end);
  }
  afterComma_ = rest_.starts_with(',');
  if (afterComma_)
    rest_.remove_prefix(1);
  else
    SkipLineEnd();
  return field;
}

void DelimitedReader::SkipBlanks() {
  rest_.remove_prefix(std::min(rest_.find_first_not_of(kBlanks), rest_.size()));
}

void DelimitedReader::SkipLineEnd() {
  if (rest_.starts_with('\r')) rest_.remove_prefix(1);
  if (rest_.starts_with('\n')) rest_.remove_prefix(1);
}

}  // namespace korvane
