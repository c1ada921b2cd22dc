# SPDX-License-Identifier: MIT
# Completion of vexltags and vexltags-portable for bash.

_vexltags() {
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
      --tag-relative | --cannonical-paths | --append | --checkForFilesWithAbortedParse)
        COMPREPLY=($(compgen -W 'yes no' -- "$cur"))
        ;;
      --macros)
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$cur")
        ;;
    esac
    return
  fi
  case $prev in
    -L | -f)
      compopt -o filenames 2>/dev/null
      mapfile -t COMPREPLY < <(compgen -f -- "$cur")
      return
      ;;
    -I | --filterToken) return ;;
  esac
  if [[ $cur == -* ]]; then
    COMPREPLY=($(compgen -W '
      -h --help -v --version --dumpErrors --debugDump --debugDumpFilenames
      --debugDumpFilesWithHugeOutput --time --tag-relative --cannonical-paths
      --checkForFilesWithAbortedParse --reportIfLonger= --abortIfLonger= --sort= --append
      --filterToken -I -L -f --exclude --c-kinds --excmd=number --language-force
      --thorough --macros=' -- "$cur"))
    [[ ${COMPREPLY[0]-} == *= ]] && compopt -o nospace 2>/dev/null
    return
  fi
  compopt -o filenames 2>/dev/null
  mapfile -t COMPREPLY < <(compgen -f -- "$cur")
}

_vexltags_portable() {
  local cur=${COMP_WORDS[COMP_CWORD]}
  if [[ $cur == -* ]]; then
    COMPREPLY=($(compgen -W '-i --in-place -h --help -v --version' -- "$cur"))
    return
  fi
  compopt -o filenames 2>/dev/null
  mapfile -t COMPREPLY < <(compgen -f -- "$cur")
}

complete -F _vexltags vexltags
complete -F _vexltags_portable vexltags-portable
