// SPDX-License-Identifier: MIT
// What the main process and its workers tell each other.
#include "tree/messages.h"

#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "tree/packing.h"

#include "cache/content_hash.h"

namespace vexltags::tree {
namespace {

constexpr std::size_t kSizes = 2 * sizeof(std::uint32_t);
constexpr std::uint32_t kLargestHead = 1U << 26;

/// The first bytes of heads.
constexpr char kRequest = 'q';
constexpr char kAnswer = 'a';

std::uint32_t SizeAt(std::string_view bytes, std::size_t at) {
  std::uint32_t size = 0;
  std::memcpy(&size, bytes.data() + at, sizeof size);
  return size;
}

}  // namespace

void AppendFrame(std::string& out, std::string_view head, std::string_view body) {
  AppendFrame(out, head, {body});
}

void AppendFrame(std::string& out, std::string_view head,
                 std::initializer_list<std::string_view> body) {
  std::size_t bodySize = 0;
  for (const std::string_view part : body) bodySize += part.size();
  for (const std::size_t size : {head.size(), bodySize}) {
    const auto number = static_cast<std::uint32_t>(size);
    out.append(reinterpret_cast<const char*>(&number), sizeof number);
  }
  out += head;
  for (const std::string_view part : body) out += part;
}

bool TakeFrame(std::string_view& bytes, Frame& frame) {
  if (bytes.size() < kSizes) return false;
  const std::size_t head = SizeAt(bytes, 0);
  const std::size_t body = SizeAt(bytes, sizeof(std::uint32_t));
  if (bytes.size() - kSizes < head + body) return false;
  frame.head = bytes.substr(kSizes, head);
  frame.body = bytes.substr(kSizes + head, body);
  bytes.remove_prefix(kSizes + head + body);
  return true;
}

bool IsNoFrame(std::string_view bytes) {
  return bytes.size() >= kSizes && SizeAt(bytes, 0) > kLargestHead;
}

std::string Seal(std::string_view bytes) {
  const std::uint64_t hash = ContentHash(bytes);
  std::string sealed;
  sealed.reserve(kSizes + sizeof hash + bytes.size());
  AppendFrame(sealed, {reinterpret_cast<const char*>(&hash), sizeof hash}, bytes);
  return sealed;
}

std::optional<std::string_view> Unseal(std::string_view bytes) {
  Frame frame;
  std::uint64_t hash = 0;
  if (!TakeFrame(bytes, frame) || !bytes.empty() || frame.head.size() != sizeof hash) {
    return std::nullopt;
  }
  std::memcpy(&hash, frame.head.data(), sizeof hash);
  if (hash != ContentHash(frame.body)) return std::nullopt;
  return frame.body;
}

void AppendRequest(std::string& out, const Request& request) {
  std::string head;
  Packer pack(head);
  pack(kRequest);
  pack(request.index);
  pack(request.forFacts);
  pack(request.job.anonStart);
  pack(request.job.wantsLookups);
  AppendFrame(out, head, request.job.path);
}

bool ReadRequest(const Frame& frame, Request& request) {
  Unpacker unpack(frame.head);
  char kind = 0;
  unpack(kind);
  unpack(request.index);
  unpack(request.forFacts);
  unpack(request.job.anonStart);
  unpack(request.job.wantsLookups);
  request.job.path = frame.body;
  return unpack.IsDone() && kind == kRequest;
}

void AppendAnswer(std::string& out, const Answer& answer) {
  const std::string_view entries = answer.result.entries;
  const std::string_view lookups = answer.result.lookups;
  const std::string_view facts = answer.facts;
  std::string head;
  Packer pack(head);
  pack(kAnswer);
  pack(answer.index);
  pack(answer.forFacts);
  pack(EncodeInfo(answer.result.info));
  pack(entries.size());
  pack(lookups.size());
  AppendFrame(out, head, {entries, lookups, facts});
}

bool ReadAnswer(const Frame& frame, Answer& answer, bool isKept) {
  Unpacker unpack(frame.head);
  char kind = 0;
  std::string_view info;
  std::size_t entries = 0;
  std::size_t lookups = 0;
  unpack(kind);
  unpack(answer.index);
  unpack(answer.forFacts);
  unpack(info);
  unpack(entries);
  unpack(lookups);
  const std::size_t size = frame.body.size();
  if (!unpack.IsDone() || kind != kAnswer || entries > size || lookups > size - entries) {
    return false;
  }
  const auto part = [&](std::size_t at, std::size_t count) {
    const std::string_view bytes = frame.body.substr(at, count);
    return isKept ? Bytes::Kept(bytes) : Bytes(std::string(bytes));
  };
  answer.result.entries = part(0, entries);
  answer.result.lookups = part(entries, lookups);
  answer.facts = part(entries + lookups, size);
  return DecodeInfo(info, answer.result.info);
}

bool WriteAll(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = write(descriptor, bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return true;
}

}  // namespace vexltags::tree
