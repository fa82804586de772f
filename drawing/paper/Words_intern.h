// The words in pictures, in each of their languages.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "lintavo/drawing/Plan.h"
#include "lintavo/drawing/Scene.h"

namespace lintavo::drawing {

/// A number with the language's decimal mark in place of ".".
std::string WithDecimalMark(std::string number, Language language);

/// "mm", "cm" or "m".
const char* UnitText(LengthUnit unit);

/// "120 × 130 cm".
std::string SizeText(const Scene& scene, const PlanOptions& plan);

/// "Maßstab 1:20", or that there is none.
std::string ScaleText(double scale, Language language);

/// "Ansicht von innen".
const char* ViewText(ViewSide side, Language language);

/// How a sash opens, in words: "Drehkipp links, nach innen"; a fixed one is just that. Texts
/// that are none of the short texts stand as they are.
std::string OpeningText(const Oeffnung& oeffnung, Language language);

/// How all sashes open, each text a line's worth of words: "Flügel 1: Drehkipp links". Sashes
/// of one kind stand together: "Flügel 1, 3–5: fest".
std::vector<std::string> OpeningTexts(const Scene& scene, Language language);

/// "Fensterliste".
const char* ScheduleText(Language language);

/// "Blatt 2 von 3".
std::string SheetText(std::size_t number, std::size_t count, Language language);

/// What stands in place of a window that cannot be shown.
const char* NotDrawnText(Language language);

}  // namespace lintavo::drawing
