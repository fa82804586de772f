// Works through several files.
#include "Batch.h"

#include <exception>
#include <new>

#include "Console.h"
#include "Errors.h"
#include "Progress.h"

namespace lintavo::tools {
namespace {

std::string SummaryText(std::size_t files, std::size_t failed) {
  const std::string all = std::to_string(files) + " files: ";
  if (failed == 0) return all + "all done";
  return all + std::to_string(files - failed) + " done, " + std::to_string(failed) + " failed";
}

// Why the action failed; empty when it did not.
template <class Action>
std::string Try(const Source& source, Action action) {
  try {
    action();
    return {};
  } catch (const UsageError&) {
    throw;
  } catch (const std::bad_alloc&) {
    return DisplayName(source.path) + ": out of memory";
  } catch (const std::exception& error) {
    return error.what();
  }
}

// `action` is called with the number of each source.
template <class Action>
void ForEach(const std::vector<Source>& sources, bool quiet, Console& console, Action action) {
  const bool several = sources.size() > 1;
  Progress progress(sources.size(), several && !quiet);
  std::size_t failed = 0;
  for (std::size_t i = 0; i < sources.size(); ++i) {
    progress.Next(sources[i].name);
    const std::string fault = Try(sources[i], [&] { action(i); });
    if (fault.empty()) continue;
    ++failed;
    progress.Clear();
    console.ReportFailure(fault);
  }
  progress.Clear();
  if (several && !quiet) console.Remark(SummaryText(sources.size(), failed));
}

}  // namespace

void ForEachSource(const std::vector<Source>& sources, bool quiet, Console& console,
                   const std::function<void(const Source& source)>& action) {
  ForEach(sources, quiet, console, [&](std::size_t i) { action(sources[i]); });
}

void ForEachTarget(
    const std::vector<Source>& sources, bool quiet, Console& console, const std::string& target,
    const std::string& ending,
    const std::function<void(const Source& source, const std::string& own)>& action) {
  if (target.empty()) {
    ForEach(sources, quiet, console, [&](std::size_t i) { action(sources[i], {}); });
    return;
  }
  const bool makeFolders = IsForSeveral(target);
  const std::vector<std::string> targets = FindTargets(sources, target, ending);
  // What is wrong with the folder of all is said once.
  if (makeFolders) MakeFoldersOf(targets.front());
  ForEach(sources, quiet, console, [&](std::size_t i) {
    if (makeFolders) MakeFoldersOf(targets[i]);
    action(sources[i], targets[i]);
  });
}

}  // namespace lintavo::tools
