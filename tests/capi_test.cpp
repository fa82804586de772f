// The C interface: every function answers as the façade's member of its name,
// nothing that a host passes does harm, and text and handles keep their rules.
#include <cmath>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "lintavo/api/CFeApi.h"
#include "lintavo/capi/Handles.h"
#include "lintavo/ini/CIniFile.h"
#include "lintavo/lintavo_c.h"

#include "support/Beispiele.h"
#include "support/Ordner.h"

namespace lintavo::test {
namespace {

// Handles that release themselves.
struct Window {
  lintavo_window* handle = lintavo_window_create();
  Window() = default;
  explicit Window(const std::string& name) {
    const std::string path = BeispielPfad(name);
    EXPECT_EQ(lintavo_is_file_compressed(path.c_str())
                  ? lintavo_window_read_from_compressed_file(handle, path.c_str())
                  : lintavo_window_read_from_file(handle, path.c_str()),
              1);
  }
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;
  ~Window() { lintavo_window_destroy(handle); }
  operator lintavo_window*() const { return handle; }
  CFeApi& Api() const { return *FacadeOf(handle); }
};

struct Polygon {
  lintavo_polygon* handle = lintavo_polygon_create();
  Polygon() = default;
  Polygon(const Polygon&) = delete;
  Polygon& operator=(const Polygon&) = delete;
  ~Polygon() { lintavo_polygon_destroy(handle); }
  operator lintavo_polygon*() const { return handle; }
};

struct Segments {
  lintavo_segments* handle = lintavo_segments_create();
  Segments() = default;
  Segments(const Segments&) = delete;
  Segments& operator=(const Segments&) = delete;
  ~Segments() { lintavo_segments_destroy(handle); }
  operator lintavo_segments*() const { return handle; }
};

struct Bytes {
  lintavo_bytes* handle = lintavo_bytes_create();
  Bytes() = default;
  Bytes(const Bytes&) = delete;
  Bytes& operator=(const Bytes&) = delete;
  ~Bytes() { lintavo_bytes_destroy(handle); }
  operator lintavo_bytes*() const { return handle; }
  std::string Text() const {
    return {lintavo_bytes_get_data(handle), lintavo_bytes_get_size(handle)};
  }
};

std::vector<double> Numbers(const lintavo_polygon* polygon) {
  std::vector<double> numbers;
  for (long i = 0; i < lintavo_polygon_get_anzahl(polygon); ++i) {
    numbers.push_back(lintavo_polygon_get_x(polygon)[i]);
    numbers.push_back(lintavo_polygon_get_y(polygon)[i]);
  }
  return numbers;
}

std::vector<double> Numbers(const CFeApiPolygon& polygon) {
  std::vector<double> numbers;
  for (int i = 0; i < polygon.lAnzahl; ++i) {
    numbers.push_back(polygon.pdX[i]);
    numbers.push_back(polygon.pdY[i]);
  }
  return numbers;
}

std::vector<double> Numbers(const lintavo_segments* segments) {
  std::vector<double> numbers;
  lintavo_segment s;
  for (long i = 0; lintavo_segments_get_strecke(segments, i, &s); ++i) {
    numbers.insert(numbers.end(), {s.x1, s.y1, s.x2, s.y2, double(s.farbe), double(s.prio)});
  }
  return numbers;
}

std::vector<double> Numbers(const CFeApiStrecken& s) {
  std::vector<double> numbers;
  for (int i = 0; i < s.lAnzahl; ++i) {
    numbers.insert(numbers.end(), {s.pdX1[i], s.pdY1[i], s.pdX2[i], s.pdY2[i], double(s.piFarbe[i]),
                                   double(s.piPrio[i])});
  }
  return numbers;
}

// The text that a function of the C interface hands out for its first arguments.
template <class Function, class... Arguments>
std::string Text(Function function, const Arguments&... arguments) {
  char text[LINTAVO_TEXT_SIZE];
  return {text, function(arguments..., text, sizeof text)};
}

// The text of a façade's member.
template <class Query>
std::string ApiText(Query query) {
  char text[256];
  const long length = query(text);
  return {text, static_cast<std::size_t>(length)};
}

// --- like the façade ----------------------------------------------------------

class CApi : public testing::TestWithParam<std::string> {};

INSTANTIATE_TEST_SUITE_P(Beispiele, CApi, testing::ValuesIn(BeispielNamen()), BeispielTestName);

TEST_P(CApi, FrameAnswersAsTheFacade) {
  const Window w(GetParam());
  const CFeApi& api = w.Api();
  EXPECT_EQ(lintavo_window_get_fenster_breite(w), api.GetFensterBreite());
  EXPECT_EQ(lintavo_window_get_fenster_hoehe(w), api.GetFensterHoehe());
  EXPECT_EQ(lintavo_window_get_rahmen_breite(w), api.GetRahmenBreite());
  EXPECT_EQ(lintavo_window_get_rahmen_dicke(w), api.GetRahmenDicke());
  EXPECT_EQ(Text(lintavo_window_get_fenster_bezeichnung, w.handle),
            ApiText([&](char(&to)[256]) { return api.GetFensterBezeichnung(to); }));
  for (long art = 0; art <= 3; ++art) {
    const long parts = lintavo_window_get_anzahl_rahmen_bauteile(w, art);
    ASSERT_EQ(parts, api.GetAnzahlRahmenBauteile(art));
    for (long i = 0; i < parts; ++i) {
      EXPECT_EQ(lintavo_window_get_anzahl_rahmen_bauteil_segmente(w, art, i),
                api.GetAnzahlRahmenBauteilSegmente(art, i));
      EXPECT_EQ(lintavo_window_get_rahmen_bauteil_dicke(w, art, i),
                api.GetRahmenBauteilDicke(art, i));
      const Polygon outline;
      CFeApiPolygon expected;
      double length = 0.0, start = 0.0, end = 0.0, length2 = 0.0, start2 = 0.0, end2 = 0.0;
      EXPECT_EQ(lintavo_window_get_rahmen_bauteil_umriss(w, art, i, LINTAVO_ALLE_SEGMENTE, outline,
                                                         &length, &start, &end),
                api.GetRahmenBauteilUmriss(art, i, -1, expected, length2, start2, end2));
      EXPECT_EQ(Numbers(outline), Numbers(expected));
      EXPECT_EQ((std::vector{length, start, end}), (std::vector{length2, start2, end2}));
    }
  }
}

TEST_P(CApi, SashesAnswerAsTheFacade) {
  const Window w(GetParam());
  CFeApi& api = w.Api();
  ASSERT_EQ(lintavo_window_get_anzahl_fluegel(w), api.GetAnzahlFluegel());
  for (long i = 0; i < api.GetAnzahlFluegel(); ++i) {
    EXPECT_EQ(Text(lintavo_window_get_fluegel_name, w.handle, i),
              ApiText([&](char(&to)[256]) { return api.GetFluegelName(i, to); }));
    EXPECT_EQ(Text(lintavo_window_get_fluegel_gangart, w.handle, i),
              ApiText([&](char(&to)[256]) { return api.GetFluegelGangart(i, to); }));
    EXPECT_EQ(Text(lintavo_window_get_fluegel_anschlag, w.handle, i),
              ApiText([&](char(&to)[256]) { return api.GetFluegelAnschlag(i, to); }));
    EXPECT_EQ(Text(lintavo_window_get_fluegel_oeff_seite, w.handle, i),
              ApiText([&](char(&to)[256]) { return api.GetFluegelOeffSeite(i, to); }));
    EXPECT_EQ(lintavo_window_get_fluegel_rahmen_breite(w, i), api.GetFluegelRahmenBreite(i));
    EXPECT_EQ(lintavo_window_get_fluegel_rahmen_dicke(w, i), api.GetFluegelRahmenDicke(i));
    EXPECT_EQ(lintavo_window_get_fluegel_ueberschlag(w, i), api.GetFluegelUeberschlag(i));
    EXPECT_EQ(lintavo_window_get_fluegel_zversatz(w, i, 0), api.GetFluegelZVersatz(i, 0));
    EXPECT_EQ(lintavo_window_get_fluegel_zversatz(w, i, 1), api.GetFluegelZVersatz(i, 1));
    EXPECT_EQ(lintavo_window_get_fluegel_fuellung_art(w, i), api.GetFluegelFuellungArt(i));
    EXPECT_EQ(lintavo_window_get_fluegel_fuellung_dicke(w, i), api.GetFluegelFuellungDicke(i));
    const Polygon polygon;
    CFeApiPolygon expected;
    EXPECT_EQ(lintavo_window_get_fluegel_innen_polygon(w, i, 1.5, polygon),
              api.GetFluegelInnenPolygon(i, 1.5, expected));
    EXPECT_EQ(Numbers(polygon), Numbers(expected));
    EXPECT_EQ(lintavo_window_get_fluegel_fuellung_umriss(w, i, polygon),
              api.GetFluegelFuellungUmriss(i, expected));
    EXPECT_EQ(Numbers(polygon), Numbers(expected));
    ASSERT_EQ(lintavo_window_get_fluegel_anzahl_lamellen(w, i), api.GetFluegelAnzahlLamellen(i));
    for (long j = 0; j < api.GetFluegelAnzahlLamellen(i); ++j) {
      EXPECT_EQ(lintavo_window_get_fluegel_lamellen_umriss(w, i, j, polygon),
                api.GetFluegelLamellenUmriss(i, j, expected));
      EXPECT_EQ(Numbers(polygon), Numbers(expected));
    }
    for (long j = 0; j < api.GetAnzahlBeschlaege(i); ++j) {
      double x = 0.0, y = 0.0, angle = 0.0, x2 = 1.0, y2 = 1.0, angle2 = 1.0;
      EXPECT_EQ(lintavo_window_get_beschlag_punkt(w, i, j, &x, &y, &angle),
                api.GetBeschlagPunkt(i, j, x2, y2, angle2));
      EXPECT_EQ((std::vector{x, y, angle}), (std::vector{x2, y2, angle2}));
    }
  }
}

TEST_P(CApi, SashPartsAnswerAsTheFacade) {
  const Window w(GetParam());
  const CFeApi& api = w.Api();
  for (long sash = 0; sash < api.GetAnzahlFluegel(); ++sash) {
    for (long art = 1; art <= 3; ++art) {
      const long parts = lintavo_window_get_fluegel_anzahl_bauteile(w, art, sash);
      ASSERT_EQ(parts, api.GetFluegelAnzahlBauteile(art, sash));
      for (long i = 0; i < parts; ++i) {
        EXPECT_EQ(lintavo_window_get_fluegel_anzahl_bauteil_segmente(w, art, sash, i),
                  api.GetFluegelAnzahlBauteilSegmente(art, sash, i));
        EXPECT_EQ(lintavo_window_get_fluegel_bauteil_dicke(w, art, sash, i),
                  api.GetFluegelBauteilDicke(art, sash, i));
        const Polygon outline;
        CFeApiPolygon expected;
        double length = 0.0, start = 0.0, end = 0.0, length2 = 0.0, start2 = 0.0, end2 = 0.0;
        EXPECT_EQ(lintavo_window_get_fluegel_bauteil_umriss(w, art, sash, i, 0, outline, &length,
                                                            &start, &end),
                  api.GetFluegelBauteilUmriss(art, sash, i, 0, expected, length2, start2, end2));
        EXPECT_EQ(Numbers(outline), Numbers(expected));
        EXPECT_EQ((std::vector{length, start, end}), (std::vector{length2, start2, end2}));
      }
    }
    ASSERT_EQ(lintavo_window_get_anzahl_sprossen(w, sash), api.GetAnzahlSprossen(sash));
    for (long i = 0; i < api.GetAnzahlSprossen(sash); ++i) {
      EXPECT_EQ(lintavo_window_get_sprossen_breite(w, sash, i), api.GetSprossenBreite(sash, i));
      EXPECT_EQ(lintavo_window_get_sprossen_dicke(w, sash, i), api.GetSprossenDicke(sash, i));
    }
  }
}

TEST_P(CApi, LinesAnswerAsTheFacade) {
  const Window w(GetParam());
  CFeApi& api = w.Api();
  const Segments lines;
  CFeApiStrecken expected;
  const auto same = [&](int result, int apiResult) {
    EXPECT_EQ(result, apiResult);
    EXPECT_EQ(Numbers(lines), Numbers(expected));
  };
  for (const int outside : {0, 1}) {
    same(lintavo_window_get_ansicht(w, outside, lines), api.GetAnsicht(outside, expected));
  }
  for (long i = 0; i < api.GetAnzahlFluegel(); ++i) {
    same(lintavo_window_get_fluegel_ansicht(w, i, 1, lines), api.GetFluegelAnsicht(i, 1, expected));
    same(lintavo_window_get_fluegel_oeffnungs_symbol(w, i, lines),
         api.GetFluegelOeffnungsSymbol(i, expected));
    same(lintavo_window_get_fluegel_glaslichte_hori(w, i, lines),
         api.GetFluegelGlaslichteHori(i, expected));
    same(lintavo_window_get_fluegel_glaslichte_vert(w, i, lines),
         api.GetFluegelGlaslichteVert(i, expected));
    for (long j = 0; j < api.GetAnzahlBeschlaege(i); ++j) {
      same(lintavo_window_get_beschlag_zeichnung(w, i, j, lines),
           api.GetBeschlagZeichnung(i, j, expected));
    }
  }
  for (long i = 0; i < api.GetAnzahlZusatzMasze(); ++i) {
    same(lintavo_window_get_zmasz_linie(w, i, lines), api.GetZMaszLinie(i, expected));
    same(lintavo_window_get_zmasz_hilfslinien(w, i, 3.0, lines),
         api.GetZMaszHilfslinien(i, 3.0, expected));
    const Polygon first, second;
    CFeApiPolygon expected1, expected2;
    EXPECT_EQ(lintavo_window_get_zmasz_pfeile(w, i, 4.0, 1.0, first, second),
              api.GetZMaszPfeile(i, 4.0, 1.0, expected1, expected2));
    EXPECT_EQ(Numbers(first), Numbers(expected1));
    EXPECT_EQ(Numbers(second), Numbers(expected2));
  }
  double box[4] = {}, expectedBox[4] = {};
  EXPECT_EQ(lintavo_window_get_box(w, 5.0, &box[0], &box[1], &box[2], &box[3]),
            api.GetBox(5.0, expectedBox[0], expectedBox[1], expectedBox[2], expectedBox[3]));
  EXPECT_EQ((std::vector<double>(box, box + 4)),
            (std::vector<double>(expectedBox, expectedBox + 4)));
}

TEST_P(CApi, DimensionsAndOpeningAnswerAsTheFacade) {
  const Window w(GetParam());
  const CFeApi& api = w.Api();
  ASSERT_EQ(lintavo_window_get_anzahl_zusatz_masze(w), api.GetAnzahlZusatzMasze());
  for (long i = 0; i < api.GetAnzahlZusatzMasze(); ++i) {
    EXPECT_EQ(Text(lintavo_window_get_zmasz_name, w.handle, i),
              ApiText([&](char(&to)[256]) { return api.GetZMaszName(i, to); }));
    EXPECT_EQ(lintavo_window_get_zmasz_laenge(w, i), api.GetZMaszLaenge(i));
  }
  long h = 0, v = 0, h2 = 0, v2 = 0;
  EXPECT_EQ(lintavo_window_is_zmasz_breite_hoehe(w, &h, &v), api.IsZMaszBreiteHoehe(h2, v2));
  EXPECT_EQ(h, h2);
  EXPECT_EQ(v, v2);

  // Every field has its own value, so that no two can be mistaken.
  const lintavo_opening opening{1, 0, 0.25, 0.5, 1.0, 2.0, 3.0, 4.0, 8.0};
  CFeApiWandOeffnungsParameter parameter;
  parameter.iSchraege1 = 1;
  parameter.dWinkel1 = 0.25;
  parameter.dWinkel2 = 0.5;
  parameter.dLeibungA = 1.0;
  parameter.dLeibungB = 2.0;
  parameter.dLeibungC = 3.0;
  parameter.dLeibungD = 4.0;
  parameter.dTiefe = 8.0;
  const Polygon polygon;
  CFeApiPolygon expected;
  EXPECT_EQ(lintavo_window_get_wand_oeffnung(w, &opening, polygon),
            api.GetWandOeffnung(parameter, expected));
  EXPECT_EQ(Numbers(polygon), Numbers(expected));
  double width = 0.0, height = 0.0, width2 = 0.0, height2 = 0.0;
  EXPECT_EQ(lintavo_window_get_oeff_masze(w, &opening, &width, &height),
            api.GetOeffMasze(parameter, width2, height2));
  EXPECT_EQ(width, width2);
  EXPECT_EQ(height, height2);
}

// --- edits ----------------------------------------------------------------------

TEST(CApiEdits, SettersStoreAndCalculationApplies) {
  const Window w("sprossen_und_zusatzteile.aqz");
  EXPECT_EQ(lintavo_window_set_rahmen_breite(w, 8.5), 1);
  EXPECT_EQ(lintavo_window_set_rahmen_dicke(w, 7.25), 1);
  EXPECT_EQ(lintavo_window_set_fluegel_rahmen_breite(w, 0, 6.5), 1);
  EXPECT_EQ(lintavo_window_set_fluegel_rahmen_dicke(w, 0, 5.5), 1);
  EXPECT_EQ(lintavo_window_set_fluegel_ueberschlag(w, 0, 1.25), 1);
  EXPECT_EQ(lintavo_window_set_fluegel_zversatz(w, 0, 0.75), 1);
  ASSERT_GE(lintavo_window_get_anzahl_sprossen(w, 0), 1);
  EXPECT_EQ(lintavo_window_set_sprossen_breite(w, 0, 0, 2.5), 1);
  EXPECT_EQ(lintavo_window_set_sprossen_dicke(w, 0, 0, 3.5), 1);
  EXPECT_EQ(lintavo_window_berechne(w), 1);
  EXPECT_EQ(lintavo_window_get_rahmen_breite(w), 8.5);
  EXPECT_EQ(lintavo_window_get_rahmen_dicke(w), 7.25);
  EXPECT_EQ(lintavo_window_get_fluegel_rahmen_breite(w, 0), 6.5);
  EXPECT_EQ(lintavo_window_get_fluegel_rahmen_dicke(w, 0), 5.5);
  EXPECT_EQ(lintavo_window_get_fluegel_ueberschlag(w, 0), 1.25);
  EXPECT_EQ(lintavo_window_get_sprossen_breite(w, 0, 0), 2.5);
  EXPECT_EQ(lintavo_window_get_sprossen_dicke(w, 0, 0), 3.5);
}

TEST(CApiEdits, FitsAnOpeningAndCopiesAreIndependent) {
  const Window w("rundbogen.aqz");
  lintavo_window* copy = lintavo_window_copy(w);
  ASSERT_EQ(lintavo_window_set_breite_hoehe(w, nullptr, 180.0, 220.0), 1);
  ASSERT_EQ(lintavo_window_berechne(w), 1);
  EXPECT_NEAR(lintavo_window_get_fenster_breite(w), 180.0, 1e-6);
  EXPECT_NEAR(lintavo_window_get_fenster_hoehe(w), 220.0, 1e-6);
  EXPECT_GT(std::abs(lintavo_window_get_fenster_breite(copy) - 180.0), 1.0);
  EXPECT_EQ(lintavo_window_assign(copy, w), 1);
  EXPECT_EQ(lintavo_window_get_fenster_breite(copy), lintavo_window_get_fenster_breite(w));
  lintavo_window_delete_fenster(w);
  EXPECT_EQ(lintavo_window_get_anzahl_fluegel(w), 0);
  EXPECT_GE(lintavo_window_get_anzahl_fluegel(copy), 1);
  lintavo_window_destroy(copy);
}

TEST(CApiEdits, FilesAndBuffersGoThereAndBack) {
  const Window w("schraegen.aqz");
  const Bytes bytes;
  ASSERT_EQ(lintavo_window_write_to_buffer(w, bytes), 1);
  const Window again;
  ASSERT_EQ(lintavo_window_read_from_buffer(again, bytes.Text().data(),
                                            static_cast<long>(bytes.Text().size()), '#'),
            1);
  const Bytes bytesAgain;
  ASSERT_EQ(lintavo_window_write_to_buffer(again, bytesAgain), 1);
  EXPECT_EQ(bytes.Text(), bytesAgain.Text());

  const Ordner folder;
  const std::string path = folder / "fenster.aqz";
  ASSERT_EQ(lintavo_window_write_to_file(w, path.c_str()), 1);
  EXPECT_EQ(Text(lintavo_get_bezeichnung_from_file, path.c_str()),
            Text(lintavo_window_get_fenster_bezeichnung, w.handle));
  EXPECT_EQ(Text(lintavo_get_valid_makro_file, (folder / "").c_str()), path);
  EXPECT_EQ(lintavo_is_file_compressed("A.CQZ"), 1);
  EXPECT_EQ(lintavo_is_file_compressed("a.aqz"), 0);
  EXPECT_EQ(lintavo_is_file_temporary("a.tmp"), 1);
}

// --- positions and settings -----------------------------------------------------

const std::string kExamples = LINTAVO_EXAMPLES_DIR;

TEST(CApiPosition, MakesTheWindowOfAParameterFileAndKeepsItsTexts) {
  const std::string parameters = kExamples + "/Positionen/kueche.txt";
  lintavo_position* position = lintavo_position_create();
  ASSERT_EQ(
      lintavo_position_read_from_parameter_file(position, parameters.c_str(), kExamples.c_str()), 1)
      << Text(lintavo_position_get_error_msg, position);
  const Window w;
  ASSERT_EQ(lintavo_position_get_fenster(position, w), 1);
  EXPECT_GE(lintavo_window_get_anzahl_fluegel(w), 1);

  // The window is a copy: what is done to it reaches the position when handed back.
  ASSERT_EQ(lintavo_window_set_breite_hoehe(w, nullptr, 171.0, 163.0), 1);
  ASSERT_EQ(lintavo_window_berechne(w), 1);
  const Window untouched;
  ASSERT_EQ(lintavo_position_get_fenster(position, untouched), 1);
  EXPECT_GT(std::abs(lintavo_window_get_fenster_breite(untouched) - 171.0), 0.5);
  ASSERT_EQ(lintavo_position_set_fenster(position, w), 1);

  EXPECT_EQ(lintavo_position_set_text(position, 49, "zuletzt"), 1);
  EXPECT_EQ(lintavo_position_set_text(position, 50, "zu weit"), 0);
  EXPECT_EQ(Text(lintavo_position_get_text, position, 49L), "zuletzt");
  const Ordner folder;
  const std::string path = folder / "position.aqz";
  ASSERT_EQ(lintavo_position_save_to_file(position, path.c_str(), "Wohnzimmer"), 1);
  lintavo_position_destroy(position);

  lintavo_position* again = lintavo_position_create();
  ASSERT_EQ(lintavo_position_read_from_file(again, path.c_str()), 1);
  EXPECT_EQ(Text(lintavo_position_get_text, again, 1L), "Wohnzimmer");
  const Window read;
  ASSERT_EQ(lintavo_position_get_fenster(again, read), 1);
  EXPECT_NEAR(lintavo_window_get_fenster_breite(read), 171.0, 1e-6);
  lintavo_position_destroy(again);
}

TEST(CApiPosition, ErrorsCarryNumberAndText) {
  lintavo_position* position = lintavo_position_create();
  EXPECT_EQ(lintavo_position_get_error(position), 48);
  EXPECT_EQ(lintavo_position_read_from_file(position, "/nowhere/a.aqz"), 0);
  EXPECT_EQ(lintavo_position_get_error(position), 28);
  EXPECT_NE(Text(lintavo_position_get_error_msg, position).find("/nowhere/a.aqz"),
            std::string::npos);
  EXPECT_EQ(lintavo_position_read_from_parameter_file(position, "a.ini", nullptr), 0);
  lintavo_position_destroy(position);
  EXPECT_EQ(lintavo_position_get_error(nullptr), -1);
  EXPECT_EQ(lintavo_position_get_fenster(nullptr, nullptr), 0);
  lintavo_position_destroy(nullptr);
}

TEST(CApiSettings, GeneralSettingsGoThereAndBack) {
  lintavo_settings* settings = lintavo_settings_create();
  const lintavo_generelles values{0, 1.5, 2.0, 3.0, 4, 5.0, 6.0, 7.0, 0.5F, 0.25F, 0.125F, 8.0F};
  ASSERT_EQ(lintavo_settings_set_generelles(settings, &values), 1);
  const Ordner folder;
  const std::string path = folder / "generelles.ini";
  ASSERT_EQ(lintavo_settings_save_generelles(settings, path.c_str()), 1);
  lintavo_generelles kept{};
  ASSERT_EQ(lintavo_settings_get_generelles(settings, &kept), 1);
  EXPECT_EQ(kept.texthoehe, 2.0);
  lintavo_settings_destroy(settings);

  settings = lintavo_settings_create();
  ASSERT_EQ(lintavo_settings_read_generelles(settings, path.c_str()), 1);
  lintavo_generelles read{};
  ASSERT_EQ(lintavo_settings_get_generelles(settings, &read), 1);
  EXPECT_EQ(read.maszlinien_faktor, 1.5);
  EXPECT_EQ(read.min_textpixel, 4);
  EXPECT_EQ(read.stift_rahmen, 0.5F);
  EXPECT_EQ(read.stift_symbole, 0.25F);
  EXPECT_EQ(read.stift_sprossen, 0.125F);
  EXPECT_EQ(read.stift_maszlinien, 8.0F);
  EXPECT_EQ(lintavo_settings_read_generelles(settings, "/nowhere/a.ini"), 0);
  lintavo_settings_destroy(settings);
}

TEST(CApiSettings, MaterialsAnswerByListAndIndex) {
  const Ordner folder;
  const std::string path = folder / "material.ini";
  CIniFile document;
  for (const char* line : {"[Bauteil1]", "Name=Holz", "RGB2d=1,2,3", "[Bauteil2]", "Name=Glas"}) {
    document.AddLine(line);
  }
  ASSERT_EQ(document.Write(path.c_str()), 1);
  lintavo_settings* settings = lintavo_settings_create();
  ASSERT_EQ(lintavo_settings_read_materials(settings, path.c_str()), 1);
  ASSERT_EQ(lintavo_settings_read_material_ini_file(settings, path.c_str()), 1);
  EXPECT_EQ(lintavo_settings_get_anzahl_materialien(settings, LINTAVO_MATERIAL_BAUTEIL), 2);
  EXPECT_EQ(lintavo_settings_get_anzahl_materialien(settings, LINTAVO_MATERIAL_SYMBOL), 0);
  EXPECT_EQ(lintavo_settings_get_anzahl_materialien(settings, 3), 0);
  EXPECT_EQ(Text(lintavo_settings_get_material_name, settings, 0, 1L), "Glas");
  EXPECT_EQ(Text(lintavo_settings_get_material_name, settings, 0, 2L), "");
  EXPECT_EQ(lintavo_settings_get_color2d(settings, 0, 0), 1u + 256u * 2u + 65536u * 3u);
  EXPECT_EQ(lintavo_settings_get_color2d_from_ini(settings, "Bauteil", 1),
            1u + 256u * 2u + 65536u * 3u);
  EXPECT_EQ(lintavo_settings_set_texture_id(settings, 0, 1, 77), 1);
  lintavo_material material{};
  ASSERT_EQ(lintavo_settings_get_material(settings, 0, 1, &material), 1);
  EXPECT_EQ(material.textur_id, 77);
  EXPECT_EQ(lintavo_settings_set_texture_id(settings, 0, 2, 77), 0);
  EXPECT_EQ(lintavo_settings_get_material(settings, 0, -1, &material), 0);
  lintavo_settings_destroy(settings);
  EXPECT_EQ(lintavo_settings_get_material(nullptr, 0, 0, &material), 0);
}

// --- the rules of the boundary --------------------------------------------------

TEST(CApiRules, AFailedReadLeavesNumberAndText) {
  const Window w;
  EXPECT_EQ(lintavo_window_get_error_id(w), 0);
  EXPECT_EQ(lintavo_window_read_from_file(w, "/nowhere/fenster.aqz"), 0);
  EXPECT_EQ(lintavo_window_get_error_id(w), 28);
  EXPECT_NE(Text(lintavo_window_get_error_msg, w.handle).find("/nowhere/fenster.aqz"),
            std::string::npos);
}

TEST(CApiRules, TextIsCutToTheBufferAndItsWholeLengthReturned) {
  const Window w("rundbogen.aqz");
  const std::string name = Text(lintavo_window_get_fenster_bezeichnung, w.handle);
  ASSERT_GE(name.size(), 4u);
  char buffer[4] = {'x', 'x', 'x', 'x'};
  EXPECT_EQ(lintavo_window_get_fenster_bezeichnung(w, buffer, 3), name.size());
  EXPECT_EQ(std::string(buffer, 4), name.substr(0, 2) + std::string("\0x", 2));
  EXPECT_EQ(lintavo_window_get_fenster_bezeichnung(w, buffer, 0), name.size());
  EXPECT_EQ(buffer[0], name[0]);
  EXPECT_EQ(lintavo_window_get_fenster_bezeichnung(w, nullptr, 100), name.size());
}

TEST(CApiRules, ANameThatFillsTheFacadesArrayIsTerminated) {
  const Window w("rundbogen.aqz");
  const Bytes bytes;
  ASSERT_EQ(lintavo_window_write_to_buffer(w, bytes), 1);
  std::string text = bytes.Text();
  const std::size_t at = text.find("Name=");
  ASSERT_NE(at, std::string::npos);
  text.replace(at, text.find('#', at) - at, "Name=" + std::string(300, 'n'));
  ASSERT_EQ(lintavo_window_read_from_buffer(w, text.data(), static_cast<long>(text.size()), '#'),
            1);
  char name[LINTAVO_TEXT_SIZE];
  EXPECT_EQ(lintavo_window_get_fenster_bezeichnung(w, name, sizeof name), 256u);
  EXPECT_EQ(std::string(name), std::string(256, 'n'));
}

TEST(CApiRules, NullHandlesFail) {
  const Polygon polygon;
  const Segments segments;
  char text[8] = "rest";
  EXPECT_EQ(lintavo_window_get_error_id(nullptr), -1);
  EXPECT_EQ(lintavo_window_read_from_file(nullptr, "a.aqz"), 0);
  EXPECT_EQ(lintavo_window_berechne(nullptr), 0);
  EXPECT_EQ(lintavo_window_get_anzahl_fluegel(nullptr), -1);
  EXPECT_EQ(lintavo_window_get_fluegel_name(nullptr, 0, text, sizeof text), 0u);
  EXPECT_STREQ(text, "");
  EXPECT_EQ(lintavo_window_get_fluegel_innen_polygon(nullptr, 0, 0.0, polygon), 0);
  EXPECT_EQ(lintavo_window_get_ansicht(nullptr, 0, segments), 0);
  EXPECT_EQ(lintavo_window_copy(nullptr), nullptr);
  EXPECT_EQ(lintavo_window_assign(nullptr, nullptr), 0);
  EXPECT_EQ(lintavo_polygon_get_anzahl(nullptr), 0);
  EXPECT_EQ(lintavo_polygon_get_x(nullptr), nullptr);
  EXPECT_EQ(lintavo_segments_get_anzahl(nullptr), 0);
  EXPECT_EQ(lintavo_bytes_set(nullptr, "a", 1), 0);
  EXPECT_EQ(lintavo_bytes_get_size(nullptr), 0u);
  lintavo_window_destroy(nullptr);
  lintavo_polygon_destroy(nullptr);
  lintavo_segments_destroy(nullptr);
  lintavo_bytes_destroy(nullptr);
}

TEST(CApiRules, NullArgumentsAndBadIndicesDoNoHarm) {
  const Window w("rundbogen.aqz");
  EXPECT_EQ(lintavo_window_read_from_file(w, nullptr), 0);
  EXPECT_EQ(lintavo_window_write_to_file(w, nullptr), 0);
  EXPECT_EQ(lintavo_window_write_to_buffer(w, nullptr), 0);
  EXPECT_EQ(lintavo_window_read_from_buffer(w, nullptr, 10, '#'), 0);
  EXPECT_EQ(lintavo_window_get_fluegel_innen_polygon(w, 0, 0.0, nullptr), 1);
  EXPECT_EQ(lintavo_window_get_ansicht(w, 0, nullptr), 1);
  EXPECT_EQ(lintavo_window_is_zmasz_breite_hoehe(w, nullptr, nullptr), 1);
  EXPECT_EQ(lintavo_is_file_compressed(nullptr), 0);
  EXPECT_EQ(lintavo_get_valid_makro_file(nullptr, nullptr, 0), 0u);
  const Polygon polygon;
  double x = 7.0;
  for (const long i : {-2147483647L - 1L, -1L, 2147483647L}) {
    EXPECT_EQ(lintavo_window_get_fluegel_innen_polygon(w, i, 0.0, polygon), 0);
    EXPECT_EQ(lintavo_window_get_anzahl_sprossen(w, i), -1);
    EXPECT_EQ(lintavo_polygon_get_punkt(polygon, i, &x, nullptr), 0);
  }
  EXPECT_EQ(x, 7.0);
}

}  // namespace
}  // namespace lintavo::test
