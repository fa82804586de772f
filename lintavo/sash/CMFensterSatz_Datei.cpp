// The section of a sash, or of the window's frame, in the macro file, and the
// component lists of the blank parameter form.
#include <algorithm>
#include <array>
#include <cmath>

#include "lintavo/geom/Toleranzen.h"
#include "lintavo/ini/CIniFile.h"
#include "lintavo/model/Masze_intern.h"
#include "lintavo/platform/Grenzen_intern.h"
#include "lintavo/platform/Numbers_intern.h"
#include "lintavo/resources/StringTable.h"
#include "lintavo/sash/Bauteilfelder_intern.h"
#include "lintavo/sash/CMFensterSatz.h"

using lintavo::Feldliste;
using lintavo::IstBrauchbar;
using lintavo::NumberedName;
using lintavo::ReadMasz;
using lintavo::StringId;
using lintavo::Text;
namespace feld = lintavo::feld;

namespace {

// First two attributes of what the macro file holds, by the kind of component.
constexpr long kKennungRahmen = 2;
constexpr long kKennungFluegel = 3;
constexpr long kKennungSprosse = 4;
constexpr long kKennungPfosten = 2;

// Lengths in a parameter form are tenths.
constexpr double kFormularMaszstab = 10.0;

// The template holds six numbers that count when it is read; the thickness
// comes from an entry of its own.
constexpr std::size_t kVorlageGelesen = 6;

// Asked for at once where the number of items tells the records apart: one
// more than the longest record has, so that a longer list is told from it.
constexpr long kLaengsteListe = static_cast<long>(feld::kPfosten.size()) + 1;

constexpr long kFuellungsZahlen = 12;
constexpr long kBeschlagsZahlen = 6;

// --- reading -------------------------------------------------------------------

bool ReadKnoten(CIniFile& document, const CString& section, StringId id, CMKnoten& knoten) {
  double werte[2];
  if (!document.GetDoubles(section, Text(id), 2, werte)) return false;
  knoten.Set(lintavo::TruncateToInt(werte[0]), lintavo::TruncateToInt(werte[1]));
  return true;
}

bool ReadFelder(CIniFile& document, const CString& section, const CString& key, Feldliste felder,
                CMBauteil& bauteil) {
  double werte[kLaengsteListe];
  if (!document.GetDoubles(section, key, static_cast<long>(felder.size()), werte)) return false;
  return lintavo::SetzeFelder(bauteil, felder, werte);
}

// Appends the components of one kind, up to the first number that is missing.
void ReadBauteile(CIniFile& document, const CString& section, StringId prefix, long highest,
                  long lTyp, Feldliste felder, std::vector<CMBauteil>& liste) {
  for (long i = 1; i <= highest; ++i) {
    CMBauteil bauteil;
    bauteil.lTyp = lTyp;
    if (!ReadFelder(document, section, NumberedName(prefix, i), felder, bauteil)) return;
    liste.push_back(bauteil);
  }
}

// The number of items tells what a single part is; with any other number the
// entry is passed over.
bool ErkenneEinzelTeil(long anzahl, long& lTyp, Feldliste& felder) {
  if (anzahl == static_cast<long>(feld::kPfosten.size())) {
    lTyp = eRahmenteil;
    felder = feld::kPfosten;
  } else if (anzahl == static_cast<long>(feld::kZusatzteilInnen.size())) {
    lTyp = eZusatzteilInnen;
    felder = feld::kZusatzteilInnen;
  } else if (anzahl == static_cast<long>(feld::kZusatzteilAussen.size())) {
    lTyp = eZusatzteilAussen;
    felder = feld::kZusatzteilAussen;
  } else {
    return false;
  }
  return true;
}

void ReadEinzelTeile(CIniFile& document, const CString& section, std::vector<CMBauteil>& liste) {
  for (long i = 1; i <= lintavo::kMaxTeile; ++i) {
    double werte[kLaengsteListe];
    long anzahl = 0;
    if (!document.GetDoubles(section, NumberedName(StringId::PraefixZ, i), kLaengsteListe, werte,
                             &anzahl)) {
      return;
    }
    CMBauteil bauteil;
    Feldliste felder;
    if (!ErkenneEinzelTeil(anzahl, bauteil.lTyp, felder)) continue;
    if (!lintavo::SetzeFelder(bauteil, felder, werte)) return;
    liste.push_back(bauteil);
  }
}

void ReadBeschlaege(CIniFile& document, const CString& section, std::vector<CMBeschlag>& liste) {
  for (long i = 1; i <= lintavo::kMaxTeile; ++i) {
    double werte[kBeschlagsZahlen];
    if (!document.GetDoubles(section, NumberedName(StringId::Beschlag, i), kBeschlagsZahlen,
                             werte)) {
      return;
    }
    if (!IstBrauchbar(werte[3]) || !IstBrauchbar(werte[5])) return;
    CMBeschlag beschlag;
    beschlag.eTyp = static_cast<eBeschlagTypen>(lintavo::TruncateToInt(werte[0]));
    beschlag.lBauteil = lintavo::TruncateToInt(werte[1]);
    beschlag.eMasz1 = static_cast<eVermaszung>(lintavo::TruncateToInt(werte[2]));
    beschlag.dAbstand1 = werte[3];
    beschlag.eMasz2 = static_cast<eVermaszung>(lintavo::TruncateToInt(werte[4]));
    beschlag.dAbstand2 = werte[5];
    liste.push_back(beschlag);
  }
}

// Reads the index that a short text stands for; unknown texts change nothing.
void ReadKurzText(CIniFile& document, const CString& section, StringId id,
                  long (*indexOf)(const CString&), int& index) {
  CString text;
  if (!document.GetString(section, Text(id), text)) return;
  const long found = indexOf(text);
  if (found >= 0) index = static_cast<int>(found);
}

// --- writing -------------------------------------------------------------------

double AlsZahl(int n) {
  return n;
}

// Writes the entries of one section.
class Schreiber {
 public:
  Schreiber(CIniFile& document, const CString& section) : document_(document), section_(section) {}

  void Zahl(StringId id, double wert) { document_.SetDouble(section_, Text(id), wert); }
  void Flag(StringId id, bool wert) { document_.SetBool(section_, Text(id), wert); }
  void Wort(StringId id, const CString& text) { document_.SetString(section_, Text(id), text); }
  void Zahlen(const CString& key, const std::vector<double>& werte) {
    document_.SetDoubles(section_, key, static_cast<long>(werte.size()), werte.data());
  }
  void Knoten(StringId id, const CMKnoten& knoten) {
    Zahlen(Text(id), {AlsZahl(knoten.J()), AlsZahl(knoten.K())});
  }

 private:
  CIniFile& document_;
  CString section_;
};

// The list of a component for the macro file. It always holds the same
// attributes, on purpose, whatever the component has: readers of the file know
// the kind of a component by them.
std::vector<double> FelderMitKennung(CMBauteil bauteil, Feldliste felder, long kennung) {
  bauteil.lAttribut[0] = bauteil.lAttribut[1] = kennung;
  bauteil.lAttribut[2] = bauteil.lAttribut[3] = 1;
  return lintavo::LeseFelder(bauteil, felder);
}

bool HatBreite(const CMBauteil& bauteil) {
  return bauteil.dBreite >= lintavo::kNullLaenge;
}

// A number is the part's place in the list. A part without an axis leaves a gap,
// on purpose, and reading ends there: what follows it belongs to a frame that is
// no more.
void SaveRahmenTeile(Schreiber& schreiber, const std::vector<CMBauteil>& liste, long kennung) {
  long nummer = 0;
  for (const CMBauteil& bauteil : liste) {
    ++nummer;
    if (bauteil.GetAchsLaenge() < lintavo::kNullLaenge) continue;
    schreiber.Zahlen(NumberedName(StringId::PraefixR, nummer),
                     FelderMitKennung(bauteil, feld::kRahmenteil, kennung));
  }
}

// Mullions and transoms first, then the extra parts, numbered through.
void SaveEinzelTeile(Schreiber& schreiber, const std::vector<CMBauteil>& liste, long kennung) {
  long nummer = 0;
  for (const CMBauteil& bauteil : liste) {
    if (!bauteil.IsRahmenteil() || !HatBreite(bauteil)) continue;
    schreiber.Zahlen(NumberedName(StringId::PraefixZ, ++nummer),
                     FelderMitKennung(bauteil, feld::kPfosten, kKennungPfosten));
  }
  for (const CMBauteil& bauteil : liste) {
    const bool innen = bauteil.IsZusatzteilInnen();
    if ((!innen && !bauteil.IsZusatzteilAussen()) || !HatBreite(bauteil)) continue;
    const Feldliste felder =
        innen ? Feldliste(feld::kZusatzteilInnen) : Feldliste(feld::kZusatzteilAussen);
    schreiber.Zahlen(NumberedName(StringId::PraefixZ, ++nummer),
                     FelderMitKennung(bauteil, felder, kennung));
  }
}

void SaveSprossen(Schreiber& schreiber, const std::vector<CMBauteil>& liste) {
  long nummer = 0;
  for (const CMBauteil& bauteil : liste) {
    if (!HatBreite(bauteil)) continue;
    schreiber.Zahlen(NumberedName(StringId::PraefixS, ++nummer),
                     FelderMitKennung(bauteil, feld::kSprosse, kKennungSprosse));
  }
}

void SaveBeschlaege(Schreiber& schreiber, const std::vector<CMBeschlag>& liste) {
  long nummer = 0;
  for (const CMBeschlag& beschlag : liste) {
    schreiber.Zahlen(NumberedName(StringId::Beschlag, ++nummer),
                     {AlsZahl(beschlag.eTyp), AlsZahl(beschlag.lBauteil), AlsZahl(beschlag.eMasz1),
                      beschlag.dAbstand1, AlsZahl(beschlag.eMasz2), beschlag.dAbstand2});
  }
}

// The list of a component for the parameter form.
std::vector<double> FormularFelder(CMBauteil bauteil, Feldliste felder) {
  bauteil.dBreite *= kFormularMaszstab;
  bauteil.dBreite2 *= kFormularMaszstab;
  return lintavo::LeseFelder(bauteil, felder);
}

}  // namespace

bool CMFensterSatz::ReadFuellungFromIniFile(const CString& section, CIniFile& document) {
  double werte[kFuellungsZahlen];
  if (!document.GetDoubles(section, Text(StringId::Fuellung), kFuellungsZahlen, werte)) {
    return true;
  }
  // The measures between the kind and the attributes.
  if (!std::all_of(werte + 1, werte + 8, [](double wert) { return IstBrauchbar(wert); })) {
    return true;
  }
  Fuellung.lArt = lintavo::TruncateToInt(werte[0]);
  // Slat widths are whole numbers once they come from a file, on purpose:
  // windows read from a file have always been counted out with these.
  Fuellung.D2 = static_cast<double>(lintavo::TruncateToLong(werte[1]));
  Fuellung.D1 = werte[2];
  Fuellung.D3 = werte[3];
  Fuellung.D6 = werte[4];
  Fuellung.D5 = werte[5];
  Fuellung.D4 = werte[6];
  Fuellung.D7 = werte[7];
  Fuellung.I1 = lintavo::TruncateToInt(werte[8]);
  Fuellung.I2 = lintavo::TruncateToInt(werte[9]);
  Fuellung.I3 = lintavo::TruncateToInt(werte[10]);
  Fuellung.I4 = lintavo::TruncateToInt(werte[11]);
  return true;
}

bool CMFensterSatz::SaveFuellungToIniFile(const CString& section, CIniFile& document) const {
  // The last four are the same for every filling, on purpose, as for all
  // components of the file.
  Schreiber(document, section)
      .Zahlen(Text(StringId::Fuellung),
              {AlsZahl(Fuellung.lArt), Fuellung.D2, Fuellung.D1, Fuellung.D3, Fuellung.D6,
               Fuellung.D5, Fuellung.D4, Fuellung.D7, 5.0, 5.0, 1.0, 1.0});
  return true;
}

bool CMFensterSatz::ReadGangartFromIniFile(const CString& section, CIniFile& document) {
  document.GetBool(section, Text(StringId::MitRahmen), bMitRahmen);
  ReadKurzText(document, section, StringId::OeffSeite, GetOeffSeitenIndex, lOeffSeite);
  ReadKurzText(document, section, StringId::Gangart, GetGangArtIndex, lGangart);
  ReadKurzText(document, section, StringId::Anschlag, GetAnschlagIndex, lAnschlag);
  return true;
}

bool CMFensterSatz::SaveGangartToIniFile(CString& section, CIniFile& document) const {
  Schreiber schreiber(document, section);
  schreiber.Flag(StringId::MitRahmen, bMitRahmen);
  schreiber.Wort(StringId::OeffSeite, GetOeffSeitenKurzText(lOeffSeite));
  schreiber.Wort(StringId::Gangart, GetGangArtKurzText(lGangart));
  schreiber.Wort(StringId::Anschlag, GetAnschlagKurzText(lAnschlag));
  return true;
}

bool CMFensterSatz::ReadFromIniFile(const CString& section, CIniFile& document) {
  document.GetString(section, Text(StringId::Name), strName);
  ReadFuellungFromIniFile(section, document);

  double dicke = 0.0;
  if (!ReadMasz(document, section, Text(StringId::Rahmendicke), dicke)) return false;
  ReadMasz(document, section, Text(StringId::ZVersatz), dZVersatz);
  // The thickness reaches the template only together with the defaults, on
  // purpose: without them the template stays whole as it was.
  if (ReadFelder(document, section, Text(StringId::RahmenDefaults),
                 Feldliste(feld::kRahmenteil).first(kVorlageGelesen), RahmenVorlage)) {
    RahmenVorlage.dDicke = dicke;
  }
  ReadFelder(document, section, Text(StringId::SprossenDefaults), feld::kSprossenVorlage,
             SprossenVorlage);

  if (!ReadKnoten(document, section, StringId::Knoten1, Knoten1)) return false;
  if (!ReadKnoten(document, section, StringId::Knoten2, Knoten2)) return false;
  if (!ReadKnoten(document, section, StringId::KnotenAL, KnotenAL)) KnotenAL = Knoten1;
  if (!ReadKnoten(document, section, StringId::KnotenAR, KnotenAR)) KnotenAR = Knoten2;

  ReadGangartFromIniFile(section, document);
  document.GetBool(section, Text(StringId::ZuerstAufgehend), bZuerstAufgehend);
  ReadBauteile(document, section, StringId::PraefixR, lintavo::kMaxRahmenteile, eRahmenteil,
               feld::kRahmenteil, RahmenTeile);
  ReadEinzelTeile(document, section, EinzelTeile);
  ReadBauteile(document, section, StringId::PraefixS, lintavo::kMaxTeile, eSprosse, feld::kSprosse,
               Sprossen);
  ReadBeschlaege(document, section, Beschlaege);
  return true;
}

bool CMFensterSatz::SaveToIniFile(const CString& section, CIniFile& document) const {
  Schreiber schreiber(document, section);
  CString ziel = section;
  const long kennung =
      section.CompareNoCase(Text(StringId::Rahmen)) == 0 ? kKennungRahmen : kKennungFluegel;

  // A name of one character is not kept, on purpose: it is a host's place
  // holder for none.
  if (strName.GetLength() > 1) schreiber.Wort(StringId::Name, strName);
  SaveFuellungToIniFile(section, document);
  schreiber.Zahl(StringId::Rahmendicke, RahmenVorlage.dDicke);
  schreiber.Zahl(StringId::ZVersatz, dZVersatz);
  SaveGangartToIniFile(ziel, document);
  schreiber.Flag(StringId::ZuerstAufgehend, bZuerstAufgehend);
  schreiber.Zahlen(Text(StringId::RahmenDefaults),
                   FelderMitKennung(RahmenVorlage, feld::kRahmenteil, kennung));
  schreiber.Zahlen(Text(StringId::SprossenDefaults),
                   FelderMitKennung(SprossenVorlage, feld::kSprossenVorlage, kKennungSprosse));
  schreiber.Knoten(StringId::Knoten1, Knoten1);
  schreiber.Knoten(StringId::Knoten2, Knoten2);
  // Only the columns count, on purpose: arches are shared sideways, so a
  // reference node that differs in its row alone says nothing.
  if (KnotenAL.J() != Knoten1.J()) schreiber.Knoten(StringId::KnotenAL, KnotenAL);
  if (KnotenAR.J() != Knoten2.J()) schreiber.Knoten(StringId::KnotenAR, KnotenAR);

  SaveRahmenTeile(schreiber, RahmenTeile, kennung);
  SaveEinzelTeile(schreiber, EinzelTeile, kennung);
  SaveSprossen(schreiber, Sprossen);
  SaveBeschlaege(schreiber, Beschlaege);
  return true;
}

void CMFensterSatz::SaveBauteileToParameterFormular(long lArt, const CString& section,
                                                    CIniFile& document) const {
  const bool rahmen = lArt == 0;
  Schreiber schreiber(document, section);
  schreiber.Zahl(StringId::Rahmendicke, RahmenVorlage.dDicke * kFormularMaszstab);

  const StringId prefix = rahmen ? StringId::PraefixR : StringId::PraefixF;
  const Feldliste felder =
      rahmen ? Feldliste(feld::kFormularRahmenteil) : Feldliste(feld::kFormularFluegelteil);
  long nummer = 0;
  for (const CMBauteil& bauteil : RahmenTeile) {
    ++nummer;
    if (bauteil.GetAchsLaenge() < lintavo::kNullLaenge) continue;
    schreiber.Zahlen(NumberedName(prefix, nummer), FormularFelder(bauteil, felder));
  }
}

void CMFensterSatz::ReadBogenFromIniFile(const CString& section, CIniFile& document) {
  ReadMasz(document, section, Text(StringId::Stich), dStich);
  ReadMasz(document, section, Text(StringId::StichUnten), dStichUnten);
  document.GetBool(section, Text(StringId::Korbbogen), bKorbbogen);
}

void CMFensterSatz::SaveBogenToIniFile(const CString& section, CIniFile& document) const {
  Schreiber schreiber(document, section);
  schreiber.Zahl(StringId::Stich, dStich);
  schreiber.Zahl(StringId::StichUnten, dStichUnten);
  schreiber.Flag(StringId::Korbbogen, bKorbbogen);
}
