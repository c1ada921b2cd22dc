# SPDX-License-Identifier: MIT
"""The rows of the table: files, ctags options and goals."""
import os

import make_tree

C_SUFFIXES = (".h", ".hh", ".hpp", ".hxx", ".c", ".cc", ".cpp", ".cxx", ".ipp", ".inl", ".tcc")


class Row:
    """One line of the table. `paths` are its files; `ctags` the options with which ctags reads them
    in the right language, or None if it does not support the language; `goal` is the required and the
    desired result; `repeat` is the number of runs per sample."""

    def __init__(self, key, title, paths, ctags=(), goal="–", repeat=1):
        self.key, self.title, self.paths, self.ctags = key, title, paths, ctags
        self.goal, self.repeat = goal, repeat
        self.is_tiny = key.startswith("tiny") or key == "one"
        self.size = sum(os.path.getsize(path) for path in paths)


def find(folders, suffixes=None, without=(), largest=None):
    """Returns the regular files below `folders` in a fixed order; with `suffixes` None, all of them."""
    found = []
    for top in folders:
        for folder, names, files in os.walk(top):
            names[:] = sorted(n for n in names if os.path.join(folder, n) not in without)
            for name in sorted(files):
                path = os.path.join(folder, name)
                if suffixes is not None and not name.endswith(suffixes):
                    continue
                if os.path.islink(path) or not os.path.isfile(path):
                    continue
                if largest is None or os.path.getsize(path) <= largest:
                    found.append(path)
    return found


def existing(*folders):
    return [folder for folder in folders if os.path.isdir(folder)]


def matching(parent, start, *ends):
    """Returns the existing folders `parent`/`start`*/`end`, where `*` is usually a version."""
    names = sorted(os.listdir(parent)) if os.path.isdir(parent) else []
    return existing(*(os.path.join(parent, name, end) for name in names if name.startswith(start)
                      for end in ends or [""]))


def system_rows():
    """Yields rows of files from Debian packages; rows whose files are not installed are empty."""
    plus = "/usr/include/c++"
    versions = existing(*(os.path.join(plus, v) for v in os.listdir(plus))) if os.path.isdir(
        plus) else []
    libcxx = matching("/usr/lib", "llvm-", "include/c++/v1")
    kernel = [f for f in matching("/usr/src", "linux-headers-", "include", "arch")
              if "-common/" in f]
    yield Row("include", "/usr/include without c++",
              find(existing("/usr/include"), C_SUFFIXES, without=(plus,)), goal="1.5x / 2.5x")
    yield Row("kernel", "kernel headers", find(kernel, (".h",)), goal="1.5x / 2.5x")
    # Most of these files have no suffix, so ctags cannot guess the language.
    yield Row("libs", "libstdc++ and libc++", find(versions + libcxx),
              ("--language-force=C++",), goal="1.5x / 2.5x")
    yield Row("gnustep", "Objective-C: GNUstep headers",
              find(existing("/usr/include/GNUstep"), (".h",)), ("--language-force=ObjectiveC",),
              goal="1.2x / 2x")
    yield Row("python", "Python's library", find(existing("/usr/lib/python3.11",
                                                          "/usr/lib/python3"), (".py",)),
              ("--languages=Python",), goal="1.2x / 2x")


def named_rows(code, objc, swift):
    """Yields rows for source trees that the caller names."""
    for folder in code:
        name = os.path.basename(os.path.abspath(folder))
        yield Row("code-" + name, name + " (C and C++)", find([folder], C_SUFFIXES), goal="2x / 3x")
    if objc:
        yield Row("objc", "Objective-C sources", find(objc, (".m", ".mm")),
                  ("--language-force=ObjectiveC",), goal="1.2x / 2x")
    if swift:
        yield Row("swift", "Swift sources", find(swift, (".swift",)), None, goal="60 / 120 MB/s")


def made_rows(folder, count):
    """Yields rows of generated tiny files, written below `folder`."""
    paths = make_tree.make_tiny(folder, "c", count)
    yield Row("one", "one tiny file, whole process", paths[:1], goal="2.5 / 1.5 ms",
              repeat=20)
    yield Row("tiny", "%d tiny files" % count, paths, goal="1.2x / 2x")


def made_languages(folder, size):
    """Yields a row per language of the synthetic tree, which is the same on every machine."""
    for language in sorted(make_tree.SUFFIXES):
        paths = make_tree.make_tree(folder, language, size, 64 * 1024, 1)
        ctags = {"objc": ("--language-force=ObjectiveC",), "swift": None}.get(language, ())
        yield Row("made-" + language, "synthetic " + language, paths, ctags)
