// Reads the settings and materials that a picture is drawn with.
#include "StyleFile.h"

#include "lintavo/settings/CAcFeInis.h"

#include "WindowFile.h"

namespace lintavo::tools {

void LoadSettings(const std::string& path, drawing::Style& style) {
  CAcFeInis settings;
  // The usual lengths of new settings suit no window in particular; without a length
  // of its own a picture finds one that suits its window.
  settings.dTexthoehe = 0.0;
  settings.dHilfslinienlaenge = 0.0;
  settings.dPfeillaenge = 0.0;
  settings.dPfeilbreite = 0.0;
  settings.lMinTextpixel = 0;
  if (!settings.ReadGenerelles(CString(path.c_str()))) {
    Fail(path, "the file cannot be opened");
  }
  drawing::UseSettings(settings, style);
}

void LoadMaterials(const std::string& path, drawing::Style& style) {
  CAcFeInis settings;
  if (!settings.ReadMaterials(path.c_str())) Fail(path, "the file cannot be opened");
  drawing::UseMaterials(settings, style);
}

}  // namespace lintavo::tools
