# bash completion for lbxgen

_lbxgen_field() { # the first column of a listing, without its heading
  "${COMP_WORDS[0]}" "${_lbxgen_plugins[@]}" "$@" 2>/dev/null | awk '$1 != "NAME" {print $1}'
}

_lbxgen() {
  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
  local command= name= i
  local _lbxgen_plugins=()
  COMPREPLY=()
  for ((i = 1; i < COMP_CWORD; i++)); do
    case ${COMP_WORDS[i]} in
      -p | --plugin)
        i=$((i + 1))
        [ "$i" -lt "$COMP_CWORD" ] && _lbxgen_plugins+=(-p "${COMP_WORDS[i]}")
        ;;
      -l | --language | -o | --output | -d | --directory | --blackbox | --library-path | --list-file) i=$((i + 1)) ;;
      -*) ;;
      *) if [ -z "$command" ]; then command=${COMP_WORDS[i]}; elif [ -z "$name" ]; then name=${COMP_WORDS[i]}; fi ;;
    esac
  done
  case $previous in
    -p | --plugin | -o | --output | --list-file | --blackbox) mapfile -t COMPREPLY < <(compgen -f -- "$current") && return ;;
    -d | --directory | --library-path) mapfile -t COMPREPLY < <(compgen -d -- "$current") && return ;;
    -l | --language) mapfile -t COMPREPLY < <(compgen -W "verilog vhdl qhdl tcl" -- "$current") && return ;;
  esac
  local words
  if [[ $current == -* ]]; then
    words="--plugin --json --help --version"
    [ "$command" = generate ] && words="$words --language --output --directory --single-file --separate-files \
      --force --blackbox --library-path --list-file"
    [ "$command" = parameters ] && words="$words --all"
  elif [ -z "$command" ]; then
    words="list parameters ports generate check"
  elif [ -z "$name" ] && [ "$command" != list ]; then
    words=$(_lbxgen_field list)
  elif [[ $command =~ ^(generate|ports|check)$ ]]; then
    words=$(_lbxgen_field parameters "$name" | sed 's/$/=/')
    compopt -o nospace
  fi
  mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
}

complete -F _lbxgen lbxgen
