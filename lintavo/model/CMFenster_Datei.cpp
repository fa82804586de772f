// The macro file of a window, and the blank parameter form beside it.
#include <algorithm>
#include <cmath>

#include "lintavo/ini/CIniFile.h"
#include "lintavo/model/CMFenster.h"
#include "lintavo/model/Fehler_intern.h"
#include "lintavo/model/Masze_intern.h"
#include "lintavo/platform/Grenzen_intern.h"
#include "lintavo/platform/Numbers_intern.h"
#include "lintavo/resources/StringTable.h"

using lintavo::NumberedName;
using lintavo::StringId;
using lintavo::Text;

namespace {

constexpr const char* kVersion = "1.00";

// Lengths in a parameter form are ten times those of the model.
constexpr double kFormularFaktor = 10.0;

constexpr long kFormularTexte = 4;

// Sample entry that the user of the form edits: no pattern, four attributes.
constexpr const char* kMusterSprossenbild = "00,1,2,1,2";

bool ReadKnoten(CIniFile& document, const CString& section, const char* key, CMKnoten& knoten) {
  // One more than a corner point has, to tell its four numbers from longer lists.
  double v[5];
  long count = 0;
  if (!document.GetDoubles(section, key, 5, v, &count)) return false;
  const int j = lintavo::TruncateToInt(v[0]);
  const int k = lintavo::TruncateToInt(v[1]);
  if (count == 4) {
    if (!lintavo::IstBrauchbar(v[2]) || !lintavo::IstBrauchbar(v[3])) return false;
    knoten.SetEckpu(j, k, v[2], v[3]);
  } else {
    knoten.Set(j, k);
  }
  return true;
}

void SaveKnoten(CIniFile& document, CString& section, const char* key, const CMKnoten& knoten) {
  const double v[4] = {static_cast<double>(knoten.J()), static_cast<double>(knoten.K()), knoten.X(),
                       knoten.Y()};
  document.SetDoubles(section, key, knoten.IsAufAchse() ? 2 : 4, v);
}

void SetKnoten(CMZusatzMasz& masz, bool horizontal, const CMKnoten& k1, const CMKnoten& k2) {
  if (horizontal) {
    masz.SetHorizontal(k1, k2);
  } else {
    masz.SetVertikal(k1, k2);
  }
}

void SetKnoten(CMZusatzMasz& masz, bool horizontal, const CMKnoten& k1, const CMKnoten& k2,
               const CMKnoten& k3) {
  if (horizontal) {
    masz.SetHorizontal(k1, k2, k3);
  } else {
    masz.SetVertikal(k1, k2, k3);
  }
}

bool ReadZusatzMasz(CIniFile& document, const CString& section, CMZusatzMasz& masz) {
  double laenge[2];
  bool horizontal = false;
  CMKnoten k1;
  CMKnoten k2;
  CMKnoten k3;
  if (!document.GetString(section, Text(StringId::Name), masz.strName)) return false;
  if (!lintavo::ReadMasze(document, section, Text(StringId::Laenge), 2, laenge)) return false;
  if (!document.GetBool(section, Text(StringId::Richtung), horizontal)) return false;
  if (!ReadKnoten(document, section, Text(StringId::Knoten1), k1)) return false;
  if (!ReadKnoten(document, section, Text(StringId::Knoten2), k2)) return false;
  if (ReadKnoten(document, section, Text(StringId::Knoten3), k3)) {
    SetKnoten(masz, horizontal, k1, k2, k3);
  } else {
    SetKnoten(masz, horizontal, k1, k2);
  }
  masz.dLaenge = laenge[0];
  masz.dAbstand = laenge[1];
  return true;
}

void SaveZusatzMasz(CIniFile& document, CString& section, const CMZusatzMasz& masz) {
  const double laenge[2] = {masz.dLaenge, masz.dAbstand};
  document.SetString(section, Text(StringId::Name), masz.strName);
  document.SetDoubles(section, Text(StringId::Laenge), 2, laenge);
  document.SetBool(section, Text(StringId::Richtung), masz.IsHorizonal());
  SaveKnoten(document, section, Text(StringId::Knoten1), masz.kKnoten1);
  SaveKnoten(document, section, Text(StringId::Knoten2), masz.kKnoten2);
  if (masz.IsZentrisch()) SaveKnoten(document, section, Text(StringId::Knoten3), masz.kKnoten3);
}

int LastSeparator(const CString& path) {
  return std::max(path.ReverseFind('/'), path.ReverseFind('\\'));
}

// The name of the parameter form beside a macro file: the file's name in lower case, its
// last three characters replaced, whatever they are. The folder keeps its case, since
// folders may tell cases apart. Empty where no dot stands behind the second character; one
// in a folder's name counts, on purpose: forms beside files without an ending rest on it.
CString FormularPfad(const CString& path) {
  constexpr int kEndung = 3;
  if (path.ReverseFind('.') <= 1) return CString();
  const int nameStart = LastSeparator(path) + 1;
  CString name = path.Mid(nameStart);
  name.MakeLower();
  return path.Left(nameStart) + name.Left(std::max(name.GetLength() - kEndung, 0)) + "txt";
}

}  // namespace

bool CMFenster::ReadFromFile(const CString& path) {
  CMException fehler = lintavo::FehlerVon([&] {
    if (path.IsEmpty()) throw CMException(static_cast<int>(StringId::MeldungDateiFehlt), path);
    Delete();
    dateiName_ = path;
    CIniFile document;
    if (!document.Read(path)) {
      throw CMException(static_cast<int>(StringId::MeldungDateiFehlt), path);
    }
    // The result is not looked at, on purpose: a document that lacks the frame
    // is an empty window, not an unreadable file.
    Lies(document);
  });
  // Without memory it may stay as far as it was read.
  if (fehler.iNummer != 0) lintavo::FehlerVon([&] { Delete(); });
  return FehlerMerken(std::move(fehler));
}

bool CMFenster::ReadFromBuffer(CIniFile& document) {
  bool gelesen = false;
  CMException fehler = lintavo::FehlerVon([&] { gelesen = Lies(document); });
  if (fehler.iNummer == 0) return gelesen;
  return FehlerMerken(std::move(fehler));
}

bool CMFenster::Lies(CIniFile& document) {
  const CString general = Text(StringId::Allgemeines);
  document.GetString(general, Text(StringId::Name), name_);
  document.GetString(general, Text(StringId::Bitmap1), bitmap1_);
  document.GetString(general, Text(StringId::Bitmap2), bitmap2_);
  if (!achsen_.ReadFromIniFile(document)) return false;
  for (long i = 1; i <= lintavo::kMaxMasze; ++i) {
    CMZusatzMasz masz;
    if (!ReadZusatzMasz(document, NumberedName(StringId::MaszSektion, i), masz)) break;
    AddZusatzMasz(masz);
  }
  if (!rahmen_.ReadFromIniFile(Text(StringId::Rahmen), document)) return false;
  for (long i = 1; i <= lintavo::kMaxFluegel; ++i) {
    const CString section = NumberedName(StringId::Fluegel, i);
    double typ[2];
    if (!document.GetDoubles(section, Text(StringId::Typ), 2, typ)) break;
    std::unique_ptr<CMFensterSatz> fluegel(NewFluegelPtr(lintavo::TruncateToLong(typ[0])));
    if (!fluegel) break;
    // A sash that cannot be read is left out; the ones after it still count.
    if (!fluegel->ReadFromIniFile(section, document)) continue;
    fluegel->lTyp2 = lintavo::TruncateToInt(typ[1]);
    fluegel_.push_back(std::move(fluegel));
  }
  neu_ = true;
  return true;
}

bool CMFenster::SaveToBuffer(CIniFile& document) const {
  // A file begins with axis 0 at the origin.
  if (IsRasterVerschoben()) {
    CMFenster verschoben(*this);
    verschoben.RasterAnDenUrsprung();
    return verschoben.SaveToBuffer(document);
  }
  CString general = Text(StringId::Allgemeines);
  document.SetString(general, Text(StringId::Version), kVersion);
  document.SetString(general, Text(StringId::Name), name_);
  if (IsBitmap()) {
    document.SetString(general, Text(StringId::Bitmap1), bitmap1_);
    document.SetString(general, Text(StringId::Bitmap2), bitmap2_);
  }
  achsen_.SaveToIniFile(document);
  long number = 0;
  for (const CMZusatzMasz& masz : zusatzMasze_) {
    CString section = NumberedName(StringId::MaszSektion, ++number);
    SaveZusatzMasz(document, section, masz);
  }
  rahmen_.SaveToIniFile(Text(StringId::Rahmen), document);
  number = 0;
  for (const auto& fluegel : fluegel_) {
    CString section = NumberedName(StringId::Fluegel, ++number);
    const double typ[2] = {static_cast<double>(fluegel->lForm),
                           static_cast<double>(fluegel->lTyp2)};
    document.SetDoubles(section, Text(StringId::Typ), 2, typ);
    fluegel->SaveToIniFile(section, document);
  }
  return true;
}

bool CMFenster::SaveToFile(const CString& path) {
  return SaveToFile(false, path);
}

bool CMFenster::SaveToFile(bool withParameterForm, const CString& path) {
  if (path.IsEmpty()) return false;
  // Made of a copy, so that what cannot be written leaves this window alone.
  Raster raster = KompaktesRaster();
  CMFenster gespeichert(*this);
  gespeichert.dateiName_ = path;
  gespeichert.SetzeRaster(Raster(raster));
  CIniFile document;
  gespeichert.SaveToBuffer(document);
  document.CutLines();
  if (!document.Write(path)) return false;
  const CString formPath = withParameterForm ? FormularPfad(path) : CString();
  if (!formPath.IsEmpty() && !SaveParameterFormular(formPath)) return false;
  SetzeRaster(std::move(raster));
  dateiName_ = std::move(gespeichert.dateiName_);
  return true;
}

bool CMFenster::SaveParameterFormular(const CString& path) const {
  if (path.IsEmpty()) return false;
  CIniFile form;
  SaveParameterBlankoFormularToBuffer(form);
  form.CutLines();
  return form.Write(path) != 0;
}

bool CMFenster::SaveParameterBlankoFormularToBuffer(CIniFile& document) const {
  CString general = Text(StringId::Allgemeines);
  document.SetString(general, Text(StringId::Typ), typName_);
  for (long i = 1; i <= kFormularTexte; ++i) {
    document.SetString(general, NumberedName(StringId::Text, i), CString());
  }

  CString lengths = Text(StringId::Masze);
  for (auto masz = zusatzMasze_.begin(); masz != zusatzMasze_.end(); ++masz) {
    const bool repeated = std::any_of(zusatzMasze_.begin(), masz, [&](const CMZusatzMasz& other) {
      return other.strName.CompareNoCase(masz->strName) == 0;
    });
    if (masz->strName.IsEmpty() || repeated) continue;
    document.SetDouble(lengths, masz->strName, std::fabs(masz->dLaenge) * kFormularFaktor);
  }

  rahmen_.SaveBauteileToParameterFormular(0, Text(StringId::Rahmen), document);
  long number = 0;
  for (const auto& fluegel : fluegel_) {
    CString section = NumberedName(StringId::Fluegel, ++number);
    fluegel->SaveGangartToIniFile(section, document);
    fluegel->SaveFuellungToIniFile(section, document);
    document.SetBool(section, Text(StringId::ZuerstAufgehend), fluegel->bZuerstAufgehend);
    fluegel->SaveBauteileToParameterFormular(1, section, document);
    document.SetString(section, NumberedName(StringId::Sprossenbild, 1), kMusterSprossenbild);
  }
  return true;
}
