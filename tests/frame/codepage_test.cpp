#include "frame/codepage.h"

#include <gtest/gtest.h>

#include <string>

namespace korvane {
namespace {

TEST(CodePage, EveryByteMakesTheRoundTrip) {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  const std::string text = FromCodePage(bytes);
  EXPECT_TRUE(IsUtf8(text));
  EXPECT_EQ(ToCodePage(text), bytes);
}

TEST(CodePage, Characters) {
  EXPECT_EQ(FromCodePage("\x80 \x8A \x96 \x99 \x9F \xB0 \xD8 \xFF"),
            "\u20AC \u0160 \u2013 \u2122 \u0178 \u00B0 \u00D8 \u00FF");
  EXPECT_EQ(ToCodePage("20 \u00B0C, 5 \u03A9, \u2265 1, \U0001F600, \u0178"),
            "20 \xB0"
            "C, 5 ?, ? 1, ?, \x9F");
}

TEST(CodePage, WhatIsNotUtf8BecomesQuestionMarks) {
  struct Case {
    std::string utf8;
    std::string bytes;
  };
  const Case cases[] = {
      {"\x80", "?"},            // a byte that only continues
      {"\xC3", "?"},            // cut short
      {"\xC3(", "?("},          // not continued
      {"\xE2\x82", "??"},       // cut short
      {"\xC0\x80", "??"},       // a longer form than needed
      {"\xE0\x9F\xBF", "???"},  //
      {"\xF0\x8F\xBF\xBF", "????"},
      {"\xED\xA0\x80", "???"},       // half of a surrogate pair
      {"\xF4\x90\x80\x80", "????"},  // beyond the last character
      {"\xF5\x80\x80\x80", "????"},
      {"\xFE\xFF", "??"},
      {"a\xB0z", "a?z"},
  };
  for (const auto& [utf8, bytes] : cases) {
    EXPECT_FALSE(IsUtf8(utf8)) << bytes;
    EXPECT_EQ(ToCodePage(utf8), bytes);
  }
  EXPECT_TRUE(IsUtf8("\U0010FFFF\uFFFD\uD7FF\u0080"));
  EXPECT_EQ(ToCodePage("\u0080"), "?");  // no byte stands for it
}

}  // namespace
}  // namespace korvane
