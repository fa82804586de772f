// A calculated window as JSON: everything that the library answers about it.
#include "WindowJson.h"

#include <vector>

#include "lintavo/drawing/Ids.h"
#include "lintavo/drawing/Text.h"
#include "lintavo/view/HiddenLines.h"

#include "PartsList.h"
#include "PartsWords.h"
#include "WindowParts.h"

namespace lintavo::tools {
namespace {

Json TextOf(const std::string& bytes) {
  return drawing::ToDisplayText(bytes);
}

// --- lines ----------------------------------------------------------------------

Json Line(const CMStrecke& line) {
  XY a;
  XY b;
  line.GetPunkte(a, b);
  return Json::array({JsonNumber(a.x), JsonNumber(a.y), JsonNumber(b.x), JsonNumber(b.y)});
}

Json Lines(const std::vector<CMStrecke>& linien) {
  Json lines = Json::array();
  for (const CMStrecke& linie : linien) lines.push_back(Line(linie));
  return lines;
}

void AddEdges(const char* key, const std::vector<VisibleEdge>& edges, JsonWriter& json) {
  json.BeginArray(key);
  for (const VisibleEdge& edge : edges) {
    Json line;
    line["line"] = Line(CMStrecke(edge.from, edge.to));
    line["color"] = edge.colour;
    line["priority"] = edge.priority;
    json.Add(line);
  }
  json.End();
}

// --- components -----------------------------------------------------------------

Json SegmentOf(const Piece& piece, std::size_t i) {
  const GEOM2_Achse& achse = piece.axes[i];
  Json segment;
  segment["id"] =
      drawing::SegmentId(drawing::KindOf(piece), piece.sash, piece.index, static_cast<long>(i));
  segment["axisLength"] = JsonNumber(achse.dLaenge);
  segment["startAngle"] = JsonNumber(achse.dWinkelAnfang);
  segment["endAngle"] = JsonNumber(achse.dWinkelEnde);
  segment["outline"] = JsonPolygon(SegmentOutline(piece, i));
  return segment;
}

Json AxisOf(const Piece& piece) {
  Json axis = Json::array();
  for (const GEOM2_Achse& achse : piece.axes) {
    if (axis.empty()) axis.push_back(JsonPoint(achse.Start.x, achse.Start.y));
    const XY end = EndOf(achse);
    axis.push_back(JsonPoint(end.x, end.y));
  }
  return axis;
}

Json PartOf(const Piece& piece) {
  const Stab stab = MesseStab(piece);
  Json part;
  part["id"] = IdVon(piece);
  part["kind"] = ArtSchluessel(stab.art);
  part["length"] = JsonNumber(stab.laenge);
  part["axisLength"] = JsonNumber(stab.achslaenge);
  part["width"] = JsonNumber(stab.breite);
  part["thickness"] = JsonNumber(stab.dicke);
  part["startAngle"] = JsonNumber(stab.winkelAnfang);
  part["endAngle"] = JsonNumber(stab.winkelEnde);
  part["radius"] = stab.radius > 0.0 ? JsonNumber(stab.radius) : Json(nullptr);
  part["attributes"] = piece.attributes;
  part["axis"] = AxisOf(piece);
  part["outline"] = JsonPolygon(piece.outline);
  part["segments"] = Json::array();
  for (std::size_t i = 0; piece.axes.size() > 1 && i < piece.axes.size(); ++i) {
    part["segments"].push_back(SegmentOf(piece, i));
  }
  return part;
}

void AddParts(const char* key, const std::vector<Piece>& pieces, JsonWriter& json) {
  json.BeginArray(key);
  for (const Piece& piece : pieces) json.Add(PartOf(piece));
  json.End();
}

// --- sashes ---------------------------------------------------------------------

const char* ShapeKey(SashShape shape) {
  switch (shape) {
    case SashShape::kRectangle:
      return "rectangle";
    case SashShape::kArch:
      return "arch";
    case SashShape::kEllipse:
      return "ellipse";
    case SashShape::kHalfArch:
      return "halfArch";
  }
  return "rectangle";
}

Json OpeningOf(const Opening& opening) {
  Json described;
  described["kind"] = ShortText(opening.kind);
  described["hinge"] = ShortText(opening.hinge);
  described["side"] = ShortText(opening.side);
  described["first"] = opening.first;
  return described;
}

Json SymbolOf(const Sash& sash, long i) {
  Json symbol;
  symbol["id"] = drawing::SymbolId(i);
  symbol["lines"] = Lines(sash.symbol);
  return symbol;
}

const char* FillingKey(FillingKind kind) {
  switch (kind) {
    case FillingKind::kGlass:
      return "glass";
    case FillingKind::kPanel:
      return "panel";
    case FillingKind::kSlats:
      return "slats";
  }
  return "glass";
}

void AddFilling(const Filling& filling, long i, JsonWriter& json) {
  json.BeginObject("filling");
  json.Add("id", drawing::IdOf(drawing::ShapeKind::kGlas, i, 0));
  json.Add("kind", FillingKey(filling.kind));
  json.Add("thickness", JsonNumber(filling.thickness));
  json.Add("attributes", filling.attributes);
  json.Add("outline", JsonPolygon(filling.contour));
  AddParts("slats", filling.slats, json);
  json.End();
}

Json FittingOf(const Fitting& fitting, long i, long j) {
  Json described;
  described["id"] = drawing::BeschlagId(i, j);
  described["kind"] = ArtSchluessel(ArtVon(fitting));
  described["type"] = fitting.type;
  described["position"] = fitting.place ? JsonPoint(fitting.place->x, fitting.place->y) : nullptr;
  described["angle"] = fitting.place ? JsonNumber(fitting.angle) : Json(nullptr);
  described["lines"] = Lines(fitting.lines);
  return described;
}

void AddSash(const Sash& sash, long i, bool views, JsonWriter& json) {
  json.BeginObject();
  json.Add("id", drawing::FluegelId(i));
  json.Add("name", TextOf(sash.name));
  json.Add("shape", ShapeKey(sash.shape));
  json.Add("opening", OpeningOf(sash.opening));
  json.Add("width", JsonNumber(sash.width));
  json.Add("thickness", JsonNumber(sash.thickness));
  json.Add("overlap", JsonNumber(sash.overlap));
  json.Add("offsetInside", JsonNumber(sash.offset[0]));
  json.Add("offsetOutside", JsonNumber(sash.offset[1]));
  json.Add("outline", JsonPolygon(sash.outline));
  json.Add("innerOutline", JsonPolygon(sash.inner));
  AddParts("parts", sash.parts, json);
  AddParts("singleParts", sash.singles, json);
  AddParts("bars", sash.bars, json);
  AddFilling(sash.filling, i, json);
  json.BeginArray("fittings");
  for (std::size_t j = 0; j < sash.fittings.size(); ++j) {
    json.Add(FittingOf(sash.fittings[j], i, static_cast<long>(j)));
  }
  json.End();
  json.Add("symbol", SymbolOf(sash, i));
  json.Add("glassWidths", Lines(sash.glassWidths));
  json.Add("glassHeights", Lines(sash.glassHeights));
  if (views) {
    std::vector<VisibleEdge> edges;
    FindVisibleEdges(sash, edges);
    AddEdges("view", edges, json);
  }
  json.End();
}

// --- the window -----------------------------------------------------------------

Json Numbers(const std::vector<double>& values) {
  Json numbers = Json::array();
  for (const double value : values) numbers.push_back(JsonNumber(value));
  return numbers;
}

void AddAxes(const WindowView& view, JsonWriter& json) {
  json.BeginObject("axes");
  json.Add("x", Numbers(view.axesX));
  json.Add("y", Numbers(view.axesY));
  json.End();
}

Json BoxOf(const ViewBox& box) {
  if (!(box.left <= box.right) || !(box.bottom <= box.top)) return nullptr;
  Json described;
  described["left"] = JsonNumber(box.left);
  described["bottom"] = JsonNumber(box.bottom);
  described["right"] = JsonNumber(box.right);
  described["top"] = JsonNumber(box.top);
  return described;
}

void AddFrame(const Record& frame, JsonWriter& json) {
  json.BeginObject("frame");
  json.Add("width", JsonNumber(frame.width));
  json.Add("thickness", JsonNumber(frame.thickness));
  json.Add("outline", JsonPolygon(frame.outline));
  AddParts("parts", frame.parts, json);
  AddParts("singleParts", frame.singles, json);
  json.End();
}

Json RoleOf(DimensionRole role) {
  if (role == DimensionRole::kWidth) return "width";
  return role == DimensionRole::kHeight ? Json("height") : Json(nullptr);
}

Json DimensionOf(const Dimension& dimension, long i) {
  Json described;
  described["id"] = drawing::MaszId(i);
  described["name"] = TextOf(dimension.name);
  described["length"] = JsonNumber(dimension.length);
  described["direction"] = dimension.horizontal ? "horizontal" : "vertical";
  described["role"] = RoleOf(dimension.role);
  described["line"] = dimension.line ? Line(*dimension.line) : Json(nullptr);
  return described;
}

void AddViews(const WindowView& view, JsonWriter& json) {
  std::vector<VisibleEdge> edges;
  json.BeginObject("views");
  FindVisibleEdges(view, ViewSide::kInside, edges);
  AddEdges("inside", edges, json);
  FindVisibleEdges(view, ViewSide::kOutside, edges);
  AddEdges("outside", edges, json);
  json.End();
}

}  // namespace

void WriteWindowJson(const std::string& file, const WindowView& view, bool views,
                     JsonWriter& json) {
  json.BeginObject();
  json.Add("file", drawing::ToDisplayText(file));
  json.Add("name", TextOf(view.name));
  json.Add("width", JsonNumber(view.width));
  json.Add("height", JsonNumber(view.height));
  json.Add("box", BoxOf(view.box));
  AddAxes(view, json);
  AddFrame(view.frame, json);
  json.BeginArray("sashes");
  for (std::size_t i = 0; i < view.sashes.size(); ++i) {
    AddSash(view.sashes[i], static_cast<long>(i), views, json);
  }
  json.End();
  json.BeginArray("dimensions");
  for (std::size_t i = 0; i < view.dimensions.size(); ++i) {
    json.Add(DimensionOf(view.dimensions[i], static_cast<long>(i)));
  }
  json.End();
  if (views) AddViews(view, json);
  json.End();
}

}  // namespace lintavo::tools
