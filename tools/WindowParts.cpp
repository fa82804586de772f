// What the pieces of a window are on a list, and their ids in pictures.
#include "WindowParts.h"

#include "lintavo/drawing/Ids.h"
#include "lintavo/model/CMFenster.h"

namespace lintavo::tools {

// Both count in the order of lists.
static_assert(static_cast<int>(TeilArt::kPaneel) == static_cast<int>(PieceKind::kPanel));
static_assert(static_cast<int>(TeilArt::kLamelle) == static_cast<int>(PieceKind::kSlat));

TeilArt ArtVon(const Piece& piece) {
  return static_cast<TeilArt>(piece.kind);
}

TeilArt ArtVon(const Fitting& fitting) {
  switch (fitting.kind) {
    case FittingKind::kHandle:
      return TeilArt::kGriff;
    case FittingKind::kHinge:
      return TeilArt::kBand;
    case FittingKind::kOther:
      return TeilArt::kBeschlag;
  }
  return TeilArt::kBeschlag;
}

std::string IdVon(const Piece& piece) {
  return drawing::IdOf(drawing::KindOf(piece), piece.sash, piece.index);
}

WindowView ViewOf(const CFeApi& window) {
  const CMFenster* const fenster = window.GetFensterPtr();
  return fenster && fenster->GetFehler() == 0 ? fenster->View() : WindowView();
}

}  // namespace lintavo::tools
