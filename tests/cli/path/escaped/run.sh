# SPDX-License-Identifier: MIT
# Blanks, quotes, parentheses and newlines in a path are escaped.
mkdir 'x (1)'
cp a.py "x (1)/it's.py"
name=$(printf 'new\nline.py')
cp b.py "$name"
"$VEXLTAGS" "x (1)/it's.py" "$name" -f tags
