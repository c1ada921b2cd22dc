// SPDX-License-Identifier: MIT
// The reader of Python.
#pragma once

#include "engine/language_reader.h"

namespace vexltags {

/// Makes a reader of Python.
std::unique_ptr<LanguageReader> NewPythonReader(pANTLR3_INPUT_STREAM input);

}  // namespace vexltags
