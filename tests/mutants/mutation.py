# SPDX-License-Identifier: MIT
"""A mutation: one small change to one source file, and what identifies it."""
import dataclasses
import hashlib


@dataclasses.dataclass(frozen=True)
class Mutation:
    file: str  # the path below the project's root
    operator: str
    start: int  # the characters text[start:end] become `replacement`
    end: int
    replacement: str
    line: int = 0  # 1-based, of `start`
    before: str = ""  # the replaced text
    ident: str = ""  # does not change when the lines around the place move

    def apply(self, text):
        return text[: self.start] + self.replacement + text[self.end :]

    @property
    def after(self):
        return self.replacement


def identified(text, mutations):
    """The mutations of one file in the order of their places, with line, text and identity set."""
    seen = {}
    result = []
    for mutation in sorted(mutations, key=lambda m: (m.start, m.end, m.operator, m.replacement)):
        first = text.rfind("\n", 0, mutation.start) + 1
        last = text.find("\n", mutation.start)
        line = text[first : last if last >= 0 else len(text)].strip()
        before = text[mutation.start : mutation.end]
        key = (mutation.file, mutation.operator, line, before, mutation.replacement)
        seen[key] = seen.get(key, 0) + 1
        digest = hashlib.sha1("\0".join([*key, str(seen[key])]).encode()).hexdigest()[:10]
        result.append(
            dataclasses.replace(
                mutation, line=text.count("\n", 0, mutation.start) + 1, before=before, ident=digest
            )
        )
    return result
