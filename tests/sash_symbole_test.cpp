// Opening symbols: what is drawn for each kind and hinge side, and where.
#include <cmath>
#include <memory>

#include <gtest/gtest.h>

#include "lintavo/model/CMFenster.h"

#include "support/Beispiele.h"
#include "support/Fluegel.h"
#include "support/Geometrie.h"

namespace lintavo::test {
namespace {

constexpr int kGangarten = 12;
constexpr int kAnschlaege = 4;

std::vector<CMStrecke> Symbol(CMFensterSatz& fluegel, int gangart, int anschlag) {
  fluegel.lGangart = gangart;
  fluegel.lAnschlag = anschlag;
  std::vector<CMStrecke> lines;
  const bool any = fluegel.GetOeffSymbol(lines);
  EXPECT_EQ(any, !lines.empty());
  return lines;
}

// A sash without a frame width: the symbol fills the outline itself.
//
//     (50,200)
//       /\          The gable stands for an arch: its sides are the lines
//      /  \         y = 100 + 2x and y = 300 - 2x.
//     |    |
//     |____| (100,0)
const char* const kGiebel = "(0,0) (100,0) (100,100) (50,200) (0,100)";

// --- every kind on a rectangle -----------------------------------------------------

struct Fall {
  const char* name;
  int gangart;
  int anschlag;
  const char* linien;
};

std::ostream& operator<<(std::ostream& out, const Fall& fall) {
  return out << fall.name;
}

class SymbolImRechteck : public testing::TestWithParam<Fall> {};

// The inner contour runs from (10,10) to (110,210): its centre is (60,110), a
// quarter of its width 25 and of its height 50.
TEST_P(SymbolImRechteck, HasTheseLines) {
  CMFensterSatzRechteck fluegel = Fluegel(Rechteck(0, 0, 120, 220), 10.0);
  EXPECT_TRUE(GleicheLinien(Linien(GetParam().linien),
                            Symbol(fluegel, GetParam().gangart, GetParam().anschlag)));
}

const char* const kPfeilNachRechts =
    "(45,110) (75,110)  (75,110) (65,115)  (65,115) (65,105)  (65,105) (75,110)";
const char* const kPfeilNachLinks =
    "(75,110) (45,110)  (45,110) (55,105)  (55,105) (55,115)  (55,115) (45,110)";

INSTANTIATE_TEST_SUITE_P(
    Sashes, SymbolImRechteck,
    testing::Values(
        Fall{"FixedIgnoresHinge", eGangartFest, eAnschlagOben,
             "(10,10) (43.3,76.6)  (76.7,143.4) (110,210)"},
        Fall{"TurnLeft", eGangartDreh, eAnschlagLinks, "(10,10) (110,110)  (110,110) (10,210)"},
        Fall{"TurnRight", eGangartDreh, eAnschlagRechts, "(110,10) (10,110)  (10,110) (110,210)"},
        Fall{"TurnTopIsNothing", eGangartDreh, eAnschlagOben, ""},
        Fall{"TurnBottomIsNothing", eGangartDreh, eAnschlagUnten, ""},
        Fall{"Tilt", eGangartKipp, eAnschlagUnten, "(10,10) (60,210)  (60,210) (110,10)"},
        Fall{"Hopper", eGangartKlapp, eAnschlagOben, "(10,210) (60,10)  (60,10) (110,210)"},
        Fall{"TurnTiltLeft", eGangartDrehKipp, eAnschlagLinks,
             "(10,10) (110,110)  (110,110) (10,210)  (10,10) (60,210)  (60,210) (110,10)"},
        Fall{"TurnTiltTopIsTilt", eGangartDrehKipp, eAnschlagOben,
             "(10,10) (60,210)  (60,210) (110,10)"},
        Fall{"LiftTurnLeft", eGangartHebeDreh, eAnschlagLinks,
             "(10,10) (110,110)  (110,110) (10,210)  (35,95) (35,125)  (35,125) (30,115)"
             "(30,115) (40,115)  (40,115) (35,125)"},
        Fall{"LiftTurnTopIsNothing", eGangartHebeDreh, eAnschlagOben, ""},
        Fall{"PivotLevel", eGangartSchwing, eAnschlagUnten,
             "(60,10) (110,110)  (110,110) (60,210)  (60,210) (10,110)  (10,110) (60,10)"
             "(10,110) (110,110)"},
        Fall{"PivotUpright", eGangartWende, eAnschlagLinks,
             "(60,10) (110,110)  (110,110) (60,210)  (60,210) (10,110)  (10,110) (60,10)"
             "(60,10) (60,210)"},
        Fall{"SlideLeft", eGangartSchiebe, eAnschlagLinks, kPfeilNachRechts},
        Fall{"SlideRight", eGangartSchiebe, eAnschlagRechts, kPfeilNachLinks},
        Fall{"SlideTop", eGangartSchiebe, eAnschlagOben,
             "(60,125) (60,95)  (60,95) (65,105)  (65,105) (55,105)  (55,105) (60,95)"},
        Fall{"SlideBottom", eGangartSchiebe, eAnschlagUnten,
             "(60,95) (60,125)  (60,125) (55,115)  (55,115) (65,115)  (65,115) (60,125)"},
        Fall{"LiftSlideLeft", eGangartHebeSchiebe, eAnschlagLinks,
             "(45,110) (75,110)  (75,110) (65,115)  (65,115) (65,105)  (65,105) (75,110)"
             "(45,110) (45,105)"},
        Fall{"LiftSlideTopIsNothing", eGangartHebeSchiebe, eAnschlagOben, ""},
        Fall{"FoldLeft", eGangartFalt, eAnschlagLinks, "(10,10) (110,60)  (10,210) (110,160)"},
        Fall{"FoldRight", eGangartFalt, eAnschlagRechts, "(110,10) (10,60)  (110,210) (10,160)"},
        Fall{"FoldBottomIsNothing", eGangartFalt, eAnschlagUnten, ""},
        Fall{"LiftSlideTiltRight", eGangartHebeSchiebeKipp, eAnschlagRechts,
             "(10,10) (60,210)  (60,210) (110,10)  (75,105) (45,105)  (45,105) (55,100)"
             "(55,100) (55,110)  (55,110) (45,105)  (75,105) (75,100)"},
        Fall{"LiftSlideTiltBottomIsTilt", eGangartHebeSchiebeKipp, eAnschlagUnten,
             "(10,10) (60,210)  (60,210) (110,10)"},
        Fall{"UnknownKind", 12, eAnschlagLinks, ""}),
    [](const auto& fall) { return std::string(fall.param.name); });

// --- cut to the contour ------------------------------------------------------------

class SymbolImGiebel : public testing::TestWithParam<Fall> {};

TEST_P(SymbolImGiebel, IsCut) {
  CMFensterSatzRechteck fluegel = Fluegel(Poly(kGiebel), 0.0);
  EXPECT_TRUE(GleicheLinien(Linien(GetParam().linien),
                            Symbol(fluegel, GetParam().gangart, GetParam().anschlag), 1e-6));
}

INSTANTIATE_TEST_SUITE_P(
    Sashes, SymbolImGiebel,
    testing::Values(
        // The diagonal y = 2x leaves through the right slope at (75,150).
        Fall{"Fixed", eGangartFest, 0, "(0,0) (33.3,66.6)  (66.7,133.4) (75,150)"},
        // y = 200 - x meets the left slope at x = 100 / 3.
        Fall{"TurnLeft", eGangartDreh, eAnschlagLinks,
             "(0,0) (100,100)  (100,100) (33.333333333,166.666666667)"},
        Fall{"TurnRight", eGangartDreh, eAnschlagRechts,
             "(100,0) (0,100)  (0,100) (66.666666667,166.666666667)"},
        // y = 200 - 4x meets the left slope at x = 50 / 3.
        Fall{"Hopper", eGangartKlapp, 0,
             "(16.666666667,133.333333333) (50,0)  (50,0) (83.333333333,133.333333333)"},
        Fall{"PivotLevel", eGangartSchwing, 0,
             "(50,0) (100,100)  (100,100) (50,200)  (50,200) (0,100)  (0,100) (50,0)"
             "(0,100) (100,100)"},
        // No rectangle: the zigzag arrow from (65,100) to the left. A step of the
        // zigzag is 20 / 9.5, its height 4; turned half round both change sign.
        Fall{"FoldLeft", eGangartFalt, eAnschlagLinks,
             "(65,104) (60.789473684,96)  (60.789473684,96) (56.578947368,104)"
             "(56.578947368,104) (52.368421053,96)  (52.368421053,96) (48.157894737,104)"
             "(48.157894737,104) (46.052631579,100)  (46.052631579,100) (45,100)"
             "(45,100) (45,95)  (45,95) (35,100)  (35,100) (45,105)  (45,105) (45,100)"}),
    [](const auto& fall) { return std::string(fall.param.name); });

// A concave contour, whose middle lines meet it before the box does.
TEST(Oeffnungssymbol, MiddleLinesEndAtTheContour) {
  // A notch from the top down to (50,120); the level middle line is at 100.
  CMFensterSatzRechteck fluegel =
      Fluegel(Poly("(0,0) (100,0) (100,200) (60,200) (50,120) (40,200) (0,200)"), 0.0);
  EXPECT_TRUE(GleicheLinien(Linien("(0,0) (50,120)  (50,120) (100,0)"),
                            Symbol(fluegel, eGangartKipp, 0), 1e-6));
}

bool IsGeclippt(int gangart) {
  return gangart <= eGangartDrehKipp || gangart == eGangartSchwing || gangart == eGangartWende;
}

class SymbolJedesBeispiels : public testing::TestWithParam<std::string> {};

TEST_P(SymbolJedesBeispiels, StaysInsideTheContour) {
  CMFenster fenster = Beispiel(GetParam());
  for (long i = 0; i < fenster.GetAnzahlFluegel(); ++i) {
    CMFensterSatz& fluegel = *fenster.GetFluegelPtr(i);
    fluegel.Fuellung.SetGlas(1.0);
    GEOM2_Polygon contour;
    ASSERT_TRUE(fluegel.ErzeugeRahmenInnenPolygon(false, contour));
    for (int fall = 0; fall < kGangarten * kAnschlaege; ++fall) {
      if (!IsGeclippt(fall / kAnschlaege)) continue;
      for (const CMStrecke& linie : Symbol(fluegel, fall / kAnschlaege, fall % kAnschlaege)) {
        XY a, b;
        linie.GetPunkte(a, b);
        EXPECT_TRUE(contour.IsInside(a, true, 1e-5)) << "sash " << i << ", case " << fall;
        EXPECT_TRUE(contour.IsInside(b, true, 1e-5)) << "sash " << i << ", case " << fall;
        EXPECT_TRUE(linie.IsInside(contour)) << "sash " << i << ", case " << fall;
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Windows, SymbolJedesBeispiels, testing::ValuesIn(BeispielNamen()),
                         [](const auto& fall) {
                           return fall.param.substr(0, fall.param.find('.'));
                         });

// --- laws --------------------------------------------------------------------------

int AndereSeite(int anschlag) {
  switch (anschlag) {
    case eAnschlagLinks:
      return eAnschlagRechts;
    case eAnschlagRechts:
      return eAnschlagLinks;
    default:
      return anschlag;
  }
}

std::vector<CMStrecke> Gespiegelt(const std::vector<CMStrecke>& lines) {
  std::vector<CMStrecke> andere;
  for (const CMStrecke& linie : lines) {
    XY a, b;
    linie.GetPunkte(a, b);
    andere.emplace_back(-a.x, a.y, -b.x, b.y);
  }
  return andere;
}

// Two are left out on purpose: the diagonal of fixed glazing always rises to the
// right, and the zigzag of a folding arrow is turned, not mirrored.
TEST(Oeffnungssymbol, MirroredSashWithMirroredHingeIsTheMirrorImage) {
  for (const char* text :
       {"(0,0) (100,0) (100,160) (30,200) (0,120)", "(0,0) (90,0) (90,70) (0,70)", kGiebel}) {
    CMFensterSatzRechteck fluegel = Fluegel(Poly(text), 7.0);
    CMFensterSatzRechteck spiegelbild = Fluegel(test::Gespiegelt(Poly(text)), 7.0);
    for (int gangart = 1; gangart < kGangarten; ++gangart) {
      if (gangart == eGangartFalt && Poly(text).GetAnzahl() != 4) continue;
      for (int anschlag = 0; anschlag < kAnschlaege; ++anschlag) {
        EXPECT_TRUE(GleicheLinien(Gespiegelt(Symbol(fluegel, gangart, anschlag)),
                                  Symbol(spiegelbild, gangart, AndereSeite(anschlag)), 1e-6))
            << text << ", kind " << gangart << ", hinge " << anschlag;
      }
    }
  }
}

TEST(Oeffnungssymbol, OnlyGlassHasOne) {
  CMFensterSatzRechteck fluegel = Fluegel(Rechteck(0, 0, 120, 220), 10.0);
  fluegel.lGangart = eGangartKipp;
  std::vector<CMStrecke> lines(1);
  fluegel.Fuellung.SetKonstant(2.0);
  EXPECT_FALSE(fluegel.GetOeffSymbol(lines));
  fluegel.Fuellung.SetLamellen(5.0, 1.0);
  EXPECT_FALSE(fluegel.GetOeffSymbol(lines));
  EXPECT_EQ(lines.size(), 1U);
  // Lines that were there before count.
  fluegel.Fuellung.SetGlas(1.0);
  fluegel.lGangart = eGangartDreh;
  fluegel.lAnschlag = eAnschlagOben;
  EXPECT_TRUE(fluegel.GetOeffSymbol(lines));
}

TEST(Oeffnungssymbol, FixedGlazingMustRiseByMoreThanOne) {
  for (const auto& [hoehe, anzahl] : {std::pair{1.0, 0U}, {1.25, 2U}}) {
    CMFensterSatzRechteck fluegel = Fluegel(Rechteck(0, 0, 100, hoehe), 0.0);
    EXPECT_EQ(Symbol(fluegel, eGangartFest, 0).size(), anzahl) << hoehe;
  }
}

TEST(Oeffnungssymbol, SashWithoutContourHasNone) {
  CMFensterSatzRechteck leer;
  EXPECT_TRUE(Symbol(leer, eGangartKipp, 0).empty());
  CMFensterSatzRechteck voll = Fluegel(Rechteck(0, 0, 120, 220), 10.0);
  for (CMBauteil& teil : voll.RahmenTeile) teil.dBreite = 60.0;
  EXPECT_TRUE(Symbol(voll, eGangartKipp, 0).empty());
}

}  // namespace
}  // namespace lintavo::test
