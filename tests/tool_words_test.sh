#!/bin/bash
# The command's help, its manual page and its completion name the same commands and
# options.
#
# tool_words_test.sh SOURCE_DIR TOOL
set -euo pipefail
cd "$1"
PATH=$(dirname "$2"):$PATH

faults=0
fault() {
  echo "tool_words_test: $*" >&2
  faults=$((faults + 1))
}
expect_equal() {
  [ "$2" = "$3" ] || fault "$1: $(diff <(echo "$2") <(echo "$3") | grep '^[<>]' | tr '\n' ' ')"
}

options_of_help() { lintavo $1 --help | sed -nE 's/^  ((-[a-z],)?--[a-z-]+).*/\1/p' | tr ',' '\n' | sort; }

# The lines of a part of the manual page that begin an entry, as options.
man_part() { awk -v head="$1" 'index($0, ".S") == 1 { inside = $0 == head } inside' tools/lintavo.1; }
options_of_man() {
  man_part "$1" | awk '/^\.TP/ { getline; print }' | tr -d '\\"' | sed -E 's/\{.*//' |
    grep -oE -- '--?[a-z][a-z-]*' || true
}

commands=$(lintavo --help | sed -nE '/^Commands:/,/^$/s/^  ([a-z]+) .*/\1/p')
[ "$(wc -w <<<"$commands")" -gt 5 ] || fault "the help names hardly any command: $commands"
expect_equal "commands of the help < and of tools/lintavo.1 >" \
  "$commands" "$(sed -n 's/^\.SS //p' tools/lintavo.1)"

. tools/completions/lintavo.bash
completed() {
  COMP_WORDS=("$@")
  COMP_CWORD=$(($# - 1))
  COMPREPLY=()
  _lintavo
  printf '%s\n' "${COMPREPLY[@]}" | sort
}
expect_equal "commands of the help < and completed >" \
  "$(sort <<<"$commands")" "$(completed lintavo '')"

for command in $commands; do
  help=$(options_of_help "$command")
  man=$({ options_of_man ".SH OPTIONS"; options_of_man ".SS $command"; } | sort)
  expect_equal "options of $command in its help < and in tools/lintavo.1 >" "$help" "$man"
  expect_equal "options of $command in its help < and completed >" \
    "$help" "$(completed lintavo "$command" -)"
  text=$(lintavo "$command" --help)
  [[ $text == *Examples:* ]] || fault "the help of $command shows no examples"
  LC_ALL=C.UTF-8 awk 'length($0) > 80 { exit 1 }' <<<"$text" ||
    fault "the help of $command has lines of more than 80 characters"
done

expect_equal "formats completed" "$(printf 'pdf\npng')" "$(completed lintavo draw --format p)"
expect_equal "windows completed" "examples/windows/ellipse.aqz" \
  "$(completed lintavo check examples/windows/ell)"
expect_equal "folders completed" "examples/Positionen" \
  "$(completed lintavo position --base examples/P)"
if command -v groff >/dev/null; then
  [ -z "$(groff -man -ww -z tools/lintavo.1 2>&1)" ] || fault "groff complains about tools/lintavo.1"
fi

[ "$faults" -eq 0 ] || exit 1
echo "tool_words_test: in order"
