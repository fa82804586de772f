#!/bin/bash
# Makes the pair of Debian packages from this build, looks at what they hold and
# ask for, and has dpkg install and remove them in a system tree of their own.
#
# debian_test.sh BUILD_DIR CPACK WINDOW
set -euo pipefail

fail() {
  echo "debian_test: $*" >&2
  exit 1
}

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
"$2" --config "$1/CPackConfig.cmake" -B "$scratch/packages" >"$scratch/log" 2>&1 ||
  { cat "$scratch/log"; fail "cpack fails"; }

runtime=$(echo "$scratch"/packages/lintavo_*.deb)
development=$(echo "$scratch"/packages/lintavo-dev_*.deb)
[ -e "$runtime" ] && [ -e "$development" ] || fail "cpack made: $(ls "$scratch/packages")"

field() { dpkg-deb --field "$1" "$2"; }
[[ $(field "$runtime" Depends) == *zlib1g* ]] || fail "the runtime package asks for no zlib"
[[ $(field "$runtime" Depends) == *libcairo2* ]] || fail "the runtime package asks for no cairo"
[ "$(field "$development" Depends)" = "lintavo (= $(field "$runtime" Version))" ] ||
  fail "lintavo-dev depends on: $(field "$development" Depends)"

dpkg-deb --extract "$runtime" "$scratch/runtime"
dpkg-deb --extract "$development" "$scratch/development"
find_in() { find "$scratch/$1" -name "$2" | grep -q . || fail "no $2 in the $1 package"; }
for name in lintavo 'liblintavo.so.1' 'liblintavo-drawing.so.1' lintavo.1 _lintavo; do find_in runtime "$name"; done
for name in liblintavo.so CFeApi.h lintavo_c.h drawing_c.h lintavo.pc lintavo-drawing.pc \
  lintavoConfig.cmake; do
  find_in development "$name"
done
if find "$scratch/runtime" -name '*.h' -o -name '*.so' | grep .; then
  fail "files for development are in the runtime package"
fi
if (cd "$scratch" && find runtime -type f | sed 's/^runtime//' | sort) |
  comm -12 - <(cd "$scratch" && find development -type f | sed 's/^development//' | sort) |
  grep .; then
  fail "these files are in both packages"
fi
"$scratch/runtime/usr/bin/lintavo" show "$3" >/dev/null || fail "the packed command fails"

# Their dependencies are this machine's, so the tree of their own has none of them.
in_own_tree() {
  dpkg --root="$scratch/system" --force-depends --force-script-chrootless "$@" \
    >"$scratch/log" 2>&1 || { cat "$scratch/log"; fail "dpkg $1 fails"; }
}
if [ "$(id -u)" -eq 0 ]; then
  mkdir -p "$scratch"/system/var/lib/dpkg/{updates,info,triggers}
  touch "$scratch/system/var/lib/dpkg/status"
  in_own_tree --install "$runtime" "$development"
  "$scratch/system/usr/bin/lintavo" show "$3" >/dev/null || fail "the installed command fails"
  [ -e "$scratch/system/usr/lib/liblintavo.so" ] || fail "liblintavo.so is not installed"
  in_own_tree --purge lintavo-dev lintavo
  if find "$scratch/system" -path "*/usr/*" -type f | grep .; then fail "purging left these files"; fi
fi
echo "debian_test: in order"
