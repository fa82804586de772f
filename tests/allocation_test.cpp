// Memory that runs out anywhere inside a call: for every allocation that a call makes,
// the call is made once with that one failing, and once with all from there on. It
// must then fail as documented (or not need the memory after all), leak nothing, and
// leave an object that does everything as before.
#include <cstdint>
#include <cstring>
#include <fstream>
#include <iterator>
#include <memory>
#include <new>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <zlib.h>

#include "lintavo/api/CFeApi.h"
#include "lintavo/geom/Seitendeckung.h"
#include "lintavo/geom/Toleranzen.h"
#include "lintavo/lintavo_c.h"
#include "lintavo/model/CMFenster.h"
#include "lintavo/settings/CMFensterPosition.h"
#ifdef LINTAVO_MIT_BILDERN
#include "lintavo/drawing/Scene.h"
#include "lintavo/drawing_c.h"
#endif

#include "fuzz/Abfragen.h"
#include "support/Ordner.h"
#include "support/Speicherknappheit.h"

namespace lintavo::test {
namespace {

// Every allocation; under the sanitizers, which cost tenfold, every n-th.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr long kSchritt = 13;
#else
constexpr long kSchritt = 1;
#endif
// After every so many failures the object has to do everything, not just the call.
constexpr long kVollePruefung = 32;

const std::string kBeispiele = LINTAVO_EXAMPLES_DIR;

// --- what a call gave -------------------------------------------------------------

// A call's result and all it handed out. Needs no memory, so that nothing here fails
// with the library.
class Abdruck {
 public:
  explicit Abdruck(long ergebnis = 0) : ergebnis_(ergebnis) {}

  Abdruck& operator<<(double v) {
    std::uint64_t bits = 0;
    std::memcpy(&bits, &v, sizeof bits);
    summe_ = (summe_ ^ bits) * 1099511628211U;
    return *this;
  }
  Abdruck& operator<<(const CFeApiPolygon& p) {
    for (int i = 0; i < p.lAnzahl; ++i) *this << p.pdX[i] << p.pdY[i];
    return *this;
  }
  Abdruck& operator<<(const CFeApiStrecken& s) {
    for (int i = 0; i < s.lAnzahl; ++i) {
      *this << s.pdX1[i] << s.pdY1[i] << s.pdX2[i] << s.pdY2[i] << s.piFarbe[i];
    }
    return *this;
  }
  Abdruck& Bytes(const char* bytes, long count) {
    for (long i = 0; i < count; ++i) *this << bytes[i];
    return *this;
  }

  long Ergebnis() const { return ergebnis_; }
  bool operator==(const Abdruck&) const = default;

 private:
  long ergebnis_;
  std::uint64_t summe_ = 14695981039346656037U;
};

// --- the sweep --------------------------------------------------------------------

// Makes `aufruf` fail in every way. `neu` makes an object that `aufruf` works on,
// `brauchbar` tells whether it still does all that it should.
template <class Neu, class Aufruf, class Brauchbar>
void PruefeAufruf(const char* name, long fehlschlag, Neu neu, Aufruf aufruf, Brauchbar brauchbar) {
  SCOPED_TRACE(name);
  const auto vorbild = neu();
  const Abdruck erwartet = aufruf(*vorbild);
  ASSERT_NE(erwartet.Ergebnis(), fehlschlag) << "the call does not even succeed with memory";
  for (const bool dauerhaft : {false, true}) {
    for (long n = 1;; n += kSchritt) {
      const long vorher = LebendeBloecke();
      auto objekt = neu();
      Abdruck gab;
      bool knapp = false;
      {
        const Speicherknappheit knappheit(n, dauerhaft);
        gab = aufruf(*objekt);
        knapp = knappheit.IstEingetreten();
      }
      if (!knapp) {
        ASSERT_EQ(gab, erwartet) << "without a failure";
        break;
      }
      if (gab.Ergebnis() != fehlschlag) {
        ASSERT_EQ(gab, erwartet) << "wrong result at allocation " << n;
      }
      ASSERT_EQ(aufruf(*objekt), erwartet) << "not repeatable after allocation " << n;
      if (n % kVollePruefung == 1) {
        ASSERT_TRUE(brauchbar(*objekt)) << "not usable after allocation " << n;
      }
      objekt.reset();
      ASSERT_EQ(LebendeBloecke(), vorher) << "blocks leak at allocation " << n;
    }
  }
}

// --- the façade -------------------------------------------------------------------

// What the calls read and write, made before memory is short.
struct Dateien {
  explicit Dateien(const std::string& name)
      : strFenster(kBeispiele + "/windows/" + name),
        strGepackt(ordner / "gepackt.cqz"),
        strZiel(ordner / "ziel.aqz") {
    std::ifstream file(strFenster, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    std::string zeilen;
    for (const char c : text) {
      puffer += c == '\n' ? '#' : c;
      zeilen += c == '\n' ? std::string("\r\n") : std::string(1, c);
    }
    uLongf length = compressBound(static_cast<uLong>(zeilen.size()));
    std::string stream(length, '\0');
    compress(reinterpret_cast<Bytef*>(stream.data()), &length,
             reinterpret_cast<const Bytef*>(zeilen.data()), static_cast<uLong>(zeilen.size()));
    stream.resize(length);
    std::ofstream(strGepackt, std::ios::binary) << stream;
  }

  Ordner ordner;
  std::string strFenster;
  std::string strGepackt;
  std::string strZiel;
  std::string puffer;
};

struct Lage {
  const Dateien& dateien;
  CFeApi api;
  CFeApi andere;  // an empty window
};

CFeApiWandOeffnungsParameter Laibung() {
  CFeApiWandOeffnungsParameter param;
  param.dLeibungA = 2.0;
  param.dLeibungC = 1.0;
  return param;
}

// What a window is, without drawing it.
Abdruck Fenster(long ergebnis, const CFeApi& api) {
  Abdruck abdruck(ergebnis);
  abdruck << api.GetFensterBreite() << api.GetFensterHoehe();
  for (long i = 0; i < api.GetAnzahlFluegel(); ++i) {
    abdruck << api.GetFluegelRahmenBreite(i) << static_cast<double>(api.GetAnzahlSprossen(i));
  }
  return abdruck;
}

Abdruck Geschrieben(const CFeApi& api) {
  long length = 0;
  char* block = nullptr;
  api.WriteToBuffer(&length, &block);
  Abdruck abdruck(block != nullptr);
  abdruck.Bytes(block, length);
  api.FreeBuffer(&block);
  return abdruck;
}

template <class Record, class Frage>
Abdruck Antwort(Frage frage) {
  Record record;
  const long ergebnis = frage(record);
  return Abdruck(ergebnis) << record;
}

template <class Frage>
Abdruck Polygon(Frage frage) {
  return Antwort<CFeApiPolygon>(frage);
}

template <class Frage>
Abdruck Strecken(Frage frage) {
  return Antwort<CFeApiStrecken>(frage);
}

template <class Frage>
Abdruck Text(Frage frage) {
  char text[256];
  const long length = frage(text);
  return Abdruck(length).Bytes(text, length);
}

template <class Frage>
Abdruck Umriss(Frage frage) {
  return Polygon([&](CFeApiPolygon& p) {
    double laenge = 0.0;
    double anfang = 0.0;
    double ende = 0.0;
    return frage(p, laenge, anfang, ende);
  });
}

struct Vorgang {
  const char* name;
  Abdruck (*aufruf)(Lage&);
};

// Calls that answer 1, or what is not 0, for success.
const Vorgang kJedesFenster[] = {
    {"ReadFromFile",
     [](Lage& l) { return Fenster(l.api.ReadFromFile(l.dateien.strFenster.c_str()), l.api); }},
    {"ReadFromCompressedFile",
     [](Lage& l) {
       return Fenster(l.api.ReadFromCompressedFile(l.dateien.strGepackt.c_str()), l.api);
     }},
    {"ReadFromBuffer",
     [](Lage& l) {
       const std::string& text = l.dateien.puffer;
       return Fenster(l.api.ReadFromBuffer(static_cast<long>(text.size()), text.data()), l.api);
     }},
    {"WriteToFile", [](Lage& l) { return Abdruck(l.api.WriteToFile(l.dateien.strZiel.c_str())); }},
    {"WriteToBuffer", [](Lage& l) { return Geschrieben(l.api); }},
    {"WriteParameterFormular",
     [](Lage& l) {
       const char* typ = "Ein Typname, der nicht in den Text selbst passt";
       return Abdruck(l.api.WriteParameterFormular(l.dateien.strZiel.c_str(), typ));
     }},
    {"GetBezeichnungFromFile",
     [](Lage& l) {
       return Text([&](char(&to)[256]) {
         return CFeApi::GetBezeichnungFromFile(l.dateien.strFenster.c_str(), to);
       });
     }},
    {"GetBezeichnungFromFile, compressed",
     [](Lage& l) {
       return Text([&](char(&to)[256]) {
         return CFeApi::GetBezeichnungFromFile(l.dateien.strGepackt.c_str(), to);
       });
     }},
    {"GetValidMakroFile",
     [](Lage&) {
       char path[256];
       return Abdruck(CFeApi::GetValidMakroFile(kBeispiele.c_str(), path)).Bytes(path, 256);
     }},
    {"Berechne", [](Lage& l) { return Fenster(l.api.Berechne(), l.api); }},
    {"SetFenster",
     [](Lage& l) { return Fenster(l.andere.SetFenster(*l.api.GetFensterPtr()), l.andere); }},
    {"SetBreiteHoehe",
     [](Lage& l) { return Abdruck(l.api.SetBreiteHoehe(Laibung(), 230.0, 180.0)); }},
    {"GetAnsicht, from inside",
     [](Lage& l) { return Strecken([&](auto& s) { return l.api.GetAnsicht(0, s); }); }},
    {"GetAnsicht, from outside",
     [](Lage& l) { return Strecken([&](auto& s) { return l.api.GetAnsicht(1, s); }); }},
    {"GetFluegelAnsicht",
     [](Lage& l) { return Strecken([&](auto& s) { return l.api.GetFluegelAnsicht(0, 1, s); }); }},
    {"GetFluegelOeffnungsSymbol",
     [](Lage& l) {
       return Strecken([&](auto& s) { return l.api.GetFluegelOeffnungsSymbol(0, s); });
     }},
    {"GetFluegelGlaslichteHori",
     [](Lage& l) {
       return Strecken([&](auto& s) { return l.api.GetFluegelGlaslichteHori(0, s); });
     }},
    {"GetFluegelGlaslichteVert",
     [](Lage& l) {
       return Strecken([&](auto& s) { return l.api.GetFluegelGlaslichteVert(0, s); });
     }},
    {"GetFluegelInnenPolygon",
     [](Lage& l) {
       return Polygon([&](auto& p) { return l.api.GetFluegelInnenPolygon(0, 1.5, p); });
     }},
    {"GetFluegelFuellungUmriss",
     [](Lage& l) {
       return Polygon([&](auto& p) { return l.api.GetFluegelFuellungUmriss(0, p); });
     }},
    {"GetRahmenBauteilUmriss",
     [](Lage& l) {
       return Umriss(
           [&](auto& p, auto&... d) { return l.api.GetRahmenBauteilUmriss(1, 0, -1, p, d...); });
     }},
    {"GetFluegelBauteilUmriss",
     [](Lage& l) {
       return Umriss(
           [&](auto& p, auto&... d) { return l.api.GetFluegelBauteilUmriss(1, 0, 0, 0, p, d...); });
     }},
    {"GetZMaszLinie",
     [](Lage& l) { return Strecken([&](auto& s) { return l.api.GetZMaszLinie(0, s); }); }},
    {"GetZMaszHilfslinien",
     [](Lage& l) {
       return Strecken([&](auto& s) { return l.api.GetZMaszHilfslinien(0, 10.0, s); });
     }},
    {"GetZMaszPfeile",
     [](Lage& l) {
       CFeApiPolygon p1;
       return Polygon([&](auto& p2) { return l.api.GetZMaszPfeile(0, 6.0, 2.0, p1, p2); });
     }},
    {"GetBox",
     [](Lage& l) {
       double b[4];
       const int ok = l.api.GetBox(12.0, b[0], b[1], b[2], b[3]);
       return ok != 0 ? Abdruck(ok) << b[0] << b[1] << b[2] << b[3] : Abdruck(ok);
     }},
    {"GetWandOeffnung",
     [](Lage& l) { return Polygon([&](auto& p) { return l.api.GetWandOeffnung(Laibung(), p); }); }},
    {"GetOeffMasze",
     [](Lage& l) {
       double b = 0.0;
       double h = 0.0;
       const int ok = l.api.GetOeffMasze(Laibung(), b, h);
       return Abdruck(ok) << b << h;
     }},
    {"GetFluegelGangart",
     [](Lage& l) { return Text([&](char(&to)[256]) { return l.api.GetFluegelGangart(0, to); }); }},
};

const Vorgang kBesondere[] = {
    {"GetFluegelAnzahlLamellen",
     [](Lage& l) { return Abdruck(l.api.GetFluegelAnzahlLamellen(0)); }},
    {"GetFluegelLamellenUmriss",
     [](Lage& l) {
       return Polygon([&](auto& p) { return l.api.GetFluegelLamellenUmriss(0, 1, p); });
     }},
};

const Vorgang kBeschlaege[] = {
    {"GetBeschlagPunkt",
     [](Lage& l) {
       double d[3] = {};
       const int ok = l.api.GetBeschlagPunkt(0, 0, d[0], d[1], d[2]);
       return ok != 0 ? Abdruck(ok) << d[0] << d[1] << d[2] : Abdruck(ok);
     }},
    {"GetBeschlagZeichnung",
     [](Lage& l) {
       return Strecken([&](auto& s) { return l.api.GetBeschlagZeichnung(0, 0, s); });
     }},
};

class Fassade {
 public:
  explicit Fassade(const std::string& name) : dateien_(name) {
    EXPECT_EQ(vorlage_.ReadFromFile(dateien_.strFenster.c_str()), 1);
    CFeApi frisch(vorlage_);
    wahr_ = fuzz::FrageAlles(frisch);
  }

  void Pruefe(const Vorgang& vorgang) {
    PruefeAufruf(
        vorgang.name, 0,
        [&] {
          return std::make_unique<Lage>(Lage{dateien_, vorlage_, {}});
        },
        vorgang.aufruf, [&](Lage& l) { return IstBrauchbar(l.api); });
  }

  const CFeApi& Vorlage() const { return vorlage_; }

  bool IstBrauchbar(CFeApi& api) const {
    const std::string& text = dateien_.puffer;
    if (api.ReadFromBuffer(static_cast<long>(text.size()), text.data()) != 1) return false;
    const fuzz::Antworten antworten = fuzz::FrageAlles(api);
    return antworten.Gebilde == wahr_.Gebilde && antworten.Zeichnungen == wahr_.Zeichnungen &&
           antworten.Angaben == wahr_.Angaben;
  }

 private:
  Dateien dateien_;
  CFeApi vorlage_;
  fuzz::Antworten wahr_;
};

class Speichermangel : public testing::TestWithParam<const char*> {};

TEST_P(Speichermangel, EveryCallOfTheFacadeFailsCleanly) {
  Fassade fassade(GetParam());
  for (const Vorgang& vorgang : kJedesFenster) fassade.Pruefe(vorgang);
}

// Bars, extra parts and several sashes; arches with mullions; a frame whose inner
// outline loses corners, for which polygons are clipped.
INSTANTIATE_TEST_SUITE_P(Windows, Speichermangel,
                         testing::Values("sprossen_und_zusatzteile.aqz", "rundbogen_dreiteilig.aqz",
                                         "kleine_fase_breiter_rahmen.aqz"));

TEST(Speichermangel, CallsForSlatsAndFittingsFailCleanly) {
  Fassade lamellen("lamellen_mit_deckleisten.aqz");
  for (const Vorgang& vorgang : kBesondere) lamellen.Pruefe(vorgang);
  Fassade beschlaege("drehkipp_einfluegelig.aqz");
  for (const Vorgang& vorgang : kBeschlaege) beschlaege.Pruefe(vorgang);
}

TEST(Speichermangel, WhatReadsOrCalculatesKeepsTheErrorAndACopyHasNoWindow) {
  const Fassade fassade("sprossen_und_zusatzteile.aqz");
  const std::string path = kBeispiele + "/windows/sprossen_und_zusatzteile.aqz";
  CFeApi api(fassade.Vorlage());
  int gelungen = 1;
  {
    const Speicherknappheit knappheit(1, true);
    gelungen = api.Berechne();
  }
  EXPECT_EQ(gelungen, 0);
  EXPECT_EQ(api.GetErrorID(), 1);
  char text[256];
  EXPECT_GT(api.GetErrorMsg(text), 0);
  {
    const Speicherknappheit knappheit(1, true);
    const CFeApi kopie(api);
    EXPECT_EQ(kopie.GetErrorID(), -1);
    EXPECT_EQ(kopie.GetAnzahlFluegel(), -1);
    api = fassade.Vorlage();  // keeps what it has
    api.DeleteFenster();
  }
  EXPECT_EQ(api.GetErrorID(), 1);
  EXPECT_EQ(api.Berechne(), 1);
  EXPECT_EQ(api.GetErrorID(), 0);
}

TEST(Speichermangel, ClippedPolygonsAreWholeOrNone) {
  const auto u = [] {
    auto polygon = std::make_unique<GEOM2_Polygon>();
    for (const XY& p : {XY{0, 0}, {30, 0}, {30, 20}, {26, 20}, {26, 6}, {4, 6}, {4, 20}, {0, 20}}) {
      polygon->AddPunkt(p.x, p.y);
    }
    return polygon;
  };
  const auto versetzt = [](GEOM2_Polygon& polygon) {
    try {
      GEOM2_Polygon innen;
      polygon.ParallelPolygon(-2.5, innen);  // the legs vanish, the bar between them stays
      return Abdruck(innen.GetAnzahl()) << innen.GetFlaeche();
    } catch (const std::bad_alloc&) {
      return Abdruck(-1);
    }
  };
  const auto ueberlappt = [](GEOM2_Polygon& polygon) {
    try {
      GEOM2_Polygon verschoben = polygon;
      verschoben.Transformieren(1.0, 0.0, 2.0, 2.0);
      return Abdruck(PolygoneUeberlappen(polygon, verschoben, kUeberlappung) ? 1 : 0);
    } catch (const std::bad_alloc&) {
      return Abdruck(-1);
    }
  };
  EXPECT_EQ(versetzt(*u()), Abdruck(4) << 25.0 * 1.0);
  const auto immer = [](const GEOM2_Polygon&) { return true; };
  PruefeAufruf("offset", -1, u, versetzt, immer);
  PruefeAufruf("overlap", -1, u, ueberlappt, immer);
}

// --- the C interface --------------------------------------------------------------

// Handles that one call of the C interface works on, made with memory to spare.
struct Griffe {
  explicit Griffe(const Ordner& ordner) : strZiel(ordner / "ziel") {
    lintavo_window_read_from_file(window, (kBeispiele + "/windows/rundbogen.aqz").c_str());
    lintavo_position_read_from_parameter_file(
        position, (kBeispiele + "/Positionen/kueche.txt").c_str(), kBeispiele.c_str());
    lintavo_settings_read_materials(settings,
                                    (kBeispiele + "/Einstellungen/materialien.ini").c_str());
  }
  ~Griffe() {
    lintavo_window_destroy(window);
    lintavo_position_destroy(position);
    lintavo_settings_destroy(settings);
    lintavo_bytes_destroy(bytes);
    lintavo_polygon_destroy(polygon);
    lintavo_segments_destroy(segments);
  }
  Griffe(const Griffe&) = delete;
  Griffe& operator=(const Griffe&) = delete;

  Abdruck Fenster(long ergebnis) const {
    Abdruck abdruck(ergebnis);
    return abdruck << lintavo_window_get_fenster_breite(window)
                   << static_cast<double>(lintavo_window_get_anzahl_fluegel(window));
  }
  Abdruck Bytes(long ergebnis) const {
    Abdruck abdruck(ergebnis);
    return abdruck.Bytes(lintavo_bytes_get_data(bytes),
                         static_cast<long>(lintavo_bytes_get_size(bytes)));
  }

  std::string strZiel;
  lintavo_window* window = lintavo_window_create();
  lintavo_position* position = lintavo_position_create();
  lintavo_settings* settings = lintavo_settings_create();
  lintavo_bytes* bytes = lintavo_bytes_create();
  lintavo_polygon* polygon = lintavo_polygon_create();
  lintavo_segments* segments = lintavo_segments_create();
};

// Whether a handle was made; what it holds is the window's.
Abdruck Gemacht(lintavo_window* window) {
  Abdruck abdruck(window != nullptr);
  if (window) abdruck << lintavo_window_get_fenster_breite(window);
  lintavo_window_destroy(window);
  return abdruck;
}

struct Griffvorgang {
  const char* name;
  Abdruck (*aufruf)(Griffe&);
};

const std::string kKueche = kBeispiele + "/Positionen/kueche.txt";
const std::string kAllgemein = kBeispiele + "/Einstellungen/allgemein.ini";
const std::string kMaterialien = kBeispiele + "/Einstellungen/materialien.ini";
const std::string kFenster = kBeispiele + "/windows/rundbogen.aqz";

const Griffvorgang kGriffvorgaenge[] = {
    {"window_create", [](Griffe&) { return Gemacht(lintavo_window_create()); }},
    {"window_copy", [](Griffe& g) { return Gemacht(lintavo_window_copy(g.window)); }},
    {"window_assign",
     [](Griffe& g) {
       lintavo_window* other = lintavo_window_create();
       const int ok = lintavo_window_assign(other, g.window);
       Abdruck abdruck(ok);
       if (ok == 1) abdruck << lintavo_window_get_fenster_breite(other);
       lintavo_window_destroy(other);
       return abdruck;
     }},
    {"window_read_from_file",
     [](Griffe& g) {
       return g.Fenster(lintavo_window_read_from_file(g.window, kFenster.c_str()));
     }},
    {"window_write_to_buffer",
     [](Griffe& g) { return g.Bytes(lintavo_window_write_to_buffer(g.window, g.bytes)); }},
    {"window_get_fluegel_innen_polygon",
     [](Griffe& g) {
       const int ok = lintavo_window_get_fluegel_innen_polygon(g.window, 0, 0.0, g.polygon);
       return Abdruck(ok) << static_cast<double>(lintavo_polygon_get_anzahl(g.polygon));
     }},
    {"window_get_ansicht",
     [](Griffe& g) {
       const int ok = lintavo_window_get_ansicht(g.window, 1, g.segments);
       return Abdruck(ok) << static_cast<double>(lintavo_segments_get_anzahl(g.segments));
     }},
    {"bytes_set",
     [](Griffe& g) {
       lintavo_bytes* bytes = lintavo_bytes_create();
       const Abdruck abdruck(lintavo_bytes_set(bytes, kFenster.data(), kFenster.size()));
       lintavo_bytes_destroy(bytes);
       static_cast<void>(g);
       return abdruck;
     }},
    {"position_create",
     [](Griffe&) {
       lintavo_position* position = lintavo_position_create();
       const Abdruck abdruck(position != nullptr);
       lintavo_position_destroy(position);
       return abdruck;
     }},
    {"position_read_from_parameter_file",
     [](Griffe& g) {
       return Abdruck(lintavo_position_read_from_parameter_file(g.position, kKueche.c_str(),
                                                                kBeispiele.c_str()));
     }},
    {"position_save_to_file",
     [](Griffe& g) {
       return Abdruck(
           lintavo_position_save_to_file(g.position, g.strZiel.c_str(), "Ein Text dazu"));
     }},
    {"position_read_from_file",
     [](Griffe& g) {
       return Abdruck(lintavo_position_read_from_file(g.position, kFenster.c_str()));
     }},
    {"position_get_fenster",
     [](Griffe& g) { return g.Fenster(lintavo_position_get_fenster(g.position, g.window)); }},
    {"position_set_fenster",
     [](Griffe& g) { return Abdruck(lintavo_position_set_fenster(g.position, g.window)); }},
    {"position_set_text",
     [](Griffe& g) { return Abdruck(lintavo_position_set_text(g.position, 7, kKueche.c_str())); }},
    {"settings_create",
     [](Griffe&) {
       lintavo_settings* settings = lintavo_settings_create();
       const Abdruck abdruck(settings != nullptr);
       lintavo_settings_destroy(settings);
       return abdruck;
     }},
    {"settings_read_generelles",
     [](Griffe& g) {
       return Abdruck(lintavo_settings_read_generelles(g.settings, kAllgemein.c_str()));
     }},
    {"settings_save_generelles",
     [](Griffe& g) {
       return Abdruck(lintavo_settings_save_generelles(g.settings, g.strZiel.c_str()));
     }},
    {"settings_read_materials",
     [](Griffe& g) {
       const int ok = lintavo_settings_read_materials(g.settings, kMaterialien.c_str());
       return Abdruck(ok) << static_cast<double>(
                  lintavo_settings_get_anzahl_materialien(g.settings, LINTAVO_MATERIAL_BAUTEIL));
     }},
    {"settings_read_material_ini_file",
     [](Griffe& g) {
       return Abdruck(lintavo_settings_read_material_ini_file(g.settings, kMaterialien.c_str()));
     }},
};

TEST(Speichermangel, EveryCallOfTheCInterfaceFailsCleanly) {
  const Ordner ordner;
  for (const Griffvorgang& vorgang : kGriffvorgaenge) {
    PruefeAufruf(
        vorgang.name, 0, [&] { return std::make_unique<Griffe>(ordner); }, vorgang.aufruf,
        [](Griffe& g) { return lintavo_window_berechne(g.window) == 1; });
  }
}

TEST(Speichermangel, APositionKeepsTheError) {
  CMFensterPosition position;
  const CString kueche(kKueche);
  const CString ordner(kBeispiele);
  ASSERT_TRUE(position.ReadFromFile(kueche, ordner));
  bool gelungen = true;
  {
    const Speicherknappheit knappheit(50, true);
    gelungen = position.ReadFromFile(kueche, ordner);
  }
  EXPECT_FALSE(gelungen);
  EXPECT_EQ(position.GetError(), 1);
}

#ifdef LINTAVO_MIT_BILDERN
// Nothing is missing in a scene because there was no memory for it.
Abdruck Szene(const CFeApi& api) {
  try {
    const drawing::Scene scene = drawing::BuildScene(api);
    Abdruck abdruck(1);
    for (const drawing::Shape& shape : scene.shapes) {
      for (const drawing::Point& p : shape.outline) abdruck << p.x << p.y;
    }
    for (const drawing::Line& l : scene.lines) abdruck << l.from.x << l.from.y << l.to.x << l.to.y;
    return abdruck << static_cast<double>(scene.texts.size());
  } catch (const std::bad_alloc&) {
    return Abdruck(0);
  }
}

TEST(Speichermangel, ScenesAreWholeOrNone) {
  for (const char* name : {"sprossen_und_zusatzteile.aqz", "lamellen_mit_deckleisten.aqz"}) {
    Fassade(name).Pruefe({name, [](Lage& l) { return Szene(l.api); }});
  }
}

TEST(Speichermangel, PicturesFailCleanly) {
  const Ordner ordner;
  PruefeAufruf(
      "window_draw", LINTAVO_PICTURE_FAILED, [&] { return std::make_unique<Griffe>(ordner); },
      [](Griffe& g) {
        return g.Bytes(lintavo_window_draw(g.window, LINTAVO_FORMAT_SVG, 0, g.bytes));
      },
      [](Griffe& g) { return lintavo_window_berechne(g.window) == 1; });
}
#endif

}  // namespace
}  // namespace lintavo::test
