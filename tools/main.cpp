// The `lintavo` command: puts its commands together, and its exit statuses.
//
// 0: done. 1: the command cannot be carried out, one line on standard error
// says why. 2: it was called in a wrong way.
#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdio>
#include <exception>
#include <iostream>
#include <new>
#include <string>
#include <vector>

#include "Arguments.h"
#include "Console.h"
#include "Errors.h"
#include "System.h"
#include "commands/Commands.h"

namespace {

using namespace lintavo::tools;

constexpr const char* kFooter =
    "'lintavo COMMAND --help' tells a command's options and shows examples.\n"
    "\n"
    "Where a file is named, - is standard input or output. Exit status: 0 when all is\n"
    "done, 1 when something failed, 2 when the command was called in a wrong way.";

// The words of the call in the order in which the parser takes them, the last one first.
// "help COMMAND" is what many try.
std::vector<std::string> WordsOf(int argc, char** argv) {
  std::vector<std::string> words(argv + std::min(argc, 1), argv + argc);
  if (!words.empty() && words.front() == "help") {
    words.erase(words.begin());
    words.emplace_back("--help");
  }
  std::reverse(words.begin(), words.end());
  return words;
}

int Run(int argc, char** argv) {
  CLI::App app(
      "Reads, checks, changes and draws parametric windows. Lengths are in the window's\n"
      "own units.",
      "lintavo");
  app.set_version_flag("--version", std::string("lintavo ") + LINTAVO_VERSION,
                       "Print the version and exit");
  app.set_help_flag("-h,--help", "Print this help and exit");
  app.footer(kFooter);
  app.require_subcommand(1);
  UsePlainWords(app);
  // A path may begin with a slash.
  app.allow_windows_style_options(false);
  Console console(std::cout, std::cerr);
  for (const AddCommand add : AllCommands()) add(app, console);
  for (CLI::App* command : app.get_subcommands({})) command->group("Commands");
  try {
    app.parse(WordsOf(argc, argv));
  } catch (const CLI::ParseError& error) {
    if (app.exit(error) != 0) return kWrongUsage;
  }
  std::cout.flush();
  if (!std::cout) console.ReportFailure("standard output cannot be written");
  return console.Status();
}

}  // namespace

int main(int argc, char** argv) {
  UseUtf8();
  try {
    return Run(argc, argv);
  } catch (const UsageError& error) {
    std::fprintf(stderr, "lintavo: %s\n", error.what());
    return kWrongUsage;
  } catch (const std::bad_alloc&) {
    std::fputs("lintavo: out of memory\n", stderr);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "lintavo: %s\n", error.what());
  } catch (...) {
    std::fputs("lintavo: unexpected error\n", stderr);
  }
  return kFailure;
}
