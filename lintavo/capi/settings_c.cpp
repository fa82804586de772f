// Settings and materials for C: each function hands its arguments to CAcFeInis
// or to one of its lists.
#include "lintavo/capi/settings_c.h"

#include "lintavo/capi/Handles_intern.h"
#include "lintavo/settings/CAcFeInis.h"

using lintavo::Geschuetzt;
using lintavo::capi::Create;
using lintavo::capi::HandOut;

struct lintavo_settings {
  CAcFeInis inis;
};

namespace {

CAcMatList* List(lintavo_settings* settings, int list) {
  if (!settings) return nullptr;
  switch (list) {
    case LINTAVO_MATERIAL_BAUTEIL:
      return &settings->inis.BauteilMaterialien;
    case LINTAVO_MATERIAL_SYMBOL:
      return &settings->inis.SymbolMaterialien;
    case LINTAVO_MATERIAL_MASZ:
      return &settings->inis.MaszMaterialien;
    default:
      return nullptr;
  }
}

const CAcMatList* List(const lintavo_settings* settings, int list) {
  return List(const_cast<lintavo_settings*>(settings), list);
}

const CAcMatEntry* Entry(const lintavo_settings* settings, int list, long i) {
  const CAcMatList* materials = List(settings, list);
  return materials ? materials->GetEntryPtr(i) : nullptr;
}

void CopyColour(const COLOR_RGB& from, float (&to)[3]) {
  to[0] = from.fRot;
  to[1] = from.fGruen;
  to[2] = from.fBlau;
}

lintavo_material ToMaterial(const CAcMatEntry& entry) {
  lintavo_material material{};
  CopyColour(entry.Typ.Diffus, material.diffus);
  CopyColour(entry.Typ.Spiegel, material.spiegel);
  material.alpha = entry.Typ.fAlpha;
  material.ambient_faktor = entry.Typ.fAmbient;
  material.diffus_faktor = entry.Typ.fDiffus;
  material.spiegel_faktor = entry.Typ.fSpiegel;
  material.spiegel_exponent = entry.Typ.fExponent;
  material.flags = entry.Typ.iFlags;
  CopyColour(entry.Typ.Rgb2d, material.rgb2d);
  material.textur_id = entry.iTexturID;
  material.skale_x = entry.dXSkale;
  material.skale_y = entry.dYSkale;
  return material;
}

}  // namespace

lintavo_settings* lintavo_settings_create(void) {
  return Create<lintavo_settings>();
}

void lintavo_settings_destroy(lintavo_settings* settings) {
  delete settings;
}

// --- files --------------------------------------------------------------------

int lintavo_settings_read_generelles(lintavo_settings* settings, const char* path) {
  if (!settings || !path) return 0;
  return Geschuetzt(0, [&] { return settings->inis.ReadGenerelles(CString(path)) ? 1 : 0; });
}

int lintavo_settings_save_generelles(const lintavo_settings* settings, const char* path) {
  if (!settings || !path) return 0;
  return Geschuetzt(0, [&] {
    // Saving may leave the object with other lengths, so a copy is saved.
    CAcFeInis inis = settings->inis;
    CIniFile document;
    return inis.SaveGenerelles(document) && document.Write(path) ? 1 : 0;
  });
}

int lintavo_settings_read_materials(lintavo_settings* settings, const char* path) {
  if (!settings || !path) return 0;
  return Geschuetzt(0, [&] { return settings->inis.ReadMaterials(path) ? 1 : 0; });
}

int lintavo_settings_read_material_ini_file(lintavo_settings* settings, const char* path) {
  if (!settings || !path) return 0;
  return Geschuetzt(0, [&] { return settings->inis.ReadMaterialIniFile(path) ? 1 : 0; });
}

// --- values -------------------------------------------------------------------

int lintavo_settings_get_generelles(const lintavo_settings* settings, lintavo_generelles* values) {
  if (!settings || !values) return 0;
  const CAcFeInis& inis = settings->inis;
  values->pixel = inis.bPixel ? 1 : 0;
  values->maszlinien_faktor = inis.dMaszlinienFaktor;
  values->texthoehe = inis.dTexthoehe;
  values->textbreite = inis.dTextbreite;
  values->min_textpixel = inis.lMinTextpixel;
  values->hilfslinienlaenge = inis.dHilfslinienlaenge;
  values->pfeillaenge = inis.dPfeillaenge;
  values->pfeilbreite = inis.dPfeilbreite;
  values->stift_rahmen = inis.fStiftRahmen;
  values->stift_symbole = inis.fStiftSymbole;
  values->stift_sprossen = inis.fStiftSprossen;
  values->stift_maszlinien = inis.fStiftMaszlinien;
  return 1;
}

int lintavo_settings_set_generelles(lintavo_settings* settings, const lintavo_generelles* values) {
  if (!settings || !values) return 0;
  CAcFeInis& inis = settings->inis;
  inis.bPixel = values->pixel != 0;
  inis.dMaszlinienFaktor = values->maszlinien_faktor;
  inis.dTexthoehe = values->texthoehe;
  inis.dTextbreite = values->textbreite;
  inis.lMinTextpixel = values->min_textpixel;
  inis.dHilfslinienlaenge = values->hilfslinienlaenge;
  inis.dPfeillaenge = values->pfeillaenge;
  inis.dPfeilbreite = values->pfeilbreite;
  inis.fStiftRahmen = values->stift_rahmen;
  inis.fStiftSymbole = values->stift_symbole;
  inis.fStiftSprossen = values->stift_sprossen;
  inis.fStiftMaszlinien = values->stift_maszlinien;
  return 1;
}

long lintavo_settings_get_anzahl_materialien(const lintavo_settings* settings, int list) {
  const CAcMatList* materials = List(settings, list);
  return materials ? materials->GetCnt() : 0;
}

int lintavo_settings_get_material(const lintavo_settings* settings, int list, long i,
                                  lintavo_material* material) {
  const CAcMatEntry* entry = Entry(settings, list, i);
  if (entry && material) *material = ToMaterial(*entry);
  return entry ? 1 : 0;
}

size_t lintavo_settings_get_material_name(const lintavo_settings* settings, int list, long i,
                                          char* name, size_t size) {
  const CAcMatEntry* entry = Entry(settings, list, i);
  return HandOut(entry ? entry->strName.View() : std::string_view(), name, size);
}

size_t lintavo_settings_get_texture_name(const lintavo_settings* settings, int list, long i,
                                         char* name, size_t size) {
  const CAcMatEntry* entry = Entry(settings, list, i);
  return HandOut(entry ? entry->strTextur.View() : std::string_view(), name, size);
}

int lintavo_settings_set_texture_id(lintavo_settings* settings, int list, long i, int id) {
  CAcMatList* materials = List(settings, list);
  if (!materials || !materials->GetEntryPtr(i)) return 0;
  materials->SetTextureID(i, id);
  return 1;
}

unsigned long lintavo_settings_get_color2d(const lintavo_settings* settings, int list, long i) {
  const CAcMatList* materials = List(settings, list);
  return materials ? materials->GetColor2d(i) : 0;
}

unsigned long lintavo_settings_get_color2d_from_ini(lintavo_settings* settings, const char* prefix,
                                                    long i) {
  if (!settings || !prefix) return 0;
  return Geschuetzt(0UL, [&] {
    CAcFeInis& inis = settings->inis;
    return inis.BauteilMaterialien.GetColor2d(i, inis.MaterialIni, prefix);
  });
}
