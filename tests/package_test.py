#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Installs a build into a scratch folder, makes the Debian package of it, and tries both.

usage: package_test.py --build FOLDER [--cmake CMAKE] [--cpack CPACK] [-v] [TEST...]
"""
import argparse
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

OPTIONS = argparse.Namespace()
FILES = (
    "share/man/man1/vexltags.1",
    "share/man/man1/vexltags-portable.1",
    "share/bash-completion/completions/vexltags",
    "share/bash-completion/completions/vexltags-portable",
    "share/fish/vendor_completions.d/vexltags.fish",
    "share/fish/vendor_completions.d/vexltags-portable.fish",
    "share/zsh/vendor-completions/_vexltags",
    "share/doc/vexltags/README.md",
    "share/doc/vexltags/copyright",
    "share/doc/vexltags/doc/tags-format.md",
    "share/doc/vexltags/editors/vim.md",
    "share/doc/vexltags/hooks/README.md",
)


class Package(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="vexltags-")).resolve()
        self.addCleanup(shutil.rmtree, self.folder)

    def run_quietly(self, *command):
        done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                              cwd=self.folder, timeout=300)
        self.assertEqual(done.returncode, 0, done.stdout.decode("utf-8", "replace"))
        return done.stdout.decode("utf-8", "replace")

    def check_tree(self, root):
        for name in FILES:
            self.assertTrue((root / name).is_file(), name)
        hook = root / "share/doc/vexltags/hooks/git/refresh-tags"
        self.assertTrue(os.access(hook, os.X_OK))
        (self.folder / "a.py").write_text("def found(): pass\n", encoding="utf-8")
        self.run_quietly(root / "bin/vexltags", "--tag-relative", "-f", "tags", "a.py")
        self.run_quietly(root / "bin/vexltags-portable", "-i", "tags")
        self.assertIn('\nfound\ta.py\t1;"\tf\n', (self.folder / "tags").read_text("utf-8"))

    def test_install(self):
        self.run_quietly(OPTIONS.cmake, "--install", OPTIONS.build, "--prefix", "root")
        self.check_tree(self.folder / "root")

    def test_debian_package(self):
        if not shutil.which("dpkg-deb"):
            self.skipTest("dpkg-deb is not installed")
        self.run_quietly(OPTIONS.cpack, "--config", f"{OPTIONS.build}/CPackConfig.cmake", "-G", "DEB",
                         "-B", self.folder / "pack")
        (package,) = (self.folder / "pack").glob("*.deb")
        fields = self.run_quietly("dpkg-deb", "--field", package)
        self.assertIn("Package: vexltags\n", fields)
        self.assertRegex(fields, r"Depends: .*libc6")
        # What it links is in the package or in those that it depends on, not the runtime.
        self.assertNotIn("antlr", fields)
        self.run_quietly("dpkg-deb", "--extract", package, "root")
        self.check_tree(self.folder / "root" / "usr")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--build", required=True, type=os.path.abspath, help="the build folder")
    parser.add_argument("--cmake", default="cmake")
    parser.add_argument("--cpack", default="cpack")
    _, rest = parser.parse_known_args(namespace=OPTIONS)
    unittest.main(argv=[sys.argv[0], *rest])


if __name__ == "__main__":
    main()
