// Mullions and transoms: set by themselves, cut to the frame and each other.
#include <algorithm>
#include <array>

#include <gtest/gtest.h>

#include "lintavo/model/CMFenster.h"

#include "support/Beispiele.h"

namespace lintavo::test {
namespace {

constexpr double kBreite = 8.0;

CMBauteil Vorlage() {
  CMBauteil vorlage;
  vorlage.dBreite = kBreite;
  return vorlage;
}

void ErwarteAchse(const CMFenster& fenster, long i, XY a, XY b) {
  const CMBauteil* bauteil = fenster.GetRahmenPtr()->GetEinzelBauteilPtr(i);
  ASSERT_NE(bauteil, nullptr);
  XY start;
  XY ende;
  ASSERT_TRUE(bauteil->GetAchspunkte(start, ende));
  EXPECT_NEAR(start.x, a.x, 1e-9) << "part " << i;
  EXPECT_NEAR(start.y, a.y, 1e-9) << "part " << i;
  EXPECT_NEAR(ende.x, b.x, 1e-9) << "part " << i;
  EXPECT_NEAR(ende.y, b.y, 1e-9) << "part " << i;
}

TEST(Pfosten, TwoSashesGiveOneMullionBetweenTheInnerFrameEdges) {
  CMFenster fenster = Raster(2, 1, 50.0, 100.0);
  fenster.GetPfostenVorlage() = Vorlage();
  for (int run = 0; run < 2; ++run) {
    ASSERT_TRUE(fenster.Berechne(true));
    ASSERT_EQ(fenster.GetRahmenPtr()->lGetAnzahlEinzelBauteile(), 1);
    ASSERT_EQ(fenster.GetRahmenPtr()->EinzelTeile.size(), 1u);
    ErwarteAchse(fenster, 0, {50.0, 7.0}, {50.0, 93.0});
  }
  const CMBauteil& pfosten = *fenster.GetRahmenEinzelBauteilPtr(0);
  EXPECT_EQ(pfosten.kAnfang.J(), 1);
  EXPECT_EQ(pfosten.kEnde.K(), 1);
  // Wherever the grid's first axes lie.
  CMFenster links = Raster(2, 1, 50.0, 100.0);
  links.GetPfostenVorlage() = Vorlage();
  links.GetAchsen().SetAchsAbstX(0, -200.0);
  links.GetAchsen().SetAchsAbstY(0, -200.0);
  ASSERT_TRUE(links.Berechne(true));
  ErwarteAchse(links, 0, {-150.0, -193.0}, {-150.0, -107.0});
  // Without the automatic none is made.
  CMFenster ohne = Raster(2, 1, 50.0, 100.0);
  ASSERT_TRUE(ohne.Berechne(false));
  EXPECT_TRUE(ohne.GetRahmenPtr()->EinzelTeile.empty());
}

TEST(Pfosten, AGridGivesFullLengthMembersThatCrossWhole) {
  CMFenster fenster = Raster(3, 3, 50.0, 50.0);
  fenster.GetPfostenVorlage() = Vorlage();
  ASSERT_TRUE(fenster.Berechne(true));
  EXPECT_EQ(fenster.GetRahmenPtr()->lGetAnzahlEinzelBauteile(), 4);
  for (long i = 0; i < 4; ++i) {
    EXPECT_NEAR(fenster.GetRahmenEinzelBauteilPtr(i)->GetAchsLaenge(), 136.0, 1e-9);
  }
}

TEST(Pfosten, AMullionEndsAtTheTransomItMeets) {
  CMFenster fenster = Raster(2, 2, 50.0, 50.0);
  fenster.AddRahmenEinzelBauteil(CMKnoten(1, 0), CMKnoten(1, 1), Vorlage());
  fenster.AddRahmenEinzelBauteil(CMKnoten(0, 1), CMKnoten(2, 1), Vorlage());
  ASSERT_TRUE(fenster.Berechne(false));
  ErwarteAchse(fenster, 0, {50.0, 7.0}, {50.0, 46.0});
  ErwarteAchse(fenster, 1, {7.0, 50.0}, {93.0, 50.0});
}

TEST(Pfosten, WhereEndsLieInEachOtherTheEarlierRunsThrough) {
  CMFenster fenster = Raster(2, 2, 50.0, 50.0);
  fenster.AddRahmenEinzelBauteil(CMKnoten(1, 1), CMKnoten(1, 0), Vorlage());
  fenster.AddRahmenEinzelBauteil(CMKnoten(0, 1), CMKnoten(1, 1), Vorlage());
  ASSERT_TRUE(fenster.Berechne(false));
  ErwarteAchse(fenster, 0, {50.0, 50.0}, {50.0, 7.0});
  ErwarteAchse(fenster, 1, {7.0, 50.0}, {46.0, 50.0});
}

TEST(Pfosten, AutomaticOnesKeepOffThoseThatAreThere) {
  // A mullion in the lower row alone: the transom and the upper half are missing.
  CMFenster fenster = Raster(2, 2, 50.0, 50.0);
  fenster.GetPfostenVorlage() = Vorlage();
  fenster.AddRahmenEinzelBauteil(CMKnoten(1, 0), CMKnoten(1, 1), Vorlage());
  ASSERT_TRUE(fenster.Berechne(true));
  EXPECT_EQ(fenster.GetRahmenPtr()->EinzelTeile.size(), 3u);
  // Every edge has its member already.
  CMFenster raster = Beispiel("raster_3x3.aqz");
  const std::vector<GEOM2_Polygon> before = Umrisse(raster);
  ASSERT_TRUE(raster.Berechne(true));
  const std::vector<GEOM2_Polygon> after = Umrisse(raster);
  ASSERT_EQ(after.size(), before.size());
  for (std::size_t n = 0; n < after.size(); ++n) {
    EXPECT_TRUE(GleichePunkte(after[n], before[n], 0.0)) << "outline " << n;
  }
}

TEST(Pfosten, OneThatGoesOnUnderASlantedTopIsFoundAgain) {
  // The common edge ends at a height of 140, nearest to the node at 100.
  CMFenster fenster = Raster(2, 2, 80.0, 100.0);
  fenster.GetPfostenVorlage() = Vorlage();
  fenster.GetFluegelPtr(2)->SetFormBeiwertY(0, 70.0, true);
  fenster.GetFluegelPtr(2)->SetFormBeiwertY(1, 60.0, true);
  fenster.GetFluegelPtr(3)->SetFormBeiwertY(0, 60.0, true);
  ASSERT_TRUE(fenster.Berechne(true));
  const std::vector<GEOM2_Polygon> before = Umrisse(fenster);
  ASSERT_EQ(fenster.GetRahmenPtr()->EinzelTeile.size(), 2u);
  ASSERT_TRUE(fenster.Berechne(true));
  const std::vector<GEOM2_Polygon> after = Umrisse(fenster);
  ASSERT_EQ(after.size(), before.size());
  for (std::size_t n = 0; n < after.size(); ++n) {
    EXPECT_TRUE(GleichePunkte(after[n], before[n], 0.0)) << "outline " << n;
  }
  // From its nodes alone it is the shorter one, but still the only one.
  fenster.Invalidiere(true);
  ASSERT_TRUE(fenster.Berechne(true));
  EXPECT_EQ(fenster.GetRahmenPtr()->EinzelTeile.size(), 2u);
}

// Two sashes above each other that share a part of their sides only, and two above one.
TEST(Pfosten, SashesThatShareAPartOfASideGetOneAlongIt) {
  for (const auto& [unten, oben, von, bis] : {std::array{0, 2, 1, 3}, std::array{1, 3, 0, 2},
                                              std::array{0, 3, 1, 2}, std::array{1, 2, 0, 3}}) {
    CMFenster fenster = Raster(3, 2, 50.0, 100.0);
    while (fenster.GetAnzahlFluegel() > 0) fenster.DeleteFluegel(0);
    fenster.GetRahmenPtr()->SetRahmenDefaults(7.0, 6.8, 0.0, 1, 2);
    fenster.GetPfostenVorlage() = Vorlage();
    fenster.AddFluegel(eFormRechteck, 0, CMKnoten(unten, 0), CMKnoten(oben, 1));
    fenster.AddFluegel(eFormRechteck, 0, CMKnoten(von, 1), CMKnoten(bis, 2));
    ASSERT_TRUE(fenster.Berechne(true));
    ASSERT_EQ(fenster.GetRahmenPtr()->EinzelTeile.size(), 1u);
    // From left to right, between the frame parts on both sides of the narrow place.
    ErwarteAchse(fenster, 0, {50.0 * std::max(unten, von) + 7.0, 100.0},
                 {50.0 * std::min(oben, bis) - 7.0, 100.0});
  }
  CMFenster tuerme = Raster(5, 2, 50.0, 100.0);
  while (tuerme.GetAnzahlFluegel() > 0) tuerme.DeleteFluegel(0);
  tuerme.GetRahmenPtr()->SetRahmenDefaults(7.0, 6.8, 0.0, 1, 2);
  tuerme.GetPfostenVorlage() = Vorlage();
  tuerme.AddFluegel(eFormRechteck, 0, CMKnoten(0, 0), CMKnoten(5, 1));
  tuerme.AddFluegel(eFormRechteck, 0, CMKnoten(0, 1), CMKnoten(2, 2));
  tuerme.AddFluegel(eFormRechteck, 0, CMKnoten(3, 1), CMKnoten(4, 2));
  for (int run = 0; run < 2; ++run) {
    ASSERT_TRUE(tuerme.Berechne(true));
    ASSERT_EQ(tuerme.GetRahmenPtr()->EinzelTeile.size(), 2u);
    ErwarteAchse(tuerme, 0, {7.0, 100.0}, {93.0, 100.0});
    ErwarteAchse(tuerme, 1, {157.0, 100.0}, {193.0, 100.0});
  }
}

TEST(Pfosten, AGroupOutsideTheFrameGetsNone) {
  CMFenster fenster = Raster(4, 1, 50.0, 100.0);
  fenster.DeleteFluegel(2);
  fenster.GetPfostenVorlage() = Vorlage();
  ASSERT_TRUE(fenster.Berechne(true));
  // Between the two sashes on the left; the frame leaves out the one on the right.
  ASSERT_EQ(fenster.GetRahmenPtr()->EinzelTeile.size(), 1u);
  ErwarteAchse(fenster, 0, {50.0, 7.0}, {50.0, 93.0});
}

TEST(Pfosten, BarsPiledOnEachOtherComeToRestInOneCalculation) {
  CMFenster fenster = Raster(3, 2, 50.0, 50.0);
  fenster.AddRahmenEinzelBauteil(CMKnoten(1, 0), CMKnoten(1, 2), Vorlage());
  fenster.AddRahmenEinzelBauteil(CMKnoten(0, 1), CMKnoten(1, 1), Vorlage());
  fenster.AddRahmenEinzelBauteil(CMKnoten(0, 1), CMKnoten(3, 1), Vorlage());
  for (int run = 0; run < 2; ++run) {
    ASSERT_TRUE(fenster.Berechne(false));
    ErwarteAchse(fenster, 1, {7.0, 50.0}, {46.0, 50.0});
    // It gives way to the earlier transom, and then to the mullion behind that.
    ErwarteAchse(fenster, 2, {54.0, 50.0}, {143.0, 50.0});
  }
}

TEST(Pfosten, FollowTheirNodesWhenADimensionMovesAnAxis) {
  CMFenster fenster = Raster(2, 1, 50.0, 100.0);
  fenster.AddRahmenEinzelBauteil(CMKnoten(1, 0), CMKnoten(1, 1), Vorlage());
  ASSERT_TRUE(fenster.Berechne(false));
  CMZusatzMasz masz;
  masz.SetHorizontal(CMKnoten(0, 0), CMKnoten(2, 0));
  masz.dLaenge = 160.0;
  fenster.AddZusatzMasz(masz);
  ASSERT_TRUE(fenster.Berechne(false));
  ErwarteAchse(fenster, 0, {80.0, 7.0}, {80.0, 93.0});
}

TEST(Pfosten, OneWithNothingInsideTheFrameIsNotCounted) {
  CMFenster fenster = Raster(2, 1, 50.0, 100.0);
  fenster.AddRahmenEinzelBauteil(CMKnoten(0, 0), CMKnoten(2, 0), Vorlage());
  fenster.AddRahmenEinzelBauteil(CMKnoten(1, 1), CMKnoten(1, 1), Vorlage());
  for (int run = 0; run < 2; ++run) {
    ASSERT_TRUE(fenster.Berechne(false));
    EXPECT_EQ(fenster.GetRahmenPtr()->lGetAnzahlEinzelBauteile(), 0);
  }
}

TEST(Pfosten, WhatEndedAtADeletedOneReachesOnAgain) {
  CMFenster fenster = Raster(2, 2, 50.0, 50.0);
  fenster.AddRahmenEinzelBauteil(CMKnoten(0, 1), CMKnoten(2, 1), Vorlage());
  fenster.AddRahmenEinzelBauteil(CMKnoten(1, 0), CMKnoten(1, 1), Vorlage());
  ASSERT_TRUE(fenster.Berechne(false));
  ErwarteAchse(fenster, 1, {50.0, 7.0}, {50.0, 46.0});
  EXPECT_TRUE(fenster.DeleteRahmenEinzelBauteil(0));
  EXPECT_FALSE(fenster.DeleteRahmenEinzelBauteil(1));
  ASSERT_TRUE(fenster.Berechne(false));
  ErwarteAchse(fenster, 0, {50.0, 7.0}, {50.0, 50.0});
}

// Gaps up to the tolerance are closed by the union, so a sash beside one still
// lies on the mullion there.
TEST(Pfosten, AGapOfTheToleranceItselfBelongsToTheMullion) {
  CMFenster fenster = Raster(3, 1, 50.0, 100.0);
  while (fenster.GetAnzahlFluegel() > 0) fenster.DeleteFluegel(0);
  fenster.GetAchsen().SetAchsAbstX(1, 70.0);
  fenster.GetAchsen().SetAchsAbstX(2, 0.001);
  fenster.GetRahmenPtr()->SetRahmenDefaults(7.0, 6.8, 0.0, 1, 2);
  fenster.AddFluegel(eFormRechteck, 0, CMKnoten(0, 0), CMKnoten(1, 1));
  CMFensterSatz* rechts = fenster.AddFluegel(eFormRechteck, 0, CMKnoten(2, 0), CMKnoten(3, 1));
  fenster.AddRahmenEinzelBauteil(CMKnoten(1, 0), CMKnoten(1, 1), Vorlage());
  ASSERT_TRUE(fenster.Berechne(false));
  XY low;
  XY high;
  rechts->RahmenPolygon.GetMinMax(low, high);
  EXPECT_NEAR(low.x, 70.001 + kBreite / 2.0, 1e-9);
}

TEST(Fluegel, OverlapAndZeroAreaAreRefusedAndLeaveTheWindowAsItWas) {
  CMFenster fenster = Raster(3, 1, 50.0, 100.0);
  const auto number = [&](const CMKnoten& k1, const CMKnoten& k2) {
    try {
      fenster.AddFluegel(eFormRechteck, 0, k1, k2);
    } catch (const CMException& e) {
      return e.iNummer;
    }
    return 0;
  };
  EXPECT_EQ(number(CMKnoten(1, 0), CMKnoten(3, 1)), 23);
  EXPECT_EQ(number(CMKnoten(1, 0), CMKnoten(1, 1)), 22);
  EXPECT_EQ(fenster.GetAnzahlFluegel(), 3);
  EXPECT_EQ(fenster.AddFluegel(5, 0, CMKnoten(0, 0), CMKnoten(1, 1)), nullptr);
}

TEST(Fluegel, ASashThatTheFrameSwallowsFailsByItsNumber) {
  CMFenster fenster = Raster(2, 1, 50.0, 100.0);
  fenster.GetAchsen().SetAchsAbstX(2, 5.0);
  fenster.GetFluegelPtr(1L)->SetRahmenDefaults(7.8, 6.8, 0.0, 1, 3);
  fenster.AddRahmenEinzelBauteil(CMKnoten(1, 0), CMKnoten(1, 1), Vorlage());
  EXPECT_FALSE(fenster.Berechne(false));
  CString text;
  EXPECT_EQ(fenster.GetFehler(text), 20);
  EXPECT_STREQ(text, "Das Rahmenpolygon von Flügel Nr.1 kann nicht erzeugt werden !");
}

TEST(Fluegel, ASashWhoseInnerContourVanishesFailsWithMessage22) {
  CMFenster fenster = Raster(1, 1, 50.0, 100.0);
  fenster.GetFluegelPtr(0L)->SetRahmenDefaults(25.0, 6.8, 0.0, 1, 3);
  EXPECT_FALSE(fenster.Berechne(false));
  EXPECT_EQ(fenster.GetFehler(), 22);
}

TEST(Fluegel, AllComponentsAndFillingsCanBeCollected) {
  CMFenster fenster = Raster(2, 1, 50.0, 100.0);
  fenster.AddRahmenEinzelBauteil(CMKnoten(1, 0), CMKnoten(1, 1), Vorlage());
  fenster.GetRahmenPtr()->Fuellung.SetLamellen(3.0, 1.0);
  fenster.GetFluegelPtr(1L)->Fuellung.SetKonstant(3.0);
  ASSERT_TRUE(fenster.Berechne(false));
  std::vector<CMBauteil> bauteile;
  fenster.GetBauteile(bauteile);
  // Four frame parts, the mullion, four parts of each sash.
  EXPECT_EQ(bauteile.size(), 13u);
  std::vector<CMFuellung> fuellungen;
  fenster.GetFuellungen(fuellungen);
  ASSERT_EQ(fuellungen.size(), 3u);
  EXPECT_TRUE(fuellungen[0].IsLamellen()) << "the frame's own";
  EXPECT_TRUE(fuellungen[1].IsGlas());
  EXPECT_TRUE(fuellungen[2].IsKonstant());
}

TEST(Fluegel, CopiesAreDeepAndDeletingClosesTheGap) {
  CMFenster fenster = Raster(3, 1, 50.0, 100.0);
  fenster.GetFluegelPtr(2L)->SetName("Drei");
  CMFenster copy = fenster;
  copy.GetFluegelPtr(0L)->SetName("Kopie");
  EXPECT_EQ(fenster.GetFluegelPtr(0L)->strName, "");
  EXPECT_TRUE(fenster.DeleteFluegel(1));
  EXPECT_FALSE(fenster.DeleteFluegel(2));
  EXPECT_EQ(fenster.GetFluegelNr(fenster.GetFluegelPtr("DREI")), 1);
  EXPECT_EQ(copy.GetAnzahlFluegel(), 3);
  const CMFenster& itself = copy;
  copy = itself;
  EXPECT_EQ(copy.GetFluegelPtr(2L)->strName, "Drei");
}

}  // namespace
}  // namespace lintavo::test
