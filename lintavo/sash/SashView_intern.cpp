#include "lintavo/sash/SashView_intern.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "lintavo/geom/Toleranzen.h"
#include "lintavo/model/CMException.h"
#include "lintavo/model/SectionReach_intern.h"
#include "lintavo/sash/Beschlagbild_intern.h"
#include "lintavo/sash/CMFensterSatz.h"
#include "lintavo/sash/Lamellenlage_intern.h"

namespace lintavo {
namespace {

// The values of the records and those of the view are the same numbers.
static_assert(static_cast<int>(SashShape::kHalfArch) == eFormHalbBogen);
static_assert(static_cast<int>(OpeningKind::kLiftSlideTilt) == eGangartHebeSchiebeKipp);
static_assert(static_cast<int>(HingeSide::kBottom) == eAnschlagUnten);

constexpr long kOhneNummer = 0;

template <class Enum>
Enum As(int value, Enum last) {
  return static_cast<Enum>(std::clamp(value, 0, static_cast<int>(last)));
}

PieceKind KindOfSingle(const CMBauteil& bauteil) {
  if (bauteil.IsZusatzteilInnen()) return PieceKind::kInnerPart;
  if (bauteil.IsZusatzteilAussen()) return PieceKind::kOuterPart;
  const double winkel = bauteil.dGetDrehwinkel() * kRadiantJeGrad;
  const bool upright = std::fabs(std::sin(winkel)) > std::fabs(std::cos(winkel));
  return upright ? PieceKind::kMullion : PieceKind::kTransom;
}

Depth Centred(const Depth& depth, double thickness) {
  const double middle = (depth.from + depth.to) / 2.0;
  return {middle - thickness / 2.0, middle + thickness / 2.0};
}

// Makes the pieces of one record, which lies at one depth.
class PieceMaker {
 public:
  PieceMaker(int sash, const Depth& depth) : sash_(sash), depth_(depth) {}

  Piece Make(PieceKind kind, std::size_t index, const CMBauteil& bauteil) const {
    const SectionReach reach = ReachOf(bauteil);
    Piece piece;
    piece.kind = kind;
    piece.sash = sash_;
    piece.index = static_cast<int>(index);
    bauteil.GetUmrissPunkte(piece.outline);
    piece.axes = bauteil.Achsen;
    piece.right = reach.right;
    piece.left = reach.left;
    piece.thickness = bauteil.dDicke;
    piece.depth = DepthOf(kind, bauteil.dDicke);
    std::copy(std::begin(bauteil.lAttribut), std::end(bauteil.lAttribut), piece.attributes.begin());
    return piece;
  }

  /// The components that are there; `kindOf` tells what each is.
  template <class KindOf>
  std::vector<Piece> MakeAll(const std::vector<CMBauteil>& bauteile, KindOf kindOf) const {
    std::vector<Piece> pieces;
    pieces.reserve(bauteile.size());
    for (const CMBauteil& bauteil : bauteile) {
      if (bauteil.IsVorhanden()) pieces.push_back(Make(kindOf(bauteil), pieces.size(), bauteil));
    }
    return pieces;
  }

  std::vector<Piece> MakeAll(const std::vector<CMBauteil>& bauteile, PieceKind kind) const {
    return MakeAll(bauteile, [=](const CMBauteil&) { return kind; });
  }

  Depth DepthOf(PieceKind kind, double thickness) const {
    const bool isFrame = kind == PieceKind::kFramePart || kind == PieceKind::kSashPart;
    return isFrame ? depth_ : Centred(depth_, thickness);
  }

 private:
  int sash_;
  Depth depth_;
};

// The contour inside a record's parts; empty where they leave no room.
GEOM2_Polygon InnerOf(const CMFensterSatz& fluegel) {
  GEOM2_Polygon inner;
  try {
    if (!fluegel.ErzeugeRahmenInnenPolygon(inner)) inner.Clear();
  } catch (const CMException&) {
    inner.Clear();
  }
  return inner;
}

Filling FillingOf(const CMFensterSatz& fluegel, const GEOM2_Polygon& inner, const PieceMaker& maker,
                  int sash) {
  const CMFuellung& stored = fluegel.Fuellung;
  Filling filling;
  filling.kind = stored.IsKonstant()   ? FillingKind::kPanel
                 : stored.IsLamellen() ? FillingKind::kSlats
                                       : FillingKind::kGlass;
  filling.thickness = stored.D3;
  filling.attributes = {stored.I1, stored.I2, stored.I3, stored.I4};
  if (inner.GetAnzahl() < 3) return filling;
  std::vector<CMBauteil> lamellen;
  fluegel.GetFuellung(kOhneNummer, filling.contour, lamellen);
  for (const CMBauteil& lamelle : lamellen) {
    Piece& slat =
        filling.slats.emplace_back(maker.Make(PieceKind::kSlat, filling.slats.size(), lamelle));
    slat.outline = SichtbareLamelle(lamelle, inner);
  }
  // What is seen is not the glass, which lacks the contour's short edges: a line that runs
  // exactly along the sash's own parts is seen only where there are none.
  Piece& pane = filling.pane.emplace();
  pane.kind = filling.kind == FillingKind::kGlass   ? PieceKind::kGlass
              : filling.kind == FillingKind::kPanel ? PieceKind::kPanel
                                                    : PieceKind::kSlatGround;
  pane.sash = sash;
  pane.outline = inner;
  for (int i = 0; i < inner.GetAnzahl(); ++i) pane.outline.SetAttribut(i, 1);
  pane.thickness = filling.thickness;
  pane.depth = maker.DepthOf(pane.kind, pane.thickness);
  pane.attributes = filling.attributes;
  return filling;
}

// A copy is asked: a fitting brings its distances into their range when it is.
Fitting FittingOf(CMBeschlag beschlag, const CMFensterSatz& fluegel) {
  Fitting fitting;
  fitting.type = beschlag.eTyp;
  fitting.kind = beschlag.eTyp == eBeschlagGriff  ? FittingKind::kHandle
                 : beschlag.eTyp == eBeschlagBand ? FittingKind::kHinge
                                                  : FittingKind::kOther;
  XY place;
  if (!beschlag.GetPunkt(&fluegel, place, fitting.angle)) return fitting;
  fitting.place = place;
  beschlag.GetZeichnung(fitting.lines, place, fitting.angle);
  fitting.outline = BeschlagUmriss(beschlag, place, fitting.angle);
  return fitting;
}

Opening OpeningOf(const CMFensterSatz& fluegel) {
  return {As(fluegel.lGangart, OpeningKind::kLiftSlideTilt),
          As(fluegel.lAnschlag, HingeSide::kBottom), As(fluegel.lOeffSeite, ViewSide::kOutside),
          fluegel.bZuerstAufgehend};
}

// The first frame part that is there, or null.
const CMBauteil* FirstPart(const CMFensterSatz& satz) {
  const auto first = std::find_if(satz.RahmenTeile.begin(), satz.RahmenTeile.end(),
                                  [](const CMBauteil& teil) { return teil.IsVorhanden(); });
  return first == satz.RahmenTeile.end() ? nullptr : &*first;
}

// Depth of a sash's face behind the frame's, on the side to which it opens and on the other.
std::array<double, 2> OffsetOf(const CMFensterSatz& fluegel, const CMFensterSatz& rahmen) {
  const CMBauteil* part = FirstPart(fluegel);
  const CMBauteil* framePart = FirstPart(rahmen);
  const double other =
      (framePart ? framePart->dDicke : 0.0) - (part ? part->dDicke : 0.0) - fluegel.dZVersatz;
  std::array offset{fluegel.dZVersatz, other};
  if (fluegel.lOeffSeite != 0) std::swap(offset[0], offset[1]);
  return offset;
}

void FillRecord(const CMFensterSatz& satz, PieceKind kind, const PieceMaker& maker,
                Record& record) {
  record.outline = satz.RahmenPolygon;
  record.parts = maker.MakeAll(satz.RahmenTeile, kind);
  record.singles = maker.MakeAll(satz.EinzelTeile, KindOfSingle);
  if (const CMBauteil* first = FirstPart(satz)) {
    record.width = first->dBreite;
    record.thickness = first->dDicke;
  }
}

Depth DepthOf(const CMFensterSatz& fluegel, const CMFensterSatz& rahmen) {
  const double thickness = ThicknessOf(fluegel);
  const double from = fluegel.lOeffSeite == 0 ? fluegel.dZVersatz
                                              : ThicknessOf(rahmen) - thickness - fluegel.dZVersatz;
  return {from, from + thickness};
}

}  // namespace

double ThicknessOf(const CMFensterSatz& satz) {
  return satz.RahmenTeile.empty() ? satz.RahmenVorlage.dDicke : satz.RahmenTeile.front().dDicke;
}

Record FrameViewOf(const CMFensterSatz& rahmen) {
  Record frame;
  FillRecord(rahmen, PieceKind::kFramePart, PieceMaker(kFrameRecord, {0.0, ThicknessOf(rahmen)}),
             frame);
  return frame;
}

Sash SashViewOf(const CMFensterSatz& fluegel, int index, const CMFensterSatz& rahmen) {
  Sash sash;
  sash.depth = DepthOf(fluegel, rahmen);
  const PieceMaker maker(index, sash.depth);
  FillRecord(fluegel, PieceKind::kSashPart, maker, sash);
  sash.name = fluegel.strName.View();
  sash.shape = static_cast<SashShape>(fluegel.lForm);
  sash.opening = OpeningOf(fluegel);
  sash.overlap = fluegel.RahmenVorlage.dBreite2;
  sash.offset = OffsetOf(fluegel, rahmen);
  sash.inner = InnerOf(fluegel);
  sash.bars = maker.MakeAll(fluegel.Sprossen, PieceKind::kBar);
  sash.filling = FillingOf(fluegel, sash.inner, maker, index);
  for (const CMBeschlag& beschlag : fluegel.Beschlaege) {
    sash.fittings.push_back(FittingOf(beschlag, fluegel));
  }
  fluegel.GetOeffSymbol(sash.symbol);
  fluegel.GetMaszeGlaslichteHori(sash.glassWidths);
  fluegel.GetMaszeGlaslichteVert(sash.glassHeights);
  return sash;
}

}  // namespace lintavo
