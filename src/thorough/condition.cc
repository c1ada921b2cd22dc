// SPDX-License-Identifier: MIT
// Evaluates the condition of a conditional directive as far as it is known.
#include "thorough/condition.h"

#include <algorithm>
#include <cstddef>
#include <optional>

#include "base/character_class.h"

namespace vexltags::thorough {
namespace {

/// Macros that only compilers for other systems than the usual Unix ones define.
constexpr std::string_view kForeignMacros[] = {
    "_WIN32",     "WIN32",        "_WIN64",      "__WIN32__",   "_MSC_VER",   "__MINGW32__",
    "__CYGWIN__", "__BORLANDC__", "__WATCOMC__", "__SUNPRO_CC", "__SUNPRO_C", "__hpux",
    "_AIX",       "__MWERKS__",   "__VMS",       "__OS2__",     "MSDOS",      "__MSDOS__",
    "__xlC__",    "__IBMCPP__",   "_WIN32_WCE",  "WINCE"};

bool IsForeign(std::string_view name) {
  return name.find("DOXYGEN") != std::string_view::npos ||
         std::find(std::begin(kForeignMacros), std::end(kForeignMacros), name) !=
             std::end(kForeignMacros);
}

/// True for a name that says what a compiler or a configuration lacks, which is rare.
bool SaysLack(std::string_view name) {
  return name.find("_NO_") != std::string_view::npos || name.starts_with("NO_");
}

/// True for a name that may be a compiler's own.
bool IsReserved(std::string_view name) {
  return name.size() < 2 || (name[0] == '_' && (name[1] < 'a' || name[1] > 'z'));
}

/// The value of an expression: a number where it is known, else only a truth.
struct Value {
  Truth truth = Truth::Unknown;
  std::optional<std::int64_t> number;
  bool isStandard = false;  ///< The version of the language's standard.

  static Value Number(std::int64_t value) {
    return {value != 0 ? Truth::True : Truth::False, value};
  }
  static Value Of(Truth truth) {
    if (truth == Truth::True || truth == Truth::False) return Number(truth == Truth::True);
    return {truth, std::nullopt};
  }
};

/// A recursive-descent reader of `#if` expressions. Depth is bounded: what nests deeper is unknown.
class Reader {
 public:
  Reader(std::string_view text, Dialect dialect, const NameSet* defined)
      : rest(text), dialect(dialect), defined(defined) {}

  Truth Read() {
    const Value value = Conditional();
    SkipBlanks();
    // What could not be read to its end says nothing.
    return rest.empty() && !failed ? value.truth : Truth::Unknown;
  }

 private:
  static constexpr int kDeepest = 100;

  void SkipBlanks() {
    for (;;) {
      if (rest.starts_with("/*")) {
        const std::size_t close = rest.find("*/", 2);
        rest.remove_prefix(close == std::string_view::npos ? rest.size() : close + 2);
      } else if (rest.starts_with("//")) {
        rest.remove_prefix(rest.size());
      } else if (!rest.empty() && (rest[0] == ' ' || rest[0] == '\t' || rest[0] == '\\' ||
                                   rest[0] == '\n' || rest[0] == '\r')) {
        rest.remove_prefix(1);
      } else {
        return;
      }
    }
  }

  bool Take(std::string_view mark) {
    SkipBlanks();
    if (!rest.starts_with(mark)) return false;
    rest.remove_prefix(mark.size());
    return true;
  }

  std::string_view TakeWord() {
    SkipBlanks();
    std::size_t length = 0;
    while (length < rest.size() && (kLetters[static_cast<unsigned char>(rest[length])] ||
                                    (rest[length] >= '0' && rest[length] <= '9'))) {
      ++length;
    }
    const std::string_view word = rest.substr(0, length);
    rest.remove_prefix(length);
    return word;
  }

  /// True once nesting is too deep; everything that is left is then given up.
  bool TooDeep() {
    if (depth <= kDeepest) return false;
    failed = true;
    rest = {};
    return true;
  }

  Value Conditional() {
    ++depth;
    const Value value = TooDeep() ? Value{} : ReadConditional();
    --depth;
    return value;
  }

  Value ReadConditional() {
    const Value condition = Or();
    if (!Take("?")) return condition;
    const Value yes = Conditional();
    if (!Take(":")) failed = true;
    const Value no = Conditional();
    if (condition.truth == Truth::True) return yes;
    if (condition.truth == Truth::False) return no;
    return {};
  }

  Value Or() {
    Value value = And();
    while (Take("||")) value = Value::Of(std::max(value.truth, And().truth));
    return value;
  }

  Value And() {
    Value value = Comparison();
    while (Take("&&")) value = Value::Of(std::min(value.truth, Comparison().truth));
    return value;
  }

  Value Comparison() {
    const Value left = Sum();
    for (const std::string_view mark : {"==", "!=", "<=", ">=", "<", ">"}) {
      if (!Take(mark)) continue;
      const Value right = Sum();
      if (left.isStandard) {
        return {mark[0] == '>' ? Truth::Likely : Truth::Unlikely, std::nullopt};
      }
      if (!left.number || !right.number) {
        // A foreign compiler's version is compared only there.
        return {left.truth == Truth::Unlikely ? Truth::Unlikely : Truth::Unknown, std::nullopt};
      }
      const std::int64_t a = *left.number;
      const std::int64_t b = *right.number;
      if (mark == "==") return Value::Number(a == b);
      if (mark == "!=") return Value::Number(a != b);
      if (mark == "<=") return Value::Number(a <= b);
      if (mark == ">=") return Value::Number(a >= b);
      return Value::Number(mark == "<" ? a < b : a > b);
    }
    return left;
  }

  Value Sum() {
    Value value = Unary();
    for (;;) {
      SkipBlanks();
      const char c = rest.empty() ? '\0' : rest[0];
      const bool isOperator = c == '+' || c == '-' || c == '*' || c == '/' || c == '%' ||
                              (c == '&' && !rest.starts_with("&&")) ||
                              (c == '|' && !rest.starts_with("||")) || c == '^';
      if (!isOperator) return value;
      rest.remove_prefix(1);
      Unary();
      value = {};
    }
  }

  Value Unary() {
    ++depth;
    const Value value = TooDeep() ? Value{} : Primary();
    --depth;
    return value;
  }

  Value Primary() {
    if (Take("!")) return Value::Of(Not(Unary().truth));
    if (Take("-")) {
      const Value value = Unary();
      return value.number ? Value::Number(-*value.number) : Value{};
    }
    if (Take("+")) return Unary();
    if (Take("~")) return Unary(), Value{};
    if (Take("(")) {
      const Value value = Conditional();
      if (!Take(")")) failed = true;
      return value;
    }
    const std::string_view word = TakeWord();
    if (word.empty()) {
      failed = true;
      rest = {};
      return {};
    }
    if (word[0] >= '0' && word[0] <= '9') return Integer(word);
    if (word == "defined") {
      const bool hasParenthesis = Take("(");
      const std::string_view name = TakeWord();
      if (hasParenthesis && !Take(")")) failed = true;
      return Value::Of(IsDefined(name, dialect, defined));
    }
    // The arguments of __has_include and the like.
    if (Take("(")) {
      SkipArguments();
      return {};
    }
    if (word == "true") return Value::Number(1);
    if (word == "false") return Value::Number(0);
    if (word == "__cplusplus") {
      // Some standard of C++, and a late one sooner than an early one.
      if (dialect == Dialect::Cxx) return {Truth::True, std::nullopt, true};
      if (dialect == Dialect::C) return Value::Number(0);
      return {Truth::Likely, std::nullopt, true};
    }
    return {IsDefined(word, dialect, defined), std::nullopt};
  }

  void SkipArguments() {
    int open = 1;
    while (!rest.empty() && open > 0) {
      if (rest[0] == '(') ++open;
      if (rest[0] == ')') --open;
      rest.remove_prefix(1);
    }
    if (open > 0) failed = true;
  }

  static Value Integer(std::string_view word) {
    std::int64_t number = 0;
    const char prefix = word.size() > 1 && word[0] == '0' ? word[1] : '\0';
    const bool isHex = prefix == 'x' || prefix == 'X';
    const bool isBinary = prefix == 'b' || prefix == 'B';
    int base = word[0] == '0' ? 8 : 10;
    if (isHex) base = 16;
    if (isBinary) base = 2;
    for (const char c : word.substr(isHex || isBinary ? 2 : 0)) {
      int digit = -1;
      if (c >= '0' && c <= '9') digit = c - '0';
      if (isHex && c >= 'a' && c <= 'f') digit = c - 'a' + 10;
      if (isHex && c >= 'A' && c <= 'F') digit = c - 'A' + 10;
      if (digit < 0) break;
      if (number > (INT64_MAX >> 5)) return {};
      number = number * base + digit;
    }
    return Value::Number(number);
  }

  std::string_view rest;
  Dialect dialect;
  const NameSet* defined;
  int depth = 0;
  bool failed = false;
};

}  // namespace

Dialect DialectOf(std::string_view path) {
  const std::size_t slash = path.rfind('/');
  const std::string_view name = slash == std::string_view::npos ? path : path.substr(slash + 1);
  const std::size_t dot = name.rfind('.');
  if (dot == std::string_view::npos) return Dialect::Cxx;  // A header of the C++ library.
  const std::string_view suffix = name.substr(dot);
  if (suffix == ".c" || suffix == ".m") return Dialect::C;
  if (suffix == ".h") return Dialect::Unknown;
  return Dialect::Cxx;
}

Truth Not(Truth truth) {
  return static_cast<Truth>(static_cast<int>(Truth::True) - static_cast<int>(truth));
}

Truth IsDefined(std::string_view argument, Dialect dialect, const NameSet* defined) {
  std::size_t length = 0;
  while (length < argument.size() && (kLetters[static_cast<unsigned char>(argument[length])] ||
                                      (argument[length] >= '0' && argument[length] <= '9'))) {
    ++length;
  }
  const std::string_view name = argument.substr(0, length);
  if (name == "__cplusplus") {
    if (dialect == Dialect::Cxx) return Truth::True;
    return dialect == Dialect::C ? Truth::False : Truth::Likely;
  }
  const bool isUnseen = defined != nullptr && !IsReserved(name) && !defined->MayHave(name);
  return isUnseen || IsForeign(name) || SaysLack(name) ? Truth::Unlikely : Truth::Unknown;
}

Truth EvaluateCondition(std::string_view expression, Dialect dialect, const NameSet* defined) {
  return Reader(expression, dialect, defined).Read();
}

}  // namespace vexltags::thorough
