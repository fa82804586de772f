// Boxes sorted into a tree, to find those that meet a given box: what makes a
// picture of many parts cost little more than its parts do one by one.
#pragma once

#include <cstddef>
#include <vector>

#include "lintavo/geom/Toleranzen.h"
#include "lintavo/geom/XY.h"

namespace lintavo {

/// A box with sides along the axes. Empty until it has met a point.
struct Kasten {
  XY min{kLeereBox, kLeereBox};
  XY max{-kLeereBox, -kLeereBox};

  void Erweitern(const XY& p);
  void Erweitern(const Kasten& k);
  /// Grown by `rand` on all sides.
  Kasten Vergroessert(double rand) const;
  /// Touching counts.
  bool Trifft(const Kasten& k) const {
    return min.x <= k.max.x && k.min.x <= max.x && min.y <= k.max.y && k.min.y <= max.y;
  }
};

/// A tree over boxes: halved at the middle box along the direction in which the boxes' own
/// middles lie farther apart, until few are left. Unlike the cells of a grid it does not mind sizes
/// and places that differ much. All boxes must be finite.
class Kastenbaum {
 public:
  Kastenbaum() = default;
  explicit Kastenbaum(std::vector<Kasten> kaesten);

  /// Calls f(index) for every box that meets `k`, in no particular order.
  template <typename F>
  void Suchen(const Kasten& k, F&& f) const {
    SuchenBis(k, [&](std::size_t i) {
      f(i);
      return false;
    });
  }
  /// The same until f(index) is true; tells whether it was.
  template <typename F>
  bool SuchenBis(const Kasten& k, F&& f) const {
    return !aeste_.empty() && SuchenBis(0, k, f);
  }

 private:
  // A branch over inhalt_[von, bis). Its first half is the next branch, its second
  // half the branch `zweiter`; 0 there makes it a leaf.
  struct Ast {
    Kasten kasten;
    std::size_t von = 0;
    std::size_t bis = 0;
    std::size_t zweiter = 0;
  };

  void Teilen(std::size_t von, std::size_t bis);

  // The tree halves, so the recursion is as deep as the number of boxes has bits.
  template <typename F>
  bool SuchenBis(std::size_t nr, const Kasten& k, F& f) const {
    const Ast& ast = aeste_[nr];
    if (!ast.kasten.Trifft(k)) return false;
    if (ast.zweiter != 0) return SuchenBis(nr + 1, k, f) || SuchenBis(ast.zweiter, k, f);
    for (std::size_t i = ast.von; i < ast.bis; ++i) {
      if (kaesten_[inhalt_[i]].Trifft(k) && f(inhalt_[i])) return true;
    }
    return false;
  }

  std::vector<Kasten> kaesten_;
  std::vector<std::size_t> inhalt_;
  std::vector<Ast> aeste_;
};

}  // namespace lintavo
