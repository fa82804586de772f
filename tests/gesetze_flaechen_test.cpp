// Laws of areas: what tiles what, and what lies in what.
#include <algorithm>
#include <cmath>
#include <string>

#include <gtest/gtest.h>

#include "lintavo/geom/PolygonVereinigung.h"
#include "lintavo/geom/Toleranzen.h"

#include "support/Geometrie.h"
#include "support/Gesetze.h"

namespace lintavo::test {
namespace {

// Share of an area, for sums of areas that are the same but for rounding.
constexpr double kFlaechenfehler = 1e-9;
// Points closer than this to an edge are on no definite side of it.
constexpr double kRand = 1e-3;

// An outline and its box, which answers most questions.
class Flaechenstueck {
 public:
  explicit Flaechenstueck(GEOM2_Polygon umriss) : umriss_(std::move(umriss)) {
    umriss_.GetMinMax(low_, high_);
  }

  const GEOM2_Polygon& Umriss() const { return umriss_; }
  bool HatAmRand(const XY& p) const { return IstNahe(p) && umriss_.IsAufRand(p, kRand); }
  // Crossings of a ray to the right; where an outline runs twice along one cut, as around
  // an ellipse, the two passes cancel.
  bool HatInnen(const XY& p) const {
    if (!IstNahe(p)) return false;
    bool innen = false;
    for (int i = 0; i < umriss_.GetAnzahl(); ++i) {
      XY a;
      XY b;
      umriss_.GetKante(i, a, b);
      if ((a.y > p.y) == (b.y > p.y)) continue;
      if (p.x < a.x + (p.y - a.y) * (b.x - a.x) / (b.y - a.y)) innen = !innen;
    }
    return innen;
  }

 private:
  bool IstNahe(const XY& p) const {
    return p.x >= low_.x - kRand && p.x <= high_.x + kRand && p.y >= low_.y - kRand &&
           p.y <= high_.y + kRand;
  }

  GEOM2_Polygon umriss_;
  XY low_;
  XY high_;
};

// Points all over the box of an outline, and around all corners of its parts, where a
// wrong mitre shows.
std::vector<XY> Proben(const GEOM2_Polygon& umriss, const std::vector<GEOM2_Polygon>& teile) {
  constexpr int kRaster = 8;
  constexpr double kUmkreis[] = {0.02, 0.5};
  std::vector<XY> proben;
  XY low;
  XY high;
  umriss.GetMinMax(low, high);
  for (int i = 0; i < kRaster * kRaster; ++i) {
    proben.push_back({low.x + (high.x - low.x) * (i % kRaster + 0.371) / kRaster,
                      low.y + (high.y - low.y) * (i / kRaster + 0.613) / kRaster});
  }
  for (const GEOM2_Polygon& teil : teile) {
    for (int i = 0; i < teil.GetAnzahl(); ++i) {
      const GEOM2_Eckpunkt& ecke = teil.GetEckpunkt(i);
      for (int w = 0; w < 8; ++w) {
        const double winkel = 0.12 + w * 3.141592653589793 / 4.0;
        const double r = kUmkreis[(i + w) % 2];
        proben.push_back({ecke.x + r * std::cos(winkel), ecke.y + r * std::sin(winkel)});
      }
    }
  }
  return proben;
}

// The areas add up to the ring's, and every point of the ring lies in exactly one part,
// every other one in none.
void ErwarteParkett(const CMFensterSatz& satz, const std::string& was) {
  if (!satz.bMitRahmen) return;
  GEOM2_Polygon umrissInnen;
  ASSERT_TRUE(satz.ErzeugeRahmenInnenPolygon(false, umrissInnen)) << was;
  const Flaechenstueck innen(umrissInnen);
  const Flaechenstueck aussen(satz.RahmenPolygon);
  const double ring = aussen.Umriss().GetFlaeche() - innen.Umriss().GetFlaeche();
  const std::vector<GEOM2_Polygon> umrisse = UmrisseVon(satz.RahmenTeile);
  EXPECT_NEAR(Flaeche(umrisse), ring, aussen.Umriss().GetFlaeche() * kFlaechenfehler) << was;

  const std::vector<Flaechenstueck> teile(umrisse.begin(), umrisse.end());
  for (const XY& p : Proben(aussen.Umriss(), umrisse)) {
    const auto amRand = [&](const Flaechenstueck& teil) { return teil.HatAmRand(p); };
    if (aussen.HatAmRand(p) || innen.HatAmRand(p)) continue;
    if (std::any_of(teile.begin(), teile.end(), amRand)) continue;
    const auto anzahl = std::count_if(teile.begin(), teile.end(),
                                      [&](const Flaechenstueck& teil) { return teil.HatInnen(p); });
    ASSERT_EQ(anzahl, aussen.HatInnen(p) && !innen.HatInnen(p) ? 1 : 0)
        << was << " at " << p.x << ", " << p.y;
  }
}

TEST(Gesetze, FramePartsTileTheirRings) {
  JedesFenster([](const Fensterentwurf&, CMFenster& fenster) {
    ErwarteParkett(*fenster.GetRahmenPtr(), "frame");
    for (long i = 0; i < fenster.GetAnzahlFluegel(); ++i) {
      ErwarteParkett(*fenster.GetFluegelPtr(i), "sash " + std::to_string(i));
    }
  });
}

// The outlines from which the frame's outline was made, corners moved by dimensions
// included.
std::vector<GEOM2_Polygon> Grundformen(CMFenster fenster) {
  std::vector<GEOM2_Polygon> formen;
  double extrem = -1e30;
  fenster.GetFluegelGrundformen(formen, extrem);
  double box[4];
  GEOM2_Polygon& umriss = fenster.GetRahmenPtr()->RahmenPolygon;
  EXPECT_TRUE(bPolygoneAddieren(formen, umriss, kVereinigung, box));
  umriss.SetOrientierung(true);
  EXPECT_EQ(fenster.ZusatzMaszRahmenEckenVerschiebungen(formen), nullptr);
  return formen;
}

// The sashes' basic shapes divide the outline; what they enclose without a sash is part
// of it, as the frame has no inner outline there. The frame polygons of the sashes obey
// no such law: by their overlap they lie on each other where there is no mullion.
TEST(Gesetze, TheOutlineIsTheSumOfTheSashes) {
  JedesFenster([](const Fensterentwurf& entwurf, CMFenster& fenster) {
    // What the holes measure is known for the grid as it was drawn.
    if (entwurf.achsenBewegt && entwurf.lochflaeche > 0.0) return;
    const double umriss = fenster.GetRahmenPtr()->RahmenPolygon.GetFlaeche();
    // Sashes that miss each other by up to the tolerance of the union are joined.
    const double fuge = kVereinigung * Umfang(fenster.GetRahmenPtr()->RahmenPolygon);
    EXPECT_NEAR(Flaeche(Grundformen(fenster)) + entwurf.lochflaeche, umriss, fuge);
  });
}

// Area of what two convex, counter-clockwise outlines have in common.
double GemeinsameFlaeche(const GEOM2_Polygon& a, const GEOM2_Polygon& b) {
  std::vector<XY> rest;
  for (int i = 0; i < a.GetAnzahl(); ++i) rest.push_back({a.GetEckpunkt(i).x, a.GetEckpunkt(i).y});
  for (int n = 0; n < b.GetAnzahl(); ++n) {
    XY von;
    XY bis;
    b.GetKante(n, von, bis);
    const auto links = [&](const XY& p) {
      return (bis.x - von.x) * (p.y - von.y) - (bis.y - von.y) * (p.x - von.x);
    };
    std::vector<XY> neu;
    for (std::size_t i = 0; i < rest.size(); ++i) {
      const XY& p = rest[i];
      const XY& q = rest[(i + 1) % rest.size()];
      const double lp = links(p);
      const double lq = links(q);
      if (lp >= 0.0) neu.push_back(p);
      if ((lp > 0.0 && lq < 0.0) || (lp < 0.0 && lq > 0.0)) {
        const double t = lp / (lp - lq);
        neu.push_back({p.x + t * (q.x - p.x), p.y + t * (q.y - p.y)});
      }
    }
    rest = std::move(neu);
  }
  double doppelt = 0.0;
  for (std::size_t i = 0; i < rest.size(); ++i) {
    const XY& p = rest[i];
    const XY& q = rest[(i + 1) % rest.size()];
    doppelt += p.x * q.y - q.x * p.y;
  }
  return 0.5 * doppelt;
}

// Of all bars together, crossings counted once. (No three of them cross in one place.)
double VereinteFlaeche(const std::vector<GEOM2_Polygon>& staebe) {
  double flaeche = Flaeche(staebe);
  for (std::size_t i = 0; i < staebe.size(); ++i) {
    for (std::size_t n = 0; n < i; ++n) flaeche -= GemeinsameFlaeche(staebe[i], staebe[n]);
  }
  return flaeche;
}

// Frame, mullions and what the sashes leave open fill the outline. The rules make that
// so for rectangular sashes without gaps, with one mullion of one width on every common
// edge: a sash side that lies partly on the frame and partly on a mullion moves in by the
// width of one of them, and where mullions meet an arch they end on a chord of it.
TEST(Gesetze, FrameMullionsAndOpeningsFillTheOutline) {
  int geprueft = 0;
  JedesFenster([&](const Fensterentwurf& entwurf, CMFenster& fenster) {
    if (entwurf.luecken || !entwurf.nurRechtecke || !entwurf.ueberallPfosten) return;
    if (!entwurf.rahmenteile.empty()) return;
    ++geprueft;
    const CMFensterSatz& rahmen = *fenster.GetRahmenPtr();
    double summe = Flaeche(UmrisseVon(rahmen.RahmenTeile));
    std::vector<CMBauteil> pfosten = rahmen.EinzelTeile;
    std::erase_if(pfosten, [](const CMBauteil& teil) { return !teil.IsRahmenteil(); });
    summe += VereinteFlaeche(UmrisseVon(pfosten));
    for (long i = 0; i < fenster.GetAnzahlFluegel(); ++i) {
      // Without an overlap the sash's frame polygon is its opening.
      CMFensterSatz fluegel = *fenster.GetFluegelPtr(i);
      fluegel.RahmenVorlage.dBreite2 = 0.0;
      fluegel.RahmenTeile.clear();
      EXPECT_TRUE(fluegel.BerechneRahmenPolygon(fenster.GetRahmenAbschnitt(), 25.0, rahmen,
                                                Grundformen(fenster)[static_cast<std::size_t>(i)]));
      summe += fluegel.RahmenPolygon.GetFlaeche();
    }
    const double umriss = rahmen.RahmenPolygon.GetFlaeche();
    EXPECT_NEAR(summe, umriss, umriss * kFlaechenfehler);
  });
  EXPECT_GT(geprueft, 20);
}

bool LiegtIn(const GEOM2_Polygon& innen, const GEOM2_Polygon& aussen, double tol) {
  for (int i = 0; i < innen.GetAnzahl(); ++i) {
    const GEOM2_Eckpunkt& ecke = innen.GetEckpunkt(i);
    if (!aussen.IsInside({ecke.x, ecke.y}, true, tol)) return false;
  }
  return true;
}

bool IstKonvex(const GEOM2_Polygon& polygon) {
  const int n = polygon.GetAnzahl();
  for (int i = 0; i < n; ++i) {
    const GEOM2_Eckpunkt& a = polygon.GetEckpunkt(i);
    const GEOM2_Eckpunkt& b = polygon.GetEckpunkt((i + 1) % n);
    const GEOM2_Eckpunkt& c = polygon.GetEckpunkt((i + 2) % n);
    if ((b.x - a.x) * (c.y - b.y) - (b.y - a.y) * (c.x - b.x) < 0.0) return false;
  }
  return true;
}

// A sash lies in the frame's outline; its frame reaches past its basic shape by no more
// than the overlap; the basic shapes have no area in common. At a corner of the outline
// that points inwards, and at a ridge, a sash may stand out by its overlap: it moves
// outwards on sides that have no mullion.
TEST(Gesetze, SashesLieInTheFrameAndBesideEachOther) {
  JedesFenster([](const Fensterentwurf& entwurf, CMFenster& fenster) {
    const std::vector<GEOM2_Polygon> formen = Grundformen(fenster);
    const GEOM2_Polygon& umriss = fenster.GetRahmenPtr()->RahmenPolygon;
    const bool konvex = IstKonvex(umriss) && (entwurf.nurRechtecke || entwurf.ueberallPfosten);
    for (std::size_t i = 0; i < formen.size(); ++i) {
      const CMFensterSatz& fluegel = *fenster.GetFluegelPtr(static_cast<long>(i));
      EXPECT_TRUE(!konvex || LiegtIn(fluegel.RahmenPolygon, umriss, 1e-6))
          << "sash " << i << ' ' << Text(fluegel.RahmenPolygon);
      GEOM2_Polygon grenze;
      formen[i].ParallelPolygon(fluegel.RahmenVorlage.dBreite2, grenze);
      EXPECT_TRUE(LiegtIn(fluegel.RahmenPolygon, grenze, 1e-6)) << "sash " << i;
      for (std::size_t n = 0; n < i; ++n) {
        EXPECT_NEAR(GemeinsameFlaeche(formen[i], formen[n]), 0.0, 1e-6 * (1.0 + Umfang(umriss)))
            << i << " and " << n;
      }
    }
  });
}

}  // namespace
}  // namespace lintavo::test
