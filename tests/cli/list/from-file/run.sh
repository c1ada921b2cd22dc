# SPDX-License-Identifier: MIT
# A list file has one path a line; blank lines vanish, the last newline may be missing.
printf '\n\nb.py\n\na.py' >list
"$VEXLTAGS" --sort=no -L list -f tags
