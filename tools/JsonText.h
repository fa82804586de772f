// JSON as text that people can read and compare line by line.
#pragma once

#include <nlohmann/json.hpp>
#include <ostream>

#include "lintavo/api/CFeApiPolygon.h"

namespace lintavo::tools {

using Json = nlohmann::ordered_json;

/// A number; null for one that is not finite, 0 for the negative zero.
Json JsonNumber(double value);

/// [x, y].
Json JsonPoint(double x, double y);

/// The points of a polygon, [[x, y], …].
Json JsonPolygon(const CFeApiPolygon& polygon);

/// Writes the value indented by two blanks a level. Arrays and objects whose members are
/// plain values stand on one line, so a point or a segment is one line. Numbers have as
/// many digits as give the same number back, under every locale.
/// @param indent blanks before the lines that follow the first one.
void WriteJson(const Json& value, std::size_t indent, std::ostream& out);

}  // namespace lintavo::tools
