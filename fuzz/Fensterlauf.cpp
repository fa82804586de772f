#include "Fensterlauf.h"

#include <algorithm>

#include "lintavo/api/CFeApi.h"
#include "lintavo/ini/CIniFile.h"
#include "lintavo/model/CMFenster.h"

#include "Abfragen.h"
#include "Vergleich.h"

namespace lintavo::fuzz {

namespace {

// Windows larger than this are no drawing: what is written with six decimals
// then says less than what the calculation knew.
constexpr double kGroesstesFenster = 1e6;

// --- laws ------------------------------------------------------------------------

bool IstZeichnung(const CFeApi& f) {
  return f.GetFensterBreite() <= kGroesstesFenster && f.GetFensterHoehe() <= kGroesstesFenster;
}

std::string PruefeKopie(const CFeApi& f, const std::string& bytes) {
  CFeApi copy(f);
  if (Geschrieben(copy) != bytes) return "a copied window gives other bytes";
  CFeApi assigned;
  CFeApi again;
  assigned = copy;
  assigned = again = assigned;
  if (Geschrieben(assigned) != bytes) return "an assigned window gives other bytes";
  if (copy.Berechne() != 1) return "a copied window cannot be calculated";
  return GleicherText(Geschrieben(copy), bytes) ? "" : "a copied window calculates otherwise";
}

std::string PruefeNeuberechnung(CFeApi& f, const Antworten& vorher, const std::string& bytes) {
  if (f.Berechne() != 1) return "a calculated window cannot be calculated again";
  if (!GleicherText(Geschrieben(f), bytes)) return "calculating again gives other bytes";
  // Where mullions lie across each other an end may rest on several of them, and
  // which one its cut follows depends on what the others have become.
  if (PfostenUeberlappen(f)) return "";
  const Antworten nachher = FrageAlles(f, false);
  if (!GleicheZahlen(nachher.Angaben, vorher.Angaben)) return "calculating again changes lengths";
  return GleicheZahlen(nachher.Gebilde, vorher.Gebilde) ? ""
                                                        : "calculating again gives other outlines";
}

// A window reads back what it wrote; from the second time on nothing changes.
// The first time may: fractions of slats, parts behind a gap and reference nodes
// of one column are not kept.
std::string PruefeHinUndZurueck(const std::string& bytes) {
  CFeApi first;
  if (first.ReadFromBuffer(static_cast<long>(bytes.size()), bytes.data()) != 1) return "";
  const std::string once = Geschrieben(first);
  CFeApi second;
  if (second.ReadFromBuffer(static_cast<long>(once.size()), once.data()) != 1) {
    return "a window that was read and written cannot be read";
  }
  return GleicherText(Geschrieben(second), once) ? "" : "written, read and written again differ";
}

std::string PruefeGesetze(CFeApi& f) {
  if (f.GetErrorID() != 0) return "a calculated window has an error number";
  const Antworten antworten = FrageAlles(f);
  if (!SindEndlich(antworten.Gebilde)) return "an outline of a calculated window is not finite";
  if (!SindEndlich(antworten.Zeichnungen)) return "a drawing of a calculated window is not finite";
  if (!IstZeichnung(f)) return "";
  const std::string bytes = Geschrieben(f);
  std::string broken = PruefeNeuberechnung(f, antworten, bytes);
  if (broken.empty()) broken = PruefeKopie(f, bytes);
  if (broken.empty()) broken = PruefeHinUndZurueck(bytes);
  return broken;
}

// --- changes ---------------------------------------------------------------------

std::string PruefeNach(CFeApi& f, int gesetzt) {
  if (gesetzt == 0) return "";
  if (f.Berechne() != 1) {
    FrageAlles(f);
    Geschrieben(f);
    return f.GetErrorID() != 0 ? "" : "a failed calculation has no error number";
  }
  return PruefeGesetze(f);
}

int MacheSchlank(CFeApi& f) {
  int gesetzt = f.SetRahmenBreite(3.0);
  for (long i = 0; i < f.GetAnzahlFluegel(); ++i) {
    gesetzt |= f.SetFluegelRahmenBreite(i, 2.5) | f.SetFluegelUeberschlag(i, 0.5) |
               f.SetSprossenBreite(i, 0, 1.5) | f.SetFluegelZVersatz(i, 1.0);
  }
  return gesetzt;
}

constexpr int kAenderungen = 3;

std::string PruefeAenderung(const CFeApi& f, int aenderung) {
  CFeApi copy(f);
  switch (aenderung) {
    case 0:
      return PruefeNach(copy, copy.SetBreiteHoehe(CFeApiWandOeffnungsParameter(), 240.0, 180.0));
    case 1:
      return PruefeNach(copy, copy.SetBreiteHoehe(Laibung(), 95.0, 133.3));
    default:
      return PruefeNach(copy, MacheSchlank(copy));
  }
}

std::string PruefeAenderungen(const CFeApi& f, int aenderung) {
  if (aenderung >= 0 && aenderung < kAenderungen) return PruefeAenderung(f, aenderung);
  std::string broken;
  for (int n = 0; n < kAenderungen && broken.empty(); ++n) broken = PruefeAenderung(f, n);
  return broken;
}

}  // namespace

std::string PruefeFenster(CFeApi& fenster, int aenderung) {
  FrageFalscheIndizes(fenster);
  CFeApi kopie(fenster);
  SetzeUnsinn(kopie);
  if (fenster.Berechne() != 1) {
    FrageAlles(fenster);
    Geschrieben(fenster);
    return fenster.GetErrorID() != 0 ? "" : "a failed calculation has no error number";
  }
  const std::string broken = PruefeGesetze(fenster);
  return broken.empty() ? PruefeAenderungen(fenster, aenderung) : broken;
}

std::string PruefeMakroText(std::string_view text, int aenderung) {
  std::string buffer(text);
  std::replace(buffer.begin(), buffer.end(), '\n', '#');
  CFeApi fenster;
  fenster.ReadFromBuffer(static_cast<long>(buffer.size()), buffer.data());
  return PruefeFenster(fenster, aenderung);
}

std::string PruefeModell(std::string_view text, const std::string& path) {
  CIniFile document;
  while (!text.empty()) document.AddLine(CString(BisTrenner(text, '\n')));
  CMFenster fenster;
  fenster.ReadFromBuffer(document);
  fenster.Berechne(true);
  CSize size;
  fenster.GetSize(size);
  fenster.Invalidiere(true);
  fenster.Berechne(true);
  if (!fenster.SaveToFile(true, path.c_str())) return "a window cannot be saved";
  CMFenster saved;
  if (!saved.ReadFromFile(path.c_str())) return "a saved window cannot be read";
  saved.Berechne(false);
  return "";
}

}  // namespace lintavo::fuzz
