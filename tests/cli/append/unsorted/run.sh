# SPDX-License-Identifier: MIT
# Unsorted appending leaves the old file as it is and adds neither header nor order.
cp old tags
"$VEXLTAGS" --append --sort=no -f tags b.py a.py
