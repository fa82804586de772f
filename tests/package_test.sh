#!/bin/bash
# Installs this build into an empty prefix and uses it from there as a host
# does: through the CMake package and through pkg-config.
#
# package_test.sh SOURCE_DIR BUILD_DIR CMAKE CXX CXX_FLAGS CC C_FLAGS
set -euo pipefail

source_dir=$1
build_dir=$2
cmake=$3
cxx=$4
flags=$5
cc=$6
c_flags=$7

fail() {
  echo "package_test: $*" >&2
  exit 1
}

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
window="$source_dir/examples/windows/dreiteilig_mit_oberlicht.aqz"

# Installed once and then moved: nothing may remember where it was put first.
"$cmake" --install "$build_dir" --prefix "$scratch/first" >/dev/null
mv "$scratch/first" "$scratch/prefix"
prefix="$scratch/prefix"

if find "$prefix" -name '*_intern.h' | grep .; then
  fail "internal headers are installed"
fi
[ -e "$prefix/include/lintavo/api/CFeApi.h" ] || fail "CFeApi.h is not installed"

# Configures and builds the CMake project in a folder against the prefix.
build_with_cmake() {
  { "$cmake" -S "$1" -B "$1/build" -DCMAKE_PREFIX_PATH="$prefix" \
    -DCMAKE_CXX_COMPILER="$cxx" -DCMAKE_CXX_FLAGS="$flags" \
    -DCMAKE_C_COMPILER="$cc" -DCMAKE_C_FLAGS="$c_flags" &&
    "$cmake" --build "$1/build"; } >"$scratch/log" 2>&1 ||
    { cat "$scratch/log"; fail "$1 cannot be built against the installation"; }
}

# Prints one line per frame part, so a working host prints several.
run_host() {
  local output
  output=$("$1" "$window" 270 190) || fail "$2: the host fails"
  [ "$(grep -c '^part ' <<<"$output")" -ge 3 ] || fail "$2: the host prints: $output"
}

cp -r "$source_dir/examples/host_cpp" "$scratch/host"
build_with_cmake "$scratch/host"
run_host "$scratch/host/build/host" "CMake package"

pc_dir=$(dirname "$(find "$prefix" -name lintavo.pc)")
lib_dir=$(dirname "$pc_dir")
export PKG_CONFIG_PATH="$pc_dir"
pc_flags=$(pkg-config --cflags --libs lintavo) || fail "lintavo.pc is not usable"
# shellcheck disable=SC2086 # both hold several words
"$cxx" $flags "$source_dir/examples/host_cpp/main.cpp" -o "$scratch/pc_host" $pc_flags \
  "-Wl,-rpath,$lib_dir"
run_host "$scratch/pc_host" "pkg-config"

# The C host, by a C compiler alone.
cp -r "$source_dir/examples/host_c" "$scratch/host_c"
build_with_cmake "$scratch/host_c"
run_host "$scratch/host_c/build/host" "CMake package in C"
pc_flags=$(pkg-config --cflags --libs lintavo)
# shellcheck disable=SC2086
"$cc" $c_flags "$source_dir/examples/host_c/host.c" -o "$scratch/pc_host_c" $pc_flags \
  "-Wl,-rpath,$lib_dir"
run_host "$scratch/pc_host_c" "pkg-config in C"

# The drawing library and the command come with their own way to the library.
if [ -e "$prefix/bin/lintavo" ]; then
  "$prefix/bin/lintavo" show "$window" >/dev/null || fail "the installed command fails"

  mkdir "$scratch/painter"
  cat >"$scratch/painter/main.cpp" <<'END'
#include "lintavo/drawing/Picture.h"
#include "lintavo/lintavo.h"

int main(int argc, char** argv) {
  using namespace lintavo::drawing;
  CFeApi window;
  if (argc != 3 || window.ReadFromFile(argv[1]) != 1) return 1;
  return WritePicture(BuildScene(window), PictureFormat::kSvg, argv[2]) == PictureStatus::kOk ? 0 : 1;
}
END
  cat >"$scratch/painter/CMakeLists.txt" <<'END'
cmake_minimum_required(VERSION 3.25)
project(painter LANGUAGES CXX)
find_package(lintavo 1 CONFIG REQUIRED)
add_executable(painter main.cpp)
target_link_libraries(painter PRIVATE lintavo::drawing)
END
  build_with_cmake "$scratch/painter"
  "$scratch/painter/build/painter" "$window" "$scratch/a.svg" || fail "the painter fails"
  pc_flags=$(pkg-config --cflags --libs lintavo-drawing) || fail "lintavo-drawing.pc is not usable"
  # shellcheck disable=SC2086
  "$cxx" $flags "$scratch/painter/main.cpp" -o "$scratch/pc_painter" $pc_flags \
    "-Wl,-rpath,$lib_dir"
  "$scratch/pc_painter" "$window" "$scratch/b.svg" || fail "pkg-config: the painter fails"
  cmp "$scratch/a.svg" "$scratch/b.svg"

  pc_flags=$(pkg-config --cflags --libs lintavo-drawing)
  # shellcheck disable=SC2086
  "$cc" $c_flags -DWITH_PICTURES "$source_dir/examples/host_c/host.c" -o "$scratch/pc_painter_c" \
    $pc_flags "-Wl,-rpath,$lib_dir"
  for host in "$scratch/host_c/build/host" "$scratch/pc_painter_c"; do
    "$host" "$window" 270 190 "$scratch/c.svg" >/dev/null || fail "the painter in C fails"
    [ -s "$scratch/c.svg" ] || fail "the painter in C draws nothing"
    rm "$scratch/c.svg"
  done
fi

# A shared library carries its major version in its name.
for library in liblintavo liblintavo-drawing; do
  if [ -e "$lib_dir/$library.so" ]; then
    [ -e "$lib_dir/$library.so.1" ] || fail "$library.so has no versioned name"
  fi
done
