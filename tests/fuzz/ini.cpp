// The INI file: its path is one line of upper-case UTF-8.
#include "frame/codepage.h"
#include "frame/names.h"
#include "fuzz.h"
#include "shell/mainform.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace korvane;
  const std::string path = DataPathOfIni(Bytes(data, size));
  Require(IsUtf8(path));
  for (const char c : path) Require(c != '\r' && c != '\n' && c == ToUpper(c));
  return 0;
}
