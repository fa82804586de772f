// Additional dimensions at work: they move the axes of the grid and the corners
// of the frame until their lengths hold.
#include <algorithm>
#include <cmath>

#include "lintavo/geom/Toleranzen.h"
#include "lintavo/geom/Vektor_intern.h"
#include "lintavo/model/Achsbereich_intern.h"
#include "lintavo/model/CMFenster.h"
#include "lintavo/model/CMFenster_Stich_intern.h"
#include "lintavo/resources/StringTable.h"

using lintavo::StringId;

namespace {

// A corner point belongs to a frame corner at most this far away.
constexpr double kFangRadius = 0.1;

constexpr const char* kNurEineVerschiebung =
    "(RahmenEckpunktVerschieben) Es ist nur eine Verschiebung zulassig !";

int IndexOf(const CMKnoten& knoten, bool horizontal) {
  return horizontal ? knoten.J() : knoten.K();
}

int AxisCount(const CMAchsen& achsen, bool bVerti) {
  return bVerti ? achsen.iGetCntVerti() : achsen.iGetCntHori();
}

bool IsAxis(const CMAchsen& achsen, bool bVerti, long i) {
  return i >= 0 && i < AxisCount(achsen, bVerti);
}

double Position(const CMAchsen& achsen, bool bVerti, int i) {
  return bVerti ? achsen.dGetPosVerti(i) : achsen.dGetPosHori(i);
}

bool IsFixed(const CMAchsen& achsen, bool bVerti, int i) {
  return bVerti ? achsen.IsVertiFest(i) : achsen.IsHoriFest(i);
}

void Fix(CMAchsen& achsen, bool bVerti, int i) {
  if (bVerti) {
    achsen.SetAchseVerti(i, true);
  } else {
    achsen.SetAchseHori(i, true);
  }
}

// Whether a length or half a length may come from a file: it has no more than six decimals.
bool IsDateizahl(double d) {
  constexpr double kHalbeSchritte = 2e6;
  const double schritte = d * kHalbeSchritte;
  return std::fabs(schritte - std::round(schritte)) <= lintavo::kRechenrauschen * kHalbeSchritte;
}

// Adds to the distance of an axis. The stored distance is the difference of
// two positions for every axis but the first.
void AddToDistance(CMAchsen& achsen, bool bVerti, int i, double d) {
  const double before = i > 0 ? Position(achsen, bVerti, i - 1) : 0.0;
  const double distance = Position(achsen, bVerti, i) - before + d;
  if (bVerti) {
    achsen.SetAchsAbstX(i, distance);
  } else {
    achsen.SetAchsAbstY(i, distance);
  }
}

std::vector<double> Positions(const CMAchsen& achsen, bool bVerti) {
  std::vector<double> positions;
  positions.reserve(static_cast<std::size_t>(AxisCount(achsen, bVerti)));
  for (int i = 0; i < AxisCount(achsen, bVerti); ++i) {
    positions.push_back(Position(achsen, bVerti, i));
  }
  return positions;
}

// The axes that a window's nodes lie on; an index past the last axis means it.
class BenutzteAchsen {
 public:
  explicit BenutzteAchsen(const CMAchsen& achsen)
      : used{std::vector<bool>(static_cast<std::size_t>(achsen.iGetCntHori())),
             std::vector<bool>(static_cast<std::size_t>(achsen.iGetCntVerti()))} {}

  void Add(const CMKnoten& knoten) {
    Add(used[0], knoten.K());
    Add(used[1], knoten.J());
  }
  void AddUnlessCorner(const CMKnoten& knoten) {
    if (knoten.IsAufAchse()) Add(knoten);
  }

  std::vector<bool> used[2];

 private:
  static void Add(std::vector<bool>& list, int i) {
    if (i < 0 || list.empty()) return;
    list[std::min(static_cast<std::size_t>(i), list.size() - 1)] = true;
  }
};

// Which dimension moved or set each axis last, during one pass over the dimensions.
class Bewegungen {
 public:
  explicit Bewegungen(const CMAchsen& achsen)
      : positions_{Positions(achsen, false), Positions(achsen, true)},
        setter_{std::vector<long>(positions_[0].size(), -1),
                std::vector<long>(positions_[1].size(), -1)} {}

  /// Notes what has moved since the last call, and the ends that dimension
  /// number `i` has set, as its doing.
  void Note(const CMAchsen& achsen, const CMZusatzMasz& masz, long i) {
    for (const bool bVerti : {false, true}) {
      const std::vector<double> now = Positions(achsen, bVerti);
      for (std::size_t n = 0; n < now.size(); ++n) {
        if (now[n] == positions_[bVerti][n]) continue;  // any movement counts
        setter_[bVerti][n] = i;
      }
      positions_[bVerti] = now;
    }
    NoteEnd(masz, masz.kKnoten2, i);
    if (masz.IsZentrisch()) NoteEnd(masz, masz.kKnoten3, i);
  }

  /// Of the axes in use, the last dimension that moved or set one end of an
  /// interval which now runs backwards; -1 when all are in order.
  long WrongInterval(const BenutzteAchsen& achsen) const {
    const auto& used = achsen.used;
    long wrong = -1;
    for (const bool bVerti : {false, true}) {
      std::size_t previous = positions_[bVerti].size();
      for (std::size_t i = 0; i < positions_[bVerti].size(); ++i) {
        if (!used[bVerti][i]) continue;
        if (previous < i &&
            positions_[bVerti][i] < positions_[bVerti][previous] - lintavo::kNullLaenge) {
          wrong = std::max({wrong, setter_[bVerti][previous], setter_[bVerti][i]});
        }
        previous = i;
      }
    }
    return wrong;
  }

 private:
  void NoteEnd(const CMZusatzMasz& masz, const CMKnoten& end, long i) {
    std::vector<long>& setter = setter_[masz.IsHorizonal()];
    const int axis = IndexOf(end, masz.IsHorizonal());
    const bool set = std::fabs(masz.dLaenge) >= lintavo::kNullLaenge && end.IsAufAchse() &&
                     masz.kKnoten1.IsAufAchse();
    if (set && axis >= 0 && static_cast<std::size_t>(axis) < setter.size()) {
      setter[static_cast<std::size_t>(axis)] = i;
    }
  }

  // Index 0: horizontal axes, 1: vertical axes.
  std::vector<double> positions_[2];
  std::vector<long> setter_[2];
};

BenutzteAchsen AxesInUse(const CMFenster& fenster) {
  BenutzteAchsen achsen(fenster.GetAchsen());
  for (long i = 0; i < fenster.GetAnzahlFluegel(); ++i) {
    const CMFensterSatz& fluegel = *fenster.GetFluegelPtr(i);
    for (const CMKnoten* knoten :
         {&fluegel.Knoten1, &fluegel.Knoten2, &fluegel.KnotenAL, &fluegel.KnotenAR}) {
      achsen.Add(*knoten);
    }
  }
  for (long i = 0; i < fenster.GetAnzahlZusatzMasze(); ++i) {
    const CMZusatzMasz& masz = *fenster.GetZusatzMaszPtr(i);
    achsen.AddUnlessCorner(masz.kKnoten1);
    achsen.AddUnlessCorner(masz.kKnoten2);
    if (masz.IsZentrisch()) achsen.AddUnlessCorner(masz.kKnoten3);
  }
  for (const CMBauteil& bauteil : fenster.GetRahmenPtr()->EinzelTeile) {
    if (!bauteil.IsRahmenteil()) continue;
    achsen.Add(bauteil.kAnfang);
    achsen.Add(bauteil.kEnde);
  }
  return achsen;
}

XY GridPoint(const CMAchsen& achsen, const CMKnoten& knoten) {
  XY p;
  achsen.GetPunkt(knoten, p);
  return p;
}

// Where a node of a dimension lies: on the grid, or at its own coordinates.
XY NodePosition(const CMAchsen& achsen, const CMKnoten& knoten) {
  if (knoten.IsAufAchse()) return GridPoint(achsen, knoten);
  return {knoten.X(), knoten.Y()};
}

// The corner of an outline nearest to a corner point, at most `tolerance` away.
bool EckpunktFangen(const GEOM2_Polygon& outline, const CMKnoten& knoten, double tolerance,
                    long& index) {
  double nearest = tolerance;
  index = -1;
  for (int i = 0; i < outline.GetAnzahl(); ++i) {
    XY p;
    outline.GetPunkt(i, p.x, p.y);
    const double distance = lintavo::Abstand(p, {knoten.X(), knoten.Y()});
    if (!(distance <= nearest) || (index >= 0 && !(distance < nearest))) continue;
    nearest = distance;
    index = i;
  }
  return index >= 0;
}

bool HatGleicheEcken(const GEOM2_Polygon& a, const GEOM2_Polygon& b) {
  for (int i = 0; i < a.GetAnzahl(); ++i) {
    const GEOM2_Eckpunkt& p = a.GetEckpunkt(i);
    const GEOM2_Eckpunkt& q = b.GetEckpunkt(i);
    if (p.x != q.x || p.y != q.y) return false;  // any movement counts
  }
  return true;
}

CMZusatzMasz AutomaticMasz(StringId name, double dAbstand) {
  CMZusatzMasz masz;
  masz.strName = lintavo::Text(name);
  masz.dAbstand = dAbstand;
  return masz;
}

}  // namespace

bool CMFenster::ZusatzMaszVerbinden(CMZusatzMasz& masz) const {
  const bool horizontal = masz.IsHorizonal();
  const CMKnoten& from = masz.IsZentrisch() ? masz.kKnoten2 : masz.kKnoten1;
  const CMKnoten& to = masz.IsZentrisch() ? masz.kKnoten3 : masz.kKnoten2;
  if (!from.IsAufAchse() || !to.IsAufAchse()) return false;
  const int i1 = IndexOf(from, horizontal);
  const int i2 = IndexOf(to, horizontal);
  if (!IsAxis(achsen_, horizontal, i1) || !IsAxis(achsen_, horizontal, i2)) return false;
  if (masz.dLaenge < 0.0 ? i1 <= i2 : i1 >= i2) return false;
  masz.dLaenge = Position(achsen_, horizontal, i2) - Position(achsen_, horizontal, i1);
  return true;
}

bool CMFenster::NeuenAchsAbstandSetzen(const CMZusatzMasz* masz, long i1, long i2, double dSoll) {
  const CMAchsen before = achsen_;
  if (!AchsAbstandSetzen(masz, i1, i2, dSoll)) return false;
  FluegelFormBeiwerteAnpassen(before);
  return true;
}

bool CMFenster::AchsAbstandSetzen(const CMZusatzMasz* masz, long i1, long i2, double dSoll) {
  if (i1 == i2) return false;
  if (std::fabs(dSoll) < lintavo::kNullLaenge) return true;
  if (!masz) return false;
  const bool bVerti = masz->IsHorizonal();
  if (!IsAxis(achsen_, bVerti, i1) || !IsAxis(achsen_, bVerti, i2)) {
    throw CMException(static_cast<int>(StringId::MeldungZusatzmaszLaenge), masz->strName);
  }
  const int von = static_cast<int>(i1);
  const int nach = static_cast<int>(i2);
  Fix(achsen_, bVerti, von);
  if (IsFixed(achsen_, bVerti, nach)) return false;

  const double eff = achsen_.dGetEffVersch(bVerti, von, nach, dSoll);
  // What files round is no shift that anybody asked for: spread over the axes, and these
  // rounded again, it would move them at every reading.
  const bool spreads = !(std::fabs(eff) <= lintavo::kDateirundung);
  if (spreads) {
    std::vector<int> movable;
    for (int k = von + 1; k < nach; ++k) {
      if (!IsFixed(achsen_, bVerti, k)) movable.push_back(k);
    }
    const double step = eff / static_cast<double>(movable.size() + 1);
    double shift = 0.0;
    for (const int k : movable) {
      shift += step;
      // The position is handed over as a span from axis i1, on purpose: the two
      // agree when that axis lies at 0, and stored windows rely on the rest.
      AchseVerschieben(bVerti, von, k, Position(achsen_, bVerti, k) + shift, masz->strName);
    }
  }
  const bool ausDatei = IsDateizahl(dSoll) && IsDateizahl(Position(achsen_, bVerti, von)) &&
                        IsDateizahl(Position(achsen_, bVerti, nach));
  if (spreads || !ausDatei) AchseVerschieben(bVerti, von, nach, dSoll, masz->strName);
  Fix(achsen_, bVerti, nach);
  return true;
}

void CMFenster::AchseVerschieben(bool bVerti, int iVon, int iAchse, double dWert,
                                 const CString& name) {
  const bool known = IsAxis(achsen_, bVerti, iVon) && IsAxis(achsen_, bVerti, iAchse);
  const double missing = achsen_.dGetEffVersch(bVerti, iVon, iAchse, dWert);
  // A shift beyond any drawing is lost to rounding: the axis would not arrive.
  if (!known || !(std::fabs(missing) <= lintavo::kGroessteKoordinate)) {
    throw CMException(static_cast<int>(StringId::MeldungZusatzmaszLaenge), name);
  }
  // Applying rounding noise would change a window that is calculated twice.
  if (std::fabs(missing) < lintavo::kRechenrauschen) return;
  // The axis behind gives way by the same amount, so that all others stay.
  const bool isLast = iAchse + 1 >= AxisCount(achsen_, bVerti);
  if (!isLast) AddToDistance(achsen_, bVerti, iAchse + 1, -missing);
  AddToDistance(achsen_, bVerti, iAchse, missing);
}

CMZusatzMasz* CMFenster::ZusatzMaszAchsVerschiebungen() {
  if (zusatzMasze_.empty()) return nullptr;
  const CMAchsen before = achsen_;
  // Whatever hangs on the axes follows them when a dimension fails too: the
  // axes keep what the ones before it did.
  try {
    CMZusatzMasz* failed = AchsenNachMaszenSetzen();
    AchsenNachfuehren(before);
    return failed;
  } catch (const CMException&) {
    AchsenNachfuehren(before);
    throw;
  }
}

// Gives the axes of all dimensions their spans; the first that fails, or null.
CMZusatzMasz* CMFenster::AchsenNachMaszenSetzen() {
  Bewegungen bewegungen(achsen_);
  for (long i = 0; i < GetAnzahlZusatzMasze(); ++i) {
    CMZusatzMasz* masz = GetZusatzMaszPtr(i);
    if (!AchsenNachMaszSetzen(*masz)) return masz;
    bewegungen.Note(achsen_, *masz, i);
  }
  const long wrong = bewegungen.WrongInterval(AxesInUse(*this));
  if (const CMZusatzMasz* masz = GetZusatzMaszPtr(wrong)) {
    throw CMException(static_cast<int>(StringId::MeldungZusatzmaszLaenge), masz->strName);
  }
  return nullptr;
}

// Lets shapes, mullions, transoms and corner points follow axes that have moved. Shapes
// reckon from before all dimensions to after all: an extent may vanish on the way.
void CMFenster::AchsenNachfuehren(const CMAchsen& before) {
  if (Positions(achsen_, false) == Positions(before, false) &&
      Positions(achsen_, true) == Positions(before, true)) {
    return;
  }
  const lintavo::TiedSpringingLines springingLines(*this, before);
  FluegelFormBeiwerteAnpassen(before);
  Invalidiere();
  EckpunktKnotenNachfuehren(before);
}

// Gives the axes of one dimension their spans. Dimensions without a length,
// and ends that are free corner points, move no axis.
bool CMFenster::AchsenNachMaszSetzen(const CMZusatzMasz& masz) {
  if (std::fabs(masz.dLaenge) < lintavo::kNullLaenge) return true;
  if (!masz.kKnoten1.IsAufAchse()) return true;
  if (!masz.IsHorizonal() && !masz.IsVertikal()) return false;
  const bool horizontal = masz.IsHorizonal();
  const auto setSpan = [&](const CMKnoten& end, double length) {
    if (!end.IsAufAchse()) return true;
    return AchsAbstandSetzen(&masz, IndexOf(masz.kKnoten1, horizontal), IndexOf(end, horizontal),
                             length);
  };
  if (!masz.IsZentrisch()) return setSpan(masz.kKnoten2, masz.dLaenge);
  return setSpan(masz.kKnoten2, -masz.dLaenge / 2.0) && setSpan(masz.kKnoten3, masz.dLaenge / 2.0);
}

// Corner points of the dimensions keep their offset to the grid point of their
// axes.
void CMFenster::EckpunktKnotenNachfuehren(const CMAchsen& before) {
  for (CMZusatzMasz& masz : zusatzMasze_) {
    for (CMKnoten* knoten : {&masz.kKnoten1, &masz.kKnoten2, &masz.kKnoten3}) {
      if (knoten->IsAufAchse()) continue;
      const XY shift = lintavo::Differenz(GridPoint(achsen_, *knoten), GridPoint(before, *knoten));
      knoten->SetX(knoten->X() + shift.x);
      knoten->SetY(knoten->Y() + shift.y);
    }
  }
}

CMZusatzMasz* CMFenster::ZusatzMaszRahmenEckenVerschiebungen(
    std::vector<GEOM2_Polygon>& grundformen) {
  // Corners are found where they were before any of them moved, so that two
  // dimensions can move the same one, each along its direction.
  const GEOM2_Polygon before = rahmen_.RahmenPolygon;
  for (CMZusatzMasz& masz : zusatzMasze_) {
    if (!EckenNachMaszSetzen(masz, before, grundformen)) return &masz;
  }
  // A side along which several sashes stand bends where the one ends whose corner
  // has moved.
  if (!HatGleicheEcken(rahmen_.RahmenPolygon, before)) RahmenUmrissBilden(grundformen);
  return nullptr;
}

// Moves the corner points at the ends of one dimension. An end on an axis stays;
// of two corner points the second one moves.
bool CMFenster::EckenNachMaszSetzen(const CMZusatzMasz& masz, const GEOM2_Polygon& before,
                                    std::vector<GEOM2_Polygon>& grundformen) {
  if (std::fabs(masz.dLaenge) < lintavo::kNullLaenge) return true;
  const XY start = NodePosition(achsen_, masz.kKnoten1);
  const auto setSpan = [&](const CMKnoten& end, double length) {
    if (masz.kKnoten1.IsAufAchse() && end.IsAufAchse()) return true;
    const XY span = lintavo::Differenz(NodePosition(achsen_, end), start);
    const double missing = length - (masz.IsHorizonal() ? span.x : span.y);
    if (std::fabs(missing) <= lintavo::kDateirundung) return true;
    // The rise that such a dimension asks for is more than the arch can have.
    if (lintavo::EndsOnSpringingLine(*this, masz)) return true;
    const bool endMoves = !end.IsAufAchse();
    const CMKnoten& knoten = endMoves ? end : masz.kKnoten1;
    const double shift = endMoves ? missing : -missing;
    long index = -1;
    if (!std::isfinite(shift) || !EckpunktFangen(before, knoten, kFangRadius, index)) return false;
    RahmenEckpunktVerschieben(knoten, index, masz.IsHorizonal() ? shift : 0.0,
                              masz.IsHorizonal() ? 0.0 : shift, grundformen);
    return true;
  };
  if (!masz.IsZentrisch()) return setSpan(masz.kKnoten2, masz.dLaenge);
  return setSpan(masz.kKnoten2, -masz.dLaenge / 2.0) && setSpan(masz.kKnoten3, masz.dLaenge / 2.0);
}

bool CMFenster::RahmenEckpunktFangen(const CMKnoten& knoten, double tolerance, long& index) const {
  return EckpunktFangen(rahmen_.RahmenPolygon, knoten, tolerance, index);
}

void CMFenster::RahmenEckpunktVerschieben(const CMKnoten&, long index, double dx, double dy,
                                          std::vector<GEOM2_Polygon>& grundformen) {
  if (std::fabs(dx) >= lintavo::kNullLaenge && std::fabs(dy) >= lintavo::kNullLaenge) {
    throw CMException(CString(kNurEineVerschiebung));
  }
  GEOM2_Polygon& outline = rahmen_.RahmenPolygon;
  XY corner;
  if (index < 0 || !outline.GetPunkt(static_cast<int>(index), corner.x, corner.y)) return;
  outline.SetPunkt(static_cast<int>(index), corner.x + dx, corner.y + dy);
  for (GEOM2_Polygon& form : grundformen) {
    for (int i = 0; i < form.GetAnzahl(); ++i) {
      XY p;
      form.GetPunkt(i, p.x, p.y);
      if (lintavo::Abstand(p, corner) > lintavo::kVereinigung) continue;
      form.SetPunkt(i, p.x + dx, p.y + dy);
    }
  }
  BoxBilden(grundformen);
}

// The box around the frame outline and all sash outlines.
void CMFenster::BoxBilden(const std::vector<GEOM2_Polygon>& grundformen) {
  XY low;
  XY high;
  rahmen_.RahmenPolygon.GetMinMax(low, high);
  box_ = {low.x, low.y, high.x, high.y};
  for (const GEOM2_Polygon& form : grundformen) {
    form.GetMinMax(low, high);
    box_ = {std::min(box_.xmin, low.x), std::min(box_.ymin, low.y), std::max(box_.xmax, high.x),
            std::max(box_.ymax, high.y)};
  }
}

bool CMFenster::ZusatzMaszeFuerBreiteUndHoeheAutomatisch(double dAbstand) {
  DeleteZusatzMasze();
  const lintavo::Achsbereich benutzt = lintavo::BenutzteAchsen(*this);
  const auto node = [](long j, long k) {
    return CMKnoten(static_cast<int>(j), static_cast<int>(k));
  };
  const CMKnoten origin = node(benutzt.minJ, benutzt.minK);

  CMZusatzMasz breite = AutomaticMasz(StringId::Breite, dAbstand);
  breite.SetHorizontal(origin, node(benutzt.maxJ, benutzt.minK));
  CMZusatzMasz hoehe = AutomaticMasz(StringId::Hoehe, dAbstand);
  hoehe.SetVertikal(origin, node(benutzt.minJ, benutzt.maxK));
  for (CMZusatzMasz* masz : {&breite, &hoehe}) {
    if (!ZusatzMaszVerbinden(*masz)) {
      throw CMException(static_cast<int>(StringId::MeldungZusatzmaszNichtAngebracht),
                        masz->strName);
    }
    AddZusatzMasz(*masz);
  }
  // Success answers false, on purpose: callers do not look at the result.
  return false;
}
