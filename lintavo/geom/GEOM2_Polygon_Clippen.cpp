// Cutting segments and axes to the polygon.
#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <span>

#include "lintavo/geom/GEOM2_Polygon.h"
#include "lintavo/geom/Streckenteilung_intern.h"
#include "lintavo/geom/Toleranzen.h"
#include "lintavo/geom/Vektor_intern.h"

namespace {

using lintavo::kNullLaenge;
using lintavo::Liste;
using lintavo::Streckenstueck;

/// The longest stretch inside, the first of equals; null when nothing is inside.
const Streckenstueck* LaengstesInnen(std::span<const Streckenstueck> stuecke) {
  const Streckenstueck* laengstes = nullptr;
  for (const Streckenstueck& stueck : stuecke) {
    if (!stueck.innen) continue;
    if (laengstes == nullptr ||
        stueck.bis - stueck.von > laengstes->bis - laengstes->von + kNullLaenge) {
      laengstes = &stueck;
    }
  }
  return laengstes;
}

/// The stretch inside that has most in common with the one asked for; where none has, the
/// nearest to it. Null when nothing is inside.
const Streckenstueck* InnenBei(std::span<const Streckenstueck> stuecke, double von, double bis) {
  const Streckenstueck* naechstes = nullptr;
  double beste = 0.0;
  for (const Streckenstueck& stueck : stuecke) {
    if (!stueck.innen) continue;
    // Less than nothing is the gap between the two.
    const double gemeinsam = std::min(stueck.bis, bis) - std::max(stueck.von, von);
    if (naechstes != nullptr && !(gemeinsam > beste + kNullLaenge)) continue;
    naechstes = &stueck;
    beste = gemeinsam;
  }
  return naechstes;
}

/// The outline as an axis sees it: u along the axis from its start, v to its left, the
/// inside on the left of every edge.
class Achssicht {
 public:
  Achssicht(const GEOM2_Polygon& polygon, const XY& start, const XY& richtung, double laenge,
            double tol, lintavo::Speicher speicher)
      : laenge_(laenge), tol_(tol), ecken_(speicher) {
    ecken_.reserve(polygon.GetEcken().size());
    for (const GEOM2_Eckpunkt& ecke : polygon.GetEcken()) {
      const XY p = lintavo::Differenz(lintavo::Ort(ecke), start);
      ecken_.push_back({lintavo::Skalarprodukt(richtung, p), lintavo::Kreuzprodukt(richtung, p)});
    }
    if (polygon.GetFlaeche() < 0.0) std::reverse(ecken_.begin(), ecken_.end());
  }

  /// Tangent of the cut where the axis ends at u: sinn is +1 at its end, -1 at its start.
  /// False when the axis does not meet the outline there.
  bool Schnitttangens(double u, double d, int sinn, double& tangens) const {
    double kante = 0.0;
    if (!Kantentangens(u, kante)) return false;
    const double grenze = std::tan(lintavo::kGroessterSchnittwinkel * lintavo::kRadiantJeGrad);
    tangens = kante;
    if (d > kNullLaenge) Parallelentangens(u, d, sinn, grenze, tangens);
    tangens = std::clamp(tangens, -grenze, grenze);
    return true;
  }

 private:
  const XY& Danach(std::size_t i) const { return ecken_[i + 1 == ecken_.size() ? 0 : i + 1]; }

  /// Lean of the edge on which (u, 0) lies; of several the one most across the axis. One
  /// that the axis runs along does not end it, unless at its corner another one does.
  bool Kantentangens(double u, double& tangens) const {
    double amStaerksten = -1.0;
    for (std::size_t i = 0; i < ecken_.size(); ++i) {
      if (IstNeben(ecken_[i], Danach(i))) continue;
      const XY p{ecken_[i].x - u, ecken_[i].y};
      const XY weg = lintavo::Differenz(Danach(i), ecken_[i]);
      const double laenge = lintavo::Betrag(weg);
      if (!(laenge > kNullLaenge)) continue;
      const double entlang = -lintavo::Skalarprodukt(p, weg) / laenge;
      const double neben = lintavo::Kreuzprodukt(weg, p) / laenge;
      if (entlang < -2 * tol_ || entlang > laenge + 2 * tol_ || std::fabs(neben) > 2 * tol_) {
        continue;
      }
      const double quer = std::fabs(weg.y) / laenge;
      if (quer * std::min(laenge, laenge_) <= 2 * tol_) continue;
      if (quer <= amStaerksten + lintavo::kParallelSinus) continue;
      amStaerksten = quer;
      tangens = Tangens(weg);
    }
    return amStaerksten >= 0.0;
  }

  /// Whether an edge keeps clear of the axis, as most do: no need to measure it.
  bool IstNeben(const XY& p, const XY& q) const {
    const double weit = 1000 * tol_;
    return (p.y > weit && q.y > weit) || (p.y < -weit && q.y < -weit);
  }

  /// Lean of the line through the points in which the two parallels at d meet the outline;
  /// where only one of them does, through its point and the axis' own. A parallel that
  /// finds the outline only far away has missed the part of it that the axis meets. Nothing
  /// is changed where both miss.
  void Parallelentangens(double u, double d, int sinn, double grenze, double& tangens) const {
    double links = 0.0;
    double rechts = 0.0;
    const auto trifft = [&](double v, double& treffer) {
      return Durchgang(u, v, sinn, treffer) && std::fabs(treffer - u) <= grenze * d;
    };
    const bool trifftLinks = trifft(d, links);
    const bool trifftRechts = trifft(-d, rechts);
    if (!trifftLinks && !trifftRechts) return;
    if (!trifftLinks) links = 2 * u - rechts;
    if (!trifftRechts) rechts = 2 * u - links;
    tangens = (links - rechts) / (2 * d);
  }

  static double Tangens(const XY& weg) {
    if (std::fabs(weg.y) > 0.0) return weg.x / weg.y;
    return std::numeric_limits<double>::max();
  }

  /// Where the parallel at v leaves the polygon (sinn +1) or enters it (-1), nearest to u.
  /// One that runs along an edge does so where the edges before and after it end, so that
  /// it does not matter on which side of the axis the edge lies.
  bool Durchgang(double u, double v, int sinn, double& treffer) const {
    double naechster = std::numeric_limits<double>::infinity();
    for (std::size_t i = 0; i < ecken_.size(); ++i) {
      const XY& von = sinn > 0 ? ecken_[i] : Danach(i);
      const XY& bis = sinn > 0 ? Danach(i) : ecken_[i];
      const double hoehe = bis.y - von.y;
      if (!(hoehe > tol_) || von.y > v + tol_ || bis.y < v - tol_) continue;
      const double anteil = std::clamp((v - von.y) / hoehe, 0.0, 1.0);
      const double hier = von.x + (bis.x - von.x) * anteil;
      if (std::fabs(hier - u) >= naechster) continue;
      naechster = std::fabs(hier - u);
      treffer = hier;
    }
    return std::isfinite(naechster);
  }

  double laenge_;
  double tol_;
  Liste<XY> ecken_;
};

/// How far a point may lie outside and still be inside: an end, which is half way behind
/// the last inside, lies on the outline within twice that.
double Einlass(const GEOM2_Polygon& polygon, double laenge) {
  XY min;
  XY max;
  polygon.GetMinMax(min, max);
  return kNullLaenge + lintavo::kAchsende * std::min(laenge, lintavo::Abstand(min, max));
}

/// Cuts that would cross within d of the axis are leaned back until neither takes more
/// than half of the length.
void KreuzendeSchnitteAufrichten(double laenge, double d, double& anfang, double& ende) {
  if (laenge >= d * std::fabs(ende - anfang)) return;
  const double grenze = laenge / (2 * d);
  anfang = std::clamp(anfang, -grenze, grenze);
  ende = std::clamp(ende, -grenze, grenze);
}

/// Angles that only rounding tells apart stay, so that cutting twice changes nothing.
void WinkelSetzen(double tangens, double& winkel) {
  const double neu = std::atan(tangens) * lintavo::kGradJeRadiant;
  if (!(std::fabs(neu - winkel) <= lintavo::kGleicherWinkel)) winkel = neu;
}

// The piece at a stretch of the axis, or without one the longest. `einseitig` tells that it
// was cut at one end only.
bool EinmalKuerzen(const GEOM2_Polygon& polygon, double d, std::optional<Streckenstueck> bei,
                   GEOM2_Achse& achse, bool& einseitig) {
  const double phi = achse.dWinkel * lintavo::kRadiantJeGrad;
  const XY richtung{std::cos(phi), std::sin(phi)};
  lintavo::Arbeitsspeicher speicher;
  Liste<Streckenstueck> stuecke(&speicher);
  const double tol = Einlass(polygon, achse.dLaenge);
  if (achse.dLaenge >= kNullLaenge) {
    stuecke = lintavo::StreckeTeilen(achse.Start, richtung, achse.dLaenge, polygon, tol, &speicher);
  }
  const Streckenstueck* innen =
      bei.has_value() ? InnenBei(stuecke, bei->von, bei->bis) : LaengstesInnen(stuecke);
  if (innen == nullptr || innen->bis - innen->von < kNullLaenge) {
    achse.dLaenge = 0.0;
    return false;
  }
  const bool ganzerAnfang = innen == &stuecke.front();
  const bool ganzesEnde = innen == &stuecke.back();
  einseitig = ganzerAnfang != ganzesEnde;
  const double von = ganzerAnfang ? 0.0 : innen->von;
  if (!ganzesEnde) {
    achse.dLaenge = innen->bis - von;
  } else if (!ganzerAnfang) {
    achse.dLaenge -= von;
  }
  if (!ganzerAnfang) achse.Start = lintavo::Summe(achse.Start, lintavo::Mal(richtung, von));

  const double breite = std::isfinite(d) ? std::fabs(d) : 0.0;
  const Achssicht sicht(polygon, achse.Start, richtung, achse.dLaenge, tol, &speicher);
  double anfang = std::tan(achse.dWinkelAnfang * lintavo::kRadiantJeGrad);
  double schluss = std::tan(achse.dWinkelEnde * lintavo::kRadiantJeGrad);
  const bool amAnfang = sicht.Schnitttangens(0.0, breite, -1, anfang);
  const bool amEnde = sicht.Schnitttangens(achse.dLaenge, breite, 1, schluss);
  if (amAnfang || amEnde) KreuzendeSchnitteAufrichten(achse.dLaenge, breite, anfang, schluss);
  if (amAnfang) WinkelSetzen(anfang, achse.dWinkelAnfang);
  if (amEnde) WinkelSetzen(schluss, achse.dWinkelEnde);
  return true;
}

bool AufStueckKuerzen(const GEOM2_Polygon& polygon, double d, std::optional<Streckenstueck> bei,
                      GEOM2_Achse& achse) {
  bool einseitig = false;
  if (!EinmalKuerzen(polygon, d, bei, achse, einseitig)) return false;
  // The end that stayed is to rest as that of a shorter axis, too.
  return !einseitig || EinmalKuerzen(polygon, d, std::nullopt, achse, einseitig);
}

}  // namespace

bool GEOM2_Polygon::StreckeClippen(XY& p1, XY& p2) const {
  lintavo::Arbeitsspeicher speicher;
  const Liste<Streckenstueck> stuecke =
      lintavo::StreckeTeilen(p1, p2, *this, kNullLaenge, &speicher);
  const Streckenstueck* innen = LaengstesInnen(stuecke);
  if (innen == nullptr || stuecke.size() == 1) return false;
  const XY a = p1;
  const XY b = p2;
  const double laenge = lintavo::Abstand(a, b);
  if (innen != &stuecke.front()) p1 = lintavo::Zwischenpunkt(a, b, innen->von / laenge);
  if (innen != &stuecke.back()) p2 = lintavo::Zwischenpunkt(a, b, innen->bis / laenge);
  return true;
}

bool GEOM2_Polygon::AchseClippen(GEOM2_Achse& achse, double d) const {
  return AufStueckKuerzen(*this, d, std::nullopt, achse);
}

bool GEOM2_Polygon::AchseClippen(GEOM2_Achse& achse, double d, double von, double bis) const {
  return AufStueckKuerzen(*this, d, Streckenstueck{.von = von, .bis = bis}, achse);
}
