// `lintavo convert`: windows between the forms that they are kept in.
#include <CLI/CLI.hpp>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "lintavo/api/CFeApi.h"

#include "Arguments.h"
#include "Batch.h"
#include "MacroText.h"
#include "System.h"
#include "WindowFile.h"
#include "commands/Commands.h"

namespace lintavo::tools {
namespace {

struct ConvertOptions {
  FileArguments files;
  std::string target;
  std::string form;
};

const std::map<std::string, MacroForm>& Forms() {
  static const std::map<std::string, MacroForm> kForms = {
      {"aqz", MacroForm::kPlain}, {"cqz", MacroForm::kCompressed}, {"buffer", MacroForm::kBuffer}};
  return kForms;
}

std::string EndingOf(const std::string& path) {
  const std::size_t dot = path.rfind('.');
  return dot == std::string::npos ? "" : CLI::detail::to_lower(path.substr(dot + 1));
}

// The form that is asked for, else the one that the target's name tells.
std::string FormNameOf(const ConvertOptions& options) {
  std::string form = options.form.empty() ? EndingOf(options.target) : options.form;
  if (Forms().contains(form)) return form;
  throw UsageError("'" + DisplayName(options.target) +
                   "' does not tell the form to write; name it, as in '--to cqz'");
}

// All that the library keeps of these lines.
std::string WindowOf(const std::vector<std::string>& lines) {
  CFeApi window;
  ReadLines(lines, window);
  if (window.GetAnzahlFluegel() <= 0) throw CommandError("there is no window in this file");
  char* buffer = nullptr;
  long length = 0;
  window.WriteToBuffer(&length, &buffer);
  std::string text(buffer != nullptr ? buffer : "", static_cast<std::size_t>(length));
  window.FreeBuffer(&buffer);
  return text;
}

// The lines stay as they are, those too that the library does not know. Each form ends
// and trims lines in its own way, so the result is read again.
std::string Converted(const std::string& bytes, MacroForm from, MacroForm to) {
  const std::vector<std::string> lines = LinesOf(bytes, from);
  std::string result = BytesOf(lines, to);
  if (WindowOf(LinesOf(result, to)) != WindowOf(lines)) {
    throw CommandError("in this form it would be read as another window");
  }
  return result;
}

void ConvertFile(const std::string& path, const std::string& target, MacroForm to) {
  std::string bytes;
  if (!ReadBytes(path, bytes)) Fail(path, "the file cannot be read");
  RefuseSource(path, target);
  std::string result;
  try {
    result = Converted(bytes, FormOf(path, bytes), to);
  } catch (const CommandError& error) {
    Fail(path, error.what());
  }
  WriteBytes(target, result);
}

void Convert(const ConvertOptions& options, Console& console) {
  const std::string form = FormNameOf(options);
  ForEachTarget(FindWindows(options.files), options.files.quiet, console, options.target, form,
                [&](const Source& source, const std::string& target) {
                  ConvertFile(source.path, target, Forms().at(form));
                });
}

}  // namespace

void AddConvert(CLI::App& app, Console& console) {
  const auto options = std::make_shared<ConvertOptions>();
  CLI::App* command = app.add_subcommand("convert", "Convert plain, compressed and buffer forms");
  AddFiles(*command, options->files, kWindowFiles);
  AddTarget(*command, options->target,
            "File to write: a name, a folder/, a pattern like out/{name}.cqz or - for standard "
            "output")
      ->required();
  command
      ->add_option("--to", options->form,
                   "Form to write: aqz (plain), cqz (compressed) or buffer (lines end with #); "
                   "as the target's ending tells where not given")
      ->check(CLI::IsMember({"aqz", "cqz", "buffer"}))
      ->type_name("FORM");
  command->footer(
      "A form that cannot hold the window is refused: a compressed file and its text\n"
      "have 10000 bytes at most, and no line of a buffer holds a #.\n"
      "\n"
      "Examples:\n"
      "  lintavo convert window.aqz -o window.cqz\n"
      "  lintavo convert windows/ --to cqz -o packed/\n"
      "  lintavo convert window.cqz --to buffer -o -");
  command->callback([options, &console] { Convert(*options, console); });
}

}  // namespace lintavo::tools
