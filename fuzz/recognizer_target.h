// SPDX-License-Identifier: MIT
// Runs a grammar on an input in memory, for the fuzz targets of the grammars.
#pragma once

#include <antlr3.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "base/options.h"
#include "engine/language_reader.h"
#include "engine/stack_guard.h"
#include "output/dumper.h"

namespace vexltags::fuzz {

/// Runs the reader that `newReader` makes on a file that contains the `size` bytes at `data`, with
/// `reading` if it is not null. The reader is kept for the next input, as in a run over many files.
/// Traps if a tag line is malformed.
inline void RunFromMemory(NewLanguageReader newReader, const std::uint8_t* data, std::size_t size,
                          Reading* reading = nullptr) {
  static std::vector<ANTLR3_UINT8> bytes;
  static std::vector<ANTLR3_UINT8> name = {'i', 'n', 'p', 'u', 't', 0};
  static pANTLR3_INPUT_STREAM input = nullptr;
  static std::unique_ptr<LanguageReader> reader;
  static const Options options;

  // Exactly as large as the input, so that the sanitizer reports any read past its end.
  bytes = std::vector<ANTLR3_UINT8>(data, data + size);
  bytes.reserve(1);
  const auto length = static_cast<ANTLR3_UINT32>(size);
  if (input == nullptr) {
    input = antlr3StringStreamNew(bytes.data(), ANTLR3_ENC_8BIT, length, name.data());
    reader = newReader(input);
  } else {
    input->strFactory->close(input->strFactory);
    input->strFactory = antlr3StringFactoryNew(ANTLR3_ENC_8BIT);
    input->istream->streamName = nullptr;
    input->reuse(input, bytes.data(), length, name.data());
  }

  // Less than the usual stack size of 8 MiB.
  constexpr std::size_t kStack = std::size_t{6} << 20;
  stackLimit = static_cast<const char*>(__builtin_frame_address(0)) - kStack;
  Dumper dumper;
  reader->Run(options, dumper, "input", reading);
  for (const std::string& line : dumper.Lines()) {
    const bool isLine = line.size() > 2 && line.back() == '\n' && line.find('\t') < line.size();
    if (!isLine) __builtin_trap();
  }
}

}  // namespace vexltags::fuzz
