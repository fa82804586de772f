// Thinning out rings and finding loops in them.
#include "lintavo/geom/Ring_intern.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "lintavo/geom/Vektor_intern.h"

namespace lintavo {
namespace {

/// Runs of dropped corners up to this length are measured corner by corner; longer
/// ones by a bound, so that thousands of corners on one line cost no square.
constexpr std::size_t kGenauGemessen = 32;

double AbstandVonGerade(const XY& a, const XY& b, const XY& p) {
  const XY weg = Differenz(b, a);
  return std::fabs(Kreuzprodukt(weg, Differenz(p, a))) / Betrag(weg);
}

class Ausduennung {
 public:
  Ausduennung(const std::vector<XY>& ring, const std::vector<double>& tolLinie, double tolDeckung)
      : ring_(ring), tolLinie_(tolLinie), tolDeckung_(tolDeckung), glieder_(ring.size()) {
    for (std::size_t i = 0; i < ring.size(); ++i) {
      glieder_[i].davor = i == 0 ? ring.size() - 1 : i - 1;
      glieder_[i].danach = i + 1 == ring.size() ? 0 : i + 1;
    }
    anzahl_ = ring.size();
  }

  std::vector<std::size_t> Ausfuehren() {
    std::vector<std::size_t> offen(ring_.size());
    std::iota(offen.rbegin(), offen.rend(), std::size_t{0});
    while (!offen.empty() && anzahl_ >= 3) {
      const std::size_t i = offen.back();
      offen.pop_back();
      if (!glieder_[i].da || !Loeschen(i)) continue;
      offen.push_back(glieder_[i].danach);
      offen.push_back(glieder_[i].davor);
    }
    std::vector<std::size_t> noetig;
    if (anzahl_ < 3) return noetig;
    for (std::size_t i = 0; i < ring_.size(); ++i) {
      if (glieder_[i].da) noetig.push_back(i);
    }
    return noetig;
  }

 private:
  /// A corner that is still there knows how far the dropped ones up to the next one
  /// stray from its edge.
  struct Glied {
    std::size_t davor = 0;
    std::size_t danach = 0;
    double abweichung = 0.0;
    bool da = true;
    bool spitze = false;
  };

  bool Loeschen(std::size_t i) {
    const Glied& glied = glieder_[i];
    const XY& p = ring_[glied.davor];
    const XY& n = ring_[glied.danach];
    if (Abstand(ring_[i], n) <= tolDeckung_) {
      Aushaengen(i, std::max(glied.abweichung, glieder_[glied.davor].abweichung) + tolDeckung_);
      return true;
    }
    if (Abstand(p, n) <= tolDeckung_) {
      glieder_[i].spitze = true;
      Aushaengen(i, 0.0);
      return true;
    }
    const double eigene = AbstandVonGerade(p, n, ring_[i]);
    if (!(eigene <= tolLinie_[i])) return false;
    double abweichung = 0.0;
    if (!VerlaufPasst(i, eigene, abweichung)) return false;
    Aushaengen(i, abweichung);
    return true;
  }

  /// Whether the corners dropped on both sides of i still fit once i is gone, too.
  bool VerlaufPasst(std::size_t i, double eigene, double& abweichung) const {
    const std::size_t p = glieder_[i].davor;
    const std::size_t n = glieder_[i].danach;
    const std::size_t laenge = (n + ring_.size() - p) % ring_.size();
    if (laenge > kGenauGemessen) {
      abweichung = std::max(glieder_[p].abweichung, glieder_[i].abweichung) + eigene;
      return abweichung <= std::max(tolLinie_[i], tolDeckung_);
    }
    abweichung = eigene;
    for (std::size_t k = p; (k = k + 1 == ring_.size() ? 0 : k + 1) != n;) {
      if (glieder_[k].spitze) continue;
      const double andere = AbstandVonGerade(ring_[p], ring_[n], ring_[k]);
      if (andere > std::max(tolLinie_[k], tolDeckung_)) return false;
      abweichung = std::max(abweichung, andere);
    }
    return true;
  }

  void Aushaengen(std::size_t i, double abweichung) {
    Glied& glied = glieder_[i];
    glied.da = false;
    glieder_[glied.davor].danach = glied.danach;
    glieder_[glied.davor].abweichung = abweichung;
    glieder_[glied.danach].davor = glied.davor;
    --anzahl_;
  }

  const std::vector<XY>& ring_;
  const std::vector<double>& tolLinie_;
  double tolDeckung_;
  std::vector<Glied> glieder_;
  std::size_t anzahl_ = 0;
};

/// An edge of a ring with its extent in x.
struct Ringkante {
  XY a;
  XY b;
  double links;
  double rechts;
  std::size_t nr;
};

int Seite(const XY& a, const XY& b, const XY& p) {
  const XY weg = Differenz(b, a);
  const XY zuP = Differenz(p, a);
  const double flaeche = Kreuzprodukt(weg, zuP);
  const double rauschen = kParallelSinus * (std::fabs(weg.x * zuP.y) + std::fabs(weg.y * zuP.x));
  return flaeche > rauschen ? 1 : flaeche < -rauschen ? -1 : 0;
}

bool HoehenUeberlappen(const Ringkante& s, const Ringkante& t) {
  return std::max(s.a.y, s.b.y) >= std::min(t.a.y, t.b.y) &&
         std::max(t.a.y, t.b.y) >= std::min(s.a.y, s.b.y);
}

bool KantenBeruehren(const Ringkante& s, const Ringkante& t) {
  return HoehenUeberlappen(s, t) && Seite(s.a, s.b, t.a) * Seite(s.a, s.b, t.b) <= 0 &&
         Seite(t.a, t.b, s.a) * Seite(t.a, t.b, s.b) <= 0;
}

/// Whether the corner b between two edges folds back onto the first one.
bool IstFalte(const XY& a, const XY& b, const XY& c) {
  return Seite(a, b, c) == 0 && Skalarprodukt(Differenz(b, a), Differenz(c, b)) < 0.0;
}

/// Turning one way only and coming round once: a ring like that needs no search.
bool IstKonvex(const std::vector<XY>& ring) {
  int richtung = 0;
  int wechsel = 0;
  double letztesDx = 0.0;
  const std::size_t n = ring.size();
  for (std::size_t i = 0; i < 2 * n; ++i) {
    const XY& a = ring[i % n];
    const XY& b = ring[(i + 1) % n];
    const int seite = Seite(a, b, ring[(i + 2) % n]);
    if (seite == 0 || seite * richtung < 0) return false;
    richtung = seite;
    const double dx = b.x - a.x;
    if (i >= n && dx * letztesDx < 0.0) ++wechsel;
    if (dx < 0.0 || dx > 0.0) letztesDx = dx < 0.0 ? -1.0 : 1.0;
  }
  return wechsel <= 2;
}

std::vector<Ringkante> NachLinksGeordnet(const std::vector<XY>& ring) {
  std::vector<Ringkante> kanten;
  kanten.reserve(ring.size());
  for (std::size_t i = 0; i < ring.size(); ++i) {
    const XY& a = ring[i];
    const XY& b = ring[i + 1 == ring.size() ? 0 : i + 1];
    kanten.push_back({a, b, std::min(a.x, b.x), std::max(a.x, b.x), i});
  }
  std::sort(kanten.begin(), kanten.end(),
            [](const Ringkante& s, const Ringkante& t) { return s.links < t.links; });
  return kanten;
}

}  // namespace

std::vector<std::size_t> NoetigeEcken(const std::vector<XY>& ring,
                                      const std::vector<double>& tolLinie, double tolDeckung) {
  return Ausduennung(ring, tolLinie, tolDeckung).Ausfuehren();
}

bool IstEinfach(const std::vector<XY>& ring) {
  const std::size_t n = ring.size();
  if (n < 3) return false;
  if (IstKonvex(ring)) return true;
  for (std::size_t i = 0; i < n; ++i) {
    if (IstFalte(ring[i], ring[(i + 1) % n], ring[(i + 2) % n])) return false;
  }
  const std::vector<Ringkante> kanten = NachLinksGeordnet(ring);
  for (std::size_t i = 0; i < n; ++i) {
    for (std::size_t j = i + 1; j < n && kanten[j].links <= kanten[i].rechts; ++j) {
      const std::size_t weit = (kanten[i].nr + n - kanten[j].nr) % n;
      if (weit == 1 || weit == n - 1) continue;
      if (KantenBeruehren(kanten[i], kanten[j])) return false;
    }
  }
  return true;
}

double Ringflaeche(const std::vector<XY>& ring) {
  double summe = 0.0;
  for (std::size_t i = 1; i + 1 < ring.size(); ++i) {
    summe += Kreuzprodukt(Differenz(ring[i], ring[0]), Differenz(ring[i + 1], ring[0]));
  }
  return summe / 2;
}

}  // namespace lintavo
