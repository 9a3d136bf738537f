// What the fuzzers share: each is fed bytes and stops the process where a promise is broken.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace korvane {

inline std::string_view Bytes(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

inline void Require(bool promise) {
  if (!promise) std::abort();
}

}  // namespace korvane
