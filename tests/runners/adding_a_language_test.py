#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Adds the language that doc/adding-a-language.md describes to a copy of the sources and tries it.

Each block of code in the page that follows a line with nothing but a path and a colon is a file; one
that follows a path and "before the row that takes every file:" is a line of the language table. The
test builds the program and the unit tests of the language, runs them, and runs the golden cases.

  tests/runners/adding_a_language_test.py [--keep FOLDER]

Needs what a build needs, the generator included; leaves with 77 if that is missing.
"""
import argparse
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
PAGE = ROOT / "doc" / "adding-a-language.md"
COPIED = ("CMakeLists.txt", "LICENSE", "cmake", "src", "tests/runners", "tests/shared")
BLOCK = re.compile(r"^`([^`]+)`(:|, before the row that takes every file:)\n\n```\w*\n(.*?)^```$",
                   re.MULTILINE | re.DOTALL)
LAST_ROW = 'LANGUAGE("",'
UNIT_TESTS = """
find_package(GTest REQUIRED)
add_executable(language_tests {sources})
target_link_libraries(language_tests PRIVATE vexltags_{language} GTest::gtest_main)
"""
SKIPPED = 77


def copy_sources(tree):
    for name in COPIED:
        source, target = ROOT / name, tree / name
        if source.is_dir():
            shutil.copytree(source, target, ignore=shutil.ignore_patterns("__pycache__"))
        elif source.exists():
            target.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(source, target)


def add_language(tree, text):
    """Writes what the page shows. Returns the name of the language and its unit tests."""
    blocks = BLOCK.findall(text)
    if not blocks or len(re.findall("^```", text, re.MULTILINE)) != 2 * len(blocks):
        sys.exit(f"{PAGE.name}: a block of code does not follow the path of its file")
    unit_tests = []
    for path, where, code in blocks:
        target = tree / path
        if where == ":":
            if target.exists():
                sys.exit(f"{PAGE.name}: {path} exists already")
            target.parent.mkdir(parents=True, exist_ok=True)
            target.write_text(code, encoding="utf-8")
            if path.endswith("_test.cc"):
                unit_tests.append(path)
        else:
            table = target.read_text(encoding="utf-8")
            if table.count(LAST_ROW) != 1:
                sys.exit(f"{path}: not one row that takes every file")
            target.write_text(table.replace(LAST_ROW, code + LAST_ROW), encoding="utf-8")
    languages = {path.split("/")[2] for path, _, _ in blocks if path.startswith("tests/cases/")}
    if len(languages) != 1 or not unit_tests:
        sys.exit(f"{PAGE.name}: it shows no case, or no unit test")
    return languages.pop(), unit_tests


def run(*command):
    print("$", *command, flush=True)
    if subprocess.run(command, check=False).returncode != 0:
        sys.exit(f"failed: {' '.join(map(str, command))}")


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--cmake", default="cmake")
    parser.add_argument("--compiler", help="the C++ compiler")
    parser.add_argument("--keep", help="work in this folder, and leave it")
    options = parser.parse_args()
    if (ROOT / "src/grammars/generated").exists() or shutil.which("java") is None:
        print("skipped: recognisers cannot be generated here")
        return SKIPPED
    with tempfile.TemporaryDirectory() as scratch:
        folder = pathlib.Path(options.keep or scratch).resolve()
        tree, build = folder / "tree", folder / "build"
        copy_sources(tree)
        language, unit_tests = add_language(tree, PAGE.read_text(encoding="utf-8"))
        with open(tree / "CMakeLists.txt", "a", encoding="utf-8") as lists:
            lists.write(UNIT_TESTS.format(language=language, sources=" ".join(unit_tests)))
        # The time goes into compiling the other languages, so nothing is optimised.
        run(options.cmake, "-S", tree, "-B", build, "-D", "CMAKE_BUILD_TYPE=Debug",
            "-D", "CMAKE_CXX_FLAGS_DEBUG=-O0", "-D", "VEXLTAGS_TESTS=OFF",
            *(["-D", f"CMAKE_CXX_COMPILER={options.compiler}"] if options.compiler else []))
        run(options.cmake, "--build", build, "--parallel", str(min(2, os.cpu_count() or 1)),
            "--target", "vexltags", "language_tests")
        run(build / "language_tests")
        run(sys.executable, tree / "tests/runners/run_cases.py", "--program", build / "vexltags",
            "--language", language)
    return 0


if __name__ == "__main__":
    sys.exit(main())
