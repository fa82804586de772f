// Files of a position, and the checks that its values did not change the form
// of its window.
#include "lintavo/settings/CMFensterPosition.h"

#include <algorithm>
#include <string>

#include "lintavo/geom/CMStrecke.h"
#include "lintavo/geom/Toleranzen.h"
#include "lintavo/ini/CIniFile.h"
#include "lintavo/model/Fehler_intern.h"
#include "lintavo/resources/StringTable.h"
#include "lintavo/settings/Dateiname_intern.h"

using lintavo::StringId;
using lintavo::Text;

namespace {

CMException Meldung(StringId id, const CString& arg = CString()) {
  return CMException(static_cast<int>(id), arg);
}

// "Too many" is what the template has more of, on purpose: hosts tell by these
// numbers which way the values went wrong.
void PruefeAnzahl(const CMFensterSatz& vorher, const CMFensterSatz& nachher, StringId zuViele,
                  StringId zuWenig) {
  const long anzahlVorher = vorher.lGetAnzahlRahmenBauteile();
  const long anzahlNachher = nachher.lGetAnzahlRahmenBauteile();
  if (anzahlVorher > anzahlNachher) throw Meldung(zuViele, nachher.strName);
  if (anzahlVorher < anzahlNachher) throw Meldung(zuWenig, nachher.strName);
}

void PruefeUmriss(const CMFensterSatz& fluegel, const GEOM2_Polygon& rahmen) {
  const GEOM2_Polygon& umriss = fluegel.RahmenPolygon;
  for (int i = 0; i < umriss.GetAnzahl(); ++i) {
    const GEOM2_Eckpunkt& ecke = umriss.GetEckpunkt(i);
    if (!rahmen.IsInside({ecke.x, ecke.y}, true, lintavo::kFluegelImRahmen)) {
      throw Meldung(StringId::MeldungFormaenderungFluegel, fluegel.strName);
    }
  }
}

bool KreuztUmriss(const CMStrecke& achse, const GEOM2_Polygon& umriss) {
  for (int i = 0; i < umriss.GetAnzahl(); ++i) {
    XY a;
    XY b;
    umriss.GetKante(i, a, b);
    if (achse.IsCross(CMStrecke(a, b))) return true;
  }
  return false;
}

// A part that was given no place has an axis without length, which is nowhere.
void PruefeEinzelteil(const CMBauteil& teil, const CMFenster& fenster) {
  CMStrecke achse;
  if (teil.IsSprosse() || !teil.GetAchspunkte(achse)) return;
  if (achse.GetLaenge() < lintavo::kNullLaenge) return;
  for (long i = 0; i < fenster.GetAnzahlFluegel(); ++i) {
    const CMFensterSatz& fluegel = *fenster.GetFluegelPtr(i);
    if (KreuztUmriss(achse, fluegel.RahmenPolygon)) {
      throw Meldung(StringId::MeldungFormaenderungFluegel, fluegel.strName);
    }
  }
}

[[noreturn]] void ThrowFehler(const CMFenster& fenster) {
  CMException fehler;
  fehler.iNummer = static_cast<int>(fenster.GetFehler(fehler.strText));
  throw fehler;
}

}  // namespace

CMFensterPosition::CMFensterPosition()
    : fehlerText_(Text(StringId::MeldungKeinePosition)),
      fehlerNummer_(static_cast<int>(StringId::MeldungKeinePosition)) {}

// Runs the steps of a read on an empty position and keeps what they throw.
template <class Schritte>
bool CMFensterPosition::Lies(Schritte schritte) {
  CMException fehler = lintavo::FehlerVon([&] {
    texte_.fill(CString());
    fenster_ = CMFenster();
    schritte();
  });
  fehlerText_ = std::move(fehler.strText);
  fehlerNummer_ = fehler.iNummer;
  return fehlerNummer_ == 0;
}

bool CMFensterPosition::ReadFromFile(const CString& parameterFile, const CString& baseDirectory) {
  return Lies([&] {
    CIniFile parameter;
    if (!parameter.Read(parameterFile)) throw Meldung(StringId::MeldungDateiFehlt, parameterFile);
    CString typ;
    if (!parameter.GetString(Text(StringId::Allgemeines), Text(StringId::Typ), typ)) {
      throw Meldung(StringId::MeldungKeinFenstertyp);
    }
    const CString folder = lintavo::JoinPath(baseDirectory, Text(StringId::Fenster));
    const CString path = lintavo::IniPfad(folder, typ);
    if (!lintavo::IsDateiname(typ)) throw Meldung(StringId::MeldungDateiFehlt, path);
    CMFenster vorlage;
    ReadVorlage(path, vorlage);
    fenster_.SetTypName(typ);
    ReadParameter(parameter);
    ReadSprossenBilder(lintavo::JoinPath(baseDirectory, Text(StringId::Sprossen)), parameter);
    PruefeForm(vorlage);
  });
}

bool CMFensterPosition::ReadFromFile(const CString& path) {
  return Lies([&] {
    if (!fenster_.ReadFromFile(path)) ThrowFehler(fenster_);
    CIniFile document;
    document.Read(path);
    document.GetString(Text(StringId::Allgemeines), Text(StringId::Text), texte_.front());
    Berechne();
  });
}

bool CMFensterPosition::SaveToFile(const CString& path) {
  CIniFile document;
  fenster_.SaveToBuffer(document);
  CString section = Text(StringId::Allgemeines);
  document.SetString(section, Text(StringId::Text), texte_.front());
  document.CutLines();
  if (!path.IsEmpty() && document.Write(path)) return true;
  CMException fehler = Meldung(StringId::MeldungDateiNichtGespeichert, path);
  fehlerText_ = std::move(fehler.strText);
  fehlerNummer_ = fehler.iNummer;
  return false;
}

bool CMFensterPosition::SaveToFile(const CString& path, const CString& text) {
  texte_.front() = text;
  return SaveToFile(path);
}

long CMFensterPosition::GetError(CString& text) const {
  text = fehlerText_;
  return fehlerNummer_;
}

CString CMFensterPosition::GetText(long i) const {
  return i >= 1 && i <= kAnzahlTexte ? texte_[static_cast<std::size_t>(i - 1)] : CString();
}

bool CMFensterPosition::SetText(long i, const CString& text) {
  if (i < 1 || i > kAnzahlTexte) return false;
  texte_[static_cast<std::size_t>(i - 1)] = text;
  return true;
}

// Both windows are calculated, so that what their form has in number can be
// compared.
void CMFensterPosition::ReadVorlage(const CString& path, CMFenster& vorlage) {
  const bool brauchbar = vorlage.ReadFromFile(path) && vorlage.Berechne(false);
  fenster_ = vorlage;
  if (!brauchbar) ThrowFehler(fenster_);
}

void CMFensterPosition::Berechne() {
  // Mullions and extra parts are laid anew: the values may have changed what
  // they end at.
  fenster_.Invalidiere();
  if (!fenster_.Berechne(false)) ThrowFehler(fenster_);
}

void CMFensterPosition::PruefeForm(const CMFenster& vorlage) const {
  const CMFensterSatz& rahmen = *fenster_.GetRahmenPtr();
  PruefeAnzahl(*vorlage.GetRahmenPtr(), rahmen, StringId::MeldungZuVieleBauteile,
               StringId::MeldungZuWenigBauteile);
  for (long i = 0; i < fenster_.GetAnzahlFluegel(); ++i) {
    PruefeAnzahl(*vorlage.GetFluegelPtr(i), *fenster_.GetFluegelPtr(i),
                 StringId::MeldungZuVieleBauteileFluegel, StringId::MeldungZuWenigBauteileFluegel);
  }
  for (long i = 0; i < fenster_.GetAnzahlFluegel(); ++i) {
    PruefeUmriss(*fenster_.GetFluegelPtr(i), rahmen.RahmenPolygon);
  }
  for (const CMBauteil& teil : rahmen.EinzelTeile) PruefeEinzelteil(teil, fenster_);
}
