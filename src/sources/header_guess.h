// SPDX-License-Identifier: MIT
// Recognizes headers whose names have no suffix.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vexltags {

/// The number of bytes at the start of a file that `LooksLikeHeader` needs.
inline constexpr std::size_t kHeaderGuessBytes = 4096;

/// Returns whether `text`, the start of a file, is that of a C or C++ header: one of the first two
/// lines has an Emacs mode line for C, C++ or Objective-C, or the first thing after comments is
/// `#pragma once`, `#include`, `#import`, or `#ifndef`, `#ifdef`, `#if` or `#define` as a
/// preprocessor takes them, at the start of a line. Never if `text` contains a NUL or starts with
/// `#!`.
bool LooksLikeHeader(std::string_view text);

/// Returns the first bytes of a file, up to `kHeaderGuessBytes`; empty if it cannot be read.
std::string ReadStart(const std::string& path);

}  // namespace vexltags
