// Ids, classes and layers of what pictures show.
#include "lintavo/drawing/Ids.h"

namespace lintavo::drawing {
namespace {

constexpr const char* kRahmen = "rahmen";
constexpr const char* kEinzelteil = "einzelteil";

std::string Numbered(const std::string& word, long number) {
  return word + '-' + std::to_string(number);
}

std::string InFluegel(long fluegel, const std::string& id) {
  return FluegelId(fluegel) + '-' + id;
}

}  // namespace

ShapeKind KindOf(const Piece& piece) {
  const bool ofFrame = piece.sash == kFrameRecord;
  switch (piece.kind) {
    case PieceKind::kFramePart:
      return ShapeKind::kRahmenteil;
    case PieceKind::kSashPart:
      return ShapeKind::kFluegelteil;
    case PieceKind::kMullion:
    case PieceKind::kTransom:
    case PieceKind::kInnerPart:
      return ofFrame ? ShapeKind::kEinzelteil : ShapeKind::kFluegelEinzelteil;
    case PieceKind::kOuterPart:
      return ofFrame ? ShapeKind::kZusatzteil : ShapeKind::kFluegelEinzelteil;
    case PieceKind::kBar:
      return ShapeKind::kSprosse;
    case PieceKind::kSlat:
      return ShapeKind::kLamelle;
    case PieceKind::kGlass:
      return ShapeKind::kGlas;
    case PieceKind::kPanel:
      return ShapeKind::kPaneel;
    case PieceKind::kSlatGround:
      return ShapeKind::kLamellen;
  }
  return ShapeKind::kRahmenteil;
}

std::string IdOf(ShapeKind kind, long fluegel, long teil) {
  switch (kind) {
    case ShapeKind::kRahmenteil:
      return Numbered(kRahmen, teil);
    case ShapeKind::kEinzelteil:
      return Numbered(kEinzelteil, teil);
    case ShapeKind::kZusatzteil:
      return Numbered("zusatzteil", teil);
    case ShapeKind::kGlas:
    case ShapeKind::kPaneel:
    case ShapeKind::kLamellen:
      return InFluegel(fluegel, "fuellung");
    case ShapeKind::kLamelle:
      return InFluegel(fluegel, Numbered("lamelle", teil));
    case ShapeKind::kFluegelteil:
      return InFluegel(fluegel, Numbered(kRahmen, teil));
    case ShapeKind::kFluegelEinzelteil:
      return InFluegel(fluegel, Numbered(kEinzelteil, teil));
    case ShapeKind::kSprosse:
      return InFluegel(fluegel, Numbered("sprosse", teil));
    case ShapeKind::kMaszPfeil:
      return MaszId(teil);
  }
  return {};
}

std::string SegmentId(ShapeKind kind, long fluegel, long teil, long segment) {
  return Numbered(IdOf(kind, fluegel, teil) + "-segment", segment);
}

std::string FluegelId(long fluegel) {
  return Numbered("fluegel", fluegel);
}

std::string SymbolId(long fluegel) {
  return InFluegel(fluegel, "symbol");
}

std::string BeschlagId(long fluegel, long beschlag) {
  return InFluegel(fluegel, Numbered("beschlag", beschlag));
}

std::string MaszId(long masz) {
  return Numbered("masz", masz);
}

const char* ClassOf(ShapeKind kind) {
  switch (kind) {
    case ShapeKind::kRahmenteil:
      return "rahmenteil";
    case ShapeKind::kEinzelteil:
      return "einzelteil";
    case ShapeKind::kZusatzteil:
      return "zusatzteil";
    case ShapeKind::kGlas:
      return "glas";
    case ShapeKind::kPaneel:
      return "paneel";
    case ShapeKind::kLamellen:
      return "lamellen";
    case ShapeKind::kLamelle:
      return "lamelle";
    case ShapeKind::kFluegelteil:
      return "fluegelteil";
    case ShapeKind::kFluegelEinzelteil:
      return "fluegeleinzelteil";
    case ShapeKind::kSprosse:
      return "sprosse";
    case ShapeKind::kMaszPfeil:
      return "maszpfeil";
  }
  return "";
}

const char* ClassOf(LineKind kind) {
  switch (kind) {
    case LineKind::kAnsicht:
      return "kante";
    case LineKind::kOeffnungsSymbol:
      return "symbol";
    case LineKind::kBeschlag:
      return "beschlag";
    case LineKind::kMaszLinie:
      return "maszlinie";
    case LineKind::kHilfsLinie:
      return "hilfslinie";
  }
  return "";
}

const char* LayerOf(ShapeKind kind) {
  switch (kind) {
    case ShapeKind::kRahmenteil:
      return "RAHMEN";
    case ShapeKind::kEinzelteil:
      return "EINZELTEILE";
    case ShapeKind::kZusatzteil:
      return "ZUSATZTEILE";
    case ShapeKind::kGlas:
      return "GLAS";
    case ShapeKind::kPaneel:
      return "PANEELE";
    case ShapeKind::kLamellen:
    case ShapeKind::kLamelle:
      return "LAMELLEN";
    case ShapeKind::kFluegelteil:
    case ShapeKind::kFluegelEinzelteil:
      return "FLUEGEL";
    case ShapeKind::kSprosse:
      return "SPROSSEN";
    case ShapeKind::kMaszPfeil:
      return "BEMASSUNG";
  }
  return "0";
}

const char* LayerOf(LineKind kind) {
  switch (kind) {
    case LineKind::kAnsicht:
      return "ANSICHT";
    case LineKind::kOeffnungsSymbol:
      return "SYMBOLE";
    case LineKind::kBeschlag:
      return "BESCHLAEGE";
    case LineKind::kMaszLinie:
    case LineKind::kHilfsLinie:
      return "BEMASSUNG";
  }
  return "0";
}

}  // namespace lintavo::drawing
