# SPDX-License-Identifier: MIT
"""The corpora: where they are, which package brings them, and how a compiler reads them."""
import fnmatch
import glob
import os

_CXX_HEADERS = ("*.h", "*.hh", "*.hpp", "*.hxx", "*.ipp", "*.inl", "*.tcc", "*.inc", "*.def")


class Corpus:
    """One row of the results.

    `package` brings the files. `folders` are searched for files whose name matches `patterns`, or
    that have no suffix where `bare` is set; parts of paths in `without` are left out.
    `configurations` are lists of flags for the compiler, all of which are tried. `ctags` is what
    ctags has to be told to read the files as the language they are; None if it has no such
    language. `stubs` says that headers outside the corpus are missing, and what they would declare
    has to be guessed.
    """

    def __init__(self, name, title, package, folders, language="c++", patterns=_CXX_HEADERS,
                 bare=False, without=(), configurations=((),), ctags=("--langmap=C++:+.h.inc.def",),
                 stubs=False, npm=False, most=None):
        self.name, self.title, self.package, self.folders = name, title, package, folders
        self.language, self.patterns, self.bare, self.without = language, patterns, bare, without
        self.configurations, self.ctags, self.stubs = configurations, ctags, stubs
        self.npm, self.most = npm, most

    def files(self, npm=None):
        """The files, links resolved, in a fixed order; an npm corpus lies below `npm`."""
        tops = []
        for folder in self.folders:
            if self.npm:
                folder = os.path.join(npm, folder) if npm else ""
            tops += sorted(glob.glob(folder)) if folder else []
        found = {}
        for top in tops:
            for path in _walk(top):
                if self._takes(path, top):
                    found[os.path.realpath(path)] = True
        paths = list(found)
        if self.most and len(paths) > self.most:
            step = len(paths) / self.most
            paths = [paths[int(index * step)] for index in range(self.most)]
        return paths

    def _takes(self, path, top):
        name = os.path.basename(path)
        if any(fnmatch.fnmatch(path[len(os.path.dirname(top)):], part) for part in self.without):
            return False
        if self.bare and "." not in name:
            return True
        return any(fnmatch.fnmatch(name, pattern) for pattern in self.patterns)


def _walk(top):
    if os.path.isfile(top):
        yield top
        return
    for folder, names, files in os.walk(top):
        names.sort()
        for name in sorted(files):
            path = os.path.join(folder, name)
            if os.path.isfile(path):
                yield path


def _standards(*names, more=()):
    return tuple(("-std=" + name, *more) for name in names)


CORPORA = [
    Corpus("libstdcxx", "libstdc++ 12", "libstdc++-12-dev",
           ["/usr/include/c++/12"], bare=True,
           without=("*/ext/pb_ds/*", "*/testsuite/*"),
           ctags=("--language-force=C++",),
           configurations=_standards("gnu++20", "gnu++2b", "gnu++17", "gnu++98")),
    Corpus("fmt", "fmt", "libfmt-dev", ["/usr/include/fmt"],
           configurations=_standards("gnu++20", "gnu++14") + (("-std=c++17", "-DFMT_HEADER_ONLY"),)),
    Corpus("abseil", "Abseil", "libabsl-dev", ["/usr/include/absl"],
           configurations=_standards("gnu++17", "gnu++20", "gnu++14")),
    Corpus("python", "Python's library", "libpython3.11-stdlib", ["/usr/lib/python3.11"], "python",
           ("*.py",), ctags=("--languages=Python",)),
    Corpus("python3", "Python packages of Debian", "python3-*", ["/usr/lib/python3"], "python",
           ("*.py",), ctags=("--languages=Python",)),
    Corpus("swift", "Swift", "expo-modules-core, expo-modules-jsi, @capacitor/ios, react-native",
           ["*", "@*/*"], "swift", ("*.swift",), ctags=None, npm=True),
]
