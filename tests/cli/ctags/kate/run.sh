# SPDX-License-Identifier: MIT
# The calls of Kate: an index of folders, the symbols of a file, and names without a last newline. Any
# text on standard error would open a window.
. "$VEXLTAGS_SOURCE/tests/shared/ctags.sh"
folder=$PWD/src
mkdir "$folder"
mv shape.h shape.cc "$folder"
echo 'int no;' >"$folder/Makefile"
"$ctags" -R --c++-types=+px --extras=+q --excmd=pattern --exclude=Makefile --exclude=. -f index "$folder"
grep -v '^!' index | sed "s|$PWD|HERE|" | grep 'Area\|gCount'
"$ctags" -x --_xformat='%{name}%{signature}	%{kind}	%{line}' src/shape.cc
: >project
printf 'src/shape.cc\nview.m' | "$ctags" -L - -f project --fields=+K+n
grep -v '^!' project | cut -f 1,4- | head -n 6
