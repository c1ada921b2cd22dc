# SPDX-License-Identifier: MIT
# An empty file is a success without tags, and so is the null device.
: >empty.py
"$VEXLTAGS" empty.py -f tags
"$VEXLTAGS" /dev/null -f other
cmp tags other
