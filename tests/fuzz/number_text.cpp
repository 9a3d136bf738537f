// Number recognition: a recognised number's plain text is that number to 15 digits, and is the
// plain text of what is read from it.
#include "frame/number_text.h"

#include "fuzz.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace korvane;
  const std::string_view text = Bytes(data, size);
  try {
    const auto value = Recognise(text);
    if (!value) {
      Require(ToNumber(text) == 0);
      return 0;
    }
    const std::string plain = PlainText(*value);
    const auto back = Recognise(plain);
    Require(back && PlainText(*back) == plain);

    // Seven digits may move a 32-bit number once; from then on its text gives it back.
    const Single narrow = ToNumber(PlainText(ToNumber(text)));
    Require(ToNumber(PlainText(narrow)) == narrow);
  } catch (const RuntimeFailure& failure) {
    Require(failure.Number() == 6);  // too large for its kind
  }
  return 0;
}
