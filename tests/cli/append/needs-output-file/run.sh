# SPDX-License-Identifier: MIT
# Appending to standard output is refused, before the list is read.
"$VEXLTAGS" --append -L list a.py && exit 1
"$VEXLTAGS" a.py --append --debugDumpFilenames -f - -L list
