#include "lintavo/settings/CAcMatEntry.h"

#include <cmath>
#include <cstddef>
#include <cstring>
#include <type_traits>

#include "lintavo/geom/Toleranzen.h"

namespace {

// What is compared: everything before the colour of plane drawings.
constexpr std::size_t kVerglichen = 64;

// Comparing bytes tells equal values only when every byte belongs to a field.
static_assert(std::is_standard_layout_v<CAcMatTyp> && std::is_trivially_copyable_v<CAcMatTyp>);
static_assert(sizeof(float) == 4 && sizeof(int) == 4 && sizeof(COLOR_RGB) == 12);
static_assert(offsetof(CAcMatTyp, fAlpha) == 2 * sizeof(COLOR_RGB));
static_assert(offsetof(CAcMatTyp, iReserve) == 44 && offsetof(CAcMatTyp, iFlags) == 60);
static_assert(offsetof(CAcMatTyp, Rgb2d) == kVerglichen && sizeof(CAcMatTyp) == 76);

bool GleicheSkala(double a, double b) {
  return std::fabs(a - b) <= lintavo::kGleicheTexturskala;
}

}  // namespace

CAcMatEntry::~CAcMatEntry() = default;

// The name plays no part, on purpose: lists that drop equal entries keep one
// for every look, however often a file names it anew.
bool CAcMatEntry::operator==(const CAcMatEntry& other) const {
  return std::memcmp(&Typ, &other.Typ, kVerglichen) == 0 && GleicheSkala(dXSkale, other.dXSkale) &&
         GleicheSkala(dYSkale, other.dYSkale) && iTexturID == other.iTexturID &&
         strTextur == other.strTextur;
}
