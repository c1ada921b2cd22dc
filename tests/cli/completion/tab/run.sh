# SPDX-License-Identifier: MIT
# The Tab key in bash and fish in a terminal: how it completes an option, its value and a file.
for shell in bash fish; do
  command -v $shell >/dev/null || { echo "$shell is not installed"; exit 77; }
done
touch 'one file.c' two.py
export TERM=xterm PS1='READY:'
cat >rc.bash <<'B'
PS1=READY:
. "$VEXLTAGS_SOURCE/completions/vexltags.bash"
B
press() {
  "$PYTHON" "$VEXLTAGS_SOURCE/tests/runners/terminal.py" wait=READY: type="$1\t" wait="$2" -- $shell >report &&
    echo "$1 -> $2" || cat report
}
shell='bash --noprofile --rcfile rc.bash -i'
press 'vexltags --so' 'vexltags --sort='
press 'vexltags --sort=f' 'vexltags --sort=foldcase '
press 'vexltags --tag' 'vexltags --tag-relative '
press 'vexltags -f tw' 'vexltags -f two.py '
press 'vexltags one' 'vexltags one\ file.c '
press 'vexltags-portable --i' 'vexltags-portable --in-place '
cat >fish.sh <<'F'
exec fish --no-config -i -C 'set fish_greeting; function fish_prompt; echo -n READY:; end
set -g fish_autosuggestion_enabled 0
source $VEXLTAGS_SOURCE/completions/vexltags.fish'
F
shell='sh fish.sh'
press 'vexltags --so' '--sort='
press 'vexltags --sort=f' '--sort=foldcase '
press 'vexltags --repo' '--reportIfLonger='
press 'vexltags --dumpE' '--dumpErrors '
press 'vexltags one' 'one\ file.c '
press 'vexltags-portable --i' '--in-place '
