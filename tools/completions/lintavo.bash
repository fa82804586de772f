# Completion of the lintavo command for bash. Commands, options and the words to choose
# from are read from its own help, so they are always those of the installed command.

_lintavo_help() {
  "${COMP_WORDS[0]/#\~/$HOME}" "$@" --help 2>/dev/null
}

_lintavo_files() {
  compopt -o filenames 2>/dev/null
  mapfile -t COMPREPLY < <(compgen "$@" -- "${COMP_WORDS[COMP_CWORD]}" | sort -u)
}

_lintavo_words() {
  mapfile -t COMPREPLY < <(compgen -W "$1" -- "${COMP_WORDS[COMP_CWORD]}")
}

# What stands behind an option in a help text: {words,to,choose,from}, FILE and the
# like, or nothing.
_lintavo_value_of() {
  [[ $2 =~ ^--?[a-z-]+$ ]] || return
  sed -nE "s/^  (-[a-z],)?(.*,)?$2(,--[a-z-]+)? ([^ ]+).*/\4/p" <<<"$1"
}

_lintavo() {
  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
  local commands command='' word help value
  commands=$(_lintavo_help | sed -nE '/^Commands:/,/^$/s/^  ([a-z]+) .*/\1/p')
  for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
    if [[ $'\n'$commands$'\n' == *$'\n'"$word"$'\n'* ]]; then
      command=$word
      break
    fi
  done
  help=$(_lintavo_help $command)
  if [[ $current == -* ]]; then
    _lintavo_words "$(sed -nE 's/^  ((-[a-z],)?--[a-z-]+).*/\1/p' <<<"$help" | tr ',' '\n')"
    return
  fi
  if [[ -z $command ]]; then
    _lintavo_words "$commands"
    return
  fi
  value=$(_lintavo_value_of "$help" "$previous")
  case $value in
    '{'*) _lintavo_words "$(tr '{,}' '   ' <<<"$value")" ;;
    FOLDER) _lintavo_files -d ;;
    FILE | TARGET) _lintavo_files -f ;;
    ?*) ;;
    *)
      case $command in
        position) _lintavo_files -d -f -X '!*.txt' ;;
        form) _lintavo_files -d -f -X '!*.@(aqz|cqz|ini)' ;;
        *) _lintavo_files -d -f -X '!*.[ac]qz' ;;
      esac
      ;;
  esac
}

complete -F _lintavo lintavo
