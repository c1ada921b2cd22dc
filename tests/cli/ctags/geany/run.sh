# SPDX-License-Identifier: MIT
# The call that Geany's manual gives for tags files, and what Geany reads of them.
. "$VEXLTAGS_SOURCE/tests/shared/ctags.sh"
mkdir lib
mv shape.h lib
"$ctags" -n --fields=EfiklsZSt -R -o std.cpp.tags lib
grep -v '^!_TAG_KIND' std.cpp.tags | sed "s|$PWD|HERE|"
