#include "lintavo/sash/CMFensterSatzRechteck.h"

#include <cmath>

#include "lintavo/geom/Toleranzen.h"
#include "lintavo/geom/Vektor_intern.h"
#include "lintavo/ini/CIniFile.h"
#include "lintavo/model/CMAchsen.h"
#include "lintavo/platform/Numbers_intern.h"
#include "lintavo/resources/StringTable.h"
#include "lintavo/sash/Grundform_intern.h"

namespace {

constexpr int kAnzahlEcken = 4;
// A flag is a number in the file; above this it is set.
constexpr double kFlagGesetzt = 0.1;
// What a file may round off a coefficient: half of its last decimal.
constexpr double kDateistelle = 0.5e-6 + lintavo::kRechenrauschen;
// Corners closer than this are one.
constexpr double kEckenBereinigung = lintavo::kKurzeKante;

void ReadFormBeiwerte(CIniFile& document, const CString& section, const CString& prefix,
                      FormBeiwert (&beiwerte)[kAnzahlEcken]) {
  for (int i = 0; i < kAnzahlEcken; ++i) {
    // Whether the key exists is not asked, on purpose: a missing one gives 0
    // and a movable coefficient, not what the record held.
    double werte[2] = {0.0, 0.0};
    document.GetDoubles(section, lintavo::NumberedName(prefix, i + 1), 2, werte);
    beiwerte[i] = {0.0, false};
    if (lintavo::IstBrauchbar(werte[0])) beiwerte[i] = {werte[0], werte[1] > kFlagGesetzt};
  }
}

void SaveFormBeiwerte(CIniFile& document, CString section, const CString& prefix,
                      const FormBeiwert (&beiwerte)[kAnzahlEcken]) {
  for (int i = 0; i < kAnzahlEcken; ++i) {
    double werte[2] = {beiwerte[i].dWert, beiwerte[i].bFest ? 1.0 : 0.0};
    CString key = lintavo::NumberedName(prefix, i + 1);
    document.SetDoubles(section, key, 2, werte);
  }
}

// A corner of the box, and the signs that lead from it into the sash.
struct Ecke {
  XY ort;
  double sx;
  double sy;
  bool senkrechtZuerst;  // of a chamfer, the vertex on the vertical edge comes first
};

void AddEcke(const Ecke& ecke, double x, double y, GEOM2_Polygon& outline) {
  const double xInnen = ecke.ort.x + ecke.sx * x;
  const double yInnen = ecke.ort.y + ecke.sy * y;
  if (std::fabs(x) <= lintavo::kNullLaenge || std::fabs(y) <= lintavo::kNullLaenge) {
    outline.AddPunkt(xInnen, yInnen);
    return;
  }
  if (ecke.senkrechtZuerst) outline.AddPunkt(ecke.ort.x, yInnen);
  outline.AddPunkt(xInnen, ecke.ort.y);
  if (!ecke.senkrechtZuerst) outline.AddPunkt(ecke.ort.x, yInnen);
}

// What a file has rounded off, growing makes larger: a value that had few decimals before
// it shrank has them again, so that there and back is the same.
void Strecke(FormBeiwert (&beiwerte)[kAnzahlEcken], double faktor) {
  for (FormBeiwert& beiwert : beiwerte) {
    if (beiwert.bFest) continue;
    beiwert.dWert *= faktor;
    if (faktor > 1.0) {
      beiwert.dWert = lintavo::ShortNumberWithin(beiwert.dWert, kDateistelle * faktor);
    }
  }
}

}  // namespace

bool CMFensterSatzRechteck::ReadFromIniFile(const CString& section, CIniFile& document) {
  if (!CMFensterSatz::ReadFromIniFile(section, document)) return false;
  ReadFormBeiwerte(document, section, lintavo::Text(lintavo::StringId::PraefixX), FormBeiwertX);
  ReadFormBeiwerte(document, section, lintavo::Text(lintavo::StringId::PraefixY), FormBeiwertY);
  return true;
}

bool CMFensterSatzRechteck::SaveToIniFile(const CString& section, CIniFile& document) const {
  CMFensterSatz::SaveToIniFile(section, document);
  SaveFormBeiwerte(document, section, lintavo::Text(lintavo::StringId::PraefixX), FormBeiwertX);
  SaveFormBeiwerte(document, section, lintavo::Text(lintavo::StringId::PraefixY), FormBeiwertY);
  return true;
}

void CMFensterSatzRechteck::FormBeiwerteAnpassen(bool horizontal, const CMAchsen& axes, long, long,
                                                 double delta) {
  const double von = horizontal ? Knoten1.J() : Knoten1.K();
  const double bis = horizontal ? Knoten2.J() : Knoten2.K();
  const double intervalle = std::fabs(bis - von);
  if (intervalle < 1.0) return;
  XY p1;
  XY p2;
  axes.GetPunkt(Knoten1, p1);
  axes.GetPunkt(Knoten2, p2);
  const double laenge = std::fabs(horizontal ? p2.x - p1.x : p2.y - p1.y);
  const double vorher = laenge - intervalle * delta;
  if (!(std::fabs(vorher) >= lintavo::kNullLaenge)) return;
  Strecke(horizontal ? FormBeiwertX : FormBeiwertY, laenge / vorher);
}

bool CMFensterSatzRechteck::BerechneGrundform(const XY& p1, const XY& p2, const XY&, const XY&,
                                              GEOM2_Polygon& outline) {
  outline.Clear();
  outline.Reservieren(2 * kAnzahlEcken);
  const lintavo::PlazierungsBox box = lintavo::PlazierungsBoxVon(p1, p2);
  AddEcke({{box.xmin, box.ymin}, 1.0, 1.0, true}, FormBeiwertX[2].dWert, FormBeiwertY[2].dWert,
          outline);
  AddEcke({{box.xmax, box.ymin}, -1.0, 1.0, false}, FormBeiwertX[3].dWert, FormBeiwertY[3].dWert,
          outline);
  AddEcke({{box.xmax, box.ymax}, -1.0, -1.0, true}, FormBeiwertX[1].dWert, FormBeiwertY[1].dWert,
          outline);
  AddEcke({{box.xmin, box.ymax}, 1.0, -1.0, false}, FormBeiwertX[0].dWert, FormBeiwertY[0].dWert,
          outline);
  lintavo::PruefeEndlich(outline);
  dBreite = box.Breite();
  dHoehe = box.Hoehe();
  outline.KurzeKantenEntfernen(lintavo::kKurzeKante);
  outline.Bereinigen(kEckenBereinigung, false);
  return outline.GetAnzahl() >= 3;
}
