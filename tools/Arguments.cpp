// Words of the command line that several commands share.
#include "Arguments.h"

#include <memory>
#include <sstream>
#include <vector>

#include "lintavo/drawing/Text.h"

#include "Checks.h"
#include "Text.h"

namespace lintavo::tools {
namespace {

constexpr std::size_t kNamesWidth = 26;
constexpr std::size_t kWordsWidth = 80 - kNamesWidth;

// Lines are broken at blanks.
std::string Wrapped(const std::string& text) {
  std::string wrapped;
  std::size_t column = 0;
  std::istringstream words(text);
  for (std::string word; words >> word;) {
    const std::size_t length = CharacterCount(word);
    const bool fits = column == 0 || column + 1 + length <= kWordsWidth;
    if (column > 0) wrapped += fits ? ' ' : '\n';
    column = fits ? column + (column > 0 ? 1 : 0) + length : length;
    wrapped += word;
  }
  return wrapped;
}

// The words to choose from, else what is asked for; the parser has both in one text,
// and the range of a number behind it.
std::string ValueText(const CLI::Option& option) {
  const std::string text = option.get_type_name();
  const std::size_t choice = text.find('{');
  if (choice != std::string::npos) return text.substr(choice);
  const std::size_t range = text.find(" in [");
  return range == std::string::npos ? text : text.substr(0, text.rfind(':', range));
}

class PlainHelp : public CLI::Formatter {
 public:
  PlainHelp() {
    column_width(kNamesWidth);
    label("Positionals", "Arguments");
  }

  // What must be given stands in the line, not in words beside each option.
  std::string make_usage(const CLI::App* app, std::string name) const override {
    std::string line = "\nUsage: " + name;
    for (const CLI::Option* option : app->get_options()) {
      if (option->get_positional()) {
        line += " " + make_option_name(option, true);
      } else if (option->get_required()) {
        line += " " + option->get_name() + " " + ValueText(*option);
      }
    }
    if (!app->get_subcommands({}).empty()) line += " COMMAND";
    return line + " [OPTIONS]\n";
  }

  std::string make_option_name(const CLI::Option* option, bool positional) const override {
    if (!positional) return CLI::Formatter::make_option_name(option, positional);
    const std::string& text = option->get_option_text();
    return text.empty() ? option->get_name(true, false) : text;
  }

  std::string make_option_opts(const CLI::Option* option) const override {
    if (option->get_positional() || option->get_type_size() == 0) return {};
    return " " + ValueText(*option);
  }

  std::string make_option_desc(const CLI::Option* option) const override {
    return Wrapped(option->get_description());
  }
};

// The parser's own words where it knows better than we what is wrong.
std::string WordsFor(const CLI::App& app, const CLI::Error& error) {
  const std::vector<CLI::App*> commands = app.get_subcommands();
  if (!commands.empty()) {
    return std::string(error.what()) + "; see 'lintavo " + commands.front()->get_name() +
           " --help'";
  }
  const std::vector<std::string> words = app.remaining();
  if (words.empty()) return "no command is named; 'lintavo --help' lists them";
  return "there is no command or option '" + drawing::ToDisplayText(words.front()) +
         "'; 'lintavo --help' lists them";
}

}  // namespace

void AddFiles(CLI::App& command, FileArguments& files, const std::string& description) {
  command.add_option("FILE", files.paths, description)->required()->option_text("FILE...");
  AddFlagsForSeveral(command, files);
}

void AddFlagsForSeveral(CLI::App& command, FileArguments& files) {
  command.add_flag("-r,--recursive", files.recursive, "Look into the folders in folders too");
  command.add_flag("-q,--quiet", files.quiet, "No progress and no summary of several files");
}

void AddSection(CLI::App& command, FileArguments& files) {
  command
      .add_option("--section", files.section,
                  "Merge shorter sides of arches into one frame part; where not given, those "
                  "below 100 or a sixth of the window, whichever is more")
      ->check(CheckLength)
      ->type_name("LENGTH");
}

CLI::Option* AddTarget(CLI::App& command, std::string& target, const std::string& description) {
  return command.add_option("-o,--output", target, description)->type_name("TARGET");
}

void UsePlainWords(CLI::App& app) {
  app.formatter(std::make_shared<PlainHelp>());
  app.failure_message([](const CLI::App* failed, const CLI::Error& error) {
    return "lintavo: " + WordsFor(*failed, error) + '\n';
  });
}

}  // namespace lintavo::tools
