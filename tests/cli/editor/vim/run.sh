# SPDX-License-Identifier: MIT
# Jumps with the set-up of editors/vim.md: a name of each kind in each language, plain and filtered.
command -v vim >/dev/null || { echo "vim is not installed"; exit 77; }
sed -n '/^```vim$/,/^```$/p' "$VEXLTAGS_SOURCE/editors/vim.md" | sed '/^```/d' >vimrc
ask() {
  rm -f at
  vim -N -i NONE -n -es -u vimrc "$@" -c 'qa!' >messages 2>&1 </dev/null || true
  cat at
}
. "$VEXLTAGS_SOURCE/tests/shared/jumps.sh"
