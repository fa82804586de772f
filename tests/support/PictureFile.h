// What the tests ask of a picture: its size, and for SVG its form and content.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace lintavo::testing {

/// A path or a text of an SVG file.
struct SvgElement {
  std::string name;
  std::string id;
  std::string klass;
  std::string text;
  std::vector<std::string> groups;          ///< ids around it, the outermost first
  std::map<std::string, std::string> look;  ///< attributes, its own and those inherited
};

struct SvgFile {
  bool wellFormed = false;
  std::string root;  ///< name of the outermost element
  std::string title;
  std::string width;
  std::string height;
  std::string viewBox;
  std::vector<SvgElement> elements;
  std::vector<std::string> ids;  ///< of elements and groups
  double left = 1e300;           ///< smallest box of the corners of all paths
  double top = 1e300;
  double right = -1e300;
  double bottom = -1e300;

  /// Number of paths and texts of a class, or of all.
  long Count(const std::string& klass = "") const;
  long Dashed() const;
  /// The first element of a class, an empty one when there is none.
  SvgElement First(const std::string& klass) const;
};

SvgFile ParseSvg(const std::string& text);

/// The whole content of a file, empty when it cannot be read.
std::string ReadBytes(const std::string& path);

struct PngSize {
  unsigned width = 0;
  unsigned height = 0;
};

/// The size in a PNG file's header; zeroes when the bytes are no PNG.
PngSize ParsePng(const std::string& bytes);

}  // namespace lintavo::testing
