// SPDX-License-Identifier: MIT
// Fuzz target: the Swift grammar.
#include <cstddef>
#include <cstdint>

#include "recognizer_target.h"

#include "grammars/swift_recognizer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  vexltags::fuzz::RunFromMemory(vexltags::NewSwiftReader, data, size);
  return 0;
}
