// SPDX-License-Identifier: MIT
// Runs the Python grammar over one file.
#pragma once

#include <string>

#include "engine/recognizer.h"

namespace vexltags {

/// Indexes `input` as Python; see `RunRecognizer`.
RecognizerCounts RunPython(pANTLR3_INPUT_STREAM input, const Options& options, Dumper& dumper,
                           const std::string& stored);

}  // namespace vexltags
