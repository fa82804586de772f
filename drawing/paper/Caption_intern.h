// Lines of text beneath a drawing: its title.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "lintavo/drawing/Plan.h"
#include "lintavo/drawing/Scene.h"

#include "paper/Page_intern.h"

namespace lintavo::drawing {

/// One line of a caption; heights are those of a digit, in millimetres.
struct CaptionLine {
  std::string text;
  double height = 0.0;
};

inline constexpr double kNameHeight = 3.5;
inline constexpr double kCaptionHeight = 2.5;

/// Name, size with scale and view, and opening kinds, each broken into lines no wider than
/// `width` millimetres.
std::vector<CaptionLine> TitleLines(const Scene& scene, const PlanOptions& plan, double width);

/// Appends `text` in lines of at most `width` millimetres, broken at blanks; a word that is
/// wider has a line of its own, in which it is squeezed. Of more than `most` lines the rest
/// is left out.
void AppendBroken(std::string_view text, double height, double width, std::size_t most,
                  std::vector<CaptionLine>& lines);

double HeightOf(const std::vector<CaptionLine>& lines);

/// Writes the lines from a point downwards, in millimetres, left-aligned.
void AddCaption(const std::vector<CaptionLine>& lines, const Point& upperLeft, double width,
                const std::string& id, Group& group);

}  // namespace lintavo::drawing
