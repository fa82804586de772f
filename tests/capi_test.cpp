// The C interface: every function answers as the façade's member of its name,
// nothing that a host passes does harm, and text and handles keep their rules.
#include <cmath>
#include <functional>
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

template <class Record, Record* (*Create)(), void (*Destroy)(Record*)>
struct Handle {
  Record* handle = Create();
  Handle() {}
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  ~Handle() { Destroy(handle); }
  operator Record*() const { return handle; }
};
using Polygon = Handle<lintavo_polygon, lintavo_polygon_create, lintavo_polygon_destroy>;
using Segments = Handle<lintavo_segments, lintavo_segments_create, lintavo_segments_destroy>;
using Bytes = Handle<lintavo_bytes, lintavo_bytes_create, lintavo_bytes_destroy>;

std::string Text(const Bytes& bytes) {
  return {lintavo_bytes_get_data(bytes), lintavo_bytes_get_size(bytes)};
}

// The text that a function of the C interface hands out for its first arguments.
template <class Function, class... Arguments>
std::string Text(Function function, const Arguments&... arguments) {
  char text[LINTAVO_TEXT_SIZE];
  return {text, function(arguments..., text, sizeof text)};
}

using Doubles = std::vector<double>;

Doubles Numbers(const lintavo_polygon* polygon) {
  Doubles numbers;
  for (long i = 0; i < lintavo_polygon_get_anzahl(polygon); ++i) {
    numbers.insert(numbers.end(),
                   {lintavo_polygon_get_x(polygon)[i], lintavo_polygon_get_y(polygon)[i]});
  }
  return numbers;
}

Doubles Numbers(const CFeApiPolygon& polygon) {
  Doubles numbers;
  for (int i = 0; i < polygon.lAnzahl; ++i) {
    numbers.insert(numbers.end(), {polygon.pdX[i], polygon.pdY[i]});
  }
  return numbers;
}

Doubles Numbers(const lintavo_segments* segments) {
  Doubles numbers;
  lintavo_segment s;
  for (long i = 0; lintavo_segments_get_strecke(segments, i, &s); ++i) {
    numbers.insert(numbers.end(), {s.x1, s.y1, s.x2, s.y2, double(s.farbe), double(s.prio)});
  }
  return numbers;
}

Doubles Numbers(const CFeApiStrecken& s) {
  Doubles numbers;
  for (int i = 0; i < s.lAnzahl; ++i) {
    numbers.insert(numbers.end(), {s.pdX1[i], s.pdY1[i], s.pdX2[i], s.pdY2[i], double(s.piFarbe[i]),
                                   double(s.piPrio[i])});
  }
  return numbers;
}

// --- like the façade ----------------------------------------------------------

// Calls a function of the C interface and the façade's member with the same arguments
// and compares all that comes back.
class CApi : public testing::TestWithParam<std::string> {
 protected:
  // The common result.
  template <class Function, class Member, class... Arguments>
  long Same(Function function, Member member, Arguments... arguments) {
    const auto expected = std::invoke(member, api, arguments...);
    EXPECT_EQ(function(w, arguments...), expected);
    return static_cast<long>(expected);
  }
  template <class Function, class Member, class... Arguments>
  void SameText(Function function, Member member, Arguments... arguments) {
    char text[256];
    const long length = std::invoke(member, api, arguments..., text);
    EXPECT_EQ(Text(function, w.handle, arguments...), std::string(text, std::size_t(length)));
  }
  template <class Function, class Member, class... Arguments>
  void SamePolygon(Function function, Member member, Arguments... arguments) {
    const Polygon polygon;
    CFeApiPolygon expected;
    EXPECT_EQ(function(w, arguments..., polygon),
              std::invoke(member, api, arguments..., std::ref(expected)));
    EXPECT_EQ(Numbers(polygon), Numbers(expected));
  }
  // Both in one record all along: what an earlier call put in has to go.
  template <class Function, class Member, class... Arguments>
  void SameLines(Function function, Member member, Arguments... arguments) {
    EXPECT_EQ(function(w, arguments..., lines),
              std::invoke(member, api, arguments..., std::ref(expectedLines)));
    EXPECT_EQ(Numbers(lines), Numbers(expectedLines));
  }
  // An outline, its length and its two angles.
  template <class Function, class Member, class... Arguments>
  void SamePart(Function function, Member member, Arguments... arguments) {
    const Polygon outline;
    CFeApiPolygon expected;
    double a[3] = {};
    double b[3] = {};
    EXPECT_EQ(function(w, arguments..., outline, &a[0], &a[1], &a[2]),
              std::invoke(member, api, arguments..., std::ref(expected), std::ref(b[0]),
                          std::ref(b[1]), std::ref(b[2])));
    EXPECT_EQ(Numbers(outline), Numbers(expected));
    EXPECT_EQ(Doubles(a, a + 3), Doubles(b, b + 3));
  }

  const Window w{GetParam()};
  CFeApi& api = w.Api();
  const Segments lines{};
  CFeApiStrecken expectedLines;
};

INSTANTIATE_TEST_SUITE_P(Beispiele, CApi, testing::ValuesIn(BeispielNamen()), BeispielTestName);

TEST_P(CApi, FrameAnswersAsTheFacade) {
  Same(lintavo_window_get_fenster_breite, &CFeApi::GetFensterBreite);
  Same(lintavo_window_get_fenster_hoehe, &CFeApi::GetFensterHoehe);
  Same(lintavo_window_get_rahmen_breite, &CFeApi::GetRahmenBreite);
  Same(lintavo_window_get_rahmen_dicke, &CFeApi::GetRahmenDicke);
  Same(lintavo_window_get_rahmen_abschnitt, &CFeApi::GetRahmenAbschnitt);
  SameText(lintavo_window_get_fenster_bezeichnung, &CFeApi::GetFensterBezeichnung);
  for (long art = 0; art <= 3; ++art) {
    const long parts =
        Same(lintavo_window_get_anzahl_rahmen_bauteile, &CFeApi::GetAnzahlRahmenBauteile, art);
    for (long i = 0; i < parts; ++i) {
      Same(lintavo_window_get_anzahl_rahmen_bauteil_segmente,
           &CFeApi::GetAnzahlRahmenBauteilSegmente, art, i);
      Same(lintavo_window_get_rahmen_bauteil_dicke, &CFeApi::GetRahmenBauteilDicke, art, i);
      SamePart(lintavo_window_get_rahmen_bauteil_umriss, &CFeApi::GetRahmenBauteilUmriss, art, i,
               long{LINTAVO_ALLE_SEGMENTE});
    }
  }
}

TEST_P(CApi, SashesAnswerAsTheFacade) {
  const long sashes = Same(lintavo_window_get_anzahl_fluegel, &CFeApi::GetAnzahlFluegel);
  for (long i = 0; i < sashes; ++i) {
    SameText(lintavo_window_get_fluegel_name, &CFeApi::GetFluegelName, i);
    SameText(lintavo_window_get_fluegel_gangart, &CFeApi::GetFluegelGangart, i);
    SameText(lintavo_window_get_fluegel_anschlag, &CFeApi::GetFluegelAnschlag, i);
    SameText(lintavo_window_get_fluegel_oeff_seite, &CFeApi::GetFluegelOeffSeite, i);
    Same(lintavo_window_get_fluegel_rahmen_breite, &CFeApi::GetFluegelRahmenBreite, i);
    Same(lintavo_window_get_fluegel_rahmen_dicke, &CFeApi::GetFluegelRahmenDicke, i);
    Same(lintavo_window_get_fluegel_ueberschlag, &CFeApi::GetFluegelUeberschlag, i);
    Same(lintavo_window_get_fluegel_zversatz, &CFeApi::GetFluegelZVersatz, i, 0L);
    Same(lintavo_window_get_fluegel_zversatz, &CFeApi::GetFluegelZVersatz, i, 1L);
    Same(lintavo_window_get_fluegel_fuellung_art, &CFeApi::GetFluegelFuellungArt, i);
    Same(lintavo_window_get_fluegel_fuellung_dicke, &CFeApi::GetFluegelFuellungDicke, i);
    SamePolygon(lintavo_window_get_fluegel_innen_polygon, &CFeApi::GetFluegelInnenPolygon, i, 1.5);
    SamePolygon(lintavo_window_get_fluegel_fuellung_umriss, &CFeApi::GetFluegelFuellungUmriss, i);
    const long slats =
        Same(lintavo_window_get_fluegel_anzahl_lamellen, &CFeApi::GetFluegelAnzahlLamellen, i);
    for (long j = 0; j < slats; ++j) {
      SamePolygon(lintavo_window_get_fluegel_lamellen_umriss, &CFeApi::GetFluegelLamellenUmriss, i,
                  j);
    }
    for (long j = 0; j < api.GetAnzahlBeschlaege(i); ++j) {
      double a[3] = {};
      double b[3] = {};
      EXPECT_EQ(lintavo_window_get_beschlag_punkt(w, i, j, &a[0], &a[1], &a[2]),
                api.GetBeschlagPunkt(i, j, b[0], b[1], b[2]));
      EXPECT_EQ(Doubles(a, a + 3), Doubles(b, b + 3));
    }
  }
}

TEST_P(CApi, SashPartsAnswerAsTheFacade) {
  for (long sash = 0; sash < api.GetAnzahlFluegel(); ++sash) {
    for (long art = 1; art <= 3; ++art) {
      const long parts = Same(lintavo_window_get_fluegel_anzahl_bauteile,
                              &CFeApi::GetFluegelAnzahlBauteile, art, sash);
      for (long i = 0; i < parts; ++i) {
        Same(lintavo_window_get_fluegel_anzahl_bauteil_segmente,
             &CFeApi::GetFluegelAnzahlBauteilSegmente, art, sash, i);
        Same(lintavo_window_get_fluegel_bauteil_dicke, &CFeApi::GetFluegelBauteilDicke, art, sash,
             i);
        SamePart(lintavo_window_get_fluegel_bauteil_umriss, &CFeApi::GetFluegelBauteilUmriss, art,
                 sash, i, 0L);
      }
    }
    const long bars = Same(lintavo_window_get_anzahl_sprossen, &CFeApi::GetAnzahlSprossen, sash);
    for (long i = 0; i < bars; ++i) {
      Same(lintavo_window_get_sprossen_breite, &CFeApi::GetSprossenBreite, sash, i);
      Same(lintavo_window_get_sprossen_dicke, &CFeApi::GetSprossenDicke, sash, i);
    }
  }
}

TEST_P(CApi, LinesAnswerAsTheFacade) {
  SameLines(lintavo_window_get_ansicht, &CFeApi::GetAnsicht, 0);
  SameLines(lintavo_window_get_ansicht, &CFeApi::GetAnsicht, 1);
  for (long i = 0; i < api.GetAnzahlFluegel(); ++i) {
    SameLines(lintavo_window_get_fluegel_ansicht, &CFeApi::GetFluegelAnsicht, i, 1);
    SameLines(lintavo_window_get_fluegel_oeffnungs_symbol, &CFeApi::GetFluegelOeffnungsSymbol, i);
    SameLines(lintavo_window_get_fluegel_glaslichte_hori, &CFeApi::GetFluegelGlaslichteHori, i);
    SameLines(lintavo_window_get_fluegel_glaslichte_vert, &CFeApi::GetFluegelGlaslichteVert, i);
    for (long j = 0; j < api.GetAnzahlBeschlaege(i); ++j) {
      SameLines(lintavo_window_get_beschlag_zeichnung, &CFeApi::GetBeschlagZeichnung, i, j);
    }
  }
  for (long i = 0; i < api.GetAnzahlZusatzMasze(); ++i) {
    SameLines(lintavo_window_get_zmasz_linie, &CFeApi::GetZMaszLinie, i);
    SameLines(lintavo_window_get_zmasz_hilfslinien, &CFeApi::GetZMaszHilfslinien, i, 3.0);
    const Polygon first, second;
    CFeApiPolygon expected1, expected2;
    EXPECT_EQ(lintavo_window_get_zmasz_pfeile(w, i, 4.0, 1.0, first, second),
              api.GetZMaszPfeile(i, 4.0, 1.0, expected1, expected2));
    EXPECT_EQ(Numbers(first), Numbers(expected1));
    EXPECT_EQ(Numbers(second), Numbers(expected2));
  }
  double a[4] = {};
  double b[4] = {};
  EXPECT_EQ(lintavo_window_get_box(w, 5.0, &a[0], &a[1], &a[2], &a[3]),
            api.GetBox(5.0, b[0], b[1], b[2], b[3]));
  EXPECT_EQ(Doubles(a, a + 4), Doubles(b, b + 4));
}

TEST_P(CApi, DimensionsAndOpeningAnswerAsTheFacade) {
  const long count = Same(lintavo_window_get_anzahl_zusatz_masze, &CFeApi::GetAnzahlZusatzMasze);
  for (long i = 0; i < count; ++i) {
    SameText(lintavo_window_get_zmasz_name, &CFeApi::GetZMaszName, i);
    Same(lintavo_window_get_zmasz_laenge, &CFeApi::GetZMaszLaenge, i);
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
  EXPECT_EQ(lintavo_window_set_rahmen_abschnitt(w, 12.5), 1);
  EXPECT_EQ(lintavo_window_set_fluegel_rahmen_breite(w, 0, 6.5), 1);
  EXPECT_EQ(lintavo_window_set_fluegel_rahmen_dicke(w, 0, 5.5), 1);
  EXPECT_EQ(lintavo_window_set_fluegel_ueberschlag(w, 0, 1.25), 1);
  EXPECT_EQ(lintavo_window_set_fluegel_zversatz(w, 0, 0.75), 1);
  EXPECT_EQ(lintavo_window_set_sprossen_breite(w, 0, 0, 2.5), 1);
  EXPECT_EQ(lintavo_window_set_sprossen_dicke(w, 0, 0, 3.5), 1);
  EXPECT_EQ(lintavo_window_berechne(w), 1);
  const CFeApi& api = w.Api();
  EXPECT_EQ(api.GetRahmenAbschnitt(), 12.5);
  EXPECT_EQ((Doubles{8.5, 7.25, 6.5, 5.5, 1.25, 2.5, 3.5}),
            (Doubles{api.GetRahmenBreite(), api.GetRahmenDicke(), api.GetFluegelRahmenBreite(0),
                     api.GetFluegelRahmenDicke(0), api.GetFluegelUeberschlag(0),
                     api.GetSprossenBreite(0, 0), api.GetSprossenDicke(0, 0)}));
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
  ASSERT_EQ(lintavo_window_read_from_buffer(again, Text(bytes).data(),
                                            static_cast<long>(Text(bytes).size()), '#'),
            1);
  const Bytes bytesAgain;
  ASSERT_EQ(lintavo_window_write_to_buffer(again, bytesAgain), 1);
  EXPECT_EQ(Text(bytes), Text(bytesAgain));

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
  std::string text = Text(bytes);
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
