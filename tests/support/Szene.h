// Scenes of the example windows, and what the tests ask of scenes.
#pragma once

#include <string>
#include <vector>

#include "lintavo/api/CFeApi.h"
#include "lintavo/drawing/Scene.h"

namespace lintavo::testing {

/// The names of the example windows, without folder and ending.
std::vector<std::string> ExampleNames();

/// The text of an example's file.
std::string ExampleText(const std::string& name);

CFeApi Example(const std::string& name);

/// The window of a macro file's text, in the façade's form for buffers.
CFeApi WindowOf(const std::string& text);

/// An example with one piece of its file replaced.
CFeApi Changed(const std::string& name, const std::string& from, const std::string& to);

drawing::Scene SceneOf(const CFeApi& window, drawing::ViewSide side = drawing::ViewSide::kInside);

/// Index of the first shape of a kind and sash in the order of painting, -1 for none.
long PlaceOf(const drawing::Scene& scene, drawing::ShapeKind kind, long fluegel);

long Count(const drawing::Scene& scene, drawing::ShapeKind kind);
long Count(const drawing::Scene& scene, drawing::LineKind kind, bool dashed = false);

bool IsInside(const drawing::Shape& shape, const drawing::Point& p);
double DistanceToOutline(const drawing::Shape& shape, const drawing::Point& p);
bool Touches(const drawing::Line& line, const drawing::Box& box);

}  // namespace lintavo::testing
