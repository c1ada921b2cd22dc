#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Holds the tags of `vexltags --thorough` against truths written by hand.

  recall_test.py --program build/dev/vexltags [--filter cxx/] [--show]

A case is a folder tests/recall/LANGUAGE/IDEA with `input.EXT`, a `README` of one line, and `truth`:
one declaration a line, its fields divided by tabs:

  LINE  KIND  NAME  [SCOPE]

LINE is 1-based; `3|5` says that either will do. KIND is a word of _KINDS. NAME is the tag's name.
SCOPE is the full name of the scope, without its kind and without template arguments; what has no
name is left out of it. Headers of the case are not indexed, but may be included.

A case fails for each declaration without a tag and for each tag without a declaration. Where a
file `known-bug` says why, it must; once it passes, that is an error. The exit status is 77, for
skipped, if the program does not know the option.
"""
import argparse
import glob
import os
import re
import subprocess
import sys
import tempfile

CASES = os.path.join(os.path.dirname(os.path.dirname(os.path.abspath(__file__))), "recall")
_OPTION = "--thorough"
_C_FAMILY = {
    "d": "macro", "n": "namespace", "c": "class", "s": "struct", "u": "union", "g": "enum",
    "e": "enumerator", "t": "typedef", "C": "concept", "f": "function", "p": "function",
    "m": "member", "v": "variable", "X": "interface", "Y": "protocol", "w": "implementation",
    "i": "method", "I": "method", "o": "method", "O": "method", "r": "accessor", "R": "accessor"}
_KINDS = {
    "c": _C_FAMILY, "cxx": _C_FAMILY, "objc": _C_FAMILY,
    "swift": {"c": "class", "s": "struct", "g": "enum", "e": "enumerator", "Y": "protocol",
              "Z": "extension", "t": "typealias", "f": "function", "b": "property",
              "V": "property"},
    "python": {"c": "class", "m": "function", "f": "function"}}


def refused(program):
    """Whether the program takes the option for a path."""
    with tempfile.TemporaryDirectory() as scratch:
        path = os.path.join(scratch, "empty.c")
        open(path, "w", encoding="ascii").close()
        run = subprocess.run([program, _OPTION, path, "-f", os.devnull], capture_output=True,
                             check=False)
    return run.returncode != 0 or _OPTION.encode() in run.stderr


def scope_of(field):
    """The scope's name without kind, template arguments and invented names."""
    name = re.sub(r"^[a-z]*:(?!:)", "", field)
    while "<" in name:
        shorter = re.sub(r"<[^<>]*>", "", name)
        if shorter == name:
            break
        name = shorter
    divider = "::" if "::" in name else "."
    return divider.join(part for part in name.split(divider) if not part.startswith("__anon"))


def tags_of(program, folder, name, kinds):
    """(line, kind, name, scope) of each tag of one file."""
    run = subprocess.run([program, _OPTION, "--sort=no", "--tag-relative", name, "-f", "-"],
                         cwd=folder, capture_output=True, check=True, timeout=60)
    found = []
    for line in run.stdout.decode("utf-8").splitlines():
        if line.startswith("!_TAG_"):
            continue
        fields = line.split("\t")
        scopes = [field for field in fields[4:] if not field.startswith("typeref:")]
        found.append((fields[2][:-2], kinds.get(fields[3], fields[3]), fields[0],
                      scope_of(scopes[0]) if scopes else ""))
    return found


def truth_of(path):
    """(lines, kind, name, scope) of each declaration."""
    declared = []
    with open(path, encoding="utf-8") as file:
        for number, line in enumerate(file, 1):
            fields = line.rstrip("\n").split("\t")
            if not 3 <= len(fields) <= 4:
                sys.exit("%s:%d: not LINE, KIND, NAME and SCOPE" % (path, number))
            declared.append((fields[0].split("|"), fields[1], fields[2],
                             fields[3] if len(fields) > 3 else ""))
    return declared


def compare(declared, tags):
    """(declarations without a tag, tags without a declaration). Every one counts once."""
    rest, missed = list(tags), []
    for lines, kind, name, scope in declared:
        match = next((line for line in lines if (line, kind, name, scope) in rest), None)
        if match is None:
            missed.append((lines[0], kind, name, scope))
        else:
            rest.remove((match, kind, name, scope))
    return missed, rest


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n", maxsplit=1)[0])
    parser.add_argument("--program", required=True)
    parser.add_argument("--filter", default="")
    parser.add_argument("--show", action="store_true", help="print all tags of each case")
    options = parser.parse_args()
    program = os.path.abspath(options.program)
    if refused(program):
        print("skipped: the program does not know %s" % _OPTION)
        return 77

    needed = found = wrong = failures = 0
    folders = [path for path in sorted(glob.glob(os.path.join(CASES, "*", "*")))
               if options.filter in os.path.relpath(path, CASES)]
    if not folders:
        sys.exit("no cases")
    for folder in folders:
        name = os.path.relpath(folder, CASES)
        kinds = _KINDS[name.split(os.sep)[0]]
        source = os.path.basename(glob.glob(os.path.join(folder, "input.*"))[0])
        declared = truth_of(os.path.join(folder, "truth"))
        if not set(kind for _, kind, _, _ in declared) <= set(kinds.values()):
            sys.exit("%s: a kind that is not one of %s" % (name, sorted(set(kinds.values()))))
        tags = tags_of(program, folder, source, kinds)
        missed, extra = compare(declared, tags)
        is_bug = os.path.exists(os.path.join(folder, "known-bug"))
        if not is_bug:
            needed += len(declared)
            found += len(declared) - len(missed)
            wrong += len(extra)
        is_good = not missed and not extra
        if is_good and is_bug:
            failures += 1
            print("FIXED %s: remove its known-bug" % name)
        if not is_good and not is_bug:
            failures += 1
            print("FAIL %s" % name)
        if options.show or (not is_good and not is_bug):
            for kind, group in (("missed", missed), ("wrong", extra)) + (
                    (("tag", tags),) if options.show else ()):
                for entry in group:
                    print("  %-6s %s" % (kind, "  ".join(filter(None, entry))))
    print("%d cases, %d declarations: recall %.2f %%, precision %.2f %%; %d failed" % (
        len(folders), needed, 100 * found / max(1, needed),
        100 * found / max(1, found + wrong), failures))
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
