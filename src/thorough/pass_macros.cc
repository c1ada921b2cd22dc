// SPDX-License-Identifier: MIT
// The part of the declaration pass that expands macros.
#include "thorough/declaration_pass.h"

#include <algorithm>
#include <utility>

#include "vocabulary/main_tokens.h"

namespace vexltags::thorough {
namespace {

/// Calls in arguments of calls are looked at again where the outer one is not expanded. Only those
/// of more words than the first number count, and after as many words as the second no call of the
/// file is looked at.
constexpr std::size_t kShortCall = 16;
constexpr std::size_t kMostVainWords = std::size_t{1} << 20;

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

/// True for a type and the name of a pointer to a function, which lack its parameters:
/// `int (*name)`.
bool IsPointer(const Words& expansion) {
  const std::size_t size = expansion.size();
  return size > 4 && expansion[size - 1].type == kMainRParen &&
         expansion[size - 2].type == kMainId && expansion[size - 3].type == kMainStar;
}

/// True for a call that has a whole declaration among its arguments: `DEBUG_CODE(int a;)`.
bool HasStatement(const Words& call) {
  return call.size() > 3 && call[call.size() - 2].type == kMainSemicolon;
}

/// True for arguments that cannot be parameters.
bool HasLiteral(const Arguments& arguments) {
  return std::any_of(arguments.begin(), arguments.end(), [](std::span<const Word> argument) {
    return !argument.empty() &&
           (argument[0].type == kMainNumber || argument[0].type == kMainStringLiteral);
  });
}

}  // namespace

bool DeclarationPass::TryMacro() {
  const std::string_view name = tokens.SourceAt(at);
  const MacroDefinition* definition = expander.Find(name);
  if (definition == nullptr) return false;
  if (EndsObjcHead(tokens.LineAt(at))) EndDeclaration(DeclarationEnd::Other);
  if (!words.empty()) {
    const unsigned before = words.back().type;
    if (before == kMainScope || before == kMainDot || before == kMainPointerTo) return false;
  }
  std::size_t past = at + 1;
  Arguments arguments;
  call.clear();
  if (definition->isFunction) {
    if (past >= tokens.Count() || tokens.TypeAt(past) != kMainLParen) return false;
    if (at < longCallEnd) return false;
    if (vainWords > kMostVainWords) return false;
    if (!ReadCall(past, call, arguments)) return false;
    definition = expander.ForCall(definition, name, arguments.size());
    if (definition->body.empty() && HasStatement(call)) {
      definition = expander.KeepingArguments(definition, name);
    }
  } else if (past < tokens.Count() &&
             (tokens.TypeAt(past) == kMainScope || tokens.TypeAt(past) == kMainLess)) {
    return false;
  }
  expansion.clear();
  bool isWorth = expander.Expand(*definition, arguments, tokens.LineAt(at), expansion);
  bool declaresNothing = false;
  if (isWorth) {
    const std::size_t pastName = past;
    ExpandLast(past);
    // `#define API API_OF`, with `API(int) f();`
    const bool isLastCalled =
        past != pastName && !expansion.empty() && expansion[0].type != kMainComma;
    const bool isCall = definition->isFunction || isLastCalled;
    const bool hasBodyAfter = past < tokens.Count() && tokens.TypeAt(past) == kMainLCurly;
    isWorth = TakesPlaceOfName(*definition, name, arguments, past) ||
              (!MayBeFunction(*definition, name, arguments, past) &&
               IsWorthExpanding(isCall, expansion, hasBodyAfter, declaresNothing));
  }
  if (!isWorth) {
    if (call.size() > kShortCall) vainWords += call.size();
    return false;
  }
  at = past;
  hasChanged = true;
  if (declaresNothing) {
    // The semicolon that ends such a call goes with it.
    if (at < tokens.Count() && tokens.TypeAt(at) == kMainSemicolon) ++at;
    return true;
  }
  for (const Word& word : expansion) {
    hasChanged = true;  // A declaration may have ended with the word before.
    Take(word);
  }
  return true;
}

bool DeclarationPass::ReadCall(std::size_t& past, std::vector<Word>& call, Arguments& arguments) {
  int depth = 0;
  for (; past < tokens.Count() && call.size() < Expander::kMostArguments; ++past) {
    const unsigned type = tokens.TypeAt(past);
    NeedToken(past);
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
  return true;
}

void DeclarationPass::ExpandLast(std::size_t& past) {
  constexpr int kMostCalls = 8;
  for (int i = 0; i < kMostCalls; ++i) {
    if (expansion.empty() || expansion.back().type != kMainId || past >= tokens.Count() ||
        tokens.TypeAt(past) != kMainLParen || past < longCallEnd || vainWords > kMostVainWords) {
      return;
    }
    const Word name = expansion.back();
    const MacroDefinition* const definition = expander.Find(name.text);
    if (definition == nullptr || !definition->isFunction) return;
    std::vector<Word> lastCall;
    Arguments arguments;
    std::size_t end = past;
    if (!ReadCall(end, lastCall, arguments)) return;
    if (lastCall.size() > kShortCall) vainWords += lastCall.size();
    expansion.pop_back();
    if (!expander.Expand(*definition, arguments, name.line, expansion)) {
      expansion.push_back(name);
      return;
    }
    past = end;
  }
}

bool DeclarationPass::TakesPlaceOfName(const MacroDefinition& definition, std::string_view name,
                                       const Arguments& arguments, std::size_t past) const {
  const unsigned after = past < tokens.Count() ? tokens.TypeAt(past) : 0;
  if (expansion.empty()) return after == kMainId && (HasLiteral(arguments) || IsNameAt(past));
  if (after == kMainLParen && IsPointer(expansion)) return true;
  return HasNameOfMacro(name) && NamesFunction(definition, expansion, after);
}

bool DeclarationPass::NamesFunction(const MacroDefinition& definition, const Words& result,
                                    unsigned after) const {
  if (result.empty() || result[0].type != kMainId) return false;
  if (!definition.isFunction) {
    return result.size() == 1 && after == kMainLParen && NeedsName();
  }
  const bool isCall =
      result.size() > 1 && result[1].type == kMainLParen && PastBracket(result, 1) == result.size();
  if (!isCall) return false;
  return words.empty() ? result[0].text == ClassName() : NeedsName();
}

bool DeclarationPass::MayBeFunction(const MacroDefinition& definition, std::string_view name,
                                    const Arguments& arguments, std::size_t past) const {
  if (!definition.isFunction || HasNameOfMacro(name) || expander.IsOwn(definition)) return false;
  const bool hasParameters =
      std::any_of(arguments.begin(), arguments.end(), [](std::span<const Word> argument) {
        return argument.size() != 1 || IsBuiltInType(argument[0].type);
      });
  if (!hasParameters) return false;
  const unsigned after = past < tokens.Count() ? tokens.TypeAt(past) : 0;
  return (after == kMainSemicolon || after == kMainLCurly) && NeedsName();
}

bool DeclarationPass::IsNameAt(std::size_t index) const {
  const Word name = SourceWord(index);
  return index + 1 < tokens.Count() && tokens.TypeAt(index + 1) == kMainLParen &&
         !LooksLikeMacro(name) && expander.Find(name.text) == nullptr;
}

bool DeclarationPass::NeedsName() const {
  // A type of more words has its name before any macro.
  constexpr std::size_t kLongestType = 256;
  if (words.empty() || words.size() > kLongestType || inEnum || brackets > 0) return false;
  int names = 0;
  for (std::size_t i = PastTemplateHeads(words); i < words.size(); ++i) {
    const unsigned type = words[i].type;
    if (type == kMainScope) {
      ++i;  // One more word of the same name.
      continue;
    }
    if (type == kMainLess && i > 0 && words[i - 1].type == kMainId) {
      i = std::max(PastAngle(words, i), i + 1) - 1;
      continue;
    }
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

bool DeclarationPass::IsWorthExpanding(bool isCallOfMacro, const std::vector<Word>& result,
                                       bool hasBodyAfter, bool& declaresNothing) const {
  const bool saysNothing = result.empty() || result[0].type == kMainNumber ||
                           (result.size() == 1 && LooksLikeMacro(result[0]));
  // A function may have the name of a macro that takes its place where the function is not wanted.
  if (isCallOfMacro && saysNothing && NeedsName()) return false;
  if (result.empty()) return true;
  const unsigned first = result[0].type;
  const bool isMethod = (first == kMainPlus || first == kMainMinus) &&
                        CurrentLevel() == Level::Objc && result.size() > 2 &&
                        result[1].type == kMainLParen;
  if (isMethod) return words.empty();
  const bool declares = std::any_of(result.begin(), result.end(),
                                    [](const Word& word) { return Declares(word.type); });
  const bool isExpression = first == kMainNumber || first == kMainStringLiteral ||
                            first == kMainCharLiteral || first == kMainKw_sizeof ||
                            first == kMainKw_true || first == kMainKw_false || first == kMainNot ||
                            first == kMainMinus;
  if (isExpression) return false;
  if (!isCallOfMacro) {
    const bool namesNamespace = !words.empty() && words.back().type == kMainKw_namespace;
    return declares || (namesNamespace && first == kMainId);
  }
  if (declares) {
    // What ends a block that another macro opened may begin in any way.
    if (madeCurlies > 0) return true;
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

}  // namespace vexltags::thorough
