# SPDX-License-Identifier: MIT
# An unreadable list does not remove the paths before it.
"$VEXLTAGS" a.py -L missing -f tags
