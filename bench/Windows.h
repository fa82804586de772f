// The windows that are measured: examples, and square grids of any size.
#pragma once

#include <array>
#include <string>

#include "lintavo/api/CFeApi.h"
#include "lintavo/ini/CIniFile.h"
#include "lintavo/model/CMFenster.h"

namespace lintavo::bench {

inline constexpr std::array kExamples = {"drehkipp_einfluegelig",    "dreiteilig_mit_oberlicht",
                                         "rundbogen_dreiteilig",     "haustuer_mit_seitenteilen",
                                         "sprossen_und_zusatzteile", "raster_3x3"};

std::string ExamplePath(const std::string& name);
/// The whole file; throws when it cannot be read.
std::string FileText(const std::string& path);
/// The lines of a macro file as a document.
CIniFile Document(const std::string& text);
/// The example, read and calculated; throws when that fails.
CFeApi Example(const std::string& name);

/// A grid of `side` × `side` sashes, built step by step, since a file holds no more
/// than 49 axes each way.
CMFenster Grid(int side);

/// All components of the window: frame, mullions, extra parts, sashes, bars.
long ComponentCount(const CFeApi& window);

}  // namespace lintavo::bench
