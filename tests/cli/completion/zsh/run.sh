# SPDX-License-Identifier: MIT
# How Tab completes a line in an interactive zsh.
command -v zsh >/dev/null || { echo "zsh is not installed"; exit 77; }
mkdir bin
ln -s "$VEXLTAGS" bin/vexltags
ln -s "$VEXLTAGS_PORTABLE" bin/vexltags-portable
touch one.c two.py
cat >ask.zsh <<'Z'
zmodload zsh/zpty
zpty z zsh -f -i
# Reads what the shell prints up to a line that begins with the text.
await() {
  local line
  while zpty -r z line; do
    line=${line//[$'\r\n']/}
    [[ $line == *"$1"* ]] && { print -r -- "${line#*$1}"; return; }
  done
}
zpty -w z "PS1=; PROMPT_EOL_MARK=; stty -echo; unsetopt zle_bracketed_paste; PATH=$PWD/bin:\$PATH
fpath=($VEXLTAGS_SOURCE/completions \$fpath); autoload -U compinit; compinit -u -D; print IS_\"\"READY"
await IS_READY >/dev/null
for line in 'vexltags --so' 'vexltags --tag-rel' 'vexltags --sort=f' 'vexltags --append=y' 'vexltags tw' 'vexltags -L on' 'vexltags-portable --in'; do
  # Tab, then the line is taken for the text that print shows.
  zpty -w -n z "$line"$'\t\C-aprint -r "GOT_""LINE:\C-e"\n'
  await GOT_LINE:
done
zpty -d z
Z
timeout 60 zsh -f ask.zsh | sed 's/ *$//'
