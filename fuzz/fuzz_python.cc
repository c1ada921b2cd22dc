// SPDX-License-Identifier: MIT
// Fuzz target: the Python grammar.
#include <cstddef>
#include <cstdint>

#include "recognizer_target.h"

#include "grammars/python_recognizer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  vexltags::fuzz::RunFromMemory(vexltags::NewPythonReader, data, size);
  return 0;
}
