#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Generates synthetic source trees of any size, identical on every machine.

  make_tree.py OUT [--language c|cxx|objc|swift|python] [--mb 10] [--file-kb 64] [--seed 1]
  make_tree.py OUT --tiny 20000 [--language c]

writes OUT/<language>/<nnn>/<name>.<ext> and prints one path per line, for `-L`. The texts are built
from the blocks in bench/samples, which are separated by `%%` lines; @N is replaced by a number and @W
by a word.
"""
import argparse
import os
import sys

SAMPLES = os.path.join(os.path.dirname(os.path.abspath(__file__)), "samples")
SUFFIXES = {"c": ".h", "cxx": ".hpp", "objc": ".m", "swift": ".swift", "python": ".py"}
WORDS = ("alpha buffer cache device engine filter graph header index joint kernel layer matrix node "
         "object packet queue render stream table unit vector window zone").split()
TINY = {
    "c": "int f@N(int a) { return a; }\nstruct S@N { int x; };\n#define M@N 1\n",
    "cxx": "class C@N {\n public:\n  int f(int a) const { return a; }\n};\n",
    "objc": "@interface C@N : NSObject\n- (int) f: (int)a;\n@end\n",
    "swift": "class C@N {\n  func f(a: Int) -> Int { return a }\n}\n",
    "python": "class C@N:\n    def f(self, a):\n        return a\n",
}


class Numbers:
    """A pseudo-random generator; unlike Python's, it never changes between versions."""

    def __init__(self, seed):
        self.state = seed * 2654435761 % 2**64 + 1

    def below(self, limit):
        self.state = (self.state * 6364136223846793005 + 1442695040888963407) % 2**64
        return (self.state >> 33) % limit


def blocks_of(language):
    with open(os.path.join(SAMPLES, language + ".txt"), encoding="ascii") as file:
        return file.read().split("%%\n")


def text_of(language, size, numbers, first=0):
    """Returns about `size` bytes: the sample's first block, middle blocks in random order, the last."""
    head, *middle, tail = blocks_of(language)
    parts, length, number = [], 0, first

    def add(block):
        nonlocal length, number
        word = WORDS[numbers.below(len(WORDS))]
        parts.append(block.replace("@N", str(number)).replace("@W", word))
        length += len(parts[-1])
        number += 1

    add(head)
    while length < size:
        add(middle[numbers.below(len(middle))])
    add(tail)
    return "".join(parts)


def write(path, text):
    with open(path, "w", encoding="ascii", newline="\n") as file:
        file.write(text)


def folder_for(out, language, index):
    folder = os.path.join(out, language, "%03d" % (index // 500))
    os.makedirs(folder, exist_ok=True)
    return folder


def make_tree(out, language, size, file_size, seed):
    """Writes files of 0.5 to 1.5 times `file_size` bytes, `size` in total. Returns their paths."""
    numbers, paths, made = Numbers(seed), [], 0
    while made < size:
        index = len(paths)
        text = text_of(language, file_size // 2 + numbers.below(file_size), numbers, index * 1000)
        paths.append(os.path.join(folder_for(out, language, index),
                                  "part%05d%s" % (index, SUFFIXES[language])))
        write(paths[-1], text)
        made += len(text)
    return paths


def make_tiny(out, language, count):
    """Writes `count` files of about three lines each. Returns their paths."""
    paths = []
    for index in range(count):
        paths.append(os.path.join(folder_for(out, language, index),
                                  "tiny%05d%s" % (index, SUFFIXES[language])))
        write(paths[-1], TINY[language].replace("@N", str(index)))
    return paths


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("out")
    parser.add_argument("--language", choices=sorted(SUFFIXES), action="append",
                        help="default: all; with --tiny: c")
    parser.add_argument("--mb", type=float, default=10, help="megabytes per language")
    parser.add_argument("--file-kb", type=int, default=64, help="mean file size")
    parser.add_argument("--tiny", type=int, help="write this many tiny files instead")
    parser.add_argument("--seed", type=int, default=1)
    options = parser.parse_args()
    if options.tiny:
        for language in options.language or ["c"]:
            sys.stdout.writelines(p + "\n" for p in make_tiny(options.out, language, options.tiny))
        return
    for language in options.language or sorted(SUFFIXES):
        paths = make_tree(options.out, language, int(options.mb * 1e6), options.file_kb * 1024,
                          options.seed)
        sys.stdout.writelines(p + "\n" for p in paths)


if __name__ == "__main__":
    main()
