# SPDX-License-Identifier: MIT
# The arguments of the outline for telescope.nvim: name, file, number and one letter.
. "$VEXLTAGS_SOURCE/tests/shared/ctags.sh"
"$ctags" -n -u --fields=k --c++-kinds=fp --language-force=C++ -f- "$PWD/shape.cc" | sed "s|$PWD|HERE|"
"$ctags" -n -u --fields=k --python-kinds=fm --language-force=Python -f- tool.py
"$ctags" -n -u --fields=k -f- body.swift | head -n 3
"$ctags" -n -u --fields=k --c-kinds=fp -f- shape.cc tool.py | cut -f 2- | sort -u | head -n 3
