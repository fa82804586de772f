// How a target reports a broken law: as a crash, so that the input is kept.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>

namespace lintavo::fuzz {

inline void Fordere(const std::string& broken) {
  if (broken.empty()) return;
  std::fprintf(stderr, "BROKEN LAW: %s\n", broken.c_str());
  std::abort();
}

inline void Fordere(bool holds, const char* law) {
  if (!holds) Fordere(law);
}

}  // namespace lintavo::fuzz
