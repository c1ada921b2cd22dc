# SPDX-License-Identifier: MIT
# What Tab offers in bash: options, values after `=`, files.
command -v bash >/dev/null || { echo "bash is not installed"; exit 77; }
cat >ask.sh <<'B'
. "$VEXLTAGS_SOURCE/completions/vexltags.bash"
ask() {
  COMP_WORDS=("$@")
  COMP_CWORD=$(($# - 1))
  COMPREPLY=()
  "_${1//-/_}"
  printf '%s\n' "$* -> $(printf '%s\n' "${COMPREPLY[@]}" | sort | tr '\n' ' ')"
}
ask vexltags --so
ask vexltags --debug
ask vexltags --sort =
ask vexltags --sort = f
ask vexltags --tag-relative = y
ask vexltags -f t
ask vexltags -I t
ask vexltags one
ask vexltags-portable --i
ask vexltags-portable two
B
touch 'one file.c' two.py
bash ask.sh
