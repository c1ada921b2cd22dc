# SPDX-License-Identifier: MIT
# Unsorted appending keeps the old lines as they are, without a header and without sorting.
cp old tags
"$VEXLTAGS" --append --sort=no -f tags b.py a.py
