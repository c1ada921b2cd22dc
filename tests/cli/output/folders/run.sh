# SPDX-License-Identifier: MIT
# -f creates the missing folders of its path; standard output stays empty.
"$VEXLTAGS" a.py -f d/e/f/tags
cp d/e/f/tags tags
