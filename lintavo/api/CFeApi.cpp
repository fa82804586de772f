// The façade's life cycle, errors, reading and writing.
#include "lintavo/api/CFeApi.h"

#include <cstring>
#include <memory>
#include <new>
#include <string>

#include "lintavo/api/Komprimiert_intern.h"
#include "lintavo/api/Schutz_intern.h"
#include "lintavo/ini/CIniFile.h"
#include "lintavo/model/CMFenster.h"
#include "lintavo/model/Fehler_intern.h"

using lintavo::Geschuetzt;
using lintavo::KopiereText;

namespace {

constexpr char kPufferTrenner = '#';

CString PathOf(const char* path) {
  return CString(path);
}

// The result of an operation that leaves an error with the window; what runs out of
// memory outside of the window leaves one, too.
template <class Operation>
int MitFehler(CMFenster& fenster, Operation operation) noexcept {
  try {
    return operation();
  } catch (...) {
    Geschuetzt([&] { fenster.SetErrorMsg(lintavo::KeinSpeicher().strText); });
    return 0;
  }
}

}  // namespace

CFeApi::CFeApi() : pFenster_(Geschuetzt<CMFenster*>(nullptr, [] { return new CMFenster; })) {}

CFeApi::CFeApi(const CFeApi& other)
    : pFenster_(Geschuetzt<CMFenster*>(nullptr, [&] {
        return other.pFenster_ ? new CMFenster(*other.pFenster_) : new CMFenster;
      })) {}

CFeApi& CFeApi::operator=(const CFeApi& other) {
  if (this == &other) return *this;
  if (pFenster_ && other.pFenster_) Geschuetzt([&] { *pFenster_ = *other.pFenster_; });
  return *this;
}

CFeApi::~CFeApi() {
  delete pFenster_;
  pFenster_ = nullptr;
}

void CFeApi::DeleteFenster() {
  if (pFenster_) Geschuetzt([&] { pFenster_->Delete(); });
}

int CFeApi::SetFenster(const CMFenster& fenster) {
  if (!pFenster_) return 0;
  return Geschuetzt(0, [&] {
    *pFenster_ = fenster;
    return 1;
  });
}

long CFeApi::GetErrorID() const {
  return pFenster_ ? pFenster_->GetFehler() : -1;
}

long CFeApi::GetErrorMsg(char (&text)[256]) const {
  std::memset(text, 0, sizeof text);
  if (!pFenster_) return 0;
  return Geschuetzt(0L, [&] {
    CString message;
    pFenster_->GetFehler(message);
    return KopiereText(message, text);
  });
}

int CFeApi::ReadFromFile(const char* path) {
  if (!pFenster_) return 0;
  return MitFehler(*pFenster_, [&] {
    return pFenster_->ReadFromFile(PathOf(path)) && pFenster_->Berechne(false) ? 1 : 0;
  });
}

int CFeApi::ReadFromCompressedFile(const char* path) {
  if (!pFenster_) return 0;
  return MitFehler(*pFenster_, [&] {
    lintavo::KomprimierterText text;
    if (!lintavo::LiesKomprimiert(PathOf(path), text)) return 0;
    return ReadFromBuffer(text.lLaenge, text.Bytes, lintavo::kKomprimiertTrenner);
  });
}

int CFeApi::ReadFromBuffer(long length, const char* buffer) {
  return ReadFromBuffer(length, buffer, kPufferTrenner);
}

int CFeApi::ReadFromBuffer(long length, const char* buffer, int separator) {
  if (!pFenster_) return 0;
  return MitFehler(*pFenster_, [&] {
    CIniFile document;
    bool passt = true;
    lintavo::JedeZeile(length, buffer, separator, [&](std::string_view line) {
      passt = document.GetLines().size() < lintavo::kMaxZeilen;
      if (passt) document.AddLine(line);
      return passt;
    });
    pFenster_->Delete();
    if (!passt || !pFenster_->ReadFromBuffer(document)) return 0;
    return pFenster_->Berechne(false) ? 1 : 0;
  });
}

int CFeApi::WriteToFile(const char* path) {
  if (!pFenster_) return 0;
  return Geschuetzt(0, [&] { return pFenster_->SaveToFile(PathOf(path)) ? 1 : 0; });
}

int CFeApi::WriteParameterFormular(const char* path, const char* typ) {
  if (!pFenster_) return 0;
  return Geschuetzt(0, [&] {
    pFenster_->SetTypName(typ ? CString(typ) : CString());
    return pFenster_->SaveParameterFormular(PathOf(path)) ? 1 : 0;
  });
}

void CFeApi::WriteToBuffer(long* length, char** buffer) const {
  if (!pFenster_ || !length || !buffer) return;
  Geschuetzt([&] {
    CIniFile document;
    pFenster_->SaveToBuffer(document);
    std::string text;
    for (const CString& line : document.GetLines()) {
      text += line.View();
      text += kPufferTrenner;
    }
    auto block = std::make_unique<char[]>(text.size());
    std::memcpy(block.get(), text.data(), text.size());
    *length = static_cast<long>(text.size());
    *buffer = block.release();
  });
}

void CFeApi::FreeBuffer(char** buffer) const {
  if (!buffer) return;
  delete[] * buffer;
  *buffer = nullptr;
}

int CFeApi::Berechne() {
  if (!pFenster_) return 0;
  return Geschuetzt(0, [&] { return pFenster_->Berechne(false) ? 1 : 0; });
}
