// SPDX-License-Identifier: MIT
// Prepares the tokens of a C-family file for the parser, declaration by declaration.
#include "thorough/declaration_pass.h"

#include <algorithm>
#include <utility>

#include "thorough/main_literals.h"
#include "vocabulary/main_tokens.h"

namespace vexltags::thorough {
namespace {

/// A declaration of more words than this is passed on as it is.
constexpr std::size_t kLongestDeclaration = 4096;

bool IsAccess(unsigned type) {
  return type == kMainKw_public || type == kMainKw_protected || type == kMainKw_private;
}

/// What an expansion has to hold to be more than a name.
bool Declares(unsigned type) {
  if (type == kMainLCurly || type == kMainRCurly || type == kMainSemicolon || type == kMainScope) {
    return true;
  }
  if (type == kMainKw_sizeof || type == kMainKw_true || type == kMainKw_false ||
      type == kMainKw_new) {
    return false;
  }
  return type >= kMainKw_typedef;
}

/// The name that a class head declares, without its template arguments; empty for none.
std::string_view NameOfClass(const Words& words) {
  const Outline outline(words);
  if (outline.classKey == kNoWord) return {};
  std::string_view name;
  for (std::size_t i = outline.classKey + 1; i < words.size(); ++i) {
    if (words[i].type == kMainLess || words[i].type == kMainColon) break;
    if (words[i].type == kMainId) name = words[i].text;
  }
  return name;
}

}  // namespace

DeclarationPass::DeclarationPass(TokenTable& tokens, TokenEdits& edits, Expander& expander,
                                 Dialect dialect)
    : tokens(tokens), edits(edits), expander(expander), dialect(dialect) {}

void DeclarationPass::Run() {
  const std::size_t count = tokens.Count();
  while (at < count) {
    const unsigned type = tokens.TypeAt(at);
    if (type == kMainId && TryMacro()) continue;
    const Word word = SourceWord(at++);
    if (type == kMainDefine) {
      if (words.empty()) {
        words.push_back(word);
        Flush();
      } else {
        defines.push_back(word);
      }
      continue;
    }
    Take(word);
  }
  EndDeclaration(DeclarationEnd::Other);
}

Word DeclarationPass::SourceWord(std::size_t index) {
  const unsigned type = tokens.TypeAt(index);
  const bool hasOwnText = type == kMainDefine || type == kMainNsOptionsMacro;
  return {type, hasOwnText ? tokens.TextAt(index) : tokens.SourceAt(index), tokens.LineAt(index),
          static_cast<std::int32_t>(index), 1};
}

// Macros ------------------------------------------------------------------------------------------

bool DeclarationPass::TryMacro() {
  const std::string_view name = tokens.SourceAt(at);
  const MacroDefinition* definition = expander.Find(name);
  if (definition == nullptr) return false;
  if (!words.empty()) {
    const unsigned before = words.back().type;
    if (before == kMainScope || before == kMainDot || before == kMainPointerTo) return false;
  }
  std::size_t past = at + 1;
  std::vector<std::vector<Word>> arguments;
  if (definition->isFunction) {
    if (past >= tokens.Count() || tokens.TypeAt(past) != kMainLParen) return false;
    if (at < longCallEnd) return false;
    std::vector<Word> call;
    int depth = 0;
    for (; past < tokens.Count() && call.size() < Expander::kMostArguments; ++past) {
      const unsigned type = tokens.TypeAt(past);
      call.push_back(SourceWord(past));
      if (type == kMainLParen) ++depth;
      if (type == kMainRParen && --depth == 0) {
        ++past;
        break;
      }
    }
    if (depth != 0) {
      // What is in a call without an end, or in one that is too long, is not looked at again.
      longCallEnd = past;
      return false;
    }
    arguments = SplitArguments(call, 1).first;
  } else if (past < tokens.Count() &&
             (tokens.TypeAt(past) == kMainScope || tokens.TypeAt(past) == kMainLess)) {
    return false;
  }
  std::vector<Word> result;
  if (!expander.Expand(*definition, arguments, tokens.LineAt(at), result)) return false;
  const bool hasBodyAfter = past < tokens.Count() && tokens.TypeAt(past) == kMainLCurly;
  bool declaresNothing = false;
  if (!IsWorthExpanding(*definition, result, hasBodyAfter, declaresNothing)) return false;
  at = past;
  hasChanged = true;
  if (declaresNothing) {
    // The semicolon that ends such a call goes with it.
    if (at < tokens.Count() && tokens.TypeAt(at) == kMainSemicolon) ++at;
    return true;
  }
  for (const Word& word : result) {
    hasChanged = true;  // A declaration may have ended with the word before.
    Take(word);
  }
  return true;
}

bool DeclarationPass::NeedsName() const {
  if (words.empty() || inEnum || brackets > 0) return false;
  int names = 0;
  for (std::size_t i = Outline(words).begin; i < words.size(); ++i) {
    const unsigned type = words[i].type;
    const bool isOther = type == kMainLParen || type == kMainAssign || type == kMainComma ||
                         IsClassKey(type) || type == kMainKw_enum || type == kMainKw_namespace;
    if (isOther) return false;
    // Several words of built-in types are one type.
    const bool goesOn = i > 0 && IsBuiltInType(words[i - 1].type);
    if (type == kMainId || (IsBuiltInType(type) && !goesOn)) ++names;
  }
  const unsigned last = words.back().type;
  return last == kMainStar || last == kMainAmpersand || names == 1;
}

bool DeclarationPass::IsWorthExpanding(const MacroDefinition& definition,
                                       const std::vector<Word>& result, bool hasBodyAfter,
                                       bool& declaresNothing) const {
  const bool saysNothing = result.empty() || result[0].type == kMainNumber ||
                           (result.size() == 1 && LooksLikeMacro(result[0]));
  // A function may have the name of a macro that takes its place where the function is not wanted.
  if (definition.isFunction && saysNothing && NeedsName()) return false;
  if (result.empty()) return true;
  const unsigned first = result[0].type;
  const bool declares = std::any_of(result.begin(), result.end(),
                                    [](const Word& word) { return Declares(word.type); });
  const bool isExpression = first == kMainNumber || first == kMainStringLiteral ||
                            first == kMainCharLiteral || first == kMainKw_sizeof ||
                            first == kMainKw_true || first == kMainKw_false || first == kMainNot ||
                            first == kMainMinus;
  if (isExpression) return false;
  if (!definition.isFunction) {
    const bool namesNamespace = !words.empty() && words.back().type == kMainKw_namespace;
    return declares || (namesNamespace && first == kMainId);
  }
  if (declares) {
    // A statement, which a file has no place for.
    return result[0].text != "do" && result[0].text != "if" && result[0].text != "for" &&
           result[0].text != "while" && result[0].text != "return" && result[0].text != "switch";
  }
  if (first == kMainLParen) return !words.empty();
  if (inEnum) return first == kMainId;
  const bool isCall = first == kMainId && result.size() > 1 && result[1].type == kMainLParen &&
                      PastBracket(result, 1) == result.size();
  if (isCall) {
    const bool isAlone = words.empty() && !hasBodyAfter;
    declaresNothing = isAlone;
    return isAlone;
  }
  // An expression of several operands.
  return std::none_of(result.begin(), result.end(), [](const Word& word) {
    return word.type == kMainPlus || word.type == kMainMinus || word.type == kMainDivide ||
           word.type == kMainQuestionMark || word.type == kMainPointerTo ||
           word.type == kMainEqual || word.type == kMainDot || word.type == kMainShiftLeft;
  });
}

// Words -------------------------------------------------------------------------------------------

void DeclarationPass::Take(const Word& word) {
  if (madeCurlies > 0) {
    // What is in the block does not matter any more.
    hasChanged = true;
    if (word.type == kMainLCurly) ++madeCurlies;
    if (word.type == kMainRCurly && --madeCurlies == 0 && madeBody) {
      EndDeclaration(DeclarationEnd::Body);
    }
    return;
  }
  // The head of an interface ends with its line, but for what continues it.
  if (word.type == kMainId || word.type >= kMainKw_typedef) {
    const unsigned last = words.empty() ? 0 : words.back().type;
    const bool endsHead = last == kMainId || last == kMainGreater || last == kMainRParen;
    if (endsHead && words.size() > 1 && word.line > words.back().line && IsObjcHead()) {
      EndBefore(word);
    }
  }
  switch (word.type) {
    case kMainLCurly:
      return TakeCurly(word);
    case kMainRCurly:
      return TakeClose(word);
    case kMainSemicolon:
      words.push_back(word);
      if (inEnum && enumDepth > 0) return;
      if (IsOldStyleHead()) return;
      return EndDeclaration(inEnum ? DeclarationEnd::EnumBody : DeclarationEnd::Semicolon);
    case kMainColon:
      return TakeColon(word);
    case kMainLParen:
    case kMainLSquare:
      ++brackets;
      break;
    case kMainRParen:
    case kMainRSquare:
      if (brackets > 0) --brackets;
      break;
    case kMainBeginNamespaceStd:
    case kMainEndNamespaceStd:
      return TakeStdNamespace(word);
    case kMainInterface:
    case kMainProtocol:
    case kMainImplementation:
    case kMainEnd:
    case kMainProperty:
    case kMainSynthesize:
    case kMainPlus:
    case kMainMinus:
      return TakeObjcWord(word);
    default:
      break;
  }
  words.push_back(word);
}

void DeclarationPass::TakeStdNamespace(const Word& word) {
  if (!words.empty()) EndBefore(word);
  words.push_back(word);
  Flush();
  if (word.type == kMainBeginNamespaceStd) {
    scopes.push_back({Level::Namespace, {}, 1});
  } else if (!scopes.empty()) {
    scopes.pop_back();
  }
}

void DeclarationPass::TakeColon(const Word& word) {
  words.push_back(word);
  // `public:`, `public slots:`
  if (!words.empty() && IsAccess(words[0].type) && words.size() <= 3 && !inEnum) {
    if (words.size() == 3) {
      words.erase(words.begin() + 1);
      hasChanged = true;
    }
    EndDeclaration(DeclarationEnd::Other);
  }
}

void DeclarationPass::TakeObjcWord(const Word& word) {
  const bool isSign = word.type == kMainPlus || word.type == kMainMinus;
  const bool isExpression =
      isSign && !IsObjcHead() &&
      (CurrentLevel() != Level::Objc || brackets > 0 ||
       (!words.empty() && words.back().type != kMainRCurly && word.line == words.back().line));
  if (isExpression) {
    words.push_back(word);
    return;
  }
  // Where an item begins whatever came before has ended: the head of an interface has no other end.
  if (!words.empty()) EndBefore(word);
  const bool inObjc = CurrentLevel() == Level::Objc;
  words.push_back(word);
  if (word.type == kMainEnd) {
    if (inObjc) scopes.pop_back();
    EndDeclaration(DeclarationEnd::Other);
  }
}

bool DeclarationPass::IsObjcHead() const {
  if (words.empty() || brackets > 0) return false;
  const unsigned first = words[0].type;
  return first == kMainInterface || first == kMainProtocol || first == kMainImplementation;
}

void DeclarationPass::EndBefore(const Word& word) {
  // The word has been taken from the source already.
  const bool isSource = word.index >= 0;
  if (isSource) --at;
  EndDeclaration(DeclarationEnd::Other);
  if (isSource) ++at;
}

bool DeclarationPass::IsOldStyleHead() const {
  if (dialect == Dialect::Cxx || CurrentLevel() != Level::Namespace || inEnum) return false;
  // int f(a, b) int a;
  if (words.size() < 6 || words.size() > 200) return false;
  if (words[0].type == kMainKw_typedef || words[0].type == kMainKw_template) return false;
  const Outline outline(words);
  if (outline.params == kNoWord || outline.assign != kNoWord || outline.pointer != kNoWord) {
    return false;
  }
  if (outline.pastParams - outline.params < 3) return false;
  for (std::size_t i = outline.params + 1; i + 1 < outline.pastParams; ++i) {
    const bool isName = (i - outline.params) % 2 == 1;
    if (words[i].type != (isName ? kMainId : kMainComma)) return false;
  }
  const unsigned after = words[outline.pastParams].type;
  const bool beginsType = after == kMainId || IsBuiltInType(after) || IsClassKey(after) ||
                          IsQualifier(after) || after == kMainKw_enum || after == kMainKw_register;
  if (!beginsType || words.size() - outline.pastParams < 3) return false;
  // A macro after a prototype is one word, or a call.
  return after != kMainId || words[outline.pastParams + 1].type != kMainLParen;
}

// Braces ------------------------------------------------------------------------------------------

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
  if (last == kMainRSquare) return Curly::Initializer;
  const bool isFunction = outline.params != kNoWord;
  if (outline.enumKey != kNoWord && !isFunction) return Curly::Enum;
  if (outline.namespaceKey != kNoWord) return Curly::Namespace;
  if (isFunction) {
    const bool endsAsName = last == kMainId || last == kMainGreater || last == kMainKw_final;
    if (outline.classKey != kNoWord && outline.classKey + 2 == outline.params && endsAsName) {
      return Curly::Class;  // class ALIGNED(16) Name
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
      return;
    }
  }
  const Curly kind = ClassifyCurly();
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
      scopes.push_back({Level::Variables, {}, 1});
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
  if (!hasTail || word.index < 0) EndDeclaration(DeclarationEnd::Other);
}

// Ends --------------------------------------------------------------------------------------------

std::string_view DeclarationPass::ClassName() const {
  return scopes.empty() ? std::string_view() : scopes.back().name;
}

void DeclarationPass::EndDeclaration(DeclarationEnd end) {
  brackets = 0;
  enumDepth = 0;
  inEnum = false;
  if (!words.empty() && (words.size() <= kLongestDeclaration || end == DeclarationEnd::EnumBody)) {
    DeclarationPlace place;
    place.inClass = CurrentLevel() == Level::Class || CurrentLevel() == Level::Variables;
    place.inObjc = CurrentLevel() == Level::Objc;
    place.className = ClassName();
    place.dialect = dialect;
    const unsigned first = words[0].type;
    const bool opensObjc =
        (first == kMainInterface || first == kMainProtocol || first == kMainImplementation) &&
        end != DeclarationEnd::Semicolon;
    if (RepairDeclaration(words, end, place)) hasChanged = true;
    if (end == DeclarationEnd::NamespaceBody) {
      scopes.push_back({Level::Namespace, {}, SplitNamespace()});
    } else if (opensObjc) {
      scopes.push_back({Level::Objc, {}, 1});
    } else if (end == DeclarationEnd::ClassBody) {
      scopes.push_back({Level::Class, NameOfClass(words), 1});
    }
  } else if (end == DeclarationEnd::ClassBody) {
    scopes.push_back({Level::Class, {}, 1});
  } else if (end == DeclarationEnd::NamespaceBody) {
    scopes.push_back({Level::Namespace, {}, 1});
  }
  Flush();
}

int DeclarationPass::SplitNamespace() {
  std::size_t at = 0;
  while (at < words.size() && words[at].type != kMainKw_namespace) ++at;
  if (at + 2 >= words.size() || words[at + 2].type != kMainScope) return 1;
  Words split(words.begin(), words.begin() + static_cast<std::ptrdiff_t>(at));
  int count = 0;
  Word keyword = words[at];
  Word brace = words.back();
  for (std::size_t i = at + 1; i + 1 < words.size(); ++i) {
    const Word& word = words[i];
    if (word.type == kMainScope) continue;
    if (word.type == kMainKw_inline) {
      split.push_back(word);
      continue;
    }
    const bool isLast = i + 2 >= words.size();
    split.push_back(keyword);
    split.push_back(word);
    split.push_back(brace);
    if (!isLast) split.back().index = -1;
    keyword.index = -1;
    ++count;
  }
  words = std::move(split);
  hasChanged = true;
  return count;
}

void DeclarationPass::Insert(std::size_t index, const Word& word) {
  if (word.type < kMainKw_typedef) {
    edits.Insert(index, word.type, word.text, word.line);
    if (word.span == 0) edits.Insert(index, kMainRCurly, "}", word.line);
    return;
  }
  // No blank is between made words; keywords never are names, and bring theirs along.
  spaced.assign(word.text);
  spaced += ' ';
  edits.Insert(index, word.type, spaced, word.line);
}

void DeclarationPass::Flush() {
  if (!hasChanged && defines.empty()) {
    flushed = at;
    words.clear();
    return;
  }
  std::size_t next = flushed;
  for (const Word& define : defines) {
    edits.Insert(next, kMainDefine, define.text, define.line);
  }
  for (const Word& word : words) {
    if (word.index < 0) {
      Insert(next, word);
      continue;
    }
    const auto index = static_cast<std::size_t>(word.index);
    for (; next < index; ++next) edits.Remove(next, tokens.TypeAt(next));
    if (word.span == 1 && word.type != tokens.TypeAt(next)) edits.Retype(next, word.type);
    next += word.span;
  }
  for (; next < at; ++next) edits.Remove(next, tokens.TypeAt(next));
  flushed = at;
  words.clear();
  defines.clear();
  hasChanged = false;
}

}  // namespace vexltags::thorough
