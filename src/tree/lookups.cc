// SPDX-License-Identifier: MIT
// Collects and compares words.
#include "tree/lookups.h"

#include <algorithm>
#include <cstring>

#include "cache/content_hash.h"

namespace vexltags::tree {
namespace {

constexpr std::size_t kSmallest = 1024;
constexpr std::size_t kMostUnknown = 4096;

/// True for words as macros are usually named: capitals, with at least three characters.
bool LooksLikeMacro(std::string_view name) {
  if (name.size() < 3) return false;
  bool hasLetter = false;
  for (const char c : name) {
    if (c >= 'a' && c <= 'z') return false;
    hasLetter |= c >= 'A' && c <= 'Z';
  }
  return hasLetter;
}

}  // namespace

WordHash HashOf(std::string_view word) {
  const auto hash = static_cast<WordHash>(ContentHash(word));
  return hash == 0 ? 1 : hash;
}

void Lookups::Clear() {
  recent.fill({});
  places.assign(kSmallest, 0);
  count = 0;
  unknown.clear();
}

Lookups::ShortWord Lookups::ShortWordOf(std::string_view name) {
  ShortWord word;
  word.size = name.size();
  if (name.size() >= sizeof word.first) {
    std::memcpy(&word.first, name.data(), sizeof word.first);
    std::memcpy(&word.last, name.data() + name.size() - sizeof word.last, sizeof word.last);
  } else {
    for (const char c : name) word.first = word.first << 8U | static_cast<unsigned char>(c);
  }
  return word;
}

bool Lookups::IsRecent(std::string_view name) {
  if (name.empty() || name.size() > 2 * sizeof(std::uint64_t)) return false;
  constexpr std::uint64_t kFactor = 0x9E3779B97F4A7C15;
  const ShortWord word = ShortWordOf(name);
  const std::uint64_t mixed = (word.first ^ word.last >> 7U ^ word.size) * kFactor;
  ShortWord& place = recent[mixed >> 32U & (kRecent - 1)];
  if (place == word) return true;
  place = word;
  return false;
}

void Lookups::OnLookup(std::string_view name, bool isFound) {
  if (IsRecent(name)) return;
  if (!Insert(HashOf(name))) return;
  if (!isFound && unknown.size() < kMostUnknown && LooksLikeMacro(name)) unknown.emplace_back(name);
}

bool Lookups::Insert(WordHash hash) {
  std::size_t at = hash & (places.size() - 1);
  while (places[at] != 0) {
    if (places[at] == hash) return false;
    at = (at + 1) & (places.size() - 1);
  }
  places[at] = hash;
  if (++count * 2 > places.size()) Grow();
  return true;
}

void Lookups::Grow() {
  std::vector<WordHash> former(places.size() * 2);
  former.swap(places);
  count = 0;
  for (const WordHash hash : former) {
    if (hash != 0) Insert(hash);
  }
}

std::string Lookups::Hashes() const {
  std::vector<WordHash> hashes;
  hashes.reserve(count);
  for (const WordHash hash : places) {
    if (hash != 0) hashes.push_back(hash);
  }
  return {reinterpret_cast<const char*>(hashes.data()), hashes.size() * sizeof(WordHash)};
}

MacroDigests DigestsOf(thorough::Session& session) {
  MacroDigests digests;
  std::string chain;
  const thorough::MacroTable& macros = session.Macros();
  macros.ForEach([&](std::string_view name, const thorough::MacroDefinition& first) {
    chain.clear();
    for (const auto* i = &first; i != nullptr; i = macros.Next(*i)) {
      for (const std::string_view part :
           {std::string_view(session.FileAt(i->file)), i->parameters, i->body}) {
        chain += part;
        chain += '\0';
      }
      chain += i->isFunction ? 'f' : 'o';
      for (const thorough::Dialect dialect :
           {thorough::Dialect::C, thorough::Dialect::Cxx, thorough::Dialect::Unknown}) {
        chain += static_cast<char>('0' + static_cast<int>(macros.ConditionOf(*i, dialect)));
      }
    }
    digests.emplace_back(HashOf(name), ContentHash(chain));
  });
  std::sort(digests.begin(), digests.end());
  // Words with the same hash share a digest.
  std::size_t kept = 0;
  for (std::size_t i = 0; i < digests.size(); ++i) {
    if (kept > 0 && digests[kept - 1].first == digests[i].first) {
      digests[kept - 1].second = digests[kept - 1].second * 31 + digests[i].second;
    } else {
      digests[kept++] = digests[i];
    }
  }
  digests.resize(kept);
  return digests;
}

std::string EncodeDigests(const MacroDigests& digests) {
  std::string bytes;
  bytes.reserve(digests.size() * (sizeof(WordHash) + sizeof(std::uint64_t)));
  for (const auto& [word, digest] : digests) {
    bytes.append(reinterpret_cast<const char*>(&word), sizeof word);
    bytes.append(reinterpret_cast<const char*>(&digest), sizeof digest);
  }
  return bytes;
}

MacroDigests DecodeDigests(std::string_view bytes) {
  constexpr std::size_t kSize = sizeof(WordHash) + sizeof(std::uint64_t);
  MacroDigests digests(bytes.size() / kSize);
  for (std::size_t i = 0; i < digests.size(); ++i) {
    std::memcpy(&digests[i].first, bytes.data() + i * kSize, sizeof(WordHash));
    std::memcpy(&digests[i].second, bytes.data() + i * kSize + sizeof(WordHash),
                sizeof(std::uint64_t));
  }
  return digests;
}

std::vector<WordHash> ChangedWords(const MacroDigests& before, const MacroDigests& after) {
  std::vector<WordHash> words;
  auto old = before.begin();
  auto now = after.begin();
  while (old != before.end() || now != after.end()) {
    if (now == after.end() || (old != before.end() && old->first < now->first)) {
      words.push_back((old++)->first);
    } else if (old == before.end() || now->first < old->first) {
      words.push_back((now++)->first);
    } else {
      if (old->second != now->second) words.push_back(old->first);
      ++old;
      ++now;
    }
  }
  return words;
}

WordSet::WordSet(const std::vector<WordHash>& all) : words(all), filter(kBits) {
  std::sort(words.begin(), words.end());
  for (const WordHash word : words) filter[word % kBits] = true;
}

bool WordSet::HasAnyOf(std::string_view lookups) const {
  for (std::size_t at = 0; at + sizeof(WordHash) <= lookups.size(); at += sizeof(WordHash)) {
    WordHash hash = 0;
    std::memcpy(&hash, lookups.data() + at, sizeof hash);
    if (filter[hash % kBits] && std::binary_search(words.begin(), words.end(), hash)) return true;
  }
  return false;
}

}  // namespace vexltags::tree
