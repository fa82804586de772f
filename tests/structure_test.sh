#!/bin/bash
# Checks the order of the rooms: who may include whom, what public headers may
# show, that every public header is listed for installation, and that the C
# interface is complete.
#
# structure_test.sh SOURCE_DIR
set -euo pipefail
cd "$1"

faults=0
fault() {
  echo "structure_test: $*" >&2
  faults=$((faults + 1))
}

# The height of a file's room; a file includes only from rooms below its own.
# The window stands above the sashes that it owns, the rest of its folder below.
height() {
  case $1 in
    lintavo/platform/*) echo 0 ;;
    lintavo/resources/*) echo 1 ;;
    lintavo/ini/* | lintavo/geom/*) echo 2 ;;
    lintavo/view/*) echo 3 ;;
    lintavo/model/CMFenster.* | lintavo/model/CMFenster_* | lintavo/model/Achsbereich_intern.h) echo 6 ;;
    lintavo/model/*) echo 4 ;;
    lintavo/sash/*) echo 5 ;;
    lintavo/settings/*) echo 7 ;;
    lintavo/api/*) echo 8 ;;
    lintavo/capi/*) echo 9 ;;
    lintavo/lintavo.h | lintavo/lintavo_c.h) echo 10 ;;
    *) echo none ;;
  esac
}

# The knot that is there by nature: a sash's calculation reads its window.
is_sash_source() {
  [[ $1 == lintavo/sash/CMFensterSatz*.cpp ]]
}

is_public_header() {
  [[ $1 == *.h && $1 != *_intern.h ]]
}

# Quoted includes of a file, one per line; what is included in <> with a dot in
# its name belongs to somebody else; the font record of Windows is the system's own,
# and the C interface needs the language's own size_t.
quoted_includes() { sed -n 's/^ *# *include *"\([^"]*\)".*/\1/p' "$1"; }
foreign_includes() {
  sed -n 's/^ *# *include *<\([^>]*\.[^>]*\)>.*/\1/p' "$1" | { grep -vx 'windows\.h\|stddef\.h' || true; }
}

check_direction() {
  local file=$1 included=$2 from to
  from=$(height "$file")
  to=$(height "$included")
  if [ "$from" = none ] || [ "$to" = none ]; then
    fault "$file includes $included, which belongs to no room"
  elif [ "$(dirname "$file")" = "$(dirname "$included")" ] && [ "$from" -ge "$to" ]; then
    : # neighbours in one room
  elif [ "$from" -le "$to" ]; then
    if ! { is_sash_source "$file" && [ "$included" = lintavo/model/CMFenster.h ]; }; then
      fault "$file includes $included from a room that is not below it"
    fi
  fi
}

check_public_header() {
  local file=$1 included
  for included in $(quoted_includes "$file"); do
    is_public_header "$included" || fault "$file is public and includes the internal $included"
  done
  for included in $(foreign_includes "$file"); do
    fault "$file is public and includes <$included>"
  done
  grep -qE "(^|[[:space:]/])$(basename "$file")([[:space:])]|\$)" "$(list_of "$file")" ||
    fault "$file is not listed in $(list_of "$file")"
}

# The CMakeLists.txt that lists a header.
list_of() {
  case $1 in
    drawing/*) echo drawing/CMakeLists.txt ;;
    *) echo "$(dirname "$1")/CMakeLists.txt" ;;
  esac
}

while read -r file; do
  for included in $(quoted_includes "$file"); do
    check_direction "$file" "$included"
  done
  if is_public_header "$file"; then check_public_header "$file"; fi
done < <(find lintavo -name '*.h' -o -name '*.cpp')

# Pictures and the command see the library as any host does.
while read -r file; do
  for included in $(quoted_includes "$file" | grep '^lintavo/' | grep -v '^lintavo/drawing/'); do
    is_public_header "$included" || fault "$file includes the internal $included"
  done
done < <(find drawing tools examples -name '*.h' -o -name '*.cpp')
while read -r file; do
  check_public_header "$file"
done < <(find drawing/include -name '*.h')

# The umbrella headers, one for C++ and one for C, hold every public header.
umbrella_of() {
  case $1 in
    *_c.h) echo lintavo/lintavo_c.h ;;
    *) echo lintavo/lintavo.h ;;
  esac
}
while read -r file; do
  if is_public_header "$file" && ! grep -qxF "#include \"$file\"" "$(umbrella_of "$file")"; then
    fault "$(umbrella_of "$file") does not include $file"
  fi
done < <(find lintavo -mindepth 2 -name '*.h')

# Every member of the façade has its function in C, named by the rule at the head
# of lintavo/lintavo_c.h.
members=$(sed -n '/^class LINTAVO_API CFeApi/,/^ private:/p' lintavo/api/CFeApi.h |
  grep -oE '\b[A-Z][A-Za-z]+\(' | grep -vE '^(CFeApi|FreeBuffer|GetFensterPtr|SetFenster)\(' | tr -d '(' |
  sed -E 's/([a-z])([A-Z])/\1_\2/g; s/.*/\L&/' | sort -u)
functions=$(grep -ohE 'lintavo_\w+\(' lintavo/capi/*_c.h |
  sed -E 's/^lintavo_(window_)?//; s/\($//' | sort -u)
for member in $(comm -23 <(echo "$members") <(echo "$functions")); do
  fault "lintavo/capi has no function $member for the façade's member of that name"
done

# What the front page shows is what is built.
shown=$(sed -n '/^```cpp$/,/^```$/p' README.md | sed '/^```/d')
[ "$shown" = "$(cat examples/host_cpp/main.cpp)" ] ||
  fault "the host shown in README.md is not examples/host_cpp/main.cpp"

[ "$faults" -eq 0 ] || exit 1
echo "structure_test: in order"
