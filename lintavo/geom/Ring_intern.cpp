// Thinning out rings and finding loops in them.
#include "lintavo/geom/Ring_intern.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <unordered_set>
#include <utility>

#include "lintavo/geom/Toleranzen.h"
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
  Ausduennung(std::span<const XY> ring, std::span<const double> tolLinie, double tolDeckung,
              Speicher speicher)
      : ring_(ring), tolLinie_(tolLinie), tolDeckung_(tolDeckung), glieder_(ring.size(), speicher) {
    for (std::size_t i = 0; i < ring.size(); ++i) {
      glieder_[i].davor = i == 0 ? ring.size() - 1 : i - 1;
      glieder_[i].danach = i + 1 == ring.size() ? 0 : i + 1;
    }
    anzahl_ = ring.size();
  }

  Liste<std::size_t> Ausfuehren() {
    Liste<std::size_t> offen(ring_.size(), glieder_.get_allocator());
    std::iota(offen.rbegin(), offen.rend(), std::size_t{0});
    while (!offen.empty() && anzahl_ >= 3) {
      const std::size_t i = offen.back();
      offen.pop_back();
      if (!glieder_[i].da || !Loeschen(i)) continue;
      offen.push_back(glieder_[i].danach);
      offen.push_back(glieder_[i].davor);
    }
    Liste<std::size_t> noetig(glieder_.get_allocator());
    if (anzahl_ < 3) return noetig;
    noetig.reserve(anzahl_);
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
    if (Abstand(p, ring_[i]) <= tolDeckung_) return false;  // p itself goes, being earlier
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

  std::span<const XY> ring_;
  std::span<const double> tolLinie_;
  double tolDeckung_;
  Liste<Glied> glieder_;
  std::size_t anzahl_ = 0;
};

/// Whether no corner of the ring may go as long as all others are there: so in most rings.
bool SindAlleNoetig(std::span<const XY> ring, std::span<const double> tolLinie, double tolDeckung) {
  if (ring.size() < 3) return false;
  const XY* davor = &ring.back();
  for (std::size_t i = 0; i < ring.size(); ++i) {
    const XY& danach = ring[i + 1 == ring.size() ? 0 : i + 1];
    const XY weg = Differenz(danach, *davor);
    const double laenge = Betrag(weg);
    const double flaeche = std::fabs(Kreuzprodukt(weg, Differenz(ring[i], *davor)));
    if (laenge <= tolDeckung || flaeche / laenge <= tolLinie[i] ||
        Abstand(ring[i], danach) <= tolDeckung) {
      return false;
    }
    davor = &ring[i];
  }
  return true;
}

/// An edge with its extent in x.
struct Spanne {
  std::size_t kante;
  double links;
  double rechts;
};

/// +1 when p lies left of ab, -1 when it lies right of it, 0 within tol or rounding.
int Seite(const XY& a, const XY& b, const XY& p, double tol = 0.0) {
  const XY weg = Differenz(b, a);
  const XY zuP = Differenz(p, a);
  const double flaeche = Kreuzprodukt(weg, zuP);
  const double rauschen = kParallelSinus * (std::fabs(weg.x * zuP.y) + std::fabs(weg.y * zuP.x));
  const double grenze = tol > 0.0 ? std::max(rauschen, tol * Betrag(weg)) : rauschen;
  return flaeche > grenze ? 1 : flaeche < -grenze ? -1 : 0;
}

bool HoehenUeberlappen(const Verbindung& s, const Verbindung& t, double tol) {
  return std::max(s.a.y, s.b.y) + tol >= std::min(t.a.y, t.b.y) &&
         std::max(t.a.y, t.b.y) + tol >= std::min(s.a.y, s.b.y);
}

/// Whether two edges that start in one place go the same way.
bool LiegenAufeinander(const XY& ort, const XY& p, const XY& q, double tol) {
  return Seite(ort, p, q, tol) == 0 && Skalarprodukt(Differenz(p, ort), Differenz(q, ort)) > 0.0;
}

bool KantenBeruehren(const Verbindung& s, const Verbindung& t, double tol) {
  if (!HoehenUeberlappen(s, t, tol)) return false;
  if (s.von == t.von) return LiegenAufeinander(s.a, s.b, t.b, tol);
  if (s.von == t.nach) return LiegenAufeinander(s.a, s.b, t.a, tol);
  if (s.nach == t.von) return LiegenAufeinander(s.b, s.a, t.b, tol);
  if (s.nach == t.nach) return LiegenAufeinander(s.b, s.a, t.a, tol);
  return Seite(s.a, s.b, t.a, tol) * Seite(s.a, s.b, t.b, tol) <= 0 &&
         Seite(t.a, t.b, s.a, tol) * Seite(t.a, t.b, s.b, tol) <= 0;
}

bool DrehtNurEinWeg(std::span<const XY> ring) {
  const XY* a = &ring[ring.size() - 2];
  const XY* b = &ring.back();
  int richtung = 0;
  for (const XY& c : ring) {
    const int seite = Seite(*a, *b, c);
    if (seite == 0 || seite * richtung < 0) return false;
    richtung = seite;
    a = b;
    b = &c;
  }
  return true;
}

/// How often a walk round the ring turns from going right to going left, or back.
int Kehren(std::span<const XY> ring) {
  int kehren = 0;
  double letztes = 0.0;
  // The first walk only tells where the last side before the second one goes.
  for (const int umlauf : {1, 2}) {
    const XY* a = &ring.back();
    for (const XY& b : ring) {
      const double dx = b.x - a->x;
      if (umlauf == 2 && dx * letztes < 0.0) ++kehren;
      if (dx < 0.0 || dx > 0.0) letztes = dx < 0.0 ? -1.0 : 1.0;
      a = &b;
    }
  }
  return kehren;
}

}  // namespace

bool IstKonvex(std::span<const XY> ring) {
  return DrehtNurEinWeg(ring) && Kehren(ring) <= 2;
}

Liste<std::size_t> NoetigeEcken(std::span<const XY> ring, std::span<const double> tolLinie,
                                double tolDeckung, Speicher speicher) {
  if (!SindAlleNoetig(ring, tolLinie, tolDeckung)) {
    return Ausduennung(ring, tolLinie, tolDeckung, speicher).Ausfuehren();
  }
  Liste<std::size_t> alle(ring.size(), speicher);
  std::iota(alle.begin(), alle.end(), std::size_t{0});
  return alle;
}

std::vector<std::pair<std::size_t, std::size_t>> Beruehrungen(std::span<const Verbindung> kanten,
                                                              std::size_t hoechstens, double tol) {
  Arbeitsspeicher speicher;
  Liste<Spanne> spannen(&speicher);
  spannen.reserve(kanten.size());
  for (std::size_t i = 0; i < kanten.size(); ++i) {
    const Verbindung& k = kanten[i];
    spannen.push_back({i, std::min(k.a.x, k.b.x), std::max(k.a.x, k.b.x)});
  }
  std::sort(spannen.begin(), spannen.end(),
            [](const Spanne& s, const Spanne& t) { return s.links < t.links; });
  std::vector<std::pair<std::size_t, std::size_t>> paare;
  for (std::size_t i = 0; i < spannen.size(); ++i) {
    for (std::size_t j = i + 1; j < spannen.size() && spannen[j].links <= spannen[i].rechts + tol;
         ++j) {
      if (!KantenBeruehren(kanten[spannen[i].kante], kanten[spannen[j].kante], tol)) continue;
      paare.emplace_back(spannen[i].kante, spannen[j].kante);
      if (paare.size() > hoechstens) return paare;
    }
  }
  return paare;
}

void VerbindungenAnhaengen(std::span<const XY> ring, std::size_t ersterOrt,
                           std::vector<Verbindung>& kanten) {
  for (std::size_t i = 0; i < ring.size(); ++i) {
    const std::size_t j = i + 1 == ring.size() ? 0 : i + 1;
    kanten.push_back({ring[i], ring[j], ersterOrt + i, ersterOrt + j});
  }
}

bool IstEinfach(std::span<const XY> ring) {
  if (ring.size() < 3) return false;
  if (IstKonvex(ring)) return true;
  std::vector<Verbindung> kanten;
  kanten.reserve(ring.size());
  VerbindungenAnhaengen(ring, 0, kanten);
  return Beruehrungen(kanten, 0, kNullLaenge).empty();
}

std::vector<std::vector<std::size_t>> AnBeruehrungenTeilen(std::span<const std::size_t> orte) {
  std::vector<std::size_t> geordnet(orte.begin(), orte.end());
  std::sort(geordnet.begin(), geordnet.end());
  if (std::adjacent_find(geordnet.begin(), geordnet.end()) == geordnet.end()) {
    std::iota(geordnet.begin(), geordnet.end(), std::size_t{0});
    return {std::move(geordnet)};
  }
  std::vector<std::vector<std::size_t>> teile;
  std::vector<std::size_t> stapel;
  std::unordered_set<std::size_t> offen;
  const auto abheben = [&](std::size_t bisOrt) {
    std::vector<std::size_t> teil;
    while (!stapel.empty()) {
      teil.push_back(stapel.back());
      stapel.pop_back();
      offen.erase(orte[teil.back()]);
      if (orte[teil.back()] == bisOrt) break;
    }
    std::reverse(teil.begin(), teil.end());
    if (teil.size() > 2) teile.push_back(std::move(teil));
  };
  for (std::size_t i = 0; i < orte.size(); ++i) {
    if (offen.count(orte[i]) > 0) abheben(orte[i]);
    stapel.push_back(i);
    offen.insert(orte[i]);
  }
  if (!stapel.empty()) abheben(orte[stapel.front()]);
  return teile;
}

namespace {

double Ringumfang(std::span<const XY> ring) {
  double umfang = 0.0;
  for (std::size_t i = 0; i < ring.size(); ++i) {
    umfang += Abstand(ring[i], ring[i + 1 == ring.size() ? 0 : i + 1]);
  }
  return umfang;
}

}  // namespace

double Ringflaeche(std::span<const XY> ring) {
  double summe = 0.0;
  for (std::size_t i = 1; i + 1 < ring.size(); ++i) {
    summe += Kreuzprodukt(Differenz(ring[i], ring[0]), Differenz(ring[i + 1], ring[0]));
  }
  return summe / 2;
}

double Ringbreite(std::span<const XY> ring) {
  const double umfang = Ringumfang(ring);
  return umfang > 0.0 ? 2 * Ringflaeche(ring) / umfang : 0.0;
}

Ringwahl RingwahlVon(std::span<const XY> ring, std::vector<std::size_t> quellen) {
  Ringwahl wahl{Ringflaeche(ring), Ringumfang(ring), std::move(quellen)};
  std::sort(wahl.quellen.begin(), wahl.quellen.end());
  return wahl;
}

std::size_t Groesster(std::span<const Ringwahl> ringe) {
  const auto kleiner = [](const Ringwahl& a, const Ringwahl& b) { return a.flaeche < b.flaeche; };
  const auto groesster = std::max_element(ringe.begin(), ringe.end(), kleiner);
  if (groesster == ringe.end() || !(groesster->flaeche > 0.0)) return ringe.size();
  const double gleich = groesster->flaeche - kGleicheFlaeche * groesster->umfang;
  std::size_t gewaehlt = ringe.size();
  for (std::size_t i = 0; i < ringe.size(); ++i) {
    if (ringe[i].flaeche < gleich || !(ringe[i].flaeche > 0.0)) continue;
    if (gewaehlt == ringe.size() || ringe[i].quellen < ringe[gewaehlt].quellen) gewaehlt = i;
  }
  return gewaehlt;
}

}  // namespace lintavo
