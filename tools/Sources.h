// The files that a command works on, and where what it makes of each goes.
#pragma once

#include <string>
#include <vector>

namespace lintavo::tools {

/// Files as a command line names them.
struct FileArguments {
  std::vector<std::string> paths;  ///< files, folders, "-" for standard input
  bool recursive = false;          ///< folders within folders too
  bool quiet = false;              ///< no progress, no summary
  std::string section;             ///< the frame's section value, a length; may be empty
};

/// One file to work on.
struct Source {
  std::string path;
  /// Its name below the folder that was given, or without any folders when it was
  /// given itself, with "/" between folders.
  std::string name;
};

/// The files in the order of the command line; a folder stands for all files in it
/// that have one of these endings (without a dot, in any case), sorted by their names.
/// Throws `CommandError` for a folder that cannot be read or holds none.
std::vector<Source> FindSources(const FileArguments& arguments,
                                const std::vector<std::string>& endings);

/// The same for window files: "aqz" and "cqz".
std::vector<Source> FindWindows(const FileArguments& arguments);

/// The paths of these alone, for a command that makes one thing of all windows.
std::vector<std::string> WindowPaths(const FileArguments& arguments);

/// Where what is made of each source goes, in their order. `target` is
///
/// - a folder, when one is there or when it ends in a separator: each file keeps its name
///   (below the folder that was given), with `ending` in the place of its own unless
///   `ending` is empty;
/// - a pattern with "{name}", which stands for that name without its ending;
/// - else the file itself, or "-"; good for one source only.
///
/// Where two sources would go to one file, the later keeps its own ending in the name.
/// Throws `UsageError` where that does not help, and for several sources without a
/// folder or pattern.
std::vector<std::string> FindTargets(const std::vector<Source>& sources, const std::string& target,
                                     const std::string& ending);

/// Whether `target` is a folder or a pattern in the sense of `FindTargets`.
bool IsForSeveral(const std::string& target);

/// Makes the folders that lead to a file, for targets that are for several.
void MakeFoldersOf(const std::string& path);

}  // namespace lintavo::tools
