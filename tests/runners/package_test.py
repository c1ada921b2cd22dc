#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Installs a build into a scratch folder, makes its packages and the source archive, and tries them.

usage: package_test.py --build FOLDER [--cmake CMAKE] [--cpack CPACK] [-v] [TEST...]
"""
import argparse
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

OPTIONS = argparse.Namespace()
MANUALS = ("share/man/man1/vexltags.1", "share/man/man1/vexltags-portable.1",
           "share/man/man1/vexltags-tree.1")
FILES = (
    "share/bash-completion/completions/vexltags",
    "share/bash-completion/completions/vexltags-portable",
    "share/bash-completion/completions/vexltags-tree",
    "share/fish/vendor_completions.d/vexltags.fish",
    "share/fish/vendor_completions.d/vexltags-tree.fish",
    "share/fish/vendor_completions.d/vexltags-portable.fish",
    "share/doc/vexltags/copyright",
    "share/doc/vexltags/doc/tags-format.md",
    "share/doc/vexltags/doc/why-is-my-tag-missing.md",
    "share/doc/vexltags/editors/vim.md",
    "share/doc/vexltags/editors/vexltags.vim",
    "share/doc/vexltags/editors/vexltags.el",
    "share/doc/vexltags/hooks/README.md",
)


class Package(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="vexltags-")).resolve()
        self.addCleanup(shutil.rmtree, self.folder)

    def run_quietly(self, *command):
        # The program takes its working directory from PWD.
        done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                              cwd=self.folder, env={**os.environ, "PWD": str(self.folder)}, timeout=900)
        self.assertEqual(done.returncode, 0, done.stdout.decode("utf-8", "replace"))
        return done.stdout.decode("utf-8", "replace")

    def check_tree(self, root, packed="", zsh="site-functions"):
        for name in (*FILES, *(manual + packed for manual in MANUALS), f"share/zsh/{zsh}/_vexltags",
                     f"share/zsh/{zsh}/_vexltags-tree"):
            self.assertTrue((root / name).is_file(), name)
        hook = root / "share/doc/vexltags/hooks/git/refresh-tags"
        self.assertTrue(os.access(hook, os.X_OK))
        if (pathlib.Path(OPTIONS.build) / "vexltags-ctags").exists():
            for name in (f"share/man/man1/vexltags-ctags.1{packed}", f"share/zsh/{zsh}/_vexltags-ctags",
                         "share/bash-completion/completions/vexltags-ctags",
                         "share/fish/vendor_completions.d/vexltags-ctags.fish"):
                self.assertTrue((root / name).is_file(), name)
            self.assertIn("Universal Ctags",
                          self.run_quietly(root / "bin/vexltags-ctags", "--version"))
        for page in (root / "share/doc/vexltags").rglob("*.md"):
            for target in re.findall(r"\]\(([^)#]+)\)", page.read_text("utf-8")):
                self.assertTrue("://" in target or (page.parent / target).exists(),
                                f"{page.name}: {target}")
        (self.folder / "a.py").write_text("def found(): pass\n", encoding="utf-8")
        self.run_quietly(root / "bin/vexltags", "--tag-relative", "-f", "tags", "a.py")
        self.run_quietly(root / "bin/vexltags-portable", "-i", "tags")
        self.assertIn('\nfound\ta.py\t1;"\tf\n', (self.folder / "tags").read_text("utf-8"))

    def test_install(self):
        self.run_quietly(OPTIONS.cmake, "--install", OPTIONS.build, "--prefix", "root")
        self.check_tree(self.folder / "root")

    @staticmethod
    def cache():
        return pathlib.Path(OPTIONS.build, "CMakeCache.txt").read_text("utf-8")

    def is_sanitized(self):
        return not re.search(r"VEXLTAGS_SANITIZE:\w+=none\n", self.cache())

    def make_package(self):
        if not shutil.which("dpkg-deb"):
            self.skipTest("dpkg-deb is not installed")
        self.run_quietly(OPTIONS.cpack, "--config", f"{OPTIONS.build}/CPackConfig.cmake", "-G", "DEB",
                         "-B", self.folder / "pack")
        (package,) = (self.folder / "pack").glob("*.deb")
        return package

    def test_debian_package(self):
        package = self.make_package()
        fields = self.run_quietly("dpkg-deb", "--field", package)
        self.assertIn("Package: vexltags\n", fields)
        self.assertRegex(fields, r"(?m)^Maintainer: .+ <\S+@\S+>$")
        self.assertRegex(fields, r"Depends: .*libc6")
        # What it links is in the package or in those that it depends on, not the runtime.
        self.assertNotIn("antlr", fields)
        self.run_quietly("dpkg-deb", "--extract", package, "root")
        self.check_tree(self.folder / "root" / "usr", packed=".gz", zsh="vendor-completions")
        docs = self.folder / "root/usr/share/doc/vexltags"
        for name in ("changelog.gz", "changelog.Debian.gz"):
            self.assertTrue((docs / name).is_file(), name)
        # The runtime that is linked in asks for its notice.
        self.assertIn("Temporal Wave", (docs / "copyright").read_text("utf-8"))

    def test_clean_root(self):
        """dpkg installs the package where nothing is, and it runs on its dependencies alone."""
        if self.is_sanitized():
            self.skipTest("a sanitizer needs /proc, which is not there")
        package = self.make_package()
        root = self.folder / "root"
        alone = ["unshare", "--map-root-user"]
        trial = subprocess.run([*alone, "chroot", "/", "true"], stdout=subprocess.PIPE,
                               stderr=subprocess.STDOUT)
        if trial.returncode != 0:
            self.skipTest(f"no root of its own: {trial.stdout.decode()}")
        enter = [*alone, "chroot", root]
        (root / "var/lib/dpkg/info").mkdir(parents=True)
        (root / "var/lib/dpkg/status").touch()
        (root / "bin").mkdir()
        # Only the packages that it names, which are taken from this system.
        depends = self.run_quietly("dpkg-deb", "--field", package, "Depends")
        names = re.findall(r"(?:^|, )([a-z0-9.+-]+)", depends)
        self.assertIn("libc6", names)
        for name in names:
            for path in self.run_quietly("dpkg", "--listfiles", name).splitlines():
                if os.path.isfile(path) and re.search(r"\.so(\.|$)", path):
                    target = root / path.lstrip("/")
                    target.parent.mkdir(parents=True, exist_ok=True)
                    shutil.copy(path, target)
        self.run_quietly(*alone, "dpkg", f"--root={root}", "--force-depends",
                         f"--log={self.folder}/log", "--install", package)
        listed = self.run_quietly("dpkg", f"--root={root}", "--listfiles", "vexltags")
        self.assertIn("/usr/share/man/man1/vexltags.1.gz\n", listed)
        (root / "a.swift").write_text("class Body { func stop() {} }\n", encoding="utf-8")
        self.run_quietly(*enter, "/usr/bin/vexltags", "--sort=yes", "-f", "/tags", "/a.swift")
        self.run_quietly(*enter, "/usr/bin/vexltags-portable", "-i", "/tags")
        self.assertIn('\nstop()\t/a.swift\t1;"\tf\tclass:Body\n',
                      (root / "tags").read_text("utf-8"))

    def test_source_archive(self):
        """What is unpacked builds where there is neither Java nor the generator, nor git."""
        if self.is_sanitized():
            self.skipTest("the same as without sanitizers, and much longer")
        source = re.search(r"CMAKE_HOME_DIRECTORY:INTERNAL=(.*)\n", self.cache()).group(1)
        if not os.path.exists(f"{source}/.git"):
            self.skipTest("an archive is made in a git clone")
        self.run_quietly(OPTIONS.cmake, "--build", OPTIONS.build, "--target", "source_archive")
        (archive,) = pathlib.Path(OPTIONS.build).glob("vexltags-*-source.tar.xz")
        self.run_quietly("tar", "xf", archive)
        (tree,) = self.folder.glob("vexltags-*")
        (found,) = tree.glob("src/grammars/generated/swift/swiftParser.c")
        self.assertNotIn(source.encode(), found.read_bytes())
        # What is not there cannot be run. Without optimisation, since the compiler is not on trial.
        gone = [f"-DAntlr3_{name}=/nonexistent" for name in
                ("JAVA", "JAR", "RUNTIME_JAR", "ST3_JAR", "ST4_JAR")]
        self.run_quietly(OPTIONS.cmake, "-S", tree, "-B", "build", "-DCMAKE_BUILD_TYPE=Debug",
                         "-DCMAKE_CXX_FLAGS_DEBUG=-O0", "-DVEXLTAGS_TESTS=OFF", *gone)
        self.run_quietly(OPTIONS.cmake, "--build", "build", "--parallel", "2")
        self.run_quietly(OPTIONS.cmake, "--install", "build", "--prefix", "root")
        self.check_tree(self.folder / "root")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--build", required=True, type=os.path.abspath, help="the build folder")
    parser.add_argument("--cmake", default="cmake")
    parser.add_argument("--cpack", default="cpack")
    _, rest = parser.parse_known_args(namespace=OPTIONS)
    unittest.main(argv=[sys.argv[0], *rest])


if __name__ == "__main__":
    main()
