// Lines of text beneath a drawing.
#include <algorithm>
#include <cstddef>
#include <utility>

#include "lintavo/drawing/Text.h"

#include "paper/Caption_intern.h"
#include "paper/Look_intern.h"
#include "paper/Words_intern.h"
#include "scene/Lettering_intern.h"

namespace lintavo::drawing {
namespace {

// From the foot of one line to the head of the next, as a share of the digits' height.
constexpr double kLeading = 0.8;
constexpr std::size_t kMostNameLines = 2;
constexpr std::size_t kMostOpeningLines = 4;

std::string Joined(const std::vector<std::string>& texts, const char* between) {
  std::string joined;
  for (const std::string& text : texts) {
    if (!joined.empty()) joined += between;
    joined += text;
  }
  return joined;
}

}  // namespace

void AppendBroken(std::string_view text, double height, double width, std::size_t most,
                  std::vector<CaptionLine>& lines) {
  const double room = width / height;
  std::string line;
  std::size_t count = 0;
  while (!text.empty() && count < most) {
    const std::size_t end = std::min(text.find(' '), text.size());
    const std::string word(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
    const std::string longer = line.empty() ? word : line + ' ' + word;
    if (!line.empty() && LetteringWidth(longer) > room) {
      lines.push_back({std::exchange(line, word), height});
      ++count;
    } else {
      line = longer;
    }
  }
  if (!line.empty() && count < most) {
    lines.push_back({line, height});
  } else if (!line.empty() && count > 0) {
    lines.back().text += " …";
  }
}

std::vector<CaptionLine> TitleLines(const Scene& scene, const PlanOptions& plan, double width) {
  std::vector<CaptionLine> lines;
  AppendBroken(ToDisplayText(scene.name), kNameHeight, width, kMostNameLines, lines);
  const std::string facts = SizeText(scene, plan) + " · " + ScaleText(plan.scale, plan.language) +
                            " · " + ViewText(scene.side, plan.language);
  AppendBroken(facts, kCaptionHeight, width, kMostOpeningLines, lines);
  AppendBroken(Joined(OpeningTexts(scene, plan.language), "; "), kCaptionHeight, width,
               kMostOpeningLines, lines);
  return lines;
}

double HeightOf(const std::vector<CaptionLine>& lines) {
  double height = 0.0;
  for (const CaptionLine& line : lines) height += (1.0 + kLeading) * line.height;
  return height;
}

void AddCaption(const std::vector<CaptionLine>& lines, const Point& upperLeft, double width,
                const std::string& id, Group& group) {
  Group caption{id, "titel"};
  double y = upperLeft.y;
  for (const CaptionLine& line : lines) {
    Label label{"", "titelzeile", "TEXT"};
    label.mitte = {upperLeft.x, y - line.height / 2.0};
    label.fromLeft = true;
    label.hoehe = line.height;
    label.width = std::min(LetteringWidth(line.text) * line.height, width);
    label.text = line.text;
    label.colour = CaptionColour();
    caption.labels.push_back(std::move(label));
    y -= (1.0 + kLeading) * line.height;
  }
  group.groups.push_back(std::move(caption));
}

}  // namespace lintavo::drawing
