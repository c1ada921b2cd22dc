// SPDX-License-Identifier: MIT
// Runs the Swift grammar over one file.
#pragma once

#include <string>

#include "engine/recognizer.h"

namespace vexltags {

/// Indexes `input` as Swift; see `RunRecognizer`.
RecognizerCounts RunSwift(pANTLR3_INPUT_STREAM input, const Options& options, Dumper& dumper,
                          const std::string& stored);

}  // namespace vexltags
