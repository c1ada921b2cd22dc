# SPDX-License-Identifier: MIT
"""Holds the tags of a file against the truth."""
import collections
import re

import truth

_NEAR = (0, -1, 1, -2, 2)
_INSTANTIATION = re.compile(r"^\s*(extern\s+|__extension__\s+)*template\s+[^<\s]")


class Score:
    """Counts of one indexer on one corpus, and what it lost and what it got wrong: lists of
    (path, line, name, kind) in the order of the files."""

    def __init__(self):
        self.needed = self.found = self.made = self.made_found = 0
        self.right = self.wrong = self.unknown = self.optional = 0
        self.scoped = self.scope_right = 0
        self.misses, self.wrongs, self.scopes = [], [], []

    def recall(self):
        return 100 * self.found / self.needed if self.needed else None

    def precision(self):
        judged = self.right + self.wrong
        return 100 * self.right / judged if judged else None

    def scope(self):
        return 100 * self.scope_right / self.scoped if self.scoped else None

    def to_json(self):
        return {"needed": self.needed, "found": self.found, "made": self.made,
                "made_found": self.made_found, "right": self.right, "wrong": self.wrong,
                "unknown": self.unknown, "optional": self.optional, "scoped": self.scoped,
                "scope_right": self.scope_right, "recall": self.recall(),
                "precision": self.precision(), "scope": self.scope()}


def ambiguous_macros(paths):
    """The macros with more than one definition in the files: an indexer may take another one than
    the compiler."""
    count = collections.Counter()
    for path in paths:
        with open(path, "rb") as file:
            count.update(re.findall(rb"^[ \t]*#[ \t]*define[ \t]+(\w+)", file.read(), re.M))
    return {name.decode() for name, number in count.items() if number > 1}


def judge(score, known, tags, lines, ambiguous):
    """Adds one file to `score`. `known` is its truth, `lines` its text as a list, `ambiguous` the
    macros with several definitions."""
    by_name = {}
    for key, (_, _, names, _, _) in known.declarations.items():
        for name in names:
            by_name.setdefault(name, {}).setdefault(key[0], key)
    for key, (_, _, names, _, last) in known.declarations.items():
        for line in range(key[0] + 1, last + 1):
            by_name[names[0]].setdefault(line, key)
    _accept_lines_of_use(known, by_name)
    hits, rest, matched = {}, [], {}
    for tag in _split(tags, by_name):
        key = by_name.get(tag.name, {}).get(tag.line)
        if key is None:
            rest.append(tag)
        elif key not in hits:
            hits[key] = tag
            matched[key] = True
    # A name that is a line or two away, if nothing else claims that declaration.
    for tag in rest:
        places = by_name.get(tag.name, {})
        near = [places[tag.line + step] for step in _NEAR if tag.line + step in places]
        free = [key for key in near if key not in hits]
        if free:
            hits[free[0]] = tag
        elif not near:
            _unmatched(score, known, tag, lines, ambiguous)
    for key, (need, kind, names, parents, _) in known.declarations.items():
        tag = hits.get(key)
        if need == truth.OPTIONAL:
            score.optional += tag is not None
            continue
        if need == truth.NEEDED:
            score.needed += 1
            score.found += tag is not None
            if tag is None:
                score.misses.append((known.path, key[0], names[0], kind))
        else:
            score.made += 1
            score.made_found += tag is not None
        if tag is None:
            continue
        score.right += 1
        if tag.scope or not "" in parents and parents:
            score.scoped += 1
            if _same_scope(tag.scope, parents):
                score.scope_right += 1
            else:
                score.scopes.append((known.path, tag.line, "%s in %s, not %s" % (
                    tag.raw, tag.scope or "nothing", " or ".join(x or "nothing" for x in parents)),
                    tag.kind))


def _accept_lines_of_use(known, by_name):
    """Lets a declaration in the arguments of a macro be found where the use of the macro begins,
    which is where a compiler expands it."""
    uses = [(first, last) for first, last, _ in known.uses if last > first]
    if not uses:
        return
    for key, (_, _, names, _, _) in known.declarations.items():
        for first, last in uses:
            if first < key[0] <= last:
                for name in names:
                    by_name[name].setdefault(first, key)


def _split(tags, by_name):
    """A tag `a::b` counts as both namespaces of `namespace a::b {`."""
    for tag in tags:
        if "::" in tag.name and tag.name not in by_name and not tag.name.startswith("operator"):
            for part in tag.name.split("::"):
                yield tag._replace(name=part)
        else:
            yield tag


def _same_scope(scope, parents):
    return scope in parents


def _unmatched(score, known, tag, lines, ambiguous):
    if _is_unseen(known, tag, lines, ambiguous):
        score.unknown += 1
        return
    score.wrong += 1
    score.wrongs.append((known.path, tag.line, tag.raw, tag.kind))


def _is_unseen(known, tag, lines, ambiguous):
    """Whether the compiler cannot decide: the line is in a branch that it skipped, the name is an
    argument of a macro used as a statement or comes from another definition of a macro than the one
    that the compiler saw, or a template is only instantiated there."""
    if truth.covers(known.skipped, tag.line):
        return True
    for first, last, name in known.uses:
        if first <= tag.line <= last and name in ambiguous and not re.search(
                r"(?<!\w)%s(?!\w)" % re.escape(tag.name), " ".join(lines[first - 1:last])):
            return True
        if first <= tag.line <= last and name != tag.name and first <= len(lines) \
                and re.match(r"\s*%s\s*\(" % re.escape(name), lines[first - 1]) \
                and re.search(r"\b%s\b" % re.escape(tag.name), " ".join(lines[first - 1:last])):
            return True
    return any(_INSTANTIATION.match(line) for line in lines[max(0, tag.line - 3):tag.line])
