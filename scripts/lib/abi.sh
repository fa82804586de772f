# What a shared library shows to its hosts; sourced by scripts and tests.

# Prints every exported function and object of a library, readable and sorted.
# Weak ones are left out: they come from inline code, which hosts compile for
# themselves, and differ between compilers. The sizes of types are not seen here.
exported_symbols() {
  nm --dynamic --defined-only --demangle "$1" |
    sed -nE '/ (vtable|typeinfo|typeinfo name|VTT) for /d; s/^[0-9a-f]+ [TDRB] //p' | LC_ALL=C sort -u
}

# The list that a library is checked against.
symbol_list() { echo "tests/abi/$(basename "$1" .so).txt"; }
