// The number lists in which files hold components: one description per record,
// which its reader and its writer share.
#pragma once

#include <algorithm>
#include <array>
#include <span>

#include "lintavo/geom/Vektor_intern.h"
#include "lintavo/model/CMBauteil.h"
#include "lintavo/platform/Numbers_intern.h"

namespace lintavo {

/// A number of a list: how it is taken from a component and put into it. Whole
/// numbers are truncated when they are put; measures must be such as can be drawn.
struct Bauteilfeld {
  double (*Lese)(const CMBauteil&);
  void (*Setze)(CMBauteil&, double);
  bool bMasz = false;
};

using Feldliste = std::span<const Bauteilfeld>;

namespace feld {

template <double CMBauteil::*Member>
inline constexpr Bauteilfeld kZahl = {[](const CMBauteil& b) { return b.*Member; },
                                      [](CMBauteil& b, double wert) { b.*Member = wert; }, true};

template <std::size_t I>
inline constexpr Bauteilfeld kAttribut = {
    [](const CMBauteil& b) { return static_cast<double>(b.lAttribut[I]); },
    [](CMBauteil& b, double wert) { b.lAttribut[I] = TruncateToLong(wert); }};

template <CMKnoten CMBauteil::*Knoten>
inline constexpr Bauteilfeld kKnotenJ = {
    [](const CMBauteil& b) { return static_cast<double>((b.*Knoten).J()); },
    [](CMBauteil& b, double wert) { (b.*Knoten).Set(TruncateToInt(wert), (b.*Knoten).K()); }};

template <CMKnoten CMBauteil::*Knoten>
inline constexpr Bauteilfeld kKnotenK = {
    [](const CMBauteil& b) { return static_cast<double>((b.*Knoten).K()); },
    [](CMBauteil& b, double wert) { (b.*Knoten).Set((b.*Knoten).J(), TruncateToInt(wert)); }};

// The first axis; a component of these lists has one.
template <double GEOM2_Achse::*Member>
inline constexpr Bauteilfeld kAchse = {
    [](const CMBauteil& b) { return b.Achsen.empty() ? 0.0 : b.Achsen.front().*Member; },
    [](CMBauteil& b, double wert) { b.Achse(0).*Member = wert; }, true};

template <double XY::*Member>
inline constexpr Bauteilfeld kAchsStart = {
    [](const CMBauteil& b) { return b.Achsen.empty() ? 0.0 : b.Achsen.front().Start.*Member; },
    [](CMBauteil& b, double wert) { b.Achse(0).Start.*Member = wert; }, true};

inline constexpr Bauteilfeld kBreite = kZahl<&CMBauteil::dBreite>;
inline constexpr Bauteilfeld kBreite2 = kZahl<&CMBauteil::dBreite2>;
inline constexpr Bauteilfeld kDicke = kZahl<&CMBauteil::dDicke>;
inline constexpr Bauteilfeld kA1 = kAttribut<0>;
inline constexpr Bauteilfeld kA2 = kAttribut<1>;
inline constexpr Bauteilfeld kA3 = kAttribut<2>;
inline constexpr Bauteilfeld kA4 = kAttribut<3>;
inline constexpr Bauteilfeld kSeite = {
    [](const CMBauteil& b) { return static_cast<double>(b.lSeite); },
    [](CMBauteil& b, double wert) { b.lSeite = TruncateToLong(wert); }};
inline constexpr Bauteilfeld kTypAnfang = {
    [](const CMBauteil& b) { return static_cast<double>(b.cAbschnittsTypAnfang); },
    [](CMBauteil& b, double wert) {
      b.SetAbschittsTypen(TruncateToLong(wert), b.cAbschnittsTypEnde);
    }};
inline constexpr Bauteilfeld kTypEnde = {
    [](const CMBauteil& b) { return static_cast<double>(b.cAbschnittsTypEnde); },
    [](CMBauteil& b, double wert) {
      b.SetAbschittsTypen(b.cAbschnittsTypAnfang, TruncateToLong(wert));
    }};

// Macro file. The frame template is written like a frame part. The attributes
// stand in the order a3, a1, a4, a2 everywhere but in the template of the bars.
inline constexpr std::array kRahmenteil = {kBreite, kBreite2, kA3, kA1, kA4, kA2, kDicke};
inline constexpr std::array kSprossenVorlage = {kBreite, kDicke, kA4, kA3, kA2, kA1};
inline constexpr std::array kPfosten = {kKnotenJ<&CMBauteil::kAnfang>,
                                        kKnotenK<&CMBauteil::kAnfang>,
                                        kKnotenJ<&CMBauteil::kEnde>,
                                        kKnotenK<&CMBauteil::kEnde>,
                                        kBreite,
                                        kDicke,
                                        kBreite2,
                                        kA3,
                                        kA1,
                                        kA4,
                                        kA2};
inline constexpr std::array kZusatzteilInnen = {kSeite, kBreite, kDicke, kA3, kA1, kA4, kA2};
inline constexpr std::array kZusatzteilAussen = {kSeite, kBreite, kDicke,     kA3,     kA1,
                                                 kA4,    kA2,     kTypAnfang, kTypEnde};
inline constexpr std::array kSprosse = {kAchsStart<&XY::x>,
                                        kAchsStart<&XY::y>,
                                        kAchse<&GEOM2_Achse::dWinkel>,
                                        kAchse<&GEOM2_Achse::dLaenge>,
                                        kBreite,
                                        kA3,
                                        kA1,
                                        kA4,
                                        kA2,
                                        kDicke};

// Parameter form. Its lengths are ten times what the component holds, and its
// sides count from 1.
inline constexpr std::array kFormularRahmenteil = {kBreite, kA3, kA1, kA4, kA2};
inline constexpr std::array kFormularFluegelteil = {kBreite, kBreite2, kA3, kA1, kA4, kA2};
inline constexpr std::array kFormularZusatzteil = {kSeite, kBreite, kBreite2,   kA3,     kA1,
                                                   kA4,    kA2,     kTypAnfang, kTypEnde};

}  // namespace feld

/// Puts one number per field into the component. False, and nothing is put, when one of
/// the measures is none: the list counts as missing then.
inline bool SetzeFelder(CMBauteil& bauteil, Feldliste felder, const double* werte) {
  const auto istNichts = [&](const Bauteilfeld& f) {
    return f.bMasz && !IstBrauchbar(werte[&f - felder.data()]);
  };
  if (std::any_of(felder.begin(), felder.end(), istNichts)) return false;
  for (const Bauteilfeld& f : felder) f.Setze(bauteil, *werte++);
  return true;
}

/// Takes one number per field from the component.
inline std::vector<double> LeseFelder(const CMBauteil& bauteil, Feldliste felder) {
  std::vector<double> werte;
  werte.reserve(felder.size());
  for (const Bauteilfeld& f : felder) werte.push_back(f.Lese(bauteil));
  return werte;
}

}  // namespace lintavo
