# SPDX-License-Identifier: MIT
# Completion of vexltags-ctags for bash.

_vexltags_ctags() {
  local cur prev
  cur=${COMP_WORDS[COMP_CWORD]}
  prev=${COMP_WORDS[COMP_CWORD - 1]}
  COMPREPLY=()
  # By default, bash splits words at `=` and passes the `=` as a word of its own.
  if [[ $cur == '=' || $prev == '=' ]]; then
    local option=$prev
    if [[ $prev == '=' ]]; then option=${COMP_WORDS[COMP_CWORD - 2]}; else cur=; fi
    case $option in
      --sort) COMPREPLY=($(compgen -W 'yes no foldcase' -- "$cur")) ;;
      --excmd) COMPREPLY=($(compgen -W 'number pattern combine' -- "$cur")) ;;
      --output-format) COMPREPLY=($(compgen -W 'u-ctags e-ctags json xref etags' -- "$cur")) ;;
      --tag-relative) COMPREPLY=($(compgen -W 'yes no always never' -- "$cur")) ;;
      --_interactive) COMPREPLY=($(compgen -W 'default sandbox' -- "$cur")) ;;
      --append | --links | --quiet | --recurse) COMPREPLY=($(compgen -W 'yes no' -- "$cur")) ;;
      --language-force | --languages | --list-kinds | --list-kinds-full | --list-maps)
        COMPREPLY=($(compgen -W 'C C++ ObjectiveC Python Swift' -- "$cur"))
        ;;
      --options | --options-maybe)
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$cur")
        ;;
    esac
    return
  fi
  case $prev in
    -L | -f | -o)
      compopt -o filenames 2>/dev/null
      mapfile -t COMPREPLY < <(compgen -f -- "$cur")
      return
      ;;
  esac
  if [[ $cur == -* ]]; then
    COMPREPLY=($(compgen -W '
      -R --recurse -a --append -e -f -o -L -n -N -u -x --exclude= --exclude-exception= --excmd=
      --extras= --fields= --help --_interactive --kinds-all= --langmap= --language-force=
      --languages= --links --list-excludes --list-extras --list-features --list-fields --list-kinds
      --list-kinds-full --list-languages --list-maps --maxdepth= --options= --options-maybe=
      --output-format= --quiet --sort= --tag-relative= --version --_xformat=' -- "$cur"))
    [[ ${COMPREPLY[0]-} == *= ]] && compopt -o nospace 2>/dev/null
    return
  fi
  compopt -o filenames 2>/dev/null
  mapfile -t COMPREPLY < <(compgen -f -- "$cur")
}

complete -F _vexltags_ctags vexltags-ctags
