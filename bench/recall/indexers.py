# SPDX-License-Identifier: MIT
"""Runs an indexer over a list of files and reads its tags."""
import collections
import os
import re
import resource
import subprocess
import tempfile

import truth

Tag = collections.namedtuple("Tag", "name raw line kind scope")

# Declarations of every kind that the C family's grammar has a letter for; no locals, parameters,
# labels, template parameters and names that `using` brings.
_CTAGS_KINDS = ("--kinds-C=defgmpstuvx", "--kinds-C++=cdefgmnpstuvx",
                "--kinds-Python=cfm")


class Variant:
    """One program with its options. `extra` is what the caller adds."""

    def __init__(self, title, program, extra=(), is_ctags=False):
        self.title, self.program, self.extra = title, program, list(extra)
        self.is_ctags = is_ctags

    def refuses(self):
        """Whether the program does not know the extra options: it then takes them for paths."""
        if self.is_ctags or not self.extra:
            return False
        with tempfile.TemporaryDirectory() as scratch:
            path = os.path.join(scratch, "empty.c")
            open(path, "w", encoding="ascii").close()
            run = subprocess.run([self.program, *self.extra, path, "-f", os.devnull],
                                 capture_output=True, check=False)
        return run.returncode != 0 or b"failed opening" in run.stderr

    def command(self, listing, output, ctags_options):
        if self.is_ctags:
            return [self.program, "-n", "--sort=no", "--fields=KsZ", "--extras=-q", *_CTAGS_KINDS,
                    *ctags_options, *self.extra, "-L", listing, "-f", output]
        return [self.program, "--sort=no", "--cannonical-paths=no", *self.extra, "-L", listing,
                "-f", output]

    def run(self, paths, ctags_options=(), language="c++"):
        """(tags by path, CPU seconds, stderr's text) of one run over all `paths`."""
        with tempfile.TemporaryDirectory() as scratch:
            listing, output = os.path.join(scratch, "list"), os.path.join(scratch, "tags")
            with open(listing, "w", encoding="utf-8", errors="surrogateescape") as file:
                file.writelines(path + "\n" for path in paths)
            before = resource.getrusage(resource.RUSAGE_CHILDREN)
            run = subprocess.run(self.command(listing, output, ctags_options), check=True,
                                 capture_output=True, stdin=subprocess.DEVNULL)
            after = resource.getrusage(resource.RUSAGE_CHILDREN)
            with open(output, "rb") as file:
                tags = parse(file.read().decode("utf-8", "surrogateescape"), language)
        seconds = after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime
        return tags, seconds, run.stderr.decode("utf-8", "replace")


def _swift_name(name):
    return re.sub(r"\s", "", name)


def _objc_name(name):
    return truth.plain_name(re.sub(r",\s*\.\.\.$", "", name))


def parse(text, language):
    """The tags of a file by path, in the order of the file. Names that an indexer invents for what
    has none are left out."""
    plain = {"swift": _swift_name, "python": str,
             "objc": _objc_name}.get(language, truth.plain_name)
    tags = {}
    for line in text.split("\n"):
        if not line or line.startswith("!_TAG_"):
            continue
        fields = line.split("\t")
        if len(fields) < 4 or not fields[2].endswith(';"'):
            continue
        raw = fields[0]
        if raw.startswith("__anon"):
            continue
        path = re.sub(r"\\(.)", r"\1", fields[1])
        tags.setdefault(path, []).append(
            Tag(plain(raw), raw, int(fields[2][:-2]), fields[3], scope_of(fields[4:])))
    return tags


def scope_of(fields):
    """The name of the innermost scope that has a name, or ""."""
    for field in fields:
        if field.startswith(("typeref:", "inherits:")):
            continue
        if field.startswith("scope:"):
            field = field[len("scope:"):]
        return innermost(re.sub(r"^[a-zA-Z]*:(?!:)", "", field))
    return ""


def innermost(scope):
    """The last part of `scope` that is no invented name, without template arguments."""
    parts, depth, start, index = [], 0, 0, 0
    while index < len(scope):
        letter = scope[index]
        if letter in "<(":
            depth += 1
        elif letter in ">)":
            depth = max(0, depth - 1)
        elif depth == 0 and letter == "." or depth == 0 and scope.startswith("::", index):
            parts.append(scope[start:index])
            index += 1 if letter == "." else 2
            start = index
            continue
        index += 1
    parts.append(scope[start:])
    named = [part for part in parts if part and not part.startswith("__anon")]
    return truth.plain_name(named[-1]) if named else ""
