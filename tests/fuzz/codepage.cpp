// The code page: all bytes make the round trip, and any text becomes bytes.
#include "frame/codepage.h"

#include "fuzz.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace korvane;
  const std::string_view bytes = Bytes(data, size);
  const std::string text = FromCodePage(bytes);
  Require(IsUtf8(text));
  Require(ToCodePage(text) == bytes);

  const std::string narrowed = ToCodePage(bytes);
  Require(narrowed.size() <= bytes.size());
  if (!IsUtf8(bytes)) Require(narrowed.find('?') != std::string::npos);
  return 0;
}
