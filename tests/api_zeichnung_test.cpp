// The façade's drawings: dimension lines, symbols, fillings, fittings, views.
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "lintavo/api/CFeApi.h"

#include "support/Beispiele.h"

namespace lintavo::test {
namespace {

// A sash of 100 x 130 in a frame 7 wide, overlap 1.5: the inner contour of the
// sash is 73.4 x 103.4 around (50, 65).
const std::string kFenster =
    "[Allgemeines]#Name=A#[Achsen]#Y1=130#X1=100#"
    "[Masz1]#Name=Breite#Laenge=100,-20#Richtung=1#Knoten1=0,0#Knoten2=1,0#"
    "[Masz2]#Name=Hoehe#Laenge=130,-30#Richtung=0#Knoten1=0,0#Knoten2=0,1#"
    "[Masz3]#Name=Nichts#Laenge=0,10#Richtung=0#Knoten1=0,0#Knoten2=0,1#"
    "[Rahmen]#Rahmendicke=7#RahmenDefaults=7,0,1,2,1,2#Knoten1=0,0#Knoten2=1,1#"
    "[Fluegel1]#Typ=1,0#Rahmendicke=7#RahmenDefaults=7.8,1.5,1,3,1,3#Knoten1=0,0#Knoten2=1,1#";

CFeApi Fenster(const std::string& sash) {
  CFeApi api;
  const std::string text = kFenster + sash;
  EXPECT_EQ(api.ReadFromBuffer(static_cast<long>(text.size()), text.data()), 1);
  return api;
}

TEST(Zeichnungen, DimensionLinesCarryExtensionLinesAndArrowheads) {
  const CFeApi api = Fenster("");
  CFeApiStrecken lines;
  ASSERT_EQ(api.GetZMaszLinie(0, lines), 1);
  ASSERT_EQ(lines.lAnzahl, 1);
  EXPECT_DOUBLE_EQ(lines.pdY1[0], -20.0);
  EXPECT_DOUBLE_EQ(lines.pdX2[0], 100.0);
  ASSERT_EQ(api.GetZMaszHilfslinien(1, 8.0, lines), 1);
  ASSERT_EQ(lines.lAnzahl, 2);
  EXPECT_DOUBLE_EQ(lines.pdX1[0] + lines.pdX2[0], -60.0);
  CFeApiPolygon arrows[2];
  ASSERT_EQ(api.GetZMaszPfeile(0, 6.0, 3.0, arrows[0], arrows[1]), 1);
  EXPECT_EQ(arrows[0].lAnzahl, 3);
  EXPECT_DOUBLE_EQ(arrows[1].pdX[0], 100.0);
  double box[4];
  ASSERT_EQ(api.GetBox(8.0, box[0], box[1], box[2], box[3]), 1);
  // The lines lie 30 to the left and 20 below, the extension lines reach 4 on.
  EXPECT_DOUBLE_EQ(box[0], -34.0);
  EXPECT_DOUBLE_EQ(box[1], -24.0);
  // Without a length there is neither extension line nor arrowhead.
  EXPECT_EQ(api.GetZMaszHilfslinien(2, 8.0, lines), 0);
  EXPECT_EQ(lines.lAnzahl, 0);
}

TEST(Zeichnungen, SymbolsFillingsAndFittingsComeFromTheSash) {
  CFeApi api = Fenster(
      "OeffSeite=Au#Gangart=Dr#Anschlag=Re#ZuerstAufgehend=1#R1=7.8,1.5,1,3,1,3,7#Beschlag1=0,1,1,"
      "50,1,0#");
  char text[256];
  EXPECT_EQ(api.GetFluegelGangart(0, text), 2);
  EXPECT_STREQ(text, "Dr");
  EXPECT_EQ(api.GetFluegelAnschlag(0, text), 2);
  EXPECT_STREQ(text, "Re");
  EXPECT_EQ(api.GetFluegelOeffSeite(0, text), 2);
  EXPECT_STREQ(text, "Au");
  CFeApiStrecken lines;
  ASSERT_EQ(api.GetFluegelOeffnungsSymbol(0, lines), 1);
  EXPECT_EQ(lines.lAnzahl, 2);
  CFeApiPolygon polygon;
  ASSERT_EQ(api.GetFluegelFuellungUmriss(0, polygon), 1);
  EXPECT_EQ(polygon.lAnzahl, 4);
  EXPECT_EQ(api.GetFluegelAnzahlLamellen(0), 0);
  ASSERT_EQ(api.GetFluegelGlaslichteHori(0, lines), 1);
  ASSERT_EQ(lines.lAnzahl, 1);
  EXPECT_NEAR(lines.pdX2[0] - lines.pdX1[0], 73.4, 1e-9);
  // Half way up the right side of the sash, whose outer edge lies 5.5 inside
  // the frame's.
  double x = 0.0;
  double y = 0.0;
  double winkel = 0.0;
  ASSERT_EQ(api.GetBeschlagPunkt(0, 0, x, y, winkel), 1);
  EXPECT_NEAR(x, 94.5, 1e-9);
  EXPECT_NEAR(y, 65.0, 1e-9);
  EXPECT_NEAR(winkel, 90.0, 1e-9);
  EXPECT_EQ(api.GetBeschlagZeichnung(0, 0, lines), 1);
  EXPECT_GT(lines.lAnzahl, 0);
  EXPECT_EQ(api.GetBeschlagTyp(0, 0), 0);
  EXPECT_EQ(api.GetBeschlagTyp(0, 1), -1);
  EXPECT_EQ(api.GetFluegelZuerstAufgehend(0), 1);
  EXPECT_EQ(api.GetFluegelBauteilTyp(1, 0, 0), 0);
  EXPECT_EQ(api.GetFluegelBauteilTyp(2, 0, 0), -1);
  EXPECT_EQ(api.GetRahmenBauteilTyp(1, 9), -1);
}

TEST(Zeichnungen, SlatsAreOutlinedOneByOne) {
  // Kind 2, slats 20 wide without gaps, 1 thick: 103.4 gives five and a rest.
  const CFeApi api = Fenster("Fuellung=2,20,0,1,0,0,0,0.5,5,5,1,1#");
  EXPECT_EQ(api.GetFluegelFuellungArt(0), eFeApiFuellungLamellen);
  ASSERT_EQ(api.GetFluegelAnzahlLamellen(0), 6);
  CFeApiPolygon polygon;
  ASSERT_EQ(api.GetFluegelLamellenUmriss(0, 5, polygon), 1);
  EXPECT_NEAR(polygon.pdY[2] - polygon.pdY[0], 3.4, 1e-9);
  EXPECT_EQ(api.GetFluegelLamellenUmriss(0, 6, polygon), 0);
  CFeApiStrecken lines;
  EXPECT_EQ(api.GetFluegelOeffnungsSymbol(0, lines), 0);
}

TEST(Zeichnungen, ViewsFromBothSidesDiffer) {
  const CFeApi api = Fenster("Gangart=Ki#");
  CFeApiStrecken inside;
  CFeApiStrecken outside;
  ASSERT_EQ(api.GetAnsicht(0, inside), 1);
  ASSERT_EQ(api.GetAnsicht(1, outside), 1);
  // Frame outline, sash outline and inner contour of the sash from inside; from
  // outside the frame's inner edge stands for the sash's outline.
  EXPECT_EQ(inside.lAnzahl, 12);
  EXPECT_EQ(outside.lAnzahl, 12);
  EXPECT_NE(inside.pdX1[4], outside.pdX1[4]);
  CFeApiStrecken sash;
  CFeApiStrecken copy;
  ASSERT_EQ(api.GetFluegelAnsicht(0, 0, sash), 1);
  EXPECT_EQ(sash.lAnzahl, 8);
  ASSERT_EQ(api.GetFluegelAnsicht(0, 1, copy), 1);
  EXPECT_EQ(copy.lAnzahl, 10);
  copy = inside;
  EXPECT_EQ(copy.lAnzahl, 12);
  EXPECT_EQ(copy.pdX2[11], inside.pdX2[11]);
}

TEST(Zeichnungen, AnyIndexOnAnyWindowIsAnswered) {
  CFeApi failed;
  failed.ReadFromFile("/gibt/es/nicht.aqz");
  CFeApi fresh;
  CFeApi full = Fenster("");
  for (CFeApi* api : {&fresh, &failed, &full}) {
    for (const long i :
         {-1L, 0L, 3L, std::numeric_limits<long>::max(), std::numeric_limits<long>::min()}) {
      if (api == &full && i == 0) continue;
      CFeApiStrecken lines;
      CFeApiPolygon p;
      char text[256];
      double d[3];
      EXPECT_EQ(api->GetZMaszLinie(i, lines), 0);
      EXPECT_EQ(api->GetZMaszHilfslinien(i, 5.0, lines), 0);
      EXPECT_EQ(api->GetZMaszPfeile(i, 5.0, 2.0, p, p), 0);
      EXPECT_EQ(api->GetFluegelOeffnungsSymbol(i, lines), 0);
      EXPECT_EQ(api->GetFluegelAnsicht(i, 1, lines), 0);
      EXPECT_EQ(api->GetFluegelFuellungUmriss(i, p), 0);
      EXPECT_EQ(api->GetFluegelAnzahlLamellen(i), 0);
      EXPECT_EQ(api->GetFluegelLamellenUmriss(i, 0, p), 0);
      EXPECT_EQ(api->GetFluegelGlaslichteVert(i, lines), 0);
      EXPECT_EQ(api->GetBeschlagPunkt(i, 0, d[0], d[1], d[2]), 0);
      EXPECT_EQ(api->GetBeschlagZeichnung(0, i, lines), 0);
      EXPECT_EQ(api->GetFluegelGangart(i, text), 0);
    }
  }
  CFeApiStrecken lines;
  EXPECT_EQ(fresh.GetAnsicht(1, lines), 0);
}

}  // namespace
}  // namespace lintavo::test
