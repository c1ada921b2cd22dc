# SPDX-License-Identifier: MIT
# The arguments of Tagbar for each file type. The copy of the buffer keeps the suffix. The output can
# be split as the plug-in does: exactly one ;" and tab, then the kind as a letter of its table.
. "$VEXLTAGS_SOURCE/tests/shared/ctags.sh"
tagbar() {
  source=$1 language=$2 letters=$3
  cp "$source" "buffer.${source##*.}"
  "$ctags" --extras=+F -f - --format=2 --excmd=pattern --fields=nksSafet --sort=no --append=no \
    --language-force="$language" --"$language"-kinds="$letters" "buffer.${source##*.}" 2>&1
}
check() {
  "$PYTHON" -c '
import sys
for line in sys.stdin:
    address, fields = line.rstrip("\n").split(";\"\t")
    name, path, pattern = address.split("\t", 2)
    assert pattern.startswith("/^") and pattern.endswith("/"), line
    kind, *rest = fields.split("\t")
    assert kind in sys.argv[1] and len(kind) == 1, line
    assert all(":" in field for field in rest), line
    print(line, end="")
' "$1"
}
tagbar list.c c hdpgetsumvf | check hdpgetsumvf
tagbar shape.h c++ hdpgetncsufmv | check hdpgetncsufmv
tagbar shape.cc c++ hdpgetncsufmv | check hdpgetncsufmv
tagbar view.m objectivec MtviIcEmsefpP | check MtviIcEmsefpP
tagbar tool.py python icfmv | check icfmv
# What a user defines for Swift, with options files and the flags of debug mode.
echo '--sort=no' >more.ctags
"$ctags" --options=more.ctags --extras=+F -f - --format=2 --excmd=pattern --fields=nksSafet --sort=no \
  --append=no -V --language-force=swift --swift-kinds=csgYZtfebV --options=more.ctags \
  --regex-swift='/x/y/z/' body.swift | check csgYZtfebV
status "$ctags" -f - --language-force=cobol --cobol-kinds=x list.c
status "$ctags" -f - --language-force=c missing.c
