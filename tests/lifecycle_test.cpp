// The life of the objects that hosts hold: copied, assigned, moved, emptied, read into
// again after failures; and hosts whose locale writes numbers otherwise.
#include <clocale>
#include <cstring>
#include <fstream>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "lintavo/api/CFeApi.h"
#include "lintavo/ini/CIniFile.h"
#include "lintavo/settings/CAcFeInis.h"
#include "lintavo/settings/CMFensterPosition.h"

#include "fuzz/Abfragen.h"
#include "support/Beispiele.h"
#include "support/Ordner.h"

namespace lintavo::test {
namespace {

const std::string kBeispiele = LINTAVO_EXAMPLES_DIR;
const char* const kEines = "rundbogen_dreiteilig.aqz";
const char* const kAnderes = "sprossen_und_zusatzteile.aqz";

CFeApi Gelesen(const char* name) {
  CFeApi api;
  EXPECT_EQ(api.ReadFromFile(BeispielPfad(name).c_str()), 1);
  return api;
}

// --- lives of a façade ------------------------------------------------------------

struct Lebenslauf {
  const char* name;
  void (*lauf)(CFeApi& api);
};

// So that no compiler sees that it is the same object.
CFeApi& Selbst(CFeApi& api) {
  return api;
}

// What leaves a window as it is.
const Lebenslauf kBewahrend[] = {
    {"assigned to itself", [](CFeApi& api) { api = Selbst(api); }},
    {"moved to itself", [](CFeApi& api) { api = std::move(Selbst(api)); }},
    {"set to its own window",
     [](CFeApi& api) { EXPECT_EQ(api.SetFenster(*api.GetFensterPtr()), 1); }},
    // A façade has no other way to move than to copy: who was moved from stays whole.
    {"moved from",
     [](CFeApi& api) {
       CFeApi other(std::move(api));
       other.DeleteFenster();
     }},
    {"copied, the copy changed and released",
     [](CFeApi& api) {
       CFeApi copy(api);
       copy.SetRahmenBreite(9.0);
       copy.Berechne();
     }},
    {"replaced by a copy of its copy",
     [](CFeApi& api) {
       const CFeApi copy(api);
       api = CFeApi(copy);
     }},
    {"carried along as a list grows",
     [](CFeApi& api) {
       std::vector<CFeApi> list(1, api);
       for (int i = 0; i < 5; ++i) list.emplace_back();
       api = list.front();
     }},
    {"written", [](CFeApi& api) { EXPECT_FALSE(fuzz::Geschrieben(api).empty()); }},
    {"calculated again", [](CFeApi& api) { EXPECT_EQ(api.Berechne(), 1); }},
};

// What leaves nothing, or anything, of it.
const Lebenslauf kLeerend[] = {
    {"emptied twice",
     [](CFeApi& api) {
       api.DeleteFenster();
       api.DeleteFenster();
       EXPECT_EQ(api.GetAnzahlFluegel(), 0);
     }},
    {"emptied, written and read",
     [](CFeApi& api) {
       api.DeleteFenster();
       const std::string text = fuzz::Geschrieben(api);
       api.ReadFromBuffer(static_cast<long>(text.size()), text.data());
       EXPECT_EQ(api.GetFensterBreite(), 0.0);
     }},
    {"a missing file",
     [](CFeApi& api) {
       EXPECT_EQ(api.ReadFromFile("/gibt/es/nicht.aqz"), 0);
       EXPECT_EQ(api.GetErrorID(), 28);
       EXPECT_EQ(api.GetAnzahlFluegel(), 0);
     }},
    {"a missing compressed file",
     [](CFeApi& api) { EXPECT_EQ(api.ReadFromCompressedFile("/gibt/es/nicht.cqz"), 0); }},
    {"a text that is no window", [](CFeApi& api) { EXPECT_EQ(api.ReadFromBuffer(5, "Hallo"), 0); }},
    {"a calculation that fails",
     [](CFeApi& api) {
       EXPECT_EQ(api.SetRahmenBreite(1e6), 1);
       EXPECT_EQ(api.Berechne(), 0);
       EXPECT_NE(api.GetErrorID(), 0);
     }},
    {"an empty window assigned", [](CFeApi& api) { api = CFeApi(); }},
};

void PruefeGleich(const CFeApi& api, const CFeApi& wie) {
  EXPECT_EQ(fuzz::Geschrieben(api), fuzz::Geschrieben(wie));
  EXPECT_EQ(fuzz::FrageAlles(api).Gebilde, fuzz::FrageAlles(wie).Gebilde);
  EXPECT_EQ(api.GetErrorID(), 0);
}

TEST(Lebenslauf, LeavesAWindowAsItIs) {
  const CFeApi erwartet = Gelesen(kEines);
  for (const Lebenslauf& leben : kBewahrend) {
    SCOPED_TRACE(leben.name);
    CFeApi api(erwartet);
    leben.lauf(api);
    PruefeGleich(api, erwartet);
  }
}

TEST(Lebenslauf, EndsWithAReadLikeTheFirst) {
  const CFeApi erwartet = Gelesen(kAnderes);
  std::vector<Lebenslauf> alle(std::begin(kBewahrend), std::end(kBewahrend));
  alle.insert(alle.end(), std::begin(kLeerend), std::end(kLeerend));
  for (const Lebenslauf& leben : alle) {
    SCOPED_TRACE(leben.name);
    CFeApi api = Gelesen(kEines);
    leben.lauf(api);
    EXPECT_EQ(api.ReadFromFile(BeispielPfad(kAnderes).c_str()), 1);
    PruefeGleich(api, erwartet);
  }
}

TEST(Lebenslauf, RecordsOwnTheirArrays) {
  CFeApiStrecken lines;
  lines.SetOrder(2);
  lines.pdX1[1] = 7.0;
  CFeApiStrecken copy(lines);
  copy = std::move(copy);
  lines.Delete();
  lines.Delete();
  ASSERT_EQ(copy.lAnzahl, 2);
  EXPECT_EQ(copy.pdX1[1], 7.0);
  CFeApiPolygon polygon;
  polygon.SetOrder(-4);
  EXPECT_EQ(polygon.lAnzahl, 0);
  polygon = CFeApiPolygon();
  polygon.Delete();
  EXPECT_EQ(polygon.pdX, nullptr);
}

// --- hosts with a decimal comma ---------------------------------------------------

std::string Bytes(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// The bytes of all that the library writes, from all that it reads.
std::string AllesGeschriebene() {
  const Ordner ordner;
  std::string bytes;
  CFeApi fenster = Gelesen(kEines);
  EXPECT_EQ(fenster.SetBreiteHoehe(fuzz::Laibung(), 260.25, 171.75), 1);
  EXPECT_EQ(fenster.Berechne(), 1);
  fenster.WriteToFile((ordner / "fenster.aqz").c_str());
  fenster.WriteParameterFormular((ordner / "form.txt").c_str(), "Typ");

  CMFensterPosition position;
  const CString kueche(kBeispiele + "/Positionen/kueche.txt");
  EXPECT_TRUE(position.ReadFromFile(kueche, CString(kBeispiele)));
  position.SaveToFile(CString(ordner / "position.aqz"), "2,5 m");

  CAcFeInis einstellungen;
  EXPECT_TRUE(einstellungen.ReadGenerelles(CString(kBeispiele + "/Einstellungen/allgemein.ini")));
  EXPECT_TRUE(einstellungen.ReadMaterials(CString(kBeispiele + "/Einstellungen/materialien.ini")));
  einstellungen.dTexthoehe = 2.5;
  CIniFile document;
  einstellungen.SaveGenerelles(document);
  document.Write(CString(ordner / "allgemein.ini"));
  const CAcMatEntry* material = einstellungen.BauteilMaterialien.GetEntryPtr(0);
  EXPECT_NE(material, nullptr);
  if (material) bytes += std::string(reinterpret_cast<const char*>(&material->Typ), 64);

  for (const char* name : {"fenster.aqz", "form.txt", "position.aqz", "allgemein.ini"}) {
    bytes += Bytes(ordner / name);
  }
  return bytes;
}

TEST(Landeseinstellung, OfTheHostChangesNoByte) {
  const std::string erwartet = AllesGeschriebene();
  EXPECT_NE(erwartet.find("2.5"), std::string::npos);
  const std::string before = std::setlocale(LC_ALL, nullptr);
  const bool comma = std::setlocale(LC_ALL, "de_DE.UTF-8") != nullptr &&
                     std::strcmp(std::localeconv()->decimal_point, ",") == 0;
  const bool gleich = comma && AllesGeschriebene() == erwartet;
  std::setlocale(LC_ALL, before.c_str());
  EXPECT_EQ(gleich, comma);
  if (!comma) GTEST_SKIP() << "no locale with a decimal comma is installed";
}

}  // namespace
}  // namespace lintavo::test
