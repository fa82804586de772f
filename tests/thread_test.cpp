// Windows, positions, settings and scenes on several threads at once. Every thread must
// find what one thread alone finds; under the thread sanitizer nothing may be shared
// that is not meant to be.
#include <functional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "lintavo/api/CFeApi.h"
#include "lintavo/settings/CAcFeInis.h"
#include "lintavo/settings/CMFensterPosition.h"
#ifdef LINTAVO_MIT_SZENEN
#include "lintavo/drawing/Scene.h"
#endif

#include "fuzz/Abfragen.h"
#include "support/Beispiele.h"
#include "support/Ordner.h"

namespace lintavo::test {
namespace {

constexpr std::size_t kFaeden = 4;

const std::string kBeispiele = LINTAVO_EXAMPLES_DIR;
const char* const kPositionen[] = {"kueche", "schlafzimmer", "diele"};

// All numbers and texts that came out of a piece of work.
struct Ertrag {
  std::vector<double> zahlen;
  std::string text;
  bool operator==(const Ertrag&) const = default;
};

void Sammle(const CFeApi& fenster, Ertrag& ertrag) {
  const fuzz::Antworten antworten = fuzz::FrageAlles(fenster);
  for (const auto* zahlen : {&antworten.Gebilde, &antworten.Zeichnungen, &antworten.Angaben}) {
    ertrag.zahlen.insert(ertrag.zahlen.end(), zahlen->begin(), zahlen->end());
  }
  ertrag.text += fuzz::Geschrieben(fenster);
#ifdef LINTAVO_MIT_SZENEN
  const drawing::Scene scene = drawing::BuildScene(fenster);
  for (const drawing::Line& line : scene.lines) {
    ertrag.zahlen.insert(ertrag.zahlen.end(), {line.from.x, line.from.y, line.to.x, line.to.y});
  }
  ertrag.zahlen.push_back(static_cast<double>(scene.shapes.size() + scene.texts.size()));
#endif
}

// Reads a window, fits it, asks for everything, and does the same with what it wrote.
Ertrag Fensterarbeit(const std::string& name, const Ordner& ordner) {
  Ertrag ertrag;
  CFeApi fenster;
  fenster.ReadFromFile(BeispielPfad(name).c_str());
  Sammle(fenster, ertrag);
  fenster.SetBreiteHoehe(fuzz::Laibung(), 210.0, 170.0);
  fenster.Berechne();
  Sammle(fenster, ertrag);
  const std::string path = ordner / name;
  fenster.WriteToFile(path.c_str());
  CFeApi wieder;
  wieder.ReadFromFile(path.c_str());
  Sammle(wieder, ertrag);
  return ertrag;
}

Ertrag Positionsarbeit(const std::string& name, const Ordner& ordner) {
  Ertrag ertrag;
  CMFensterPosition position;
  const CString parameter(kBeispiele + "/Positionen/" + name + ".txt");
  ertrag.zahlen.push_back(position.ReadFromFile(parameter, CString(kBeispiele)) ? 1.0 : 0.0);
  position.SetText(7, "Text");
  position.SaveToFile(CString(ordner / (name + ".aqz")), "Notiz");
  CFeApi fenster;
  fenster.SetFenster(*position.GetFensterPtr());
  Sammle(fenster, ertrag);
  return ertrag;
}

Ertrag Einstellungsarbeit() {
  Ertrag ertrag;
  CAcFeInis einstellungen;
  einstellungen.ReadGenerelles(CString(kBeispiele + "/Einstellungen/allgemein.ini"));
  einstellungen.ReadMaterials(CString(kBeispiele + "/Einstellungen/materialien.ini"));
  einstellungen.ReadMaterialIniFile(CString(kBeispiele + "/Einstellungen/materialien.ini"));
  const CAcMatList& liste = einstellungen.BauteilMaterialien;
  for (long i = 0; i < liste.GetCnt(); ++i) {
    ertrag.zahlen.push_back(static_cast<double>(liste.GetColor2d(i)));
  }
  ertrag.zahlen.push_back(einstellungen.dTexthoehe);
  return ertrag;
}

// The work of one thread, which begins with another window than the other threads'.
std::vector<Ertrag> Tagwerk(std::size_t beginn) {
  const Ordner ordner;
  const std::vector<std::string>& namen = BeispielNamen();
  std::vector<Ertrag> ertraege(namen.size());
  for (std::size_t n = 0; n < namen.size(); ++n) {
    const std::size_t i = (n + beginn) % namen.size();
    ertraege[i] = Fensterarbeit(namen[i], ordner);
  }
  for (const char* position : kPositionen) ertraege.push_back(Positionsarbeit(position, ordner));
  ertraege.push_back(Einstellungsarbeit());
  return ertraege;
}

TEST(Faeden, WindowsPositionsAndSettingsOfTheirOwn) {
  const std::vector<Ertrag> allein = Tagwerk(0);
  std::vector<std::vector<Ertrag>> jeder(kFaeden);
  std::vector<std::thread> faeden;
  for (std::size_t k = 0; k < kFaeden; ++k) {
    faeden.emplace_back([&jeder, k] { jeder[k] = Tagwerk(k * 7); });
  }
  for (std::thread& faden : faeden) faden.join();
  for (const std::vector<Ertrag>& ertraege : jeder) EXPECT_TRUE(ertraege == allein);
}

TEST(Faeden, OneWindowIsReadByAllAtOnce) {
  for (const char* name : {"sprossen_und_zusatzteile.aqz", "lamellen_mit_deckleisten.aqz"}) {
    CFeApi fenster;
    ASSERT_EQ(fenster.ReadFromFile(BeispielPfad(name).c_str()), 1);
    Ertrag allein;
    Sammle(fenster, allein);
    std::vector<Ertrag> jeder(kFaeden);
    std::vector<std::thread> faeden;
    for (Ertrag& ertrag : jeder) {
      faeden.emplace_back([&fenster, &ertrag] {
        Sammle(fenster, ertrag);
        CFeApi kopie(fenster);
        kopie.Berechne();
      });
    }
    for (std::thread& faden : faeden) faden.join();
    for (const Ertrag& ertrag : jeder) EXPECT_TRUE(ertrag == allein) << name;
  }
}

// Made here, read on one thread, changed and assigned on a second, copied and released
// on a third.
TEST(Faeden, AWindowIsHandedFromThreadToThread) {
  CFeApi vorbild;
  ASSERT_EQ(vorbild.ReadFromFile(BeispielPfad("rundbogen_dreiteilig.aqz").c_str()), 1);
  ASSERT_EQ(vorbild.SetRahmenBreite(5.0), 1);
  ASSERT_EQ(vorbild.Berechne(), 1);
  Ertrag erwartet;
  Sammle(vorbild, erwartet);

  std::vector<CFeApi> fenster(2);
  Ertrag ertrag;
  const std::function<void()> schritte[] = {
      [&] { fenster[0].ReadFromFile(BeispielPfad("rundbogen_dreiteilig.aqz").c_str()); },
      [&] {
        fenster[0].SetRahmenBreite(5.0);
        fenster[0].Berechne();
        fenster[1] = std::move(fenster[0]);
      },
      [&] {
        fenster.erase(fenster.begin());
        const CFeApi kopie(fenster.front());
        fenster.clear();
        Sammle(kopie, ertrag);
      }};
  for (const auto& schritt : schritte) std::thread(schritt).join();
  EXPECT_TRUE(ertrag == erwartet);
}

}  // namespace
}  // namespace lintavo::test
