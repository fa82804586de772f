// A window drawn up as plain numbers: what its macro file says, before anything is
// calculated. It can be written as macro text, mirrored and enlarged.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace lintavo::test {

/// A node of the grid; with a place it is a free corner point.
struct Knotenentwurf {
  int j = 0;
  int k = 0;
  bool frei = false;
  double x = 0.0;
  double y = 0.0;
};

struct Maszentwurf {
  std::string name;
  double laenge = 0.0;
  double abstand = 0.0;
  bool horizontal = true;
  Knotenentwurf knoten[2];
  std::optional<Knotenentwurf> dritter;  ///< makes it a centred one
};

struct Querschnitt {
  double breite = 0.0;
  double ueberschlag = 0.0;  ///< of sashes only
  double dicke = 0.0;
};

struct Zusatzteilentwurf {
  int seite = 0;
  double breite = 0.0;
  double dicke = 0.0;
  int anfang = 0;  ///< section-end types, of outer ones only
  int ende = 0;
};

/// A mullion or transom.
struct Pfostenentwurf {
  Knotenentwurf von;
  Knotenentwurf bis;
  double breite = 0.0;
  double dicke = 0.0;
};

struct Sprossenentwurf {
  double x = 0.0;
  double y = 0.0;
  double winkel = 0.0;  ///< degrees
  double laenge = 0.0;
  double breite = 0.0;
  double dicke = 0.0;
};

struct Beschlagentwurf {
  int typ = 0;
  int bauteil = 0;
  int art1 = 0;
  double abstand1 = 0.0;
  int art2 = 0;
  double abstand2 = 0.0;
};

struct Fuellungsentwurf {
  int art = 0;  ///< 0 glass, 1 panel, 2 slats
  double abstand = 0.0;
  double breite = 0.0;  ///< of a slat; files keep whole numbers only
  double dicke = 1.0;
  double kurzeKante = 0.5;
};

struct Beiwertentwurf {
  double wert = 0.0;
  bool fest = true;
};

struct Fluegelentwurf {
  int form = 1;  ///< 1 rectangle, 2 arch, 3 ellipse, 4 half arch
  std::string name;
  Knotenentwurf knoten1;  ///< bottom left
  Knotenentwurf knoten2;  ///< top right
  int jLinks = 0;         ///< axes of the reference nodes
  int jRechts = 0;
  Querschnitt vorlage;
  std::vector<Querschnitt> teile;  ///< frame parts that differ from the template
  std::vector<Zusatzteilentwurf> innenteile;
  std::vector<Sprossenentwurf> sprossen;
  std::vector<Beschlagentwurf> beschlaege;
  Fuellungsentwurf fuellung;
  double zVersatz = 0.0;
  bool mitRahmen = true;
  bool nachAussen = false;
  bool zuerstAufgehend = false;
  int gangart = 0;
  int anschlag = 0;
  /// Rectangles: top left, top right, bottom left, bottom right.
  Beiwertentwurf beiwertX[4];
  Beiwertentwurf beiwertY[4];
  double stich = 0.0;  ///< arches
  double stichUnten = 0.0;
  bool korbbogen = false;
  bool gespiegelt = false;  ///< half arches: crown on the left
};

struct Fensterentwurf {
  std::uint64_t seed = 0;
  std::vector<double> spalten;  ///< distances of the vertical axes from 1 on
  std::vector<double> zeilen;   ///< of the horizontal ones
  std::vector<Maszentwurf> masze;
  Querschnitt rahmen;
  std::vector<Querschnitt> rahmenteile;
  std::vector<Pfostenentwurf> pfosten;
  bool pfostenAutomatisch = false;  ///< to be set by the calculation; no file says so
  std::vector<Zusatzteilentwurf> aussenteile;
  std::vector<Fluegelentwurf> fluegel;

  // What is known of the window without calculating it.

  bool luecken = false;          ///< the sashes do not fill the grid's rectangle
  double lochflaeche = 0.0;      ///< of cells that sashes enclose on all sides
  bool nurRechtecke = true;      ///< no sash has anything but right angles
  bool ueberallPfosten = false;  ///< one width, along every common edge
  bool achsenBewegt = false;     ///< dimensions move axes when first calculated
  bool eckenBewegt = false;      ///< dimensions move corners of the frame
  bool stichBewegt = false;      ///< a dimension changes the rise of an arch
  bool maszeHemmen = false;      ///< fits may push a movable axis past one that is held
  bool beginntSpaeter = false;   ///< the first axes are used by nothing
  double maszstab = 1.0;         ///< 1 where lengths are centimetres
};

double Breite(const Fensterentwurf& entwurf);
double Hoehe(const Fensterentwurf& entwurf);

/// The window's macro file, lines ending in LF.
std::string MakroText(const Fensterentwurf& entwurf);

/// The window seen in a mirror: x becomes the width less x; the lists keep their order.
/// Parts that hang on a numbered side or part of a frame are left out (frame parts that
/// differ, extra parts, fittings), because the numbers depend on where its outline starts.
Fensterentwurf Gespiegelt(const Fensterentwurf& entwurf);

/// All that stands on nodes moved by so many axes, and by (dx, dy) what has coordinates.
Fensterentwurf Versetzt(const Fensterentwurf& entwurf, int dj, int dk, double dx, double dy);

/// Every length times a factor.
Fensterentwurf Vergroeszert(const Fensterentwurf& entwurf, double faktor);

}  // namespace lintavo::test
