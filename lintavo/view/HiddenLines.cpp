#include "lintavo/view/HiddenLines.h"

#include <utility>

#include "lintavo/geom/Doppelkanten_intern.h"
#include "lintavo/geom/Seitenblick_intern.h"
#include "lintavo/geom/Toleranzen.h"
#include "lintavo/geom/Vektor_intern.h"
#include "lintavo/geom/Verdeckung_intern.h"
#include "lintavo/platform/Grenzen_intern.h"
#include "lintavo/platform/Numbers_intern.h"

namespace lintavo {
namespace {

using Pieces = std::vector<const Piece*>;

bool IsFilling(const Piece& piece) {
  return piece.kind >= PieceKind::kSlat;
}

/// The attribute of a piece for a side: number 0 its colour, 1 its priority.
int AttributeOf(const Piece& piece, ViewSide side, std::size_t number) {
  const std::size_t outside = side == ViewSide::kOutside ? 1 : 0;
  return TruncateToInt(static_cast<double>(piece.attributes[2 * number + outside]));
}

/// Piles of layers, each a pile of pieces. An edge is hidden by the layers before its own and
/// by the pieces before its own in its layer.
class Picture {
 public:
  explicit Picture(ViewSide side) : side_(side) {}

  /// Adds a layer behind all others; its pieces cover what lies behind them.
  void AddLayer(Pieces pieces) {
    for (const Piece* piece : pieces) covers_.Hinzufuegen(piece->outline, layers_.size());
    layers_.push_back(std::move(pieces));
  }

  /// The same for a layer that covers with a whole outline.
  void AddLayer(Pieces pieces, const GEOM2_Polygon& outline) {
    covers_.Hinzufuegen(outline, layers_.size());
    layers_.push_back(std::move(pieces));
  }

  bool Draw(std::vector<VisibleEdge>& edges) {
    covers_.Sortieren();
    for (std::size_t layer = 0; layer < layers_.size(); ++layer) {
      if (!DrawLayer(layer)) return false;
    }
    for (const Bildkante& once : OhneDoppelte(lines_)) {
      VisibleEdge& edge = edges.emplace_back(found_[once.quelle]);
      once.strecke.GetPunkte(edge.from, edge.to);
    }
    return true;
  }

 private:
  bool DrawLayer(std::size_t layer) {
    const Pieces& pieces = layers_[layer];
    Verdeckung within;
    for (std::size_t i = 0; i < pieces.size(); ++i) within.Hinzufuegen(pieces[i]->outline, i);
    within.Sortieren();
    for (std::size_t i = 0; i < pieces.size(); ++i) {
      if (!DrawPiece(*pieces[i], layer, within, i)) return false;
    }
    return true;
  }

  bool DrawPiece(const Piece& piece, std::size_t layer, const Verdeckung& within,
                 std::size_t place) {
    for (int i = 0; i < piece.outline.GetAnzahl(); ++i) {
      XY a;
      XY b;
      piece.outline.GetKante(i, a, b);
      if (piece.outline.GetAttribut(i) != 1) continue;
      if (!IstBrauchbar(a) || !IstBrauchbar(b)) continue;
      const double length = Abstand(a, b);
      if (length < kNullLaenge) continue;
      glance_.Richten(a, b);
      if (covers_.Beschatten(a, b, layer, glance_) || within.Beschatten(a, b, place, glance_)) {
        continue;
      }
      for (const Abschnitt& seen : UebrigeAbschnitte({{0.0, length}}, glance_.Innen())) {
        if (!AddLine(piece, i, TeilDerKante(a, b, length, seen))) return false;
      }
    }
    return true;
  }

  bool AddLine(const Piece& piece, int side, const Teilstueck& stretch) {
    if (lines_.size() == kMaxBildkanten) return false;
    const int priority = AttributeOf(piece, side_, 1);
    Bildkante& line = lines_.emplace_back();
    line.strecke.SetPunkte(stretch.a, stretch.b);
    line.strecke.SetPrio(priority);
    line.istFuellung = IsFilling(piece);
    line.quelle = found_.size();
    found_.push_back({{}, {}, &piece, side, AttributeOf(piece, side_, 0), priority});
    return true;
  }

  ViewSide side_;
  std::vector<Pieces> layers_;
  Verdeckung covers_;
  Seitenblick glance_;
  std::vector<Bildkante> lines_;
  std::vector<VisibleEdge> found_;  // one for each line
};

}  // namespace

CMStrecke LineOf(const VisibleEdge& edge) {
  CMStrecke line(edge.from, edge.to);
  line.SetFarbe(edge.colour);
  line.SetPrio(edge.priority);
  return line;
}

bool FindVisibleEdges(const WindowView& view, ViewSide side, std::vector<VisibleEdge>& edges) {
  edges.clear();
  Picture picture(side);
  for (const int layer : view.Order(side)) {
    if (layer == kFrameRecord) {
      picture.AddLayer(FromNearest(view.frame));
    } else {
      const Sash& sash = view.sashes[static_cast<std::size_t>(layer)];
      picture.AddLayer(FromNearest(sash), sash.outline);
    }
  }
  return picture.Draw(edges);
}

bool FindVisibleEdges(const Sash& sash, std::vector<VisibleEdge>& edges) {
  edges.clear();
  Picture picture(ViewSide::kInside);
  picture.AddLayer(FromNearest(sash));
  return picture.Draw(edges);
}

}  // namespace lintavo
