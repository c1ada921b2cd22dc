# SPDX-License-Identifier: MIT
# The calls of Citre: everything from .ctags.d without an argument, one file of options, and one
# buffer. readtags reads the result.
. "$VEXLTAGS_SOURCE/tests/shared/ctags.sh"
mkdir .ctags.d
cat >.ctags.d/0.ctags <<'EOF'
# The tags file
-o
.tags
  # and the list of sources
-L
.ctags.d/files

--languages=C++,Python
--kinds-all=*
--fields=*
--extras=*
--recurse
EOF
echo . >.ctags.d/files
"$ctags"
grep -v '^!' .tags | cut -f 2 | sort -u
grep '^!_TAG_PROC_CWD' .tags | cut -f 2 | sed "s|$PWD|HERE|"
grep -c '^!_TAG_KIND_DESCRIPTION!C++	p,prototype' .tags
grep 'Shape::Area' .tags
grep 'inputFile' .tags
cp .tags first
mv .ctags.d/0.ctags options
"$ctags" --options=options
cmp first .tags
"$ctags" -o temp --kinds-all='*' --fields='*' --extras='*' tool.py
grep -v '^!' temp
command -v readtags >/dev/null || exit 0
readtags -t .tags -Q '(and (eq? $scope-kind "class") (eq? $kind "function"))' -S '(<> $line &line)' -Ene -l |
  cut -f 1
readtags -t .tags -Ene - Shape::Area | cut -f 1-2
readtags -t .tags -D | grep -c '^!_TAG_FILE_SORTED'
