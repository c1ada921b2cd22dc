// SPDX-License-Identifier: MIT
// Fuzz target: a language with --thorough. FUZZ_SUFFIX is the suffix of its files.
//
// A C-family input is also the file that macros are learned from, an unnamed one in memory.
#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <string>

#include "base/options.h"
#include "driver/language.h"
#include "recognizer_target.h"
#include "thorough/session.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::string suffix = FUZZ_SUFFIX;
  static const vexltags::Language& language = vexltags::LanguageOf("input" + suffix);
  static const vexltags::Options options;
  const int file = memfd_create("input", MFD_CLOEXEC);
  if (file < 0 || write(file, data, size) != static_cast<ssize_t>(size)) __builtin_trap();
  const std::string path = "/proc/self/fd/" + std::to_string(file);
  vexltags::thorough::Session session(options, {path});
  close(file);
  vexltags::Reading* const reading = (session.*language.reading)(path);
  vexltags::fuzz::RunFromMemory(language.newReader, data, size, reading);
  return 0;
}
