// The `lintavo` command: puts its commands together, and its exit statuses.
//
// 0: done. 1: the command cannot be carried out, one line on standard error
// says why. 2: it was called in a wrong way.
#include <CLI/CLI.hpp>
#include <cstdio>
#include <exception>
#include <iostream>
#include <new>
#include <string>

#include "Console.h"
#include "commands/Commands.h"

namespace {

using namespace lintavo::tools;

int Run(int argc, char** argv) {
  CLI::App app("Reads, fits and draws parametric windows. Lengths are in the window's own units.",
               "lintavo");
  app.set_version_flag("--version", std::string("lintavo ") + LINTAVO_VERSION);
  app.require_subcommand(1);
  Console console(std::cout, std::cerr);
  for (const AddCommand add : AllCommands()) add(app, console);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    if (app.exit(error) != 0) return kWrongUsage;
  }
  std::cout.flush();
  if (!std::cout) console.ReportFailure("standard output cannot be written");
  return console.Status();
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return Run(argc, argv);
  } catch (const std::bad_alloc&) {
    std::fputs("lintavo: out of memory\n", stderr);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "lintavo: %s\n", error.what());
  } catch (...) {
    std::fputs("lintavo: unexpected error\n", stderr);
  }
  return kFailure;
}
