# SPDX-License-Identifier: MIT
# Completion of vexltags-tree for bash.

_vexltags_tree() {
  local cur=${COMP_WORDS[COMP_CWORD]} prev=${COMP_WORDS[COMP_CWORD - 1]} values=
  COMPREPLY=()
  case $prev in
    --format) values='tags raw json etags' ;;
    --address) values='combined line pattern' ;;
    --sort) values='yes foldcase no' ;;
    --languages) values='C C++ ObjectiveC Swift Python' ;;
    --hosts) COMPREPLY=($(compgen -A hostname -- "$cur")); return ;;
    -j | --jobs | --exclude | --include) return ;;
  esac
  if [[ -n $values ]]; then
    COMPREPLY=($(compgen -W "$values" -- "$cur"))
    return
  fi
  if [[ $cur == -* ]]; then
    COMPREPLY=($(compgen -W '
      -f --output --format --address --sort -j --jobs --exclude --include --languages --macros
      --exact --list --no-git --no-cache -q --quiet --report --watch --hosts --send
      -h --help -v --version' -- "$cur"))
    return
  fi
  compopt -o filenames 2>/dev/null
  mapfile -t COMPREPLY < <(compgen -f -- "$cur")
}

complete -F _vexltags_tree vexltags-tree
