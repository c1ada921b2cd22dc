# SPDX-License-Identifier: MIT
"""What a compiler declares in one file, in a form that tags can be held against."""
import re

# Part of the key of what is cached: another number makes all truths anew.
VERSION = {"c++": 1, "c": 1, "objc": 5, "python": 1, "swift": 2}

# A declaration that an indexer has to find; one whose name a macro pastes together or holds in its
# body, so that the source does not show it; and a name that is right but need not be found, such as
# a forward declaration or a local type.
NEEDED, MADE, OPTIONAL = 2, 1, 0

_OPERATOR = re.compile(r'operator\s*(new\s*\[\s*\]|delete\s*\[\s*\]|(?:new|delete|co_await)\b|'
                       r'\(\s*\)|\[\s*\]|""\s*\w+|[-+*/%^&|~!=<>,]+)')


def plain_name(name):
    """A name without what clang and indexers spell differently: template arguments, blanks in
    operators, and the type of a conversion."""
    at = name.find("operator")
    if at >= 0 and (at == 0 or name[at - 1] in ": ") and not name[at + 8:at + 9].isalnum() \
            and name[at + 8:at + 9] != "_":
        match = _OPERATOR.match(name, at)
        return "operator" + re.sub(r"\s", "", match.group(1)) if match else "operator (type)"
    return name.split("<", 1)[0].strip()


class FileTruth:
    """All that is known of one file.

    `declarations` maps (line, name) to [class, kind, names, parents, last line]: the class is one
    of the above; any of the names counts as found; a tag has to name one of the parents, which are
    the innermost named scopes, and may name any line to the last one. `skipped` holds ranges of
    lines that no compiler saw, `bodies` those of function bodies, `uses` (first line, last line,
    name) of macros. `errors` are those outside bodies, after finish().
    """

    def __init__(self, path):
        self.path = path
        self.declarations = {}
        self.skipped = []
        self.errors = []
        self.bodies = []
        self.uses = []

    def add(self, line, names, kind, parents, need, last=None):
        key = (line, names[0])
        old = self.declarations.get(key)
        if old is None:
            self.declarations[key] = [need, kind, list(names), list(parents), last or line]
            return
        if need > old[0]:
            old[0], old[1] = need, kind
        old[2] = list(dict.fromkeys(old[2] + list(names)))
        old[3] = list(dict.fromkeys(old[3] + list(parents)))

    def finish(self):
        """Drops the errors inside function bodies: they cost no declaration."""
        self.bodies = _joined(self.bodies)
        self.errors = [(line, text) for line, text in self.errors
                       if not any(first <= line <= last for first, last in self.bodies)]

    def is_clean(self):
        return not self.errors

    def merge(self, other):
        """Adds what another configuration saw."""
        for (line, _), (need, kind, names, parents, last) in other.declarations.items():
            self.add(line, names, kind, parents, need, last)
        self.skipped = _common(self.skipped, other.skipped)
        self.bodies = _joined(self.bodies + other.bodies)
        self.uses += other.uses

    def to_json(self):
        return {"declarations": [[line, *value] for (line, _), value in
                                 sorted(self.declarations.items())],
                "skipped": self.skipped, "errors": self.errors, "bodies": self.bodies,
                "uses": self.uses}

    @classmethod
    def from_json(cls, path, data):
        self = cls(path)
        for line, need, kind, names, parents, *last in data["declarations"]:
            self.declarations[(line, names[0])] = [need, kind, names, parents, *(last or [line])]
        self.skipped = [tuple(part) for part in data["skipped"]]
        self.errors = [tuple(part) for part in data["errors"]]
        self.bodies = [tuple(part) for part in data["bodies"]]
        self.uses = [tuple(part) for part in data["uses"]]
        return self


def _joined(ranges):
    """The outermost of nested ranges, in order."""
    result = []
    for first, last in sorted(set(map(tuple, ranges)), key=lambda part: (part[0], -part[1])):
        if not result or first > result[-1][1]:
            result.append((first, last))
        elif last > result[-1][1]:
            result[-1] = (result[-1][0], last)
    return result


def _common(left, right):
    """Where ranges of both sides overlap."""
    result = []
    for a, b in left:
        for c, d in right:
            if max(a, c) <= min(b, d):
                result.append((max(a, c), min(b, d)))
    return sorted(result)


def covers(ranges, line):
    return any(first <= line <= last for first, last in ranges)
