// Delimited text, read in every way: reading comes to an end, and a number's standard text stays.
#include "frame/delimited.h"

#include "frame/number_text.h"
#include "fuzz.h"

namespace {

using namespace korvane;

template <class Read>
void ReadAll(std::string_view text, Read read) {
  DelimitedReader reader(text);
  std::size_t fields = 0;
  try {
    while (!reader.AtEnd()) {
      read(reader);
      Require(++fields <= text.size() + 1);  // a comma at the end has a field behind it
    }
    read(reader);
  } catch (const RuntimeFailure& failure) {
    Require(failure.Number() == 62 || failure.Number() == 13 || failure.Number() == 6);
  }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = Bytes(data, size);
  ReadAll(text, [](DelimitedReader& reader) { reader.Text(); });
  ReadAll(text, [](DelimitedReader& reader) { reader.Line(); });
  ReadAll(text, [](DelimitedReader& reader) { reader.Number(); });
  ReadAll(text, [](DelimitedReader& reader) {
    const std::string value = reader.Value();
    if (value.empty() || value.find_first_of(" \t\r\n,\"") != std::string::npos) return;
    Require(DelimitedReader(value).Value() == value || Recognise(value));
  });
  return 0;
}
