// Catching: vertex to vertex first, then vertex to edge.
#include "lintavo/geom/Fangen_intern.h"

#include <algorithm>
#include <cmath>

#include "lintavo/geom/Punktraster_intern.h"
#include "lintavo/geom/Vektor_intern.h"

namespace lintavo {
namespace {

/// A place is no larger than this many tolerances, however many corners chain up.
constexpr double kGroessterTreffpunkt = 3.0;
/// A gap of exactly the tolerance is still caught after rotation.
constexpr double kSpielraum = 1.0 + 1e-6;
constexpr std::size_t kMehrere = static_cast<std::size_t>(-1);

/// Corners of different shapes that share a place; its place is that of the lowest.
class Treffpunkte {
 public:
  Treffpunkte(std::span<const Formecke> ecken, Speicher speicher)
      : gruppen_(ecken.size(), speicher) {
    for (std::size_t i = 0; i < ecken.size(); ++i) {
      gruppen_[i] = {i, ecken[i].ort, ecken[i].ort, ecken[i].form};
    }
  }

  std::size_t Ort(std::size_t i) {
    while (gruppen_[i].oben != i) {
      gruppen_[i].oben = gruppen_[gruppen_[i].oben].oben;
      i = gruppen_[i].oben;
    }
    return i;
  }

  void Verbinden(std::size_t i, std::size_t j, double groesste) {
    i = Ort(i);
    j = Ort(j);
    if (i == j) return;
    if (j < i) std::swap(i, j);
    Gruppe& a = gruppen_[i];
    const Gruppe& b = gruppen_[j];
    const XY min{std::min(a.min.x, b.min.x), std::min(a.min.y, b.min.y)};
    const XY max{std::max(a.max.x, b.max.x), std::max(a.max.y, b.max.y)};
    if (Abstand(min, max) > groesste) return;
    gruppen_[j].oben = i;
    a = {i, min, max, a.form == b.form ? a.form : kMehrere};
  }

  /// The one shape that has corners at this place, or kMehrere.
  std::size_t Form(std::size_t ort) const { return gruppen_[ort].form; }

 private:
  struct Gruppe {
    std::size_t oben;
    XY min;
    XY max;
    std::size_t form;
  };
  Liste<Gruppe> gruppen_;
};

/// A place on its way along an edge.
struct Auffaedelung {
  double t;
  std::size_t ort;
};

class Fang {
 public:
  Fang(std::span<const Formecke> ecken, double tol, Speicher speicher)
      : ecken_(ecken),
        tol_(tol * kSpielraum),
        speicher_(speicher),
        treffpunkte_(ecken, speicher),
        orte_(speicher),
        einzelne_(speicher),
        einzelneNr_(speicher) {
    orte_.reserve(ecken.size());
    for (const Formecke& ecke : ecken) orte_.push_back(ecke.ort);
  }

  void EckenVerbinden() {
    const Punktraster raster(orte_, speicher_);
    for (std::size_t i = 0; i < ecken_.size(); ++i) {
      const XY& p = ecken_[i].ort;
      raster.InBox({p.x - tol_, p.y - tol_}, {p.x + tol_, p.y + tol_}, [&](std::size_t j) {
        if (j <= i || ecken_[j].form == ecken_[i].form) return;
        if (Abstand(p, ecken_[j].ort) > tol_) return;
        treffpunkte_.Verbinden(i, j, kGroessterTreffpunkt * tol_);
      });
    }
  }

  Liste<Fangecke> Ring(const Liste<std::size_t>& ring, const Liste<std::size_t>& kanten) {
    Liste<Fangecke> gefangen(speicher_);
    gefangen.reserve(ring.size());
    for (std::size_t k = 0; k < ring.size(); ++k) {
      const std::size_t ort = treffpunkte_.Ort(ring[k]);
      if (!gefangen.empty() && gefangen.back().ort == ort) gefangen.pop_back();
      gefangen.push_back({ort, ring[k], kanten[k], false});
    }
    while (gefangen.size() > 1 && gefangen.back().ort == gefangen.front().ort) gefangen.pop_back();
    if (gefangen.size() < 3) gefangen.clear();
    return gefangen;
  }

  /// The places of all corners that remain, each once.
  void OrteSammeln(const Liste<Liste<Fangecke>>& ringe) {
    Liste<bool> gesehen(ecken_.size(), false, speicher_);
    einzelne_.reserve(ecken_.size());
    einzelneNr_.reserve(ecken_.size());
    for (const Liste<Fangecke>& ring : ringe) {
      for (const Fangecke& ecke : ring) {
        if (gesehen[ecke.ort]) continue;
        gesehen[ecke.ort] = true;
        einzelneNr_.push_back(ecke.ort);
        einzelne_.push_back(orte_[ecke.ort]);
      }
    }
  }

  /// Puts onto every edge of the ring the places of other shapes that lie on it.
  Liste<Fangecke> Einfuegen(const Liste<Fangecke>& ring, const Punktraster& raster,
                            Liste<bool>& treffpunkt) {
    Liste<Fangecke> voll(speicher_);
    voll.reserve(ring.size() * 2);
    Liste<Auffaedelung> faden(speicher_);
    for (std::size_t k = 0; k < ring.size(); ++k) {
      voll.push_back(ring[k]);
      const Fangecke& danach = ring[(k + 1) % ring.size()];
      Auffaedeln(ring[k].ort, danach.ort, ecken_[ring[k].ecke].form, raster, faden);
      for (const Auffaedelung& perle : faden) {
        treffpunkt[perle.ort] = true;
        voll.push_back({perle.ort, ring[k].ecke, ring[k].kante, true});
      }
    }
    return voll;
  }

  std::span<const XY> EinzelneOrte() const { return einzelne_; }
  bool IstTreffpunkt(std::size_t ort) const { return treffpunkte_.Form(ort) == kMehrere; }

 private:
  void Auffaedeln(std::size_t von, std::size_t bis, std::size_t form, const Punktraster& raster,
                  Liste<Auffaedelung>& faden) const {
    faden.clear();
    const XY& a = orte_[von];
    const XY& b = orte_[bis];
    const double laenge = Abstand(a, b);
    const XY richtung = Einheit(Differenz(b, a));
    const XY min{std::min(a.x, b.x) - tol_, std::min(a.y, b.y) - tol_};
    const XY max{std::max(a.x, b.x) + tol_, std::max(a.y, b.y) + tol_};
    raster.InBox(min, max, [&](std::size_t k) {
      const std::size_t ort = einzelneNr_[k];
      if (ort == von || ort == bis || treffpunkte_.Form(ort) == form) return;
      const XY weg = Differenz(orte_[ort], a);
      const double t = Skalarprodukt(weg, richtung);
      if (t <= 0.0 || t >= laenge || std::fabs(Kreuzprodukt(richtung, weg)) > tol_) return;
      faden.push_back({t, ort});
    });
    std::sort(faden.begin(), faden.end(), [](const Auffaedelung& s, const Auffaedelung& t) {
      return s.t != t.t ? s.t < t.t : s.ort < t.ort;  // exact: only to order them
    });
  }

  std::span<const Formecke> ecken_;
  double tol_;
  Speicher speicher_;
  Treffpunkte treffpunkte_;
  Liste<XY> orte_;
  Liste<XY> einzelne_;
  Liste<std::size_t> einzelneNr_;
};

}  // namespace

Fangergebnis FormenFangen(std::span<const Formecke> ecken,
                          std::span<const Liste<std::size_t>> ringe,
                          std::span<const Liste<std::size_t>> kanten, double tol,
                          Speicher speicher) {
  Fang fang(ecken, tol, speicher);
  fang.EckenVerbinden();
  Liste<Liste<Fangecke>> gefangen(speicher);
  gefangen.reserve(ringe.size());
  for (std::size_t f = 0; f < ringe.size(); ++f) gefangen.push_back(fang.Ring(ringe[f], kanten[f]));

  fang.OrteSammeln(gefangen);
  Fangergebnis ergebnis{Liste<Liste<Fangecke>>(speicher),
                        Liste<bool>(ecken.size(), false, speicher)};
  for (std::size_t i = 0; i < ecken.size(); ++i) ergebnis.treffpunkt[i] = fang.IstTreffpunkt(i);
  const Punktraster raster(fang.EinzelneOrte(), speicher);
  ergebnis.ringe.reserve(gefangen.size());
  for (const Liste<Fangecke>& ring : gefangen) {
    ergebnis.ringe.push_back(fang.Einfuegen(ring, raster, ergebnis.treffpunkt));
  }
  return ergebnis;
}

}  // namespace lintavo
