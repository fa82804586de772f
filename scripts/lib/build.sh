# Configuring and building by preset; sourced by the other scripts.
#
# build_preset PRESET [TARGET...] configures only when there is no build tree
# yet or the presets have changed since; the rest is the build system's work.

job_count() { nproc 2>/dev/null || echo 2; }

configure_preset() {
  local stamp=build/$1/configured.stamp
  if [ ! -e "$stamp" ] || [ CMakePresets.json -nt "$stamp" ]; then
    cmake --preset "$1"
    touch "$stamp"
  fi
}

build_preset() {
  local preset=$1
  shift
  configure_preset "$preset"
  cmake --build --preset "$preset" -j "$(job_count)" ${1:+--target "$@"}
}

run_tests() {
  local preset=$1
  shift
  ctest --preset "$preset" -j "$(job_count)" --no-label-summary "$@"
}
