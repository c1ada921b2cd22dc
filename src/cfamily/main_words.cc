// SPDX-License-Identifier: MIT
// Tells what a word of the C family is, by two small hash tables made at compile time.
#include "cfamily/main_words.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "cfamily/main_tokens.h"

namespace vexltags {
namespace {

/// In the order of the vocabulary, from 92 on; empty where a keyword is no plain word.
constexpr std::string_view kKeywords[] = {
    "_LIBCPP_END_NAMESPACE_STD",
    "typedef",
    "using",
    "typename",
    "_LIBCPP_BEGIN_NAMESPACE_STD",
    "enum",
    "class",
    "struct",
    "sizeof",
    "new",
    "true",
    "false",
    "mutable",
    "constexpr",
    "decltype",
    "requires",
    "auto",
    "concept",
    "extern",
    "inline",
    "final",
    "static_assert",
    "virtual",
    "public",
    "protected",
    "private",
    "operator",
    "namespace",
    "template",
    "delete",
    "override",
    "default",
    "union",
    /*@synthesize*/ "",
    /*@property*/ "",
    "IBOutlet",
    "readonly",
    /*getter=*/"",
    /*setter=*/"",
    "friend",
    "throw",
    "noexcept",
    "_NOEXCEPT",
    "_NOEXCEPT_",
    "_NOEXCEPT_DEBUG",
    "explicit",
    "consteval",
    "constinit",
    "static",
    "thread_local",
    "char",
    "char16_t",
    "char32_t",
    "wchar_t",
    "bool",
    "short",
    "int",
    "long",
    "signed",
    "unsigned",
    "float",
    "double",
    "void",
    "__weak",
    "__strong",
    "register",
    "near",
    "NEAR",
    "far",
    "FAR",
    "const",
    "volatile",
};
constexpr std::size_t kKeywordCount = std::size(kKeywords);
static_assert(kMainFirstKeyword + kKeywordCount == 164);

/// The names of the macro eaters. A name that begins with another is not repeated.
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

template <class Word>
constexpr std::size_t KeywordSlot(const Word& word, std::size_t length) {
  return (static_cast<unsigned char>(word[0]) * 5U +
          static_cast<unsigned char>(word[length / 2]) * 23U +
          static_cast<unsigned char>(word[length - 1]) * 71U + length * 113U) %
         kSlots;
}

/// By the characters in which the names differ early.
template <class Word>
constexpr std::size_t MacroSlot(const Word& word) {
  return (static_cast<unsigned char>(word[0]) * 7U + static_cast<unsigned char>(word[1]) * 41U +
          static_cast<unsigned char>(word[3]) * 83U + static_cast<unsigned char>(word[5]) * 131U) %
         kSlots;
}

/// The first entry of each slot and, for each entry, the next one of its slot.
template <std::size_t kCount>
struct Chains {
  std::array<std::uint8_t, kSlots> first{};
  std::array<std::uint8_t, kCount> next{};
};

constexpr Chains<kKeywordCount> MakeKeywordChains() {
  Chains<kKeywordCount> chains;
  chains.first.fill(kNone);
  for (std::size_t i = 0; i < kKeywordCount; ++i) {
    if (kKeywords[i].empty()) continue;
    auto& first = chains.first[KeywordSlot(kKeywords[i], kKeywords[i].size())];
    chains.next[i] = first;
    first = static_cast<std::uint8_t>(i);
  }
  return chains;
}

constexpr Chains<kMacroNameCount> MakeMacroChains() {
  Chains<kMacroNameCount> chains;
  chains.first.fill(kNone);
  for (std::size_t i = 0; i < kMacroNameCount; ++i) {
    auto& first = chains.first[MacroSlot(kMacroNames[i])];
    chains.next[i] = first;
    first = static_cast<std::uint8_t>(i);
  }
  return chains;
}

constexpr auto kKeywordChains = MakeKeywordChains();
constexpr auto kMacroChains = MakeMacroChains();

}  // namespace

unsigned ClassifyMainWord(const unsigned char* word, std::size_t length) {
  for (std::uint8_t i = kKeywordChains.first[KeywordSlot(word, length)]; i != kNone;
       i = kKeywordChains.next[i]) {
    if (kKeywords[i].size() == length && std::memcmp(kKeywords[i].data(), word, length) == 0) {
      return kMainFirstKeyword + i;
    }
  }
  if (length < kShortestMacroName) return kMainId;
  for (std::uint8_t i = kMacroChains.first[MacroSlot(word)]; i != kNone; i = kMacroChains.next[i]) {
    const std::string_view name = kMacroNames[i];
    if (name.size() <= length && std::memcmp(name.data(), word, name.size()) == 0) {
      return kMainMaybeMacro;
    }
  }
  return kMainId;
}

}  // namespace vexltags
