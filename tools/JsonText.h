// JSON as text that people can read and compare line by line.
#pragma once

#include <nlohmann/json.hpp>
#include <ostream>
#include <string>
#include <vector>

#include "lintavo/geom/GEOM2_Polygon.h"

namespace lintavo::tools {

/// A value whose members keep their order.
using Json = nlohmann::ordered_json;

/// A number; null for one that is not finite, 0 for the negative zero.
Json JsonNumber(double value);

/// [x, y].
Json JsonPoint(double x, double y);

/// The points of a polygon, [[x, y], …].
Json JsonPolygon(const GEOM2_Polygon& polygon);

/// Writes one document piece by piece, so that a large one never stands in memory.
///
/// Lines are indented by two blanks a level. Arrays and objects whose members are plain
/// values stand on one line, so a point or a segment is one line. Numbers have as many
/// digits as give the same number back, under every locale.
class JsonWriter {
 public:
  explicit JsonWriter(std::ostream& out) : out_(out) {}

  /// Begins an object or an array: the document, an element of an array, or a member of
  /// an object.
  void BeginObject() { Begin('{', '}'); }
  void BeginArray() { Begin('[', ']'); }
  void BeginObject(const char* key) { Begin(key, '{', '}'); }
  void BeginArray(const char* key) { Begin(key, '[', ']'); }
  /// Ends what was begun last; the document's own end is a line's end.
  void End();

  /// An element of an array.
  void Add(const Json& value);
  /// A member of an object.
  void Add(const char* key, const Json& value);

 private:
  void Begin(char opening, char closing);
  void Begin(const char* key, char opening, char closing);
  void NextLine();
  void Write(const Json& value);

  // An object or array that is open: its closing bracket, and whether it has members.
  struct Level {
    char closing;
    bool any = false;
  };

  std::ostream& out_;
  std::vector<Level> levels_;
};

}  // namespace lintavo::tools
