// Extra parts: their chains and their places.
#include <climits>
#include <limits>

#include <gtest/gtest.h>

#include "lintavo/model/CMException.h"
#include "lintavo/sash/CMFensterSatzBogen.h"
#include "lintavo/sash/CMFensterSatzRechteck.h"

#include "support/Geometrie.h"
#include "support/Saetze.h"

namespace lintavo::test {
namespace {

constexpr long kUnten = 0;
constexpr long kRechts = 1;
constexpr long kLinks = 3;

// A sash 1000 by 800 with a frame of 50; side 0 is the bottom, 1 the right.
CMFensterSatzRechteck Fluegel() {
  CMFensterSatzRechteck satz;
  satz.RahmenVorlage.dBreite = 50.0;
  EXPECT_TRUE(BaueRahmen(satz, {0, 0}, {1000, 800}));
  return satz;
}

CMBauteil Teil(double breite) {
  CMBauteil teil;
  teil.dBreite = breite;
  return teil;
}

// A part as a file holds it: not placed, in no chain.
CMBauteil AusDatei(long typ, long seite, double breite) {
  CMBauteil teil = Teil(breite);
  teil.lTyp = typ;
  teil.lSeite = seite;
  return teil;
}

void ErwarteStrecke(const CMBauteil& teil, const XY& von, const XY& bis) {
  XY a;
  XY b;
  ASSERT_TRUE(teil.GetAchspunkte(a, b));
  EXPECT_NEAR(a.x, von.x, 1e-6);
  EXPECT_NEAR(a.y, von.y, 1e-6);
  EXPECT_NEAR(b.x, bis.x, 1e-6);
  EXPECT_NEAR(b.y, bis.y, 1e-6);
}

// All links of a record, frame parts first.
std::vector<long> Glieder(const CMFensterSatz& satz) {
  std::vector<long> glieder;
  for (const CMBauteil& teil : satz.RahmenTeile) glieder.push_back(teil.lKette);
  for (const CMBauteil& teil : satz.EinzelTeile) glieder.push_back(teil.lKette);
  return glieder;
}

std::vector<double> Lagen(const CMFensterSatz& satz) {
  std::vector<double> lagen;
  for (const CMBauteil& teil : satz.EinzelTeile) {
    const GEOM2_Achse& achse = teil.Achse(0);
    lagen.insert(lagen.end(), {achse.Start.x, achse.Start.y, achse.dLaenge, achse.dWinkel,
                               achse.dWinkelAnfang, achse.dWinkelEnde});
  }
  return lagen;
}

}  // namespace

TEST(Zusatzteil, LiesBesideWhatItsSideCarries) {
  CMFensterSatzRechteck satz = Fluegel();
  const CMBauteil* a = satz.AddZusatzteil(kUnten, Teil(20.0), true);
  ASSERT_NE(a, nullptr);
  EXPECT_EQ(a, &satz.EinzelTeile[0]);
  EXPECT_TRUE(a->IsZusatzteilAussen());
  ErwarteStrecke(*a, {0, -10}, {1000, -10});
  const CMBauteil* b = satz.AddZusatzteil(kUnten, *a, true);
  ASSERT_NE(b, nullptr);
  ErwarteStrecke(*b, {0, -30}, {1000, -30});

  const CMBauteil* c = satz.AddZusatzteil(kRechts, Teil(10.0));
  ASSERT_NE(c, nullptr);
  EXPECT_TRUE(c->IsZusatzteilInnen());
  ErwarteStrecke(*c, {945, 50}, {945, 750});
  const CMBauteil* d = satz.AddZusatzteil(kRechts, Teil(8.0));
  ASSERT_NE(d, nullptr);
  ErwarteStrecke(*d, {936, 50}, {936, 750});

  EXPECT_EQ(Glieder(satz), (std::vector<long>{0, 2, -1, -1, 1, -1, 3, -1}));
  GEOM2_Polygon polygon;
  ASSERT_TRUE(satz.ErzeugeRahmenInnenPolygon(polygon));
  EXPECT_TRUE(GleicherRing(Rechteck(50, 50, 932, 750), polygon));
  ASSERT_TRUE(satz.ErzeugeRahmenAussenPolygon(polygon));
  EXPECT_TRUE(GleicherRing(Rechteck(0, -40, 1018, 800), polygon))
      << "inner and outer widths alike count outside";
}

TEST(Zusatzteil, OnlyOnStraightSidesThatExist) {
  CMFensterSatzRechteck satz = Fluegel();
  for (const long seite : {-1L, 4L, LONG_MAX, LONG_MIN}) {
    EXPECT_EQ(satz.AddZusatzteil(seite, Teil(10.0)), nullptr) << seite;
  }
  EXPECT_TRUE(satz.EinzelTeile.empty());

  CMFensterSatzBogen bogen;
  bogen.dStich = 500.0;
  bogen.RahmenVorlage.dBreite = 50.0;
  ASSERT_TRUE(BaueRahmen(bogen, {0, 0}, {1000, 2000}));
  EXPECT_NE(bogen.AddZusatzteil(kUnten, Teil(10.0)), nullptr);
  EXPECT_EQ(bogen.AddZusatzteil(5, Teil(10.0)), nullptr) << "a side of the arch";
  EXPECT_EQ(bogen.EinzelTeile.size(), 1U);
}

TEST(Zusatzteil, FromAFileLinkedOnceInListOrder) {
  CMFensterSatzRechteck satz = Fluegel();
  satz.EinzelTeile = {
      AusDatei(eRahmenteil, -1, 30.0),        AusDatei(eZusatzteilInnen, kLinks, 10),
      AusDatei(eZusatzteilInnen, kUnten, 12), AusDatei(eZusatzteilAussen, kLinks, 9),
      AusDatei(eZusatzteilInnen, kLinks, 6),  AusDatei(eZusatzteilInnen, kLinks, 0)};
  ASSERT_TRUE(satz.PlaziereZusatzteile(false));
  ErwarteStrecke(satz.EinzelTeile[1], {55, 750}, {55, 50});
  ErwarteStrecke(satz.EinzelTeile[2], {50, 56}, {950, 56});
  ErwarteStrecke(satz.EinzelTeile[4], {63, 750}, {63, 50});
  EXPECT_EQ(satz.EinzelTeile[3].GetAchsLaenge(), 0.0) << "outer parts of a sash stay as they are";
  const std::vector<long> glieder = {2, -1, -1, 1, -1, 4, -1, -1, -1, -1};
  EXPECT_EQ(Glieder(satz), glieder);

  // Again, and with the frame built anew: the same chains, the same places.
  const std::vector<double> lagen = Lagen(satz);
  ASSERT_TRUE(satz.PlaziereZusatzteile(false));
  EXPECT_EQ(Glieder(satz), glieder);
  EXPECT_EQ(Lagen(satz), lagen);
  ASSERT_TRUE(BaueRahmen(satz, {0, 0}, {1000, 800}));
  ASSERT_TRUE(satz.PlaziereZusatzteile(false));
  EXPECT_EQ(Glieder(satz), glieder);
  EXPECT_EQ(Lagen(satz), lagen);
}

TEST(Zusatzteil, RelinkedWhenTheFramePartsAreNew) {
  CMFensterSatzRechteck satz = Fluegel();
  satz.AddZusatzteil(kUnten, Teil(10.0));
  satz.AddZusatzteil(kUnten, Teil(8.0));
  satz.AddZusatzteil(kRechts, Teil(6.0));
  const std::vector<long> glieder = Glieder(satz);
  const std::vector<double> lagen = Lagen(satz);

  satz.bMitRahmen = false;
  ASSERT_TRUE(satz.ErzeugeRahmenBauteile());
  ASSERT_TRUE(satz.PlaziereZusatzteile(false));
  EXPECT_EQ(satz.lGetAnzahlEinzelBauteile(), 0) << "no frame, no place";
  satz.bMitRahmen = true;
  ASSERT_TRUE(satz.ErzeugeRahmenBauteile());
  ASSERT_TRUE(satz.PlaziereZusatzteile(false));
  EXPECT_EQ(Glieder(satz), glieder);
  EXPECT_EQ(Lagen(satz), lagen);
}

TEST(Zusatzteil, FollowsItsSideToAnotherFramePart) {
  CMFensterSatzRechteck satz = Fluegel();
  satz.AddZusatzteil(kRechts, Teil(10.0));
  // Side 1 belongs to the second frame part; now it takes the third one's place.
  satz.RahmenPolygon.SetAttribut(kRechts, 2);
  satz.RahmenPolygon.SetAttribut(2, 1);
  ASSERT_TRUE(satz.ErzeugeRahmenBauteile());
  ASSERT_TRUE(satz.PlaziereZusatzteile(false));
  EXPECT_EQ(Glieder(satz), (std::vector<long>{-1, -1, 0, -1, -1}));
  ErwarteStrecke(satz.EinzelTeile[0], {945, 50}, {945, 750});
}

TEST(Zusatzteil, DeletingKeepsEveryChain) {
  for (long weg = 0; weg < 5; ++weg) {
    CMFensterSatzRechteck satz = Fluegel();
    // Chains: bottom 0 -> 2 -> 4, right 1 -> 3. Widths tell the parts apart.
    for (long i = 0; i < 5; ++i) {
      satz.AddZusatzteil(i % 2, Teil(10.0 + static_cast<double>(i)), false);
    }
    ASSERT_TRUE(satz.DeleteEinzelBauteil(weg));
    for (const long seite : {kUnten, kRechts}) {
      double erwartet = 0.0;
      for (long i = seite; i < 5; i += 2)
        erwartet += i == weg ? 0.0 : 10.0 + static_cast<double>(i);
      EXPECT_EQ(satz.GetAbstandZurRahmenAussenSeite(seite), erwartet) << "without " << weg;
    }
    const std::vector<long> glieder = Glieder(satz);
    ASSERT_TRUE(satz.PlaziereZusatzteile(false));
    EXPECT_EQ(Glieder(satz), glieder);
    EXPECT_EQ(satz.lGetAnzahlEinzelBauteile(), 4);
  }
  CMFensterSatzRechteck satz = Fluegel();
  EXPECT_FALSE(satz.DeleteEinzelBauteil(0));
  EXPECT_FALSE(satz.DeleteEinzelBauteil(-1));
}

TEST(Zusatzteil, WithoutAPlaceItLeavesTheRestAlone) {
  CMFensterSatzRechteck satz = Fluegel();
  constexpr double kInf = std::numeric_limits<double>::infinity();
  satz.EinzelTeile = {AusDatei(eZusatzteilInnen, 99, 10.0),
                      AusDatei(eZusatzteilInnen, LONG_MIN, 10.0),
                      AusDatei(eZusatzteilInnen, kUnten, 2000.0),
                      AusDatei(eZusatzteilInnen, kUnten, 1e308),
                      AusDatei(eZusatzteilInnen, kUnten, kInf),
                      AusDatei(eZusatzteilInnen, kUnten, std::numeric_limits<double>::quiet_NaN()),
                      AusDatei(eZusatzteilInnen, kUnten, 10.0),
                      AusDatei(eZusatzteilAussen, kRechts, 1e308),
                      AusDatei(eZusatzteilAussen, kRechts, kInf),
                      AusDatei(eZusatzteilAussen, kRechts, 10.0)};
  satz.EinzelTeile[6].Achsen.clear();
  ASSERT_TRUE(satz.PlaziereZusatzteile(false));
  ASSERT_TRUE(satz.PlaziereZusatzteile(true));
  EXPECT_EQ(satz.lGetAnzahlEinzelBauteile(), 2);
  ErwarteStrecke(satz.EinzelTeile[6], {50, 55}, {950, 55});
  ErwarteStrecke(satz.EinzelTeile[9], {1005, 0}, {1005, 800});
  GEOM2_Polygon polygon;
  ASSERT_TRUE(satz.ErzeugeRahmenInnenPolygon(polygon));
  EXPECT_TRUE(GleicherRing(Rechteck(50, 60, 950, 750), polygon));

  // A part that loses its place does not count any more, and comes back.
  satz.EinzelTeile[6].dBreite = 2000.0;
  ASSERT_TRUE(satz.PlaziereZusatzteile(false));
  EXPECT_EQ(satz.lGetAnzahlEinzelBauteile(), 1);
  EXPECT_EQ(satz.GetAbstandZurRahmenInnenSeite(true, kUnten), 50.0);
  satz.EinzelTeile[6].dBreite = 10.0;
  ASSERT_TRUE(satz.PlaziereZusatzteile(false));
  EXPECT_EQ(satz.GetAbstandZurRahmenInnenSeite(true, kUnten), 60.0);
}

TEST(Zusatzteil, ComesBackToItsPlaceInTheOrderOfTheList) {
  CMFensterSatzRechteck satz = Fluegel();
  satz.EinzelTeile = {AusDatei(eZusatzteilInnen, kUnten, 2000.0),
                      AusDatei(eZusatzteilInnen, kUnten, 8.0)};
  ASSERT_TRUE(satz.PlaziereZusatzteile(false));
  ErwarteStrecke(satz.EinzelTeile[1], {50, 54}, {950, 54});
  satz.EinzelTeile[0].dBreite = 10.0;
  ASSERT_TRUE(satz.PlaziereZusatzteile(false));
  ErwarteStrecke(satz.EinzelTeile[0], {50, 55}, {950, 55});
  ErwarteStrecke(satz.EinzelTeile[1], {50, 64}, {950, 64});
}

TEST(Zusatzteil, DamagedChains) {
  CMFensterSatzRechteck satz = Fluegel();
  satz.AddZusatzteil(kUnten, Teil(10.0), true);
  satz.AddZusatzteil(kUnten, Teil(10.0), true);
  const std::vector<long> glieder = Glieder(satz);

  // One that bites its tail is cut there, one shared by two sides after the first.
  satz.EinzelTeile[1].lKette = 0;
  EXPECT_EQ(satz.AddZusatzteil(kUnten, Teil(10.0), true), nullptr);
  satz.RahmenTeile[kRechts].lKette = 0;
  ASSERT_TRUE(satz.PlaziereZusatzteile(true));
  EXPECT_EQ(Glieder(satz), glieder);

  // A link to a part that is missing is an error of the record; so is one that
  // would name just the part that is to be added.
  for (const long fehlt : {2L, 77L, -2L, LONG_MAX, LONG_MIN}) {
    satz.EinzelTeile[1].lKette = fehlt;
    EXPECT_EQ(satz.AddZusatzteil(kUnten, Teil(10.0), true), nullptr) << fehlt;
    try {
      satz.PlaziereZusatzteile(true);
      ADD_FAILURE() << fehlt;
    } catch (const CMException& e) {
      EXPECT_EQ(e.iNummer, 94);
      EXPECT_FALSE(e.strText.IsEmpty());
    }
    EXPECT_EQ(satz.EinzelTeile.size(), 2U);
  }
}

}  // namespace lintavo::test
