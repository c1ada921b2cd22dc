# SPDX-License-Identifier: MIT
# The arguments of fzf.vim: tags of one file by number, with and without a language, and a whole tree.
. "$VEXLTAGS_SOURCE/tests/shared/ctags.sh"
btags() {
  "$ctags" -f - --sort=yes --excmd=number --language-force="$1" "$2"
}
btags python tool.py
btags objc view.m | head -n 2
btags objcpp view.m | head -n 1
btags swift body.swift | head -n 2
btags c++ shape.cc | head -n 1
status btags cobol tool.py
"$ctags" -f - --sort=yes --excmd=number tool.py | cut -f 3 | sort -u
"$ctags" -R
grep -v '^!' tags | cut -f 2 | sort -u
grep '^!_TAG_FILE_SORTED' tags | cut -f 2
grep -v '^!' tags | LC_ALL=C sort -c
rm tags
"$ctags" -R --output-format=e-ctags
grep -c '^main' tags
