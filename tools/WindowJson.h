// A calculated window as JSON: everything that the library answers about it.
#pragma once

#include <string>

#include "lintavo/view/WindowView.h"

#include "JsonText.h"

namespace lintavo::tools {

/// The name and version of the format that `WriteWindowJson` writes.
inline constexpr const char* kWindowSchema = "lintavo-window/1";

/// Writes the window as one object; `views` adds the views with hidden lines removed.
/// docs/json_schema.md tells what each member means.
void WriteWindowJson(const std::string& file, const WindowView& view, bool views, JsonWriter& json);

}  // namespace lintavo::tools
