#include "tests/support/Zufallsmasze.h"

#include <cmath>

#include "tests/support/Zufallsinhalt.h"

namespace lintavo::test {

double Zufallsmasze::Zahl(double von, double bis) {
  return Zufallsinhalt(wuerfel_, rund_).Zahl(von, bis);
}

void Zufallsmasze::SetzeMasze() {
  for (const bool horizontal : {true, false}) {
    const bool teilmaszeZuerst = wuerfel_.Mit(50);
    if (teilmaszeZuerst) SetzeTeilmasze(horizontal, true);
    SetzeGesamtmasz(horizontal);
    if (!teilmaszeZuerst) SetzeTeilmasze(horizontal, false);
  }
  if (entwurf_.fluegel.size() == 1 && entwurf_.fluegel[0].form == 2 && wuerfel_.Mit(30)) {
    SetzeKaempfermasz();
  }
}

Maszentwurf Zufallsmasze::Masz(const char* name, bool horizontal, int von, int bis) {
  Maszentwurf masz;
  masz.name = name;
  masz.horizontal = horizontal;
  masz.abstand = Zahl(-40.0, -10.0);
  (horizontal ? masz.knoten[0].j : masz.knoten[0].k) = von;
  (horizontal ? masz.knoten[1].j : masz.knoten[1].k) = bis;
  masz.laenge = Ort(horizontal, bis) - Ort(horizontal, von);
  masz.laenge = std::round(masz.laenge * 1e3) / 1e3;
  return masz;
}

void Zufallsmasze::SetzeGesamtmasz(bool horizontal) {
  const int letzte = Letzte(horizontal);
  Maszentwurf masz = Masz(horizontal ? "Breite" : "Hoehe", horizontal, 0, letzte);
  if (wuerfel_.Mit(15)) {
    // Any share of it for 1 to 7 axes is a number of thousandths.
    constexpr double kTeilbar = 0.42;
    masz.laenge += kTeilbar * wuerfel_.Zahl(1, 50);
    entwurf_.achsenBewegt = true;
  }
  entwurf_.masze.push_back(masz);
}

// Of present spans, so that they hold axes and move none; in an order in which no one
// ends at an axis that another has fixed. Before the overall dimension only such as
// leave no movable axis between fixed ones: it would be moved past them.
void Zufallsmasze::SetzeTeilmasze(bool horizontal, bool vorGesamtmasz) {
  const int letzte = Letzte(horizontal);
  if (letzte < 2) return;
  const auto setze = [&](int von, int bis) {
    entwurf_.masze.push_back(Masz(horizontal ? "Teilbreite" : "Teilhoehe", horizontal, von, bis));
  };
  switch (wuerfel_.Zahl(0, 4)) {
    case 0:
      setze(0, vorGesamtmasz ? 1 : wuerfel_.Zahl(1, letzte - 1));
      break;
    case 1:
      for (int i = 1, n = wuerfel_.Zahl(1, letzte - 1); i <= n; ++i) setze(i - 1, i);
      break;
    case 2:
      if (letzte > 2 && !vorGesamtmasz) setze(2, 1);
      break;
    case 3:
      if (vorGesamtmasz) SetzeZentrischesMasz(horizontal);
      break;
    default:
      break;
  }
}

void Zufallsmasze::SetzeZentrischesMasz(bool horizontal) {
  const int letzte = Letzte(horizontal);
  const int mitte = letzte / 2;
  const auto ort = [&](int i) { return Ort(horizontal, i); };
  if (letzte < 4 || mitte > 2 ||
      std::fabs(ort(mitte + 1) + ort(mitte - 1) - 2.0 * ort(mitte)) > 1e-9)
    return;
  Maszentwurf masz = Masz("Mitte", horizontal, mitte, mitte - 1);
  masz.laenge = std::round((ort(mitte + 1) - ort(mitte - 1)) * 1e3) / 1e3;
  masz.dritter.emplace();
  (horizontal ? masz.dritter->j : masz.dritter->k) = mitte + 1;
  entwurf_.masze.push_back(masz);
}

// From the ground to the line on which the arch stands.
void Zufallsmasze::SetzeKaempfermasz() {
  const Fluegelentwurf& f = entwurf_.fluegel[0];
  if (entwurf_.achsenBewegt || f.stichUnten > 0.0) return;
  const double y = std::round((y_.back() - f.stich) * 1e3) / 1e3;
  Maszentwurf masz = Masz("Kaempfer", false, 0, 0);
  masz.laenge = y;
  masz.knoten[0] = {0, 0, true, 0.0, 0.0};
  masz.knoten[1] = {0, 0, true, 0.0, y};
  if (f.stich > 4.0 && wuerfel_.Mit(50)) {
    masz.laenge += Zahl(1.0, 0.5 * f.stich);
    entwurf_.stichBewegt = true;
  }
  entwurf_.masze.push_back(masz);
}

void Zufallsmasze::SetzeEckmasz(double spiel) {
  if (entwurf_.achsenBewegt || spiel < 2.0) return;
  const int n = Letzte(true);
  const int m = Letzte(false);
  Maszentwurf masz = Masz("Ecke", false, 0, m);
  masz.knoten[1] = {n, m, true, x_.back(), y_.back()};
  masz.laenge += wuerfel_.Mit(50) ? Zahl(1.0, 10.0) : -Zahl(1.0, 0.6 * spiel);
  entwurf_.masze.push_back(masz);
  entwurf_.eckenBewegt = true;
  entwurf_.nurRechtecke = false;
}

}  // namespace lintavo::test
