// The commands of `lintavo`: load a window, do one thing with it, say what came out.
#include "Commands.h"

#include "lintavo/api/CFeApi.h"
#include "lintavo/drawing/Scene.h"
#include "lintavo/drawing/Text.h"

#include "StyleFile.h"
#include "WindowFile.h"
#include "WindowReport.h"

namespace lintavo::tools {

using drawing::LengthText;

void ShowCommand(const std::string& file, std::ostream& out) {
  CFeApi window;
  LoadWindow(file, window);
  PrintReport(window, out);
}

void FitCommand(const std::string& file, const OpeningSize& opening, const std::string& target,
                std::ostream& out) {
  CFeApi window;
  LoadWindow(file, window);
  FitWindow(file, opening.width, opening.height, window);
  if (!target.empty()) SaveWindow(target, window);
  out << "Opening " << LengthText(opening.width) << " x " << LengthText(opening.height) << '\n';
  PrintReport(window, out);
  if (!target.empty()) out << "\nWritten to " << drawing::ToDisplayText(target) << '\n';
}

void DrawCommand(const std::string& file, const std::optional<OpeningSize>& opening,
                 const StyleFiles& styleFiles, drawing::SceneOptions options,
                 const std::string& picture, drawing::PictureFormat format) {
  drawing::Style style;
  if (!styleFiles.settings.empty()) LoadSettings(styleFiles.settings, style);
  if (!styleFiles.materials.empty()) LoadMaterials(styleFiles.materials, style);
  options.sizes = style.sizes;
  CFeApi window;
  LoadWindow(file, window);
  if (opening) FitWindow(file, opening->width, opening->height, window);
  const drawing::PictureStatus status =
      drawing::WritePicture(drawing::BuildScene(window, options), format, picture, style);
  if (status == drawing::PictureStatus::kOk) return;
  const bool atTarget = status == drawing::PictureStatus::kNotWritten;
  throw CommandError(drawing::ToDisplayText(atTarget ? picture : file) + ": " +
                     drawing::StatusText(status));
}

void PositionCommand(const std::string& file, const std::string& baseDirectory,
                     const std::string& target, std::ostream& out) {
  CFeApi window;
  MakePosition(file, baseDirectory, target, window);
  PrintReport(window, out);
  if (!target.empty()) out << "\nWritten to " << drawing::ToDisplayText(target) << '\n';
}

void FormCommand(const std::string& file, const std::string& target) {
  CFeApi window;
  LoadWindow(file, window);
  SaveForm(file, target, window);
}

}  // namespace lintavo::tools
