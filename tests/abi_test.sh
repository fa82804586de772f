#!/bin/bash
# Compares what the shared libraries export with the lists in tests/abi, so that
# nothing comes in or goes out unnoticed.
#
# abi_test.sh SOURCE_DIR LIBRARY...
set -euo pipefail
cd "$1"
shift
. scripts/lib/abi.sh

status=0
for library in "$@"; do
  list=$(symbol_list "$library")
  if ! diff -u --label "$list" --label "this build" "$list" <(exported_symbols "$library"); then
    status=1
  fi
done
if [ "$status" -ne 0 ]; then
  echo "abi_test: a line with - is gone: hosts that use it break, which needs a new major" >&2
  echo "version. A line with + is new. If both are meant: scripts/accept-abi" >&2
fi
exit "$status"
