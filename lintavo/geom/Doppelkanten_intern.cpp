// Taking coinciding stretches out of edges.
#include "lintavo/geom/Doppelkanten_intern.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <tuple>
#include <utility>

#include "lintavo/geom/Abschnitte_intern.h"
#include "lintavo/geom/Kastenbaum_intern.h"
#include "lintavo/geom/Toleranzen.h"
#include "lintavo/geom/Vektor_intern.h"

namespace lintavo {
namespace {

struct Strecke {
  XY a;
  XY b;
  XY richtung;
  double laenge = 0.0;

  explicit Strecke(const CMStrecke& s) {
    s.GetPunkte(a, b);
    laenge = Abstand(a, b);
    richtung = Einheit(Differenz(b, a));
  }

  double Entlang(const XY& p) const { return Skalarprodukt(richtung, Differenz(p, a)); }
  bool NaheDerGeraden(const XY& p) const {
    return std::fabs(Kreuzprodukt(richtung, Differenz(p, a))) <= kUeberlagerung;
  }
};

/// The stretch of s that t coincides with, inside s; empty (bis <= von) for none.
Abschnitt Deckung(const Strecke& s, const Strecke& t) {
  const Strecke& lang = s.laenge >= t.laenge ? s : t;
  const Strecke& kurz = s.laenge >= t.laenge ? t : s;
  if (!lang.NaheDerGeraden(kurz.a) || !lang.NaheDerGeraden(kurz.b)) return {};
  const auto [von, bis] = std::minmax({s.Entlang(t.a), s.Entlang(t.b)});
  const Abschnitt abschnitt{std::max(von, 0.0), std::min(bis, s.laenge)};
  const bool deckt = abschnitt.bis - abschnitt.von > std::min(kUeberlagerung, 0.5 * kurz.laenge);
  return deckt ? abschnitt : Abschnitt{};
}

/// What is left of a length without the given stretches; a rest up to the tolerance is
/// none.
Abschnitte Rest(double laenge, Abschnitte& ohne) {
  AbschnitteVereinigen(ohne);
  Abschnitte rest = UebrigeAbschnitte({{0.0, laenge}}, ohne);
  std::erase_if(rest, [](const Abschnitt& s) { return s.bis - s.von <= kUeberlagerung; });
  return rest;
}

/// rang[i] tells how many edges go before edge i.
std::vector<std::size_t> Vorrang(const std::vector<Bildkante>& kanten) {
  std::vector<std::size_t> folge(kanten.size());
  std::iota(folge.begin(), folge.end(), std::size_t{0});
  const auto schluessel = [&](std::size_t i) {
    const Bildkante& kante = kanten[i];
    return std::tuple(-static_cast<double>(kante.strecke.GetPrio()), kante.istFuellung, i);
  };
  std::sort(folge.begin(), folge.end(),
            [&](std::size_t i, std::size_t j) { return schluessel(i) < schluessel(j); });
  std::vector<std::size_t> rang(kanten.size());
  for (std::size_t n = 0; n < folge.size(); ++n) rang[folge[n]] = n;
  return rang;
}

Kastenbaum BaumDer(const std::vector<Strecke>& strecken) {
  std::vector<Kasten> kaesten(strecken.size());
  for (std::size_t i = 0; i < strecken.size(); ++i) {
    kaesten[i].Erweitern(strecken[i].a);
    kaesten[i].Erweitern(strecken[i].b);
  }
  return Kastenbaum(std::move(kaesten));
}

}  // namespace

std::vector<Bildkante> OhneDoppelte(const std::vector<Bildkante>& kanten) {
  std::vector<Strecke> strecken;
  strecken.reserve(kanten.size());
  for (const Bildkante& kante : kanten) strecken.emplace_back(kante.strecke);
  const Kastenbaum baum = BaumDer(strecken);
  const std::vector<std::size_t> rang = Vorrang(kanten);

  std::vector<Bildkante> bild;
  bild.reserve(kanten.size());
  Abschnitte ohne;
  for (std::size_t i = 0; i < kanten.size(); ++i) {
    const Strecke& s = strecken[i];
    Kasten kasten;
    kasten.Erweitern(s.a);
    kasten.Erweitern(s.b);
    ohne.clear();
    baum.Suchen(kasten.Vergroessert(kUeberlagerung), [&](std::size_t j) {
      if (rang[j] >= rang[i]) return;
      const Abschnitt abschnitt = Deckung(s, strecken[j]);
      if (abschnitt.bis > abschnitt.von) ohne.push_back(abschnitt);
    });
    if (ohne.empty()) {
      bild.push_back(kanten[i]);
      continue;
    }
    for (const Abschnitt& rest : Rest(s.laenge, ohne)) {
      CMStrecke& stueck = bild.emplace_back(kanten[i]).strecke;
      stueck.SetPunkte(rest.von > 0.0 ? Zwischenpunkt(s.a, s.b, rest.von / s.laenge) : s.a,
                       rest.bis < s.laenge ? Zwischenpunkt(s.a, s.b, rest.bis / s.laenge) : s.b);
    }
  }
  return bild;
}

}  // namespace lintavo
