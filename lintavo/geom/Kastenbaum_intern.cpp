// Building the tree of boxes.
#include "lintavo/geom/Kastenbaum_intern.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace lintavo {
namespace {

constexpr std::size_t kBlattgroesse = 8;

XY Mitte(const Kasten& k) {
  return {0.5 * (k.min.x + k.max.x), 0.5 * (k.min.y + k.max.y)};
}

}  // namespace

void Kasten::Erweitern(const XY& p) {
  min = {std::min(min.x, p.x), std::min(min.y, p.y)};
  max = {std::max(max.x, p.x), std::max(max.y, p.y)};
}

void Kasten::Erweitern(const Kasten& k) {
  Erweitern(k.min);
  Erweitern(k.max);
}

Kasten Kasten::Vergroessert(double rand) const {
  return {{min.x - rand, min.y - rand}, {max.x + rand, max.y + rand}};
}

Kastenbaum::Kastenbaum(std::vector<Kasten> kaesten) : kaesten_(std::move(kaesten)) {
  inhalt_.resize(kaesten_.size());
  std::iota(inhalt_.begin(), inhalt_.end(), std::size_t{0});
  if (!kaesten_.empty()) Teilen(0, kaesten_.size());
}

void Kastenbaum::Teilen(std::size_t von, std::size_t bis) {
  const std::size_t nr = aeste_.size();
  aeste_.push_back({{}, von, bis, 0});
  for (std::size_t i = von; i < bis; ++i) aeste_[nr].kasten.Erweitern(kaesten_[inhalt_[i]]);
  if (bis - von <= kBlattgroesse) return;

  // Where the middles lie decides: boxes that all reach across are not told apart along
  // the direction in which they reach.
  Kasten mitten;
  for (std::size_t i = von; i < bis; ++i) mitten.Erweitern(Mitte(kaesten_[inhalt_[i]]));
  const bool entlangX = mitten.max.x - mitten.min.x >= mitten.max.y - mitten.min.y;
  const auto lage = [&](std::size_t i) {
    const XY m = Mitte(kaesten_[i]);
    return entlangX ? m.x : m.y;
  };
  const std::size_t mitte = von + (bis - von) / 2;
  const auto an = [&](std::size_t i) { return inhalt_.begin() + static_cast<std::ptrdiff_t>(i); };
  std::nth_element(an(von), an(mitte), an(bis),
                   [&](std::size_t a, std::size_t b) { return lage(a) < lage(b); });
  Teilen(von, mitte);
  aeste_[nr].zweiter = aeste_.size();
  Teilen(mitte, bis);
}

}  // namespace lintavo
