// Following a ring of moving sides: a linked ring, and a queue of the moments at which
// its sides vanish.
#include "lintavo/geom/Versatzfront_intern.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <queue>

#include "lintavo/geom/Toleranzen.h"
#include "lintavo/geom/Vektor_intern.h"
#include "lintavo/geom/Versatzecke_intern.h"

namespace lintavo {
namespace {

/// A place that moves evenly from von to bis.
struct Bahn {
  XY von;
  XY bis;
};

class Front {
 public:
  Front(const Liste<Frontseite>& seiten, std::span<const XY> ecken, double weite)
      : seiten_(seiten, seiten.get_allocator()),
        glieder_(seiten.size(), seiten.get_allocator()),
        weite_(weite),
        anzahl_(seiten.size()),
        warteschlange_(std::greater<>{}, Liste<Ereignis>(seiten.get_allocator())) {
    const std::size_t n = seiten.size();
    for (std::size_t i = 0; i < n; ++i) {
      const std::size_t davor = i == 0 ? n - 1 : i - 1;
      glieder_[i].davor = davor;
      glieder_[i].danach = i + 1 == n ? 0 : i + 1;
      glieder_[i].ecke = {seiten[i].quelle.vorn.punkt, ecken[i]};
      glieder_[i].wendung = Wendung(seiten[davor], seiten[i]);
    }
    for (std::size_t i = 0; i < n; ++i) Erwarten(i);
  }

  void Ablaufen() {
    while (!warteschlange_.empty()) {
      const Ereignis e = warteschlange_.top();
      warteschlange_.pop();
      if (!glieder_[e.seite].da || glieder_[e.seite].stand != e.stand) continue;
      if (anzahl_ <= 3) {
        anzahl_ = 0;
        return;
      }
      Verschwinden(e.seite, e.moment);
    }
  }

  GeschlosseneKette Ergebnis() const {
    GeschlosseneKette ergebnis{Liste<Kettenecke>(glieder_.get_allocator())};
    if (anzahl_ < 3) return ergebnis;
    for (std::size_t i = 0; i < glieder_.size(); ++i) {
      if (!glieder_[i].da) continue;
      ergebnis.ecken.push_back({glieder_[i].ecke.bis, i});
      ergebnis.gedreht = ergebnis.gedreht || Laenge(i, 1.0) < -kNullLaenge;
    }
    return ergebnis;
  }

 private:
  struct Glied {
    std::size_t davor = 0;
    std::size_t danach = 0;
    Bahn ecke;             ///< in which the side starts
    double wendung = 0.0;  ///< there, with those of the sides that were dropped there
    unsigned stand = 0;    ///< counts the changes of the side's ends
    bool da = true;
  };

  struct Ereignis {
    double moment;
    std::size_t seite;
    unsigned stand;
    bool operator>(const Ereignis& e) const {
      if (moment > e.moment) return true;
      return !(moment < e.moment) && seite > e.seite;
    }
  };

  static double Wendung(const Frontseite& von, const Frontseite& nach) {
    const XY& a = von.ziel.richtung;
    const XY& b = nach.ziel.richtung;
    return std::atan2(Kreuzprodukt(a, b), Skalarprodukt(a, b));
  }

  XY Ecke(std::size_t i, double moment) const {
    return Zwischenpunkt(glieder_[i].ecke.von, glieder_[i].ecke.bis, moment);
  }

  /// Negative when the side is turned round.
  double Laenge(std::size_t i, double moment) const {
    return Skalarprodukt(Differenz(Ecke(glieder_[i].danach, moment), Ecke(i, moment)),
                         Einheit(seiten_[i].ziel.richtung));
  }

  /// Puts the moment at which side i vanishes into the queue, if it does.
  void Erwarten(std::size_t i) {
    const double l0 = Laenge(i, 0.0);
    const double l1 = Laenge(i, 1.0);
    const bool verschwindet = l1 < -kNullLaenge || (l1 < kNullLaenge && l0 > kNullLaenge);
    if (!verschwindet) return;
    const double moment = l0 > 0.0 ? std::min(l0 / (l0 - l1), 1.0) : 0.0;
    warteschlange_.push({moment, i, glieder_[i].stand});
  }

  void Aushaengen(std::size_t i) {
    Glied& glied = glieder_[i];
    glieder_[glied.davor].danach = glied.danach;
    glieder_[glied.danach].davor = glied.davor;
    glieder_[glied.danach].wendung += glied.wendung;
    glied.da = false;
    --anzahl_;
  }

  void NeuErwarten(std::size_t i) {
    ++glieder_[i].stand;
    Erwarten(i);
  }

  /// Where side p ends and q starts when they are neighbours; nothing for parallel ones.
  std::optional<Bahn> Treffpunkt(std::size_t p, std::size_t q) const {
    Bahn bahn;
    if (!GeradenSchneiden(seiten_[p].quelle.hinten, seiten_[q].quelle.vorn, bahn.von) ||
        !GeradenSchneiden(seiten_[p].ziel.hinten, seiten_[q].ziel.vorn, bahn.bis)) {
      return std::nullopt;
    }
    return bahn;
  }

  /// Makes q start at the end of the side before it.
  void Anschliessen(std::size_t q, const Bahn& ecke) {
    glieder_[q].ecke = ecke;
    NeuErwarten(glieder_[q].davor);
    NeuErwarten(q);
  }

  void Verschwinden(std::size_t i, double moment) {
    const std::size_t p = glieder_[i].davor;
    const std::size_t q = glieder_[i].danach;
    const double wendung = glieder_[i].wendung + glieder_[q].wendung;
    const double fehlt = kPi - std::fabs(wendung);
    if (std::fabs(fehlt) <= kHalbeDrehung) return Falten(i, moment);
    if (fehlt < 0.0) return;
    const std::optional<Bahn> ecke = Treffpunkt(p, q);
    if (!ecke) return Verbinden(i);
    const bool stufe = glieder_[i].wendung * glieder_[q].wendung < 0.0;
    if (stufe && Abstand(ecke->bis, Ecke(i, moment)) > kGehrungsgrenze * weite_) return;
    Aushaengen(i);
    Anschliessen(q, *ecke);
  }

  /// Side i lies between neighbours that have come to run back along each other.
  void Falten(std::size_t i, double moment) {
    std::size_t p = glieder_[i].davor;
    std::size_t q = glieder_[i].danach;
    const std::size_t kurz = Laenge(p, moment) < Laenge(q, moment) ? p : q;
    const std::size_t vor = kurz == p ? glieder_[p].davor : p;
    const std::size_t nach = kurz == q ? glieder_[q].danach : q;
    const std::optional<Bahn> ecke = Treffpunkt(vor, nach);
    if (!ecke) return;
    Aushaengen(i);
    Aushaengen(kurz);
    Anschliessen(nach, *ecke);
  }

  /// Side i lies between parallel neighbours: on one line they become one side.
  void Verbinden(std::size_t i) {
    const std::size_t p = glieder_[i].davor;
    const std::size_t q = glieder_[i].danach;
    const Gerade& davor = seiten_[p].ziel.hinten;
    const double neben =
        Kreuzprodukt(Einheit(davor.richtung), Differenz(seiten_[q].ziel.vorn.punkt, davor.punkt));
    if (std::fabs(neben) > kNullLaenge) return;
    seiten_[p].quelle.hinten = seiten_[q].quelle.hinten;
    seiten_[p].ziel.hinten = seiten_[q].ziel.hinten;
    Aushaengen(i);
    Aushaengen(q);
    NeuErwarten(p);
  }

  Liste<Frontseite> seiten_;
  Liste<Glied> glieder_;
  double weite_;
  std::size_t anzahl_;
  std::priority_queue<Ereignis, Liste<Ereignis>, std::greater<>> warteschlange_;
};

}  // namespace

GeschlosseneKette FrontVerfolgen(const Liste<Frontseite>& seiten, std::span<const XY> ecken,
                                 double weite) {
  if (seiten.size() < 3 || ecken.size() != seiten.size()) return {};
  Front front(seiten, ecken, weite);
  front.Ablaufen();
  return front.Ergebnis();
}

}  // namespace lintavo
