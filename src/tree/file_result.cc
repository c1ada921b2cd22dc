// SPDX-License-Identifier: MIT
// What one file gave.
#include "tree/file_result.h"

#include <cstring>
#include <nlohmann/json.hpp>

namespace vexltags::tree {
namespace {

using nlohmann::json;

// File names and words can be any bytes, which CBOR has as binary values.
json Bytes(const std::string& text) {
  return json::binary(std::vector<std::uint8_t>(text.begin(), text.end()));
}

std::string Text(const json& value) {
  const auto& bytes = value.get_binary();
  return {bytes.begin(), bytes.end()};
}

/// The bytes of the head, which come first.
struct PackedHead {
  std::int32_t anonCount;
  std::int32_t anonStart;
  std::uint32_t tagCount;
  std::uint32_t flags;
};

}  // namespace

InfoHead HeadOf(const FileInfo& info) {
  return {info.anonCount, info.anonStart, info.tagCount, info.isUtf8,
          info.hasOddLines || !info.rest.empty()};
}

InfoHead DecodeHead(std::string_view bytes) {
  PackedHead head{};
  if (bytes.size() < sizeof head) return {};
  std::memcpy(&head, bytes.data(), sizeof head);
  return {head.anonCount, head.anonStart, head.tagCount, (head.flags & 1U) != 0,
          (head.flags & 2U) != 0};
}

std::string EncodeInfo(const FileInfo& info) {
  const json value = {static_cast<int>(info.status),
                      info.hash,
                      info.size,
                      Bytes(info.stored),
                      info.tagCount,
                      info.anonCount,
                      info.anonStart,
                      info.isUtf8,
                      info.hasOddLines,
                      Bytes(info.rest),
                      info.lexerErrors,
                      info.parserErrors,
                      info.lines,
                      info.lastTag,
                      info.skipped,
                      info.firstSkipped,
                      Bytes(info.unknownWords)};
  const InfoHead head = HeadOf(info);
  const PackedHead packed{head.anonCount, head.anonStart, head.tagCount,
                          (head.isUtf8 ? 1U : 0U) | (head.isOdd ? 2U : 0U)};
  std::string bytes(reinterpret_cast<const char*>(&packed), sizeof packed);
  std::string rest;
  json::to_cbor(value, rest);
  return bytes + rest;
}

bool DecodeInfo(std::string_view bytes, FileInfo& info) {
  if (bytes.size() < sizeof(PackedHead)) return false;
  const json value = json::from_cbor(bytes.substr(sizeof(PackedHead)), true, false);
  constexpr std::size_t kFields = 17;
  if (!value.is_array() || value.size() != kFields) return false;
  for (std::size_t i = 0; i < kFields; ++i) {
    const bool isBytes = i == 3 || i == 9 || i == 16;
    const bool isFlag = i == 7 || i == 8;
    if (isBytes ? !value[i].is_binary() : isFlag ? !value[i].is_boolean() : !value[i].is_number()) {
      return false;
    }
  }
  info.status = static_cast<FileStatus>(value[0].get<int>());
  value[1].get_to(info.hash);
  value[2].get_to(info.size);
  info.stored = Text(value[3]);
  value[4].get_to(info.tagCount);
  value[5].get_to(info.anonCount);
  value[6].get_to(info.anonStart);
  value[7].get_to(info.isUtf8);
  value[8].get_to(info.hasOddLines);
  info.rest = Text(value[9]);
  value[10].get_to(info.lexerErrors);
  value[11].get_to(info.parserErrors);
  value[12].get_to(info.lines);
  value[13].get_to(info.lastTag);
  value[14].get_to(info.skipped);
  value[15].get_to(info.firstSkipped);
  info.unknownWords = Text(value[16]);
  return true;
}

}  // namespace vexltags::tree
