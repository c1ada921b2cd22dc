// SPDX-License-Identifier: MIT
// What one file gave.
#include "tree/file_result.h"

#include <cstring>

#include "tree/packing.h"

namespace vexltags::tree {
namespace {

/// The bytes of the head, which come first.
struct PackedHead {
  std::int32_t anonCount;
  std::int32_t anonStart;
  std::uint32_t tagCount;
  std::uint32_t flags;
};

/// Calls `pack` with each member of `info`, in the order in which they are stored.
template <class Pack, class Info>
void ForEachMember(Pack& pack, Info& info) {
  pack(info.status);
  pack(info.hash);
  pack(info.size);
  pack(info.stored);
  pack(info.tagCount);
  pack(info.anonCount);
  pack(info.anonStart);
  pack(info.isUtf8);
  pack(info.hasOddLines);
  pack(info.rest);
  pack(info.lexerErrors);
  pack(info.parserErrors);
  pack(info.lines);
  pack(info.lastTag);
  pack(info.skipped);
  pack(info.firstSkipped);
  pack(info.unknownWords);
}

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
  const InfoHead head = HeadOf(info);
  const PackedHead packed{head.anonCount, head.anonStart, head.tagCount,
                          (head.isUtf8 ? 1U : 0U) | (head.isOdd ? 2U : 0U)};
  std::string bytes(reinterpret_cast<const char*>(&packed), sizeof packed);
  Packer pack(bytes);
  ForEachMember(pack, info);
  return bytes;
}

bool DecodeInfo(std::string_view bytes, FileInfo& info) {
  if (bytes.size() < sizeof(PackedHead)) return false;
  Unpacker unpack(bytes.substr(sizeof(PackedHead)));
  ForEachMember(unpack, info);
  return unpack.IsDone() && info.status <= FileStatus::kDied;
}

}  // namespace vexltags::tree
