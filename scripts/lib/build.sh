# Configuring and building by preset; sourced by the other scripts.
#
# build_preset PRESET [TARGET...] configures only when there is no build tree
# yet or the presets have changed since; the rest is the build system's work.

job_count() { nproc 2>/dev/null || echo 2; }

build_preset() {
  local preset=$1
  shift
  local stamp=build/$preset/configured.stamp
  if [ ! -e "$stamp" ] || [ CMakePresets.json -nt "$stamp" ]; then
    cmake --preset "$preset"
    touch "$stamp"
  fi
  cmake --build --preset "$preset" -j "$(job_count)" ${1:+--target "$@"}
}

run_tests() {
  local preset=$1
  shift
  ctest --preset "$preset" -j "$(job_count)" --no-label-summary "$@"
}
