# SPDX-License-Identifier: MIT
# With PWD unset or wrong, relative paths start from the real working directory.
(unset PWD; "$VEXLTAGS" --tag-relative a.py)
PWD=/nonexistent "$VEXLTAGS" --tag-relative a.py
PWD=/ "$VEXLTAGS" --tag-relative a.py
