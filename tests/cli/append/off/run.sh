# SPDX-License-Identifier: MIT
# Without appending an existing file is replaced.
cp old tags
"$VEXLTAGS" --append --append=no -f tags a.py
