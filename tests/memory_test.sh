#!/bin/bash
# Runs the hosts of examples/ under valgrind, on plain and compressed windows, with
# files that cannot be read, and with pictures where they were built.
#
# memory_test.sh SOURCE_DIR HOST_CPP HOST_C WITH_PICTURES [PYTHON]
#
# With PYTHON the libraries' folders are in LD_LIBRARY_PATH.
set -euo pipefail

windows=$1/examples/windows
suppressions=$1/tests/support/fontconfig.supp
host_cpp=$2
host_c=$3
with_pictures=$4
python=${5:-}

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

# The graphics library keeps caches to the end, which are reachable and no leak.
check() {
  local expected=$1 status=0
  shift
  valgrind --quiet --error-exitcode=99 --leak-check=full \
    --errors-for-leak-kinds="${leak_kinds:-definite,indirect,possible}" \
    --suppressions="$suppressions" "$@" \
    >/dev/null 2>"$scratch/log" || status=$?
  if [ "$status" -ne "$expected" ]; then
    cat "$scratch/log"
    echo "memory_test: status $status instead of $expected: $*" >&2
    exit 1
  fi
}

for window in rundbogen_dreiteilig sprossen_und_zusatzteile; do
  check 0 "$host_cpp" "$windows/$window.aqz" 220 190
  check 0 "$host_c" "$windows/$window.aqz" 220 190
done
check 0 "$host_c" "$windows/drehkipp_einfluegelig.cqz" 220 190
check 1 "$host_cpp" "$scratch/missing.aqz" 220 190
check 1 "$host_c" "$scratch/missing.cqz" 220 190
check 1 "$host_c" "$windows/rundbogen.aqz" 5 5

case $with_pictures in
  ON | 1 | TRUE)
    for ending in svg png pdf dxf; do
      check 0 "$host_c" "$windows/rundbogen.aqz" 220 190 "$scratch/picture.$ending"
    done
    check 1 "$host_c" "$windows/rundbogen.aqz" 220 190 "$scratch/missing/picture.svg"
    ;;
esac

# The interpreter's own objects count as possibly lost when it ends.
if [ -n "$python" ]; then
  export PYTHONMALLOC=malloc PYTHONDONTWRITEBYTECODE=1 PYTHONPATH=$1/python
  picture=()
  case $with_pictures in ON | 1 | TRUE) picture=("$scratch/python.svg") ;; esac
  leak_kinds=definite,indirect
  check 0 "$python" "$1/examples/host_python/host.py" "$windows/rundbogen.aqz" 220 190 "${picture[@]}"
  check 1 "$python" "$1/examples/host_python/host.py" "$windows/rundbogen.aqz" 5 5
fi
echo "memory_test: in order"
