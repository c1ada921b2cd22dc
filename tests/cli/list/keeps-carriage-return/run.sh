# SPDX-License-Identifier: MIT
# A carriage return belongs to the path.
printf 'a.py\r\nb.py\n' >list
"$VEXLTAGS" -L list -f tags
