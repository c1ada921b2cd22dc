# SPDX-License-Identifier: MIT
# The commands of doc/scale.md: merged tags files of repositories are the file of all of them.
[ -x "$VEXLTAGS_TREE" ] || { echo "vexltags-tree is not built"; exit 77; }
mkdir bin all
ln -s "$VEXLTAGS_TREE" bin/vexltags-tree
PATH=$PWD/bin:$PATH
cd all
mkdir -p a/src b
printf 'int one;\nint same;\nint five;\n' >a/src/one.c
printf 'def two(): pass\nclass One: pass\n' >b/two.py
printf '\n\n\n\n\n\n\n\nvoid same(int);\nvoid same(long);\n' >b/same.h
sed -n '/^for repository/,/^```$/p' "$VEXLTAGS_SOURCE/doc/scale.md" | sed '/^```/d' >../commands
. ../commands
vexltags-tree --quiet -f ../whole --no-cache
sed 's|\tall/|\t|' ../whole >../expected
cmp ../expected all.tags && grep -c -v '^!' all.tags
