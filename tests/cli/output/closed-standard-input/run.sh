# SPDX-License-Identifier: MIT
# A closed standard input is an empty list.
"$VEXLTAGS" a.py -L - -f tags <&-
