# SPDX-License-Identifier: MIT
# The tag names the file behind a link; the language follows from the path as given.
cp a.py script
ln -s script link.py
mkdir real
ln -s real alias
cp b.py real
"$VEXLTAGS" -f tags link.py alias/b.py
