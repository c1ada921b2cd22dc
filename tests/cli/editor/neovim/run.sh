# SPDX-License-Identifier: MIT
# Jumps with the set-up of editors/neovim.md: a name of each kind in each language, plain and filtered.
command -v nvim >/dev/null || { echo "nvim is not installed"; exit 77; }
sed -n '/^```vim$/,/^```$/p' "$VEXLTAGS_SOURCE/editors/neovim.md" | sed '/^```/d' >vimrc
ask() {
  rm -f at
  nvim --headless -i NONE -n -u vimrc "$@" -c 'qa!' >messages 2>&1 </dev/null || true
  cat at
}
. "$VEXLTAGS_SOURCE/tests/shared/jumps.sh"
