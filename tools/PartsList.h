// The cutting list: every bar, pane and fitting of calculated windows, equal ones
// counted together. Knows nothing of languages and formats.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <tuple>
#include <vector>

#include "lintavo/geom/GEOM2_Polygon.h"
#include "lintavo/geom/XY.h"
#include "lintavo/view/WindowView.h"

#include "WindowParts.h"

namespace lintavo::tools {

/// Lengths, in drawing units, that differ by no more than this are one length at the saw.
inline constexpr double kGleichesMasz = 0.001;
/// The same for cut angles, in degrees.
inline constexpr double kGleicherSchnitt = 0.01;

/// Where a piece goes.
struct Stelle {
  std::size_t fenster = 0;      ///< index of the window, in the order of adding
  long fluegel = kFrameRecord;  ///< index of the sash
  std::string id{};             ///< as in pictures, see `lintavo/drawing/Ids.h`
};

/// Bars that the saw cuts alike.
struct Stab {
  TeilArt art = TeilArt::kRahmen;
  /// Of the blank, from tip to tip along the axis. Of a bent part developed along its
  /// longer edge, as an arc where it has a radius.
  double laenge = 0.0;
  double achslaenge = 0.0;  ///< as the façade answers it
  double breite = 0.0;      ///< of the blank, across the axis in the window's plane
  double dicke = 0.0;
  /// Lean of the cuts from square in degrees, positive when the left end of the cut, seen
  /// along the axis, lies further along it.
  double winkelAnfang = 0.0;
  double winkelEnde = 0.0;
  /// The section lies centred on its axis: turned by half a turn it is the same bar.
  bool mittig = false;
  double radius = 0.0;  ///< of the axis of a circular part; 0 where there is none
  long segmente = 1;
  /// Of a bent part the length of each segment, then its turn to the next in degrees.
  std::vector<double> verlauf{};
  std::vector<Stelle> stellen{};  ///< one for each piece
};

/// Panes or panels of one size.
struct Scheibe {
  TeilArt art = TeilArt::kGlas;
  double breite = 0.0;  ///< of the box around it
  double hoehe = 0.0;
  double dicke = 0.0;
  double flaeche = 0.0;  ///< its own, not the box's
  bool rechteckig = true;
  std::vector<XY> umriss{};  ///< from the lower left corner of the box
  std::vector<Stelle> stellen{};
};

/// Fittings of one kind.
struct Beschlaege {
  TeilArt art = TeilArt::kBeschlag;
  std::vector<Stelle> stellen{};
};

struct PartsList {
  std::vector<Stab> staebe{};
  std::vector<Scheibe> scheiben{};
  std::vector<Beschlaege> beschlaege{};
};

/// All bars of one section together, for whoever orders them.
struct Profil {
  TeilArt art = TeilArt::kRahmen;
  double breite = 0.0;
  double dicke = 0.0;
  std::size_t fenster = 0;  ///< of its first piece
  std::size_t anzahl = 0;
  double laenge = 0.0;  ///< of all blanks, without what the saw wastes
};

/// The sections of a sorted list, in its order; of every window by itself on request.
std::vector<Profil> ProfileOf(const PartsList& list, bool jeFenster);

struct PartsOptions {
  double falz = 0.0;       ///< how far panes reach into the rebate of their frame, on every side
  bool jeFenster = false;  ///< nothing is added up over several windows
};

/// Measures a piece; places are left empty.
Stab MesseStab(const Piece& piece);

/// Measures the outline of a pane; places are left empty.
Scheibe MesseScheibe(TeilArt art, double dicke, const GEOM2_Polygon& umriss);

/// Whether one cut fits both. A mirror image is another piece, since sections have an
/// inside and an outside; a piece turned by half a turn is the same one where its section
/// lies centred on its axis.
bool SchneidetGleich(const Stab& a, const Stab& b);

/// The same of panes, which are neither turned nor mirrored.
bool SchneidetGleich(const Scheibe& a, const Scheibe& b);

/// Multiplies all lengths by `faktor` and areas by its square.
void Skaliere(double faktor, PartsList& list);

/// Collects the pieces of windows, each as often as it is added.
///
/// Every piece with an axis is one bar; a sash that is not filled with slats and has an
/// inner outline has one pane or panel.
class PartsCollector {
 public:
  explicit PartsCollector(const PartsOptions& options) : options_(options) {}

  /// Adds a calculated window.
  void Add(const WindowView& view);

  /// The list so far as the saw takes it: by kind (by window before that where windows are
  /// kept apart), wide and thick sections first, of these the longest first.
  PartsList Sorted() const;

 private:
  // Windows kept apart or 0, kind, and the length in steps of the tolerance.
  using Schluessel = std::tuple<std::size_t, TeilArt, double>;
  using Fundstellen = std::map<Schluessel, std::vector<std::size_t>>;

  template <class Zeile>
  void Einreihen(Zeile zeile, double masz, Stelle stelle, Fundstellen& fundstellen,
                 std::vector<Zeile>& zeilen);
  void AddStaebe(const std::vector<Piece>& pieces);
  void AddFluegel(const Sash& sash, long fluegel);
  void AddScheibe(const Sash& sash, const Piece& pane);
  void AddBeschlaege(const Sash& sash, long fluegel);

  PartsOptions options_;
  std::size_t fenster_ = 0;
  PartsList list_;
  Fundstellen staebe_;
  Fundstellen scheiben_;
};

}  // namespace lintavo::tools
