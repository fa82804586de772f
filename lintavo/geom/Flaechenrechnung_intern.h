// Set operations on areas. Wraps the polygon-clipping library, which reckons in whole
// numbers, and puts its results back onto the doubles and the edges they came from.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "lintavo/geom/XY.h"

namespace lintavo {

/// Steps of the whole-number grid per tolerance.
inline constexpr double kSchritteJeToleranz = 64.0;

inline constexpr std::size_t kKeine = static_cast<std::size_t>(-1);

/// A corner of a ring handed in.
struct Flaechenecke {
  XY ort;
  std::size_t kante = 0;  ///< caller's number of the edge that starts here
};

/// A corner of a resulting ring.
struct Ergebnisecke {
  XY ort;
  /// The corner handed in that lies here, counted through all rings; of several the one
  /// whose outgoing edge goes on from here. kKeine for a true crossing.
  std::size_t ecke = kKeine;
  /// The number of the edge on which the outgoing edge lies.
  std::size_t kante = 0;
};

using Flaechenring = std::vector<Flaechenecke>;
using Ergebnisring = std::vector<Ergebnisecke>;

/// The outer boundaries, counter-clockwise, of the places that the rings wind round at
/// least once counter-clockwise. A boundary that touches itself in a corner falls into
/// several. Corners on the line of their neighbours may be among the result. Empty when
/// there are none, or when a coordinate is beyond kGroessteKoordinate; nothing when more
/// than kMaxBeruehrungen pairs of edges touch.
///
/// @param aufloesung  what whole numbers must resolve at least.
std::optional<std::vector<Ergebnisring>> FlaecheVereinigen(const std::vector<Flaechenring>& ringe,
                                                           double aufloesung);

/// The same for the first ring less the places that the others wind round.
std::optional<std::vector<Ergebnisring>> FlaecheAbziehen(const std::vector<Flaechenring>& ringe,
                                                         double aufloesung);

/// The width of the widest piece that the insides of two rings, either way round, have in
/// common: twice its area over its perimeter; 0 when there is none. Nothing when more than
/// kMaxBeruehrungen pairs of edges touch.
std::optional<double> GemeinsameBreite(const std::vector<XY>& a, const std::vector<XY>& b,
                                       double aufloesung);

}  // namespace lintavo
