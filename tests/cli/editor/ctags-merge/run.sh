# SPDX-License-Identifier: MIT
# ctags adds its tags to our file, and the filter leaves them as they are.
command -v ctags >/dev/null && ctags --version | grep -q Universal ||
  { echo "Universal Ctags is not installed"; exit 77; }
"$VEXLTAGS" --sort=yes --tag-relative -f tags a.py
ctags -a --sort=yes -f tags b.rb
"$VEXLTAGS_PORTABLE" -i tags
grep -v '^!' tags
