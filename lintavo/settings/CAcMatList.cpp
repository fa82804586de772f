#include "lintavo/settings/CAcMatList.h"

#include <algorithm>

#include "lintavo/ini/CIniFile.h"
#include "lintavo/platform/Grenzen_intern.h"
#include "lintavo/platform/Numbers_intern.h"
#include "lintavo/resources/StringTable.h"

using lintavo::StringId;
using lintavo::Text;

namespace {

// A texture's name has an ending: shorter texts name none.
constexpr int kKuerzesteTextur = 5;
constexpr char kVorTexturname = '>';

constexpr long kFarbzahlen = 3;
constexpr double kKleinsterAnteil = 0.000001;
constexpr double kGroessterAnteil = 254.999999;

bool ReadFarbe(CIniFile& document, const CString& section, StringId id,
               double (&werte)[kFarbzahlen]) {
  return document.GetDoubles(section, Text(id), kFarbzahlen, werte) != 0;
}

void ReadFarbe(CIniFile& document, const CString& section, StringId id, COLOR_RGB& farbe) {
  double werte[kFarbzahlen];
  if (!ReadFarbe(document, section, id, werte)) return;
  farbe = {lintavo::NarrowToFloat(werte[0]), lintavo::NarrowToFloat(werte[1]),
           lintavo::NarrowToFloat(werte[2])};
}

// A share of a colour of plane drawings: a whole number from 0 to 255.
float Farbanteil(double wert) {
  if (wert < kKleinsterAnteil) return 0.0F;
  if (wert > kGroessterAnteil) return 255.0F;
  return static_cast<float>(lintavo::TruncateToInt(wert));
}

void ReadFarbe2d(CIniFile& document, const CString& section, COLOR_RGB& farbe) {
  double werte[kFarbzahlen];
  if (!ReadFarbe(document, section, StringId::Rgb2d, werte)) return;
  farbe = {Farbanteil(werte[0]), Farbanteil(werte[1]), Farbanteil(werte[2])};
}

// A texture clears all other flags, on purpose: whether both sides are shown is
// read after it.
void ReadTextur(CIniFile& document, const CString& section, CAcMatEntry& entry) {
  CString textur;
  if (!document.GetString(section, Text(StringId::Textur), textur)) return;
  if (textur.GetLength() < kKuerzesteTextur) return;
  entry.Typ.iFlags = eMaterialTextur;
  const int marke = textur.Find(kVorTexturname);
  entry.strTextur = marke >= 0 ? textur.Mid(marke + 1) : textur;
}

void ReadMaterial(CIniFile& document, const CString& section, CAcMatEntry& entry) {
  document.GetString(section, Text(StringId::Name), entry.strName);
  ReadFarbe2d(document, section, entry.Typ.Rgb2d);
  document.GetFloat(section, Text(StringId::Kdiffus), entry.Typ.fDiffus);
  document.GetFloat(section, Text(StringId::Kambient), entry.Typ.fAmbient);
  document.GetFloat(section, Text(StringId::Kspiegel), entry.Typ.fSpiegel);
  document.GetFloat(section, Text(StringId::Alpha), entry.Typ.fAlpha);
  document.GetFloat(section, Text(StringId::Oe), entry.Typ.fExponent);
  ReadFarbe(document, section, StringId::RgbDiffus, entry.Typ.Diffus);
  ReadFarbe(document, section, StringId::RgbSpiegel, entry.Typ.Spiegel);
  ReadTextur(document, section, entry);
  document.GetDouble(section, Text(StringId::XSkalierung), entry.dXSkale);
  document.GetDouble(section, Text(StringId::YSkalierung), entry.dYSkale);
  long beidseitig = 0;
  document.GetLong(section, Text(StringId::Beidseitig), beidseitig);
  if (beidseitig == 1) entry.Typ.iFlags |= eMaterialBeidseitig;
}

unsigned long Gepackt(const COLOR_RGB& farbe) {
  const auto anteil = [](float wert) -> unsigned long {
    return lintavo::LowByte(lintavo::TruncateToLong(static_cast<double>(wert)));
  };
  return anteil(farbe.fRot) + 256UL * anteil(farbe.fGruen) + 65536UL * anteil(farbe.fBlau);
}

}  // namespace

CAcMatList::~CAcMatList() = default;

bool CAcMatList::LoadFromIniFile(CIniFile& document, const CString& prefix, long index,
                                 CAcMatEntry& entry) const {
  const CString section = lintavo::NumberedName(prefix, index);
  if (document.FindSection(section) < 0) return false;
  ReadMaterial(document, section, entry);
  return true;
}

bool CAcMatList::LoadFromIniFile(CIniFile& document, const CString& prefix) {
  const long before = GetCnt();
  for (long i = 1; i <= lintavo::kMaxMaterialien; ++i) {
    CAcMatEntry entry;
    if (!LoadFromIniFile(document, prefix, i, entry)) break;
    // Without looking for an equal one, on purpose: the place of a material is
    // its number in the file.
    Add(&entry);
  }
  return GetCnt() > before;
}

// The names of these two say the reverse of what they do. Hosts rely on what
// they do, so both stay.

long CAcMatList::Add(const CAcMatEntry* entry) {
  // Copied first: the material may be one of the list, which moves as it grows.
  CAcMatEntry copy = entry ? *entry : CAcMatEntry();
  entries_.push_back(copy);
  return GetCnt() - 1;
}

long CAcMatList::AddNoCompared(const CAcMatEntry* entry) {
  const CAcMatEntry wanted = entry ? *entry : CAcMatEntry();
  const auto it = std::find(entries_.begin(), entries_.end(), wanted);
  return it != entries_.end() ? static_cast<long>(it - entries_.begin()) : Add(&wanted);
}

void CAcMatList::Delete() {
  entries_.clear();
  nummer_ = -1;
}

const CAcMatEntry* CAcMatList::GetEntryPtr(long index) const {
  return index >= 0 && index < GetCnt() ? &entries_[static_cast<std::size_t>(index)] : nullptr;
}

CAcMatEntry* CAcMatList::GetEntryPtr(long index) {
  return index >= 0 && index < GetCnt() ? &entries_[static_cast<std::size_t>(index)] : nullptr;
}

const CAcMatTyp* CAcMatList::GetMatPtr(long index) const {
  const CAcMatEntry* entry = GetEntryPtr(index);
  return entry ? &entry->Typ : nullptr;
}

CAcMatTyp* CAcMatList::GetMatPtr(long index) {
  CAcMatEntry* entry = GetEntryPtr(index);
  return entry ? &entry->Typ : nullptr;
}

const char* CAcMatList::GetTextureName(long index) const {
  const CAcMatEntry* entry = GetEntryPtr(index);
  return entry ? static_cast<const char*>(entry->strTextur) : nullptr;
}

void CAcMatList::SetTextureID(long index, int id) {
  if (CAcMatEntry* entry = GetEntryPtr(index)) entry->iTexturID = id;
}

double CAcMatList::dGetXSkale(long index) const {
  const CAcMatEntry* entry = GetEntryPtr(index);
  return entry ? entry->dXSkale : 1.0;
}

double CAcMatList::dGetYSkale(long index) const {
  const CAcMatEntry* entry = GetEntryPtr(index);
  return entry ? entry->dYSkale : 1.0;
}

unsigned long CAcMatList::GetColor2d(long index) const {
  const CAcMatEntry* entry = GetEntryPtr(index);
  return entry ? Gepackt(entry->Typ.Rgb2d) : 0;
}

unsigned long CAcMatList::GetColor2d(long index, CIniFile& document, const CString& prefix) const {
  COLOR_RGB farbe;
  ReadFarbe2d(document, lintavo::NumberedName(prefix, index), farbe);
  return Gepackt(farbe);
}
