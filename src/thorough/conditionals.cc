// SPDX-License-Identifier: MIT
// Chooses which branches of the conditionals of a C-family file are read.
#include "thorough/conditionals.h"

#include <algorithm>
#include <cstring>
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
  char first = 0;  ///< The first character that is neither blank nor comment; 0 for none.
  char last = 0;   ///< The last one.
  Depth curlies;
  Depth parentheses;

  bool IsEmpty() const { return first == 0; }
  bool IsBalanced() const { return curlies.IsBalanced() && parentheses.IsBalanced(); }
  void Take(char c) {
    if (first == 0) first = c;
    last = c;
  }
  void Append(const Shape& next) {
    if (first == 0) first = next.first;
    if (next.last != 0) last = next.last;
    curlies.Append(next.curlies);
    parentheses.Append(next.parentheses);
  }
};

struct Branch {
  std::uint32_t directive = 0;  ///< Where the line that opens it begins ...
  std::uint32_t begin = 0;      ///< ... and where that ends.
  std::uint32_t end = 0;
  Truth truth = Truth::Unknown;
  std::vector<TextRange> defines;  ///< Its `#define` lines, those of nested conditionals included.
  Shape shape;
};

struct Conditional {
  std::vector<Branch> branches;
  char before = 0;  ///< The last character in front of it that is read; 0 at the file's beginning.
};

bool EndsStatement(char c) { return c == 0 || c == ';' || c == '{' || c == '}' || c == ','; }

class Chooser {
 public:
  Chooser(std::string_view text, Dialect dialect) : source(text), dialect(dialect) {}

  std::vector<TextRange> Run() {
    while (source.NextDirective([this](char c) { Take(c); })) HandleDirective(source.Found());
    // What is never closed is kept as it is: its lines are hidden by themselves.
    std::sort(dropped.begin(), dropped.end(),
              [](const TextRange& a, const TextRange& b) { return a.begin < b.begin; });
    return Merge();
  }

 private:
  Shape& Current() { return open.empty() ? top : open.back().branches.back().shape; }

  void Take(char c) {
    Shape& shape = Current();
    shape.Take(c);
    switch (c) {
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

  /// The last character that is read in front of the present place.
  char Before() const {
    for (auto group = open.rbegin(); group != open.rend(); ++group) {
      if (group->branches.back().shape.last != 0) return group->branches.back().shape.last;
      if (group->before != 0) return group->before;
    }
    return top.last;
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
      case DirectiveKind::Else:
        if (open.empty()) return;
        open.back().branches.back().end = directive.begin;
        OpenBranch(directive);
        return;
      case DirectiveKind::Endif:
        if (open.empty()) return;
        open.back().branches.back().end = directive.begin;
        Close(directive);
        return;
      case DirectiveKind::Define:
        if (!open.empty()) {
          open.back().branches.back().defines.push_back({directive.begin, directive.end});
        }
        return;
      default:
        return;
    }
  }

  void OpenBranch(const Directive& directive) {
    Branch branch;
    branch.directive = directive.begin;
    branch.begin = directive.end;
    switch (directive.kind) {
      case DirectiveKind::Ifdef:
        branch.truth = IsDefined(directive.argument, dialect);
        break;
      case DirectiveKind::Ifndef:
        branch.truth = Not(IsDefined(directive.argument, dialect));
        break;
      case DirectiveKind::Else:
        branch.truth = TruthOfElse(open.back().branches);
        break;
      default:
        branch.truth = EvaluateCondition(directive.argument, dialect);
    }
    open.back().branches.push_back(std::move(branch));
  }

  static Truth TruthOfElse(const std::vector<Branch>& earlier) {
    Truth any = Truth::False;
    for (const Branch& branch : earlier) any = std::max(any, branch.truth);
    return Not(any);
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
      // The lines of a conditional with one branch that is kept are hidden by any scanner.
      if (!hasSecond && !dropsAny) continue;
      dropped.push_back({branch.directive, branch.begin});
      if (!kept[i]) Drop(branch);
    }
    if (hasSecond || dropsAny) dropped.push_back({endif.begin, endif.end});
    Current().Append(shape);
    if (open.empty()) return;
    std::vector<TextRange>& outer = open.back().branches.back().defines;
    for (const Branch& branch : group.branches) {
      if (branch.truth == Truth::False) continue;
      outer.insert(outer.end(), branch.defines.begin(), branch.defines.end());
    }
  }

  void Drop(const Branch& branch) {
    std::uint32_t from = branch.begin;
    if (branch.truth != Truth::False) {
      for (const TextRange& define : branch.defines) {
        dropped.push_back({from, define.begin});
        from = define.end;
      }
    }
    dropped.push_back({from, branch.end});
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
    return shape.IsEmpty() || (kLetters[static_cast<unsigned char>(shape.first)] &&
                               shape.IsBalanced() && (shape.last == ';' || shape.last == '}'));
  }

  /// The branch to be read where only one can be; the number of branches where none can.
  static std::size_t Choose(const std::vector<Branch>& branches) {
    std::size_t best = branches.size();
    int bestWorth = -1;
    for (std::size_t i = 0; i < branches.size(); ++i) {
      const Branch& branch = branches[i];
      if (branch.truth == Truth::False) continue;
      int worth = static_cast<int>(branch.truth);
      // Of those that nothing speaks against, the first.
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

  SourceText source;
  Dialect dialect;
  Shape top;
  std::vector<Conditional> open;
  std::vector<TextRange> dropped;
};

}  // namespace

std::vector<TextRange> DroppedText(std::string_view text, Dialect dialect) {
  return Chooser(text, dialect).Run();
}

}  // namespace vexltags::thorough
