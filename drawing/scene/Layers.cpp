// The order in which a window's layers cover each other, from the façade's answers:
// the same rule as that of the library's view with hidden lines removed.
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string_view>
#include <tuple>
#include <utility>

#include "lintavo/geom/Toleranzen.h"

#include "scene/Layers_intern.h"

namespace lintavo::drawing {
namespace {

constexpr long kArtRahmenteile = 1;

enum Lage { kHinterDemRahmen, kRahmen, kVorDemRahmen };

// A pane without a sash frame sits in the rebate of the window's frame, which
// covers it from both sides.
Lage LageOf(const CFeApi& window, long fluegel, ViewSide side) {
  if (window.GetFluegelAnzahlBauteile(kArtRahmenteile, fluegel) == 0) return kHinterDemRahmen;
  return OpensTowards(window, fluegel, side) ? kVorDemRahmen : kHinterDemRahmen;
}

// How near a sash is to the viewer, in whole steps of the smallest length, so that
// the same depth reckoned in two ways compares equal.
double Naehe(const CFeApi& window, long fluegel, ViewSide side) {
  const double tiefe = window.GetFluegelZVersatz(fluegel, side == ViewSide::kInside ? 0 : 1);
  const double schritte = std::round(-tiefe / kNullLaenge);
  return std::isnan(schritte) ? 0.0 : schritte;
}

}  // namespace

bool OpensTowards(const CFeApi& window, long fluegel, ViewSide side) {
  char text[256];
  const long length = window.GetFluegelOeffSeite(fluegel, text);
  const std::string_view oeffSeite(text, static_cast<std::size_t>(std::clamp(length, 0L, 256L)));
  return (oeffSeite == "Au") == (side == ViewSide::kOutside);
}

std::vector<long> LayersFromBehind(const CFeApi& window, ViewSide side) {
  using Key = std::tuple<Lage, double, bool, bool, long>;
  std::vector<std::pair<Key, long>> layers;
  layers.push_back({{kRahmen, 0.0, false, false, 0}, kRahmenEbene});
  const long count = window.GetAnzahlFluegel();
  for (long i = 0; i < count; ++i) {
    // Of leaves at equal depth the one that opens first, then the earlier one, is
    // nearer to the side to which they open.
    const bool towards = OpensTowards(window, i, side);
    const bool nearer = (window.GetFluegelZuerstAufgehend(i) == 1) == towards;
    layers.push_back(
        {{LageOf(window, i, side), Naehe(window, i, side), towards, nearer, towards ? -i : i}, i});
  }
  std::sort(layers.begin(), layers.end());
  std::vector<long> order;
  order.reserve(layers.size());
  for (const auto& layer : layers) order.push_back(layer.second);
  return order;
}

}  // namespace lintavo::drawing
