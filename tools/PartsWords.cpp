// The words of a cutting list, German or English.
#include "PartsWords.h"

namespace lintavo::tools {

Wort ArtWort(TeilArt art) {
  switch (art) {
    case TeilArt::kRahmen:
      return {"Rahmen", "frame"};
    case TeilArt::kFluegelrahmen:
      return {"Flügelrahmen", "sash frame"};
    case TeilArt::kPfosten:
      return {"Pfosten", "mullion"};
    case TeilArt::kRiegel:
      return {"Riegel", "transom"};
    case TeilArt::kZusatzInnen:
      return {"Zusatzteil innen", "inner extra part"};
    case TeilArt::kZusatzAussen:
      return {"Zusatzteil außen", "outer extra part"};
    case TeilArt::kSprosse:
      return {"Sprosse", "glazing bar"};
    case TeilArt::kLamelle:
      return {"Lamelle", "slat"};
    case TeilArt::kGlas:
      return {"Glas", "glass"};
    case TeilArt::kPaneel:
      return {"Paneel", "panel"};
    case TeilArt::kGriff:
      return {"Griff", "handle"};
    case TeilArt::kBand:
      return {"Band", "hinge"};
    case TeilArt::kBeschlag:
      return {"Beschlag", "fitting"};
  }
  return {"", ""};
}

const char* ArtSchluessel(TeilArt art) {
  switch (art) {
    case TeilArt::kRahmen:
      return "frame";
    case TeilArt::kFluegelrahmen:
      return "sashFrame";
    case TeilArt::kPfosten:
      return "mullion";
    case TeilArt::kRiegel:
      return "transom";
    case TeilArt::kZusatzInnen:
      return "innerExtraPart";
    case TeilArt::kZusatzAussen:
      return "outerExtraPart";
    case TeilArt::kSprosse:
      return "glazingBar";
    case TeilArt::kLamelle:
      return "slat";
    case TeilArt::kGlas:
      return "glass";
    case TeilArt::kPaneel:
      return "panel";
    case TeilArt::kGriff:
      return "handle";
    case TeilArt::kBand:
      return "hinge";
    case TeilArt::kBeschlag:
      return "fitting";
  }
  return "";
}

Wort SpaltenTitel(Spalte spalte) {
  switch (spalte) {
    case Spalte::kFenster:
      return {"Fenster", "Window"};
    case Spalte::kAnzahl:
      return {"Anzahl", "Count"};
    case Spalte::kTeil:
      return {"Teil", "Part"};
    case Spalte::kLaenge:
      return {"Länge", "Length"};
    case Spalte::kAchslaenge:
      return {"Achslänge", "Axis length"};
    case Spalte::kBreite:
      return {"Breite", "Width"};
    case Spalte::kHoehe:
      return {"Höhe", "Height"};
    case Spalte::kDicke:
      return {"Dicke", "Thickness"};
    case Spalte::kSchnittAnfang:
      return {"Schnitt Anfang", "Start cut"};
    case Spalte::kSchnittEnde:
      return {"Schnitt Ende", "End cut"};
    case Spalte::kRadius:
      return {"Radius", "Radius"};
    case Spalte::kSegmente:
      return {"Segmente", "Segments"};
    case Spalte::kFlaeche:
      return {"Fläche", "Area"};
    case Spalte::kForm:
      return {"Form", "Shape"};
    case Spalte::kVerwendung:
      return {"Verwendung", "Use"};
  }
  return {"", ""};
}

}  // namespace lintavo::tools
