// Works through several files: one that fails does not stop the others.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "Sources.h"

namespace lintavo::tools {

class Console;

/// Calls `action` for every source. What it throws is reported and counted, and the run
/// then ends as a failure; a `UsageError` goes on to the caller. Unless `quiet`, several
/// files have a progress bar where a person watches, and a summary at the end.
void ForEachSource(const std::vector<Source>& sources, bool quiet, Console& console,
                   const std::function<void(const Source& source)>& action);

/// The same with what the source's result is to be written to: empty when `target` is,
/// else as `FindTargets` tells, with its folders made where `target` is for several.
void ForEachTarget(const std::vector<Source>& sources, bool quiet, Console& console,
                   const std::string& target, const std::string& ending,
                   const std::function<void(const Source& source, const std::string& own)>& action);

}  // namespace lintavo::tools
