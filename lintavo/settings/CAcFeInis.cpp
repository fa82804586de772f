#include "lintavo/settings/CAcFeInis.h"

#include <utility>

#include "lintavo/resources/StringTable.h"

using lintavo::StringId;
using lintavo::Text;

namespace {

// Files hold lengths ten times as large as they are used.
constexpr double kDateiMaszstab = 0.1;

// Visits the settings in the order of the file. Reading and saving share the
// list, so that the two cannot drift apart.
template <class Besuch>
void JedeEinstellung(CAcFeInis& inis, Besuch& besuch) {
  besuch.Sektion(StringId::Vermaszung);
  besuch.Wert(StringId::AngabenInPixel, inis.bPixel);
  besuch.Wert(StringId::MaszlinienAbstandsFaktor, inis.dMaszlinienFaktor);
  besuch.Laenge(StringId::Texthoehe, inis.dTexthoehe, inis.bPixel);
  besuch.Laenge(StringId::Textbreite, inis.dTextbreite, inis.bPixel);
  besuch.Wert(StringId::MinTextpixel, inis.lMinTextpixel);
  besuch.Laenge(StringId::Hilfslinienlaenge, inis.dHilfslinienlaenge, inis.bPixel);
  besuch.Laenge(StringId::Pfeillaenge, inis.dPfeillaenge, inis.bPixel);
  besuch.Laenge(StringId::Pfeilbreite, inis.dPfeilbreite, inis.bPixel);
  besuch.Sektion(StringId::Stiftbreiten);
  besuch.Wert(StringId::Rahmen, inis.fStiftRahmen);
  besuch.Wert(StringId::Oeffnungssymbole, inis.fStiftSymbole);
  besuch.Wert(StringId::Sprossen, inis.fStiftSprossen);
  besuch.Wert(StringId::Maszlinien, inis.fStiftMaszlinien);
}

class Leser {
 public:
  explicit Leser(CIniFile& document) : document_(document) {}

  void Sektion(StringId id) { section_ = Text(id); }
  int Wert(StringId id, bool& wert) { return document_.GetBool(section_, Text(id), wert); }
  int Wert(StringId id, long& wert) { return document_.GetLong(section_, Text(id), wert); }
  int Wert(StringId id, float& wert) { return document_.GetFloat(section_, Text(id), wert); }
  int Wert(StringId id, double& wert) { return document_.GetDouble(section_, Text(id), wert); }
  void Laenge(StringId id, double& wert, bool pixel) {
    if (Wert(id, wert) && !pixel) wert *= kDateiMaszstab;
  }

 private:
  CIniFile& document_;
  CString section_;
};

class Schreiber {
 public:
  explicit Schreiber(CIniFile& document) : document_(document) {}

  void Sektion(StringId id) { section_ = Text(id); }
  void Wert(StringId id, bool wert) { document_.SetBool(section_, Text(id), wert); }
  void Wert(StringId id, long wert) { document_.SetLong(section_, Text(id), wert); }
  void Wert(StringId id, float wert) { document_.SetFloat(section_, Text(id), wert); }
  void Wert(StringId id, double wert) { document_.SetDouble(section_, Text(id), wert); }
  // Saving shrinks what is in memory, on purpose: hosts save just before they
  // discard the settings or read them anew, and count on finding them so.
  void Laenge(StringId id, double& wert, bool pixel) {
    Wert(id, wert);
    if (!pixel) wert *= kDateiMaszstab;
  }

 private:
  CIniFile& document_;
  CString section_;
};

}  // namespace

CAcFeInis::~CAcFeInis() = default;

bool CAcFeInis::ReadMaterials(const CString& path) {
  CIniFile document;
  if (!document.Read(path)) return false;
  // All three are read before one is replaced: running out of memory changes none.
  CAcMatList masze;
  CAcMatList symbole;
  CAcMatList bauteile;
  masze.LoadFromIniFile(document, Text(StringId::Vermaszung));
  symbole.LoadFromIniFile(document, Text(StringId::Oeffnungssymbol));
  bauteile.LoadFromIniFile(document, Text(StringId::Bauteil));
  MaszMaterialien = std::move(masze);
  SymbolMaterialien = std::move(symbole);
  BauteilMaterialien = std::move(bauteile);
  return true;
}

bool CAcFeInis::ReadMaterialIniFile(const CString& path) {
  CIniFile document;
  if (!document.Read(path)) return false;
  MaterialIni = std::move(document);
  return true;
}

bool CAcFeInis::ReadGenerelles(const CString& path) {
  CIniFile document;
  return document.Read(path) && ReadGenerelles(document);
}

bool CAcFeInis::ReadGenerelles(CIniFile& document) {
  Leser leser(document);
  JedeEinstellung(*this, leser);
  return true;
}

bool CAcFeInis::SaveGenerelles(CIniFile& document) {
  Schreiber schreiber(document);
  JedeEinstellung(*this, schreiber);
  return true;
}
