// Measures bars and panes for the saw, and tells which of them are alike.
#include <algorithm>
#include <cmath>
#include <cstddef>

#include "lintavo/geom/Toleranzen.h"

#include "PartsList.h"

namespace lintavo::tools {
namespace {

// Fewer corners than this lie on some circle by chance.
constexpr std::size_t kMinKreisecken = 4;

bool Nahe(double a, double b, double toleranz) {
  return std::fabs(a - b) <= toleranz;
}

double Abstand(const XY& a, const XY& b) {
  return std::hypot(b.x - a.x, b.y - a.y);
}

bool IsMittig(const Piece& piece) {
  if (!piece.IsCentred()) return false;
  return piece.kind == PieceKind::kMullion || piece.kind == PieceKind::kTransom ||
         piece.kind == PieceKind::kBar || piece.kind == PieceKind::kSlat;
}

// One straight segment, seen along its axis: the lengths of its two long edges, and how
// far its outline reaches.
struct Segmentmasze {
  double rechts = 0.0;
  double links = 0.0;
  double laengs = 0.0;
};

Segmentmasze MesseSegment(const Piece& piece, std::size_t i) {
  GEOM2_Polygon umriss = SegmentOutline(piece, i);
  const double winkel = piece.axes[i].dWinkel * kRadiantJeGrad;
  // Right start, right end, left end, left start; a mitre that ends before the left side
  // puts a corner more before the left end.
  umriss.Transformieren(std::cos(winkel), -std::sin(winkel), 0.0, 0.0);
  const auto x = [&](int ecke) { return umriss.GetEckpunkt(ecke).x; };
  XY min;
  XY max;
  umriss.GetMinMax(min, max);
  const GEOM2_Achse& achse = piece.axes[i];
  const int linksEnde = achse.bLinkeSeite && achse.dTiefeEnde != 0.0 ? 3 : 2;
  return {x(1) - x(0), x(linksEnde) - x(linksEnde + 1), max.x - min.x};
}

// The centre of the circle through three points; false where they lie on a line.
bool Kreismitte(const XY& a, const XY& b, const XY& c, XY& mitte) {
  const XY ab{b.x - a.x, b.y - a.y};
  const XY ac{c.x - a.x, c.y - a.y};
  const double kreuz = 2.0 * (ab.x * ac.y - ab.y * ac.x);
  if (std::fabs(kreuz) < kNullFlaeche) return false;
  const double qb = ab.x * ab.x + ab.y * ab.y;
  const double qc = ac.x * ac.x + ac.y * ac.y;
  mitte = {a.x + (ac.y * qb - ab.y * qc) / kreuz, a.y + (ab.x * qc - ac.x * qb) / kreuz};
  return true;
}

// The radius of the circle on which an arch's corners lie; 0 where there is none. Where
// an arch that was moved inwards meets its jambs, its two ends lie off the circle, by
// less than its chords do.
double Kreisradius(const std::vector<XY>& ecken) {
  if (ecken.size() < kMinKreisecken) return 0.0;
  const std::size_t last = ecken.size() - 2;
  const bool inner = last >= kMinKreisecken;
  const std::size_t from = inner ? 1 : 0;
  const std::size_t to = inner ? last : last + 1;
  XY mitte;
  if (!Kreismitte(ecken[from], ecken[(from + to) / 2], ecken[to], mitte)) return 0.0;
  const double radius = Abstand(mitte, ecken[from]);
  double sehne = 0.0;
  for (std::size_t i = from; i <= to; ++i) {
    if (!Nahe(Abstand(mitte, ecken[i]), radius, kGleichesMasz)) return 0.0;
    if (i > from) sehne = std::max(sehne, Abstand(ecken[i - 1], ecken[i]));
  }
  const double pfeilhoehe = sehne * sehne / (8.0 * radius);
  const auto amKreis = [&](const XY& p) {
    return Nahe(Abstand(mitte, p), radius, pfeilhoehe + kGleichesMasz);
  };
  return amKreis(ecken.front()) && amKreis(ecken.back()) ? radius : 0.0;
}

// By how much the arc is longer than its chords.
double BogenJeSehne(const Piece& piece, double radius) {
  double bogen = 0.0;
  for (const GEOM2_Achse& achse : piece.axes) {
    bogen += 2.0 * radius * std::asin(std::min(1.0, achse.dLaenge / (2.0 * radius)));
  }
  return bogen / piece.AxisLength();
}

std::vector<double> Verlauf(const Piece& piece) {
  std::vector<double> verlauf;
  for (std::size_t i = 0; i < piece.axes.size(); ++i) {
    if (i > 0) {
      const double knick = piece.axes[i].dWinkel - piece.axes[i - 1].dWinkel;
      verlauf.push_back(std::remainder(knick, 360.0));
    }
    verlauf.push_back(piece.axes[i].dLaenge);
  }
  return verlauf;
}

void MesseGebogenen(const Piece& piece, Stab& stab) {
  double rechts = 0.0;
  double links = 0.0;
  for (std::size_t i = 0; i < piece.axes.size(); ++i) {
    const Segmentmasze segment = MesseSegment(piece, i);
    rechts += segment.rechts;
    links += segment.links;
  }
  stab.laenge = std::max(rechts, links);
  stab.radius = Kreisradius(AxisCorners(piece));
  if (stab.radius > 0.0) stab.laenge *= BogenJeSehne(piece, stab.radius);
  stab.verlauf = Verlauf(piece);
}

bool VerlaufGleich(const std::vector<double>& a, const std::vector<double>& b) {
  // Lengths and turns take turns; both are held to their own tolerance.
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (!Nahe(a[i], b[i], i % 2 == 0 ? kGleichesMasz : kGleicherSchnitt)) return false;
  }
  return true;
}

bool UmrissGleich(const std::vector<XY>& a, const std::vector<XY>& b) {
  if (a.size() != b.size()) return false;
  const auto fromCorner = [&](std::size_t shift) {
    for (std::size_t i = 0; i < a.size(); ++i) {
      if (Abstand(a[i], b[(i + shift) % b.size()]) > kGleichesMasz) return false;
    }
    return true;
  };
  for (std::size_t shift = 0; shift < b.size(); ++shift) {
    if (fromCorner(shift)) return true;
  }
  return a.empty();
}

}  // namespace

Stab MesseStab(const Piece& piece) {
  Stab stab;
  stab.art = ArtVon(piece);
  stab.dicke = piece.thickness;
  stab.segmente = static_cast<long>(piece.axes.size());
  if (piece.axes.empty()) return stab;
  stab.laenge = MesseSegment(piece, 0).laengs;
  stab.breite = std::fabs(piece.Width());
  stab.achslaenge = piece.AxisLength();
  stab.winkelAnfang = piece.axes.front().dWinkelAnfang;
  stab.winkelEnde = piece.axes.back().dWinkelEnde;
  stab.mittig = IsMittig(piece);
  if (stab.segmente > 1) MesseGebogenen(piece, stab);
  return stab;
}

Scheibe MesseScheibe(TeilArt art, double dicke, const GEOM2_Polygon& umriss) {
  Scheibe scheibe;
  scheibe.art = art;
  scheibe.dicke = dicke;
  XY min;
  XY max;
  if (!umriss.GetMinMax(min, max)) return scheibe;
  scheibe.breite = max.x - min.x;
  scheibe.hoehe = max.y - min.y;
  scheibe.flaeche = std::fabs(umriss.GetFlaeche());
  for (const GEOM2_Eckpunkt& ecke : umriss.GetEcken()) {
    const XY p{ecke.x - min.x, ecke.y - min.y};
    const bool amEck =
        (Nahe(p.x, 0.0, kGleichesMasz) || Nahe(p.x, scheibe.breite, kGleichesMasz)) &&
        (Nahe(p.y, 0.0, kGleichesMasz) || Nahe(p.y, scheibe.hoehe, kGleichesMasz));
    scheibe.rechteckig = scheibe.rechteckig && amEck;
    scheibe.umriss.push_back(p);
  }
  // Three of the box's corners make a triangle.
  scheibe.rechteckig = scheibe.rechteckig && umriss.GetAnzahl() >= 4;
  return scheibe;
}

bool SchneidetGleich(const Stab& a, const Stab& b) {
  const auto gleich = [](double x, double y) { return Nahe(x, y, kGleichesMasz); };
  const auto schnitteGleich = [](double a1, double a2, double b1, double b2) {
    return Nahe(a1, b1, kGleicherSchnitt) && Nahe(a2, b2, kGleicherSchnitt);
  };
  const bool umgedreht = a.mittig && b.mittig && a.segmente == 1;
  return a.art == b.art && a.segmente == b.segmente && gleich(a.laenge, b.laenge) &&
         gleich(a.achslaenge, b.achslaenge) && gleich(a.breite, b.breite) &&
         gleich(a.dicke, b.dicke) && gleich(a.radius, b.radius) &&
         VerlaufGleich(a.verlauf, b.verlauf) &&
         (schnitteGleich(a.winkelAnfang, a.winkelEnde, b.winkelAnfang, b.winkelEnde) ||
          (umgedreht &&
           schnitteGleich(a.winkelAnfang, a.winkelEnde, b.winkelEnde, b.winkelAnfang)));
}

bool SchneidetGleich(const Scheibe& a, const Scheibe& b) {
  const auto gleich = [](double x, double y) { return Nahe(x, y, kGleichesMasz); };
  return a.art == b.art && gleich(a.dicke, b.dicke) && gleich(a.breite, b.breite) &&
         gleich(a.hoehe, b.hoehe) && UmrissGleich(a.umriss, b.umriss);
}

}  // namespace lintavo::tools
