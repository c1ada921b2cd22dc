// SPDX-License-Identifier: MIT
// What the main process and its workers tell each other.
#include "tree/messages.h"

#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <nlohmann/json.hpp>
#include <vector>

#include "cache/content_hash.h"

namespace vexltags::tree {
namespace {

using nlohmann::json;

constexpr std::size_t kSizes = 2 * sizeof(std::uint32_t);
constexpr std::uint32_t kLargestHead = 1U << 26;

json Bytes(std::string_view text) {
  return json::binary(std::vector<std::uint8_t>(text.begin(), text.end()));
}

std::string Text(const json& value) {
  const auto& bytes = value.get_binary();
  return {bytes.begin(), bytes.end()};
}

std::uint32_t SizeAt(std::string_view bytes, std::size_t at) {
  std::uint32_t size = 0;
  std::memcpy(&size, bytes.data() + at, sizeof size);
  return size;
}

}  // namespace

void AppendFrame(std::string& out, std::string_view head, std::string_view body) {
  for (const std::string_view part : {head, body}) {
    const auto size = static_cast<std::uint32_t>(part.size());
    out.append(reinterpret_cast<const char*>(&size), sizeof size);
  }
  out += head;
  out += body;
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
  json::to_cbor(json{request.index, request.forFacts, request.job.anonStart}, head);
  AppendFrame(out, head, request.job.path);
}

bool ReadRequest(const Frame& frame, Request& request) {
  const json head = json::from_cbor(frame.head, true, false);
  if (!head.is_array() || head.size() != 3 || !head[0].is_number() || !head[1].is_boolean() ||
      !head[2].is_number()) {
    return false;
  }
  head[0].get_to(request.index);
  head[1].get_to(request.forFacts);
  head[2].get_to(request.job.anonStart);
  request.job.path = frame.body;
  return true;
}

void AppendAnswer(std::string& out, const Answer& answer) {
  std::string head;
  std::string info = EncodeInfo(answer.result.info);
  json::to_cbor(json{answer.index, answer.forFacts, Bytes(info), answer.result.entries.size(),
                     answer.result.lookups.size()},
                head);
  std::string body;
  body.reserve(answer.result.entries.size() + answer.result.lookups.size() + answer.facts.size());
  body += answer.result.entries;
  body += answer.result.lookups;
  body += answer.facts;
  AppendFrame(out, head, body);
}

bool ReadAnswer(const Frame& frame, Answer& answer) {
  const json head = json::from_cbor(frame.head, true, false);
  if (!head.is_array() || head.size() != 5 || !head[0].is_number() || !head[1].is_boolean() ||
      !head[2].is_binary() || !head[3].is_number() || !head[4].is_number()) {
    return false;
  }
  head[0].get_to(answer.index);
  head[1].get_to(answer.forFacts);
  const auto entries = head[3].get<std::size_t>();
  const auto lookups = head[4].get<std::size_t>();
  if (entries > frame.body.size() || lookups > frame.body.size() - entries) return false;
  answer.result.entries = frame.body.substr(0, entries);
  answer.result.lookups = frame.body.substr(entries, lookups);
  answer.facts = frame.body.substr(entries + lookups);
  return DecodeInfo(Text(head[2]), answer.result.info);
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
