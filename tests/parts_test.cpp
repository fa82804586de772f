// The cutting list: what is measured, what is the same piece, what is counted.
#include <cmath>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "lintavo/api/CFeApi.h"
#include "lintavo/geom/Toleranzen.h"

#include "PartsList.h"
#include "PartsText.h"
#include "WindowParts.h"

namespace lintavo::tools {
namespace {

const std::string kWindows = LINTAVO_EXAMPLES_DIR "/windows/";

CFeApi Example(const std::string& name) {
  CFeApi window;
  EXPECT_EQ(window.ReadFromFile((kWindows + name).c_str()), 1) << name;
  return window;
}

PartsList ListOf(const std::vector<std::string>& names, const PartsOptions& options = {}) {
  PartsCollector collector(options);
  for (const std::string& name : names) collector.Add(ViewOf(Example(name)));
  return collector.Sorted();
}

// Where a section lies beside its axis.
enum Place { kLeft, kCentred, kRight };

Piece Bar(PieceKind kind, Place place, double width, double length, double start, double end) {
  Piece bar;
  bar.kind = kind;
  bar.axes = {{{3.0, -4.0}, length, 30.0, start, end}};
  bar.left = place == kLeft ? width : place == kCentred ? width / 2 : 0.0;
  bar.right = bar.left - width;
  return bar;
}

TEST(Parts, TheBlankReachesFromTipToTip) {
  const double slope = std::atan(0.5) * kGradJeRadiant;
  const struct {
    const char* what;
    Place lage;
    double breite, laenge, anfang, ende, blank;
  } kCases[] = {
      {"mitred frame part, axis on its longer edge", kLeft, 10, 100, 45, -45, 100},
      {"frame part at an inward corner of the window", kLeft, 7, 80, 0, 45, 87},
      {"frame part between two inward corners", kLeft, 7, 80, -45, 45, 94},
      {"mullion up to a slope of 1 : 2", kCentred, 8, 100, 0, slope, 102},
      {"parallelogram", kCentred, 8, 100, 45, 45, 108},
      {"mitred trim, axis in its middle", kCentred, 5, 85, 45, -45, 90},
      {"square", kRight, 5, 85, 0, 0, 85},
  };
  for (const auto& c : kCases) {
    const Stab stab =
        MesseStab(Bar(PieceKind::kFramePart, c.lage, c.breite, c.laenge, c.anfang, c.ende));
    EXPECT_NEAR(stab.laenge, c.blank, 1e-9) << c.what;
    EXPECT_NEAR(stab.breite, c.breite, 1e-9) << c.what;
    EXPECT_EQ(stab.achslaenge, c.laenge) << c.what;
    EXPECT_EQ(stab.winkelAnfang, c.anfang) << c.what;
    EXPECT_EQ(stab.winkelEnde, c.ende) << c.what;
    EXPECT_EQ(stab.radius, 0.0) << c.what;
  }
}

// A quarter of a ring in six chords, its axis on the circle of radius 50; `stretch` makes
// it a part of an ellipse.
Piece QuarterRing(double stretch) {
  Piece ring;
  ring.left = 7.0;
  const auto corner = [=](int i) {
    const double angle = i * 15.0 * kRadiantJeGrad;
    return XY{50.0 * stretch * std::cos(angle), 50.0 * std::sin(angle)};
  };
  for (int i = 0; i < 6; ++i) {
    GEOM2_Achse axis;
    GEOM2_Polygon::SetAchse(corner(i), corner(i + 1), axis);
    axis.dWinkelAnfang = 7.5;
    axis.dWinkelEnde = -7.5;
    ring.axes.push_back(axis);
  }
  return ring;
}

TEST(Parts, BentPartsAreDeveloped) {
  const Stab ring = MesseStab(QuarterRing(1.0));
  EXPECT_NEAR(ring.radius, 50.0, 1e-9);
  EXPECT_NEAR(ring.laenge, 25.0 * kPi, 1e-9);
  EXPECT_NEAR(ring.achslaenge, 6 * 2 * 50.0 * std::sin(7.5 * kRadiantJeGrad), 1e-9);
  EXPECT_EQ(ring.segmente, 6);
  EXPECT_NEAR(ring.breite, 7.0, 1e-9);

  const Stab oval = MesseStab(QuarterRing(1.2));
  EXPECT_EQ(oval.radius, 0.0);
  EXPECT_NEAR(oval.laenge, oval.achslaenge, 1e-9);
}

TEST(Parts, MirrorImagesAreOtherPieces) {
  const struct {
    const char* what;
    PieceKind art;
    Place lage;
    double anfang, ende, anfang2, ende2;
    bool same;
  } kCases[] = {
      {"left and right jamb", PieceKind::kFramePart, kLeft, 45, -45, 45, -45, true},
      {"within the tolerance", PieceKind::kFramePart, kLeft, 45, -45, 45.005, -45, true},
      {"beyond it", PieceKind::kFramePart, kLeft, 45, -45, 45.02, -45, false},
      {"mirrored jambs", PieceKind::kFramePart, kLeft, 45, -30, 30, -45, false},
      {"frame part turned round", PieceKind::kFramePart, kLeft, 0, 45, 45, 0, false},
      {"mullion turned round", PieceKind::kMullion, kCentred, 0, 20, 20, 0, true},
      {"mullion mirrored", PieceKind::kMullion, kCentred, 0, 20, 0, -20, false},
      {"mullion beside its axis", PieceKind::kMullion, kLeft, 0, 20, 20, 0, false},
      {"trim turned round", PieceKind::kOuterPart, kCentred, 0, 20, 20, 0, false},
  };
  for (const auto& c : kCases) {
    const Stab a = MesseStab(Bar(c.art, c.lage, 7, 100, c.anfang, c.ende));
    Stab b = MesseStab(Bar(c.art, c.lage, 7, 100, c.anfang2, c.ende2));
    b.laenge = a.laenge;
    EXPECT_EQ(SchneidetGleich(a, b), c.same) << c.what;
    EXPECT_EQ(SchneidetGleich(b, a), c.same) << c.what;
  }
}

struct Row {
  std::size_t count;
  TeilArt art;
  double laenge, breite, dicke;
};

void ExpectRows(const std::vector<Stab>& staebe, const std::vector<Row>& expected) {
  ASSERT_EQ(staebe.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    SCOPED_TRACE(i);
    EXPECT_EQ(staebe[i].stellen.size(), expected[i].count);
    EXPECT_EQ(staebe[i].art, expected[i].art);
    EXPECT_NEAR(staebe[i].laenge, expected[i].laenge, 1e-6);
    EXPECT_NEAR(staebe[i].breite, expected[i].breite, 1e-6);
    EXPECT_EQ(staebe[i].dicke, expected[i].dicke);
  }
}

// Frame 7 wide, sashes reach 1.5 over it: they begin 5.5 from the outline and 4 - 1.5
// beside the axis of a mullion of 8, 4.5 - 1.5 below and above that of a transom of 9.
TEST(Parts, AWindowsListIsThatWorkedOut) {
  const PartsList list = ListOf({"dreiteilig_mit_oberlicht.aqz"});
  ExpectRows(list.staebe, {
                              {2, TeilArt::kRahmen, 240, 7, 6.8},
                              {2, TeilArt::kRahmen, 175, 7, 6.8},
                              {2, TeilArt::kFluegelrahmen, 240 - 2 * 5.5, 7.8, 6.8},
                              {4, TeilArt::kFluegelrahmen, 130 - 5.5 - 3, 7.8, 6.8},
                              {4, TeilArt::kFluegelrahmen, 60 - 5.5 - 2.5, 7.8, 6.8},
                              {2, TeilArt::kFluegelrahmen, 45 - 5.5 - 3, 7.8, 6.8},
                              {2, TeilArt::kPfosten, 130 - 7 - 4.5, 8, 6.8},
                              {1, TeilArt::kRiegel, 240 - 2 * 7, 9, 6.8},
                          });
  ASSERT_EQ(list.scheiben.size(), 3u);
  const double panes[][2] = {{112, 118.5}, {229 - 15.6, 36.5 - 15.6}, {52 - 15.6, 121.5 - 15.6}};
  for (std::size_t i = 0; i < 3; ++i) {
    const Scheibe& pane = list.scheiben[i];
    EXPECT_NEAR(pane.breite, panes[i][0], 1e-6) << i;
    EXPECT_NEAR(pane.hoehe, panes[i][1], 1e-6) << i;
    EXPECT_NEAR(pane.flaeche, panes[i][0] * panes[i][1], 1e-6) << i;
    EXPECT_TRUE(pane.rechteckig) << i;
    EXPECT_EQ(pane.stellen.size(), i == 2 ? 2u : 1u);
  }
  const std::vector<Profil> profile = ProfileOf(list, false);
  ASSERT_EQ(profile.size(), 4u);
  EXPECT_EQ(profile[1].anzahl, 12u);
  EXPECT_NEAR(profile[1].laenge, 2 * 229 + 4 * 121.5 + 4 * 52 + 2 * 36.5, 1e-6);

  ASSERT_EQ(list.beschlaege.size(), 2u);
  EXPECT_EQ(list.beschlaege[0].stellen.size(), 3u);
  EXPECT_EQ(list.beschlaege[1].stellen.size(), 6u);
}

TEST(Parts, ArchesSlopesSlatsAndExtraParts) {
  const PartsList arch = ListOf({"rundbogen.aqz"});
  EXPECT_NEAR(arch.staebe[0].laenge, 50.0 * kPi, 1e-6);
  EXPECT_NEAR(arch.staebe[0].radius, 50.0, 1e-6);
  EXPECT_FALSE(arch.scheiben[0].rechteckig);

  // The slope of 1 : 2 begins at a height of 125; along the mullion of 96 to 104 its inner
  // edge is 7 lower, measured square to it.
  const PartsList slope = ListOf({"schraegen.aqz"});
  const double top = 125.0 + 104.0 / 2.0 - 7.0 * std::sqrt(1.25);
  EXPECT_EQ(slope.staebe.back().art, TeilArt::kPfosten);
  EXPECT_NEAR(slope.staebe.back().laenge, top - 7.0, 1e-6);

  ExpectRows(ListOf({"lamellen_mit_deckleisten.aqz"}).staebe,
             {
                 {2, TeilArt::kRahmen, 80, 6, 6},
                 {2, TeilArt::kRahmen, 60, 6, 6},
                 {2, TeilArt::kZusatzAussen, 90, 5, 1.5},
                 {2, TeilArt::kZusatzAussen, 70, 5, 1.5},
                 {9, TeilArt::kLamelle, 48, 6, 1.2},
                 {1, TeilArt::kLamelle, 48, 5, 1.2},
             });
}

TEST(Parts, TheRebateWidensPanesOnEverySide) {
  PartsOptions options;
  options.falz = 1.25;
  const Scheibe pane = ListOf({"dreiteilig_mit_oberlicht.aqz"}, options).scheiben.front();
  EXPECT_NEAR(pane.breite, 112 + 2 * 1.25, 1e-6);
  EXPECT_NEAR(pane.hoehe, 118.5 + 2 * 1.25, 1e-6);
}

TEST(Parts, WindowsAreAddedUpOrKeptApart) {
  const std::vector<std::string> twice = {"halbbogen_links.aqz", "halbbogen_links.aqz"};
  const PartsList once = ListOf({"halbbogen_links.aqz"});
  const PartsList both = ListOf(twice);
  ASSERT_EQ(both.staebe.size(), once.staebe.size());
  for (std::size_t i = 0; i < once.staebe.size(); ++i) {
    EXPECT_EQ(both.staebe[i].stellen.size(), 2 * once.staebe[i].stellen.size());
  }
  EXPECT_EQ(both.scheiben.front().stellen.size(), 2u);

  PartsOptions apart;
  apart.jeFenster = true;
  const PartsList split = ListOf(twice, apart);
  EXPECT_EQ(split.staebe.size(), 2 * once.staebe.size());
  EXPECT_EQ(split.scheiben.size(), 2u);
  EXPECT_EQ(split.staebe.back().stellen.front().fenster, 1u);

  // The mirrored window shares what is its own mirror image: sill, bottom rail and bar.
  const PartsList mirrored = ListOf({"halbbogen_links.aqz", "halbbogen_rechts.aqz"});
  EXPECT_EQ(mirrored.staebe.size(), 2 * once.staebe.size() - 3);
  EXPECT_EQ(mirrored.scheiben.size(), 2u);
}

long Pieces(const PartsList& list) {
  std::size_t sum = 0;
  for (const Stab& stab : list.staebe) sum += stab.stellen.size();
  for (const Scheibe& scheibe : list.scheiben) sum += scheibe.stellen.size();
  for (const Beschlaege& beschlaege : list.beschlaege) sum += beschlaege.stellen.size();
  return static_cast<long>(sum);
}

TEST(Parts, EveryPieceOfEveryExampleIsCountedOnce) {
  for (const auto& entry : std::filesystem::directory_iterator(kWindows)) {
    if (entry.path().extension() != ".aqz") continue;
    const CFeApi window = Example(entry.path().filename().string());
    long pieces = window.GetAnzahlRahmenBauteile(1) + window.GetAnzahlRahmenBauteile(2);
    for (long i = 0; i < window.GetAnzahlFluegel(); ++i) {
      for (const long art : {1, 2, 3}) pieces += window.GetFluegelAnzahlBauteile(art, i);
      const bool slats = window.GetFluegelFuellungArt(i) == eFeApiFuellungLamellen;
      pieces += slats ? window.GetFluegelAnzahlLamellen(i) : 1;
      pieces += window.GetAnzahlBeschlaege(i);
    }
    PartsCollector collector({});
    collector.Add(ViewOf(window));
    EXPECT_EQ(Pieces(collector.Sorted()), pieces) << entry.path();
  }
}

TEST(Parts, CsvQuotesAndChoosesItsSeparator) {
  PartsList list;
  list.scheiben.push_back({TeilArt::kGlas, 36.4, 105.9, 2.4, 3854.76, true, {}, {{0, 0, "a"}}});
  list.beschlaege.push_back({TeilArt::kBand, {{0, 0, "b"}, {0, 0, "c"}, {0, 1, "d"}}});
  const std::vector<PartsWindow> windows = {{"a.aqz", "=1+1", 1, 1, {"Li;\"x\"", ""}}};
  PartsStyle style;
  std::ostringstream german;
  WritePartsCsv(list, windows, style, german);
  EXPECT_EQ(german.str(),
            "Anzahl;Teil;Länge;Achslänge;Breite;Höhe;Dicke;Schnitt Anfang;Schnitt Ende;Radius;"
            "Segmente;Fläche;Form;Verwendung\r\n"
            "1;Glas;;;36,4;105,9;2,4;;;;;3854,76;Rechteck;\"1× Li;\"\"x\"\"\"\r\n"
            "3;Band;;;;;;;;;;;;\"2× Li;\"\"x\"\", 1× Flügel 2\"\r\n");

  style = {Sprache::kEnglisch, '.', true};
  std::ostringstream english;
  WritePartsCsv(list, windows, style, english);
  EXPECT_NE(english.str().find("\r\n'=1+1,1,glass,,,36.4,105.9,2.4,"), std::string::npos)
      << english.str();
}

}  // namespace
}  // namespace lintavo::tools
