// SPDX-License-Identifier: MIT
// Fuzz target: the C, C++ and Objective-C grammar.
#include <cstddef>
#include <cstdint>

#include "recognizer_target.h"

#include "grammars/main_recognizer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  vexltags::fuzz::RunFromMemory(vexltags::NewMainReader, data, size);
  return 0;
}
