// What the work on a window is held against: the union of its shapes by the
// clipping library alone, reading its file line by line, and its numbers.
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <polyclipping/clipper.hpp>

#include "Rows.h"
#include "Windows.h"

namespace lintavo::bench {
namespace {

using Work = std::function<void()>;

// Small enough for the library's fast arithmetic.
constexpr double kStepsPerUnit = 1e6;

ClipperLib::Path PathOf(const GEOM2_Polygon& polygon) {
  ClipperLib::Path path;
  for (int i = 0; i < polygon.GetAnzahl(); ++i) {
    const GEOM2_Eckpunkt& p = polygon.GetEckpunkt(i);
    path.emplace_back(std::llround(p.x * kStepsPerUnit), std::llround(p.y * kStepsPerUnit));
  }
  return path;
}

Work BareUnion(const std::string& name) {
  CMFenster window = *Example(name).GetFensterPtr();
  std::vector<GEOM2_Polygon> shapes;
  double highest = 0.0;
  window.GetFluegelGrundformen(shapes, highest);
  ClipperLib::Paths paths;
  for (const GEOM2_Polygon& shape : shapes) paths.push_back(PathOf(shape));
  return [paths] {
    ClipperLib::Clipper clipper;
    clipper.AddPaths(paths, ClipperLib::ptSubject, true);
    ClipperLib::Paths outline;
    Require(clipper.Execute(ClipperLib::ctUnion, outline, ClipperLib::pftNonZero), "union");
  };
}

// The next number at or behind `text`, or null at its end.
const char* NextNumber(const char* text) {
  text += std::strcspn(text, "-0123456789");
  return *text != '\0' ? text : nullptr;
}

double SumOfNumbers(const char* text) {
  double sum = 0.0;
  while ((text = NextNumber(text)) != nullptr) {
    char* end = nullptr;
    sum += std::strtod(text, &end);
    text = end == text ? text + 1 : end;
  }
  return sum;
}

Work Numbers(const std::string& name) {
  return [text = FileText(ExamplePath(name))] { Keep(SumOfNumbers(text.c_str())); };
}

template <class Use>
void EachLine(const std::string& path, Use use) {
  std::FILE* file = std::fopen(path.c_str(), "r");
  Require(file != nullptr, "open");
  char line[256];
  while (std::fgets(line, sizeof line, file) != nullptr) use(line);
  std::fclose(file);
}

Work Lines(const std::string& name) {
  return [path = ExamplePath(name)] { EachLine(path, [](const char* line) { Keep(line); }); };
}

Work LinesAndNumbers(const std::string& name) {
  return [path = ExamplePath(name)] {
    double sum = 0.0;
    EachLine(path, [&](const char* line) { sum += SumOfNumbers(line); });
    Keep(sum);
  };
}

}  // namespace

void AddReferenceRows(std::vector<Row>& rows) {
  for (const std::string name : kExamples) {
    const auto add = [&](const char* operation, auto work) {
      rows.push_back(
          {std::string("reference: ") + operation + "/" + name, [=] { return work(name); }});
    };
    add("union", BareUnion);
    add("strtod", Numbers);
    add("fgets", Lines);
    add("fgets and strtod", LinesAndNumbers);
  }
}

}  // namespace lintavo::bench
