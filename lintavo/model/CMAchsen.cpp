#include "lintavo/model/CMAchsen.h"

#include <cassert>
#include <cmath>

#include "lintavo/ini/CIniFile.h"
#include "lintavo/model/Masze_intern.h"
#include "lintavo/platform/Grenzen_intern.h"
#include "lintavo/platform/Numbers_intern.h"
#include "lintavo/resources/StringTable.h"

namespace {

using Achsen = std::vector<CMAchsInfo>;

// Greater than any distance between a point and a node.
constexpr double kKeinKnoten = 1e30;

bool IsInList(const Achsen& achsen, int i) {
  return i >= 0 && i < static_cast<int>(achsen.size());
}

// Sum of the distances 0..i; i lies below the count.
double Position(const Achsen& achsen, int i) {
  double position = 0.0;
  for (int n = 0; n <= i; ++n) position += achsen[static_cast<std::size_t>(n)].GetAbst();
  return position;
}

double PositionOrZero(const Achsen& achsen, int i) {
  return i < static_cast<int>(achsen.size()) ? Position(achsen, i) : 0.0;
}

double PositionClamped(const Achsen& achsen, int i) {
  const int last = static_cast<int>(achsen.size()) - 1;
  return Position(achsen, i > last ? last : i);
}

// The difference of two positions, not the stored distance: what is written to
// a file is what the drawing shows.
double DistanceToPrevious(const Achsen& achsen, int i) {
  if (i < 1 || !IsInList(achsen, i)) return 0.0;
  return Position(achsen, i) - Position(achsen, i - 1);
}

void SetDistance(Achsen& achsen, int i, double d) {
  assert(IsInList(achsen, i));
  achsen[static_cast<std::size_t>(i)].Set(d);
}

void SetFixed(Achsen& achsen, int i, bool fest) {
  if (IsInList(achsen, i)) achsen[static_cast<std::size_t>(i)].Set(fest);
}

bool IsFixed(const Achsen& achsen, int i) {
  return IsInList(achsen, i) && achsen[static_cast<std::size_t>(i)].IsFest();
}

void ReadAxes(CIniFile& document, lintavo::StringId prefix, Achsen& achsen) {
  achsen.emplace_back(0.0, false);
  for (long i = 1; i <= lintavo::kMaxAchsen; ++i) {
    double d = 0.0;
    if (!lintavo::ReadMasz(document, lintavo::Text(lintavo::StringId::Achsen),
                           lintavo::NumberedName(prefix, i), d)) {
      return;
    }
    achsen.emplace_back(d, false);
  }
}

// The distance to be written. It is the difference of positions that are rounded, so that
// the sum over any number of axes is as exact as a single one.
double WrittenDistance(const Achsen& achsen, int i) {
  return lintavo::AsWritten(Position(achsen, i)) - lintavo::AsWritten(Position(achsen, i - 1));
}

void SaveAxes(CIniFile& document, lintavo::StringId prefix, const Achsen& achsen) {
  CString section = lintavo::Text(lintavo::StringId::Achsen);
  for (int i = 1; i < static_cast<int>(achsen.size()); ++i) {
    document.SetDouble(section, lintavo::NumberedName(prefix, i), WrittenDistance(achsen, i));
  }
}

}  // namespace

void CMAchsen::SetAchsAbstX(int j, double d) {
  SetDistance(vertikal_, j, d);
}
void CMAchsen::SetAchsAbstY(int k, double d) {
  SetDistance(horizontal_, k, d);
}

void CMAchsen::SetAchseHori(int k, bool fest) {
  SetFixed(horizontal_, k, fest);
}
void CMAchsen::SetAchseVerti(int j, bool fest) {
  SetFixed(vertikal_, j, fest);
}

bool CMAchsen::IsHoriFest(int k) const {
  return IsFixed(horizontal_, k);
}
bool CMAchsen::IsVertiFest(int j) const {
  return IsFixed(vertikal_, j);
}

void CMAchsen::AlleVerschiebungenZulassen(bool zulassen) {
  for (CMAchsInfo& achse : vertikal_) achse.Set(!zulassen);
  for (CMAchsInfo& achse : horizontal_) achse.Set(!zulassen);
}

void CMAchsen::Delete() {
  vertikal_.clear();
  horizontal_.clear();
}

double CMAchsen::dGetPosVerti(int j) const {
  return PositionOrZero(vertikal_, j);
}
double CMAchsen::dGetPosHori(int k) const {
  return PositionOrZero(horizontal_, k);
}

double CMAchsen::dGetGridSizeX() const {
  return Position(vertikal_, iGetCntVerti() - 1);
}
double CMAchsen::dGetGridSizeY() const {
  return Position(horizontal_, iGetCntHori() - 1);
}

double CMAchsen::dGetAchsAbstX(int j) const {
  return DistanceToPrevious(vertikal_, j);
}
double CMAchsen::dGetAchsAbstY(int k) const {
  return DistanceToPrevious(horizontal_, k);
}

void CMAchsen::GetPunkt(int j, int k, XY& p) const {
  p.x = PositionClamped(vertikal_, j);
  p.y = PositionClamped(horizontal_, k);
}

void CMAchsen::GetPunkt(const CMKnoten& knoten, XY& p) const {
  GetPunkt(knoten.J(), knoten.K(), p);
}

double CMAchsen::dGetEffVersch(bool bVerti, int i1, int i2, double dSoll) const {
  const Achsen& achsen = bVerti ? vertikal_ : horizontal_;
  return dSoll - (PositionOrZero(achsen, i2) - PositionOrZero(achsen, i1));
}

bool CMAchsen::GetKnoten(const XY& p, CMKnoten& knoten, double dTol) const {
  knoten.Set(0, 0);
  double best = kKeinKnoten;
  double x = 0.0;
  for (int j = 0; j < iGetCntVerti(); ++j) {
    x += vertikal_[static_cast<std::size_t>(j)].GetAbst();
    const double dx = p.x - x;
    if (!(std::fabs(dx) <= dTol)) continue;
    double y = 0.0;
    for (int k = 0; k < iGetCntHori(); ++k) {
      y += horizontal_[static_cast<std::size_t>(k)].GetAbst();
      const double dy = p.y - y;
      if (!(std::fabs(dy) <= dTol)) continue;
      const double distance = std::sqrt(dx * dx + dy * dy);
      if (distance < best) {
        best = distance;
        knoten.Set(j, k);
      }
    }
  }
  return best < kKeinKnoten / 10.0;
}

bool CMAchsen::ReadFromIniFile(CIniFile& document) {
  ReadAxes(document, lintavo::StringId::PraefixY, horizontal_);
  ReadAxes(document, lintavo::StringId::PraefixX, vertikal_);
  return true;
}

bool CMAchsen::SaveToIniFile(CIniFile& document) const {
  SaveAxes(document, lintavo::StringId::PraefixY, horizontal_);
  SaveAxes(document, lintavo::StringId::PraefixX, vertikal_);
  return true;
}
