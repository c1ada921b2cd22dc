// SPDX-License-Identifier: MIT
// The conditions under which the macros of a run are defined.
#include "thorough/macro_conditions.h"

#include <algorithm>

namespace vexltags::thorough {

void MacroConditions::BeginFile() {
  branches.clear();
  levels.clear();
}

void MacroConditions::Take(DirectiveKind kind, std::string_view argument) {
  switch (kind) {
    case DirectiveKind::If:
    case DirectiveKind::Ifdef:
    case DirectiveKind::Ifndef:
      levels.push_back(branches.size());
      branches.push_back({kind, argument, 0});
      return;
    case DirectiveKind::Elif:
    case DirectiveKind::Elifdef:
    case DirectiveKind::Elifndef:
    case DirectiveKind::Else:
      if (!levels.empty()) branches.push_back({kind, argument, 0});
      return;
    case DirectiveKind::Endif:
      if (levels.empty()) return;
      branches.resize(levels.back());
      levels.pop_back();
      return;
    default:
      return;
  }
}

std::uint32_t MacroConditions::Current() {
  if (levels.empty() || levels.size() > kDeepest) return 0;
  std::uint32_t parent = 0;
  for (std::size_t level = 0; level < levels.size(); ++level) {
    const std::size_t begin = levels[level];
    const std::size_t end = level + 1 < levels.size() ? levels[level + 1] : branches.size();
    if (end - begin > kMostBranches) return 0;
    std::uint32_t previous = 0;
    for (std::size_t i = begin; i < end; ++i) {
      if (branches[i].node == 0) branches[i].node = AddNode(branches[i], parent, previous);
      previous = branches[i].node;
    }
    parent = previous;
  }
  return parent;
}

std::uint32_t MacroConditions::AddNode(const Branch& branch, std::uint32_t parent,
                                       std::uint32_t previous) {
  Node node{branch.kind, {}, parent, previous};
  if (branch.argument.size() <= kLongest) {
    texts.emplace_back(branch.argument);
    node.argument = texts.back();
  }
  nodes.push_back(node);
  return static_cast<std::uint32_t>(nodes.size() - 1);
}

Truth MacroConditions::Of(std::uint32_t number, Dialect dialect) const {
  Truth truth = Truth::True;
  for (std::uint32_t i = number; i != 0; i = nodes[i].parent) {
    truth = std::min(truth, Own(i, dialect));
  }
  return truth;
}

Truth MacroConditions::Own(std::uint32_t number, Dialect dialect) const {
  if (known.size() < nodes.size()) known.resize(nodes.size(), Truths{-1, -1, -1});
  std::int8_t& memory = known[number][static_cast<std::size_t>(dialect)];
  if (memory >= 0) return static_cast<Truth>(memory);
  const Node& node = nodes[number];
  Truth truth = Truth::Unknown;
  switch (node.kind) {
    case DirectiveKind::Ifdef:
    case DirectiveKind::Elifdef:
      truth = IsDefined(node.argument, dialect, &defined);
      break;
    case DirectiveKind::Ifndef:
    case DirectiveKind::Elifndef:
      truth = Not(IsDefined(node.argument, dialect, &defined));
      break;
    case DirectiveKind::Else: {
      Truth likeliest = Truth::False;
      for (std::uint32_t i = node.previous; i != 0; i = nodes[i].previous) {
        likeliest = std::max(likeliest, Own(i, dialect));
      }
      truth = Not(likeliest);
      break;
    }
    default:
      truth = EvaluateCondition(node.argument, dialect, &defined);
  }
  known[number][static_cast<std::size_t>(dialect)] = static_cast<std::int8_t>(truth);
  return truth;
}

}  // namespace vexltags::thorough
