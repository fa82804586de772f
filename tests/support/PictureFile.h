// What the tests ask of a picture: its size, and for SVG its form and content.
#pragma once

#include <string>

namespace lintavo::testing {

struct SvgFile {
  bool wellFormed = false;
  std::string root;  ///< name of the outermost element
  std::string viewBox;
  int paths = 0;        ///< filled or stroked; a text is one
  int dashed = 0;       ///< of them, stroked with dashes
  double left = 1e300;  ///< smallest box of the corners and control points of all paths
  double top = 1e300;
  double right = -1e300;
  double bottom = -1e300;
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
