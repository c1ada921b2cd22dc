# SPDX-License-Identifier: MIT
# Vim opens a method at its line from a file sorted by bytes.
command -v vim >/dev/null || { echo "vim is not installed"; exit 77; }
"$VEXLTAGS" --sort=yes -f tags a.py
for name in zeta alpha Zeta; do
  vim -u NONE -i NONE -n -es -t $name -c 'call writefile([expand("%:t") . " " . line(".")], "at")' \
    -c 'qa!' >messages 2>&1
  cat at
done
