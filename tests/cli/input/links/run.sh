# SPDX-License-Identifier: MIT
# The tag names the target of a link; the path as given selects the language.
cp a.py script
ln -s script link.py
mkdir real
ln -s real alias
cp b.py real
"$VEXLTAGS" -f tags link.py alias/b.py
