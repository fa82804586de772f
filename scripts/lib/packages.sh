# What has to be installed to build, test and draw; sourced by the other scripts.
#
# need_packages NAME... makes sure that Debian's packages of these names are
# there. With nothing missing it costs one look at the package list. Missing
# ones are installed with apt-get, as root or through sudo; where that is not
# possible their names are printed and the script ends.

# Compilers and tools count as present when their command is, wherever it came
# from; libraries only as packages.
BUILD_PACKAGES=(g++ cmake ninja-build pkgconf zlib1g-dev libpolyclipping-dev libcairo2-dev
  libcli11-dev nlohmann-json3-dev libgtest-dev libexpat1-dev locales python3)
CHECK_PACKAGES=(clang-format clang-tidy cppcheck valgrind python3-jsonschema python3-ezdxf
  librsvg2-bin)
BENCH_PACKAGES=(libbenchmark-dev libsimpleini-dev valgrind)
WINDOWS_PACKAGES=(g++-mingw-w64-x86-64-posix libz-mingw-w64-dev googletest)
WINE_PACKAGES=(wine64)

command_of() {
  case $1 in
    g++ | clang-format | clang-tidy | cmake | cppcheck | python3 | valgrind) echo "$1" ;;
    ninja-build) echo ninja ;;
    pkgconf) echo pkg-config ;;
  esac
}

is_present() {
  local command
  command=$(command_of "$1")
  if [ -n "$command" ] && command -v "$command" >/dev/null; then return 0; fi
  grep -qx "$1 installed" <<<"$installed_packages"
}

# Prints the missing ones of its arguments.
missing_packages() {
  local installed_packages package
  installed_packages=$(dpkg-query -W -f '${Package} ${db:Status-Status}\n' "$@" 2>/dev/null || true)
  for package in "$@"; do
    is_present "$package" || printf '%s ' "$package"
  done
}

apt_get() {
  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    as_root=(sudo)
    [ -t 0 ] || as_root+=(-n)
  fi
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q "$@" </dev/null
}

can_install() {
  command -v apt-get >/dev/null && { [ "$(id -u)" -eq 0 ] || command -v sudo >/dev/null; }
}

need_packages() {
  local missing
  missing=$(missing_packages "$@")
  [ -n "$missing" ] || return 0
  echo "Missing packages: $missing"
  # shellcheck disable=SC2086 # one word per package
  if can_install && { apt_get update || true; } &&
    apt_get install -y --no-install-recommends $missing &&
    [ -z "$(missing_packages "$@")" ]; then
    return 0
  fi
  echo "They cannot be installed from here. As root, on Debian: apt-get install $missing" >&2
  exit 1
}
