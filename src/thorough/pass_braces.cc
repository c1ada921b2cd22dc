// SPDX-License-Identifier: MIT
// The part of the declaration pass that decides what braces open and close.
#include "thorough/declaration_pass.h"

#include "vocabulary/main_tokens.h"

namespace vexltags::thorough {
namespace {

/// True for `) class Name`, with the class on a line of its own.
bool EndsWithClass(const Words& words) {
  std::size_t key = words.size();
  while (key > 0 && words[key - 1].type == kMainId) --key;
  if (key < 2 || !IsClassKey(words[key - 1].type)) return false;
  return words[key - 2].type == kMainRParen && words[key - 1].line > words[key - 2].line;
}

}  // namespace

DeclarationPass::Curly DeclarationPass::ClassifyCurly() const {
  if (words.empty()) return Curly::Body;
  const unsigned first = words[0].type;
  const unsigned last = words.back().type;
  if (first == kMainPlus || first == kMainMinus) return Curly::Body;
  if (first == kMainInterface || first == kMainImplementation || first == kMainProtocol) {
    return Curly::Variables;
  }
  if (words.size() > kLongestDeclaration) return Curly::Initializer;
  if (brackets > 0) return Curly::Initializer;
  const Outline outline(words);
  if (last == kMainStringLiteral && words.size() <= 3) return Curly::Namespace;
  if (outline.assign != kNoWord) return Curly::Initializer;
  if (last == kMainRSquare && outline.result == kNoWord) return Curly::Initializer;
  const bool isFunction = outline.params != kNoWord;
  if (outline.enumKey != kNoWord && !isFunction) return Curly::Enum;
  if (outline.namespaceKey != kNoWord) return Curly::Namespace;
  if (isFunction) {
    const bool endsAsName = last == kMainId || last == kMainGreater || last == kMainKw_final;
    if (outline.classKey != kNoWord && outline.classKey + 2 == outline.params && endsAsName) {
      return Curly::Class;  // class ALIGNED(16) Name
    }
    if (endsAsName && LooksLikeMacro(words[outline.params - 1]) && EndsWithClass(words)) {
      return Curly::Class;
    }
    const bool hasInitializers = outline.colon != kNoWord && outline.colon >= outline.pastParams;
    if (hasInitializers && (last == kMainId || last == kMainGreater)) return Curly::Initializer;
    if (last == kMainKw_requires) return Curly::Initializer;
    return Curly::Body;
  }
  if (outline.classKey != kNoWord) return Curly::Class;
  if (outline.operatorWord != kNoWord || last == kMainRParen) return Curly::Body;
  const bool hasType = words.size() - outline.begin > 1;
  if (hasType && (last == kMainId || last == kMainGreater)) return Curly::Initializer;
  return Curly::Body;
}

std::size_t DeclarationPass::PastBlock(std::size_t open) {
  if (unclosed) return tokens.Count();
  std::size_t depth = 0;
  for (std::size_t i = open; i < tokens.Count(); ++i) {
    const unsigned type = tokens.TypeAt(i);
    if (type == kMainLCurly) ++depth;
    if (type == kMainRCurly && --depth == 0) return i + 1;
    // A macro keeps its tag wherever it is defined.
    if (type == kMainDefine) defines.push_back(SourceWord(i));
  }
  return tokens.Count();
}

void DeclarationPass::TakeBlock(const Word& word) {
  Word block = word;
  const std::size_t past = PastBlock(static_cast<std::size_t>(word.index));
  block.span = static_cast<std::uint32_t>(past - static_cast<std::size_t>(word.index));
  at = past;
  words.push_back(block);
}

void DeclarationPass::TakeCurly(const Word& word) {
  if (inEnum) {
    if (enumDepth == 0) {
      // A second brace after an enum's: the value of a variable.
      inEnum = false;
    } else {
      ++enumDepth;
      words.push_back(word);
      missesBlock = missesBlock || IsSkippedBlock(word.text);
      return;
    }
  }
  const Curly kind = ClassifyCurly();
  if (kind != Curly::Body && kind != Curly::Initializer && IsSkippedBlock(word.text)) {
    missesBlock = true;
    return;
  }
  switch (kind) {
    case Curly::Enum:
      inEnum = true;
      enumDepth = 1;
      words.push_back(word);
      return;
    case Curly::Namespace:
      words.push_back(word);
      EndDeclaration(DeclarationEnd::NamespaceBody);
      return;
    case Curly::Class: {
      words.push_back(word);
      EndDeclaration(DeclarationEnd::ClassBody);
      return;
    }
    case Curly::Variables:
      // The braces themselves would make the variables a block to be skipped.
      hasChanged = true;
      EndDeclaration(DeclarationEnd::ClassBody);
      scopes.push_back({Level::Variables, {}, 1, false, InNamespace()});
      return;
    case Curly::Body:
    case Curly::Initializer:
      break;
  }
  if (word.index < 0) {
    words.push_back(word);
    words.back().span = 0;
    madeCurlies = 1;
    madeBody = kind == Curly::Body && brackets == 0;
    return;
  }
  TakeBlock(word);
  if (kind == Curly::Body && brackets == 0) EndDeclaration(DeclarationEnd::Body);
}

void DeclarationPass::TakeClose(const Word& word) {
  if (inEnum) {
    words.push_back(word);
    if (enumDepth > 0) --enumDepth;
    if (enumDepth > 0) return;
    // What follows up to the semicolon belongs to the enum.
    return;
  }
  if (!words.empty()) {
    EndBefore(word);
    return TakeClose(word);
  }
  if (scopes.empty()) {
    words.push_back(word);
    EndDeclaration(DeclarationEnd::Other);
    return;
  }
  const Scope scope = scopes.back();
  if (scope.level == Level::Objc) {
    // A brace that nothing opened.
    hasChanged = true;
    Flush();
    return;
  }
  scopes.pop_back();
  if (scope.level == Level::Variables) {
    hasChanged = true;
    Flush();
    return;
  }
  words.push_back(word);
  const unsigned next = at < tokens.Count() ? tokens.TypeAt(at) : 0;
  const bool isSpecifier = next == kMainKw_const || next == kMainKw_volatile ||
                           next == kMainKw_static || next == kMainKw_inline ||
                           next == kMainKw_constexpr;
  const bool hasTail = scope.level == Level::Class &&
                       (next == kMainSemicolon || next == kMainId || next == kMainStar ||
                        next == kMainLParen || (isSpecifier && tokens.LineAt(at) == word.line));
  for (int i = 1; i < scope.closes; ++i) {
    Word close = word;
    close.index = -1;
    words.push_back(close);
    hasChanged = true;
  }
  followsTemplate = scope.isTemplate;
  followsNamedClass = hasTail && !scope.name.empty() && !scope.isTypedef;
  if (!hasTail || word.index < 0) EndDeclaration(DeclarationEnd::Other);
}

}  // namespace vexltags::thorough
