// SPDX-License-Identifier: MIT
// Chooses which branches of the conditionals of a C-family file are read.
#include "thorough/conditionals.h"

#include <algorithm>
#include <utility>

#include "base/character_class.h"
#include "thorough/source_text.h"

namespace vexltags::thorough {
namespace {

/// How a kind of bracket goes up and down in a stretch of text.
struct Depth {
  int change = 0;
  int lowest = 0;

  void Open() { ++change; }
  void Close() { lowest = std::min(lowest, --change); }
  void Append(const Depth& next) {
    lowest = std::min(lowest, change + next.lowest);
    change += next.change;
  }
  bool IsBalanced() const { return change == 0 && lowest == 0; }
};

/// A stretch of text as its neighbours see it.
struct Shape {
  char first = 0;       ///< The first character that is neither blank nor comment; 0 for none.
  char last = 0;        ///< The last one; `;` where it ends a word that ends a statement.
  char beforeLast = 0;  ///< The last one of the piece before the last piece.
  Depth curlies;
  Depth parentheses;

  bool IsEmpty() const { return first == 0; }
  bool IsBalanced() const { return curlies.IsBalanced() && parentheses.IsBalanced(); }
  void Take(std::string_view piece) {
    if (first == 0) first = piece.front();
    beforeLast = last;
    last = piece.back();
  }
  void Append(const Shape& next) {
    if (first == 0) first = next.first;
    if (next.last != 0) {
      beforeLast = next.beforeLast != 0 ? next.beforeLast : last;
      last = next.last;
    }
    curlies.Append(next.curlies);
    parentheses.Append(next.parentheses);
  }
};

struct Branch {
  std::uint32_t directive = 0;  ///< Where the line that opens it begins ...
  std::uint32_t begin = 0;      ///< ... and where that ends.
  std::uint32_t end = 0;
  std::size_t firstDefine = 0;  ///< How many `#define` lines were known where it begins.
  Truth truth = Truth::Unknown;
  Shape shape;
};

struct Conditional {
  std::vector<Branch> branches;
  char before = 0;  ///< The last character before it that is read; 0 at the beginning of the file.
  Truth likeliest = Truth::False;  ///< The greatest truth of its branches so far.
};

bool EndsStatement(char c) { return c == 0 || c == ';' || c == '{' || c == '}' || c == ','; }

class Chooser {
 public:
  Chooser(std::string_view text, Dialect dialect) : text(text), source(text), dialect(dialect) {}

  std::vector<TextRange> Run() {
    const auto take = [this](std::string_view piece) { Take(piece); };
    while (source.NextDirective(take)) {
      HandleDirective(source.Found());
      current = &Current();
    }
    // A conditional that is never closed is kept whole: the scanner hides its directives.
    std::sort(dropped.begin(), dropped.end(),
              [](const TextRange& a, const TextRange& b) { return a.begin < b.begin; });
    return WithoutDefines(Merge());
  }

 private:
  Shape& Current() { return open.empty() ? top : open.back().branches.back().shape; }

  void Take(std::string_view piece) {
    Shape& shape = *current;
    shape.Take(piece);
    if (piece.size() > 1) return;
    switch (piece.front()) {
      case '{':
        return shape.curlies.Open();
      case '}':
        return shape.curlies.Close();
      case '(':
        return shape.parentheses.Open();
      case ')':
        return shape.parentheses.Close();
      default:
        return;
    }
  }

  /// The last character before the current position that is read.
  char Before() const {
    if (open.empty()) return top.last;
    const char last = open.back().branches.back().shape.last;
    return last != 0 ? last : open.back().before;
  }

  void HandleDirective(const Directive& directive) {
    switch (directive.kind) {
      case DirectiveKind::If:
      case DirectiveKind::Ifdef:
      case DirectiveKind::Ifndef: {
        const char before = Before();
        open.emplace_back();
        open.back().before = before;
        OpenBranch(directive);
        return;
      }
      case DirectiveKind::Elif:
      case DirectiveKind::Elifdef:
      case DirectiveKind::Elifndef:
      case DirectiveKind::Else:
        if (open.empty()) return;
        EndBranch(directive);
        OpenBranch(directive);
        return;
      case DirectiveKind::Endif:
        if (open.empty()) return;
        EndBranch(directive);
        Close(directive);
        return;
      case DirectiveKind::Define:
        if (!open.empty()) defines.push_back({directive.begin, directive.end});
        return;
      default:
        return;
    }
  }

  void EndBranch(const Directive& directive) {
    Branch& branch = open.back().branches.back();
    branch.end = directive.begin;
    if (kLetters[static_cast<unsigned char>(branch.shape.last)] && EndsWithWord(branch)) {
      branch.shape.last = ';';
    }
    // The definitions of a branch that is never read go with it.
    if (branch.truth == Truth::False) defines.resize(branch.firstDefine);
  }

  void OpenBranch(const Directive& directive) {
    Branch branch;
    branch.directive = directive.begin;
    branch.begin = directive.end;
    branch.firstDefine = defines.size();
    Truth& likeliest = open.back().likeliest;
    switch (directive.kind) {
      case DirectiveKind::Ifdef:
      case DirectiveKind::Elifdef:
        branch.truth = IsDefined(directive.argument, dialect);
        break;
      case DirectiveKind::Ifndef:
      case DirectiveKind::Elifndef:
        branch.truth = Not(IsDefined(directive.argument, dialect));
        break;
      case DirectiveKind::Else:
        branch.truth = Not(likeliest);
        break;
      default:
        branch.truth = EvaluateCondition(directive.argument, dialect);
    }
    likeliest = std::max(likeliest, branch.truth);
    open.back().branches.push_back(branch);
  }

  void Close(const Directive& endif) {
    const Conditional group = std::move(open.back());
    open.pop_back();
    std::vector<bool> kept(group.branches.size(), true);
    if (!KeepsAll(group)) {
      const std::size_t chosen = Choose(group.branches);
      for (std::size_t i = 0; i < kept.size(); ++i) kept[i] = i == chosen;
    } else {
      for (std::size_t i = 0; i < kept.size(); ++i) {
        kept[i] = group.branches[i].truth != Truth::False;
      }
    }
    const bool dropsAny = std::find(kept.begin(), kept.end(), false) != kept.end();
    const bool hasSecond = group.branches.size() > 1;
    Shape shape;
    for (std::size_t i = 0; i < kept.size(); ++i) {
      const Branch& branch = group.branches[i];
      if (kept[i]) shape.Append(branch.shape);
      // The scanner hides the directives of a lone branch that is kept.
      if (!hasSecond && !dropsAny) continue;
      dropped.push_back({branch.directive, branch.begin});
      if (!kept[i]) dropped.push_back({branch.begin, branch.end});
    }
    if (hasSecond || dropsAny) dropped.push_back({endif.begin, endif.end});
    Current().Append(shape);
  }

  /// True for a branch that ends with `@end`, or with a macro alone after a statement or a
  /// directive.
  bool EndsWithWord(const Branch& branch) const {
    constexpr std::string_view kBlanks = " \t\r\n";
    std::string_view rest = text.substr(branch.begin, branch.end - branch.begin);
    rest = rest.substr(0, rest.find_last_not_of(kBlanks) + 1);
    if (rest.ends_with("@end")) return true;
    while (!rest.empty() && (rest.back() == '_' || (rest.back() >= 'A' && rest.back() <= 'Z'))) {
      rest.remove_suffix(1);
    }
    const std::size_t before = rest.find_last_not_of(kBlanks);
    if (before == std::string_view::npos || before + 1 == rest.size()) return false;
    if (rest[before] == ';' || rest[before] == '}' || rest[before] == '{') return true;
    // On a line of its own, after a directive or a comment.
    if (rest.find('\n', before) == std::string_view::npos) return false;
    const std::size_t line = rest.rfind('\n', before) + 1;  // 0 in the first line.
    if (rest[rest.find_first_not_of(kBlanks, line)] == '#') return true;
    const char last = branch.shape.beforeLast;
    return last == ';' || last == '}' || last == '{';
  }

  static bool KeepsAll(const Conditional& group) {
    if (group.branches.size() == 1) return true;
    // A line that is a macro alone has no mark at its end.
    const bool followsWord =
        kLettersAndDigits[static_cast<unsigned char>(group.before)] || group.before == ')';
    if (!EndsStatement(group.before) && group.before != ':' && !followsWord) return false;
    if (followsWord && !std::all_of(group.branches.begin(), group.branches.end(), IsDeclaration)) {
      return false;
    }
    return std::all_of(group.branches.begin(), group.branches.end(), [](const Branch& branch) {
      return branch.truth == Truth::False ||
             (branch.shape.IsBalanced() &&
              (EndsStatement(branch.shape.last) || branch.shape.last == ':'));
    });
  }

  /// True for a branch that can be nothing but whole declarations.
  static bool IsDeclaration(const Branch& branch) {
    const Shape& shape = branch.shape;
    const bool begins = kLetters[static_cast<unsigned char>(shape.first)] || shape.first == '@';
    return shape.IsEmpty() ||
           (begins && shape.IsBalanced() && (shape.last == ';' || shape.last == '}'));
  }

  /// The branch to be read where only one can be; the number of branches where none can.
  static std::size_t Choose(const std::vector<Branch>& branches) {
    std::size_t best = branches.size();
    int bestWorth = -1;
    for (std::size_t i = 0; i < branches.size(); ++i) {
      const Branch& branch = branches[i];
      if (branch.truth == Truth::False) continue;
      int worth = static_cast<int>(branch.truth);
      // Likely and unknown branches are worth the same: the first of them is read.
      if (branch.truth == Truth::Likely) worth = static_cast<int>(Truth::Unknown);
      if (branch.shape.IsEmpty() && branch.truth != Truth::True) worth = 0;
      if (worth > bestWorth) {
        best = i;
        bestWorth = worth;
      }
    }
    return best;
  }

  std::vector<TextRange> Merge() const {
    std::vector<TextRange> merged;
    for (const TextRange& range : dropped) {
      if (range.begin == range.end) continue;
      if (!merged.empty() && range.begin <= merged.back().end) {
        merged.back().end = std::max(merged.back().end, range.end);
      } else {
        merged.push_back(range);
      }
    }
    return merged;
  }

  /// `ranges` without the definitions in them.
  std::vector<TextRange> WithoutDefines(const std::vector<TextRange>& ranges) const {
    std::vector<TextRange> result;
    auto define = defines.begin();
    for (TextRange range : ranges) {
      for (; define != defines.end() && define->begin < range.end; ++define) {
        if (define->begin < range.begin) continue;
        if (range.begin < define->begin) result.push_back({range.begin, define->begin});
        range.begin = define->end;
      }
      if (range.begin < range.end) result.push_back(range);
    }
    return result;
  }

  std::string_view text;
  SourceText source;
  Dialect dialect;
  Shape top;
  Shape* current = &top;  ///< As `Current`, between directives.
  std::vector<Conditional> open;
  std::vector<TextRange> defines;  ///< The `#define` lines of branches that might be read.
  std::vector<TextRange> dropped;
};

}  // namespace

std::vector<TextRange> DroppedText(std::string_view text, Dialect dialect) {
  return Chooser(text, dialect).Run();
}

}  // namespace vexltags::thorough
