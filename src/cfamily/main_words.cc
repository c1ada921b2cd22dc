// SPDX-License-Identifier: MIT
// Classifies a word of the C family, by two small hash tables made at compile time.
#include "cfamily/main_words.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <string_view>

#include "base/word_table.h"
#include "vocabulary/main_tokens.h"

namespace vexltags {
namespace {

constexpr WordTable<std::size(kMainLiterals)> kKeywords(kMainLiterals);

/// The names of the eaten macros, less those that begin with another name of the list.
constexpr std::string_view kMacroNames[] = {
    "CF_RETURNS_RETAINED",
    "CF_RETURNS_NOT_RETAINED",
    "CF_RELEASES_ARGUMENT",
    "CF_CONSUMED",
    "CF_AUTOMATED_REFCOUNT_UNAVAILABLE",
    "CF_IMPLICIT_BRIDGING_",
    "NS_AUTOMATED_REFCOUNT_UNAVAILABLE",
    "NS_AUTOMATED_REFCOUNT_WEAK_UNAVAILABLE",
    "NS_ASSUME_NONNULL_BEGIN",
    "NS_ASSUME_NONNULL_END",
    "NS_DESIGNATED_INITIALIZER",
    "NS_NOESCAPE",
    "NS_RELEASES_ARGUMENT",
    "NS_REPLACES_RECEIVER",
    "NS_REQUIRES_NIL_TERMINATION",
    "NS_REQUIRES_PROPERTY_DEFINITIONS",
    "NS_REQUIRES_SUPER",
    "NS_RETURNS_INNER_POINTER",
    "NS_RETURNS_NOT_RETAINED",
    "NS_RETURNS_RETAINED",
    "NS_ROOT_CLASS",
    "NS_UNAVAILABLE",
    "NS_VALID_UNTIL_END_OF_SCOPE",
    "DEPRECATED_ATTRIBUTE",
    "__autoreleasing",
    "__kindof",
    "__nullable",
    "_Nullable",
    "__nonnull",
    "_Nonnull",
    "__null_unspecified",
    "__covariant",
    "__contravariant",
    "__unsafe_unretained",
    "cg_nullable",
    "CG_NONNULL_ARRAY",
    "CG_NULLABLE_ARRAY",
    "CG_BOXABLE",
    "AVAILABLE_MAC_OS_X_VERSION",
    "AVAILABLE_QTKIT_VERSION",
    "AVAILABLE_IN_WEBKIT_VERSION",
    "AVAILABLE_WEBKIT_VERSION",
    "DEPRECATED_IN_MAC_OS_X_VERSION_",
    "ALWAYS_STEP_OVER",
    "CLANG_ANALYZER_NORETURN",
    "_LIBCPP_",
    "ATS_AVAILABLE",
    "ATS_DEPRECATED",
    "API_DEPRECATED",
    "API_AVAILABLE",
    "API_UNAVAILABLE",
    "CF_AVAILABLE",
    "CF_ENUM",
    "CF_DEPRECATED",
    "CG_AVAILABLE",
    "CG_DEPRECATED",
    "CT_AVAILABLE",
    "CT_ENUM_DEPRECATED",
    "CT_DEPRECATED",
    "IMAGEIO_AVAILABLE",
    "NS_AVAILABLE",
    "NS_CLASS_AVAILABLE",
    "NS_DEPRECATED",
    "NS_ENUM",
    "__DARWIN_ALIAS",
    "__OSX_AVAILABLE",
    "SPI_AVAILABLE",
    "SPI_UNAVAILABLE",
    "SPI_DEPRECATED",
    "_ALIGNAS",
    "IOSFC_AVAILABLE_STARTING",
    "WEBKIT_OBJC_METHOD_ANNOTATION",
    "NS_FORMAT_FUNCTION",
    "NS_FORMAT_ARGUMENT",
    "NS_SWIFT_UNAVAILABLE",
    "NS_SWIFT_NAME",
    "CF_SWIFT_NAME",
    "MPS_SWIFT_NAME",
    "UNIT_TEST",
    "__attribute__",
    "CF_OPTIONS",
    "NS_OPTIONS",
};
constexpr std::size_t kMacroNameCount = std::size(kMacroNames);
constexpr std::size_t kShortestMacroName = 7;

constexpr std::size_t kSlots = 512;
constexpr std::uint8_t kNone = 0xFF;

/// Hashes the early characters in which the names differ.
template <class Word>
constexpr std::size_t MacroSlot(const Word& word) {
  return (static_cast<unsigned char>(word[0]) * 7U + static_cast<unsigned char>(word[1]) * 41U +
          static_cast<unsigned char>(word[3]) * 83U + static_cast<unsigned char>(word[5]) * 131U) %
         kSlots;
}

/// The first name of each slot and, for each name, the next one of its slot.
struct MacroChains {
  std::array<std::uint8_t, kSlots> first{};
  std::array<std::uint8_t, kMacroNameCount> next{};
};

constexpr MacroChains MakeMacroChains() {
  MacroChains chains;
  chains.first.fill(kNone);
  for (std::size_t i = 0; i < kMacroNameCount; ++i) {
    auto& first = chains.first[MacroSlot(kMacroNames[i])];
    chains.next[i] = first;
    first = static_cast<std::uint8_t>(i);
  }
  return chains;
}
constexpr MacroChains kMacroChains = MakeMacroChains();

}  // namespace

unsigned ClassifyMainWord(const unsigned char* word, std::size_t length) {
  const unsigned type = kKeywords.Find(word, length, kMainId);
  if (type != kMainId || length < kShortestMacroName) return type;
  for (std::uint8_t i = kMacroChains.first[MacroSlot(word)]; i != kNone; i = kMacroChains.next[i]) {
    const std::string_view name = kMacroNames[i];
    if (name.size() <= length && std::memcmp(name.data(), word, name.size()) == 0) {
      return kMainMaybeMacro;
    }
  }
  return kMainId;
}

}  // namespace vexltags
