// SPDX-License-Identifier: MIT
// What the main process and its workers tell each other.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

#include "tree/bytes.h"
#include "tree/file_reader.h"
#include "tree/file_result.h"

namespace vexltags::tree {

/// A piece of a stream: two texts with their sizes before them.
struct Frame {
  std::string_view head;  ///< A few values.
  std::string_view body;  ///< Bytes.
};

/// Appends a frame to `out`.
void AppendFrame(std::string& out, std::string_view head, std::string_view body);
/// The same with a body of several parts.
void AppendFrame(std::string& out, std::string_view head,
                 std::initializer_list<std::string_view> body);

/// Takes the frame at the start of `bytes` off it; false if it is not complete.
bool TakeFrame(std::string_view& bytes, Frame& frame);

/// Returns whether `bytes` cannot be the start of a frame of a sensible size.
bool IsNoFrame(std::string_view bytes);

/// Returns `bytes` as one frame with their hash, so that what was cut or changed on the way is
/// recognised.
std::string Seal(std::string_view bytes);

/// Returns what was sealed; nothing if `bytes` is not exactly what `Seal` returned.
std::optional<std::string_view> Unseal(std::string_view bytes);

/// A file that a worker is to read.
struct Request {
  std::uint32_t index = 0;  ///< The main process's number of the file.
  bool forFacts = false;    ///< Only what can be learned from it is wanted.
  FileJob job;
};
void AppendRequest(std::string& out, const Request& request);
bool ReadRequest(const Frame& frame, Request& request);

/// The answer to a request.
struct Answer {
  std::uint32_t index = 0;
  bool forFacts = false;
  FileResult result;
  Bytes facts;
};
void AppendAnswer(std::string& out, const Answer& answer);
/// `isKept` is whether `frame` exists as long as the answer is used, so that nothing is copied.
bool ReadAnswer(const Frame& frame, Answer& answer, bool isKept = false);

/// Writes all of `bytes`; false on failure.
bool WriteAll(int descriptor, std::string_view bytes);

}  // namespace vexltags::tree
