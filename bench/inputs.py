# SPDX-License-Identifier: MIT
"""The rows of the table: which files, what ctags has to be told, which goal."""
import os

import make_tree

C_SUFFIXES = (".h", ".hh", ".hpp", ".hxx", ".c", ".cc", ".cpp", ".cxx", ".ipp", ".inl", ".tcc")


class Row:
    """One line of the table. `paths` are its files; `ctags` the options that ctags needs to read
    them as the language they are, or None where it has no such language; `goal` says what is asked
    for and aimed at; `repeat` is how often one sample runs."""

    def __init__(self, key, title, paths, ctags=(), goal="–", repeat=1):
        self.key, self.title, self.paths, self.ctags = key, title, paths, ctags
        self.goal, self.repeat = goal, repeat
        self.is_tiny = key.startswith("tiny") or key == "one"
        self.size = sum(os.path.getsize(path) for path in paths)


def find(folders, suffixes=None, without=(), largest=None):
    """The regular files below `folders`, in a fixed order; `suffixes` None takes all names."""
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
    """The folders `parent`/`start`*/`end`, whatever version stands in between."""
    names = sorted(os.listdir(parent)) if os.path.isdir(parent) else []
    return existing(*(os.path.join(parent, name, end) for name in names if name.startswith(start)
                      for end in ends or [""]))


def system_rows():
    """What Debian's packages bring; a row whose files are not installed is left out."""
    plus = "/usr/include/c++"
    versions = existing(*(os.path.join(plus, v) for v in os.listdir(plus))) if os.path.isdir(
        plus) else []
    libcxx = matching("/usr/lib", "llvm-", "include/c++/v1")
    kernel = [f for f in matching("/usr/src", "linux-headers-", "include", "arch")
              if "-common/" in f]
    yield Row("include", "/usr/include without c++",
              find(existing("/usr/include"), C_SUFFIXES, without=(plus,)), goal="1.5x / 2.5x")
    yield Row("kernel", "kernel headers", find(kernel, (".h",)), goal="1.5x / 2.5x")
    # Most of these files have no suffix: ctags has to be told.
    yield Row("libs", "libstdc++ and libc++", find(versions + libcxx),
              ("--language-force=C++",), goal="1.5x / 2.5x")
    yield Row("gnustep", "Objective-C: GNUstep headers",
              find(existing("/usr/include/GNUstep"), (".h",)), ("--language-force=ObjectiveC",),
              goal="1.2x / 2x")
    yield Row("python", "Python's library", find(existing("/usr/lib/python3.11",
                                                          "/usr/lib/python3"), (".py",)),
              ("--languages=Python",), goal="1.2x / 2x")


def named_rows(code, objc, swift):
    """Source trees that the caller names: the C and C++ code bases, Objective-C and Swift sources."""
    for folder in code:
        name = os.path.basename(os.path.abspath(folder))
        yield Row("code-" + name, name + " (C and C++)", find([folder], C_SUFFIXES), goal="2x / 3x")
    if objc:
        yield Row("objc", "Objective-C sources", find(objc, (".m", ".mm")),
                  ("--language-force=ObjectiveC",), goal="1.2x / 2x")
    if swift:
        yield Row("swift", "Swift sources", find(swift, (".swift",)), None, goal="60 / 120 MB/s")


def made_rows(folder, count):
    """Files that the bench makes itself, below `folder`."""
    paths = make_tree.make_tiny(folder, "c", count)
    yield Row("one", "one tiny file, whole process", paths[:1], goal="2.5 / 1.5 ms",
              repeat=20)
    yield Row("tiny", "%d tiny files" % count, paths, goal="1.2x / 2x")


def made_languages(folder, size):
    """The synthetic tree, the same on every machine."""
    for language in sorted(make_tree.SUFFIXES):
        paths = make_tree.make_tree(folder, language, size, 64 * 1024, 1)
        ctags = {"objc": ("--language-force=ObjectiveC",), "swift": None}.get(language, ())
        yield Row("made-" + language, "synthetic " + language, paths, ctags)
