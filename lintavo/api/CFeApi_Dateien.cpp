// The façade's questions about files and folders, which need no window.
#include <cstring>
#include <vector>

#include "lintavo/api/CFeApi.h"
#include "lintavo/api/Komprimiert_intern.h"
#include "lintavo/api/Schutz_intern.h"
#include "lintavo/ini/CIniFile.h"
#include "lintavo/platform/Files_intern.h"
#include "lintavo/platform/Grenzen_intern.h"
#include "lintavo/resources/StringTable.h"

using lintavo::Geschuetzt;
using lintavo::KopiereText;

namespace {

constexpr const char* kEndungPlain = "aqz";
constexpr const char* kEndungKomprimiert = "cqz";
constexpr const char* kEndungTemporaer = "tmp";
constexpr int kEndungLaenge = 3;

bool HatEndung(const CString& path, const char* endung) {
  return path.Right(kEndungLaenge).CompareNoCase(endung) == 0;
}

// The first line of any section whose first four characters are the key's name;
// what follows them is not looked at, on purpose, and the fifth is dropped.
bool NameAusZeilen(const lintavo::KomprimierterText& text, CString& name) {
  const CString key = lintavo::Text(lintavo::StringId::Name);
  bool found = false;
  lintavo::JedeZeile(text.lLaenge, text.Bytes, lintavo::kKomprimiertTrenner,
                     [&](std::string_view bytes) {
                       const CString line(bytes);
                       found = line.Left(key.GetLength()).CompareNoCase(key) == 0;
                       if (found) name = line.Mid(key.GetLength() + 1);
                       return !found;
                     });
  return found;
}

bool LiesBezeichnung(const CString& path, CString& name) {
  if (HatEndung(path, kEndungKomprimiert)) {
    lintavo::KomprimierterText text;
    return lintavo::LiesKomprimiert(path, text) && NameAusZeilen(text, name);
  }
  CIniFile document;
  if (!document.Read(path)) return false;
  return document.GetString(lintavo::Text(lintavo::StringId::Allgemeines),
                            lintavo::Text(lintavo::StringId::Name), name) != 0;
}

bool SucheMakroFile(const CString& folder, int tiefe, CString& path) {
  if (tiefe > lintavo::kMaxOrdnertiefe) return false;
  for (const lintavo::FolderEntry& entry : lintavo::ListFolder(folder)) {
    const CString entryPath = lintavo::JoinPath(folder, entry.strName);
    if (entry.bIsFolder) {
      if (SucheMakroFile(entryPath, tiefe + 1, path)) return true;
      continue;
    }
    if (!HatEndung(entry.strName, kEndungPlain) && !HatEndung(entry.strName, kEndungKomprimiert)) {
      continue;
    }
    path = entryPath;
    return true;
  }
  return false;
}

}  // namespace

int CFeApi::IsFileCompressed(const char* path) {
  return Geschuetzt(0, [&] { return HatEndung(CString(path), kEndungKomprimiert) ? 1 : 0; });
}

int CFeApi::IsFileTemporary(const char* path) {
  return Geschuetzt(0, [&] { return HatEndung(CString(path), kEndungTemporaer) ? 1 : 0; });
}

long CFeApi::GetBezeichnungFromFile(const char* path, char (&name)[256]) {
  std::memset(name, 0, sizeof name);
  return Geschuetzt(0L, [&] {
    CString text;
    return LiesBezeichnung(CString(path), text) ? KopiereText(text, name) : 0L;
  });
}

int CFeApi::GetValidMakroFile(const char* directory, char (&path)[256]) {
  std::memset(path, 0, sizeof path);
  return Geschuetzt(0, [&] {
    CString found;
    if (!SucheMakroFile(CString(directory), 0, found)) return 0;
    KopiereText(found, path);
    return 1;
  });
}
