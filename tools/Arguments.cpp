// Words of the command line that several commands share.
#include "Arguments.h"

#include <memory>

namespace lintavo::tools {
namespace {

constexpr std::size_t kColumnWidth = 26;

class PlainHelp : public CLI::Formatter {
 public:
  PlainHelp() { column_width(kColumnWidth); }

  // What must be given stands in the line, not in words beside each option.
  std::string make_usage(const CLI::App* app, std::string name) const override {
    std::string line = "Usage: " + name;
    const auto options = app->get_options([](const CLI::Option* o) { return o->nonpositional(); });
    for (const CLI::Option* option : options) {
      if (option->get_required()) line += " " + option->get_name() + " " + option->get_type_name();
    }
    for (const CLI::Option* option :
         app->get_options([](const CLI::Option* o) { return o->get_positional(); })) {
      line += " " + make_option_name(option, true);
    }
    if (!app->get_subcommands({}).empty()) line += " COMMAND";
    return "\n" + line + " [OPTIONS]\n";
  }

  std::string make_option_name(const CLI::Option* option, bool positional) const override {
    if (!positional) return CLI::Formatter::make_option_name(option, positional);
    const std::string& text = option->get_option_text();
    return text.empty() ? option->get_name(true, false) : text;
  }

  std::string make_option_opts(const CLI::Option* option) const override {
    if (option->get_positional() || option->get_type_size() == 0) return {};
    return " " + option->get_type_name();
  }
};

}  // namespace

void AddFiles(CLI::App& command, FileArguments& files, const std::string& description) {
  command.add_option("FILE", files.paths, description)->required()->option_text("FILE...");
  AddFlagsForSeveral(command, files);
}

void AddFlagsForSeveral(CLI::App& command, FileArguments& files) {
  command.add_flag("-r,--recursive", files.recursive, "Look into the folders in folders too");
  command.add_flag("-q,--quiet", files.quiet, "No progress and no summary of several files");
}

CLI::Option* AddTarget(CLI::App& command, std::string& target, const std::string& description) {
  return command.add_option("-o,--output", target, description)->type_name("TARGET");
}

void UsePlainHelp(CLI::App& app) {
  app.formatter(std::make_shared<PlainHelp>());
}

}  // namespace lintavo::tools
