// The polygon's vertices and its tests. Offset and clean-up, and the cutting of
// segments and axes, have sources of their own.
#include "lintavo/geom/GEOM2_Polygon.h"

#include <algorithm>
#include <cmath>

#include "lintavo/geom/Geraden.h"
#include "lintavo/geom/Toleranzen.h"
#include "lintavo/geom/Vektor_intern.h"
#include "lintavo/platform/Grenzen_intern.h"

namespace {

constexpr double kKeineHoehe = -1e100;

/// One walk of the vertical ray from p towards +y over the edges of a polygon.
class Strahl {
 public:
  Strahl(const XY& p, double tol) : p_(p), tol_(tol) {}

  /// False as soon as p proves to lie on the edge, which ends the walk: outside.
  bool Kante(const XY& a, const XY& b) {
    const double dx = b.x - a.x;
    return std::fabs(dx) >= tol_ ? Schraeg(a, b, dx) : Senkrecht(a, b);
  }
  bool Ungerade() const { return anzahl_ % 2 == 1; }

 private:
  bool Trifft(const XY& q) const {
    return std::fabs(p_.x - q.x) < tol_ && std::fabs(p_.y - q.y) < tol_;
  }
  bool Senkrecht(const XY& a, const XY& b) const {
    return !(std::fabs(a.x - p_.x) < tol_ && std::min(a.y, b.y) - tol_ <= p_.y &&
             p_.y <= std::max(a.y, b.y) + tol_);
  }
  bool Schraeg(const XY& a, const XY& b, double dx) {
    if (Trifft(a) || Trifft(b)) return false;
    // Both bounds are shifted the same way on purpose: a ray through a shared vertex
    // must meet only one of its two edges.
    if (!(std::min(a.x, b.x) + tol_ <= p_.x && p_.x <= std::max(a.x, b.x) + tol_)) return true;
    const double hoehe = a.y + (p_.x - a.x) * (b.y - a.y) / dx;
    if (std::fabs(hoehe - p_.y) < tol_ * std::fabs(lintavo::Abstand(a, b) / dx)) return false;
    if (p_.y < hoehe && std::fabs(hoehe - letzteHoehe_) > tol_) {
      ++anzahl_;
      letzteHoehe_ = hoehe;
    }
    return true;
  }

  XY p_;
  double tol_;
  double letzteHoehe_ = kKeineHoehe;
  int anzahl_ = 0;
};

}  // namespace

void GEOM2_Polygon::Reservieren(int n) {
  if (0 < n && n <= lintavo::kMaxEcken) ecken_.reserve(static_cast<std::size_t>(n));
}

int GEOM2_Polygon::AddPunkt(double x, double y) {
  return AddPunkt(x, y, 0.0, 0.0, 0);
}

int GEOM2_Polygon::AddPunkt(double x, double y, double dWert1) {
  return AddPunkt(x, y, dWert1, 0.0, 0);
}

int GEOM2_Polygon::AddPunkt(double x, double y, double dWert1, double dWert2, int attribut) {
  return AddPunkt({x, y, dWert1, dWert2, attribut});
}

int GEOM2_Polygon::AddPunkt(const GEOM2_Eckpunkt& ecke) {
  ecken_.push_back(ecke);
  return GetAnzahl();
}

bool GEOM2_Polygon::GetPunkt(int i, double& x, double& y) const {
  x = 0.0;
  y = 0.0;
  if (!IsIndex(i)) return false;
  const GEOM2_Eckpunkt& ecke = GetEckpunkt(i);
  x = ecke.x;
  y = ecke.y;
  return true;
}

void GEOM2_Polygon::GetPunkt(int i, GEOM2_Punkt& punkt) const {
  const GEOM2_Eckpunkt& ecke = GetEckpunkt(i);
  punkt = {ecke.x, ecke.y, ecke.dWert1};
}

bool GEOM2_Polygon::SetPunkt(int i, double x, double y) {
  if (!IsIndex(i)) return false;
  GEOM2_Eckpunkt& ecke = ecken_[static_cast<std::size_t>(i)];
  ecke.x = x;
  ecke.y = y;
  return true;
}

void GEOM2_Polygon::SetAttribut(int i, int attribut) {
  if (IsIndex(i)) ecken_[static_cast<std::size_t>(i)].Attribut = attribut;
}

void GEOM2_Polygon::SetWert1(int i, double wert) {
  if (IsIndex(i)) ecken_[static_cast<std::size_t>(i)].dWert1 = wert;
}

void GEOM2_Polygon::SetWert2(int i, double wert) {
  if (IsIndex(i)) ecken_[static_cast<std::size_t>(i)].dWert2 = wert;
}

bool GEOM2_Polygon::GetKante(int i, GEOM2_Punkt& a, GEOM2_Punkt& b) const {
  if (!IsIndex(i)) return false;
  GetPunkt(i, a);
  GetPunkt(Naechster(i), b);
  return true;
}

double GEOM2_Polygon::GetKantenLaenge(int i) const {
  XY a;
  XY b;
  return GetKante(i, a, b) ? lintavo::Abstand(a, b) : 0.0;
}

bool GEOM2_Polygon::SetAnzahl(int n) {
  if (n < 0 || n > lintavo::kMaxEcken) return false;
  ecken_.resize(static_cast<std::size_t>(n));
  status_ = 1;
  return true;
}

void GEOM2_Polygon::Clear() {
  ecken_.clear();
  status_ = 0;
}

void GEOM2_Polygon::SetEcken(std::span<const GEOM2_Eckpunkt> ecken) {
  ecken_.assign(ecken.begin(), ecken.end());
  status_ = 0;
}

bool GEOM2_Polygon::IsGegenUhrzeigersinn() const {
  if (GetAnzahl() < 3) return false;
  double summe = 0.0;
  for (int i = 0; i < GetAnzahl(); ++i) {
    const GEOM2_Eckpunkt& a = GetEckpunkt(i);
    const GEOM2_Eckpunkt& b = GetEckpunkt(Naechster(i));
    summe += (a.x - b.x) * (a.y + b.y);
  }
  return summe > lintavo::kOrientierung;
}

void GEOM2_Polygon::SetOrientierung(bool gegenUhrzeigersinn) {
  if (GetAnzahl() < 3) return;
  if (IsGegenUhrzeigersinn() != gegenUhrzeigersinn) Umkehren();
}

void GEOM2_Polygon::Umkehren() {
  if (GetAnzahl() < 3) return;
  const bool geschlossen = lintavo::Abstand(lintavo::Ort(ecken_.front()),
                                            lintavo::Ort(ecken_.back())) < lintavo::kNullLaenge;
  // The attributes stay with their vertices on purpose: callers that need them on the
  // reversed edges set them again.
  std::reverse(ecken_.begin() + 1, ecken_.end() - (geschlossen ? 1 : 0));
}

double GEOM2_Polygon::GetFlaeche() const {
  if (GetAnzahl() < 3) return 0.0;
  // Relative to vertex 0, so that a polygon far from the origin loses no digits.
  const XY bezug = lintavo::Ort(ecken_.front());
  double summe = 0.0;
  for (int i = 1; i + 1 < GetAnzahl(); ++i) {
    summe += lintavo::Kreuzprodukt(lintavo::Differenz(lintavo::Ort(GetEckpunkt(i)), bezug),
                                   lintavo::Differenz(lintavo::Ort(GetEckpunkt(i + 1)), bezug));
  }
  return summe / 2;
}

bool GEOM2_Polygon::IsAufRand(const XY& p, double tol) const {
  for (int i = GetAnzahl() - 1; i >= 0; --i) {
    if (IsPunktAufStrecke(p, lintavo::Ort(GetEckpunkt(i)), lintavo::Ort(GetEckpunkt(Naechster(i))),
                          tol)) {
      return true;
    }
  }
  return false;
}

bool GEOM2_Polygon::IsInside(const XY& p, bool randGilt, double tol) const {
  if (IsAufRand(p, tol)) return randGilt;
  return IsStrahlInnen(p, tol);
}

bool GEOM2_Polygon::IsStrahlInnen(const XY& p, double tol) const {
  if (GetAnzahl() < 3) return false;
  Strahl strahl(p, tol);
  for (int i = 0; i < GetAnzahl(); ++i) {
    if (!strahl.Kante(lintavo::Ort(GetEckpunkt(i)), lintavo::Ort(GetEckpunkt(Naechster(i))))) {
      return false;
    }
  }
  return strahl.Ungerade();
}

bool GEOM2_Polygon::GetMinMax(XY& min, XY& max) const {
  min = {lintavo::kLeereBox, lintavo::kLeereBox};
  max = {-lintavo::kLeereBox, -lintavo::kLeereBox};
  for (const GEOM2_Eckpunkt& ecke : ecken_) {
    min = {std::min(min.x, ecke.x), std::min(min.y, ecke.y)};
    max = {std::max(max.x, ecke.x), std::max(max.y, ecke.y)};
  }
  return GetAnzahl() > 1;
}

void GEOM2_Polygon::Transformieren(double c, double s, double tx, double ty) {
  for (GEOM2_Eckpunkt& ecke : ecken_) {
    const XY alt = lintavo::Ort(ecke);
    ecke.x = alt.x * c - alt.y * s + tx;
    ecke.y = alt.x * s + alt.y * c + ty;
  }
}

bool GEOM2_Polygon::KurzeKantenEntfernen(double minLaenge) {
  bool kurz = false;
  // The closing edge is left out of this scan on purpose: on its own it is kept.
  for (int i = 0; i + 1 < GetAnzahl() && !kurz; ++i) kurz = GetKantenLaenge(i) < minLaenge;
  if (!kurz) return true;

  GEOM2_Polygon neu;
  neu.Reservieren(GetAnzahl());
  for (int i = 0; i < GetAnzahl(); ++i) {
    if (GetKantenLaenge(i) >= minLaenge) neu.AddPunkt(GetEckpunkt(i));
  }
  *this = std::move(neu);
  return true;
}

bool GEOM2_Polygon::SetAchse(const XY& p1, const XY& p2, GEOM2_Achse& achse) {
  const double dx = p2.x - p1.x;
  const double dy = p2.y - p1.y;
  // The length is written in any case: callers recognise a vanished axis by it.
  achse.dLaenge = std::sqrt(dx * dx + dy * dy);
  if (achse.dLaenge < GetEpsilon()) return false;
  const double winkel = std::atan2(dy, dx) * 180.0 / lintavo::kPi;
  achse = GEOM2_Achse{.Start = p1, .dLaenge = achse.dLaenge, .dWinkel = winkel};
  return true;
}

double GEOM2_Polygon::GetEpsilon() {
  return lintavo::kNullLaenge;
}
