# SPDX-License-Identifier: MIT
# An empty file is a success without tags.
: >empty.py
"$VEXLTAGS" empty.py -f tags
