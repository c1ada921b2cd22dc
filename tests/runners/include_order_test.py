#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks that no file in src/ includes one of a folder that its own folder does not build on.

  tests/runners/include_order_test.py MODULES [SOURCES]

MODULES has a line for each folder of SOURCES, "NAME: LIBRARY;LIBRARY", with the libraries that it
links; the build writes it. A folder can include itself, the folders that it links, and the folders
that those link. No folder may link itself in this way. Unit tests and test programs can include src/testing, too;
the programs in src/testing can include everything.
"""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
INCLUDE = re.compile(r'^\s*#\s*include\s*"([^"/]+)/[^"]*"', re.MULTILINE)
PREFIX = "vexltags_"
# Headers that the build makes for the libraries that link them.
GENERATED = {"vocabulary"}
TESTING = "testing"


def read_modules(path):
    """The folders that each folder links."""
    modules = {}
    for line in pathlib.Path(path).read_text(encoding="utf-8").splitlines():
        name, _, libraries = line.partition(":")
        modules[name.strip()] = [library.strip()[len(PREFIX):] for library in libraries.split(";")
                                 if library.strip().startswith(PREFIX)]
    for name, libraries in modules.items():
        modules[name] = [library for library in libraries if library in modules]
    return modules


def reachable(modules, name):
    """Every folder that `name` links, directly or not."""
    found, waiting = set(), list(modules[name])
    while waiting:
        current = waiting.pop()
        if current not in found:
            found.add(current)
            waiting += modules[current]
    return found


def is_test(path):
    return path.stem.endswith(("_test", "_fixture", "_test_support"))


def faults(modules, sources):
    """A line for each include, folder or link that breaks the order."""
    for name in sorted(modules):
        if name in reachable(modules, name):
            yield f"src/{name} links itself"
    folders = {path.name for path in sources.iterdir() if path.is_dir()}
    for folder in sorted(folders - set(modules) - {TESTING}):
        yield f"src/{folder} is no library"
    for path in sorted(sources.rglob("*")):
        folder = path.relative_to(sources).parts[0]
        if not path.is_file() or folder not in modules:
            continue
        allowed = {folder} | reachable(modules, folder) | GENERATED
        if is_test(path):
            allowed.add(TESTING)
        text = path.read_text(encoding="utf-8", errors="replace")
        for match in INCLUDE.finditer(text):
            if match[1] not in allowed:
                line = text.count("\n", 0, match.start(1)) + 1
                yield f"src/{path.relative_to(sources)}:{line}: includes {match[1]}/"


def main():
    modules = read_modules(sys.argv[1])
    sources = pathlib.Path(sys.argv[2]) if len(sys.argv) > 2 else ROOT / "src"
    found = list(faults(modules, sources))
    for fault in found:
        print(fault)
    print(f"{len(modules)} folders, {len(found)} faults")
    return 1 if found or not modules else 0


if __name__ == "__main__":
    sys.exit(main())
