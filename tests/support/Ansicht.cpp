#include "support/Ansicht.h"

#include <algorithm>
#include <limits>

#include <gtest/gtest.h>

#include "lintavo/geom/Geraden.h"

namespace lintavo::test {
namespace {

XY Neben(const XY& p, const XY& richtung, double entlang, double links) {
  return {p.x + entlang * richtung.x - links * richtung.y,
          p.y + entlang * richtung.y + links * richtung.x};
}

enum class Art { kFluegelrahmen, kInnenteil, kSprosse, kLamelle, kFuellung };

struct Teil {
  GEOM2_Polygon umriss;
  const CMFensterSatz* satz;
  bool imRahmen;   // of the window's frame, not of a sash
  int folge;       // what lies on what inside a frame or a sash
  std::size_t nr;  // position in its list
};

void AddBauteile(const std::vector<CMBauteil>& bauteile, const Teil& wie,
                 std::vector<Teil>& teile) {
  for (std::size_t i = 0; i < bauteile.size(); ++i) {
    if (!bauteile[i].IsVorhanden()) continue;
    Teil& teil = teile.emplace_back(wie);
    teil.nr = i;
    if (teil.imRahmen && bauteile[i].IsZusatzteilAussen()) teil.folge = -1;
    bauteile[i].GetUmrissPunkte(teil.umriss);
  }
}

std::vector<Teil> TeileVon(const CMFenster& fenster) {
  std::vector<Teil> teile;
  const CMFensterSatz& rahmen = *fenster.GetRahmenPtr();
  AddBauteile(rahmen.RahmenTeile, {{}, &rahmen, true, 0, 0}, teile);
  AddBauteile(rahmen.EinzelTeile, {{}, &rahmen, true, 1, 0}, teile);
  for (long i = 0; i < fenster.GetAnzahlFluegel(); ++i) {
    const CMFensterSatz& fluegel = *fenster.GetFluegelPtr(i);
    const auto wie = [&](Art art) { return Teil{{}, &fluegel, false, static_cast<int>(art), 0}; };
    AddBauteile(fluegel.RahmenTeile, wie(Art::kFluegelrahmen), teile);
    AddBauteile(fluegel.EinzelTeile, wie(Art::kInnenteil), teile);
    AddBauteile(fluegel.Sprossen, wie(Art::kSprosse), teile);
    GEOM2_Polygon verglast;
    std::vector<CMBauteil> lamellen;
    EXPECT_TRUE(fluegel.GetFuellung(0, verglast, lamellen));
    for (std::size_t n = 0; n < lamellen.size(); ++n) {
      Teil& lamelle = teile.emplace_back(wie(Art::kLamelle));
      lamelle.nr = n;
      EXPECT_TRUE(fluegel.GetLamellenUmriss(static_cast<long>(n), lamelle.umriss));
    }
    Teil& fuellung = teile.emplace_back(wie(Art::kFuellung));
    EXPECT_TRUE(fluegel.ErzeugeRahmenInnenPolygon(true, fuellung.umriss));
    for (int n = 0; n < fuellung.umriss.GetAnzahl(); ++n) fuellung.umriss.SetAttribut(n, 1);
  }
  return teile;
}

double Dicke(const CMFensterSatz& satz) {
  return satz.RahmenTeile.empty() ? satz.RahmenVorlage.dDicke : satz.RahmenTeile[0].dDicke;
}

// Crossings of a ray to the right; an outline that closes in on itself runs twice
// along one cut, and the two passes cancel.
bool Umschlieszt(const GEOM2_Polygon& umriss, const XY& p) {
  bool innen = false;
  for (int i = 0; i < umriss.GetAnzahl(); ++i) {
    XY a;
    XY b;
    umriss.GetKante(i, a, b);
    if ((a.y > p.y) == (b.y > p.y)) continue;
    if (p.x < a.x + (p.y - a.y) * (b.x - a.x) / (b.y - a.y)) innen = !innen;
  }
  return innen;
}

class Anschauung {
 public:
  Anschauung(const CMFenster& fenster, bool vonAussen)
      : fenster_(fenster), vonAussen_(vonAussen), teile_(TeileVon(fenster)) {}

  const std::vector<Teil>& Teile() const { return teile_; }

  // Whether p lies nearer to the viewer than q.
  bool IstNaeher(const Teil& p, const Teil& q) const {
    if (p.satz == q.satz) return p.folge != q.folge ? p.folge < q.folge : p.nr < q.nr;
    if (p.imRahmen) return !OeffnetZumBetrachter(*q.satz);
    if (q.imRahmen) return OeffnetZumBetrachter(*p.satz);
    if (OeffnetZumBetrachter(*p.satz) != OeffnetZumBetrachter(*q.satz)) {
      return OeffnetZumBetrachter(*p.satz);
    }
    const double vorn = Abstand(*q.satz) - Abstand(*p.satz);
    if (std::fabs(vorn) > 1e-9) return vorn > 0.0;
    if (p.satz->lOeffSeite != q.satz->lOeffSeite) return p.satz->lOeffSeite == (vonAussen_ ? 1 : 0);
    // Both open to one side: there lies the one that opens first.
    const bool zuerst = p.satz->bZuerstAufgehend != q.satz->bZuerstAufgehend
                            ? p.satz->bZuerstAufgehend
                            : fenster_.GetFluegelNr(p.satz) < fenster_.GetFluegelNr(q.satz);
    return zuerst == (p.satz->lOeffSeite == (vonAussen_ ? 1 : 0));
  }

  bool IstVerdeckt(const Teil& teil, const XY& p) const {
    return std::any_of(teile_.begin(), teile_.end(), [&](const Teil& anderer) {
      return Umschlieszt(anderer.umriss, p) && IstNaeher(anderer, teil);
    });
  }

  enum class Urteil { kSichtbar, kVerdeckt, kUnklar };

  // An edge is hidden where both sides of it are covered. Unclear where that changes
  // within a hand's breadth along the edge.
  Urteil Sieht(const Teil& teil, const XY& p, const XY& richtung, double breite,
               double nebenher) const {
    int verdeckt = 0;
    for (const double entlang : {-breite, 0.0, breite}) {
      verdeckt += IstVerdeckt(teil, Neben(p, richtung, entlang, nebenher)) &&
                  IstVerdeckt(teil, Neben(p, richtung, entlang, -nebenher));
    }
    return verdeckt == 0 ? Urteil::kSichtbar : verdeckt == 3 ? Urteil::kVerdeckt : Urteil::kUnklar;
  }

  // Whether some part's edge that is to be drawn runs through p and is seen there.
  Urteil SiehtKante(const XY& p, const XY& richtung, double breite,
                    double nebenher = kNebenher) const;

  static constexpr double kNebenher = 0.003;

 private:
  bool OeffnetZumBetrachter(const CMFensterSatz& fluegel) const {
    return fluegel.bMitRahmen && (fluegel.lOeffSeite == 1) == vonAussen_;
  }

  // From the frame's face on the viewer's side.
  double Abstand(const CMFensterSatz& fluegel) const {
    if ((fluegel.lOeffSeite == 1) == vonAussen_) return fluegel.dZVersatz;
    return Dicke(*fenster_.GetRahmenPtr()) - Dicke(fluegel) - fluegel.dZVersatz;
  }

  const CMFenster& fenster_;
  bool vonAussen_;
  std::vector<Teil> teile_;
};

// How far beside p the segment runs in the given direction, to either end; infinite where
// it does not.
double Seitenabstand(const Strecke& s, const XY& p, const XY& richtung) {
  constexpr double kNirgends = std::numeric_limits<double>::infinity();
  if (s.Laenge() < 1e-9) return kNirgends;
  const XY r = s.Richtung();
  const double u = (p.x - s.a.x) * r.x + (p.y - s.a.y) * r.y;
  if (u < 0.0 || u > s.Laenge()) return kNirgends;
  if (std::fabs(r.x * richtung.y - r.y * richtung.x) >= 0.02) return kNirgends;
  return std::fabs((p.y - s.a.y) * r.x - (p.x - s.a.x) * r.y);
}

bool LaeuftDurch(const Strecke& s, const XY& p, const XY& richtung) {
  return Seitenabstand(s, p, richtung) < 0.0015;
}

template <typename F>
void JedeKante(const std::vector<Teil>& teile, F f) {
  for (const Teil& teil : teile) {
    for (int i = 0; i < teil.umriss.GetAnzahl(); ++i) {
      Strecke kante;
      teil.umriss.GetKante(i, kante.a, kante.b);
      if (teil.umriss.GetAttribut(i) == 1 && kante.Laenge() > 1e-6) f(teil, kante);
    }
  }
}

Anschauung::Urteil Anschauung::SiehtKante(const XY& p, const XY& richtung, double breite,
                                          double nebenher) const {
  Urteil bestes = Urteil::kVerdeckt;
  JedeKante(teile_, [&](const Teil& teil, const Strecke& kante) {
    if (bestes == Urteil::kSichtbar || !LaeuftDurch(kante, p, richtung)) return;
    const Urteil urteil = Sieht(teil, p, richtung, breite, nebenher);
    if (urteil != Urteil::kVerdeckt) bestes = urteil;
  });
  return bestes;
}

// Whether looking beside p may look beside another edge too: one that runs nearly along
// with it but is not the same line, or one that crosses.
bool IstZuDicht(const std::vector<Teil>& teile, const XY& p, const XY& richtung) {
  constexpr double kGleicheLinie = 0.001;
  constexpr double kKreuzung = 0.05;
  bool zuDicht = false;
  JedeKante(teile, [&](const Teil&, const Strecke& s) {
    const double abstand = Seitenabstand(s, p, richtung);
    if (std::isfinite(abstand)) {
      zuDicht = zuDicht || (abstand > kGleicheLinie && abstand < 2.0 * Anschauung::kNebenher);
    } else {
      zuDicht = zuDicht || IsPunktAufStrecke(p, s.a, s.b, kKreuzung);
    }
  });
  return zuDicht;
}

// Along every edge: drawn exactly once where it is seen, else not at all.
void ErwarteJedeKanteRichtig(const Anschauung& anschauung, const std::vector<Strecke>& bild) {
  using Urteil = Anschauung::Urteil;
  constexpr double kBreite = 0.02;
  int geprueft = 0;
  JedeKante(anschauung.Teile(), [&](const Teil&, const Strecke& kante) {
    const double laenge = kante.Laenge();
    if (laenge < 5.0 * kBreite) return;
    const int proben = std::clamp(static_cast<int>(laenge / 3.0), 2, 30);
    for (int k = 0; k < proben; ++k) {
      const double u = 2.0 * kBreite + (laenge - 4.0 * kBreite) * (k + 0.437) / proben;
      const XY p = kante.Punkt(u);
      if (IstZuDicht(anschauung.Teile(), p, kante.Richtung())) continue;
      const Urteil urteil = anschauung.SiehtKante(p, kante.Richtung(), kBreite);
      if (urteil == Urteil::kUnklar) continue;
      ++geprueft;
      const auto gezeichnet = std::count_if(bild.begin(), bild.end(), [&](const Strecke& s) {
        return LaeuftDurch(s, p, kante.Richtung());
      });
      EXPECT_EQ(gezeichnet, urteil == Urteil::kSichtbar ? 1 : 0) << "at " << p.x << ", " << p.y;
    }
  });
  EXPECT_GT(geprueft, 10);
}

// The middle of every line lies on an edge that is seen there. Beside a short one, as it
// sticks out where two bars end along a slope, a shorter look tells.
void ErwarteJedeLinieBegruendet(const Anschauung& anschauung, const std::vector<Strecke>& bild) {
  for (const Strecke& s : bild) {
    const XY p = s.Punkt(0.5 * s.Laenge());
    const double nebenher = std::min(Anschauung::kNebenher, 0.1 * s.Laenge());
    EXPECT_NE(anschauung.SiehtKante(p, s.Richtung(), 0.0, nebenher), Anschauung::Urteil::kVerdeckt)
        << "at " << p.x << ", " << p.y;
  }
}

void ErwarteKeineDoppelten(const std::vector<Strecke>& bild) {
  for (const Strecke& lang : bild) {
    for (const Strecke& kurz : bild) {
      if (&lang == &kurz || kurz.Laenge() > lang.Laenge()) continue;
      const XY r = lang.Richtung();
      const auto u = [&](const XY& p) { return (p.x - lang.a.x) * r.x + (p.y - lang.a.y) * r.y; };
      const auto v = [&](const XY& p) { return (p.y - lang.a.y) * r.x - (p.x - lang.a.x) * r.y; };
      if (std::fabs(v(kurz.a)) > 1e-3 || std::fabs(v(kurz.b)) > 1e-3) continue;
      const double gemeinsam = std::min(std::max(u(kurz.a), u(kurz.b)), lang.Laenge()) -
                               std::max(std::min(u(kurz.a), u(kurz.b)), 0.0);
      EXPECT_LT(gemeinsam, 1.1e-3) << "at " << kurz.a.x << ", " << kurz.a.y;
    }
  }
}

double Laenge(const std::vector<Strecke>& strecken) {
  double summe = 0.0;
  for (const Strecke& s : strecken) summe += s.Laenge();
  return summe;
}

}  // namespace

std::vector<Strecke> Strecken(const std::vector<CMStrecke>& lines) {
  std::vector<Strecke> strecken(lines.size());
  for (std::size_t i = 0; i < lines.size(); ++i) lines[i].GetPunkte(strecken[i].a, strecken[i].b);
  return strecken;
}

bool LiegtAuf(const XY& p, const std::vector<Strecke>& strecken, double tol) {
  return std::any_of(strecken.begin(), strecken.end(),
                     [&](const Strecke& s) { return IsPunktAufStrecke(p, s.a, s.b, tol); });
}

void ErwarteGleicheStrecken(const std::vector<Strecke>& erwartet, const std::vector<Strecke>& ist,
                            const std::string& was) {
  constexpr double kTol = 2e-3;
  EXPECT_NEAR(Laenge(erwartet), Laenge(ist), kTol * (1.0 + static_cast<double>(ist.size()))) << was;
  for (const auto* von : {&erwartet, &ist}) {
    const std::vector<Strecke>& nach = von == &ist ? erwartet : ist;
    for (const Strecke& s : *von) {
      for (const double u : {0.0, 0.27, 0.73, 1.0}) {
        const XY p = s.Punkt(u * s.Laenge());
        EXPECT_TRUE(LiegtAuf(p, nach, kTol))
            << was << (von == &ist ? " has" : " misses") << " a line at " << p.x << ", " << p.y;
      }
    }
  }
}

std::vector<Strecke> Bild(const CMFenster& fenster, bool vonAussen) {
  std::vector<CMStrecke> lines;
  EXPECT_TRUE(fenster.GetHiddenLineBild(lines, vonAussen));
  return Strecken(lines);
}

void ErwarteBildRichtig(const CMFenster& fenster, double kleinsteLinie) {
  for (const bool vonAussen : {false, true}) {
    SCOPED_TRACE(vonAussen ? "from outside" : "from inside");
    const Anschauung anschauung(fenster, vonAussen);
    const std::vector<Strecke> bild = Bild(fenster, vonAussen);
    ErwarteJedeKanteRichtig(anschauung, bild);
    ErwarteJedeLinieBegruendet(anschauung, bild);
    ErwarteKeineDoppelten(bild);
    for (const Strecke& s : bild) {
      EXPECT_GT(s.Laenge(), kleinsteLinie) << "stub at " << s.a.x << ", " << s.a.y;
    }
  }
}

}  // namespace lintavo::test
