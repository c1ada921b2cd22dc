// SPDX-License-Identifier: MIT
// Fuzz target: the grammar of C, C++ and Objective-C over bytes from memory.
#include <cstddef>
#include <cstdint>

#include "recognizer_target.h"

#include "grammars/main_recognizer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  vexltags::fuzz::RunFromMemory(vexltags::RunMain, data, size);
  return 0;
}
