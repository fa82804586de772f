// The façade's drawings: dimension lines, opening symbols, fillings, fittings
// and the view with hidden lines removed.
#include <vector>

#include "lintavo/api/CFeApi.h"
#include "lintavo/api/Records_intern.h"
#include "lintavo/api/Schutz_intern.h"
#include "lintavo/model/CMFenster.h"

using lintavo::Geschuetzt;
using lintavo::KopierePolygon;
using lintavo::KopiereStrecken;
using lintavo::KopiereText;

namespace {

// Slats of a sash are numbered by their sash only where a host asks for it.
constexpr long kOhneNummer = 0;

struct Fuellung {
  GEOM2_Polygon kontur;
  std::vector<CMBauteil> lamellen;
};

bool FuellungVon(const CMFensterSatz* fluegel, Fuellung& fuellung) {
  return fluegel && fluegel->GetFuellung(kOhneNummer, fuellung.kontur, fuellung.lamellen);
}

// A copy of a fitting: to ask where it sits would cap its distances, and a query
// changes nothing.
bool BeschlagVon(const CMFensterSatz* fluegel, long j, CMBeschlag& beschlag) {
  const CMBeschlag* gefunden = fluegel ? fluegel->GetBeschlagPtr(j) : nullptr;
  if (!gefunden) return false;
  beschlag = *gefunden;
  return true;
}

int AlsErgebnis(bool ok) {
  return ok ? 1 : 0;
}

}  // namespace

// --- dimension lines ----------------------------------------------------------

int CFeApi::GetZMaszLinie(long i, CFeApiStrecken& linie) const {
  linie.Delete();
  if (!pFenster_) return 0;
  return Geschuetzt(0, [&] {
    const CMZusatzMasz* masz = ZusatzMasz(i);
    CMStrecke strecke;
    if (!masz || !pFenster_->GetMaszline(i, strecke, masz->dAbstand)) return 0;
    KopiereStrecken({strecke}, linie);
    return 1;
  });
}

int CFeApi::GetZMaszHilfslinien(long i, double d, CFeApiStrecken& linien) const {
  linien.Delete();
  if (!pFenster_) return 0;
  return Geschuetzt(0, [&] {
    CMStrecke l1;
    CMStrecke l2;
    if (!pFenster_->GetMaszHilfsLinien(i, d, l1, l2)) return 0;
    KopiereStrecken({l1, l2}, linien);
    return 1;
  });
}

int CFeApi::GetZMaszPfeile(long i, double dPfeilLaenge, double dPfeilBreite, CFeApiPolygon& p1,
                           CFeApiPolygon& p2) const {
  p1.Delete();
  p2.Delete();
  if (!pFenster_) return 0;
  return Geschuetzt(0, [&] {
    GEOM2_Polygon pfeile[2];
    if (!pFenster_->GetMaszBegrenzung(i, dPfeilLaenge, dPfeilBreite, pfeile[0], pfeile[1])) {
      return 0;
    }
    KopierePolygon(pfeile[0], p1);
    KopierePolygon(pfeile[1], p2);
    return 1;
  });
}

int CFeApi::GetBox(double dUeberstand, double& xmin, double& ymin, double& xmax,
                   double& ymax) const {
  if (!pFenster_) return 0;
  return Geschuetzt(0, [&] {
    double box[4];
    pFenster_->GetBox(dUeberstand, box);
    xmin = box[0];
    ymin = box[1];
    xmax = box[2];
    ymax = box[3];
    return AlsErgebnis(xmin <= xmax && ymin <= ymax);
  });
}

// --- views --------------------------------------------------------------------

int CFeApi::GetAnsicht(int iVonAussen, CFeApiStrecken& linien) const {
  linien.Delete();
  if (!pFenster_) return 0;
  return Geschuetzt(0, [&] {
    std::vector<CMStrecke> strecken;
    if (!pFenster_->GetHiddenLineBild(strecken, iVonAussen != 0)) return 0;
    KopiereStrecken(strecken, linien);
    return 1;
  });
}

template <class Zeichnen>
int CFeApi::FluegelStrecken(long i, CFeApiStrecken& linien, Zeichnen zeichnen) const {
  linien.Delete();
  const CMFensterSatz* fluegel = Fluegel(i);
  if (!fluegel) return 0;
  return Geschuetzt(0, [&] {
    std::vector<CMStrecke> strecken;
    if (!zeichnen(*fluegel, strecken)) return 0;
    KopiereStrecken(strecken, linien);
    return 1;
  });
}

int CFeApi::GetFluegelOeffnungsSymbol(long i, CFeApiStrecken& linien) const {
  return FluegelStrecken(i, linien, [](const CMFensterSatz& fluegel, auto& strecken) {
    return fluegel.GetOeffSymbol(strecken);
  });
}

int CFeApi::GetFluegelAnsicht(long i, int iMitSymbol, CFeApiStrecken& linien) const {
  return FluegelStrecken(i, linien, [=](const CMFensterSatz& fluegel, auto& strecken) {
    return fluegel.GetFluegelBild2D(strecken, iMitSymbol != 0);
  });
}

int CFeApi::GetFluegelGlaslichteHori(long i, CFeApiStrecken& linien) const {
  return FluegelStrecken(i, linien, [](const CMFensterSatz& fluegel, auto& strecken) {
    return fluegel.GetMaszeGlaslichteHori(strecken);
  });
}

int CFeApi::GetFluegelGlaslichteVert(long i, CFeApiStrecken& linien) const {
  return FluegelStrecken(i, linien, [](const CMFensterSatz& fluegel, auto& strecken) {
    return fluegel.GetMaszeGlaslichteVert(strecken);
  });
}

// --- opening, filling, fittings -----------------------------------------------

long CFeApi::GetFluegelGangart(long i, char (&text)[256]) const {
  return KurzText(i, text, &CMFensterSatz::lGangart, &CMFensterSatz::GetGangArtKurzText);
}

long CFeApi::GetFluegelAnschlag(long i, char (&text)[256]) const {
  return KurzText(i, text, &CMFensterSatz::lAnschlag, &CMFensterSatz::GetAnschlagKurzText);
}

long CFeApi::GetFluegelOeffSeite(long i, char (&text)[256]) const {
  return KurzText(i, text, &CMFensterSatz::lOeffSeite, &CMFensterSatz::GetOeffSeitenKurzText);
}

long CFeApi::KurzText(long i, char (&text)[256], int CMFensterSatz::*index,
                      CString (*kurzText)(long)) const {
  const CMFensterSatz* fluegel = Fluegel(i);
  return Geschuetzt(
      0L, [&] { return KopiereText(fluegel ? kurzText(fluegel->*index) : CString(), text); });
}

int CFeApi::GetFluegelFuellungUmriss(long i, CFeApiPolygon& umriss) const {
  umriss.Delete();
  return Geschuetzt(0, [&] {
    Fuellung fuellung;
    if (!FuellungVon(Fluegel(i), fuellung)) return 0;
    KopierePolygon(fuellung.kontur, umriss);
    return 1;
  });
}

long CFeApi::GetFluegelAnzahlLamellen(long i) const {
  const CMFensterSatz* fluegel = Fluegel(i);
  return Geschuetzt(0L, [&] { return fluegel ? fluegel->GetAnzahlLamellen() : 0L; });
}

int CFeApi::GetFluegelLamellenUmriss(long i, long j, CFeApiPolygon& umriss) const {
  umriss.Delete();
  return Geschuetzt(0, [&] {
    const CMFensterSatz* fluegel = Fluegel(i);
    GEOM2_Polygon polygon;
    if (!fluegel || !fluegel->GetLamellenUmriss(j, polygon)) return 0;
    KopierePolygon(polygon, umriss);
    return 1;
  });
}

int CFeApi::GetBeschlagPunkt(long i, long j, double& x, double& y, double& dWinkel) const {
  return Geschuetzt(0, [&] {
    CMBeschlag beschlag;
    XY p;
    if (!BeschlagVon(Fluegel(i), j, beschlag) || !beschlag.GetPunkt(Fluegel(i), p, dWinkel)) {
      return 0;
    }
    x = p.x;
    y = p.y;
    return 1;
  });
}

int CFeApi::GetBeschlagZeichnung(long i, long j, CFeApiStrecken& linien) const {
  linien.Delete();
  return Geschuetzt(0, [&] {
    CMBeschlag beschlag;
    XY p;
    double winkel = 0.0;
    if (!BeschlagVon(Fluegel(i), j, beschlag) || !beschlag.GetPunkt(Fluegel(i), p, winkel)) {
      return 0;
    }
    std::vector<CMStrecke> strecken;
    beschlag.GetZeichnung(strecken, p, winkel);
    KopiereStrecken(strecken, linien);
    return 1;
  });
}

long CFeApi::GetBeschlagTyp(long i, long j) const {
  CMBeschlag beschlag;
  return BeschlagVon(Fluegel(i), j, beschlag) ? beschlag.eTyp : -1;
}

int CFeApi::GetFluegelZuerstAufgehend(long i) const {
  const CMFensterSatz* fluegel = Fluegel(i);
  return fluegel ? AlsErgebnis(fluegel->IsZuerstAufgehend()) : 0;
}
