// The tags of a DXF file: a group code and a value, each on a line of its own.
#pragma once

#include <string>
#include <string_view>

#include "lintavo/drawing/Scene.h"

namespace lintavo::drawing {

class DxfTags {
 public:
  void Add(int code, std::string_view value);
  void Add(int code, long value);
  void Add(int code, double value);
  /// A point by its codes 10, 20, 30, or those of its index: 11, 21, 31.
  void AddPoint(int index, const Point& point);
  void AddPoint(const Point& point) { AddPoint(0, point); }

  std::string Take() { return std::move(text_); }

 private:
  std::string text_;
};

/// A text as it stands in a file of the code page 1252: characters that this does not have as
/// "\U+XXXX", and what a CAD program would read as a control code so that it reads it as
/// written. Of what is longer than a value may be the end is left out.
std::string ToDxfText(std::string_view text);

}  // namespace lintavo::drawing
