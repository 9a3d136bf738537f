#include "frame/delimited.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "failure_of.h"

namespace korvane {
namespace {

using namespace std::string_literals;
using Fields = std::vector<std::string>;

Fields ValuesOf(const std::string& text) {
  DelimitedReader reader(text);
  Fields fields;
  while (!reader.AtEnd()) fields.push_back(reader.Value());
  EXPECT_EQ(FailureOf([&] { return reader.Value(); }), kInputPastEnd) << text;
  return fields;
}

TEST(Delimited, Fields) {
  struct Case {
    std::string text;
    Fields fields;
  };
  const Case cases[] = {
      {"", {}},
      {" \t\r\n \n", {}},
      {"Dia,1\r\nArea,2\r\n", {"Dia", "1", "Area", "2"}},
      {"Dia,1\nArea,2", {"Dia", "1", "Area", "2"}},
      {"Dia,1\rArea,2\r", {"Dia", "1", "Area", "2"}},
      // A comma with nothing behind it has an empty field behind it; empty lines have none.
      {"Dia,\r\nArea,2\r\n", {"Dia", "", "Area", "2"}},
      {"Dia, \n\nArea,", {"Dia", "", "Area", ""}},
      {"a,b\r\n\r\n\r\nc", {"a", "b", "c"}},
      {"a,,b", {"a", "", "b"}},
      {",", {"", ""}},
      {"  a b  , c", {"a b  ", "c"}},
      {"Wheel, 3 \r\nNext,4", {"Wheel", "3", "Next", "4"}},
      {"\"a,b\"\r\nc", {"a,b", "c"}},
      {"\"a\r\nb\" ,c", {"a\r\nb", "c"}},
      {"\"1.50\",1.50", {"1.50", "1.5"}},
      {"\"\",x", {"", "x"}},
      {"\"no end, and on", {"no end, and on"}},
      {"\"a\"b,c", {"a", "b", "c"}},
      {"a\"b\",c", {"a\"b\"", "c"}},
      {"\"", {""}},
      // Numbers come in their standard text.
      {".5,-.50,+3,007,1e3,1.,1E-7", {"0.5", "-0.5", "3", "7", "1000", "1", "1E-07"}},
      {"1e999,-1e999,.,-,1/2", {"1e999", "-1e999", ".", "-", "1/2"}},
      {"0.1234567890123456789", {"0.123456789012346"}},
      {"a\0b,1\0"s, {"a\0b"s, "1\0"s}},
      {"\0"s, {"\0"s}},
      {"\xB0,\xE9t\xE9", {"\xB0", "\xE9t\xE9"}},
  };
  for (const auto& [text, fields] : cases) EXPECT_EQ(ValuesOf(text), fields) << text;
}

TEST(Delimited, TextAndNumberAndLine) {
  const std::string text = "NAME\r\n1.50,1.50,abc\r\nrest, of it \r\n\nlast";
  DelimitedReader reader(text);
  EXPECT_EQ(reader.Line(), "NAME");
  EXPECT_EQ(reader.Text(), "1.50");
  EXPECT_EQ(reader.Number().Value(), 1.5);
  EXPECT_EQ(FailureOf([&] { return reader.Number(); }), kTypeMismatch);
  EXPECT_EQ(reader.Line(), "rest, of it ");
  EXPECT_EQ(reader.Line(), "");
  EXPECT_EQ(reader.Line(), "last");
  EXPECT_TRUE(reader.AtEnd());
  EXPECT_EQ(FailureOf([&] { return reader.Line(); }), kInputPastEnd);
  EXPECT_EQ(FailureOf([&] { return reader.Number(); }), kInputPastEnd);
}

}  // namespace
}  // namespace korvane
