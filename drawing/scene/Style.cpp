// Makes a style of a host's settings and materials.
#include "lintavo/drawing/Style.h"

#include "lintavo/settings/CAcFeInis.h"

namespace lintavo::drawing {
namespace {

// The share of one of the three bytes of a packed colour.
double Share(unsigned long packed, int byte) {
  return static_cast<double>(packed >> (8 * byte) & 0xFFUL) / 255.0;
}

Palette ToPalette(const CAcMatList& materials) {
  Palette palette;
  for (long i = 0; i < materials.GetCnt(); ++i) {
    const unsigned long packed = materials.GetColor2d(i);
    palette.push_back({Share(packed, 0), Share(packed, 1), Share(packed, 2)});
  }
  return palette;
}

double ToPen(float width) {
  constexpr float kWidest = 100.0F;
  return width >= 0.0F && width <= kWidest ? static_cast<double>(width) : 1.0;
}

}  // namespace

void UseSettings(const CAcFeInis& settings, Style& style) {
  style.pens.rahmen = ToPen(settings.fStiftRahmen);
  style.pens.symbole = ToPen(settings.fStiftSymbole);
  style.pens.sprossen = ToPen(settings.fStiftSprossen);
  style.pens.masze = ToPen(settings.fStiftMaszlinien);
  style.sizes.pixel = settings.bPixel;
  style.sizes.textHeight = settings.dTexthoehe;
  style.sizes.extensionLength = settings.dHilfslinienlaenge;
  style.sizes.arrowLength = settings.dPfeillaenge;
  style.sizes.arrowWidth = settings.dPfeilbreite;
  style.sizes.lineFactor = settings.dMaszlinienFaktor;
  style.sizes.smallestText = static_cast<double>(settings.lMinTextpixel);
}

void UseMaterials(const CAcFeInis& settings, Style& style) {
  style.bauteile = ToPalette(settings.BauteilMaterialien);
  style.symbole = ToPalette(settings.SymbolMaterialien);
  style.masze = ToPalette(settings.MaszMaterialien);
}

}  // namespace lintavo::drawing
