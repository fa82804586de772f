// Dimension lines, their extension lines and arrowheads, and the box around them.
#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "lintavo/model/CMFenster.h"

#include "support/Beispiele.h"
#include "support/Geometrie.h"

namespace lintavo::test {
namespace {

testing::AssertionResult Laeuft(const CMStrecke& s, const XY& von, const XY& bis) {
  XY a;
  XY b;
  s.GetPunkte(a, b);
  const auto nah = [](const XY& p, const XY& q) {
    return std::abs(p.x - q.x) < 1e-9 && std::abs(p.y - q.y) < 1e-9;
  };
  if (nah(a, von) && nah(b, bis)) return testing::AssertionSuccess();
  return testing::AssertionFailure()
         << "(" << a.x << "," << a.y << ")-(" << b.x << "," << b.y << ")";
}

CMZusatzMasz Masz(long art, long richtung, int j, int k, double laenge, double abstand) {
  CMZusatzMasz masz;
  masz.lArt = art;
  masz.lRichtung = richtung;
  masz.kKnoten1 = CMKnoten(j, k);
  masz.dLaenge = laenge;
  masz.dAbstand = abstand;
  return masz;
}

constexpr long kEinseitig = 1;
constexpr long kZentrisch = 2;
constexpr long kHorizontal = 1;
constexpr long kVertikal = 0;

// Vertical axes at 0, 600, 1200, horizontal ones at 0 and 500.
class Maszlinie : public testing::Test {
 protected:
  Maszlinie() {
    CMAchsen& achsen = fenster.GetAchsen();
    for (const double d : {0.0, 600.0, 600.0}) achsen.AddVerti(d);
    for (const double d : {0.0, 500.0}) achsen.AddHori(d);
  }

  CMFenster fenster;
  CMStrecke s;
};

TEST_F(Maszlinie, RunsFromNodeOneOverTheLength) {
  const long breite = fenster.AddZusatzMasz(Masz(kEinseitig, kHorizontal, 0, 0, 1200.0, -200.0));
  ASSERT_TRUE(fenster.GetMaszline(breite, s));
  EXPECT_TRUE(Laeuft(s, {0.0, -200.0}, {1200.0, -200.0}));
  ASSERT_TRUE(fenster.GetMaszline(breite, s, 30.0));
  EXPECT_TRUE(Laeuft(s, {0.0, 30.0}, {1200.0, 30.0}));

  const long mitte = fenster.AddZusatzMasz(Masz(kZentrisch, kVertikal, 1, 1, 800.0, 100.0));
  ASSERT_TRUE(fenster.GetMaszline(mitte, s));
  EXPECT_TRUE(Laeuft(s, {700.0, 100.0}, {700.0, 900.0}));
}

TEST_F(Maszlinie, RunsRightAndUpForNegativeLengthsToo) {
  const long links = fenster.AddZusatzMasz(Masz(kEinseitig, kHorizontal, 2, 0, -500.0, 0.0));
  ASSERT_TRUE(fenster.GetMaszline(links, s));
  EXPECT_TRUE(Laeuft(s, {700.0, 0.0}, {1200.0, 0.0}));
  const long mitte = fenster.AddZusatzMasz(Masz(kZentrisch, kVertikal, 0, 1, -80.0, 5.0));
  ASSERT_TRUE(fenster.GetMaszline(mitte, s));
  EXPECT_TRUE(Laeuft(s, {5.0, 460.0}, {5.0, 540.0}));
}

TEST_F(Maszlinie, DistanceIsScaledOnlyOnRequest) {
  const long i = fenster.AddZusatzMasz(Masz(kEinseitig, kVertikal, 1, 0, 500.0, -40.0));
  ASSERT_TRUE(fenster.GetMaszline(i, s, true, 2.5));
  EXPECT_TRUE(Laeuft(s, {500.0, 0.0}, {500.0, 500.0}));
  ASSERT_TRUE(fenster.GetMaszline(i, s, false, 2.5));
  EXPECT_TRUE(Laeuft(s, {560.0, 0.0}, {560.0, 500.0}));
}

// Only the form with a distance tells that a dimension has no line.
TEST_F(Maszlinie, DimensionWithoutAKindHasNoLine) {
  const CMStrecke before(1.0, 2.0, 3.0, 4.0);
  for (const CMZusatzMasz& masz :
       {Masz(0, kHorizontal, 0, 0, 100.0, 5.0), Masz(kEinseitig, 7, 0, 0, 100.0, 5.0)}) {
    const long i = fenster.AddZusatzMasz(masz);
    s = before;
    EXPECT_FALSE(fenster.GetMaszline(i, s, 5.0));
    EXPECT_TRUE(fenster.GetMaszline(i, s));
    EXPECT_TRUE(fenster.GetMaszline(i, s, true, 2.0));
    EXPECT_TRUE(Laeuft(s, {1.0, 2.0}, {3.0, 4.0}));
    CMStrecke l1;
    CMStrecke l2;
    EXPECT_FALSE(fenster.GetMaszHilfsLinien(i, 10.0, l1, l2));
  }
}

TEST_F(Maszlinie, NothingForAMissingDimension) {
  fenster.AddZusatzMasz(Masz(kEinseitig, kHorizontal, 0, 0, 1200.0, -200.0));
  CMStrecke l;
  GEOM2_Polygon p;
  for (const long i : {-1L, 1L}) {
    EXPECT_FALSE(fenster.GetMaszline(i, s));
    EXPECT_FALSE(fenster.GetMaszline(i, s, 1.0));
    EXPECT_FALSE(fenster.GetMaszline(i, s, true, 1.0));
    EXPECT_FALSE(fenster.GetMaszHilfsLinien(i, 10.0, s, l));
    EXPECT_FALSE(fenster.GetMaszBegrenzung(i, 5.0, 2.0, p, p));
  }
}

TEST_F(Maszlinie, ExtensionLinesAndArrowheadsOfADimension) {
  const long i = fenster.AddZusatzMasz(Masz(kEinseitig, kHorizontal, 0, 0, 1200.0, -200.0));
  CMStrecke l1;
  CMStrecke l2;
  ASSERT_TRUE(fenster.GetMaszHilfsLinien(i, 30.0, l1, l2));
  EXPECT_TRUE(Laeuft(l1, {0.0, -185.0}, {0.0, -215.0}));
  EXPECT_TRUE(Laeuft(l2, {1200.0, -185.0}, {1200.0, -215.0}));
  GEOM2_Polygon p1;
  GEOM2_Polygon p2;
  ASSERT_TRUE(fenster.GetMaszBegrenzung(i, 20.0, 8.0, p1, p2));
  EXPECT_TRUE(GleichesPolygon(Poly("(0,-200) (20,-204) (20,-196)"), p1));
  EXPECT_TRUE(GleichesPolygon(Poly("(1200,-200) (1180,-196) (1180,-204)"), p2));
}

// The direction of the line is (0.6, 0.8), its left side (-0.8, 0.6).
TEST(Maszbegrenzung, FollowsASlantedLine) {
  const CMStrecke s(10.0, 20.0, 40.0, 60.0);
  CMStrecke l1;
  CMStrecke l2;
  ASSERT_TRUE(CMFenster::GetMaszHilfsLinien(s, 10.0, l1, l2));
  EXPECT_TRUE(Laeuft(l1, {6.0, 23.0}, {14.0, 17.0}));
  EXPECT_TRUE(Laeuft(l2, {36.0, 63.0}, {44.0, 57.0}));
  GEOM2_Polygon p1 = Poly("(7,7)");
  GEOM2_Polygon p2 = p1;
  ASSERT_TRUE(CMFenster::GetMaszBegrenzung(s, 5.0, 2.0, p1, p2));
  EXPECT_TRUE(GleichesPolygon(Poly("(10,20) (13.8,23.4) (12.2,24.6)"), p1));
  EXPECT_TRUE(GleichesPolygon(Poly("(40,60) (36.2,56.6) (37.8,55.4)"), p2));
}

TEST(Maszbegrenzung, RefusesALineWithoutADirection) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  for (const CMStrecke& s : {CMStrecke(3.0, 4.0, 3.0, 4.0), CMStrecke(0.0, 0.0, 5e-7, 0.0),
                             CMStrecke(0.0, 0.0, nan, 0.0)}) {
    CMStrecke l1(1.0, 2.0, 3.0, 4.0);
    CMStrecke l2 = l1;
    EXPECT_FALSE(CMFenster::GetMaszHilfsLinien(s, 10.0, l1, l2));
    EXPECT_TRUE(Laeuft(l1, {1.0, 2.0}, {3.0, 4.0}));
    GEOM2_Polygon p1 = Poly("(7,7)");
    GEOM2_Polygon p2 = p1;
    EXPECT_FALSE(CMFenster::GetMaszBegrenzung(s, 5.0, 2.0, p1, p2));
    EXPECT_EQ(p1.GetAnzahl(), 1);
  }
}

void ErwarteBox(const double box[4], double xmin, double ymin, double xmax, double ymax) {
  EXPECT_NEAR(box[0], xmin, 1e-9);
  EXPECT_NEAR(box[1], ymin, 1e-9);
  EXPECT_NEAR(box[2], xmax, 1e-9);
  EXPECT_NEAR(box[3], ymax, 1e-9);
}

TEST(Box, IsWidenedByTheExtensionLines) {
  CMFenster fenster = Raster(1, 1, 100.0, 80.0);
  ASSERT_TRUE(fenster.Berechne(false));
  double box[4];
  fenster.GetBox(6.0, box);
  ErwarteBox(box, 0.0, 0.0, 100.0, 80.0);

  // Lines 20 below and 20 to the left; their extension lines reach 3 further.
  fenster.ZusatzMaszeFuerBreiteUndHoeheAutomatisch(-20.0);
  fenster.GetBox(6.0, box);
  ErwarteBox(box, -23.0, -23.0, 100.0, 80.0);
  fenster.GetBox(6.0, true, 2.0, box);
  ErwarteBox(box, -43.0, -43.0, 100.0, 80.0);
  fenster.GetBox(6.0, false, 2.0, box);
  ErwarteBox(box, -23.0, -23.0, 100.0, 80.0);

  // A dimension without a length has no extension lines.
  fenster.AddZusatzMasz(Masz(kEinseitig, kHorizontal, 0, 0, 0.0, -500.0));
  fenster.GetBox(6.0, box);
  ErwarteBox(box, -23.0, -23.0, 100.0, 80.0);
}

TEST(Oeffnungssymbol, IsThatOfTheSash) {
  CMFenster fenster = Raster(2, 1, 100.0, 80.0);
  ASSERT_TRUE(fenster.Berechne(false));
  fenster.GetFluegelPtr(1L)->lGangart = static_cast<int>(CMFensterSatz::GetGangArtIndex("Dr"));
  std::vector<CMStrecke> lines;
  EXPECT_FALSE(fenster.GetFluegelOeffnungsSymbol(-1, lines));
  EXPECT_FALSE(fenster.GetFluegelOeffnungsSymbol(2, lines));
  EXPECT_TRUE(lines.empty());
  std::vector<CMStrecke> eigene;
  ASSERT_TRUE(fenster.GetFluegelPtr(1L)->GetOeffSymbol(eigene));
  ASSERT_TRUE(fenster.GetFluegelOeffnungsSymbol(1, lines));
  ASSERT_EQ(lines.size(), eigene.size());
  XY a;
  XY b;
  eigene[0].GetPunkte(a, b);
  EXPECT_TRUE(Laeuft(lines[0], a, b));
  // Only glass shows how the sash opens.
  fenster.GetFluegelPtr(1L)->Fuellung.SetKonstant(2.0);
  EXPECT_FALSE(fenster.GetFluegelOeffnungsSymbol(1, lines));
}

}  // namespace
}  // namespace lintavo::test
