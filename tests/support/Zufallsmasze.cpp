#include "tests/support/Zufallsmasze.h"

#include <cmath>

#include "tests/support/Zufallsinhalt.h"

namespace lintavo::test {

namespace {

// By so much axes may move and leave every sash its least width and height.
constexpr double kSpielraum = 4.0;

}  // namespace

double Zufallsmasze::Zahl(double von, double bis) {
  return Zufallsinhalt(wuerfel_, rund_).Zahl(von, bis);
}

void Zufallsmasze::SetzeMasze() {
  for (const bool horizontal : {true, false}) {
    const bool teilmaszeZuerst = wuerfel_.Mit(50);
    if (teilmaszeZuerst) SetzeTeilmasze(horizontal, true);
    SetzeGesamtmasz(horizontal, teilmaszeZuerst);
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

// Perhaps from the far axis back, with a negative length.
void Zufallsmasze::SetzeGesamtmasz(bool horizontal, bool nachTeilmaszen) {
  const int letzte = Letzte(horizontal);
  // Not after one that holds the first axis.
  const bool rueckwaerts = !nachTeilmaszen && wuerfel_.Mit(15);
  Maszentwurf masz = Masz(horizontal ? "Breite" : "Hoehe", horizontal, rueckwaerts ? letzte : 0,
                          rueckwaerts ? 0 : letzte);
  if (wuerfel_.Mit(15)) Aendere(masz, Zahl(0.5, 20.0));
  entwurf_.masze.push_back(masz);
}

// So much longer, whichever way it runs.
void Zufallsmasze::Aendere(Maszentwurf& masz, double mehr) {
  masz.laenge += std::copysign(mehr, masz.laenge);
  entwurf_.achsenBewegt = true;
}

// In an order in which no one ends at an axis that another has fixed. Before the overall
// dimension only such as leave no movable axis between fixed ones: it would be moved past
// them.
void Zufallsmasze::SetzeTeilmasze(bool horizontal, bool vorGesamtmasz) {
  const int letzte = Letzte(horizontal);
  if (letzte < 2) return;
  const auto setze = [&](int von, int bis) {
    entwurf_.masze.push_back(Masz(horizontal ? "Teilbreite" : "Teilhoehe", horizontal, von, bis));
  };
  switch (wuerfel_.Zahl(0, 4)) {
    case 0:
      // The axes between reckon with a first one that lies where it was.
      entwurf_.maszeHemmen |= !vorGesamtmasz && entwurf_.masze.back().laenge < 0.0;
      setze(0, vorGesamtmasz ? 1 : wuerfel_.Zahl(1, letzte - 1));
      break;
    case 1:
      SetzeReihe(horizontal, wuerfel_.Zahl(1, letzte - 1));
      break;
    case 2:
      if (letzte > 2 && !vorGesamtmasz) setze(2, 1);
      break;
    case 3:
      SetzeZentrischesMasz(horizontal, vorGesamtmasz);
      break;
    default:
      break;
  }
}

// One after the other from the first axis. Of the first cell of sashes there is little
// to spare, so that the axes move by no more than that.
void Zufallsmasze::SetzeReihe(bool horizontal, int anzahl) {
  const bool geaendert = wuerfel_.Mit(30);
  for (int i = 1; i <= anzahl; ++i) {
    Maszentwurf masz = Masz(horizontal ? "Teilbreite" : "Teilhoehe", horizontal, i - 1, i);
    if (geaendert) Aendere(masz, Zahl(0.0, kSpielraum) / anzahl);
    entwurf_.masze.push_back(masz);
  }
}

// Puts the axes beside another at equal distances from it.
void Zufallsmasze::SetzeZentrischesMasz(bool horizontal, bool vorGesamtmasz) {
  const int letzte = Letzte(horizontal);
  if (letzte < 4) return;
  const int mitte = wuerfel_.Zahl(2, letzte - 2);
  const auto ort = [&](int i) { return Ort(horizontal, i); };
  const double schief = std::fabs(ort(mitte + 1) + ort(mitte - 1) - 2.0 * ort(mitte));
  if (schief > kSpielraum) return;
  Maszentwurf masz = Masz("Mitte", horizontal, mitte, mitte - 1);
  masz.laenge = std::round((ort(mitte + 1) - ort(mitte - 1)) * 1e3) / 1e3;
  masz.dritter.emplace();
  (horizontal ? masz.dritter->j : masz.dritter->k) = mitte + 1;
  entwurf_.masze.push_back(masz);
  entwurf_.achsenBewegt = entwurf_.achsenBewegt || schief > 1e-9;
  entwurf_.maszeHemmen = entwurf_.maszeHemmen || (vorGesamtmasz && mitte > 2);
}

// From the ground to the line on which the arch stands.
void Zufallsmasze::SetzeKaempfermasz() {
  const Fluegelentwurf& f = entwurf_.fluegel[0];
  if (f.stichUnten > 0.0) return;
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

// What the overall dimension makes of it.
double Zufallsmasze::Hoehe() const {
  for (const Maszentwurf& masz : entwurf_.masze) {
    if (masz.name == "Hoehe") return std::fabs(masz.laenge);
  }
  return y_.back();
}

void Zufallsmasze::SetzeEckmasz(double spiel) {
  if (spiel < 2.0) return;
  const int n = Letzte(true);
  const int m = Letzte(false);
  Maszentwurf masz = Masz("Ecke", false, 0, m);
  masz.knoten[1] = {n, m, true, x_.back(), y_.back()};
  masz.laenge = Hoehe() + (wuerfel_.Mit(50) ? Zahl(1.0, 10.0) : -Zahl(1.0, 0.6 * spiel));
  entwurf_.masze.push_back(masz);
  entwurf_.eckenBewegt = true;
  entwurf_.nurRechtecke = false;
}

}  // namespace lintavo::test
