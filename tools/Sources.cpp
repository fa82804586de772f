// The files that a command works on, and where what it makes of each goes.
#include "Sources.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <iterator>
#include <set>
#include <system_error>
#include <utility>

#include "Errors.h"
#include "System.h"

namespace lintavo::tools {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kName = "{name}";

bool IsSeparator(char c) {
#ifdef _WIN32
  return c == '/' || c == '\\';
#else
  return c == '/';
#endif
}

bool IsFolder(const std::string& path) {
  std::error_code unknown;
  return fs::is_directory(path, unknown);
}

bool HasEnding(const fs::path& path, const std::vector<std::string>& endings) {
  std::string own = path.extension().string();
  for (char& c : own) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return std::any_of(endings.begin(), endings.end(),
                     [&](const std::string& ending) { return own == "." + ending; });
}

template <class Iterator>
void CollectFiles(Iterator place, const std::string& folder, std::error_code& error,
                  const std::vector<std::string>& endings, std::vector<Source>& found) {
  for (; !error && place != Iterator(); place.increment(error)) {
    std::error_code unknown;
    if (!place->is_regular_file(unknown) || !HasEnding(place->path(), endings)) continue;
    found.push_back(
        {place->path().string(), place->path().lexically_relative(folder).generic_string()});
  }
}

std::vector<Source> FilesOf(const std::string& folder, bool recursive,
                            const std::vector<std::string>& endings) {
  std::vector<Source> found;
  std::error_code error;
  if (recursive) {
    CollectFiles(fs::recursive_directory_iterator(folder, error), folder, error, endings, found);
  } else {
    CollectFiles(fs::directory_iterator(folder, error), folder, error, endings, found);
  }
  if (error) Fail(folder, "the folder cannot be read");
  std::sort(found.begin(), found.end(),
            [](const Source& a, const Source& b) { return a.name < b.name; });
  return found;
}

std::string Listed(const std::vector<std::string>& endings) {
  std::string text;
  for (const std::string& ending : endings) text += (text.empty() ? "." : " or .") + ending;
  return text;
}

// "-" stands for no name that a file should have.
std::string NameOf(const std::string& path) {
  return path == kStandardStream ? "window" : fs::path(path).filename().string();
}

std::string WithoutEnding(const std::string& name) {
  return fs::path(name).replace_extension().generic_string();
}

std::string TargetOf(const Source& source, const std::string& target, const std::string& ending,
                     bool withEnding) {
  const std::string name = withEnding ? source.name : WithoutEnding(source.name);
  const std::size_t place = target.find(kName);
  if (place != std::string::npos) {
    return std::string(target).replace(place, kName.size(), name);
  }
  return (fs::path(target) / (ending.empty() ? source.name : name + "." + ending)).string();
}

}  // namespace

std::vector<Source> FindSources(const FileArguments& arguments,
                                const std::vector<std::string>& endings) {
  std::vector<Source> sources;
  for (const std::string& path : arguments.paths) {
    if (!IsFolder(path)) {
      sources.push_back({path, NameOf(path)});
      continue;
    }
    std::vector<Source> found = FilesOf(path, arguments.recursive, endings);
    if (found.empty()) {
      Fail(path, "there is no " + Listed(endings) + " file in this folder" +
                     (arguments.recursive ? "" : "; -r looks into the folders in it too"));
    }
    std::move(found.begin(), found.end(), std::back_inserter(sources));
  }
  return sources;
}

std::vector<Source> FindWindows(const FileArguments& arguments) {
  return FindSources(arguments, {"aqz", "cqz"});
}

std::vector<std::string> WindowPaths(const FileArguments& arguments) {
  std::vector<std::string> paths;
  for (Source& source : FindWindows(arguments)) paths.push_back(std::move(source.path));
  return paths;
}

bool IsForSeveral(const std::string& target) {
  if (target.empty() || target == kStandardStream) return false;
  return IsSeparator(target.back()) || IsFolder(target) || target.find(kName) != std::string::npos;
}

std::vector<std::string> FindTargets(const std::vector<Source>& sources, const std::string& target,
                                     const std::string& ending) {
  if (!IsForSeveral(target)) {
    if (sources.size() == 1) return {target};
    throw UsageError("several files cannot all be written to '" + DisplayName(target) +
                     "'; name a folder, as in '-o out/', or a pattern, as in '-o out/{name}.aqz'");
  }
  std::vector<std::string> targets;
  std::set<std::string> taken;
  for (const Source& source : sources) {
    std::string own = TargetOf(source, target, ending, false);
    if (taken.contains(own)) own = TargetOf(source, target, ending, true);
    if (!taken.insert(own).second) {
      throw UsageError("two files would be written to '" + DisplayName(own) + "'");
    }
    targets.push_back(std::move(own));
  }
  return targets;
}

void MakeFoldersOf(const std::string& path) {
  const fs::path folder = fs::path(path).parent_path();
  std::error_code error;
  if (!folder.empty()) fs::create_directories(folder, error);
  if (error) Fail(folder.string(), "the folder cannot be made");
}

}  // namespace lintavo::tools
