# SPDX-License-Identifier: MIT
"""Replaces headers that are not installed, so that the compiler can read sources that use them.

A source for another system includes headers of that system. Its own declarations can still be read
if the names it uses are declared in some way. The replacements are derived from the compiler's
error messages, in rounds, until no declaration would remove another error.
"""
import os
import re

_ROUNDS = 16
_NOT_FOUND = re.compile(r"'([^']+)' file not found")
_PROTOCOL = re.compile(r"(?:no type or protocol named|cannot find protocol declaration for|"
                       r"no type or protocol named) '(\w+)'")
_SUPERCLASS = re.compile(r"(?:cannot find interface declaration for|attempting to use the forward "
                         r"class) '(\w+)'")
_TYPE = re.compile(r"unknown type name '(\w+)'|expected a type")
_TWICE = re.compile("redefinition|duplicate (interface|protocol) definition|is ambiguous")

# What nearly every source of that system uses.
_PREFACE = """\
typedef void (^dispatch_block_t)(void);
typedef NSObject *dispatch_queue_t, *dispatch_group_t, *dispatch_semaphore_t, *dispatch_source_t;
typedef long dispatch_once_t;
typedef struct CGPoint { CGFloat x, y; } CGPoint;
typedef struct CGSize { CGFloat width, height; } CGSize;
typedef struct CGRect { CGPoint origin; CGSize size; } CGRect;
"""


class Stubs:
    """Below `folder`; one for each process. `sources` are all files of the packages, of which a
    header that is included by another path is taken."""

    def __init__(self, folder, sources):
        self._folder = folder
        self._by_name = {}
        for path in sources:
            self._by_name.setdefault(os.path.basename(path), path)
        os.makedirs(folder, exist_ok=True)
        self._classes, self._values, self._interfaces, self._protocols = {}, {}, {}, {}
        self._kinds = (self._classes, self._values, self._interfaces, self._protocols)
        self._banned = {}
        self._write()

    def parse(self, index, path, flags, options):
        """The unit of `path` after the last round. `index` parses it."""
        full = [*flags, "-include", os.path.join(self._folder, "stubs.h"), "-idirafter",
                self._folder]
        unit = index.parse(path, args=full, options=options)
        for _ in range(_ROUNDS):
            if not self._learn(unit):
                break
            self._write()
            unit = index.parse(path, args=full, options=options)
        # What contradicts the headers of this file may be missing in the next.
        for name, known in self._banned.items():
            known[name] = True
        self._banned.clear()
        self._write()
        return unit

    def _learn(self, unit):
        """Whether the errors of `unit` name something new. Headers come first: they may declare what
        is missing."""
        errors = [one for one in unit.diagnostics if one.severity >= 3]
        headers = [_NOT_FOUND.search(one.spelling) for one in errors]
        if any([self._header(one.group(1)) for one in headers if one]):
            return True
        learned = False
        for error in errors:
            text = error.spelling
            if _TWICE.search(text):
                named = re.search(r"'(\w+)'", text)
                for word in {self._word(error), named and named.group(1)} - {None}:
                    learned |= self._ban(word)
                continue
            for pattern, known in ((_SUPERCLASS, self._interfaces), (_PROTOCOL, self._protocols)):
                name = pattern.search(text)
                if name:
                    learned |= self._note(known, name.group(1))
            name = _TYPE.search(text)
            word = name and (name.group(1) or self._word(error))
            if word and word not in self._classes and word not in self._values:
                learned |= self._note(self._classes if self._is_pointer(error, word)
                                      else self._values, word)
        return learned

    def _note(self, known, name):
        if name in known or name in self._banned:
            return False
        known[name] = True
        return True

    def _ban(self, name):
        """Removes a replacement that contradicts a declaration."""
        for known in self._kinds:
            if known.pop(name, None):
                self._banned[name] = known
                return True
        return False

    def _header(self, name):
        """Makes the header that `#include` names: of the packages, or empty."""
        target = os.path.join(self._folder, name)
        if os.path.exists(target):
            return False
        os.makedirs(os.path.dirname(target), exist_ok=True)
        found = self._by_name.get(os.path.basename(name))
        if found:
            os.symlink(found, target)
        else:
            open(target, "w", encoding="ascii").close()
        return True

    @staticmethod
    def _line(diagnostic):
        try:
            with open(diagnostic.location.file.name, encoding="utf-8", errors="replace") as file:
                return file.read().split("\n")[diagnostic.location.line - 1]
        except (AttributeError, OSError, IndexError):
            return ""

    def _word(self, diagnostic):
        word = re.match(r"\w+", self._line(diagnostic)[diagnostic.location.column - 1:])
        return word.group() if word and not word.group().isdigit() else None

    def _is_pointer(self, diagnostic, word):
        return bool(re.search(r"\b%s\b\s*(<[^>]*>)?\s*(_?\w+\s*)?\*" % re.escape(word),
                              self._line(diagnostic)))

    def _write(self):
        lines = []
        for name in self._interfaces:
            lines.append("@interface %s : NSObject @end" % name)
        for name in self._classes:
            if name not in self._interfaces:
                lines.append("@class %s;" % name)
        for name in self._protocols:
            lines.append("@protocol %s @end" % name)
        for name in self._values:
            if name not in self._interfaces and name not in self._classes:
                lines.append("typedef long %s;" % name)
        with open(os.path.join(self._folder, "stubs.h"), "w", encoding="utf-8") as file:
            file.write(_PREFACE + "\n".join(lines) + "\n")
