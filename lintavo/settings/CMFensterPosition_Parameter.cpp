// What a parameter file changes in the window of its type.
#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>
#include <utility>
#include <vector>

#include "lintavo/geom/Toleranzen.h"
#include "lintavo/ini/CIniFile.h"
#include "lintavo/model/Masze_intern.h"
#include "lintavo/platform/Grenzen_intern.h"
#include "lintavo/platform/Numbers_intern.h"
#include "lintavo/platform/Whitespace_intern.h"
#include "lintavo/resources/StringTable.h"
#include "lintavo/sash/Bauteilfelder_intern.h"
#include "lintavo/settings/CMFensterPosition.h"
#include "lintavo/settings/Dateiname_intern.h"

using lintavo::Feldliste;
using lintavo::NumberedName;
using lintavo::StringId;
using lintavo::Text;
namespace feld = lintavo::feld;

namespace {

constexpr double kZehntel = 0.1;

constexpr const char* kKeinSprossenbild = "00";

constexpr std::array kBildAttribute = {feld::kA3, feld::kA1, feld::kA4, feld::kA2};

// --- components ----------------------------------------------------------------

// Puts a list of a parameter file into a component; false when it is missing.
bool ReadBauteil(CIniFile& document, const CString& section, const CString& key, Feldliste felder,
                 CMBauteil& bauteil) {
  std::vector<double> werte(felder.size());
  if (!document.GetDoubles(section, key, static_cast<long>(werte.size()), werte.data())) {
    return false;
  }
  CMBauteil gelesen = bauteil;
  // Not every list has a second width; there is none then.
  gelesen.dBreite2 = 0.0;
  if (!lintavo::SetzeFelder(gelesen, felder, werte.data())) return false;
  bauteil = std::move(gelesen);
  bauteil.dBreite *= kZehntel;
  bauteil.dBreite2 *= kZehntel;
  return true;
}

void ReadRahmenTeile(CIniFile& document, const CString& section, StringId prefix, Feldliste felder,
                     std::vector<CMBauteil>& liste) {
  long nummer = 0;
  for (CMBauteil& bauteil : liste) {
    ReadBauteil(document, section, NumberedName(prefix, ++nummer), felder, bauteil);
  }
}

// Parts as thick as the template follow it; a part with a thickness of its own
// keeps it.
void ReadRahmendicke(CIniFile& document, const CString& section, CMFensterSatz& satz) {
  double dicke = 0.0;
  if (!lintavo::ReadMasz(document, section, Text(StringId::Rahmendicke), dicke)) return;
  const double bisher = satz.RahmenVorlage.dDicke;
  satz.RahmenVorlage.dDicke = dicke * kZehntel;
  for (CMBauteil& bauteil : satz.RahmenTeile) {
    if (std::fabs(bauteil.dDicke - bisher) < lintavo::kNullLaenge) {
      bauteil.dDicke = satz.RahmenVorlage.dDicke;
    }
  }
}

// Every list is one more outer extra part, beside those that the template has.
void ReadAussenTeile(CIniFile& document, const CString& section, CMFensterSatz& rahmen) {
  for (long i = 1; i <= lintavo::kMaxParameter; ++i) {
    CMBauteil bauteil = rahmen.RahmenVorlage;
    bauteil.lTyp = eZusatzteilAussen;
    const CString key = NumberedName(StringId::PraefixZ, i);
    if (!ReadBauteil(document, section, key, feld::kFormularZusatzteil, bauteil)) return;
    // Sides count from 1 here. Side 0 is none.
    bauteil.lSeite = std::max(bauteil.lSeite, 0L) - 1;
    rahmen.EinzelTeile.push_back(bauteil);
  }
}

// --- patterns ------------------------------------------------------------------

// An entry that lays a pattern into a sash.
struct Bildangabe {
  CString strName;
  double dBreite = 0.0;  // of the bars; 0: as the pattern says
  double dAttribute[kBildAttribute.size()] = {};
};

std::vector<std::string_view> Listenteile(std::string_view text) {
  std::vector<std::string_view> teile;
  for (std::size_t komma = text.find(','); komma != std::string_view::npos;
       komma = text.find(',')) {
    teile.push_back(text.substr(0, komma));
    text.remove_prefix(komma + 1);
  }
  teile.push_back(text);
  return teile;
}

// The name, on request the width of the bars, and the attributes. False for a
// list of any other length.
bool LiesBildangabe(const CString& text, Bildangabe& angabe) {
  const std::vector<std::string_view> teile = Listenteile(text.View());
  angabe.strName = lintavo::TrimmedRight(lintavo::TrimmedLeft(teile.front()));
  if (angabe.strName == kKeinSprossenbild) return true;
  const std::size_t ohneBreite = 1 + kBildAttribute.size();
  if (teile.size() != ohneBreite && teile.size() != ohneBreite + 1) return false;
  auto teil = teile.begin() + 1;
  if (teile.size() > ohneBreite) angabe.dBreite = lintavo::ParseNumber(*teil++) * kZehntel;
  // A width that is none leaves the pattern's own.
  if (!lintavo::IstBrauchbar(angabe.dBreite)) angabe.dBreite = 0.0;
  for (double& attribut : angabe.dAttribute) attribut = lintavo::ParseNumber(*teil++);
  return true;
}

// Lays one pattern. False when there is no such pattern, or it has more lines
// than are left; takes its lines from those.
bool LegeBild(const CString& folder, long nummer, const Bildangabe& angabe,
              std::size_t& freieZeilen, CMFensterSatz& fluegel) {
  CIniFile bild;
  if (!lintavo::IsDateiname(angabe.strName)) return false;
  if (!bild.Read(lintavo::IniPfad(folder, angabe.strName))) return false;
  // One more than it has, so that an empty pattern is not for nothing.
  const std::size_t zeilen = bild.GetLines().size() + 1;
  if (zeilen > freieZeilen) return false;
  freieZeilen -= zeilen;

  const std::size_t vorher = fluegel.Sprossen.size();
  if (!fluegel.ErzeugeSprossenBild(nummer, bild, angabe.dBreite)) return false;
  for (std::size_t i = vorher; i < fluegel.Sprossen.size(); ++i) {
    lintavo::SetzeFelder(fluegel.Sprossen[i], kBildAttribute, angabe.dAttribute);
  }
  return true;
}

}  // namespace

void CMFensterPosition::ReadParameter(CIniFile& document) {
  for (long i = 1; i <= kAnzahlTexte; ++i) {
    document.GetString(Text(StringId::Allgemeines), NumberedName(StringId::Text, i),
                       texte_[static_cast<std::size_t>(i - 1)]);
  }
  for (long i = 0; i < fenster_.GetAnzahlZusatzMasze(); ++i) {
    CMZusatzMasz& masz = *fenster_.GetZusatzMaszPtr(i);
    double wert = 0.0;
    if (!lintavo::ReadMasz(document, Text(StringId::Masze), masz.strName, wert)) continue;
    // Files hold lengths without the sign, which tells the direction.
    const bool negativ = masz.dLaenge < -lintavo::kNullLaenge;
    masz.dLaenge = (negativ ? -wert : wert) * kZehntel;
  }
  // The parts that the sections describe are those of the new size.
  Berechne();
  ReadFensterSatz(0, Text(StringId::Rahmen), document, *fenster_.GetRahmenPtr());
  for (long i = 0; i < fenster_.GetAnzahlFluegel(); ++i) {
    ReadFensterSatz(1, NumberedName(StringId::Fluegel, i + 1), document,
                    *fenster_.GetFluegelPtr(i));
  }
  Berechne();
}

void CMFensterPosition::ReadFensterSatz(long lArt, const CString& section, CIniFile& document,
                                        CMFensterSatz& satz) const {
  ReadRahmendicke(document, section, satz);
  if (lArt == 0) {
    ReadRahmenTeile(document, section, StringId::PraefixR, feld::kFormularRahmenteil,
                    satz.RahmenTeile);
    ReadAussenTeile(document, section, satz);
  } else {
    ReadRahmenTeile(document, section, StringId::PraefixF, feld::kFormularFluegelteil,
                    satz.RahmenTeile);
  }
  satz.ReadGangartFromIniFile(section, document);
  document.GetBool(section, Text(StringId::ZuerstAufgehend), satz.bZuerstAufgehend);
  satz.ReadFuellungFromIniFile(section, document);
}

void CMFensterPosition::ReadSprossenBilder(const CString& folder, CIniFile& document) {
  std::size_t freieZeilen = lintavo::kMaxBildzeilen;
  for (long i = 0; i < fenster_.GetAnzahlFluegel(); ++i) {
    CMFensterSatz& fluegel = *fenster_.GetFluegelPtr(i);
    const CString section = NumberedName(StringId::Fluegel, i + 1);
    // Lines before the first header answer for texts of a section that is not
    // there; a pattern, like every list, is not to be found among them.
    if (document.FindSection(section) < 0) continue;
    for (long j = 1; j <= lintavo::kMaxParameter; ++j) {
      CString text;
      if (!document.GetString(section, NumberedName(StringId::Sprossenbild, j), text)) break;
      Bildangabe angabe;
      const bool zulaessig = LiesBildangabe(text, angabe);
      if (zulaessig && angabe.strName == kKeinSprossenbild) continue;
      if (!zulaessig || !LegeBild(folder, j, angabe, freieZeilen, fluegel)) {
        throw CMException(static_cast<int>(StringId::MeldungSprossenbild), fluegel.strName);
      }
    }
  }
}
