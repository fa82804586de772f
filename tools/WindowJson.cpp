// A calculated window as JSON: everything that the library answers about it.
#include "WindowJson.h"

#include <vector>

#include "lintavo/drawing/Ids.h"
#include "lintavo/drawing/Text.h"
#include "lintavo/model/CMFenster.h"

#include "PartsList.h"
#include "PartsWords.h"
#include "WindowParts.h"

namespace lintavo::tools {
namespace {

Json TextOf(const char (&buffer)[256], long length) {
  return drawing::ToDisplayText(buffer, length);
}

// --- lines ----------------------------------------------------------------------

Json Line(const CFeApiStrecken& linien, int i) {
  return Json::array({JsonNumber(linien.pdX1[i]), JsonNumber(linien.pdY1[i]),
                      JsonNumber(linien.pdX2[i]), JsonNumber(linien.pdY2[i])});
}

Json Lines(int found, const CFeApiStrecken& linien) {
  Json lines = Json::array();
  for (int i = 0; found == 1 && i < linien.lAnzahl; ++i) lines.push_back(Line(linien, i));
  return lines;
}

void AddView(const char* key, int found, const CFeApiStrecken& linien, JsonWriter& json) {
  json.BeginArray(key);
  for (int i = 0; found == 1 && i < linien.lAnzahl; ++i) {
    Json line;
    line["line"] = Line(linien, i);
    line["color"] = linien.piFarbe[i];
    line["priority"] = linien.piPrio[i];
    json.Add(line);
  }
  json.End();
}

// --- components -----------------------------------------------------------------

Json SegmentOf(const Komponente& komponente, long i) {
  const GEOM2_Achse& achse = komponente.bauteil->Achse(i);
  GEOM2_Polygon umriss;
  komponente.bauteil->GetUmrissPunkteAchsSegment(i, umriss);
  Json segment;
  segment["id"] = drawing::SegmentId(komponente.kind, komponente.fluegel, komponente.index, i);
  segment["axisLength"] = JsonNumber(achse.dLaenge);
  segment["startAngle"] = JsonNumber(achse.dWinkelAnfang);
  segment["endAngle"] = JsonNumber(achse.dWinkelEnde);
  segment["outline"] = JsonPolygon(umriss);
  return segment;
}

Json AxisOf(const CMBauteil& bauteil) {
  Json axis = Json::array();
  XY a;
  XY b;
  for (long i = 0; bauteil.GetAchspunkte(i, a, b); ++i) {
    if (i == 0) axis.push_back(JsonPoint(a.x, a.y));
    axis.push_back(JsonPoint(b.x, b.y));
  }
  return axis;
}

Json PartOf(const Komponente& komponente) {
  const CMBauteil& bauteil = *komponente.bauteil;
  const Stab stab = MesseStab(komponente.art, bauteil);
  GEOM2_Polygon umriss;
  bauteil.GetUmrissPunkte(umriss);
  Json part;
  part["id"] = komponente.Id();
  part["kind"] = ArtSchluessel(komponente.art);
  part["length"] = JsonNumber(stab.laenge);
  part["axisLength"] = JsonNumber(stab.achslaenge);
  part["width"] = JsonNumber(stab.breite);
  part["thickness"] = JsonNumber(stab.dicke);
  part["startAngle"] = JsonNumber(stab.winkelAnfang);
  part["endAngle"] = JsonNumber(stab.winkelEnde);
  part["radius"] = stab.radius > 0.0 ? JsonNumber(stab.radius) : Json(nullptr);
  part["attributes"] = bauteil.lAttribut;
  part["axis"] = AxisOf(bauteil);
  part["outline"] = JsonPolygon(umriss);
  part["segments"] = Json::array();
  for (long i = 0; stab.segmente > 1 && i < stab.segmente; ++i) {
    part["segments"].push_back(SegmentOf(komponente, i));
  }
  return part;
}

void AddParts(const char* key, const std::vector<Komponente>& komponenten, JsonWriter& json) {
  json.BeginArray(key);
  for (const Komponente& komponente : komponenten) json.Add(PartOf(komponente));
  json.End();
}

// --- sashes ---------------------------------------------------------------------

const char* ShapeKey(int form) {
  switch (form) {
    case eFormBogen:
      return "arch";
    case eFormEllipse:
      return "ellipse";
    case eFormHalbBogen:
      return "halfArch";
    default:
      return "rectangle";
  }
}

Json OpeningOf(const CFeApi& window, long i) {
  char text[256];
  Json opening;
  long length = window.GetFluegelGangart(i, text);
  opening["kind"] = TextOf(text, length);
  length = window.GetFluegelAnschlag(i, text);
  opening["hinge"] = TextOf(text, length);
  length = window.GetFluegelOeffSeite(i, text);
  opening["side"] = TextOf(text, length);
  opening["first"] = window.GetFluegelZuerstAufgehend(i) == 1;
  return opening;
}

Json SymbolOf(const CFeApi& window, long i) {
  CFeApiStrecken linien;
  const int found = window.GetFluegelOeffnungsSymbol(i, linien);
  Json symbol;
  symbol["id"] = drawing::SymbolId(i);
  symbol["lines"] = Lines(found, linien);
  return symbol;
}

void AddFilling(const CFeApi& window, const CMFensterSatz& satz, long i, JsonWriter& json) {
  CFeApiPolygon umriss;
  window.GetFluegelFuellungUmriss(i, umriss);
  const std::vector<CMBauteil> lamellen = LegeLamellen(window, i);
  json.BeginObject("filling");
  json.Add("id", drawing::IdOf(drawing::ShapeKind::kGlas, i, 0));
  json.Add("kind", satz.Fuellung.IsLamellen() ? "slats" : ArtSchluessel(FuellungArt(window, i)));
  json.Add("thickness", JsonNumber(window.GetFluegelFuellungDicke(i)));
  Json attributes = Json::array();
  for (const long n : {1, 2, 3, 4}) attributes.push_back(window.GetFluegelFuellungAttribut(i, n));
  json.Add("attributes", attributes);
  json.Add("outline", JsonPolygon(umriss));
  json.BeginArray("slats");
  for (const Komponente& lamelle : Lamellen(lamellen, i)) {
    Json part = PartOf(lamelle);
    window.GetFluegelLamellenUmriss(i, lamelle.index, umriss);
    part["outline"] = JsonPolygon(umriss);
    json.Add(part);
  }
  json.End();
  json.End();
}

Json FittingOf(const CFeApi& window, long i, long j) {
  const long typ = window.GetBeschlagTyp(i, j);
  double x = 0.0;
  double y = 0.0;
  double winkel = 0.0;
  const bool placed = window.GetBeschlagPunkt(i, j, x, y, winkel) == 1;
  CFeApiStrecken linien;
  const int drawn = window.GetBeschlagZeichnung(i, j, linien);
  Json fitting;
  fitting["id"] = drawing::BeschlagId(i, j);
  fitting["kind"] = ArtSchluessel(BeschlagArt(static_cast<int>(typ)));
  fitting["type"] = typ;
  fitting["position"] = placed ? JsonPoint(x, y) : Json(nullptr);
  fitting["angle"] = placed ? JsonNumber(winkel) : Json(nullptr);
  fitting["lines"] = Lines(drawn, linien);
  return fitting;
}

void AddGlassDimensions(const CFeApi& window, long i, JsonWriter& json) {
  CFeApiStrecken linien;
  int found = window.GetFluegelGlaslichteHori(i, linien);
  json.Add("glassWidths", Lines(found, linien));
  found = window.GetFluegelGlaslichteVert(i, linien);
  json.Add("glassHeights", Lines(found, linien));
}

void AddSash(const CFeApi& window, long i, bool views, JsonWriter& json) {
  const CMFensterSatz& satz = *SatzVon(window, i);
  char name[256];
  const long length = window.GetFluegelName(i, name);
  CFeApiPolygon innen;
  window.GetFluegelInnenPolygon(i, 0.0, innen);
  json.BeginObject();
  json.Add("id", drawing::FluegelId(i));
  json.Add("name", TextOf(name, length));
  json.Add("shape", ShapeKey(satz.lForm));
  json.Add("opening", OpeningOf(window, i));
  json.Add("width", JsonNumber(window.GetFluegelRahmenBreite(i)));
  json.Add("thickness", JsonNumber(window.GetFluegelRahmenDicke(i)));
  json.Add("overlap", JsonNumber(window.GetFluegelUeberschlag(i)));
  json.Add("offsetInside", JsonNumber(window.GetFluegelZVersatz(i, 0)));
  json.Add("offsetOutside", JsonNumber(window.GetFluegelZVersatz(i, 1)));
  json.Add("outline", JsonPolygon(satz.RahmenPolygon));
  json.Add("innerOutline", JsonPolygon(innen));
  AddParts("parts", Rahmenteile(satz, i), json);
  AddParts("singleParts", Einzelteile(satz, i), json);
  AddParts("bars", Sprossen(satz, i), json);
  AddFilling(window, satz, i, json);
  json.BeginArray("fittings");
  for (long j = 0; j < window.GetAnzahlBeschlaege(i); ++j) json.Add(FittingOf(window, i, j));
  json.End();
  json.Add("symbol", SymbolOf(window, i));
  AddGlassDimensions(window, i, json);
  if (views) {
    CFeApiStrecken linien;
    const int found = window.GetFluegelAnsicht(i, 0, linien);
    AddView("view", found, linien, json);
  }
  json.End();
}

// --- the window -----------------------------------------------------------------

Json Positions(int count, double (CMAchsen::*position)(int) const, const CMAchsen& achsen) {
  Json positions = Json::array();
  for (int i = 0; i < count; ++i) positions.push_back(JsonNumber((achsen.*position)(i)));
  return positions;
}

void AddAxes(const CMAchsen& achsen, JsonWriter& json) {
  json.BeginObject("axes");
  json.Add("x", Positions(achsen.iGetCntVerti(), &CMAchsen::dGetPosVerti, achsen));
  json.Add("y", Positions(achsen.iGetCntHori(), &CMAchsen::dGetPosHori, achsen));
  json.End();
}

Json BoxOf(const CFeApi& window) {
  double box[4] = {};
  if (window.GetBox(0.0, box[0], box[1], box[2], box[3]) != 1) return nullptr;
  Json described;
  described["left"] = JsonNumber(box[0]);
  described["bottom"] = JsonNumber(box[1]);
  described["right"] = JsonNumber(box[2]);
  described["top"] = JsonNumber(box[3]);
  return described;
}

void AddFrame(const CFeApi& window, JsonWriter& json) {
  const CMFensterSatz& rahmen = *SatzVon(window, kRahmensatz);
  json.BeginObject("frame");
  json.Add("width", JsonNumber(window.GetRahmenBreite()));
  json.Add("thickness", JsonNumber(window.GetRahmenDicke()));
  json.Add("outline", JsonPolygon(rahmen.RahmenPolygon));
  AddParts("parts", Rahmenteile(rahmen, kRahmensatz), json);
  AddParts("singleParts", Einzelteile(rahmen, kRahmensatz), json);
  json.End();
}

Json RoleOf(const CFeApi& window, long i) {
  long width = -1;
  long height = -1;
  window.IsZMaszBreiteHoehe(width, height);
  if (i == width) return "width";
  return i == height ? Json("height") : Json(nullptr);
}

Json DimensionOf(const CFeApi& window, long i) {
  char name[256];
  const long length = window.GetZMaszName(i, name);
  CFeApiStrecken linie;
  const bool drawn = window.GetZMaszLinie(i, linie) == 1 && linie.lAnzahl == 1;
  Json dimension;
  dimension["id"] = drawing::MaszId(i);
  dimension["name"] = TextOf(name, length);
  dimension["length"] = JsonNumber(window.GetZMaszLaenge(i));
  dimension["direction"] =
      window.GetFensterPtr()->GetZusatzMaszPtr(i)->IsHorizonal() ? "horizontal" : "vertical";
  dimension["role"] = RoleOf(window, i);
  dimension["line"] = drawn ? Line(linie, 0) : Json(nullptr);
  return dimension;
}

void AddViews(const CFeApi& window, JsonWriter& json) {
  json.BeginObject("views");
  CFeApiStrecken linien;
  int found = window.GetAnsicht(0, linien);
  AddView("inside", found, linien, json);
  found = window.GetAnsicht(1, linien);
  AddView("outside", found, linien, json);
  json.End();
}

}  // namespace

void WriteWindowJson(const std::string& file, const CFeApi& window, bool views, JsonWriter& json) {
  char name[256];
  const long length = window.GetFensterBezeichnung(name);
  json.BeginObject();
  json.Add("file", drawing::ToDisplayText(file));
  json.Add("name", TextOf(name, length));
  json.Add("width", JsonNumber(window.GetFensterBreite()));
  json.Add("height", JsonNumber(window.GetFensterHoehe()));
  json.Add("box", BoxOf(window));
  AddAxes(window.GetFensterPtr()->GetAchsen(), json);
  AddFrame(window, json);
  json.BeginArray("sashes");
  for (long i = 0; i < window.GetAnzahlFluegel(); ++i) AddSash(window, i, views, json);
  json.End();
  json.BeginArray("dimensions");
  for (long i = 0; i < window.GetAnzahlZusatzMasze(); ++i) json.Add(DimensionOf(window, i));
  json.End();
  if (views) AddViews(window, json);
  json.End();
}

}  // namespace lintavo::tools
