// A cutting list as JSON.
#include "PartsJson.h"

#include "JsonText.h"

namespace lintavo::tools {
namespace {

constexpr const char* kPartsSchema = "lintavo-parts/1";

Json Begun(TeilArt art, const std::vector<Stelle>& stellen, const PartsStyle& style) {
  Json row;
  row["kind"] = ArtSchluessel(art);
  row["label"] = ArtWort(art).In(style.sprache);
  row["count"] = stellen.size();
  return row;
}

Json Places(const std::vector<Stelle>& stellen) {
  Json places = Json::array();
  for (const Stelle& stelle : stellen) {
    Json place;
    place["window"] = stelle.fenster;
    place["sash"] = stelle.fluegel == kFrameRecord ? Json(nullptr) : Json(stelle.fluegel);
    place["id"] = stelle.id;
    places.push_back(std::move(place));
  }
  return places;
}

Json RowOf(const Stab& stab, const PartsStyle& style) {
  Json row = Begun(stab.art, stab.stellen, style);
  row["length"] = JsonNumber(stab.laenge);
  row["axisLength"] = JsonNumber(stab.achslaenge);
  row["width"] = JsonNumber(stab.breite);
  row["thickness"] = JsonNumber(stab.dicke);
  row["startAngle"] = JsonNumber(stab.winkelAnfang);
  row["endAngle"] = JsonNumber(stab.winkelEnde);
  row["radius"] = stab.radius > 0.0 ? JsonNumber(stab.radius) : Json(nullptr);
  row["segments"] = stab.segmente;
  row["places"] = Places(stab.stellen);
  return row;
}

Json RowOf(const Scheibe& scheibe, const PartsStyle& style) {
  Json row = Begun(scheibe.art, scheibe.stellen, style);
  row["width"] = JsonNumber(scheibe.breite);
  row["height"] = JsonNumber(scheibe.hoehe);
  row["thickness"] = JsonNumber(scheibe.dicke);
  row["area"] = JsonNumber(scheibe.flaeche);
  row["rectangular"] = scheibe.rechteckig;
  row["outline"] = Json::array();
  for (const XY& p : scheibe.umriss) row["outline"].push_back(JsonPoint(p.x, p.y));
  row["places"] = Places(scheibe.stellen);
  return row;
}

Json RowOf(const Beschlaege& beschlaege, const PartsStyle& style) {
  Json row = Begun(beschlaege.art, beschlaege.stellen, style);
  row["places"] = Places(beschlaege.stellen);
  return row;
}

Json RowOf(const Profil& profil, const PartsStyle& style) {
  Json row;
  row["kind"] = ArtSchluessel(profil.art);
  row["label"] = ArtWort(profil.art).In(style.sprache);
  row["window"] = style.jeFenster ? Json(profil.fenster) : Json(nullptr);
  row["count"] = profil.anzahl;
  row["width"] = JsonNumber(profil.breite);
  row["thickness"] = JsonNumber(profil.dicke);
  row["totalLength"] = JsonNumber(profil.laenge);
  return row;
}

template <class Zeile>
void AddRows(const char* key, const std::vector<Zeile>& zeilen, const PartsStyle& style,
             JsonWriter& json) {
  json.BeginArray(key);
  for (const Zeile& zeile : zeilen) json.Add(RowOf(zeile, style));
  json.End();
}

Json Described(const PartsWindow& window) {
  Json described;
  described["file"] = window.datei;
  described["name"] = window.name;
  described["width"] = JsonNumber(window.breite);
  described["height"] = JsonNumber(window.hoehe);
  described["sashes"] = window.fluegel;
  return described;
}

}  // namespace

void WritePartsJson(const PartsList& list, const std::vector<PartsWindow>& windows,
                    const PartsStyle& style, std::ostream& out) {
  JsonWriter json(out);
  json.BeginObject();
  json.Add("schema", kPartsSchema);
  json.BeginArray("windows");
  for (const PartsWindow& window : windows) json.Add(Described(window));
  json.End();
  AddRows("bars", list.staebe, style, json);
  AddRows("panes", list.scheiben, style, json);
  AddRows("fittings", list.beschlaege, style, json);
  AddRows("sections", ProfileOf(list, style.jeFenster), style, json);
  json.End();
}

}  // namespace lintavo::tools
