// What the fuzz targets share.
#ifndef ORRERYUI_FUZZ_INPUT_H_
#define ORRERYUI_FUZZ_INPUT_H_

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

// Checks one input. Each target has one.
void Check(std::string_view input);

inline void Require(bool condition) {
  if (!condition) std::abort();
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Check({reinterpret_cast<const char*>(data), size});
  return 0;
}

#endif  // ORRERYUI_FUZZ_INPUT_H_
