// SPDX-License-Identifier: MIT
// Fuzz target: the Python grammar.
#include <cstddef>
#include <cstdint>

#include "driver/language.h"
#include "recognizer_target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  vexltags::fuzz::RunFromMemory(vexltags::LanguageOf("input.py").newReader, data, size);
  return 0;
}
