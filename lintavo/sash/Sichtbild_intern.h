// Pictures with hidden lines removed: piles of layers, each a pile of parts.
//
// An edge is hidden by the layers before its own, where a layer may cover with a whole
// outline, and by the parts before its own in its layer. The view of a window and the
// picture of a single sash are both made here.
#pragma once

#include <vector>

#include "lintavo/geom/CMStrecke.h"
#include "lintavo/geom/Doppelkanten_intern.h"
#include "lintavo/geom/GEOM2_Polygon.h"
#include "lintavo/geom/Seitenblick_intern.h"
#include "lintavo/geom/Verdeckung_intern.h"

class CMFensterSatz;

namespace lintavo {

/// Values of CMFensterSatz::lOeffSeite, which name the viewer's sides too.
enum Blickseite : int { kVonInnen = 0, kVonAussen = 1 };

/// A part in a picture; the edges with attribute 1 are drawn.
struct Bildteil {
  GEOM2_Polygon umriss;
  int farbe = 0;
  int prio = 0;
  bool istFuellung = false;
};

/// The visible parts of the window's frame, the nearest first: outer extra parts, frame
/// parts, mullions and transoms.
std::vector<Bildteil> BildteileDesRahmens(const CMFensterSatz& rahmen, int seite);
/// The visible parts of a sash, the nearest first: frame parts, single parts, bars,
/// slats, filling.
std::vector<Bildteil> BildteileDesFluegels(const CMFensterSatz& fluegel, int seite);

class Sichtbild {
 public:
  /// Adds a layer behind all others; its parts cover what lies behind them.
  void AddEbene(std::vector<Bildteil> teile);
  /// The same for a layer that covers with a whole outline.
  void AddEbene(std::vector<Bildteil> teile, const GEOM2_Polygon& flaeche);
  /// Appends the visible edges, common ones once. False, with nothing appended, when
  /// there are more than 100,000 pieces. Call once.
  bool Zeichnen(std::vector<CMStrecke>& lines);

 private:
  bool ZeichneEbene(std::size_t ebene);
  bool ZeichneTeil(const Bildteil& teil, std::size_t ebene, const Verdeckung& innerhalb,
                   std::size_t nr);

  std::vector<std::vector<Bildteil>> ebenen_;
  Verdeckung verdeckung_;
  Seitenblick blick_;
  std::vector<Bildkante> kanten_;
};

}  // namespace lintavo
